#include "app/MainWindow.h"

#include "app/AppDelegate.h"
#include "ui_MainWindow.h"

#include <QCloseEvent>

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_ui(std::make_unique<Ui::MainWindow>())
{
    m_ui->setupUi(this);
    m_ui->menuitemVirtualSeparator->setSeparator(true);
    setMinimumSize(AppDelegate::windowWillResize_toSize({ 0, 0 }));
}

MainWindow::~MainWindow() = default;

void MainWindow::closeEvent(QCloseEvent *event)
{
    event->accept();
    Q_EMIT closing();
}
