#include "app/MainWindow.h"

#include "app/AppDelegate.h"
#include "ui_MainWindow.h"

#include <QCloseEvent>
#include <QTabBar>

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_ui(std::make_unique<Ui::MainWindow>())
{
    m_ui->setupUi(this);
    m_ui->menuitemVirtualSeparator->setSeparator(true);
    m_ui->tabviewMain->tabBar()->installEventFilter(this);
    setMinimumSize(AppDelegate::windowWillResize_toSize({ 0, 0 }));
}

MainWindow::~MainWindow() = default;

/// A turn of the wheel over the tabs would choose another page, and with that empty the lists.
bool MainWindow::eventFilter(QObject *watched, QEvent *event)
{
    const bool wheelOverTabs = event->type() == QEvent::Wheel && watched == m_ui->tabviewMain->tabBar();
    return wheelOverTabs || QMainWindow::eventFilter(watched, event);
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    event->accept();
    Q_EMIT closing();
}
