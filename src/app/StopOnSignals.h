// Being told to end while a disc is made.
#pragma once

#include <functional>

class QSocketNotifier;

/// While it lives, SIGINT and SIGTERM do not end the process: the first one is handed to `stop` in the event loop. Where
/// that answers that there is nothing to stop, the process ends by the signal at once. One at a time; GUI thread.
class StopOnSignals {
public:
    explicit StopOnSignals(std::function<bool()> stop);
    ~StopOnSignals();
    StopOnSignals(const StopOnSignals &) = delete;
    StopOnSignals &operator=(const StopOnSignals &) = delete;

    /// Ends the process by the signal that was caught, so that whoever started it sees that; returns when none was.
    static void endByCaughtOne();

private:
    std::function<bool()> m_stop;
    QSocketNotifier *m_notifier = nullptr;
};
