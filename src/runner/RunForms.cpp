// The three ways in which the controller runs a tool, and what it does when one speaks or ends.
//
// A capture waits for the tool's output. The other two belong to a job, which watches the run: every new run drops the
// watchers of the run before, so no handler can fire a second time.
#include "app/AppDelegate.h"
#include "app/MainWindow.h"
#include "kit/SheetStage.h"
#include "runner/ActivityLog.h"
#include "runner/ProgressParser.h"
#include "runner/ToolRun.h"
#include "writing/Job.h"
#include "writing/StatusSheets.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QGuiApplication>
#include <QLoggingCategory>
#include <QProgressBar>

#include <cmath>

using namespace Qt::StringLiterals;
using runner::ToolRun;

Q_LOGGING_CATEGORY(tools, "corvalis.tools")

namespace {

// The system's log is no place for a flood; the activity log has all.
constexpr qsizetype mostLogged = 4096;

/// What a person sees while the program waits for a tool: a busy pointer at once; after a moment a window that takes no
/// input but goes on repainting.
class Patience {
public:
    explicit Patience(SheetStage *stage)
        : m_stage(stage)
    {
        QGuiApplication::setOverrideCursor(Qt::BusyCursor);
        m_clock.start();
    }
    Patience(const Patience &) = delete;
    Patience &operator=(const Patience &) = delete;
    ~Patience()
    {
        QGuiApplication::restoreOverrideCursor();
        if (m_holds)
            m_stage->release();
    }

    void operator()()
    {
        constexpr qint64 moment = 250; // most answers are here before, and the window need not blink for them
        if (m_clock.elapsed() < moment)
            return;
        if (!m_holds)
            m_stage->hold();
        m_holds = true;
        QCoreApplication::processEvents();
    }

private:
    SheetStage *const m_stage;
    QElapsedTimer m_clock;
    bool m_holds = false;
};

} // namespace

QByteArray AppDelegate::captureTool(
    const QString &program, const QStringList &arguments, runner::ToolEnd *end)
{
    auto *run = new ToolRun(program, arguments, activityLog, this);
    Patience patience(window->stage());
    QByteArray printed = run->capture(around.probeLimit, [&patience] { patience(); });
    const bool missing = run->hasEnded() && run->end().how == runner::ToolEnd::How::CouldNotStart;
    m_notStarted = missing ? run->end().sentence(program) : QString();
    m_probeHung = run->hasEnded() && run->end().how == runner::ToolEnd::How::EndedByUs;
    if (end) {
        run->waitForFinished(around.probeLimit);
        *end = run->end();
    }
    run->leaveToItself();
    return printed;
}

void AppDelegate::removeObservers()
{
    if (job)
        job->watch(nullptr, job->progress().stage, false);
}

void AppDelegate::runInBackground(const QString &program, const QStringList &arguments, writing::Stage stage,
    Observer atEnd, Output output, Readers readers, const QString &workingFolder)
{
    auto *run = new ToolRun(program, arguments, activityLog, this);
    run->setWorkingDirectory(workingFolder);
    if (readers == Readers::Owner)
        run->makeForOwnerOnly();
    run->setProcessChannelMode(QProcess::MergedChannels);
    job->watch(run, stage, true);
    connect(run, &QProcess::readyReadStandardOutput, run, [run] { run->take(QProcess::StandardOutput); });
    if (output == Output::Observed) {
        connect(run, &ToolRun::printed, this, &AppDelegate::dataAvailable);
        connect(run, &ToolRun::ended, this, [this, run] { dataReady(run->output()); });
    }
    connect(run, &ToolRun::ended, this, atEnd);
    run->launch();
}

qsizetype AppDelegate::transcodeAndWait(
    const QStringList &arguments, const QString &subject, int expectedStatus)
{
    terminated = false;
    auto *run = new ToolRun(sffmpegPath, arguments, activityLog, this);
    run->setSubject(subject);
    run->setExpectedStatus(expectedStatus);
    // Samples become tracks, which have no modes. All else is a file on the disc too and has there the mode it has here.
    if (arguments.last().endsWith(u".wav"_s))
        run->makeForOwnerOnly();
    run->launch();
    job->watch(run, writing::Stage::Converting, false);
    connect(run, &ToolRun::ended, this, [this, run, expectedStatus](const runner::ToolEnd &end) {
        if (end.troubled(expectedStatus) && end.how != runner::ToolEnd::How::Stopped)
            job->leaveOut(activityLog->trouble(run->position()), run->position());
        transcoderTerminated();
    });
    connect(run, &QProcess::readyReadStandardOutput, this, [this, run] { outData(run); });
    connect(run, &QProcess::readyReadStandardError, this, [this, run] { errData(run); });
    const qsizetype position = run->position();
    QEventLoop nested;
    while (!terminated)
        nested.processEvents(QEventLoop::WaitForMoreEvents);
    return position;
}

void AppDelegate::outData(ToolRun *tool)
{
    tool->take(QProcess::StandardOutput);
}

void AppDelegate::errData(ToolRun *tool)
{
    showProgress(QString::fromUtf8(tool->take(QProcess::StandardError)));
}

void AppDelegate::showProgress(const QString &piece)
{
    if (u_Type_Progress > 1)
        return;
    const std::optional<quint64> seconds = runner::newestProgress(piece);
    if (!seconds)
        return;
    const float percent = runner::progressPercent(*seconds, i_Orig_Duration_in_Seconds);
    // A percentage on a bar whose maximum is the file's duration in seconds: a short file's bar
    // is full before its end, a long one's never is.
    if (windowProgress)
        showOnBar(windowProgress->progressBar(), percent);
    if (job && std::isfinite(percent))
        job->itemProgressed(qBound(0.F, percent, 100.F));
}

void AppDelegate::transcoderTerminated()
{
    removeObservers();
    terminated = true;
}

void AppDelegate::dataReady(const QByteArray &data)
{
    if (!data.isEmpty())
        qCInfo(tools).noquote() << u"Data Ready : %1"_s.arg(QString::fromUtf8(data.left(mostLogged)));
}

void AppDelegate::dataAvailable(const QByteArray &data)
{
    qCInfo(tools).noquote() << u"Data Available : %1 bytes"_s.arg(data.size());
}
