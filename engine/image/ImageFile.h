// Writing an image into a file.
#pragma once

#include "base/Result.h"
#include "base/Stop.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>

namespace engine::image {

/// The file that an image goes into. Does not own the descriptor. Errors speak of `name`.
class ImageFile {
public:
    /// `progress` is told now and then how many bytes are written; it may be empty.
    ImageFile(int fd, std::string name, Stop stop, std::function<void(std::uint64_t)> progress);

    /// Writes all of `bytes`.
    Result<void> write(std::span<const std::byte> bytes);

    /// Copies `size` bytes from the position of `source`, by the kernel where the file systems allow it.
    /// `unreadable` makes the error of the source: it gets an errno value, or 0 when the source ends early.
    Result<void> copy(int source, std::uint64_t size, const std::function<Error(int error)> &unreadable);

private:
    Result<void> goOn() const;
    Result<void> copyByHand(
        int source, std::uint64_t size, const std::function<Error(int error)> &unreadable);

    int m_fd;
    std::string m_name;
    Stop m_stop;
    std::function<void(std::uint64_t)> m_progress;
    std::uint64_t m_written = 0;
    std::unique_ptr<std::byte[]> m_buffer; ///< of copyByHand()
};

} // namespace engine::image
