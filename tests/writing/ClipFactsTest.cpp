// What is read from the transcoder's reports; they were printed by ffmpeg 5.1.9 (`ffmpeg -hide_banner -i FILE`).
#include "writing/ClipFacts.h"

#include <QTest>

using namespace Qt::StringLiterals;
using writing::ClipFacts;

namespace {

/// A report of a file whose streams are these lines.
QByteArray report(const QByteArray &streams, const QByteArray &path = "/m/a.mp4",
    const QByteArray &length = "00:00:03.00, start: 0.000000")
{
    return "Input #0, mov,mp4,m4a,3gp,3g2,mj2, from '" + path
        + "':\n  Metadata:\n    major_brand     : isom\n  Duration: " + length + ", bitrate: 211 kb/s\n"
        + streams + "At least one output file must be specified\n";
}

constexpr const char *video =
    "  Stream #0:0[0x1](und): Video: h264 (High) (avc1 / 0x31637661), yuv420p(tv, bt709, progressive), "
    "320x180 [SAR 1:1 DAR 16:9], 133 kb/s, 23.98 fps, 23.98 tbr, 24k tbn (default)\n"
    "    Metadata:\n      handler_name    : VideoHandler\n";
constexpr const char *audio =
    "  Stream #0:1[0x2](und): Audio: aac (LC) (mp4a / 0x6134706D), 44100 Hz, mono, fltp, 69 kb/s (default)\n";

} // namespace

class ClipFactsTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void readsAPicture_data();
    void readsAPicture();
    void readsTheLength_data();
    void readsTheLength();
    void readsChapters();
    void findsNothingInOtherTexts_data();
    void findsNothingInOtherTexts();
    void isNotMisledByNamesAndTags();
};

void ClipFactsTest::readsAPicture_data()
{
    QTest::addColumn<QByteArray>("streams");
    QTest::addColumn<QSize>("picture");
    QTest::addColumn<double>("displayAspect");
    QTest::addColumn<bool>("hasSound");

    const auto turned = [](const QByteArray &degrees) {
        return video + QByteArray("    Side data:\n      displaymatrix: rotation of ") + degrees
            + " degrees\n" + audio;
    };
    const QSize small(320, 180);
    const auto row = [](const char *name, const QByteArray &streams, QSize picture, double aspect,
                         bool sound) { QTest::newRow(name) << streams << picture << aspect << sound; };
    row("picture and sound", QByteArray(video) + audio, small, 16.0 / 9, true);
    row("no sound", video, small, 16.0 / 9, false);
    row("turned to the left", turned("90.00"), small, 9.0 / 16, true);
    row("turned to the right", turned("-90.00"), small, 9.0 / 16, true);
    row("turned nearly to the right", turned("-89.40"), small, 9.0 / 16, true);
    row("turned three times", turned("270.00"), small, 9.0 / 16, true);
    row("upside down", turned("-180.00"), small, 16.0 / 9, true);
    row("leaning", turned("30.00"), small, 16.0 / 9, true);
    row("the turn is the sound's",
        QByteArray(video) + audio + "    Side data:\n      displaymatrix: rotation of 90.00 degrees\n", small,
        16.0 / 9, true);
    row("wide pixels",
        "  Stream #0:0[0x1e0]: Video: mpeg2video (Main), yuv420p(tv, top first), 720x576 [SAR 64:45 DAR "
        "16:9], 25 fps\n",
        { 720, 576 }, 16.0 / 9, false);
    row("the file's shape of pixels holds",
        "  Stream #0:0: Video: h264, yuv420p(progressive), 320x180 [SAR 1:1 DAR 16:9], SAR 3:4 DAR 4:3, "
        "23.98 fps\n",
        small, 4.0 / 3, false);
    row("an unknown shape of pixels",
        "  Stream #0:0: Video: h264, yuv420p, 640x480 [SAR 0:1 DAR 0:1], 25 fps\n", { 640, 480 }, 4.0 / 3,
        false);
    row("no shape of pixels", "  Stream #0:0: Video: flv1, yuv420p, 160x120, 25 fps\n", { 160, 120 }, 4.0 / 3,
        false);
    row("the size ends the line", "  Stream #0:0: Video: flv1, yuv420p, 160x120\n", { 160, 120 }, 4.0 / 3,
        false);
    row("the larger of two",
        "  Stream #0:0: Video: h264, yuv420p, 640x480, 25 fps\n  Stream #0:1: Video: h264, yuv420p, "
        "1920x1080, 25 fps\n",
        { 1920, 1080 }, 16.0 / 9, false);
    row("the one that is the default",
        "  Stream #0:0: Video: h264, yuv420p, 640x480, 25 fps (default)\n"
        "  Stream #0:1: Video: h264, yuv420p, 1920x1080, 25 fps\n",
        { 640, 480 }, 4.0 / 3, false);
    row("a cover beside the film",
        "  Stream #0:0: Video: mjpeg (Baseline), yuvj420p(pc), 4000x4000 [SAR 1:1 DAR 1:1], 90k tbr "
        "(attached pic)\n"
            + QByteArray(video),
        small, 16.0 / 9, false);
}

