// Which files of a disc lie in given blocks.
#pragma once

#include "base/Fd.h"

#include <cstdint>
#include <string>
#include <vector>

namespace engine::image {

/// The paths of the files in the ISO 9660 volume that `disc` reads (by its Joliet names where it has them) whose data lie in
/// one of `blocks`; sorted. What cannot be read of the folders is passed over, and any bytes may be there: at most as many
/// folders are looked at as a disc holds. Empty where the blocks belong to no file.
std::vector<std::string> filesAt(const ReadAt &disc, const std::vector<std::uint64_t> &blocks);

} // namespace engine::image
