// What Joliet does to names, and how names appear in sentences.
#include "base/Words.h"
#include "image/JolietName.h"

#include <QtTest>

#include <cerrno>

using engine::image::JolietFit;
using engine::image::jolietFit;

class NamesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void joliet_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<int>("fit");
        const auto row = [](const char *title, const QByteArray &name, JolietFit fit) {
            QTest::newRow(title) << name << int(fit);
        };
        row("plain", "file.txt", JolietFit::whole);
        row("no extension, spaces", " a b ", JolietFit::whole);
        row("two scripts", "\xc3\xbc\xe6\x97\xa5", JolietFit::whole);
        row("103 characters", QByteArray(103, 'n'), JolietFit::whole);
        row("104 characters", QByteArray(104, 'n'), JolietFit::cut);
        row("51 surrogate pairs", QByteArray("\xf0\x9f\x98\x80").repeated(51), JolietFit::whole);
        row("52 surrogate pairs", QByteArray("\xf0\x9f\x98\x80").repeated(52), JolietFit::cut);
        row("colon", "a:b", JolietFit::changed);
        row("backslash", "a\\b", JolietFit::changed);
        row("semicolon", "a;1", JolietFit::changed);
        row("line break", "a\nb", JolietFit::changed);
        row("Latin 1", "caf\xe9", JolietFit::changed);
        row("half a character", "a\xe6\x97", JolietFit::changed);
        row("surrogate in UTF-8", "\xed\xa0\x80", JolietFit::changed);
        row("overlong", "\xc0\xaf", JolietFit::changed);
        row("long and changed", QByteArray(120, ':'), JolietFit::cut);
    }

    void joliet()
    {
        QFETCH(QByteArray, name);
        QFETCH(int, fit);
        QCOMPARE(int(jolietFit(name.toStdString())), fit);
    }

    void advice_data()
    {
        QTest::addColumn<int>("error");
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("of its own") << ENOENT << QByteArray("no such file or directory; check its name");
        QTest::newRow("shared") << EDQUOT
                                << QByteArray("disk quota exceeded; free some space or choose another place");
        QTest::newRow("any other") << EPROTO << QByteArray("protocol error; try again");
    }

    void advice()
    {
        QFETCH(int, error);
        QTEST(QByteArray::fromStdString(engine::reasonAndAdvice(error)), "text");
    }

    void quoted_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("quoted");
        QTest::newRow("plain") << QByteArray("a b") << QByteArray("\"a b\"");
        QTest::newRow("UTF-8") << QByteArray("\xc3\xbc") << QByteArray("\"\xc3\xbc\"");
        QTest::newRow("line break") << QByteArray("a\nb") << QByteArray("\"a\\x0ab\"");
        QTest::newRow("escape") << QByteArray("\x1b[2J") << QByteArray("\"\\x1b[2J\"");
        QTest::newRow("not UTF-8") << QByteArray("caf\xe9") << QByteArray("\"caf\\xe9\"");
    }

    void quoted()
    {
        QFETCH(QByteArray, text);
        QTEST(QByteArray::fromStdString(engine::quoted(text.toStdString())), "quoted");
    }

    void sizes_data()
    {
        QTest::addColumn<quint64>("bytes");
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("0") << quint64(0) << QByteArray("0 bytes");
        QTest::newRow("999") << quint64(999) << QByteArray("999 bytes");
        QTest::newRow("1000") << quint64(1000) << QByteArray("1.0 kB");
        QTest::newRow("999999") << quint64(999999) << QByteArray("1.0 MB");
        QTest::newRow("CD") << quint64(736966656) << QByteArray("737 MB");
        QTest::newRow("DVD") << quint64(4707319808) << QByteArray("4.7 GB");
    }

    void sizes()
    {
        QFETCH(quint64, bytes);
        QTEST(QByteArray::fromStdString(engine::sizeText(bytes)), "text");
    }
};

QTEST_GUILESS_MAIN(NamesTest)
#include "NamesTest.moc"
