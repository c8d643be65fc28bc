// Lines that tell how far a write, an erase or a comparison has come.
#pragma once

#include "medium/Progress.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

namespace engine::report {

/// One line without its break: "Writing: 42.3 %, 16x, buffer 98 %". Parts that are not known are left out.
std::string progressText(const Progress &progress);

/// Lets lines through at most twice a second, and each change of phase at once: the phase that comes may be silent
/// for minutes. A phase that counts nothing, such as the closing of the disc, is told once. Keeps the speed by comparing with
/// the line before.
class ProgressPacer {
public:
    using Clock = std::chrono::steady_clock;

    /// The line to print at `now`, or nothing when it is too early for another. `blockBytes` is the size
    /// of one unit of `progress.done`; 0 where the speed means nothing.
    std::optional<std::string> next(Progress progress, unsigned blockBytes, Clock::time_point now);

private:
    std::optional<Phase> m_phase;
    Clock::time_point m_printed;
    uint64_t m_done = 0;
    std::string m_text; ///< of the last line
};

} // namespace engine::report
