// The option -speed and its variable, which the verbs that burn share.
#pragma once

#include "medium/Speed.h"
#include "program/Program.h"

namespace engine::program {

/// Whether parseSpeed() takes `value`.
bool isSpeed(std::string_view value);

constexpr Option speedOption{ "-speed", "-speed wants a factor such as 8 or 2.4, or max.", isSpeed };

/// A wish that somebody has told.
struct ToldWish {
    SpeedWish speed;
    bool told = false; ///< false: nobody said anything, and the fastest is taken
};

/// What the option says, else what $CORVALIS_SPEED does. An error (Exit::failed) where the variable has a value that is
/// no speed and the option is not there.
Result<ToldWish> wishedSpeed(const Arguments &arguments);

} // namespace engine::program
