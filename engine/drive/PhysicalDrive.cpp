#include "drive/PhysicalDrive.h"

#include "audio/AudioDisc.h"
#include "audio/TrackStream.h"
#include "drive/BlockReader.h"
#include "drive/DeviceNode.h"
#include "drive/LibburnDrive.h"
#include "drive/Mounts.h"
#include "drive/PhysicalMedium.h"
#include "drive/WriteFailure.h"
#include "drive/WritePlan.h"

#include <algorithm>
#include <optional>
#include <sys/types.h>
#include <utility>
// libburn.h needs off_t to be known.
#include <libburn/libburn.h>

namespace engine::drive {

using namespace burn;

namespace {

/// A write may be tried in another way as long as no more than this of it was on its way to the drive. How far the drive
/// was seen tells less: a fast one is far ahead of that, and another disc may be in it by then.
constexpr std::uint64_t harmlessBytes = 512 * blockBytes;
constexpr std::uint64_t headBlocks =
    512; ///< what a quick erase overwrites: all volume descriptors and UDF anchors

class PhysicalLease final : public Lease {
public:
    PhysicalLease(std::unique_ptr<LibburnDrive> drive, std::string device, Stop stop)
        : m_drive(std::move(drive))
        , m_device(std::move(device))
        , m_stop(std::move(stop))
        , m_name(m_drive->name())
    {
    }

    Result<Medium> medium() override { return readMedium(*m_drive, m_device, m_stop); }
    Result<void> erase(EraseMode mode, const Control &control) override;
    Result<void> writeData(
        DiscData &data, BlockDigests &sent, const Pace &pace, const Control &control) override;
    Result<AudioWritten> writeAudio(
        const audio::AudioDisc &disc, const Pace &pace, const Control &control) override;
    Result<DiscTracks> tracks() override { return readTracks(*m_drive); }
    Result<void> reload() override;
    Result<std::size_t> read(std::uint64_t block, std::span<std::byte> buffer) override;
    void present() override;

private:
    struct Job; ///< what is written, made anew for each attempt
    Result<void> write(Job &job, const Medium &medium, const Control &control);
    Result<void> blank(bool fast, const Control &control);
    Result<void> overwrite(std::uint64_t blocks, const Medium &medium, const Control &control);
    Result<void> formatIfNeeded(const Control &control);
    bool untouched(const LibburnDrive::Outcome &outcome, const Supply &supply, const Medium &before);

