#include "drive/Drive.h"

namespace engine::drive {

void Control::report(const Progress &p, unsigned unitBytes) const
{
    if (progress)
        progress(p, unitBytes);
}

Error stoppedUntouched(int signal)
{
    return stoppedBy(signal, "Stopped before anything was written: the disc is as it was.");
}

Result<void> checkRoom(std::uint64_t needed, std::uint64_t room, const std::string &driveName)
{
    if (needed <= room)
        return {};
    return Error{ Exit::failed,
        "The data need " + std::to_string(needed) + " blocks, and the disc in " + driveName + " has room for "
            + std::to_string(room) + ": take something out, or insert a larger disc." };
}

} // namespace engine::drive
