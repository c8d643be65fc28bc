// Copying a folder or a file into a working folder, away from the GUI thread.
#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <functional>
#include <mutex>
#include <string>
#include <vector>

namespace writing {

/// What a copy has come to. Shared between the copying thread and whoever waits for it: the thread may outlive the wait,
/// and touches nothing but this.
class CopyState {
public:
    /// Set it, and the copy ends; the file at hand is left out, and nothing new is made.
    std::atomic<bool> stop = false;
    std::atomic<bool> ended = false;
    std::atomic<std::int64_t> files = 0; ///< copied so far, links included
    std::atomic<std::int64_t> bytes = 0; ///< of the files' contents

    std::atomic<std::int64_t> didNotFit = 0; ///< files and folders for which the file system had no room

    /// Blocks until the copy has ended, at most `limit`. False: it still runs.
    bool waitForEnd(std::chrono::milliseconds limit) const;

    /// Something was left out: one sentence that begins with its path. Any thread.
    void tell(const std::string &failure);
    /// What was told since the last time. Any thread.
    std::vector<std::string> takeFailures();

private:
    std::mutex m_mutex;
    std::vector<std::string> m_failures;
};

/// Copies the folder `source`, or the folder to which the link `source` leads, with all it holds into
/// the folder `destination`, under the name that `source` has.
/// Times, modes, symbolic links and hard links are kept, but that the owner may read every copy, and write and search the
/// copies of folders: the disc has to be made of them. File contents are shared or copied by the
/// kernel where the file system can (FICLONE, copy_file_range), and holes stay holes. What cannot be
/// copied is told to `failed`, one sentence that begins with its path, and left out, never copied in part. On a full disk each file is still tried: a
/// smaller one may fit.
/// `never` is a folder that is not entered: the working folder may itself lie inside the source.
/// Blocks; any thread; `failed` is called in the same one.
void copyFolder(const std::string &source, const std::string &destination, const std::string &never,
    CopyState &state, const std::function<void(const std::string &)> &failed);

/// Copies the file `source`, or the file to which the link `source` leads, into the folder `destination` under the name that
/// `source` has, by the rules of copyFolder().
void copyFile(const std::string &source, const std::string &destination, CopyState &state,
    const std::function<void(const std::string &)> &failed);

} // namespace writing
