#include "program/Session.h"

#include "base/Words.h"
#include "report/DriveList.h"
#include "report/StatusText.h"

#include <sys/stat.h>
#include <unistd.h>

namespace engine::program {

namespace {

bool isOneFile(int left, int right)
{
    struct stat a {
    }, b{};
    return ::fstat(left, &a) == 0 && ::fstat(right, &b) == 0 && a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

} // namespace

Session::Session()
    : m_output(STDOUT_FILENO, m_signals.stop())
    , m_errors(STDERR_FILENO, m_signals.stop())
    , m_together(isOneFile(STDOUT_FILENO, STDERR_FILENO))
{
}

void Session::sayDrive(const drive::Drive &drive)
{
    const std::string title = report::driveTitle(drive.record());
    const Result<std::string> folder = drive.folder();
    say("Burning in " + drive.name() + (title.empty() ? "" : ": " + title) + '.'
        + (folder ? " Its discs lie in " + quoted(*folder) + '.' : ""));
}

void Session::note(const std::string &sentence)
{
    (m_together ? m_output : m_errors).tell("note: " + sentence + '\n');
}

drive::Control Session::control()
{
    return { [this](const Progress &progress, unsigned unitBytes) {
                if (const auto line = m_pacer.next(progress, unitBytes, report::ProgressPacer::Clock::now()))
                    m_output.offer(*line + '\n');
            },
        stop() };
}

/// `speed` as Pace::begins is told it.
void Session::saySpeed(int speed, Family family, SpeedWish wish)
{
    if (speed == 0)
        return say("The drive names no speeds and writes at one that it chooses.");
    const std::string factor = report::speedFactor(speed, family);
    const std::string wanted = wish ? report::speedFactor(*wish * singleSpeed(family), family) : factor;
    say("Writing at " + factor
        + (factor == wanted ? "." : ", which is the speed of the drive next to " + wanted + "."));
}

drive::BurnOptions Session::burnOptions(bool verify, const ToldWish &speed)
{
    drive::Pace pace{ speed.speed, {} };
    if (speed.told)
        pace.begins = [this, wish = speed.speed](int begun, Family family) { saySpeed(begun, family, wish); };
    return { verify, std::move(pace), control(), [this](const std::string &line) { say(line); },
        [this](const std::string &sentence) { note(sentence); } };
}

} // namespace engine::program
