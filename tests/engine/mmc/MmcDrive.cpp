#include "MmcDrive.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstring>
#include <linux/cdrom.h>
#include <linux/fs.h>
#include <sched.h>
#include <scsi/scsi.h>
#include <scsi/sg.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace mmc {

namespace {

std::mutex currentMutex;
Drive *current = nullptr;

/// Address of the first sector of the lead-in, whose times run up to 99:59:74 (MMC-5 4.2.3.3).
constexpr qint32 leadInStart = 97 * 4500 + 34 * 75 + 23 - 450000 - 150;

constexpr Sense noMedium{ 2, 0x3a, 0x00 };
constexpr Sense invalidOpcode{ 5, 0x20, 0x00 };
constexpr Sense outOfRange{ 5, 0x21, 0x00 };
constexpr Sense wrongAddress{ 5, 0x21, 0x02 }; // invalid address for write
constexpr Sense invalidField{ 5, 0x24, 0x00 };
constexpr Sense invalidParameter{ 5, 0x26, 0x00 };
constexpr Sense sequenceError{ 5, 0x2c, 0x00 };
constexpr Sense incompatibleMedium{ 5, 0x30, 0x05 }; // cannot write medium, incompatible format
constexpr Sense locked{ 5, 0x53, 0x02 };

QByteArray big(quint32 number, int bytes)
{
    QByteArray text(bytes, '\0');
    for (int i = 0; i < bytes; ++i)
        text[bytes - 1 - i] = char(number >> (8 * i));
    return text;
}

quint32 numberIn(const QByteArray &bytes, int at, int count)
{
    quint32 number = 0;
    for (int i = at; i < at + count; ++i)
        number = number << 8 | quint8(i < bytes.size() ? bytes.at(i) : 0);
    return number;
}

/// Minutes, seconds, frames of an address as the table of contents has it.
QByteArray msf(qint32 address)
{
    const int frames = address + 150;
    return big(quint32(frames / 4500 << 16 | frames / 75 % 60 << 8 | frames % 75), 3);
}

/// A feature of GET CONFIGURATION (MMC-5 5.2).
QByteArray feature(int code, bool isCurrent, const QByteArray &data = {})
{
    return big(quint32(code), 2) + char(isCurrent ? 1 : 0) + char(data.size()) + data;
}

struct Format {
    quint32 blocks;
    int type;
    quint32 parameter;
};

/// A BD-RE in a drive of 2008, as dvd+rw-mediainfo showed it (quoted in libburn 1.5.4, mmc.c).
constexpr std::array bdReFormats{ Format{ 11826176, 0x00, 0x3000 }, Format{ 11826176, 0x30, 0x3000 },
    Format{ 11564032, 0x30, 0x5000 }, Format{ 12088320, 0x30, 0x1000 }, Format{ 12219392, 0x31, 0x800 } };

} // namespace

quint32 Command::number(int at, int bytes) const
{
    return numberIn(cdb, at, bytes);
}

quint32 Command::dataNumber(int at, int bytes) const
{
    return numberIn(data, at, bytes);
}

/// What is done at an opcode.
struct Drive::Row {
    int opcode;
    Handler handler;
    bool needsDisc;
    bool changes; ///< goes into the list of commands
};

