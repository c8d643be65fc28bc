// A file that comes into being whole or not at all.
#pragma once

#include "base/Result.h"

#include <cstdint>
#include <string>

namespace engine::image {

/// A new file that is removed again unless keep() was called. Never touches a file that was there before.
class NewFile {
public:
    /// Creates the file for `size` bytes to come. Errors: it exists, its folder is not writable, the file
    /// system has less room.
    static Result<NewFile> create(const std::string &path, std::uint64_t size);

    NewFile(NewFile &&other) noexcept;
    NewFile &operator=(NewFile &&other) = delete;
    ~NewFile();

    int fd() const { return m_fd; }

    /// Closes the file and lets it stay. An error of a network file system may show only here.
    Result<void> keep();

private:
    NewFile(std::string path, int fd);
    std::string m_path;
    int m_fd;
};

/// Fails when something of the name `path` exists, whatever it is.
Result<void> checkAbsent(const std::string &path);

} // namespace engine::image
