#include "compilation/Capacity.h"

#include "compilation/GaugeText.h"

#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;
using compilation::Page;

class CapacityTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void tellsAmounts_data();
    void tellsAmounts();
    void amountsAreToldApart();
    void knowsEachKindOfDisc_data();
    void knowsEachKindOfDisc();
    void computesThePercentage_data();
    void computesThePercentage();
    void dividesTheGauge_data();
    void dividesTheGauge();
};

void CapacityTest::knowsEachKindOfDisc_data()
{
    QTest::addColumn<Page>("page");
    QTest::addColumn<qint64>("kind");
    QTest::addColumn<qint32>("units");

    QTest::newRow("Audio CD, 74 minutes") << Page::Audio << qint64(0) << 4440;
    QTest::newRow("MP3 CD, 9 hours 30 minutes") << Page::Audio << qint64(1) << 34200;
    QTest::newRow("MP3 DVD, 38 hours") << Page::Audio << qint64(2) << 136800;
    QTest::newRow("Video DVD, 2 hours 30 minutes") << Page::Video << qint64(0) << 9000;
    QTest::newRow("Video Blu-ray") << Page::Video << qint64(1) << 84230;
    QTest::newRow("Data CD") << Page::Data << qint64(0) << 683593;
    QTest::newRow("Data DVD") << Page::Data << qint64(1) << 4928307;
    QTest::newRow("Data Blu-ray, 25 GiB") << Page::Data << qint64(2) << 25 * 1024 * 1024;
    QTest::newRow("no such audio disc") << Page::Audio << qint64(3) << 0;
    QTest::newRow("no such video disc") << Page::Video << qint64(2) << 0;
    QTest::newRow("no such data disc") << Page::Data << qint64(3) << 0;
    QTest::newRow("a kind below the first") << Page::Data << qint64(-1) << 0;
    QTest::newRow("a kind far out") << Page::Audio << std::numeric_limits<qint64>::max() << 0;
    QTest::newRow("no such page") << Page(4) << qint64(0) << 0;
    QTest::newRow("no page") << Page(0) << qint64(0) << 0;
}

void CapacityTest::knowsEachKindOfDisc()
{
    QFETCH(Page, page);
    QFETCH(qint64, kind);
    QTEST(compilation::capacity(page, kind), "units");
}

void CapacityTest::computesThePercentage_data()
{
    QTest::addColumn<quint64>("total");
    QTest::addColumn<qint32>("capacity");
    QTest::addColumn<qint64>("percent");

    const auto row = [](const char *name, quint64 total, qint32 capacity, qint64 percent) {
        QTest::newRow(name) << total << capacity << percent;
    };
    row("an empty list", 0, 4440, 0);
    row("one second of an Audio CD", 1, 4440, 0);
    row("one second short of an Audio CD", 4439, 4440, 99);
    row("a full Audio CD", 4440, 4440, 100);
    row("the last second of 100 per cent", 4484, 4440, 100);
    row("the first second of 101 per cent", 4485, 4440, 101);
    row("not limited to 100", 11100, 4440, 250);
    row("a full Data Blu-ray", 26214400, 26214400, 100);
    row("one unit short of a Data Blu-ray", 26214399, 26214400, 99);
    row("a terabyte on a Data CD", Q_UINT64_C(1) << 30, 683593, 157073);
    row("no such disc", 4440, 0, 0);
    row("a capacity below none", 4440, -1, 0);
}

void CapacityTest::computesThePercentage()
{
    QFETCH(quint64, total);
    QFETCH(qint32, capacity);
    QTEST(compilation::percentage(total, capacity), "percent");
}

