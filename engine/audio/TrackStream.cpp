#include "audio/TrackStream.h"

#include "base/Words.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <libburn/libburn.h>
#include <new>
#include <span>
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

Result<void> writeAll(int fd, std::span<const std::byte> bytes, const std::string &destination)
{
    if (writeFully(fd, bytes))
        return {};
    return systemError(quoted(destination) + " cannot be written", errno);
}

} // namespace

Result<TrackStream> TrackStream::open(const AudioTrack &track)
{
    Fd file = openToRead(track.path);
    if (!file)
        return systemError("The file " + quoted(track.path) + " cannot be read", errno);
    return TrackStream(track, std::move(file));
}

TrackStream::TrackStream(const AudioTrack &track, Fd file)
    : m_path(track.path)
    , m_file(std::move(file))
    , m_next(track.wave.offset)
    , m_samples(track.wave.size)
    , m_silence(static_cast<std::uint64_t>(track.sectors) * sectorSize - track.wave.size)
{
}

Result<std::size_t> TrackStream::read(std::byte *buffer, std::size_t size)
{
    std::size_t done = 0;
    while (done < size && m_samples > 0) {
        const auto most = static_cast<std::size_t>(std::min<std::uint64_t>(size - done, m_samples));
        const ssize_t got = pread(m_file.get(), buffer + done, most, static_cast<off_t>(m_next));
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
    if (auto ok = writeAll(fd, std::span(buffer).first(firstPause * sectorSize), destination); !ok)
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
            if (auto ok = writeAll(fd, std::span(buffer).first(*got), destination); !ok)
                return ok;
            written += static_cast<std::uint32_t>(*got / sectorSize);
        }
    }
    return {};
}

} // namespace engine::audio
