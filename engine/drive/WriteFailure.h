// The sentences for a write that did not reach its end.
#pragma once

#include "drive/LibburnDrive.h"

#include <string>

namespace engine::drive {

/// What a disc is good for after a failed write.
enum class Left {
    blank, ///< nothing reached it
    spoilt, ///< write-once: it can only be thrown away
    erasable, ///< it can be erased and used again
    overwritable, ///< it can be written again as it is
};

/// What is left of a medium when a write to it broke off. `touched` tells whether anything reached it.
Left leftOf(const Medium &before, bool touched);

/// What libburn said, as it stands behind a sentence: " (Medium error)"; nothing when it said nothing.
std::string inBrackets(const LibburnMessage &message);

/// The error for `outcome`, which is not well. `source` is how the source of the data went.
Error writeFailure(const LibburnDrive::Outcome &outcome, const Result<void> &source,
    const std::string &driveName, Left left);

} // namespace engine::drive
