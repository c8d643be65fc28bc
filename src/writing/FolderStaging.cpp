#include "writing/FolderStaging.h"

#include "compilation/FolderTree.h"

#include <cerrno>
#include <cstring>
#include <map>
#include <vector>

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace writing {
namespace {

using compilation::OpenFolder;

/// A file descriptor that is closed with its scope.
class Descriptor {
public:
    explicit Descriptor(int fd) : m_fd(fd) {}
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;
    ~Descriptor()
    {
        if (m_fd >= 0)
            ::close(m_fd);
    }
    operator int() const { return m_fd; }

private:
    int m_fd;
};

/// One file or folder of the tree: where it is read, where it goes, and its path for messages.
struct Item {
    const OpenFolder &from;
    const OpenFolder &to;
    const std::string &name;
    const std::string path;
};

class Copier {
public:
    Copier(std::string destination, const std::string &never, CopyState &state,
           const std::function<void(const std::string &)> &failed)
        : m_destination(std::move(destination)), m_state(state), m_failed(failed)
    {
        struct stat info;
        if (::stat(never.c_str(), &info) == 0)
            m_never = {info.st_dev, info.st_ino};
    }

    void copyInto(const OpenFolder &from, const OpenFolder &to, const std::string &path)
    {
        for (const auto &entry : from.entries()) {
            if (m_state.stop)
                return;
            copyItem({from, to, entry.name, path + '/' + entry.name});
        }
    }

    void copyFolderItem(const Item &item, const struct stat &info)
    {
        if (std::pair(info.st_dev, info.st_ino) == m_never)
            return fail(item.path, "is the folder in which the disc is gathered, and is left out");
        const OpenFolder from(item.from.fd(), item.name.c_str());
        if (from.fd() < 0)
            return fail(item.path, std::strerror(errno));
        if (::mkdirat(item.to.fd(), item.name.c_str(), S_IRWXU) != 0 && errno != EEXIST)
            return fail(item.path, std::strerror(errno));
        const OpenFolder to(item.to.fd(), item.name.c_str());
        if (to.fd() < 0)
            return fail(item.path, std::strerror(errno));
        copyInto(from, to, item.path);
        keepModeAndTimes(to.fd(), info);
    }

private:
    void fail(const std::string &path, const std::string &why) { m_failed(path + ": " + why); }

    void failAndMaybeStop(const std::string &path, int error)
    {
        fail(path, std::strerror(error));
        if (error == ENOSPC || error == EDQUOT)
            m_state.stop = true;
    }

    void copyItem(const Item &item)
    {
        struct stat info;
        if (::fstatat(item.from.fd(), item.name.c_str(), &info, AT_SYMLINK_NOFOLLOW) != 0)
            return fail(item.path, std::strerror(errno));
        if (S_ISDIR(info.st_mode))
            return copyFolderItem(item, info);
        if (S_ISLNK(info.st_mode))
            return copyLink(item, info);
        if (!S_ISREG(info.st_mode))
            return fail(item.path, "is no file, folder or link, and is left out");
        if (info.st_nlink == 1 || !linkToFirst(item, info))
            copyFile(item, info);
    }

    /// A second name of a file that was copied before becomes a second name of the copy.
    bool linkToFirst(const Item &item, const struct stat &info)
    {
        const auto [first, isNew] = m_linked.try_emplace({info.st_dev, info.st_ino}, m_destination + item.path);
        return !isNew && ::linkat(AT_FDCWD, first->second.c_str(), item.to.fd(), item.name.c_str(), 0) == 0;
    }

    void copyLink(const Item &item, const struct stat &info)
    {
        std::vector<char> target(static_cast<std::size_t>(info.st_size) + 256);
        const ssize_t length = ::readlinkat(item.from.fd(), item.name.c_str(), target.data(), target.size() - 1);
        if (length < 0 || ::symlinkat(target.data(), item.to.fd(), item.name.c_str()) != 0)
            return failAndMaybeStop(item.path, errno);
        const timespec times[] = {info.st_atim, info.st_mtim};
        ::utimensat(item.to.fd(), item.name.c_str(), times, AT_SYMLINK_NOFOLLOW);
    }

    void copyFile(const Item &item, const struct stat &info)
    {
        const Descriptor from(::openat(item.from.fd(), item.name.c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC));
        if (from < 0)
            return fail(item.path, std::strerror(errno));
        const Descriptor to(::openat(item.to.fd(), item.name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC,
                                     S_IRUSR | S_IWUSR));
        if (to < 0)
            return failAndMaybeStop(item.path, errno);
        if (!copyContent(from, to, info.st_size))
            return failAndMaybeStop(item.path, errno);
        keepModeAndTimes(to, info);
    }

    bool copyContent(int from, int to, off_t size)
    {
        if (size == 0)
            return true;
        if (m_canClone) {
            if (::ioctl(to, FICLONE, from) == 0)
                return true;
            m_canClone = false;
        }
        // Regions of data one by one; what lies between them is a hole in the copy too.
        off_t end = 0;
        while (end < size) {
            const off_t start = ::lseek(from, end, SEEK_DATA);
            if (start < 0 && errno == ENXIO)
                break;
            const off_t region = start < 0 ? end : start;
            end = start < 0 ? size : ::lseek(from, region, SEEK_HOLE);
            if (!copyRange(from, to, region, end))
                return false;
        }
        return ::ftruncate(to, size) == 0;
    }

    bool copyRange(int from, int to, off_t start, off_t end)
    {
        off_t in = start;
        off_t out = start;
        while (in < end && !m_state.stop) {
            const ssize_t moved = m_canOffload
                ? ::copy_file_range(from, &in, to, &out, static_cast<std::size_t>(end - in), 0)
                : copyBuffer(from, to, in, out, end);
            if (moved == 0)
                return true;
            if (moved > 0)
                continue;
            if (!m_canOffload || (errno != EXDEV && errno != EINVAL && errno != ENOSYS && errno != EOPNOTSUPP))
                return false;
            m_canOffload = false;
        }
        return true;
    }

    ssize_t copyBuffer(int from, int to, off_t &in, off_t &out, off_t end)
    {
        m_buffer.resize(1 << 20);
        const auto wanted = static_cast<std::size_t>(std::min<off_t>(end - in, 1 << 20));
        const ssize_t got = ::pread(from, m_buffer.data(), wanted, in);
        if (got <= 0)
            return got;
        ssize_t written = 0;
        while (written < got) {
            const ssize_t n = ::pwrite(to, m_buffer.data() + written, static_cast<std::size_t>(got - written), out + written);
            if (n < 0)
                return -1;
            written += n;
        }
        in += got;
        out += got;
        return got;
    }

    static void keepModeAndTimes(int fd, const struct stat &info)
    {
        ::fchmod(fd, info.st_mode & 07777);
        const timespec times[] = {info.st_atim, info.st_mtim};
        ::futimens(fd, times);
    }

    const std::string m_destination;
    CopyState &m_state;
    const std::function<void(const std::string &)> &m_failed;
    std::pair<dev_t, ino_t> m_never{0, 0};
    std::map<std::pair<dev_t, ino_t>, std::string> m_linked;
    std::vector<char> m_buffer;
    bool m_canClone = true;
    bool m_canOffload = true;
};

} // namespace

void copyFolder(const std::string &source, const std::string &destination, const std::string &never, CopyState &state,
                const std::function<void(const std::string &)> &failed)
{
    const std::size_t slash = source.find_last_of('/');
    const std::string parent = slash == 0 || slash == std::string::npos ? "/" : source.substr(0, slash);
    const std::string name = source.substr(slash + 1);
    const OpenFolder from(AT_FDCWD, parent.c_str(), true);
    const OpenFolder to(AT_FDCWD, destination.c_str(), true);
    struct stat info;
    if (from.fd() < 0 || to.fd() < 0 || ::fstatat(from.fd(), name.c_str(), &info, 0) != 0)
        failed(source + ": " + std::strerror(errno));
    else
        Copier(destination, never, state, failed).copyFolderItem({from, to, name, '/' + name}, info);
    state.ended = true;
}

} // namespace writing
