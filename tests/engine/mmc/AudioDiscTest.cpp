// An audio CD as it reaches the drive: the cue sheet and every sector, against a drive that keeps to MMC-5.
#include "Session.h"

#include <chrono>
#include <semaphore>

using namespace Qt::StringLiterals;
using namespace mmc;

namespace {

constexpr qint32 sectorBytes = 2352;

/// Samples of which each tells its track and its place.
QByteArray samples(int track, qsizetype bytes)
{
    QByteArray all;
    for (int i = 0; all.size() < bytes; ++i)
        all += "T" + QByteArray::number(track) + QByteArray::number(i).rightJustified(6, '.');
    return all.left(bytes);
}

QByteArray wave(const QByteArray &data)
{
    QByteArray header;
    QDataStream out(&header, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out.writeRawData("RIFF", 4);
    out << quint32(36 + data.size());
    out.writeRawData("WAVEfmt ", 8);
    out << quint32(16) << quint16(1) << quint16(2) << quint32(44100) << quint32(176400) << quint16(4)
        << quint16(16);
    out.writeRawData("data", 4);
    out << quint32(data.size());
    return header + data;
}

/// Files of these sizes, in this order.
std::string audioFolder(Session &session, const QList<qsizetype> &sizes)
{
    const QString folder = session.path(u"Audio"_s);
    QDir().mkpath(folder);
    for (int i = 0; i < sizes.size(); ++i) {
        const QString path = folder + u"/%1.wav"_s.arg(9 - i); // the names run against the order
        Session::put(path, wave(samples(i + 1, sizes.at(i))));
        QFile file(path);
        if (!file.open(QFile::ReadWrite)
            || !file.setFileTime(QDateTime::fromSecsSinceEpoch(1000 + i), QFile::FileModificationTime))
            qFatal("no time for a file");
    }
    return folder.toStdString();
}

/// One line of a cue sheet (MMC-5 6.33): CTL/ADR, track, index, form of the data, address.
QByteArray line(int control, int track, int index, int form, qint32 address)
{
    const int frames = address + 150;
    QByteArray text;
    for (const int byte : { control, track, index, form, 0, frames / 4500, frames / 75 % 60, frames % 75 })
        text += char(byte);
    return text;
}

} // namespace

class AudioDiscTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theSessionIsAnnouncedAndWrittenAtOnce()
    {
        Session session({ cdR, State::blank, true, 2048 }, { 1411, 2822, 4234 });
        // Whole sectors, one that ends within a sector, one of less than four seconds.
        const QList<qsizetype> sizes{ sectorBytes * 400, sectorBytes * 500 + 4, 400 };
        const QList<qint32> sectors{ 400, 501, 300 };
        const auto done =
            engine::drive::burnAudioFolder(session.physical, audioFolder(session, sizes), session.options);
        QCOMPARE(sentence(done), QString());

        constexpr int audio = 0x01; // ADR 1, two channels without pre-emphasis
        QByteArray sheet = line(audio, 0, 0, 0x01, -150) + line(audio, 1, 0, 0x00, -150);
        qint32 start = 0;
        for (int i = 0; i < sectors.size(); ++i) {
            sheet += line(audio, i + 1, 1, 0x00, start);
            start += sectors.at(i);
        }
        sheet += line(audio, 0xaa, 1, 0x01, start);
        const Drive &drive = session.drive;
        const auto sent = drive.commandsOf(sendCueSheet);
        QCOMPARE(sent.size(), 1);
        QCOMPARE(sent.first().data.toHex(' '), sheet.toHex(' '));

        QCOMPARE(drive.writeType(), 2); // session at once
        QVERIFY(drive.underrunProtection());
        QCOMPARE(drive.writeSpeed, 4234);
        QVERIFY(drive.commandsOf(closeTrack).isEmpty());
        QCOMPARE(drive.disc.state, State::complete);
        QVERIFY(!drive.trayLocked);

        QByteArray expected(150 * sectorBytes, '\0');
        for (int i = 0; i < sizes.size(); ++i)
            expected += samples(i + 1, sizes.at(i)).leftJustified(sectors.at(i) * sectorBytes, '\0');
        QVERIFY(drive.content(-150) == expected);
    }

    // The drive checks each address, so that this proves the largest number of tracks in one go.
    void ninetyNineTracks()
    {
        Session session({ cdR, State::blank, true, 359844 });
        QList<qsizetype> sizes(99, 4);
        const auto done =
            engine::drive::burnAudioFolder(session.physical, audioFolder(session, sizes), session.options);
        QCOMPARE(sentence(done), QString());
        QCOMPARE(session.drive.commandsOf(sendCueSheet).first().data.size(), (99 + 3) * 8);
        QCOMPARE(session.drive.disc.blocks.lastKey(), 99 * 300 - 1);
    }

