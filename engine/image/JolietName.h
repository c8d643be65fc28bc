// What Joliet can hold of a file name (Joliet, "Allowed Character Set").
#pragma once

#include <string_view>

namespace engine::image {

enum class JolietFit {
    whole,
    changed, ///< a character that Joliet forbids, or a byte that is not UTF-8, becomes '_'
    cut, ///< longer than 103 UTF-16 units; the end is lost
};

/// How a name, which may hold any bytes, fits into Joliet.
JolietFit jolietFit(std::string_view name);

} // namespace engine::image
