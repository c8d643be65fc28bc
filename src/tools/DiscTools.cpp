// Erase, eject, load, and what the drive says of its disc.
#include "app/AppDelegate.h"
#include "app/MainWindow.h"
#include "drives/MediaStatus.h"
#include "ui_MainWindow.h"
#include "writing/Job.h"

#include <QCursor>

using namespace Qt::StringLiterals;

void AppDelegate::OnToolsFormatRWMedia()
{
    ui->popupmenuErase->popup(QCursor::pos());
}

void AppDelegate::OnToolsFormatFull()
{
    eraseDisc(u"full"_s);
}

void AppDelegate::OnToolsFormatQuick()
{
    eraseDisc(u"quick"_s);
}

void AppDelegate::eraseDisc(const QString &extent)
{
    if (isJobPending())
        return;
    const bool empty = IsDriveEmpty();
    if (tellDriveGone())
        return;
    if (empty) {
        return alert(tr("No disc"),
            tr("There is no disc on the drive. insert a rewritable media on the drive and try again."));
    }
    if (!IsMediaReWritable()) {
        return alert(tr("Media not rewritable"),
            tr("The media on the drive is not rewritable. insert a rewritable media on the drive and try "
               "again."));
    }
    writing::Work work = workOn(0, {});
    work.result = writing::Work::Result::BlankDisc;
    work.name = extent == "full"_L1 ? tr("Full erase") : tr("Quick erase");
    beginJob(work);
    runInBackground(around.drutil, { u"erase"_s, extent, u"-drive"_s, s_Current_Drive_Number },
        writing::Stage::Erasing, &AppDelegate::taskTerminated, Output::Observed);
    Show_Window_Performing_Operation();
}

bool AppDelegate::tellNotStarted()
{
    if (m_notStarted.isEmpty())
        return false;
    alert(tr("The disc utility cannot be used"), m_notStarted);
    return true;
}

void AppDelegate::moveTray(const QString &motion, const QString &drive)
{
    if (isDriveGone())
        return;
    const QByteArray said = captureTool(
        around.drutil, { u"tray"_s, motion, u"-drive"_s, drive.isEmpty() ? s_Current_Drive_Number : drive });
    forgetDisc();
    if (!tellNotStarted() && drives::saysGone(QString::fromUtf8(said))) {
        lookForDrives();
        tellDriveGone();
    }
}

void AppDelegate::OnToolsEjectDisc()
{
    moveTray(u"eject"_s);
}

void AppDelegate::OnToolsLoadDisc()
{
    moveTray(u"close"_s);
}

void AppDelegate::OnToolsDiscInfo()
{
    const bool empty = IsDriveEmpty();
    if (tellNotStarted() || tellDriveGone())
        return;
    if (empty)
        return alert(
            tr("No disc"), tr("There is no disc on the drive. Insert a media on the drive and try again."));
    around.questions->ask({ tr("Disc Information"), driveStatus(), { tr("OK") }, Alert::Sign::Note,
                              Alert::Report::Informative },
        window);
}
