// The sheet in which the main window's colours are chosen.
#pragma once

#include "kit/Sheet.h"

#include <QColor>
#include <QList>

#include <memory>

class ColourWell;
namespace Ui {
class Window_Colors;
}

/// Five colour wells and a switch.
class Window_Colors : public Sheet {
    Q_OBJECT
public:
    /// The colours in the order of ColourScheme's roles.
    Window_Colors(SheetStage *stage, const QList<QColor> &colours, bool alternatingRows);
    ~Window_Colors() override;

    void OnOK();
    void OnCancel();
    void OnOriginal();

    void showScheme(const QList<QColor> &colours, bool alternatingRows);

Q_SIGNALS:
    /// OK, with what the sheet shows.
    void confirmed(const QList<QColor> &colours, bool alternatingRows);
    void dismissed();
    /// The shipped scheme is wanted, at once and to stay; the answer is a call of showScheme().
    void originalWanted();

protected:
    void cancelled() override { OnCancel(); }

private:
    void makeButtons();

    std::unique_ptr<Ui::Window_Colors> m_ui;
};
