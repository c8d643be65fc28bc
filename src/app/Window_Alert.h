// A modal alert.
#pragma once

#include "app/Questions.h"

#include <QDialog>

#include <memory>

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

    void reject() override;

private:
    void showTexts(const Alert &alert);
    void showReport(const QString &text, bool columns);
    void addButtons(const QStringList &titles);

    std::unique_ptr<Ui::Window_Alert> m_ui;
    int m_last = 0;
};
