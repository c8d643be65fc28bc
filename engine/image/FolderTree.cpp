#include "image/FolderTree.h"

#include <sys/stat.h>

namespace engine::image {

void FolderTree::arrange(std::vector<Content> contents, const std::vector<std::uint32_t> &numbers)
{
    m_contents = std::move(contents);
    for (std::size_t entry = 0; entry < m_entries.size(); ++entry)
        if (S_ISREG(m_entries[entry].mode))
            m_entries[entry].first = numbers[entry];
}

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
