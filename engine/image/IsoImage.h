// An ISO 9660 image with Joliet and Rock Ridge names, made of a folder and read as a stream.
#pragma once

#include "base/Result.h"
#include "base/Stop.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace engine::image {

constexpr std::uint32_t blockSize = 2048; ///< bytes of a logical block (ECMA-119 6.1.2)

/// Whole blocks for `bytes`.
constexpr std::uint64_t blocksFor(std::uint64_t bytes)
{
    return bytes / blockSize + (bytes % blockSize != 0);
}

/// What becomes of symbolic links.
enum class Links {
    /// Stored as Rock Ridge links. Left out, with a note, when there is no Rock Ridge, or when the target is
    /// longer than 1023 bytes or has a name of more than 255: libisofs could not store the link, or not read it.
    keep,
    follow, ///< stored as what they point to; loops and dangling links left out, with a note
};

/// A file that turned out to be unreadable while its image was written.
struct UnreadableFile {
    std::string path; ///< below the folder
    int error = 0; ///< errno
};

struct IsoOptions {
    std::string volumeName; ///< UTF-8; when empty, the one of volumeNameFor()
    bool rockRidge = true; ///< exact names, times, modes and owners beside the Joliet names
    Links links = Links::keep;
    std::vector<UnreadableFile>
        leftOut; ///< by another attempt at the same folder: these are left out, with a note
    Stop stop; ///< ends the reading of the folder and the writing of the image
    /// Told by writeTo(), several times a second, how many bytes of the image are written. May be empty.
    std::function<void(std::uint64_t bytes)> progress;
};

/// The image of one folder: the tree is read once, the exact size is known, and the data is read
/// from the files while the image is streamed. The image can be streamed once.
///
/// One thread at a time. Movable.
class IsoImage {
public:
    /// Reads the tree under `folder`. Names may hold any bytes. What cannot be read is left out, with a note. Errors: the
    /// folder itself cannot be read; no file is left.
    static Result<IsoImage> fromFolder(const std::string &folder, const IsoOptions &options);

    IsoImage(IsoImage &&other) noexcept;
    IsoImage &operator=(IsoImage &&other) noexcept;
    ~IsoImage();

    /// Size of the image in blocks of 2048 bytes, 150 blocks of padding included (drives read
    /// ahead over the end of a track written at once). Exact before anything is streamed.
    std::uint32_t blockCount() const;

    /// Number of files that hold data, each counted once whatever its number of links.
    std::uint32_t fileCount() const;

    /// True when there is nothing in the folder: no file, no folder, no link.
    bool isEmpty() const;

    /// What was left out or stored under another name: plain sentences, one line each.
    const std::vector<std::string> &notes() const;

    /// Fills `buffer` with the next bytes of the image and returns their number, which is less than its size only at
    /// the end. An error names the file that cannot be read or became shorter.
    Result<std::size_t> read(std::span<std::byte> buffer);

    /// The file that ended read() or writeTo() because it cannot be read. One that became shorter is none.
    std::optional<UnreadableFile> unreadable() const;

    /// Writes the whole image to `fd` from its current position. The error of a failed write
    /// speaks of `destination`, one of a source file names that file.
    Result<void> writeTo(int fd, const std::string &destination);

private:
    class Stream;
    explicit IsoImage(std::unique_ptr<Stream> stream);
    std::unique_ptr<Stream> m_stream;
};

} // namespace engine::image
