// What happens when a button, a menu item, a tab or a table is used: one row each.
#include "app/AppDelegate.h"
#include "app/MainWindow.h"
#include "compilation/ListHeader.h"
#include "compilation/ListTableModel.h"
#include "compilation/NameColumns.h"
#include "compilation/SpaceOccupiedView.h"
#include "drives/DriveNews.h"
#include "drives/SpeedMenu.h"
#include "kit/SheetStage.h"
#include "ui_MainWindow.h"

#include <QActionGroup>
#include <QApplication>
#include <QHeaderView>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace {

using Handler = void (AppDelegate::*)();

struct ButtonRow {
    BarButton *Ui::MainWindow::*button;
    Handler handler;
};

struct ItemRow {
    QAction *Ui::MainWindow::*item;
    Handler handler;
};

/// What a menu item does that acts on the list of the selected tab, tab by tab.
struct ListItemRow {
    QAction *Ui::MainWindow::*item;
    std::array<Handler, 3> handlers;
};

using D = AppDelegate;
using U = Ui::MainWindow;

const ButtonRow buttons[] = {
    { &U::btnAudioCD, &D::OnActionAudioCD },
    { &U::btnMP3CD, &D::OnActionMP3CD },
    { &U::btnMP3DVD, &D::OnActionMP3DVD },
    { &U::btnVideoDVD, &D::OnActionVideoDVD },
    { &U::btnVideoBluray, &D::OnActionVideoBluray },
    { &U::btnDataCD, &D::OnActionDataCD },
    { &U::btnDataDVD, &D::OnActionDataDVD },
    { &U::btnDataBluray, &D::OnActionDataBluray },
    { &U::btnBurn, &D::OnBtnBurn },
    { &U::toolbar_btn_Audio_Add_Files, &D::OnActionAudioAddFiles },
    { &U::toolbar_btn_Audio_Add_Folder, &D::OnActionAudioAddFolder },
    { &U::toolbar_btn_Audio_Delete, &D::OnActionAudioDelete },
    { &U::toolbar_btn_Audio_Clear, &D::OnActionAudioClear },
    { &U::toolbar_btn_Audio_Play, &D::OnActionAudioPlay },
    { &U::toolbar_btn_Audio_New_Disc, &D::OnActionAudioNewDisc },
    { &U::toolbar_btn_Audio_Copy_Disc, &D::OnActionAudioCopyDisc },
    { &U::toolbar_btn_Video_Add_Files, &D::OnActionVideoAddFiles },
    { &U::toolbar_btn_Video_Add_Folder, &D::OnActionVideoAddFolder },
    { &U::toolbar_btn_Video_Delete, &D::OnActionVideoDelete },
    { &U::toolbar_btn_Video_Clear, &D::OnActionVideoClear },
    { &U::toolbar_btn_Video_Play, &D::OnActionVideoPlay },
    { &U::toolbar_btn_Video_Settings, &D::OnActionVideoSettings },
    { &U::toolbar_btn_Video_New_Disc, &D::OnActionVideoNewDisc },
    { &U::toolbar_btn_Video_Copy_Disc, &D::OnActionVideoCopyDisc },
    { &U::toolbar_btn_Data_Add_Files, &D::OnActionDataAddFiles },
    { &U::toolbar_btn_Data_Add_Folder, &D::OnActionDataAddFolder },
    { &U::toolbar_btn_Data_Delete, &D::OnActionDataDelete },
    { &U::toolbar_btn_Data_Clear, &D::OnActionDataClear },
    { &U::toolbar_btn_Data_New_Disc, &D::OnActionDataNewDisc },
    { &U::toolbar_btn_Data_Copy_Disc, &D::OnActionDataCopyDisc },
    { &U::toolbar_btn_ISO_Create_ISO, &D::OnActionISOCreate },
    { &U::toolbar_btn_ISO_Burn_ISO, &D::OnActionISOBurn },
    { &U::toolbar_btn_Tools_Erase_Disc, &D::OnToolsFormatRWMedia },
    { &U::toolbar_btn_Tools_Eject_Disc, &D::OnToolsEjectDisc },
    { &U::toolbar_btn_Tools_Load_Disc, &D::OnToolsLoadDisc },
    { &U::toolbar_btn_Tools_Disc_Info, &D::OnToolsDiscInfo },
    { &U::toolbar_btn_Tools_Colors, &D::OnToolsColors },
    { &U::toolbar_btn_Tools_Activity_Log, &D::OnMenuActivityLog },
};

