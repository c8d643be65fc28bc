#include "writing/FolderClaim.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

std::unique_ptr<FolderClaim> FolderClaim::take(const QString &folder)
{
    const int fd = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    std::unique_ptr<FolderClaim> claim(new FolderClaim(fd));
    if (fd >= 0 && ::flock(fd, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK)
        return nullptr;
    return claim;
}

FolderClaim::~FolderClaim()
{
    if (m_fd >= 0)
        ::close(m_fd);
}
