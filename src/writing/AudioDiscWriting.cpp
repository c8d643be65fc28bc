// Audio CDs, MP3 CDs and MP3 DVDs: checks, conversion, and 0.1 seconds later the disc.
#include "app/MainWindow.h"
#include "runner/ActivityLog.h"
#include "ui_MainWindow.h"
#include "writing/DiscForms.h"
#include "writing/Job.h"
#include "writing/Names.h"
#include "writing/TrackNames.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

constexpr const char *noAudio = QT_TRANSLATE_NOOP("AppDelegate", "No audio files on the list");
constexpr const char *noAudioText = QT_TRANSLATE_NOOP(
    "AppDelegate", "There are no audio files on the list. Add audio files to the list and try again.");

} // namespace

void AppDelegate::Burn_Audio_CD()
{
    burnAudio({ { 1, noAudio, noAudioText, "CD"_L1, writing::notCD, writing::notCDText,
                    QT_TRANSLATE_NOOP("AppDelegate", "Warning 0060.") },
        1, writing::wavArguments, "wav"_L1, &AppDelegate::timerBurnAudioCD, &AppDelegate::TimerBurnAudioCD });
}

void AppDelegate::Burn_Audio_MP3_CD()
{
    burnAudio({ { 2, noAudio, noAudioText, "CD"_L1, writing::notCD, writing::notCDText,
                    QT_TRANSLATE_NOOP("AppDelegate", "Warning 0050.") },
        2, writing::mp3Arguments, "mp3"_L1, &AppDelegate::timerBurnMP3, &AppDelegate::TimerBurnMP3 });
}

void AppDelegate::Burn_Audio_MP3_DVD()
{
    burnAudio({ { 3, noAudio, noAudioText, "DVD"_L1, writing::notDVD, writing::notDVDText,
                    QT_TRANSLATE_NOOP("AppDelegate", "Warning 0010.") },
        2, writing::mp3Arguments, "mp3"_L1, &AppDelegate::timerBurnMP3, &AppDelegate::TimerBurnMP3 });
}

void AppDelegate::burnAudio(const AudioForm &form)
{
    if (!mayWrite(form.checks, arrayMediaFiles.isEmpty()))
        return;
    if (!beginJob(workOn(form.checks.code, s_Audio_Folder)))
        return;
    convertList(1, [this, &form](const NodeMediaFile &file) {
        i_Burn_Audio_Type = form.burnAudioType;
        convert(form.transcoderArguments(file.s_File_Path,
                    writing::convertedPath(s_Audio_Folder, file.s_File_Path, form.extension)),
            file);
    });
    schedule(this->*form.timer, form.write);
}

void writing::nameTrack(const AppDelegate &controller, const QString &path, const NodeMediaFile &file)
{
    Job *const job = controller.job.get();
    const bool isTrack =
        job->work().workingFolder == controller.s_Audio_Folder && controller.i_Burn_Audio_Type == 1;
    const auto names = namesToWrite(file, controller.ui->menuitemWriteTitles->isChecked());
    if (!isTrack || !names || job->isStopping() || !QFile::exists(path))
        return;
    const QString why = writeTrackNames(path, *names);
    if (why.isEmpty())
        return;
    const QString what = AppDelegate::tr(
        "The title and the performer of “%1” are not on the disc as they are on the list: %2.")
                             .arg(file.s_File_Name_With_Extension.simplified(), why);
    controller.activityLog->note(AppDelegate::tr("The names of a track could not be written"), what);
    job->leaveOut(what);
}

void AppDelegate::TimerBurnAudioCD()
{
    if (endStopped(&AppDelegate::AudioBurnTerminated))
        return;
    describeConverted(s_Audio_Folder);
    runInBackground(around.drutil,
        { u"burn"_s, u"-audio"_s, s_Audio_Folder, u"-drive"_s, s_Current_Drive_Number },
        writing::Stage::Writing, &AppDelegate::AudioBurnTerminated, Output::Observed);
    Show_Window_Performing_Operation();
}

void AppDelegate::TimerBurnMP3()
{
    if (endStopped(&AppDelegate::AudioBurnTerminated))
        return;
    describeConverted(s_Audio_Folder);
    runInBackground(around.drutil, { u"burn"_s, s_Audio_Folder, u"-drive"_s, s_Current_Drive_Number },
        writing::Stage::Writing, &AppDelegate::AudioBurnTerminated, Output::Observed);
    Show_Window_Performing_Operation();
}
