#include "drive/Burn.h"

#include <array>
#include <atomic>
#include <csignal>

namespace engine::drive {

namespace {

struct Handled {
    int signal;
    bool stops;
};

// Whoever closes the terminal or the reader of our output does not want to lose the disc.
// A limit on the size of files has to become an error of the write, not the end of the program.
constexpr std::array handled{ Handled{ SIGINT, true }, Handled{ SIGTERM, true }, Handled{ SIGHUP, false },
    Handled{ SIGPIPE, false }, Handled{ SIGXFSZ, false } };

std::array<struct sigaction, handled.size()> previous;
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
    for (std::size_t i = 0; i < handled.size(); ++i) {
        struct sigaction action { };
        action.sa_handler = handled[i].stops ? note : SIG_IGN;
        // A write to a file or a drive that a signal broke off would count as failed.
        action.sa_flags = SA_RESTART;
        // Of two at once the first is the one that counts.
        sigfillset(&action.sa_mask);
        ::sigaction(handled[i].signal, &action, &previous[i]);
    }
}

StopSignals::~StopSignals()
{
    // What was ignored stays so: a thread that blocks all signals may have one pending, and gets it at its end.
    for (std::size_t i = 0; i < handled.size(); ++i) {
        if (handled[i].stops)
            ::sigaction(handled[i].signal, &previous[i], nullptr);
    }
}

int StopSignals::caught() const
{
    return firstSignal;
}

} // namespace engine::drive