const Drive::Row Drive::rows[] = {
    { testUnitReady, &Drive::ready, true, false },
    { 0x03, &Drive::nothing, false, false }, // REQUEST SENSE
    { formatUnit, &Drive::format, true, true },
    { inquiry, &Drive::tellInquiry, false, false },
    { startStop, &Drive::moveTray, false, true },
    { preventRemoval, &Drive::lockTray, false, true },
    { readFormatCapacities, &Drive::tellFormats, true, false },
    { readCapacity, &Drive::tellCapacity, true, false },
    { read10, &Drive::read, true, false },
    { write10, &Drive::write, true, true },
    { synchronizeCache, &Drive::flush, true, true },
    { readToc, &Drive::tellToc, true, false },
    { getConfiguration, &Drive::tellConfiguration, false, false },
    { readDiscInformation, &Drive::tellDisc, true, false },
    { readTrackInformation, &Drive::tellTrack, true, false },
    { reserveTrack, &Drive::reserve, true, true },
    { sendOpc, &Drive::nothing, true, true },
    { modeSelect, &Drive::setMode, false, true },
    { modeSense, &Drive::tellMode, false, false },
    { closeTrack, &Drive::close, true, true },
    { readBufferCapacity, &Drive::tellBuffer, false, false },
    { sendCueSheet, &Drive::takeCueSheet, true, true },
    { blankDisc, &Drive::blank, true, true },
    { read12, &Drive::read, true, false },
    { write12, &Drive::write, true, true },
    { getPerformance, &Drive::tellPerformance, false, false },
    { setStreaming, &Drive::setSpeedOf, false, true },
    { setSpeed, &Drive::setSpeedOf, false, true },
};

Drive::Drive(Disc inserted)
    : disc(std::move(inserted))
    , m_device(QFile::encodeName(m_dir.filePath(QStringLiteral("drive"))))
{
    QFile file(QFile::decodeName(m_device));
    if (!file.open(QFile::WriteOnly) || ::fstat(file.handle(), &m_node) != 0)
        qFatal("no place for the drive");
    const std::lock_guard guard(currentMutex);
    current = this;
}

Drive::~Drive()
{
    const std::lock_guard guard(currentMutex);
    current = nullptr;
}

bool Drive::isOpenAs(int fd) const
{
    struct stat opened { };
    return ::fstat(fd, &opened) == 0 && opened.st_dev == m_node.st_dev && opened.st_ino == m_node.st_ino;
}

void Drive::exchange(Disc other)
{
    disc = std::move(other);
    m_next = m_reserved = 0;
    m_cache.clear();
}

void Drive::unplug()
{
    m_unplugged = true;
    QFile::remove(QFile::decodeName(m_device));
}

bool Drive::overwritable() const
{
    constexpr std::array profiles{ dvdRam, dvdRwRestricted, dvdPlusRw, bdRe };
    return std::ranges::count(profiles, disc.profile) > 0;
}

qint32 Drive::end() const
{
    return disc.blocks.isEmpty() ? 0 : disc.blocks.lastKey() + 1;
}

QList<Command> Drive::commandsOf(int opcode) const
{
    const std::lock_guard guard(m_mutex);
    QList<Command> found;
    std::ranges::copy_if(
        commands, std::back_inserter(found), [opcode](const Command &c) { return c.opcode() == opcode; });
    return found;
}

QList<int> Drive::opcodes() const
{
    const std::lock_guard guard(m_mutex);
    QList<int> found;
    for (const Command &command : commands)
        if (found.isEmpty() || found.last() != command.opcode())
            found.append(command.opcode());
    return found;
}

QByteArray Drive::content(qint32 address) const
{
    QByteArray all;
    for (auto it = disc.blocks.constFind(address); it != disc.blocks.constEnd() && it.key() == address;
         ++it, ++address)
        all += it.value();
    return all;
}

