// What the stages of all jobs have in common: beginning, the sheets, converting, and the one end.
#include "app/MainWindow.h"
#include "drives/MediaStatus.h"
#include "kit/SheetStage.h"
#include "runner/ActivityLog.h"
#include "writing/DiscForms.h"
#include "writing/FolderGathering.h"
#include "writing/Job.h"
#include "writing/StatusSheets.h"
#include "writing/Window_Data_Copy_Folders.h"

#include <QDir>
#include <QFileInfo>
#include <QProgressBar>

#include <numeric>

using namespace Qt::StringLiterals;
using writing::Job;
using writing::Progress;

writing::Work AppDelegate::workOn(int code, const QString &workingFolder) const
{
    writing::Work work;
    work.kind = code;
    if (const ProjectType *type = projects::byCode(code)) {
        work.name = type->shownName();
        work.named = projects::hasDiscName(*type);
        work.repeatable = true; // the list stays
    }
    work.compared = code != projects::byCode(1)->code; // the samples of an audio track are not read back
    work.drive = driveTitle();
    work.workingFolder = workingFolder;
    work.rewritable = drives::saysErasable(m_lastStatus);
    return work;
}

void AppDelegate::describeConverted(const QString &folder)
{
    qint64 bytes = 0;
    const QFileInfoList files = QDir(folder).entryInfoList(QDir::Files | QDir::Hidden);
    for (const QFileInfo &file : files)
        bytes += file.size();
    if (files.isEmpty())
        job->foundNothing();
    const int count = static_cast<int>(files.size());
    const bool tracks = job->work().kind == projects::byCode(1)->code;
    job->describe(tracks ? tr("%Ln track(s)", nullptr, count) : tr("%Ln file(s)", nullptr, count), bytes);
}

bool AppDelegate::beginJob(const writing::Work &work)
{
    job = std::make_unique<Job>(work);
    window->stage()->hold();
    const QString &folder = work.workingFolder;
    if (!folder.isEmpty()) {
        QDir().mkpath(folder); // a person may have taken it away from the Documents folder
        if (!job->claim()) {
            dropJob();
            alert(tr("Another Corvalis is at work"),
                tr("It prepares a disc in the folder %1. Wait until that disc is done and try again.")
                    .arg(folder));
            return false;
        }
        RemoveAllContentInFolder(folder);
    }
    Q_EMIT jobBegan(job.get());
    return true;
}

void AppDelegate::dropJob()
{
    m_gathering.reset();
    m_titles.reset();
    job.reset();
    window->stage()->release();
    forgetDisc(); // it was written or exchanged
}

template <class Sheet>
void AppDelegate::attach(Sheet *sheet)
{
    if (!job)
        return;
    const auto show = [sheet, job = job.get()](const Progress &progress) {
        sheet->showProgress(progress);
        sheet->setCostOfStopping(job->costOfStopping());
    };
    connect(job.get(), &Job::progressed, sheet, show);
    connect(sheet, &WorkSheet::stopRequested, job.get(), &Job::stop);
    show(job->progress());
}

bool AppDelegate::endStopped(Observer atEnd)
{
    if (!job->isStopping())
        return false;
    (this->*atEnd)();
    return true;
}

void AppDelegate::convertList(
    quint64 progressMode, const std::function<void(const NodeMediaFile &)> &convertOne)
{
    job->enter(writing::Stage::Converting);
    Show_Window_Progress(arrayMediaFiles.size());
    // A file of unknown length weighs as much as one of a second.
    const auto weight = [](const NodeMediaFile &file) { return qMax<qint64>(1, file.i_Duration_in_Seconds); };
    const qint64 weights = std::accumulate(arrayMediaFiles.cbegin(), arrayMediaFiles.cend(), qint64{ 0 },
        [weight](qint64 sum, const NodeMediaFile &file) { return sum + weight(file); });
    for (qsizetype i = 0; i < arrayMediaFiles.size() && !job->isStopping(); ++i) {
        const NodeMediaFile file = arrayMediaFiles.at(i);
        i_Orig_Duration_in_Seconds = static_cast<quint64>(file.i_Duration_in_Seconds);
        windowProgress->progressBar()->setRange(
            0, static_cast<int>(qMin<qint64>(file.i_Duration_in_Seconds, INT_MAX)));
        windowProgress->progressBar()->setValue(0);
        job->beginItem(file.s_File_Name_With_Extension, i + 1, arrayMediaFiles.size(), weight(file), weights);
        u_Type_Progress = progressMode;
        convertOne(file);
        windowProgress->progressOverall()->setValue(static_cast<int>(i + 1));
    }
    Close_Window_Progress();
}

