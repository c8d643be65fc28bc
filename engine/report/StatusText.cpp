#include "report/StatusText.h"

#include <array>
#include <cmath>
#include <cstdio>

namespace engine::report {

namespace {

constexpr double blockBytes = 2048.0;

template <class... Values>
std::string format(const char *pattern, Values... values)
{
    std::array<char, 160> text{};
    std::snprintf(text.data(), text.size(), pattern, values...);
    return text.data();
}

std::string labelled(const char *label, const std::string &value)
{
    return format("%16s ", label) + value;
}

std::string spaceLine(const char *label, uint64_t blocks)
{
    return labelled(label, format("%10s", minutesSecondsFrames(blocks).c_str()))
        + "         blocks: " + sizeColumns(blocks) + '\n';
}

std::string speedWords(const Medium &medium)
{
    std::string words;
    std::string last;
    for (const int speed : medium.speeds) {
        const std::string word = speedFactor(speed, factsOf(medium.kind).family);
        if (word != last)
            words += (words.empty() ? "" : ", ") + word;
        last = word;
    }
    return words;
}

} // namespace

std::string speedFactor(double speed, Family family)
{
    const double single = singleSpeed(family);
    const double factor = single > 0 ? speed / single : 0.0;
    const bool whole = std::abs(factor - std::round(factor)) < 0.15;
    return format(whole || factor >= 10 ? "%.0fx" : "%.1fx", factor);
}

std::string minutesSecondsFrames(uint64_t blocks)
{
    const auto number = [](uint64_t n) { return static_cast<unsigned long long>(n); };
    return format(
        "%02llu:%02llu:%02llu", number(blocks / 75 / 60), number(blocks / 75 % 60), number(blocks % 75));
}

std::string sizeColumns(uint64_t blocks)
{
    const double bytes = static_cast<double>(blocks) * blockBytes;
    return format("%8llu / %6.2fMB / %6.2fMiB", static_cast<unsigned long long>(blocks), bytes / 1e6,
        bytes / (1024.0 * 1024.0));
}

std::string statusText(const Medium &medium)
{
    if (medium.kind == MediumKind::none)
        return labelled("Type:", factsOf(medium.kind).type) + '\n';
    std::string text = labelled("Type:", format("%-21s", factsOf(medium.kind).type));
    text += "Name: " + medium.deviceName + '\n';
    if (const std::string speeds = speedWords(medium); !speeds.empty())
        text += labelled("Write Speeds:", speeds) + '\n';
    text += spaceLine("Space Free:", medium.free);
    text += spaceLine("Space Used:", medium.used);
    text += labelled("Writability:", writability(medium)) + '\n';
    if (medium.state == MediumState::spoilt)
        text += labelled("State:", "spoilt, a write did not reach its end") + '\n';
    return text;
}

} // namespace engine::report
