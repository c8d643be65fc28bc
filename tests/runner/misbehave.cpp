// misbehave BEHAVIOUR [ARGUMENT]... [, BEHAVIOUR [ARGUMENT]...]...
//
// A child process as bad as they come, for tests of whoever runs children. It does what the words say,
// one behaviour after the other, separated by a lone comma:
//
//   exit N                 end with N
//   crash                  end by SIGSEGV, without a core file
//   abort                  end by SIGABRT, without a core file
//   hang                   print nothing, never end
//   sleep MS               wait that long
//   ignore-term            from here on SIGTERM, SIGINT and SIGHUP do nothing
//   slow-term MS           from here on SIGTERM ends it with 143, but only that long afterwards
//   out TEXT               TEXT and a line end to standard output
//   err TEXT               TEXT and a line end to standard error
//   out-raw TEXT           TEXT alone, with \n \r \t \\ and \xHH understood, so any bytes at all
//   err-raw TEXT           the same to standard error
//   flood [BYTES]          that many bytes in lines to standard output, without end when none is given
//   flood-err [BYTES]      the same to standard error
//   flood-both [BYTES]     alternately to both, BYTES to each
//   close-early            close standard output and standard error and go on
//   close-hang             the same and never end
//   half-utf8              the first byte of a two-byte character, a pause, the second, a line end; then a
//                          first byte that is never followed by its second
//   not-utf8               a line that is UTF-8 nowhere
//   slow-drip TEXT MS      TEXT to standard output, byte by byte, that pause after each
//   duration TEXT [FILE]   to standard error what ffmpeg prints about a file: "  Duration: TEXT, start: ..."
//   cr-progress N STEP MS  to standard error N progress lines of ffmpeg, each ending in \r, the time STEP
//                          seconds more in each, that pause after each, and a last line ending in \n
//   split-progress TIME MS a progress line that arrives in two pieces, cut in the middle of its time
//   grandchild MS          leave a child behind that holds both pipes open for that long (0: for ever, its
//                          process number goes to standard output as "grandchild N"), and go on
//   grandchild-quiet MS    the same without the line
//   read-stdin             read standard input to its end and say "stdin N", N being the bytes that came
//   print-args             write the arguments this program was started with to the file named by
//                          MISBEHAVE_LOG, see below
//   touch FILE             make or empty FILE
//   wait-for FILE          go on when FILE exists
//   copy-last              a tool's file is written: the text "misbehave" to the last argument
//
// When it has to stand in for a tool whose arguments are fixed (a link to it is named ffmpeg or drutil), the
// behaviours come from the environment variable MISBEHAVE, words separated by line ends where there is one in
// it and by blanks otherwise, or, before that, from MISBEHAVE_<verb>, where <verb> is the first argument with
// everything but letters and digits left out (MISBEHAVE_burn for `drutil burn ...`).
//
// With MISBEHAVE_LOG set, every start is noted in that file in one write, so that starts at the same time do
// not mix: "run N PROGRAM" with the number of arguments that follow, then one argument a line, with line ends
// and backslashes in it written as \n and \\. With `print-args` as the first word of argv, what follows
// `print-args` is behaviour.
//
// An unknown word ends it with 99 and a sentence, so that a mistyped test does not pass.

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <functional>
#include <map>
#include <sstream>
#include <string>
#include <string_view>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

using Words = std::vector<std::string>;

constexpr int unknownWord = 99;

[[noreturn]] void refuse(const std::string &why)
{
    std::fprintf(stderr, "misbehave: %s\n", why.c_str());
    std::_Exit(unknownWord);
}

