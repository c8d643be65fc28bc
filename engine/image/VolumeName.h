// The name of a disc, in the forms that its file systems hold.
#pragma once

#include "image/FolderTree.h"

#include <string>
#include <string_view>
#include <vector>

namespace engine::image {

struct VolumeName {
    std::string
        iso; ///< printable ASCII, at most 32 characters (ECMA-119 8.4.7, with small letters and spaces as they are)
    std::u16string joliet; ///< at most 16 units, none of * / : ; ? \ (Joliet, "Allowed Character Set")
    std::u16string
        udf; ///< fits a field of 32 bytes: 30 characters of Latin-1, or 15 units (OSTA UDF 1.02 2.1.1, 2.1.3)
};

/// The forms of the name `wanted`, which holds any bytes and is not empty. No character is cut through.
VolumeName volumeName(std::string_view wanted);

/// $CORVALIS_VOLUME; empty where it is not set.
std::string volumeNameFromEnvironment();

/// The name of a disc that nobody named: that of the folder in the root where nothing else lies there, else that of the
/// folder which is written, else "DISC". The folder of a video disc has the same name on every disc and does not count.
std::string volumeNameFor(const FolderTree &tree);

/// Adds a sentence where a form differs from `wanted`; that of UDF only `withUdf`.
void addVolumeNote(
    std::string_view wanted, const VolumeName &name, bool withUdf, std::vector<std::string> &notes);

} // namespace engine::image