const ItemRow items[] = {
    { &U::menuitemNewDisc, &D::OnMenuDiscNew },
    { &U::menuitemListOpen, &D::OnMenuListOpen },
    { &U::menuitemListSave, &D::OnMenuListSave },
    { &U::menuitemListSaveAs, &D::OnMenuListSaveAs },
    { &U::menuitemAddDataFiles, &D::OnActionDataAddFiles },
    { &U::menuitemQuit, &D::OnMenuQuit },
    { &U::menuitemUndo, &D::OnMenuUndo },
    { &U::menuitemRedo, &D::OnMenuRedo },
    { &U::menuitemFindMissing, &D::OnMenuFindMissing },
    { &U::menuitemVideoSettings, &D::OnActionVideoSettings },
    { &U::submenuItemTabAudio, &D::OnMenuTabAudio },
    { &U::submenuItemTabVideo, &D::OnMenuTabVideo },
    { &U::submenuItemTabData, &D::OnMenuTabData },
    { &U::submenuItemTabISO, &D::OnMenuTabISO },
    { &U::submenuItemTabTools, &D::OnMenuTabTools },
    { &U::submenuItemDriveSlot1, &D::OnMenuDriveSlot1 },
    { &U::submenuItemDriveSlot2, &D::OnMenuDriveSlot2 },
    { &U::submenuItemDriveSlot3, &D::OnMenuDriveSlot3 },
    { &U::submenuItemDriveSlot4, &D::OnMenuDriveSlot4 },
    { &U::submenuItemDriveSlot5, &D::OnMenuDriveSlot5 },
    { &U::submenuItemDriveSlot6, &D::OnMenuDriveSlot6 },
    { &U::menuitemShowWrittenDiscs, &D::OnMenuDriveShowDiscs },
    { &U::menuitemDriveLook, &D::OnMenuDriveLook },
    { &U::menuitemISOCreate, &D::OnActionISOCreate },
    { &U::menuitemISOBurn, &D::OnActionISOBurn },
    { &U::menuitemEraseFull, &D::OnToolsFormatFull },
    { &U::menuitemEraseQuick, &D::OnToolsFormatQuick },
    { &U::menuitemEject, &D::OnToolsEjectDisc },
    { &U::menuitemLoad, &D::OnToolsLoadDisc },
    { &U::menuitemDiscInfo, &D::OnToolsDiscInfo },
    { &U::menuitemColors, &D::OnToolsColors },
    { &U::menuitemActivityLog, &D::OnMenuActivityLog },
    { &U::menuitemHelpUserGuide, &D::OnMenuHelpUserGuide },
    { &U::menuitemHelpAppHomePage, &D::OnMenuHelpAppHomePage },
    { &U::menuitemHelpCompanyHomePage, &D::OnMenuHelpCompanyHomePage },
    { &U::menuitemHelpSubmitTicket, &D::OnMenuHelpSubmitTicket },
    { &U::menuitemHelpPrivacyPolicy, &D::OnMenuHelpPrivacyPolicy },
    { &U::menuitemDebugMode, &D::OnMenuDebugMode },
    { &U::menuitemHelpAbout, &D::OnMenuHelpAbout },
};

const ListItemRow listItems[] = {
    { &U::menuitemAddFiles,
        { &D::OnActionAudioAddFiles, &D::OnActionVideoAddFiles, &D::OnActionDataAddFolder } },
    { &U::menuitemAddFolder,
        { &D::OnActionAudioAddFolder, &D::OnActionVideoAddFolder, &D::OnActionDataAddFolder } },
    { &U::menuitemAddOther, { &D::OnActionAudioAddOther, &D::OnActionVideoAddOther, nullptr } },
    { &U::menuitemDelete, { &D::OnActionAudioDelete, &D::OnActionVideoDelete, &D::OnActionDataDelete } },
    { &U::menuitemClear, { &D::OnActionAudioClear, &D::OnActionVideoClear, &D::OnActionDataClear } },
    { &U::menuitemPlay, { &D::OnActionAudioPlay, &D::OnActionVideoPlay, nullptr } },
    { &U::menuitemCopyDisc,
        { &D::OnActionAudioCopyDisc, &D::OnActionVideoCopyDisc, &D::OnActionDataCopyDisc } },
    { &U::menuitemBurn, { &D::OnBtnBurn, &D::OnBtnBurn, &D::OnBtnBurn } },
};

