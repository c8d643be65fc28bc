// How far an operation on a disc has come.
#pragma once

#include "medium/Medium.h"

#include <cstdint>
#include <optional>

namespace engine {

enum class Phase { preparing, erasing, writing, closing, verifying };

/// How far an operation is at one moment.
struct Progress {
    Phase phase = Phase::preparing;
    std::uint64_t done = 0; ///< in units of `total`
    std::uint64_t total = 0; ///< 0: not known
    double speed = 0.0; ///< 1000 bytes a second, of a CD those of whole sectors (2352 bytes); 0 not known
    Family family = Family::none; ///< what the speed factor refers to
    std::optional<int> bufferPercent; ///< fill of the drive's buffer, 0..100
};

} // namespace engine
