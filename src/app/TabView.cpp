#include "app/TabView.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QProxyStyle>
#include <QStyleOptionTab>
#include <QWheelEvent>

namespace {

/// Marks the tab that has the focus, where the desktop's style would mark the one whose page is shown.
class TabStyle : public QProxyStyle {
public:
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
        const QWidget *widget) const override
    {
        const auto *tab = qstyleoption_cast<const QStyleOptionTab *>(option);
        const auto *bar = qobject_cast<const TabBar *>(widget);
        if (element != CE_TabBarTab || !tab || !bar)
            return QProxyStyle::drawControl(element, option, painter, widget);
        QStyleOptionTab marked(*tab);
        marked.state.setFlag(State_HasFocus, tab->tabIndex == bar->focusedTab());
        marked.state |= State_KeyboardFocusChange; // some styles mark only what was reached with keys
        QProxyStyle::drawControl(element, &marked, painter, widget);
    }
};

} // namespace

TabBar::TabBar(QWidget *parent)
    : QTabBar(parent)
{
    auto *style = new TabStyle;
    style->setParent(this);
    setStyle(style);
    connect(this, &QTabBar::currentChanged, this, [this](int index) { m_focused = qMax(0, index); });
}

void TabBar::keyPressEvent(QKeyEvent *event)
{
    const int onward = isRightToLeft() ? -1 : 1;
    switch (event->key()) {
    case Qt::Key_Left:
        return focusTab(m_focused - onward);
    case Qt::Key_Right:
        return focusTab(m_focused + onward);
    case Qt::Key_Home:
        return focusTab(0);
    case Qt::Key_End:
        return focusTab(count() - 1);
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Select:
        return setCurrentIndex(m_focused);
    default:
        return QTabBar::keyPressEvent(event);
    }
}

void TabBar::focusTab(int index)
{
    m_focused = qBound(0, index, count() - 1);
    update();
    QAccessibleEvent focus(this, QAccessible::Focus);
    focus.setChild(m_focused);
    QAccessible::updateAccessibility(&focus);
}

void TabBar::focusInEvent(QFocusEvent *event)
{
    QTabBar::focusInEvent(event);
    focusTab(m_focused);
}

void TabBar::focusOutEvent(QFocusEvent *event)
{
    QTabBar::focusOutEvent(event);
    // A window that was left, or a menu that was opened, gives the keyboard back to the same tab.
    if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason)
        m_focused = qMax(0, currentIndex());
}

void TabBar::wheelEvent(QWheelEvent *event)
{
    event->accept();
}

TabView::TabView(QWidget *parent)
    : QTabWidget(parent)
{
    setTabBar(new TabBar(this));
}
