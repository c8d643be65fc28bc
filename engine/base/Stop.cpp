#include "base/Stop.h"

#include <array>
#include <atomic>
#include <csignal>

namespace engine {

namespace {

constexpr std::array stopping{ SIGINT, SIGTERM };

// Whoever closes the terminal or the reader of our output does not want to lose the disc.
// A limit on the size of files has to become an error of the write, not the end of the program.
constexpr std::array ignored{ SIGHUP, SIGPIPE, SIGXFSZ };

std::array<struct sigaction, stopping.size()> previous; // of those that stop
std::atomic<int> firstSignal = 0;
static_assert(std::atomic<int>::is_always_lock_free);

extern "C" void note(int signal)
{
    int none = 0;
    firstSignal.compare_exchange_strong(none, signal);
}

} // namespace

StopSignals::StopSignals()
{
    firstSignal = 0;
    struct sigaction action { };
    action.sa_handler = note;
    // A write to a file or a drive that a signal broke off would count as failed.
    action.sa_flags = SA_RESTART;
    // Of two at once the first is the one that counts.
    sigfillset(&action.sa_mask);
    for (std::size_t i = 0; i < stopping.size(); ++i)
        ::sigaction(stopping[i], &action, &previous[i]);
    for (const int signal : ignored)
        std::signal(signal, SIG_IGN);
}

StopSignals::~StopSignals()
{
    // What was ignored stays so: a thread that blocks all signals may have one pending, and gets it at its end.
    for (std::size_t i = 0; i < stopping.size(); ++i)
        ::sigaction(stopping[i], &previous[i], nullptr);
}

Stop StopSignals::stop() const
{
    return [] { return firstSignal.load(); };
}

Error stoppedBy(int signal, std::string message)
{
    return { signal == SIGINT ? Exit::interrupted : Exit::terminated, std::move(message) };
}

bool isStop(const Error &error)
{
    return error.exit == Exit::interrupted || error.exit == Exit::terminated;
}

} // namespace engine
