// The sectors of audio tracks as a stream, for a file or for libburn.
#pragma once

#include "audio/AudioDisc.h"
#include "base/Fd.h"
#include "base/Result.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <string>

namespace burn {
struct burn_source;
}

namespace engine::audio {

/// Reads one track's samples and the silence after them. Not thread-safe; the file is open as
/// long as the object lives.
class TrackStream {
public:
    /// Opens the track's file. An error names it.
    static Result<TrackStream> open(const AudioTrack &track);

    /// Fills `buffer` with the next bytes of the track and returns their number, which is less
    /// than `size` only at the end of the track. A file that cannot be read, or is shorter than
    /// it was, is an error that names it.
    Result<std::size_t> read(std::byte *buffer, std::size_t size);

private:
    TrackStream(const AudioTrack &track, Fd file);
    std::string m_path;
    Fd m_file;
    std::uint64_t m_next = 0; ///< offset in the file
    std::uint64_t m_samples = 0; ///< bytes of samples still to come
    std::uint64_t m_silence = 0; ///< bytes of silence still to come
};

/// One track as libburn wants its data: 16-bit little-endian samples, whole sectors.
/// The caller owns the reference (burn_source_free). When a read fails, the source returns -1 and
/// `outcome` holds the error; it is shared with the caller and must not be read while libburn
/// writes.
burn::burn_source *newTrackSource(
    TrackStream track, std::uint32_t sectors, std::shared_ptr<Result<void>> outcome);

/// Writes the pause of track 1 and all tracks to `fd`: the .bin file that cueSheet() describes.
/// `progress` is told the sectors written so far and ends the writing (Exit::interrupted) by
/// returning false; may be empty. The error of a failed write speaks of `destination`.
Result<void> writeBin(const AudioDisc &disc, int fd, const std::string &destination,
    const std::function<bool(std::uint32_t sectors)> &progress);

} // namespace engine::audio
