#include "medium/Medium.h"

#include <algorithm>
#include <array>

namespace engine {

namespace {

// Capacities: 80-minute CD 79:57.69; DVD-R ECMA-359 and DVD+R ECMA-349, 4.7 GB; BD single layer.
constexpr uint64_t cdBlocks = 359844;
constexpr uint64_t dvdMinusBlocks = 2298496;
constexpr uint64_t dvdPlusBlocks = 2295104;
constexpr uint64_t bdBlocks = 12219392;

constexpr std::array kinds = {
    KindFacts{ MediumKind::none, "No Media Inserted", nullptr, Family::none, Rewriting::pressed, 0 },
    KindFacts{ MediumKind::cdRom, "CD-ROM", nullptr, Family::cd, Rewriting::pressed, 0 },
    KindFacts{ MediumKind::cdR, "CD-R", "cd-r", Family::cd, Rewriting::once, cdBlocks },
    KindFacts{ MediumKind::cdRw, "CD-RW", "cd-rw", Family::cd, Rewriting::erase, cdBlocks },
    KindFacts{ MediumKind::dvdRom, "DVD-ROM", nullptr, Family::dvd, Rewriting::pressed, 0 },
    KindFacts{ MediumKind::dvdR, "DVD-R", "dvd-r", Family::dvd, Rewriting::once, dvdMinusBlocks },
    KindFacts{ MediumKind::dvdPlusR, "DVD+R", "dvd+r", Family::dvd, Rewriting::once, dvdPlusBlocks },
    KindFacts{ MediumKind::dvdRw, "DVD-RW", "dvd-rw", Family::dvd, Rewriting::erase, dvdMinusBlocks },
    KindFacts{ MediumKind::dvdPlusRw, "DVD+RW", "dvd+rw", Family::dvd, Rewriting::overwrite, dvdPlusBlocks },
    KindFacts{ MediumKind::dvdRam, "DVD-RAM", nullptr, Family::dvd, Rewriting::overwrite, 0 },
    KindFacts{ MediumKind::dvdRDualLayer, "DVD-R DL", nullptr, Family::dvd, Rewriting::once, 0 },
    KindFacts{ MediumKind::dvdPlusRDualLayer, "DVD+R DL", nullptr, Family::dvd, Rewriting::once, 0 },
    KindFacts{ MediumKind::bdRom, "BD-ROM", nullptr, Family::bluray, Rewriting::pressed, 0 },
    KindFacts{ MediumKind::bdR, "BD-R", "bd-r", Family::bluray, Rewriting::once, bdBlocks },
    KindFacts{ MediumKind::bdRe, "BD-RE", "bd-re", Family::bluray, Rewriting::overwrite, bdBlocks },
    KindFacts{ MediumKind::unknown, "Unknown", nullptr, Family::none, Rewriting::pressed, 0 },
};

struct ProfileRow {
    int profile;
    MediumKind kind;
};

constexpr std::array profiles = {
    ProfileRow{ 0x00, MediumKind::none },
    ProfileRow{ 0x08, MediumKind::cdRom },
    ProfileRow{ 0x09, MediumKind::cdR },
    ProfileRow{ 0x0a, MediumKind::cdRw },
    ProfileRow{ 0x10, MediumKind::dvdRom },
    ProfileRow{ 0x11, MediumKind::dvdR },
    ProfileRow{ 0x12, MediumKind::dvdRam },
    ProfileRow{ 0x13, MediumKind::dvdRw },
    ProfileRow{ 0x14, MediumKind::dvdRw },
    ProfileRow{ 0x15, MediumKind::dvdRDualLayer },
    ProfileRow{ 0x16, MediumKind::dvdRDualLayer },
    ProfileRow{ 0x1a, MediumKind::dvdPlusRw },
    ProfileRow{ 0x1b, MediumKind::dvdPlusR },
    ProfileRow{ 0x2b, MediumKind::dvdPlusRDualLayer },
    ProfileRow{ 0x40, MediumKind::bdRom },
    ProfileRow{ 0x41, MediumKind::bdR },
    ProfileRow{ 0x42, MediumKind::bdR },
    ProfileRow{ 0x43, MediumKind::bdRe },
};

constexpr int restrictedOverwrite = 0x13;
constexpr int randomRecording = 0x42; // BD-R that libburn reads but does not write
constexpr int layerJump = 0x16; // DVD-R DL that libburn reads but does not write

MediumState stateFromAnswers(const DriveAnswers &a, Rewriting rewriting)
{
    if (rewriting == Rewriting::pressed || !a.suitable)
        return MediumState::closed;
    // A track that broke off cannot be written on, and what is left behind it is no room for a new start. Not every drive
    // calls such a track damaged; a first track that was begun and never closed tells the same.
    const bool begun = a.appendable && a.openTrackHoldsData;
    if ((a.damagedTrack || begun) && rewriting == Rewriting::once)
        return MediumState::spoilt;
    if (rewriting == Rewriting::overwrite)
        return a.volumeBlocks > 0 ? MediumState::closed : MediumState::blank;
    if (a.blank)
        return MediumState::blank;
    return a.appendable ? MediumState::appendable : MediumState::closed;
}

} // namespace

const KindFacts &factsOf(MediumKind kind)
{
    const auto row = std::ranges::find(kinds, kind, &KindFacts::kind);
    return row == kinds.end() ? kinds.back() : *row;
}

std::optional<MediumKind> kindOfInsertName(std::string_view name)
{
    for (const KindFacts &row : kinds)
        if (row.insertName && name == row.insertName)
            return row.kind;
    return std::nullopt;
}

std::string insertNames()
{
    std::string names;
    for (const KindFacts &row : kinds) {
        if (!row.insertName)
            continue;
        if (!names.empty())
            names += ", ";
        names += row.insertName;
    }
    return names;
}

MediumKind kindOfProfile(int profile)
{
    const auto row = std::ranges::find(profiles, profile, &ProfileRow::profile);
    return row == profiles.end() ? MediumKind::unknown : row->kind;
}

Rewriting rewritingOfProfile(int profile)
{
    if (profile == restrictedOverwrite)
        return Rewriting::overwrite;
    if (profile == randomRecording || profile == layerJump)
        return Rewriting::pressed;
    return factsOf(kindOfProfile(profile)).rewriting;
}

Medium mediumOf(MediumKind kind, MediumState state, uint64_t capacity, uint64_t used)
{
    Medium medium;
    medium.kind = kind;
    medium.state = state;
    medium.rewriting = factsOf(kind).rewriting;
    medium.capacity = capacity;
    medium.used = used;
    medium.free = canWriteNow(medium) ? capacity : 0;
    return medium;
}

Medium mediumFromAnswers(const DriveAnswers &a)
{
    Medium medium;
    medium.kind = kindOfProfile(a.profile);
    medium.rewriting = rewritingOfProfile(a.profile);
    // What an erase can mend stays erasable, as after a write that was killed.
    if (!a.suitable && medium.rewriting != Rewriting::erase)
        medium.rewriting = Rewriting::pressed;
    if (medium.kind == MediumKind::none)
        return medium;
    medium.state = stateFromAnswers(a, medium.rewriting);
    medium.speeds = a.speeds;
    std::ranges::sort(medium.speeds);
    medium.speeds.erase(std::unique(medium.speeds.begin(), medium.speeds.end()), medium.speeds.end());

    if (medium.rewriting == Rewriting::overwrite) {
        medium.capacity = std::max(a.freeBlocks, a.readableBlocks);
        medium.free = medium.capacity;
        medium.used = std::min(a.volumeBlocks, medium.capacity);
        return medium;
    }
    const bool room = medium.state == MediumState::blank || medium.state == MediumState::appendable;
    medium.free = room ? a.freeBlocks : 0;
    medium.used = medium.state == MediumState::blank ? 0 : a.readableBlocks;
    const uint64_t told = std::max(a.leadOutBlocks, a.formatBlocks);
    // What is on a disc and behind it says nothing of what the disc takes once it is erased.
    const bool unknown = told == 0 && medium.rewriting == Rewriting::erase && !canWriteNow(medium);
    medium.capacity = unknown ? 0 : std::max({ told, medium.free, medium.used });
    return medium;
}

bool canWriteNow(const Medium &medium)
{
    if (medium.rewriting == Rewriting::overwrite)
        return true;
    return medium.rewriting != Rewriting::pressed && medium.state == MediumState::blank;
}

bool isBlank(const Medium &medium)
{
    return canWriteNow(medium) && medium.state == MediumState::blank;
}

bool canErase(const Medium &medium)
{
    return medium.rewriting == Rewriting::erase || medium.rewriting == Rewriting::overwrite;
}

double singleSpeed(Family family)
{
    switch (family) {
    case Family::cd:
        return 176.4;
    case Family::dvd:
        return 1385.0;
    case Family::bluray:
        return 4496.0;
    case Family::none:
        break;
    }
    return 0.0;
}

} // namespace engine
