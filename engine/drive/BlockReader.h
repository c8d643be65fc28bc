// Reading a disc in large pieces.
#pragma once

#include "base/Fd.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace engine::drive {

/// Reads blocks by commands of its own, beside libburn, which has the drive but is idle. libburn reads 32 KiB with each
/// command and copies them twice; most of the processor time of a comparison went there. The commands go to the
/// drive itself: the kernel keeps the size of the blank disc, and perhaps its content, until the tray moves, so that a
/// plain read would show what was there before.
///
/// One thread at a time.
class BlockReader {
public:
    /// Opens `device`; nothing where that is not allowed or not possible, and libburn has to do.
    static std::optional<BlockReader> open(const std::string &device);

    /// Fills `buffer`, whole blocks of 2048 bytes, from `block` on. False when anything of it cannot be read: whoever
    /// wants to know which block asks libburn. A buffer that begins with a page is filled without a copy.
    bool read(std::uint64_t block, std::span<std::byte> buffer) const;

private:
    BlockReader(Fd device, std::size_t mostBytes);
    bool readPiece(std::uint64_t block, std::span<std::byte> piece) const;

    Fd m_device;
    std::size_t m_mostBytes; ///< of one command
};

} // namespace engine::drive
