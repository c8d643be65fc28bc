// Folders onto data discs, compared with the source by independent readers.
#include "support/WholeMachine.h"

#include <QCryptographicHash>
#include <QRegularExpression>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// A folder with whatever a person's folder may hold.
void makeAwkwardTree(const QString &root)
{
    QString faces;
    for (int i = 0; i < 62; ++i)
        faces += u"😀"_s; // 248 bytes
    const QStringList names{ u"plain.txt"_s, u"O'Brien \"x\""_s, u"two\nlines"_s, u"-drive"_s,
        u"  blanks  "_s, u"$(x) `y` *?[]|<>"_s, u"back\\slash:colon;1"_s, u"100%1 %s"_s, u".hidden"_s,
        u"日本語 한국어 עברית العربية ไทย"_s, u"Case"_s, u"case"_s, u"no.of.dots..."_s, QString(255, u'x'),
        faces + u"name"_s };
    for (const QString &name : names) {
        makeFile(root + u"/files/"_s + name, name.toUtf8() + QByteArray(3000, 'y'));
        makeFile(root + u"/folders/"_s + name + u"/inside"_s, "inside");
    }
    makeFile(root + u"/empty file"_s);
    makeFile(root + u"/one block"_s, QByteArray(2048, 'z'));
    QDir().mkpath(root + u"/empty folder/.also hidden"_s);
    QString deep = root;
    for (int level = 0; level < 20; ++level)
        deep += u"/level"_s;
    makeFile(deep + u"/bottom"_s, "deep");
    const auto bytes = [&root](const char *name) { return QFile::encodeName(root + u'/') + name; };
    QVERIFY(::symlink("one block", bytes("link to file").constData()) == 0);
    QVERIFY(::symlink("empty folder", bytes("link to folder").constData()) == 0);
    QVERIFY(::symlink("nowhere", bytes("dangling link").constData()) == 0);
    QVERIFY(::link(bytes("one block").constData(), bytes("second name").constData()) == 0);
    makeFile(root + u"/read only"_s, "do not write");
    QVERIFY(::chmod(bytes("read only").constData(), 0444) == 0);
}

/// The contents of all files below a folder, as digests in order, whatever their names are.
QList<QByteArray> contents(const QString &folder)
{
    QList<QByteArray> digests;
    QDirIterator files(
        folder, QDir::Files | QDir::Hidden | QDir::System | QDir::NoSymLinks, QDirIterator::Subdirectories);
    while (files.hasNext())
        digests.append(QCryptographicHash::hash(contentOf(files.next()), QCryptographicHash::Sha1));
    std::ranges::sort(digests);
    return digests;
}

} // namespace

class DataDiscsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void anAwkwardTreeIsReadBackAsItWas_data()
    {
        QTest::addColumn<int>("project");
        QTest::addColumn<QString>("disc");
        QTest::newRow("Data CD") << 6 << u"cd-r"_s;
        QTest::newRow("Data DVD") << 7 << u"dvd-rw"_s;
        QTest::newRow("Data Blu-ray") << 8 << u"bd-re"_s;
    }
    void anAwkwardTreeIsReadBackAsItWas()
    {
        QFETCH(int, project);
        QFETCH(QString, disc);
        WholeMachine machine;
        machine.recorder.insert(disc);
        const QString source = machine.mediaPath(u"My \"awkward\" tree – 木"_s);
        makeAwkwardTree(source);
        machine.choose(project);
        QVERIFY(machine.addFolder(source));
        machine.press("btnBurn");
        QVERIFY(machine.completes());
        QCOMPARE(machine.trouble(), QString());

        const QString root = reader::extractedByXorriso(machine.recorder.iso(), machine.media.path());
        QCOMPARE(QDir(root).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
            QStringList(QFileInfo(source).fileName()));
        const QByteArray difference = reader::difference(source, root + u'/' + QFileInfo(source).fileName());
        QVERIFY2(difference.isEmpty(), difference.constData());
        QVERIFY(machine.recorder.status().contains(project == 6 ? "not writable" : "erasable"));
        QCOMPARE(QDir(machine.controller->s_Data_Folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
            QStringList());
    }

    void theJolietTreeHoldsEveryFile()
    {
        WholeMachine machine;
        const QString source = machine.mediaPath(u"tree"_s);
        makeAwkwardTree(source);
        for (const char *link : { "link to file", "link to folder", "dangling link" })
            QVERIFY(QFile::remove(source + u'/' + QLatin1StringView(link)));
        machine.choose(6);
        QVERIFY(machine.addFolder(source));
        machine.press("btnBurn");
        QVERIFY(machine.completes());
        QCOMPARE(machine.trouble(), QString());
        const QString root = reader::extractedBy7z(machine.recorder.iso(), machine.media.path());
        QCOMPARE(contents(root), contents(source));
    }

    void theJolietNamesAreThoseOfTheFiles()
    {
        WholeMachine machine;
        const QString source = machine.mediaPath(u"Tree – 木"_s);
        const QStringList names{ u"plain.txt"_s, u"O'Brien \"x\""_s, u"-drive"_s, u"  blanks  "_s,
            u"$(x) `y` []|<>"_s, u"100%1 %s"_s, u".hidden"_s, u"Case"_s, u"case"_s, QString(100, u'x'),
            u"😀😀 name"_s, u"日本語 한국어 עברית العربية ไทย Ελλάδα Россия"_s };
        for (const QString &name : names) {
            makeFile(source + u"/files/"_s + name, name.toUtf8());
            makeFile(source + u"/folders/"_s + name + u"/inside"_s, name.toUtf8());
            QDir().mkpath(source + u"/empty folders/"_s + name);
        }
        machine.choose(6);
        QVERIFY(machine.addFolder(source));
        machine.press("btnBurn");
        QVERIFY(machine.completes());
        QCOMPARE(machine.trouble(), QString());
        const QString root = reader::extractedBy7z(machine.recorder.iso(), machine.media.path());
        const QByteArray difference = reader::difference(source, root + u'/' + QFileInfo(source).fileName());
        QVERIFY2(difference.isEmpty(), difference.constData());
    }

    void thousandsOfFilesAreReadBackAsTheyWere()
    {
        WholeMachine machine;
        machine.controller->around.stagingPoll = 5000;
        const QString source = machine.mediaPath(u"many"_s);
        for (int i = 0; i < 3000; ++i)
            makeFile(
                source + u"/folder %1/file %2"_s.arg(i % 30).arg(i), QByteArray::number(i).repeated(i % 700));
        machine.choose(6);
        QVERIFY(machine.addFolder(source));
        machine.press("btnBurn");
        QVERIFY(machine.completes());
        QCOMPARE(machine.trouble(), QString());
        const QString root = reader::extractedByXorriso(machine.recorder.iso(), machine.media.path());
        QCOMPARE(reader::difference(source, root + u"/many"_s), QByteArray());
    }

    void severalFoldersMakeOneDisc()
    {
        WholeMachine machine;
        makeFile(machine.mediaPath(u"a/photos/one.jpg"_s), "one");
        makeFile(machine.mediaPath(u"b/photos/two.jpg"_s), "two");
        makeFile(machine.mediaPath(u"c/photos/three.jpg"_s), "three");
        makeFile(machine.mediaPath(u"letters/dear.txt"_s), "dear");
        machine.choose(6);
        for (const char *folder : { "a/photos", "b/photos", "letters", "c/photos" })
            QVERIFY(machine.addFolder(machine.mediaPath(QLatin1StringView(folder))));
        machine.press("btnBurn");
        QVERIFY(machine.completes());
        const QString root = reader::extractedByXorriso(machine.recorder.iso(), machine.media.path());
        QCOMPARE(contentOf(root + u"/photos/one.jpg"_s), QByteArray("one"));
        QCOMPARE(contentOf(root + u"/photos 1/photos/two.jpg"_s), QByteArray("two"));
        QCOMPARE(contentOf(root + u"/photos 2/photos/three.jpg"_s), QByteArray("three"));
        QCOMPARE(contentOf(root + u"/letters/dear.txt"_s), QByteArray("dear"));
    }

    void singleFilesStandBesideFoldersOnTheDisc()
    {
        WholeMachine machine;
        machine.controller->around.stagingPoll = 5000; // files do not wait for it
        makeFile(machine.mediaPath(u"photos/one.jpg"_s), "one");
        makeFile(machine.mediaPath(u"a/-notes \"x\".txt"_s), "first notes");
        makeFile(machine.mediaPath(u"b/-notes \"x\".txt"_s), "second notes");
        makeFile(machine.mediaPath(u"a/empty"_s));
        makeFile(machine.mediaPath(u"large.bin"_s), QByteArray(3'000'000, 'x'));
        QVERIFY(QFile::link(machine.mediaPath(u"large.bin"_s), machine.mediaPath(u"a/shortcut"_s)));
        QVERIFY(::chmod(qPrintable(machine.mediaPath(u"a/empty"_s)), 0440) == 0);
        machine.choose(6);
        QVERIFY(machine.addFolder(machine.mediaPath(u"photos"_s)));
        QVERIFY(machine.addDataFiles(
            machine.mediaPath(u"a"_s), { u"-notes \"x\".txt"_s, u"empty"_s, u"shortcut"_s }));
        QVERIFY(machine.addDataFiles(machine.mediaPath(u"b"_s), { u"-notes \"x\".txt"_s }));
        machine.press("btnBurn");
        QVERIFY(machine.completes());
        QCOMPARE(machine.trouble(), QString());
        const QString root = reader::extractedByXorriso(machine.recorder.iso(), machine.media.path());
        QCOMPARE(contentOf(root + u"/photos/one.jpg"_s), QByteArray("one"));
        QCOMPARE(contentOf(root + u"/-notes \"x\".txt"_s), QByteArray("first notes"));
        QCOMPARE(contentOf(root + u"/-notes \"x\".txt 1/-notes \"x\".txt"_s), QByteArray("second notes"));
        QCOMPARE(QFileInfo(root + u"/empty"_s).size(), 0);
        QVERIFY(!QFileInfo(root + u"/shortcut"_s).isSymLink());
        QCOMPARE(contentOf(root + u"/shortcut"_s), QByteArray(3'000'000, 'x'));
        QCOMPARE(contentOf(machine.mediaPath(u"a/-notes \"x\".txt"_s)), QByteArray("first notes"));
    }

    void aSavedListIsOpenedAndWritten()
    {
        WholeMachine machine;
        makeFile(machine.mediaPath(u"photos/one.jpg"_s), "one");
        makeFile(machine.mediaPath(u"notes.txt"_s), "notes");
        const QString list = machine.mediaPath(u"My disc.corvalis"_s);
        machine.choose(6);
        QVERIFY(machine.addFolder(machine.mediaPath(u"photos"_s)));
        QVERIFY(machine.addDataFiles(machine.media.path(), { u"notes.txt"_s }));
        person::Expect<QFileDialog> saving([&list](QFileDialog *panel) {
            person::pastePath(panel, list);
            person::pressTitled(panel, u"Save"_s);
        });
        person::choose(machine.window.get(), "menuitemListSaveAs");
        QVERIFY(saving.happened() && QFile::exists(list));
        machine.choose(1);
        person::Expect<QFileDialog> opening([&](QFileDialog *panel) {
            person::openFiles(panel, machine.media.path(), { u"My disc.corvalis"_s });
        });
        person::choose(machine.window.get(), "menuitemListOpen");
        QVERIFY(opening.happened());
        QCOMPARE(machine.controller->arrayDataFolders.size(), 2);
        machine.press("btnBurn");
        QVERIFY(machine.completes());
        QCOMPARE(machine.trouble(), QString());
        const QString root = reader::extractedByXorriso(machine.recorder.iso(), machine.media.path());
        QCOMPARE(contentOf(root + u"/photos/one.jpg"_s), QByteArray("one"));
        QCOMPARE(contentOf(root + u"/notes.txt"_s), QByteArray("notes"));
    }

    void foldersThatDoNotFitLeaveTheDiscBlankAndAreTold()
    {
        WholeMachine machine;
        const QString folder = machine.mediaPath(u"large"_s);
        QDir().mkpath(folder);
        QFile large(folder + u"/900 MB of nothing"_s);
        QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(900'000'000));
        large.close();
        machine.choose(6);
        QVERIFY(machine.addFolder(folder));
        const QByteArray before = machine.recorder.status();
        machine.press("btnBurn");
        QVERIFY(machine.completes());
        QVERIFY2(!machine.trouble().startsWith(u"drutil: "_s), qUtf8Printable(machine.trouble()));
        QVERIFY2(
            machine.trouble().contains(QRegularExpression(u"\\d.*\\d"_s)), qUtf8Printable(machine.trouble()));
        QCOMPARE(machine.recorder.status(), before);
        QCOMPARE(QDir(machine.controller->s_Data_Folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
            QStringList());
    }

    void aDiscThatWasRewrittenHoldsTheNewTreeOnly()
    {
        WholeMachine machine;
        machine.recorder.insert(u"cd-rw"_s);
        makeFile(machine.mediaPath(u"first/one"_s), "one");
        makeFile(machine.mediaPath(u"second/two"_s), "two");
        for (const char *folder : { "first", "second" }) {
            machine.choose(6);
            QVERIFY(machine.addFolder(machine.mediaPath(QLatin1StringView(folder))));
            machine.press("btnBurn");
            QVERIFY(machine.completes());
            QCOMPARE(machine.trouble(), QString());
            machine.closeCompleteSheet();
        }
        const QString root = reader::extractedByXorriso(machine.recorder.iso(), machine.media.path());
        QCOMPARE(QDir(root).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList(u"second"_s));
    }
};

QTEST_MAIN(DataDiscsTest)
#include "DataDiscsTest.moc"
