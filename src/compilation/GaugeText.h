// What stands above the gauge.
#pragma once

#include "compilation/Capacity.h"

#include <QLocale>
#include <QString>

namespace compilation {

/// How much of a disc is occupied, in the units of the lists and the numbers of `locale`, with the whole per
/// cent of percentage(). Above 90 per cent it says that the disc is nearly full, above 100 by how much the
/// list is too long or too large. The amounts look alike only where they are the same. `total` and `capacity`
/// are in seconds for audio and video, in units of 1024 bytes for data.
QString gaugeText(Page page, qint64 total, qint32 capacity, const QLocale &locale = {});

} // namespace compilation
