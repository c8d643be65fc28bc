#include "runner/ProgressParser.h"

#include <QTest>

#include <cmath>

using namespace Qt::StringLiterals;

class ProgressParserTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void readsTimes_data();
    void readsTimes();
    void findsTheNewestProgress_data();
    void findsTheNewestProgress();
    void computesPerCent_data();
    void computesPerCent();
    void hasNoPerCentOfNothing();
};

void ProgressParserTest::readsTimes_data()
{
    QTest::addColumn<QString>("time");
    QTest::addColumn<quint64>("seconds");

    const auto row = [](const char *name, const QString &time, quint64 seconds) {
        QTest::newRow(name) << time << seconds;
    };
    row("hours, minutes and seconds", u"01:02:03"_s, 3723);
    row("nothing yet", u"00:00:00"_s, 0);
    row("the longest", u"99:99:99"_s, 99 * 3600 + 99 * 60 + 99);
    row("a fraction is not looked at", u"00:01:02.99"_s, 62);
    row("the separators are not looked at", u"01x02 03"_s, 3723);
    row("not known", u"N/A bitr"_s, 0);
    row("a pair of letters counts nothing", u"xx:02:yy"_s, 120);
    row("a blank before a digit", u" 1: 2: 3"_s, 3723);
    row("a digit before a letter", u"1h:2m:3s"_s, 3723);
    row("before the start", u"-00:00:0"_s, 0);
    row("no text", {}, 0);
    row("too short", u"01:0"_s, 3600);
    row("ends before the seconds", u"01:02:"_s, 3720);
    row("digits of another script are none", u"٠١:٠٢:٠٣"_s, 0);
}

void ProgressParserTest::readsTimes()
{
    QFETCH(QString, time);
    QTEST(runner::Return_Seconds_From_VOB_Duration_Str(time), "seconds");
}

void ProgressParserTest::findsTheNewestProgress_data()
{
    QTest::addColumn<QString>("piece");
    QTest::addColumn<std::optional<quint64>>("seconds");

    const auto row = [](const char *name, const QString &piece, std::optional<quint64> seconds) {
        QTest::newRow(name) << piece << seconds;
    };
    const QString line = u"size=     256kB time=00:00:07.20 bitrate= 192.0kbits/s speed=42.0x    \r"_s;
    row("nothing", {}, {});
    row("no time", u"Stream #0:0: Audio: mp3, 44100 Hz, stereo\n"_s, {});
    row("one line", line, 7);
    row("two lines", line + u"size= 512kB time=00:01:14.90 bitrate= 192.0kbits/s\r"_s, 74);
    row("three lines, one after the other", u"time=00:00:01time=00:00:02time=00:00:03"_s, 3);
    row("the last one is the newest, not the latest", u"time=00:00:09 time=00:00:02"_s, 2);
    row("eight characters and no more", u"time=00:00:05"_s, 5);
    row("cut in its time", u"frame= 10 time=00:0"_s, {});
    row("cut one character before its end", u"time=00:00:0"_s, {});
    row("cut right after the word", u"time="_s, {});
    row("cut in the word", u"size= 1kB tim"_s, {});
    row("a cut one after a whole one", line + u"time=00:0"_s, 7);
    row("a cut one after two whole ones", line + u"time=00:00:08.00 time=00:00:0"_s, 8);
    row("the rest of a cut one", u"0:07.20 bitrate= 192.0kbits/s\r"_s, {});
    row("a rest, then a whole one", u"0:07.20 bitrate=1\rtime=00:00:08.10 b"_s, 8);
    row("the first one in another case is not seen", u"TIME=00:00:05"_s, {});
    row("later ones in any case are", u"time=00:00:05 Time=00:00:06 TIME=00:00:07"_s, 7);
    row("capitals before the first one", u"TIME=00:00:05 time=00:00:03"_s, 3);
    row("a later word within the first one's time is not seen", u"time=00time=00:00:09"_s, 0);
    row("a later word right after the first one's time", u"time=00:00:01time=00:00:09"_s, 9);
    row("as part of another word", u"elapsedtime=00:00:05"_s, 5);
    row("not known", u"size=N/A time=N/A bitrate=N/A speed=N/A\r"_s, 0);
    row("a number of seconds gives what its places give", u"time=12.345678 b"_s, 12 * 3600 + 34 * 60 + 67);
    row("an hour and more", u"time=12:34:56.78"_s, 45296);
    row("letters that are no letters", u"\ufffd\ufffd time=00:00:04.00"_s, 4);
}

void ProgressParserTest::findsTheNewestProgress()
{
    QFETCH(QString, piece);
    QFETCH(std::optional<quint64>, seconds);
    QCOMPARE(runner::newestProgress(piece), seconds);
}

void ProgressParserTest::computesPerCent_data()
{
    QTest::addColumn<quint64>("seconds");
    QTest::addColumn<quint64>("duration");
    QTest::addColumn<float>("percent");

    QTest::newRow("half of 14 seconds") << quint64(7) << quint64(14) << 50.0F;
    QTest::newRow("the start") << quint64(0) << quint64(14) << 0.0F;
    QTest::newRow("the end") << quint64(14) << quint64(14) << 100.0F;
    QTest::newRow("past the end") << quint64(21) << quint64(14) << 150.0F;
    QTest::newRow("a third, in single precision") << quint64(1) << quint64(3) << 100.0F / 3.0F;
    QTest::newRow("one second of ten hours") << quint64(1) << quint64(36000) << 100.0F / 36000.0F;
}

void ProgressParserTest::computesPerCent()
{
    QFETCH(quint64, seconds);
    QFETCH(quint64, duration);
    QTEST(runner::progressPercent(seconds, duration), "percent");
}

void ProgressParserTest::hasNoPerCentOfNothing()
{
    QVERIFY(std::isinf(runner::progressPercent(7, 0)));
    QVERIFY(std::isnan(runner::progressPercent(0, 0)));
}

QTEST_GUILESS_MAIN(ProgressParserTest)
#include "ProgressParserTest.moc"
