// Adding to the lists and taking from them.
#include "app/AppDelegate.h"
#include "app/MainWindow.h"
#include "compilation/Acceptance.h"
#include "compilation/FolderNames.h"
#include "compilation/FolderTree.h"
#include "compilation/ListTableView.h"
#include "compilation/Measuring.h"
#include "runner/ToolRun.h"
#include "ui/PreviewPlayer.h"
#include "ui_MainWindow.h"
#include "writing/StatusSheets.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProgressBar>
#include <QThreadPool>

#include <atomic>
#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

const QStringList audioExtensions{ u"wma"_s, u"wav"_s, u"cda"_s, u"mp3"_s, u"mp2"_s, u"mpga"_s, u"m4a"_s };
const QStringList videoExtensions{ u"wmv"_s, u"mov"_s, u"mpg"_s, u"mpeg"_s, u"mpe"_s, u"avi"_s, u"asf"_s,
    u"asx"_s, u"qt"_s, u"mp4"_s, u"mpeg-4"_s, u"flv"_s, u"ts"_s, u"3gp"_s, u"fli"_s, u"m1v"_s, u"m2v"_s,
    u"mjpg"_s };

/// How a person knows what a URL leads to: by its name, or by its address on another computer.
QString nameOf(const QUrl &url)
{
    constexpr qsizetype half = 30; // of a name that would make the alert too wide
    const QString path = url.isLocalFile() ? QDir::cleanPath(url.toLocalFile()) : QString();
    const QString last = path.section(u'/', -1);
    const QString name = (path.isEmpty() ? url.toDisplayString() : last.isEmpty() ? path : last).simplified();
    return name.size() > 2 * half ? name.first(half) + u'…' + name.last(half) : name;
}

/// One a line, as many as an alert shows at a glance.
QString namesOf(const QList<QUrl> &urls)
{
    constexpr qsizetype shown = 10;
    QStringList names;
    for (const QUrl &url : urls.first(qMin(shown, urls.size())))
        names.append(nameOf(url));
    if (urls.size() > shown)
        names.append(AppDelegate::tr("and %1 more").arg(urls.size() - shown));
    return names.join(u'\n');
}

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

