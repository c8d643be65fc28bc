// The TV standard and the audio format of video discs, and whether players are to play them.
#include "app/AppDelegate.h"
#include "app/MainWindow.h"
#include "app/Preferences.h"
#include "writing/Window_Video_Settings.h"

using namespace Qt::StringLiterals;

void AppDelegate::Show_Window_Video_Settings()
{
    delete windowVideoSettings;
    windowVideoSettings =
        new Window_Video_Settings(window->stage(), s_Video_Output_Format, s_Audio_Output_Format, forPlayers);
    connect(windowVideoSettings, &Window_Video_Settings::confirmed, this,
        [this](const QString &videoFormat, const QString &audioFormat) {
            s_Video_Output_Format = videoFormat;
            s_Audio_Output_Format = audioFormat;
            forPlayers = windowVideoSettings->isForPlayers();
            setPreference(preferences::videoFormat, videoFormat);
            setPreference(preferences::audioFormat, audioFormat);
            setPreference(preferences::forPlayers, forPlayers ? u"1"_s : u"0"_s);
            Close_Window_Video_Settings();
        });
    connect(windowVideoSettings, &Window_Video_Settings::dismissed, this,
        &AppDelegate::Close_Window_Video_Settings);
    windowVideoSettings->beginSheet();
}

void AppDelegate::Close_Window_Video_Settings()
{
    if (windowVideoSettings)
        windowVideoSettings->endSheet();
    windowVideoSettings = nullptr;
}
