// Image files that cannot be written to a disc as they are.
#pragma once

#include "base/Fd.h"
#include "base/Result.h"

#include <cstdint>
#include <string>

namespace engine::image {

enum class DiskImageKind {
    plain, ///< its bytes are the blocks of a disc
    compressed, ///< UDIF with blocks that are compressed, left out or moved
    encrypted, ///< UDIF, encrypted
    rawSectors, ///< sectors of 2352 bytes with their headers (ECMA-130 14)
};

/// What kind an image file of `size` bytes is. UDIF (.dmg) files are known by their trailer "koly" in
/// the last 512 bytes and its tables of block runs ("mish"). Pure: reads only through `readAt`, which
/// may hold anything.
DiskImageKind diskImageKind(const ReadAt &readAt, std::uint64_t size);

/// Fails with a sentence that tells how to convert the file at `path` when it is not plain, or
/// cannot be read.
Result<void> checkDiskImage(const std::string &path);

} // namespace engine::image
