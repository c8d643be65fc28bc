// Reading a folder into a FolderTree.
#include "base/Words.h"
#include "image/DvdVideo.h"
#include "image/FolderTree.h"
#include "image/TreeOpener.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>
#include <unordered_map>

namespace engine::image {

namespace {

// A folder that links lead to again and again, each time below another, multiplies without end
// for practical purposes although no path returns to its own ancestor.
constexpr std::uint32_t mostLinkedFolders = 20000;

// Beyond this the offsets of names no longer fit (and no disc holds the directory records).
constexpr std::size_t mostTextBytes = UINT32_MAX - PATH_MAX - NAME_MAX;

constexpr int folderFlags = O_RDONLY | O_DIRECTORY | O_CLOEXEC;

struct FileId {
    dev_t device;
    std::uint64_t inode;
    bool operator==(const FileId &) const = default;
};

struct FileIdHash {
    std::size_t operator()(const FileId &id) const
    {
        return std::hash<std::uint64_t>{}(id.inode * 0x9e3779b97f4a7c15U ^ id.device);
    }
};

/// Whether libisofs can store a link to `path` so that it can read it as well: one of 1024 bytes, which it still
/// stores, keeps it from reading anything on the disc.
bool isTargetForRockRidge(std::string_view path)
{
    constexpr std::size_t mostBytes = 1023;
    constexpr std::size_t mostInName = 255;
    if (path.size() > mostBytes)
        return false;
    while (path.size() > mostInName) {
        const std::size_t slash = path.find('/');
        if (slash > mostInName) // or none
            return false;
        path.remove_prefix(slash + 1);
    }
    return true;
}

bool mayRead(const struct stat &info, int folderFd, const char *name)
{
    static const uid_t user = geteuid();
    if (info.st_uid == user && (info.st_mode & S_IRUSR))
        return true;
    // Also for root, who may have given up reading everything.
    return faccessat(folderFd, name, R_OK, AT_EACCESS) == 0 || errno != EACCES;
}

} // namespace

/// Builds a FolderTree, folder by folder, without recursion: a tree may be deeper than a stack.
class FolderScan {
public:
    FolderScan(FolderTree &tree, const IsoOptions &options)
        : m_tree(tree)
        , m_options(options)
        , m_opener(tree)
    {
    }

    Result<void> run()
    {
        if (auto ok = addRoot(); !ok)
            return ok;
        while (!m_pending.empty()) {
            const std::uint32_t folder = m_pending.back();
            m_pending.pop_back();
            if (auto ok = readFolder(folder); !ok)
                return ok;
        }
        return checkSomethingIsLeft();
    }

private:
    Result<void> addRoot()
    {
        struct stat info { };
        const int fd = m_opener.enter(0);
        if (fd < 0 || fstat(fd, &info) != 0)
            return leaveContentOut(0, errno);
        Entry &root = m_tree.m_entries.emplace_back();
        root.name = text("");
        fill(root, info);
        m_pending.push_back(0);
        return {};
    }

    Result<void> readFolder(std::uint32_t folder)
    {
        if (auto ok = goOn(); !ok)
            return ok;
        const int fd = m_opener.enter(folder);
        if (fd < 0 || !listNames(fd))
            return leaveContentOut(folder, errno);
        if (folder == 0)
            addAudioFolder(fd);
        const auto first = static_cast<std::uint32_t>(m_tree.m_entries.size());
        for (const std::string &name : m_names) {
            if (auto ok = addChild(fd, folder, name); !ok)
                return ok;
        }
        Entry &entry = m_tree.m_entries[folder];
        entry.first = first;
        entry.count = static_cast<std::uint32_t>(m_tree.m_entries.size()) - first;
        for (std::uint32_t child = first + entry.count; child-- > first;) {
            if (S_ISDIR(m_tree.m_entries[child].mode) && !m_tree.m_entries[child].isMade)
                m_pending.push_back(child);
        }
        return {};
    }

    bool listNames(int fd)
    {
        m_names.clear();
        Fd own(openat(fd, ".", folderFlags));
        if (!own)
            return false;
        const std::unique_ptr<DIR, int (*)(DIR *)> directory(fdopendir(own.get()), closedir);
        if (!directory)
            return false;
        own.release(); // closed with the directory
        errno = 0;
        while (const dirent *item = readdir(directory.get())) {
            if (std::strcmp(item->d_name, ".") != 0 && std::strcmp(item->d_name, "..") != 0)
                m_names.emplace_back(item->d_name);
        }
        if (errno != 0)
            return false;
        std::sort(m_names.begin(), m_names.end());
        return true;
    }

