#include "program/Output.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <climits>
#include <fcntl.h>
#include <poll.h>
#include <string>
#include <thread>
#include <unistd.h>
#include <utility>

namespace engine::program {

namespace {

using namespace std::chrono_literals;

bool hasRoom(int fd)
{
    pollfd wanted{ fd, POLLOUT, 0 };
    // An error is no reason to wait: the write tells of it.
    return ::poll(&wanted, 1, 0) > 0;
}

} // namespace

Output::Output(int fd, Stop stop)
    : m_fd(fd)
    , m_stop(std::move(stop))
{
    // A terminal that has room at all may take less than a pipe would. Opened anew it waits for nobody, and others
    // who have it open notice nothing.
    if (::isatty(fd) == 1)
        m_terminal = Fd(::open(
            ("/proc/self/fd/" + std::to_string(fd)).c_str(), O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (m_terminal)
        m_fd = m_terminal.get();
}

Output::~Output()
{
    finish();
}

void Output::flush()
{
    // A pipe that has room at all takes PIPE_BUF bytes (pipe(7)).
    while (m_out < m_waiting.size() && hasRoom(m_fd)) {
        const auto count = std::min<std::size_t>(m_waiting.size() - m_out, PIPE_BUF);
        const ssize_t n = ::write(m_fd, m_waiting.data() + m_out, count);
        if (n < 0 && (errno == EINTR || errno == EAGAIN))
            return;
        // After any other failure nobody listens any more.
        m_out = n < 0 ? m_waiting.size() : m_out + static_cast<std::size_t>(n);
    }
    if (m_out == m_waiting.size()) {
        m_waiting.clear();
        m_out = 0;
    }
}

void Output::offer(const std::string &line)
{
    flush();
    if (m_waiting.empty() && hasRoom(m_fd))
        tell(line);
}

void Output::tell(const std::string &line)
{
    m_waiting += line;
    flush();
}

void Output::finish()
{
    using Clock = std::chrono::steady_clock;
    constexpr auto patience = 2s;
    auto end = Clock::time_point::max();
    for (flush(); !m_waiting.empty() && Clock::now() < end; flush()) {
        std::this_thread::sleep_for(10ms);
        if (m_stop.signal() != 0)
            end = std::min(end, Clock::now() + patience);
    }
    m_waiting.clear();
    m_out = 0;
}

} // namespace engine::program
