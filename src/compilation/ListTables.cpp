// The tables' contents, their order, and the totals behind the gauge.
#include "app/AppDelegate.h"
#include "app/MainWindow.h"
#include "compilation/GaugeText.h"
#include "compilation/ListTableModel.h"
#include "compilation/Sorting.h"
#include "compilation/SpaceOccupiedView.h"
#include "ui/SystemAppearance.h"
#include "ui_MainWindow.h"

#include <QHeaderView>

#include <algorithm>
#include <array>
#include <numeric>
#include <utility>

using namespace Qt::StringLiterals;

qsizetype AppDelegate::numberOfRowsInTableView(const ListTableView *table) const
{
    return table == ui->tableviewDataFolders ? arrayDataFolders.size() : arrayMediaFiles.size();
}

ListTableView *AppDelegate::selectedTable() const
{
    const std::array tables{ ui->tableviewAudioFiles, ui->tableviewVideoFiles, ui->tableviewDataFolders };
    const auto tab = static_cast<std::size_t>(ui->tabviewMain->currentIndex());
    return tab < tables.size() ? tables[tab] : nullptr;
}

void AppDelegate::focusList()
{
    if (ListTableView *const table = selectedTable())
        table->setFocus(Qt::OtherFocusReason);
}

void AppDelegate::refreshTable(const ListTableView *table)
{
    if (table == ui->tableviewAudioFiles)
        refreshTableAudioFiles();
    else if (table == ui->tableviewVideoFiles)
        refreshTableVideoFiles();
    else
        refreshTableDataFolders();
}

QColor AppDelegate::cellTextColour() const
{
    if (b_List_Alternating_Rows != 0)
        return isDarkAppearance() ? Qt::white : Qt::black;
    return colorTableForeground;
}

void AppDelegate::reloadTable(ListTableView *table)
{
    table->keepPlace([table] { static_cast<ListTableModel *>(table->model())->reload(); });
}

void AppDelegate::refreshTableAudioFiles()
{
    reloadTable(ui->tableviewAudioFiles);
    i_Audio_Total_Duration_in_Seconds = 0;
    for (const NodeMediaFile &file : std::as_const(arrayMediaFiles))
        i_Audio_Total_Duration_in_Seconds += file.i_Duration_in_Seconds;
    PaintSpaceOccupiedControl();
    listsChanged();
}

void AppDelegate::refreshTableVideoFiles()
{
    reloadTable(ui->tableviewVideoFiles);
    i_Video_Total_Duration_in_Seconds = 0;
    for (const NodeMediaFile &file : std::as_const(arrayMediaFiles))
        i_Video_Total_Duration_in_Seconds += file.i_Duration_in_Seconds;
    PaintSpaceOccupiedControl();
    listsChanged();
}

void AppDelegate::refreshTableDataFolders()
{
    reloadTable(ui->tableviewDataFolders);
    i_Data_Total_Size_in_KBytes = 0;
    for (const NodeDataFolder &folder : std::as_const(arrayDataFolders))
        i_Data_Total_Size_in_KBytes += folder.i_Size_in_KBytes;
    PaintSpaceOccupiedControl();
    listsChanged();
}

void AppDelegate::PaintSpaceOccupiedControl()
{
    using compilation::Page;
    struct Measure {
        Page page;
        qint64 total;
        qint64 kind;
    };
    const QString page = selectedPage();
    const Measure measure = page == "1"_L1
        ? Measure{ Page::Audio, i_Audio_Total_Duration_in_Seconds, i_Audio_Type }
        : page == "2"_L1 ? Measure{ Page::Video, i_Video_Total_Duration_in_Seconds, i_Video_Type }
        : page == "3"_L1 ? Measure{ Page::Data, i_Data_Total_Size_in_KBytes, i_Data_Type }
                         : Measure{ Page::Audio, 0, -1 };
    const qint32 capacity = compilation::capacity(measure.page, measure.kind);
    const qint64 percent = compilation::percentage(static_cast<quint64>(measure.total), capacity);
    ui->spaceoccupiedviewControl->setI_Percentage(percent);
    const QString text = compilation::gaugeText(measure.page, measure.total, capacity);
    ui->label_BottomBar_SpaceOcuupied->setText(text);
    ui->label_BottomBar_SpaceOcuupied->setToolTip(text); // where the window is too narrow for it
    ui->spaceoccupiedviewControl->setAccessibleDescription(text);
    const QString room = m_discRoom
        ? compilation::discRoomText(*m_discRoom, measure.page, measure.kind, measure.total)
        : QString();
    ui->labelDiscRoom->setText(room);
    ui->labelDiscRoom->setToolTip(room);
    ui->labelDiscRoom->setVisible(!room.isEmpty());
}

