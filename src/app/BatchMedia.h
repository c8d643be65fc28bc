// What a batch run may be given for an audio or a video disc.
#pragma once

#include "app/AppDelegate.h"
#include "compilation/MediaSearch.h"

namespace batch {

/// Why these files and playlists cannot all be on a disc of this kind, a sentence about the first that cannot; empty
/// where they can. Looks into playlists and, with ffmpeg, into files of other endings than the kind's; blocks meanwhile.
QString objectionToMedia(AppDelegate::ListKind kind, const QList<compilation::Wanted> &wanted);

} // namespace batch
