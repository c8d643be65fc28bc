// The sheet of the video output settings.
#pragma once

#include "kit/Sheet.h"

#include <memory>

class QRadioButton;
namespace Ui {
class Window_Video_Settings;
}

/// Two pairs of radio buttons. Pressing one only ever switches the other of its pair off, and OK reads
/// the first of each pair only: whatever is not NTSC is PAL, whatever is not Dolby Digital is MPEG-2. Below them is a
/// switch that concerns Video DVDs only.
class Window_Video_Settings : public Sheet {
    Q_OBJECT
public:
    /// The format codes that hold now; "0" is NTSC, and Dolby Digital. `forPlayers`: the switch is on.
    Window_Video_Settings(
        SheetStage *stage, const QString &videoFormat, const QString &audioFormat, bool forPlayers);
    ~Window_Video_Settings() override;

    /// The switch for discs with titles and chapters.
    bool isForPlayers() const;

    void OnVideoNTSC();
    void OnVideoPal();
    void OnAudioDolbyDigital();
    void OnAudioMPEG2();
    void OnOK();
    void OnCancel();

Q_SIGNALS:
    /// OK, with the chosen codes: "0" or "1".
    void confirmed(const QString &videoFormat, const QString &audioFormat);
    void dismissed();

protected:
    void cancelled() override { OnCancel(); }

private:
    void windowDidLoad(const QString &videoFormat, const QString &audioFormat);

    std::unique_ptr<Ui::Window_Video_Settings> m_ui;
};
