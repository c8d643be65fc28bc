// What a person should know about the names on an image.
#pragma once

#include "image/FolderTree.h"

#include <string>
#include <vector>

namespace engine::image {

/// Adds a sentence for the names that systems which read only Joliet show otherwise, and one for what they do
/// not show at all. At most a few examples of each are named.
void addJolietNotes(const FolderTree &tree, std::vector<std::string> &notes);

} // namespace engine::image
