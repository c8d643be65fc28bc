// Quit, debug mode, help, and the activity log.
#include "app/Addresses.h"
#include "app/AppDelegate.h"
#include "app/MainWindow.h"
#include "app/Window_Activity_Log.h"
#include "ui_MainWindow.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileInfo>

using namespace Qt::StringLiterals;

void AppDelegate::OnMenuQuit()
{
    Terminate_App();
}

void AppDelegate::OnMenuDebugMode()
{
    m_b_Debug_Mode = !m_b_Debug_Mode;
    ui->menuitemDebugMode->setChecked(m_b_Debug_Mode);
}

void AppDelegate::openPage(const QUrl &page)
{
    if (!QDesktopServices::openUrl(page))
        alert(tr("The page could not be opened"), tr("Open it in a browser: %1").arg(page.toString()),
            Alert::Sign::Error);
}

void AppDelegate::OnMenuHelpAppHomePage()
{
    openPage(QUrl(addresses::homePage.toString()));
}

void AppDelegate::OnMenuHelpCompanyHomePage()
{
    openPage(QUrl(addresses::makersHomePage.toString()));
}

void AppDelegate::OnMenuHelpSubmitTicket()
{
    openPage(QUrl(addresses::supportTicket.toString()));
}

void AppDelegate::OnMenuHelpPrivacyPolicy()
{
    openPage(QUrl(addresses::privacyPolicy.toString()));
}

void AppDelegate::OnMenuHelpUserGuide()
{
    const bool installed = QFileInfo(around.guide).isFile();
    openPage(installed ? QUrl::fromLocalFile(around.guide) : QUrl(addresses::guide.toString()));
}

void AppDelegate::OnMenuHelpAbout()
{
    around.questions->ask(
        { tr("Corvalis %1").arg(QCoreApplication::applicationVersion()),
            tr("Prepares and writes optical discs.\n\nFree software under the GNU General Public "
               "License, version 2 or later.\nBuilt on Qt %1, libburn, libisofs, ffmpeg and mpv.")
                .arg(QString::fromLatin1(qVersion())),
            { tr("Close") }, Alert::Sign::Note },
        window);
}

void AppDelegate::OnMenuActivityLog()
{
    showActivityLog(-1);
}

void AppDelegate::showActivityLog(qsizetype run)
{
    if (!windowActivityLog)
        windowActivityLog = new Window_Activity_Log(activityLog, window);
    windowActivityLog->show();
    windowActivityLog->raise();
    windowActivityLog->activateWindow();
    if (run >= 0)
        windowActivityLog->select(run);
}
