// What is made of a drive's answers, and the session that an audio CD is written as.
#include "drive/PhysicalMedium.h"

#include "Sources.h"
#include "audio/AudioDisc.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace engine;
using namespace engine::drive;

namespace {

QByteArray waveFile(quint32 sampleBytes)
{
    QByteArray wave;
    QDataStream out(&wave, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out.writeRawData("RIFF", 4);
    out << quint32(36 + sampleBytes);
    out.writeRawData("WAVEfmt ", 8);
    out << quint32(16) << quint16(1) << quint16(2) << quint32(44100) << quint32(176400) << quint16(4)
        << quint16(16);
    out.writeRawData("data", 4);
    out << sampleBytes;
    return wave + QByteArray(qsizetype(sampleBytes), '\x11');
}

} // namespace

class PhysicalMediumTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void volumeSizes()
    {
        std::array<std::byte, blockBytes> descriptor{};
        QCOMPARE(volumeBlocks(descriptor), std::uint64_t(0));
        std::memcpy(descriptor.data(),
            "\x01"
            "CD001\x01",
            7);
        std::memcpy(descriptor.data() + 80, "\x34\x12\x01\x00\x00\x01\x12\x34", 8);
        QCOMPARE(volumeBlocks(descriptor), std::uint64_t(0x11234));
        descriptor[0] = std::byte{ 2 }; // a supplementary descriptor is not the first one
        QCOMPARE(volumeBlocks(descriptor), std::uint64_t(0));
        QCOMPARE(volumeBlocks(std::span(descriptor).first(10)), std::uint64_t(0));
        std::memcpy(descriptor.data(), "\0BEA01\1", 7);
        QCOMPARE(volumeBlocks(descriptor), std::uint64_t(UINT64_MAX));
    }

    void formatting()
    {
        QVERIFY(needsFormat(0x43, true, BURN_FORMAT_IS_UNFORMATTED));
        QVERIFY(needsFormat(0x12, true, BURN_FORMAT_IS_UNFORMATTED));
        QVERIFY(!needsFormat(0x43, true, BURN_FORMAT_IS_FORMATTED));
        QVERIFY(!needsFormat(0x43, false, BURN_FORMAT_IS_UNFORMATTED));
        for (const int profile : { 0x09, 0x0a, 0x11, 0x13, 0x14, 0x1a, 0x1b, 0x41 })
            QVERIFY(!needsFormat(profile, true, BURN_FORMAT_IS_UNFORMATTED));
    }

    void audioTracksFollowEachOtherWithoutPauses()
    {
        QTemporaryDir dir;
        // One that fills its sectors, one that does not, one shorter than four seconds.
        const QList<quint32> sizes{ 2352 * 400, 2352 * 500 + 4, 400 };
        const QList<int> sectors{ 400, 501, 300 };
        for (qsizetype i = 0; i < sizes.size(); ++i) {
            QFile file(dir.filePath(u"%1.wav"_s.arg(i)));
            QVERIFY(file.open(QFile::WriteOnly));
            file.write(waveFile(sizes.at(i)));
            QVERIFY(
                file.setFileTime(QDateTime::fromSecsSinceEpoch(1000 + i), QFileDevice::FileModificationTime));
        }
        const auto disc = audio::readAudioFolder(dir.path().toStdString());
        QVERIFY(disc);
        const auto supply = std::make_shared<Supply>();
        const auto tracks = audioTracks(*disc, supply);
        QVERIFY(tracks);
        QCOMPARE(tracks->size(), std::size_t(3));
        for (std::size_t i = 0; i < tracks->size(); ++i) {
            const Track &track = (*tracks)[i];
            QVERIFY(track.audio);
            QCOMPARE(track.pregap, i == 0 ? 150 : 0);
            burn::burn_source *source = track.source.get();
            QCOMPARE(source->get_size(source), off_t(sectors.at(qsizetype(i))) * 2352);
            std::vector<std::byte> all(std::size_t(sectors.at(qsizetype(i)) + 1) * 2352);
            QCOMPARE(readFrom(source, all), std::ptrdiff_t(sectors.at(qsizetype(i))) * 2352);
            QCOMPARE(all.front(), std::byte{ 0x11 });
            QCOMPARE(all[sizes.at(qsizetype(i)) - 1], std::byte{ 0x11 });
            QCOMPARE(all[sizes.at(qsizetype(i))], std::byte{ 0 });
        }
        QVERIFY(!supply->failed());
    }

    void aTrackThatBecomesShorterIsNoticed()
    {
        QTemporaryDir dir;
        QFile file(dir.filePath(u"short.wav"_s));
        QVERIFY(file.open(QFile::WriteOnly));
        file.write(waveFile(2352 * 400));
        file.close();
        const auto disc = audio::readAudioFolder(dir.path().toStdString());
        QVERIFY(disc);
        const auto supply = std::make_shared<Supply>();
        const auto tracks = audioTracks(*disc, supply);
        QVERIFY(tracks);
        QVERIFY(file.resize(2352 * 10));
        std::vector<std::byte> all(2352 * 400);
        QCOMPARE(readFrom(tracks->front().source.get(), all), std::ptrdiff_t(-1));
        QVERIFY(supply->failed());
        QVERIFY(QString::fromStdString(supply->outcome().error().message).contains(u"short.wav"_s));
    }

    void aTrackThatIsGoneIsNamed()
    {
        audio::AudioDisc disc;
        disc.tracks.push_back({ "/no/such/track.wav", {}, 300 });
        const auto tracks = audioTracks(disc, std::make_shared<Supply>());
        QVERIFY(!tracks);
        QVERIFY(QString::fromStdString(tracks.error().message).contains(u"/no/such/track.wav"_s));
    }
};

QTEST_APPLESS_MAIN(PhysicalMediumTest)
#include "PhysicalMediumTest.moc"
