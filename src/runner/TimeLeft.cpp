#include "runner/TimeLeft.h"

#include <QCoreApplication>

#include <cmath>

namespace runner {

namespace {

constexpr qint64 soonest = 3000; // ms; before, a drive is still speeding up
constexpr double least = 1; // per cent

} // namespace

std::optional<int> TimeLeft::at(double percent, qint64 now)
{
    if (percent < 0)
        return std::nullopt;
    const Sample newest{ percent, now };
    note(newest);
    if (now - m_first.time < soonest || percent - m_first.percent < least)
        return std::nullopt;
    const double left = estimate(newest);
    if (m_told)
        correct(left, static_cast<double>(now - m_toldAt) / 1000);
    else
        m_told = left;
    m_toldAt = now;
    return static_cast<int>(std::lround(*m_told));
}

/// While nothing has moved yet, and where the percentages begin anew, the work begins now. Keeps what the estimate is made
/// from: the last quarter of the time, in which many drives write at another speed than at the beginning of a disc, and
/// read it back at one of their own.
void TimeLeft::note(const Sample &newest)
{
    constexpr qint64 shortest = 8000; // ms; a drive writes in bursts
    if (m_lately.isEmpty() || newest.percent <= m_first.percent) {
        m_first = newest;
        m_lately = { newest };
        return;
    }
    const qint64 took = newest.time - m_first.time;
    const qint64 since = newest.time - qMax(took / 4, shortest);
    while (m_lately.size() > 1 && m_lately.at(1).time <= since)
        m_lately.removeFirst();
    if (newest.time - m_lately.last().time >= took / 256)
        m_lately.append(newest);
}

double TimeLeft::estimate(const Sample &newest) const
{
    const Sample &since = m_lately.first();
    const auto took = static_cast<double>(newest.time - since.time) / 1000;
    const double done = newest.percent - since.percent;
    // Where nothing moves, nobody knows; it takes longer than was thought.
    const double most = m_told ? 4 * *m_told + 60 : 24 * 3600;
    return done > 0 ? qMin((100 - newest.percent) * took / done, most) : most;
}

/// `passed`: seconds since the last time.
void TimeLeft::correct(double estimate, double passed)
{
    const double told = qMax(0.0, *m_told - passed);
    const double slowness = qMax(3.0, told * 0.05); // seconds
    m_told = told + (estimate - told) * (1 - std::exp(-passed / slowness));
}

QString TimeLeft::text(std::optional<int> seconds)
{
    if (!seconds)
        return {};
    const int minutes = (*seconds + 30) / 60;
    const int hours = (minutes + 30) / 60;
    if (*seconds < 60)
        return QCoreApplication::translate("TimeLeft", "Less than a minute left");
    if (minutes == 1)
        return QCoreApplication::translate("TimeLeft", "About a minute left");
    if (minutes < 90)
        return QCoreApplication::translate("TimeLeft", "About %n minutes left", nullptr, minutes);
    return QCoreApplication::translate("TimeLeft", "About %n hours left", nullptr, hours);
}

} // namespace runner
