#include "drive/WritePlan.h"

#include <algorithm>

namespace engine::drive {

Attempt firstAttempt(Rewriting rewriting, int speed)
{
    const bool sequential = rewriting == Rewriting::once || rewriting == Rewriting::erase;
    return { sequential ? WriteMode::sessionAtOnce : WriteMode::trackAtOnce, speed, false };
}

bool isSpeedError(const LibburnMessage &refusal)
{
    return refusal.text.find("[3 73 ") != std::string::npos
        || refusal.text.find("ower calibration") != std::string::npos
        || refusal.text.find("speed") != std::string::npos;
}

std::optional<Attempt> nextAttempt(
    const Attempt &failed, const LibburnMessage &refusal, bool audio, const std::vector<int> &speeds)
{
    if (isSpeedError(refusal)) {
        const auto same = std::ranges::lower_bound(speeds, failed.speed);
        if (failed.speed == 0 || same == speeds.begin())
            return std::nullopt;
        return Attempt{ failed.mode, *std::prev(same), failed.named };
    }
    if (failed.named)
        return Attempt{ failed.mode, failed.speed, false };
    if (failed.mode == WriteMode::sessionAtOnce && !audio)
        return Attempt{ WriteMode::trackAtOnce, failed.speed, false };
    return std::nullopt;
}

} // namespace engine::drive
