#include "drive/VirtualDrive.h"

#include "audio/AudioDisc.h"
#include "audio/CueSheet.h"
#include "audio/TrackStream.h"
#include "base/Words.h"
#include "drive/LibburnDrive.h"
#include "drive/RecorderFolder.h"
#include "drive/WriteFailure.h"

#include <algorithm>
#include <cerrno>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace engine::drive {

namespace {

std::uint64_t sizeOf(const Fd &file)
{
    struct stat info { };
    return ::fstat(file.get(), &info) == 0 ? static_cast<std::uint64_t>(info.st_size) : 0;
}

std::string addressOf(const Fd &file)
{
    // By number and not by path: paths may be longer than libburn's addresses.
    return "stdio:/dev/fd/" + std::to_string(file.get());
}

/// What is written at once to a recorder: one stream of bytes that becomes one file.
struct Content {
    Track track;
    std::uint64_t bytes = 0; ///< of the file
    std::uint64_t sectors = 0; ///< of the disc
    const char *file = nullptr;
    std::string cueSheet; ///< empty for a data disc
};

/// What a disc counts of the first `bytes` of its file.
std::uint64_t sectorsIn(std::string_view file, std::uint64_t bytes)
{
    if (file == dataDiscFile)
        return bytes / blockBytes;
    // The pause of track 1 lies before the sectors that are counted.
    const std::uint64_t sectors = bytes / audio::sectorSize;
    return sectors - std::min<std::uint64_t>(sectors, audio::firstPause);
}

class VirtualLease final : public Lease {
public:
    VirtualLease(RecorderFolder folder, std::string name)
        : m_folder(std::move(folder))
        , m_name(std::move(name))
    {
    }

    Result<Medium> medium() override;
    Result<void> erase(EraseMode mode, const Control &control) override;
    Result<void> writeData(
        DiscData &data, BlockDigests &sent, const Pace &pace, const Control &control) override;
    Result<AudioWritten> writeAudio(
        const audio::AudioDisc &disc, const Pace &pace, const Control &control) override;
    Result<DiscTracks> tracks() override;
    Result<void> reload() override;
    Result<std::size_t> read(std::uint64_t block, std::span<std::byte> buffer) override;
    void present() override { }

private:
    Result<RecorderState> begin(std::uint64_t bytes);
    Result<void> write(Content content, const Supply &supply, const Pace &pace, const Control &control);
    Result<LibburnDrive::Outcome> stream(
        Content &content, const Fd &file, MediumKind kind, const Supply &supply, const Control &control);
    Result<void> finish(RecorderState state, const Content &content, const Fd &file);
    Error abandon(RecorderState state, const Content &content, const Fd &file,
        const LibburnDrive::Outcome &outcome, const Result<void> &sourceOutcome);

