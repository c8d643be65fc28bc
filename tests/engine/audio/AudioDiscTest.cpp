// The layout of audio discs: order, lengths, cue sheets, sectors.
#include "audio/AudioDisc.h"

#include "../image/Trees.h"
#include "Waves.h"
#include "audio/CueSheet.h"
#include "audio/TrackStream.h"

using namespace Qt::StringLiterals;
using namespace engine;
using namespace engine::audio;

class AudioDiscTest : public QObject {
    Q_OBJECT

    static bool setTime(const std::string &path, long seconds, long nanoseconds = 0)
    {
        const timespec times[2] = { { seconds, nanoseconds }, { seconds, nanoseconds } };
        return utimensat(AT_FDCWD, path.c_str(), times, 0) == 0;
    }

    static bool makeWave(const std::string &path, std::size_t bytes, long seconds, long nanoseconds = 0)
    {
        return makeFile(path, wave(bytes)) && setTime(path, seconds, nanoseconds);
    }

    static QStringList namesOf(const AudioDisc &disc)
    {
        QStringList names;
        for (const AudioTrack &track : disc.tracks)
            names << QString::fromStdString(track.path.substr(track.path.rfind('/') + 1));
        return names;
    }

    static std::string samplesOf(std::size_t bytes) { return wave(bytes).substr(44); }

    /// The whole disc, read `step` bytes at a time; "failed" when it cannot be.
    static std::string bytesOf(const AudioDisc &disc, std::size_t step)
    {
        auto stream = DiscStream::open(disc);
        std::string bytes;
        std::string buffer(step, '\0');
        for (std::size_t got = step; got == step;) {
            const auto part =
                stream ? stream->read(std::as_writable_bytes(std::span(buffer))) : stream.error();
            if (!part)
                return "failed";
            got = *part;
            bytes.append(buffer, 0, got);
        }
        return bytes;
    }

private Q_SLOTS:
    void naturalOrder_data()
    {
        QTest::addColumn<QByteArray>("less");
        QTest::addColumn<QByteArray>("more");
        const auto row = [](const char *less, const char *more) {
            QTest::newRow(less) << QByteArray(less) << QByteArray(more);
        };
        row("2.wav", "10.wav");
        row("a2b3", "a2b20");
        row("a9", "a10b");
        row("a", "a1");
        row("A", "a");
        row("01", "1"); // equal by value: by bytes
        row("1", "02");
        row("a 99999999999999999999999998", "a 99999999999999999999999999");
        row("", "a");
        row("z", "\xc3\xa4");
        row("a0", "a1");
    }

    void naturalOrder()
    {
        QFETCH(QByteArray, less);
        QFETCH(QByteArray, more);
        QVERIFY(naturalLess(less.toStdString(), more.toStdString()));
        QVERIFY(!naturalLess(more.toStdString(), less.toStdString()));
        QVERIFY(!naturalLess(less.toStdString(), less.toStdString()));
    }

    void lengths_data()
    {
        QTest::addColumn<quint64>("bytes");
        QTest::addColumn<quint64>("sectors");
        QTest::newRow("one frame") << quint64(4) << quint64(300);
        QTest::newRow("four seconds") << quint64(300 * 2352) << quint64(300);
        QTest::newRow("a frame more") << quint64(300 * 2352 + 4) << quint64(301);
        QTest::newRow("whole sectors") << quint64(1000 * 2352) << quint64(1000);
        QTest::newRow("4 GiB") << quint64(4294967292) << quint64(1826092);
        QTest::newRow("more than 32 bits") << quint64(4294967296 + 5) * 2352 << quint64(4294967296 + 5);
        QTest::newRow("the largest file") << quint64(INT64_MAX) << quint64(3921501716349820);
    }

    void lengths()
    {
        QFETCH(quint64, bytes);
        QTEST(quint64(sectorsFor(bytes)), "sectors");
    }

    void cueSheets()
    {
        AudioDisc disc;
        disc.tracks = { { "a", {}, 300 }, { "b", {}, 75 * 60 + 1 }, { "c", {}, 400 } };
        QCOMPARE(cueSheet("disc.bin", disc),
            std::string("FILE \"disc.bin\" BINARY\n"
                        "  TRACK 01 AUDIO\n    INDEX 00 00:00:00\n    INDEX 01 00:02:00\n"
                        "  TRACK 02 AUDIO\n    INDEX 01 00:06:00\n"
                        "  TRACK 03 AUDIO\n    INDEX 01 01:06:01\n"));
        QVERIFY(cueSheet("a\"b\nc", disc).starts_with("FILE \"a_b_c\" BINARY\n"));
        QCOMPARE(msf(100 * 60 * 75 + 74), std::string("100:00:74"));
        disc.tracks.assign(12, { "x", {}, 300 });
        QVERIFY(cueSheet("disc.bin", disc).find("  TRACK 09 AUDIO\n    INDEX 01 00:34:00\n  TRACK 10 AUDIO\n")
            != std::string::npos);
    }

