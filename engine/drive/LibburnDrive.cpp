#include "drive/LibburnDrive.h"

#include "audio/AudioDisc.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <sys/types.h>
#include <thread>
// libburn.h needs off_t to be known.
#include <libburn/libburn.h>

namespace engine::drive {

using namespace burn;

namespace {

using namespace std::chrono_literals;

/// libburn takes names as char * that it does not change.
char *unchanged(const char *text)
{
    return const_cast<char *>(text);
}

/// libburn is never closed: the thread of a write that was broken off still sends messages when its drive is idle
/// already, and burn_finish() takes away what it sends them to.
bool openLibrary()
{
    static const bool ready = [] {
        if (burn_initialize() == 0)
            return false;
        burn_msgs_set_severities(unchanged("SORRY"), unchanged("NEVER"), unchanged(""));
        return true;
    }();
    return ready;
}

/// libburn's description of a disc, freed in the order it wants.
class Layout {
public:
    explicit Layout(const std::vector<Track> &tracks)
        : m_disc(burn_disc_create())
        , m_session(burn_session_create())
    {
        burn_disc_add_session(m_disc, m_session, BURN_POS_END);
        for (const Track &track : tracks)
            add(track);
    }

    ~Layout()
    {
        for (burn_track *track : m_tracks)
            burn_track_free(track);
        burn_session_free(m_session);
        burn_disc_free(m_disc);
    }

    Layout(const Layout &) = delete;
    Layout &operator=(const Layout &) = delete;

    burn_disc *disc() const { return m_disc; }

private:
    void add(const Track &track)
    {
        burn_track *t = burn_track_create();
        burn_track_define_data(t, 0, 0, 1, track.audio ? BURN_AUDIO : BURN_MODE1);
        // Track 1 of an audio disc has its pause of two seconds; no pause is added between tracks.
        if (track.audio && track.pregap > 0)
            burn_track_set_pregap_size(t, track.pregap, 0);
        burn_track_set_source(t, track.source.get());
        burn_session_add_track(m_session, t, BURN_POS_END);
        m_tracks.push_back(t);
    }

    burn_disc *m_disc;
    burn_session *m_session;
    std::vector<burn_track *> m_tracks;
};

struct OptionsFree {
    void operator()(burn_write_opts *options) const { burn_write_opts_free(options); }
};
using Options = std::unique_ptr<burn_write_opts, OptionsFree>;

Options optionsFor(burn_drive *drive, WriteMode mode)
{
    Options options(burn_write_opts_new(drive));
    if (!options)
        return options;
    const bool atOnce = mode == WriteMode::sessionAtOnce;
    burn_write_opts_set_write_type(
        options.get(), atOnce ? BURN_WRITE_SAO : BURN_WRITE_TAO, atOnce ? BURN_BLOCK_SAO : BURN_BLOCK_MODE1);
    burn_write_opts_set_underrun_proof(options.get(), 1);
    burn_write_opts_set_perform_opc(options.get(), 0);
    burn_write_opts_set_multi(options.get(), 0);
    // A reserved DVD+R track must be a multiple of 32 KiB; files behind "stdio:" stay exact.
    if (burn_drive_get_drive_role(drive) == 1)
        burn_write_opts_set_obs_pad(options.get(), 1);
    // Flush a file once at its end: the recorder's state is saved after that.
    burn_write_opts_set_stdio_fsync(options.get(), 1);
    return options;
}

bool addText(burn_write_opts &options, std::span<const audio::Pack> text)
{
    std::vector<unsigned char> bytes; // libburn takes a copy
    for (const audio::Pack &pack : text)
        bytes.insert(bytes.end(), pack.begin(), pack.end());
    return text.empty()
        || burn_write_opts_set_leadin_text(&options, bytes.data(), static_cast<int>(text.size()), 0) > 0;
}

Phase phaseOf(burn_drive_status status, Phase busy)
{
    switch (status) {
    case BURN_DRIVE_WRITING_LEADOUT:
    case BURN_DRIVE_CLOSING_TRACK:
    case BURN_DRIVE_CLOSING_SESSION:
        return Phase::closing;
    case BURN_DRIVE_FORMATTING:
        return Phase::erasing;
    default:
        return busy;
    }
}

/// How far an operation has come. libburn counts the sectors of each track anew, and tells of none while the
/// drive closes the session.
class Count {
public:
    explicit Count(const std::vector<std::uint64_t> &sectors)
    {
        for (const std::uint64_t track : sectors) {
            m_starts.push_back(m_total);
            m_total += track;
        }
    }

