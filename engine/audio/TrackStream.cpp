#include "audio/TrackStream.h"

#include "base/Words.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <libburn/libburn.h>
#include <new>
#include <unistd.h>
#include <utility>
#include <vector>

namespace engine::audio {

namespace {

constexpr std::size_t sectorsAtOnce = 256;

struct TrackSource {
    TrackStream track;
    std::uint32_t sectors;
    std::shared_ptr<Result<void>> outcome;
};

TrackSource &of(burn::burn_source *source)
{
    return *static_cast<TrackSource *>(source->data);
}

int readSource(burn::burn_source *source, unsigned char *buffer, int size)
{
    const auto got =
        of(source).track.read(reinterpret_cast<std::byte *>(buffer), static_cast<std::size_t>(size));
    if (got)
        return static_cast<int>(*got);
    *of(source).outcome = got.error();
    return -1;
}

Result<void> writeAll(int fd, const std::byte *bytes, std::size_t size, const std::string &destination)
{
    while (size > 0) {
        const ssize_t part = write(fd, bytes, size);
        if (part < 0 && errno == EINTR)
            continue;
        if (part < 0)
            return Error{ Exit::failed,
                quoted(destination) + " cannot be written: " + reasonAndAdvice(errno) + "." };
        bytes += part;
        size -= static_cast<std::size_t>(part);
    }
    return {};
}

} // namespace

Result<TrackStream> TrackStream::open(const AudioTrack &track)
{
    const int fd = ::open(track.path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (fd < 0)
        return Error{ Exit::failed,
            "The file " + quoted(track.path) + " cannot be read: " + reasonAndAdvice(errno) + "." };
    return TrackStream(track, fd);
}

TrackStream::TrackStream(const AudioTrack &track, int fd)
    : m_path(track.path)
    , m_fd(fd)
    , m_next(track.wave.offset)
    , m_samples(track.wave.size)
    , m_silence(static_cast<std::uint64_t>(track.sectors) * sectorSize - track.wave.size)
{
}

TrackStream::TrackStream(TrackStream &&other) noexcept
    : m_path(std::move(other.m_path))
    , m_fd(std::exchange(other.m_fd, -1))
    , m_next(other.m_next)
    , m_samples(other.m_samples)
    , m_silence(other.m_silence)
{
}

TrackStream &TrackStream::operator=(TrackStream &&other) noexcept
{
    std::swap(m_path, other.m_path);
    std::swap(m_fd, other.m_fd);
    m_next = other.m_next;
    m_samples = other.m_samples;
    m_silence = other.m_silence;
    return *this;
}

TrackStream::~TrackStream()
{
    if (m_fd >= 0)
        close(m_fd);
}

Result<std::size_t> TrackStream::read(std::byte *buffer, std::size_t size)
{
    std::size_t done = 0;
    while (done < size && m_samples > 0) {
        const auto most = static_cast<std::size_t>(std::min<std::uint64_t>(size - done, m_samples));
        const ssize_t got = pread(m_fd, buffer + done, most, static_cast<off_t>(m_next));
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            return Error{ Exit::failed,
                "The file " + quoted(m_path)
                    + (got < 0 ? " cannot be read: " + reasonAndAdvice(errno)
                               : " became shorter while it was read; leave it alone and start again")
                    + "." };
        done += static_cast<std::size_t>(got);
        m_next += static_cast<std::uint64_t>(got);
        m_samples -= static_cast<std::uint64_t>(got);
    }
    const auto silence = static_cast<std::size_t>(std::min<std::uint64_t>(size - done, m_silence));
    std::memset(buffer + done, 0, silence);
    m_silence -= silence;
    return done + silence;
}

burn::burn_source *newTrackSource(
    TrackStream track, std::uint32_t sectors, std::shared_ptr<Result<void>> outcome)
{
    auto *source = static_cast<burn::burn_source *>(std::calloc(1, sizeof(burn::burn_source)));
    if (!source)
        throw std::bad_alloc();
    source->refcount = 1;
    source->read = readSource;
    source->get_size = [](burn::burn_source *from) {
        return static_cast<off_t>(of(from).sectors) * sectorSize;
    };
    source->set_size = [](burn::burn_source *, off_t) { return 1; };
    source->free_data = [](burn::burn_source *from) { delete static_cast<TrackSource *>(from->data); };
    source->data = new TrackSource{ std::move(track), sectors, std::move(outcome) };
    return source;
}

Result<void> writeBin(const AudioDisc &disc, int fd, const std::string &destination,
    const std::function<bool(std::uint32_t sectors)> &progress)
{
    std::vector<std::byte> buffer(sectorsAtOnce * sectorSize);
    if (auto ok = writeAll(fd, buffer.data(), firstPause * sectorSize, destination); !ok)
        return ok;
    std::uint32_t written = firstPause;
    for (const AudioTrack &track : disc.tracks) {
        auto stream = TrackStream::open(track);
        if (!stream)
            return stream.error();
        for (;;) {
            if (progress && !progress(written))
                return Error{ Exit::interrupted, "Writing " + quoted(destination) + " was interrupted." };
            const auto got = stream->read(buffer.data(), buffer.size());
            if (!got)
                return got.error();
            if (*got == 0)
                break;
            if (auto ok = writeAll(fd, buffer.data(), *got, destination); !ok)
                return ok;
            written += static_cast<std::uint32_t>(*got / sectorSize);
        }
    }
    return {};
}

} // namespace engine::audio
