// A file that comes into being whole or not at all.
#pragma once

#include "base/Fd.h"
#include "base/Result.h"

#include <cstdint>
#include <string>

namespace engine::image {

/// A new file that is gone again unless keep() was called. Never touches a file that was there before.
/// Where the file system allows it, the file gets its name only in keep(): a program that is killed leaves
/// nothing behind then.
class NewFile {
public:
    /// Creates the file for `size` bytes to come. Errors: it exists, its name cannot be, its folder is not
    /// writable, the file system has less room.
    static Result<NewFile> create(const std::string &path, std::uint64_t size);

    NewFile(NewFile &&other) noexcept = default;
    NewFile &operator=(NewFile &&other) = delete;
    ~NewFile();

    int fd() const { return m_file.get(); }

    /// Closes the file and lets it stay. Errors: something of its name has come meanwhile; and what a network
    /// file system tells only here.
    Result<void> keep();

private:
    NewFile(std::string path, Fd file, bool named);
    std::string m_path;
    Fd m_file; ///< empty once it is kept
    bool m_named; ///< keep() has nothing left to do but to close
};

/// Fails when something of the name `path` exists, whatever it is, or cannot be there.
Result<void> checkAbsent(const std::string &path);

} // namespace engine::image
