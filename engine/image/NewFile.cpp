#include "image/NewFile.h"

#include "base/Words.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>
#include <utility>

namespace engine::image {

namespace {

Error exists(const std::string &path)
{
    return { Exit::failed, quoted(path) + " exists already; remove it or choose another name." };
}

Result<void> checkRoom(int fd, const std::string &path, std::uint64_t size)
{
    struct statvfs info { };
    if (fstatvfs(fd, &info) != 0 || info.f_blocks == 0)
        return {}; // the file system does not tell; the writing will
    const std::uint64_t room = (geteuid() == 0 ? info.f_bfree : info.f_bavail) * info.f_frsize;
    if (size <= room)
        return {};
    return Error{ Exit::failed,
        quoted(path) + " cannot be written: it needs " + sizeText(size) + ", and its file system has "
            + sizeText(room) + " free; free some space or choose another place." };
}

Error notCreated(const std::string &path, int error)
{
    const char *advice =
        error == ENAMETOOLONG ? "; choose a shorter name." : "; choose a folder that you may write into.";
    return { Exit::failed, quoted(path) + " cannot be created: " + reason(error) + advice };
}

std::string linkOf(int fd)
{
    return "/proc/self/fd/" + std::to_string(fd);
}

/// A file without a name in the folder of `path`; empty where there can be none, or where it could not get a
/// name later.
Fd openNameless(const std::string &path)
{
    const std::size_t slash = path.rfind('/');
    const std::string folder = slash == std::string::npos ? "." : path.substr(0, slash + 1);
    Fd file(open(folder.c_str(), O_WRONLY | O_TMPFILE | O_CLOEXEC, 0666));
    return file && access(linkOf(file.get()).c_str(), F_OK) == 0 ? std::move(file) : Fd();
}

} // namespace

Result<void> checkAbsent(const std::string &path)
{
    struct stat info { };
    if (lstat(path.c_str(), &info) == 0)
        return exists(path);
    return errno == ENOENT ? Result<void>() : notCreated(path, errno);
}

Result<NewFile> NewFile::create(const std::string &path, std::uint64_t size)
{
    if (auto absent = checkAbsent(path); !absent)
        return absent.error();
    Fd made = openNameless(path);
    const bool named = !made;
    if (named)
        made = Fd(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    if (!made)
        return errno == EEXIST ? exists(path) : notCreated(path, errno);
    NewFile file(path, std::move(made), named);
    if (auto ok = checkRoom(file.fd(), path, size); !ok)
        return ok.error();
    return file;
}

NewFile::NewFile(std::string path, Fd file, bool named)
    : m_path(std::move(path))
    , m_file(std::move(file))
    , m_named(named)
{
}

NewFile::~NewFile()
{
    if (m_file && m_named)
        unlink(m_path.c_str());
}

Result<void> NewFile::keep()
{
    if (!m_named
        && linkat(AT_FDCWD, linkOf(m_file.get()).c_str(), AT_FDCWD, m_path.c_str(), AT_SYMLINK_FOLLOW) != 0)
        return errno == EEXIST ? exists(m_path) : notCreated(m_path, errno);
    if (close(m_file.release()) == 0)
        return {};
    const int error = errno;
    unlink(m_path.c_str());
    return Error{ Exit::failed, quoted(m_path) + " cannot be written: " + reasonAndAdvice(error) + "." };
}

} // namespace engine::image
