// Video DVDs and Blu-rays: discs of MPEG-2 program streams, both converted with the DVD presets. Where players are
// to play a DVD, PlayerDiscWriting.cpp makes titles of the streams before they are written.
#include "writing/DiscForms.h"
#include "writing/Job.h"
#include "writing/Names.h"
#include "writing/PlayerTitles.h"

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
    const bool toBeAuthored = forPlayers && form.mediaType == "DVD"_L1;
    if (!mayWrite(form, arrayMediaFiles.isEmpty()) || (toBeAuthored && !Titles::mayBeMade(*this)))
        return;
    if (!beginJob(workOn(form.code, s_Video_Folder)))
        return;
    if (toBeAuthored)
        m_titles = std::make_shared<Titles>(*this);
    convertList(0, [this](const NodeMediaFile &file) {
        if (m_titles)
            return m_titles->convert(file);
        convert(writing::mpegArguments(file.s_File_Path,
                    writing::convertedPath(s_Video_Folder, file.s_File_Path, "mpg"_L1), s_Video_Output_Format,
                    s_Audio_Output_Format),
            file);
    });
    schedule(timerBurnVideo, m_titles ? &AppDelegate::authorTitles : &AppDelegate::TimerBurnVideoRoutine);
}

void AppDelegate::TimerBurnVideoRoutine()
{
    if (endStopped(&AppDelegate::VideoBurnTerminated))
        return;
    if (m_titles)
        m_titles->describe();
    else
        describeConverted(s_Video_Folder);
    runInBackground(around.drutil, { u"burn"_s, s_Video_Folder, u"-drive"_s, s_Current_Drive_Number },
        writing::Stage::Writing, &AppDelegate::VideoBurnTerminated, Output::Observed);
    Show_Window_Performing_Operation();
}
