#include "image/JolietName.h"

#include "base/Words.h"

namespace engine::image {

namespace {

constexpr std::size_t longestName = 103; ///< UTF-16 units that fit into a directory record in practice

bool isForbidden(char character)
{
    return static_cast<unsigned char>(character) < 0x20
        || std::string_view("*/:;?\\").find(character) != std::string_view::npos;
}

} // namespace

JolietFit jolietFit(std::string_view name)
{
    JolietFit fit = JolietFit::whole;
    std::size_t units = 0;
    while (!name.empty()) {
        const std::size_t length = utf8Length(name);
        if (length == 0 || (length == 1 && isForbidden(name.front())))
            fit = JolietFit::changed;
        units += length == 4 ? 2 : 1;
        name.remove_prefix(length == 0 ? 1 : length);
    }
    return units > longestName ? JolietFit::cut : fit;
}

} // namespace engine::image
