#include "writing/FolderStaging.h"

#include "compilation/FolderTree.h"

#include <QCoreApplication>

#include <array>
#include <cerrno>
#include <climits>
#include <fcntl.h>
#include <filesystem>
#include <linux/fs.h>
#include <map>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <system_error>
#include <thread>
#include <unistd.h>
#include <utility>
#include <vector>

namespace writing {
namespace {

using compilation::TreeCursor;

/// Called on the thread that copies.
std::string translated(const char *text)
{
    return QCoreApplication::translate("FolderStaging", text).toStdString();
}

/// A file descriptor that is closed with its scope.
class Descriptor {
public:
    explicit Descriptor(int fd)
        : m_fd(fd)
    {
    }
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

/// Copies what the walk comes by. Two cursors go through the two trees side by side.
class Copier : public compilation::TreeVisitor {
public:
    /// `source` and `destination` are the paths of the folders that begin the two trees.
    Copier(TreeCursor &from, std::string source, TreeCursor &to, std::string destination,
        const std::string &never, CopyState &state, const std::function<void(const std::string &)> &failed)
        : TreeVisitor(from)
        , m_to(to)
        , m_source(std::move(source))
        , m_destination(std::move(destination))
        , m_state(state)
        , m_failed(failed)
    {
        struct stat info;
        if (::stat(never.c_str(), &info) == 0)
            m_never = { info.st_dev, info.st_ino };
    }

    /// Makes the copy of the folder in which the source's cursor stands, called `name`, and goes into it.
    bool beginFolder(const std::string &name)
    {
        struct stat info;
        if (::fstat(at.fd(), &info) != 0)
            return fail(here(), errno), false;
        if (std::pair(info.st_dev, info.st_ino) == m_never)
            return fail(here(),
                       translated(QT_TRANSLATE_NOOP(
                           "FolderStaging", "is the folder in which the disc is gathered, and is left out"))),
                   false;
        if (m_state.stop)
            return false;
        if ((::mkdirat(m_to.fd(), name.c_str(), S_IRWXU) != 0 && errno != EEXIST) || !m_to.enter(name))
            return fail(here(), errno), false;
        m_folders.push_back(info);
        return true;
    }

    bool visit(const TreeCursor::Entry &entry) override
    {
        struct stat info;
        if (m_state.stop)
            return false;
        if (::fstatat(at.fd(), entry.name.c_str(), &info, AT_SYMLINK_NOFOLLOW) != 0)
            fail(here(entry.name), errno);
        else if (S_ISDIR(info.st_mode))
            return enterFolder(entry.name);
        else if (S_ISLNK(info.st_mode))
            copyLink(entry.name, info);
        else if (!S_ISREG(info.st_mode))
            fail(here(entry.name),
                translated(
                    QT_TRANSLATE_NOOP("FolderStaging", "is no file, folder or link, and is left out")));
        else if (info.st_nlink == 1 || !linkToFirst(entry.name, info))
            copyFile(entry.name, entry.name);
        return false;
    }

    void left(const std::string &) override { finishFolder(); }

    void unreadable(int error) override { fail(here(), error); }

