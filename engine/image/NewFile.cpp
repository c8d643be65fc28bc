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

} // namespace

Result<void> checkAbsent(const std::string &path)
{
    struct stat info { };
    return lstat(path.c_str(), &info) == 0 ? Result<void>(exists(path)) : Result<void>();
}

Result<NewFile> NewFile::create(const std::string &path, std::uint64_t size)
{
    const int fd = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (fd < 0 && errno == EEXIST)
        return exists(path);
    if (fd < 0)
        return Error{ Exit::failed,
            quoted(path) + " cannot be created: " + reason(errno)
                + "; choose a folder that you may write into." };
    NewFile file(path, fd);
    if (auto ok = checkRoom(fd, path, size); !ok)
        return ok.error();
    return file;
}

NewFile::NewFile(std::string path, int fd)
    : m_path(std::move(path))
    , m_fd(fd)
{
}

NewFile::NewFile(NewFile &&other) noexcept
    : m_path(std::move(other.m_path))
    , m_fd(std::exchange(other.m_fd, -1))
{
}

NewFile::~NewFile()
{
    if (m_fd < 0)
        return;
    unlink(m_path.c_str());
    close(m_fd);
}

Result<void> NewFile::keep()
{
    if (close(std::exchange(m_fd, -1)) == 0)
        return {};
    const int error = errno;
    unlink(m_path.c_str());
    return Error{ Exit::failed, quoted(m_path) + " cannot be written: " + reason(error) + "." };
}

} // namespace engine::image
