#include "writing/DiscName.h"

#include <QTest>

using namespace Qt::StringLiterals;

class DiscNameTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void checksAName_data();
    void checksAName();
};

void DiscNameTest::checksAName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("usable");
    QTest::addColumn<qsizetype>("length");
    QTest::addColumn<QString>("said"); ///< what the sentence has to hold
    const auto row = [](const char *title, const QString &name, const QString &usable, qsizetype length,
                         const QString &said = {}) {
        QTest::newRow(title) << name << usable << length << said;
    };
    row("none", {}, {}, 0);
    row("blanks only", u"   "_s, {}, 0);
    row("plain", u"Holiday 2026"_s, u"Holiday 2026"_s, 12);
    row("blanks around", u"  Winter "_s, u"Winter"_s, 6);
    row("sixteen", u"0123456789abcdef"_s, u"0123456789abcdef"_s, 16);
    row("seventeen", u"0123456789abcdefg"_s, u"0123456789abcdefg"_s, 17, u"“0123456789abcdef”"_s);
    row("all that fit", QString(32, u'x'), QString(32, u'x'), 32, u"Windows"_s);
    row("one too many", QString(33, u'x'), {}, 33, u"33 characters; a disc takes 32"_s);
    row("an umlaut", u"Käse"_s, u"Käse"_s, 4, u"“ä”"_s);
    row("a pair is one character", u"😀"_s.repeated(32), u"😀"_s.repeated(32), 32, u"“😀”"_s);
    row("a colon", u"Part 1: The Sea"_s, u"Part 1: The Sea"_s, 15, u"“:”"_s);
    row("a line break", u"a\nb"_s, {}, 3, u"cannot be seen"_s);
    row("a bell", u"a\x07"_s, {}, 2, u"cannot be seen"_s);
    row("text that turns others round", u"a\u202eb"_s, {}, 3, u"cannot be seen"_s);
    row("half a pair", u"a"_s + QChar(0xd83d), {}, 2, u"cannot be seen"_s);
}

void DiscNameTest::checksAName()
{
    QFETCH(QString, name);
    QFETCH(QString, said);
    QTEST(writing::usableDiscName(name), "usable");
    QTEST(writing::discNameLength(name), "length");
    const writing::DiscNameCheck found = writing::checkDiscName(name);
    QCOMPARE(found.wrong.isEmpty(), writing::usableDiscName(name) == name.trimmed());
    const QString sentence = found.wrong + found.remark;
    QCOMPARE(sentence.isEmpty(), said.isEmpty());
    QVERIFY2(sentence.contains(said), qPrintable(sentence));
}

QTEST_GUILESS_MAIN(DiscNameTest)
#include "DiscNameTest.moc"
