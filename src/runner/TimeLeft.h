// How long a piece of work will still take, told steadily.
#pragma once

#include <QList>
#include <QString>

#include <optional>

namespace runner {

/// Estimates from how fast the work came on lately. What it says does not jump: it runs down with the clock, and is
/// corrected slowly.
class TimeLeft {
public:
    /// The work stands at `percent` (0 to 100; below 0: nobody knows) at `now` (milliseconds of any clock that does not go
    /// back). Answers the whole seconds left, or nothing while too little is done to know.
    std::optional<int> at(double percent, qint64 now);

    /// Forgets all, for the next piece of work.
    void reset() { *this = {}; }

    /// "About 3 minutes left"; empty for no estimate.
    static QString text(std::optional<int> seconds);

private:
    struct Sample {
        double percent = 0;
        qint64 time = 0; ///< milliseconds
    };
    void note(const Sample &newest);
    double estimate(const Sample &newest) const;
    void correct(double estimate, double passed);

    Sample m_first{}; ///< where the work began to move
    QList<Sample> m_lately; ///< the last quarter of the time, oldest first
    std::optional<double> m_told; ///< seconds
    qint64 m_toldAt = 0;
};

} // namespace runner
