// Which way of writing to try, and which next when the drive refuses one.
#pragma once

#include "drive/LibburnDrive.h"

#include <optional>
#include <string>
#include <vector>

namespace engine::drive {

/// One way of writing. `speed` is in 1000 bytes a second, 0 for what the drive chooses.
struct Attempt {
    WriteMode mode = WriteMode::trackAtOnce;
    int speed = 0;
    bool named = false; ///< with CD-TEXT
    bool operator==(const Attempt &) const = default;
};

/// The first way for a medium: at once where the medium knows that, at `speed`. Overwritable media know one way only.
Attempt firstAttempt(Rewriting rewriting, int speed);

/// What to try after `failed` got `refusal`, while the medium is still as it was. A speed error lowers the
/// speed. Any other refusal of a disc with CD-TEXT leaves that away; any other of the session at once gives the
/// incremental way, except for audio: track at once would put pauses between the tracks. No value: nothing is left.
std::optional<Attempt> nextAttempt(
    const Attempt &failed, const LibburnMessage &refusal, bool audio, const std::vector<int> &speeds);

/// True for a refusal that a lower speed can mend: power calibration and speed errors (sense 3/73,
/// MMC-6 annex F; 5/55 is not among them).
bool isSpeedError(const LibburnMessage &refusal);

} // namespace engine::drive
