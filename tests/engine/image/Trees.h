// Trees of files with names that hold any bytes, and what is in them.
#pragma once

#include <QtTest>

#include <cerrno>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <map>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

/// A folder of its own that goes with the object, whatever the names in it.
class Scratch {
public:
    Scratch()
    {
        m_path = QDir::tempPath().toStdString() + "/scratch.XXXXXX";
        if (!mkdtemp(m_path.data()))
            qFatal("no temporary folder");
    }
    Scratch(const Scratch &) = delete;
    Scratch &operator=(const Scratch &) = delete;
    ~Scratch()
    {
        const QString path = QString::fromStdString(m_path);
        QProcess::execute(QStringLiteral("chmod"), { QStringLiteral("-R"), QStringLiteral("u+rwX"), path });
        QProcess::execute(QStringLiteral("rm"), { QStringLiteral("-rf"), path });
    }

    std::string path(const std::string &name = {}) const { return m_path + (name.empty() ? "" : "/" + name); }

private:
    std::string m_path;
};

inline bool makeFolder(const std::string &path)
{
    for (std::size_t slash = path.find('/', 1); slash != std::string::npos; slash = path.find('/', slash + 1))
        mkdir(path.substr(0, slash).c_str(), 0755);
    return mkdir(path.c_str(), 0755) == 0 || errno == EEXIST;
}

inline bool makeFile(const std::string &path, const std::string &content)
{
    if (!makeFolder(path.substr(0, path.rfind('/'))))
        return false;
    const int fd = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    const bool written =
        fd >= 0 && write(fd, content.data(), content.size()) == static_cast<ssize_t>(content.size());
    return fd >= 0 && close(fd) == 0 && written;
}

inline std::string contentOf(const std::string &path)
{
    std::string content;
    char buffer[65536];
    const int fd = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    for (ssize_t got = 0; fd >= 0 && (got = read(fd, buffer, sizeof buffer)) > 0;)
        content.append(buffer, static_cast<std::size_t>(got));
    if (fd >= 0)
        close(fd);
    return content;
}

/// Everything below a folder: path relative to it, and a line that says what is there.
using Listing = std::map<std::string, std::string>;

enum Detail {
    contents = 0, ///< kind, content or target
    modesAndTimes = 1, ///< and permissions, and time of last modification in seconds
    followLinks = 2, ///< of what links point to
};

inline std::string describe(const std::string &path, const struct stat &info, int detail)
{
    std::string text;
    if (S_ISREG(info.st_mode)) {
        const std::string content = contentOf(path);
        const QByteArray hash = QCryptographicHash::hash(
            QByteArray::fromRawData(content.data(), qsizetype(content.size())), QCryptographicHash::Md5);
        text = "file " + hash.toHex().toStdString();
    } else if (S_ISDIR(info.st_mode)) {
        text = "folder";
    } else if (S_ISLNK(info.st_mode)) {
        char target[4096];
        const ssize_t length = readlink(path.c_str(), target, sizeof target);
        return "link " + std::string(target, length < 0 ? 0 : std::size_t(length));
    } else {
        text = "special " + std::to_string(info.st_mode & S_IFMT);
    }
    if (detail & modesAndTimes)
        text += ' ' + std::to_string(info.st_mode & 07777) + ' ' + std::to_string(info.st_mtime);
    return text;
}

inline void listInto(Listing &listing, const std::string &root, const std::string &folder, int detail)
{
    DIR *directory = opendir((root + '/' + folder).c_str());
    while (const dirent *item = directory ? readdir(directory) : nullptr) {
        const std::string name = item->d_name;
        if (name == "." || name == "..")
            continue;
        const std::string relative = folder.empty() ? name : folder + '/' + name;
        const std::string path = root + '/' + relative;
        struct stat info { };
        if (lstat(path.c_str(), &info) != 0)
            continue;
        if ((detail & followLinks) && S_ISLNK(info.st_mode) && stat(path.c_str(), &info) != 0)
            continue;
        listing[relative] = describe(path, info, detail);
        if (S_ISDIR(info.st_mode))
            listInto(listing, root, relative, detail);
    }
    if (directory)
        closedir(directory);
}

