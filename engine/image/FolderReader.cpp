#include "image/FolderReader.h"

#include "base/Words.h"
#include "image/TreeOpener.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <unistd.h>
#include <utility>

namespace engine::image {

FolderReader::FolderReader(const FolderTree &tree, Large large)
    : m_tree(tree)
    , m_large(large)
{
    for (Slot &slot : m_slots)
        slot.bytes = std::make_unique_for_overwrite<std::byte[]>(slotSize);
    m_thread = std::thread([this] { run(); });
}

FolderReader::~FolderReader()
{
    {
        const std::lock_guard lock(m_mutex);
        m_stopping = true;
    }
    m_changed.notify_all();
    m_thread.join();
}

bool FolderReader::next(Piece &piece)
{
    std::unique_lock lock(m_mutex);
    if (m_released < m_taken) {
        m_slots[m_released % slotCount].file = Fd();
        m_released = m_taken;
        m_changed.notify_all();
    }
    m_changed.wait(lock, [this] { return m_published > m_taken || m_ended; });
    if (m_published == m_taken)
        return false;
    const Slot &slot = m_slots[m_taken++ % slotCount];
    piece = { { slot.bytes.get(), slot.filled }, slot.file.get(), slot.fileSize, slot.content };
    return true;
}

Result<void> FolderReader::outcome() const
{
    const std::lock_guard lock(m_mutex);
    return m_outcome;
}

std::optional<std::pair<std::uint32_t, int>> FolderReader::unreadable() const
{
    const std::lock_guard lock(m_mutex);
    return m_unreadable;
}

Error FolderReader::contentError(const FolderTree &tree, std::uint32_t content, int error)
{
    const std::string why = error != 0
        ? "cannot be read: " + reasonAndAdvice(error)
        : "became shorter while it was being stored; leave it alone and start again";
    return { Exit::failed,
        "The file " + quoted(tree.path(tree.contents()[content].entry)) + " " + why + "." };
}

void FolderReader::run()
{
    TreeOpener opener(m_tree);
    const auto end = static_cast<std::uint32_t>(m_tree.contents().size());
    filling().filled = 0;
    std::uint32_t content = 0;
    while (content < end && readContent(content, opener))
        ++content;
    if (content == end && filling().filled > 0)
        publish();
    {
        const std::lock_guard lock(m_mutex);
        m_ended = true;
    }
    m_changed.notify_all();
}

bool FolderReader::readContent(std::uint32_t content, TreeOpener &opener)
{
    const std::uint64_t size = m_tree.contents()[content].size;
    if (size == 0)
        return true;
    if (m_tree.contents()[content].isGap())
        return fillGap(size);
    Fd file = opener.openFile(m_tree.contents()[content].entry);
    if (!file)
        return fail(content, errno);
    if (m_large == Large::open && size >= largeSize)
        return handOver(std::move(file), content) && pad(size);
    return readBytes(file.get(), content) && pad(size);
}

bool FolderReader::readBytes(int fd, std::uint32_t content)
{
    for (std::uint64_t left = m_tree.contents()[content].size; left > 0;) {
        Slot &slot = filling();
        const auto room = static_cast<std::size_t>(std::min<std::uint64_t>(left, slotSize - slot.filled));
        const ssize_t got = ::read(fd, slot.bytes.get() + slot.filled, room);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            return fail(content, got < 0 ? errno : 0);
        left -= static_cast<std::uint64_t>(got);
        slot.filled += static_cast<std::size_t>(got);
        if (slot.filled == slotSize && !publish())
            return false;
    }
    return true;
}

bool FolderReader::fillGap(std::uint64_t size)
{
    for (std::uint64_t left = size; left > 0;) {
        Slot &slot = filling();
        const auto part = static_cast<std::size_t>(std::min<std::uint64_t>(left, slotSize - slot.filled));
        std::memset(slot.bytes.get() + slot.filled, 0, part);
        left -= part;
        slot.filled += part;
        if (slot.filled == slotSize && !publish())
            return false;
    }
    return true;
}

bool FolderReader::handOver(Fd file, std::uint32_t content)
{
    Slot &slot = filling();
    slot.file = std::move(file);
    slot.fileSize = m_tree.contents()[content].size;
    slot.content = content;
    return publish();
}

/// Zeros after `size` bytes of data, up to a whole block.
bool FolderReader::pad(std::uint64_t size)
{
    Slot &slot = filling();
    const auto zeros = static_cast<std::size_t>((blockSize - size % blockSize) % blockSize);
    // Slots are whole blocks and every file begins at one, except after a file that was handed over: then
    // the slot is empty. There is always room.
    std::memset(slot.bytes.get() + slot.filled, 0, zeros);
    slot.filled += zeros;
    return slot.filled < slotSize || publish();
}

/// Hands the slot over and waits for a free one.
bool FolderReader::publish()
{
    std::unique_lock lock(m_mutex);
    ++m_published;
    m_changed.notify_all();
    m_changed.wait(lock, [this] { return m_stopping || m_published - m_released < slotCount; });
    if (m_stopping)
        return false;
    filling().filled = 0;
    return true;
}

bool FolderReader::fail(std::uint32_t content, int error)
{
    const std::lock_guard lock(m_mutex);
    m_outcome = contentError(m_tree, content, error);
    if (error != 0)
        m_unreadable.emplace(content, error);
    return false;
}

} // namespace engine::image
