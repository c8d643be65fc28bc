// Walking folder trees by bytes: names need not be UTF-8, trees may be deeper than PATH_MAX, and no
// symbolic link is ever followed into another tree.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include <sys/stat.h>

namespace compilation {

/// A folder kept open while its entries are handled. Closed by its destructor.
class OpenFolder {
public:
    /// Opens `name` below the folder `at` (AT_FDCWD: a path). A link is followed only with `followLink`.
    OpenFolder(int at, const char *name, bool followLink = false);
    OpenFolder(const OpenFolder &) = delete;
    OpenFolder &operator=(const OpenFolder &) = delete;
    ~OpenFolder();

    /// The descriptor, -1 when the folder could not be opened (errno tells why).
    int fd() const { return m_fd; }

    /// One entry: its name as bytes, and whether the directory says that it is itself a folder.
    struct Entry {
        std::string name;
        bool isFolder;
    };
    /// All entries but "." and "..", in the file system's order. Nothing when it cannot be read.
    std::vector<Entry> entries() const;

private:
    int m_fd;
};

/// The sum of the sizes of everything below `path`, in bytes: files, links (as what they point to)
/// and folders (as the file system reports them). Nothing readable counts as 0. Any thread.
std::uint64_t treeSize(const std::string &path);

/// Removes everything below `path` and keeps the folder itself. What cannot be removed stays, is
/// told to `failed` with a sentence, and does not stop the rest. Links are removed, not followed; a
/// folder without write permission is given it first, since a copy of a read-only tree is our own.
void emptyFolder(const std::string &path, const std::function<void(const std::string &)> &failed);

} // namespace compilation
