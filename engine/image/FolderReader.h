// Reads the data of a tree's files ahead of whoever stores them.
#pragma once

#include "base/Result.h"
#include "image/FolderTree.h"

#include <array>
#include <condition_variable>
#include <cstddef>
#include <memory>
#include <mutex>
#include <thread>

namespace engine::image {

/// The contents of a tree as one stream of bytes in the order of their numbers, filled by a thread
/// of its own, so that opening and reading files runs beside writing. The contents are asked for in
/// ascending order; anything else is served too, but starts the thread anew.
///
/// open() and read() belong to one thread at a time; outcome() may be asked from any.
class FolderReader {
public:
    explicit FolderReader(const FolderTree &tree);
    FolderReader(const FolderReader &) = delete;
    FolderReader &operator=(const FolderReader &) = delete;
    ~FolderReader();

    /// Goes to the first byte of a content.
    void open(std::uint32_t content);
    /// Copies the next bytes of the open content; fewer than `size` only at its end. Returns
    /// false when a file failed, see outcome().
    bool read(std::byte *buffer, std::size_t size, std::size_t &got);
    /// The error that stopped the reading: names the file.
    Result<void> outcome() const;

private:
    struct Slot {
        std::unique_ptr<std::byte[]> bytes;
        std::size_t filled = 0;
    };

    void start(std::uint32_t content);
    void stop();
    bool comesNext(std::uint32_t content) const;
    const std::byte *next(std::size_t most, std::size_t &got);

    // On the reading thread.
    void fill(std::uint32_t content);
    bool fillFrom(std::uint32_t content, TreeOpener &opener);
    bool publish(std::size_t filled);
    void fail(std::uint32_t content, const std::string &why);

    static constexpr std::size_t slotCount = 8;
    static constexpr std::size_t slotSize = 256 * 1024;

    const FolderTree &m_tree;
    std::array<Slot, slotCount> m_slots;
    std::thread m_thread;

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::uint64_t m_published = 0; ///< slots filled since the start
    std::uint64_t m_released = 0;  ///< slots emptied since the start
    bool m_ended = false;          ///< nothing more will be published
    bool m_stopping = false;
    Result<void> m_outcome;

    std::uint64_t m_taken = 0;     ///< number of the slot being emptied
    std::size_t m_slotOffset = 0;  ///< in that slot
    std::uint64_t m_available = 0; ///< slots known to be filled
    std::uint32_t m_content = 0;   ///< opened last
    std::uint64_t m_left = 0;      ///< bytes of it still to come

    std::size_t m_fillOffset = 0; ///< reading thread: bytes in the slot being filled
};

} // namespace engine::image
