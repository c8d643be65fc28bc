// Keeping the machine awake and the person logged in.
#pragma once

#include <QObject>
#include <QString>

namespace desktop {

/// From begin() to end() the desktop is asked not to sleep, not to count the time as idle and not to log out: by its
/// portal, and where that is not there or gives no answer within `portalPatience` milliseconds, by the login manager and
/// the session manager or screen saver. Whatever of this fails changes nothing. What was granted goes with the process,
/// too. GUI thread; never waits.
class Inhibition : public QObject {
    Q_OBJECT
public:
    explicit Inhibition(QObject *parent = nullptr, int portalPatience = 2000);

    /// `reason` is a sentence that the desktop may show.
    void begin(const QString &reason);
    void end();

private:
    class Lock;
    Lock *m_lock = nullptr; ///< a child of this; none outside of begin() and end()
    const int m_portalPatience;
};

} // namespace desktop