int Drive::transfer(void *header)
{
    const std::lock_guard guard(m_mutex);
    if (m_unplugged) {
        errno = ENODEV;
        return -1;
    }
    auto &io = *static_cast<sg_io_hdr_t *>(header);
    Command command{ QByteArray(reinterpret_cast<const char *>(io.cmdp), io.cmd_len), {} };
    if (io.dxfer_direction == SG_DXFER_TO_DEV)
        command.data = QByteArray(static_cast<const char *>(io.dxferp), qsizetype(io.dxfer_len));
    const Answer said = answer(command);
    if (io.dxfer_direction == SG_DXFER_FROM_DEV)
        std::memcpy(io.dxferp, said.data.constData(), std::min<std::size_t>(said.data.size(), io.dxfer_len));
    io.status = said.sense ? 2 : 0; // CHECK CONDITION
    io.masked_status = said.sense ? 1 : 0;
    io.host_status = io.driver_status = 0;
    io.sb_len_wr = 0;
    if (said.sense && io.sbp && io.mx_sb_len >= 18) { // fixed format, SPC-4 4.5.3
        std::memset(io.sbp, 0, io.mx_sb_len);
        io.sbp[0] = said.sense->deferred ? 0x71 : 0x70;
        io.sbp[2] = quint8(said.sense->key);
        io.sbp[7] = 10;
        io.sbp[12] = quint8(said.sense->asc);
        io.sbp[13] = quint8(said.sense->ascq);
        io.sb_len_wr = 18;
        io.driver_status = 8;
    }
    return 0;
}

Drive::Answer Drive::answer(const Command &command)
{
    const auto *row =
        std::ranges::find(rows, command.opcode(), [](const Row &candidate) { return candidate.opcode; });
    if (row == std::end(rows))
        return { {}, invalidOpcode };
    if (row->changes)
        commands.append(command);
    if (refuse)
        if (const auto sense = refuse(command))
            return { {}, sense };
    if (row->needsDisc && !has())
        return { {}, noMedium };
    return (this->*row->handler)(command);
}

Drive::Answer Drive::ready(const Command &)
{
    return {};
}

Drive::Answer Drive::nothing(const Command &)
{
    return { QByteArray(18, '\0'), {} };
}

Drive::Answer Drive::tellInquiry(const Command &)
{
    const QByteArray head("\x05\x80\x00\x21\x1f\x00\x00\x00", 8);
    return { head + "MODEL   OF A DRIVE      1.00", {} };
}

Drive::Answer Drive::tellMode(const Command &command)
{
    QByteArray page;
    switch (command.number(2, 1) & 0x3f) {
    case 0x05: // write parameters
        page = QByteArray("\x05\x32", 2) + QByteArray(50, '\0');
        page[2] = char(m_mode);
        break;
    case 0x2a: // capabilities: reads and writes all kinds, buffer of 2 MiB
        page = QByteArray("\x2a\x1e\x3f\x37\xf1\x77\x29\x23", 8) + QByteArray(24, '\0');
        page.replace(12, 2, big(2048, 2));
        break;
    case 0x01:
        page = QByteArray("\x01\x0a", 2) + QByteArray(10, '\0');
        break;
    default:
        return { {}, invalidField };
    }
    return { big(quint32(page.size() + 6), 2) + QByteArray(6, '\0') + page, {} };
}

Drive::Answer Drive::setMode(const Command &command)
{
    if (command.dataNumber(8, 1) != 0x05)
        return {};
    const int type = int(command.dataNumber(10, 1));
    if ((type & 0x0f) > 2) // raw
        return { {}, invalidParameter };
    m_mode = type;
    return {};
}

