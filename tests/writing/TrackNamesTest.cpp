#include "writing/TrackNames.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using compilation::TrackNames;

namespace {

/// A WAVE file of four bytes of sound.
QByteArray wave()
{
    return QByteArray(
        "RIFF\x28\0\0\0WAVEfmt \x10\0\0\0\1\0\2\0\x44\xac\0\0\x10\xb1\2\0\4\0\x10\0data\4\0\0\0abcd", 48);
}

NodeMediaFile record(const TrackNames &shown, const TrackNames &carried)
{
    NodeMediaFile file;
    file.title = shown.title;
    file.performer = shown.performer;
    file.carriedTitle = carried.title;
    file.carriedPerformer = carried.performer;
    return file;
}

} // namespace

class TrackNamesTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void whatIsWritten_data();
    void whatIsWritten();
    void aListGoesToTheEnd();
    void whatIsNoWholeFileStaysAsItIs_data();
    void whatIsNoWholeFileStaysAsItIs();

private:
    QString made(const QByteArray &content) const
    {
        QFile file(m_folder.filePath(u"a.wav"_s));
        if (!file.open(QFile::WriteOnly) || file.write(content) != content.size())
            qFatal("no file");
        return file.fileName();
    }
    static QByteArray content(const QString &path)
    {
        QFile file(path);
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir m_folder;
};

void TrackNamesTest::whatIsWritten_data()
{
    QTest::addColumn<QStringList>("names"); // shown and carried
    QTest::addColumn<bool>("wanted");
    QTest::addColumn<QString>("written"); // "title|performer"; null: nothing
    const auto row = [](const char *name, const QStringList &names, bool wanted, const QString &written) {
        QTest::newRow(name) << names << wanted << written;
    };
    row("as the tags say", { u"A"_s, u"B"_s, u"A"_s, u"B"_s }, true, {});
    row("nothing said", { {}, {}, {}, {} }, true, {});
    row("another title", { u"X"_s, u"B"_s, u"A"_s, u"B"_s }, true, u"X|B"_s);
    row("another performer", { u"A"_s, u"X"_s, u"A"_s, u"B"_s }, true, u"A|X"_s);
    row("one taken away", { {}, u"B"_s, u"A"_s, u"B"_s }, true, u"|B"_s);
    row("of the stream only", { u"A"_s, u"B"_s, {}, {} }, true, u"A|B"_s);
    row("switched off", { u"A"_s, u"B"_s, u"A"_s, u"B"_s }, false, u"|"_s);
}

void TrackNamesTest::whatIsWritten()
{
    QFETCH(QStringList, names);
    QFETCH(bool, wanted);
    QFETCH(QString, written);
    const auto found = writing::namesToWrite(record({ names[0], names[1] }, { names[2], names[3] }), wanted);
    QCOMPARE(found ? found->title + u'|' + found->performer : QString(), written);
    QCOMPARE(found.has_value(), !written.isNull());
}

void TrackNamesTest::aListGoesToTheEnd()
{
    const QString path = made(wave());
    QCOMPARE(writing::writeTrackNames(path, { u"Ü"_s, u"ab"_s }), QString());
    const QByteArray added("LIST\x1c\0\0\0INFOINAM\3\0\0\0\xc3\x9c\0\0IART\3\0\0\0ab\0\0", 36);
    QByteArray expected = wave() + added;
    expected[4] = char(expected.size() - 8);
    QCOMPARE(content(path).toHex(), expected.toHex());
    // Once more: the last list counts.
    QCOMPARE(writing::writeTrackNames(path, {}), QString());
    QVERIFY(content(path).sliced(8).startsWith(expected.sliced(8)));
}

void TrackNamesTest::whatIsNoWholeFileStaysAsItIs_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no WAVE file") << QByteArray("something else that is longer");
    QTest::newRow("cut") << wave().chopped(2);
    QTest::newRow("more behind it") << wave() + "more";
}

void TrackNamesTest::whatIsNoWholeFileStaysAsItIs()
{
    QFETCH(QByteArray, content);
    const QString path = made(content);
    QVERIFY(!writing::writeTrackNames(path, { u"A"_s, u"B"_s }).isEmpty());
    QCOMPARE(TrackNamesTest::content(path), content);
    QVERIFY(!writing::writeTrackNames(m_folder.filePath(u"gone.wav"_s), {}).isEmpty());
    QVERIFY(!QFile::exists(m_folder.filePath(u"gone.wav"_s)));
}

QTEST_GUILESS_MAIN(TrackNamesTest)
#include "TrackNamesTest.moc"
