// An audio CD as it reaches the drive: the cue sheet and every sector, against a drive that keeps to MMC-5.
#include "Session.h"
#include "report/TracksText.h"

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

QByteArray chunk(const char *id, const QByteArray &content)
{
    QByteArray chunk(id);
    for (int byte = 0; byte < 4; ++byte)
        chunk += char(content.size() >> (8 * byte));
    return chunk + content + QByteArray(content.size() % 2, '\0');
}

/// Sound, and behind it a list of what it is called, if it is.
QByteArray wave(const QByteArray &data, const QByteArray &title = {}, const QByteArray &artist = {})
{
    QByteArray list;
    if (!title.isEmpty())
        list = chunk("LIST",
            "INFO" + chunk("INAM", title) + chunk("IART", artist) + chunk("IPRD", "The \xc3\x84lbum"));
    QByteArray header;
    QDataStream out(&header, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out.writeRawData("RIFF", 4);
    out << quint32(36 + data.size() + list.size());
    out.writeRawData("WAVEfmt ", 8);
    out << quint32(16) << quint16(1) << quint16(2) << quint32(44100) << quint32(176400) << quint16(4)
        << quint16(16);
    out.writeRawData("data", 4);
    out << quint32(data.size());
    return header + data + list;
}

/// Files of these sizes, in this order.
std::string audioFolder(Session &session, const QList<qsizetype> &sizes, const QByteArrayList &titles = {})
{
    const QString folder = session.path(u"Audio"_s);
    QDir().mkpath(folder);
    for (int i = 0; i < sizes.size(); ++i) {
        const QString path = folder + u"/%1.wav"_s.arg(9 - i); // the names run against the order
        Session::put(path, wave(samples(i + 1, sizes.at(i)), titles.value(i), "Band"));
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

    void theNamesGoIntoTheLeadIn()
    {
        Session session({ cdR, State::blank, true, 2048 });
        const QByteArrayList titles{ "First", "Zwei\xc3\xb6t \xe2\x80\x93 of several", "3" };
        const auto done = engine::drive::burnAudioFolder(session.physical,
            audioFolder(session, { sectorBytes * 400, sectorBytes * 300, 400 }, titles), session.options);
        QCOMPARE(sentence(done), QString());
        const Drive &drive = session.drive;
        QCOMPARE(drive.commandsOf(sendCueSheet).size(), 1);
        QCOMPARE(drive.commandsOf(sendCueSheet).first().data.left(8).toHex(' '),
            line(0x01, 0, 0, 0x41, -150).toHex(' '));
        // Titles and performers with their places, then the sizes; worked out by hand.
        const QByteArrayList payloads{ QByteArray::fromHex("80000000") + "The \xc4lbum\0Fi"_ba,
            QByteArray::fromHex("80010102") + "rst\0Zwei\xf6t -"_ba,
            QByteArray::fromHex("80020208") + " of several\0"_ba,
            QByteArray::fromHex("80030300") + "3\0\0\0\0\0\0\0\0\0\0\0"_ba,
            QByteArray::fromHex("81000400") + "Band\0Band\0Ba"_ba,
            QByteArray::fromHex("81020502") + "nd\0Band\0\0\0\0\0"_ba,
            QByteArray::fromHex("8f000600 000103000402000000000000"),
            QByteArray::fromHex("8f010700 000000000000000308000000"),
            QByteArray::fromHex("8f020800 000000000900000000000000") };
        QCOMPARE(drive.disc.text.size(), payloads.size() * 18);
        for (int i = 0; i < payloads.size(); ++i)
            QCOMPARE(drive.disc.text.mid(i * 18, 16).toHex(' '), payloads.at(i).toHex(' '));
        QCOMPARE(drive.disc.state, State::complete);
        QCOMPARE(drive.content(0).left(400), samples(1, 400));

        const auto tracks = engine::drive::tracksOn(session.physical);
        QCOMPARE(sentence(tracks), QString());
        QCOMPARE(QString::fromStdString(engine::report::tracksText(*tracks)),
            u"Album: The Älbum\nAlbum performer: Band\n"
            "Track  Kind   Start     Length    Title                Performer\n"
            "    1  audio  00:02:00  00:05:25  First                Band\n"
            "    2  audio  00:07:25  00:04:00  Zweiöt - of several  Band\n"
            "    3  audio  00:11:25  00:04:00  3                    Band\n"_s);
    }

    void ninetyNineNamesFillTheLeadIn()
    {
        Session session({ cdR, State::blank, true, 359844 });
        QByteArrayList titles;
        for (int i = 0; i < 99; ++i)
            titles.append("A title that is too long for so many, number " + QByteArray::number(i));
        const auto done = engine::drive::burnAudioFolder(
            session.physical, audioFolder(session, QList<qsizetype>(99, 4), titles), session.options);
        QCOMPARE(sentence(done), QString());
        QVERIFY(session.drive.disc.text.size() / 18 > 250 && session.drive.disc.text.size() / 18 <= 256);
        QVERIFY(!session.lines.filter(u"These names are cut, as CD-TEXT has no room"_s).isEmpty());
        const auto tracks = engine::drive::tracksOn(session.physical);
        QCOMPARE(tracks->tracks.size(), std::size_t(99));
        QCOMPARE(tracks->tracks[98].texts.title, tracks->tracks[97].texts.title);
        QVERIFY(tracks->tracks[98].texts.title.starts_with("A title that is too"));
        QCOMPARE(tracks->tracks[98].texts.performer, std::string("Band"));
    }

    void aDriveThatDoesNotWriteNamesGetsTheDiscWithout()
    {
        Session session({ cdR, State::blank, true, 2048 });
        session.drive.refuse = [](const Command &command) -> std::optional<Sense> {
            const bool named = command.opcode() == sendCueSheet && (command.data.at(3) & 0x40) != 0;
            return named ? std::optional(Sense{ 5, 0x26, 0x00 }) : std::nullopt;
        };
        const auto done = engine::drive::burnAudioFolder(session.physical,
            audioFolder(session, { sectorBytes * 400, 400 }, { "One", "Two" }), session.options);
        QCOMPARE(sentence(done), QString());
        QCOMPARE(session.drive.commandsOf(sendCueSheet).size(), 2);
        QVERIFY(session.drive.disc.text.isEmpty());
        QCOMPARE(session.drive.disc.state, State::complete);
        QCOMPARE(
            session.lines.filter(u"The titles are not on the disc: drive 1 does not write CD-TEXT."_s).size(),
            1);
        const auto tracks = engine::drive::tracksOn(session.physical);
        QCOMPARE(tracks->tracks.size(), std::size_t(2));
        QCOMPARE(tracks->tracks[1].texts, engine::Texts());
    }

    void tracksOfOtherDiscs()
    {
        Session blank({ cdR });
        QCOMPARE(sentence(engine::drive::tracksOn(blank.physical)),
            u"The disc in drive 1 is blank: it has no tracks."_s);
        Session empty({ none });
        const auto nothing = engine::drive::tracksOn(empty.physical);
        QVERIFY(!nothing);
        QCOMPARE(int(nothing.error().exit), 3);
        for (const int profile : { cdR, dvdR, dvdPlusR, bdR, dvdPlusRw }) {
            Session data({ profile });
            QCOMPARE(sentence(data.burn(100)), QString());
            const auto tracks = engine::drive::tracksOn(data.physical);
            QVERIFY2(tracks, qPrintable(QString::number(profile, 16) + u' ' + sentence(tracks)));
            QCOMPARE(tracks->tracks.size(), std::size_t(1));
            QVERIFY(!tracks->tracks[0].audio);
            QCOMPARE(tracks->tracks[0].start, std::uint64_t(profile == cdR ? 150 : 0));
            QVERIFY2(tracks->tracks[0].sectors >= 100,
                QByteArray::number(qulonglong(tracks->tracks[0].sectors)).constData());
        }
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
