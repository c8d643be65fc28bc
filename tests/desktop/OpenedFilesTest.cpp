// Where opened files go.
#include "desktop/OpenedFiles.h"

#include "support/TestApplication.h"

#include <QTest>

using namespace Qt::StringLiterals;
using desktop::Destination;
Q_DECLARE_METATYPE(Destination)

class OpenedFilesTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void destination_data();
    void destination();
    void addressElsewhere();
    void majority_data();
    void majority();

private:
    QUrl made(const QString &name);
    QTemporaryDir m_folder;
};

QUrl OpenedFilesTest::made(const QString &name)
{
    const QString path = m_folder.filePath(name);
    if (name.endsWith(u'/'))
        QDir().mkpath(path);
    else if (!name.startsWith("gone"_L1))
        makeFile(path);
    return QUrl::fromLocalFile(path);
}

void OpenedFilesTest::destination_data()
{
    QTest::addColumn<Destination>("expected");
    const std::pair<const char *, Destination> rows[] = {
        { "party.corvalis", Destination::List },
        { "PARTY.CORVALIS", Destination::List },
        { "disc.iso", Destination::Image },
        { "Disc.ISO", Destination::Image },
        { "disc.img", Destination::Image },
        { "disc.dmg", Destination::Image },
        { "song.mp3", Destination::Audio },
        { "song.WAV", Destination::Audio },
        { "song.flac", Destination::Audio },
        { "song.opus", Destination::Audio },
        { "songs.m3u", Destination::Audio },
        { "songs.xspf", Destination::Audio },
        { "film.mp4", Destination::Video },
        { "film.ts", Destination::Video },
        { "film.mkv", Destination::Video },
        { "letter.pdf", Destination::Data },
        { "without", Destination::Data },
        { ".hidden", Destination::Data },
        { "album/", Destination::Data },
        { "album.mp3/", Destination::Data },
        { "100%25 of #1?.mp3", Destination::Audio },
        { "gone.mp3", Destination::None },
    };
    for (const auto &[name, expected] : rows)
        QTest::newRow(name) << expected;
}

void OpenedFilesTest::destination()
{
    QFETCH(Destination, expected);
    QCOMPARE(desktop::destinationOf(made(QString::fromLatin1(QTest::currentDataTag()))), expected);
}

void OpenedFilesTest::addressElsewhere()
{
    for (const auto &address : { u"https://somewhere/song.mp3"_s, u"sftp://somewhere/disc.iso"_s,
             u"song.mp3"_s, u""_s, u"file://"_s })
        QCOMPARE(desktop::destinationOf(QUrl(address)), Destination::None);
}

void OpenedFilesTest::majority_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<Destination>("expected");
    QTest::addColumn<int>("taken");
    QTest::addColumn<QStringList>("left");
    const QStringList none;
    QTest::newRow("nothing") << none << Destination::None << 0 << none;
    QTest::newRow("all gone") << QStringList{ u"gone1.mp3"_s, u"gone2.iso"_s } << Destination::None << 0
                              << QStringList{ u"gone1.mp3"_s, u"gone2.iso"_s };
    QTest::newRow("more music") << QStringList{ u"f.mp4"_s, u"a.mp3"_s, u"b.mp3"_s } << Destination::Audio
                                << 3 << none;
    QTest::newRow("more films") << QStringList{ u"a.mp3"_s, u"f.mp4"_s, u"g.mp4"_s } << Destination::Video
                                << 3 << none;
    QTest::newRow("as many") << QStringList{ u"f.mp4"_s, u"a.mp3"_s } << Destination::Video << 2 << none;
    QTest::newRow("gone ones do not count")
        << QStringList{ u"gone1.iso"_s, u"gone2.iso"_s, u"a.mp3"_s } << Destination::Audio << 3 << none;
    QTest::newRow("two images") << QStringList{ u"one.iso"_s, u"two.iso"_s, u"a.mp3"_s } << Destination::Image
                                << 1 << QStringList{ u"two.iso"_s, u"a.mp3"_s };
    QTest::newRow("list") << QStringList{ u"party.corvalis"_s } << Destination::List << 1 << none;
}

void OpenedFilesTest::majority()
{
    QFETCH(QStringList, names);
    QFETCH(QStringList, left);
    QFETCH(int, taken);
    QList<QUrl> urls;
    for (const QString &name : names)
        urls.append(made(name));
    const desktop::OpenedFiles opened = desktop::sortedOut(urls);
    QTEST(opened.destination, "expected");
    QCOMPARE(opened.taken, urls.first(taken));
    QStringList namesLeft;
    for (const QUrl &url : opened.left)
        namesLeft.append(url.fileName());
    QCOMPARE(namesLeft, left);
}

QTEST_GUILESS_MAIN(OpenedFilesTest)
#include "OpenedFilesTest.moc"
