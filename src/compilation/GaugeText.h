// What stands above the gauge.
#pragma once

#include "compilation/Capacity.h"

#include <QLocale>
#include <QString>

namespace compilation {

/// hours:minutes:seconds, as many fields as the time needs, in the digits of `locale`.
QString timeText(qint64 seconds, const QLocale &locale);

/// An amount in the unit of the lists, in the numbers of `locale`. `bytes` is not below 0.
QString sizeText(qint64 bytes, const QLocale &locale);

/// How much of a disc is occupied, in the units of the lists and the numbers of `locale`, with the whole per
/// cent of percentage(). Above 90 per cent it says that the disc is nearly full, above 100 by how much the
/// list is too long or too large. The amounts look alike only where they are the same. `total` and `capacity`
/// are in seconds for audio and video, in units of 1024 bytes for data.
QString gaugeText(Page page, qint64 total, qint32 capacity, const QLocale &locale = {});

} // namespace compilation
