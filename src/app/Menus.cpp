// Quit, debug mode, help, and the activity log.
#include "app/AppDelegate.h"
#include "app/MainWindow.h"
#include "app/Window_Activity_Log.h"
#include "ui_MainWindow.h"

#include <QCoreApplication>
#include <QDesktopServices>

using namespace Qt::StringLiterals;

namespace {

/// The pages that the Help menu opens.
const QUrl homePage(u"https://corvalis.example/"_s);
const QUrl makersHomePage(u"https://corvalis.example/makers/"_s);
const QUrl supportTicket(u"https://corvalis.example/support/ticket/"_s);
const QUrl privacyPolicy(u"https://corvalis.example/privacy/"_s);

} // namespace

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
    openPage(homePage);
}

void AppDelegate::OnMenuHelpCompanyHomePage()
{
    openPage(makersHomePage);
}

void AppDelegate::OnMenuHelpSubmitTicket()
{
    openPage(supportTicket);
}

void AppDelegate::OnMenuHelpPrivacyPolicy()
{
    openPage(privacyPolicy);
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
