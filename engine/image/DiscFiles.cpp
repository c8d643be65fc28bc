#include "image/DiscFiles.h"

#include "image/IsoImage.h"
#include "image/Unicode.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <set>

namespace engine::image {

namespace {

constexpr std::uint64_t firstDescriptor = 16;
constexpr std::uint64_t mostDescriptors = 32;
constexpr std::size_t rootRecordAt = 156; // ECMA-119 8.4.18

// A damaged disc may call anything a folder.
constexpr std::size_t mostFolders = 100000;
constexpr std::uint32_t mostFolderBytes = 64 * 1024 * 1024;

// A directory record (ECMA-119 9.1).
constexpr std::size_t recordBytes = 33; ///< without the name
constexpr std::size_t extentAt = 2;
constexpr std::size_t sizeAt = 10;
constexpr std::size_t flagsAt = 25;
constexpr std::size_t nameLengthAt = 32;
constexpr std::uint8_t folderFlag = 2;

using Block = std::array<std::byte, blockSize>;

std::uint32_t number(std::span<const std::byte> bytes, std::size_t at)
{
    std::uint32_t value = 0;
    for (std::size_t byte = 4; byte-- > 0;)
        value = value << 8 | std::to_integer<std::uint32_t>(bytes[at + byte]);
    return value;
}

struct Folder {
    std::uint32_t block = 0;
    std::uint32_t bytes = 0;
    std::string path; ///< with a slash at its end; empty for the root
};

class Search {
public:
    Search(const ReadAt &disc, const std::vector<std::uint64_t> &blocks)
        : m_disc(disc)
        , m_blocks(blocks)
    {
    }

    std::vector<std::string> run()
    {
        if (!findRoot())
            return {};
        while (!m_pending.empty() && m_seen.size() < mostFolders) {
            const Folder folder = std::move(m_pending.back());
            m_pending.pop_back();
            if (m_seen.insert(folder.block).second)
                read(folder);
        }
        std::ranges::sort(m_found);
        // A file over 4 GiB has several records.
        m_found.erase(std::unique(m_found.begin(), m_found.end()), m_found.end());
        return m_found;
    }

private:
    /// The root of Joliet, else of ISO 9660.
    bool findRoot()
    {
        bool found = false;
        for (std::uint64_t at = firstDescriptor; at < firstDescriptor + mostDescriptors; ++at) {
            Block descriptor{};
            if (m_disc(at * blockSize, descriptor) < descriptor.size()
                || std::memcmp(descriptor.data() + 1, "CD001", 5) != 0)
                break;
            const auto type = std::to_integer<int>(descriptor[0]);
            // Joliet is told by its escape sequence, "%/" and a level.
            const bool joliet = type == 2 && std::memcmp(descriptor.data() + 88, "%/", 2) == 0;
            if (type != 1 && !joliet)
                continue;
            m_joliet = joliet;
            const auto root = std::span(descriptor).subspan(rootRecordAt);
            m_pending = { { number(root, extentAt), number(root, sizeAt), {} } };
            found = true;
        }
        return found;
    }

    void read(const Folder &folder)
    {
        const std::uint32_t bytes = std::min(folder.bytes, mostFolderBytes);
        for (std::uint32_t done = 0; done < bytes; done += blockSize) {
            Block block{};
            if (m_disc(std::uint64_t{ folder.block } * blockSize + done, block) < block.size())
                continue;
            // No record reaches over the end of a block (ECMA-119 6.8.1.1).
            for (std::size_t at = 0; at + recordBytes < blockSize;) {
                const auto length = std::to_integer<std::size_t>(block[at]);
                if (length <= recordBytes || at + length > blockSize)
                    break;
                add(folder, std::span(block).subspan(at, length));
                at += length;
            }
        }
    }

    void add(const Folder &folder, std::span<const std::byte> record)
    {
        const auto nameLength = std::to_integer<std::size_t>(record[nameLengthAt]);
        if (recordBytes + nameLength > record.size() || nameLength == 0)
            return;
        const auto name = record.subspan(recordBytes, nameLength);
        if (nameLength == 1 && std::to_integer<int>(name[0]) <= 1)
            return; // the folder itself, and the one above it
        const std::uint32_t first = number(record, extentAt);
        const std::uint32_t size = number(record, sizeAt);
        const std::string path = folder.path + text(name);
        if (std::to_integer<int>(record[flagsAt]) & folderFlag) {
            m_pending.push_back({ first, size, path + '/' });
            return;
        }
        const auto lies = [&](std::uint64_t block) {
            return block >= first && block < first + blocksFor(size);
        };
        if (std::ranges::any_of(m_blocks, lies))
            m_found.push_back(path);
    }

    /// A name without its version.
    std::string text(std::span<const std::byte> name) const
    {
        std::string result;
        if (m_joliet) {
            std::u16string units;
            for (std::size_t at = 0; at + 1 < name.size(); at += 2)
                units += static_cast<char16_t>(
                    std::to_integer<unsigned>(name[at]) << 8 | std::to_integer<unsigned>(name[at + 1]));
            result = utf8(units);
        } else {
            result.assign(reinterpret_cast<const char *>(name.data()), name.size());
        }
        return result.substr(0, result.rfind(";1"));
    }

    const ReadAt &m_disc;
    const std::vector<std::uint64_t> &m_blocks;
    bool m_joliet = false;
    std::vector<Folder> m_pending;
    std::set<std::uint32_t> m_seen; ///< blocks of the folders that were read
    std::vector<std::string> m_found;
};

} // namespace

std::vector<std::string> filesAt(const ReadAt &disc, const std::vector<std::uint64_t> &blocks)
{
    return Search(disc, blocks).run();
}

} // namespace engine::image
