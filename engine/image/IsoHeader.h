// A folder's tree as libisofs lays it out, and what libisofs writes before the data of the files.
#pragma once

#include "base/Result.h"
#include "image/FolderTree.h"
#include "image/VolumeName.h"

#include <cstddef>
#include <memory>
#include <span>
#include <string>

struct Iso_Image;
namespace burn {
struct burn_source;
}

namespace engine::image {

/// The volume descriptors, path tables and directories of an image: ISO 9660 level 3 with Joliet.
/// libisofs lays out the whole image and produces these blocks. It never gets the data of the files: passing
/// every block of it through libisofs' locked buffer costs more than reading the files, so its place is
/// only kept, and whoever writes the image puts the data there (FolderReader).
///
/// One thread at a time. Movable.
class IsoHeader {
public:
    /// `tree` must live longer. An error when the image would have more blocks than a volume can count
    /// (32 bits, ECMA-119 8.4.8); it has both figures.
    /// `start` is the number of blocks that come before the image, where it is not the first thing on a disc.
    static Result<IsoHeader> make(
        const FolderTree &tree, const VolumeName &volumeName, bool rockRidge, std::uint32_t start = 0);

    IsoHeader() = default;
    IsoHeader(IsoHeader &&) = default;
    IsoHeader &operator=(IsoHeader &&) = default;
    ~IsoHeader();

    /// Blocks of the whole image, without those that come before it.
    std::uint32_t imageBlocks() const { return m_imageBlocks; }
    /// Blocks before the data of the files.
    std::uint32_t headerBlocks() const { return m_headerBlocks; }
    /// Blocks after the data of the files.
    static std::uint32_t paddingBlocks();

    /// Fills `buffer` with the next bytes and returns their number, which is less than its size only
    /// at the end. At the end libisofs is done with and its memory freed.
    Result<std::size_t> read(std::span<std::byte> buffer);

private:
    struct ImageRelease {
        void operator()(Iso_Image *image) const;
    };
    struct SourceRelease {
        void operator()(burn::burn_source *source) const;
    };

    Result<void> layOut(const FolderTree &tree, bool rockRidge, std::uint32_t start);
    void nameForJoliet(std::span<std::byte> buffer) const;
    Result<void> readSource(std::span<std::byte> buffer);
    Result<void> finish();

    std::unique_ptr<Iso_Image, ImageRelease> m_image;
    std::unique_ptr<burn::burn_source, SourceRelease> m_source;
    std::uint32_t m_imageBlocks = 0;
    std::uint32_t m_headerBlocks = 0;
    std::u16string m_jolietName;
    std::uint64_t m_left = 0; ///< bytes before the data of the files still to come
    std::uint64_t m_dataBlocks = 0;
    const FolderTree *m_tree = nullptr;
};

} // namespace engine::image
