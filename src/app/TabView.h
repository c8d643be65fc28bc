// The tabs of the main window.
#pragma once

#include <QTabBar>
#include <QTabWidget>

/// A tab bar on which the arrow keys only move the focus. Another page is shown by a click, or with Space or
/// Enter on its tab: showing one empties the lists, which no slip of a finger may do. The wheel does nothing
/// for the same reason.
class TabBar : public QTabBar {
    Q_OBJECT
public:
    explicit TabBar(QWidget *parent = nullptr);

    /// The tab that Space and Enter choose; -1 while the keyboard is elsewhere.
    int focusedTab() const { return hasFocus() ? m_focused : -1; }

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void focusTab(int index);

    int m_focused = 0;
};

/// A tab widget with such a bar.
class TabView : public QTabWidget {
    Q_OBJECT
public:
    explicit TabView(QWidget *parent = nullptr);
};
