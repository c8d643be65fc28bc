// What libburn tells about the medium in a physical drive, and the tracks it is given for an audio CD.
#pragma once

#include "drive/LibburnDrive.h"
#include "medium/Medium.h"
#include "medium/Tracks.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace engine::drive {

/// The current profile of the drive (MMC-6 table 94), 0 when it is empty.
int profileOf(LibburnDrive &drive);

/// Asks the drive for everything that a Medium holds. Waits for a medium that is not ready yet, half a minute
/// or until `stop`.
Result<Medium> readMedium(LibburnDrive &drive, const std::string &device, const Stop &stop);

/// The tracks in the table of contents, with their names where a CD has any; none when the drive tells none.
DiscTracks readTracks(LibburnDrive &drive);

/// Size in blocks of the ISO 9660 volume whose primary volume descriptor is `descriptor` (block 16 of a
/// disc, ECMA-119 8.4); 0 when it is none. A UDF volume does not tell its size there, and counts as the largest number.
std::uint64_t volumeBlocks(std::span<const std::byte> descriptor);

/// True for a rewritable medium that has to be formatted before it takes data. `status` is the
/// format status of READ FORMAT CAPACITIES (MMC-6 6.23), when the drive gave an answer. DVD+RW is formatted
/// by libburn in the course of a write.
bool needsFormat(int profile, bool answered, int status);

/// The tracks of a session at once: the pause of two seconds before the first, none added between.
/// `supply` is told of a file that fails.
Result<std::vector<Track>> audioTracks(const audio::AudioDisc &disc, const std::shared_ptr<Supply> &supply);

} // namespace engine::drive