void AppDelegate::convert(const QStringList &arguments, const NodeMediaFile &file)
{
    // Nothing is written over: of two files that are converted to one name the first one is kept.
    const bool taken = QFile::exists(arguments.last());
    transcodeAndWait(arguments, file.s_File_Name_With_Extension.simplified(), taken ? 1 : 0);
    if (!taken)
        writing::nameTrack(*this, arguments.last(), file);
    if (taken) {
        const QString why =
            tr("“%1” was left out: another entry of the list is converted to “%2” too. Rename one of "
               "the files and try again.")
                .arg(file.s_File_Path.simplified(), QFileInfo(arguments.last()).fileName().simplified());
        activityLog->note(tr("A file was left out"), why);
        job->leaveOut(why);
    }
}

void AppDelegate::finishWriting(const QString &workingFolder)
{
    Close_Window_Performing_Operation();
    RemoveAllContentInFolder(workingFolder);
    Show_Window_Operation_Complete();
}

void AppDelegate::taskTerminated()
{
    Close_Window_Performing_Operation();
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
    windowPerformingOperation = new Window_Performing_Operation(window->stage());
    attach(windowPerformingOperation.data());
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
    const writing::Outcome outcome = job ? job->end() : writing::Outcome();
    delete windowOperationCompleted;
    auto *sheet = new Window_Operation_Terminated(window->stage(), outcome);
    windowOperationCompleted = sheet;
    connect(sheet, &Window_Operation_Terminated::closed, this, &AppDelegate::Close_Window_Operation_Complete);
    connect(sheet, &Window_Operation_Terminated::logWanted, this, [this](qsizetype run) {
        Close_Window_Operation_Complete();
        showActivityLog(run);
    });
    connect(sheet, &Window_Operation_Terminated::folderWanted, this, [this](const QString &path) {
        const QFileInfo made(path);
        openPage(QUrl::fromLocalFile(made.isDir() ? path : made.path()));
    });
    connect(sheet, &Window_Operation_Terminated::ejectWanted, this,
        [this, drive = outcome.drive] { moveTray(u"eject"_s, drive); });
    connect(sheet, &Window_Operation_Terminated::anotherWanted, this,
        [this, image = job ? job->work().image : QString()] {
            Close_Window_Operation_Complete();
            image.isEmpty() ? OnBtnBurn() : burnImage(image);
        });
    sheet->beginSheet();
    if (job)
        dropJob();
    Q_EMIT operationCompleted();
}

void AppDelegate::Close_Window_Operation_Complete()
{
    if (windowOperationCompleted)
        windowOperationCompleted->endSheet();
    windowOperationCompleted = nullptr;
    focusList();
}

void AppDelegate::Show_Window_Progress(qsizetype items)
{
    delete windowProgress;
    windowProgress = new Window_Progress(window->stage());
    attach(windowProgress.data());
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

void AppDelegate::gatherFolders()
{
    job->enter(writing::Stage::Gathering);
    m_gathering = std::make_unique<writing::FolderGathering>(arrayDataFolders, s_Data_Folder,
        writing::GatheringPace{ around.stagingPoll, around.copyEndLimit, around.stagingUntilCopied });
    writing::FolderGathering &gathering = *m_gathering;
    connect(&gathering, &writing::FolderGathering::progressed, job.get(),
        [this](const writing::Gathered &so_far) {
            job->gathered(
                so_far.folder, so_far.number, so_far.count, so_far.files, so_far.bytes, so_far.bytesExpected);
            if (so_far.didNotFit > 0)
                job->remark(tr("%Ln files or folders did not fit where the disc is gathered.", nullptr,
                    static_cast<int>(so_far.didNotFit)));
        });
    connect(&gathering, &writing::FolderGathering::leftOut, this, [this](const QString &what) {
        activityLog->note(tr("Not copied"), what);
        job->leaveOut(what, activityLog->size() - 1);
    });
    connect(&gathering, &writing::FolderGathering::ended, this,
        [this] { schedule(timerBurnDataFolder, &AppDelegate::TimerBurnDataFolder); });
    connect(job.get(), &Job::stopping, &gathering, &writing::FolderGathering::stop);
    // The sheet was up for a moment before, with its Stop button.
    if (job->isStopping())
        gathering.stop();
    else
        gathering.start();
}

void AppDelegate::Show_Window_Data_Copy_Folders()
{
    delete windowDataCopyFolders;
    windowDataCopyFolders = new Window_Data_Copy_Folders(window->stage());
    attach(windowDataCopyFolders.data());
    connect(windowDataCopyFolders, &Window_Data_Copy_Folders::shown, this, &AppDelegate::gatherFolders);
    windowDataCopyFolders->beginSheet();
}

void AppDelegate::Close_Window_Data_Copy_Folders()
{
    if (windowDataCopyFolders)
        windowDataCopyFolders->endSheet();
    windowDataCopyFolders = nullptr;
}
