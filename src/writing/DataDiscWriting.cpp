// Data CDs, DVDs and Blu-rays: checks, gathering the folders, and the disc.
#include "app/MainWindow.h"
#include "compilation/Measuring.h"
#include "runner/ActivityLog.h"
#include "writing/DiscForms.h"
#include "writing/FolderGathering.h"
#include "writing/Job.h"

#include <QCursor>
#include <QDir>
#include <QGuiApplication>
#include <QThreadPool>

using namespace Qt::StringLiterals;

namespace {

constexpr const char *noFolders = QT_TRANSLATE_NOOP("AppDelegate", "No folders on the list");
constexpr const char *noFoldersText = QT_TRANSLATE_NOOP(
    "AppDelegate", "There are no folders on the list. Add folders to the list and try again.");

} // namespace

void AppDelegate::Burn_Data_CD()
{
    burnData({ 6, noFolders, noFoldersText, "CD"_L1, writing::notCD, writing::notCDText,
        QT_TRANSLATE_NOOP("AppDelegate", "Warning 0070.") });
}

void AppDelegate::Burn_Data_DVD()
{
    burnData({ 7, noFolders, noFoldersText, "DVD"_L1, writing::notDVD, writing::notDVDText,
        QT_TRANSLATE_NOOP("AppDelegate", "Warning 0020.") });
}

void AppDelegate::Burn_Data_Bluray()
{
    burnData({ 8, noFolders, noFoldersText, "BD"_L1, writing::notBluray, writing::notBlurayText,
        QT_TRANSLATE_NOOP("AppDelegate", "Warning 0090.") });
}

void AppDelegate::burnData(const DiscForm &form)
{
    if (!mayWrite(form, arrayDataFolders.isEmpty()) || !hasRoomFor(arrayDataFolders))
        return;
    if (beginJob(workOn(form.code, s_Data_Folder)))
        Show_Window_Data_Copy_Folders();
}

bool AppDelegate::hasRoomFor(const QList<NodeDataFolder> &folders)
{
    const qint64 missing = writing::FolderGathering::bytesMissing(folders, s_Data_Folder);
    if (missing == 0)
        return true;
    Alert question{ tr("There is not enough room to gather the folders"),
        tr("A disc is prepared in the folder %1, and its file system has %2 too little for that. Free some "
           "room and "
           "try again, or go on: what does not fit will not be on the disc.")
            .arg(s_Data_Folder, compilation::sizeText(static_cast<quint64>(missing))),
        { tr("Close"), tr("Go On") } };
    question.dismissed = 0;
    return around.questions->ask(question, window) == 1;
}

void AppDelegate::TimerBurnDataFolder()
{
    if (endStopped(&AppDelegate::dataBurnTerminated))
        return;
    if (m_gathering->isStillCopying()) {
        const QString what = tr("The disc is written before the copying of a folder has ended.");
        activityLog->note(what, s_Data_Folder);
        job->remark(what);
    }
    const writing::Progress gathered = job->progress();
    if (QDir(s_Data_Folder).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot))
        job->foundNothing();
    job->describe(tr("%Ln file(s)", nullptr, static_cast<int>(gathered.files)), gathered.bytes);
    runInBackground(around.drutil, { u"burn"_s, s_Data_Folder, u"-drive"_s, s_Current_Drive_Number },
        writing::Stage::Writing, &AppDelegate::dataBurnTerminated, Output::Observed);
    Close_Window_Data_Copy_Folders();
    Show_Window_Performing_Operation();
}

void AppDelegate::dataBurnTerminated()
{
    Close_Window_Data_Copy_Folders();
    Close_Window_Performing_Operation();
    job->watch(nullptr, writing::Stage::Emptying, false);
    QGuiApplication::setOverrideCursor(Qt::BusyCursor);
    // Not on this thread: what still copies has to end, or it would fill the folder again after it was emptied, and
    // emptying it of very many files takes seconds.
    QThreadPool::globalInstance()->start([this] {
        const bool ended = m_gathering->endCopies();
        RemoveAllContentInFolder(s_Data_Folder);
        QMetaObject::invokeMethod(
            this, [this, ended] { dataFolderEmptied(ended); }, Qt::QueuedConnection);
    });
}

void AppDelegate::dataFolderEmptied(bool copiesEnded)
{
    QGuiApplication::restoreOverrideCursor();
    if (!copiesEnded) {
        const QString what = tr("The copying of a folder does not end.");
        activityLog->note(what, s_Data_Folder);
        job->remark(what);
    }
    Show_Window_Operation_Complete();
}