    void update(const burn_progress &p)
    {
        auto done = static_cast<std::uint64_t>(std::max(p.sector, 0));
        if (m_starts.empty())
            m_total = static_cast<std::uint64_t>(std::max(p.sectors, 0));
        else
            done +=
                m_starts.at(std::min(static_cast<std::size_t>(std::max(p.track, 0)), m_starts.size() - 1));
        // A short track is filled up by libburn, and a count that goes back helps nobody.
        m_done = std::max(m_done, std::min(done, m_total));
    }

    std::uint64_t done() const { return m_done; }
    std::uint64_t total() const { return m_total; }
    bool allWritten() const { return !m_starts.empty() && m_done == m_total; }

private:
    std::vector<std::uint64_t> m_starts; ///< of each track; none for an erase
    std::uint64_t m_total = 0;
    std::uint64_t m_done = 0;
};

std::vector<std::uint64_t> sectorsOf(const std::vector<Track> &tracks, unsigned sectorBytes)
{
    std::vector<std::uint64_t> sectors;
    sectors.reserve(tracks.size());
    for (const Track &track : tracks) {
        const auto bytes = static_cast<std::uint64_t>(track.source->get_size(track.source.get()));
        sectors.push_back((bytes + sectorBytes - 1) / sectorBytes);
    }
    return sectors;
}

/// A DVD goes back to "writing" for a moment between closing its track and its session. A drive that has got
/// everything empties its buffer and writes the lead-out of a session at once; libburn calls that writing,
/// too.
Phase nextPhase(Phase last, Phase told, const Count &count)
{
    const bool closing = last == Phase::closing || (told == Phase::writing && count.allWritten());
    return closing ? Phase::closing : told;
}

/// `counted` is false while libburn closes or formats: it counts no sectors then, or others.
Progress progressOf(const burn_progress &p, const Count &count, Phase phase, Family family, bool counted)
{
    Progress progress;
    progress.phase = phase;
    progress.family = family;
    if (!counted)
        return progress;
    progress.done = count.done();
    progress.total = count.total();
    if (phase == Phase::writing)
        progress.bufferPercent = bufferPercent(p.buffer_capacity, p.buffer_available);
    return progress;
}

} // namespace

std::optional<int> bufferPercent(unsigned capacity, unsigned available)
{
    if (capacity == 0 || available > capacity)
        return std::nullopt;
    return static_cast<int>((static_cast<std::uint64_t>(capacity - available) * 100) / capacity);
}

Result<std::unique_ptr<LibburnDrive>> LibburnDrive::grab(
    const std::string &address, const std::string &name, bool exclusive, bool load)
{
    if (!openLibrary())
        return Error{ Exit::failed, "libburn cannot be started; check its installation." };
    burn_preset_device_open(exclusive ? 1 : 0, 0, 0);
    takeMessage();
    burn_drive_info *infos = nullptr;
    std::string writable = address;
    if (burn_drive_scan_and_grab(&infos, writable.data(), load ? 1 : 0) <= 0) {
        const LibburnMessage message = takeMessage();
        return Error{ Exit::failed,
            "The device of " + name + " cannot be opened"
                + (message.text.empty() ? std::string(".") : ": " + message.text) };
    }
    return std::unique_ptr<LibburnDrive>(new LibburnDrive(infos, name));
}

LibburnDrive::LibburnDrive(burn_drive_info *infos, std::string name)
    : m_infos(infos)
    , m_name(std::move(name))
{
}

LibburnDrive::~LibburnDrive()
{
    release(m_leave);
    burn_drive_info_free(m_infos);
}

burn_drive *LibburnDrive::handle() const
{
    return m_infos[0].drive;
}

void LibburnDrive::release(Leave how)
{
    if (!m_grabbed)
        return;
    if (how == Leave::locked)
        burn_drive_leave_locked(handle(), 0);
    else
        burn_drive_release(handle(), how == Leave::open ? 1 : 0);
    m_grabbed = false;
}

LibburnMessage LibburnDrive::takeMessage()
{
    LibburnMessage first;
    std::array<char, BURN_MSGS_MESSAGE_LEN> text{};
    std::array<char, 80> severity{};
    int code = 0;
    int failure = 0;
    while (burn_msgs_obtain(unchanged("SORRY"), &code, text.data(), &failure, severity.data()) > 0)
        if (first.text.empty())
            first = { code, failure, text.data() };
    return first;
}

LibburnDrive::Outcome LibburnDrive::wait(Stop stop, const Task &task, const Control &control)
{
    Outcome outcome;
    auto pause = 1ms;
    bool cancelled = false;
    Phase phase = task.phase;
    Count count(task.sectors);
    burn_progress p{};
    for (burn_drive_status status{}; (status = burn_drive_get_status(handle(), &p)) != BURN_DRIVE_IDLE;) {
        if (status != BURN_DRIVE_SPAWNING) {
            const Phase told = phaseOf(status, task.phase);
            if (told == task.phase)
                count.update(p);
            phase = nextPhase(phase, told, count);
            control.report(progressOf(p, count, phase, task.family, phase == task.phase), task.unitBytes);
        }
        if (outcome.signal == 0)
            outcome.signal = control.stop.signal();
        outcome.sourceFailed = task.supply && task.supply->failed();
        // Everything is with the drive while it closes the disc: libburn does not break that off, and calls a
        // write that was cancelled then a failure all the same.
        const bool breakable = stop == Stop::cancels && phase != Phase::closing;
        if (breakable && !cancelled && (outcome.signal != 0 || outcome.sourceFailed)) {
            burn_drive_cancel(handle());
            cancelled = true;
        }
        std::this_thread::sleep_for(pause);
        pause = std::min(pause * 2, 100ms);
    }
    outcome.sourceFailed = task.supply && task.supply->failed();
    outcome.message = takeMessage();
    outcome.well = !cancelled && !outcome.sourceFailed && burn_drive_wrote_well(handle()) != 0;
    return outcome;
}

LibburnDrive::Outcome LibburnDrive::write(
    const std::vector<Track> &tracks, const Manner &manner, const Supply &supply, const Control &control)
{
    takeMessage();
    const bool audio = !tracks.empty() && tracks.front().audio;
    const Layout layout(tracks);
    const Options options = optionsFor(handle(), manner.mode);
    Outcome refused;
    if (!options || !addText(*options, manner.text)) {
        refused.message.text = "out of memory";
        return refused;
    }
    std::array<char, BURN_REASONS_LEN> reasons{};
    if (burn_precheck_write(options.get(), layout.disc(), reasons.data(), 1) <= 0) {
        takeMessage();
        refused.message.text = reasons.data();
        return refused;
    }
    const auto unitBytes = static_cast<unsigned>(audio ? audio::sectorSize : blockBytes);
    // From the start of the write on the sources belong to libburn's thread, which may change their sizes.
    const Task task{ manner.phase, manner.family, unitBytes, sectorsOf(tracks, unitBytes), &supply };
    burn_disc_write(options.get(), layout.disc());
    Outcome outcome = wait(Stop::cancels, task, control);
    for (const Track &track : tracks)
        awaitUser(track.source.get());
    return outcome;
}

LibburnDrive::Outcome LibburnDrive::waitForErase(const Control &control)
{
    return wait(Stop::waits, { Phase::erasing, Family::none, 0, {}, nullptr }, control);
}

std::size_t LibburnDrive::read(std::uint64_t block, std::span<std::byte> buffer)
{
    constexpr int quiet = 2;
    off_t got = 0;
    burn_read_data(handle(), static_cast<off_t>(block * blockBytes), reinterpret_cast<char *>(buffer.data()),
        static_cast<off_t>(buffer.size()), &got, quiet);
    return static_cast<std::size_t>(std::clamp<off_t>(got, 0, static_cast<off_t>(buffer.size())));
}

} // namespace engine::drive
