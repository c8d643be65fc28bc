// What lies on a disc, track by track.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace engine {

/// What a disc or a track is called; UTF-8 in one line, empty where it is not told.
struct Texts {
    std::string title;
    std::string performer;

    bool operator==(const Texts &) const = default;
};

/// One track. Sectors are counted from 0 as the time of a CD runs: its track 1 begins at 150, after two seconds of pause
/// (IEC 60908). Blocks of a DVD or BD are counted in the same way, from 0.
struct TrackRecord {
    int number = 1;
    bool audio = false; ///< else data
    std::uint64_t start = 0;
    std::uint64_t sectors = 0; ///< up to the next track or the lead-out
    Texts texts;
};

struct DiscTracks {
    Texts disc;
    std::vector<TrackRecord> tracks; ///< none on a blank disc
};

} // namespace engine
