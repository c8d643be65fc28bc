// What a virtual recorder remembers, and the small INI file it is kept in.
#pragma once

#include "base/Result.h"
#include "medium/Medium.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace engine::drive {

/// What lies on a virtual disc. `writing` is kept while a write runs: found when nobody writes, it is the
/// trace of one that was killed.
enum class DiscState { blank, writing, written, spoilt };

struct RecorderState {
    std::string vendor = "CORVALIS";
    std::string product = "Virtual Recorder";
    std::string revision = "1.0";
    bool trayOpen = false;
    MediumKind kind = MediumKind::none; ///< one that can be inserted, or none
    DiscState disc = DiscState::blank;
    std::uint64_t blocks = 0; ///< of the content, in sectors of the disc

    bool operator==(const RecorderState &) const = default;
};

/// Reads the text of a recorder.ini. Unknown keys and sections are left alone, missing ones keep
/// their defaults, but `kind`, and `state` of any disc, have none: a text without them was cut off. That, a value
/// that means nothing, or a line that is no `key=value`, is an error whose message is a predicate: "cannot be
/// understood in line 3".
Result<RecorderState> parseRecorder(std::string_view text);

/// The text that parseRecorder() reads.
std::string recorderText(const RecorderState &state);

/// The medium that `state` describes, as a drive would tell it.
Medium mediumOf(const RecorderState &state);

} // namespace engine::drive
