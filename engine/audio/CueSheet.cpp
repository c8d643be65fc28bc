#include "audio/CueSheet.h"

#include "audio/Latin1.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace engine::audio {

namespace {

std::string quotedName(std::string name, char mark, char lineBreak)
{
    std::ranges::replace(name, '"', mark);
    std::ranges::replace(name, '\n', lineBreak);
    std::ranges::replace(name, '\r', lineBreak);
    return '"' + name + '"';
}

std::string nameLines(const Texts &texts, const std::string &indent)
{
    std::string lines;
    if (!texts.title.empty())
        lines += indent + "TITLE " + quotedName(latin1Of(texts.title).text, '\'', ' ') + '\n';
    if (!texts.performer.empty())
        lines += indent + "PERFORMER " + quotedName(latin1Of(texts.performer).text, '\'', ' ') + '\n';
    return lines;
}

std::string_view takeLine(std::string_view &text)
{
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
    return line;
}

/// What stands behind `word` at the start of `line`.
std::optional<std::string_view> behind(std::string_view line, std::string_view word)
{
    if (!line.starts_with(word))
        return std::nullopt;
    return line.substr(word.size());
}

std::string unquoted(std::string_view text)
{
    const std::size_t first = text.find('"');
    const std::size_t last = text.rfind('"');
    return first < last ? oneLine(text.substr(first + 1, last - first - 1)) : std::string();
}

/// The sector of "mm:ss:ff".
std::uint64_t sectorOf(std::string_view time)
{
    std::uint64_t sector = 0;
    for (const std::uint64_t units :
        { std::uint64_t{ 60 }, std::uint64_t{ sectorsPerSecond }, std::uint64_t{ 1 } }) {
        std::uint64_t number = 0;
        const char *end = std::from_chars(time.data(), time.data() + time.size(), number).ptr;
        sector = (sector + number) * units;
        time.remove_prefix(std::min(static_cast<std::size_t>(end - time.data()) + 1, time.size()));
    }
    return sector;
}

} // namespace

std::string cueSheet(const std::string &binName, const AudioDisc &disc)
{
    std::string sheet = nameLines(disc.text.disc, "");
    sheet += "FILE " + quotedName(binName, '_', '_') + " BINARY\n";
    std::uint32_t start = firstPause;
    for (std::size_t index = 0; index < disc.tracks.size(); ++index) {
        sheet += std::string("  TRACK ") + (index < 9 ? "0" : "") + std::to_string(index + 1) + " AUDIO\n";
        if (index < disc.text.tracks.size())
            sheet += nameLines(disc.text.tracks[index], "    ");
        if (index == 0)
            sheet += "    INDEX 00 " + msf(0) + "\n";
        sheet += "    INDEX 01 " + msf(start) + "\n";
        start += disc.tracks[index].sectors;
    }
    return sheet;
}

DiscTracks tracksOfSheet(std::string_view sheet, std::uint64_t sectors)
{
    DiscTracks disc;
    while (!sheet.empty()) {
        const std::string_view line = takeLine(sheet);
        Texts &texts = disc.tracks.empty() ? disc.disc : disc.tracks.back().texts;
        if (const auto title = behind(line, "TITLE "))
            texts.title = unquoted(*title);
        else if (const auto performer = behind(line, "PERFORMER "))
            texts.performer = unquoted(*performer);
        else if (behind(line, "TRACK "))
            disc.tracks.push_back({ static_cast<int>(disc.tracks.size()) + 1, true, 0, 0, {} });
        else if (const auto time = behind(line, "INDEX 01 "); time && !disc.tracks.empty())
            disc.tracks.back().start = sectorOf(*time);
    }
    std::uint64_t end = sectors;
    for (std::size_t i = disc.tracks.size(); i > 0; --i) {
        TrackRecord &track = disc.tracks[i - 1];
        track.sectors = end - std::min(track.start, end);
        end = track.start;
    }
    return disc;
}

} // namespace engine::audio
