// The colour scheme on the main window.
#include "app/AppDelegate.h"
#include "app/MainWindow.h"
#include "compilation/ListTableView.h"
#include "ui/ColourFields.h"
#include "ui/SystemAppearance.h"
#include "ui/Window_Colors.h"
#include "ui_MainWindow.h"

#include <QSettings>

#include <array>

void AppDelegate::loadColourScheme()
{
    b_List_Alternating_Rows = ColourScheme::loadAlternatingRows(*preferences);
    for (const auto &[role, field] : colourFields)
        this->*field = ColourScheme::loadColour(*preferences, role);
    savePreferences();
    paintTableBackgrounds(b_List_Alternating_Rows != 0);
    // The desktop's own answer comes after the window, and again when a person switches the desktop.
    connect(&SystemAppearance::instance(), &SystemAppearance::changed, this,
        [this] { paintTableBackgrounds(b_List_Alternating_Rows != 0); });
}

void AppDelegate::paintTableBackgrounds(bool alternating)
{
    const QColor ground = !alternating ? colorTableBackground : isDarkAppearance() ? Qt::black : Qt::white;
    for (ListTableView *table :
        { ui->tableviewVideoFiles, ui->tableviewAudioFiles, ui->tableviewDataFolders })
        table->setGround(ground);
}

void AppDelegate::OnToolsColors()
{
    delete windowColors;
    windowColors = new Window_Colors(this, window);
    windowColors->beginSheet();
}

void AppDelegate::Cancel_Window_Colors()
{
    if (windowColors)
        windowColors->endSheet();
    windowColors = nullptr;
}

void AppDelegate::OK_Window_Colors()
{
    Cancel_Window_Colors();
    ColourScheme::storeAlternatingRows(*preferences, b_List_Alternating_Rows);
    for (const auto &[role, field] : colourFields)
        ColourScheme::storeColour(*preferences, role, this->*field);
    savePreferences();
    paintTableBackgrounds(b_List_Alternating_Rows == 1);
    for (ListTableView *table :
        { ui->tableviewVideoFiles, ui->tableviewAudioFiles, ui->tableviewDataFolders }) {
        const auto selected = table->selectedRows();
        reloadTable(table);
        table->selectRows(selected);
    }
    schedule(timerSetAlternatingRows, &AppDelegate::TimerSetAlternatingRowsRoutine);
    schedule(timerForceColorsAtStartup, &AppDelegate::TimerForceColorsAtStartupRoutine);
}

void AppDelegate::TimerSetAlternatingRowsRoutine()
{
    for (ListTableView *table :
        { ui->tableviewVideoFiles, ui->tableviewAudioFiles, ui->tableviewDataFolders })
        table->setAlternatingRowColors(b_List_Alternating_Rows == 1);
}

void AppDelegate::TimerForceColorsAtStartupRoutine()
{
    const std::array<QWidget *, 10> views{ ui->view_Toolbar_Audio_BG, ui->view_Toolbar_Audio_Sub_BG,
        ui->view_Toolbar_Video_BG, ui->view_Toolbar_Video_Sub_BG, ui->view_Toolbar_Data_BG,
        ui->view_Toolbar_Data_Sub_BG, ui->view_Toolbar_ISO_BG, ui->view_Toolbar_Tools_BG,
        ui->customviewSpaceOccupied, ui->customviewButtonBurn };
    for (QWidget *view : views)
        view->update();
}
