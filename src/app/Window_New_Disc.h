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

    void OnOK();
    void OnCancel();

protected:
    void cancelled() override { OnCancel(); }

private:
    void windowDidLoad();
    void OnRadio(int number); ///< OnRadio1 to OnRadio8: they differ in the number only

    AppDelegate *const m_controller;
    std::unique_ptr<Ui::Window_New_Disc> m_ui;
    std::array<QRadioButton *, 8> m_radios;
};
