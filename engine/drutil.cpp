// drutil: the drives of this machine and the media in them.
#include "base/Words.h"
#include "drive/Burn.h"
#include "drive/Drives.h"
#include "report/DriveList.h"
#include "report/ProgressText.h"
#include "report/StatusText.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace engine;
using drive::Drive;

constexpr const char *helpText = R"(Usage: drutil VERB [ARGUMENT...] [-drive N]

  list                          list the drives
  status                        tell about the medium in the drive
  burn [-noverify] FOLDER       write the content of FOLDER as a data disc
  burn -audio FOLDER            write the WAVE files in FOLDER as an audio disc
  erase full|quick              erase a rewritable medium
  tray eject|close              open or close the tray
  folder                        tell where the discs of a virtual recorder lie
  insert KIND                   put a blank into a virtual recorder; KIND is one of
                                %s, none
  --help, --version

N is the character at the start of the drive's line in 'drutil list'. It may be left
out while there is one drive. '--' ends the options.

Virtual recorders are kept in $CORVALIS_RECORDERS (default: corvalis/recorders in the
user's data folder); CORVALIS_VIRTUAL=off hides them, =always keeps one in any
case, =only hides the physical drives.

Exit status: 0 success, 1 failure, 2 wrong arguments, 3 no such drive or no disc,
130 and 143 ended by SIGINT and SIGTERM.
)";

/// The command line, taken apart.
struct Arguments {
    std::string verb;
    std::vector<std::string> operands;
    std::string driveNumber;
    bool audio = false;
    bool verify = true;
};

struct Verb {
    const char *name;
    const char *usage;
    std::size_t operands;
    Result<void> (*run)(const Arguments &);
};

Error usageError(std::string message)
{
    return { Exit::usage, std::move(message) };
}

void print(const std::string &text)
{
    std::fwrite(text.data(), 1, text.size(), stdout);
    std::fflush(stdout);
}

Result<void> printReport(const std::string &text)
{
    print(text);
    if (std::ferror(stdout))
        return Error{ Exit::failed, "The report cannot be written to the output: " + reason(errno) + "." };
    return {};
}

/// Progress lines on standard output and the stop signals, for the time of one operation.
class Session {
public:
    drive::Control control()
    {
        return { [this](const report::Progress &progress, unsigned unitBytes) {
                    if (const auto line =
                            m_pacer.next(progress, unitBytes, report::ProgressPacer::Clock::now()))
                        print(*line + '\n');
                },
            [this] { return m_signals.caught(); } };
    }

private:
    drive::StopSignals m_signals;
    report::ProgressPacer m_pacer;
};

Result<void> list(const Arguments &)
{
    const auto drives = drive::allDrivesOrNew();
    if (!drives)
        return drives.error();
    std::vector<report::DriveRecord> records;
    for (const auto &drive : *drives)
        records.push_back(drive->record());
    return printReport(report::driveListText(records));
}

Result<void> status(const Arguments &arguments)
{
    const auto drive = drive::driveNumbered(arguments.driveNumber);
    if (!drive)
        return drive.error();
    const auto lease = (*drive)->acquire(drive::Purpose::look);
    if (!lease)
        return lease.error();
    const Result<report::Medium> medium = (*lease)->medium();
    if (!medium)
        return medium.error();
    return printReport(report::statusText(*medium));
}

Result<void> burnDisc(const Arguments &arguments)
{
    const auto drive = drive::driveNumbered(arguments.driveNumber);
    if (!drive)
        return drive.error();
    Session session;
    drive::BurnOptions options;
    options.verify = arguments.verify;
    options.control = session.control();
    options.note = [](const std::string &line) { print(line + '\n'); };
    const auto operation = arguments.audio ? drive::burnAudioFolder : drive::burnFolder;
    auto done = operation(**drive, arguments.operands.front(), options);
    if (done)
        print("Done: the disc in " + (*drive)->name() + " is written"
            + (arguments.audio || !arguments.verify ? ".\n" : " and was compared.\n"));
    return done;
}

Result<void> erase(const Arguments &arguments)
{
    const std::string &mode = arguments.operands.front();
    if (mode != "full" && mode != "quick")
        return usageError("An erase is either 'full' or 'quick'.");
    const auto drive = drive::driveNumbered(arguments.driveNumber);
    if (!drive)
        return drive.error();
    Session session;
    auto done = drive::eraseMedium(
        **drive, mode == "full" ? drive::EraseMode::full : drive::EraseMode::quick, session.control());
    if (done)
        print("Done: the disc in " + (*drive)->name() + " is erased.\n");
    return done;
}

