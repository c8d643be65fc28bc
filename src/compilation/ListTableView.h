// The table of a list tab.
#pragma once

#include <QTableView>
#include <QUrl>

/// A table of whole rows that says in its middle how to begin while it is empty, and takes files
/// and folders dropped on it.
class ListTableView : public QTableView {
    Q_OBJECT
    Q_PROPERTY(QString emptyHint READ emptyHint WRITE setEmptyHint)
public:
    explicit ListTableView(QWidget *parent = nullptr);

    QString emptyHint() const { return m_emptyHint; }
    void setEmptyHint(const QString &hint) { m_emptyHint = hint; }

    /// The colour behind the rows; an invalid one leaves the desktop's own.
    void setGround(const QColor &ground);

    /// The column whose heading was pressed last and is to be sorted by; -1: none.
    int selectedColumn() const { return m_selectedColumn; }
    void setSelectedColumn(int column) { m_selectedColumn = column; }

    /// The selected rows in ascending order.
    QList<int> selectedRows() const;
    /// Replaces the selection with these rows, which are in ascending order.
    void selectRows(const QList<int> &rows);
    /// Lets the keyboard go on from this row, or the last one where there are fewer, without selecting it.
    void setCurrentRow(int row);
    /// The row selected last, -1 without a selection.
    int lastSelectedRow() const;

Q_SIGNALS:
    void filesDropped(const QList<QUrl> &urls);
    /// A row was opened: double click or Enter.
    void rowOpened();

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    static bool takes(QDropEvent *event);

    QString m_emptyHint;
    int m_selectedColumn = -1;
};
