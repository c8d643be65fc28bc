// The speed that somebody wants, and the one of the drive that comes nearest.
#include "medium/Speed.h"

#include <QtTest>

using namespace engine;

class SpeedTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void wishes_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<double>("factor"); // 0 for the fastest, -1 for none
        for (const auto &[text, factor] :
            { std::pair{ "8", 8.0 }, { "2.4", 2.4 }, { "16x", 16.0 }, { "max", 0.0 }, { "0.1", 0.1 },
                { "1000", 1000.0 }, { "", -1.0 }, { "x", -1.0 }, { "0", -1.0 }, { "0.09", -1.0 },
                { "1001", -1.0 }, { "-4", -1.0 }, { "+4", -1.0 }, { "4 ", -1.0 }, { " 4", -1.0 },
                { "4xx", -1.0 }, { "4,5", -1.0 }, { "1e2", -1.0 }, { "nan", -1.0 }, { "inf", -1.0 },
                { "MAX", -1.0 }, { "fast", -1.0 }, { "99999999999999999999999999999", -1.0 } })
            QTest::newRow(text) << QByteArray(text) << factor;
    }

    void wishes()
    {
        QFETCH(QByteArray, text);
        const auto wish = parseSpeed(text.toStdString());
        QTEST(wish ? wish->value_or(0) : -1.0, "factor");
    }

    void nearest_data()
    {
        QTest::addColumn<double>("factor");
        QTest::addColumn<int>("speed");
        QTest::newRow("exact") << 4.0 << 5540;
        QTest::newRow("below the slowest") << 0.1 << 2770;
        QTest::newRow("above the fastest") << 48.0 << 11080;
        QTest::newRow("nearer to the slower") << 2.9 << 2770;
        QTest::newRow("nearer to the faster") << 3.1 << 5540;
        QTest::newRow("between two") << 3.0 << 2770;
        QTest::newRow("fastest") << 0.0 << 11080;
    }

    void nearest()
    {
        QFETCH(double, factor);
        const std::vector<int> speeds{ 2770, 5540, 11080 };
        QTEST(nearestSpeed(speeds, factor > 0 ? SpeedWish(factor) : SpeedWish(), 1385.0), "speed");
        QCOMPARE(nearestSpeed({}, SpeedWish(4.0), 1385.0), 0);
    }
};

QTEST_APPLESS_MAIN(SpeedTest)
#include "SpeedTest.moc"
