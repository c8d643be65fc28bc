#include "image/IsoTree.h"

#include "base/Words.h"
#include "image/IsoPlace.h"

#include <libisofs/libisofs.h>
#include <sys/stat.h>
#include <vector>

namespace engine::image {

namespace {

void copyAttributes(IsoNode *node, const Entry &entry)
{
    iso_node_set_permissions(node, entry.mode & 07777);
    iso_node_set_uid(node, entry.uid);
    iso_node_set_gid(node, entry.gid);
    iso_node_set_mtime(node, entry.modified);
    iso_node_set_atime(node, entry.accessed);
    iso_node_set_ctime(node, entry.changed);
}

class Builder {
public:
    Builder(const FolderTree &tree, ::IsoImage *image)
        : m_tree(tree)
        , m_image(image)
        , m_folders(tree.entries().size())
    {
    }

    Result<void> run()
    {
        IsoDir *root = iso_image_get_root(m_image);
        copyAttributes(iso_node(root), m_tree.entries()[0]);
        m_folders[0] = root;
        std::vector<std::uint32_t> pending{ 0 };
        while (!pending.empty()) {
            const std::uint32_t folder = pending.back();
            pending.pop_back();
            const Entry &entry = m_tree.entries()[folder];
            // From the last name to the first: libisofs keeps a folder as a sorted chain and
            // looks for the place of a new node from its start.
            for (std::uint32_t child = entry.first + entry.count; child-- > entry.first;) {
                if (auto ok = add(child, m_folders[folder]); !ok)
                    return ok;
                if (S_ISDIR(m_tree.entries()[child].mode))
                    pending.push_back(child);
            }
        }
        return addGaps();
    }

private:
    static IsoNode *iso_node(IsoDir *folder) { return reinterpret_cast<IsoNode *>(folder); }

    Result<void> add(std::uint32_t number, IsoDir *parent)
    {
        const Entry &entry = m_tree.entries()[number];
        IsoNode *node = nullptr;
        const int code = addNode(number, entry, parent, node);
        if (code < 0) {
            return Error{ Exit::failed,
                quoted(m_tree.path(number)) + " cannot be put into the image: " + iso_error_to_msg(code)
                    + "; take it out of the folder." };
        }
        copyAttributes(node, entry);
        return {};
    }

    /// Files that no folder shows: libisofs knows no other way to keep data apart.
    Result<void> addGaps()
    {
        for (std::uint32_t content = 0; content < m_tree.contents().size(); ++content) {
            if (!m_tree.contents()[content].isGap())
                continue;
            if (const int code = addGap(content); code < 0)
                return Error{ Exit::failed,
                    std::string("Files cannot be kept apart in the image: ") + iso_error_to_msg(code) + "." };
        }
        return {};
    }

    int addGap(std::uint32_t content)
    {
        IsoStream *stream = newPlace(content, m_tree.contents()[content].size);
        if (!stream)
            return static_cast<int>(ISO_OUT_OF_MEM);
        IsoFile *file = nullptr;
        std::string name = "gap " + std::to_string(content);
        int code = static_cast<int>(ISO_NODE_NAME_NOT_UNIQUE);
        // A file of the person may have any name.
        for (; code == static_cast<int>(ISO_NODE_NAME_NOT_UNIQUE); name += '_')
            code = iso_image_add_new_file(m_image, m_folders[0], name.c_str(), stream, &file);
        if (code < 0)
            return code;
        auto *node = reinterpret_cast<IsoNode *>(file);
        iso_node_set_hidden(node, LIBISO_HIDE_ON_RR | LIBISO_HIDE_ON_JOLIET | LIBISO_HIDE_BUT_WRITE);
        iso_node_set_sort_weight(node, -static_cast<int>(content));
        return code;
    }

    int addNode(std::uint32_t number, const Entry &entry, IsoDir *parent, IsoNode *&node)
    {
        const char *name = m_tree.name(entry);
        if (S_ISDIR(entry.mode)) {
            const int code = iso_image_add_new_dir(m_image, parent, name, &m_folders[number]);
            node = iso_node(m_folders[number]);
            return code;
        }
        if (S_ISREG(entry.mode)) {
            IsoStream *stream = newPlace(entry.first, m_tree.contents()[entry.first].size);
            IsoFile *file = nullptr;
            const int code = stream ? iso_image_add_new_file(m_image, parent, name, stream, &file)
                                    : static_cast<int>(ISO_OUT_OF_MEM);
            node = reinterpret_cast<IsoNode *>(file);
            if (code >= 0) // the heavier, the nearer to the start of the image
                iso_node_set_sort_weight(node, -static_cast<int>(entry.first));
            return code;
        }
        if (S_ISLNK(entry.mode)) {
            IsoSymlink *link = nullptr;
            const int code = iso_image_add_new_symlink(m_image, parent, name, m_tree.target(entry), &link);
            node = reinterpret_cast<IsoNode *>(link);
            return code;
        }
        IsoSpecial *special = nullptr;
        const int code =
            iso_image_add_new_special(m_image, parent, name, entry.mode, entry.special, &special);
        node = reinterpret_cast<IsoNode *>(special);
        return code;
    }

    const FolderTree &m_tree;
    ::IsoImage *m_image;
    std::vector<IsoDir *> m_folders; ///< node of each entry that is a folder
};

} // namespace

Result<void> addTree(const FolderTree &tree, Iso_Image *image)
{
    return Builder(tree, image).run();
}

} // namespace engine::image
