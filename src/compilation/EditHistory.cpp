#include "compilation/EditHistory.h"

void EditHistory::note(const Compilation &now)
{
    const bool step = !now.holdsTheSameAs(m_now) && !(now.isEmpty() && m_now.isEmpty());
    if (step) {
        m_before.append(m_now);
        if (m_before.size() > most)
            m_before.removeFirst();
        m_after.clear();
    }
    m_now = now;
}

const Compilation &EditHistory::go(QList<Compilation> &from, QList<Compilation> &to)
{
    to.append(m_now);
    m_now = from.takeLast();
    return m_now;
}
