#include "program/Output.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <climits>
#include <poll.h>
#include <unistd.h>
#include <utility>

namespace engine::program {

namespace {

using namespace std::chrono_literals;

bool hasRoom(int fd, std::chrono::milliseconds patience)
{
    pollfd wanted{ fd, POLLOUT, 0 };
    // An error is no reason to wait: the write tells of it.
    return ::poll(&wanted, 1, static_cast<int>(patience.count())) > 0;
}

} // namespace

Output::Output(int fd, std::function<bool()> stopped)
    : m_fd(fd)
    , m_stopped(std::move(stopped))
{
}

Output::~Output()
{
    finish();
}

void Output::flush()
{
    // A pipe that has room at all takes PIPE_BUF bytes (pipe(7)).
    while (m_out < m_waiting.size() && hasRoom(m_fd, 0ms)) {
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
    if (m_waiting.empty() && hasRoom(m_fd, 0ms))
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
        hasRoom(m_fd, 100ms);
        if (m_stopped())
            end = std::min(end, Clock::now() + patience);
    }
    m_waiting.clear();
    m_out = 0;
}

} // namespace engine::program
