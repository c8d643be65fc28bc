// The layout of a CD-DA disc made of WAVE files (Red Book, IEC 60908).
#pragma once

#include "audio/CdText.h"
#include "audio/Wave.h"
#include "base/Result.h"

#include <cstdint>
#include <string>
#include <vector>

namespace engine::audio {

constexpr std::uint32_t sectorSize = 2352; ///< bytes of an audio sector
constexpr std::uint32_t sectorsPerSecond = 75; ///< also called frames
constexpr std::uint32_t firstPause = 150; ///< sectors of silence before track 1
constexpr std::uint32_t shortestTrack = 300; ///< sectors; a CD track lasts at least four seconds
constexpr std::uint32_t mostTracks = 99;
/// Sectors before the lead-out, the first pause included. The lead-out begins at 99:59:74 at the latest: the
/// subcode of a disc has two digits each for minutes, seconds and frames (IEC 60908).
constexpr std::uint32_t mostSectors = (100 * 60 * sectorsPerSecond) - 1;

/// One track: a file's samples, filled with silence to `sectors` whole sectors, which hold all of them.
struct AudioTrack {
    std::string path;
    WaveData wave;
    std::uint32_t sectors = 0;
};

struct AudioDisc {
    std::vector<AudioTrack> tracks;
    CdText text; ///< the names that go onto the disc, as it can hold them; empty where the files have none
    std::vector<std::string>
        notes; ///< files that are left out or changed, a sentence each, by their names in the folder

    /// Sectors of all tracks and of the pause before the first.
    std::uint32_t sectorCount() const;
};

/// Whole sectors for `bytes` of samples, at least shortestTrack.
std::uint64_t sectorsFor(std::uint64_t bytes);

/// The WAVE files directly in `folder` (name ends in .wav or .wave in any case, hidden or not) in the order of
/// their modification times, then of their names with digit runs compared by value. Other files, and the "._"
/// files of RFC 1740, which hold no sound whatever their name says, become notes.
/// Errors: no WAVE file, more than 99, more sound than mostSectors (with both times), one that is not 16-bit
/// 44100 Hz stereo PCM (named), one that cannot be read.
Result<AudioDisc> readAudioFolder(const std::string &folder);

/// "mm:ss:ff" of a sector address counted from 0; minutes take as many digits as they need.
std::string msf(std::uint64_t sector);

/// The time that sectors last, for people, and their number: "79:57 minutes (359844 blocks)".
std::string lengthText(std::uint64_t sectors);

/// True when a file named `left` comes before `right`: digit runs compare by value, other bytes
/// by themselves; names equal in that way ("1", "01") compare by bytes.
bool naturalLess(const std::string &left, const std::string &right);

} // namespace engine::audio