Drive::Answer Drive::tellConfiguration(const Command &)
{
    const int profile = has() ? disc.profile : int(none);
    const bool sequentialDvd = profile == dvdR || profile == dvdRwSequential || profile == dvdRDualLayer;
    QByteArray list;
    for (const int known : { cdR, cdRw, dvdRom, dvdR, dvdRam, dvdRwRestricted, dvdRwSequential, dvdRDualLayer,
             dvdPlusRw, dvdPlusR, dvdPlusRDualLayer, bdR, bdRe })
        list += big(quint32(known), 2) + char(known == profile) + '\0';
    QByteArray features = feature(0x0000, true, list);
    features += feature(0x0001, true, QByteArray("\0\0\0\x07\0\0\0\0", 8)); // core, Serial ATA
    features += feature(0x0003, true, QByteArray("\x29\0\0\0", 4)); // removable medium: tray, lock, eject
    features += feature(0x0021, disc.incremental && (sequentialDvd || profile == cdR || profile == cdRw),
        QByteArray("\0\x01\0\x01\x10\0\0\0", 8)); // incremental streaming writable
    features += feature(0x0023, profile == bdRe, QByteArray("\x0f\0\0\0\0\0\0\0", 8)); // formattable
    features += feature(0x002a, profile == dvdPlusRw, QByteArray("\x01\0\0\0", 4));
    features += feature(0x002b, profile == dvdPlusR, QByteArray("\x01\0\0\0", 4));
    features += feature(0x002d, profile == cdR || profile == cdRw, QByteArray("\x47\0\0\0", 4)); // CD TAO
    features += feature(0x002e, profile == cdR || profile == cdRw, QByteArray("\x77\0\x0c\0", 4)); // CD SAO
    features += feature(0x002f, sequentialDvd, QByteArray("\x46\0\0\0", 4)); // DVD-R/-RW write
    features += feature(0x0107, has(), QByteArray("\x0e\0\0\0", 4)); // real-time streaming
    return { big(quint32(features.size() + 4), 4) + QByteArray(2, '\0') + big(quint32(profile), 2) + features,
        {} };
}

// READ DISC INFORMATION, MMC-5 6.22, standard disc information
Drive::Answer Drive::tellDisc(const Command &)
{
    const int status = overwritable()     ? (disc.profile == dvdRam || disc.profile == bdRe ? 3 : 2)
        : disc.state == State::blank      ? 0
        : disc.state == State::appendable ? 1
                                          : 2;
    const int session = disc.state == State::complete || overwritable() ? 3 : int(disc.firstTrackOpen);
    const bool erasable = overwritable() || disc.profile == cdRw || disc.profile == dvdRwSequential;
    QByteArray data = big(32, 2) + QByteArray(32, '\0');
    data[2] = char(int(erasable) << 4 | session << 2 | status);
    data[3] = data[4] = data[5] = data[6] = 1;
    if (disc.state == State::appendable && !disc.firstTrackOpen)
        data[4] = data[5] = data[6] = 2;
    if (disc.profile == dvdPlusRw)
        data[7] = char(disc.formatted ? 3 : 0); // background format
    data.replace(20, 4, isCd() ? '\0' + msf(disc.capacity) : big(quint32(disc.capacity), 4));
    return { data, {} };
}

// READ TRACK INFORMATION, MMC-5 6.27
Drive::Answer Drive::tellTrack(const Command &command)
{
    const bool open = !overwritable() && disc.state != State::complete;
    const quint32 asked = command.number(2, 4);
    const bool second = disc.state == State::appendable && !disc.firstTrackOpen && asked != 1;
    QByteArray data = big(34, 2) + QByteArray(34, '\0');
    data[2] = data[3] = char(second ? 2 : 1);
    data[5] = char(disc.damaged ? 0x24 : 0x04);
    data[6] = char(open && (second || disc.state == State::blank) ? 0x41 : 1);
    if (open && !disc.damaged) {
        data[7] = 1;
        data.replace(8, 4, big(quint32(second ? end() : 0), 4));
        data.replace(12, 4, big(quint32(end()), 4));
        data.replace(16, 4, big(quint32(disc.capacity + promised - end()), 4));
    }
    data.replace(24, 4, big(quint32(open ? disc.capacity - end() : end()), 4));
    return { data, {} };
}

