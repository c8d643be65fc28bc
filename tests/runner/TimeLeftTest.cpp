#include "runner/TimeLeft.h"

#include <QTest>

#include <cmath>
#include <functional>

using namespace Qt::StringLiterals;
using runner::TimeLeft;

namespace {

/// How far a piece of work has come, in per cent, when the share `t` (0 to 1) of its time has passed.
using Course = std::function<double(double t)>;

double constantly(double t)
{
    return 100 * t;
}

/// From full speed to half of it, as a drive does that turns evenly and writes from the outer edge inwards.
double slowing(double t)
{
    return 100 * (t - t * t / 4) / 0.75;
}

/// From half the speed to full speed, as most drives write.
double quickening(double t)
{
    return 100 * (t + t * t) / 2;
}

/// Two phases of half the bar each, of which the first takes `share` of the time.
Course inPhases(double share)
{
    return [share](double t) { return t < share ? 50 * t / share : 50 + 50 * (t - share) / (1 - share); };
}

/// The same with a drive that delivers in bursts: up to 2 % ahead or behind.
double inBursts(double t)
{
    return qBound(0.0, 100 * t + 2 * std::sin(t * 90), 100.0);
}

/// Nothing but the drive's preparation for a tenth of the time.
double late(double t)
{
    return t < 0.1 ? 0 : 100 * (t - 0.1) / 0.9;
}

} // namespace

Q_DECLARE_METATYPE(Course)

class TimeLeftTest : public QObject {
    Q_OBJECT

    /// A drive that will be faster later on cannot be known at half time.
    static void coursesToFollow()
    {
        courses();
        for (const int takes : { 60, 600, 7200 }) {
            QTest::addRow("quickening, %d seconds", takes) << Course(quickening) << takes;
            QTest::addRow("a short second phase, %d seconds", takes) << inPhases(0.8) << takes;
        }
    }

    static void courses()
    {
        QTest::addColumn<Course>("course");
        QTest::addColumn<int>("takes"); // seconds
        const std::pair<const char *, Course> rows[] = {
            { "constant", constantly },
            { "slowing", slowing },
            { "two phases alike", inPhases(0.5) },
            { "a long second phase", inPhases(0.25) },
            { "a longer second phase", inPhases(0.4) },
            { "in bursts", inBursts },
            { "late", late },
        };
        for (const auto &[name, course] : rows) {
            for (const int takes : { 60, 600, 7200 })
                QTest::addRow("%s, %d seconds", name, takes) << Course(course) << takes;
        }
    }

private Q_SLOTS:
    void isAbsentAtFirst();
    void isAbsentWithoutPercent();
    void isRightAtHalfTime_data() { courses(); }
    void isRightAtHalfTime();
    void doesNotJump_data() { coursesToFollow(); }
    void doesNotJump();
    void growsWhileNothingMoves();
    void beginsAnewAfterReset();
    void text_data();
    void text();
};

void TimeLeftTest::isAbsentAtFirst()
{
    TimeLeft left;
    QVERIFY(!left.at(0, 1000));
    QVERIFY(!left.at(50, 1100)); // a moment says nothing, however much was done in it
    QVERIFY(!left.at(60, 3900));
    TimeLeft slow;
    QVERIFY(!slow.at(0, 0));
    QVERIFY(!slow.at(0.9, 600'000)); // nor does a long time in which next to nothing was done
    QVERIFY(slow.at(1.1, 700'000));
}

void TimeLeftTest::isAbsentWithoutPercent()
{
    TimeLeft left;
    QVERIFY(!left.at(-1, 0));
    QVERIFY(!left.at(-1, 60'000));
    QVERIFY(!left.at(40, 61'000)); // what was done while nobody could know how much is no measure
}

void TimeLeftTest::isRightAtHalfTime()
{
    QFETCH(Course, course);
    QFETCH(int, takes);
    TimeLeft left;
    std::optional<int> told;
    for (int ms = 0; ms <= takes * 500; ms += 500)
        told = left.at(course(ms / 1000.0 / takes), ms);
    QVERIFY(told);
    const double off = std::abs(*told - takes / 2.0) / (takes / 2.0);
    QVERIFY2(off <= 0.25, qPrintable(u"%1 seconds told of %2"_s.arg(*told).arg(takes / 2)));
}

void TimeLeftTest::doesNotJump()
{
    QFETCH(Course, course);
    QFETCH(int, takes);
    TimeLeft left;
    std::optional<int> before;
    for (int ms = 0; ms < takes * 1000; ms += 500) {
        const std::optional<int> told = left.at(course(ms / 1000.0 / takes), ms);
        QVERIFY2(!before || told, "it was told, and then no more");
        if (before && told) {
            // A tenth of it, or what a person does not notice.
            const double most = qMax(3.0, *before * 0.1);
            QVERIFY2(std::abs(*told - *before) <= most,
                qPrintable(u"from %1 to %2 after %3 s"_s.arg(*before).arg(*told).arg(ms / 1000)));
        }
        before = told;
    }
}

void TimeLeftTest::growsWhileNothingMoves()
{
    TimeLeft left;
    for (int ms = 0; ms <= 30'000; ms += 500)
        left.at(ms / 1000.0, ms); // 100 seconds in all
    const int told = *left.at(30, 30'000);
    const int later = *left.at(30, 31'000);
    QVERIFY2(std::abs(later - told) <= 3, "one second in which nothing moves says little");
    int grown = later;
    for (int ms = 31'500; ms <= 90'000; ms += 500)
        grown = *left.at(30, ms);
    QVERIFY2(grown > told, "what stands still does not come nearer to its end");
}

void TimeLeftTest::beginsAnewAfterReset()
{
    TimeLeft left;
    for (int ms = 0; ms <= 30'000; ms += 500)
        left.at(ms / 1000.0, ms);
    QVERIFY(left.at(30, 30'500));
    left.reset();
    QVERIFY(!left.at(31, 31'000));
    QVERIFY(!left.at(0, 33'000)); // percentages that begin anew begin anew
    QVERIFY(!left.at(1, 33'500));
}

void TimeLeftTest::text_data()
{
    QTest::addColumn<int>("seconds");
    QTest::addColumn<QString>("text");
    const auto row = [](int seconds, const QString &text) {
        QTest::addRow("%d s", seconds) << seconds << text;
    };
    row(0, u"Less than a minute left"_s);
    row(59, u"Less than a minute left"_s);
    row(60, u"About a minute left"_s);
    row(89, u"About a minute left"_s);
    row(90, u"About 2 minutes left"_s);
    row(185, u"About 3 minutes left"_s);
    row(89 * 60, u"About 89 minutes left"_s);
    row(90 * 60, u"About 2 hours left"_s);
    row(5 * 3600, u"About 5 hours left"_s);
}

void TimeLeftTest::text()
{
    QFETCH(int, seconds);
    QTEST(TimeLeft::text(seconds), "text");
    QCOMPARE(TimeLeft::text(std::nullopt), QString());
}

QTEST_APPLESS_MAIN(TimeLeftTest)
#include "TimeLeftTest.moc"
