// How long a piece of work will still take, told steadily.
#pragma once

#include <QString>

#include <optional>

namespace runner {

/// Estimates from how far the work has come since it was first looked at. What it says does not jump: it runs down with
/// the clock, and is corrected slowly as long as it is roughly right.
class TimeLeft {
public:
    /// The work stands at `percent` (0 to 100) at `now` (milliseconds of any clock that does not go back). Answers the
    /// whole seconds left, or nothing while too little is done to know.
    std::optional<int> at(double percent, qint64 now);

    /// Forgets all, for the next piece of work.
    void reset() { *this = {}; }

    /// "About 3 minutes left"; empty for no estimate.
    static QString text(std::optional<int> seconds);

private:
    double m_firstPercent = -1;
    qint64 m_firstTime = 0;
    std::optional<double> m_told; ///< seconds
    qint64 m_toldAt = 0;
};

} // namespace runner
