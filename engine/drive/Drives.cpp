#include "drive/Drives.h"

#include "base/Words.h"
#include "drive/PhysicalDrive.h"
#include "drive/RecorderFolder.h"
#include "drive/VirtualDrive.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace engine::drive {

namespace {

using DriveList = std::vector<std::unique_ptr<Drive>>;

enum class VirtualUse { automatic, off, always, only };

VirtualUse virtualUse()
{
    const char *value = std::getenv("CORVALIS_VIRTUAL");
    if (value && std::strcmp(value, "off") == 0)
        return VirtualUse::off;
    if (value && std::strcmp(value, "only") == 0)
        return VirtualUse::only;
    return value && std::strcmp(value, "always") == 0 ? VirtualUse::always : VirtualUse::automatic;
}

void number(DriveList &drives)
{
    if (drives.size() > maximumDrives)
        drives.resize(maximumDrives);
    for (std::size_t i = 0; i < drives.size(); ++i)
        drives[i]->setNumber(driveNumber(i));
}

Result<Medium> mediumIn(Drive &drive)
{
    const auto lease = drive.acquire(Purpose::look);
    return lease ? (*lease)->medium() : lease.error();
}

Result<DriveList> findDrives(bool createRecorder)
{
    DriveList drives;
    bool burner = false;
    const VirtualUse use = virtualUse();
    if (use != VirtualUse::only) {
        for (PhysicalRecord &record : physicalRecords()) {
            burner = burner || record.writes;
            drives.push_back(std::make_unique<PhysicalDrive>(std::move(record)));
        }
    }
    if (use != VirtualUse::off) {
        const std::string base = recordersFolder();
        Result<std::vector<std::string>> folders = recorderFolders(base);
        const bool wanted = createRecorder && (!burner || use == VirtualUse::always);
        if (folders && folders->empty() && wanted) {
            if (auto created = createFirstRecorder(base); !created)
                return created.error();
            folders = recorderFolders(base);
        }
        if (!folders)
            return folders.error();
        for (std::string &folder : *folders)
            drives.push_back(std::make_unique<VirtualDrive>(std::move(folder)));
    }
    number(drives);
    return drives;
}

} // namespace

Result<DriveList> allDrives()
{
    return findDrives(false);
}

Result<DriveList> allDrivesOrNew()
{
    return findDrives(true);
}

Result<std::unique_ptr<Drive>> driveNumbered(std::string_view number)
{
    Result<DriveList> drives = allDrives();
    if (!drives)
        return drives.error();
    if (drives->empty())
        return Error{ Exit::noDisc,
            "There is no drive: connect one, or let 'drutil list' make a virtual recorder." };
    if (number.empty() && drives->size() > 1)
        return Error{ Exit::usage,
            "There are " + std::to_string(drives->size()) + " drives: say which one with -drive N." };
    const std::size_t index = number.empty() ? 0 : driveIndex(number).value_or(maximumDrives);
    if (index >= drives->size())
        return Error{ Exit::noDisc,
            "There is no drive " + quoted(number) + ": 'drutil list' shows those there are." };
    return std::move((*drives)[index]);
}

Result<std::unique_ptr<Drive>> defaultBurner(std::string_view preferred, const Stop &stop)
{
    Result<DriveList> drives = allDrives();
    if (!drives)
        return drives.error();
    if (const auto index = driveIndex(preferred); index && *index < drives->size())
        std::rotate(drives->begin(), drives->begin() + static_cast<std::ptrdiff_t>(*index),
            drives->begin() + static_cast<std::ptrdiff_t>(*index) + 1);
    std::unique_ptr<Drive> erasable;
    std::string silent;
    for (std::unique_ptr<Drive> &drive : *drives) {
        drive->setStop(stop);
        const Result<Medium> medium = mediumIn(*drive);
        if (const int signal = stop.signal())
            return stoppedUntouched(signal);
        if (medium && isBlank(*medium))
            return std::move(drive);
        if (medium && !erasable && (canWriteNow(*medium) || canErase(*medium)))
            erasable = std::move(drive);
        // A drive that is busy or damaged is no reason not to take the next one.
        if (!medium)
            silent += ' ' + medium.error().message;
    }
    if (erasable)
        return erasable;
    return Error{ Exit::noDisc,
        "No drive holds a disc that can be written: insert a blank or erasable one." + silent };
}

} // namespace engine::drive
