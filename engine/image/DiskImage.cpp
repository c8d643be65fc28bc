#include "image/DiskImage.h"

#include "base/Words.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <optional>
#include <string_view>
#include <sys/stat.h>
#include <vector>

namespace engine::image {

namespace {

// The trailer of a UDIF file, big-endian.
constexpr std::size_t trailerSize = 512;
constexpr std::size_t dataForkOffsetAt = 24;
constexpr std::size_t dataForkLengthAt = 32;
constexpr std::size_t xmlOffsetAt = 216;
constexpr std::size_t xmlLengthAt = 224;
constexpr std::size_t sectorCountAt = 492;

// A table of block runs.
constexpr std::size_t tableSectorAt = 8;
constexpr std::size_t runsAt = 204;
constexpr std::size_t runSize = 40;
constexpr std::size_t runSectorAt = 8;
constexpr std::size_t runCountAt = 16;
constexpr std::size_t runOffsetAt = 24;
constexpr std::uint32_t runRaw = 1;
constexpr std::uint32_t runComment = 0x7ffffffe;
constexpr std::uint32_t runEnd = 0xffffffff;
constexpr std::uint64_t sectorBytes = 512;

// A property list is some kilobytes; a file that promises more is no UDIF file we should believe.
constexpr std::uint64_t mostXml = 64 * 1024 * 1024;

// ECMA-130 14.1: the synchronization field of a sector.
constexpr std::string_view synchronization("\0\xff\xff\xff\xff\xff\xff\xff\xff\xff\xff\0", 12);

std::string readText(const ReadAt &readAt, std::uint64_t offset, std::uint64_t size)
{
    std::string text(static_cast<std::size_t>(size), '\0');
    text.resize(readAt(offset, std::as_writable_bytes(std::span(text))));
    return text;
}

std::uint64_t number(std::string_view bytes, std::size_t at, std::size_t size)
{
    std::uint64_t value = 0;
    for (std::size_t byte = 0; byte < size; ++byte)
        value = value << 8 | static_cast<unsigned char>(bytes[at + byte]);
    return value;
}

int base64Digit(char character)
{
    static constexpr std::string_view digits =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    const std::size_t found = digits.find(character);
    return found == std::string_view::npos ? -1 : static_cast<int>(found);
}

std::string decodeBase64(std::string_view text)
{
    std::string bytes;
    std::uint32_t bits = 0;
    int held = 0;
    for (const char character : text) {
        const int digit = base64Digit(character);
        if (digit < 0)
            continue; // white space and padding
        bits = bits << 6 | static_cast<std::uint32_t>(digit);
        held += 6;
        if (held < 8)
            continue;
        held -= 8;
        bytes.push_back(static_cast<char>(bits >> held & 0xff));
    }
    return bytes;
}

/// Whether every run of a table is stored raw and at its own place.
bool isPlainTable(std::string_view table, std::uint64_t dataFork)
{
    const std::uint64_t firstSector = number(table, tableSectorAt, 8);
    for (std::size_t at = runsAt; at + runSize <= table.size(); at += runSize) {
        const std::string_view run = table.substr(at, runSize);
        const auto type = static_cast<std::uint32_t>(number(run, 0, 4));
        if (type == runEnd)
            break;
        if (type == runComment || number(run, runCountAt, 8) == 0)
            continue;
        const std::uint64_t place = (firstSector + number(run, runSectorAt, 8)) * sectorBytes;
        if (type != runRaw || dataFork + number(run, runOffsetAt, 8) != place)
            return false;
    }
    return true;
}

bool isPlainUdif(const ReadAt &readAt, std::string_view trailer, std::uint64_t size)
{
    const std::uint64_t dataFork = number(trailer, dataForkOffsetAt, 8);
    const std::uint64_t xmlOffset = number(trailer, xmlOffsetAt, 8);
    const std::uint64_t xmlLength = number(trailer, xmlLengthAt, 8);
    if (xmlOffset > size || xmlLength > std::min(size - xmlOffset, mostXml))
        return false;
    const std::string list = readText(readAt, xmlOffset, xmlLength);
    static constexpr std::string_view open = "<data>", close = "</data>";
    bool described = false;
    for (std::size_t at = list.find(open); at != std::string::npos; at = list.find(open, at)) {
        at += open.size();
        const std::size_t end = list.find(close, at);
        if (end == std::string::npos)
            break;
        const std::string table = decodeBase64(std::string_view(list).substr(at, end - at));
        const bool describes = table.size() >= runsAt && table.starts_with("mish");
        if (describes && !isPlainTable(table, dataFork))
            return false;
        described = described || describes;
        at = end;
    }
    // Older files keep their tables in a resource fork; what takes less room than its sectors is packed.
    return described
        || (dataFork == 0
            && number(trailer, dataForkLengthAt, 8) == number(trailer, sectorCountAt, 8) * sectorBytes);
}

const char *advice(DiskImageKind kind)
{
    switch (kind) {
    case DiskImageKind::plain:
        break;
    case DiskImageKind::compressed:
        return "is a compressed disk image; convert it first, for example with: "
               "qemu-img convert -f dmg -O raw FILE.dmg FILE.iso";
    case DiskImageKind::encrypted:
        return "is an encrypted disk image; convert it to a plain one on the system that made it";
    case DiskImageKind::rawSectors:
        return "holds raw sectors of 2352 bytes; convert it first, for example with: "
               "bchunk FILE.img FILE.cue FILE";
    }
    return nullptr;
}

} // namespace

DiskImageKind diskImageKind(const ReadAt &readAt, std::uint64_t size)
{
    const std::string start = readText(readAt, 0, synchronization.size());
    if (start == synchronization)
        return DiskImageKind::rawSectors;
    if (start.starts_with("encrcdsa"))
        return DiskImageKind::encrypted;
    if (size < trailerSize)
        return DiskImageKind::plain;
    const std::string trailer = readText(readAt, size - trailerSize, trailerSize);
    if (trailer.ends_with("cdsaencr"))
        return DiskImageKind::encrypted;
    if (trailer.size() < trailerSize || !trailer.starts_with("koly"))
        return DiskImageKind::plain;
    return isPlainUdif(readAt, trailer, size) ? DiskImageKind::plain : DiskImageKind::compressed;
}

Result<void> checkDiskImage(const std::string &path)
{
    const auto failed = [&path](const std::string &predicate) {
        return Error{ Exit::failed, "The image " + quoted(path) + " " + predicate + "." };
    };
    const Fd file = openToRead(path);
    if (!file)
        return failed("cannot be read: " + reasonAndAdvice(errno));
    struct stat info { };
    int readError = fstat(file.get(), &info) == 0 ? 0 : errno;
    DiskImageKind kind = DiskImageKind::plain;
    if (S_ISREG(info.st_mode))
        kind = diskImageKind(readAtOf(file, readError), static_cast<std::uint64_t>(info.st_size));
    if (readError != 0)
        return failed("cannot be read: " + reasonAndAdvice(readError));
    if (!S_ISREG(info.st_mode))
        return failed("is not a file; name an image file");
    const char *what = advice(kind);
    return what ? Result<void>(failed(what)) : Result<void>();
}

} // namespace engine::image
