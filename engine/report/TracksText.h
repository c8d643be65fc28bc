// The text of `drutil tracks`.
#pragma once

#include "medium/Tracks.h"

#include <string>

namespace engine::report {

/// Lines for the names of the disc, where it has any; a header line; then a line a track: number, kind (`audio`,
/// `data`), start and length in minutes:seconds:frames, and where the disc has names, title and performer.
std::string tracksText(const DiscTracks &disc);

} // namespace engine::report
