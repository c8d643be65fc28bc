// The files that are being added, and what the transcoder says of them.
#include "app/AppDelegate.h"
#include "app/MainWindow.h"
#include "compilation/FolderTree.h"
#include "compilation/Measuring.h"
#include "runner/ToolRun.h"
#include "ui_MainWindow.h"
#include "writing/StatusSheets.h"

#include <QFile>
#include <QProgressBar>
#include <QThreadPool>

#include <atomic>
#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// What the transcoder says of a file. Blocks for at most `limit` milliseconds.
struct Report {
    Report(const QString &transcoder, const QString &path, ActivityLog *log, int limit)
        : run(transcoder, { u"-i"_s, path }, log)
    {
        // Without an output file to write, a report of the input is followed by an error and status 1.
        run.setExpectedStatus(1);
        text = run.capture(limit);
    }

    /// Not there, or only the script that calls it: shells end with 126 and 127 where they find no program.
    bool isWithoutTranscoder() const
    {
        using How = runner::ToolEnd::How;
        return run.end().how == How::CouldNotStart
            || (run.end().how == How::Ended && (run.end().code == 126 || run.end().code == 127));
    }

    runner::ToolRun run;
    QByteArray text;
};

} // namespace

struct AppDelegate::Measuring {
    Measuring(const QList<QUrl> &files, int row)
        : urls(files)
        , before(row)
    {
    }

    const QList<QUrl> urls;
    const int before; ///< the row before which they come; -1: behind the last one
    QList<NodeMediaFile> records; ///< of the first of them; touched on the GUI thread only
    std::atomic<bool> stop = false;
    std::atomic<bool> withoutTranscoder = false;
};

QString AppDelegate::GetMediaFileDuration(const QString &path)
{
    return compilation::durationText(Report(sffmpegPath, path, activityLog, around.probeLimit).text);
}

NodeMediaFile AppDelegate::measured(const QUrl &url, Measuring &measuring)
{
    const QString path = url.toLocalFile();
    NodeMediaFile record = compilation::mediaRecord(url, path);
    const Report report(sffmpegPath, path, activityLog, around.probeLimit);
    record.s_Duration = compilation::durationText(report.text);
    record.i_Duration_in_Seconds = Return_Seconds_From_Duration_Str(record.s_Duration);
    record.whyNotMeasured = compilation::whyNotMeasured(path, record.s_Duration, report.text);
    if (report.isWithoutTranscoder()) {
        measuring.withoutTranscoder = true;
        record.whyNotMeasured = tr("The program ffmpeg, which measures files, is missing.");
    } else if (!record.whyNotMeasured.isEmpty() && report.run.end().how == runner::ToolEnd::How::EndedByUs) {
        record.whyNotMeasured = tr("Measuring the file took too long and was given up.");
    }
    return record;
}

void AppDelegate::tellTranscoderMissing()
{
    if (std::exchange(m_transcoderMissingTold, true))
        return;
    alert(tr("Files cannot be measured"),
        QFile::exists(sffmpegPath)
            ? tr("The program ffmpeg is missing. Install the package “ffmpeg” and add the files again. "
                 "Without it "
                 "the lists show no durations, and no audio or video disc can be made.")
            : tr("A part of Corvalis is missing: %1. Install Corvalis again. Without it the lists show no "
                 "durations, and no audio or video disc can be made.")
                  .arg(around.resources + u"/ffmpeg"_s));
}

qint64 AppDelegate::Return_Seconds_From_Duration_Str(const QString &duration)
{
    return compilation::secondsFromDurationText(duration);
}

QStringList AppDelegate::splitStringIntoChars(const QString &text)
{
    return compilation::splitStringIntoChars(text);
}

quint64 AppDelegate::folderSize(const QString &path)
{
    return compilation::treeSize(QFile::encodeName(path).toStdString());
}

void AppDelegate::measureMediaFiles(ListKind kind, const QList<QUrl> &urls, int before)
{
    delete windowUniqueProgress;
    windowUniqueProgress = new Window_Unique_Progress(window->stage());
    windowUniqueProgress->progressBar()->setRange(0, static_cast<int>(urls.size()));
    windowUniqueProgress->progressBar()->setValue(0);
    windowUniqueProgress->showItem(urls.first().fileName(), 1, urls.size());
    const auto measuring = std::make_shared<Measuring>(urls, before);
    connect(windowUniqueProgress, &WorkSheet::stopRequested, this, [measuring] { measuring->stop = true; });
    windowUniqueProgress->beginSheet();
    Q_EMIT addingProgressed(0, urls.size());
    // The task only measures. The records travel to the GUI thread one by one and go onto the list
    // together, so the list is never touched from two threads.
    QThreadPool::globalInstance()->start([this, kind, measuring] {
        for (const QUrl &url : measuring->urls) {
            if (measuring->stop)
                break;
            const NodeMediaFile record = measured(url, *measuring);
            QMetaObject::invokeMethod(
                this, [this, measuring, record] { mediaFileMeasured(*measuring, record); },
                Qt::QueuedConnection);
        }
        QMetaObject::invokeMethod(
            this, [this, kind, measuring] { mediaFilesAdded(kind, *measuring); }, Qt::QueuedConnection);
    });
}

void AppDelegate::mediaFileMeasured(Measuring &measuring, const NodeMediaFile &record)
{
    measuring.records.append(record);
    const qsizetype done = measuring.records.size();
    const qsizetype count = measuring.urls.size();
    if (windowUniqueProgress) {
        windowUniqueProgress->progressBar()->setValue(static_cast<int>(done));
        if (done < count)
            windowUniqueProgress->showItem(measuring.urls.at(done).fileName(), done + 1, count);
    }
    Q_EMIT addingProgressed(done, count);
}

void AppDelegate::mediaFilesAdded(ListKind kind, const Measuring &measuring)
{
    if (windowUniqueProgress)
        windowUniqueProgress->endSheet();
    windowUniqueProgress = nullptr;
    insertMedia(kind, measuring.records, measuring.before);
    if (measuring.withoutTranscoder)
        tellTranscoderMissing();
    Q_EMIT addingEnded();
}
