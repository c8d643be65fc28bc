#include "audio/WaveText.h"

#include "audio/Latin1.h"
#include "audio/Riff.h"

#include <algorithm>
#include <array>

namespace engine::audio {

namespace {

constexpr std::uint64_t riffHeader = 12;
constexpr std::size_t listType = 4; ///< bytes before the chunks of a list
constexpr std::size_t longestText = 1000;

struct Field {
    const char *id;
    std::string WaveText::*text;
};

constexpr std::array fields{
    Field{ "INAM", &WaveText::title },
    Field{ "IART", &WaveText::artist },
    Field{ "IPRD", &WaveText::album },
};

std::string fieldText(const ReadAt &readAt, const Chunk &chunk, std::uint64_t end)
{
    const std::uint64_t there = std::min<std::uint64_t>(chunk.size, end - std::min(chunk.offset, end));
    std::string text = textAt(readAt, chunk.offset, std::min<std::uint64_t>(there, longestText));
    // Half a UTF-8 character at the place where a long text is cut would make another encoding of all of it.
    if (there > longestText) {
        while (!text.empty() && (static_cast<unsigned char>(text.back()) & 0xc0) == 0x80)
            text.pop_back();
        if (!text.empty() && static_cast<unsigned char>(text.back()) >= 0xc0)
            text.pop_back();
    }
    return oneLine(text);
}

void readList(const ReadAt &readAt, const Chunk &list, std::uint64_t fileSize, WaveText &text)
{
    if (list.size < listType || textAt(readAt, list.offset, listType) != "INFO")
        return;
    const std::uint64_t end = std::min(list.offset + list.size, fileSize);
    walkChunks(readAt, list.offset + listType, end, [&](const Chunk &chunk) {
        const auto field = std::ranges::find(fields, chunk.id, [](const Field &row) { return row.id; });
        if (field != fields.end())
            text.*field->text = fieldText(readAt, chunk, end);
        return true;
    });
}

} // namespace

WaveText waveText(const ReadAt &readAt, std::uint64_t fileSize)
{
    WaveText text;
    walkChunks(readAt, riffHeader, fileSize, [&](const Chunk &chunk) {
        if (chunk.id == "LIST")
            readList(readAt, chunk, fileSize, text);
        // A size that was never filled in: what follows is sound up to the end.
        return chunk.id != "data" || chunk.size != 0;
    });
    return text;
}

} // namespace engine::audio
