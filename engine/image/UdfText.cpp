#include "image/UdfText.h"

#include "image/Unicode.h"

#include <algorithm>

namespace engine::image {

namespace {

bool isNarrow(std::u16string_view text)
{
    return std::ranges::all_of(text, [](char16_t unit) { return unit < 0x100; });
}

} // namespace

std::u16string_view udfFitting(std::u16string_view text, std::size_t bytes)
{
    if (const auto narrow = text.substr(0, bytes - 1); isNarrow(narrow) && narrow.size() == text.size())
        return text;
    const auto wide = cutTo(text, (bytes - 1) / 2);
    // What remains of a long text may be narrow even so, and then more of it fits.
    std::u16string_view narrow = text.substr(0, bytes - 1);
    narrow = narrow.substr(0, static_cast<std::size_t>(std::ranges::find_if(narrow, [](char16_t unit) {
        return unit >= 0x100;
    }) - narrow.begin()));
    return narrow.size() > wide.size() ? narrow : wide;
}

std::string udfBytes(std::u16string_view text)
{
    if (text.empty())
        return {};
    const bool narrow = isNarrow(text);
    std::string bytes(1, narrow ? char(8) : char(16));
    for (const char16_t unit : text) {
        if (!narrow)
            bytes += static_cast<char>(unit >> 8);
        bytes += static_cast<char>(unit & 0xff);
    }
    return bytes;
}

} // namespace engine::image
