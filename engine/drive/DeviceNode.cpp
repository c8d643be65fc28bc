#include "drive/DeviceNode.h"

#include "base/Fd.h"
#include "base/Words.h"

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <grp.h>
#include <linux/cdrom.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace engine::drive {

namespace {

std::string groupOf(const std::string &device)
{
    struct stat info { };
    if (::stat(device.c_str(), &info) != 0)
        return {};
    const group *entry = ::getgrgid(info.st_gid);
    return entry ? entry->gr_name : std::to_string(info.st_gid);
}

} // namespace

Error openError(
    const std::string &device, const std::string &driveName, int failure, const std::string &group)
{
    switch (failure) {
    case EBUSY:
        return { Exit::failed,
            device + " (" + driveName + ") is busy with another program; wait until that has ended." };
    case EACCES:
    case EPERM:
        return { Exit::failed,
            "You may not use " + device + " (" + driveName
                + "): log in at this machine itself, or have yourself added to the group " + group
                + " and log in again." };
    case ENOENT:
    case ENODEV:
    case ENXIO:
        return { Exit::noDisc, device + " (" + driveName + ") is gone; check its cable." };
    default:
        return systemError(device + " (" + driveName + ") cannot be opened", failure);
    }
}

Result<void> checkFree(const std::string &device, const std::string &driveName)
{
    using namespace std::chrono_literals;
    constexpr int attempts = 30;
    int failure = 0;
    for (int i = 0; i < attempts; ++i) {
        // O_NONBLOCK: without it the open fails where no disc is in (cdrom driver of the kernel).
        const Fd fd(::open(device.c_str(), O_RDWR | O_NONBLOCK | O_EXCL | O_CLOEXEC));
        if (fd)
            return {};
        failure = errno;
        if (failure != EBUSY)
            break;
        std::this_thread::sleep_for(100ms);
    }
    return openError(device, driveName, failure, groupOf(device));
}

Tray trayOf(const std::string &device)
{
    const Fd fd(::open(device.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    switch (fd ? ::ioctl(fd.get(), CDROM_DRIVE_STATUS, CDSL_CURRENT) : -1) {
    case CDS_TRAY_OPEN:
        return Tray::open;
    case CDS_NO_DISC:
        return Tray::empty;
    case CDS_DISC_OK:
        return Tray::loaded;
    default:
        return Tray::unknown;
    }
}

bool isGone(const std::string &device)
{
    using namespace std::chrono_literals;
    constexpr int attempts = 10;
    for (int i = 0; i < attempts; ++i) {
        if (::access(device.c_str(), F_OK) != 0)
            return true;
        std::this_thread::sleep_for(100ms);
    }
    return false;
}

} // namespace engine::drive
