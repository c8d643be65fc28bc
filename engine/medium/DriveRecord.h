// How a drive is called and numbered.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace engine {

/// One drive as it is listed. Any bytes are allowed.
struct DriveRecord {
    std::string vendor;
    std::string product;
    std::string revision;
    std::string bus;
    std::string support; ///< support level
};

/// More drives than this have no number and are not listed: 1-9, then a-z.
constexpr std::size_t maximumDrives = 35;

/// The number of the drive at `index` (counted from 0, below maximumDrives): '1'..'9', then 'a'..'z'.
char driveNumber(std::size_t index);

/// The index behind a drive number; no value when `number` is not one.
std::optional<std::size_t> driveIndex(std::string_view number);

} // namespace engine
