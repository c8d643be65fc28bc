#include "compilation/Playlist.h"

#include <QTest>

using namespace Qt::StringLiterals;
using compilation::Playlist;

class PlaylistTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void endings();
    void entries_data();
    void entries();
    void atMostSoMany();
    void whatIsNoXmlIsBroken_data();
    void whatIsNoXmlIsBroken();
    void aBombOfEntitiesIsNoMore();
    void places_data();
    void places();
};

void PlaylistTest::endings()
{
    for (const auto &name : { u"a.m3u"_s, u"b.M3U8"_s, u"c.pls"_s, u"d.XSPF"_s })
        QVERIFY2(compilation::isPlaylist(name), qPrintable(name));
    for (const auto &name : { u"a.mp3"_s, u"m3u"_s, u".m3u"_s, u"a.m3u.txt"_s, u""_s })
        QVERIFY2(!compilation::isPlaylist(name), qPrintable(name));
}

void PlaylistTest::entries_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QStringList>("entries");
    const QStringList two{ u"a.mp3"_s, u"sub/b ü.flac"_s };
    QTest::newRow("M3U") << u"x.m3u"_s << QByteArray("a.mp3\nsub/b \xc3\xbc.flac\n") << two;
    QTest::newRow("extended") << u"x.m3u"_s
                              << QByteArray(
                                     "#EXTM3U\n#EXTINF:123,Band - Song\na.mp3\n\n  \n#x\nsub/b \xc3\xbc.flac")
                              << two;
    QTest::newRow("CR and LF") << u"x.m3u8"_s << QByteArray("a.mp3\r\nsub/b \xc3\xbc.flac\r\n") << two;
    QTest::newRow("CR alone") << u"x.m3u8"_s << QByteArray("a.mp3\rsub/b \xc3\xbc.flac\r") << two;
    QTest::newRow("byte order mark") << u"x.m3u"_s
                                     << QByteArray("\xef\xbb\xbf#EXTM3U\na.mp3\nsub/b \xc3\xbc.flac") << two;
    QTest::newRow("UTF-16") << u"x.m3u"_s
                            << QByteArray("\xff\xfe"
                                          "a\0.\0m\0p\0"
                                          "3\0\n\0",
                                   14)
                            << QStringList(u"a.mp3"_s);
    QTest::newRow("ISO 8859-1") << u"x.m3u"_s << QByteArray("a.mp3\nsub/b \xfc.flac") << two;
    QTest::newRow("no entry") << u"x.m3u"_s << QByteArray("#EXTM3U\n") << QStringList();
    QTest::newRow("nothing") << u"x.pls"_s << QByteArray() << QStringList();
    QTest::newRow("PLS by number") << u"x.pls"_s
                                   << QByteArray("[playlist]\nNumberOfEntries=3\nFile10= sub/b "
                                                 "\xc3\xbc.flac\nTitle1=No\nfile2=a.mp3\r\nLength2=-1\n")
                                   << two;
    QTest::newRow("XSPF")
        << u"x.xspf"_s
        << QByteArray(
               "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
               "<playlist version=\"1\" xmlns=\"http://xspf.org/ns/0/\"><title>x</title>"
               "<location>file:///no</location><trackList>"
               "<track><title>T</title><location>\n a.mp3 </location><location>other</location></track>"
               "<track><title>No place</title></track>"
               "<track><extension><location>no</location></extension>"
               "<location>b%20&amp;.flac</location></track></trackList></playlist>")
        << QStringList({ u"a.mp3"_s, u"b%20&.flac"_s });
}

void PlaylistTest::entries()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    const Playlist playlist = compilation::parsePlaylist(name, content);
    QTEST(playlist.entries, "entries");
    QVERIFY(!playlist.isBroken && !playlist.isCut);
    QCOMPARE(playlist.areAddresses, name.endsWith(u"xspf"_s));
}

