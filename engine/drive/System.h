// Small owners and helpers around system calls.
#pragma once

#include "base/Result.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace engine::drive {

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

/// "The disc of drive 1 cannot be read: permission denied; get the permission for it or choose another one.";
/// `failure` is an errno.
Error systemError(const std::string &what, int failure);

constexpr std::size_t smallFileLimit = 64 * 1024; ///< bytes

/// The whole file `name` in the folder `folder`; otherwise an error for whoever knows what to do about it: `what` and
/// the system's reason, without a full stop. Files of smallFileLimit and more are refused.
Result<std::string> readSmallFile(int folder, const char *name, const std::string &what);

/// Replaces the file `name` in `folder` at once, so that a reader sees the old text or the new one and a
/// power cut leaves one of them. The error begins with `what`.
Result<void> replaceFile(int folder, const std::string &name, std::string_view text, const std::string &what);

/// Writes all `bytes` from `offset` on; false and errno on failure.
bool writeFully(int fd, std::span<const std::byte> bytes, off_t offset);

/// Fills `buffer` from `offset` on; less than its size at the end of the file; -1 and errno on failure.
std::ptrdiff_t readFully(int fd, std::span<std::byte> buffer, off_t offset);

} // namespace engine::drive
