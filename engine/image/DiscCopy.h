// Copying a disc block for block.
#pragma once

#include "base/Fd.h"
#include "base/Result.h"
#include "base/Stop.h"
#include "image/ImageFile.h"

#include <cstdint>
#include <functional>
#include <string>

namespace engine::image {

/// A disc that is read.
struct DiscSource {
    std::string name; ///< what messages call it: "/dev/sr0"
    ReadAt read; ///< returns less than was asked for from the first block on that cannot be read
    std::uint64_t blocks = 0; ///< all that the drive tells of
    bool severalSessions = false;
    /// Makes the drive read slower, for blocks that it could not read. May be empty.
    std::function<void()> slowDown;
    Stop stop; ///< ends the attempts at a block that cannot be read
};

/// How many blocks of the disc belong to its volumes. With UDF or several sessions all of them, else those that the ISO 9660
/// volume counts: behind them a disc that was written track at once has blocks which cannot be read. An error when there is
/// no volume, or one that is longer than the disc.
Result<std::uint64_t> volumeEnd(const DiscSource &disc);

/// Copies the first `blocks` blocks of the disc. What cannot be read in one sweep is read again block by block, three times and
/// slower; what cannot be read even so is an error that names the files it belongs to.
Result<void> copyDisc(const DiscSource &disc, std::uint64_t blocks, ImageFile &file);

} // namespace engine::image
