#include "drives/WritingSpeed.h"

#include <QTest>

using namespace Qt::StringLiterals;

class WritingSpeedTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void readsWhatIsOffered_data();
    void readsWhatIsOffered();
    void keepsTheWishAmongTheChoices();
    void knowsAWish_data();
    void knowsAWish();
};

void WritingSpeedTest::readsWhatIsOffered_data()
{
    QTest::addColumn<QString>("status");
    QTest::addColumn<QStringList>("speeds");
    const QString head = u"               Type: CD-R                 Name: /dev/sr0\n"_s;
    QTest::newRow("nothing printed") << QString() << QStringList();
    QTest::newRow("no speeds") << head << QStringList();
    QTest::newRow("three") << head + u"       Write Speeds: 16x, 24x, 48x\n         Space Free: 1\n"_s
                           << QStringList{ u"48"_s, u"24"_s, u"16"_s };
    QTest::newRow("with decimals, no line break behind")
        << u"Write Speeds: 2.4x, 4x"_s << QStringList{ u"4"_s, u"2.4"_s };
    QTest::newRow("one twice") << u"Write Speeds: 8x, 8x\n"_s << QStringList{ u"8"_s };
    QTest::newRow("what is no factor")
        << u"Write Speeds: x, -4x, 0x, 1e3x, 2000x, 6x6, 8x, nanx\n"_s << QStringList{ u"8"_s };
    QTest::newRow("words elsewhere") << u"a drive without Write Speeds: 8x\n"_s << QStringList();
    QString flood = u"Write Speeds: "_s;
    for (int i = 1; i < 900; ++i)
        flood += u"%1x, "_s.arg(i);
    QStringList most;
    for (int i = 32; i > 0; --i)
        most.append(QString::number(i));
    QTest::newRow("a flood") << flood << most;
}

void WritingSpeedTest::readsWhatIsOffered()
{
    QFETCH(QString, status);
    QTEST(drives::offeredSpeeds(status), "speeds");
}

void WritingSpeedTest::keepsTheWishAmongTheChoices()
{
    const QString status = u"Write Speeds: 4x, 16x\n"_s;
    QCOMPARE(drives::speedChoices(status, u"8"_s), QStringList({ u"16"_s, u"8"_s, u"4"_s }));
    QCOMPARE(drives::speedChoices(status, u"16"_s), QStringList({ u"16"_s, u"4"_s }));
    QCOMPARE(drives::speedChoices(status, u"max"_s), QStringList({ u"16"_s, u"4"_s }));
    QCOMPARE(drives::speedChoices({}, u"8"_s), QStringList(u"8"_s));
}

void WritingSpeedTest::knowsAWish_data()
{
    QTest::addColumn<QString>("wish");
    QTest::addColumn<bool>("isOne");
    for (const char *wish : { "max", "8", "2.4", "0.1", "1000" })
        QTest::newRow(wish) << QString::fromLatin1(wish) << true;
    for (const char *wish :
        { "", "8x", "fast", "0", "-1", "1001", "2,4", "8 ", "8\nLD_PRELOAD=x", "inf", "MAX" })
        QTest::newRow(wish) << QString::fromLatin1(wish) << false;
}

void WritingSpeedTest::knowsAWish()
{
    QFETCH(QString, wish);
    QTEST(drives::isSpeedWish(wish), "isOne");
}

QTEST_GUILESS_MAIN(WritingSpeedTest)
#include "WritingSpeedTest.moc"
