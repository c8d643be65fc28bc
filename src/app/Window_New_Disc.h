// The sheet in which the kind of disc is chosen.
#pragma once

#include "kit/Sheet.h"

#include <array>
#include <memory>
#include <optional>

class QRadioButton;
namespace Ui {
class Window_New_Disc;
}

/// Eight radio buttons, one a project type, in the order of their codes.
class Window_New_Disc : public Sheet {
    Q_OBJECT
public:
    /// `code` is chosen at first; none where there is no such project type. `emptiesLists`: OK will empty lists that hold
    /// something, and the sheet says so.
    Window_New_Disc(SheetStage *stage, qint64 code, bool emptiesLists);
    ~Window_New_Disc() override;

    void OnRadio1() { chosen(1); }
    void OnRadio2() { chosen(2); }
    void OnRadio3() { chosen(3); }
    void OnRadio4() { chosen(4); }
    void OnRadio5() { chosen(5); }
    void OnRadio6() { chosen(6); }
    void OnRadio7() { chosen(7); }
    void OnRadio8() { chosen(8); }
    void OnOK();
    void OnCancel();

Q_SIGNALS:
    /// OK; the code of the chosen project type, nothing where none was chosen.
    void confirmed(std::optional<int> code);
    void dismissed();

protected:
    void cancelled() override { OnCancel(); }

private:
    void windowDidLoad(qint64 code);
    void chosen(int number); ///< what the eight actions have in common

    std::unique_ptr<Ui::Window_New_Disc> m_ui;
    std::array<QRadioButton *, 8> m_radios;
};
