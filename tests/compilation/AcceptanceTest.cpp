#include "compilation/Acceptance.h"

#include "support/ScratchFolder.h"

#include <QTest>

using namespace Qt::StringLiterals;
using compilation::Refusal;

Q_DECLARE_METATYPE(compilation::Refusal)

class AcceptanceTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void media_data();
    void media();
    void folders_data();
    void folders();
    void forbiddenFolder();
    void everyRefusalHasItsSentence();

private:
    QUrl url(const QString &below) const
    {
        return QUrl::fromLocalFile(QString::fromStdString(m_folder / below.toStdString()));
    }

    support::ScratchFolder m_folder;
    const QStringList m_endings{ u"mp3"_s, u"wav"_s };
};

void AcceptanceTest::initTestCase()
{
    for (const char *name : { "album", "capitals", "words", "deep", "deep/album", "empty" })
        support::makeFolder(m_folder / name);
    for (const char *name : { "song.mp3", "LOUD.MP3", "text.txt", "album/one.wav", "album/TWO.MP3",
             "capitals/X.MP3", "capitals/cover.jpg", "words/a.txt", "deep/album/one.mp3" })
        support::writeFile(m_folder / name, "x");
    support::check(::mkfifo((m_folder / "pipe.mp3").c_str(), 0600), "mkfifo");
    support::makeLink("/dev/null", m_folder / "device.mp3");
    support::makeLink("/nowhere/at all.mp3", m_folder / "lost.mp3");
    support::makeLink("song.mp3", m_folder / "link.mp3");
}

void AcceptanceTest::media_data()
{
    QTest::addColumn<QString>("below");
    QTest::addColumn<Refusal>("refusal");
    QTest::newRow("file") << u"song.mp3"_s << Refusal::None;
    QTest::newRow("its ending in capitals") << u"LOUD.MP3"_s << Refusal::None;
    QTest::newRow("link to a file") << u"link.mp3"_s << Refusal::None;
    QTest::newRow("another ending") << u"text.txt"_s << Refusal::OtherEnding;
    QTest::newRow("folder") << u"album"_s << Refusal::None;
    QTest::newRow("folder in capitals") << u"capitals"_s << Refusal::FolderInCapitals;
    QTest::newRow("folder of others") << u"words"_s << Refusal::FolderWithout;
    QTest::newRow("folder of folders") << u"deep"_s << Refusal::FolderWithout;
    QTest::newRow("empty folder") << u"empty"_s << Refusal::FolderWithout;
    QTest::newRow("gone") << u"gone.mp3"_s << Refusal::Missing;
    QTest::newRow("in a folder that is gone") << u"gone/song.mp3"_s << Refusal::Missing;
    QTest::newRow("link to nothing") << u"lost.mp3"_s << Refusal::DanglingLink;
    QTest::newRow("pipe") << u"pipe.mp3"_s << Refusal::NoFile;
    QTest::newRow("device") << u"device.mp3"_s << Refusal::NoFile;
}

void AcceptanceTest::media()
{
    QFETCH(QString, below);
    QFETCH(Refusal, refusal);
    QCOMPARE(compilation::refusalOfMedia(url(below), m_endings), refusal);
    for (const auto &elsewhere :
        { u"https://example.org/song.mp3"_s, u"sftp://host/song.mp3"_s, u"trash:/x"_s })
        QCOMPARE(compilation::refusalOfMedia(QUrl(elsewhere), m_endings), Refusal::Elsewhere);
}

void AcceptanceTest::folders_data()
{
    QTest::addColumn<QString>("below");
    QTest::addColumn<Refusal>("refusal");
    QTest::newRow("folder") << u"empty"_s << Refusal::None;
    QTest::newRow("file") << u"song.mp3"_s << Refusal::None;
    QTest::newRow("pipe") << u"pipe.mp3"_s << Refusal::NoFile;
    QTest::newRow("gone") << u"gone"_s << Refusal::Missing;
    QTest::newRow("link to nothing") << u"lost.mp3"_s << Refusal::DanglingLink;
}

void AcceptanceTest::folders()
{
    QFETCH(QString, below);
    QFETCH(Refusal, refusal);
    QCOMPARE(compilation::refusalOfData(url(below)), refusal);
    QCOMPARE(compilation::refusalOfData(QUrl(u"smb://host/share"_s)), Refusal::Elsewhere);
}

void AcceptanceTest::forbiddenFolder()
{
    support::makeFolder(m_folder / "closed", 0);
    const QUrl closed(u"file:closed"_s); // seen from the folder around it
    QCOMPARE(support::asOrdinaryUser(m_folder.path(),
                 [&] { return static_cast<int>(compilation::refusalOfMedia(closed, m_endings)); }),
        static_cast<int>(Refusal::Forbidden));
    QCOMPARE(support::asOrdinaryUser(
                 m_folder.path(), [&] { return static_cast<int>(compilation::refusalOfData(closed)); }),
        static_cast<int>(Refusal::Forbidden));
}

void AcceptanceTest::everyRefusalHasItsSentence()
{
    QStringList sentences;
    for (int refusal = 1; refusal <= static_cast<int>(Refusal::LargeFolder); ++refusal) {
        const QString text = compilation::sentence(static_cast<Refusal>(refusal), m_endings);
        QVERIFY2(text.endsWith(u'.') && !text.contains(u'%'), qPrintable(text));
        QVERIFY2(!sentences.contains(text), qPrintable(text));
        sentences.append(text);
    }
    QVERIFY(compilation::sentence(Refusal::OtherEnding, m_endings).contains(u"mp3, wav"_s));
    QVERIFY(compilation::sentence(Refusal::None, m_endings).isEmpty());
}

QTEST_APPLESS_MAIN(AcceptanceTest)
#include "AcceptanceTest.moc"
