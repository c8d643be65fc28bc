// The device node of a drive: whether it may be opened, and if not, why.
#pragma once

#include "base/Result.h"

#include <string>

namespace engine::drive {

/// The error for an open() of `device` that failed with `failure`. `group` owns the node.
Error openError(
    const std::string &device, const std::string &driveName, int failure, const std::string &group);

/// Tries whether nobody else has `device` for himself, waiting a little for whoever only looks at it (udev
/// does after each change of the medium). The device is closed again. A mounted one is not free.
Result<void> checkFree(const std::string &device, const std::string &driveName);

/// Where the tray is and what lies in it.
enum class Tray { open, empty, loaded, unknown };

/// What the kernel says of the tray of `device` (CDROM_DRIVE_STATUS); `unknown` when it cannot be asked.
Tray trayOf(const std::string &device);

/// True when the node of a drive that just failed has gone, or goes within a second: the kernel takes it away
/// a moment after the first command that fails.
bool isGone(const std::string &device);

} // namespace engine::drive
