#include "drive/PhysicalMedium.h"

#include "audio/AudioDisc.h"
#include "audio/TrackStream.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <sys/types.h>
#include <thread>
// libburn.h needs off_t to be known.
#include <libburn/libburn.h>

namespace engine::drive {

using namespace burn;

namespace {

using namespace std::chrono_literals;

constexpr std::uint64_t descriptorBlock = 16;

burn_disc_status statusOf(burn_drive *drive, const Stop &stop)
{
    burn_disc_status status = burn_disc_get_status(drive);
    for (auto waited = 0ms; status == BURN_DISC_UNREADY && waited < 30s && stop.signal() == 0;
         waited += 100ms) {
        std::this_thread::sleep_for(100ms);
        status = burn_disc_get_status(drive);
    }
    return status;
}

/// Source 2 (GET PERFORMANCE) knows the medium; mode page 2Ah is what older CD drives have.
std::vector<int> speedsOf(burn_drive *drive)
{
    std::vector<int> forMedium;
    std::vector<int> forDrive;
    burn_speed_descriptor *list = nullptr;
    if (burn_drive_get_speedlist(drive, &list) <= 0)
        return {};
    for (const burn_speed_descriptor *row = list; row; row = row->next)
        if (row->write_speed > 0)
            (row->source == 2 ? forMedium : forDrive).push_back(row->write_speed);
    burn_drive_free_speedlist(&list);
    return forMedium.empty() ? forDrive : forMedium;
}

std::uint64_t leadOutOf(burn_drive *drive, MediumKind kind)
{
    int start = 0;
    int end = 0;
    if (factsOf(kind).family != Family::cd || burn_disc_read_atip(drive) <= 0
        || burn_drive_get_start_end_lba(drive, &start, &end, 0) <= 0)
        return 0;
    return static_cast<std::uint64_t>(std::max(end, 0));
}

/// The largest size that the drive can format the medium to (READ FORMAT CAPACITIES, MMC-6 6.23).
std::uint64_t largestFormatOf(burn_drive *drive)
{
    int status = 0;
    off_t size = 0;
    unsigned parameter = 0;
    int formats = 0;
    // The size beside the list is that of the drive's largest medium where the state is not known.
    if (burn_disc_get_formats(drive, &status, &size, &parameter, &formats) <= 0)
        return 0;
    off_t largest = 0;
    int type = 0;
    for (int i = 0; i < formats; ++i)
        if (burn_disc_get_format_descr(drive, i, &type, &size, &parameter) > 0)
            largest = std::max(largest, size);
    return static_cast<std::uint64_t>(largest) / blockBytes;
}

bool hasClosedSession(burn_drive *drive)
{
    burn_disc *const disc = burn_drive_get_disc(drive);
    if (!disc)
        return false;
    int closed = 0;
    burn_disc_get_sessions(disc, &closed);
    burn_disc_free(disc);
    return closed > 0;
}

/// Whether a write to the empty disc was begun and never closed.
bool openTrackHoldsData(burn_drive *drive)
{
    constexpr int nextTrack = 0;
    int start = 0;
    int nextWritable = 0;
    return !hasClosedSession(drive)
        && burn_disc_track_lba_nwa(drive, nullptr, nextTrack, &start, &nextWritable) > 0
        && nextWritable > start;
}

std::uint64_t volumeOn(LibburnDrive &drive)
{
    std::array<std::byte, blockBytes> descriptor{};
    if (drive.read(descriptorBlock, descriptor) < descriptor.size())
        return 0;
    return volumeBlocks(descriptor);
}

struct DiscFree {
    void operator()(burn_disc *disc) const { burn_disc_free(disc); }
};

TrackRecord trackOf(burn_track *track, int number, std::uint64_t beforeBlocks)
{
    burn_toc_entry entry{};
    burn_track_get_entry(track, &entry);
    constexpr int dataTrack = 0x04; // MMC-6 table 449, control field
    constexpr int blocksTold = 1; // of extensions_valid
    TrackRecord record;
    record.number = number;
    record.audio = (entry.control & dataTrack) == 0;
    if (entry.extensions_valid & blocksTold) {
        record.start = beforeBlocks + static_cast<std::uint64_t>(std::max(entry.start_lba, 0));
        record.sectors = static_cast<std::uint64_t>(std::max(entry.track_blocks, 0));
    }
    return record;
}

audio::CdText textOn(burn_drive *drive, std::size_t tracks)
{
    unsigned char *bytes = nullptr;
    int count = 0;
    if (burn_disc_get_leadin_text(drive, &bytes, &count, 0) <= 0)
        return { {}, std::vector<Texts>(tracks) };
    const std::unique_ptr<unsigned char, decltype(&std::free)> owner(bytes, std::free);
    std::vector<audio::Pack> packs(static_cast<std::size_t>(std::max(count, 0)));
    for (std::size_t i = 0; i < packs.size(); ++i)
        std::copy_n(bytes + i * packs[i].size(), packs[i].size(), packs[i].begin());
    return audio::textOf(packs, tracks);
}

} // namespace

DiscTracks readTracks(LibburnDrive &drive)
{
    DiscTracks found;
    const std::unique_ptr<burn_disc, DiscFree> disc(burn_drive_get_disc(drive.handle()));
    const bool isCd = factsOf(kindOfProfile(profileOf(drive))).family == Family::cd;
    int sessions = 0;
    burn_session **session = disc ? burn_disc_get_sessions(disc.get(), &sessions) : nullptr;
    for (int i = 0; i < sessions; ++i) {
        int tracks = 0;
        burn_track **track = burn_session_get_tracks(session[i], &tracks);
        for (int j = 0; j < tracks; ++j)
            found.tracks.push_back(
                trackOf(track[j], static_cast<int>(found.tracks.size()) + 1, isCd ? audio::firstPause : 0));
    }
    if (isCd && !found.tracks.empty()) {
        const audio::CdText text = textOn(drive.handle(), found.tracks.size());
        found.disc = text.disc;
        for (std::size_t i = 0; i < found.tracks.size(); ++i)
            found.tracks[i].texts = text.tracks[i];
    }
    LibburnDrive::takeMessage();
    return found;
}

int profileOf(LibburnDrive &drive)
{
    int profile = 0;
    std::array<char, 80> name{};
    return burn_disc_get_profile(drive.handle(), &profile, name.data()) > 0 ? profile : 0;
}

Result<Medium> readMedium(LibburnDrive &drive, const std::string &device, const Stop &stop)
{
    burn_drive *const d = drive.handle();
    const burn_disc_status status = statusOf(d, stop);
    if (status == BURN_DISC_EMPTY)
        return Medium{};
    if (const int signal = status == BURN_DISC_UNREADY ? stop.signal() : 0)
        return stoppedUntouched(signal);
    if (status == BURN_DISC_UNREADY)
        return Error{ Exit::failed,
            "The disc in " + drive.name() + " does not get ready: take it out and clean it." };
    DriveAnswers answers;
    answers.profile = profileOf(drive);
    answers.blank = status == BURN_DISC_BLANK;
    answers.appendable = status == BURN_DISC_APPENDABLE;
    answers.suitable = status != BURN_DISC_UNSUITABLE;
    answers.freeBlocks = static_cast<std::uint64_t>(burn_disc_available_space(d, nullptr)) / blockBytes;
    // The question for the space is what makes libburn look at the open track.
    answers.damagedTrack = (burn_disc_next_track_is_damaged(d, 0) & 1) != 0;
    answers.openTrackHoldsData = answers.appendable && openTrackHoldsData(d);
    int readable = 0;
    if (burn_get_read_capacity(d, &readable, 0) > 0)
        answers.readableBlocks = static_cast<std::uint64_t>(std::max(readable, 0));
    const MediumKind kind = kindOfProfile(answers.profile);
    answers.leadOutBlocks = leadOutOf(d, kind);
    const Rewriting rewriting = rewritingOfProfile(answers.profile);
    if (rewriting == Rewriting::erase && factsOf(kind).family == Family::dvd)
        answers.formatBlocks = largestFormatOf(d);
    if (rewriting == Rewriting::overwrite)
        answers.volumeBlocks = volumeOn(drive);
    answers.speeds = speedsOf(d);
    Medium medium = mediumFromAnswers(answers);
    medium.deviceName = device;
    LibburnDrive::takeMessage();
    return medium;
}

std::uint64_t volumeBlocks(std::span<const std::byte> descriptor)
{
    constexpr std::size_t spaceSize = 80; // both-byte order, the little-endian half first
    constexpr std::array<unsigned char, 6> primary{ 1, 'C', 'D', '0', '0', '1' };
    constexpr std::array<unsigned char, 6> extended{ 0, 'B', 'E', 'A', '0',
        '1' }; // ECMA-167 2/9.2: UDF alone
    if (descriptor.size() >= extended.size()
        && std::memcmp(descriptor.data(), extended.data(), extended.size()) == 0)
        return UINT64_MAX;
    if (descriptor.size() < spaceSize + 4
        || std::memcmp(descriptor.data(), primary.data(), primary.size()) != 0)
        return 0;
    std::uint64_t blocks = 0;
    for (std::size_t i = 4; i-- > 0;)
        blocks = blocks << 8 | std::to_integer<std::uint64_t>(descriptor[spaceSize + i]);
    return blocks;
}

bool needsFormat(int profile, bool answered, int status)
{
    const bool mayNeed = profile == 0x12 || profile == 0x43; // DVD-RAM, BD-RE
    return mayNeed && answered && status == BURN_FORMAT_IS_UNFORMATTED;
}

Result<std::vector<Track>> audioTracks(const audio::AudioDisc &disc, const std::shared_ptr<Supply> &supply)
{
    std::vector<Track> tracks;
    for (const audio::AudioTrack &track : disc.tracks) {
        auto opened = audio::TrackStream::open(track);
        if (!opened)
            return opened.error();
        const auto stream = std::make_shared<audio::TrackStream>(std::move(opened).value());
        Track added;
        added.source = newSource([stream](std::span<std::byte> buffer) { return stream->read(buffer); },
            std::uint64_t{ track.sectors } * audio::sectorSize, supply);
        added.audio = true;
        added.pregap = tracks.empty() ? static_cast<int>(audio::firstPause) : 0;
        tracks.push_back(std::move(added));
    }
    return tracks;
}

} // namespace engine::drive
