// File names, which are bytes, as the 16-bit characters that Joliet and UDF store.
#pragma once

#include <string>
#include <string_view>

namespace engine::image {

/// `bytes` as UTF-16. A byte that is not part of a UTF-8 character becomes '_'.
std::u16string utf16(std::string_view bytes);

/// `text` as UTF-8, for a sentence. Surrogates come in pairs only.
std::string utf8(std::u16string_view text);

/// The first `units` 16-bit units of `text`, or one less where a pair of surrogates would be parted.
std::u16string_view cutTo(std::u16string_view text, std::size_t units);

} // namespace engine::image
