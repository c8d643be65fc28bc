// drutil: the drives of this machine and the media in them.
#include "drive/Burn.h"
#include "drive/Drives.h"
#include "program/Program.h"
#include "program/Session.h"
#include "program/SpeedOption.h"
#include "report/DriveList.h"
#include "report/StatusText.h"
#include "report/TracksText.h"

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace engine;
using drive::Drive;
using program::Arguments;
using program::Option;
using program::printReport;
using program::Session;
using program::usageError;
using program::Verb;

constexpr const char *helpText =
    R"(  --help, --version             also 'drutil help VERB' and 'drutil VERB --help'

N is the character at the start of the drive's line in 'drutil list'. It may be left
out while there is one drive. '--' ends the options.

Virtual recorders are kept in $CORVALIS_RECORDERS (default: corvalis/recorders in the
user's data folder); CORVALIS_VIRTUAL=off hides them, =always keeps one in any
case, =only hides the physical drives, =auto makes one where there is no burner.

Exit status: 0 success, 1 failure, 2 wrong arguments, 3 no such drive or no disc,
130 and 143 ended by SIGINT and SIGTERM.
)";

auto chosenDrive(const Arguments &arguments)
{
    return drive::driveNumbered(arguments.valueOf("-drive"));
}

Result<void> list(const Arguments &)
{
    const auto drives = drive::allDrivesOrNew();
    if (!drives)
        return drives.error();
    std::vector<DriveRecord> records;
    for (const auto &drive : *drives)
        records.push_back(drive->record());
    return printReport(report::driveListText(records));
}

/// What `question` asks the chosen drive. A stop signal ends it with the drive given back: one that is left in
/// mid-question keeps its tray locked.
template <class Answer>
Result<Answer> askDrive(const Arguments &arguments, Result<Answer> (*question)(Drive &drive))
{
    const StopSignals signals;
    const auto drive = chosenDrive(arguments);
    if (!drive)
        return drive.error();
    (*drive)->setStop(signals.stop());
    Result<Answer> answer = question(**drive);
    if (const int signal = signals.stop().signal())
        return stoppedBy(signal, "Stopped before " + (*drive)->name() + " had told about its disc.");
    return answer;
}

Result<Medium> mediumIn(Drive &drive)
{
    const auto lease = drive.acquire(drive::Purpose::look);
    return lease ? (*lease)->medium() : lease.error();
}

/// Does `change` to the chosen drive without leaving it half done: a stop signal only ends the waits before.
Result<void> changeDrive(const Arguments &arguments, const std::function<Result<void>(Drive &)> &change)
{
    const StopSignals signals;
    const auto drive = chosenDrive(arguments);
    if (!drive)
        return drive.error();
    (*drive)->setStop(signals.stop());
    const Result<void> done = change(**drive);
    const int signal = signals.stop().signal();
    if (!done || signal == 0)
        return done;
    return stoppedBy(signal, "Stopped after " + (*drive)->name() + " had done what it was told.");
}

Result<void> status(const Arguments &arguments)
{
    const Result<Medium> medium = askDrive(arguments, mediumIn);
    if (!medium)
        return medium.error();
    return printReport(report::statusText(*medium));
}

Result<void> tracks(const Arguments &arguments)
{
    const Result<DiscTracks> tracks = askDrive(arguments, drive::tracksOn);
    if (!tracks)
        return tracks.error();
    return printReport(report::tracksText(*tracks));
}

Result<void> burnDisc(const Arguments &arguments)
{
    const auto speed = program::wishedSpeed(arguments);
    if (!speed)
        return speed.error();
    Session session;
    const auto drive = chosenDrive(arguments);
    if (!drive)
        return drive.error();
    session.sayDrive(**drive);
    const bool audio = arguments.has("-audio");
    const bool verify = !audio && !arguments.has("-noverify");
    const auto operation = audio ? drive::burnAudioFolder : drive::burnFolder;
    auto done = operation(**drive, arguments.operands.front(), session.burnOptions(verify, *speed));
    if (done)
        session.say(
            "Done: the disc in " + (*drive)->name() + " is written" + (verify ? " and was compared." : "."));
    return done;
}

Result<void> erase(const Arguments &arguments)
{
    const std::string &mode = arguments.operands.front();
    if (mode != "full" && mode != "quick")
        return usageError("An erase is either 'full' or 'quick'.");
    Session session;
    const auto drive = chosenDrive(arguments);
    if (!drive)
        return drive.error();
    auto done = drive::eraseMedium(
        **drive, mode == "full" ? drive::EraseMode::full : drive::EraseMode::quick, session.control());
    if (done)
        session.say("Done: the disc in " + (*drive)->name() + " is erased.");
    return done;
}

Result<void> tray(const Arguments &arguments)
{
    const std::string &motion = arguments.operands.front();
    if (motion != "eject" && motion != "close")
        return usageError("A tray is told to 'eject' or to 'close'.");
    return changeDrive(
        arguments, [&](Drive &drive) { return motion == "eject" ? drive.eject() : drive.close(); });
}

Result<void> folder(const Arguments &arguments)
{
    const auto drive = chosenDrive(arguments);
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
    const auto kind = kindOfInsertName(name);
    if (!kind && name != "none")
        return usageError("The kind of a blank is one of " + insertNames() + ", none.");
    return changeDrive(
        arguments, [&](Drive &drive) { return drive.insert(kind.value_or(MediumKind::none)); });
}

bool isDriveNumber(std::string_view value)
{
    return value.size() == 1;
}

constexpr Option driveOption{ "-drive",
    "-drive wants the one character that 'drutil list' prints for the drive.", isDriveNumber };
constexpr std::array options{ driveOption };
constexpr std::array burnOptions{ driveOption, program::speedOption, Option{ "-audio" },
    Option{ "-noverify" } };

std::string insertHelp()
{
    return R"(  insert KIND                   put a blank into a virtual recorder; KIND is one of
                                )"
        + insertNames() + ", none\n";
}

const std::array verbs{
    Verb{ "list", "list", 0, options, list, "  list                          list the drives\n" },
    Verb{ "status", "status [-drive N]", 0, options, status,
        "  status                        tell about the medium in the drive\n" },
    Verb{ "tracks", "tracks [-drive N]", 0, options, tracks,
        "  tracks                        list the tracks of the disc, their times and names\n" },
    Verb{ "burn", "burn [-audio] [-noverify] [-speed N|max] FOLDER [-drive N]", 1, burnOptions, burnDisc,
        R"(  burn [-noverify] FOLDER       write the content of FOLDER as a data disc
  burn -audio FOLDER            write the WAVE files in FOLDER as an audio disc
  burn -speed N|max ...         at the drive's speed that is nearest to N times the single speed of the disc,
                                or at the fastest; without it, $CORVALIS_SPEED says so
)" },
    Verb{ "erase", "erase full|quick [-drive N]", 1, options, erase,
        "  erase full|quick              erase a rewritable medium\n" },
    Verb{ "tray", "tray eject|close [-drive N]", 1, options, tray,
        "  tray eject|close              open or close the tray\n" },
    Verb{ "folder", "folder [-drive N]", 0, options, folder,
        "  folder                        tell where the discs of a virtual recorder lie\n" },
    Verb{ "insert", "insert KIND [-drive N]", 1, options, insert, insertHelp() },
};

} // namespace

int main(int argc, char **argv)
{
    const program::Program drutil{ "drutil", "VERB [ARGUMENT...] [-drive N]", helpText, verbs };
    return program::run(drutil, { argv + (argc > 0), argv + argc });
}
