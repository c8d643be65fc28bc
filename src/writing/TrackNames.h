// The names that an audio track takes along onto the disc.
#pragma once

#include "compilation/MediaReport.h"
#include "compilation/Records.h"

#include <optional>

namespace writing {

/// What the converted file is to say besides what the conversion took over from the file's own tags. Nothing where that
/// is all. `wanted` false: that the track has no names.
std::optional<compilation::TrackNames> namesToWrite(const NodeMediaFile &file, bool wanted);

/// Lets the WAVE file at `path` say these names and no others: a further INFO list at its end, the last one being what
/// the disc utility believes. The sound stays as it is, byte for byte. Answers why it could not be done, in the system's
/// words, and the file is as it was then; empty: it was.
QString writeTrackNames(const QString &path, const compilation::TrackNames &names);

} // namespace writing
