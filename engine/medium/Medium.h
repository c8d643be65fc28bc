// What is known about the medium in a drive, and what may be done with it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace engine {

enum class MediumKind {
    none,
    cdRom,
    cdR,
    cdRw,
    dvdRom,
    dvdR,
    dvdRw,
    dvdPlusR,
    dvdPlusRw,
    dvdRam,
    dvdRDualLayer,
    dvdPlusRDualLayer,
    bdRom,
    bdR,
    bdRe,
    unknown,
};

enum class Family { none, cd, dvd, bluray };

/// How a kind of medium takes data.
enum class Rewriting {
    pressed, ///< never
    once, ///< every block once
    erase, ///< again after it was erased as a whole (CD-RW, DVD-RW recorded sequentially)
    overwrite, ///< any block at any time (DVD+RW, DVD-RAM, BD-RE, DVD-RW in restricted overwrite)
};

/// What was written so far.
enum class MediumState {
    blank,
    appendable, ///< the last session is open
    closed,
    spoilt, ///< a write did not reach its end
};

/// One kind of medium: a row of the table that everything else is looked up in.
struct KindFacts {
    MediumKind kind;
    const char *type; ///< its name for a person: "DVD+R DL"
    const char
        *insertName; ///< what `drutil insert` calls it; null where a virtual recorder does not offer it
    Family family;
    Rewriting rewriting;
    uint64_t virtualBlocks; ///< capacity of a virtual blank in blocks of 2048 bytes
};

/// The medium in a drive at one moment. Sizes are in blocks of 2048 bytes.
struct Medium {
    MediumKind kind = MediumKind::none;
    MediumState state = MediumState::blank;
    Rewriting rewriting = Rewriting::pressed;
    uint64_t capacity = 0; ///< of the whole medium, once erased if need be; 0 when the drive does not tell
    uint64_t free = 0; ///< what a write can take now, without an erase
    uint64_t used = 0;
    std::vector<int> speeds; ///< write speeds in 1000 bytes a second, ascending
    std::string deviceName; ///< a device node or another name that no user chose
};

/// The facts about `kind`; never fails.
const KindFacts &factsOf(MediumKind kind);

/// The kind that `drutil insert` calls `name` ("cd-r", "bd-re"); none of them gives no value.
std::optional<MediumKind> kindOfInsertName(std::string_view name);

/// All names that kindOfInsertName() knows, in the order of the table, with ", " between.
std::string insertNames();

/// The kind behind a profile number of GET CONFIGURATION (MMC-6 table 94). 0 is an empty drive;
/// a number without a row is `unknown`.
MediumKind kindOfProfile(int profile);

/// How the medium behind a profile number takes data. It differs from that of its kind for DVD-RW
/// in restricted overwrite (0013h).
Rewriting rewritingOfProfile(int profile);

/// A medium of `kind` in `state`, for drives that know no profile numbers.
Medium mediumOf(MediumKind kind, MediumState state, uint64_t capacity, uint64_t used);

/// The drive's answers in one place, as a status is made from them.
struct DriveAnswers {
    int profile = 0; ///< current profile
    bool blank = false; ///< READ DISC INFORMATION: disc status 0, or an overwritable medium
    bool appendable = false; ///< disc status 1
    bool damagedTrack = false; ///< READ TRACK INFORMATION of the invisible track: damage bit (MMC-6 6.26)
    /// No session is closed, and the open track holds data: its next writable address lies behind its start (MMC-6 6.26).
    bool openTrackHoldsData = false;
    bool suitable = true; ///< false: the drive can neither read nor write it
    uint64_t freeBlocks = 0;
    uint64_t readableBlocks = 0; ///< READ CAPACITY; the formatted size for overwritable media
    uint64_t leadOutBlocks = 0; ///< start of the last possible lead-out of a CD blank (ATIP); 0 not told
    uint64_t formatBlocks = 0; ///< largest of READ FORMAT CAPACITIES, of a DVD-RW that is erased; 0 not told
    uint64_t volumeBlocks =
        0; ///< size of the volume on an overwritable medium, 0 none; may be more than it holds
    std::vector<int> speeds; ///< as Medium::speeds, any order
};

/// Puts the drive's answers together.
Medium mediumFromAnswers(const DriveAnswers &answers);

/// True when the medium can be written from its first block now.
bool canWriteNow(const Medium &medium);

/// True when the medium can be written from its first block and nothing on it would be lost.
bool isBlank(const Medium &medium);

/// True when everything on the medium can be erased or overwritten.
bool canErase(const Medium &medium);

/// Bytes a second of speed factor 1 in units of 1000 bytes (CD 176.4, DVD 1385, BD 4496); 0 for no disc.
double singleSpeed(Family family);

} // namespace engine