inline Listing list(const std::string &root, int detail = contents)
{
    Listing listing;
    listInto(listing, root, {}, detail);
    return listing;
}

/// The first difference of two listings for people; empty when they are equal.
inline QByteArray difference(const Listing &expected, const Listing &actual)
{
    for (const auto &[path, what] : expected) {
        const auto found = actual.find(path);
        if (found == actual.end())
            return QByteArray::fromStdString("missing: " + path);
        if (found->second != what)
            return QByteArray::fromStdString(path + ": expected " + what + ", got " + found->second);
    }
    for (const auto &[path, what] : actual)
        if (!expected.contains(path))
            return QByteArray::fromStdString("not expected: " + path);
    return {};
}

inline int run(const QString &program, const QStringList &arguments, QByteArray *output = nullptr)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished(-1) || process.exitStatus() != QProcess::NormalExit)
        return -1;
    if (output)
        *output = process.readAllStandardOutput();
    return process.exitCode();
}

/// Takes an image apart by its Rock Ridge names.
inline bool extractRockRidge(const std::string &image, const std::string &folder)
{
    return run(QStringLiteral("xorriso"),
               { QStringLiteral("-abort_on"), QStringLiteral("SORRY"), QStringLiteral("-osirrox"),
                   QStringLiteral("on"), QStringLiteral("-indev"), QString::fromStdString(image),
                   QStringLiteral("-extract"), QStringLiteral("/"), QString::fromStdString(folder) })
        == 0;
}

/// Takes an image apart by its Joliet names.
inline bool extractJoliet(const std::string &image, const std::string &folder)
{
    return run(QStringLiteral("7z"),
               { QStringLiteral("x"), QStringLiteral("-y"), QString::fromStdString("-o" + folder),
                   QString::fromStdString(image) })
        == 0;
}

/// Files whose names Joliet holds as they are.
inline bool makePlainTree(const std::string &root)
{
    bool made = true;
    for (const char *name : { "README", "Readme", "readme", "no extension.tar.gz", " leading", "-rf",
             "quote\"s and 'such'", ".hidden", "..twodots", "folder.with.dots/file",
             "\xc3\xbc\xc3\xb1\xc3\xaf.txt", "\xe6\x97\xa5\xe6\x9c\xac\xe8\xaa\x9e/\xe3\x83\x95\xe3\x82\xa1",
             "\xf0\x9f\x98\x80.txt", "\xd8\xb9\xd8\xb1\xd8\xa8\xd9\x8a", "a/b/c/d/e/f/g/h/i/j/k/deep" })
        made = made && makeFile(root + '/' + name, std::string("content of ") + name);
    made = made && makeFile(root + '/' + std::string(103, 'n'), "longest Joliet name");
    made = made && makeFolder(root + "/empty folder/inner") && makeFile(root + "/empty", "");
    for (const std::size_t size : { 1U, 2047U, 2048U, 2049U, 262144U, 1048576U, 3000001U })
        made = made
            && makeFile(root + "/sizes/" + std::to_string(size), std::string(size, char('a' + size % 26)));
    return made && makeFile(root + "/unchanging", "kept") && chmod((root + "/unchanging").c_str(), 0444) == 0;
}

/// Names that Joliet has to change, and what only Rock Ridge holds.
inline bool makeAwkwardTree(const std::string &root)
{
    bool made = makePlainTree(root);
    for (const char *name : { "new\nline", "tab\there", "a:b*c?d\\e;1", "a_b_c_d_e_1", "latin\xe9.txt",
             "latin\xe8.txt", "\xff\xfe", "\x80", "\x01" })
        made = made && makeFile(root + '/' + name, std::string("content of ") + name);
    std::string umlauts, faces;
    for (int i = 0; i < 127; ++i)
        umlauts += "\xc3\xbc";
    for (int i = 0; i < 63; ++i)
        faces += "\xf0\x9f\x98\x80";
    for (const std::string &name : { std::string(255, 'L'), std::string(254, 'L') + 'M',
             std::string(104, 'n'), std::string(105, 'n'), std::string(251, 'x') + ".txt", umlauts, faces })
        made = made && makeFile(root + '/' + name, "content of " + name);
    return made && link((root + "/sizes/3000001").c_str(), (root + "/sizes/hard link").c_str()) == 0;
}
