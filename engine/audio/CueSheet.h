// The cue sheet beside the sectors of an audio disc in a file.
#pragma once

#include "audio/AudioDisc.h"
#include "medium/Tracks.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace engine::audio {

/// The cue sheet of a .bin file that holds the pause of track 1 and then all tracks back to back, with the names of
/// `disc` as TITLE and PERFORMER in ISO 8859-1, which is what programs expect of a sheet that says nothing else.
/// `binName` and the names are written between quotation marks; a quotation mark
/// or line break becomes '_' in the one and an apostrophe or blank in the others.
std::string cueSheet(const std::string &binName, const AudioDisc &disc);

/// The tracks of a sheet that cueSheet() made, of a .bin file of `sectors` sectors; names may be UTF-8 as well. Lines that it does not know are left
/// alone; tracks that do not follow each other have no length.
DiscTracks tracksOfSheet(std::string_view sheet, std::uint64_t sectors);

} // namespace engine::audio
