// Where the samples of a WAVE file lie, and whether an audio disc can hold them.
#pragma once

#include "audio/WaveText.h"
#include "base/Fd.h"
#include "base/Result.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace engine::audio {

/// The sample data of a WAVE file: whole stereo frames of 4 bytes, little-endian.
struct WaveData {
    std::uint64_t offset = 0; ///< of the first sample, in bytes from the start of the file
    std::uint64_t size = 0; ///< in bytes, more than 0, a multiple of 4
};

/// Finds the samples of a RIFF WAVE file of `fileSize` bytes by walking its chunks. Only 16-bit
/// 44100 Hz stereo PCM (format tag 1, or WAVE_FORMAT_EXTENSIBLE with the PCM sub-format) is taken.
/// A data chunk of size 0xFFFFFFFF, of a size beyond the end of the file, or of size 0 under a RIFF size that
/// was never filled in, is what a program leaves that writes into a pipe: it reaches to the end of the file.
/// The error's message is a predicate for the file's name: "is not a WAVE file".
/// Pure: reads only through `readAt`, at most a few bytes for each chunk.
Result<WaveData> parseWave(const ReadAt &readAt, std::uint64_t fileSize);

/// The same for a file that lies in memory.
Result<WaveData> parseWave(std::span<const std::byte> file);

/// A WAVE file that an audio disc can hold.
struct Wave {
    WaveData samples;
    WaveText text;
};

/// The same for the file at `path`, and what it says of its sound; the error is a whole sentence that names the file.
Result<Wave> readWave(const std::string &path);

} // namespace engine::audio
