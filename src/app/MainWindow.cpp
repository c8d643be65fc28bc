#include "app/MainWindow.h"

#include "app/AppDelegate.h"
#include "kit/SheetStage.h"
#include "ui_MainWindow.h"

#include <QCloseEvent>
<<<<<<< HEAD
#include <QKeyEvent>
#include <QTabBar>
=======
>>>>>>> 58d38d7 (Give the list the keyboard, and let arrows on the tabs only move the focus)

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

<<<<<<< HEAD
/// A turn of the wheel over the tabs would choose another page, and with that empty the lists.
bool MainWindow::eventFilter(QObject *watched, QEvent *event)
{
    const bool wheelOverTabs = event->type() == QEvent::Wheel && watched == m_ui->tabviewMain->tabBar();
    return wheelOverTabs || QMainWindow::eventFilter(watched, event);
}

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

=======
>>>>>>> 58d38d7 (Give the list the keyboard, and let arrows on the tabs only move the focus)
void MainWindow::closeEvent(QCloseEvent *event)
{
    event->accept();
    Q_EMIT closing();
}
