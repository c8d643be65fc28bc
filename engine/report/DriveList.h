// The text of `drutil list`.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace engine::report {

/// One drive as it is listed. Any bytes are allowed; what is not printable ASCII is shown as '?', so
/// that the columns hold whatever a drive calls itself.
struct DriveRecord {
    std::string vendor; ///< 8 characters are shown
    std::string product; ///< 16
    std::string revision; ///< 4
    std::string bus; ///< 8
    std::string support; ///< support level
};

/// More drives than this have no number and are not listed: 1-9, then a-z.
constexpr std::size_t maximumDrives = 35;

/// The number of the drive at `index` (counted from 0, below maximumDrives): '1'..'9', then 'a'..'z'.
char driveNumber(std::size_t index);

/// The index behind a drive number; no value when `number` is not one.
std::optional<std::size_t> driveIndex(std::string_view number);

/// A header line, then one line a drive of at least 30 characters, each with its line break:
/// number at column 0, vendor 3, product 12, revision 30, bus 36, support level 46.
std::string driveListText(const std::vector<DriveRecord> &drives);

} // namespace engine::report
