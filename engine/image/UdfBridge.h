// A UDF volume over the files of an ISO 9660 image: two file systems, one set of data.
#pragma once

#include "base/Result.h"
#include "image/FolderTree.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace engine::image {

/// The blocks in front of an ISO 9660 image that make a UDF 1.02 volume of it, as players of video discs want it
/// (ECMA-167 second edition, OSTA UDF 1.02, its appendix 6.9 for DVD-Video). The image is laid out for the blocks behind
/// them and keeps all its addresses; both volumes have their descriptors before it:
///
///     16 ISO 9660 descriptors | 19 recognition sequence | 32 and 48 volume descriptors, twice | 64 integrity
///     256 anchor | 257 the partition: file set, folders, file entries | the ISO 9660 image | anchor
///
/// The partition reaches to the last block. Order of calls: plan(), place(), takeDescriptors(), next() until it is empty;
/// anchor() is the last block of the image. One thread at a time. Movable.
class UdfBridge {
public:
    /// Everything in `tree`, which must live longer, but links and special files, which UDF 1.02 does not hold. Names that
    /// are too long are cut and numbered. An error names a file that is too large for one file entry.
    static Result<UdfBridge> plan(const FolderTree &tree, std::u16string volumeName);

    /// Number of blocks before the ISO 9660 image, a multiple of those of an ECC block of a DVD.
    std::uint32_t blocks() const { return m_blocks; }

    /// Where the data of the first content lies and how many blocks the whole image has, both with blocks().
    void place(std::uint32_t firstData, std::uint32_t imageBlocks);

    /// The first blocks of the ISO 9660 image, up to the last of its descriptors at least.
    void takeDescriptors(std::span<const std::byte> start);

    /// The next bytes, valid until the next call; empty at the end.
    std::span<const std::byte> next();

    /// The last block of the image: where the volume descriptors lie, once more.
    std::vector<std::byte> anchor() const;

private:
    struct Folder {
        std::uint32_t entry = 0;
        std::uint32_t block = 0; ///< of its file entry, in the partition; its content follows
        std::uint32_t bytes = 0; ///< of its content
        std::uint16_t links = 0;
    };

    UdfBridge(const FolderTree &tree, std::u16string volumeName);
    Result<void> planFiles();
    void planFolders();
    std::uint32_t fileBlock(std::uint32_t content) const { return m_firstFile + m_fileOf[content]; }
    std::vector<std::byte> beginning() const;
    std::vector<std::byte> volumeDescriptors(std::uint32_t start) const;
    std::vector<std::byte> integrity() const;
    std::vector<std::byte> fileSet() const;
    std::vector<std::byte> folder(const Folder &folder) const;
    std::vector<std::byte> content(const Folder &folder) const;
    std::vector<std::byte> file(std::uint32_t content) const;
    std::uint64_t uniqueId(std::uint32_t entry) const;

    const FolderTree *m_tree;
    std::u16string m_volumeName;
    std::int64_t m_now;
    std::vector<Folder> m_folders; ///< the root first
    std::vector<std::uint32_t> m_folderOf; ///< number of an entry among the folders
    std::vector<std::uint32_t> m_files; ///< contents that are no gaps
    std::vector<std::uint32_t> m_fileOf; ///< number of a content among these
    std::vector<std::uint32_t> m_links; ///< names of each content
    std::uint32_t m_firstFile = 0; ///< block of the first file entry, in the partition
    std::uint32_t m_blocks = 0;
    std::uint32_t m_firstData = 0; ///< in the partition
    std::uint32_t m_imageBlocks = 0;
    std::vector<std::uint32_t> m_dataOf; ///< where each content lies, in blocks behind m_firstData
    std::vector<std::byte> m_descriptors; ///< of ISO 9660, from block 16 on
    std::size_t m_step = 0; ///< what next() has made
    std::vector<std::byte> m_piece;
};

} // namespace engine::image
