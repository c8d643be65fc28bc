#include "app/MainWindow.h"

#include "app/AppDelegate.h"
#include "kit/SheetStage.h"
#include "ui_MainWindow.h"

#include <QCloseEvent>
#include <QKeyEvent>

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_ui(std::make_unique<Ui::MainWindow>())
{
    m_ui->setupUi(this);
    m_stage = new SheetStage(m_ui->centralwidget);
    addAction(m_ui->menuitemQuit); // also for the alerts, which take over what works everywhere in the window
    m_ui->menuitemVirtualSeparator->setSeparator(true);
    setMinimumSize(AppDelegate::windowWillResize_toSize({ 0, 0 }));
}

MainWindow::~MainWindow() = default;

/// Keys that nothing has taken: a click behind an alert gave this window the keyboard.
void MainWindow::keyPressEvent(QKeyEvent *event)
{
    QWidget *front = m_stage->front();
    if (!front)
        return QMainWindow::keyPressEvent(event);
    QWidget *receiver = front->focusWidget() ? front->focusWidget() : front;
    if (receiver->hasFocus() || event->isAutoRepeat())
        return;
    QKeyEvent again(event->type(), event->key(), event->modifiers(), event->text());
    QCoreApplication::sendEvent(receiver, &again);
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    event->accept();
    Q_EMIT closing();
}
