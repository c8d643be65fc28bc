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
    if (m_firstPercent < 0 || percent < m_firstPercent) {
        m_firstPercent = percent;
        m_firstTime = now;
    }
    const double done = percent - m_firstPercent;
    const auto took = static_cast<double>(now - m_firstTime);
    if (took < soonest || done < least)
        return std::nullopt;
    const double estimate = (100 - percent) * took / done / 1000;
    if (!m_told) {
        m_told = estimate;
    } else {
        const double told = qMax(0.0, *m_told - static_cast<double>(now - m_toldAt) / 1000);
        const bool roughlyRight = std::abs(told - estimate) <= estimate * 0.2 + 3;
        m_told = roughlyRight ? told + (estimate - told) * 0.05 : estimate;
    }
    m_toldAt = now;
    return static_cast<int>(std::lround(*m_told));
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
        return QCoreApplication::translate("TimeLeft", "About %1 minutes left").arg(minutes);
    return QCoreApplication::translate("TimeLeft", "About %1 hours left").arg(hours);
}

} // namespace runner
