#include "drive/BlockDigests.h"

#include "base/Words.h"

#define XXH_INLINE_ALL
#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <new>
#include <sys/mman.h>
#include <unistd.h>
#include <xxhash.h>

namespace engine::drive {

namespace {

constexpr std::size_t readBlocks = 256; // half a MiB at a time, a second of the slowest CD

constexpr std::size_t mostRecent = 8 * 1024; // digests in memory: 32 KiB, for 16 MiB of the disc

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

/// Memory that begins with a page, so that the kernel can have a drive write right into it.
class PageBuffer {
public:
    explicit PageBuffer(std::size_t size)
        : m_bytes(static_cast<std::byte *>(::operator new(size, page)))
        , m_size(size)
    {
    }
    ~PageBuffer() { ::operator delete(m_bytes, page); }
    PageBuffer(const PageBuffer &) = delete;
    PageBuffer &operator=(const PageBuffer &) = delete;

    std::span<std::byte> bytes() const { return { m_bytes, m_size }; }

private:
    static constexpr std::align_val_t page{ 4096 };
    std::byte *m_bytes;
    std::size_t m_size;
};

/// A file without a name that has room for `bytes`.
Fd roomFor(std::uint64_t bytes)
{
    const char *chosen = std::getenv("TMPDIR");
    const char *folder = chosen && *chosen ? chosen : "/var/tmp";
    Fd file(::open(folder, O_RDWR | O_TMPFILE | O_CLOEXEC, 0600));
    if (file && ::posix_fallocate(file.get(), 0, static_cast<off_t>(bytes)) == 0)
        return file;
    return Fd(::memfd_create("digests", MFD_CLOEXEC));
}

/// The errno of why `bytes` cannot be read, or 0.
int readFailure(int fd, std::span<std::byte> bytes, off_t offset)
{
    const std::ptrdiff_t got = bytes.empty() ? 0 : readFully(fd, bytes, offset);
    if (got < 0)
        return errno;
    return got == std::ssize(bytes) ? 0 : EIO;
}

} // namespace

void BlockDigests::start(std::uint64_t blocks)
{
    m_saved = 0;
    m_recent.clear();
    m_failure = 0;
    if (!m_keeping)
        return;
    m_recent.reserve(std::min<std::uint64_t>(blocks, mostRecent));
    if (blocks > mostRecent)
        m_file = roomFor(blocks * sizeof(std::uint32_t));
}

void BlockDigests::add(std::span<const std::byte> data)
{
    for (; m_keeping && data.size() >= blockBytes; data = data.subspan(blockBytes)) {
        if (m_recent.size() == mostRecent)
            save();
        m_recent.push_back(digest(data.data()));
    }
}

/// Moves the recent ones to the file.
void BlockDigests::save()
{
    const auto bytes = std::as_bytes(std::span(m_recent));
    const auto end = static_cast<off_t>(m_saved * sizeof(std::uint32_t));
    if (m_failure == 0 && !writeFully(m_file.get(), bytes, end))
        m_failure = errno;
    m_saved += m_recent.size();
    m_recent.clear();
}

Result<std::vector<std::uint32_t>> BlockDigests::digestsFrom(std::uint64_t first, std::size_t count) const
{
    std::vector<std::uint32_t> digests(count);
    const auto saved =
        first < m_saved ? static_cast<std::size_t>(std::min<std::uint64_t>(count, m_saved - first)) : 0;
    const auto bytes = std::as_writable_bytes(std::span(digests).first(saved));
    const auto start = static_cast<off_t>(first * sizeof(std::uint32_t));
    if (const int why = m_failure != 0 ? m_failure : readFailure(m_file.get(), bytes, start))
        return systemError("The disc is written, but what was sent was not kept to compare it with", why);
    const auto recent = static_cast<std::ptrdiff_t>(first + saved - m_saved);
    std::copy_n(
        m_recent.begin() + recent, count - saved, digests.begin() + static_cast<std::ptrdiff_t>(saved));
    return digests;
}

Result<std::size_t> BlockDigests::matching(std::uint64_t first, std::span<const std::byte> data) const
{
    const auto count =
        static_cast<std::size_t>(std::min<std::uint64_t>(data.size() / blockBytes, blocks() - first));
    const auto sent = digestsFrom(first, count);
    if (!sent)
        return sent.error();
    std::size_t good = 0;
    while (good < count && (*sent)[good] == digest(data.data() + good * blockBytes))
        ++good;
    return good;
}

Error stoppedUncompared(int signal, const std::string &driveName)
{
    return stoppedBy(signal, "Stopped: the disc in " + driveName + " is written, but was not compared.");
}

Result<void> verify(
    Lease &lease, const BlockDigests &sent, const std::string &driveName, const Control &control)
{
    const PageBuffer buffer(readBlocks * blockBytes);
    Progress progress;
    progress.phase = Phase::verifying;
    progress.total = sent.blocks();
    for (std::uint64_t block = 0; block < sent.blocks();) {
        if (const int signal = control.stop.signal())
            return stoppedUncompared(signal, driveName);
        progress.done = block;
        control.report(progress, blockBytes);
        const auto count = std::min<std::uint64_t>(readBlocks, sent.blocks() - block);
        const std::span<std::byte> part = buffer.bytes().first(count * blockBytes);
        const Result<std::size_t> got = lease.read(block, part);
        if (!got)
            return got.error();
        const Result<std::size_t> good = sent.matching(block, part.first(*got));
        if (!good)
            return good.error();
        if (*good < count)
            return badBlock(block + *good, (*good + 1) * blockBytes <= *got, driveName);
        block += count;
    }
    progress.done = progress.total;
    control.report(progress, blockBytes);
    return {};
}

} // namespace engine::drive
