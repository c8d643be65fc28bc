// The sectors of audio tracks as a stream of bytes: 16-bit little-endian samples, as a disc and a .bin file hold them.
#pragma once

#include "audio/AudioDisc.h"
#include "base/Fd.h"
#include "base/Result.h"

#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace engine::audio {

/// Reads one track's samples and the silence after them. Not thread-safe; the file is open as
/// long as the object lives.
class TrackStream {
public:
    /// Opens the track's file. An error names it.
    static Result<TrackStream> open(const AudioTrack &track);

    /// Fills `buffer` with the next bytes of the track and returns their number, which is less
    /// than its size only at the end of the track. A file that cannot be read, or is shorter than
    /// it was, is an error that names it.
    Result<std::size_t> read(std::span<std::byte> buffer);

private:
    TrackStream(const AudioTrack &track, Fd file);
    std::string m_path;
    Fd m_file;
    std::uint64_t m_next = 0; ///< offset in the file
    std::uint64_t m_samples = 0; ///< bytes of samples still to come
    std::uint64_t m_silence = 0; ///< bytes of silence still to come
};

/// Reads the pause of track 1 and then all tracks back to back: the .bin file that cueSheet() describes.
/// Not thread-safe.
class DiscStream {
public:
    /// Opens the files of all tracks, so that one that has gone is found before anything is written.
    static Result<DiscStream> open(const AudioDisc &disc);

    /// As TrackStream::read(), over the whole disc.
    Result<std::size_t> read(std::span<std::byte> buffer);

private:
    std::uint64_t m_pause = std::uint64_t{ firstPause } * sectorSize; ///< bytes of it still to come
    std::vector<TrackStream> m_tracks;
    std::size_t m_current = 0;
};

} // namespace engine::audio
