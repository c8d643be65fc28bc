// The TV standard and the audio format of video discs.
#include "app/AppDelegate.h"
#include "app/MainWindow.h"
#include "writing/Window_Video_Settings.h"

void AppDelegate::Show_Window_Video_Settings()
{
    delete windowVideoSettings;
    windowVideoSettings = new Window_Video_Settings(this, window);
    windowVideoSettings->beginSheet();
}

void AppDelegate::Close_Window_Video_Settings()
{
    if (windowVideoSettings)
        windowVideoSettings->endSheet();
    windowVideoSettings = nullptr;
}