/// What of one adding cannot go on the list, and why.
struct AppDelegate::Refused {
    compilation::Refusal refusal;
    QUrl url;
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

const QStringList &AppDelegate::acceptedExtensions(ListKind kind)
{
    return kind == ListKind::Audio ? audioExtensions : videoExtensions;
}

void AppDelegate::pickMediaFiles(ListKind kind)
{
    OpenPanel panel;
    panel.several = true;
    panel.extensions = acceptedExtensions(kind);
    panel.message =
        kind == ListKind::Audio ? tr("Add audio files to the list") : tr("Add video files to the list");
    addMediaFiles(kind, around.questions->choose(panel, window));
}

void AppDelegate::pickMediaFolder(ListKind kind)
{
    OpenPanel panel;
    panel.choose = OpenPanel::Choose::Folder;
    panel.message = kind == ListKind::Audio ? tr("Add the audio files of a folder to the list")
                                            : tr("Add the video files of a folder to the list");
    const QList<QUrl> chosen = around.questions->choose(panel, window);
    if (!chosen.isEmpty())
        addMediaFolder(kind, QDir::cleanPath(chosen.first().toLocalFile()));
}

void AppDelegate::addMediaFolder(ListKind kind, const QString &folder)
{
    addMediaFiles(kind, mediaIn(kind, folder));
}

QList<QUrl> AppDelegate::mediaIn(ListKind kind, const QString &folder)
{
    // Unlike the panel's filter this distinguishes upper and lower case.
    const QStringList &accepted = acceptedExtensions(kind);
    const compilation::FolderNames found = compilation::namesIn(folder);
    if (const int unreadable = compilation::unreadableFiles(found, accepted, Qt::CaseSensitive)) {
        alert(tr("%n file(s) cannot be listed", nullptr, unreadable),
            tr("Their names in the folder “%1” are not valid UTF-8 text. Rename them and add the folder "
               "again.")
                .arg(folder));
    }
    // Two slashes at the start of a path would make a host of its first name.
    const QString place = folder.endsWith(u'/') ? folder : folder + u'/';
    QList<QUrl> urls;
    for (const QString &name : found.names) {
        if (accepted.contains(compilation::pathExtension(name)))
            urls.append(QUrl::fromLocalFile(place + name));
    }
    return urls;
}

void AppDelegate::addMediaFiles(ListKind kind, const QList<QUrl> &urls, int before)
{
    QList<QUrl> files;
    QList<Refused> refused;
    for (const QUrl &url : urls) {
        if (compilation::isNoFile(url.toLocalFile()))
            refused.append({ compilation::Refusal::NoFile, url });
        else
            files.append(url);
    }
    tellRefused(refused, kind);
    if (!files.isEmpty())
        measureMediaFiles(kind, files, before);
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
    insertRecords(kind == ListKind::Audio ? ui->tableviewAudioFiles : ui->tableviewVideoFiles,
        arrayMediaFiles, measuring.records, measuring.before);
    if (measuring.withoutTranscoder)
        tellTranscoderMissing();
    Q_EMIT addingEnded();
}

template <class Record>
void AppDelegate::insertRecords(
    ListTableView *table, QList<Record> &list, const QList<Record> &records, int before)
{
    const qsizetype at = before < 0 ? list.size() : qMin(qsizetype(before), list.size());
    QList<int> selected = table->selectedRows();
    for (int &row : selected)
        row += row >= at ? static_cast<int>(records.size()) : 0;
    list = list.first(at) + records + list.sliced(at);
    forgetSorting();
    refreshTable(table);
    table->selectRows(selected);
    if (!records.isEmpty())
        table->showRows(static_cast<int>(at), static_cast<int>(at + records.size()) - 1);
    focusList();
}

void AppDelegate::OnActionAudioAddFiles()
{
    pickMediaFiles(ListKind::Audio);
}

void AppDelegate::OnActionAudioAddFolder()
{
    pickMediaFolder(ListKind::Audio);
}

void AppDelegate::OnActionVideoAddFiles()
{
    pickMediaFiles(ListKind::Video);
}

void AppDelegate::OnActionVideoAddFolder()
{
    pickMediaFolder(ListKind::Video);
}

void AppDelegate::OnActionDataAddFolder()
{
    OpenPanel panel;
    panel.choose = OpenPanel::Choose::Folder;
    panel.message = tr("Add a folder to the list");
    const QList<QUrl> chosen = around.questions->choose(panel, window);
    if (!chosen.isEmpty())
        addDataFolder(QDir::cleanPath(chosen.first().toLocalFile()));
}

void AppDelegate::addDataFolder(const QString &path, int before)
{
    insertRecords(ui->tableviewDataFolders, arrayDataFolders,
        { compilation::folderRecord(path, folderSize(path)) }, before);
}

void AppDelegate::tellRefused(const QList<Refused> &all, ListKind kind)
{
    QStringList paragraphs;
    QList<compilation::Refusal> told;
    for (const Refused &first : all) {
        if (told.contains(first.refusal))
            continue;
        told.append(first.refusal);
        QList<QUrl> alike;
        for (const Refused &other : all) {
            if (other.refusal == first.refusal)
                alike.append(other.url);
        }
        paragraphs.append(
            compilation::sentence(first.refusal, acceptedExtensions(kind)) + u"\n\n"_s + namesOf(alike));
    }
    if (!paragraphs.isEmpty())
        alert(tr("Not everything can go on this list"), paragraphs.join(u"\n\n"_s));
}

void AppDelegate::addDroppedFiles(const QList<QUrl> &urls, int before)
{
    const int tab = ui->tabviewMain->currentIndex();
    const ListKind kind = tab == 0 ? ListKind::Audio : ListKind::Video;
    QList<QUrl> taken, unreadable;
    QList<Refused> refused;
    for (const QUrl &url : urls) {
        const compilation::Refusal refusal = tab == 2
            ? compilation::refusalOfFolder(url)
            : compilation::refusalOfMedia(url, acceptedExtensions(kind));
        if (url.isLocalFile() && !compilation::isReadable(url))
            unreadable.append(url);
        else if (refusal != compilation::Refusal::None)
            refused.append({ refusal, url });
        else if (tab != 2 && QFileInfo(url.toLocalFile()).isDir())
            taken.append(mediaIn(kind, QDir::cleanPath(url.toLocalFile())));
        else
            taken.append(url);
    }
    tellRefused(refused, kind);
    if (!unreadable.isEmpty())
        alert(Questions::unusableFiles(), Questions::unreadableNamesText() + u"\n\n"_s + namesOf(unreadable));
    if (tab != 2)
        return addMediaFiles(kind, taken, before);
    for (const QUrl &url : std::as_const(taken))
        addDataFolder(QDir::cleanPath(url.toLocalFile()), before++);
}

template <class Record>
void AppDelegate::deleteSelected(ListTableView *table, QList<Record> &list)
{
    const QList<int> rows = table->selectedRows();
    if (!rows.isEmpty()) {
        QList<Record> kept;
        kept.reserve(list.size());
        qsizetype next = 0;
        for (qsizetype row = 0; row < list.size(); ++row) {
            if (next < rows.size() && rows.at(next) == row)
                ++next;
            else
                kept.append(list.at(row));
        }
        list = kept;
    }
    refreshTable(table);
    if (!rows.isEmpty() && !list.isEmpty())
        table->selectRows({ qMin(rows.first(), static_cast<int>(list.size()) - 1) });
}

void AppDelegate::OnActionAudioDelete()
{
    deleteSelected(ui->tableviewAudioFiles, arrayMediaFiles);
}

void AppDelegate::OnActionVideoDelete()
{
    deleteSelected(ui->tableviewVideoFiles, arrayMediaFiles);
}

void AppDelegate::OnActionDataDelete()
{
    deleteSelected(ui->tableviewDataFolders, arrayDataFolders);
}

void AppDelegate::OnActionAudioClear()
{
    arrayMediaFiles.clear();
    refreshTableAudioFiles();
}

void AppDelegate::OnActionVideoClear()
{
    arrayMediaFiles.clear();
    refreshTableVideoFiles();
}

void AppDelegate::OnActionDataClear()
{
    arrayDataFolders.clear();
    refreshTableDataFolders();
}

void AppDelegate::playSelected(const ListTableView *table)
{
    const int row = table->lastSelectedRow();
    if (row < 0)
        return alert(u"There is no file selected."_s, u"There is no file selected."_s);
    const auto tell = [this](const QString &message, const QString &informative, QWidget *over) {
        around.questions->ask({ message, informative, { u"OK"_s }, Alert::Sign::Error }, over);
    };
    if (const QString whyNot = playPreview(arrayMediaFiles.at(row).s_File_URL, window, *preferences, tell);
        !whyNot.isEmpty())
        alert(tr("The file cannot be played."), whyNot, Alert::Sign::Error);
}

void AppDelegate::OnActionAudioPlay()
{
    playSelected(ui->tableviewAudioFiles);
}

void AppDelegate::OnActionVideoPlay()
{
    playSelected(ui->tableviewVideoFiles);
}

void AppDelegate::OnActionAudioNewDisc()
{
    ShowNewDiscWindow();
}

void AppDelegate::OnActionVideoNewDisc()
{
    ShowNewDiscWindow();
}

void AppDelegate::OnActionDataNewDisc()
{
    ShowNewDiscWindow();
}

void AppDelegate::OnActionAudioCopyDisc()
{
    DuplicateMedia();
}

void AppDelegate::OnActionVideoCopyDisc()
{
    DuplicateMedia();
}

void AppDelegate::OnActionDataCopyDisc()
{
    DuplicateMedia();
}

void AppDelegate::OnActionVideoSettings()
{
    Show_Window_Video_Settings();
}
