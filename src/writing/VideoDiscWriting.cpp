// Video DVDs and Blu-rays: discs of MPEG-2 program streams. Both are converted with the DVD presets.
#include "writing/DiscForms.h"
#include "writing/Job.h"
#include "writing/Names.h"

using namespace Qt::StringLiterals;

namespace {

constexpr const char *noVideo = QT_TRANSLATE_NOOP("AppDelegate", "No video files on the list");
constexpr const char *noVideoText = QT_TRANSLATE_NOOP(
    "AppDelegate", "There are no video files on the list. Add video files to the list and try again.");

} // namespace

void AppDelegate::Burn_Video_DVD()
{
    burnVideo({ 4, noVideo, noVideoText, "DVD"_L1, writing::notDVD, writing::notDVDText,
        QT_TRANSLATE_NOOP("AppDelegate", "Warning 0000.") });
}

void AppDelegate::Burn_Video_Bluray()
{
    burnVideo({ 5, noVideo, noVideoText, "BD"_L1, writing::notBluray, writing::notBlurayText,
        QT_TRANSLATE_NOOP("AppDelegate", "Warning 0090.") });
}

void AppDelegate::burnVideo(const DiscForm &form)
{
    if (!mayWrite(form, arrayMediaFiles.isEmpty()))
        return;
    if (!beginJob(workOn(form.code, s_Video_Folder)))
        return;
    convertList(0, [this](const NodeMediaFile &file) {
        return writing::mpegArguments(file.s_File_Path,
            writing::convertedPath(s_Video_Folder, file.s_File_Path, "mpg"_L1), s_Video_Output_Format,
            s_Audio_Output_Format);
    });
    schedule(timerBurnVideo, &AppDelegate::TimerBurnVideoRoutine);
}

void AppDelegate::TimerBurnVideoRoutine()
{
    if (endStopped(&AppDelegate::VideoBurnTerminated))
        return;
    describeConverted(s_Video_Folder);
    runInBackground(around.drutil, { u"burn"_s, s_Video_Folder, u"-drive"_s, s_Current_Drive_Number },
        writing::Stage::Writing, &AppDelegate::VideoBurnTerminated, Output::Observed);
    Show_Window_Performing_Operation();
}
