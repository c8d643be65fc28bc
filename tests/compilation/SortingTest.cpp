#include "compilation/Sorting.h"

#include <QLocale>
#include <QProcess>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QStringList sorted(const QStringList &texts, bool ascending)
{
    return compilation::reordered(texts, compilation::sortedOrder(texts, ascending));
}

} // namespace

class SortingTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void sortsAsAFileBrowser_data();
    void sortsAsAFileBrowser();
    void sortsByTheUsersLocale();
    void sortsByTheLocaleForSorting();
    void keepsTheOrderOfEqualTexts();
    void reordersRecords();
    void rowsGoBefore();
    void sortsLongLists();
    void keepsTheOrderOfEqualTextsInLongLists();
};

void SortingTest::sortsAsAFileBrowser_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QStringList>("ascending");

    const auto row = [](const char *name, const QStringList &texts, const QStringList &ascending) {
        QTest::newRow(name) << texts << ascending;
    };
    row("nothing", {}, {});
    row("one", { u"a"_s }, { u"a"_s });
    row("digits by value in names", { u"Track 10.mp3"_s, u"Track 9.mp3"_s },
        { u"Track 9.mp3"_s, u"Track 10.mp3"_s });
    row("digits by value at the start", { u"100 a"_s, u"20 b"_s, u"3 c"_s },
        { u"3 c"_s, u"20 b"_s, u"100 a"_s });
    row("digits by value in two places", { u"2x10"_s, u"2x9"_s, u"1x11"_s },
        { u"1x11"_s, u"2x9"_s, u"2x10"_s });
    row("digit runs longer than any number type",
        { u"10000000000000000000000000000000000000001"_s, u"9"_s,
            u"10000000000000000000000000000000000000000"_s },
        { u"9"_s, u"10000000000000000000000000000000000000000"_s,
            u"10000000000000000000000000000000000000001"_s });
    row("durations", { u" 00:10:00.0"_s, u" 00:09:59.9"_s }, { u" 00:09:59.9"_s, u" 00:10:00.0"_s });
    row("a duration that is not known", { u" N/A, start"_s, u" 00:09:59.9"_s },
        { u" 00:09:59.9"_s, u" N/A, start"_s });
    row("sizes as texts, the unit is not weighed", { u"900.00 KB"_s, u"2.00 MB"_s },
        { u"2.00 MB"_s, u"900.00 KB"_s });
    row("sizes of one value by their unit words",
        { u"1.00 MB"_s, u"1.00 KB"_s, u"1.00 GB"_s, u"1.00 bytes"_s },
        { u"1.00 bytes"_s, u"1.00 GB"_s, u"1.00 KB"_s, u"1.00 MB"_s });
    row("without regard to case", { u"b"_s, u"C"_s, u"a"_s }, { u"a"_s, u"b"_s, u"C"_s });
    row("letters with marks beside their letter", { u"z"_s, u"ä"_s, u"b"_s, u"É"_s, u"f"_s },
        { u"ä"_s, u"b"_s, u"É"_s, u"f"_s, u"z"_s });
    row("an empty text first", { u"a"_s, {}, u"1"_s }, { {}, u"1"_s, u"a"_s });
    row("paths", { u"/m/b/1"_s, u"/m/a/2"_s, u"/M/a/10"_s }, { u"/m/a/2"_s, u"/M/a/10"_s, u"/m/b/1"_s });
    row("punctuation counts", { u"a-b"_s, u"ab"_s, u"a b"_s }, { u"a b"_s, u"a-b"_s, u"ab"_s });
}

void SortingTest::sortsAsAFileBrowser()
{
    QFETCH(QStringList, texts);
    QFETCH(QStringList, ascending);
    QCOMPARE(sorted(texts, true), ascending);
    std::ranges::reverse(ascending);
    QCOMPARE(sorted(texts, false), ascending);
}

void SortingTest::sortsByTheUsersLocale()
{
    const QLocale before;
    const QStringList texts{ u"Öl"_s, u"Zug"_s, u"Ast"_s };
    QLocale::setDefault(QLocale(QLocale::German));
    const QStringList german = sorted(texts, true);
    QLocale::setDefault(QLocale(QLocale::Swedish));
    const QStringList swedish = sorted(texts, true);
    QLocale::setDefault(before);
    QCOMPARE(german, (QStringList{ u"Ast"_s, u"Öl"_s, u"Zug"_s }));
    QCOMPARE(swedish, (QStringList{ u"Ast"_s, u"Zug"_s, u"Öl"_s }));
}

