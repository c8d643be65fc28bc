// The speed that somebody wants a disc written at.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

namespace engine {

/// A factor of the single speed of the disc's kind, more than 0; no value for the fastest.
using SpeedWish = std::optional<double>;

/// Reads "8", "2.4", "16x" or "max". No value where `text` is none of these, or a factor below 0.1 or
/// above 1000.
std::optional<SpeedWish> parseSpeed(std::string_view text);

/// The one of `speeds` that is nearest to `wanted`, the slower of two that are as near; 0 when there is none. `speeds` in
/// 1000 bytes a second, ascending; `single` is the single speed in the same unit.
int nearestSpeed(const std::vector<int> &speeds, SpeedWish wanted, double single);

} // namespace engine
