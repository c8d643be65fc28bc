#include "drive/Source.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <csignal>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <new>
#include <sys/types.h>
#include <thread>
#include <unistd.h>
// libburn.h needs off_t and the fixed-width integers to be known.
#include <libburn/libburn.h>

namespace engine::drive {

using namespace burn;

namespace {

struct SourceData {
    Fill fill;
    off_t size;
    /// libburn says that its writing thread has ended without anything that orders memory between the
    /// threads, so each use is released here, and acquired before what was used goes away.
    std::atomic<std::uint64_t> uses = 0;
    const pid_t maker = ::gettid();
    std::atomic<pid_t> user = 0; ///< libburn's writing thread

    void used()
    {
        if (const pid_t thread = ::gettid(); thread != maker)
            user = thread;
        uses.fetch_add(1, std::memory_order_release);
    }
};

SourceData &dataOf(burn_source *source)
{
    return *static_cast<SourceData *>(source->data);
}

int readData(burn_source *source, unsigned char *buffer, int size)
{
    const std::span<std::byte> bytes(reinterpret_cast<std::byte *>(buffer), static_cast<std::size_t>(size));
    dataOf(source).used(); // reading may last, and a drive be lost meanwhile
    const auto filled = static_cast<int>(dataOf(source).fill(bytes));
    dataOf(source).used();
    return filled;
}

off_t sizeOf(burn_source *source)
{
    const off_t size = dataOf(source).size;
    dataOf(source).used();
    return size;
}

int setSize(burn_source *source, off_t size)
{
    dataOf(source).size = size;
    return 1;
}

void freeData(burn_source *source)
{
    static_cast<void>(dataOf(source).uses.load(std::memory_order_acquire));
    delete &dataOf(source);
}

/// The tap reads ahead in pieces: one call a sector costs more than the copy.
class Tap {
public:
    Tap(burn_source *inner, std::uint64_t blocks, std::shared_ptr<TapState> state)
        : m_inner(inner)
        , m_left(blocks * blockBytes)
        , m_state(std::move(state))
        , m_piece(pieceBytes)
    {
        m_state->digests.start(blocks);
        m_state->bytes = 0;
        m_state->ranDry = false;
    }

    std::ptrdiff_t fill(std::span<std::byte> out)
    {
        std::size_t done = 0;
        while (done < out.size()) {
            if (m_next == m_end && !fetch())
                return m_state->ranDry ? -1 : static_cast<std::ptrdiff_t>(done);
            const std::size_t n = std::min(out.size() - done, m_end - m_next);
            std::memcpy(out.data() + done, m_piece.data() + m_next, n);
            m_next += n;
            done += n;
        }
        return static_cast<std::ptrdiff_t>(done);
    }

private:
    static constexpr std::size_t pieceBytes = 64 * 1024;

    bool fetch()
    {
        const auto want = static_cast<std::size_t>(std::min<std::uint64_t>(pieceBytes, m_left));
        if (want == 0 || m_state->ranDry)
            return false;
        const std::span<std::byte> piece(m_piece.data(), want);
        if (readSource(m_inner, piece) != static_cast<std::ptrdiff_t>(want)) {
            m_state->ranDry = true;
            return false;
        }
        m_state->digests.add(piece);
        m_state->bytes.fetch_add(want, std::memory_order_release);
        m_left -= want;
        m_next = 0;
        m_end = want;
        return true;
    }

    burn_source *m_inner;
    std::uint64_t m_left;
    std::shared_ptr<TapState> m_state;
    std::vector<std::byte> m_piece;
    std::size_t m_next = 0;
    std::size_t m_end = 0;
};

} // namespace

void SourceRelease::operator()(burn_source *source) const
{
    burn_source_free(source);
}

void awaitUser(burn_source *source)
{
    using namespace std::chrono_literals;
    constexpr auto patience = 30s;
    const auto end = std::chrono::steady_clock::now() + patience;
    const pid_t user = dataOf(source).user;
    while (user != 0 && ::tgkill(::getpid(), user, 0) == 0 && std::chrono::steady_clock::now() < end)
        std::this_thread::sleep_for(1ms);
}

Source newSource(std::uint64_t bytes, Fill fill)
{
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
    source->data = new SourceData{ std::move(fill), static_cast<off_t>(bytes) };
    return Source(source);
}

std::ptrdiff_t readSource(burn_source *source, std::span<std::byte> buffer)
{
    const auto read = source->read ? source->read : source->read_xt;
    std::size_t done = 0;
    while (done < buffer.size()) {
        auto *out = reinterpret_cast<unsigned char *>(buffer.data() + done);
        const int n = read(source, out, static_cast<int>(buffer.size() - done));
        if (n < 0)
            return -1;
        if (n == 0)
            break;
        done += static_cast<std::size_t>(n);
    }
    return static_cast<std::ptrdiff_t>(done);
}

Source tap(burn_source *inner, std::uint64_t blocks, std::shared_ptr<TapState> state)
{
    auto reader = std::make_shared<Tap>(inner, blocks, std::move(state));
    return newSource(blocks * blockBytes, [reader](std::span<std::byte> out) { return reader->fill(out); });
}

Source chain(std::vector<Source> parts, std::uint64_t bytes)
{
    auto sources = std::make_shared<std::vector<Source>>(std::move(parts));
    return newSource(bytes, [sources, current = std::size_t{ 0 }](std::span<std::byte> out) mutable {
        std::size_t done = 0;
        while (done < out.size() && current < sources->size()) {
            const std::ptrdiff_t n = readSource((*sources)[current].get(), out.subspan(done));
            if (n < 0)
                return n;
            done += static_cast<std::size_t>(n);
            if (done < out.size())
                ++current;
        }
        return static_cast<std::ptrdiff_t>(done);
    });
}

Source zeros(std::uint64_t bytes)
{
    return newSource(bytes, [left = bytes](std::span<std::byte> out) mutable {
        const auto n = static_cast<std::size_t>(std::min<std::uint64_t>(left, out.size()));
        std::memset(out.data(), 0, n);
        left -= n;
        return static_cast<std::ptrdiff_t>(n);
    });
}

} // namespace engine::drive
