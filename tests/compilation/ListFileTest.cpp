// Saved lists: what is written is read again, and what others wrote gets a sentence.
#include "compilation/ListFile.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;
using compilation::ListFile;

namespace {

QByteArray listOf(const QByteArray &entries, const QByteArray &version = "1")
{
    return R"({"corvalis-list": )" + version + R"(, "kind": "Audio CD", "entries": )" + entries + "}";
}

QByteArray manyEntries(qsizetype count)
{
    return "[" + QByteArray(R"({"path":"/a"},)").repeated(count).chopped(1) + "]";
}

} // namespace

class ListFileTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;
    QString place(const QString &name) const { return m_folder.filePath(name); }

private Q_SLOTS:
    void whatIsWrittenIsRead()
    {
        const ListFile list{ u"MP3 CD"_s, u"Été ☀ \"x\""_s,
            { { u"/music/two\nlines.mp3"_s, u"../music/two\nlines.mp3"_s, u"Título"_s, u"Ensemble & Co."_s },
                { u"/-dash/"_s + QString(255, u'x'), {}, u""_s, {} },
                { u"/日本語 😀"_s, u"日本語 😀"_s, {}, {} } } };
        const compilation::ListFileRead read = compilation::parsedListFile(compilation::written(list));
        QCOMPARE(read.error, QString());
        QCOMPARE(read.list.kind, list.kind);
        QCOMPARE(read.list.discName, list.discName);
        QVERIFY(read.list.entries == list.entries);
        // What the desktop knows the file by.
        QVERIFY(compilation::written(list).startsWith("{\n    \"corvalis-list\": 1,"));
    }

    void foreignContent_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("sentence");
        const QString damaged = u"It is damaged, or no list of Corvalis: "_s;
        QTest::newRow("empty") << QByteArray() << damaged;
        QTest::newRow("cut off") << listOf("[{\"path\":\"/a\"}").chopped(1) << damaged;
        QTest::newRow("an image") << QByteArray("\x89PNG\r\n\x1a\n\0\0", 10) << damaged;
        QTest::newRow("other JSON") << QByteArray(R"({"name": "x"})")
                                    << damaged + u"it does not say what it is."_s;
        QTest::newRow("an array") << QByteArray("[1]") << damaged + u"it does not say what it is."_s;
        QTest::newRow("version 0") << listOf("[]", "0") << damaged + u"it does not say what it is."_s;
        QTest::newRow("version as text")
            << listOf("[]", "\"1\"") << damaged + u"it does not say what it is."_s;
        QTest::newRow("newer") << listOf("[]", "2") << u"It was saved by a newer version"_s;
        QTest::newRow("far newer") << listOf("[]", "1e300") << u"It was saved by a newer version"_s;
        QTest::newRow("no entries") << QByteArray(R"({"corvalis-list": 1, "kind": "Audio CD"})")
                                    << damaged + u"the kind or the entries are missing."_s;
        QTest::newRow("entries of another form")
            << listOf(R"(["/a"])") << damaged + u"entry 1 has no full path."_s;
        QTest::newRow("no path") << listOf(R"([{"path":"/a"},{"relative":"a"}])")
                                 << damaged + u"entry 2 has no full path."_s;
        QTest::newRow("path that is not full")
            << listOf(R"([{"path":"../../etc/passwd"}])") << damaged + u"entry 1 has no full path."_s;
        QTest::newRow("path into the program itself")
            << listOf(R"([{"path":":/icons/x.svg"}])") << damaged + u"entry 1 has no full path."_s;
        QTest::newRow("a NUL") << listOf("[{\"path\":\"/a\\u0000b\"}]")
                               << damaged + u"entry 1 has characters"_s;
        QTest::newRow("half a character")
            << listOf("[{\"path\":\"/a\\ud800\"}]") << damaged + u"entry 1 has characters"_s;
        QTest::newRow("relative that is full")
            << listOf(R"([{"path":"/a","relative":"/etc"}])") << damaged + u"the relative path of entry 1"_s;
        QTest::newRow("deep") << QByteArray(100'000, '[') << damaged;
        QTest::newRow("a million entries")
            << listOf(manyEntries(1'000'000)) << u"It has 1000000 entries, and a list may have 100000."_s;
    }
    void foreignContent()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, sentence);
        const compilation::ListFileRead read = compilation::parsedListFile(content);
        QVERIFY2(read.error.startsWith(sentence), qPrintable(read.error));
        QVERIFY2(read.error.endsWith(u'.'), qPrintable(read.error));
    }

    void whatIsAllowed()
    {
        QCOMPARE(compilation::parsedListFile(listOf(manyEntries(ListFile::mostEntries))).error, QString());
        // Unknown keys are of a later version 1, and a climbing path is a way to a file like any other.
        const auto read = compilation::parsedListFile(
            R"({"corvalis-list": 1, "kind": "x", "later": {}, "entries": [{"path": "/a/../b/", "more": 1}]})");
        QCOMPARE(read.error, QString());
        QCOMPARE(read.list.entries.first().path, u"/b"_s);
    }

    void filesThatAreRefusedUnread()
    {
        QVERIFY(compilation::readListFile(place(u"gone"_s)).error.contains(u"no such file"_s));
        QVERIFY(compilation::readListFile(m_folder.path()).error.contains(u"no file"_s));
        QVERIFY(compilation::readListFile(u"/dev/zero"_s).error.contains(u"no file"_s));
        QCOMPARE(::mkfifo(qPrintable(place(u"pipe"_s)), 0600), 0);
        QVERIFY(compilation::readListFile(place(u"pipe"_s)).error.contains(u"no file"_s));
        QFile large(place(u"large"_s));
        QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(1 << 30));
        QVERIFY(compilation::readListFile(place(u"large"_s)).error.contains(u"too large"_s));
    }

    void writtenWholeOrNotAtAll()
    {
        const QString path = place(u"kept.corvalis"_s);
        const ListFile small{ u"Data CD"_s, {}, { { u"/a"_s, {}, {}, {} } } };
        QCOMPARE(compilation::saveListFile(path, small), QString());
        // A disk that is full in the middle: what was there stays as it was.
        const ListFile large{ u"Data CD"_s, {}, QList<ListFile::Entry>(5000, { u"/a"_s, {}, {}, {} }) };
        rlimit before;
        ::getrlimit(RLIMIT_FSIZE, &before);
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit full{ 4096, before.rlim_max };
        ::setrlimit(RLIMIT_FSIZE, &full);
        const QString why = compilation::saveListFile(path, large);
        ::setrlimit(RLIMIT_FSIZE, &before);
        QVERIFY(!why.isEmpty());
        QCOMPARE(compilation::readListFile(path).list.entries.size(), 1);
        QCOMPARE(QDir(m_folder.path()).entryList({ u"kept*"_s }).size(), 1);
        QVERIFY(!compilation::saveListFile(place(u"no/such/folder.corvalis"_s), small).isEmpty());
    }

    void placeBesideTheListComesFirst()
    {
        QFile here(place(u"song.mp3"_s));
        QVERIFY(here.open(QIODevice::WriteOnly));
        const ListFile::Entry moved{ u"/old/song.mp3"_s, u"song.mp3"_s, {}, {} };
        QCOMPARE(compilation::placeOf(moved, m_folder.path()), place(u"song.mp3"_s));
        const ListFile::Entry gone{ u"/old/other.mp3"_s, u"other.mp3"_s, {}, {} };
        QCOMPARE(compilation::placeOf(gone, m_folder.path()), u"/old/other.mp3"_s);
        const ListFile::Entry full{ u"/old/song.mp3"_s, {}, {}, {} };
        QCOMPARE(compilation::placeOf(full, m_folder.path()), u"/old/song.mp3"_s);
    }
};

QTEST_APPLESS_MAIN(ListFileTest)
#include "ListFileTest.moc"
