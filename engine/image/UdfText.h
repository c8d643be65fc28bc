// Names in OSTA Compressed Unicode, the only character set of UDF (OSTA UDF 1.02 2.1.1).
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace engine::image {

/// The longest beginning of `text` that takes at most `bytes` bytes with the byte before it that tells the width of a
/// character. No pair of surrogates is parted.
std::u16string_view udfFitting(std::u16string_view text, std::size_t bytes);

/// `text` as bytes: the width of a character in bits, then the characters, of one byte each where all are below U+0100,
/// else of two, the high one first. Nothing for nothing.
std::string udfBytes(std::u16string_view text);

} // namespace engine::image
