// Opening what lies in a tree.
#pragma once

#include "base/Fd.h"
#include "image/FolderTree.h"

#include <cstdint>

namespace engine::image {

/// Opens folders and files of a tree one after another, cheaply when neighbours follow each other,
/// and without limit on the length of a path. One owner; not thread-safe.
class TreeOpener {
public:
    explicit TreeOpener(const FolderTree &tree);
    /// Makes `folder` the current one and returns its descriptor, owned by this object and valid
    /// until the next call; -1 with errno on failure.
    int enter(std::uint32_t folder);
    /// A regular file, open for reading; empty with errno on failure.
    Fd openFile(std::uint32_t file);

private:
    Fd openChain(std::uint32_t folder) const;
    const FolderTree &m_tree;
    std::uint32_t m_current = 0;
    Fd m_root;
    Fd m_folder; ///< of m_current, when that is not the root
};

} // namespace engine::image
