#include "drive/Burn.h"

#include "audio/AudioDisc.h"
#include "drive/BlockDigests.h"
#include "drive/DiscContent.h"
#include "drive/WriteFailure.h"
#include "medium/Medium.h"

#include <algorithm>
#include <utility>

namespace engine::drive {

namespace {

void tell(const std::function<void(const std::string &)> &listener, const std::string &sentence)
{
    if (listener)
        listener(sentence);
}

void preparing(const BurnOptions &options)
{
    Progress progress;
    progress.phase = Phase::preparing;
    options.control.report(progress, 0);
}

Error noDisc(const std::string &driveName)
{
    return { Exit::noDisc,
        "There is no disc in " + driveName + ", or its tray is open: insert one and close the tray." };
}

Result<void> checkWritable(const Medium &medium, const std::string &driveName)
{
    if (medium.kind == MediumKind::none)
        return noDisc(driveName);
    if (canWriteNow(medium) || canErase(medium))
        return {};
    if (medium.kind == MediumKind::unknown)
        return Error{ Exit::failed,
            "The disc in " + driveName
                + " is of a kind that cannot be written: insert a blank CD, DVD or BD." };
    const bool open = medium.state == MediumState::appendable;
    return Error{ Exit::failed,
        "The " + std::string(factsOf(medium.kind).type) + " in " + driveName
            + (open ? " is not empty, and Corvalis writes empty discs only" : " cannot be written any more")
            + ": insert a blank or rewritable disc." };
}

/// Whether `needed` blocks fit the medium once it is erased if need be. Where the drive does not tell what an
/// erased one takes, the write asks again.
Result<void> checkFits(
    std::uint64_t needed, Amount amount, const Medium &medium, const std::string &driveName)
{
    if (canWriteNow(medium))
        return checkRoom(needed, medium.free, amount, driveName);
    return medium.capacity == 0 ? Result<void>() : checkRoom(needed, medium.capacity, amount, driveName);
}

/// An erase that ends well in spite of a stop is told as stopped.
Result<void> eraseUntilStopped(
    Lease &lease, EraseMode mode, const std::string &driveName, const Control &control)
{
    if (auto erased = lease.erase(mode, control); !erased)
        return erased;
    if (const int signal = control.stop.signal())
        return stoppedBy(
            signal, "Stopped after the erase had ended: the disc in " + driveName + " is blank.");
    return {};
}

/// Makes a rewritable medium that is not blank blank.
Result<void> eraseFirst(
    Lease &lease, const Medium &medium, const std::string &driveName, const BurnOptions &options)
{
    if (medium.state == MediumState::blank || !canErase(medium))
        return {};
    tell(options.say, "The disc is not blank; it is erased first.");
    return eraseUntilStopped(lease, EraseMode::quick, driveName, options.control);
}

/// Does `write` on a medium that is erased first if need be, and gives the drive back.
Result<void> eraseAndWrite(Lease &lease, const Medium &medium, const std::string &driveName,
    const BurnOptions &options, const std::function<Result<void>()> &write)
{
    // Not every preparation asks for a stop, nor does the wait for a drive that is busy.
    if (const int signal = options.control.stop.signal())
        return stoppedUntouched(signal);
    auto done = eraseFirst(lease, medium, driveName, options);
    if (done)
        done = write();
    lease.present();
    return done;
}

/// Opens the drive for a write and looks at what is in it.
Result<std::unique_ptr<Lease>> openForWriting(Drive &drive, Medium &medium, const Control &control)
{
    drive.setStop(control.stop);
    auto lease = drive.acquire(Purpose::change);
    if (!lease)
        return lease;
    Result<Medium> found = (*lease)->medium();
    if (!found)
        return withState(found.error(), drive.name(), Left::asBefore);
    medium = std::move(found).value();
    if (auto writable = checkWritable(medium, drive.name()); !writable)
        return writable.error();
    return lease;
}

/// A stop that came too late to spare the disc is told all the same.
Result<void> toldIfStopped(const std::string &driveName, const Control &control)
{
    const int signal = control.stop.signal();
    return signal == 0
        ? Result<void>()
        : stoppedBy(signal, "Stopped after the disc in " + driveName + " was written and closed.");
}

using Content = std::unique_ptr<DiscData>;

Result<void> writeAndVerify(
    Lease &lease, DiscData &data, const std::string &driveName, const BurnOptions &options)
{
    BlockDigests sent(options.verify);
    if (auto written = lease.writeData(data, sent, options.pace, options.control); !written)
        return written;
    if (!options.verify)
        return toldIfStopped(driveName, options.control);
    if (const int signal = options.control.stop.signal())
        return stoppedUncompared(signal, driveName);
    auto compared = lease.reload();
    if (compared)
        compared = verify(lease, sent, driveName, options.control);
    return compared ? compared : withState(compared.error(), driveName, Left::closed);
}

Result<void> burnContent(
    Drive &drive, const std::function<Result<Content>()> &prepare, const BurnOptions &options)
{
    Medium medium;
    const auto lease = openForWriting(drive, medium, options.control);
    if (!lease)
        return lease.error();
    preparing(options);
    const Result<Content> data = prepare();
    if (!data)
        return withState(data.error(), drive.name(), Left::asBefore);
    if (auto fits = checkFits((*data)->blocks(), Amount::data, medium, drive.name()); !fits)
        return withState(fits.error(), drive.name(), Left::asBefore);
    return eraseAndWrite(**lease, medium, drive.name(), options,
        [&] { return writeAndVerify(**lease, **data, drive.name(), options); });
}

Result<void> checkAudioMedium(
    const Medium &medium, const audio::AudioDisc &disc, const std::string &driveName)
{
    if (factsOf(medium.kind).family != Family::cd)
        return Error{ Exit::failed,
            "An audio disc needs a CD, and there is a " + std::string(factsOf(medium.kind).type) + " in "
                + driveName + ": insert a blank CD-R or CD-RW." };
    // The pause of track 1 lies before the blocks that a disc counts.
    return checkFits(disc.sectorCount() - audio::firstPause, Amount::sound, medium, driveName);
}

} // namespace

Result<void> burnFolder(Drive &drive, const std::string &folder, const BurnOptions &options)
{
    return burnContent(
        drive, [&] { return FolderContent::read(folder, options); }, options);
}

Result<void> burnImageFile(Drive &drive, const std::string &image, const BurnOptions &options)
{
    return burnContent(
        drive, [&] { return ImageContent::open(image); }, options);
}

Result<void> burnAudioFolder(Drive &drive, const std::string &folder, const BurnOptions &options)
{
    Medium medium;
    const auto lease = openForWriting(drive, medium, options.control);
    if (!lease)
        return lease.error();
    preparing(options);
    const Result<audio::AudioDisc> disc = audio::readAudioFolder(folder);
    if (!disc)
        return withState(disc.error(), drive.name(), Left::asBefore);
    for (const std::string &line : disc->notes)
        tell(options.note, line);
    if (auto fits = checkAudioMedium(medium, *disc, drive.name()); !fits)
        return withState(fits.error(), drive.name(), Left::asBefore);
    return eraseAndWrite(**lease, medium, drive.name(), options, [&] {
        const auto written = (*lease)->writeAudio(*disc, options.pace, options.control);
        if (!written)
            return Result<void>(written.error());
        if (!written->named && options.note)
            options.note("The titles are not on the disc: " + drive.name() + " does not write CD-TEXT.");
        return toldIfStopped(drive.name(), options.control);
    });
}

Result<DiscTracks> tracksOn(Drive &drive)
{
    const auto lease = drive.acquire(Purpose::look);
    if (!lease)
        return lease.error();
    const Result<Medium> medium = (*lease)->medium();
    if (!medium)
        return medium.error();
    if (medium->kind == MediumKind::none)
        return noDisc(drive.name());
    Result<DiscTracks> found = (*lease)->tracks();
    if (!found || !found->tracks.empty())
        return found;
    if (medium->used == 0)
        return Error{ Exit::failed, "The disc in " + drive.name() + " is blank: it has no tracks." };
    const std::uint64_t start = factsOf(medium->kind).family == Family::cd ? audio::firstPause : 0;
    return DiscTracks{ {}, { { 1, false, start, medium->used, {} } } };
}

Result<void> eraseMedium(Drive &drive, EraseMode mode, const Control &control)
{
    drive.setStop(control.stop);
    const auto lease = drive.acquire(Purpose::change);
    if (!lease)
        return lease.error();
    const Result<Medium> medium = (*lease)->medium();
    if (!medium)
        return withState(medium.error(), drive.name(), Left::asBefore);
    if (medium->kind == MediumKind::none)
        return noDisc(drive.name());
    if (!canErase(*medium))
        return Error{ Exit::failed,
            "The " + std::string(factsOf(medium->kind).type) + " in " + drive.name()
                + " cannot be erased: insert a rewritable disc." };
    if (const int signal = control.stop.signal())
        return stoppedUntouched(signal);
    auto erased = eraseUntilStopped(**lease, mode, drive.name(), control);
    (*lease)->present();
    return erased;
}

} // namespace engine::drive
