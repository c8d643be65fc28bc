// The folders of the virtual recorders: one a recorder, named by a number.
#pragma once

#include "base/Fd.h"
#include "base/Result.h"
#include "drive/RecorderState.h"

#include <string>
#include <vector>

namespace engine::drive {

constexpr const char *dataDiscFile = "disc.iso";
constexpr const char *audioDiscFile = "disc.bin";
constexpr const char *cueSheetFile = "disc.cue";

/// Where the recorders live: $CORVALIS_RECORDERS, else corvalis/recorders in the user's data folder.
std::string recordersFolder();

/// The recorders in `base`, ordered by number; none when `base` does not exist.
Result<std::vector<std::string>> recorderFolders(const std::string &base);

/// Makes recorder 1 with a blank CD-R in it, and the folders above it. Another process that makes it
/// at the same time is no error.
Result<void> createFirstRecorder(const std::string &base);

enum class Access {
    shared, ///< read the state; others may do so as well
    exclusive, ///< change it
};

/// One recorder's folder, locked against other processes as long as the object lives.
class RecorderFolder {
public:
    /// Locks the folder `path`. `name` ("drive 2") is what messages call the recorder. Waits a moment for
    /// whoever only looks; a recorder at work is an error.
    static Result<RecorderFolder> lock(const std::string &path, const std::string &name, Access access);

    /// The state in recorder.ini. A write that was killed is found as DiscState::writing.
    Result<RecorderState> load() const;

    /// Replaces recorder.ini at once.
    Result<void> save(const RecorderState &state) const;

    /// Moves what lies on the disc to discs/, under a name made of date and kind which nothing there has.
    /// Without anything on the disc it does nothing.
    Result<void> archive(MediumKind kind, bool spoilt) const;

    /// Deletes what lies on the disc.
    Result<void> clear() const;

    /// The cue sheet of the audio disc.
    Result<std::string> cueSheet() const;

    /// Replaces the cue sheet at once.
    Result<void> saveCueSheet(const std::string &text) const;

    /// Opens a new empty file for a disc's content, readable and writable.
    Result<Fd> createDisc(const char *file) const;

    /// Opens what lies on the disc for reading.
    Result<Fd> openDisc(const char *file) const;

    /// A file without a name that takes the room of a state to come, until it is closed: the end of a write can
    /// be noted then even when the disc has filled the file system.
    Result<Fd> reserve() const;

    /// Bytes that the file system of the folder has room for.
    Result<std::uint64_t> room() const;

private:
    RecorderFolder(Fd folder, std::string path, std::string name);
    Result<void> moveToArchive(const std::string &stem, bool audio, const Fd &discs) const;

    Fd m_folder;
    std::string m_path;
    std::string m_name;
};

/// The state of the recorder in the folder `path` without a lock, for a list: defaults where it cannot be
/// read, and `readable` false then.
RecorderState peek(const std::string &path, bool &readable);

} // namespace engine::drive
