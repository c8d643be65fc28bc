#include "image/UdfBridge.h"

#include "base/Words.h"
#include "image/UdfDescriptor.h"
#include "image/UdfText.h"
#include "image/Unicode.h"

#include <algorithm>
#include <ctime>
#include <set>
#include <sys/stat.h>
#include <unistd.h>

namespace engine::image {

namespace {

using Bytes = std::vector<std::byte>;

// Blocks of the volume.
constexpr std::uint32_t isoDescriptors = 16;
constexpr std::uint32_t recognition = 19;
constexpr std::uint32_t mainSequence = 32;
constexpr std::uint32_t reserveSequence = 48;
constexpr std::uint32_t sequenceBlocks = 16; // the least (ECMA-167 3/8.4.2)
constexpr std::uint32_t integritySequence = 64;
constexpr std::uint32_t integrityBlocks = 2;
constexpr std::uint32_t firstAnchor = 256; // ECMA-167 3/8.4.2.1
constexpr std::uint32_t partition = 257;

// Blocks of the partition.
constexpr std::uint32_t fileSetBlock = 0;
constexpr std::uint32_t fileSetBlocks = 2;

constexpr std::uint32_t eccBlocks = 16; ///< of an ECC block of a DVD (ECMA-267)
constexpr std::size_t fileEntryBytes = 176; ///< without its allocation descriptors
constexpr std::size_t shortAddressBytes = 8;
constexpr std::size_t identifierBytes = 38; ///< of a file identifier without its name
constexpr std::size_t mostNameBytes =
    254; ///< the length is kept in one byte, and a block holds the whole (UDF 1.02 2.3.4)

// The two high bits of a length tell how an extent is used, and but for the last it is whole blocks (ECMA-167 4/14.14.1.1).
constexpr std::uint64_t mostExtentBytes = (1U << 30) - blockSize;

constexpr std::uint64_t mostFileBytes = (blockSize - fileEntryBytes) / shortAddressBytes * mostExtentBytes;

// The first unique number that is not kept for the file system itself (OSTA UDF 1.02 3.2.1.1).
constexpr std::uint64_t firstUniqueId = 16;

enum FileType : std::uint8_t { folderType = 4, fileType = 5 };
enum Characteristic : std::uint8_t { isFolder = 0x02, isParent = 0x08 };

void append(Bytes &bytes, std::span<const std::byte> more)
{
    bytes.insert(bytes.end(), more.begin(), more.end());
}

/// Zeros up to the start of a block.
void fillTo(Bytes &bytes, std::uint32_t block)
{
    bytes.resize(std::size_t{ block } * blockSize);
}

void fillBlock(Bytes &bytes)
{
    bytes.resize(static_cast<std::size_t>(blocksFor(bytes.size())) * blockSize);
}

Bytes inOneBlock(const UdfDescriptor &descriptor)
{
    Bytes bytes;
    append(bytes, descriptor.bytes());
    fillBlock(bytes);
    return bytes;
}

Bytes terminator(std::uint32_t block)
{
    UdfDescriptor end;
    end.seal(UdfTag::terminating, block, udfDescriptorBytes);
    return inOneBlock(end);
}

/// Three times five bits: execute, write, read, change attributes, delete; others, group, owner (ECMA-167 4/14.9.5).
std::uint32_t permissions(mode_t mode)
{
    std::uint32_t result = 0;
    for (int who = 0; who < 3; ++who)
        result |= static_cast<std::uint32_t>(mode >> (3 * who) & 7) << (5 * who);
    return result;
}

bool isStored(const Entry &entry)
{
    return S_ISDIR(entry.mode) || S_ISREG(entry.mode);
}

/// The names of the folder's children, empty for what UDF does not hold.
std::vector<std::string> namesIn(const FolderTree &tree, const Entry &folder)
{
    std::vector<std::string> names(folder.count);
    std::set<std::string> taken;
    for (std::uint32_t child = 0; child < folder.count; ++child) {
        const Entry &entry = tree.entries()[folder.first + child];
        if (!isStored(entry))
            continue;
        const std::u16string whole = utf16(tree.name(entry));
        std::string name = udfBytes(udfFitting(whole, mostNameBytes));
        for (int number = 2; !taken.insert(name).second; ++number) {
            const std::u16string end = utf16('~' + std::to_string(number));
            // Each character may need two bytes.
            const auto kept = udfFitting(whole, mostNameBytes - 2 * end.size());
            name = udfBytes(std::u16string(cutTo(kept, (mostNameBytes - 1) / 2 - end.size())) + end);
        }
        names[child] = std::move(name);
    }
    return names;
}

std::size_t identifierSize(const std::string &name)
{
    return (identifierBytes + name.size() + 3) / 4 * 4;
}

UdfDescriptor fileEntry(
    const Entry &entry, FileType type, std::uint32_t links, std::uint64_t size, std::uint64_t uniqueId)
{
    constexpr std::uint16_t directStrategy = 4; // ECMA-167 4/A.5
    constexpr std::uint16_t flags =
        0x0230; // short addresses; in one piece, to be archived, to stay there (4/14.6.8)
    UdfDescriptor d(blockSize);
    d.put(20, directStrategy, 2);
    d.put(24, 1, 2); // entries at most
    d.put(27, type, 1);
    d.put(34, flags, 2);
    d.put(36, entry.uid, 4);
    d.put(40, entry.gid, 4);
    d.put(44, permissions(entry.mode), 4);
    d.put(48, std::min<std::uint32_t>(links, UINT16_MAX), 2);
    d.put(56, size, 8);
    d.put(64, blocksFor(size), 8);
    d.putTime(72, entry.accessed);
    d.putTime(84, entry.modified);
    d.putTime(96, entry.changed);
    d.put(108, 1, 4); // checkpoint
    d.putImplementation(128);
    d.put(160, uniqueId, 8);
    return d;
}

/// Closes a file entry with the extents of `size` bytes from `block` of the partition on.
void finish(UdfDescriptor &d, std::uint64_t size, std::uint32_t block, std::uint32_t own)
{
    std::size_t at = fileEntryBytes;
    for (std::uint64_t left = size; left > 0; at += shortAddressBytes) {
        const auto part = static_cast<std::uint32_t>(std::min(left, mostExtentBytes));
        d.putExtent(at, part, block);
        block += static_cast<std::uint32_t>(blocksFor(part));
        left -= part;
    }
    d.put(172, at - fileEntryBytes, 4);
    d.seal(UdfTag::fileEntry, own, at);
}

} // namespace

UdfBridge::UdfBridge(const FolderTree &tree, std::u16string volumeName)
    : m_tree(&tree)
    , m_volumeName(std::move(volumeName))
    , m_now(std::time(nullptr))
{
}

Result<UdfBridge> UdfBridge::plan(const FolderTree &tree, std::u16string volumeName)
{
    UdfBridge bridge(tree, std::move(volumeName));
    bridge.planFolders();
    if (auto ok = bridge.planFiles(); !ok)
        return ok.error();
    const std::uint32_t end =
        partition + bridge.m_firstFile + static_cast<std::uint32_t>(bridge.m_files.size());
    bridge.m_blocks = (end + eccBlocks - 1) / eccBlocks * eccBlocks;
    return bridge;
}

void UdfBridge::planFolders()
{
    const auto &entries = m_tree->entries();
    m_folderOf.resize(entries.size());
    std::uint32_t block = fileSetBlocks;
    for (std::uint32_t number = 0; number < entries.size(); ++number) {
        if (!S_ISDIR(entries[number].mode))
            continue;
        Folder folder{ number, block, static_cast<std::uint32_t>(identifierSize({})), 1 };
        for (const std::string &name : namesIn(*m_tree, entries[number]))
            if (!name.empty())
                folder.bytes += static_cast<std::uint32_t>(identifierSize(name));
        block += 1 + static_cast<std::uint32_t>(blocksFor(folder.bytes));
        m_folderOf[number] = static_cast<std::uint32_t>(m_folders.size());
        m_folders.push_back(folder);
    }
    // Each folder refers to the one above it.
    for (std::size_t number = 1; number < m_folders.size(); ++number)
        ++m_folders[m_folderOf[entries[m_folders[number].entry].parent]].links;
    m_firstFile = block;
}

Result<void> UdfBridge::planFiles()
{
    const auto &contents = m_tree->contents();
    m_fileOf.resize(contents.size());
    m_links.resize(contents.size());
    m_dataOf.resize(contents.size());
    std::uint64_t block = 0;
    for (std::uint32_t number = 0; number < contents.size(); ++number) {
        const Content &content = contents[number];
        m_dataOf[number] = static_cast<std::uint32_t>(block);
        block += blocksFor(content.size);
        if (content.isGap())
            continue;
        if (content.size > mostFileBytes)
            return Error{ Exit::failed,
                "The file " + quoted(m_tree->path(content.entry)) + " has " + sizeText(content.size)
                    + ", and a file on a video disc has at most " + sizeText(mostFileBytes)
                    + ": take it out of the folder." };
        m_fileOf[number] = static_cast<std::uint32_t>(m_files.size());
        m_files.push_back(number);
    }
    for (const Entry &entry : m_tree->entries())
        if (S_ISREG(entry.mode))
            ++m_links[entry.first];
    return {};
}

void UdfBridge::place(std::uint32_t firstData, std::uint32_t imageBlocks)
{
    m_firstData = firstData - partition;
    m_imageBlocks = imageBlocks;
}

void UdfBridge::takeDescriptors(std::span<const std::byte> start)
{
    constexpr std::size_t spaceSizeAt = 80; // of the volume, in both byte orders (ECMA-119 8.4.8)
    const auto found = start.subspan(isoDescriptors * blockSize, (recognition - isoDescriptors) * blockSize);
    m_descriptors.assign(found.begin(), found.end());
    for (std::size_t descriptor = 0; descriptor < m_descriptors.size(); descriptor += blockSize) {
        const bool isVolume = m_descriptors[descriptor] != std::byte{ 255 };
        for (std::size_t byte = 0; isVolume && byte < 4; ++byte) {
            m_descriptors[descriptor + spaceSizeAt + byte] =
                static_cast<std::byte>(m_imageBlocks >> (8 * byte));
            m_descriptors[descriptor + spaceSizeAt + 7 - byte] =
                static_cast<std::byte>(m_imageBlocks >> (8 * byte));
        }
    }
}

std::span<const std::byte> UdfBridge::next()
{
    const std::size_t step = m_step++;
    const std::size_t files = m_folders.size() + 1;
    if (step == 0) {
        m_piece = beginning();
    } else if (step < files) {
        m_piece = folder(m_folders[step - 1]);
    } else if (step < files + m_files.size()) {
        m_piece = file(m_files[step - files]);
    } else {
        const std::uint32_t end = partition + m_firstFile + static_cast<std::uint32_t>(m_files.size());
        const bool filled = step == files + m_files.size() && end < m_blocks;
        m_piece.assign(filled ? std::size_t{ m_blocks - end } * blockSize : 0, std::byte{});
    }
    return m_piece;
}

/// Everything before the folders.
Bytes UdfBridge::beginning() const
{
    Bytes bytes;
    fillTo(bytes, isoDescriptors);
    append(bytes, m_descriptors);
    // ECMA-167 2/9.2, 3/9.1, 2/9.3
    for (const std::string_view identifier : { "BEA01", "NSR02", "TEA01" }) {
        UdfDescriptor structure(blockSize);
        structure.putBytes(1, identifier);
        structure.put(6, 1, 1);
        append(bytes, structure.bytes());
    }
    for (const std::uint32_t sequence : { mainSequence, reserveSequence }) {
        fillTo(bytes, sequence);
        append(bytes, volumeDescriptors(sequence));
    }
    fillTo(bytes, integritySequence);
    append(bytes, integrity());
    fillTo(bytes, firstAnchor);
    UdfDescriptor start;
    start.putExtent(16, sequenceBlocks * blockSize, mainSequence);
    start.putExtent(24, sequenceBlocks * blockSize, reserveSequence);
    start.seal(UdfTag::anchor, firstAnchor, udfDescriptorBytes);
    append(bytes, inOneBlock(start));
    append(bytes, fileSet());
    return bytes;
}

Bytes UdfBridge::anchor() const
{
    UdfDescriptor end;
    end.putExtent(16, sequenceBlocks * blockSize, mainSequence);
    end.putExtent(24, sequenceBlocks * blockSize, reserveSequence);
    end.seal(UdfTag::anchor, m_imageBlocks - 1, udfDescriptorBytes);
    return inOneBlock(end);
}

namespace {

/// What is known of the whole volume by its descriptors.
struct Volume {
    std::u16string_view name;
    std::int64_t now;
    std::uint32_t partitionBlocks;
};

// ECMA-167 3/10.1
UdfDescriptor primaryVolume(const Volume &volume)
{
    UdfDescriptor d;
    d.putText(24, 32, volume.name);
    d.put(56, 1, 2); // volume 1
    d.put(58, 1, 2); // of 1
    d.put(60, 2, 2); // interchange level
    d.put(62, 2, 2);
    d.put(64, 1, 4); // character set 0
    d.put(68, 1, 4);
    // The first 16 characters tell volume sets apart (OSTA UDF 1.02 2.2.2.5).
    char unique[17] = "";
    std::snprintf(unique, sizeof unique, "%08llx%08x",
        static_cast<unsigned long long>(volume.now) & 0xffffffff, static_cast<unsigned>(::getpid()));
    d.putText(72, 128, utf16(unique) + std::u16string(volume.name));
    d.putCharacterSet(200);
    d.putCharacterSet(264);
    d.putTime(376, volume.now);
    d.putImplementation(388);
    return d;
}

// ECMA-167 3/10.4, OSTA UDF 1.02 2.2.7
UdfDescriptor implementationUse(const Volume &volume)
{
    UdfDescriptor d;
    d.putEntity(20, "*UDF LV Info", UdfSuffix::udf);
    d.putCharacterSet(52);
    d.putText(116, 128, volume.name);
    d.putImplementation(352);
    return d;
}

// ECMA-167 3/10.5
UdfDescriptor partitionDescriptor(const Volume &volume)
{
    constexpr std::uint32_t readOnly = 1;
    UdfDescriptor d;
    d.put(20, 1, 2); // its room is in use
    d.putEntity(24, "+NSR02", UdfSuffix::none);
    d.put(184, readOnly, 4);
    d.put(188, partition, 4);
    d.put(192, volume.partitionBlocks, 4);
    d.putImplementation(196);
    return d;
}

// ECMA-167 3/10.6
UdfDescriptor logicalVolume(const Volume &volume)
{
    constexpr std::size_t mapAt = 440;
    constexpr std::uint32_t mapBytes = 6;
    UdfDescriptor d;
    d.putCharacterSet(20);
    d.putText(84, 128, volume.name);
    d.put(212, blockSize, 4);
    d.putEntity(216, "*OSTA UDF Compliant", UdfSuffix::domain);
    d.putLongAddress(248, fileSetBlocks * blockSize, fileSetBlock);
    d.put(264, mapBytes, 4);
    d.put(268, 1, 4); // maps
    d.putImplementation(272);
    d.putExtent(432, integrityBlocks * blockSize, integritySequence);
    d.put(mapAt, 1, 1); // type 1: partition 0 of volume 1
    d.put(mapAt + 1, mapBytes, 1);
    d.put(mapAt + 2, 1, 2);
    return d;
}

} // namespace

Bytes UdfBridge::volumeDescriptors(std::uint32_t start) const
{
    const Volume volume{ m_volumeName, m_now, m_imageBlocks - 1 - partition };
    struct Row {
        UdfTag tag;
        std::size_t used;
        UdfDescriptor descriptor;
    };
    std::vector<Row> rows;
    rows.push_back({ UdfTag::primaryVolume, udfDescriptorBytes, primaryVolume(volume) });
    rows.push_back({ UdfTag::implementationUse, udfDescriptorBytes, implementationUse(volume) });
    rows.push_back({ UdfTag::partition, udfDescriptorBytes, partitionDescriptor(volume) });
    rows.push_back({ UdfTag::logicalVolume, 446, logicalVolume(volume) });
    rows.push_back({ UdfTag::unallocatedSpace, 24, UdfDescriptor() });
    Bytes bytes;
    for (std::uint32_t number = 0; number < rows.size(); ++number) {
        Row &row = rows[number];
        row.descriptor.put(16, number, 4);
        row.descriptor.seal(row.tag, start + number, row.used);
        append(bytes, inOneBlock(row.descriptor));
    }
    append(bytes, terminator(start + static_cast<std::uint32_t>(rows.size())));
    return bytes;
}

// ECMA-167 3/10.10, OSTA UDF 1.02 2.2.6
Bytes UdfBridge::integrity() const
{
    constexpr std::uint32_t implementationBytes = 46;
    UdfDescriptor d;
    d.putTime(16, m_now);
    d.put(28, 1, 4); // closed
    d.put(40, firstUniqueId + m_tree->entries().size(), 8); // the next
    d.put(72, 1, 4); // partitions
    d.put(76, implementationBytes, 4);
    d.put(84, m_imageBlocks - 1 - partition, 4);
    d.putImplementation(88);
    d.put(120, m_files.size(), 4);
    d.put(124, m_folders.size(), 4);
    for (const std::size_t at : { 128, 130, 132 }) // to read, to write, written with
        d.put(at, udfRevision, 2);
    d.seal(UdfTag::integrity, integritySequence, 88 + implementationBytes);
    Bytes bytes = inOneBlock(d);
    append(bytes, terminator(integritySequence + 1));
    return bytes;
}

// ECMA-167 4/14.1
Bytes UdfBridge::fileSet() const
{
    UdfDescriptor d;
    d.putTime(16, m_now);
    d.put(28, 3, 2); // interchange level
    d.put(30, 3, 2);
    d.put(32, 1, 4); // character set 0
    d.put(36, 1, 4);
    d.putCharacterSet(48);
    d.putText(112, 128, m_volumeName);
    d.putCharacterSet(240);
    d.putText(304, 32, m_volumeName);
    d.putLongAddress(400, blockSize, m_folders.front().block);
    d.putEntity(416, "*OSTA UDF Compliant", UdfSuffix::domain);
    d.seal(UdfTag::fileSet, fileSetBlock, udfDescriptorBytes);
    Bytes bytes = inOneBlock(d);
    append(bytes, terminator(fileSetBlock + 1));
    return bytes;
}

/// 0 is the root's (OSTA UDF 1.02 3.2.1.1).
std::uint64_t UdfBridge::uniqueId(std::uint32_t entry) const
{
    if (entry == 0)
        return 0;
    const Entry &file = m_tree->entries()[entry];
    return firstUniqueId + (S_ISREG(file.mode) ? m_tree->contents()[file.first].entry : entry);
}

Bytes UdfBridge::folder(const Folder &folder) const
{
    const Entry &entry = m_tree->entries()[folder.entry];
    UdfDescriptor d = fileEntry(entry, folderType, folder.links, folder.bytes, uniqueId(folder.entry));
    finish(d, folder.bytes, folder.block + 1, folder.block);
    Bytes bytes = inOneBlock(d);
    append(bytes, content(folder));
    fillBlock(bytes);
    return bytes;
}

/// The file identifiers of a folder, its parent's first (ECMA-167 4/14.4).
Bytes UdfBridge::content(const Folder &folder) const
{
    Bytes bytes;
    const auto add = [&](const std::string &name, int characteristics, std::uint32_t block,
                         std::uint32_t entry) {
        UdfDescriptor d(identifierSize(name));
        d.put(16, 1, 2); // version
        d.put(18, static_cast<std::uint64_t>(characteristics), 1);
        d.put(19, name.size(), 1);
        d.putLongAddress(20, blockSize, block, static_cast<std::uint32_t>(uniqueId(entry)));
        d.putBytes(identifierBytes, name);
        d.seal(UdfTag::fileIdentifier,
            folder.block + 1 + static_cast<std::uint32_t>(bytes.size() / blockSize), identifierSize(name));
        append(bytes, d.bytes());
    };
    const Entry &entry = m_tree->entries()[folder.entry];
    add({}, isFolder | isParent, m_folders[m_folderOf[entry.parent]].block, entry.parent);
    const std::vector<std::string> names = namesIn(*m_tree, entry);
    for (std::uint32_t child = entry.first; child < entry.first + entry.count; ++child) {
        const Entry &below = m_tree->entries()[child];
        if (!isStored(below))
            continue;
        const bool isDir = S_ISDIR(below.mode);
        add(names[child - entry.first], isDir ? isFolder : 0,
            isDir ? m_folders[m_folderOf[child]].block : fileBlock(below.first), child);
    }
    return bytes;
}

Bytes UdfBridge::file(std::uint32_t content) const
{
    const Content &data = m_tree->contents()[content];
    UdfDescriptor d =
        fileEntry(m_tree->entries()[data.entry], fileType, m_links[content], data.size, uniqueId(data.entry));
    finish(d, data.size, m_firstData + m_dataOf[content], fileBlock(content));
    return inOneBlock(d);
}

} // namespace engine::image
