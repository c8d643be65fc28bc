// A test that waits more than it works is run as several tests at once, each of which takes its share of the rows.
#pragma once

#include <QByteArray>
#include <QList>

#include <cstdlib>

namespace support {

/// Whether the row number `row` is one of this run's. CORVALIS_TEST_SHARE is "which of how many", 1/4 to 4/4; a run by hand has
/// all rows.
inline bool isOfThisShare(qsizetype row)
{
    const QList<QByteArray> share = qgetenv("CORVALIS_TEST_SHARE").split('/');
    if (share.size() != 2 || share.last().toInt() < 1)
        return true;
    return row % share.last().toInt() == share.first().toInt() - 1;
}

} // namespace support
