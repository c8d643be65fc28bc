// Whether a device is mounted, and unmounting it.
#pragma once

#include "base/Result.h"

#include <string>
#include <string_view>
#include <vector>

namespace engine::drive {

/// The mount points of the device `major`:`minor` in a text of the form of /proc/self/mountinfo (proc(5)),
/// with its octal escapes resolved.
std::vector<std::string> mountPointsIn(std::string_view mountInfo, unsigned major, unsigned minor);

/// The mount points of a device node; none when it does not exist.
std::vector<std::string> mountPoints(const std::string &device);

/// Unmounts `device` through UDisks2, or with umount where that does not do it. The error of `driveName`
/// says what keeps it.
Result<void> unmount(const std::string &device, const std::string &driveName);

} // namespace engine::drive
