#include "compilation/ListTableView.h"

#include "compilation/ListHeader.h"

#include <QDragEnterEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>

#include <algorithm>

ListTableView::ListTableView(QWidget *parent)
    : QTableView(parent)
{
    auto *style = new ListStyle;
    style->setParent(this);
    setStyle(style);
    setHorizontalHeader(new ListHeader(style, this));
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setShowGrid(false);
    setWordWrap(false);
    setTextElideMode(Qt::ElideMiddle);
    setTabKeyNavigation(false);
    setAcceptDrops(true);
    setDragDropMode(DropOnly);
    setDropIndicatorShown(false);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 12);
    connect(this, &QTableView::doubleClicked, this, &ListTableView::rowOpened);
}

void ListTableView::setGround(const QColor &ground)
{
    if (!ground.isValid())
        return setPalette({});
    const bool isDark = ground.lightness() < 128;
    QPalette colours = palette();
    colours.setColor(QPalette::Base, ground);
    // Lightening leaves black as it is, so the second ground is a mixture with the text.
    const QColor text = isDark ? Qt::white : Qt::black;
    const auto mixed = [](int a, int b) { return (a * 15 + b) / 16; };
    colours.setColor(QPalette::AlternateBase,
        QColor(mixed(ground.red(), text.red()), mixed(ground.green(), text.green()),
            mixed(ground.blue(), text.blue())));
    colours.setColor(QPalette::Text, text);
    setPalette(colours);
}

QList<int> ListTableView::selectedRows() const
{
    QList<int> rows;
    if (!selectionModel())
        return rows;
    for (const QItemSelectionRange &range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.append(row);
    }
    std::ranges::sort(rows);
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

void ListTableView::selectRows(const QList<int> &rows)
{
    QItemSelection selection;
    for (qsizetype first = 0, last = 0; first < rows.size(); first = ++last) {
        while (last + 1 < rows.size() && rows.at(last + 1) == rows.at(last) + 1)
            ++last;
        selection.append(
            { model()->index(rows.at(first), 0), model()->index(rows.at(last), model()->columnCount() - 1) });
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    if (!rows.isEmpty())
        selectionModel()->setCurrentIndex(model()->index(rows.last(), 0), QItemSelectionModel::NoUpdate);
}

void ListTableView::setCurrentRow(int row)
{
    const QModelIndex index = model()->index(qMin(row, model()->rowCount() - 1), 0);
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
}

int ListTableView::lastSelectedRow() const
{
    const QList<int> rows = selectedRows();
    const int current = currentIndex().row();
    if (rows.contains(current))
        return current;
    return rows.isEmpty() ? -1 : rows.last();
}

void ListTableView::paintEvent(QPaintEvent *event)
{
    QTableView::paintEvent(event);
    if (!model() || model()->rowCount() > 0)
        return;
    QPainter painter(viewport());
    QColor hint = palette().color(QPalette::Text);
    hint.setAlphaF(0.7F);
    painter.setPen(hint);
    painter.drawText(
        viewport()->rect().adjusted(16, 16, -16, -16), Qt::AlignCenter | Qt::TextWordWrap, m_emptyHint);
}

void ListTableView::keyPressEvent(QKeyEvent *event)
{
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && currentIndex().isValid())
        Q_EMIT rowOpened();
    else
        QTableView::keyPressEvent(event);
}

// What is dropped stays where it lies. A file manager that offers to move it, and is told that this was
// done, may remove it.
bool ListTableView::takes(QDropEvent *event)
{
    const Qt::DropActions possible = event->possibleActions();
    if (!event->mimeData()->hasUrls() || !(possible & (Qt::CopyAction | Qt::LinkAction)))
        return false;
    event->setDropAction(possible & Qt::CopyAction ? Qt::CopyAction : Qt::LinkAction);
    event->accept();
    return true;
}

void ListTableView::dragEnterEvent(QDragEnterEvent *event)
{
    takes(event);
}

void ListTableView::dragMoveEvent(QDragMoveEvent *event)
{
    takes(event);
}

void ListTableView::dropEvent(QDropEvent *event)
{
    if (takes(event))
        Q_EMIT filesDropped(event->mimeData()->urls());
}
