// The sheet in which the kind of disc is chosen.
#pragma once

#include "app/Sheet.h"

#include <array>
#include <memory>

class AppDelegate;
class QRadioButton;
namespace Ui {
class Window_New_Disc;
}

/// Eight radio buttons, one a project type, in the order of their codes. The chosen code goes into
/// the controller's i_Type_of_New_Disc, which then closes the sheet.
class Window_New_Disc : public Sheet {
    Q_OBJECT
public:
    Window_New_Disc(AppDelegate *controller, QWidget *parent);
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

protected:
    void cancelled() override { OnCancel(); }

private:
    void windowDidLoad();
    void chosen(int number); ///< what the eight actions have in common

    AppDelegate *const m_controller;
    std::unique_ptr<Ui::Window_New_Disc> m_ui;
    std::array<QRadioButton *, 8> m_radios;
};
