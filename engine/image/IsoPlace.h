// What libisofs gets in the place of a file's data.
#pragma once

#include <array>
#include <cstdint>

struct iso_stream;

namespace engine::image {

/// What stands in for the first bytes of a file's data, to prove where libisofs puts it.
using Marker = std::array<char, 16>;

/// The marker of the content with this number.
Marker markerOf(std::uint32_t content);

/// A stream of libisofs that keeps the place of `size` bytes: the marker of `content`, and then whatever is in the
/// buffer. Two of the same content are one place. Null without memory; libisofs frees it with the file that takes it.
iso_stream *newPlace(std::uint32_t content, std::uint64_t size);

} // namespace engine::image