    std::unique_ptr<LibburnDrive> m_drive;
    std::string m_device;
    std::optional<BlockReader> m_reader; ///< from the first read on
    Stop m_stop; ///< ends a wait for the medium
    std::string m_name;
};

struct PhysicalLease::Job {
    bool audio = false;
    Phase phase = Phase::writing;
    std::function<Result<std::vector<Track>>()> tracks;
    std::shared_ptr<Supply> supply = std::make_shared<Supply>();
    std::uint64_t blocks = 0; ///< of which `supply` keeps digests, if it does
    Pace pace;
    std::vector<audio::Pack> text; ///< gone when the drive refuses it
};

/// True when another attempt can start as if the failed one had not been.
bool PhysicalLease::untouched(
    const LibburnDrive::Outcome &outcome, const Supply &supply, const Medium &before)
{
    if (outcome.signal != 0 || outcome.sourceFailed || supply.bytes() > harmlessBytes)
        return false;
    if (!reload())
        return false;
    const Result<Medium> now = medium();
    return now && canWriteNow(*now) && now->kind == before.kind && now->free >= before.free;
}

Result<void> PhysicalLease::write(Job &job, const Medium &medium, const Control &control)
{
    const auto family = factsOf(medium.kind).family;
    Attempt attempt =
        firstAttempt(medium.rewriting, nearestSpeed(medium.speeds, job.pace.wish, singleSpeed(family)));
    attempt.named = !job.text.empty();
    std::optional<int> toldSpeed;
    while (true) {
        job.supply->start(job.blocks);
        Result<std::vector<Track>> tracks = job.tracks();
        if (!tracks)
            return withState(tracks.error(), m_name, Left::blank);
        burn_drive_set_speed(m_drive->handle(), 0, attempt.speed);
        if (job.pace.begins && toldSpeed != attempt.speed)
            job.pace.begins(attempt.speed, family);
        toldSpeed = attempt.speed;
        LibburnDrive::Outcome outcome =
            m_drive->write(*tracks, { attempt.mode, job.phase, family, job.text }, *job.supply, control);
        if (outcome.well)
            return {};
        outcome.gone = outcome.signal == 0 && !outcome.sourceFailed && isGone(m_device);
        const bool again = !outcome.gone && untouched(outcome, *job.supply, medium);
        const auto next = nextAttempt(attempt, outcome.message, job.audio, medium.speeds);
        if (!again || !next)
            return writeFailure(outcome, job.supply->outcome(), m_name, leftOf(medium, !again));
        attempt = *next;
        if (!attempt.named)
            job.text.clear();
    }
}

Result<void> PhysicalLease::writeData(
    DiscData &data, BlockDigests &sent, const Pace &pace, const Control &control)
{
    if (auto formatted = formatIfNeeded(control); !formatted)
        return formatted;
    const Result<Medium> now = medium();
    if (!now)
        return withState(now.error(), m_name, Left::blank);
    // A format sets spare blocks aside, and how many is known only now.
    if (auto fits = checkRoom(data.blocks(), now->free, Amount::data, m_name); !fits)
        return withState(fits.error(), m_name, Left::blank);
    Job job;
    job.supply = std::make_shared<Supply>(std::move(sent));
    job.blocks = data.blocks();
    job.pace = pace;
    job.tracks = [&]() -> Result<std::vector<Track>> {
        const Result<Read> stream = data.start();
        if (!stream)
            return stream.error();
        std::vector<Track> tracks(1);
        tracks.front().source = newSource(*stream, data.blocks() * blockBytes, job.supply);
        return tracks;
    };
    auto written = write(job, *now, control);
    sent = job.supply->takeDigests();
    return written;
}

Result<AudioWritten> PhysicalLease::writeAudio(
    const audio::AudioDisc &disc, const Pace &pace, const Control &control)
{
    const Result<Medium> now = medium();
    if (!now)
        return withState(now.error(), m_name, Left::blank);
    // What an erased disc takes is known only now where the drive did not tell.
    if (auto fits = checkRoom(disc.sectorCount() - audio::firstPause, now->free, Amount::sound, m_name);
        !fits)
        return withState(fits.error(), m_name, Left::blank);
    Job job;
    job.audio = true;
    job.pace = pace;
    job.tracks = [&] { return audioTracks(disc, job.supply); };
    job.text = audio::packsOf(disc.text);
    if (auto written = write(job, *now, control); !written)
        return written.error();
    return AudioWritten{ !job.text.empty() || disc.text.empty() };
}

Result<std::size_t> PhysicalLease::read(std::uint64_t block, std::span<std::byte> buffer)
{
    if (!m_reader)
        m_reader = BlockReader::open(m_device);
    if (m_reader && m_reader->read(block, buffer))
        return buffer.size();
    return m_drive->read(block, buffer);
}

Result<void> PhysicalLease::reload()
{
    m_reader.reset();
    m_drive->release(LibburnDrive::Leave::unlocked);
    m_drive.reset();
    auto drive = LibburnDrive::grab(m_device, m_name, true, true);
    if (!drive)
        return drive.error();
    m_drive = std::move(drive).value();
    return {};
}

void PhysicalLease::present()
{
    // The kernel keeps the old size and content until the medium is loaded anew. A drive that cannot pull its
    // tray in by itself leaves it open with the finished disc.
    m_reader.reset();
    if (!m_drive)
        return;
    m_drive->release(LibburnDrive::Leave::open);
    m_drive.reset();
    if (auto drive = LibburnDrive::grab(m_device, m_name, true, true))
        (*drive)->release(LibburnDrive::Leave::unlocked);
}

Result<void> PhysicalLease::formatIfNeeded(const Control &control)
{
    int status = 0;
    off_t size = 0;
    unsigned spare = 0;
    int formats = 0;
    const bool answered = burn_disc_get_formats(m_drive->handle(), &status, &size, &spare, &formats) > 0;
    if (!needsFormat(profileOf(*m_drive), answered, status))
        return {};
    constexpr int defaultSize = 3 << 1;
    constexpr int noCertification = 1 << 6;
    burn_disc_format(m_drive->handle(), 0, defaultSize | noCertification);
    const LibburnDrive::Outcome outcome = m_drive->waitForErase(control);
    if (!outcome.well)
        return withState({ Exit::failed,
                             "The disc in " + m_name + " cannot be formatted" + inBrackets(outcome.message)
                                 + ": try another disc." },
            m_name, Left::erasable);
    if (outcome.signal != 0)
        return stoppedBy(outcome.signal, "Stopped after the disc in " + m_name + " was formatted.");
    return reload();
}

Result<void> PhysicalLease::blank(bool fast, const Control &control)
{
    // A disc whose last write was killed may be in no state that libburn knows; blanking is its cure.
    burn_disc_pretend_full(m_drive->handle());
    burn_disc_erase(m_drive->handle(), fast ? 1 : 0);
    const LibburnDrive::Outcome outcome = m_drive->waitForErase(control);
    if (!outcome.well)
        return withState({ Exit::failed,
                             "The disc in " + m_name + " cannot be erased" + inBrackets(outcome.message)
                                 + ": try a full erase, or another disc." },
            m_name, Left::erasable);
    return reload();
}

Result<void> PhysicalLease::overwrite(std::uint64_t blocks, const Medium &medium, const Control &control)
{
    Job job;
    job.phase = Phase::erasing;
    job.tracks = [&]() -> Result<std::vector<Track>> {
        std::vector<Track> tracks(1);
        tracks.front().source = newSource(zeros(), blocks * blockBytes, job.supply);
        return tracks;
    };
    if (auto written = write(job, medium, control); !written)
        return written;
    return reload();
}

Result<void> PhysicalLease::erase(EraseMode mode, const Control &control)
{
    const bool quick = mode == EraseMode::quick;
    const Result<Medium> now = medium();
    if (!now)
        return withState(now.error(), m_name, Left::asBefore);
    if (!canErase(*now))
        return Error{ Exit::failed, "The disc in " + m_name + " cannot be erased: insert a rewritable one." };
    // DVD-RW in restricted overwrite can be blanked as well; a quick erase leaves it as it is formatted.
    const bool blankable = factsOf(now->kind).rewriting == Rewriting::erase;
    if (now->rewriting == Rewriting::erase || (blankable && !quick))
        return blank(quick, control);
    if (auto formatted = formatIfNeeded(control); !formatted)
        return formatted;
    const Result<Medium> formatted = medium();
    if (!formatted)
        return withState(formatted.error(), m_name, Left::overwritable);
    return overwrite(
        quick ? std::min(headBlocks, formatted->capacity) : formatted->capacity, *formatted, control);
}

} // namespace

PhysicalDrive::PhysicalDrive(PhysicalRecord record)
    : m_record(std::move(record))
{
}

Result<std::unique_ptr<Lease>> PhysicalDrive::acquire(Purpose purpose)
{
    const std::string &device = m_record.device;
    const bool mounted = !mountPoints(device).empty();
    // Whoever only looks leaves a mounted disc mounted; the mount holds the device then.
    const bool exclusive = purpose == Purpose::change || !mounted;
    if (purpose == Purpose::change)
        if (auto gone = unmount(device, name()); !gone)
            return gone.error();
    if (exclusive)
        if (auto free = checkFree(device, name()); !free)
            return free.error();
    if (const int signal = stop().signal())
        return stoppedUntouched(signal);
    auto drive = LibburnDrive::grab(device, name(), exclusive, false);
    if (!drive)
        return drive.error();
    // The kernel or udev has locked the tray over a mounted disc.
    if (!exclusive)
        (*drive)->leave(LibburnDrive::Leave::locked);
    return std::unique_ptr<Lease>(std::make_unique<PhysicalLease>(std::move(drive).value(), device, stop()));
}

Result<void> PhysicalDrive::checkMayMove() const
{
    const int signal = stop().signal();
    return signal == 0 ? Result<void>()
                       : stoppedBy(signal, "Stopped before the tray of " + name() + " was moved.");
}

Result<void> PhysicalDrive::eject()
{
    if (auto gone = unmount(m_record.device, name()); !gone)
        return gone;
    if (auto free = checkFree(m_record.device, name()); !free)
        return free;
    if (auto goesOn = checkMayMove(); !goesOn)
        return goesOn;
    auto drive = LibburnDrive::grab(m_record.device, name(), true, false);
    if (!drive)
        return drive.error();
    (*drive)->release(LibburnDrive::Leave::open);
    if (trayOf(m_record.device) == Tray::loaded)
        return Error{ Exit::failed,
            "The tray of " + name()
                + " did not open: close the programs that use the disc, or press the button of the drive." };
    return {};
}

Result<void> PhysicalDrive::close()
{
    if (auto free = checkFree(m_record.device, name()); !free)
        return mountPoints(m_record.device).empty() ? free : Result<void>();
    if (auto goesOn = checkMayMove(); !goesOn)
        return goesOn;
    auto drive = LibburnDrive::grab(m_record.device, name(), true, true);
    if (!drive)
        return drive.error();
    if (trayOf(m_record.device) == Tray::open)
        return Error{ Exit::failed, "The tray of " + name() + " did not close: push it in by hand." };
    return {};
}

Result<void> PhysicalDrive::insert(MediumKind)
{
    return Error{ Exit::failed,
        "Discs are put into " + name() + " by hand; insert is for virtual recorders." };
}

Result<std::string> PhysicalDrive::folder() const
{
    return Error{ Exit::failed,
        "The discs of " + name() + " lie in no folder: only those of a virtual recorder do." };
}

} // namespace engine::drive
