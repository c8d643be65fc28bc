// A modal alert.
#pragma once

#include "app/Questions.h"

#include <QDialog>

#include <memory>

class SheetStage;
namespace Ui {
class Window_Alert;
}

/// Shows an alert's two texts as they are, never as rich text, the message above the informative one; a long
/// one, or one whose columns matter, in a selectable, fixed-width field, as large as the text up to the size of
/// the window `over`, or of the screen without one. exec() answers the button's position.
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
    void showSign(Alert::Sign sign);
    void showTexts(const Alert &alert);
    void showReport(const QString &text);
    QSize roomForReport() const;
    void addButtons(const QStringList &titles);

    std::unique_ptr<Ui::Window_Alert> m_ui;
    int m_dismissed = 0;
};
