#include "audio/Riff.h"

namespace engine::audio {

namespace {

// More than any real file has, few enough to walk at once.
constexpr int mostChunks = 10000;

} // namespace

std::string textAt(const ReadAt &readAt, std::uint64_t offset, std::size_t size)
{
    std::string text(size, '\0');
    text.resize(readAt(offset, std::as_writable_bytes(std::span(text))));
    return text;
}

std::uint32_t little32(const std::string &bytes, std::size_t at)
{
    std::uint32_t value = 0;
    for (std::size_t byte = 4; byte-- > 0;)
        value = value << 8 | static_cast<unsigned char>(bytes[at + byte]);
    return value;
}

void walkChunks(const ReadAt &readAt, std::uint64_t offset, std::uint64_t end,
    const std::function<bool(const Chunk &chunk)> &visit)
{
    for (int count = 0; count < mostChunks && offset + chunkHeader <= end; ++count) {
        const std::string header = textAt(readAt, offset, chunkHeader);
        if (header.size() < chunkHeader)
            return;
        const Chunk chunk{ header.substr(0, 4), offset + chunkHeader, little32(header, 4) };
        if (!visit(chunk))
            return;
        offset = chunk.offset + chunk.size + (chunk.size & 1U); // chunks begin at even offsets
    }
}

} // namespace engine::audio
