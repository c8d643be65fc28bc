#include "drive/Source.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <csignal>
#include <cstddef>
#include <cstdlib>
#include <new>
#include <sys/types.h>
#include <thread>
#include <unistd.h>
#include <utility>
#include <vector>
// libburn.h needs off_t and the fixed-width integers to be known.
#include <libburn/libburn.h>

namespace engine::drive {

using namespace burn;

namespace {

/// Reads ahead in pieces: one call a sector costs more than the copy.
class Feed {
public:
    Feed(Read read, std::uint64_t bytes, std::shared_ptr<Supply> supply)
        : m_read(std::move(read))
        , m_size(static_cast<off_t>(bytes))
        , m_left(bytes)
        , m_supply(std::move(supply))
        , m_piece(std::min<std::uint64_t>(bytes, pieceBytes))
    {
    }

    int give(std::span<std::byte> out)
    {
        noteUser();
        std::size_t done = 0;
        while (done < out.size() && (!m_rest.empty() || m_left > 0)) {
            if (m_rest.empty() && !fetch())
                return -1;
            const std::size_t part = std::min(out.size() - done, m_rest.size());
            std::copy_n(m_rest.begin(), part, out.begin() + static_cast<std::ptrdiff_t>(done));
            m_rest = m_rest.subspan(part);
            done += part;
        }
        return static_cast<int>(done);
    }

    off_t size() const { return m_size; }
    void setSize(off_t size) { m_size = size; }
    pid_t user() const { return m_user; }

private:
    static constexpr std::size_t pieceBytes = 64 * 1024;

    void noteUser()
    {
        if (const pid_t thread = ::gettid(); thread != m_maker)
            m_user = thread;
    }

    bool fetch()
    {
        if (m_supply->failed())
            return false;
        const auto want = static_cast<std::size_t>(std::min<std::uint64_t>(m_piece.size(), m_left));
        const std::span<std::byte> piece(m_piece.data(), want);
        const Result<std::size_t> got = m_read(piece);
        if (!got || *got < want) {
            m_supply->fail(
                got ? Error{ Exit::failed, "The data for the disc ended too early." } : got.error());
            return false;
        }
        m_supply->pass(piece);
        m_left -= want;
        m_rest = piece;
        return true;
    }

    const Read m_read;
    std::atomic<off_t> m_size; ///< libburn's thread changes it where it fills up a track
    std::uint64_t m_left; ///< bytes that are not fetched yet
    const std::shared_ptr<Supply> m_supply;
    std::vector<std::byte> m_piece;
    std::span<const std::byte> m_rest; ///< of the piece
    const pid_t m_maker = ::gettid();
    std::atomic<pid_t> m_user = 0; ///< libburn's writing thread
};

/// What a source holds. Each use takes a share of it: libburn says that its writing thread has ended without anything
/// that orders memory between the threads, and giving back a share does.
using Share = std::shared_ptr<Feed>;

Share shareOf(burn_source *source)
{
    return *static_cast<const Share *>(source->data);
}

int readData(burn_source *source, unsigned char *buffer, int size)
{
    return shareOf(source)->give({ reinterpret_cast<std::byte *>(buffer), static_cast<std::size_t>(size) });
}

off_t sizeOf(burn_source *source)
{
    return shareOf(source)->size();
}

int setSize(burn_source *source, off_t size)
{
    shareOf(source)->setSize(size);
    return 1;
}

void freeData(burn_source *source)
{
    delete static_cast<Share *>(source->data);
}

} // namespace

Supply::Supply(BlockDigests digests)
    : m_digests(std::move(digests))
{
}

void Supply::start(std::uint64_t blocks)
{
    const std::lock_guard lock(m_mutex);
    m_digests.start(blocks);
    m_bytes = 0;
    m_outcome = {};
}

void Supply::pass(std::span<const std::byte> piece)
{
    const std::lock_guard lock(m_mutex);
    m_digests.add(piece);
    m_bytes += piece.size();
}

void Supply::fail(const Error &why)
{
    const std::lock_guard lock(m_mutex);
    if (m_outcome)
        m_outcome = why;
}

Result<void> Supply::outcome() const
{
    const std::lock_guard lock(m_mutex);
    return m_outcome;
}

std::uint64_t Supply::bytes() const
{
    const std::lock_guard lock(m_mutex);
    return m_bytes;
}

BlockDigests Supply::takeDigests()
{
    const std::lock_guard lock(m_mutex);
    return std::move(m_digests);
}

void SourceRelease::operator()(burn_source *source) const
{
    burn_source_free(source);
}

void awaitUser(burn_source *source)
{
    using namespace std::chrono_literals;
    constexpr auto patience = 30s;
    const auto end = std::chrono::steady_clock::now() + patience;
    const pid_t user = shareOf(source)->user();
    while (user != 0 && ::tgkill(::getpid(), user, 0) == 0 && std::chrono::steady_clock::now() < end)
        std::this_thread::sleep_for(1ms);
}

Source newSource(Read read, std::uint64_t bytes, std::shared_ptr<Supply> supply)
{
    auto data = std::make_unique<Share>(std::make_shared<Feed>(std::move(read), bytes, std::move(supply)));
    // libburn frees the structure itself with free(), and only its data through us.
    auto *source = static_cast<burn_source *>(std::calloc(1, sizeof(burn_source)));
    if (!source)
        throw std::bad_alloc();
    source->refcount = 1;
    source->version = 1;
    source->read_xt = readData;
    source->get_size = sizeOf;
    source->set_size = setSize;
    source->free_data = freeData;
    source->data = data.release();
    return Source(source);
}

Read zeros()
{
    return [](std::span<std::byte> buffer) -> Result<std::size_t> {
        std::ranges::fill(buffer, std::byte{});
        return buffer.size();
    };
}

} // namespace engine::drive
