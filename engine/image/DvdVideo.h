// A folder that is a video disc: what players need of the order and the places of its files.
#pragma once

#include "image/FolderTree.h"

namespace engine::image {

constexpr const char *videoFolder = "VIDEO_TS";
constexpr const char *audioFolder = "AUDIO_TS"; ///< empty, but some players look for it

/// Whether the root of `tree` holds the folder of a DVD-Video.
bool isDvdVideo(const FolderTree &tree);

/// Gives the data of a video disc the order of a DVD-Video: the manager's information, menu and backup, then each title set's
/// information, menu, titles and backup, then everything else. The information files tell by their sector pointers how far
/// apart the files lie; gaps make it so. What cannot work, such as a missing information file or pointers that fit no
/// layout, becomes a note: the disc is written all the same, for a player that may forgive it.
void arrangeDvdVideo(FolderTree &tree);

} // namespace engine::image
