#include "compilation/FolderTree.h"

#include <cerrno>
#include <cstring>
#include <memory>

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

namespace compilation {

OpenFolder::OpenFolder(int at, const char *name, bool followLink)
    : m_fd(::openat(at, name, O_RDONLY | O_DIRECTORY | O_CLOEXEC | (followLink ? 0 : O_NOFOLLOW)))
{
}

OpenFolder::~OpenFolder()
{
    if (m_fd >= 0)
        ::close(m_fd);
}

std::vector<OpenFolder::Entry> OpenFolder::entries() const
{
    std::vector<Entry> found;
    const int copy = ::openat(m_fd, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const std::unique_ptr<DIR, int (*)(DIR *)> stream(copy < 0 ? nullptr : ::fdopendir(copy), ::closedir);
    if (!stream)
        return found;
    while (const dirent *entry = ::readdir(stream.get())) {
        if (std::strcmp(entry->d_name, ".") == 0 || std::strcmp(entry->d_name, "..") == 0)
            continue;
        bool isFolder = entry->d_type == DT_DIR;
        if (entry->d_type == DT_UNKNOWN) {
            struct stat info;
            isFolder = ::fstatat(m_fd, entry->d_name, &info, AT_SYMLINK_NOFOLLOW) == 0 && S_ISDIR(info.st_mode);
        }
        found.push_back({entry->d_name, isFolder});
    }
    return found;
}

namespace {

std::uint64_t sizeBelow(const OpenFolder &folder)
{
    std::uint64_t total = 0;
    for (const auto &entry : folder.entries()) {
        struct stat info;
        if (::fstatat(folder.fd(), entry.name.c_str(), &info, 0) == 0)
            total += static_cast<std::uint64_t>(info.st_size);
        if (!entry.isFolder)
            continue;
        const OpenFolder child(folder.fd(), entry.name.c_str());
        if (child.fd() >= 0)
            total += sizeBelow(child);
    }
    return total;
}

void emptyBelow(const OpenFolder &folder, const std::string &path,
                const std::function<void(const std::string &)> &failed)
{
    for (const auto &entry : folder.entries()) {
        const std::string entryPath = path + '/' + entry.name;
        if (entry.isFolder) {
            ::fchmodat(folder.fd(), entry.name.c_str(), S_IRWXU, 0);
            const OpenFolder child(folder.fd(), entry.name.c_str());
            if (child.fd() >= 0)
                emptyBelow(child, entryPath, failed);
        }
        if (::unlinkat(folder.fd(), entry.name.c_str(), entry.isFolder ? AT_REMOVEDIR : 0) != 0)
            failed(entryPath + ": " + std::strerror(errno));
    }
}

} // namespace

std::uint64_t treeSize(const std::string &path)
{
    const OpenFolder folder(AT_FDCWD, path.c_str(), true);
    return folder.fd() < 0 ? 0 : sizeBelow(folder);
}

void emptyFolder(const std::string &path, const std::function<void(const std::string &)> &failed)
{
    const OpenFolder folder(AT_FDCWD, path.c_str(), true);
    if (folder.fd() >= 0)
        emptyBelow(folder, path, failed);
}

} // namespace compilation
