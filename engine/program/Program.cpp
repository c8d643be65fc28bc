#include "program/Program.h"

#include "base/Words.h"
#include "program/Output.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <exception>
#include <fcntl.h>
#include <unistd.h>

namespace engine::program {

namespace {

using Words = std::span<const char *const>;

/// Reads the option `name`; `value` is the word behind it, if there is one. Returns whether it was taken.
Result<bool> readOption(const Verb &verb, const std::string &name, const char *value, Arguments &arguments)
{
    const auto option =
        std::ranges::find(verb.options, name, [](const Option &o) { return std::string_view(o.name); });
    if (option == verb.options.end())
        return usageError(std::string("An option of ") + verb.name + " is not known: " + quoted(name)
            + (verb.operands > 0 ? " (put ./ before a name that begins with '-')." : "."));
    if (!option->wants) {
        arguments.options[name];
        return false;
    }
    if (!value || (option->isRight && !option->isRight(value)))
        return usageError(option->wants);
    if (!arguments.options.try_emplace(name, value).second)
        return usageError("The option " + name + " is given twice.");
    return true;
}

bool isHelp(std::string_view word)
{
    return word == "--help" || word == "-h";
}

/// Whether the words behind a verb ask for help rather than for its work.
bool asksForHelp(Words words)
{
    const auto end = std::ranges::find(
        words, std::string_view("--"), [](const char *word) { return std::string_view(word); });
    return std::any_of(words.begin(), end, isHelp);
}

std::string helpOf(const Program &program)
{
    std::string text = std::string("Usage: ") + program.name + ' ' + program.usage + "\n\n";
    for (const Verb &verb : program.verbs)
        text += verb.help;
    return text + program.help;
}

std::string helpOf(const Program &program, const Verb &verb)
{
    return std::string("Usage: ") + program.name + ' ' + verb.usage + "\n\n" + verb.help + "\n'"
        + program.name + " --help' and 'man " + program.name + "' tell more.\n";
}

Result<Arguments> parse(const Verb &verb, Words words)
{
    Arguments arguments;
    bool options = true;
    for (; !words.empty(); words = words.subspan(1)) {
        const std::string word = words.front();
        if (options && word == "--") {
            options = false;
        } else if (options && word.size() > 1 && word.front() == '-') {
            const auto read = readOption(verb, word, words.size() > 1 ? words[1] : nullptr, arguments);
            if (!read)
                return read.error();
            words = words.subspan(*read ? 1 : 0);
        } else {
            arguments.operands.push_back(word);
        }
    }
    if (arguments.operands.size() != verb.operands)
        return usageError(arguments.operands.size() < verb.operands ? "An argument is missing."
                                                                    : "There are too many arguments.");
    return arguments;
}

int end(const Program &program, const Result<void> &done, const char *usage)
{
    if (done)
        return static_cast<int>(Exit::success);
    const std::string name = program.name;
    std::string text = name + ": " + done.error().message + '\n';
    if (done.error().exit == Exit::usage)
        text += "Usage: " + name + ' ' + usage + '\n';
    // Whoever was told to stop does not wait long for somebody who may not read any more.
    Output(STDERR_FILENO, [stopped = isStop(done.error())] { return stopped ? SIGTERM : 0; }).tell(text);
    return static_cast<int>(done.error().exit);
}

Result<void> runVerb(const Verb &verb, const Arguments &arguments)
{
    try {
        return verb.run(arguments);
    } catch (const std::exception &failure) {
        // The system has no memory or no thread left.
        return Error{ Exit::failed, std::string("The work cannot go on: ") + failure.what() + "." };
    }
}

/// Fills the places of standard input, output and error where they are closed: a disc or an image that got
/// the number of one would take in what is printed.
void keepStandardFiles()
{
    for (int fd = 0; fd <= 2; ++fd)
        if (::fcntl(fd, F_GETFD) == -1 && ::open("/dev/null", O_RDWR) < 0)
            return;
}

} // namespace

std::string Arguments::valueOf(std::string_view option) const
{
    const auto found = options.find(option);
    return found == options.end() ? std::string() : found->second;
}

int run(const Program &program, Words words)
{
    keepStandardFiles();
    // Whoever reads our output may go away at any time; that is no reason to break off a write.
    std::signal(SIGPIPE, SIG_IGN);
    if (words.empty())
        return end(program, usageError("A verb is missing."), program.usage);
    std::string_view first = words.front();
    const bool help = first == "help";
    if (isHelp(first) || (help && words.size() == 1))
        return end(program, printReport(helpOf(program)), program.usage);
    if (help)
        first = words[1];
    if (first == "--version")
        return end(program, printReport(std::string(program.name) + " (Corvalis) " CORVALIS_VERSION "\n"),
            program.usage);
    const auto verb =
        std::ranges::find(program.verbs, first, [](const Verb &v) { return std::string_view(v.name); });
    if (verb == program.verbs.end())
        return end(program, usageError("There is no such verb: " + quoted(first) + "."), program.usage);
    if (help || asksForHelp(words.subspan(1)))
        return end(program, printReport(helpOf(program, *verb)), verb->usage);
    const Result<Arguments> arguments = parse(*verb, words.subspan(1));
    return end(program, arguments ? runVerb(*verb, *arguments) : arguments.error(), verb->usage);
}

Error usageError(std::string message)
{
    return { Exit::usage, std::move(message) };
}

Result<void> printReport(const std::string &text)
{
    std::fwrite(text.data(), 1, text.size(), stdout);
    std::fflush(stdout);
    if (std::ferror(stdout))
        return Error{ Exit::failed, "The report cannot be written to the output: " + reason(errno) + "." };
    return {};
}

} // namespace engine::program
