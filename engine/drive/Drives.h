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

/// The first drive that holds a disc which can be written now or erased, physical drives first. Without
/// one an error with Exit::noDisc. `stop` ends the search and its waits.
Result<std::unique_ptr<Drive>> defaultBurner(const Stop &stop);

} // namespace engine::drive
