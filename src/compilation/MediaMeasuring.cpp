// The files that are being added, and what the transcoder says of them.
#include "app/AppDelegate.h"
#include "app/MainWindow.h"
#include "compilation/FolderTree.h"
#include "compilation/Measuring.h"
#include "compilation/MediaAdding.h"
#include "compilation/MediaReport.h"
#include "runner/ToolRun.h"
#include "ui_MainWindow.h"
#include "writing/Names.h"
#include "writing/StatusSheets.h"

#include <QFile>
#include <QHash>
#include <QProgressBar>
#include <QThreadPool>

#include <algorithm>
#include <memory>
#include <utility>

using namespace Qt::StringLiterals;
using compilation::Wanted;

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

QString AppDelegate::GetMediaFileDuration(const QString &path)
{
    return compilation::durationText(Report(sffmpegPath, path, activityLog, around.probeLimit).text);
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

void AppDelegate::measureMediaFiles(const std::shared_ptr<Measuring> &measuring)
{
    const QList<Wanted> &wanted = measuring->wanted;
    if (wanted.isEmpty())
        return;
    delete windowUniqueProgress;
    windowUniqueProgress = new Window_Unique_Progress(window->stage());
    windowUniqueProgress->progressBar()->setRange(0, static_cast<int>(wanted.size()));
    windowUniqueProgress->progressBar()->setValue(0);
    windowUniqueProgress->showItem(wanted.first().url.fileName(), 1, wanted.size());
    connect(windowUniqueProgress, &WorkSheet::stopRequested, this, [measuring] { measuring->stop = true; });
    windowUniqueProgress->beginSheet();
    Q_EMIT addingProgressed(0, wanted.size());
    QThreadPool::globalInstance()->start([measuring] { measuring->look(); });
}

bool AppDelegate::Measuring::looksInside() const
{
    return std::ranges::any_of(wanted, [](const Wanted &one) { return one.way != Wanted::Way::Listed; });
}

// The records travel to the GUI thread one by one and go onto the list together, so the list is never touched from
// two threads.
void AppDelegate::Measuring::look()
{
    const auto tell = [this](auto step) {
        QMetaObject::invokeMethod(
            controller, [step, self = shared_from_this()] { step(*self); }, Qt::QueuedConnection);
    };
    const compilation::Found found = compilation::filesOf(wanted, acceptedExtensions(kind), stop);
    tell([found](Measuring &self) { self.takeFound(found); });
    for (const Wanted &file : found.files) {
        if (stop)
            break;
        tell([one = measured(file)](Measuring &self) { self.takeMeasured(one); });
    }
    tell([](Measuring &self) { self.end(); });
}

AppDelegate::Measuring::Measured AppDelegate::Measuring::measured(const Wanted &file)
{
    const QString path = file.url.toLocalFile();
    NodeMediaFile record = compilation::mediaRecord(file.url, path);
    const Report report(
        controller->sffmpegPath, path, controller->activityLog, controller->around.probeLimit);
    record.s_Duration = compilation::durationText(report.text);
    record.i_Duration_in_Seconds = Return_Seconds_From_Duration_Str(record.s_Duration);
    record.whyNotMeasured = compilation::whyNotMeasured(path, record.s_Duration, report.text);
    const compilation::MediaReport content = compilation::mediaReport(report.text, path);
    // Of the usual files only what the conversion takes over is shown: untouched, it is what the disc will say.
    const bool isUsual = acceptedExtensions(kind).contains(record.s_File_Extension, Qt::CaseInsensitive);
    const compilation::TrackNames &names = isUsual ? content.carried : content.names;
    record.title = names.title;
    record.performer = names.performer;
    record.carriedTitle = content.carried.title;
    record.carriedPerformer = content.carried.performer;
    if (report.isWithoutTranscoder()) {
        withoutTranscoder = true;
        record.whyNotMeasured = AppDelegate::tr("The program ffmpeg, which measures files, is missing.");
    } else if (!record.whyNotMeasured.isEmpty() && report.run.end().how == runner::ToolEnd::How::EndedByUs) {
        record.whyNotMeasured = AppDelegate::tr("Measuring the file took too long and was given up.");
    }
    const bool isMedia = kind == ListKind::Audio ? content.hasSound : content.hasFilm;
    return { file, record, file.way == Wanted::Way::Listed || isMedia };
}

void AppDelegate::Measuring::takeFound(const compilation::Found &found)
{
    files = found.files;
    refused += found.refused;
    unreadable += found.unreadable;
    if (!controller->windowUniqueProgress || found.files.isEmpty())
        return;
    controller->windowUniqueProgress->progressBar()->setRange(0, static_cast<int>(found.files.size()));
    controller->windowUniqueProgress->showItem(found.files.first().url.fileName(), 1, found.files.size());
}

void AppDelegate::Measuring::takeMeasured(const Measured &file)
{
    using compilation::Refusal;
    if (file.fits) {
        records.append(file.record);
        served.insert(file.file.place);
    } else if (file.file.way == Wanted::Way::Probed) {
        const Refusal refusal = withoutTranscoder ? Refusal::OtherEnding
            : kind == ListKind::Audio             ? Refusal::NoSound
                                                  : Refusal::NoFilm;
        refused.append({ refusal, file.file.url, file.file.place });
    }
    ++done;
    const qsizetype count = files.size();
    if (controller->windowUniqueProgress) {
        controller->windowUniqueProgress->progressBar()->setValue(static_cast<int>(done));
        if (done < count)
            controller->windowUniqueProgress->showItem(files.at(done).url.fileName(), done + 1, count);
    }
    Q_EMIT controller->addingProgressed(done, count);
}

void AppDelegate::Measuring::end()
{
    if (controller->windowUniqueProgress)
        controller->windowUniqueProgress->endSheet();
    controller->windowUniqueProgress = nullptr;
    controller->insertMedia(kind, records, before);
    refuseEmptyFolders();
    std::ranges::stable_sort(refused, {}, &compilation::Refused::place);
    controller->tellRefused(*this);
    tellSameNames();
    if (withoutTranscoder)
        controller->tellTranscoderMissing();
    Q_EMIT controller->addingEnded();
}

void AppDelegate::Measuring::refuseEmptyFolders()
{
    using compilation::Refusal;
    if (stop || withoutTranscoder)
        return;
    const Refusal refusal =
        kind == ListKind::Audio ? Refusal::FolderWithoutSound : Refusal::FolderWithoutFilm;
    for (const Wanted &one : std::as_const(wanted)) {
        if (one.way == Wanted::Way::Tree && !served.contains(one.place))
            refused.append({ refusal, one.url, one.place });
    }
}

void AppDelegate::Measuring::tellSameNames() const
{
    const QStringList &endings = acceptedExtensions(kind);
    const auto isOther = [&endings](const NodeMediaFile &file) {
        return !endings.contains(file.s_File_Extension, Qt::CaseInsensitive);
    };
    QHash<QString, QList<NodeMediaFile>> named; // by what they are converted to
    for (const NodeMediaFile &file : std::as_const(controller->arrayMediaFiles))
        named[writing::convertedPath({}, file.s_File_Path, {})].append(file);
    QStringList told;
    for (const NodeMediaFile &file : records) {
        const QList<NodeMediaFile> alike = named.take(writing::convertedPath({}, file.s_File_Path, {}));
        if (alike.size() < 2 || std::ranges::none_of(alike, isOther))
            continue;
        for (const NodeMediaFile &one : alike)
            told.append(one.s_File_Path.simplified());
    }
    constexpr qsizetype shown = 12;
    if (const qsizetype more = told.size() - shown; more > 0)
        told = told.first(shown) + QStringList(AppDelegate::tr("and %1 more").arg(more));
    if (!told.isEmpty()) {
        controller->alert(AppDelegate::tr("Not all of these files can be on one disc"),
            AppDelegate::tr(
                "Their names differ in the folder or the ending only. The first of each name on the list is "
                "written and the others are left out. Rename them, or take them off the list.")
                + u"\n\n"_s + told.join(u'\n'));
    }
}
