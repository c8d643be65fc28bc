// Folders and files by bytes, for tests of what walks, copies and removes trees.
#pragma once

#include <QProcess>
#include <QString>
#include <QTest>

#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <fcntl.h>
#include <functional>
#include <stdexcept>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace support {

inline const std::string longestName(255, 'n');
inline const std::string notUtf8 = "caf\xe9\xff\n'\"";

/// Ends the test with the system's reason when a step of its preparation fails.
inline int check(int result, const std::string &what)
{
    if (result < 0)
        throw std::system_error(errno, std::generic_category(), what);
    return result;
}

inline void writeFile(const std::string &path, const std::string &content)
{
    const int file = check(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644), path);
    if (::write(file, content.data(), content.size()) != static_cast<ssize_t>(content.size()))
        throw std::runtime_error("cannot write " + path);
    ::close(file);
}

inline std::string readFile(const std::string &path)
{
    const int file = check(::open(path.c_str(), O_RDONLY | O_CLOEXEC), path);
    std::string content;
    char buffer[65536];
    for (ssize_t got = 0; (got = ::read(file, buffer, sizeof buffer)) > 0;)
        content.append(buffer, static_cast<std::size_t>(got));
    ::close(file);
    return content;
}

inline void makeFolder(const std::string &path, mode_t mode = 0755)
{
    check(::mkdir(path.c_str(), 0700), path);
    check(::chmod(path.c_str(), mode), path);
}

inline void makeLink(const std::string &target, const std::string &path)
{
    check(::symlink(target.c_str(), path.c_str()), path);
}

/// What the file system says of the entry itself, links not followed.
inline struct stat infoOf(const std::string &path)
{
    struct stat info;
    check(::lstat(path.c_str(), &info), path);
    return info;
}

inline bool exists(const std::string &path)
{
    struct stat info;
    return ::lstat(path.c_str(), &info) == 0;
}

/// Makes `levels` folders called `name`, each in the one before, below `path`, and calls `atEach` with the
/// descriptor of each. No path is ever longer than one name, so the tree may be deeper than PATH_MAX.
inline void makeDeepTree(const std::string &path, const std::string &name, int levels,
    const std::function<void(int folder)> &atEach = {})
{
    int here = check(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC), path);
    for (int level = 0; level < levels; ++level) {
        check(::mkdirat(here, name.c_str(), 0755), name);
        const int below = check(::openat(here, name.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC), name);
        ::close(here);
        here = below;
        if (atEach)
            atEach(here);
    }
    ::close(here);
}

/// From here on this process may have few files open, so that a tree deeper than that need not be very deep.
inline void limitOpenFiles()
{
    rlimit files{};
    check(::getrlimit(RLIMIT_NOFILE, &files), "getrlimit");
    files.rlim_cur = 128;
    check(::setrlimit(RLIMIT_NOFILE, &files), "setrlimit");
}

/// The columns "name" and "levels" of trees that are too deep for a path, and for limitOpenFiles().
inline void addRowsOfDeepTrees()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<int>("levels");
    QTest::newRow("names of 255 bytes, longer than any path") << QByteArray::fromStdString(longestName) << 40;
    QTest::newRow("more levels than files may be open") << QByteArray("d") << 300;
}

/// How many folders called `name` lie in each other below `path`.
inline int depthOf(const std::string &path, const std::string &name)
{
    int here = check(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC), path);
    int levels = 0;
    for (int below = 0; (below = ::openat(here, name.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) >= 0;
         ++levels) {
        ::close(here);
        here = below;
    }
    ::close(here);
    return levels;
}

/// Does it in a process of its own that is not root, in the folder `folder` as its current one, and answers
/// the status, 0 to 255, that `work` answered. `folder` must let others in; the folders above it need not.
inline int asOrdinaryUser(const std::string &folder, const std::function<int()> &work)
{
    constexpr uid_t nobody = 65534;
    const pid_t child = check(::fork(), "fork");
    if (child == 0) {
        const bool ready = ::chdir(folder.c_str()) == 0
            && (::geteuid() != 0
                || (::setresgid(nobody, nobody, nobody) == 0 && ::setresuid(nobody, nobody, nobody) == 0));
        ::_exit(ready ? work() : 255);
    }
    int status = 0;
    check(::waitpid(child, &status, 0), "waitpid");
    return WIFEXITED(status) ? WEXITSTATUS(status) : 256 + status;
}

/// Gives the tree at `path` to the user that asOrdinaryUser() becomes.
inline void giveToOrdinaryUser(const std::string &path)
{
    if (::geteuid() == 0
        && QProcess::execute(QStringLiteral("chown"),
               { QStringLiteral("-R"), QStringLiteral("65534:65534"), QString::fromStdString(path) })
            != 0)
        throw std::runtime_error("cannot give away " + path);
}

/// A new folder for one test, which others may enter. Removed with all it holds, however deep or read-only.
class ScratchFolder {
public:
    ScratchFolder()
    {
        const char *const place = std::getenv("TMPDIR");
        m_path = std::string(place ? place : "/tmp") + "/corvalis-test.XXXXXX";
        if (!::mkdtemp(m_path.data()))
            throw std::system_error(errno, std::generic_category(), m_path);
        check(::chmod(m_path.c_str(), 0755), m_path);
    }
    ScratchFolder(const ScratchFolder &) = delete;
    ScratchFolder &operator=(const ScratchFolder &) = delete;
    ~ScratchFolder()
    {
        const QString path = QString::fromStdString(m_path);
        if (::geteuid() != 0)
            QProcess::execute(
                QStringLiteral("chmod"), { QStringLiteral("-R"), QStringLiteral("u+rwX"), path });
        QProcess::execute(QStringLiteral("rm"), { QStringLiteral("-rf"), path });
    }

    const std::string &path() const { return m_path; }
    std::string operator/(const std::string &name) const { return m_path + '/' + name; }

private:
    std::string m_path;
};

} // namespace support