    RecorderFolder m_folder;
    std::string m_name;
    Fd m_reserve; ///< while a write runs: room for its end
    Fd m_disc;
    std::unique_ptr<LibburnDrive> m_reader;
};

Result<Medium> VirtualLease::medium()
{
    const Result<RecorderState> state = m_folder.load();
    if (!state)
        return state.error();
    Medium medium = mediumOf(*state);
    // A killed write could not note how far it had come.
    if (state->disc == DiscState::writing && medium.kind != MediumKind::none)
        for (const char *file : { dataDiscFile, audioDiscFile })
            if (const auto disc = m_folder.openDisc(file))
                medium.used = sectorsIn(file, sizeOf(*disc));
    medium.deviceName = "virtual";
    return medium;
}

Result<void> VirtualLease::erase(EraseMode, const Control &)
{
    Result<RecorderState> state = m_folder.load();
    if (!state)
        return state.error();
    if (!canErase(mediumOf(*state)))
        return Error{ Exit::failed, "The disc in " + m_name + " cannot be erased: insert a rewritable one." };
    // What is half gone after a kill must not look like a whole disc.
    state->disc = DiscState::writing;
    if (auto saved = m_folder.save(*state); !saved)
        return withState(saved.error(), m_name, Left::asBefore);
    auto cleared = m_folder.clear();
    state->disc = DiscState::blank;
    state->blocks = 0;
    if (cleared)
        cleared = m_folder.save(*state);
    return cleared ? cleared : withState(cleared.error(), m_name, Left::erasable);
}

/// The recorder's rules, and room for the file and for what is noted at its end. Marks the disc as being written.
Result<RecorderState> VirtualLease::begin(std::uint64_t bytes)
{
    Result<RecorderState> state = m_folder.load();
    if (!state)
        return state;
    if (!canWriteNow(mediumOf(*state)))
        return Error{ Exit::failed, "The disc in " + m_name + " was written already: insert a blank one." };
    if (auto cleared = m_folder.clear(); !cleared)
        return cleared.error();
    Result<Fd> reserve = m_folder.reserve();
    if (!reserve)
        return reserve.error();
    m_reserve = std::move(reserve).value();
    const Result<std::uint64_t> room = m_folder.room();
    if (!room)
        return room.error();
    if (*room < bytes)
        return Error{ Exit::failed,
            "The file system that holds " + m_name + " has room for " + blocksText(*room / blockBytes)
                + ", and the disc needs " + blocksText(bytes / blockBytes) + ": make room there." };
    state->disc = DiscState::writing;
    state->blocks = 0;
    if (auto saved = m_folder.save(*state); !saved)
        return saved.error();
    return state;
}

/// Notes how far the write came, as far as that can be noted: what the person has to know is why it ended.
Error VirtualLease::abandon(RecorderState state, const Content &content, const Fd &file,
    const LibburnDrive::Outcome &outcome, const Result<void> &sourceOutcome)
{
    m_reserve = Fd();
    state.disc = DiscState::blank;
    const Medium before = mediumOf(state);
    const std::uint64_t reached = sizeOf(file);
    if (reached > 0) {
        state.disc = DiscState::spoilt;
        state.blocks = sectorsIn(content.file, reached);
    }
    // Where nothing can be noted, `writing` stays, and reads as spoilt.
    const bool noted = (reached > 0 || m_folder.clear()) && m_folder.save(state);
    return writeFailure(outcome, sourceOutcome, m_name, leftOf(before, reached > 0 || !noted));
}

Result<void> VirtualLease::finish(RecorderState state, const Content &content, const Fd &file)
{
    // libburn writes whole blocks of 2048 bytes; audio sectors end where they end.
    if (sizeOf(file) != content.bytes
        && (::ftruncate(file.get(), static_cast<off_t>(content.bytes)) != 0 || ::fsync(file.get()) != 0))
        return systemError("The disc of " + m_name + " cannot be finished", errno);
    m_reserve = Fd();
    state.disc = DiscState::written;
    state.blocks = content.sectors;
    return m_folder.save(state);
}

/// Sends the content through libburn into `file`.
Result<LibburnDrive::Outcome> VirtualLease::stream(
    Content &content, const Fd &file, MediumKind kind, const Supply &supply, const Control &control)
{
    auto drive = LibburnDrive::grab(addressOf(file), m_name, true, false);
    if (!drive)
        return drive.error();
    std::vector<Track> tracks;
    tracks.push_back(std::move(content.track));
    LibburnDrive::Outcome outcome = (*drive)->write(
        tracks, { WriteMode::trackAtOnce, Phase::writing, factsOf(kind).family, {} }, supply, control);
    outcome.well = outcome.well && supply.bytes() >= content.bytes;
    // A signal may come between the last look for one and a failure.
    if (!outcome.well && outcome.signal == 0)
        outcome.signal = control.stop.signal();
    return outcome;
}

Result<void> VirtualLease::write(
    Content content, const Supply &supply, const Pace &pace, const Control &control)
{
    const Result<RecorderState> state = begin(content.bytes);
    if (!state)
        return withState(state.error(), m_name, Left::blank);
    Result<Fd> file = m_folder.createDisc(content.file);
    if (!file)
        return abandon(*state, content, Fd(), {}, file.error());
    // Before the sectors, which may take all the room there is.
    if (!content.cueSheet.empty())
        if (auto saved = m_folder.saveCueSheet(content.cueSheet); !saved)
            return abandon(*state, content, *file, {}, saved);
    if (pace.begins)
        pace.begins(0, factsOf(state->kind).family);
    const auto outcome = stream(content, *file, state->kind, supply, control);
    if (!outcome)
        return abandon(*state, content, *file, {}, outcome.error());
    if (!outcome->well)
        return abandon(*state, content, *file, *outcome, supply.outcome());
    if (auto finished = finish(*state, content, *file); !finished)
        return abandon(*state, content, *file, {}, finished);
    return {};
}

Result<void> VirtualLease::writeData(
    DiscData &data, BlockDigests &sent, const Pace &pace, const Control &control)
{
    const Result<Read> stream = data.start();
    if (!stream)
        return withState(stream.error(), m_name, Left::blank);
    const auto supply = std::make_shared<Supply>(std::move(sent));
    supply->start(data.blocks());
    Content content;
    content.sectors = data.blocks();
    content.bytes = data.blocks() * blockBytes;
    content.track.source = newSource(*stream, content.bytes, supply);
    content.file = dataDiscFile;
    auto written = write(std::move(content), *supply, pace, control);
    sent = supply->takeDigests();
    return written;
}

Result<AudioWritten> VirtualLease::writeAudio(
    const audio::AudioDisc &disc, const Pace &pace, const Control &control)
{
    auto opened = audio::DiscStream::open(disc);
    if (!opened)
        return withState(opened.error(), m_name, Left::blank);
    const auto stream = std::make_shared<audio::DiscStream>(std::move(opened).value());
    // libburn writes whole blocks of 2048 bytes; finish() cuts off what fills up the last.
    const Read filled = [stream](std::span<std::byte> buffer) -> Result<std::size_t> {
        const Result<std::size_t> got = stream->read(buffer);
        if (!got)
            return got;
        std::ranges::fill(buffer.subspan(*got), std::byte{});
        return buffer.size();
    };
    const auto supply = std::make_shared<Supply>();
    Content content;
    content.sectors = disc.sectorCount() - audio::firstPause;
    content.bytes = std::uint64_t{ disc.sectorCount() } * audio::sectorSize;
    content.track.source =
        newSource(filled, (content.bytes + blockBytes - 1) / blockBytes * blockBytes, supply);
    content.file = audioDiscFile;
    content.cueSheet = audio::cueSheet(audioDiscFile, disc);
    if (auto written = write(std::move(content), *supply, pace, control); !written)
        return written.error();
    return AudioWritten();
}

Result<DiscTracks> VirtualLease::tracks()
{
    const auto sound = m_folder.openDisc(audioDiscFile);
    if (!sound)
        return DiscTracks();
    const Result<std::string> sheet = m_folder.cueSheet();
    if (!sheet)
        return sheet.error();
    return audio::tracksOfSheet(*sheet, sizeOf(*sound) / audio::sectorSize);
}

Result<void> VirtualLease::reload()
{
    m_reader.reset();
    Result<Fd> disc = m_folder.openDisc(dataDiscFile);
    if (!disc)
        return disc.error();
    m_disc = std::move(disc).value();
    return {};
}

Result<std::size_t> VirtualLease::read(std::uint64_t block, std::span<std::byte> buffer)
{
    if (!m_reader) {
        auto reader = LibburnDrive::grab(addressOf(m_disc), m_name, true, false);
        if (!reader)
            return reader.error();
        m_reader = std::move(reader).value();
    }
    return m_reader->read(block, buffer);
}

bool isSpoilt(DiscState state)
{
    return state == DiscState::writing || state == DiscState::spoilt;
}

/// Takes what is in `folder` out and puts a blank of `kind` in.
Result<void> exchange(const RecorderFolder &folder, RecorderState state, MediumKind kind)
{
    // A disc that is gone while the state still tells of it helps nobody: room for the new state comes first.
    Result<Fd> reserve = folder.reserve();
    if (!reserve)
        return reserve.error();
    if (auto moved = folder.archive(state.kind, isSpoilt(state.disc)); !moved)
        return moved;
    *reserve = Fd();
    state.trayOpen = false;
    state.kind = kind;
    state.disc = DiscState::blank;
    state.blocks = 0;
    return folder.save(state);
}

} // namespace

