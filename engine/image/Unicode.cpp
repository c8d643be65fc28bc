#include "image/Unicode.h"

#include "base/Words.h"

#include <algorithm>

namespace engine::image {

namespace {

constexpr char32_t firstPlane = 0x10000; ///< characters from here on take two units

bool isHighSurrogate(char16_t unit)
{
    return (unit & 0xfc00) == 0xd800;
}

char32_t codePoint(std::string_view character)
{
    const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(character[at]); };
    if (character.size() == 1)
        return byte(0);
    char32_t value = byte(0) & (0xffU >> (character.size() + 1));
    for (std::size_t at = 1; at < character.size(); ++at)
        value = value << 6 | (byte(at) & 0x3f);
    return value;
}

void append(std::string &text, char32_t value)
{
    const auto tail = [&](int shift) { text += static_cast<char>(0x80 | (value >> shift & 0x3f)); };
    if (value < 0x80) {
        text += static_cast<char>(value);
    } else if (value < 0x800) {
        text += static_cast<char>(0xc0 | value >> 6);
        tail(0);
    } else if (value < firstPlane) {
        text += static_cast<char>(0xe0 | value >> 12);
        tail(6);
        tail(0);
    } else {
        text += static_cast<char>(0xf0 | value >> 18);
        tail(12);
        tail(6);
        tail(0);
    }
}

} // namespace

std::u16string utf16(std::string_view bytes)
{
    std::u16string text;
    while (!bytes.empty()) {
        const std::size_t length = utf8Length(bytes);
        const char32_t value = length == 0 ? U'_' : codePoint(bytes.substr(0, length));
        if (value >= firstPlane) {
            text += static_cast<char16_t>(0xd800 + ((value - firstPlane) >> 10));
            text += static_cast<char16_t>(0xdc00 + ((value - firstPlane) & 0x3ff));
        } else {
            text += static_cast<char16_t>(value);
        }
        bytes.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return text;
}

std::string utf8(std::u16string_view text)
{
    std::string bytes;
    for (std::size_t at = 0; at < text.size(); ++at) {
        char32_t value = text[at];
        if (isHighSurrogate(text[at]) && at + 1 < text.size())
            value = firstPlane + ((value & 0x3ff) << 10) + (text[++at] & 0x3ff);
        append(bytes, value);
    }
    return bytes;
}

std::u16string_view cutTo(std::u16string_view text, std::size_t units)
{
    text = text.substr(0, units);
    // A pair that was cut through ends with its first half.
    if (!text.empty() && isHighSurrogate(text.back()))
        text.remove_suffix(1);
    return text;
}

} // namespace engine::image