    /// Copies the file `name` of the folder in which the source's cursor stands; the copy is called `copy`.
    void copyFile(const std::string &name, const std::string &copy)
    {
        // Not blocking: where the file has become a pipe meanwhile, nobody may ever write into it.
        const Descriptor from(
            ::openat(at.fd(), name.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
        struct stat info;
        if (from < 0 || ::fstat(from, &info) != 0)
            return fail(here(name), errno);
        // A source on a server may answer late, when the folder of the copy has already been emptied.
        if (m_state.stop)
            return;
        const Descriptor to(
            ::openat(m_to.fd(), copy.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR));
        if (to < 0)
            return fail(here(name), errno);
        const bool copied = copyContent(from, to, info);
        const int error = errno;
        if (copied && !m_state.stop) {
            ++m_state.files;
            return keepModeAndTimes(to, info, S_IRUSR);
        }
        // Half a file would look like a whole one on the disc.
        ::unlinkat(m_to.fd(), copy.c_str(), 0);
        if (!copied)
            fail(here(name), error);
    }

    /// Gives the folder of the copy the mode and the times of its source, and goes up from it.
    void finishFolder()
    {
        keepModeAndTimes(m_to.fd(), m_folders.back(), S_IRWXU);
        m_folders.pop_back();
        if (m_to.leave())
            return;
        fail(here(),
            translated(QT_TRANSLATE_NOOP("FolderStaging", "its copy was moved while it was being made")));
        m_state.stop = true;
    }

    /// The path of the source's folder in which the walk is.
    std::string here() const { return m_source + at.path(); }

    void fail(const std::string &path, const std::string &why) { m_failed(path + ": " + why); }

private:
    std::string here(const std::string &name) const { return here() + '/' + name; }

    void fail(const std::string &path, int error)
    {
        if (error == ENOSPC || error == EDQUOT)
            ++m_state.didNotFit;
        fail(path, std::generic_category().message(error));
    }

    bool enterFolder(const std::string &name)
    {
        if (!at.enter(name))
            return fail(here(name), errno), false;
        if (beginFolder(name))
            return true;
        at.leave();
        return false;
    }

    /// A second name of a file that was copied before becomes a second name of the copy.
    bool linkToFirst(const std::string &name, const struct stat &info)
    {
        const auto [first, isNew] =
            m_linked.try_emplace({ info.st_dev, info.st_ino }, m_destination + at.path() + '/' + name);
        if (isNew || ::linkat(AT_FDCWD, first->second.c_str(), m_to.fd(), name.c_str(), 0) != 0)
            return false;
        ++m_state.files;
        m_state.bytes += info.st_size;
        return true;
    }

    void copyLink(const std::string &name, const struct stat &info)
    {
        std::array<char, PATH_MAX> target{};
        const ssize_t length = ::readlinkat(at.fd(), name.c_str(), target.data(), target.size() - 1);
        if (m_state.stop)
            return;
        if (length < 0 || ::symlinkat(target.data(), m_to.fd(), name.c_str()) != 0)
            return fail(here(name), errno);
        ++m_state.files;
        const timespec times[] = { info.st_atim, info.st_mtim };
        ::utimensat(m_to.fd(), name.c_str(), times, AT_SYMLINK_NOFOLLOW);
    }

    bool copyContent(int from, int to, const struct stat &info)
    {
        off_t size = info.st_size;
        if (size == 0)
            return true;
        if (m_canClone) {
            if (::ioctl(to, FICLONE, from) == 0) {
                m_state.bytes += size;
                return true;
            }
            m_canClone = false;
        }
        // Looking for holes and setting the length are a sixth of the work on a small file, so they are
        // left out where the blocks show that there is no hole.
        constexpr off_t blockSize = 512; // of st_blocks, whatever the file system's is
        const bool whole = info.st_blocks >= (size + blockSize - 1) / blockSize;
        if (!(whole ? copyRange(from, to, 0, size, size) : copyRegions(from, to, size)))
            return false;
        struct stat copy;
        return ::fstat(to, &copy) == 0 && (copy.st_size == size || ::ftruncate(to, size) == 0);
    }

    /// Copies the regions of data one by one; what lies between them is a hole in the copy too.
    bool copyRegions(int from, int to, off_t &size)
    {
        off_t end = 0;
        while (end < size && !m_state.stop) {
            const off_t start = ::lseek(from, end, SEEK_DATA);
            if (start < 0 && errno == ENXIO)
                break;
            const off_t region = start < 0 ? end : start;
            const off_t hole = start < 0 ? -1 : ::lseek(from, region, SEEK_HOLE);
            end = hole < 0 ? size : hole;
            if (!copyRange(from, to, region, end, size))
                return false;
        }
        return true;
    }

    /// Copies from `start` to `end`. A file that ends before its `size` is as long as its content.
    bool copyRange(int from, int to, off_t start, off_t end, off_t &size)
    {
        // One call may move 2 GiB, and nothing ends it before.
        constexpr off_t mostAtOnce = 64 << 20;
        off_t in = start;
        off_t out = start;
        while (in < end && !m_state.stop) {
            const ssize_t moved = m_canOffload ? ::copy_file_range(from, &in, to, &out,
                                      static_cast<std::size_t>(std::min(end - in, mostAtOnce)), 0)
                                               : copyBuffer(from, to, in, out, end);
            if (moved > 0) {
                m_state.bytes += moved;
                continue;
            }
            if (!m_canOffload) {
                size = in;
                return moved == 0;
            }
            // Nothing moved is the end of the file, or a file system that cannot do it and does not say so.
            if (moved < 0 && errno != EXDEV && errno != EINVAL && errno != ENOSYS && errno != EOPNOTSUPP)
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
            const ssize_t n = ::pwrite(
                to, m_buffer.data() + written, static_cast<std::size_t>(got - written), out + written);
            if (n < 0)
                return -1;
            written += n;
        }
        in += got;
        out += got;
        return got;
    }

    /// `needed` is what the owner has to be able to do with the copy.
    static void keepModeAndTimes(int fd, const struct stat &info, mode_t needed)
    {
        ::fchmod(fd, (info.st_mode & 07777) | needed);
        const timespec times[] = { info.st_atim, info.st_mtim };
        ::futimens(fd, times);
    }

    TreeCursor &m_to;
    const std::string m_source;
    const std::string m_destination;
    std::vector<struct stat> m_folders; ///< the source of each folder of the copy from the top to here
    CopyState &m_state;
    const std::function<void(const std::string &)> &m_failed;
    std::pair<dev_t, ino_t> m_never{ 0, 0 };
    std::map<std::pair<dev_t, ino_t>, std::string> m_linked;
    std::vector<char> m_buffer;
    bool m_canClone = true;
    bool m_canOffload = true;
};

} // namespace

bool CopyState::waitForEnd(std::chrono::milliseconds limit) const
{
    const auto deadline = std::chrono::steady_clock::now() + limit;
    while (!ended && std::chrono::steady_clock::now() < deadline)
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    return ended;
}

void CopyState::tell(const std::string &failure)
{
    const std::lock_guard lock(m_mutex);
    m_failures.push_back(failure);
}

std::vector<std::string> CopyState::takeFailures()
{
    const std::lock_guard lock(m_mutex);
    return std::exchange(m_failures, {});
}

void copyFolder(const std::string &source, const std::string &destination, const std::string &never,
    CopyState &state, const std::function<void(const std::string &)> &failed)
{
    const std::string path = source.substr(0, source.find_last_not_of('/') + 1);
    const std::string name = path.substr(path.find_last_of('/') + 1);
    TreeCursor from(source);
    TreeCursor to(destination);
    if (name.empty() || name == "." || name == "..")
        failed(source + ": "
            + translated(QT_TRANSLATE_NOOP("FolderStaging", "has no name under which it could be copied")));
    else if (from.fd() < 0 || to.fd() < 0)
        failed((from.fd() < 0 ? source : destination) + ": " + std::generic_category().message(errno));
    else if (Copier copier(from, path, to, destination + '/' + name, never, state, failed);
             copier.beginFolder(name)) {
        if (walkTree(copier))
            copier.finishFolder();
        else
            copier.fail(copier.here(),
                translated(QT_TRANSLATE_NOOP("FolderStaging", "was moved while it was being copied")));
    }
    state.ended = true;
}

void copyFile(const std::string &source, const std::string &destination, CopyState &state,
    const std::function<void(const std::string &)> &failed)
{
    std::error_code missing;
    const std::filesystem::path real = std::filesystem::canonical(source, missing);
    const std::string folder = real.parent_path();
    TreeCursor from(folder);
    TreeCursor to(destination);
    struct stat info;
    if (missing || from.fd() < 0 || ::stat(real.c_str(), &info) != 0)
        failed(
            source + ": " + (missing ? missing : std::error_code(errno, std::generic_category())).message());
    else if (to.fd() < 0)
        failed(destination + ": " + std::generic_category().message(errno));
    else if (!S_ISREG(info.st_mode))
        failed(source + ": "
            + translated(QT_TRANSLATE_NOOP("FolderStaging", "is no file, folder or link, and is left out")));
    else
        Copier(from, folder == "/" ? "" : folder, to, destination, {}, state, failed)
            .copyFile(real.filename(), source.substr(source.find_last_of('/') + 1));
    state.ended = true;
}

} // namespace writing