/// The blanks that can be put into a virtual recorder, by the disc utility's names.
struct BlankRow {
    QAction *Ui::MainWindow::*item;
    const char *kind;
};
const BlankRow blanks[] = {
    { &U::menuitemInsert_cd_r, "cd-r" },
    { &U::menuitemInsert_cd_rw, "cd-rw" },
    { &U::menuitemInsert_dvd_r, "dvd-r" },
    { &U::menuitemInsert_dvd_plus_r, "dvd+r" },
    { &U::menuitemInsert_dvd_rw, "dvd-rw" },
    { &U::menuitemInsert_dvd_plus_rw, "dvd+rw" },
    { &U::menuitemInsert_bd_r, "bd-r" },
    { &U::menuitemInsert_bd_re, "bd-re" },
    { &U::menuitemRemoveDisc, "none" },
};

} // namespace

void AppDelegate::awakeFromNib()
{
    connect(window, &MainWindow::closing, this, &AppDelegate::windowWillClose);
    connect(qApp, &QApplication::aboutToQuit, this, &AppDelegate::applicationWillTerminate);
    connectMenus();
    connectLists();
    connectTools();
    connectDiscName();
    new SpeedMenu(ui->submenuSpeed, this);
    new DriveNews(around.driveEvents ? around.driveEvents() : nullptr, this);
    blockWhileOccupied();
    offerListActions(0);
    ui->submenuItemTabAudio->setChecked(true);
}

void AppDelegate::connectMenus()
{
    for (const ItemRow &row : items)
        connect(ui->*row.item, &QAction::triggered, this, row.handler);
    for (const ListItemRow &row : listItems) {
        connect(ui->*row.item, &QAction::triggered, this, [this, row] {
            const int tab = ui->tabviewMain->currentIndex();
            if (tab < static_cast<int>(row.handlers.size()) && row.handlers.at(static_cast<std::size_t>(tab)))
                (this->*row.handlers.at(static_cast<std::size_t>(tab)))();
        });
    }
    QAction *const kinds[] = { ui->menuitemKind1, ui->menuitemKind2, ui->menuitemKind3 };
    for (int variant = 0; variant < 3; ++variant) {
        connect(kinds[variant], &QAction::triggered, this, [this, variant] {
            if (const ProjectType *type = projects::byVariant(ui->tabviewMain->currentIndex(), variant))
                chooseVariant(type->code);
        });
    }
    for (const BlankRow &row : blanks) {
        connect(ui->*row.item, &QAction::triggered, this,
            [this, row] { OnMenuDriveInsertBlank(QString::fromLatin1(row.kind)); });
    }
    connect(ui->tabviewMain, &QTabWidget::currentChanged, this,
        [this] { tabView_didSelectTabViewItem(selectedPage()); });
}

void AppDelegate::blockWhileOccupied()
{
    // A group, since an action that is disabled for a reason of its own stays so when the group is enabled again.
    auto *blocked = new QActionGroup(this);
    blocked->setObjectName(u"groupBlocked"_s);
    blocked->setExclusionPolicy(QActionGroup::ExclusionPolicy::None);
    const QList<QAction *> always{ ui->menuitemQuit, ui->menuitemActivityLog };
    const QList<QMenu *> alwaysOpen{ ui->menuDisc, ui->menuTools, ui->menuHelp };
    for (const QMenu *menu : window->findChildren<QMenu *>()) {
        if (menu == ui->menuHelp)
            continue;
        if (!alwaysOpen.contains(menu))
            blocked->addAction(menu->menuAction());
        for (QAction *action : menu->actions()) {
            if (!action->menu() && !always.contains(action))
                blocked->addAction(action);
        }
    }
    connect(window->stage(), &SheetStage::occupiedChanged, blocked, &QActionGroup::setDisabled);
}

