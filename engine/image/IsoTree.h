// A folder's tree as the nodes of libisofs.
#pragma once

#include "base/Result.h"
#include "image/FolderTree.h"

struct Iso_Image;

namespace engine::image {

/// Puts everything in `tree` but its root into `image`, with names, times, modes and owners; of the data of the files
/// only their places (IsoPlace.h), in the order of the contents' numbers. An error names what libisofs does not take.
Result<void> addTree(const FolderTree &tree, Iso_Image *image);

} // namespace engine::image