    void orderOfAFolder()
    {
        Scratch scratch;
        QVERIFY(makeWave(scratch.path("f/z last by name.wav"), 4000, 1000, 1));
        QVERIFY(makeWave(scratch.path("f/a.wav"), 4000, 1000, 2));
        QVERIFY(makeWave(scratch.path("f/track 10.wav"), 4000, 2000));
        QVERIFY(makeWave(scratch.path("f/track 9.WAV"), 4000, 2000));
        QVERIFY(makeWave(scratch.path("f/\xff.Wave"), 4000, 500));
        QVERIFY(makeWave(scratch.path("f/.hidden.wav"), 4000, 1500));
        QVERIFY(makeWave(scratch.path("f/._.wav"), 4000, 1600));
        // What some systems put beside each file on a disk that is not theirs.
        QVERIFY(makeFile(
            scratch.path("f/._a.wav"), std::string("\0\x05\x16\x07\0\2\0\0", 8) + std::string(74, '\0')));
        QVERIFY(makeFile(scratch.path("f/.DS_Store"), "view") && makeFolder(scratch.path("f/.wav")));
        // An editor's lock, which points to no file.
        QCOMPARE(symlink("person@host.1", scratch.path("f/.#list").c_str()), 0);
        QVERIFY(makeFile(scratch.path("f/cover.jpg"), "picture") && makeFolder(scratch.path("f/folder.wav")));
        const auto disc = readAudioFolder(scratch.path("f"));
        QVERIFY2(disc, disc ? "" : disc.error().message.c_str());
        QCOMPARE(namesOf(*disc).mid(1),
            (QStringList{ QStringLiteral("z last by name.wav"), QStringLiteral("a.wav"),
                QStringLiteral(".hidden.wav"), QStringLiteral("._.wav"), QStringLiteral("track 9.WAV"),
                QStringLiteral("track 10.wav") }));
        QVERIFY(disc->tracks.front().path.ends_with("/\xff.Wave"));
        QCOMPARE(disc->notes.size(), 6U + disc->tracks.size());
        QCOMPARE(disc->notes.at(2), std::string("\"._a.wav\" is left out: only WAVE files become tracks."));
        QCOMPARE(disc->notes.back(),
            std::string(
                "\"track 10.wav\" is shorter than four seconds: silence fills the track up to that."));
        QCOMPARE(disc->sectorCount(), 150U + 7 * 300);
    }

    void refusals()
    {
        Scratch scratch;
        QVERIFY(makeFolder(scratch.path("empty")));
        QVERIFY(readAudioFolder(scratch.path("empty")).error().message.find("holds no WAVE file")
            != std::string::npos);
        QVERIFY(
            readAudioFolder(scratch.path("missing")).error().message.find("missing") != std::string::npos);
        QVERIFY(makeWave(scratch.path("bad/1.wav"), 4000, 1));
        QVERIFY(makeFile(scratch.path("bad/2.wav"), "no sound"));
        QVERIFY(readAudioFolder(scratch.path("bad")).error().message.find("2.wav\" is not a WAVE file")
            != std::string::npos);
        // A hidden track that was cut short is missed as any other.
        QVERIFY(makeWave(scratch.path("cut/1.wav"), 4000, 1) && makeFile(scratch.path("cut/.2.wav"), "RIF"));
        QVERIFY(readAudioFolder(scratch.path("cut")).error().message.find(".2.wav\" is not a WAVE file")
            != std::string::npos);
        QCOMPARE(mkfifo(scratch.path("bad/0.wav").c_str(), 0600), 0);
        QVERIFY(setTime(scratch.path("bad/0.wav"), 0));
        QVERIFY(readAudioFolder(scratch.path("bad")).error().message.find("0.wav\" is not a file")
            != std::string::npos);
    }

    void ninetyNineTracks()
    {
        Scratch scratch;
        for (int i = 0; i < 99; ++i)
            QVERIFY(makeWave(scratch.path("f/" + std::to_string(i) + ".wav"), 400, 1));
        const auto disc = readAudioFolder(scratch.path("f"));
        QVERIFY(disc);
        QCOMPARE(disc->tracks.size(), 99U);
        QVERIFY(disc->tracks[98].path.ends_with("/98.wav"));
        QVERIFY(makeWave(scratch.path("f/99.wav"), 400, 1));
        QVERIFY(
            readAudioFolder(scratch.path("f")).error().message.find("100 WAVE files") != std::string::npos);
    }

    void lengthsOfADisc_data()
    {
        QTest::addColumn<QList<qint64>>("sectors");
        QTest::addColumn<QString>("error"); // after the name of the folder
        const QString last =
            u", and an audio disc counts to 99:59 minutes (449999 blocks): take some out of the folder."_s;
        QTest::newRow("all that a disc counts") << QList<qint64>{ 449999 - 150 } << QString();
        QTest::newRow("one sector more")
            << QList<qint64>{ 449999 - 150 - 300 + 1, 300 } << u"100:00 minutes (450000 blocks)"_s + last;
        QTest::newRow("a little more than 32 bits")
            << QList<qint64>{ 4294967296 + 100732 } << u"954459:35 minutes (4295068178 blocks)"_s + last;
        QTest::newRow("more than 32 bits together")
            << QList<qint64>{ 2147483648, 2147483748 } << u"954437:13 minutes (4294967546 blocks)"_s + last;
    }

