#include "image/IsoImage.h"

#include "base/Words.h"
#include "image/FolderReader.h"
#include "image/FolderTree.h"
#include "image/ImageFile.h"
#include "image/IsoHeader.h"
#include "image/JolietNotes.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <libburn/libburn.h>
#include <mutex>
#include <new>
#include <optional>
#include <span>
#include <utility>

namespace engine::image {

namespace {

constexpr std::size_t gatherSize = 64 * 1024;

std::string nameOf(const std::string &folder)
{
    const std::unique_ptr<char, decltype(&std::free)> real(realpath(folder.c_str(), nullptr), std::free);
    const std::string path = real ? real.get() : folder;
    const std::string name = path.substr(path.rfind('/') + 1);
    return name.empty() ? "DISC" : name;
}

} // namespace

/// The image piece by piece. A shared object: the image's owner and libburn both keep it alive.
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
        const std::string volume = options.volumeName.empty() ? nameOf(tree.folder()) : options.volumeName;
        auto made = IsoHeader::make(tree, volume, options.rockRidge);
        if (!made)
            return made.error();
        header = std::move(*made);
        blocks = header.imageBlocks();
        notes = tree.notes();
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
        const auto got = header.read(buffer);
        if (!got)
            return fail(got.error());
        if (*got > 0)
            return Piece{ std::span(buffer).first(*got) };
        Piece piece;
        if (reader->next(piece))
            return piece;
        if (auto ok = reader->outcome(); !ok)
            return fail(ok.error());
        buffer.assign(std::exchange(padding, 0) * blockSize, std::byte{});
        return Piece{ buffer };
    }

    /// Fills `wanted` but at the end of the image; -1 when the image fails.
    std::ptrdiff_t read(std::span<std::byte> wanted)
    {
        std::size_t done = 0;
        while (done < wanted.size()) {
            if (rest.empty()) {
                const auto piece = next(FolderReader::Large::read);
                if (!piece)
                    return -1;
                rest = piece->bytes;
                if (rest.empty())
                    break;
            }
            const std::size_t part = std::min(rest.size(), wanted.size() - done);
            std::memcpy(wanted.data() + done, rest.data(), part);
            rest = rest.subspan(part);
            done += part;
        }
        return static_cast<std::ptrdiff_t>(done);
    }

    Error fail(const Error &error)
    {
        const std::lock_guard lock(mutex);
        failure = error;
        return error;
    }

    Result<void> outcome() const
    {
        const std::lock_guard lock(mutex);
        return failure;
    }

    const Stop stop;
    const std::function<void(std::uint64_t)> progress;
    const FolderTree tree;
    std::uint32_t blocks = 0;
    std::vector<std::string> notes;

private:
    IsoHeader header;
    std::optional<FolderReader> reader;
    std::vector<std::byte> buffer; ///< what piece is not in the reader
    std::span<const std::byte> rest; ///< of the piece that read() is in
    std::uint32_t padding = IsoHeader::paddingBlocks();
    mutable std::mutex mutex;
    Result<void> failure;
};

/// The burn source of an image; it keeps the stream alive.
struct IsoImage::Outlet {
    std::shared_ptr<Stream> stream;

    static burn::burn_source *make(const std::shared_ptr<Stream> &stream)
    {
        auto *source = static_cast<burn::burn_source *>(std::calloc(1, sizeof(burn::burn_source)));
        if (!source)
            throw std::bad_alloc();
        source->refcount = 1;
        source->read = [](burn::burn_source *from, unsigned char *buffer, int size) {
            return static_cast<int>(
                of(from).read({ reinterpret_cast<std::byte *>(buffer), static_cast<std::size_t>(size) }));
        };
        source->get_size = [](burn::burn_source *from) {
            return static_cast<off_t>(of(from).blocks) * blockSize;
        };
        source->set_size = [](burn::burn_source *, off_t) { return 1; };
        source->free_data = [](burn::burn_source *from) { delete static_cast<Outlet *>(from->data); };
        source->data = new Outlet{ stream };
        return source;
    }

    static Stream &of(burn::burn_source *source) { return *static_cast<Outlet *>(source->data)->stream; }
};

Result<IsoImage> IsoImage::fromFolder(const std::string &folder, const IsoOptions &options)
{
    auto tree = FolderTree::read(folder, options);
    if (!tree)
        return tree.error();
    auto stream = std::make_shared<Stream>(std::move(*tree), options);
    if (auto ok = stream->begin(options); !ok)
        return ok.error();
    return IsoImage(std::move(stream));
}

IsoImage::IsoImage(std::shared_ptr<Stream> stream)
    : m_stream(std::move(stream))
{
}

IsoImage::IsoImage(IsoImage &&other) noexcept
    : m_stream(std::move(other.m_stream))
    , m_source(std::exchange(other.m_source, nullptr))
{
}

IsoImage &IsoImage::operator=(IsoImage &&other) noexcept
{
    std::swap(m_stream, other.m_stream);
    std::swap(m_source, other.m_source);
    return *this;
}

IsoImage::~IsoImage()
{
    if (m_source)
        burn::burn_source_free(m_source);
}

std::uint32_t IsoImage::blockCount() const
{
    return m_stream->blocks;
}

std::uint32_t IsoImage::fileCount() const
{
    return static_cast<std::uint32_t>(m_stream->tree.contents().size());
}

const std::vector<std::string> &IsoImage::notes() const
{
    return m_stream->notes;
}

burn::burn_source *IsoImage::burnSource()
{
    if (!m_source)
        m_source = Outlet::make(m_stream);
    return m_source;
}

Result<void> IsoImage::outcome() const
{
    return m_stream->outcome();
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
            return FolderReader::contentError(m_stream->tree, piece->content, error);
        };
        if (auto ok = file.copy(piece->file, piece->fileSize, unreadable); !ok)
            return ok;
    }
}

} // namespace engine::image
