#include "compilation/ListTableView.h"

#include "compilation/ListHeader.h"
#include "ui/PaintedViews.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QDrag>
#include <QDragEnterEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// The MIME type of rows under way to another place in their list.
QString rowsFormat()
{
    return u"application/x-corvalis-rows"_s;
}

QColor mixed(const QColor &one, const QColor &other, double share)
{
    const auto mix = [share](int a, int b) { return qRound(a * (1 - share) + b * share); };
    return { mix(one.red(), other.red()), mix(one.green(), other.green()), mix(one.blue(), other.blue()) };
}

/// `ground`, away from the text's colour as far as the text then can be read (WCAG 2.1, 1.4.3).
QColor readableGround(const QColor &ground, const QColor &text)
{
    constexpr double readable = 5.2; // more than 4.5, as styles tint the cell that has the keyboard
    const QColor away = text.lightness() < 128 ? Qt::white : Qt::black;
    for (double share = 0; share < 1; share += 0.05) {
        const QColor colour = mixed(ground, away, share);
        if (contrastOf(colour, text) >= readable)
            return colour;
    }
    return away;
}

} // namespace

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
    setDragDropMode(DragDrop);
    setDropIndicatorShown(false);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 12);
    connect(this, &QTableView::doubleClicked, this, [this](const QModelIndex &cell) {
        if (canType(cell))
            edit(cell);
        else
            Q_EMIT rowOpened();
    });
}

void ListTableView::setGround(const QColor &ground)
{
    m_ground = ground;
    QPalette colours;
    if (ground.isValid()) {
        const bool isDark = ground.lightness() < 128;
        const QColor text = isDark ? Qt::white : Qt::black;
        colours.setColor(QPalette::Base, ground);
        // Lightening leaves black as it is, so the second ground is a mixture with the text. The eye tells dark
        // colours apart less well than light ones.
        colours.setColor(QPalette::AlternateBase, mixed(ground, text, isDark ? 0.12 : 0.0625));
        colours.setColor(QPalette::Text, text);
    }
    for (const auto group : { QPalette::Active, QPalette::Inactive }) {
        const QColor text = QGuiApplication::palette().color(group, QPalette::HighlightedText);
        const QColor highlight = QGuiApplication::palette().color(group, QPalette::Highlight);
        colours.setColor(group, QPalette::Highlight, readableGround(highlight, text));
        colours.setColor(group, QPalette::HighlightedText, text);
    }
    setPalette(colours);
}

void ListTableView::changeEvent(QEvent *event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        setGround(m_ground); // which changes nothing more where the palette is as it was
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

int ListTableView::lastSelectedRow() const
{
    const QList<int> rows = selectedRows();
    const int current = currentIndex().row();
    if (rows.contains(current))
        return current;
    return rows.isEmpty() ? -1 : rows.last();
}

bool ListTableView::canType(const QModelIndex &cell) const
{
    return cell.flags().testFlag(Qt::ItemIsEditable) && !isColumnHidden(cell.column());
}

void ListTableView::editRow()
{
    QModelIndex cell = currentIndex();
    for (int column = 0; !canType(cell) && column < model()->columnCount(); ++column)
        cell = model()->index(currentIndex().row(), column);
    if (!canType(cell))
        return;
    selectionModel()->setCurrentIndex(cell, QItemSelectionModel::NoUpdate);
    scrollTo(cell);
    edit(cell);
}

void ListTableView::showRows(int first, int last)
{
    for (const int row : { last, first })
        scrollTo(model()->index(row, qMax(0, currentIndex().column())));
}

void ListTableView::keepPlace(const std::function<void()> &change)
{
    const QList<int> selected = selectedRows();
    const QModelIndex current = currentIndex();
    const int place = verticalScrollBar()->value();
    const bool scrolls = hasAutoScroll();
    change();
    setAutoScroll(false); // to the current row
    selectRows(selected.first(std::ranges::lower_bound(selected, model()->rowCount()) - selected.begin()));
    selectionModel()->setCurrentIndex(
        model()->index(qMin(current.row(), model()->rowCount() - 1), current.column()),
        QItemSelectionModel::NoUpdate);
    setAutoScroll(scrolls);
    updateGeometries(); // gives the scroll bar its range
    verticalScrollBar()->setValue(place);
}

QModelIndex ListTableView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    const int rows = model()->rowCount();
    if (rows == 0 || (action != MoveHome && action != MoveEnd))
        return QTableView::moveCursor(action, modifiers);
    return model()->index(action == MoveHome ? 0 : rows - 1, qMax(0, currentIndex().column()));
}

