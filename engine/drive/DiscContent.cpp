#include "drive/DiscContent.h"

#include "base/Words.h"
#include "image/VolumeName.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <utility>

namespace engine::drive {

namespace {

image::IsoOptions isoOptions(const Stop &stop)
{
    image::IsoOptions options;
    options.volumeName = image::volumeNameFromEnvironment();
    options.stop = stop;
    return options;
}

/// The error of a reading that may have been stopped.
Error readingError(const Error &error, const Stop &stop)
{
    const int signal = stop.signal();
    return signal == 0 ? error : stoppedUntouched(signal);
}

} // namespace

Result<std::unique_ptr<DiscData>> FolderContent::read(const std::string &folder, const BurnOptions &options)
{
    const Stop &stop = options.control.stop;
    Result<image::IsoImage> image = image::IsoImage::fromFolder(folder, isoOptions(stop));
    if (!image)
        return readingError(image.error(), stop);
    if (image->isEmpty())
        return Error{ Exit::failed,
            "The folder " + engine::quoted(folder)
                + " is empty: put something into it, or name another folder." };
    if (options.note)
        for (const std::string &note : image->notes())
            options.note(note);
    return std::unique_ptr<DiscData>(new FolderContent(folder, std::move(image).value(), stop));
}

FolderContent::FolderContent(std::string folder, image::IsoImage image, Stop stop)
    : m_folder(std::move(folder))
    , m_image(std::make_shared<image::IsoImage>(std::move(image)))
    , m_blocks(m_image->blockCount())
    , m_stop(std::move(stop))
{
}

Result<Read> FolderContent::start()
{
    // An image streams once; another attempt reads the tree anew.
    if (std::exchange(m_streamed, true)) {
        Result<image::IsoImage> again = image::IsoImage::fromFolder(m_folder, isoOptions(m_stop));
        if (!again)
            return readingError(again.error(), m_stop);
        if (again->blockCount() != m_blocks)
            return Error{ Exit::failed,
                engine::quoted(m_folder) + " changed while it was being written: try again." };
        m_image = std::make_shared<image::IsoImage>(std::move(again).value());
    }
    return Read([image = m_image](std::span<std::byte> buffer) { return image->read(buffer); });
}

ImageContent::ImageContent(std::string path, Fd file, std::uint64_t size)
    : m_path(std::move(path))
    , m_file(std::make_shared<const Fd>(std::move(file)))
    , m_size(size)
{
}

Result<std::unique_ptr<DiscData>> ImageContent::open(const std::string &path)
{
    Fd file = openToRead(path);
    struct stat info { };
    if (!file || ::fstat(file.get(), &info) != 0)
        return systemError(engine::quoted(path) + " cannot be read", errno);
    if (!S_ISREG(info.st_mode))
        return Error{ Exit::failed,
            engine::quoted(path) + " is not a file with a disc image: name an image file." };
    if (info.st_size == 0)
        return Error{ Exit::failed, engine::quoted(path) + " is empty: name another image file." };
    ::posix_fadvise(file.get(), 0, 0, POSIX_FADV_SEQUENTIAL);
    return std::unique_ptr<DiscData>(
        new ImageContent(path, std::move(file), static_cast<std::uint64_t>(info.st_size)));
}

Result<Read> ImageContent::start()
{
    return Read([path = m_path, file = m_file, end = blocks() * blockBytes, size = m_size,
                    next = std::uint64_t{ 0 }](std::span<std::byte> buffer) mutable -> Result<std::size_t> {
        buffer = buffer.first(static_cast<std::size_t>(std::min<std::uint64_t>(buffer.size(), end - next)));
        const std::uint64_t left = next < size ? size - next : 0;
        const auto real = static_cast<std::size_t>(std::min<std::uint64_t>(buffer.size(), left));
        const std::ptrdiff_t got = readFully(file->get(), buffer.first(real), static_cast<off_t>(next));
        if (got < 0)
            return systemError(quoted(path) + " cannot be read", errno);
        if (static_cast<std::size_t>(got) < real)
            return Error{ Exit::failed,
                quoted(path)
                    + " became shorter while it was being written: leave it alone and write it again." };
        std::ranges::fill(buffer.subspan(real), std::byte{});
        next += buffer.size();
        return buffer.size();
    });
}

} // namespace engine::drive
