// The colour scheme on the main window.
#include "app/AppDelegate.h"
#include "compilation/ListTableView.h"
#include "ui/ColourScheme.h"
#include "ui/SystemAppearance.h"
#include "ui_MainWindow.h"

#include <QSettings>

#include <array>

namespace {

/// The colour fields in the order in which they are loaded.
const std::array<std::pair<ColourScheme::Role, QColor AppDelegate::*>, 5> fields{{
    {ColourScheme::Role::TableBackground, &AppDelegate::colorTableBackground},
    {ColourScheme::Role::TableForeground, &AppDelegate::colorTableForeground},
    {ColourScheme::Role::Toolbar, &AppDelegate::colorToolbar},
    {ColourScheme::Role::BottomBar, &AppDelegate::colorBottomBar},
    {ColourScheme::Role::SpaceOccupiedBar, &AppDelegate::colorSpaceOccupiedBar},
}};

} // namespace

void AppDelegate::loadColourScheme()
{
    b_List_Alternating_Rows = ColourScheme::loadAlternatingRows(*preferences);
    for (const auto &[role, field] : fields)
        this->*field = ColourScheme::loadColour(*preferences, role);
    savePreferences();
    paintTableBackgrounds(b_List_Alternating_Rows != 0);
}

void AppDelegate::paintTableBackgrounds(bool alternating)
{
    const QColor ground = !alternating ? colorTableBackground : isDarkAppearance() ? Qt::black : Qt::white;
    for (ListTableView *table : {ui->tableviewVideoFiles, ui->tableviewAudioFiles, ui->tableviewDataFolders})
        table->setGround(ground);
}

void AppDelegate::TimerSetAlternatingRowsRoutine()
{
    for (ListTableView *table : {ui->tableviewVideoFiles, ui->tableviewAudioFiles, ui->tableviewDataFolders})
        table->setAlternatingRowColors(b_List_Alternating_Rows == 1);
}

void AppDelegate::TimerForceColorsAtStartupRoutine()
{
    const std::array<QWidget *, 10> views{
        ui->view_Toolbar_Audio_BG, ui->view_Toolbar_Audio_Sub_BG, ui->view_Toolbar_Video_BG,
        ui->view_Toolbar_Video_Sub_BG, ui->view_Toolbar_Data_BG, ui->view_Toolbar_Data_Sub_BG,
        ui->view_Toolbar_ISO_BG, ui->view_Toolbar_Tools_BG, ui->customviewSpaceOccupied,
        ui->customviewButtonBurn};
    for (QWidget *view : views)
        view->update();
}
