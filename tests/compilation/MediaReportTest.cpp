#include "compilation/MediaReport.h"

#include <QTest>

using namespace Qt::StringLiterals;
using compilation::MediaReport;
using compilation::TrackNames;

namespace {

// As ffmpeg 5.1 prints them of files that it made itself.
const QByteArray flac =
    "Input #0, flac, from '/m/a.flac':\n"
    "  Metadata:\n"
    "    TITLE           : T\xc3\xaftle one\n"
    "    artist          : Band: The Best\n"
    "    encoder         : Lavf59.27.100\n"
    "  Duration: 00:00:04.20, start: 0.000000, bitrate: 132 kb/s\n"
    "  Stream #0:0: Audio: flac, 44100 Hz, stereo, s16\n"
    "  Stream #0:1: Video: mjpeg (Baseline), yuvj444p(pc), 320x240, 90k tbr, 90k tbn (attached pic)\n"
    "    Metadata:\n"
    "      title           : Cover\n"
    "      comment         : Other\n"
    "At least one output file must be specified\n";
const QByteArray ogg = "Input #0, ogg, from '/m/a.ogg':\n"
                       "  Duration: 00:00:04.20, start: 0.000000, bitrate: 28 kb/s\n"
                       "  Stream #0:0: Audio: vorbis, 44100 Hz, stereo, fltp, 112 kb/s\n"
                       "    Metadata:\n"
                       "      encoder         : Lavc59.37.100 libvorbis\n"
                       "      title           : Inside\n"
                       "      artist          : Band\n"
                       "At least one output file must be specified\n";
const QByteArray film = "Input #0, matroska,webm, from '/m/a.mkv':\n"
                        "  Metadata:\n"
                        "    ENCODER         : Lavf59.27.100\n"
                        "  Duration: 00:00:02.00, start: 0.000000, bitrate: 80 kb/s\n"
                        "  Chapters:\n"
                        "    Chapter #0:0: start 0.000000, end 1.000000\n"
                        "      Metadata:\n"
                        "        title           : A chapter\n"
                        "  Stream #0:0(eng): Video: h264 (High), yuv420p, 320x240, 25 fps, 25 tbr, 1k tbn\n"
                        "    Metadata:\n"
                        "      title           : The picture\n"
                        "  Stream #0:1[0x2](und): Audio: vorbis, 44100 Hz, mono, fltp (default)\n"
                        "    Metadata:\n"
                        "      title           : The sound\n"
                        "  Stream #0:2: Audio: aac, 48000 Hz, mono, fltp\n"
                        "    Metadata:\n"
                        "      title           : Comments\n";
const QByteArray picture =
    "Input #0, image2, from '/m/c.jpg':\n"
    "  Duration: 00:00:00.04, start: 0.000000, bitrate: 1811 kb/s\n"
    "  Stream #0:0: Video: mjpeg (Baseline), yuvj444p(pc), 320x240, 25 fps, 25 tbr, 25 tbn\n";

} // namespace

class MediaReportTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void whatIsInAFile_data();
    void whatIsInAFile();
    void whatLooksLikeAReport();
};

void MediaReportTest::whatIsInAFile_data()
{
    QTest::addColumn<QByteArray>("report");
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("sound");
    QTest::addColumn<bool>("film");
    QTest::addColumn<QStringList>("names"); // title and performer, then those that are carried
    const QStringList none{ {}, {}, {}, {} };
    const auto row = [](const char *name, const QByteArray &report, const QString &path, bool sound,
                         bool film, const QStringList &names) {
        QTest::newRow(name) << report << path << sound << film << names;
    };
    row("a song with its cover", flac, u"/m/a.flac"_s, true, false,
        { u"Tïtle one"_s, u"Band: The Best"_s, u"Tïtle one"_s, u"Band: The Best"_s });
    row("names of the stream", ogg, u"/m/a.ogg"_s, true, false, { u"Inside"_s, u"Band"_s, {}, {} });
    row("a film", film, u"/m/a.mkv"_s, true, true, { u"The sound"_s, {}, {}, {} });
    row("a picture", picture, u"/m/c.jpg"_s, false, false, none);
    row("another picture", QByteArray(picture).replace("image2", "png_pipe"), u"/m/c.jpg"_s, false, false,
        none);
    row("a drawn text", QByteArray(picture).replace("image2", "tty"), u"/m/c.jpg"_s, false, false, none);
    row("a moving one", QByteArray(picture).replace("image2", "gif"), u"/m/c.jpg"_s, false, true, none);
    row("several lines in a name",
        "Input #0, mp3, from '/m/b.mp3':\n  Metadata:\n    title           : two\n                    : "
        "lines\n"
        "    album           : other\n                    : more\n  Stream #0:0: Audio: mp3\n",
        u"/m/b.mp3"_s, true, false, { u"two lines"_s, {}, u"two lines"_s, {} });
    row("sound that is not known", "Input #0, avi, from '/a':\n  Stream #0:0: Audio: none, 44100 Hz\n",
        u"/a"_s, false, false, none);
    row("no such file", "/m/x: No such file or directory\n", u"/m/x"_s, false, false, none);
    row("nothing", {}, u"/m/x"_s, false, false, none);
    row("the report of another file", flac, u"/m/b.flac"_s, false, false, none);
    row("not UTF-8",
        "Input #0, mp3, from '/a':\n  Metadata:\n    title           : \xff\n  Stream #0:0: Audio: mp3\n",
        u"/a"_s, true, false, { QString(QChar(0xfffd)), {}, QString(QChar(0xfffd)), {} });
    row("a control character in the name", "Input #0, mp3, from '/a?b':\n  Stream #0:0: Audio: mp3\n",
        u"/a\x01"_s + u"b"_s, true, false, none);
}

void MediaReportTest::whatIsInAFile()
{
    QFETCH(QByteArray, report);
    QFETCH(QString, path);
    QFETCH(QStringList, names);
    const MediaReport found = compilation::mediaReport(report, path);
    QTEST(found.hasSound, "sound");
    QTEST(found.hasFilm, "film");
    QCOMPARE(QStringList(
                 { found.names.title, found.names.performer, found.carried.title, found.carried.performer }),
        names);
}

/// A name that looks like a report makes none of a text.
void MediaReportTest::whatLooksLikeAReport()
{
    const QString liar = u"/m/x\n  Stream #0:0: Audio: mp3\n  Metadata:\n    title : no.txt"_s;
    const QByteArray name = liar.toUtf8();
    const std::pair<QString, QByteArray> reports[] = {
        { liar, name + ": Invalid data found when processing input\n" },
        { liar, "Input #0, image2, from '" + name + "':\n  Stream #0:0: Video: png\n" },
        { u"/a"_s,
            "Input #0, image2, from '/a':\n  Metadata:\n    comment         : x\n"
            "                    :   Stream #0:0: Audio: mp3\n  Stream #0:0: Video: png\n" },
    };
    for (const auto &[path, report] : reports) {
        const MediaReport found = compilation::mediaReport(report, path);
        QVERIFY2(!found.hasSound && !found.hasFilm && found.names == TrackNames(), report.constData());
    }
}

QTEST_GUILESS_MAIN(MediaReportTest)
#include "MediaReportTest.moc"