void PlaylistTest::atMostSoMany()
{
    const QByteArray content = QByteArray("a\n").repeated(compilation::mostPlaylistEntries);
    QVERIFY(!compilation::parsePlaylist(u"x.m3u"_s, content).isCut);
    const Playlist playlist = compilation::parsePlaylist(u"x.m3u"_s, content + "b\n");
    QVERIFY(playlist.isCut);
    QCOMPARE(playlist.entries.size(), compilation::mostPlaylistEntries);
    QCOMPARE(playlist.entries.last(), u"a"_s);
}

void PlaylistTest::whatIsNoXmlIsBroken_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("text") << QByteArray("a.mp3\n");
    QTest::newRow("cut") << QByteArray("<playlist><trackList><track><location>a</location></track><tr");
    QTest::newRow("something else") << QByteArray("<html><track><location>a</location></track></html>");
}

void PlaylistTest::whatIsNoXmlIsBroken()
{
    QFETCH(QByteArray, content);
    const Playlist playlist = compilation::parsePlaylist(u"x.xspf"_s, content);
    QVERIFY(playlist.isBroken);
    QCOMPARE(playlist.entries, QStringList());
}

void PlaylistTest::aBombOfEntitiesIsNoMore()
{
    QByteArray content = "<!DOCTYPE p [<!ENTITY e0 \"0123456789\">";
    for (int i = 1; i < 12; ++i) {
        const QByteArray before = "&e" + QByteArray::number(i - 1) + ";";
        content += "<!ENTITY e" + QByteArray::number(i) + " \"" + before.repeated(10) + "\">";
    }
    content += "]><playlist><trackList><track><location>&e11;</location></track></trackList></playlist>";
    QVERIFY(compilation::parsePlaylist(u"x.xspf"_s, content).isBroken);
}

void PlaylistTest::places_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<bool>("isAddress");
    QTest::addColumn<QStringList>("places"); // local paths, else whole addresses
    const auto row = [](const char *name, const QString &entry, bool isAddress, const QStringList &places) {
        QTest::newRow(name) << entry << isAddress << places;
    };
    row("beside it", u"a.mp3"_s, false, { u"/lists/a.mp3"_s });
    row("below and above", u"../music/./a.mp3"_s, false, { u"/music/a.mp3"_s });
    row("from the root", u"/x/a.mp3"_s, false, { u"/x/a.mp3"_s });
    row("escapes", u"a%20b.mp3"_s, false, { u"/lists/a%20b.mp3"_s, u"/lists/a b.mp3"_s });
    row("blanks", u" a.mp3 "_s, false, { u"/lists/ a.mp3 "_s, u"/lists/a.mp3"_s });
    row("backslashes", u"d\\a.mp3"_s, false, { u"/lists/d\\a.mp3"_s, u"/lists/d/a.mp3"_s });
    row("a colon", u"C:/a.mp3"_s, false, { u"/lists/C:/a.mp3"_s });
    row("file URL", u"file:///x/a%20b%23.mp3"_s, false, { u"/x/a b#.mp3"_s });
    row("file URL of this computer", u"FILE://localhost/x/a.mp3"_s, false, { u"/x/a.mp3"_s });
    row("of another one", u"file://server/x/a.mp3"_s, false, { u"file://server/x/a.mp3"_s });
    row("network", u"https://example.org/a.mp3"_s, false, { u"https://example.org/a.mp3"_s });
    row("network in XSPF", u"https://example.org/a.mp3"_s, true, { u"https://example.org/a.mp3"_s });
    row("address beside it", u"d/a%20b.mp3"_s, true, { u"/lists/d/a b.mp3"_s });
}

void PlaylistTest::places()
{
    QFETCH(QString, entry);
    QFETCH(bool, isAddress);
    QStringList found;
    for (const QUrl &url : compilation::placesOf(entry, isAddress, u"/lists"_s))
        found.append(url.isLocalFile() && url.host().isEmpty() ? url.toLocalFile() : url.toString());
    QTEST(found, "places");
}

QTEST_GUILESS_MAIN(PlaylistTest)
#include "PlaylistTest.moc"
