#include "app/StopOnSignals.h"

#include <QSocketNotifier>

#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int signals[] = { SIGINT, SIGTERM };

int wakePipe[2] = { -1, -1 };
volatile std::sig_atomic_t caught = 0;

/// Only what may be done in a signal handler: note it, and wake the event loop.
void note(int signal)
{
    caught = signal;
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = ::write(wakePipe[1], &byte, 1);
}

} // namespace

StopOnSignals::StopOnSignals(std::function<bool()> stop)
    : m_stop(std::move(stop))
{
    if (::pipe2(wakePipe, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    m_notifier = new QSocketNotifier(wakePipe[0], QSocketNotifier::Read);
    QObject::connect(m_notifier, &QSocketNotifier::activated, m_notifier, [this] {
        char bytes[16];
        while (::read(wakePipe[0], bytes, sizeof bytes) > 0) { }
        if (!m_stop())
            endByCaughtOne();
    });
    for (const int signal : signals)
        std::signal(signal, note);
}

StopOnSignals::~StopOnSignals()
{
    for (const int signal : signals)
        std::signal(signal, SIG_DFL);
    delete m_notifier;
    for (int &end : wakePipe) {
        ::close(end);
        end = -1;
    }
}

void StopOnSignals::endByCaughtOne()
{
    if (caught == 0)
        return;
    std::fflush(nullptr);
    std::signal(caught, SIG_DFL);
    std::raise(caught);
}
