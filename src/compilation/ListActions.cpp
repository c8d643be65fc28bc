// Records onto the lists and off them.
#include "app/AppDelegate.h"
#include "app/MainWindow.h"
#include "compilation/ListTableView.h"
#include "compilation/Measuring.h"
#include "ui/PreviewPlayer.h"
#include "ui_MainWindow.h"

using namespace Qt::StringLiterals;

template <class Record>
void AppDelegate::insertRecords(
    ListTableView *table, QList<Record> &list, const QList<Record> &records, int before)
{
    const qsizetype at = before < 0 ? list.size() : qMin(qsizetype(before), list.size());
    QList<int> selected = table->selectedRows();
    for (int &row : selected)
        row += row >= at ? static_cast<int>(records.size()) : 0;
    list = list.first(at) + records + list.sliced(at);
    forgetSorting();
    refreshTable(table);
    table->selectRows(selected);
    if (!records.isEmpty())
        table->showRows(static_cast<int>(at), static_cast<int>(at + records.size()) - 1);
    focusList();
}

void AppDelegate::insertMedia(ListKind kind, const QList<NodeMediaFile> &records, int before)
{
    insertRecords(kind == ListKind::Audio ? ui->tableviewAudioFiles : ui->tableviewVideoFiles,
        arrayMediaFiles, records, before);
}

void AppDelegate::addDataFolder(const QString &path, int before)
{
    addData({ path }, before);
}

void AppDelegate::addData(const QStringList &paths, int before)
{
    QList<NodeDataFolder> records;
    for (const QString &path : paths)
        records.append(compilation::dataRecord(path));
    insertRecords(ui->tableviewDataFolders, arrayDataFolders, records, before);
}

template <class Record>
void AppDelegate::deleteSelected(ListTableView *table, QList<Record> &list)
{
    const QList<int> rows = table->selectedRows();
    if (!rows.isEmpty()) {
        QList<Record> kept;
        kept.reserve(list.size());
        qsizetype next = 0;
        for (qsizetype row = 0; row < list.size(); ++row) {
            if (next < rows.size() && rows.at(next) == row)
                ++next;
            else
                kept.append(list.at(row));
        }
        list = kept;
    }
    refreshTable(table);
    if (!rows.isEmpty() && !list.isEmpty())
        table->selectRows({ qMin(rows.first(), static_cast<int>(list.size()) - 1) });
}

void AppDelegate::OnActionAudioDelete()
{
    deleteSelected(ui->tableviewAudioFiles, arrayMediaFiles);
}

void AppDelegate::OnActionVideoDelete()
{
    deleteSelected(ui->tableviewVideoFiles, arrayMediaFiles);
}

void AppDelegate::OnActionDataDelete()
{
    deleteSelected(ui->tableviewDataFolders, arrayDataFolders);
}

void AppDelegate::OnActionAudioClear()
{
    arrayMediaFiles.clear();
    refreshTableAudioFiles();
}

void AppDelegate::OnActionVideoClear()
{
    arrayMediaFiles.clear();
    refreshTableVideoFiles();
}

void AppDelegate::OnActionDataClear()
{
    arrayDataFolders.clear();
    refreshTableDataFolders();
}

void AppDelegate::playSelected(const ListTableView *table)
{
    const int row = table->lastSelectedRow();
    if (row < 0)
        return alert(tr("There is no file selected."), tr("There is no file selected."));
    const auto tell = [this](const QString &message, const QString &informative, QWidget *over) {
        around.questions->ask({ message, informative, { tr("OK") }, Alert::Sign::Error }, over);
    };
    if (const QString whyNot = playPreview(arrayMediaFiles.at(row).s_File_URL, window, *preferences, tell);
        !whyNot.isEmpty())
        alert(tr("The file cannot be played."), whyNot, Alert::Sign::Error);
}

void AppDelegate::OnActionAudioPlay()
{
    playSelected(ui->tableviewAudioFiles);
}

void AppDelegate::OnActionVideoPlay()
{
    playSelected(ui->tableviewVideoFiles);
}

void AppDelegate::OnActionAudioNewDisc()
{
    ShowNewDiscWindow();
}

void AppDelegate::OnActionVideoNewDisc()
{
    ShowNewDiscWindow();
}

void AppDelegate::OnActionDataNewDisc()
{
    ShowNewDiscWindow();
}

void AppDelegate::OnActionAudioCopyDisc()
{
    DuplicateMedia();
}

void AppDelegate::OnActionVideoCopyDisc()
{
    DuplicateMedia();
}

void AppDelegate::OnActionDataCopyDisc()
{
    DuplicateMedia();
}

void AppDelegate::OnActionVideoSettings()
{
    Show_Window_Video_Settings();
}
