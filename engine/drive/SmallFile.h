// Small text files that are read and replaced as a whole.
#pragma once

#include "base/Result.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace engine::drive {

constexpr std::size_t smallFileLimit = 64 * 1024; ///< bytes

/// The whole file `name` in the folder `folder`; otherwise an error for whoever knows what to do about it: `what` and
/// the system's reason, without a full stop. Files of smallFileLimit and more are refused.
Result<std::string> readSmallFile(int folder, const char *name, const std::string &what);

/// Replaces the file `name` in `folder` at once, so that a reader sees the old text or the new one and a
/// power cut leaves one of them. The error begins with `what`.
Result<void> replaceFile(int folder, const std::string &name, std::string_view text, const std::string &what);

} // namespace engine::drive