VirtualDrive::VirtualDrive(std::string folder)
    : m_folder(std::move(folder))
{
}

DriveRecord VirtualDrive::record() const
{
    bool readable = false;
    const RecorderState state = peek(m_folder, readable);
    return { state.vendor, state.product, state.revision, "Virtual", readable ? "Supported" : "Damaged" };
}

Result<std::unique_ptr<Lease>> VirtualDrive::acquire(Purpose purpose)
{
    auto folder = RecorderFolder::lock(
        m_folder, name(), purpose == Purpose::change ? Access::exclusive : Access::shared);
    if (!folder)
        return folder.error();
    return std::unique_ptr<Lease>(std::make_unique<VirtualLease>(std::move(folder).value(), name()));
}

Result<void> VirtualDrive::change(
    const std::function<Result<void>(const RecorderFolder &, RecorderState)> &change)
{
    auto folder = RecorderFolder::lock(m_folder, name(), Access::exclusive);
    if (!folder)
        return folder.error();
    const Result<RecorderState> state = folder->load();
    return state ? change(*folder, *state) : state.error();
}

Result<void> VirtualDrive::eject()
{
    return change([](const RecorderFolder &folder, RecorderState state) -> Result<void> {
        if (state.kind != MediumKind::none)
            return exchange(folder, state, state.kind);
        state.trayOpen = true;
        return folder.save(state);
    });
}

Result<void> VirtualDrive::close()
{
    return change([](const RecorderFolder &folder, RecorderState state) -> Result<void> {
        if (!state.trayOpen)
            return {};
        state.trayOpen = false;
        return folder.save(state);
    });
}

Result<void> VirtualDrive::insert(MediumKind kind)
{
    auto folder = RecorderFolder::lock(m_folder, name(), Access::exclusive);
    if (!folder)
        return folder.error();
    // A damaged recorder.ini is replaced: this is how a recorder is repaired.
    const Result<RecorderState> state = folder->load();
    return exchange(*folder, state ? *state : RecorderState{}, kind);
}

} // namespace engine::drive
