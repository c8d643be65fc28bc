#include "compilation/Capacity.h"

#include <QTest>

#include <limits>

using compilation::Page;

class CapacityTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
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

QTEST_GUILESS_MAIN(CapacityTest)
#include "CapacityTest.moc"
