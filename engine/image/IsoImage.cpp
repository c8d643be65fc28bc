#include "image/IsoImage.h"

#include "base/Words.h"
#include "image/FolderReader.h"
#include "image/FolderTree.h"
#include "image/IsoTree.h"
#include "image/JolietNotes.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <mutex>

#include <unistd.h>

#include <libburn/libburn.h>

namespace engine::image {

namespace {

constexpr std::size_t writeSize = 1024 * 1024;
constexpr std::size_t gatherSize = 64 * 1024; ///< libburn asks for single blocks

std::string nameOf(const std::string &folder)
{
    const std::unique_ptr<char, decltype(&std::free)> real(realpath(folder.c_str(), nullptr), std::free);
    const std::string path = real ? real.get() : folder;
    const std::string name = path.substr(path.rfind('/') + 1);
    return name.empty() ? "DISC" : name;
}

Error writeError(const std::string &destination, int error)
{
    std::string what = quoted(destination) + " cannot be written: " + reason(error);
    if (error == ENOSPC || error == EDQUOT)
        what += "; free some space or choose another place";
    else if (error == EFBIG)
        what += "; its file system does not hold a file of this size, choose another place";
    return { Exit::failed, what + "." };
}

} // namespace

/// Everything that has to live as long as the image is streamed, in the order of dependence.
class IsoImage::Stream {
public:
    explicit Stream(FolderTree read) : tree(std::move(read)), reader(tree) {}
    Stream(const Stream &) = delete;
    Stream &operator=(const Stream &) = delete;

    ~Stream()
    {
        if (!source)
            return;
        if (!source->read && source->version >= 1 && source->cancel)
            source->cancel(source);
        burn::burn_source_free(source);
    }

    Result<void> begin(const IsoOptions &options)
    {
        const std::string volume = options.volumeName.empty() ? nameOf(tree.folder()) : options.volumeName;
        auto built = buildIsoTree(tree, reader, volume);
        if (!built)
            return built.error();
        iso = std::move(*built);
        auto started = startIso(iso, options.rockRidge);
        if (!started)
            return started.error();
        source = *started;
        left = static_cast<std::uint64_t>(source->get_size(source));
        blocks = static_cast<std::uint32_t>(left / blockSize);
        stop = options.stop;
        notes = tree.notes();
        addJolietNotes(tree, notes);
        return {};
    }

    /// Fills `buffer`, but for the end of the image. -1 when it failed.
    std::int64_t read(unsigned char *buffer, std::size_t size)
    {
        size = static_cast<std::size_t>(std::min<std::uint64_t>(size, left));
        for (std::size_t got = 0; got < size;) {
            const auto part = static_cast<int>(std::min(size - got, writeSize));
            const int count = source->read ? source->read(source, buffer + got, part)
                                           : source->read_xt(source, buffer + got, part);
            if (!reader.outcome())
                return -1;
            if (count <= 0) {
                fail("The image cannot be produced: " + lastIsoMessage() + ".");
                return -1;
            }
            got += static_cast<std::size_t>(count);
        }
        left -= size;
        return static_cast<std::int64_t>(size);
    }

    /// The same for small requests.
    int readGathered(unsigned char *buffer, std::size_t size)
    {
        std::size_t done = 0;
        while (done < size) {
            if (gatherOffset == gathered.size() && !gather())
                return -1;
            const std::size_t part = std::min(size - done, gathered.size() - gatherOffset);
            if (part == 0)
                break;
            std::memcpy(buffer + done, gathered.data() + gatherOffset, part);
            gatherOffset += part;
            done += part;
        }
        return static_cast<int>(done);
    }

    Result<void> outcome() const
    {
        if (auto ok = reader.outcome(); !ok)
            return ok;
        const std::lock_guard lock(mutex);
        return failure;
    }

    const FolderTree tree;
    FolderReader reader;
    IsoTree iso;
    burn::burn_source *source = nullptr; ///< of libisofs
    std::uint32_t blocks = 0;
    std::uint64_t left = 0; ///< bytes of the image not yet read
    std::vector<std::string> notes;
    std::function<bool()> stop;

private:
    bool gather()
    {
        gathered.resize(gatherSize);
        gatherOffset = 0;
        const std::int64_t count = read(gathered.data(), gatherSize);
        gathered.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
        return count >= 0;
    }

    void fail(const std::string &message)
    {
        const std::lock_guard lock(mutex);
        failure = Error { Exit::failed, message };
    }

    std::vector<unsigned char> gathered;
    std::size_t gatherOffset = 0;
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
            return of(from).readGathered(buffer, static_cast<std::size_t>(size));
        };
        source->get_size = [](burn::burn_source *from) { return static_cast<off_t>(of(from).blocks) * blockSize; };
        source->set_size = [](burn::burn_source *, off_t) { return 1; };
        source->free_data = [](burn::burn_source *from) { delete static_cast<Outlet *>(from->data); };
        source->data = new Outlet { stream };
        return source;
    }

    static Stream &of(burn::burn_source *source) { return *static_cast<Outlet *>(source->data)->stream; }
};

Result<IsoImage> IsoImage::fromFolder(const std::string &folder, const IsoOptions &options)
{
    auto tree = FolderTree::read(folder, options);
    if (!tree)
        return tree.error();
    auto stream = std::make_shared<Stream>(std::move(*tree));
    if (auto ok = stream->begin(options); !ok)
        return ok.error();
    return IsoImage(std::move(stream));
}

IsoImage::IsoImage(std::shared_ptr<Stream> stream) : m_stream(std::move(stream)) {}

IsoImage::IsoImage(IsoImage &&other) noexcept
    : m_stream(std::move(other.m_stream)), m_source(std::exchange(other.m_source, nullptr))
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
    const auto buffer = std::make_unique_for_overwrite<unsigned char[]>(writeSize);
    for (;;) {
        if (m_stream->stop && m_stream->stop())
            return Error { Exit::interrupted, "Writing " + quoted(destination) + " was interrupted." };
        const std::int64_t count = m_stream->read(buffer.get(), writeSize);
        if (count < 0)
            return m_stream->outcome();
        if (count == 0)
            return {};
        for (std::int64_t done = 0; done < count;) {
            const ssize_t part = write(fd, buffer.get() + done, static_cast<std::size_t>(count - done));
            if (part < 0 && errno != EINTR)
                return writeError(destination, errno);
            done += std::max<ssize_t>(part, 0);
        }
    }
}

} // namespace engine::image
