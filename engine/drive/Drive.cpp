#include "drive/Drive.h"

#include "audio/AudioDisc.h"
#include "base/Words.h"

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

Result<void> checkRoom(std::uint64_t needed, std::uint64_t room, Amount amount, const std::string &driveName)
{
    if (needed <= room)
        return {};
    const bool sound = amount == Amount::sound;
    const auto text = sound ? audio::lengthText : blocksText;
    return Error{ Exit::failed,
        (sound ? "The tracks need " : "The data need ") + text(needed) + ", and the disc in " + driveName
            + " has room for " + text(room) + ": take something out, or insert a larger disc." };
}

} // namespace engine::drive
