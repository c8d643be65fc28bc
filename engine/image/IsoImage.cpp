#include "image/IsoImage.h"

#include "base/Words.h"
#include "image/DvdVideo.h"
#include "image/FolderReader.h"
#include "image/FolderTree.h"
#include "image/ImageFile.h"
#include "image/IsoHeader.h"
#include "image/JolietNotes.h"
#include "image/UdfBridge.h"
#include "image/VolumeName.h"

#include <algorithm>
#include <cstring>
#include <optional>
#include <span>
#include <utility>

namespace engine::image {

namespace {

constexpr std::size_t gatherSize = 64 * 1024;

} // namespace

/// The image piece by piece.
class IsoImage::Stream {
public:
    Stream(FolderTree read, const IsoOptions &options)
        : stop(options.stop)
        , progress(options.progress)
        , tree(std::move(read))
    {
    }

    Result<void> begin(const IsoOptions &options)
    {
        const std::string wanted = options.volumeName.empty() ? volumeNameFor(tree) : options.volumeName;
        const VolumeName volume = volumeName(wanted);
        if (isDvdVideo(tree)) {
            auto planned = UdfBridge::plan(tree, volume.udf);
            if (!planned)
                return planned.error();
            bridge = std::move(*planned);
        }
        const std::uint32_t before = bridge ? bridge->blocks() : 0;
        auto made = IsoHeader::make(tree, volume, options.rockRidge, before);
        if (!made)
            return made.error();
        header = std::move(*made);
        blocks = before + header.imageBlocks();
        if (bridge)
            bridge->place(before + header.headerBlocks(), blocks);
        notes = tree.notes();
        addVolumeNote(wanted, volume, bridge.has_value(), notes);
        addJolietNotes(tree, notes);
        return {};
    }

    /// The next piece of the image, valid until the next call; empty at the end.
    Result<Piece> next(FolderReader::Large large)
    {
        if (!reader) {
            reader.emplace(tree, large);
            buffer.resize(gatherSize);
        }
        if (held.empty()) {
            const auto got = header.read(buffer);
            if (!got)
                return got.error();
            held = std::span(buffer).first(*got);
            if (bridge && step == Step::begin)
                bridge->takeDescriptors(held);
            step = bridge && step == Step::begin ? Step::bridge : Step::header;
        }
        if (step == Step::bridge) {
            if (const auto made = bridge->next(); !made.empty())
                return Piece{ made };
            step = Step::header;
        }
        if (!held.empty())
            return Piece{ std::exchange(held, {}) };
        Piece piece;
        if (reader->next(piece))
            return piece;
        if (auto ok = reader->outcome(); !ok) {
            if (const auto bad = reader->unreadable())
                setUnreadable(bad->first, bad->second);
            return ok.error();
        }
        return Piece{ end() };
    }

    void setUnreadable(std::uint32_t content, int error)
    {
        unreadable = { tree.relativePath(tree.contents()[content].entry), error };
    }

    /// What follows the data; nothing at the second call.
    std::span<const std::byte> end()
    {
        buffer.assign(std::exchange(padding, 0) * blockSize, std::byte{});
        if (bridge && !buffer.empty())
            std::ranges::copy(bridge->anchor(), buffer.end() - blockSize);
        return buffer;
    }

    /// Fills `wanted` but at the end of the image.
    Result<std::size_t> read(std::span<std::byte> wanted)
    {
        std::size_t done = 0;
        while (done < wanted.size()) {
            if (rest.empty()) {
                const auto piece = next(FolderReader::Large::read);
                if (!piece)
                    return piece.error();
                rest = piece->bytes;
                if (rest.empty())
                    break;
            }
            const std::size_t part = std::min(rest.size(), wanted.size() - done);
            std::memcpy(wanted.data() + done, rest.data(), part);
            rest = rest.subspan(part);
            done += part;
        }
        return done;
    }

    const Stop stop;
    const std::function<void(std::uint64_t)> progress;
    const FolderTree tree;
    std::uint32_t blocks = 0;
    std::vector<std::string> notes;
    std::optional<UnreadableFile> unreadable; ///< that ended the stream

private:
    enum class Step { begin, bridge, header }; ///< what is before the data of the files

    Step step = Step::begin;
    std::optional<UdfBridge> bridge; ///< of a video disc
    std::span<const std::byte> held; ///< of the header, while what comes before it is passed on
    IsoHeader header;
    std::optional<FolderReader> reader;
    std::vector<std::byte> buffer; ///< what piece is not in the reader
    std::span<const std::byte> rest; ///< of the piece that read() is in
    std::uint32_t padding = IsoHeader::paddingBlocks();
};

Result<IsoImage> IsoImage::fromFolder(const std::string &folder, const IsoOptions &options)
{
    auto tree = FolderTree::read(folder, options);
    if (!tree)
        return tree.error();
    if (isDvdVideo(*tree))
        arrangeDvdVideo(*tree);
    auto stream = std::make_unique<Stream>(std::move(*tree), options);
    if (auto ok = stream->begin(options); !ok)
        return ok.error();
    return IsoImage(std::move(stream));
}

IsoImage::IsoImage(std::unique_ptr<Stream> stream)
    : m_stream(std::move(stream))
{
}

IsoImage::IsoImage(IsoImage &&other) noexcept = default;
IsoImage &IsoImage::operator=(IsoImage &&other) noexcept = default;
IsoImage::~IsoImage() = default;

std::uint32_t IsoImage::blockCount() const
{
    return m_stream->blocks;
}

std::uint32_t IsoImage::fileCount() const
{
    return static_cast<std::uint32_t>(std::ranges::count_if(
        m_stream->tree.contents(), [](const Content &content) { return !content.isGap(); }));
}

bool IsoImage::isEmpty() const
{
    constexpr std::size_t onlyTheRoot = 1;
    return m_stream->tree.entries().size() == onlyTheRoot;
}

const std::vector<std::string> &IsoImage::notes() const
{
    return m_stream->notes;
}

Result<std::size_t> IsoImage::read(std::span<std::byte> buffer)
{
    return m_stream->read(buffer);
}

std::optional<UnreadableFile> IsoImage::unreadable() const
{
    return m_stream->unreadable;
}

Result<void> IsoImage::writeTo(int fd, const std::string &destination)
{
    ImageFile file(fd, destination, m_stream->stop, m_stream->progress);
    for (;;) {
        const auto piece = m_stream->next(FolderReader::Large::open);
        if (!piece)
            return piece.error();
        if (piece->bytes.empty() && piece->file < 0)
            return {};
        if (auto ok = file.write(piece->bytes); !ok)
            return ok;
        if (piece->file < 0)
            continue;
        const auto unreadable = [&](int error) {
            if (error != 0)
                m_stream->setUnreadable(piece->content, error);
            return FolderReader::contentError(m_stream->tree, piece->content, error);
        };
        if (auto ok = file.copy(piece->file, piece->fileSize, unreadable); !ok)
            return ok;
    }
}

} // namespace engine::image
