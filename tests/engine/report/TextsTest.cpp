// The texts of a list, a status and the progress lines, character by character.
#include "report/DriveList.h"
#include "report/ProgressText.h"
#include "report/StatusText.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace engine;
using namespace engine::report;
using namespace std::chrono_literals;

namespace {

QStringList lines(const std::string &text)
{
    return QString::fromStdString(text).split(u'\n');
}

} // namespace

class TextsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void listColumns()
    {
        const QStringList text = lines(driveListText({
            { "HL-DT-ST", "DVDRAM GH24NSD1", "LG00", "SATA", "Supported" },
            { "CORVALIS", "Virtual Recorder", "1.0", "Virtual", "Supported" },
        }));
        const QStringList expected{
            u"   Vendor   Product           Rev   Bus       SupportLevel"_s,
            u"1  HL-DT-ST DVDRAM GH24NSD1   LG00  SATA      Supported"_s,
            u"2  CORVALIS Virtual Recorder  1.0   Virtual   Supported"_s,
            QString(),
        };
        QCOMPARE(text, expected);
    }

    void everyLineReachesItsColumns()
    {
        const QStringList text = lines(driveListText({ {}, { "A", "", "", "", "" },
            { "Longer than eight", "Longer than sixteen characters", "12345", "123456789", "x" },
            { "tab\there", "\xc3\xa4\n", "", "", "" } }));
        QCOMPARE(text.size(), 6);
        for (const QString &line : text.first(5))
            QVERIFY2(line.size() >= 30, qPrintable(line));
        QCOMPARE(text.at(3), u"3  Longer t Longer than sixt  1234  12345678  x"_s);
        QCOMPARE(text.at(4).left(15), u"4  tab?here ???"_s);
    }

    void noDriveIsAHeaderAlone() { QCOMPARE(lines(driveListText({})).size(), 2); }

    void numbers()
    {
        QCOMPARE(driveNumber(0), '1');
        QCOMPARE(driveNumber(8), '9');
        QCOMPARE(driveNumber(9), 'a');
        QCOMPARE(driveNumber(34), 'z');
        for (std::size_t i = 0; i < maximumDrives; ++i)
            QCOMPARE(driveIndex(std::string(1, driveNumber(i))).value_or(99), i);
        for (const char *no : { "", "0", "A", "10", "-", " 1" })
            QVERIFY(!driveIndex(no));
        QCOMPARE(lines(driveListText(std::vector<DriveRecord>(40))).size(), 2 + int(maximumDrives));
    }

    void statusOfABlank()
    {
        Medium medium = mediumOf(MediumKind::cdR, MediumState::blank, 359844, 0);
        medium.deviceName = "/dev/sr0";
        medium.speeds = { 2822, 4234, 8467 };
        const QStringList expected{
            u"           Type: CD-R                 Name: /dev/sr0"_s,
            u"   Write Speeds: 16x, 24x, 48x"_s,
            u"     Space Free:   79:57:69         blocks:   359844 / 736.96MB / 702.82MiB"_s,
            u"     Space Used:   00:00:00         blocks:        0 /   0.00MB /   0.00MiB"_s,
            u"    Writability: appendable, blank, overwritable"_s,
            QString(),
        };
        QCOMPARE(lines(statusText(medium)), expected);
    }

    void statusOfAnEmptyDrive()
    {
        QCOMPARE(lines(statusText({})), (QStringList{ u"           Type: No Media Inserted"_s, QString() }));
    }

    void statusOfASpoiltDisc()
    {
        const QString text =
            QString::fromStdString(statusText(mediumOf(MediumKind::dvdR, MediumState::spoilt, 2298496, 17)));
        QVERIFY(text.contains(u"Writability: not writable\n"_s));
        QVERIFY(text.endsWith(u"          State: spoilt, a write did not reach its end\n"_s));
    }

    // Callers search the whole text for these words, in this order.
    void familiesAreToldApart()
    {
        for (int i = int(MediumKind::cdRom); i <= int(MediumKind::unknown); ++i) {
            for (const MediumState state :
                { MediumState::blank, MediumState::appendable, MediumState::closed, MediumState::spoilt }) {
                Medium medium = mediumOf(MediumKind(i), state, 12219392, 4711);
                medium.deviceName = "/dev/sr0";
                medium.speeds = { 1000, 4496, 72000 };
                const QString text = QString::fromStdString(statusText(medium));
                const QString found = text.contains(u"DVD"_s) ? u"DVD"_s
                    : text.contains(u"CD"_s)                  ? u"CD"_s
                    : text.contains(u"BD"_s)                  ? u"BD"_s
                                                              : QString();
                const QString expected =
                    QString::fromLatin1(factsOf(medium.kind).type).section(u'-', 0, 0).section(u'+', 0, 0);
                QCOMPARE(found, medium.kind == MediumKind::unknown ? QString() : expected);
                QVERIFY(!text.contains(u"No Media Inserted"_s));
            }
        }
    }

    void speedFactors_data()
    {
        QTest::addColumn<double>("speed");
        QTest::addColumn<int>("family");
        QTest::addColumn<QString>("factor");
        QTest::newRow("CD 1x") << 177.0 << int(Family::cd) << u"1x"_s;
        QTest::newRow("CD 48x") << 8467.0 << int(Family::cd) << u"48x"_s;
        QTest::newRow("CD 52x") << 9173.0 << int(Family::cd) << u"52x"_s;
        QTest::newRow("DVD 2.4x") << 3324.0 << int(Family::dvd) << u"2.4x"_s;
        QTest::newRow("DVD 8x") << 11080.0 << int(Family::dvd) << u"8x"_s;
        QTest::newRow("DVD 22x") << 30470.0 << int(Family::dvd) << u"22x"_s;
        QTest::newRow("BD 2x") << 8992.0 << int(Family::bluray) << u"2x"_s;
        QTest::newRow("BD 16x") << 71936.0 << int(Family::bluray) << u"16x"_s;
    }

    void speedFactors()
    {
        QFETCH(double, speed);
        QFETCH(int, family);
        QTEST(QString::fromStdString(speedFactor(speed, Family(family))), "factor");
    }

    void addresses()
    {
        QCOMPARE(QString::fromStdString(minutesSecondsFrames(0)), u"00:00:00"_s);
        QCOMPARE(QString::fromStdString(minutesSecondsFrames(4500)), u"01:00:00"_s);
        QCOMPARE(QString::fromStdString(minutesSecondsFrames(12219392)), u"2715:25:17"_s);
        QCOMPARE(QString::fromStdString(sizeColumns(12219392)), u"12219392 / 25025.31MB / 23866.00MiB"_s);
    }

    void progressLine()
    {
        Progress p{ Phase::writing, 423, 1000, 2822, Family::cd, 98 };
        QCOMPARE(QString::fromStdString(progressText(p)), u"Writing: 42.3 %, 16x, buffer 98 %"_s);
        p = { Phase::verifying, 9999, 10000, 0, Family::none, std::nullopt };
        QCOMPARE(QString::fromStdString(progressText(p)), u"Verifying: 99.9 %"_s);
        p = { Phase::closing, 0, 0, 0, Family::dvd, std::nullopt };
        QCOMPARE(QString::fromStdString(progressText(p)), u"Closing the disc"_s);
        p = { Phase::erasing, 20, 10, 0, Family::none, std::nullopt };
        QCOMPARE(QString::fromStdString(progressText(p)), u"Erasing: 100.0 %"_s);
    }

    void theSpeedIsThatOfTheDrive_data()
    {
        QTest::addColumn<int>("family");
        QTest::addColumn<quint32>("unitBytes");
        QTest::addColumn<quint64>("units"); // in a second
        QTest::addColumn<QString>("factor");
        QTest::newRow("data CD") << int(Family::cd) << 2048U << quint64(16 * 75) << u"16x"_s;
        QTest::newRow("full data CD") << int(Family::cd) << 2048U << quint64(52 * 75) << u"52x"_s;
        QTest::newRow("audio CD") << int(Family::cd) << 2352U << quint64(16 * 75) << u"16x"_s;
        QTest::newRow("DVD") << int(Family::dvd) << 2048U << quint64(8 * 1385000 / 2048) << u"8x"_s;
        QTest::newRow("BD") << int(Family::bluray) << 2048U << quint64(4 * 4496000 / 2048) << u"4x"_s;
    }

    void theSpeedIsThatOfTheDrive()
    {
        QFETCH(int, family);
        QFETCH(quint32, unitBytes);
        QFETCH(quint64, units);
        QFETCH(QString, factor);
        ProgressPacer pacer;
        Progress progress{ Phase::writing, 0, 10 * units, 0, Family(family), std::nullopt };
        const ProgressPacer::Clock::time_point start{};
        QVERIFY(pacer.next(progress, unitBytes, start));
        progress.done = units;
        QCOMPARE(QString::fromStdString(pacer.next(progress, unitBytes, start + 1s).value_or("")),
            u"Writing: 10.0 %, "_s + factor);
    }

    void progressComesTwiceASecond()
    {
        ProgressPacer pacer;
        const ProgressPacer::Clock::time_point start{};
        const auto at = [&](std::chrono::milliseconds when, Phase phase, quint64 done) {
            const auto line =
                pacer.next({ phase, done, 10000, 0, Family::cd, std::nullopt }, 2048, start + when);
            return line ? QString::fromStdString(*line) : QString();
        };
        QCOMPARE(at(0ms, Phase::writing, 0), u"Writing: 0.0 %"_s);
        QCOMPARE(at(1ms, Phase::writing, 100), QString());
        QCOMPARE(at(499ms, Phase::writing, 900), QString());
        // 2000 sectors a second of 75.
        QCOMPARE(at(500ms, Phase::writing, 1000), u"Writing: 10.0 %, 27x"_s);
        // A change of phase is told at once.
        QCOMPARE(at(501ms, Phase::verifying, 0), u"Verifying: 0.0 %"_s);
        QCOMPARE(at(502ms, Phase::verifying, 0), QString());
        QCOMPARE(at(1001ms, Phase::verifying, 0), u"Verifying: 0.0 %"_s);
    }

    void whatCountsNothingIsToldOnce()
    {
        for (const Phase phase : { Phase::closing, Phase::erasing, Phase::preparing }) {
            ProgressPacer pacer;
            const ProgressPacer::Clock::time_point start{};
            const Progress progress{ phase, 0, 0, 0, Family::dvd, std::nullopt };
            QVERIFY(pacer.next(progress, 2048, start));
            for (const auto later : { 1s, 2s, 60s })
                QVERIFY(!pacer.next(progress, 2048, start + later));
            QVERIFY(pacer.next({ Phase::writing, 1, 10, 0, Family::dvd, std::nullopt }, 2048, start + 61s));
            QVERIFY(pacer.next(progress, 2048, start + 62s));
        }
    }

    void aDiscThatTakesNothingHasNoWriteSpeeds()
    {
        const auto statusOf = [](MediumKind kind, MediumState state) {
            Medium medium = mediumOf(kind, state, 1000, state == MediumState::blank ? 0 : 500);
            medium.speeds = { 2770, 5540 };
            return QString::fromStdString(statusText(medium));
        };
        const QString speeds = u"Write Speeds:"_s;
        QVERIFY(!statusOf(MediumKind::dvdRom, MediumState::closed).contains(speeds));
        QVERIFY(!statusOf(MediumKind::cdR, MediumState::closed).contains(speeds));
        QVERIFY(!statusOf(MediumKind::dvdR, MediumState::spoilt).contains(speeds));
        QVERIFY(statusOf(MediumKind::cdR, MediumState::blank).contains(speeds));
        QVERIFY(statusOf(MediumKind::cdR, MediumState::appendable).contains(speeds));
        QVERIFY(statusOf(MediumKind::dvdRw, MediumState::closed).contains(speeds));
    }
};

QTEST_APPLESS_MAIN(TextsTest)
#include "TextsTest.moc"
