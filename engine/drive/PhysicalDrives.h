// The optical drives that the kernel knows, without touching them.
#pragma once

#include "report/DriveList.h"

#include <string>
#include <string_view>
#include <vector>

namespace engine::drive {

/// One drive as the kernel describes it.
struct PhysicalRecord {
    std::string device; ///< "/dev/sr0"
    report::DriveRecord record;
    bool writes = false; ///< it can write CDs or DVDs
};

/// The drives below `classFolder` (/sys/class/block), ordered by the number in their names.
/// `cdromInfo` is the text of /proc/sys/dev/cdrom/info.
std::vector<PhysicalRecord> physicalRecords(const std::string &classFolder, std::string_view cdromInfo);

/// physicalRecords() of this machine.
std::vector<PhysicalRecord> physicalRecords();

/// Whether the kernel's table `cdromInfo` says that the drive `name` ("sr0") writes any kind of disc.
bool canWrite(std::string_view cdromInfo, std::string_view name);

/// The bus a drive is on, from the path of its device in sysfs: "USB", "SATA", "FireWire", "iSCSI", "SCSI".
std::string busOf(const std::string &sysfsPath);

} // namespace engine::drive
