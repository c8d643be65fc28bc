#include "compilation/MediaSearch.h"

#include "compilation/Playlist.h"
#include "support/ScratchFolder.h"

#include <QTest>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using compilation::Found;
using compilation::Refusal;
using compilation::Wanted;
using Way = Wanted::Way;

class MediaSearchTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void ways();
    void belowAFolder();
    void aCycleOfLinksEnds();
    void aPlaylistGivesItsFiles();
    void aPlaylistThatIsNone_data();
    void aPlaylistThatIsNone();
    void aFolderThatMayNotBeLookedIntoIsTold();
    void stopped();

private:
    std::filesystem::path folder(const char *below) const { return m_folder / below; }
    QUrl url(const QString &below) const
    {
        return QUrl::fromLocalFile(QString::fromStdString(m_folder / below.toStdString()));
    }
    /// "song.mp3 listed", from the folder of the test on.
    QStringList told(const Found &found) const;
    QStringList refused(const Found &found) const;
    Found search(const QString &below, Way way) const
    {
        return compilation::filesOf({ { url(below), way, 7 } }, m_endings, false);
    }

    support::ScratchFolder m_folder;
    const QStringList m_endings{ u"mp3"_s, u"wav"_s };
};

void MediaSearchTest::initTestCase()
{
    for (const char *name : { "box", "box/disc 10", "box/disc 2", "box/disc 2/deep", "lists" })
        support::makeFolder(folder(name));
    for (const char *name : { "box/b.flac", "box/A.MP3", "box/cover.jpg", "box/list.m3u", "box/disc 10/1.mp3",
             "box/disc 2/10.wav", "box/disc 2/9.opus", "box/disc 2/deep/x.mp3" })
        support::writeFile(folder(name), "x");
    support::check(::mkfifo(folder("box/pipe.mp3").c_str(), 0600), "mkfifo");
    support::makeLink("..", folder("box/disc 2/up"));
    support::makeLink("disc 10", folder("box/disc 30"));
    support::writeFile(folder("lists/all.m3u"),
        "#EXTM3U\n../box/A.MP3\n../box/disc%202/9.opus\n..\\box\\b.flac\ngone.mp3\nhttps://example.org/"
        "a.mp3\n"
        "../box\nother.pls\n../box/pipe.mp3\n../box/A.MP3\n");
    support::writeFile(folder("lists/other.pls"), "[playlist]\nFile1=a.mp3\n");
    support::writeFile(folder("lists/empty.m3u"), "#EXTM3U\n");
    support::writeFile(folder("lists/broken.xspf"), "<playlist><track>");
    support::check(::mkfifo(folder("lists/pipe.m3u").c_str(), 0600), "mkfifo");
    support::writeFile(folder("lists/large.m3u"), "a\n");
    std::filesystem::resize_file(folder("lists/large.m3u"), compilation::mostPlaylistBytes + 1);
}

QStringList MediaSearchTest::told(const Found &found) const
{
    QStringList told;
    for (const Wanted &file : found.files) {
        const QString name = file.url.toLocalFile().sliced(url({}).toLocalFile().size());
        told.append(name
            + (file.way == Way::Listed        ? u" listed"_s
                    : file.way == Way::Probed ? u" probed"_s
                                              : u" found"_s));
        if (file.place != 7)
            told.append(u"of another place"_s);
    }
    return told;
}

QStringList MediaSearchTest::refused(const Found &found) const
{
    QStringList names;
    for (const compilation::Refused &one : found.refused)
        names.append(u"%1 %2"_s.arg(int(one.refusal)).arg(one.url.fileName()));
    return names;
}

void MediaSearchTest::ways()
{
    QCOMPARE(compilation::wayOf(url(u"box/A.MP3"_s), m_endings), Way::Listed);
    QCOMPARE(compilation::wayOf(url(u"box/b.flac"_s), m_endings), Way::Probed);
    QCOMPARE(compilation::wayOf(url(u"lists/all.m3u"_s), m_endings), Way::Playlist);
}

