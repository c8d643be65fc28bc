#include "drive/PhysicalDrives.h"

#include "drive/SmallFile.h"

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <filesystem>
#include <utility>

namespace engine::drive {

namespace {

namespace fs = std::filesystem;

/// A small file of sysfs or procfs; empty where there is none.
std::string textOf(const std::string &path)
{
    const Result<std::string> text = readSmallFile(AT_FDCWD, path.c_str(), path);
    return text ? *text : std::string();
}

std::string attribute(const std::string &path)
{
    std::string text = textOf(path);
    text.erase(text.find_last_not_of(" \n\t") + 1);
    text.erase(0, text.find_first_not_of(" \n\t"));
    return text;
}

std::vector<std::string_view> words(std::string_view text)
{
    std::vector<std::string_view> found;
    constexpr std::string_view blanks = " \t";
    for (std::size_t at = 0; (at = text.find_first_not_of(blanks, at)) != std::string_view::npos;) {
        const std::size_t end = std::min(text.find_first_of(blanks, at), text.size());
        found.push_back(text.substr(at, end - at));
        at = end;
    }
    return found;
}

/// The columns after "label:" in the line that begins with `label`.
std::vector<std::string_view> row(std::string_view table, std::string_view label)
{
    while (!table.empty()) {
        const std::string_view line = table.substr(0, table.find('\n'));
        table.remove_prefix(std::min(line.size() + 1, table.size()));
        if (line.starts_with(label) && line.substr(label.size()).starts_with(':'))
            return words(line.substr(label.size() + 1));
    }
    return {};
}

} // namespace

bool canWrite(std::string_view cdromInfo, std::string_view name)
{
    constexpr std::array labels{ "Can write CD-R", "Can write CD-RW", "Can write DVD-R", "Can write DVD-RAM",
        "Can write RAM" };
    const auto drives = row(cdromInfo, "drive name");
    const auto column = static_cast<std::size_t>(std::ranges::find(drives, name) - drives.begin());
    return std::ranges::any_of(labels, [&](const char *label) {
        const auto cells = row(cdromInfo, label);
        return column < cells.size() && cells[column] == "1";
    });
}

bool canWrite(std::string_view udevRecord)
{
    constexpr std::array properties{ "CD_R", "CD_RW", "DVD_R", "DVD_RW", "DVD_R_DL", "DVD_RAM", "DVD_PLUS_R",
        "DVD_PLUS_RW", "DVD_PLUS_R_DL", "BD_R", "BD_RE" };
    const std::string lines = '\n' + std::string(udevRecord) + '\n';
    return std::ranges::any_of(properties, [&](const char *property) {
        return lines.find(std::string("\nE:ID_CDROM_") + property + "=1\n") != std::string::npos;
    });
}

std::string busOf(const std::string &sysfsPath)
{
    struct BusRow {
        const char *part;
        const char *name;
    };
    // In this order: a USB or FireWire bridge hides an ATA drive behind it.
    constexpr std::array buses{ BusRow{ "/usb", "USB" }, BusRow{ "/fw", "FireWire" },
        BusRow{ "/session", "iSCSI" }, BusRow{ "/ata", "SATA" } };
    for (const BusRow &bus : buses)
        if (sysfsPath.find(bus.part) != std::string::npos)
            return bus.name;
    return "SCSI";
}

std::vector<PhysicalRecord> physicalRecords(
    const std::string &classFolder, std::string_view cdromInfo, const std::string &udevFolder)
{
    std::vector<std::string> names;
    std::error_code failure;
    for (fs::directory_iterator entry(classFolder, failure), end; !failure && entry != end;
         entry.increment(failure))
        if (const std::string name = entry->path().filename(); name.starts_with("sr") && name.size() > 2
            && name.find_first_not_of("0123456789", 2) == std::string::npos)
            names.push_back(name);
    // By number: the longer name has the larger one.
    std::ranges::sort(
        names, {}, [](const std::string &name) { return std::pair(name.size(), std::string_view(name)); });

    std::vector<PhysicalRecord> drives;
    for (const std::string &name : names) {
        const std::string base = classFolder + '/' + name;
        const std::string device = base + "/device/";
        const std::string path = fs::canonical(base, failure).string();
        const bool writes =
            canWrite(cdromInfo, name) || canWrite(textOf(udevFolder + "/b" + attribute(base + "/dev")));
        drives.push_back({ "/dev/" + name,
            { attribute(device + "vendor"), attribute(device + "model"), attribute(device + "rev"),
                busOf(path), writes ? "Supported" : "Read Only" },
            writes });
    }
    return drives;
}

std::vector<PhysicalRecord> physicalRecords()
{
    return physicalRecords("/sys/class/block", textOf("/proc/sys/dev/cdrom/info"), "/run/udev/data");
}

} // namespace engine::drive