void AppDelegate::tableView_sortDescriptorsDidChange(ListTableView *table)
{
    const std::array flags{ &AppDelegate::m_b_Col1_Ascenging, &AppDelegate::m_b_Col2_Ascenging,
        &AppDelegate::m_b_Col3_Ascenging, &AppDelegate::m_b_Col4_Ascenging };
    const auto *model = static_cast<const ListTableModel *>(table->model());
    const int column = table->selectedColumn();
    const int sortable = qMin(model->columnCount(), static_cast<int>(flags.size()));
    QList<int> selected = table->selectedRows();
    if (column >= 0 && column < sortable) {
        const bool ascending = this->*flags.at(static_cast<std::size_t>(column));
        const QList<qsizetype> order = compilation::sortedOrder(model->sortTexts(column), ascending);
        reorderList(table, order, selected);
        for (int other = 0; other < sortable; ++other)
            this->*flags.at(static_cast<std::size_t>(other)) = other == column && !ascending;
        table->horizontalHeader()->setSortIndicatorShown(true);
        table->horizontalHeader()->setSortIndicator(
            column, ascending ? Qt::AscendingOrder : Qt::DescendingOrder);
    }
    refreshTable(table);
    table->selectRows(selected);
}

void AppDelegate::forgetSorting()
{
    for (const ListTableView *table :
        { ui->tableviewAudioFiles, ui->tableviewVideoFiles, ui->tableviewDataFolders })
        table->horizontalHeader()->setSortIndicatorShown(false);
}

void AppDelegate::reorderList(const ListTableView *table, const QList<qsizetype> &order, QList<int> &selected)
{
    if (table == ui->tableviewDataFolders)
        arrayDataFolders = compilation::reordered(std::move(arrayDataFolders), order);
    else
        arrayMediaFiles = compilation::reordered(std::move(arrayMediaFiles), order);
    if (selected.isEmpty())
        return;
    QList<int> newPlace(order.size());
    for (qsizetype place = 0; place < order.size(); ++place)
        newPlace[order.at(place)] = static_cast<int>(place);
    for (int &row : selected)
        row = newPlace.at(row);
    std::ranges::sort(selected);
}

void AppDelegate::moveSelectedEntries(int by)
{
    ListTableView *const table = selectedTable();
    if (!table)
        return;
    QList<int> selected = table->selectedRows();
    const int rows = table->model()->rowCount();
    if (selected.isEmpty() || selected.first() + by < 0 || selected.last() + by >= rows)
        return;
    QList<qsizetype> order(rows);
    std::iota(order.begin(), order.end(), qsizetype(0));
    if (by > 0)
        std::ranges::reverse(selected);
    for (const int row : std::as_const(selected))
        order.swapItemsAt(row, row + by);
    std::ranges::sort(selected);
    showReordered(table, order, selected);
}

void AppDelegate::moveSelectedEntriesBefore(int row)
{
    ListTableView *const table = selectedTable();
    if (!table || table->selectedRows().isEmpty())
        return;
    const qsizetype rows = table->model()->rowCount();
    const QList<qsizetype> order = compilation::orderWithRowsBefore(rows, table->selectedRows(), row);
    if (!std::ranges::is_sorted(order))
        showReordered(table, order, table->selectedRows());
}

void AppDelegate::showReordered(ListTableView *table, const QList<qsizetype> &order, QList<int> selected)
{
    reorderList(table, order, selected);
    forgetSorting();
    refreshTable(table);
    table->selectRows(selected);
    table->showRows(selected.first(), selected.last());
}
