// The transcoder's progress lines.
#pragma once

#include <QString>

#include <optional>

namespace runner {

/// Whole seconds from "hh:mm:ss" by position; a pair that is no number counts 0, the separators and
/// whatever follows are not looked at.
quint64 Return_Seconds_From_VOB_Duration_Str(const QString &time);

/// The newest complete "time=hh:mm:ss" of a piece of the transcoder's standard error, in seconds.
/// Nothing when the piece holds no "time=" or its first one is cut off.
std::optional<quint64> newestProgress(const QString &piece);

/// seconds of `duration` in per cent, in single precision; infinite or not a number for 0.
float progressPercent(quint64 seconds, quint64 duration);

} // namespace runner
