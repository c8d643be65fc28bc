// Reads the data of a tree's files ahead of whoever writes them.
#pragma once

#include "base/Fd.h"
#include "base/Result.h"
#include "image/FolderTree.h"

#include <array>
#include <condition_variable>
#include <cstddef>
#include <memory>
#include <mutex>
#include <optional>
#include <span>
#include <thread>
#include <utility>

namespace engine::image {

class TreeOpener;

/// The next bytes of the data area: `bytes`, and after them, when `file` is not -1, `fileSize` bytes that are
/// to be copied from the start of that file.
struct Piece {
    std::span<const std::byte> bytes;
    int file = -1;
    std::uint64_t fileSize = 0;
    std::uint32_t content = 0; ///< the number of that file's content
};

/// The data area of an image: the contents of a tree in the order of their numbers, each filled with zeros
/// to whole blocks. A thread of its own opens and reads the files, so that this runs beside writing.
///
/// next() belongs to one thread; outcome() may be asked from any.
class FolderReader {
public:
    enum class Large {
        read, ///< every byte comes as a byte
        open, ///< a large file comes as an open file, so that the kernel can copy it by itself
    };

    /// `tree` must live longer. Starts reading at once.
    FolderReader(const FolderTree &tree, Large large);
    FolderReader(const FolderReader &) = delete;
    FolderReader &operator=(const FolderReader &) = delete;
    ~FolderReader();

    /// Waits for the next piece, which is valid until the next call. False at the end, and when a file
    /// failed: see outcome().
    bool next(Piece &piece);
    /// The error that ended the reading early: names the file.
    Result<void> outcome() const;

    /// The content whose file could not be read, and errno; nothing where another fault ended the reading.
    std::optional<std::pair<std::uint32_t, int>> unreadable() const;

    /// The sentence for a file that fails while its image is written; `error` is an errno value, or 0
    /// when the file has become shorter.
    static Error contentError(const FolderTree &tree, std::uint32_t content, int error);

private:
    struct Slot {
        std::unique_ptr<std::byte[]> bytes;
        std::size_t filled = 0;
        Fd file; ///< one that is handed over
        std::uint64_t fileSize = 0;
        std::uint32_t content = 0;
    };

    // On the reading thread; false when the reading is to stop.
    void run();
    bool readContent(std::uint32_t content, TreeOpener &opener);
    bool readBytes(int fd, std::uint32_t content);
    bool handOver(Fd file, std::uint32_t content);
    bool fillGap(std::uint64_t size);
    bool pad(std::uint64_t size);
    bool publish();
    bool fail(std::uint32_t content, int error);
    Slot &filling() { return m_slots[m_published % slotCount]; }

    static constexpr std::size_t slotCount = 3;
    static constexpr std::size_t slotSize = 128 * 1024;
    // Below this, copying through the slots beside the writing is faster than the kernel's way.
    static constexpr std::uint64_t largeSize = 1024 * 1024;

    const FolderTree &m_tree;
    const Large m_large;
    std::array<Slot, slotCount> m_slots;
    std::uint64_t m_taken = 0; ///< slots that next() has returned

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::uint64_t m_published = 0; ///< slots filled since the start; only the reading thread changes it
    std::uint64_t m_released = 0; ///< slots emptied since the start
    bool m_ended = false; ///< nothing more will be published
    bool m_stopping = false;
    Result<void> m_outcome;
    std::optional<std::pair<std::uint32_t, int>> m_unreadable;
    std::thread m_thread; ///< last, so that it finds the other members
};

} // namespace engine::image