void ListTableView::paintEvent(QPaintEvent *event)
{
    QTableView::paintEvent(event);
    QPainter painter(viewport());
    if (model() && model()->rowCount() == 0)
        paintHint(painter);
    if (m_dropPlace)
        paintDropLine(painter);
}

void ListTableView::paintHint(QPainter &painter) const
{
    QColor hint = palette().color(QPalette::Text);
    hint.setAlphaF(0.7F);
    painter.setPen(hint);
    painter.drawText(
        viewport()->rect().adjusted(16, 16, -16, -16), Qt::AlignCenter | Qt::TextWordWrap, m_emptyHint);
}

/// A frame around the list, which says that it takes what is held over it, and a line between two rows.
void ListTableView::paintDropLine(QPainter &painter) const
{
    constexpr int thickness = 2;
    const QColor colour = palette().color(QPalette::Active, QPalette::Highlight);
    painter.setPen(QPen(colour, thickness, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(viewport()->rect().adjusted(1, 1, -1, -1));
    const int rows = model()->rowCount();
    if (rows == 0)
        return;
    const int before = rowBefore(*m_dropPlace);
    const int y = before < rows ? visualRect(model()->index(before, 0)).top()
                                : visualRect(model()->index(rows - 1, 0)).bottom() + 1;
    painter.fillRect(0, y - thickness / 2, viewport()->width(), thickness, colour);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(colour);
    for (const int x : { 0, viewport()->width() })
        painter.drawEllipse(QPoint(x, y), 2 * thickness, 2 * thickness);
}

void ListTableView::keyPressEvent(QKeyEvent *event)
{
    if (state() == EditingState)
        return; // a field passes on the Return that ends it
    const bool row = currentIndex().isValid();
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const bool nothingSelected = !selectionModel()->hasSelection();
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && row)
        return Q_EMIT rowOpened();
    if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier)
        return wantMenuFromKeyboard();
    // The first row has the keyboard as soon as the list has it, but is not selected: that is the first step.
    if (event->key() == Qt::Key_Down && plain && nothingSelected && currentIndex().row() <= 0)
        return selectRow(0);
    QTableView::keyPressEvent(event);
    const bool toTheTop =
        event->key() == Qt::Key_Up || event->key() == Qt::Key_Home || event->key() == Qt::Key_PageUp;
    if (toTheTop && plain && nothingSelected && row)
        selectRow(currentIndex().row());
}

void ListTableView::contextMenuEvent(QContextMenuEvent *event)
{
    event->accept();
    if (event->reason() == QContextMenuEvent::Keyboard)
        wantMenuFromKeyboard();
    else
        Q_EMIT menuWanted(event->globalPos(), indexAt(event->pos()).isValid());
}

/// Below the row that the menu is for, or in the corner of the list.
void ListTableView::wantMenuFromKeyboard()
{
    const int row = lastSelectedRow();
    if (row < 0)
        return Q_EMIT menuWanted(viewport()->mapToGlobal(QPoint(8, 8)), false);
    const QModelIndex index = model()->index(row, 0);
    scrollTo(index);
    Q_EMIT menuWanted(viewport()->mapToGlobal(visualRect(index).bottomLeft() + QPoint(8, 1)), true);
}