void ClipFactsTest::readsAPicture()
{
    QFETCH(QByteArray, streams);
    QFETCH(QSize, picture);
    QFETCH(double, displayAspect);
    QFETCH(bool, hasSound);
    const ClipFacts facts = writing::clipFacts(report(streams), u"/m/a.mp4"_s);
    QVERIFY(facts.hasPicture());
    QCOMPARE(facts.picture, picture);
    QCOMPARE(facts.displayAspect(), displayAspect);
    QCOMPARE(facts.hasSound, hasSound);
    QCOMPARE(facts.seconds, 3.0);
}

void ClipFactsTest::readsTheLength_data()
{
    QTest::addColumn<QByteArray>("length");
    QTest::addColumn<double>("seconds");
    QTest::newRow("a fraction") << QByteArray("00:00:02.96, start: 0.000000") << 2.96;
    QTest::newRow("hours") << QByteArray("02:03:04.50, start: -0.023000") << 7384.5;
    QTest::newRow("days") << QByteArray("100:00:00.00, start: 0.000000") << 360'000.0;
    QTest::newRow("not known") << QByteArray("N/A, start: 0.000000") << 0.0;
}

void ClipFactsTest::readsTheLength()
{
    QFETCH(QByteArray, length);
    QFETCH(double, seconds);
    QCOMPARE(writing::clipFacts(report(video, "/m/a.mp4", length), u"/m/a.mp4"_s).seconds, seconds);
}

void ClipFactsTest::readsChapters()
{
    const QByteArray chapters =
        "  Chapters:\n"
        "    Chapter #0:0: start 1.500000, end 2.500000\n"
        "      Metadata:\n        title           : Chapter #0:9: start 5.0, end 6.0\n"
        "    Chapter #0:1: start 4.500000, end 6.000000\n"
        "    Chapter #0:2: start 2.500000, end 4.500000\n";
    const ClipFacts facts = writing::clipFacts(
        report(chapters + video, "/m/a.mkv", "00:00:06.00, start: 1.500000"), u"/m/a.mkv"_s);
    QCOMPARE(facts.chapters, (QList<double>{ 0, 1, 3 }));
}

void ClipFactsTest::findsNothingInOtherTexts_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("a failure") << QByteArray("/m/a.mp4: Invalid data found when processing input\n");
    QTest::newRow("no UTF-8") << QByteArray("\xff\xfe  Stream #0:0: Video\n");
    QTest::newRow("only a cover") << report(
        "  Stream #0:0: Video: mjpeg, yuvj420p(pc), 500x500 [SAR 1:1 DAR 1:1], 90k tbr (attached pic)\n");
    QTest::newRow("a picture without a size") << report("  Stream #0:0: Video: none, none, 25 fps\n");
    QTest::newRow("a size beyond all sizes")
        << report("  Stream #0:0: Video: h264, yuv420p, 123456x2, 25 fps\n");
}

void ClipFactsTest::findsNothingInOtherTexts()
{
    QFETCH(QByteArray, text);
    const ClipFacts facts = writing::clipFacts(text, u"/m/a.mp4"_s);
    QVERIFY(!facts.hasPicture());
    QVERIFY(!facts.hasSound);
}

void ClipFactsTest::isNotMisledByNamesAndTags()
{
    const QByteArray line =
        "  Stream #0:7: Video: h264, yuv420p, 9000x10 [SAR 1:1 DAR 900:1], 25 fps (default)\n";
    const QByteArray path = "/m/two\n" + line + "  Duration: 09:00:00.00, start: 0.000000\nlines.mp4";
    const QByteArray tags =
        "    Metadata:\n      title           :   Stream #0:8: Video: h264, yuv420p, 9000x10\n"
        "                      :   Stream #0:9: Audio: aac\n";
    const ClipFacts facts = writing::clipFacts(report(video + tags, path), QString::fromUtf8(path));
    QCOMPARE(facts.picture, QSize(320, 180));
    QCOMPARE(facts.seconds, 3.0);
    QVERIFY(!facts.hasSound);
}

QTEST_APPLESS_MAIN(ClipFactsTest)
#include "ClipFactsTest.moc"
