#include "image/DiscCopy.h"

#include "base/Words.h"
#include "image/DiscFiles.h"
#include "image/IsoImage.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>
#include <vector>

namespace engine::image {

namespace {

constexpr std::uint64_t firstDescriptor = 16;
constexpr std::uint64_t mostDescriptors = 64;
constexpr std::size_t spaceSizeAt = 80; // ECMA-119 8.4.8

constexpr std::size_t pieceBlocks = 512; // 1 MiB
constexpr int attempts = 3;

// Each takes seconds, and a person has learnt enough.
constexpr std::size_t mostBadBlocks = 16;

constexpr std::size_t mostNamedFiles = 3;

using Block = std::array<std::byte, blockSize>;

struct Volumes {
    std::uint64_t isoBlocks = 0; ///< 0 none
    bool udf = false;
};

Volumes volumesOn(const DiscSource &disc)
{
    Volumes volumes;
    for (std::uint64_t at = firstDescriptor; at < firstDescriptor + mostDescriptors; ++at) {
        Block descriptor{};
        if (disc.read(at * blockSize, descriptor) < descriptor.size())
            break;
        // The identifiers of ECMA-119 and ECMA-167 lie at one place.
        const std::string_view identifier(reinterpret_cast<const char *>(descriptor.data()) + 1, 5);
        volumes.udf = volumes.udf || identifier == "NSR02" || identifier == "NSR03";
        if (identifier == "CD001" && descriptor[0] == std::byte{ 1 }) {
            for (std::size_t byte = 4; byte-- > 0;)
                volumes.isoBlocks =
                    volumes.isoBlocks << 8 | std::to_integer<std::uint64_t>(descriptor[spaceSizeAt + byte]);
        }
    }
    return volumes;
}

Error unreadable(const DiscSource &disc, const std::vector<std::uint64_t> &bad)
{
    const std::vector<std::string> files = filesAt(disc.read, bad);
    std::string where;
    for (std::size_t file = 0; file < std::min(files.size(), mostNamedFiles); ++file)
        where += (file == 0 ? " of " : ", ") + quoted(files[file]);
    if (files.size() > mostNamedFiles)
        where += " and " + std::to_string(files.size() - mostNamedFiles) + " more";
    return { Exit::failed,
        "The disc in " + disc.name + " cannot be read at block " + std::to_string(bad.front()) + where
            + ": clean it, or copy it in another drive." };
}

/// Fills `piece` from `block` on, one block after the other.
Result<void> readSingly(const DiscSource &disc, std::uint64_t block, std::span<std::byte> piece)
{
    if (disc.slowDown)
        disc.slowDown();
    std::vector<std::uint64_t> bad;
    for (std::size_t at = 0; at < piece.size() && bad.size() < mostBadBlocks; at += blockSize, ++block) {
        if (const int signal = disc.stop.signal())
            return stoppedBy(signal, "The copy of the disc in " + disc.name + " was interrupted.");
        bool isRead = false;
        for (int attempt = 0; attempt < attempts && !isRead; ++attempt)
            isRead = disc.read(block * blockSize, piece.subspan(at, blockSize)) == blockSize;
        if (!isRead)
            bad.push_back(block);
    }
    return bad.empty() ? Result<void>() : Result<void>(unreadable(disc, bad));
}

} // namespace

Result<std::uint64_t> volumeEnd(const DiscSource &disc)
{
    const Volumes volumes = volumesOn(disc);
    if (!volumes.udf && volumes.isoBlocks == 0)
        return Error{ Exit::failed,
            "The disc in " + disc.name + " holds no volume that can be copied: try another disc." };
    if (volumes.isoBlocks > disc.blocks)
        return Error{ Exit::failed,
            "The disc in " + disc.name + " ends before its volume, which counts "
                + blocksText(volumes.isoBlocks) + ": it was not written to its end, try another disc." };
    return volumes.udf || disc.severalSessions ? disc.blocks : volumes.isoBlocks;
}

Result<void> copyDisc(const DiscSource &disc, std::uint64_t blocks, ImageFile &file)
{
    std::vector<std::byte> buffer(pieceBlocks * blockSize);
    for (std::uint64_t block = 0; block < blocks;) {
        const auto count = static_cast<std::size_t>(std::min<std::uint64_t>(pieceBlocks, blocks - block));
        const auto piece = std::span(buffer).first(count * blockSize);
        if (disc.read(block * blockSize, piece) < piece.size())
            if (auto read = readSingly(disc, block, piece); !read)
                return read;
        if (auto written = file.write(piece); !written)
            return written;
        block += count;
    }
    return {};
}

} // namespace engine::image
