#include "medium/Speed.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace engine {

std::optional<SpeedWish> parseSpeed(std::string_view text)
{
    constexpr double least = 0.1, most = 1000;
    if (text == "max")
        return SpeedWish();
    if (text.ends_with('x'))
        text.remove_suffix(1);
    double factor = 0;
    const char *const end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, factor, std::chars_format::fixed);
    // A number that is none compares with nothing.
    if (error != std::errc() || rest != end || !(factor >= least && factor <= most))
        return std::nullopt;
    return factor;
}

int nearestSpeed(const std::vector<int> &speeds, SpeedWish wanted, double single)
{
    if (speeds.empty())
        return 0;
    if (!wanted)
        return speeds.back();
    const double speed = *wanted * single;
    return *std::ranges::min_element(
        speeds, {}, [speed](int candidate) { return std::abs(candidate - speed); });
}

} // namespace engine
