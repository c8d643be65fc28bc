#include "drive/BlockDigests.h"

#define XXH_INLINE_ALL
#include <algorithm>
#include <xxhash.h>

namespace engine::drive {

namespace {

constexpr std::size_t readBlocks = 128; // 256 KiB at a time

std::uint32_t digest(const std::byte *block)
{
    return static_cast<std::uint32_t>(XXH3_64bits(block, blockBytes));
}

Error badBlock(std::uint64_t block, bool readable, const std::string &driveName)
{
    return { Exit::failed,
        "The disc in " + driveName + " does not hold what was sent: block " + std::to_string(block)
            + (readable ? " differs" : " cannot be read") + "; write another disc." };
}

} // namespace

void BlockDigests::start(std::uint64_t blocks)
{
    m_digests.clear();
    if (m_keeping)
        m_digests.reserve(blocks);
}

void BlockDigests::add(std::span<const std::byte> data)
{
    for (; m_keeping && data.size() >= blockBytes; data = data.subspan(blockBytes))
        m_digests.push_back(digest(data.data()));
}

std::size_t BlockDigests::matching(std::uint64_t first, std::span<const std::byte> data) const
{
    std::size_t good = 0;
    while ((good + 1) * blockBytes <= data.size() && first + good < m_digests.size()
        && m_digests[first + good] == digest(data.data() + good * blockBytes))
        ++good;
    return good;
}

Result<void> verify(
    Lease &lease, const BlockDigests &sent, const std::string &driveName, const Control &control)
{
    std::vector<std::byte> buffer(readBlocks * blockBytes);
    report::Progress progress;
    progress.phase = report::Phase::verifying;
    progress.total = sent.blocks();
    for (std::uint64_t block = 0; block < sent.blocks();) {
        if (const int signal = control.stopped())
            return stoppedBy(
                signal, "Stopped: the disc in " + driveName + " is written, but was not compared.");
        progress.done = block;
        control.report(progress, blockBytes);
        const auto count = std::min<std::uint64_t>(readBlocks, sent.blocks() - block);
        const std::span<std::byte> part(buffer.data(), count * blockBytes);
        const Result<std::size_t> got = lease.read(block, part);
        if (!got)
            return got.error();
        const std::size_t good = sent.matching(block, part.first(*got));
        if (good < count)
            return badBlock(block + good, (good + 1) * blockBytes <= *got, driveName);
        block += count;
    }
    progress.done = progress.total;
    control.report(progress, blockBytes);
    return {};
}

} // namespace engine::drive
