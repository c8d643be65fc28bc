// The sheet in which the main window's colours are chosen.
#pragma once

#include "app/Sheet.h"

#include <memory>

class AppDelegate;
class ColourWell;
namespace Ui {
class Window_Colors;
}

/// Five colour wells and a switch. OK takes all of them over; Cancel leaves everything, except that
/// "Original" has already put the shipped colours into the controller and the preferences when it was
/// pressed.
class Window_Colors : public Sheet {
    Q_OBJECT
public:
    Window_Colors(AppDelegate *controller, QWidget *parent);
    ~Window_Colors() override;

    void OnOK();
    void OnCancel();
    void OnOriginal();

protected:
    void cancelled() override { OnCancel(); }

private:
    void makeButtons();
    void windowDidLoad();
    void showColours();

    AppDelegate *const m_controller;
    std::unique_ptr<Ui::Window_Colors> m_ui;
};
