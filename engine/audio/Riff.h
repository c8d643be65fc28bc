// The chunks that a RIFF file consists of (Multimedia Programming Interface and Data Specifications 1.0).
#pragma once

#include "base/Fd.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

namespace engine::audio {

/// One chunk: where its content lies, and how long it is said to be, which may be more than there is.
struct Chunk {
    std::string id; ///< four characters
    std::uint64_t offset = 0; ///< of the content, in bytes from the start of the file
    std::uint32_t size = 0; ///< in bytes
};

constexpr std::uint64_t chunkHeader = 8; ///< bytes before the content: the id and the size

/// Calls `visit` with each chunk between `offset` and `end` of a file until it returns false. Ends where the file does,
/// and after more chunks than any real file has. Pure: reads only through `readAt`, a few bytes for each chunk.
void walkChunks(const ReadAt &readAt, std::uint64_t offset, std::uint64_t end,
    const std::function<bool(const Chunk &chunk)> &visit);

/// The text of at most `size` bytes at `offset`; shorter where the file ends.
std::string textAt(const ReadAt &readAt, std::uint64_t offset, std::size_t size);

/// The little-endian number of 4 bytes at `at` of `bytes`, which must be long enough.
std::uint32_t little32(const std::string &bytes, std::size_t at);

} // namespace engine::audio
