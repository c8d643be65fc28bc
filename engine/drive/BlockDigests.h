// A short digest of every block that was sent, to compare a disc with when it is read back.
#pragma once

#include "base/Fd.h"
#include "drive/Drive.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace engine::drive {

/// Digests of 32 bits: 49 MB for a 25 GB disc, of which the most recent lie in memory and the rest in a file
/// without a name. Filled on libburn's thread and read after its end.
class BlockDigests {
public:
    /// Without `keeping`, for a disc that is not compared, nothing is taken and no room needed.
    explicit BlockDigests(bool keeping = true)
        : m_keeping(keeping)
    {
    }

    /// Forgets everything; room for `blocks` digests is set aside: in the folder for temporary files, and where
    /// that has none, in memory.
    void start(std::uint64_t blocks);

    /// Adds the blocks in `data`, a multiple of blockBytes.
    void add(std::span<const std::byte> data);

    std::uint64_t blocks() const { return m_saved + m_recent.size(); }

    /// Number of leading blocks of `data` that are the ones sent from block `first` on. An error when the
    /// digests of these blocks could not be kept.
    Result<std::size_t> matching(std::uint64_t first, std::span<const std::byte> data) const;

private:
    void save();
    Result<std::vector<std::uint32_t>> digestsFrom(std::uint64_t first, std::size_t count) const;

    bool m_keeping;
    Fd m_file;
    std::uint64_t m_saved = 0; ///< digests in the file
    std::vector<std::uint32_t> m_recent; ///< those after them
    int m_failure = 0; ///< errno of the first one that could not be saved
};

/// The error of a comparison that `signal` ended.
Error stoppedUncompared(int signal, const std::string &driveName);

/// Reads the disc back and compares it with what was sent. The error names the first block that differs or
/// cannot be read; a stop signal ends it.
Result<void> verify(
    Lease &lease, const BlockDigests &sent, const std::string &driveName, const Control &control);

} // namespace engine::drive
