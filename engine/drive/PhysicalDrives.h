// The optical drives that the kernel knows, without touching them.
#pragma once

#include "medium/DriveRecord.h"

#include <string>
#include <string_view>
#include <vector>

namespace engine::drive {

/// One drive as the kernel describes it.
struct PhysicalRecord {
    std::string device; ///< "/dev/sr0"
    DriveRecord record;
    bool writes = false; ///< it can write CDs or DVDs
};

/// The drives below `classFolder` (/sys/class/block), ordered by the number in their names.
/// `cdromInfo` is the text of /proc/sys/dev/cdrom/info, `udevFolder` holds udev's records (/run/udev/data).
std::vector<PhysicalRecord> physicalRecords(
    const std::string &classFolder, std::string_view cdromInfo, const std::string &udevFolder);

/// physicalRecords() of this machine.
std::vector<PhysicalRecord> physicalRecords();

/// Whether the kernel's table `cdromInfo` says that the drive `name` ("sr0") writes any kind of disc.
bool canWrite(std::string_view cdromInfo, std::string_view name);

/// Whether udev's record of a drive (lines "E:ID_CDROM_DVD_PLUS_R=1") says that it writes any kind of disc.
/// The kernel's table comes from a mode page that knows no DVD+R and no Blu-ray disc; udev asks for the
/// profiles.
bool canWrite(std::string_view udevRecord);

/// The bus a drive is on, from the path of its device in sysfs: "USB", "SATA", "FireWire", "iSCSI", "SCSI".
std::string busOf(const std::string &sysfsPath);

} // namespace engine::drive
