// The columns of the audio list that show what a CD player will.
#pragma once

#include <QObject>

class AppDelegate;
class QPoint;

/// Title and performer on the audio list: typed into in place, hidden from the menus, kept as a preference; and the
/// switch that keeps them off audio CDs.
class NameColumns : public QObject {
    Q_OBJECT
public:
    /// `controller`, whose lists have their models, owns this and outlives it.
    explicit NameColumns(AppDelegate *controller);

private:
    void takeName(int row, int column, const QString &name);
    void show(bool shown);
    void showMenu(const QPoint &place); ///< of the headings, at a place in them

    AppDelegate *const m_controller;
};
