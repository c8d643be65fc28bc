#include "report/ProgressText.h"

#include "report/StatusText.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace engine::report {

namespace {

constexpr unsigned cdSectorBytes = 2352;

const char *phaseWord(Phase phase)
{
    switch (phase) {
    case Phase::preparing:
        return "Preparing";
    case Phase::erasing:
        return "Erasing";
    case Phase::writing:
        return "Writing";
    case Phase::closing:
        return "Closing the disc";
    case Phase::verifying:
        break;
    }
    return "Verifying";
}

} // namespace

std::string progressText(const Progress &p)
{
    std::string text = phaseWord(p.phase);
    std::array<char, 40> part{};
    if (p.total > 0) {
        const double share = static_cast<double>(std::min(p.done, p.total)) / static_cast<double>(p.total);
        // Cut, not rounded: 100.0 % is said only when everything is done.
        std::snprintf(
            part.data(), part.size(), ": %.1f %%", static_cast<double>(static_cast<int>(share * 1000)) / 10);
        text += part.data();
    }
    // Below a tenth a factor says nothing: the drive is catching up or finishing.
    if (p.speed > 0.1 * singleSpeed(p.family) && p.family != Family::none)
        text += ", " + speedFactor(p.speed, p.family);
    if (p.bufferPercent) {
        std::snprintf(part.data(), part.size(), ", buffer %d %%", *p.bufferPercent);
        text += part.data();
    }
    return text;
}

std::optional<std::string> ProgressPacer::next(Progress progress, unsigned blockBytes, Clock::time_point now)
{
    using namespace std::chrono_literals;
    const bool changed = m_phase != progress.phase;
    if (!changed && now - m_printed < 500ms)
        return std::nullopt;
    if (!changed && blockBytes > 0 && progress.done > m_done) {
        const double seconds = std::chrono::duration<double>(now - m_printed).count();
        // 1x of a CD is 75 sectors a second (IEC 60908), however many of their bytes are ours.
        const unsigned unitBytes = progress.family == Family::cd ? cdSectorBytes : blockBytes;
        progress.speed = static_cast<double>(progress.done - m_done) * unitBytes / 1000.0 / seconds;
    }
    const std::string text = progressText(progress);
    if (!changed && progress.total == 0 && text == m_text)
        return std::nullopt;
    m_phase = progress.phase;
    m_printed = now;
    m_done = progress.done;
    m_text = text;
    return text;
}

} // namespace engine::report
