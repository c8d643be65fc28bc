// How an operation learns that it shall end before it is done, and how it says that it did.
#pragma once

#include "base/Result.h"

#include <functional>
#include <string>
#include <type_traits>
#include <utility>

namespace engine {

/// Whether whoever started an operation wants it to end. A small value that every operation which may last takes, asks
/// several times a second on its own thread, and heeds where ending is safe.
class Stop {
public:
    /// Never stops.
    Stop() = default;

    /// `asked` gives the number of the signal that asks to end (SIGINT, SIGTERM), or 0. Once it is not 0 it stays so.
    /// What it refers to has to live as long as any copy of this.
    template <class F>
    requires std::is_invocable_r_v<int, F> Stop(F asked)
        : m_signal(std::move(asked))
    {
    }

    /// The number of the signal that asks to end, or 0.
    int signal() const { return m_signal ? m_signal() : 0; }

private:
    std::function<int()> m_signal;
};

/// The error of an operation that `signal` (SIGINT, SIGTERM) ended; `message` is taken as it is.
Error stoppedBy(int signal, std::string message);

/// True for the error of an operation that a signal ended.
bool isStop(const Error &error);

/// Catches SIGINT and SIGTERM as long as it lives, and ignores SIGHUP, SIGPIPE and SIGXFSZ from then on: a signal
/// is noted, no system call that moves data is broken off, and the operation ends in its own way. One at a time.
class StopSignals {
public:
    StopSignals();
    ~StopSignals();
    StopSignals(const StopSignals &) = delete;
    StopSignals &operator=(const StopSignals &) = delete;

    /// Tells the first signal that comes. Stays right when the object is gone.
    Stop stop() const;
};

} // namespace engine