    void lengthsOfADisc()
    {
        QFETCH(QList<qint64>, sectors);
        QFETCH(QString, error);
        Scratch scratch;
        for (int i = 0; i < sectors.size(); ++i) {
            // What a program leaves that writes into a pipe: the data reach to the end of the file.
            const std::string header = "RIFF" + little(0xffffffff, 4) + "WAVE" + chunk("fmt ", formatBody())
                + "data" + little(0xffffffff, 4);
            const std::string path = scratch.path("f/" + std::to_string(i) + ".wav");
            QVERIFY(makeFile(path, header));
            QCOMPARE(truncate(path.c_str(), qint64(header.size()) + sectors[i] * 2352), 0);
        }
        const auto disc = readAudioFolder(scratch.path("f"));
        const QString before =
            u"The WAVE files in \"%1\" make a disc of "_s.arg(QString::fromStdString(scratch.path("f")));
        QCOMPARE(disc ? QString() : QString::fromStdString(disc.error().message),
            error.isEmpty() ? QString() : before + error);
    }

    void wholeDisc_data()
    {
        QTest::addColumn<int>("step");
        for (const int step : { 1000, 2048, 2352, 150 * 2352, 10'000'000 })
            QTest::newRow(QByteArray::number(step).constData()) << step;
    }

    void wholeDisc()
    {
        QFETCH(int, step);
        Scratch scratch;
        const std::size_t shortTrack = 2352 * 10 + 100, longTrack = 2352 * 600 + 4;
        QVERIFY(makeWave(scratch.path("f/1.wav"), shortTrack, 1)
            && makeWave(scratch.path("f/2.wav"), longTrack, 2));
        const auto disc = readAudioFolder(scratch.path("f"));
        QVERIFY(disc);
        const std::string expected = std::string(150 * 2352, '\0') + samplesOf(shortTrack)
            + std::string(300 * 2352 - shortTrack, '\0') + samplesOf(longTrack) + std::string(2348, '\0');
        QCOMPARE(expected.size(), std::size_t(disc->sectorCount()) * 2352);
        QVERIFY(bytesOf(*disc, std::size_t(step)) == expected);
    }

    void readByAnIndependentReader()
    {
        Scratch scratch;
        QVERIFY(makeWave(scratch.path("f/1.wav"), 2352 * 400, 1)
            && makeWave(scratch.path("f/2.wav"), 2352 * 500, 2));
        const auto disc = readAudioFolder(scratch.path("f"));
        QVERIFY(disc);
        QVERIFY(makeFile(scratch.path("disc.bin"), bytesOf(*disc, 4096)));
        QVERIFY(makeFile(scratch.path("disc.cue"), cueSheet("disc.bin", *disc)));
        QByteArray output;
        QCOMPARE(run(QStringLiteral("cd-info"),
                     { QStringLiteral("--no-header"), QStringLiteral("--no-device-info"),
                         QStringLiteral("--cue-file"), QString::fromStdString(scratch.path("disc.cue")) },
                     &output),
            0);
        QVERIFY2(output.contains("CD-ROM Track List (1 - 2)"), output.constData());
        QVERIFY2(output.contains("1: 00:04:00") || output.contains("1: 00:02:00"), output.constData());
        QVERIFY2(output.count("audio") >= 2, output.constData());
    }

    void shrinkingTrackIsNamed()
    {
        Scratch scratch;
        QVERIFY(makeWave(scratch.path("f/shrinks.wav"), 2352 * 400, 1));
        const auto disc = readAudioFolder(scratch.path("f"));
        QVERIFY(disc);
        auto track = TrackStream::open(disc->tracks.front());
        QVERIFY(track);
        QCOMPARE(truncate(scratch.path("f/shrinks.wav").c_str(), 3000), 0);
        std::string sector(2352, '\0');
        const auto buffer = std::as_writable_bytes(std::span(sector));
        QCOMPARE(track->read(buffer).value(), std::size_t(2352));
        QCOMPARE(sector, samplesOf(2352));
        const auto failed = track->read(buffer);
        QVERIFY(!failed);
        QVERIFY2(failed.error().message.find("shrinks.wav\" became shorter") != std::string::npos,
            failed.error().message.c_str());
    }

    void aTrackThatIsGoneIsNamed()
    {
        AudioDisc disc;
        disc.tracks.push_back({ "/no/such/track.wav", {}, 300 });
        const auto stream = DiscStream::open(disc);
        QVERIFY(!stream);
        QVERIFY(stream.error().message.find("/no/such/track.wav") != std::string::npos);
    }
};

QTEST_GUILESS_MAIN(AudioDiscTest)
#include "AudioDiscTest.moc"
