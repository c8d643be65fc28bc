// Data that are read once, from the first byte to the last.
#pragma once

#include "base/Result.h"

#include <cstddef>
#include <functional>
#include <span>

namespace engine {

/// Fills the buffer with the next bytes and returns their number, which is less than the buffer's size only at the end.
/// An error names the file that could not be read, or became shorter; whoever got one does not ask again.
using Read = std::function<Result<std::size_t>(std::span<std::byte> buffer)>;

} // namespace engine
