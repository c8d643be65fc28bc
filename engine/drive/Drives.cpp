#include "drive/Drives.h"

#include "base/Words.h"
#include "drive/PhysicalDrive.h"
#include "drive/RecorderFolder.h"
#include "drive/VirtualDrive.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string>

namespace engine::drive {

namespace {

using DriveList = std::vector<std::unique_ptr<Drive>>;

enum class VirtualUse { automatic, off, always, only };

struct VirtualUseRow {
    std::string_view value; ///< of CORVALIS_VIRTUAL
    VirtualUse use;
    const char *withoutDrives; ///< what helps where there is no drive
};

constexpr const char *connectOrMake = "connect one, or let 'drutil list' make a virtual recorder.";

constexpr std::array virtualUses{
    VirtualUseRow{ "auto", VirtualUse::automatic, connectOrMake },
    VirtualUseRow{ "off", VirtualUse::off,
        "connect one, or unset CORVALIS_VIRTUAL, which hides the virtual recorders." },
    VirtualUseRow{ "always", VirtualUse::always, connectOrMake },
    VirtualUseRow{ "only", VirtualUse::only, "let 'drutil list' make a virtual recorder." },
};

/// The row that CORVALIS_VIRTUAL names, that of "auto" where it is not set.
Result<VirtualUseRow> virtualUse()
{
    const char *set = std::getenv("CORVALIS_VIRTUAL");
    const std::string_view value = set && *set ? set : virtualUses.front().value;
    const auto row = std::ranges::find(virtualUses, value, &VirtualUseRow::value);
    if (row != virtualUses.end())
        return *row;
    std::string list;
    for (const VirtualUseRow &known : virtualUses)
        list += (list.empty() ? "" : ", ") + std::string(known.value);
    return Error{ Exit::failed,
        "CORVALIS_VIRTUAL has the value " + quoted(value) + ", which says nothing: set it to one of " + list
            + "." };
}

Error noDrive()
{
    const Result<VirtualUseRow> use = virtualUse();
    return { Exit::noDisc, std::string("There is no drive: ") + (use ? use->withoutDrives : connectOrMake) };
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
    const Result<VirtualUseRow> row = virtualUse();
    if (!row)
        return row.error();
    const VirtualUse use = row->use;
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
        return noDrive();
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
    if (drives->empty())
        return noDrive();
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
