#include "program/SpeedOption.h"

#include "base/Words.h"

#include <cstdlib>

namespace engine::program {

bool isSpeed(std::string_view value)
{
    return parseSpeed(value).has_value();
}

Result<ToldWish> wishedSpeed(const Arguments &arguments)
{
    const char *set = std::getenv("CORVALIS_SPEED");
    const std::string value = arguments.has("-speed") ? arguments.valueOf("-speed") : set ? set : "";
    if (value.empty())
        return ToldWish();
    const auto wish = parseSpeed(value);
    if (!wish)
        return Error{ Exit::failed,
            "CORVALIS_SPEED has the value " + quoted(value)
                + ", which is no speed: set it to a factor such as 8 or 2.4, or to max." };
    return ToldWish{ *wish, true };
}

} // namespace engine::program