// In a process of its own: the environment is read once.
void SortingTest::sortsByTheLocaleForSorting()
{
    const QString marker = u"SORTING_TEST_EXPECTS_SWEDISH"_s;
    if (qEnvironmentVariableIsSet(qPrintable(marker))) {
        QCOMPARE(sorted({ u"Öl"_s, u"Zug"_s }, true), (QStringList{ u"Zug"_s, u"Öl"_s }));
        return;
    }
    QProcess again;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(u"LC_ALL"_s);
    environment.insert(u"LANG"_s, u"C.UTF-8"_s);
    environment.insert(u"LC_COLLATE"_s, u"sv_SE.UTF-8"_s);
    environment.insert(marker, u"1"_s);
    again.setProcessEnvironment(environment);
    again.setProcessChannelMode(QProcess::ForwardedChannels);
    again.start(QCoreApplication::applicationFilePath(), { u"sortsByTheLocaleForSorting"_s });
    QVERIFY(again.waitForFinished());
    QCOMPARE(again.exitCode(), 0);
}

void SortingTest::keepsTheOrderOfEqualTexts()
{
    const QStringList texts{ u"b"_s, u"a"_s, u"B"_s, u"A"_s, u"b"_s };
    QCOMPARE(compilation::sortedOrder(texts, true), (QList<qsizetype>{ 1, 3, 0, 2, 4 }));
    QCOMPARE(compilation::sortedOrder(texts, false), (QList<qsizetype>{ 0, 2, 4, 1, 3 }));
}

void SortingTest::reordersRecords()
{
    QCOMPARE(compilation::reordered(QList<int>{ 10, 20, 30 }, { 2, 0, 1 }), (QList<int>{ 30, 10, 20 }));
    QCOMPARE(compilation::reordered(QList<int>{}, {}), QList<int>());
}

void SortingTest::rowsGoBefore()
{
    struct Row {
        QList<int> rows;
        qsizetype before;
        QList<qsizetype> order;
    };
    const Row rows[] = {
        { {}, 1, { 0, 1, 2, 3 } },
        { { 2 }, 0, { 2, 0, 1, 3 } },
        { { 0 }, 4, { 1, 2, 3, 0 } },
        { { 0, 3 }, 2, { 1, 0, 3, 2 } },
        { { 1, 2 }, 2, { 0, 1, 2, 3 } },
        { { 0, 1, 2, 3 }, 1, { 0, 1, 2, 3 } },
    };
    for (const Row &row : rows)
        QCOMPARE(compilation::orderWithRowsBefore(4, row.rows, row.before), row.order);
}

void SortingTest::sortsLongLists()
{
    QStringList texts;
    for (int i = 0; i < 20000; ++i)
        texts.append(u"Track %1.mp3"_s.arg((i * 7919) % 20000));
    const QStringList result = sorted(texts, true);
    for (int i = 0; i < 20000; ++i)
        QCOMPARE(result.at(i), u"Track %1.mp3"_s.arg(i));
}

/// Also where the equal texts lie far apart, in stretches that are sorted by themselves.
void SortingTest::keepsTheOrderOfEqualTextsInLongLists()
{
    constexpr qsizetype count = 9999;
    constexpr qsizetype groups = 7;
    QStringList texts;
    for (qsizetype i = 0; i < count; ++i)
        texts.append(u"Album %1"_s.arg(i % groups));
    QList<qsizetype> ascending, descending;
    for (qsizetype group = 0; group < groups; ++group) {
        for (qsizetype i = group; i < count; i += groups)
            ascending.append(i);
        for (qsizetype i = groups - 1 - group; i < count; i += groups)
            descending.append(i);
    }
    QCOMPARE(compilation::sortedOrder(texts, true), ascending);
    QCOMPARE(compilation::sortedOrder(texts, false), descending);
}

QTEST_GUILESS_MAIN(SortingTest)
#include "SortingTest.moc"
