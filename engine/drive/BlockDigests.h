// A short digest of every block that was sent, to compare a disc with when it is read back.
#pragma once

#include "drive/Drive.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace engine::drive {

/// Digests of 32 bits, so a 25 GB disc needs 49 MB of memory. Filled on libburn's thread and read after
/// its end.
class BlockDigests {
public:
    /// Without `keeping`, for a disc that is not compared, nothing is taken and no memory needed.
    explicit BlockDigests(bool keeping = true)
        : m_keeping(keeping)
    {
    }

    /// Forgets everything; memory for `blocks` digests is set aside.
    void start(std::uint64_t blocks);

    /// Adds the blocks in `data`, a multiple of blockBytes.
    void add(std::span<const std::byte> data);

    std::uint64_t blocks() const { return m_digests.size(); }

    /// Number of leading blocks of `data` that are the ones sent from block `first` on.
    std::size_t matching(std::uint64_t first, std::span<const std::byte> data) const;

private:
    bool m_keeping;
    std::vector<std::uint32_t> m_digests;
};

/// Reads the disc back and compares it with what was sent. The error names the first block that differs or
/// cannot be read; a stop signal ends it.
Result<void> verify(
    Lease &lease, const BlockDigests &sent, const std::string &driveName, const Control &control);

} // namespace engine::drive
