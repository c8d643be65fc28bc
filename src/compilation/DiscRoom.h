// What the disc in the drive really holds, held against the list.
#pragma once

#include "compilation/Capacity.h"

#include <QLocale>
#include <QString>

#include <optional>

namespace compilation {

/// The disc in the drive, as far as `drutil status` tells of it.
struct DiscRoom {
    QString type; ///< "CD-R", "DVD+R DL"
    bool writable = false; ///< now, or after the erasing that a write begins with
    qint64 blocks =
        -1; ///< of 2048 bytes of data, or of a 75th of a second of sound; below 0: not told before it is erased

    bool operator==(const DiscRoom &) const = default;
};

/// Nothing where the status tells of no disc.
std::optional<DiscRoom> readDiscRoom(const QString &status);

/// One or two sentences on the disc, and whether the list fits, in the measure of the list: minutes for an audio CD and
/// for video, which is an estimate, bytes for everything else. `kind` and `total` are those of the gauge: capacity(),
/// gaugeText(). Empty on a page that has no list.
QString discRoomText(const DiscRoom &room, Page page, qint64 kind, qint64 total, const QLocale &locale = {});

} // namespace compilation
