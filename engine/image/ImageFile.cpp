#include "image/ImageFile.h"

#include "base/Fd.h"
#include "base/Words.h"

#include <algorithm>
#include <cerrno>
#include <unistd.h>

namespace engine::image {

namespace {

constexpr std::size_t bufferSize = 1024 * 1024;

// How much the kernel copies before a stop is looked for.
constexpr std::uint64_t copySize = 16 * 1024 * 1024;

Error writeError(const std::string &name, int error)
{
    return { Exit::failed, quoted(name) + " cannot be written: " + reasonAndAdvice(error) + "." };
}

} // namespace

ImageFile::ImageFile(int fd, std::string name, Stop stop, std::function<void(std::uint64_t)> progress)
    : m_fd(fd)
    , m_name(std::move(name))
    , m_stop(std::move(stop))
    , m_progress(std::move(progress))
{
}

Result<void> ImageFile::write(std::span<const std::byte> bytes)
{
    if (auto ok = goOn(); !ok)
        return ok;
    if (!writeFully(m_fd, bytes))
        return writeError(m_name, errno);
    m_written += bytes.size();
    return {};
}

Result<void> ImageFile::copy(
    int source, std::uint64_t size, const std::function<Error(int error)> &unreadable)
{
    while (size > 0) {
        if (auto ok = goOn(); !ok)
            return ok;
        const auto part = static_cast<std::size_t>(std::min(size, copySize));
        const ssize_t done = copy_file_range(source, nullptr, m_fd, nullptr, part, 0);
        if (done < 0 && errno == EINTR)
            continue;
        // Other file systems, the end of the source, or a failure: the plain way tells which.
        if (done <= 0)
            return copyByHand(source, size, unreadable);
        m_written += static_cast<std::uint64_t>(done);
        size -= static_cast<std::uint64_t>(done);
    }
    return {};
}

Result<void> ImageFile::copyByHand(
    int source, std::uint64_t size, const std::function<Error(int error)> &unreadable)
{
    if (!m_buffer)
        m_buffer = std::make_unique_for_overwrite<std::byte[]>(bufferSize);
    while (size > 0) {
        const auto part = static_cast<std::size_t>(std::min<std::uint64_t>(size, bufferSize));
        const ssize_t got = read(source, m_buffer.get(), part);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            return unreadable(got < 0 ? errno : 0);
        if (auto ok = write({ m_buffer.get(), static_cast<std::size_t>(got) }); !ok)
            return ok;
        size -= static_cast<std::uint64_t>(got);
    }
    return {};
}

/// Tells how far it is, and whether to go on.
Result<void> ImageFile::goOn() const
{
    if (m_progress)
        m_progress(m_written);
    if (const int signal = m_stop.signal())
        return stoppedBy(signal, "Writing " + quoted(m_name) + " was interrupted.");
    return {};
}

} // namespace engine::image
