// The speeds that a drive offers for its disc, as `drutil status` tells them, and the one a person wants.
#pragma once

#include <QString>
#include <QStringList>

namespace drives {

/// The wish for as fast as the drive can.
inline constexpr QLatin1StringView fastest("max");

/// The factors of a status' line "Write Speeds:", each once, the fastest first: "48", "24", "2.4". What is no factor is
/// left out. Empty where the drive names none.
QStringList offeredSpeeds(const QString &status);

/// The factors to choose from: those that are offered, with `wish` among them where it is a factor.
QStringList speedChoices(const QString &status, const QString &wish);

/// Whether `wish` is a factor of the single speed of a disc, from 0.1 to 1000 and with a point before its decimals, or `fastest`.
bool isSpeedWish(const QString &wish);

} // namespace drives
