// Pieces of the sentences that the engine says to a person.
#pragma once

#include "base/Result.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace engine {

/// `text` between quotation marks, fit for one line of any terminal: control characters and bytes
/// that are not UTF-8 appear as \xNN.
std::string quoted(std::string_view text);

/// The system's words for an errno value, begun with a small letter: "permission denied".
std::string reason(int error);

/// The same, and what to do about it: "permission denied; get the permission for it or choose another one". For the end
/// of an error's sentence, before its full stop.
std::string reasonAndAdvice(int error);

/// "The disc of drive 1 cannot be read: permission denied; get the permission for it or choose another one.";
/// `failure` is an errno.
Error systemError(const std::string &what, int failure);

/// A size for people, in decimal units: "734 MB", "4.7 GB", "512 bytes".
std::string sizeText(std::uint64_t bytes);

/// The room that blocks of 2048 bytes take, for people, and their number: "737.0 MB (359844 blocks)". One digit after the point, so
/// that two figures that hardly differ are not told as the same.
std::string blocksText(std::uint64_t blocks);

/// Length in bytes of the UTF-8 character that `text` begins with, 0 when its first byte begins
/// none (RFC 3629: no overlong forms, no surrogates, at most U+10FFFF) or `text` is empty.
std::size_t utf8Length(std::string_view text);

} // namespace engine
