// Copying a folder into a working folder, away from the GUI thread.
#pragma once

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <string>

namespace writing {

/// What a copy has come to. Shared between the copying thread and whoever waits for it.
struct CopyState {
    /// Set it, and the copy ends; the file at hand is left out, and nothing new is made.
    std::atomic<bool> stop = false;
    std::atomic<bool> ended = false;

    /// Blocks until the copy has ended, at most `limit`. False: it still runs.
    bool waitForEnd(std::chrono::milliseconds limit) const;
};

/// Copies the folder `source`, or the folder to which the link `source` leads, with all it holds into
/// the folder `destination`, under the name that `source` has.
/// Times, modes, symbolic links and hard links are kept; file contents are shared or copied by the
/// kernel where the file system can (FICLONE, copy_file_range), and holes stay holes. What cannot be
/// copied is told to `failed`, one sentence that begins with its path, and left out, never copied in part; a full disk ends the copy.
/// `never` is a folder that is not entered: the working folder may itself lie inside the source.
/// Blocks; any thread; `failed` is called in the same one.
void copyFolder(const std::string &source, const std::string &destination, const std::string &never,
    CopyState &state, const std::function<void(const std::string &)> &failed);

} // namespace writing
