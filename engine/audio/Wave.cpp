#include "audio/Wave.h"

#include "audio/Riff.h"
#include "base/Words.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <optional>
#include <string_view>
#include <sys/stat.h>

namespace engine::audio {

namespace {

// mmreg.h
constexpr std::uint16_t formatPcm = 0x0001;
constexpr std::uint16_t formatExtensible = 0xfffe;

// KSDATAFORMAT_SUBTYPE_PCM as it lies in a file
constexpr std::array<unsigned char, 16> pcmSubFormat{ 0x01, 0x00, 0x00, 0x00, 0x00, 0x00, 0x10, 0x00, 0x80,
    0x00, 0x00, 0xaa, 0x00, 0x38, 0x9b, 0x71 };

constexpr std::uint64_t riffHeader = 12;
constexpr std::uint64_t frameSize = 4;
constexpr std::uint32_t unknownSize = 0xffffffff;

struct Format {
    std::uint16_t tag = 0;
    std::uint16_t channels = 0;
    std::uint32_t rate = 0;
    std::uint16_t bits = 0;
};

class Bytes {
public:
    Bytes(const ReadAt &readAt, std::uint64_t offset, std::size_t size)
        : m_size(readAt(offset, std::span(m_bytes).first(std::min(size, m_bytes.size()))))
    {
    }

    bool has(std::size_t size) const { return m_size >= size; }

    std::string_view id(std::size_t at) const
    {
        return { reinterpret_cast<const char *>(m_bytes.data()) + at, 4 };
    }

    std::uint32_t number(std::size_t at, std::size_t size) const
    {
        std::uint32_t value = 0;
        for (std::size_t byte = size; byte-- > 0;)
            value = value << 8 | std::to_integer<std::uint32_t>(m_bytes[at + byte]);
        return value;
    }

    std::uint16_t u16(std::size_t at) const { return static_cast<std::uint16_t>(number(at, 2)); }
    std::uint32_t u32(std::size_t at) const { return number(at, 4); }

    bool equals(std::size_t at, const std::array<unsigned char, 16> &value) const
    {
        return std::memcmp(m_bytes.data() + at, value.data(), value.size()) == 0;
    }

private:
    std::array<std::byte, 40> m_bytes{};
    std::size_t m_size;
};

Error no(const std::string &predicate)
{
    return { Exit::failed, predicate };
}

Error noTrack(const std::string &predicate)
{
    return no(predicate + "; convert it or take it out of the folder");
}

std::optional<Format> readFormat(const ReadAt &readAt, std::uint64_t offset, std::uint32_t size)
{
    const Bytes bytes(readAt, offset, size);
    if (size < 16 || !bytes.has(16))
        return {};
    Format format{ bytes.u16(0), bytes.u16(2), bytes.u32(4), bytes.u16(14) };
    if (format.tag == formatExtensible && size >= 40 && bytes.has(40) && bytes.equals(24, pcmSubFormat)) {
        format.tag = formatPcm;
        const std::uint16_t validBits = bytes.u16(18);
        if (validBits != 0)
            format.bits = std::min(format.bits, validBits);
    }
    return format;
}

Result<void> checkFormat(const std::optional<Format> &format)
{
    static const std::string wanted = "; an audio disc takes 16-bit 44100 Hz stereo PCM only, convert it";
    if (!format)
        return noTrack("is a WAVE file without a description of its format");
    if (format->tag != formatPcm)
        return no("holds compressed or floating-point sound" + wanted);
    if (format->bits != 16)
        return no("has " + std::to_string(format->bits) + "-bit samples" + wanted);
    if (format->rate != 44100)
        return no("has " + std::to_string(format->rate) + " samples a second" + wanted);
    if (format->channels != 2)
        return no("has " + std::to_string(format->channels)
            + (format->channels == 1 ? " channel" : " channels") + wanted);
    return {};
}

/// Whether a program that could not go back to its header left the sizes open.
bool isOpenEnded(std::uint32_t size, std::uint32_t riffSize, std::uint64_t rest, std::uint64_t fileSize)
{
    if (size == unknownSize || size > rest)
        return true;
    const bool riffIsOpen = riffSize == unknownSize || riffSize + chunkHeader > fileSize
        || riffSize + chunkHeader <= fileSize - rest;
    return size == 0 && riffIsOpen;
}

} // namespace

Result<WaveData> parseWave(const ReadAt &readAt, std::uint64_t fileSize)
{
    const Bytes riff(readAt, 0, riffHeader);
    if (!riff.has(riffHeader) || riff.id(0) != "RIFF" || riff.id(8) != "WAVE")
        return noTrack("is not a WAVE file");
    std::optional<Format> format;
    std::optional<Chunk> sound;
    walkChunks(readAt, riffHeader, fileSize, [&](const Chunk &chunk) {
        if (chunk.id == "fmt ")
            format = readFormat(readAt, chunk.offset, chunk.size);
        if (chunk.id == "data")
            sound = chunk;
        return !sound;
    });
    if (!sound)
        return noTrack("is a WAVE file without sound data");
    if (auto ok = checkFormat(format); !ok)
        return ok.error();
    const std::uint64_t rest = fileSize - sound->offset;
    WaveData data{ sound->offset,
        isOpenEnded(sound->size, riff.u32(4), rest, fileSize) ? rest : sound->size };
    data.size -= data.size % frameSize;
    if (data.size == 0)
        return noTrack("holds no sound");
    return data;
}

Result<WaveData> parseWave(std::span<const std::byte> file)
{
    return parseWave(readAtOf(file), file.size());
}

Result<Wave> readWave(const std::string &path)
{
    const auto failed = [&path](const std::string &predicate) {
        return Error{ Exit::failed, "The file " + quoted(path) + " " + predicate + "." };
    };
    const Fd file = openToRead(path);
    struct stat info { };
    if (!file || fstat(file.get(), &info) != 0)
        return failed("cannot be read: " + reasonAndAdvice(errno));
    if (!S_ISREG(info.st_mode))
        return failed(noTrack("is not a file").message);
    int readError = 0;
    const ReadAt readAt = readAtOf(file, readError);
    const auto size = static_cast<std::uint64_t>(info.st_size);
    const auto samples = parseWave(readAt, size);
    const WaveText text = samples ? waveText(readAt, size) : WaveText();
    if (readError != 0)
        return failed("cannot be read: " + reasonAndAdvice(readError));
    return samples ? Result<Wave>(Wave{ *samples, text }) : failed(samples.error().message);
}

} // namespace engine::audio
