#include "compilation/NameColumns.h"

#include "app/AppDelegate.h"
#include "app/MainWindow.h"
#include "app/Preferences.h"
#include "compilation/ListHeader.h"
#include "compilation/ListTableModel.h"
#include "compilation/ListTableView.h"
#include "ui_MainWindow.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QStyledItemDelegate>

using namespace Qt::StringLiterals;

namespace {

/// A field for as much as a disc can hold of a name.
class NameField : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget *createEditor(
        QWidget *parent, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        constexpr int longestName = 160; // characters, of CD-TEXT (MMC-3 annex J)
        QWidget *editor = QStyledItemDelegate::createEditor(parent, option, index);
        if (auto *field = qobject_cast<QLineEdit *>(editor)) {
            const QString heading = index.model()->headerData(index.column(), Qt::Horizontal).toString();
            field->setMaxLength(longestName);
            constexpr int inset =
                ListStyle::room - 1; // with a field's own two pixels the text stays where it is
            field->setTextMargins(inset, 0, inset, 0);
            field->setObjectName(u"fieldName"_s);
            field->setAccessibleName(heading);
            field->setToolTip(NameColumns::tr("Return keeps what was typed, Escape what was there before"));
        }
        return editor;
    }
};

} // namespace

NameColumns::NameColumns(AppDelegate *controller)
    : QObject(controller)
    , m_controller(controller)
{
    Ui::MainWindow *const ui = controller->ui;
    ListTableView *const table = ui->tableviewAudioFiles;
    table->setItemDelegate(new NameField(table));
    connect(static_cast<ListTableModel *>(table->model()), &ListTableModel::nameTyped, this,
        &NameColumns::takeName);
    connect(ui->menuitemEditTitle, &QAction::triggered, table, &ListTableView::editRow);

    constexpr int titleWidth = 27; // characters
    QHeaderView *const headings = table->horizontalHeader();
    headings->resizeSection(ListTableModel::NameTitle, titleWidth * table->fontMetrics().averageCharWidth());
    headings->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(headings, &QWidget::customContextMenuRequested, this, &NameColumns::showMenu);

    ui->menuitemNameColumns->setChecked(controller->preference(preferences::nameColumns) == "1"_L1);
    ui->menuitemWriteTitles->setChecked(controller->preference(preferences::writeTitles) != "0"_L1);
    show(ui->menuitemNameColumns->isChecked());
    connect(ui->menuitemNameColumns, &QAction::toggled, this, [this, controller](bool on) {
        controller->setPreference(preferences::nameColumns, on ? u"1"_s : u"0"_s);
        show(on);
    });
    connect(ui->menuitemWriteTitles, &QAction::toggled, this,
        [controller](bool on) { controller->setPreference(preferences::writeTitles, on ? u"1"_s : u"0"_s); });
}

void NameColumns::takeName(int row, int column, const QString &name)
{
    NodeMediaFile &file = m_controller->arrayMediaFiles[row];
    (column == ListTableModel::NameTitle ? file.title : file.performer) = name;
    m_controller->listsChanged();
}

void NameColumns::show(bool shown)
{
    Ui::MainWindow *const ui = m_controller->ui;
    for (const int column : { ListTableModel::NameTitle, ListTableModel::NamePerformer })
        ui->tableviewAudioFiles->setColumnHidden(column, !shown);
    ui->menuitemEditTitle->setEnabled(shown && ui->tabviewMain->currentIndex() == 0);
}

void NameColumns::showMenu(const QPoint &place)
{
    auto *const menu = new QMenu(m_controller->ui->tableviewAudioFiles);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(m_controller->ui->menuitemNameColumns);
    menu->popup(m_controller->ui->tableviewAudioFiles->horizontalHeader()->mapToGlobal(place));
}
