#include "drive/Drive.h"

#include <csignal>

namespace engine::drive {

void Control::report(const report::Progress &p, unsigned unitBytes) const
{
    if (progress)
        progress(p, unitBytes);
}

int Control::stopped() const
{
    return stopSignal ? stopSignal() : 0;
}

Error stoppedBy(int signal, std::string message)
{
    return { signal == SIGINT ? Exit::interrupted : Exit::terminated, std::move(message) };
}

} // namespace engine::drive
