// Drive > Writing Speed: what the current drive offers for its disc, and the choice of a person.
#pragma once

#include "runner/ToolVariable.h"

#include <QObject>
#include <QPointer>
#include <QString>

class AppDelegate;
class QMenu;
namespace runner {
class ToolRun;
}

/// Fills the submenu when it is opened: from the newest status of the drive, else it asks for one and goes on when the answer
/// comes. The choice is kept for each drive by its title, and told to the tools as $CORVALIS_SPEED in this process'
/// environment; a drive nobody chose a speed for has what the variable was at the start. GUI thread; a child of
/// the controller.
class SpeedMenu : public QObject {
    Q_OBJECT
public:
    SpeedMenu(QMenu *menu, AppDelegate *controller);

private:
    QString wish() const; ///< of the current drive; empty: none
    void choose(const QString &wish);
    void fill();
    void addWish(const QString &wish, const QString &text, const QString &name);
    QString whyNone() const; ///< a line for a disc that has no speeds to choose from
    void ask();

    QMenu *const m_menu;
    AppDelegate *const m_controller;
    const runner::ToolVariable m_variable{ "CORVALIS_SPEED" };
    QString m_status; ///< of the disc in the current drive; empty: not known
    bool m_answered = false; ///< the drive was asked since the menu was opened
    QPointer<runner::ToolRun> m_asking;
};
