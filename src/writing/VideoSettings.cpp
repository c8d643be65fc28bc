// The TV standard and the audio format of video discs.
#include "app/AppDelegate.h"
#include "app/MainWindow.h"
#include "app/Preferences.h"
#include "writing/Window_Video_Settings.h"

void AppDelegate::Show_Window_Video_Settings()
{
    delete windowVideoSettings;
    windowVideoSettings =
        new Window_Video_Settings(window->stage(), s_Video_Output_Format, s_Audio_Output_Format);
    connect(windowVideoSettings, &Window_Video_Settings::confirmed, this,
        [this](const QString &videoFormat, const QString &audioFormat) {
            s_Video_Output_Format = videoFormat;
            s_Audio_Output_Format = audioFormat;
            setPreference(preferences::videoFormat, videoFormat);
            setPreference(preferences::audioFormat, audioFormat);
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
