// Files that were moved are found by their names.
#include "compilation/MissingFiles.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class MissingFilesTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void theHighestOfANameIsFound()
    {
        const QTemporaryDir folder;
        for (const auto &path :
            { u"a/deep/song.mp3"_s, u"b/song.mp3"_s, u"b/other.mp3"_s, u"c/an album/x"_s }) {
            QDir(folder.path()).mkpath(QFileInfo(path).path());
            QFile file(folder.filePath(path));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
        QVERIFY(QFile::link(folder.path(), folder.filePath(u"a/circle"_s)));
        int breaths = 0;
        const QHash<QString, QString> found = compilation::placesOf(
            { u"song.mp3"_s, u"an album"_s, u"gone.mp3"_s }, folder.path(), [&breaths] { ++breaths; });
        const QHash<QString, QString> expected{ { u"song.mp3"_s, folder.filePath(u"b/song.mp3"_s) },
            { u"an album"_s, folder.filePath(u"c/an album"_s) } };
        QCOMPARE(found, expected);
        QCOMPARE(breaths, 6);
    }

    void nothingToLookFor()
    {
        QVERIFY(compilation::placesOf({}, u"/"_s, [] { QFAIL("looked"); }).isEmpty());
        QVERIFY(compilation::placesOf({ u"x"_s }, u"/no/such/folder"_s, [] {}).isEmpty());
    }
};

QTEST_APPLESS_MAIN(MissingFilesTest)
#include "MissingFilesTest.moc"
