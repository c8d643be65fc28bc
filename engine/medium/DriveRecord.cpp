#include "medium/DriveRecord.h"

namespace engine {

namespace {

constexpr std::string_view numbers = "123456789abcdefghijklmnopqrstuvwxyz";
static_assert(numbers.size() == maximumDrives);

} // namespace

char driveNumber(std::size_t index)
{
    return numbers.at(index);
}

std::optional<std::size_t> driveIndex(std::string_view number)
{
    const std::size_t at = number.size() == 1 ? numbers.find(number.front()) : std::string_view::npos;
    if (at == std::string_view::npos)
        return std::nullopt;
    return at;
}

} // namespace engine