// READ TOC/PMA/ATIP, MMC-5 6.26
Drive::Answer Drive::tellToc(const Command &command)
{
    const auto entry = [this](int point, const QByteArray &address) {
        const char control = disc.audioTracks.isEmpty() ? '\x14' : '\x10';
        return '\x01' + (control + QByteArray(1, '\0')) + char(point) + QByteArray(4, '\0') + address;
    };
    switch (command.number(2, 1) & 0x0f) {
    case 2: { // full TOC
        if (!isCd() || disc.state == State::blank)
            return { {}, invalidField };
        if (disc.firstTrackOpen) // no session is closed
            return { big(2, 2) + QByteArray("\x01\x01", 2), {} };
        const QList<qint32> starts = disc.audioTracks.isEmpty() ? QList<qint32>{ 0 } : disc.audioTracks;
        QByteArray entries = entry(0xa0, QByteArray("\x01\0\0", 3))
            + entry(0xa1, char(starts.size()) + QByteArray(2, '\0')) + entry(0xa2, msf(end()));
        for (int i = 0; i < starts.size(); ++i)
            entries += entry(i + 1, msf(starts.at(i)));
        return { big(quint32(entries.size() + 2), 2) + QByteArray("\x01\x01", 2) + entries, {} };
    }
    case 4: { // ATIP
        if (!isCd())
            return { {}, invalidField };
        QByteArray data = big(26, 2) + QByteArray(26, '\0');
        data[4] = char(0xd0);
        data[6] = char(disc.profile == cdRw ? 0xc0 : 0x80);
        data.replace(8, 3, QByteArray("\x61\x22\x17", 3)); // 97:34:23, leadInStart
        data.replace(12, 3, msf(disc.capacity));
        return { data, {} };
    }
    case 5: // CD-TEXT
        if (disc.text.isEmpty())
            return { {}, invalidField };
        return { big(quint32(disc.text.size() + 2), 2) + QByteArray(2, '\0') + disc.text, {} };
    default:
        return { {}, invalidField };
    }
}

Drive::Answer Drive::tellCapacity(const Command &)
{
    const qint32 blocks = overwritable() ? disc.capacity : end();
    return { big(quint32(std::max(blocks - 1, 0)), 4) + big(2048, 4), {} };
}

// READ FORMAT CAPACITIES, MMC-5 6.24
Drive::Answer Drive::tellFormats(const Command &)
{
    QList<Format> formats;
    const auto room = quint32(disc.capacity);
    switch (disc.profile) {
    case dvdPlusRw:
        formats = { { room, 0x26, 0 } };
        break;
    case dvdRwSequential:
        formats = { { room, 0x00, 16 }, { room, 0x10, 16 }, { 0, 0x15, 16 } };
        break;
    case dvdRwRestricted:
        formats = { { room, 0x00, 16 }, { 0, 0x13, 16 }, { room, 0x15, 16 } };
        break;
    case dvdRam:
        formats = { { room, 0x00, 2048 }, { room + 100, 0x00, 2048 } };
        break;
    case bdRe:
        formats = QList<Format>(bdReFormats.begin(), bdReFormats.end());
        break;
    default:
        break;
    }
    const quint32 type = disc.formatted ? 2 : 1;
    QByteArray list = big(room, 4) + big(type << 24 | 2048, 4);
    for (const Format &row : formats)
        list += big(row.blocks, 4) + big(quint32(row.type) << 26 | row.parameter, 4);
    return { big(quint32(list.size()), 4) + list, {} };
}

