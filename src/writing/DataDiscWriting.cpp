// Data CDs, DVDs and Blu-rays: checks, gathering the folders, and the disc.
#include "app/MainWindow.h"
#include "runner/ActivityLog.h"
#include "runner/StatusSheets.h"
#include "writing/DiscForms.h"
#include "writing/FolderStaging.h"
#include "writing/Window_Data_Copy_Folders.h"

#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QThreadPool>

#include <chrono>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView noFolders("No folders on the list");
constexpr QLatin1StringView noFoldersText(
    "There are no folders on the list. Add folders to the list and try again.");

} // namespace

void AppDelegate::Burn_Data_CD()
{
    burnData({ noFolders, noFoldersText, "CD"_L1, writing::notCD, writing::notCDText, "Warning 0070."_L1 });
}

void AppDelegate::Burn_Data_DVD()
{
    burnData(
        { noFolders, noFoldersText, "DVD"_L1, writing::notDVD, writing::notDVDText, "Warning 0020."_L1 });
}

void AppDelegate::Burn_Data_Bluray()
{
    burnData({ noFolders, noFoldersText, "BD"_L1, writing::notBluray, writing::notBlurayText,
        "Warning 0090."_L1 });
}

void AppDelegate::burnData(const DiscForm &form)
{
    if (!mayWrite(form, arrayDataFolders.isEmpty()))
        return;
    beginJob();
    if (!claimFolder(s_Data_Folder))
        return;
    Show_Window_Data_Copy_Folders();
}

void AppDelegate::Show_Window_Data_Copy_Folders()
{
    delete windowDataCopyFolders;
    windowDataCopyFolders = new Window_Data_Copy_Folders(this, window);
    connect(windowDataCopyFolders, &Window_Data_Copy_Folders::stagingEnded, this,
        [this] { schedule(timerBurnDataFolder, &AppDelegate::TimerBurnDataFolder); });
    windowDataCopyFolders->beginSheet();
}

void AppDelegate::Close_Window_Data_Copy_Folders()
{
    if (windowDataCopyFolders)
        windowDataCopyFolders->endSheet();
    windowDataCopyFolders = nullptr;
}

void AppDelegate::TimerBurnDataFolder()
{
    for (const auto &copy : std::as_const(stagingCopies)) {
        if (!copy->ended && !copy->stop)
            activityLog->note(
                tr("The disc is written before the copying of a folder has ended"), s_Data_Folder);
    }
    runInBackground(around.drutil, { u"burn"_s, s_Data_Folder, u"-drive"_s, s_Current_Drive_Number },
        &AppDelegate::dataBurnTerminated, Output::Observed);
    Close_Window_Data_Copy_Folders();
    Show_Window_Performing_Operation();
}

void AppDelegate::dataBurnTerminated()
{
    Close_Window_Performing_Operation();
    b_Emptying_Data_Folder = true;
    QGuiApplication::setOverrideCursor(Qt::BusyCursor);
    // Not on this thread: what still copies has to end, or it would fill the folder again after it was emptied, and
    // emptying it of very many files takes seconds.
    QThreadPool::globalInstance()->start([this] {
        if (!endStagingCopies())
            activityLog->note(tr("The copying of a folder does not end"), s_Data_Folder);
        RemoveAllContentInFolder(s_Data_Folder);
        QMetaObject::invokeMethod(this, &AppDelegate::dataFolderEmptied, Qt::QueuedConnection);
    });
}

void AppDelegate::dataFolderEmptied()
{
    QGuiApplication::restoreOverrideCursor();
    b_Emptying_Data_Folder = false;
    Show_Window_Operation_Complete();
}

bool AppDelegate::endStagingCopies()
{
    for (const auto &copy : std::as_const(stagingCopies))
        copy->stop = true;
    const QDeadlineTimer deadline(around.copyEndLimit);
    stagingCopies.removeIf([&deadline](const auto &copy) {
        return copy->waitForEnd(std::chrono::milliseconds(deadline.remainingTime()));
    });
    return stagingCopies.isEmpty();
}
