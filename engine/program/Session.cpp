#include "program/Session.h"

#include "base/Words.h"
#include "report/DriveList.h"

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

drive::BurnOptions Session::burnOptions(bool verify)
{
    return { verify, control(), [this](const std::string &line) { say(line); },
        [this](const std::string &sentence) { note(sentence); } };
}

} // namespace engine::program
