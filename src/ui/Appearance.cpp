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
    SystemAppearance::instance().leadPalette();
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
    const auto scheme = [this] {
        QList<QColor> colours;
        for (const ColourField &row : colourFields)
            colours.append(this->*row.field);
        return colours;
    };
    windowColors = new Window_Colors(window->stage(), scheme(), b_List_Alternating_Rows == 1);
    connect(windowColors, &Window_Colors::confirmed, this,
        [this](const QList<QColor> &colours, bool alternatingRows) {
            b_List_Alternating_Rows = alternatingRows ? 1 : 0;
            for (std::size_t i = 0; i < colourFields.size(); ++i)
                this->*colourFields[i].field = colours.at(static_cast<qsizetype>(i));
            OK_Window_Colors();
        });
    connect(windowColors, &Window_Colors::dismissed, this, &AppDelegate::Cancel_Window_Colors);
    // The shipped scheme goes into the fields and the preferences at once; the window shows it after OK.
    connect(windowColors, &Window_Colors::originalWanted, this, [this, scheme] {
        for (const auto &[role, field] : colourFields)
            this->*field = ColourScheme::storeShippedColour(*preferences, role);
        ColourScheme::storeAlternatingRows(*preferences, 1);
        savePreferences();
        windowColors->showScheme(scheme(), true);
    });
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
