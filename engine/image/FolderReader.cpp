#include "image/FolderReader.h"

#include "base/Words.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <unistd.h>

namespace engine::image {

FolderReader::FolderReader(const FolderTree &tree) : m_tree(tree) {}

FolderReader::~FolderReader()
{
    stop();
}

void FolderReader::open(std::uint32_t content)
{
    if (!comesNext(content)) {
        stop();
        start(content);
    }
    m_content = content;
    m_left = m_tree.contents()[content].size;
}

/// Whether the next byte in the slots is the first of `content`.
bool FolderReader::comesNext(std::uint32_t content) const
{
    if (!m_thread.joinable() || m_left > 0 || content <= m_content)
        return false;
    const auto size = [this](std::uint32_t passed) { return m_tree.contents()[passed].size; };
    for (std::uint32_t passed = m_content + 1; passed < content; ++passed) {
        if (size(passed) > 0)
            return false;
    }
    return true;
}

bool FolderReader::read(std::byte *buffer, std::size_t size, std::size_t &got)
{
    size = static_cast<std::size_t>(std::min<std::uint64_t>(size, m_left));
    for (got = 0; got < size;) {
        std::size_t part = 0;
        const std::byte *bytes = next(size - got, part);
        if (!bytes)
            return false;
        std::memcpy(buffer + got, bytes, part);
        got += part;
    }
    m_left -= size;
    return true;
}

Result<void> FolderReader::outcome() const
{
    const std::lock_guard lock(m_mutex);
    return m_outcome;
}

void FolderReader::start(std::uint32_t content)
{
    for (Slot &slot : m_slots) {
        if (!slot.bytes)
            slot.bytes = std::make_unique_for_overwrite<std::byte[]>(slotSize);
    }
    m_published = m_released = m_taken = m_available = 0;
    m_slotOffset = 0;
    m_fillOffset = 0;
    m_ended = m_stopping = false;
    m_thread = std::thread([this, content] { fill(content); });
}

void FolderReader::stop()
{
    if (!m_thread.joinable())
        return;
    {
        const std::lock_guard lock(m_mutex);
        m_stopping = true;
    }
    m_changed.notify_all();
    m_thread.join();
}

/// Up to `most` bytes that lie side by side; waits for the reading thread. nullptr at its end.
const std::byte *FolderReader::next(std::size_t most, std::size_t &got)
{
    if (m_taken < m_available && m_slotOffset == m_slots[m_taken % slotCount].filled) {
        ++m_taken;
        m_slotOffset = 0;
        {
            const std::lock_guard lock(m_mutex);
            m_released = m_taken;
        }
        m_changed.notify_all();
    }
    if (m_taken == m_available) {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [this] { return m_published > m_taken || m_ended; });
        m_available = m_published;
        if (m_taken == m_available)
            return nullptr;
    }
    const Slot &slot = m_slots[m_taken % slotCount];
    got = std::min(most, slot.filled - m_slotOffset);
    const std::byte *bytes = slot.bytes.get() + m_slotOffset;
    m_slotOffset += got;
    return bytes;
}

void FolderReader::fill(std::uint32_t content)
{
    TreeOpener opener(m_tree);
    const auto end = static_cast<std::uint32_t>(m_tree.contents().size());
    while (content < end && fillFrom(content, opener))
        ++content;
    if (content == end && m_fillOffset > 0)
        publish(m_fillOffset);
    {
        const std::lock_guard lock(m_mutex);
        m_ended = true;
    }
    m_changed.notify_all();
}

/// Puts one file into the slots; false when it failed or the reading is to stop.
bool FolderReader::fillFrom(std::uint32_t content, TreeOpener &opener)
{
    std::uint64_t left = m_tree.contents()[content].size;
    if (left == 0)
        return true;
    const int fd = opener.openFile(m_tree.contents()[content].entry);
    if (fd < 0) {
        fail(content, "cannot be read: " + reason(errno));
        return false;
    }
    bool going = true;
    while (going && left > 0) {
        const auto room = static_cast<std::size_t>(std::min<std::uint64_t>(left, slotSize - m_fillOffset));
        const ssize_t got = ::read(fd, m_slots[m_published % slotCount].bytes.get() + m_fillOffset, room);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0) {
            fail(content, got < 0 ? "cannot be read: " + reason(errno)
                                  : "became shorter while it was being stored; leave it alone and start again");
            going = false;
            break;
        }
        left -= static_cast<std::uint64_t>(got);
        m_fillOffset += static_cast<std::size_t>(got);
        going = m_fillOffset < slotSize || publish(slotSize);
    }
    close(fd);
    return going;
}

/// Hands the slot over and waits for a free one; false when the reading is to stop.
bool FolderReader::publish(std::size_t filled)
{
    m_slots[m_published % slotCount].filled = filled;
    m_fillOffset = 0;
    std::unique_lock lock(m_mutex);
    ++m_published;
    m_changed.notify_all();
    m_changed.wait(lock, [this] { return m_stopping || m_published - m_released < slotCount; });
    return !m_stopping;
}

void FolderReader::fail(std::uint32_t content, const std::string &why)
{
    const std::string path = m_tree.path(m_tree.contents()[content].entry);
    const std::lock_guard lock(m_mutex);
    if (m_outcome)
        m_outcome = Error { Exit::failed, "The file " + quoted(path) + " " + why + "." };
}

} // namespace engine::image
