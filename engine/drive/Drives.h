// The drives of this machine, numbered.
#pragma once

#include "drive/Drive.h"

#include <memory>
#include <string_view>
#include <vector>

namespace engine::drive {

/// Physical drives in the order of their device names, then virtual recorders in the order of their
/// numbers; at most maximumDrives. Touches no medium and spins nothing up. An error only where
/// the recorders' folder cannot be read.
Result<std::vector<std::unique_ptr<Drive>>> allDrives();

/// allDrives(), but makes recorder 1 with a blank CD-R in it where the machine has no physical burner
/// and no recorder (or where CORVALIS_VIRTUAL is "always" and there is no recorder).
Result<std::vector<std::unique_ptr<Drive>>> allDrivesOrNew();

/// The drive that `list` shows under `number`. With an empty number the only drive there is.
Result<std::unique_ptr<Drive>> driveNumbered(std::string_view number);

/// The drive for a disc that nobody named one for. A blank disc comes before one that would have to be erased; of several
/// the one in the drive that the list shows under `preferred` (any text; it may be none of them), then in the order of the
/// list. Without any an error with Exit::noDisc. `stop` ends the search and its waits.
Result<std::unique_ptr<Drive>> defaultBurner(std::string_view preferred, const Stop &stop);

} // namespace engine::drive
