// A folder's tree as libisofs holds it, and the way the image of it is written.
#pragma once

#include "base/Result.h"
#include "image/FolderReader.h"
#include "image/FolderTree.h"

#include <memory>
#include <string>

struct Iso_Image;
namespace burn {
struct burn_source;
}

namespace engine::image {

struct IsoTreeRelease {
    void operator()(Iso_Image *tree) const;
};
using IsoTree = std::unique_ptr<Iso_Image, IsoTreeRelease>;

/// Builds the nodes of `tree`. The data of files is read through `reader`, which must live longer
/// than the result.
Result<IsoTree> buildIsoTree(const FolderTree &tree, FolderReader &reader, const std::string &volumeName);

/// Lays the image out and starts producing it: ISO 9660 level 3 with Joliet. The caller owns the
/// reference; its size is the exact size of the image. `tree` must live longer than the source.
Result<burn::burn_source *> startIso(const IsoTree &tree, bool rockRidge);

/// What libisofs said last about a failure, or "it failed without a reason".
std::string lastIsoMessage();

} // namespace engine::image