/// Writes it all, or stops quietly where nobody reads any more.
bool put(int channel, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = write(channel, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

std::uint64_t number(const std::string &word)
{
    std::uint64_t value = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
    if (error != std::errc() || end != word.data() + word.size())
        refuse("'" + word + "' is no number");
    return value;
}

void pauseFor(std::uint64_t milliseconds)
{
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

[[noreturn]] void hang()
{
    for (;;)
        pause();
}

/// \n \r \t \\ and \xHH become the bytes they stand for.
std::string unescaped(const std::string &text)
{
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\' || i + 1 == text.size()) {
            bytes += text[i];
            continue;
        }
        const char kind = text[++i];
        if (kind == 'x') {
            bytes += static_cast<char>(std::strtol(text.substr(i + 1, 2).c_str(), nullptr, 16));
            i += 2;
        } else {
            bytes += kind == 'n' ? '\n' : kind == 'r' ? '\r' : kind == 't' ? '\t' : kind;
        }
    }
    return bytes;
}

std::string escaped(const std::string &text)
{
    std::string line;
    for (const char c : text)
        line += c == '\n' ? "\\n" : c == '\\' ? "\\\\" : std::string(1, c);
    return line;
}

/// So many bytes to each of the channels in turn, in lines of 64; without an argument until nobody reads.
void flood(const std::vector<int> &channels, const Words &arguments)
{
    const bool endless = arguments.empty();
    std::uint64_t left = endless ? 0 : number(arguments[0]);
    const std::string line = std::string(63, 'x') + '\n';
    while (endless || left > 0) {
        const std::size_t now = endless ? line.size() : std::min<std::uint64_t>(left, line.size());
        for (const int channel : channels) {
            if (!put(channel, std::string_view(line).substr(line.size() - now)))
                return;
        }
        left -= endless ? 0 : now;
    }
}

std::string progressTime(std::uint64_t seconds)
{
    char text[48];
    std::snprintf(text, sizeof text, "%02u:%02u:%02u.00", static_cast<unsigned>(seconds / 3600),
        static_cast<unsigned>(seconds / 60 % 60), static_cast<unsigned>(seconds % 60));
    return text;
}

std::string progressLine(const std::string &time)
{
    return "size=     256kB time=" + time + " bitrate= 192.0kbits/s speed=42.0x    ";
}

void progress(const Words &arguments)
{
    const std::uint64_t lines = number(arguments[0]);
    const std::uint64_t step = number(arguments[1]);
    for (std::uint64_t i = 1; i <= lines; ++i) {
        put(STDERR_FILENO, progressLine(progressTime(i * step)) + (i < lines ? '\r' : '\n'));
        pauseFor(number(arguments[2]));
    }
}

void splitProgress(const Words &arguments)
{
    const std::string line = progressLine(arguments[0]) + '\r';
    const std::size_t cut = line.find("time=") + 9;
    put(STDERR_FILENO, std::string_view(line).substr(0, cut));
    pauseFor(number(arguments[1]));
    put(STDERR_FILENO, std::string_view(line).substr(cut));
}

void halfUtf8()
{
    put(STDOUT_FILENO, "\xc3");
    pauseFor(50);
    put(STDOUT_FILENO, "\xa9\n");
    put(STDOUT_FILENO, "\xc3");
}

void grandchild(std::uint64_t milliseconds, bool say)
{
    const pid_t child = fork();
    if (child < 0)
        refuse("no grandchild");
    if (child == 0) {
        if (milliseconds == 0)
            hang();
        pauseFor(milliseconds);
        std::_Exit(0);
    }
    if (say)
        put(STDOUT_FILENO, "grandchild " + std::to_string(child) + "\n");
}

void readInput()
{
    char buffer[4096];
    std::uint64_t all = 0;
    for (ssize_t got = 0; (got = read(STDIN_FILENO, buffer, sizeof buffer)) > 0;)
        all += static_cast<std::uint64_t>(got);
    put(STDOUT_FILENO, "stdin " + std::to_string(all) + "\n");
}

void writeFile(const std::string &path, std::string_view content)
{
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (file < 0)
        refuse("cannot write " + path);
    put(file, content);
    close(file);
}

void waitForFile(const std::string &path)
{
    while (access(path.c_str(), F_OK) != 0)
        pauseFor(5);
}

void closeOutput()
{
    close(STDOUT_FILENO);
    close(STDERR_FILENO);
}

volatile sig_atomic_t slowTermMilliseconds = 0;

/// Only calls that are allowed in a signal handler.
void endSlowly(int)
{
    timespec left{ slowTermMilliseconds / 1000, slowTermMilliseconds % 1000 * 1'000'000L };
    while (nanosleep(&left, &left) != 0 && errno == EINTR) { }
    _exit(143);
}

void ignoreSignals()
{
    for (const int kind : { SIGTERM, SIGINT, SIGHUP })
        std::signal(kind, SIG_IGN);
}

void dieBy(int kind)
{
    const rlimit none{ 0, 0 };
    setrlimit(RLIMIT_CORE, &none);
    std::signal(kind, SIG_DFL);
    raise(kind);
}

/// What one word does, and how many words after it are its own.
struct Behaviour {
    std::size_t atLeast;
    std::size_t atMost;
    std::function<void(const Words &)> run;
};

const std::vector<std::string> *commandLine = nullptr;

const std::map<std::string_view, Behaviour> behaviours = {
    { "exit", { 1, 1, [](const Words &w) { std::_Exit(static_cast<int>(number(w[0]))); } } },
    { "crash", { 0, 0, [](const Words &) { dieBy(SIGSEGV); } } },
    { "abort", { 0, 0, [](const Words &) { dieBy(SIGABRT); } } },
    { "hang", { 0, 0, [](const Words &) { hang(); } } },
    { "sleep", { 1, 1, [](const Words &w) { pauseFor(number(w[0])); } } },
    { "ignore-term", { 0, 0, [](const Words &) { ignoreSignals(); } } },
    { "slow-term",
        { 1, 1,
            [](const Words &w) {
                slowTermMilliseconds = static_cast<sig_atomic_t>(number(w[0]));
                std::signal(SIGTERM, endSlowly);
            } } },
    { "out", { 1, 1, [](const Words &w) { put(STDOUT_FILENO, w[0] + "\n"); } } },
    { "err", { 1, 1, [](const Words &w) { put(STDERR_FILENO, w[0] + "\n"); } } },
    { "out-raw", { 1, 1, [](const Words &w) { put(STDOUT_FILENO, unescaped(w[0])); } } },
    { "err-raw", { 1, 1, [](const Words &w) { put(STDERR_FILENO, unescaped(w[0])); } } },
    { "flood", { 0, 1, [](const Words &w) { flood({ STDOUT_FILENO }, w); } } },
    { "flood-err", { 0, 1, [](const Words &w) { flood({ STDERR_FILENO }, w); } } },
    { "flood-both",
        { 0, 1,
            [](const Words &w) {
                flood({ STDOUT_FILENO, STDERR_FILENO }, w);
            } } },
    { "close-early", { 0, 0, [](const Words &) { closeOutput(); } } },
    { "close-hang",
        { 0, 0,
            [](const Words &) {
                closeOutput();
                hang();
            } } },
    { "half-utf8", { 0, 0, [](const Words &) { halfUtf8(); } } },
    { "not-utf8", { 0, 0, [](const Words &) { put(STDOUT_FILENO, "\xff\xfe\xc0\x80 Duration: \xf5\n"); } } },
    { "slow-drip",
        { 2, 2,
            [](const Words &w) {
                for (const char c : w[0]) {
                    put(STDOUT_FILENO, std::string_view(&c, 1));
                    pauseFor(number(w[1]));
                }
            } } },
    { "duration",
        { 1, 2,
            [](const Words &w) {
                const std::string file = w.size() > 1 ? w[1] : "track.mp3";
                put(STDERR_FILENO,
                    "Input #0, mp3, from '" + file + "':\n  Duration: " + w[0]
                        + ", start: 0.025057, bitrate: 192 kb/s\n");
            } } },
    { "cr-progress", { 3, 3, progress } },
    { "split-progress", { 2, 2, splitProgress } },
    { "grandchild", { 1, 1, [](const Words &w) { grandchild(number(w[0]), true); } } },
    { "grandchild-quiet", { 1, 1, [](const Words &w) { grandchild(number(w[0]), false); } } },
    { "read-stdin", { 0, 0, [](const Words &) { readInput(); } } },
    { "touch", { 1, 1, [](const Words &w) { writeFile(w[0], ""); } } },
    { "wait-for", { 1, 1, [](const Words &w) { waitForFile(w[0]); } } },
    { "copy-last",
        { 0, 0,
            [](const Words &) {
                if (commandLine->empty())
                    refuse("copy-last needs an argument");
                writeFile(commandLine->back(), "misbehave");
            } } },
};

void run(const Words &step)
{
    const auto found = behaviours.find(step[0]);
    if (found == behaviours.end())
        refuse("it does not know how to '" + step[0] + "'");
    const Words arguments(step.begin() + 1, step.end());
    const Behaviour &behaviour = found->second;
    if (arguments.size() < behaviour.atLeast || arguments.size() > behaviour.atMost)
        refuse("'" + step[0] + "' has a wrong number of words after it");
    behaviour.run(arguments);
}

void runAll(const Words &words)
{
    for (auto at = words.begin(); at != words.end();) {
        const auto comma = std::find(at, words.end(), ",");
        if (at != comma)
            run(Words(at, comma));
        at = comma == words.end() ? comma : comma + 1;
    }
}

/// Words separated by line ends where there is one, so that a word can hold blanks, else by blanks.
Words split(const std::string &text)
{
    const bool lines = text.find('\n') != std::string::npos;
    std::istringstream stream(text);
    Words words;
    for (std::string word; lines ? bool(std::getline(stream, word)) : bool(stream >> word);) {
        if (!word.empty())
            words.push_back(word);
    }
    return words;
}

const char *fromEnvironment(const Words &arguments)
{
    if (!arguments.empty()) {
        std::string name = "MISBEHAVE_";
        std::copy_if(arguments[0].begin(), arguments[0].end(), std::back_inserter(name),
            [](unsigned char c) { return std::isalnum(c) != 0; });
        if (const char *words = std::getenv(name.c_str()))
            return words;
    }
    return std::getenv("MISBEHAVE");
}

void note(const char *program, const Words &arguments)
{
    const char *log = std::getenv("MISBEHAVE_LOG");
    if (!log)
        return;
    std::string text = "run " + std::to_string(arguments.size()) + ' ' + escaped(program) + '\n';
    for (const std::string &argument : arguments)
        text += escaped(argument) + '\n';
    const int file = open(log, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0644);
    if (file < 0 || !put(file, text))
        refuse(std::string("cannot note its arguments in ") + log);
    close(file);
}

} // namespace

int main(int count, char **values)
{
    Words arguments(values + 1, values + count);
    commandLine = &arguments;
    note(count > 0 ? values[0] : "", arguments);

    if (const char *words = fromEnvironment(arguments)) {
        runAll(split(words));
        return 0;
    }
    if (!arguments.empty() && arguments[0] == "print-args")
        arguments.erase(arguments.begin());
    if (arguments.empty() && std::getenv("MISBEHAVE_LOG") == nullptr)
        refuse("say how: MISBEHAVE, or arguments as its source tells");
    runAll(arguments);
    return 0;
}
