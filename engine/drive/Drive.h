// A drive that can be asked about its medium and write it: a physical one or a virtual recorder.
#pragma once

#include "base/Read.h"
#include "base/Result.h"
#include "base/Stop.h"
#include "medium/DriveRecord.h"
#include "medium/Medium.h"
#include "medium/Progress.h"
#include "medium/Speed.h"
#include "medium/Tracks.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <utility>

namespace engine::audio {
struct AudioDisc;
}

namespace engine::drive {

class BlockDigests;

constexpr std::size_t blockBytes = 2048; ///< bytes of a block of a data disc

/// How an operation tells of itself and learns that it shall stop.
struct Control {
    /// Called on the thread that runs the operation, several times a second; may be empty. `unitBytes` is the size of
    /// one unit of `progress.done`, 0 where a speed would mean nothing.
    std::function<void(const Progress &progress, unsigned unitBytes)> progress;
    Stop stop;

    void report(const Progress &p, unsigned unitBytes) const;
};

/// The error of an operation on a disc that `signal` ended before the disc was changed.
Error stoppedUntouched(int signal);

/// What is written: decides in which measure a person counts it.
enum class Amount {
    data, ///< in megabytes
    sound, ///< in minutes
};

/// Whether `needed` blocks fit into `room` blocks; the error has both figures, as a person counts and in blocks.
Result<void> checkRoom(std::uint64_t needed, std::uint64_t room, Amount amount, const std::string &driveName);

/// The content of a data disc: a known number of blocks that can be streamed.
class DiscData {
public:
    virtual ~DiscData() = default;

    /// Blocks of 2048 bytes, known before anything is streamed.
    virtual std::uint64_t blocks() const = 0;

    /// What gives all blocks from the first on; it may be used on another thread, and when this object is gone. It may
    /// be asked for again, for another attempt at writing.
    virtual Result<Read> start() = 0;
};

enum class EraseMode {
    quick, ///< what makes the medium usable again
    full, ///< every block
};

/// How fast a disc is to be written.
struct Pace {
    SpeedWish wish;
    /// Told the speed at which a write begins (1000 bytes a second, 0 where the drive names none and chooses by itself),
    /// and each lower one after a refusal; may be empty.
    std::function<void(int speed, Family family)> begins;
};

/// How an audio disc was written.
struct AudioWritten {
    bool named = true; ///< false: the drive does not write CD-TEXT, and the names are not on the disc
};

/// Why a drive is opened.
enum class Purpose {
    look, ///< ask for the medium only; a mounted disc stays mounted
    change, ///< erase, write: a mounted disc is unmounted first
};

/// A drive held open for one verb. Nobody else has it until the object goes; it is released then, on
/// every path. Not thread-safe.
class Lease {
public:
    virtual ~Lease() = default;

    /// The medium as it is now. An empty drive or an open tray is a medium of kind `none`, not an error.
    virtual Result<Medium> medium() = 0;

    /// Erases or formats the medium. It must be one of those that canErase() is true for.
    virtual Result<void> erase(EraseMode mode, const Control &control) = 0;

    /// Writes `data` from the first block on, closes the disc and notes every block that went out in
    /// `sent`, if that keeps them. The medium must be writable from its start now and large enough. An error
    /// says in which state the disc is left.
    virtual Result<void> writeData(
        DiscData &data, BlockDigests &sent, const Pace &pace, const Control &control) = 0;

    /// Writes all tracks of an audio disc, session at once, and its names. The medium must be a blank CD.
    virtual Result<AudioWritten> writeAudio(
        const audio::AudioDisc &disc, const Pace &pace, const Control &control) = 0;

    /// The tracks in the table of contents, with their names where the disc has CD-TEXT. None on a blank disc, and none
    /// on one that has no such table: that is one track of data.
    virtual Result<DiscTracks> tracks() = 0;

    /// Makes the drive look at the medium again, as after a write.
    virtual Result<void> reload() = 0;

    /// Fills `buffer` (whole blocks) from `block` on. Returns the number of bytes that were readable, which
    /// is less than its size where a block cannot be read.
    virtual Result<std::size_t> read(std::uint64_t block, std::span<std::byte> buffer) = 0;

    /// Lets the rest of the system see the new content, and gives the drive back. The last call.
    virtual void present() = 0;
};

/// One drive of the machine. Cheap: nothing is opened before a verb needs it.
class Drive {
public:
    virtual ~Drive() = default;

    /// How it is listed.
    virtual DriveRecord record() const = 0;

    /// True for a recorder without hardware.
    virtual bool isVirtual() const = 0;

    /// What messages call it: "drive 2". The number is that of the list.
    const std::string &name() const { return m_name; }
    void setNumber(char number) { m_name = std::string("drive ") + number; }

    /// What a wait of acquire(), of the lease or of a movement of the tray asks whether it shall end.
    void setStop(Stop stop) { m_stop = std::move(stop); }

    /// Opens the drive. Errors: busy, no permission, gone, mounted and in use.
    virtual Result<std::unique_ptr<Lease>> acquire(Purpose purpose) = 0;

    /// Opens the tray, after unmounting. A virtual recorder puts what was written aside and a fresh blank in.
    virtual Result<void> eject() = 0;

    /// Closes the tray.
    virtual Result<void> close() = 0;

    /// Puts a blank of `kind` in, or none; virtual recorders only.
    virtual Result<void> insert(MediumKind kind) = 0;

    /// The folder in which the discs of a virtual recorder lie; virtual recorders only.
    virtual Result<std::string> folder() const = 0;

protected:
    const Stop &stop() const { return m_stop; }

private:
    std::string m_name = "the drive";
    Stop m_stop;
};

} // namespace engine::drive
