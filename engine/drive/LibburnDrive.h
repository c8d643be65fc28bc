// A drive that libburn has opened: an MMC drive or a file ("stdio:"). What both have in common.
#pragma once

#include "audio/CdText.h"
#include "drive/Drive.h"
#include "drive/Source.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace burn {
struct burn_drive;
struct burn_drive_info;
struct burn_write_opts;
} // namespace burn

namespace engine::drive {

/// One track as it is handed to libburn.
struct Track {
    Source source;
    bool audio = false; ///< sectors of 2352 bytes; else blocks of 2048
    int pregap = 0; ///< sectors of silence before it that libburn makes; audio only
};

enum class WriteMode {
    sessionAtOnce, ///< one go with the lead-in known beforehand; disc at once on DVD
    trackAtOnce, ///< incremental on DVD
};

/// What a message of libburn says.
struct LibburnMessage {
    int code = 0; ///< of libburn's own list
    int failure = 0; ///< errno, or 0
    std::string text;
};

/// Opened by libburn from grab() until the end of the object. Not thread-safe.
class LibburnDrive {
public:
    /// Opens the drive at a libburn address ("/dev/sr0", "stdio:/dev/fd/7"). `name` is what messages call
    /// it. `exclusive` keeps others off the device; `load` closes the tray first.
    static Result<std::unique_ptr<LibburnDrive>> grab(
        const std::string &address, const std::string &name, bool exclusive, bool load);

    ~LibburnDrive();
    LibburnDrive(const LibburnDrive &) = delete;
    LibburnDrive &operator=(const LibburnDrive &) = delete;

    burn::burn_drive *handle() const;
    const std::string &name() const { return m_name; }

    /// How the tray is left. libburn locks it as long as it has the drive.
    enum class Leave { unlocked, open, locked };

    /// How the end of the object leaves the tray; unlocked when nothing is said.
    void leave(Leave how) { m_leave = how; }

    /// Gives the drive back now.
    void release(Leave how);

    /// How far a write has come when it ends.
    struct Outcome {
        bool well = false;
        int signal = 0; ///< the stop signal that came; it has ended the write unless that is well
        bool sourceFailed = false;
        bool gone = false; ///< the drive has left the machine; set by whoever knows its device
        LibburnMessage message; ///< the gravest message of a failure
    };

    /// How a session is written.
    struct Manner {
        WriteMode mode = WriteMode::trackAtOnce;
        Phase phase = Phase::writing; ///< what progress is told as
        Family family = Family::none;
        std::span<const audio::Pack> text; ///< CD-TEXT, with a session at once on a CD only
    };

    /// Writes one session of `tracks` and closes the disc. A failure of `supply`, which the sources of the tracks tell,
    /// ends the write. A stop signal ends it until the disc is being closed.
    Outcome write(
        const std::vector<Track> &tracks, const Manner &manner, const Supply &supply, const Control &control);

    /// Waits for an erase or a format that was started. Neither can be broken off safely (MMC-6 6.2), so a
    /// stop signal is only noted.
    Outcome waitForErase(const Control &control);

    /// Reads from `block` on; the number of bytes until the first that could not be read.
    std::size_t read(std::uint64_t block, std::span<std::byte> buffer);

    /// The first of the messages that libburn queued with at least severity SORRY; forgets the rest.
    static LibburnMessage takeMessage();

private:
    LibburnDrive(burn::burn_drive_info *infos, std::string name);
    /// What a stop signal does: ends the operation up to the closing of the disc, or is only noted.
    enum class Stop { cancels, waits };

    /// What is waited for.
    struct Task {
        Phase phase;
        Family family;
        unsigned unitBytes; ///< of a sector
        std::vector<std::uint64_t> sectors; ///< of each track; none for an erase
        const Supply *supply; ///< of a write; null for an erase
    };

    Outcome wait(Stop stop, const Task &task, const Control &control);

    burn::burn_drive_info *m_infos;
    std::string m_name;
    bool m_grabbed = true;
    Leave m_leave = Leave::unlocked;
};

/// How much of the drive's buffer is filled, in percent; no value while the drive does not tell.
std::optional<int> bufferPercent(unsigned capacity, unsigned available);

} // namespace engine::drive
