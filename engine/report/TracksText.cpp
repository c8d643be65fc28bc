#include "report/TracksText.h"

#include "report/StatusText.h"

#include <algorithm>

namespace engine::report {

namespace {

/// Characters of a UTF-8 text.
std::size_t widthOf(const std::string &text)
{
    return static_cast<std::size_t>(std::ranges::count_if(
        text, [](char letter) { return (static_cast<unsigned char>(letter) & 0xc0) != 0x80; }));
}

std::string left(std::string text, std::size_t width)
{
    text.append(width - std::min(width, widthOf(text)), ' ');
    return text;
}

std::string right(const std::string &text, std::size_t width)
{
    return std::string(width - std::min(width, text.size()), ' ') + text;
}

std::string nameLine(const std::string &label, const std::string &name)
{
    return name.empty() ? name : label + name + '\n';
}

/// The gaps between the cells are part of the format: 7, 14, 24, 34.
std::string line(const std::string &number, const std::string &kind, const std::string &start,
    const std::string &length, const Texts &texts, std::size_t titleWidth)
{
    std::string text = right(number, 5) + "  " + left(kind, 7) + left(start, 10) + left(length, 10)
        + left(texts.title, titleWidth) + "  " + texts.performer;
    text.erase(text.find_last_not_of(' ') + 1);
    return text + '\n';
}

} // namespace

std::string tracksText(const DiscTracks &disc)
{
    const bool named =
        std::ranges::any_of(disc.tracks, [](const TrackRecord &track) { return track.texts != Texts(); });
    const Texts heads = named ? Texts{ "Title", "Performer" } : Texts();
    std::size_t titleWidth = widthOf(heads.title);
    for (const TrackRecord &track : disc.tracks)
        titleWidth = std::max(titleWidth, widthOf(track.texts.title));
    std::string text =
        nameLine("Album: ", disc.disc.title) + nameLine("Album performer: ", disc.disc.performer);
    text += line("Track", "Kind", "Start", "Length", heads, titleWidth);
    for (const TrackRecord &track : disc.tracks)
        text += line(std::to_string(track.number), track.audio ? "audio" : "data",
            minutesSecondsFrames(track.start), minutesSecondsFrames(track.sectors), track.texts, titleWidth);
    return text;
}

} // namespace engine::report
