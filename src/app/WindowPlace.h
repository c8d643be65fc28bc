// Where the main window stands, and how wide the columns of its lists are.
#pragma once

#include <QList>
#include <QMargins>
#include <QObject>
#include <QRect>
#include <QTimer>

class QSettings;
class QTableView;
class QWidget;

/// Keeps size and place of a window and the widths of the columns of its lists from one start to the next, and
/// the window inside the room that the screen has for it. What changes is written to disk a moment later, as
/// the program may end at any time.
class WindowPlace : public QObject {
    Q_OBJECT
public:
    /// Gives `window`, which is not shown yet, its size and place, and begins to watch it. The tables have their
    /// models and are the window's; a column that takes the rest of the room is left to itself. Window and
    /// `preferences` are not owned; the latter is there as long as `parent`.
    WindowPlace(QWidget *window, const QList<QTableView *> &tables, QSettings *preferences, QObject *parent);

    /// `wanted`, a rectangle without the window's frame, made smaller and moved until it stands with its frame
    /// inside `available`. At least as large as `least`, even where there is less room.
    static QRect fitted(QRect wanted, const QRect &available, const QMargins &frame, const QSize &least);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void restoreWindow();
    void restoreColumns();
    void store();

    QWidget *const m_window;
    const QList<QTableView *> m_tables;
    QSettings *const m_preferences;
    QTimer m_soon;
};