void AppDelegate::connectLists()
{
    using Kind = ListTableModel::Kind;
    struct TableRow {
        ListTableView *table;
        Kind kind;
        Handler open; ///< what opening a row does; none on the data tab
        int wideColumn;
    };
    const TableRow tables[] = {
        { ui->tableviewAudioFiles, Kind::Audio, &D::OnActionAudioPlay, ListTableModel::MediaPath },
        { ui->tableviewVideoFiles, Kind::Video, &D::OnActionVideoPlay, ListTableModel::MediaPath },
        { ui->tableviewDataFolders, Kind::Data, nullptr, ListTableModel::DataFolder },
    };
    for (const TableRow &row : tables) {
        ListTableView *const table = row.table;
        table->setModel(new ListTableModel(row.kind, this, table));
        arrangeColumns(table, row.wideColumn);
        connect(table->horizontalHeader(), &QHeaderView::sectionClicked, this, [this, table](int column) {
            table->setSelectedColumn(column);
            tableView_sortDescriptorsDidChange(table);
        });
        connect(table, &ListTableView::filesDropped, this, &AppDelegate::addDroppedFiles);
        connect(table, &ListTableView::rowsDropped, this, &AppDelegate::moveSelectedEntriesBefore);
        connect(table, &ListTableView::menuWanted, this,
            [this, table](const QPoint &place, bool forRows) { showListMenu(table, place, forRows); });
        if (row.open)
            connect(table, &ListTableView::rowOpened, this, row.open);
    }
    QAction *const sorts[] = { ui->menuitemSort1, ui->menuitemSort2, ui->menuitemSort3, ui->menuitemSort4 };
    for (int column = 0; column < 4; ++column) {
        connect(sorts[column], &QAction::triggered, this, [this, column] {
            if (ListTableView *table = selectedTable()) {
                table->setSelectedColumn(column);
                tableView_sortDescriptorsDidChange(table);
            }
        });
    }
    new NameColumns(this);
    connect(ui->menuitemMoveUp, &QAction::triggered, this, [this] { moveSelectedEntries(-1); });
    connect(ui->menuitemMoveDown, &QAction::triggered, this, [this] { moveSelectedEntries(1); });
    connect(ui->menuitemSelectAll, &QAction::triggered, this, [this] {
        if (ListTableView *table = selectedTable())
            table->selectAll();
    });
}

void AppDelegate::showListMenu(ListTableView *table, const QPoint &place, bool forRows)
{
    QAction *const sort = ui->submenuSort->menuAction();
    // Null: a line.
    QList<QAction *> wanted{ ui->menuitemAddFiles, ui->menuitemAddFolder, ui->menuitemAddDataFiles,
        ui->menuitemAddOther };
    if (forRows) {
        wanted = { ui->menuitemPlay, ui->menuitemEditTitle, ui->menuitemDelete, nullptr, ui->menuitemMoveUp,
            ui->menuitemMoveDown, nullptr, ui->menuitemSelectAll, sort, ui->menuitemClear };
    } else if (table->model()->rowCount() > 0) {
        wanted += { nullptr, ui->menuitemSelectAll, sort, ui->menuitemClear };
    }
    auto *const menu = new QMenu(table);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (QAction *action : std::as_const(wanted)) {
        if (!action)
            menu->addSeparator();
        else if (action->isEnabled() && action->isVisible())
            menu->addAction(action);
    }
    menu->popup(place);
}

void AppDelegate::arrangeColumns(ListTableView *table, int wideColumn)
{
    QHeaderView *const header = table->horizontalHeader();
    const int unit = table->fontMetrics().averageCharWidth();
    for (int column = 0; column < header->count(); ++column)
        header->resizeSection(column, unit * (column == 0 ? 44 : 18));
    header->setMinimumSectionSize(static_cast<ListHeader *>(header)->widestHeading());
    header->setSectionResizeMode(wideColumn, QHeaderView::Stretch);
}

void AppDelegate::connectTools()
{
    for (const ButtonRow &row : buttons)
        connect(ui->*row.button, &QAbstractButton::clicked, this, row.handler);
    for (View_Toolbar_BG_Color *view : window->findChildren<View_Toolbar_BG_Color *>())
        view->setColourSource([this] { return colorToolbar; });
    for (View_Bottom_Bar_BG_Color *view : window->findChildren<View_Bottom_Bar_BG_Color *>())
        view->setColourSource([this] { return colorBottomBar; });
    ui->spaceoccupiedviewControl->setColourSource([this] { return colorSpaceOccupiedBar; });
}

void AppDelegate::OnMenuDiscNew()
{
    ShowNewDiscWindow();
}
