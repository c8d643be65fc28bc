#include "drive/SmallFile.h"

#include "base/Fd.h"
#include "base/Words.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace engine::drive {

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

} // namespace engine::drive
