#include "report/StatusText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace engine::report {

namespace {

constexpr double blockBytes = 2048.0;

std::string padded(std::string text, std::size_t width, bool right)
{
    const std::size_t missing = width - std::min(width, text.size());
    return right ? std::string(missing, ' ') + text : text + std::string(missing, ' ');
}

std::string fixed(double value, int decimals, std::size_t width)
{
    std::array<char, 40> text{};
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, decimals);
    return padded(std::string(text.data(), end.ptr), width, true);
}

std::string twoDigits(uint64_t number)
{
    return (number < 10 ? "0" : "") + std::to_string(number);
}

std::string labelled(const std::string &label, const std::string &value)
{
    return padded(label, 16, true) + ' ' + value;
}

std::string spaceLine(const char *label, uint64_t blocks)
{
    return labelled(label, padded(minutesSecondsFrames(blocks), 10, true))
        + "         blocks: " + sizeColumns(blocks) + '\n';
}

std::string speedWords(const Medium &medium)
{
    std::string words;
    std::string last;
    // What the drive would write other discs with says nothing of one that takes nothing.
    if (writability(medium) == notWritable)
        return words;
    for (const int speed : medium.speeds) {
        const std::string word = speedFactor(speed, factsOf(medium.kind).family);
        if (word != last)
            words += (words.empty() ? "" : ", ") + word;
        last = word;
    }
    return words;
}

} // namespace

std::string writability(const Medium &medium)
{
    const bool sequential = medium.rewriting == Rewriting::once || medium.rewriting == Rewriting::erase;
    const bool blank = sequential && medium.state == MediumState::blank;
    const bool open = medium.rewriting == Rewriting::once && medium.state == MediumState::appendable;
    std::string words;
    const auto add = [&words](const char *word) { words += (words.empty() ? "" : ", ") + std::string(word); };
    if (blank || open)
        add("appendable");
    if (blank)
        add("blank");
    if (canErase(medium))
        add("erasable");
    if (canWriteNow(medium))
        add("overwritable");
    return words.empty() ? notWritable : words;
}

std::string speedFactor(double speed, Family family)
{
    const double single = singleSpeed(family);
    const double factor = single > 0 ? speed / single : 0.0;
    const bool whole = std::abs(factor - std::round(factor)) < 0.15;
    return fixed(factor, whole || factor >= 10 ? 0 : 1, 0) + 'x';
}

std::string minutesSecondsFrames(uint64_t blocks)
{
    return twoDigits(blocks / 75 / 60) + ':' + twoDigits(blocks / 75 % 60) + ':' + twoDigits(blocks % 75);
}

std::string sizeColumns(uint64_t blocks)
{
    const double bytes = static_cast<double>(blocks) * blockBytes;
    return padded(std::to_string(blocks), 8, true) + " / " + fixed(bytes / 1e6, 2, 6) + "MB / "
        + fixed(bytes / (1024.0 * 1024.0), 2, 6) + "MiB";
}

std::string statusText(const Medium &medium)
{
    if (medium.kind == MediumKind::none)
        return labelled("Type:", factsOf(medium.kind).type) + '\n';
    std::string text = labelled("Type:", padded(factsOf(medium.kind).type, 21, false));
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
