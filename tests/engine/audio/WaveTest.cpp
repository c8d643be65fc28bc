// Where samples lie in WAVE files of all sorts.
#include "audio/Wave.h"

#include "Waves.h"

#include <QtTest>

#include <random>

using namespace engine::audio;

class WaveTest : public QObject {
    Q_OBJECT

    static engine::Result<WaveData> parse(const std::string &file)
    {
        return parseWave(std::as_bytes(std::span(file)));
    }

private Q_SLOTS:
    void texts_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("artist");
        QTest::addColumn<QString>("album");
        const auto row = [](const char *name, const std::string &file, const char *title, const char *artist,
                             const char *album) {
            QTest::newRow(name) << QByteArray::fromStdString(file) << QString::fromUtf8(title)
                                << QString::fromUtf8(artist) << QString::fromUtf8(album);
        };
        using namespace std::string_literals;
        const std::string fmt = chunk("fmt ", formatBody());
        const std::string sound = chunk("data", std::string(400, 's'));
        const std::string all = "INFO" + chunk("IART", "Band\0"s) + chunk("INAM", "T\xc3\xaftle\0"s)
            + chunk("IPRD", "Al\0"s) + chunk("ISFT", "Lavf\0"s);
        row("before the sound", riff(fmt + chunk("LIST", all) + sound), "T\xc3\xaftle", "Band", "Al");
        row("behind the sound", riff(fmt + sound + chunk("LIST", all)), "T\xc3\xaftle", "Band", "Al");
        row("none", riff(fmt + sound), "", "", "");
        row("another list", riff(fmt + chunk("LIST", "adtl" + chunk("INAM", "no")) + sound), "", "", "");
        row("without NUL", riff(fmt + chunk("LIST", "INFO" + chunk("INAM", "abc")) + sound), "abc", "", "");
        row("Windows-1252", riff(fmt + chunk("LIST", "INFO" + chunk("INAM", "\x8aut")) + sound), "\xc5\xa0ut",
            "", "");
        row("cut within a character",
            riff(fmt
                + chunk(
                    "LIST", "INFO" + chunk("INAM", std::string(999, 'x') + "\xc3\xa4" + std::string(50, 'y')))
                + sound),
            std::string(999, 'x').c_str(), "", "");
        row("longer than its list",
            riff(fmt + chunk("LIST", "INFO" + "INAM"s + little(0x7fffffff, 4) + "abcd") + sound), "abcd", "",
            "");
        // The sound of a stream writer is not searched for lists.
        row("sound that looks like a list",
            "RIFF" + little(0xffffffff, 4) + "WAVE" + fmt + "data" + little(0, 4) + chunk("LIST", all), "",
            "", "");
    }

    void texts()
    {
        QFETCH(QByteArray, file);
        const WaveText text =
            waveText(engine::readAtOf(std::as_bytes(std::span(file.constData(), std::size_t(file.size())))),
                std::uint64_t(file.size()));
        QTEST(QString::fromStdString(text.title), "title");
        QTEST(QString::fromStdString(text.artist), "artist");
        QTEST(QString::fromStdString(text.album), "album");
    }

    void taken_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<int>("offset");
        QTest::addColumn<int>("size");
        const auto row = [](const char *title, const std::string &file, int offset, int size) {
            QTest::newRow(title) << QByteArray::fromStdString(file) << offset << size;
        };
        const std::string fmt = chunk("fmt ", formatBody());
        const std::string samples(400, 's');
        row("plain", riff(fmt + chunk("data", samples)), 44, 400);
        row("LIST before data",
            riff(fmt + chunk("LIST", std::string("INFOISFT") + "\x05" + "abcde") + chunk("data", samples)),
            66, 400);
        row("odd chunk", riff(fmt + chunk("note", "abc") + chunk("data", samples)), 56, 400);
        row("LIST after data", riff(fmt + chunk("data", samples) + chunk("LIST", "INFO")), 44, 400);
        row("chunk before the format",
            riff(chunk("JUNK", std::string(28, 'j')) + fmt + chunk("data", samples)), 80, 400);
        row("format of 18 bytes", riff(chunk("fmt ", formatBody() + little(0, 2)) + chunk("data", samples)),
            46, 400);
        row("extensible", riff(chunk("fmt ", extensibleBody(1)) + chunk("data", samples)), 68, 400);
        row("extensible, valid bits not told",
            riff(chunk("fmt ", extensibleBody(1, 16, 0)) + chunk("data", samples)), 68, 400);
        row("half a frame at the end", riff(fmt + chunk("data", samples + "xyz")), 44, 400);
        const std::string open = little(0xffffffff, 4);
        row("streamed, FFFFFFFF", "RIFF" + open + "WAVE" + fmt + "data" + open + samples, 44, 400);
        row("streamed, zero", "RIFF" + little(0, 4) + "WAVE" + fmt + "data" + little(0, 4) + samples, 44,
            400);
        row("streamed, RIFF FFFFFFFF and zero",
            "RIFF" + open + "WAVE" + fmt + "data" + little(0, 4) + samples, 44, 400);
        row("streamed, RIFF size of the header",
            "RIFF" + little(36, 4) + "WAVE" + fmt + "data" + little(0, 4) + samples, 44, 400);
        row("streamed, 7FFFFFFF",
            "RIFF" + little(0x80000023, 4) + "WAVE" + fmt + "data" + little(0x7fffffff, 4) + samples, 44,
            400);
        row("cut short", riff(fmt + chunk("data", samples)).substr(0, 44 + 100), 44, 100);
        row("streamed with a LIST",
            "RIFF" + open + "WAVE" + fmt
                + chunk("LIST",
                    "INFOISFT\x06"
                    "Lavf59")
                + "data" + open + samples,
            68, 400);
    }

    void taken()
    {
        QFETCH(QByteArray, file);
        const auto data = parse(file.toStdString());
        QVERIFY2(data, data ? "" : data.error().message.c_str());
        QTEST(int(data->offset), "offset");
        QTEST(int(data->size), "size");
    }

    void refused_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QByteArray>("words");
        const auto row = [](const char *title, const std::string &file, const char *words) {
            QTest::newRow(title) << QByteArray::fromStdString(file) << QByteArray(words);
        };
        const auto of = [](const WaveFormat &format) {
            return riff(chunk("fmt ", formatBody(format)) + chunk("data", std::string(400, 's')));
        };
        const std::string fmt = chunk("fmt ", formatBody()), data = chunk("data", std::string(400, 's'));
        row("empty", "", "is not a WAVE file");
        row("text", "This is no sound at all.", "is not a WAVE file");
        row("other RIFF", "RIFF" + little(4, 4) + "AVI ", "is not a WAVE file");
        row("big-endian", "RIFX" + riff(fmt + data).substr(4), "is not a WAVE file");
        row("header only", riff(""), "without sound data");
        row("no data", riff(fmt), "without sound data");
        row("no format", riff(data), "without a description");
        row("data before the format", riff(data + fmt), "without a description");
        row("short format", riff(chunk("fmt ", "abcd") + data), "without a description");
        row("mono", of({ 1, 1, 44100, 16 }), "has 1 channel;");
        row("six channels", of({ 1, 6, 44100, 16 }), "has 6 channels;");
        row("48 kHz", of({ 1, 2, 48000, 16 }), "has 48000 samples a second;");
        row("24 bit", of({ 1, 2, 44100, 24 }), "has 24-bit samples;");
        row("8 bit", of({ 1, 2, 44100, 8 }), "has 8-bit samples;");
        row("float", of({ 3, 2, 44100, 32 }), "compressed or floating-point");
        row("MP3 in RIFF", of({ 0x55, 2, 44100, 0 }), "compressed or floating-point");
        row("extensible float", riff(chunk("fmt ", extensibleBody(3)) + data),
            "compressed or floating-point");
        row("extensible 12 of 16 bits", riff(chunk("fmt ", extensibleBody(1, 16, 12)) + data),
            "has 12-bit samples;");
        row("extensible, cut", riff(chunk("fmt ", extensibleBody(1).substr(0, 30)) + data),
            "compressed or floating-point");
        row("no sample", riff(fmt + chunk("data", "")), "holds no sound");
        row("no sample, LIST after", riff(fmt + chunk("data", "") + chunk("LIST", "INFO")), "holds no sound");
        row("less than a frame", riff(fmt + chunk("data", "abc")), "holds no sound");
        row("chunk beyond the end", riff(fmt + "note" + little(0xfffffff0, 4) + "abc"), "without sound data");
    }

    void refused()
    {
        QFETCH(QByteArray, file);
        QFETCH(QByteArray, words);
        const auto data = parse(file.toStdString());
        QVERIFY(!data);
        QVERIFY2(data.error().message.find(words.toStdString()) != std::string::npos,
            data.error().message.c_str());
    }

    void anyBytesGiveDataInsideTheFile()
    {
        std::mt19937 random(20260101);
        const std::string whole = riff(chunk("LIST", "INFOabc") + chunk("fmt ", extensibleBody(1))
            + chunk("data", std::string(64, 's')));
        for (int round = 0; round < 20000; ++round) {
            std::string file = whole.substr(0, random() % (whole.size() + 1));
            for (unsigned changes = random() % 4; changes > 0 && !file.empty(); --changes)
                file[random() % file.size()] = char(random());
            if (const auto data = parse(file)) {
                QVERIFY(data->size > 0 && data->size % 4 == 0);
                QVERIFY(data->offset + data->size <= file.size());
            }
        }
    }

    void endlessChunksEnd()
    {
        std::string file = riff("");
        for (int i = 0; i < 200000; ++i)
            file += "JUNK" + std::string(4, '\0');
        QVERIFY(!parse(file));
    }
};

QTEST_GUILESS_MAIN(WaveTest)
#include "WaveTest.moc"
