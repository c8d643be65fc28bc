#include "image/IsoHeader.h"

#include "base/Words.h"
#include "image/IsoPlace.h"
#include "image/IsoTree.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <libburn/libburn.h>
#include <libisofs/libisofs.h>
#include <mutex>
#include <sys/stat.h>
#include <vector>

// libburn.h is here for its structure burn_source alone, which is how libisofs hands out an image.

namespace engine::image {

namespace {

// Blocks of zeros after the image: a drive reads ahead over the end of a track written at once.
constexpr std::uint32_t paddingBlocks = 150;

// ECMA-119 8.4.8: the number of blocks of a volume is kept in 32 bits.
constexpr std::uint64_t mostBlocks = UINT32_MAX;

// How much of the data area is looked at to prove that libisofs put the files where we put their data.
constexpr std::uint64_t mostProvedBlocks = 64;

void initialize()
{
    static std::once_flag once;
    std::call_once(once, [] {
        iso_init();
        char keep[] = "FAILURE", print[] = "NEVER", id[] = "";
        iso_set_msgs_severities(keep, print, id);
        // Names are bytes; where they have to be characters (Joliet) they are UTF-8.
        char charset[] = "UTF-8";
        iso_set_local_charset(charset, 0);
    });
}

struct WriteOptionsRelease {
    void operator()(IsoWriteOpts *options) const { iso_write_opts_free(options); }
};
using WriteOptions = std::unique_ptr<IsoWriteOpts, WriteOptionsRelease>;

WriteOptions writeOptions(bool rockRidge, std::uint32_t start)
{
    IsoWriteOpts *made = nullptr;
    if (iso_write_opts_new(&made, 0) < 0)
        return nullptr;
    WriteOptions options(made);
    iso_write_opts_set_iso_level(made, 3);
    iso_write_opts_set_rockridge(made, rockRidge ? 1 : 0);
    iso_write_opts_set_rrip_version_1_10(made, 1);
    iso_write_opts_set_joliet(made, 1);
    iso_write_opts_set_joliet_long_names(made, 1);
    iso_write_opts_set_joliet_longer_paths(made, 1);
    iso_write_opts_set_joliet_utf16(made, 1);
    // No ';1' and no dot that is not in the name, but only with Joliet (bit 1).
    iso_write_opts_set_omit_version_numbers(made, 2);
    iso_write_opts_set_no_force_dots(made, 2);
    // A tree of any depth stays where it is; no system that reads discs minds today.
    iso_write_opts_set_allow_deep_paths(made, 1);
    iso_write_opts_set_allow_longer_paths(made, 1);
    iso_write_opts_set_relaxed_vol_atts(made, 1);
    iso_write_opts_set_dir_rec_mtime(made, 7);
    iso_write_opts_set_always_gmt(made, 1);
    iso_write_opts_set_sort_files(made, 1);
    iso_write_opts_set_output_charset(made, "UTF-8");
    iso_write_opts_set_tail_blocks(made, paddingBlocks);
    iso_write_opts_set_ms_block(made, start);
    // Only the tree comes through libisofs' ring buffer, which would otherwise take 2 MiB.
    constexpr std::size_t bufferedBlocks = 64;
    iso_write_opts_set_fifo_size(made, bufferedBlocks);
    return options;
}

std::uint64_t dataBlocks(const FolderTree &tree)
{
    // More than any disc has; thousands of sparse files may promise more than 64 bits can count.
    constexpr std::uint64_t most = UINT64_MAX / 4;
    std::uint64_t blocks = 0;
    for (const Content &content : tree.contents())
        blocks = std::min(blocks + blocksFor(content.size), most);
    return blocks;
}

Error tooLarge(const FolderTree &tree, std::uint64_t blocks)
{
    return { Exit::failed,
        "The content of " + quoted(tree.folder()) + " needs " + blocksText(blocks)
            + ", and an image has at most " + blocksText(mostBlocks)
            + ": take some files out of the folder." };
}

std::string lastMessage()
{
    char severity[80] = "";
    char least[] = "FAILURE";
    char text[ISO_MSGS_MESSAGE_LEN] = "libisofs gave no reason";
    int code = 0, image = 0;
    while (iso_obtain_msgs(least, &code, &image, text, severity) > 0) { }
    return text;
}

} // namespace

void IsoHeader::ImageRelease::operator()(Iso_Image *image) const
{
    iso_image_unref(image);
}

void IsoHeader::SourceRelease::operator()(burn::burn_source *source) const
{
    if (!source->read && source->version >= 1 && source->cancel)
        source->cancel(source);
    burn::burn_source_free(source);
}

/// libisofs loses the memory of a folder during whose writing it is cancelled, so all folders are let through.
IsoHeader::~IsoHeader()
{
    std::array<std::byte, 16 * blockSize> unwanted;
    for (bool going = m_source && m_left > 0; going;) {
        const auto got = read(unwanted);
        going = got && *got > 0;
    }
}

std::uint32_t IsoHeader::paddingBlocks()
{
    return image::paddingBlocks;
}

Result<IsoHeader> IsoHeader::make(
    const FolderTree &tree, const VolumeName &volumeName, bool rockRidge, std::uint32_t start)
{
    initialize();
    ::IsoImage *made = nullptr;
    if (const int code = iso_image_new(volumeName.iso.c_str(), &made); code < 0)
        return Error{ Exit::failed,
            std::string("The image cannot be begun: ") + iso_error_to_msg(code) + "." };
    IsoHeader header;
    header.m_tree = &tree;
    header.m_image.reset(made);
    header.m_jolietName = volumeName.joliet;
    if (auto ok = addTree(tree, made); !ok)
        return ok.error();
    if (auto ok = header.layOut(tree, rockRidge, start); !ok)
        return ok.error();
    return header;
}

Result<void> IsoHeader::layOut(const FolderTree &tree, bool rockRidge, std::uint32_t start)
{
    // libisofs counts in 32 bits and does not notice when they do not suffice.
    m_dataBlocks = dataBlocks(tree);
    const std::uint64_t afterHeader = m_dataBlocks + image::paddingBlocks;
    if (start + afterHeader > mostBlocks)
        return tooLarge(tree, start + afterHeader);
    const WriteOptions options = writeOptions(rockRidge, start);
    ::burn_source *source = nullptr; // libisofs knows libburn's structure outside its name space
    const int code = options ? iso_image_create_burn_source(m_image.get(), options.get(), &source)
                             : static_cast<int>(ISO_OUT_OF_MEM);
    if (code < 0)
        return Error{ Exit::failed,
            std::string("The image cannot be laid out: ") + iso_error_to_msg(code) + "." };
    m_source.reset(reinterpret_cast<burn::burn_source *>(source));
    auto blocks = static_cast<std::uint64_t>(m_source->get_size(m_source.get())) / blockSize;
    if (blocks < afterHeader)
        blocks += mostBlocks + 1;
    m_left = (blocks - afterHeader) * blockSize;
    if (start + blocks > mostBlocks)
        return tooLarge(tree, start + blocks);
    m_headerBlocks = static_cast<std::uint32_t>(blocks - afterHeader);
    m_imageBlocks = static_cast<std::uint32_t>(blocks);
    return {};
}

Result<std::size_t> IsoHeader::read(std::span<std::byte> buffer)
{
    if (!m_source)
        return std::size_t{ 0 };
    buffer = buffer.first(static_cast<std::size_t>(std::min<std::uint64_t>(buffer.size(), m_left)));
    if (auto ok = readSource(buffer); !ok)
        return ok.error();
    nameForJoliet(buffer);
    m_left -= buffer.size();
    if (m_left == 0) {
        if (auto ok = finish(); !ok)
            return ok.error();
    }
    return buffer.size();
}

/// libisofs has one name for both volumes, and Joliet holds other characters than ISO 9660 (ECMA-119 8.5.6: 32 bytes).
void IsoHeader::nameForJoliet(std::span<std::byte> buffer) const
{
    constexpr std::uint64_t field = 17 * blockSize + 40;
    constexpr std::size_t fieldBytes = 32;
    const std::uint64_t done = std::uint64_t{ m_headerBlocks } * blockSize - m_left;
    for (std::size_t at = 0; at < fieldBytes; ++at) {
        const char16_t unit = at / 2 < m_jolietName.size() ? m_jolietName[at / 2] : u'\0';
        if (field + at >= done && field + at - done < buffer.size())
            buffer[static_cast<std::size_t>(field + at - done)] =
                static_cast<std::byte>(at % 2 == 0 ? unit >> 8 : unit & 0xff);
    }
}

Result<void> IsoHeader::readSource(std::span<std::byte> buffer)
{
    while (!buffer.empty()) {
        auto *bytes = reinterpret_cast<unsigned char *>(buffer.data());
        const auto size = static_cast<int>(buffer.size());
        const int count = m_source->read ? m_source->read(m_source.get(), bytes, size)
                                         : m_source->read_xt(m_source.get(), bytes, size);
        if (count <= 0)
            return Error{ Exit::failed, "The image cannot be produced: " + lastMessage() + "." };
        buffer = buffer.subspan(static_cast<std::size_t>(count));
    }
    return {};
}

/// Makes sure that the data of the files follows in the order of their numbers, and lets libisofs go.
Result<void> IsoHeader::finish()
{
    std::vector<std::byte> blocks(std::min<std::uint64_t>(m_dataBlocks, mostProvedBlocks) * blockSize);
    if (auto ok = readSource(blocks); !ok)
        return ok;
    std::size_t start = 0;
    for (std::uint32_t content = 0; start < blocks.size(); ++content) {
        const std::uint64_t size = m_tree->contents()[content].size;
        const Marker marker = markerOf(content);
        const auto compared = static_cast<std::size_t>(std::min<std::uint64_t>(size, marker.size()));
        if (std::memcmp(&blocks[start], marker.data(), compared) != 0)
            return Error{ Exit::failed,
                "The image cannot be produced: libisofs laid the files out in an unknown way; "
                "please report this with its version." };
        start +=
            static_cast<std::size_t>(blocksFor(std::min<std::uint64_t>(size, blocks.size()))) * blockSize;
    }
    m_source.reset();
    m_image.reset();
    return {};
}

} // namespace engine::image
