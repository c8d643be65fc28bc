// The text of `drutil list`.
#pragma once

#include "medium/DriveRecord.h"

#include <string>
#include <vector>

namespace engine::report {

/// "VENDOR Product" of a drive as it stands in the list, for a sentence.
std::string driveTitle(const DriveRecord &drive);

/// A header line, then one line a drive of at least 30 characters, each with its line break:
/// number at column 0, vendor 3 (8 characters are shown), product 12 (16), revision 30 (4), bus 36 (8), support level
/// 46. What is not printable ASCII is shown as '?', so that the columns hold whatever a drive calls itself.
std::string driveListText(const std::vector<DriveRecord> &drives);

} // namespace engine::report
