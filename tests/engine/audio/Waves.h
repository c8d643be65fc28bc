// WAVE files made byte by byte.
#pragma once

#include <cstdint>
#include <string>

inline std::string little(std::uint64_t value, int size)
{
    std::string bytes;
    for (int byte = 0; byte < size; ++byte)
        bytes.push_back(static_cast<char>(value >> (8 * byte) & 0xff));
    return bytes;
}

inline std::string chunk(const std::string &id, const std::string &body)
{
    return id + little(body.size(), 4) + body + (body.size() % 2 ? std::string(1, '\0') : "");
}

struct WaveFormat {
    std::uint16_t tag = 1;
    std::uint16_t channels = 2;
    std::uint32_t rate = 44100;
    std::uint16_t bits = 16;
};

inline std::string formatBody(const WaveFormat &format = {})
{
    const std::uint32_t frame = format.channels * format.bits / 8U;
    return little(format.tag, 2) + little(format.channels, 2) + little(format.rate, 4)
        + little(format.rate * frame, 4) + little(frame, 2) + little(format.bits, 2);
}

/// WAVE_FORMAT_EXTENSIBLE with the sub-format of `tag`.
inline std::string extensibleBody(std::uint16_t tag, std::uint16_t bits = 16, std::uint16_t validBits = 16)
{
    return formatBody({ 0xfffe, 2, 44100, bits }) + little(22, 2) + little(validBits, 2) + little(3, 4)
        + little(tag, 2) + std::string("\x00\x00\x00\x00\x10\x00\x80\x00\x00\xaa\x00\x38\x9b\x71", 14);
}

inline std::string riff(const std::string &chunks)
{
    return "RIFF" + little(chunks.size() + 4, 4) + "WAVE" + chunks;
}

/// A whole file with `bytes` of samples, each byte telling its place.
inline std::string wave(std::size_t bytes)
{
    std::string samples(bytes, '\0');
    for (std::size_t at = 0; at < bytes; ++at)
        samples[at] = static_cast<char>(at * 7 + at / 251 + 1);
    return riff(chunk("fmt ", formatBody()) + chunk("data", samples));
}
