#include "drive/System.h"

#include "base/Words.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace engine::drive {

Fd &Fd::operator=(Fd &&other) noexcept
{
    std::swap(m_fd, other.m_fd);
    return *this;
}

Fd::~Fd()
{
    if (m_fd >= 0)
        ::close(m_fd);
}

int Fd::release()
{
    return std::exchange(m_fd, -1);
}

Error systemError(const std::string &what, int failure)
{
    return { Exit::failed, what + ": " + reasonAndAdvice(failure) + "." };
}

Result<std::string> readSmallFile(int folder, const char *name, const std::string &what)
{
    const auto failed = [&what](int failure) { return Error{ Exit::failed, what + ": " + reason(failure) }; };
    const Fd fd(::openat(folder, name, O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!fd)
        return failed(errno);
    std::string text(smallFileLimit, '\0');
    const std::ptrdiff_t n = readFully(fd.get(), std::as_writable_bytes(std::span(text)), 0);
    if (n < 0)
        return failed(errno);
    if (static_cast<std::size_t>(n) == smallFileLimit)
        return failed(EFBIG);
    text.resize(static_cast<std::size_t>(n));
    return text;
}

Result<void> replaceFile(int folder, const std::string &name, std::string_view text, const std::string &what)
{
    const std::string fresh = name + ".new";
    // A file of that name may be a killed program's, or a link or pipe that leads elsewhere: never written into.
    if (::unlinkat(folder, fresh.c_str(), 0) != 0 && errno != ENOENT)
        return systemError(what, errno);
    Fd fd(::openat(folder, fresh.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    if (!fd)
        return systemError(what, errno);
    if (!writeFully(fd.get(), std::as_bytes(std::span(text)), 0) || ::fsync(fd.get()) != 0
        || ::renameat(folder, fresh.c_str(), folder, name.c_str()) != 0) {
        const int failure = errno;
        ::unlinkat(folder, fresh.c_str(), 0);
        return systemError(what, failure);
    }
    ::fsync(folder);
    return {};
}

bool writeFully(int fd, std::span<const std::byte> bytes, off_t offset)
{
    while (!bytes.empty()) {
        const ssize_t n = ::pwrite(fd, bytes.data(), bytes.size(), offset);
        if (n < 0 && errno != EINTR)
            return false;
        if (n > 0) {
            bytes = bytes.subspan(static_cast<std::size_t>(n));
            offset += n;
        }
    }
    return true;
}

std::ptrdiff_t readFully(int fd, std::span<std::byte> buffer, off_t offset)
{
    std::size_t done = 0;
    while (done < buffer.size()) {
        const ssize_t n =
            ::pread(fd, buffer.data() + done, buffer.size() - done, offset + static_cast<off_t>(done));
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0)
            return -1;
        if (n == 0)
            break;
        done += static_cast<std::size_t>(n);
    }
    return static_cast<std::ptrdiff_t>(done);
}

} // namespace engine::drive
