// The sentences for a write that did not reach its end.
#pragma once

#include "drive/LibburnDrive.h"

#include <string>

namespace engine::drive {

/// What a disc is good for after a failed write.
enum class Left {
    asBefore, ///< nothing was done to it
    blank, ///< nothing reached it
    spoilt, ///< write-once: it can only be thrown away
    erasable, ///< it can be erased and used again
    overwritable, ///< it can be written again as it is
    closed, ///< everything is on it, and it is closed
};

/// What is left of a medium when a write to it broke off. `touched` tells whether anything reached it.
Left leftOf(const Medium &before, bool touched);

/// `error` with one more sentence at its end: in which state the disc in `driveName` is. The error of a stop before
/// anything was written has that sentence already and stays as it is.
Error withState(const Error &error, const std::string &driveName, Left left);

/// What libburn said, as it stands behind a sentence: " (Medium error)"; nothing when it said nothing.
std::string inBrackets(const LibburnMessage &message);

/// The error for `outcome`, which is not well. `source` is how the source of the data went.
Error writeFailure(const LibburnDrive::Outcome &outcome, const Result<void> &source,
    const std::string &driveName, Left left);

} // namespace engine::drive
