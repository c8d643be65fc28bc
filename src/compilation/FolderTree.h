// Walking folder trees by bytes: names need not be UTF-8, trees may be deeper than PATH_MAX and than
// files may be open, and no symbolic link is ever followed into another tree.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <sys/stat.h>
#include <vector>

namespace compilation {

/// A place in a folder tree that goes down into a folder and up again. Of the way down only the last
/// few folders are kept open; the others are opened again on the way back. One thread at a time.
class TreeCursor {
public:
    /// Starts at the folder `path`, links followed. fd() is -1 when it cannot be opened (errno tells why).
    explicit TreeCursor(const std::string &path);
    TreeCursor(const TreeCursor &) = delete;
    TreeCursor &operator=(const TreeCursor &) = delete;
    ~TreeCursor();

    /// The folder where the cursor stands, owned by the cursor.
    int fd() const { return m_levels.back().fd; }

    /// "" where the cursor started, "/name/name" below.
    const std::string &path() const { return m_path; }

    /// Goes into a folder that lies here. False, and the cursor stays, for a link, for what is no folder
    /// and for what cannot be opened (errno tells why).
    bool enter(const std::string &name);

    /// Goes back up. False, and the cursor stays, when the folder above is no longer the one from which
    /// this one was entered: somebody has moved it meanwhile.
    bool leave();

    /// One entry: its name as bytes, and whether the directory says that it is itself a folder.
    struct Entry {
        std::string name;
        bool isFolder;
    };
    /// Adds all entries of the folder but "." and ".." to `found`, in the file system's order. The
    /// answer is 0 or the errno that ended the reading early.
    int list(std::vector<Entry> &found) const;

private:
    struct Level {
        int fd = -1;
        dev_t device = 0;
        ino_t inode = 0;
    };
    static Level opened(int at, const char *name, int flags);

    std::vector<Level> m_levels;
    std::string m_path;
};

/// What is done on a walk through a tree.
class TreeVisitor {
public:
    explicit TreeVisitor(TreeCursor &cursor)
        : at(cursor)
    {
    }
    TreeVisitor(const TreeVisitor &) = delete;
    TreeVisitor &operator=(const TreeVisitor &) = delete;
    virtual ~TreeVisitor() = default;

    /// Handles an entry of the folder where the cursor stands. True: it has entered that entry, and
    /// what lies in it comes next.
    virtual bool visit(const TreeCursor::Entry &entry) = 0;
    /// Everything in the entered folder `name` has been visited; the cursor is back above it.
    virtual void left(const std::string &name) = 0;
    /// The folder where the cursor stands could not be read to its end.
    virtual void unreadable(int error) = 0;

    TreeCursor &at;
};

/// Visits everything below the place of the visitor's cursor. False when it had to be given up because
/// a folder was moved while the walk was in it.
bool walkTree(TreeVisitor &visitor);

/// The sum of the sizes of everything below `path`, in bytes: files, links (as what they point to)
/// and folders (as the file system reports them). Nothing readable counts as 0. Any thread.
std::uint64_t treeSize(const std::string &path);

/// Removes everything below `path` and keeps the folder itself. What cannot be removed stays, is
/// told to `failed` with a sentence, and does not stop the rest. Links are removed, not followed; a
/// folder without write permission is given it first, since a copy of a read-only tree is our own.
void emptyFolder(const std::string &path, const std::function<void(const std::string &)> &failed);

} // namespace compilation
