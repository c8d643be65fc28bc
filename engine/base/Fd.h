// Owning a file descriptor, and reading and writing through one until everything is done.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <sys/types.h>

namespace engine {

/// Owns a file descriptor.
class Fd {
public:
    Fd() = default;
    explicit Fd(int fd)
        : m_fd(fd)
    {
    }
    Fd(Fd &&other) noexcept
        : m_fd(other.release())
    {
    }
    Fd &operator=(Fd &&other) noexcept;
    ~Fd();

    explicit operator bool() const { return m_fd >= 0; }
    int get() const { return m_fd; }
    int release();

private:
    int m_fd = -1;
};

/// Opens the file at `path` for reading; empty, with errno, on failure. Never blocks: a pipe of that name must not
/// hold the program up. Whoever wants a regular file has to look what it got.
Fd openToRead(const std::string &path);

/// Writes all `bytes` from `offset` on; false and errno on failure.
bool writeFully(int fd, std::span<const std::byte> bytes, off_t offset);

/// Writes all `bytes` at the current position; false and errno on failure.
bool writeFully(int fd, std::span<const std::byte> bytes);

/// Fills `buffer` from `offset` on; less than its size at the end of the file; -1 and errno on failure.
std::ptrdiff_t readFully(int fd, std::span<std::byte> buffer, off_t offset);

/// Fills `buffer` from `offset` of some file on, and returns how many bytes there were.
using ReadAt = std::function<std::size_t(std::uint64_t offset, std::span<std::byte> buffer)>;

/// Reads from an open file. The errno of a read that failed goes to `failure`, and the read counts as the end of the
/// file. Both have to live as long as the function.
ReadAt readAtOf(const Fd &file, int &failure);

/// Reads from `bytes`, which have to stay.
ReadAt readAtOf(std::span<const std::byte> bytes);

} // namespace engine
