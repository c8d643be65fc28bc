#include "audio/TrackStream.h"

#include "base/Words.h"

#include <algorithm>
#include <cerrno>
#include <utility>

namespace engine::audio {

namespace {

/// Fills `buffer` with zeros as long as `left` lasts; the number of bytes.
std::size_t fillWithSilence(std::span<std::byte> buffer, std::uint64_t &left)
{
    const auto size = static_cast<std::size_t>(std::min<std::uint64_t>(buffer.size(), left));
    std::ranges::fill(buffer.first(size), std::byte{});
    left -= size;
    return size;
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

Result<std::size_t> TrackStream::read(std::span<std::byte> buffer)
{
    const auto wanted = static_cast<std::size_t>(std::min<std::uint64_t>(buffer.size(), m_samples));
    const auto got = readFully(m_file.get(), buffer.first(wanted), static_cast<off_t>(m_next));
    if (got < 0)
        return systemError("The file " + quoted(m_path) + " cannot be read", errno);
    if (static_cast<std::size_t>(got) < wanted)
        return Error{ Exit::failed,
            "The file " + quoted(m_path)
                + " became shorter while it was read; leave it alone and start again." };
    m_next += wanted;
    m_samples -= wanted;
    return wanted + fillWithSilence(buffer.subspan(wanted), m_silence);
}

Result<DiscStream> DiscStream::open(const AudioDisc &disc)
{
    DiscStream stream;
    for (const AudioTrack &track : disc.tracks) {
        auto opened = TrackStream::open(track);
        if (!opened)
            return opened.error();
        stream.m_tracks.push_back(std::move(*opened));
    }
    return stream;
}

Result<std::size_t> DiscStream::read(std::span<std::byte> buffer)
{
    std::size_t done = fillWithSilence(buffer, m_pause);
    while (done < buffer.size() && m_current < m_tracks.size()) {
        auto got = m_tracks[m_current].read(buffer.subspan(done));
        if (!got)
            return got;
        done += *got;
        if (done < buffer.size())
            ++m_current;
    }
    return done;
}

} // namespace engine::audio