/// Tells this list from others and from those of another Corvalis.
QByteArray ListTableView::ownMark() const
{
    return QByteArray::number(QCoreApplication::applicationPid()) + ' ' + objectName().toUtf8();
}

std::unique_ptr<QMimeData> ListTableView::selectedRowsData() const
{
    auto rows = std::make_unique<QMimeData>();
    rows->setData(rowsFormat(), ownMark());
    return rows;
}

/// The name of the row under way, or how many there are.
QPixmap ListTableView::dragPicture() const
{
    const QList<int> rows = selectedRows();
    const QString name = model()->index(rows.first(), 0).data().toString().simplified();
    const QString text = rows.size() == 1 ? fontMetrics().elidedText(name, Qt::ElideMiddle, 300)
                                          : tr("%Ln rows", nullptr, static_cast<int>(rows.size()));
    const QSize size(fontMetrics().horizontalAdvance(text) + 24, fontMetrics().height() + 12);
    QPixmap picture(size * devicePixelRatioF());
    picture.setDevicePixelRatio(devicePixelRatioF());
    picture.fill(palette().color(QPalette::Active, QPalette::Highlight));
    QPainter painter(&picture);
    painter.setFont(font());
    painter.setPen(palette().color(QPalette::Active, QPalette::HighlightedText));
    painter.drawText(QRect(QPoint(), size), Qt::AlignCenter, text);
    return picture;
}

void ListTableView::startDrag(Qt::DropActions)
{
    if (selectedRows().isEmpty())
        return;
    auto *const drag = new QDrag(this);
    drag->setMimeData(selectedRowsData().release());
    drag->setPixmap(dragPicture());
    drag->exec(Qt::MoveAction);
}

// What is dropped stays where it lies. A file manager that offers to move it, and is told that this was
// done, may remove it.
bool ListTableView::takes(QDropEvent *event) const
{
    const Qt::DropActions possible = event->possibleActions();
    const bool ownRows = event->mimeData()->data(rowsFormat()) == ownMark();
    if (!ownRows && (!event->mimeData()->hasUrls() || !(possible & (Qt::CopyAction | Qt::LinkAction))))
        return false;
    event->setDropAction(ownRows        ? Qt::MoveAction
            : possible & Qt::CopyAction ? Qt::CopyAction
                                        : Qt::LinkAction);
    event->accept();
    return true;
}

int ListTableView::rowBefore(const QPoint &place) const
{
    const int row = rowAt(place.y());
    if (row < 0)
        return model()->rowCount();
    return place.y() <= visualRect(model()->index(row, 0)).center().y() ? row : row + 1;
}

void ListTableView::showWhere(QDropEvent *event)
{
    if (!takes(event))
        return;
    m_dropPlace = event->position().toPoint();
    const int margin = autoScrollMargin();
    if (!viewport()->rect().adjusted(0, margin, 0, -margin).contains(*m_dropPlace))
        startAutoScroll();
    viewport()->update();
}

void ListTableView::dragEnterEvent(QDragEnterEvent *event)
{
    showWhere(event);
}

void ListTableView::dragMoveEvent(QDragMoveEvent *event)
{
    showWhere(event);
}

void ListTableView::dragLeaveEvent(QDragLeaveEvent *)
{
    stopAutoScroll();
    m_dropPlace.reset();
    viewport()->update();
}

void ListTableView::dropEvent(QDropEvent *event)
{
    const int before = rowBefore(event->position().toPoint());
    stopAutoScroll();
    m_dropPlace.reset();
    viewport()->update();
    if (!takes(event))
        return;
    if (event->mimeData()->hasUrls())
        Q_EMIT filesDropped(
            event->mimeData()->urls(), before, event->modifiers().testFlag(Qt::ControlModifier));
    else
        Q_EMIT rowsDropped(before);
}
