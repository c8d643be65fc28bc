// The table of a list tab.
#pragma once

#include <QTableView>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>

class QMimeData;

/// A table of whole rows that says in its middle how to begin while it is empty. Files and folders can be
/// dropped on it, and its own rows be dragged to another place; a line shows between which rows.
class ListTableView : public QTableView {
    Q_OBJECT
    Q_PROPERTY(QString emptyHint READ emptyHint WRITE setEmptyHint)
public:
    explicit ListTableView(QWidget *parent = nullptr);

    QString emptyHint() const { return m_emptyHint; }
    void setEmptyHint(const QString &hint) { m_emptyHint = hint; }

    /// The colour behind the rows; an invalid one leaves the desktop's own. What is selected has the desktop's colour
    /// for that, made so dark or light that its text has a contrast of 4.5 to 1.
    void setGround(const QColor &ground);

    /// The column whose heading was pressed last and is to be sorted by; -1: none.
    int selectedColumn() const { return m_selectedColumn; }
    void setSelectedColumn(int column) { m_selectedColumn = column; }

    /// The selected rows in ascending order.
    QList<int> selectedRows() const;
    /// Replaces the selection with these rows, which are in ascending order.
    void selectRows(const QList<int> &rows);
    /// The row selected last, -1 without a selection.
    int lastSelectedRow() const;
    /// Scrolls as little as shows these rows, the first of them in any case.
    void showRows(int first, int last);
    /// Runs `change`, which makes the model say that any row may be another one, and keeps which rows are
    /// selected, where the keyboard goes on, and what is scrolled to.
    void keepPlace(const std::function<void()> &change);

    /// Lets a person type into the current row: into its current cell, or into the first one that takes it.
    void editRow();

    /// What a drag of the selected rows carries. Only this list takes it.
    std::unique_ptr<QMimeData> selectedRowsData() const;

Q_SIGNALS:
    /// Files were let go before the row `before`; behind the last one it is the number of rows. `withAllBelow`: the Ctrl key
    /// was held.
    void filesDropped(const QList<QUrl> &urls, int before, bool withAllBelow);
    /// The selected rows were let go before the row `before`.
    void rowsDropped(int before);
    /// A row was opened: Enter, or a double click but on a cell that can be typed into.
    void rowOpened();
    /// A context menu is wanted, at `place` on the screen: for the selected rows, or for the whole list.
    void menuWanted(const QPoint &place, bool forRows);

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void startDrag(Qt::DropActions supported) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

private:
    bool canType(const QModelIndex &cell) const;
    QByteArray ownMark() const;
    bool takes(QDropEvent *event) const;
    void showWhere(QDropEvent *event);
    int rowBefore(const QPoint &place) const;
    void paintHint(QPainter &painter) const;
    void paintDropLine(QPainter &painter) const;
    QPixmap dragPicture() const;
    void wantMenuFromKeyboard();

    QString m_emptyHint;
    QColor m_ground; ///< as it was given, invalid for the desktop's own
    int m_selectedColumn = -1;
    std::optional<QPoint> m_dropPlace; ///< where in the viewport something is held that would be taken
};
