// The three ways in which the controller runs a tool, and what it does when one speaks or ends.
//
// A job starts when the burn button (or another action) calls runInBackground() or transcodeAndWait().
// Progress arrives in dataReady() and errData(). It ends once, in the operation's termination handler:
// every new run first drops the watchers of the run before, so no handler can fire a second time.
#include "app/AppDelegate.h"
#include "app/FolderClaim.h"
#include "app/MainWindow.h"
#include "runner/ActivityLog.h"
#include "runner/ProgressParser.h"
#include "runner/StatusSheets.h"
#include "runner/ToolRun.h"

#include <QEventLoop>
#include <QLoggingCategory>
#include <QProgressBar>

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;
using runner::ToolRun;

Q_LOGGING_CATEGORY(tools, "corvalis.tools")

namespace {

// The system's log is no place for a flood; the activity log has all.
constexpr qsizetype mostLogged = 4096;

/// What still runs goes on by itself.
void forgetAtEnd(ToolRun *run)
{
    if (run->hasEnded())
        run->deleteLater();
    else
        QObject::connect(run, &ToolRun::ended, run, &QObject::deleteLater);
}

} // namespace

QByteArray AppDelegate::captureTool(
    const QString &program, const QStringList &arguments, runner::ToolEnd *end)
{
    auto *run = new ToolRun(program, arguments, activityLog, this);
    // No answer is longer; a flood would be taken for a million drives.
    const QByteArray printed = run->capture(around.probeLimit).left(ActivityLog::keptOutput);
    if (end) {
        run->waitForFinished(around.probeLimit);
        *end = run->end();
    }
    forgetAtEnd(run);
    return printed;
}

bool AppDelegate::isJobPending() const
{
    const auto isActive = [](const QPointer<QTimer> &timer) { return timer && timer->isActive(); };
    const std::array stages{ timerBurnAudioCD, timerBurnMP3, timerBurnVideo, timerBurnDataFolder,
        timerDuplicateMediaCopy, timerCreateISOStep1, timerCreateISOStep2, timerCreateISOStep3 };
    return std::ranges::any_of(stages, isActive) || (observed && !observed->hasEnded())
        || b_Emptying_Data_Folder;
}

void AppDelegate::removeObservers()
{
    if (!observed)
        return;
    disconnect(observed, nullptr, this, nullptr);
    forgetAtEnd(observed);
    observed = nullptr;
}

void AppDelegate::runInBackground(
    const QString &program, const QStringList &arguments, Observer atEnd, Output output)
{
    removeObservers();
    auto *run = new ToolRun(program, arguments, activityLog, this);
    run->setProcessChannelMode(QProcess::MergedChannels);
    connect(run, &QProcess::readyReadStandardOutput, this, [this, run, output] {
        const QByteArray piece = run->take(QProcess::StandardOutput);
        if (windowPerformingOperation)
            windowPerformingOperation->showNewestLine(piece);
        if (output == Output::Observed)
            dataAvailable(piece);
    });
    if (output == Output::Observed)
        connect(run, &ToolRun::ended, this, [this, run] { dataReady(run->output()); });
    connect(run, &ToolRun::ended, this, atEnd);
    observed = run;
    run->launch();
}

void AppDelegate::transcodeAndWait(const QStringList &arguments, const QString &subject, int expectedStatus)
{
    terminated = false;
    auto *run = new ToolRun(sffmpegPath, arguments, activityLog, this);
    run->setSubject(subject);
    run->setExpectedStatus(expectedStatus);
    run->launch();
    removeObservers();
    observed = run;
    connect(run, &ToolRun::ended, this, &AppDelegate::transcoderTerminated);
    connect(run, &QProcess::readyReadStandardOutput, this, [this, run] { outData(run); });
    connect(run, &QProcess::readyReadStandardError, this, [this, run] { errData(run); });
    QEventLoop nested;
    while (!terminated)
        nested.processEvents(QEventLoop::WaitForMoreEvents);
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
    if (seconds && windowProgress) {
        // A percentage on a bar whose maximum is the file's duration in seconds: a short file's bar
        // is full before its end, a long one's never is.
        const float percent = runner::progressPercent(*seconds, i_Orig_Duration_in_Seconds);
        showOnBar(windowProgress->progressBar(), percent);
        percentTranscoded = std::isfinite(percent) ? qBound(0.F, percent, 100.F) : 0.F;
    }
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

void AppDelegate::taskTerminated()
{
    Close_Window_Performing_Operation();
    Show_Window_Operation_Complete();
}

void AppDelegate::finishWriting(const QString &workingFolder)
{
    Close_Window_Performing_Operation();
    RemoveAllContentInFolder(workingFolder);
    Show_Window_Operation_Complete();
}

void AppDelegate::AudioBurnTerminated()
{
    finishWriting(s_Audio_Folder);
}

void AppDelegate::VideoBurnTerminated()
{
    finishWriting(s_Video_Folder);
}

void AppDelegate::MediaDuplicationTerminated()
{
    finishWriting(s_Data_Folder);
}

void AppDelegate::Show_Window_Performing_Operation()
{
    delete windowPerformingOperation;
    windowPerformingOperation = new Window_Performing_Operation(this, window);
    windowPerformingOperation->beginSheet();
}

void AppDelegate::Close_Window_Performing_Operation()
{
    if (windowPerformingOperation)
        windowPerformingOperation->endSheet();
    windowPerformingOperation = nullptr;
}

void AppDelegate::Show_Window_Operation_Complete()
{
    folderClaim.reset();
    delete windowOperationCompleted;
    windowOperationCompleted = new Window_Operation_Terminated(this, window);
    windowOperationCompleted->beginSheet();
    Q_EMIT operationCompleted();
}

void AppDelegate::Close_Window_Operation_Complete()
{
    if (windowOperationCompleted)
        windowOperationCompleted->endSheet();
    windowOperationCompleted = nullptr;
}

void AppDelegate::Show_Window_Progress(qsizetype items)
{
    delete windowProgress;
    windowProgress = new Window_Progress(this, window);
    windowProgress->beginSheet();
    windowProgress->progressOverall()->setRange(0, static_cast<int>(items));
    windowProgress->progressOverall()->setValue(0);
}

void AppDelegate::Close_Window_Progress()
{
    if (windowProgress)
        windowProgress->endSheet();
    windowProgress = nullptr;
}
