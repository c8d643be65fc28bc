#include "app/WindowPlace.h"

#include "app/Preferences.h"

#include <QEvent>
#include <QHeaderView>
#include <QScreen>
#include <QSettings>
#include <QStyle>
#include <QTableView>

using namespace Qt::StringLiterals;

namespace {

QString columnsKey(const QTableView *table)
{
    return preferences::columns + table->objectName();
}

/// What the desktop will put around a window that is not shown yet: nobody knows before.
QMargins likelyFrame(const QWidget *window)
{
    constexpr int border = 4;
    const int title = window->style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, window);
    return { border, title + border, border, border };
}

/// The widths of all columns, "308,126,126,400".
QString widthsOf(const QHeaderView *header)
{
    QStringList widths;
    for (int column = 0; column < header->count(); ++column)
        widths.append(QString::number(header->sectionSize(column)));
    return widths.join(u',');
}

} // namespace

WindowPlace::WindowPlace(
    QWidget *window, const QList<QTableView *> &tables, QSettings *preferences, QObject *parent)
    : QObject(parent)
    , m_window(window)
    , m_tables(tables)
    , m_preferences(preferences)
{
    restoreWindow();
    restoreColumns();
    constexpr int moment = 200; // ms; dragging an edge changes the size many times
    m_soon.setSingleShot(true);
    m_soon.setInterval(moment);
    connect(&m_soon, &QTimer::timeout, this, &WindowPlace::store);
    m_window->installEventFilter(this);
    for (const QTableView *table : m_tables) {
        connect(table->horizontalHeader(), &QHeaderView::sectionResized, this, [this] {
            if (m_window->isVisible())
                m_soon.start();
        });
    }
}

QRect WindowPlace::fitted(QRect wanted, const QRect &available, const QMargins &frame, const QSize &least)
{
    const QRect room = available.marginsRemoved(frame);
    wanted.setSize(wanted.size().boundedTo(room.size()).expandedTo(least));
    wanted.moveLeft(qMax(room.left(), qMin(wanted.left(), room.right() + 1 - wanted.width())));
    wanted.moveTop(qMax(room.top(), qMin(wanted.top(), room.bottom() + 1 - wanted.height())));
    return wanted;
}

void WindowPlace::restoreWindow()
{
    // This also finds the screen again, and whether the window filled it.
    const bool known =
        m_window->restoreGeometry(m_preferences->value(preferences::windowGeometry).toByteArray());
    if (m_window->isMaximized() || m_window->isFullScreen())
        return;
    const QRect place = fitted(m_window->geometry(), m_window->screen()->availableGeometry(),
        likelyFrame(m_window), m_window->minimumSize());
    if (known)
        m_window->setGeometry(place);
    else
        m_window->resize(place.size()); // the desktop finds the first place
}

void WindowPlace::restoreColumns()
{
    constexpr int widest = 4000;
    for (const QTableView *table : m_tables) {
        QHeaderView *const header = table->horizontalHeader();
        const QStringList widths = m_preferences->value(columnsKey(table)).toString().split(u',');
        for (int column = 0; column < qMin(header->count(), int(widths.size())); ++column) {
            const int width = widths.at(column).toInt();
            const bool isFree = header->sectionResizeMode(column) == QHeaderView::Interactive;
            if (isFree && width > 0)
                header->resizeSection(column, qBound(header->minimumSectionSize(), width, widest));
        }
    }
}

bool WindowPlace::eventFilter(QObject *watched, QEvent *event)
{
    const bool isChange = event->type() == QEvent::Resize || event->type() == QEvent::Move
        || event->type() == QEvent::WindowStateChange;
    if (watched == m_window && isChange && m_window->isVisible())
        m_soon.start();
    return QObject::eventFilter(watched, event);
}

void WindowPlace::store()
{
    m_preferences->setValue(preferences::windowGeometry, m_window->saveGeometry());
    for (const QTableView *table : m_tables)
        m_preferences->setValue(columnsKey(table), widthsOf(table->horizontalHeader()));
    m_preferences->sync();
}
