// What a WAVE file says of the sound in it.
#pragma once

#include "base/Fd.h"

#include <cstdint>
#include <string>

namespace engine::audio {

/// From the INFO list of a file; UTF-8 in one line, empty where nothing is said.
struct WaveText {
    std::string title; ///< INAM
    std::string artist; ///< IART
    std::string album; ///< IPRD

    bool operator==(const WaveText &) const = default;
};

/// Looks for the INFO list of a RIFF WAVE file of `fileSize` bytes, before or after its sound. The list knows no
/// encoding: what is not UTF-8, as ffmpeg writes it, is taken for Windows-1252. Of a text the first 1000 bytes count.
/// Never fails: a file without the list says nothing. Pure: reads only through `readAt`.
WaveText waveText(const ReadAt &readAt, std::uint64_t fileSize);

} // namespace engine::audio
