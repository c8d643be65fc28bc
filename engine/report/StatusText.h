// The text of `drutil status`.
#pragma once

#include "medium/Medium.h"

#include <string>

namespace engine::report {

/// The report on `medium`, several lines. It holds facts about the medium only: callers search the
/// whole text for words, and a drive whose name holds "DVD" must not turn every CD into a DVD.
/// An empty drive gives the one line "Type: No Media Inserted".
std::string statusText(const Medium &medium);

constexpr const char *notWritable = "not writable";

/// The words after "Writability:", with ", " between: `appendable` a session can be added, `blank`
/// nothing written, `erasable` can be erased and written again, `overwritable` can be written from
/// the start now; or notWritable alone.
std::string writability(const Medium &medium);

/// A write speed as a factor of the medium's single speed: 2822 on a CD is "16x", 3324 on a DVD "2.4x".
/// `speed` is in 1000 bytes a second.
std::string speedFactor(double speed, Family family);

/// Blocks as minutes:seconds:frames, 75 frames a second: 359844 is "79:57:69".
std::string minutesSecondsFrames(uint64_t blocks);

/// "359844 / 736.96MB / 702.82MiB", each figure padded to its column.
std::string sizeColumns(uint64_t blocks);

} // namespace engine::report
