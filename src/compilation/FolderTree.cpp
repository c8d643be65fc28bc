#include "compilation/FolderTree.h"

#include <QCoreApplication>

#include <cerrno>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace compilation {

TreeCursor::Level TreeCursor::opened(int at, const char *name, int flags)
{
    Level level;
    level.fd = ::openat(at, name, O_RDONLY | O_DIRECTORY | O_CLOEXEC | flags);
    struct stat info;
    if (level.fd >= 0 && ::fstat(level.fd, &info) == 0) {
        level.device = info.st_dev;
        level.inode = info.st_ino;
    }
    return level;
}

TreeCursor::TreeCursor(const std::string &path)
    : m_levels{ opened(AT_FDCWD, path.c_str(), 0) }
{
}

TreeCursor::~TreeCursor()
{
    for (const Level &level : m_levels) {
        if (level.fd >= 0)
            ::close(level.fd);
    }
}

bool TreeCursor::enter(const std::string &name)
{
    constexpr std::size_t keptOpen = 16;
    const Level below = opened(fd(), name.c_str(), O_NOFOLLOW);
    if (below.fd < 0)
        return false;
    if (m_levels.size() >= keptOpen)
        ::close(std::exchange(m_levels[m_levels.size() - keptOpen].fd, -1));
    m_levels.push_back(below);
    m_path += '/' + name;
    return true;
}

bool TreeCursor::leave()
{
    Level &above = m_levels[m_levels.size() - 2];
    if (above.fd < 0) {
        const Level found = opened(fd(), "..", 0);
        if (found.fd < 0)
            return false;
        if (found.device != above.device || found.inode != above.inode) {
            ::close(found.fd);
            return false;
        }
        above.fd = found.fd;
    }
    ::close(fd());
    m_levels.pop_back();
    m_path.resize(m_path.rfind('/'));
    return true;
}

int TreeCursor::list(std::vector<Entry> &found) const
{
    const int copy = ::fcntl(fd(), F_DUPFD_CLOEXEC, 0);
    const std::unique_ptr<DIR, int (*)(DIR *)> stream(copy < 0 ? nullptr : ::fdopendir(copy), ::closedir);
    if (!stream)
        return errno;
    errno = 0;
    while (const dirent *entry = ::readdir(stream.get())) {
        if (std::strcmp(entry->d_name, ".") == 0 || std::strcmp(entry->d_name, "..") == 0)
            continue;
        bool isFolder = entry->d_type == DT_DIR;
        if (entry->d_type == DT_UNKNOWN) {
            struct stat info;
            isFolder =
                ::fstatat(fd(), entry->d_name, &info, AT_SYMLINK_NOFOLLOW) == 0 && S_ISDIR(info.st_mode);
        }
        found.push_back({ entry->d_name, isFolder });
        errno = 0;
    }
    return errno;
}

bool walkTree(TreeVisitor &visitor)
{
    // For each folder of the way down, what is still to be visited in it.
    std::vector<std::vector<TreeCursor::Entry>> rest;
    std::vector<std::string> names;
    const auto begin = [&visitor, &rest] {
        if (const int error = visitor.at.list(rest.emplace_back()))
            visitor.unreadable(error);
    };
    begin();
    while (!rest.empty()) {
        if (!rest.back().empty()) {
            const TreeCursor::Entry entry = std::move(rest.back().back());
            rest.back().pop_back();
            if (visitor.visit(entry)) {
                names.push_back(entry.name);
                begin();
            }
            continue;
        }
        rest.pop_back();
        if (names.empty())
            break;
        if (!visitor.at.leave())
            return false;
        visitor.left(names.back());
        names.pop_back();
    }
    return true;
}

namespace {

class Sizing : public TreeVisitor {
public:
    using TreeVisitor::TreeVisitor;

    bool visit(const TreeCursor::Entry &entry) override
    {
        struct stat info;
        if (::fstatat(at.fd(), entry.name.c_str(), &info, 0) == 0)
            total += static_cast<std::uint64_t>(info.st_size);
        return entry.isFolder && at.enter(entry.name);
    }
    void left(const std::string &) override { }
    void unreadable(int) override { }

    std::uint64_t total = 0;
};

class Emptying : public TreeVisitor {
public:
    Emptying(
        TreeCursor &cursor, const std::string &path, const std::function<void(const std::string &)> &failed)
        : TreeVisitor(cursor)
        , m_path(path)
        , m_failed(failed)
    {
    }

    bool visit(const TreeCursor::Entry &entry) override
    {
        if (!entry.isFolder) {
            if (::unlinkat(at.fd(), entry.name.c_str(), 0) != 0)
                fail(entry.name, errno);
            return false;
        }
        bool entered = at.enter(entry.name);
        if (!entered && errno == EACCES && ::fchmodat(at.fd(), entry.name.c_str(), S_IRWXU, 0) == 0)
            entered = at.enter(entry.name);
        const int error = errno;
        if (entered)
            ::fchmod(at.fd(), S_IRWXU);
        else if (::unlinkat(at.fd(), entry.name.c_str(), AT_REMOVEDIR) != 0)
            fail(entry.name, error);
        return entered;
    }

    void left(const std::string &name) override
    {
        if (::unlinkat(at.fd(), name.c_str(), AT_REMOVEDIR) != 0)
            fail(name, errno);
    }

    void unreadable(int error) override
    {
        m_failed(m_path + at.path() + ": " + std::generic_category().message(error));
    }

private:
    void fail(const std::string &name, int error)
    {
        if (error != ENOENT)
            m_failed(m_path + at.path() + '/' + name + ": " + std::generic_category().message(error));
    }

    const std::string &m_path;
    const std::function<void(const std::string &)> &m_failed;
};

} // namespace

std::uint64_t treeSize(const std::string &path)
{
    TreeCursor folder(path);
    if (folder.fd() < 0)
        return 0;
    Sizing sizing(folder);
    walkTree(sizing);
    return sizing.total;
}

void emptyFolder(const std::string &path, const std::function<void(const std::string &)> &failed)
{
    TreeCursor folder(path);
    if (folder.fd() < 0)
        return;
    Emptying emptying(folder, path, failed);
    if (!walkTree(emptying))
        failed(path + folder.path() + ": "
            + QCoreApplication::translate("FolderTree", "was moved while it was being emptied")
                  .toStdString());
}

} // namespace compilation
