// Lines for somebody who may read slowly, stop reading or go away.
#pragma once

#include "base/Fd.h"
#include "base/Stop.h"

#include <cstddef>
#include <string>

namespace engine::program {

/// Writes lines to a file descriptor without waiting for its reader, who must not hold up an operation on a disc.
/// Not thread-safe.
class Output {
public:
    /// `fd` stays the caller's. `stop` is asked in finish().
    Output(int fd, Stop stop);

    /// finish()
    ~Output();
    Output(const Output &) = delete;
    Output &operator=(const Output &) = delete;

    /// A line that the next one makes out of date, with its break: dropped when the reader leaves no room.
    void offer(const std::string &line);

    /// A line that is worth keeping, with its break: waits until there is room.
    void tell(const std::string &line);

    /// Waits for the reader until everything that was told is out; once the program shall end, two seconds at
    /// most. What is not out then is lost.
    void finish();

private:
    void flush();

    int m_fd;
    Fd m_terminal; ///< of m_fd, when that is one
    Stop m_stop;
    std::string m_waiting; ///< what was told and is not out
    std::size_t m_out = 0; ///< bytes at its start that are
};

} // namespace engine::program
