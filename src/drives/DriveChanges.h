// What has become of the chosen drive when the drives are listed anew.
#pragma once

#include "drives/DriveList.h"

#include <QStringList>

namespace drives {

/// Drives keep their titles; their numbers move up when one before them is pulled out.
struct Changes {
    qsizetype chosen = -1; ///< where the chosen drive stands in the new listing; -1: it is gone
    QStringList appeared; ///< titles of drives that were not listed before
};

/// `chosen` is the place in `before`; with -1, `goneTitle` is the drive that was gone then (empty: none was chosen). Of drives
/// with one title the chosen one keeps its place among them, and counts as gone when one of them is, because nobody can tell
/// which. Where no drive was listed before, the first one is chosen.
Changes changes(const QList<Object_Optical_Drive> &before, qsizetype chosen, const QString &goneTitle,
    const QList<Object_Optical_Drive> &listed);

} // namespace drives