void CapacityTest::dividesTheGauge_data()
{
    QTest::addColumn<qint64>("percent");
    QTest::addColumn<double>("width");
    QTest::addColumn<qint32>("bar");
    QTest::addColumn<qint32>("red");

    const auto row = [](const char *name, qint64 percent, double width, qint32 bar, qint32 red) {
        QTest::newRow(name) << percent << width << bar << red;
    };
    row("empty", 0, 200, 0, 0);
    row("a third of 200 points", 33, 200, 66, 0);
    row("a third of 199 points, cut off", 33, 199, 65, 0);
    row("89 per cent is not yet red", 89, 200, 178, 0);
    row("90 per cent has a red part without width", 90, 200, 180, 0);
    row("95 per cent", 95, 200, 180, 10);
    row("95 per cent of 199 points, both cut off", 95, 199, 179, 9);
    row("100 per cent", 100, 200, 180, 20);
    row("250 per cent reaches past the edge", 250, 200, 180, 320);
    row("a gauge without width", 95, 0, 0, 0);
    row("a gauge of a fraction", 33, 100.5, 33, 0);
    row("a percentage that no whole number holds", std::numeric_limits<qint64>::max(), 200, 180,
        1'000'000'000);
    row("less than nothing", -5, 200, 0, 0);
}

void CapacityTest::dividesTheGauge()
{
    QFETCH(qint64, percent);
    QFETCH(double, width);
    const compilation::GaugeBars bars = compilation::gaugeBars(percent, width);
    QTEST(bars.bar, "bar");
    QTEST(bars.red, "red");
}

void CapacityTest::tellsAmounts_data()
{
    QTest::addColumn<compilation::Page>("page");
    QTest::addColumn<qint64>("total");
    QTest::addColumn<qint32>("capacity");
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("text");
    using compilation::Page;
    const auto row = [](Page page, qint64 total, qint32 capacity, const char *locale, const char *text) {
        QTest::addRow("%s", text) << page << total << capacity << QString::fromLatin1(locale)
                                  << u"Space occupied: "_s + QString::fromUtf8(text);
    };
    row(Page::Audio, 0, 4440, "C", "00:00 of 1:14:00 (0 %)");
    row(Page::Audio, 3996, 4440, "C", "1:06:36 of 1:14:00 (90 %)");
    row(Page::Audio, 3997, 4440, "C", "1:06:37 of 1:14:00 (90 %), nearly full");
    row(Page::Audio, 4440, 4440, "C", "1:14:00 of 1:14:00 (100 %), nearly full");
    row(Page::Audio, 4441, 4440, "C", "1:14:01 of 1:14:00 (100 %), too long by 00:01");
    row(Page::Video, 18000, 9000, "C", "5:00:00 of 2:30:00 (200 %), too long by 2:30:00");
    row(Page::Audio, 4500, 4440, "ar_EG", "١:١٥:٠٠ of ١:١٤:٠٠ (١٠١ %), too long by ٠١:٠٠");
    row(Page::Data, 0, 683593, "C", "0.00 bytes of 667.57 MB (0 %)");
    row(Page::Data, 300, 683593, "C", "300.00 KB of 667.57 MB (0 %)");
    row(Page::Data, 19046, 683593, "de_DE", "18,60 MB of 667,57 MB (2 %)");
    row(Page::Data, 683592, 683593, "C", "683592.00 KB of 683593.00 KB (99 %), nearly full");
    row(Page::Data, 683593, 683593, "C", "667.57 MB of 667.57 MB (100 %), nearly full");
    row(Page::Data, 683594, 683593, "C", "683594.00 KB of 683593.00 KB (100 %), too large by 1024.00 bytes");
    row(Page::Data, 4928000, 4928307, "C", "4812.50 MB of 4812.80 MB (99 %), nearly full");
    row(Page::Data, 52428800, 26214400, "C", "50.00 GB of 25.00 GB (200 %), too large by 25.00 GB");
    row(Page::Data, 68359300, 683593, "de_DE", "65,19 GB of 667,57 MB (10.000 %), too large by 64,54 GB");
}

void CapacityTest::tellsAmounts()
{
    QFETCH(compilation::Page, page);
    QFETCH(qint64, total);
    QFETCH(qint32, capacity);
    QFETCH(QString, locale);
    QTEST(compilation::gaugeText(page, total, capacity, QLocale(locale)), "text");
}

void CapacityTest::amountsAreToldApart()
{
    using namespace compilation;
    for (const qint32 capacity :
        { constDataCDSpaceInKBytes, constDataDVDSpaceInKBytes, constDataBRSpaceInKBytes }) {
        for (qint64 away = 1; away < capacity; away = away * 3 + 1) {
            for (const qint64 total : { capacity - away, capacity + away }) {
                const QString text = gaugeText(Page::Data, total, capacity, QLocale::c());
                const QString one = text.section(u": "_s, 1).section(u" of "_s, 0, 0);
                QVERIFY2(one != text.section(u" of "_s, 1).section(u" ("_s, 0, 0), qPrintable(text));
            }
        }
    }
}

QTEST_GUILESS_MAIN(CapacityTest)
#include "CapacityTest.moc"
