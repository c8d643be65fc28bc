#include "base/Fd.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace engine {

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

Fd openToRead(const std::string &path)
{
    return Fd(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
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

bool writeFully(int fd, std::span<const std::byte> bytes)
{
    while (!bytes.empty()) {
        const ssize_t n = ::write(fd, bytes.data(), bytes.size());
        if (n < 0 && errno != EINTR)
            return false;
        if (n > 0)
            bytes = bytes.subspan(static_cast<std::size_t>(n));
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

ReadAt readAtOf(const Fd &file, int &failure)
{
    return [&file, &failure](std::uint64_t offset, std::span<std::byte> buffer) {
        const std::ptrdiff_t got = readFully(file.get(), buffer, static_cast<off_t>(offset));
        if (got < 0)
            failure = errno;
        return got < 0 ? 0 : static_cast<std::size_t>(got);
    };
}

ReadAt readAtOf(std::span<const std::byte> bytes)
{
    return [bytes](std::uint64_t offset, std::span<std::byte> buffer) -> std::size_t {
        if (offset >= bytes.size())
            return 0;
        const std::span<const std::byte> there = bytes.subspan(static_cast<std::size_t>(offset));
        const std::size_t size = std::min(there.size(), buffer.size());
        std::copy_n(there.begin(), size, buffer.begin());
        return size;
    };
}

} // namespace engine
