// Whether a device is mounted, and unmounting it.
#pragma once

#include "base/Result.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace engine::drive {

/// The mount points of the device `major`:`minor` in a text of the form of /proc/self/mountinfo (proc(5)),
/// with its octal escapes resolved.
std::vector<std::string> mountPointsIn(std::string_view mountInfo, unsigned major, unsigned minor);

/// A file system that is mounted from its root.
struct WholeMount {
    unsigned major = 0;
    unsigned minor = 0;
    std::string source; ///< the device node as the system knows it
};

/// What is mounted at `point` in a text of the form of /proc/self/mountinfo; the last where several lie over one another.
/// Nothing where `point` is no mount point, or shows a part of a file system only.
std::optional<WholeMount> mountedWholeAt(std::string_view mountInfo, const std::string &point);

/// What a program that unmounts is told of an environment such as `environ`: where programs, the person and the buses are, and
/// the language. "NAME=value" each, in the order they have there. What points into foreign code (LD_PRELOAD and the like) is
/// none of it.
std::vector<std::string> unmountersEnvironment(const char *const *environment);

/// The mount points of a device node; none when it does not exist.
std::vector<std::string> mountPoints(const std::string &device);

/// Unmounts `device` through UDisks2, or with umount where that does not do it. The error of `driveName`
/// says what keeps it.
Result<void> unmount(const std::string &device, const std::string &driveName);

} // namespace engine::drive
