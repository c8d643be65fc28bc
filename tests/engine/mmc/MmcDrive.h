// A drive without hardware, for tests of what libburn and the engine say to a drive. It answers the SCSI
// commands that reach it through ioctl(SG_IO) on a file, and keeps what is written. Its answers are
// constructed from the tables of MMC-5; the format capacities of the BD-RE are those of a real drive, which
// libburn's mmc.c quotes. It is strict where the standard is: an address that is not the next one, a write
// without a cue sheet or to a closed disc is refused.
#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QTemporaryDir>

#include <functional>
#include <mutex>
#include <optional>
#include <sys/stat.h>

namespace mmc {

enum class State { blank, appendable, complete };

/// Profiles of GET CONFIGURATION that the drive knows.
enum Profile {
    none = 0x00,
    cdR = 0x09,
    cdRw = 0x0a,
    dvdRom = 0x10,
    dvdR = 0x11,
    dvdRam = 0x12,
    dvdRwRestricted = 0x13,
    dvdRwSequential = 0x14,
    dvdRDualLayer = 0x15,
    dvdPlusRw = 0x1a,
    dvdPlusR = 0x1b,
    dvdPlusRDualLayer = 0x2b,
    bdR = 0x41,
    bdRe = 0x43,
};

/// What lies in the drive.
struct Disc {
    int profile = none;
    State state = State::blank;
    bool formatted = true; ///< matters to DVD+RW, DVD-RAM and BD-RE
    qint32 capacity = 1024; ///< blocks, whole clusters; small, so that a full erase is quick
    QMap<qint32, QByteArray> blocks = {}; ///< by address
    bool incremental = true; ///< takes sessions without a size told before
    bool damaged = false; ///< its last track broke off, and the drive says so
    bool firstTrackOpen =
        false; ///< appendable without a closed session: what is written is the first track's
    QList<qint32> audioTracks = {}; ///< where the tracks of an audio session begin; a data session has none
    QByteArray text = {}; ///< packs of CD-TEXT in the lead-in
};

struct Sense {
    int key = 0;
    int asc = 0;
    int ascq = 0;
    bool deferred = false; ///< the error of an earlier command (SPC-4 4.5.5)
};

/// One command as it came.
struct Command {
    QByteArray cdb;
    QByteArray data; ///< what was sent with it

    int opcode() const { return quint8(cdb.at(0)); }
    quint32 number(int at, int bytes) const; ///< big-endian, of the command
    quint32 dataNumber(int at, int bytes) const; ///< big-endian, of the data
};

enum Opcode {
    testUnitReady = 0x00,
    formatUnit = 0x04,
    inquiry = 0x12,
    startStop = 0x1b,
    preventRemoval = 0x1e,
    readFormatCapacities = 0x23,
    readCapacity = 0x25,
    read10 = 0x28,
    write10 = 0x2a,
    synchronizeCache = 0x35,
    readToc = 0x43,
    getConfiguration = 0x46,
    readDiscInformation = 0x51,
    readTrackInformation = 0x52,
    reserveTrack = 0x53,
    sendOpc = 0x54,
    modeSelect = 0x55,
    modeSense = 0x5a,
    closeTrack = 0x5b,
    readBufferCapacity = 0x5c,
    sendCueSheet = 0x5d,
    blankDisc = 0xa1,
    read12 = 0xa8,
    write12 = 0xaa,
    getPerformance = 0xac,
    setStreaming = 0xb6,
    setSpeed = 0xbb,
};

/// One at a time in a process.
class Drive {
public:
    explicit Drive(Disc disc);
    ~Drive();
    Drive(const Drive &) = delete;
    Drive &operator=(const Drive &) = delete;

    /// The path that stands for the device node.
    QByteArray device() const { return m_device; }

    /// Asked before each command; what it returns is the answer. It may change the disc.
    std::function<std::optional<Sense>(const Command &)> refuse;
    /// A hand puts another disc in. The drive forgets what was announced for the one before.
    void exchange(Disc other);
    /// The cable is out: the node is gone and every command fails with ENODEV.
    void unplug();

    Disc disc;
    QList<int> speeds; ///< what it writes with, ascending, in 1000 bytes a second
    qint32 spares = 0; ///< blocks that FORMAT UNIT takes off a BD-RE
    qint32 promised = 0; ///< blocks that the drive says are free beyond those there are
    bool caches = false; ///< what is written is on the disc only after SYNCHRONIZE CACHE
    bool trayOpen = false;
    bool trayLocked = false;
    int writeSpeed = 0; ///< the last that was asked for
    QList<Command> commands; ///< all that changed something or might have: no questions, no reads

    QList<Command> commandsOf(int opcode) const;
    /// Opcodes in the order in which they came, without immediate repetition.
    QList<int> opcodes() const;
    /// Write type and flags (bytes 2 and 3) of the mode page 05h that was in force at the first write.
    int writeType() const { return m_typeAtWrite & 0x0f; }
    bool underrunProtection() const { return (m_typeAtWrite & 0x40) != 0; }
    /// The blocks from `address` on, joined; ends at the first that was never written.
    QByteArray content(qint32 address) const;

    /// Whether `fd` is the device, opened. Called by any thread.
    bool isOpenAs(int fd) const;
    /// What ioctl(SG_IO) does. Called by any thread.
    int transfer(void *header);

private:
    struct Answer {
        QByteArray data;
        std::optional<Sense> sense;
    };
    using Handler = Answer (Drive::*)(const Command &);
    struct Row;
    static const Row rows[];

    Answer answer(const Command &command);
    Answer ready(const Command &);
    Answer nothing(const Command &);
    Answer tellInquiry(const Command &);
    Answer tellMode(const Command &);
    Answer setMode(const Command &);
    Answer tellConfiguration(const Command &);
    Answer tellDisc(const Command &);
    Answer tellTrack(const Command &);
    Answer tellToc(const Command &);
    Answer tellCapacity(const Command &);
    Answer tellFormats(const Command &);
    Answer tellBuffer(const Command &);
    Answer tellPerformance(const Command &);
    Answer moveTray(const Command &);
    Answer lockTray(const Command &);
    Answer setSpeedOf(const Command &);
    Answer reserve(const Command &);
    Answer takeCueSheet(const Command &);
    Answer write(const Command &);
    Answer writeLeadIn(const Command &, qint32 count);
    Answer flush(const Command &);
    Answer close(const Command &);
    Answer blank(const Command &);
    Answer format(const Command &);
    Answer read(const Command &);

    bool has() const { return !trayOpen && disc.profile != none; }
    bool isCd() const { return disc.profile == cdR || disc.profile == cdRw; }
    bool overwritable() const;
    qint32 end() const; ///< behind the last block that was written

    QTemporaryDir m_dir;
    QByteArray m_device;
    struct stat m_node { };
    bool m_unplugged = false;
    mutable std::mutex m_mutex;
    int m_mode = 0; ///< byte 2 of mode page 05h
    int m_typeAtWrite = -1;
    qint32 m_next = 0; ///< next writable address
    qint32 m_reserved = 0; ///< end of the session at once
    int m_blockSize = 2048;
    QMap<qint32, QByteArray> m_cache; ///< blocks that are not on the disc yet
    QByteArray m_subcode; ///< of the lead-in as it comes, six bits a byte
};

} // namespace mmc
