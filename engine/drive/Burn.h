// Whole operations on a drive: from the check of the medium to the comparison of what was written.
#pragma once

#include "drive/Drive.h"

#include <functional>
#include <string>

namespace engine::drive {

/// What a burn is done with.
struct BurnOptions {
    bool verify = true; ///< read the disc back and compare
    Pace pace;
    Control control;
    std::function<void(const std::string &sentence)> say; ///< what is done next; may be empty
    /// What is left out of the disc or was changed, by the name below the folder that is written; may be empty.
    std::function<void(const std::string &sentence)> note;
};

/// Writes the content of `folder` as the root of a data disc (ISO 9660 level 3, Joliet, Rock Ridge, closed).
///
/// This and the two below check the medium and the exact size before anything is written (the error has
/// both figures and leaves the disc as it is), erase a rewritable medium that is not blank, and write. Data
/// are read back and compared. Errors: Exit::noDisc for an empty drive, else Exit::failed or the
/// signal's exit code.
Result<void> burnFolder(Drive &drive, const std::string &folder, const BurnOptions &options);

/// Writes the WAVE files directly in `folder` as an audio CD.
Result<void> burnAudioFolder(Drive &drive, const std::string &folder, const BurnOptions &options);

/// Writes the file `image` as it is, filled to whole blocks of 2048 bytes.
Result<void> burnImageFile(Drive &drive, const std::string &image, const BurnOptions &options);

/// The tracks of the disc in `drive`. Errors: Exit::noDisc for an empty drive; a blank disc.
Result<DiscTracks> tracksOn(Drive &drive);

/// Erases the medium in `drive`.
Result<void> eraseMedium(Drive &drive, EraseMode mode, const Control &control);

} // namespace engine::drive