Result<void> tray(const Arguments &arguments)
{
    const std::string &motion = arguments.operands.front();
    if (motion != "eject" && motion != "close")
        return usageError("A tray is told to 'eject' or to 'close'.");
    const auto drive = drive::driveNumbered(arguments.driveNumber);
    if (!drive)
        return drive.error();
    return motion == "eject" ? (*drive)->eject() : (*drive)->close();
}

Result<void> folder(const Arguments &arguments)
{
    const auto drive = drive::driveNumbered(arguments.driveNumber);
    if (!drive)
        return drive.error();
    const Result<std::string> path = (*drive)->folder();
    if (!path)
        return path.error();
    return printReport(*path + '\n');
}

Result<void> insert(const Arguments &arguments)
{
    const std::string &name = arguments.operands.front();
    const auto kind = report::kindOfInsertName(name);
    if (!kind && name != "none")
        return usageError("The kind of a blank is one of " + report::insertNames() + ", none.");
    const auto drive = drive::driveNumbered(arguments.driveNumber);
    if (!drive)
        return drive.error();
    return (*drive)->insert(kind.value_or(report::MediumKind::none));
}

constexpr std::array verbs{
    Verb{ "list", "list", 0, list },
    Verb{ "status", "status [-drive N]", 0, status },
    Verb{ "burn", "burn [-audio] [-noverify] FOLDER [-drive N]", 1, burnDisc },
    Verb{ "erase", "erase full|quick [-drive N]", 1, erase },
    Verb{ "tray", "tray eject|close [-drive N]", 1, tray },
    Verb{ "folder", "folder [-drive N]", 0, folder },
    Verb{ "insert", "insert KIND [-drive N]", 1, insert },
};

const Verb *verbNamed(std::string_view name)
{
    const auto verb = std::ranges::find(verbs, name, [](const Verb &v) { return std::string_view(v.name); });
    return verb == verbs.end() ? nullptr : &*verb;
}

/// Reads one option at `at`, and moves `at` behind it.
Result<void> readOption(const std::vector<std::string> &words, std::size_t &at, Arguments &arguments)
{
    const std::string &word = words[at++];
    const bool burns = arguments.verb == "burn";
    if (word == "-drive") {
        if (at == words.size() || words[at].size() != 1)
            return usageError("-drive wants the one character that 'drutil list' prints for the drive.");
        arguments.driveNumber = words[at++];
        return {};
    }
    if (burns && word == "-audio")
        arguments.audio = true;
    else if (burns && word == "-noverify")
        arguments.verify = false;
    else
        return usageError("An option of " + arguments.verb + " is not known: " + engine::quoted(word)
            + (burns ? " (put ./ before the name of a folder)." : "."));
    return {};
}

Result<Arguments> parse(const std::vector<std::string> &words)
{
    Arguments arguments;
    arguments.verb = words.front();
    const Verb *verb = verbNamed(arguments.verb);
    if (!verb)
        return usageError("There is no such verb: " + engine::quoted(arguments.verb) + ".");
    bool options = true;
    for (std::size_t at = 1; at < words.size();) {
        const std::string &word = words[at];
        if (options && word == "--") {
            options = false;
            ++at;
        } else if (options && word.size() > 1 && word.front() == '-') {
            if (auto read = readOption(words, at, arguments); !read)
                return read.error();
        } else {
            arguments.operands.push_back(word);
            ++at;
        }
    }
    if (arguments.operands.size() != verb->operands)
        return usageError(arguments.operands.size() < verb->operands ? "An argument is missing."
                                                                     : "There are too many arguments.");
    return arguments;
}

int fail(const Error &error, const char *usage)
{
    std::string text = "drutil: " + error.message + '\n';
    if (error.exit == Exit::usage)
        text += std::string("Usage: drutil ") + usage + '\n';
    std::fwrite(text.data(), 1, text.size(), stderr);
    return static_cast<int>(error.exit);
}

} // namespace

int main(int argc, char **argv)
{
    // Whoever reads our output may go away at any time; that is no reason to break off a write.
    std::signal(SIGPIPE, SIG_IGN);
    const std::vector<std::string> words(argv + 1, argv + argc);
    if (words.empty())
        return fail(usageError("A verb is missing."), "VERB [ARGUMENT...] [-drive N]");
    if (words.front() == "--help" || words.front() == "-h") {
        std::printf(helpText, report::insertNames().c_str());
        return 0;
    }
    if (words.front() == "--version") {
        print("drutil (Corvalis) " CORVALIS_VERSION "\n");
        return 0;
    }
    const Verb *verb = verbNamed(words.front());
    const Result<Arguments> arguments = parse(words);
    const Result<void> done = arguments ? verb->run(*arguments) : Result<void>(arguments.error());
    if (!done)
        return fail(done.error(), verb ? verb->usage : "VERB [ARGUMENT...] [-drive N]");
    return 0;
}