    void progressRunsOverAllTracks()
    {
        Session session({ cdR, State::blank, true, 2048 });
        std::counting_semaphore<> told(0);
        int writes = 0;
        QList<double> shares;
        session.drive.refuse = [&](const Command &command) -> std::optional<Sense> {
            if (command.opcode() == write10 && ++writes % 6 == 0) {
                while (told.try_acquire()) // what was told of earlier writes
                    continue;
                (void)told.try_acquire_for(std::chrono::seconds(30));
            }
            return {};
        };
        session.options.control.progress = [&](const engine::Progress &progress, unsigned unit) {
            told.release();
            if (progress.phase != engine::Phase::writing)
                return;
            QCOMPARE(unit, unsigned(sectorBytes));
            QCOMPARE(progress.total, std::uint64_t(900));
            shares.append(double(progress.done) / double(progress.total));
        };
        const auto done = engine::drive::burnAudioFolder(session.physical,
            audioFolder(session, { sectorBytes * 300, sectorBytes * 300, sectorBytes * 300 }),
            session.options);
        QCOMPARE(sentence(done), QString());
        QVERIFY(std::ranges::is_sorted(shares));
        // Somewhere within the second track and somewhere within the third.
        for (const double from : { 1.0 / 3, 2.0 / 3 })
            QVERIFY(std::ranges::any_of(
                shares, [from](double share) { return share > from && share < from + 1.0 / 3; }));
    }

    void aDriveThatRefusesTheSessionWritesNothing()
    {
        Session session({ cdR });
        session.drive.refuse = [](const Command &command) -> std::optional<Sense> {
            if (command.opcode() == sendCueSheet)
                return Sense{ 5, 0x26, 0x00 };
            return {};
        };
        const QString said = sentence(engine::drive::burnAudioFolder(
            session.physical, audioFolder(session, { 1000 }), session.options));
        QVERIFY2(said.startsWith(u"The write to drive 1 failed ("_s), qPrintable(said));
        QVERIFY2(said.endsWith(u"The disc in drive 1 is still blank."_s), qPrintable(said));
        QVERIFY(session.drive.disc.blocks.isEmpty());
        QCOMPARE(session.drive.commandsOf(sendCueSheet).size(), 1);
        QVERIFY(!session.drive.trayLocked);
    }

    void aWrittenCdRwIsBlankedFirst()
    {
        Session session({ cdRw });
        QCOMPARE(sentence(session.burn(100)), QString());
        const auto done =
            engine::drive::burnAudioFolder(session.physical, audioFolder(session, { 1000 }), session.options);
        QCOMPARE(sentence(done), QString());
        QCOMPARE(session.drive.commandsOf(blankDisc).size(), 1);
        QCOMPARE(session.drive.content(0).left(1000), samples(1, 1000));
    }

    void tooLongIsRefused()
    {
        Session session({ cdR });
        const QString said = sentence(engine::drive::burnAudioFolder(session.physical,
            audioFolder(session, { sectorBytes * 1000, sectorBytes * 25 }), session.options));
        QVERIFY2(said.contains(u"(1300 blocks)"_s) && said.contains(u"(1024 blocks)"_s), qPrintable(said));
        QVERIFY(session.drive.commandsOf(sendCueSheet).isEmpty());
    }

    void onlyACdWillDo()
    {
        for (const int profile : { dvdPlusR, dvdRwRestricted, bdRe }) {
            Session session({ profile });
            const QString said = sentence(engine::drive::burnAudioFolder(
                session.physical, audioFolder(session, { 1000 }), session.options));
            QVERIFY2(said.startsWith(u"An audio disc needs a CD, and there is a "_s), qPrintable(said));
            QVERIFY(session.drive.commandsOf(write10).isEmpty());
        }
    }

    // libburn would fill the track with silence.
    void aFileThatBecomesShorterSpoilsTheDiscAndIsNamed()
    {
        Session session({ cdR, State::blank, true, 2048 });
        const auto folder = audioFolder(session, { sectorBytes * 600, sectorBytes * 600 });
        session.drive.refuse = [&](const Command &command) -> std::optional<Sense> {
            if (command.opcode() == sendCueSheet)
                QFile::resize(session.path(u"Audio/8.wav"_s), 5000);
            return {};
        };
        const QString said =
            sentence(engine::drive::burnAudioFolder(session.physical, folder, session.options));
        QVERIFY2(said.contains(u"8.wav"_s), qPrintable(said));
        QVERIFY2(said.endsWith(u"The disc in drive 1 is spoilt."_s), qPrintable(said));
        QVERIFY(!session.drive.trayLocked);
    }

    // A CD-RW that does not tell its size before it is erased.
    void whatTheErasedDiscCannotHoldIsNotBegun()
    {
        Session session({ cdRw, State::complete });
        session.drive.disc.blocks[0] = QByteArray(2048, 'x');
        session.drive.refuse = [](const Command &command) -> std::optional<Sense> {
            const bool atip = command.opcode() == readToc && (command.number(2, 1) & 0x0f) == 4;
            return atip ? std::optional(Sense{ 5, 0x24, 0x00 }) : std::nullopt;
        };
        const std::string folder = audioFolder(session, { sectorBytes * 600, sectorBytes * 600 });
        const QString said =
            sentence(engine::drive::burnAudioFolder(session.physical, folder, session.options));
        QVERIFY2(said.contains(u"need 00:16 minutes (1200 blocks)"_s)
                && said.contains(u"has room for 00:13 minutes (1024 blocks)"_s),
            qPrintable(said));
        QCOMPARE(session.drive.commandsOf(blankDisc).size(), 1);
        QVERIFY(session.drive.commandsOf(write10).isEmpty());
    }
};

QTEST_GUILESS_MAIN(AudioDiscTest)
#include "AudioDiscTest.moc"
