// Copying a disc with one drive: an image of the mounted disc, the eject, a blank, the image onto it.
#include "app/MainWindow.h"
#include "drives/MediaStatus.h"
#include "drives/MountedDiscs.h"
#include "writing/DiscForms.h"
#include "writing/Job.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

void AppDelegate::DuplicateMedia()
{
    if (isJobPending())
        return;
    const bool empty = IsDriveEmpty();
    if (tellDriveGone())
        return;
    if (empty) {
        return alert(tr(writing::noDisc),
            tr("There is no disc on the drive. insert a media on the drive to copy and try again."));
    }
    OpenPanel panel;
    panel.choose = OpenPanel::Choose::Folder;
    panel.message = tr("Select a volume to duplicate.");
    panel.places = drives::mountedDiscs();
    const QList<QUrl> chosen = around.questions->choose(panel, window);
    if (chosen.isEmpty())
        return;
    writing::Work work = workOn(0, s_Data_Folder);
    work.name = tr("Copy of %1").arg(chosen.first().fileName().simplified());
    if (!beginJob(work))
        return;
    runInBackground(around.hdiutil,
        { u"makehybrid"_s, u"-o"_s, duplicationImage(), chosen.first().toLocalFile(), u"-iso"_s,
            u"-joliet"_s },
        writing::Stage::Imaging, &AppDelegate::CreateISOfromDriveTerminated, Output::Ignored, Readers::Owner);
    Show_Window_Performing_Operation();
}

QString AppDelegate::duplicationImage() const
{
    return u"%1/image.iso"_s.arg(s_Data_Folder);
}

void AppDelegate::CreateISOfromDriveTerminated()
{
    if (endStopped(&AppDelegate::MediaDuplicationTerminated))
        return;
    Close_Window_Performing_Operation();
    job->enter(writing::Stage::Exchanging);
    OnToolsEjectDisc();
    schedule(timerDuplicateMediaCopy, &AppDelegate::TimerDuplicateMediaCopy);
}

bool AppDelegate::promptForBlank()
{
    const QString prompt =
        tr("Insert a writable media and click OK or click Cancel to stop the media duplication.");
    for (;;) {
        if (around.questions->ask({ prompt, prompt, { tr("OK"), tr("Cancel") } }, window) != 0)
            return false;
        const bool empty = IsDriveEmpty();
        if (tellDriveGone())
            continue;
        if (empty)
            alert(tr(writing::noDisc), tr(writing::noDiscText));
        else if (IsMediaOneTimeWritable() || IsMediaReWritable())
            return true;
        else
            alert(tr(writing::notWritable), tr(writing::notWritableText));
    }
}

void AppDelegate::TimerDuplicateMediaCopy()
{
    if (endStopped(&AppDelegate::MediaDuplicationTerminated))
        return;
    if (!promptForBlank()) {
        RemoveAllContentInFolder(s_Data_Folder);
        return dropJob();
    }
    job->setRewritable(drives::saysErasable(m_lastStatus));
    job->describe({}, QFileInfo(duplicationImage()).size());
    runInBackground(around.hdiutil, { u"burn"_s, duplicationImage() }, writing::Stage::Writing,
        &AppDelegate::MediaDuplicationTerminated, Output::Observed);
    Show_Window_Performing_Operation();
}
