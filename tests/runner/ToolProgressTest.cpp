#include "runner/ToolProgress.h"

#include <QTest>

using namespace Qt::StringLiterals;
using runner::LineReader;
using runner::ToolProgress;
using Phase = ToolProgress::Phase;

class ToolProgressTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void readsLines_data();
    void readsLines();
    void otherLinesTellNoProgress_data();
    void otherLinesTellNoProgress();
    void gathersLines_data();
    void gathersLines();
    void cutsAtEveryByte();
    void keepsLittleOfALineWithoutEnd();
};

void ToolProgressTest::readsLines_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<Phase>("phase");
    QTest::addColumn<double>("percent");
    QTest::addColumn<QString>("speed");

    const auto row = [](const QString &line, Phase phase, double percent = -1, const QString &speed = {}) {
        QTest::newRow(qPrintable(line)) << line << phase << percent << speed;
    };
    row(u"Writing: 13.2 %, 8.1x, buffer 98 %"_s, Phase::Writing, 13.2, u"8.1x"_s);
    row(u"Writing: 0.0 %"_s, Phase::Writing, 0);
    row(u"Writing: 100.0 %, 16x"_s, Phase::Writing, 100, u"16x"_s);
    row(u"Writing: 7 %, buffer 100 %"_s, Phase::Writing, 7);
    row(u"Writing: 7%"_s, Phase::Writing, 7);
    row(u"Writing: 150.5 %"_s, Phase::Writing, 100);
    row(u"Writing"_s, Phase::Writing);
    row(u"Preparing"_s, Phase::Preparing);
    row(u"Preparing: 12.5 %"_s, Phase::Preparing, 12.5);
    row(u"Erasing"_s, Phase::Erasing);
    row(u"Erasing: 99.9 %"_s, Phase::Erasing, 99.9);
    row(u"Closing the disc"_s, Phase::Closing);
    row(u"Verifying: 50.0 %, 24.0x"_s, Phase::Comparing, 50, u"24.0x"_s);
    row(u"Making the image: 42.0 %"_s, Phase::Other, 42);
}

void ToolProgressTest::readsLines()
{
    QFETCH(QString, line);
    const auto told = runner::readProgress(line);
    QVERIFY(told);
    QTEST(told->phase, "phase");
    QTEST(told->percent, "percent");
    QTEST(told->speed, "speed");
}

void ToolProgressTest::otherLinesTellNoProgress_data()
{
    QTest::addColumn<QString>("line");
    for (const QString &line : { u""_s, u"Reading"_s, u"Writing failed: the drive is gone."_s,
             u"Writing: the disc is full."_s, u"Writing: 13.2 % of the disc is damaged."_s,
             u"Writing: 1234 %"_s, u"Writing: -1 %"_s, u"Writing: 1.2.3 %"_s, u"Writing: 13.2"_s, u": 5 %"_s,
             u"5 %"_s, u"125x"_s, u"Drive: CORVALIS Virtual Recorder (/home/me/recorders/1)"_s,
             u"note: Writing: 13.2 %"_s, u"100% - the album.mp3: cannot be read."_s,
             u"Closing the disc failed."_s, u"writing: 5 of 10"_s })
        QTest::newRow(qPrintable(line)) << line;
}

void ToolProgressTest::otherLinesTellNoProgress()
{
    QFETCH(QString, line);
    QVERIFY(!runner::readProgress(line));
}

void ToolProgressTest::gathersLines_data()
{
    QTest::addColumn<QList<QByteArray>>("pieces");
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<QString>("rest");

    const auto row = [](const char *name, const QList<QByteArray> &pieces, const QStringList &lines,
                         const QString &rest = {}) { QTest::newRow(name) << pieces << lines << rest; };
    row("nothing", {}, {});
    row("nothing printed", { "" }, {});
    row("a line", { "one\n" }, { u"one"_s });
    row("two in a piece", { "one\ntwo\n" }, { u"one"_s, u"two"_s });
    row("one in two pieces", { "on", "e\n" }, { u"one"_s });
    row("one that is not ended", { "one\ntw" }, { u"one"_s }, u"tw"_s);
    row("carriage returns", { "1 %\r2 %\r" }, { u"1 %"_s, u"2 %"_s });
    row("both ends", { "one\r\ntwo\r", "\nthree\n" }, { u"one"_s, u"two"_s, u"three"_s });
    row("empty lines", { "\n\r\n  \none\n\n" }, { u"one"_s });
    row("blanks around", { "  one \t\n" }, { u"one"_s });
    row("a letter in two pieces", { "caf\xc3", "\xa9\n" }, { u"café"_s });
    row("a letter that never comes", { "caf\xc3\n" }, { u"caf\ufffd"_s });
    row("a NUL", { QByteArray("a\0b\n", 4) }, { u"a"_s + QChar(0) + u'b' });
}

void ToolProgressTest::gathersLines()
{
    QFETCH(QList<QByteArray>, pieces);
    LineReader reader;
    QStringList lines;
    for (const QByteArray &piece : std::as_const(pieces))
        lines += reader.take(piece);
    QTEST(lines, "lines");
    QTEST(reader.rest(), "rest");
}

void ToolProgressTest::cutsAtEveryByte()
{
    const QByteArray printed = "Drive: Größe\r\nWriting: 12.0 %\rnote: “日本” was left out.\nlast";
    for (qsizetype cut = 0; cut <= printed.size(); ++cut) {
        LineReader reader;
        QStringList lines = reader.take(printed.first(cut));
        lines += reader.take(printed.sliced(cut));
        QCOMPARE(
            lines, (QStringList{ u"Drive: Größe"_s, u"Writing: 12.0 %"_s, u"note: “日本” was left out."_s }));
        QCOMPARE(reader.rest(), u"last"_s);
    }
}

void ToolProgressTest::keepsLittleOfALineWithoutEnd()
{
    constexpr qsizetype longest = 4096;
    LineReader reader;
    for (int i = 0; i < 1000; ++i)
        QCOMPARE(reader.take(QByteArray(10'000, 'x')), QStringList());
    QVERIFY(reader.rest().size() <= longest);
    QCOMPARE(reader.take("\nnext\n"), (QStringList{ QString(longest, u'x'), u"next"_s }));
    QCOMPARE(reader.take(QByteArray(2 * longest, 'y') + '\n'), QStringList(QString(longest, u'y')));
}

QTEST_APPLESS_MAIN(ToolProgressTest)
#include "ToolProgressTest.moc"
