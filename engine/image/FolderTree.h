// What lies under a folder, read once, in the order in which it is stored on a disc. The application measures the lists
// of a compilation by itself, in src/compilation: neither side includes the other, and what both do with a folder is
// little beside what they do it for.
#pragma once

#include "base/Result.h"
#include "image/IsoImage.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <vector>

namespace engine::image {

/// One file, folder, link or special file. 0 is the root folder, which is its own parent.
struct Entry {
    std::uint32_t parent = 0;
    std::uint32_t name = 0; ///< offset in FolderTree's texts
    std::uint32_t target = 0; ///< of a symbolic link: offset in FolderTree's texts
    std::uint32_t first = 0; ///< folder: its first child; regular file: its number in contents
    std::uint32_t count = 0; ///< of a folder: number of children, which lie side by side
    mode_t mode = 0;
    uid_t uid = 0;
    gid_t gid = 0;
    dev_t device = 0; ///< the file system it lies on
    dev_t special = 0; ///< of a device file: which device
    std::uint64_t inode = 0;
    bool isMade = false; ///< a folder that is on the disc only
    std::int64_t modified = 0, accessed = 0, changed = 0; ///< seconds since 1970
};

/// The data of a regular file, stored once whatever the number of its names.
struct Content {
    static constexpr std::uint32_t gap = UINT32_MAX;
    std::uint32_t entry = 0; ///< the name through which it is read; `gap` for zeros that keep files apart
    std::uint64_t size = 0; ///< in bytes

    bool isGap() const { return entry == gap; }
};

class FolderTree {
public:
    /// Reads everything under `folder`, the children of a folder in the order of their names'
    /// bytes. Nothing is opened but folders; files that cannot be read are found by their
    /// permissions. What cannot be read is left out, with a note. Errors: the folder itself cannot be read; no file is
    /// left.
    static Result<FolderTree> read(const std::string &folder, const IsoOptions &options);

    const std::vector<Entry> &entries() const { return m_entries; }
    const std::vector<Content> &contents() const { return m_contents; }
    /// What is left out, a sentence each, by the name below the folder.
    const std::vector<std::string> &notes() const { return m_notes; }
    const std::string &folder() const { return m_folder; }
    bool followsLinks() const { return m_followsLinks; }

    const char *name(const Entry &entry) const { return &m_texts[entry.name]; }
    const char *target(const Entry &entry) const { return &m_texts[entry.target]; }

    /// Gives the data another order, with gaps: `numbers` has the number among `contents` of each entry that is a regular file.
    void arrange(std::vector<Content> contents, const std::vector<std::uint32_t> &numbers);
    void addNote(std::string note) { m_notes.push_back(std::move(note)); }

    /// Path of an entry below the root folder, without the folder itself; "." for the root.
    std::string relativePath(std::uint32_t entry) const;
    /// Path of an entry as a person would type it.
    std::string path(std::uint32_t entry) const;

private:
    friend class FolderScan; ///< read() is its work
    std::string m_folder;
    std::vector<Entry> m_entries;
    std::vector<Content> m_contents;
    std::vector<std::string> m_notes;
    std::string m_texts; ///< names and link targets, each ended by NUL
    bool m_followsLinks = false;
};

} // namespace engine::image
