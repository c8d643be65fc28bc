// One Corvalis at a time in a working folder.
#pragma once

#include <QString>

#include <memory>

/// While it lives, no other process (and no other claim of this one) can claim the same folder. The kernel
/// lets go of it with the process, however that ends; a child of this process does not keep it.
class FolderClaim {
public:
    /// Null when another process has claimed the folder. Where a folder cannot be claimed at all, because it
    /// is not there or its file system knows no locks, nobody is kept out.
    static std::unique_ptr<FolderClaim> take(const QString &folder);
    ~FolderClaim();
    FolderClaim(const FolderClaim &) = delete;
    FolderClaim &operator=(const FolderClaim &) = delete;

private:
    explicit FolderClaim(int fd)
        : m_fd(fd)
    {
    }

    const int m_fd;
};