// Folders before files, and both in natural order.
void MediaSearchTest::belowAFolder()
{
    const Found found = search(u"box"_s, Way::Tree);
    QCOMPARE(told(found),
        QStringList({ u"box/disc 2/deep/x.mp3 listed"_s, u"box/disc 2/9.opus found"_s,
            u"box/disc 2/10.wav listed"_s, u"box/disc 10/1.mp3 listed"_s, u"box/A.MP3 listed"_s,
            u"box/b.flac found"_s, u"box/cover.jpg found"_s }));
    QVERIFY(found.refused.isEmpty());
}

void MediaSearchTest::aCycleOfLinksEnds()
{
    const Found found = search(u"box/disc 2"_s, Way::Tree);
    // By the link "up" all of the box is below, its folder "disc 2" not once more.
    QCOMPARE(told(found).filter(u"10.wav"_s).size(), 1);
    QCOMPARE(told(found).filter(u"1.mp3"_s).size(), 1);
}

void MediaSearchTest::aPlaylistGivesItsFiles()
{
    const Found found = search(u"lists/all.m3u"_s, Way::Playlist);
    QCOMPARE(told(found),
        QStringList({ u"box/A.MP3 listed"_s, u"box/disc 2/9.opus probed"_s, u"box/b.flac probed"_s,
            u"box/A.MP3 listed"_s }));
    const auto line = [](Refusal refusal, const char *name) {
        return u"%1 %2"_s.arg(int(refusal)).arg(QLatin1StringView(name));
    };
    QCOMPARE(refused(found),
        QStringList({ line(Refusal::Missing, "gone.mp3"), line(Refusal::Elsewhere, "a.mp3"),
            line(Refusal::InPlaylist, "box"), line(Refusal::InPlaylist, "other.pls"),
            line(Refusal::NoFile, "pipe.mp3") }));
}

void MediaSearchTest::aPlaylistThatIsNone_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("refusal");
    QTest::newRow("names nothing") << u"empty.m3u"_s << int(Refusal::EmptyPlaylist);
    QTest::newRow("damaged") << u"broken.xspf"_s << int(Refusal::EmptyPlaylist);
    QTest::newRow("gone") << u"gone.m3u"_s << int(Refusal::EmptyPlaylist);
    QTest::newRow("too large") << u"large.m3u"_s << int(Refusal::LargePlaylist);
    QTest::newRow("a pipe") << u"pipe.m3u"_s << int(Refusal::NoFile);
}

void MediaSearchTest::aPlaylistThatIsNone()
{
    QFETCH(QString, name);
    const Found found = search(u"lists/"_s + name, Way::Playlist);
    QVERIFY(found.files.isEmpty());
    QCOMPARE(found.refused.size(), 1);
    QTEST(int(found.refused.first().refusal), "refusal");
}

void MediaSearchTest::aFolderThatMayNotBeLookedIntoIsTold()
{
    support::makeFolder(folder("part"));
    support::makeFolder(folder("part/closed"), 0);
    support::writeFile(folder("part/x.mp3"), "x");
    const auto outcome = [this] {
        const Found found = compilation::filesOf({ { QUrl(u"file:part"_s), Way::Tree } }, m_endings, false);
        const bool isTold = found.refused.size() == 1 && found.refused.first().refusal == Refusal::Forbidden
            && found.refused.first().url.fileName() == "closed"_L1;
        return isTold ? static_cast<int>(found.files.size()) : -1;
    };
    QCOMPARE(support::asOrdinaryUser(m_folder.path(), outcome), 1);
}

void MediaSearchTest::stopped()
{
    const Found found = compilation::filesOf({ { url(u"box"_s), Way::Tree, 0 } }, m_endings, true);
    QVERIFY(found.files.isEmpty());
}

QTEST_GUILESS_MAIN(MediaSearchTest)
#include "MediaSearchTest.moc"
