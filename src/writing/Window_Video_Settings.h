// The sheet of the video output settings.
#pragma once

#include "app/Sheet.h"

#include <memory>

class AppDelegate;
class QRadioButton;
namespace Ui {
class Window_Video_Settings;
}

/// Two pairs of radio buttons. Pressing one only ever switches the other of its pair off, and OK reads
/// the first of each pair only: whatever is not NTSC is PAL, whatever is not Dolby Digital is MPEG-2.
class Window_Video_Settings : public Sheet {
    Q_OBJECT
public:
    Window_Video_Settings(AppDelegate *controller, QWidget *parent);
    ~Window_Video_Settings() override;

    void OnVideoNTSC();
    void OnVideoPal();
    void OnAudioDolbyDigital();
    void OnAudioMPEG2();
    void OnOK();
    void OnCancel();

protected:
    void cancelled() override { OnCancel(); }

private:
    void windowDidLoad();

    AppDelegate *const m_controller;
    std::unique_ptr<Ui::Window_Video_Settings> m_ui;
};
