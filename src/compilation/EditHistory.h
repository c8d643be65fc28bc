// The earlier states of the lists, to go back to.
#pragma once

#include "compilation/Compilation.h"

/// Remembers what the lists were before each change, the newest twenty times, in memory. A change of empty lists is no
/// step. GUI thread, but knows no window.
class EditHistory {
public:
    static constexpr qsizetype most = 20;

    /// The lists as they are now. Where they differ from what was noted last, that is a step to go back by, and nothing
    /// that was undone can be had again.
    void note(const Compilation &now);

    bool canUndo() const { return !m_before.isEmpty(); }
    bool canRedo() const { return !m_after.isEmpty(); }
    /// The state to be shown, which is the noted one from now on. Only where there is one.
    const Compilation &undo() { return go(m_before, m_after); }
    const Compilation &redo() { return go(m_after, m_before); }

private:
    const Compilation &go(QList<Compilation> &from, QList<Compilation> &to);

    Compilation m_now;
    QList<Compilation> m_before, m_after; ///< the newest last
};