Drive::Answer Drive::tellBuffer(const Command &)
{
    return { big(10, 2) + big(0, 2) + big(2'000'000, 4) + big(500'000, 4), {} };
}

// GET PERFORMANCE type 03h, MMC-5 6.8
Drive::Answer Drive::tellPerformance(const Command &command)
{
    QByteArray list;
    if (command.number(10, 1) == 3)
        for (auto speed = speeds.crbegin(); speed != speeds.crend(); ++speed)
            list += big(0, 4) + big(quint32(disc.capacity), 4) + big(11080, 4) + big(quint32(*speed), 4);
    return { big(quint32(list.size() + 4), 4) + big(0, 4) + list, {} };
}

Drive::Answer Drive::moveTray(const Command &command)
{
    const quint32 motion = command.number(4, 1) & 3;
    if (motion == 2 && trayLocked)
        return { {}, locked };
    if (motion >= 2)
        trayOpen = motion == 2;
    if (trayOpen)
        m_cache.clear();
    return {};
}

Drive::Answer Drive::lockTray(const Command &command)
{
    trayLocked = (command.number(4, 1) & 1) != 0;
    return {};
}

Drive::Answer Drive::setSpeedOf(const Command &command)
{
    writeSpeed = int(command.opcode() == setSpeed ? command.number(4, 2) : command.dataNumber(20, 4));
    return {};
}

Drive::Answer Drive::reserve(const Command &command)
{
    m_next = 0;
    m_reserved = qint32(command.number(5, 4));
    return {};
}

Drive::Answer Drive::takeCueSheet(const Command &command)
{
    const QByteArray leadOut = command.data.right(8);
    if (!isCd() || quint8(leadOut.at(1)) != 0xaa)
        return { {}, invalidField };
    m_reserved = leadOut.at(5) * 4500 + leadOut.at(6) * 75 + leadOut.at(7) - 150;
    const bool withText = (command.data.at(3) & 0x40) != 0; // data form of the lead-in, MMC-5 table 526
    m_next = withText ? leadInStart : -150;
    m_subcode.clear();
    const int form = command.data.at(8 + 3); // of the first track
    m_blockSize = form == 0 ? 2352 : 2048;
    disc.audioTracks.clear();
    for (qsizetype at = 8; form == 0 && at + 8 < command.data.size(); at += 8)
        if (command.data.at(at + 2) == 1) // index
            disc.audioTracks.append(command.data.at(at + 5) * 4500 + command.data.at(at + 6) * 75
                + command.data.at(at + 7) - 150);
    return {};
}

Drive::Answer Drive::write(const Command &command)
{
    const auto address = qint32(command.number(2, 4));
    const auto count = qint32(command.opcode() == write12 ? command.number(6, 4) : command.number(7, 2));
    if (!overwritable() && disc.state == State::complete)
        return { {}, incompatibleMedium };
    if (overwritable() && !disc.formatted)
        return { {}, incompatibleMedium };
    if (!overwritable() && address != m_next)
        return { {}, wrongAddress };
    if (address < -150)
        return writeLeadIn(command, count);
    const qint32 limit = m_reserved > 0 ? std::min(m_reserved, disc.capacity) : disc.capacity;
    if (address + count > limit)
        return { {}, outOfRange };
    if (m_typeAtWrite < 0)
        m_typeAtWrite = m_mode;
    for (qint32 i = 0; i < count; ++i)
        (caches ? m_cache : disc.blocks)[address + i] =
            command.data.mid(qsizetype(i) * m_blockSize, m_blockSize);
    m_next = address + count;
    if (!overwritable())
        disc.state = State::appendable;
    return {};
}

// The packs over and over, six bits a byte, 96 bytes a sector (MMC-3 annex J.3).
Drive::Answer Drive::writeLeadIn(const Command &command, qint32 count)
{
    if (command.data.size() != qsizetype(count) * 96)
        return { {}, invalidField };
    disc.state = State::appendable;
    m_subcode += command.data;
    m_next += count;
    if (m_next < -150)
        return {};
    QByteArray bytes;
    for (qsizetype at = 0; at + 4 <= m_subcode.size(); at += 4) {
        quint32 bits = 0;
        for (int i = 0; i < 4; ++i) {
            if (quint8(m_subcode.at(at + i)) > 0x3f)
                return { {}, invalidField };
            bits = bits << 6 | quint8(m_subcode.at(at + i));
        }
        bytes += big(bits, 3);
    }
    const qsizetype again = bytes.indexOf(bytes.left(18), 18);
    disc.text = bytes.left(again);
    return {};
}

Drive::Answer Drive::flush(const Command &)
{
    disc.blocks.insert(m_cache);
    m_cache.clear();
    // A session at once closes itself behind its last block.
    if (m_reserved > 0 && m_next >= m_reserved && disc.profile != dvdPlusR && disc.profile != bdR)
        disc.state = State::complete;
    return {};
}

Drive::Answer Drive::close(const Command &command)
{
    const quint32 what = command.number(2, 1) & 7;
    if (!overwritable() && what >= 2 && !disc.blocks.isEmpty())
        disc.state = State::complete;
    return {};
}

Drive::Answer Drive::blank(const Command &command)
{
    const quint32 type = command.number(1, 1) & 7;
    const bool blankable =
        disc.profile == cdRw || disc.profile == dvdRwSequential || disc.profile == dvdRwRestricted;
    if (!blankable || type > 1)
        return { {}, incompatibleMedium };
    if (disc.profile == dvdRwRestricted)
        disc.profile = dvdRwSequential;
    // After a minimal blanking a DVD-RW takes one session at once only.
    disc.incremental = disc.profile != dvdRwSequential || type == 0;
    disc.state = State::blank;
    disc.blocks.clear();
    disc.audioTracks.clear();
    disc.text.clear();
    m_next = m_reserved = 0;
    return {};
}

// FORMAT UNIT, MMC-5 6.5: header of 4 bytes, one descriptor of 8
Drive::Answer Drive::format(const Command &command)
{
    const int type = int(command.dataNumber(8, 1)) >> 2;
    const bool known = (disc.profile == dvdPlusRw && type == 0x26) || (disc.profile == dvdRam && type <= 0x01)
        || (disc.profile == bdRe && (type == 0x00 || type == 0x30 || type == 0x31))
        || (disc.profile == dvdRwRestricted && type == 0x13);
    if (!known)
        return { {}, invalidParameter };
    disc.formatted = true;
    disc.capacity -= spares;
    return {};
}

Drive::Answer Drive::read(const Command &command)
{
    const auto address = qint32(command.number(2, 4));
    const auto count = qint32(command.opcode() == read12 ? command.number(6, 4) : command.number(7, 2));
    if (!overwritable() && disc.state == State::blank)
        return { {}, sequenceError };
    if (address + count > (overwritable() ? disc.capacity : end()))
        return { {}, outOfRange };
    QByteArray data;
    for (qint32 i = 0; i < count; ++i)
        data += disc.blocks.value(address + i, QByteArray(2048, '\0'));
    return { data, {} };
}

namespace {

/// What the kernel answers at a request that is no command.
int requestOf(unsigned long request, void *argument)
{
    switch (request) {
    case CDROM_DRIVE_STATUS:
        return current->trayOpen ? CDS_TRAY_OPEN : current->disc.profile == none ? CDS_NO_DISC : CDS_DISC_OK;
    case BLKSECTGET: // as much as a drive on SATA
        *static_cast<unsigned short *>(argument) = 2560;
        return 0;
    case SCSI_IOCTL_GET_IDLUN:
        std::memset(argument, 0, 8);
        return 0;
    case SCSI_IOCTL_GET_BUS_NUMBER:
        std::memset(argument, 0, sizeof(int));
        return 0;
    default:
        errno = ENOTTY;
        return -1;
    }
}

} // namespace

} // namespace mmc

// Stands before the one of the C library for everything in this process, libburn included.
extern "C" int ioctl(int fd, unsigned long request, ...) noexcept
{
    std::va_list arguments;
    va_start(arguments, request);
    void *argument = va_arg(arguments, void *);
    va_end(arguments);
    const std::lock_guard guard(mmc::currentMutex);
    if (!mmc::current || !mmc::current->isOpenAs(fd))
        return int(::syscall(SYS_ioctl, fd, request, argument));
    return request == SG_IO ? mmc::current->transfer(argument) : mmc::requestOf(request, argument);
}

// libburn waits for mechanics; there are none here.
extern "C" int usleep(useconds_t)
{
    return ::sched_yield();
}
