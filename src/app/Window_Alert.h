// A modal alert.
#pragma once

#include "app/Questions.h"

#include <QDialog>

#include <memory>

class SheetStage;
namespace Ui {
class Window_Alert;
}

/// Shows an alert's two texts as they are, never as rich text; a long one, or one whose columns
/// matter, in a scrolling, selectable, fixed-width field. exec() answers the button's position.
class Window_Alert : public QDialog {
    Q_OBJECT
public:
    Window_Alert(const Alert &alert, QWidget *over);
    ~Window_Alert() override;

    /// Asks over the window of this stage, which takes no input meanwhile but can be closed and quit from its menu, as a
    /// window behind a modal dialog cannot. Answers the button's position.
    int askOver(SheetStage *stage);

    void reject() override;

private:
    void showTexts(const Alert &alert);
    void showReport(const QString &text, bool columns);
    void addButtons(const QStringList &titles);

    std::unique_ptr<Ui::Window_Alert> m_ui;
    int m_dismissed = 0;
};
