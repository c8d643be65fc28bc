// Making an ISO image of a folder, in stages 0.1 seconds apart so that each panel has closed before
// the next thing shows; and writing an image to the disc in the drive.
#include "app/MainWindow.h"
#include "writing/DiscForms.h"
#include "writing/Job.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

void AppDelegate::OnActionISOCreate()
{
    if (isJobPending() || !mayUseDiscName())
        return;
    SourcePath = DestPath = DestPathISO = QString();
    OpenPanel panel;
    panel.choose = OpenPanel::Choose::Folder;
    panel.message = tr("Select a folder to export to ISO format.");
    const QList<QUrl> chosen = around.questions->choose(panel, window);
    if (chosen.isEmpty())
        return;
    SourcePath = chosen.first().toLocalFile();
    writing::Work work;
    work.result = writing::Work::Result::Image;
    work.name = tr("Disc image");
    work.named = true;
    beginJob(work);
    schedule(timerCreateISOStep1, &AppDelegate::TimerCreateISOStep1Routine);
}

void AppDelegate::TimerCreateISOStep1Routine()
{
    OpenPanel panel;
    panel.choose = OpenPanel::Choose::Folder;
    panel.message = tr("Select a folder to save the Image.iso file.");
    panel.startFolder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QList<QUrl> chosen = around.questions->choose(panel, window);
    if (chosen.isEmpty())
        return dropJob();
    DestPath = chosen.first().toLocalFile();
    DestPathISO = DestPath + u"/image.iso"_s;
    QFile::remove(DestPathISO);
    schedule(timerCreateISOStep2, &AppDelegate::TimerCreateISOStep2Routine);
}

void AppDelegate::TimerCreateISOStep2Routine()
{
    if (endStopped(&AppDelegate::taskTerminated))
        return;
    job->setImage(DestPathISO);
    runInBackground(around.hdiutil,
        { u"makehybrid"_s, u"-o"_s, DestPathISO, SourcePath, u"-iso"_s, u"-joliet"_s },
        writing::Stage::Imaging, &AppDelegate::isoMakingTerminated, Output::Ignored);
    schedule(timerCreateISOStep3, &AppDelegate::TimerCreateISOStep3Routine);
}

void AppDelegate::isoMakingTerminated()
{
    // A tool that ended before its working sheet was up must not leave that sheet behind.
    delete timerCreateISOStep3;
    job->describe({}, QFileInfo(DestPathISO).size());
    taskTerminated();
}

void AppDelegate::TimerCreateISOStep3Routine()
{
    Show_Window_Performing_Operation();
}

void AppDelegate::OnActionISOBurn()
{
    if (isJobPending())
        return;
    OpenPanel panel;
    panel.extensions = { u"iso"_s, u"img"_s, u"dmg"_s };
    panel.message = tr("Select a ISO image to burn to media.");
    const QList<QUrl> chosen = around.questions->choose(panel, window);
    if (!chosen.isEmpty())
        burnImage(chosen.first().toLocalFile());
}

void AppDelegate::burnImage(const QString &image)
{
    const bool empty = IsDriveEmpty();
    if (tellDriveGone())
        return;
    if (empty)
        return alert(tr(writing::noDisc), tr(writing::noDiscText));
    if (!IsMediaOneTimeWritable() && !IsMediaReWritable())
        return alert(tr(writing::notWritable), tr(writing::notWritableText));
    const QFileInfo file(image);
    writing::Work work = workOn(0, {});
    work.name = tr("Image %1").arg(file.fileName().simplified());
    work.image = image;
    work.repeatable = true;
    beginJob(work);
    job->describe({}, file.size());
    runInBackground(around.hdiutil, { u"burn"_s, image }, writing::Stage::Writing,
        &AppDelegate::taskTerminated, Output::Ignored);
    Show_Window_Performing_Operation();
}
