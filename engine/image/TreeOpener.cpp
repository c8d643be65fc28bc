#include "image/TreeOpener.h"

#include <climits>
#include <fcntl.h>

namespace engine::image {

namespace {

constexpr int folderFlags = O_RDONLY | O_DIRECTORY | O_CLOEXEC;

} // namespace

TreeOpener::TreeOpener(const FolderTree &tree)
    : m_tree(tree)
{
}

int TreeOpener::enter(std::uint32_t folder)
{
    if (!m_root)
        m_root = Fd(open(m_tree.folder().c_str(), folderFlags));
    if (!m_root || folder == 0)
        return m_root.get();
    if (m_current == folder)
        return m_folder.get();
    const Entry &entry = m_tree.entries()[folder];
    const Fd &parent = m_current == 0 ? m_root : m_folder;
    m_folder = entry.parent == m_current ? Fd(openat(parent.get(), m_tree.name(entry), folderFlags))
                                         : openChain(folder);
    m_current = m_folder ? folder : 0;
    return m_folder.get();
}

// The kernel takes PATH_MAX bytes at once, so a deep folder is reached in several steps.
Fd TreeOpener::openChain(std::uint32_t folder) const
{
    const std::string path = m_tree.relativePath(folder);
    Fd reached;
    for (std::size_t at = 0; at < path.size();) {
        std::size_t end = path.size();
        if (end - at >= PATH_MAX)
            end = path.rfind('/', at + PATH_MAX - 2);
        const int from = reached ? reached.get() : m_root.get();
        Fd next(openat(from, path.substr(at, end - at).c_str(), folderFlags));
        if (!next)
            return next;
        reached = std::move(next);
        at = end + 1;
    }
    return reached;
}

Fd TreeOpener::openFile(std::uint32_t file)
{
    const Entry &entry = m_tree.entries()[file];
    const int folder = enter(entry.parent);
    if (folder < 0)
        return {};
    // Not blocking: should something else have taken the file's place, such as a pipe.
    const int flags = O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK | (m_tree.followsLinks() ? 0 : O_NOFOLLOW);
    return Fd(openat(folder, m_tree.name(entry), flags));
}

} // namespace engine::image