    /// A video disc has a folder for sound as well, be it empty.
    void addAudioFolder(int fd)
    {
        struct stat info { };
        const bool isVideo = std::ranges::binary_search(m_names, videoFolder)
            && fstatat(fd, videoFolder, &info, 0) == 0 && S_ISDIR(info.st_mode);
        const auto place = std::ranges::lower_bound(m_names, audioFolder);
        m_makesAudioFolder = isVideo && (place == m_names.end() || *place != audioFolder);
        if (m_makesAudioFolder)
            m_names.insert(place, audioFolder);
    }

    void addMade(std::uint32_t folder, const std::string &name)
    {
        Entry entry = m_tree.m_entries[folder];
        entry.parent = folder;
        entry.name = text(name);
        entry.first = 0;
        entry.count = 0;
        entry.inode = 0;
        entry.isMade = true;
        m_tree.m_entries.push_back(entry);
    }

    Result<void> addChild(int fd, std::uint32_t folder, const std::string &name)
    {
        if (m_tree.m_entries.size() % 4096 == 0)
            if (auto ok = goOn(); !ok)
                return ok;
        if (m_tree.m_texts.size() > mostTextBytes)
            return Error{ Exit::failed,
                "The folder " + quoted(m_tree.folder())
                    + " holds too many names for a disc: take some out." };
        if (folder == 0 && m_makesAudioFolder && name == audioFolder) {
            addMade(folder, name);
            return {};
        }
        struct stat info { };
        if (fstatat(fd, name.c_str(), &info, AT_SYMLINK_NOFOLLOW) != 0) {
            leaveOut(folder, name,
                errno == ENOENT ? "it vanished while the folder was read" : cannotBeRead(errno));
            return {};
        }
        Entry entry;
        entry.parent = folder;
        const bool followed = S_ISLNK(info.st_mode) && m_options.links == Links::follow;
        if (followed && !follow(fd, folder, name, info))
            return {};
        if (followed && S_ISDIR(info.st_mode) && ++m_linkedFolders > mostLinkedFolders) {
            return Error{ Exit::failed,
                "The links to folders under " + quoted(m_tree.folder())
                    + " lead to one another without end: remove some of them, for example "
                    + quoted(childPath(folder, name)) + "." };
        }
        entry.name = text(name);
        fill(entry, info);
        return addByKind(fd, entry, info, name);
    }

    Result<void> addByKind(int fd, Entry &entry, const struct stat &info, const std::string &name)
    {
        if (S_ISREG(info.st_mode)) {
            if (const int error = mayRead(info, fd, name.c_str()) ? knownError(entry.parent, name) : EACCES) {
                leaveOut(entry.parent, name, cannotBeRead(error));
                return {};
            }
            entry.first = contentOf(info);
        } else if (S_ISLNK(info.st_mode)) {
            char target[PATH_MAX + 1];
            const ssize_t length = readlinkat(fd, name.c_str(), target, PATH_MAX);
            if (length < 0) {
                leaveOut(entry.parent, name, cannotBeRead(errno));
                return {};
            }
            const std::string_view path(target, static_cast<std::size_t>(length));
            if (m_options.rockRidge && !isTargetForRockRidge(path)) {
                leaveOut(entry.parent, name, "what the link points to is too long for Rock Ridge");
                return {};
            }
            entry.target = text(path);
        }
        const bool posixOnly = !S_ISREG(info.st_mode) && !S_ISDIR(info.st_mode);
        if (posixOnly && !m_options.rockRidge) {
            leaveOut(entry.parent, name, "an image without Rock Ridge holds only files and folders");
            return {};
        }
        if (posixOnly && !S_ISLNK(info.st_mode) && m_options.links == Links::follow) {
            leaveOut(entry.parent, name, "it is neither a file nor a folder");
            return {};
        }
        m_tree.m_entries.push_back(entry);
        return {};
    }

    /// Replaces `info` by that of what the link points to; false when the link is left out.
    bool follow(int fd, std::uint32_t folder, const std::string &name, struct stat &info)
    {
        if (fstatat(fd, name.c_str(), &info, 0) != 0) {
            leaveOut(folder, name,
                errno == ENOENT      ? "the link points to nothing"
                    : errno == ELOOP ? "the link leads back to itself"
                                     : "the link cannot be followed: " + reason(errno));
            return false;
        }
        if (S_ISDIR(info.st_mode) && isAncestor(folder, info)) {
            leaveOut(folder, name, "the link leads back to a folder that it lies in");
            return false;
        }
        const int access = S_ISDIR(info.st_mode) ? R_OK | X_OK : R_OK;
        if (faccessat(fd, name.c_str(), access, AT_EACCESS) != 0) {
            leaveOut(folder, name, "what the link points to cannot be read: " + reason(errno));
            return false;
        }
        return true;
    }

