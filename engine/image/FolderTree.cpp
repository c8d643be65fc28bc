#include "image/FolderTree.h"

namespace engine::image {

std::string FolderTree::relativePath(std::uint32_t entry) const
{
    if (entry == 0)
        return ".";
    std::vector<const char *> names;
    for (; entry != 0; entry = m_entries[entry].parent)
        names.push_back(name(m_entries[entry]));
    std::string path = names.back();
    for (std::size_t at = names.size() - 1; at-- > 0;)
        path.append(1, '/').append(names[at]);
    return path;
}

std::string FolderTree::path(std::uint32_t entry) const
{
    if (entry == 0)
        return m_folder;
    return m_folder + (m_folder.ends_with('/') ? "" : "/") + relativePath(entry);
}

} // namespace engine::image