    bool isAncestor(std::uint32_t folder, const struct stat &info) const
    {
        for (;; folder = m_tree.m_entries[folder].parent) {
            const Entry &entry = m_tree.m_entries[folder];
            if (entry.inode == info.st_ino && entry.device == info.st_dev)
                return true;
            if (folder == 0)
                return false;
        }
    }

    /// The number of a regular file's data; the same for all names of one file.
    std::uint32_t contentOf(const struct stat &info)
    {
        const auto number = static_cast<std::uint32_t>(m_tree.m_contents.size());
        if (info.st_nlink > 1 || m_options.links == Links::follow) {
            const auto [known, isNew] = m_known.try_emplace(FileId{ info.st_dev, info.st_ino }, number);
            if (!isNew)
                return known->second;
        }
        m_tree.m_contents.push_back({ static_cast<std::uint32_t>(m_tree.m_entries.size()),
            static_cast<std::uint64_t>(info.st_size) });
        return number;
    }

    static void fill(Entry &entry, const struct stat &info)
    {
        entry.mode = info.st_mode;
        entry.uid = info.st_uid;
        entry.gid = info.st_gid;
        entry.device = info.st_dev;
        entry.special = info.st_rdev;
        entry.inode = info.st_ino;
        entry.modified = info.st_mtime;
        entry.accessed = info.st_atime;
        entry.changed = info.st_ctime;
    }

    std::uint32_t text(std::string_view text)
    {
        const auto offset = static_cast<std::uint32_t>(m_tree.m_texts.size());
        m_tree.m_texts.append(text).push_back('\0');
        return offset;
    }

    std::string childPath(std::uint32_t folder, const std::string &name) const
    {
        return m_tree.path(folder) + '/' + name;
    }

    void leaveOut(std::uint32_t folder, const std::string &name, const std::string &why)
    {
        m_tree.m_notes.push_back(quoted(pathBelow(folder, name)) + " is left out: " + why + ".");
    }

    /// Why another attempt could not read the file; 0 where it could, or there was none.
    int knownError(std::uint32_t folder, const std::string &name) const
    {
        if (m_options.leftOut.empty())
            return 0;
        const auto known =
            std::ranges::find(m_options.leftOut, pathBelow(folder, name), &UnreadableFile::path);
        return known == m_options.leftOut.end() ? 0 : known->error;
    }

    std::string pathBelow(std::uint32_t folder, const std::string &name) const
    {
        return folder == 0 ? name : m_tree.relativePath(folder) + '/' + name;
    }

    static std::string cannotBeRead(int error) { return "it cannot be read: " + reason(error); }

    /// A folder that cannot be read stays, without what is in it; of the root nothing would stay.
    Result<void> leaveContentOut(std::uint32_t folder, int error)
    {
        if (folder == 0)
            return Error{ Exit::failed,
                "The folder " + quoted(m_tree.folder()) + " cannot be read: " + reasonAndAdvice(error)
                    + "." };
        m_tree.m_notes.push_back("What is in " + quoted(m_tree.relativePath(folder))
            + " is left out: the folder cannot be read: " + reason(error) + ".");
        return {};
    }

    /// A disc without a file helps nobody whose files were all left out.
    Result<void> checkSomethingIsLeft() const
    {
        const auto isStored = [](const Entry &entry) { return !S_ISDIR(entry.mode); };
        if (m_tree.m_notes.empty() || std::ranges::any_of(m_tree.m_entries, isStored))
            return {};
        const std::size_t more = m_tree.m_notes.size() - 1;
        return Error{ Exit::failed,
            "Nothing is left of the folder " + quoted(m_tree.folder()) + ": " + m_tree.m_notes.front()
                + (more > 0 ? " The same goes for " + std::to_string(more) + " more." : "") };
    }

    Result<void> goOn() const
    {
        const int signal = m_options.stop.signal();
        return signal == 0 ? Result<void>() : stoppedBy(signal, "Reading the folder was interrupted.");
    }

    FolderTree &m_tree;
    const IsoOptions &m_options;
    TreeOpener m_opener;
    std::vector<std::uint32_t> m_pending; ///< folders still to be read, the next one last
    std::vector<std::string> m_names; ///< of the folder being read
    std::unordered_map<FileId, std::uint32_t, FileIdHash> m_known;
    std::uint32_t m_linkedFolders = 0;
    bool m_makesAudioFolder = false;
};

Result<FolderTree> FolderTree::read(const std::string &folder, const IsoOptions &options)
{
    FolderTree tree;
    tree.m_folder = folder;
    tree.m_followsLinks = options.links == Links::follow;
    if (auto ok = FolderScan(tree, options).run(); !ok)
        return ok.error();
    return tree;
}

} // namespace engine::image
