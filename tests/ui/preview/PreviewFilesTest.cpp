// What the player makes of files: every kind that the lists take, and everything that is no media.
#include "support/Share.h"
#include "ui/preview/PreviewWindow.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>

#include <cmath>
#include <cstdio>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

class PreviewFilesTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { QVERIFY(copyMedia(m_folder.path())); }
    void everyKindPlaysAndSeeks_data();
    void everyKindPlaysAndSeeks();
    void notMedia_data();
    void notMedia();
    void cannotBeOpened_data();
    void cannotBeOpened();
    void truncatedFilesPlayWhatIsThere_data();
    void truncatedFilesPlayWhatIsThere();
    void removedWhilePlaying();
    void truncatedWhilePlaying();
    void oddNames_data();
    void oddNames();
    void closedWhileLoading();
    void missingModuleIsExplained();

private:
    QString path(const QString &name) const { return m_folder.filePath(name); }
    QByteArray read(const char *name) const;
    QString write(const QString &name, const QByteArray &content) const;
    QTemporaryDir m_folder;
};

QByteArray PreviewFilesTest::read(const char *name) const
{
    QFile file(path(QString::fromLatin1(name)));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString PreviewFilesTest::write(const QString &name, const QByteArray &content) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write a test file");
    return file.fileName();
}

void PreviewFilesTest::everyKindPlaysAndSeeks_data()
{
    QTest::addColumn<QString>("name");
    qsizetype row = 0;
    for (const char *name :
        { "sound.wma", "sound.wav", "sound.mp3", "sound.mp2", "sound.mpga", "sound.m4a", "film.wmv",
            "film.mov", "film.mpg", "film.mpeg", "film.mpe", "film.avi", "film.asf", "film.qt", "film.mp4",
            "film.mpeg-4", "film.flv", "film.ts", "film.3gp", "film.m1v", "film.m2v", "film.mjpg",
            "silent.mp4", "film-90.mp4", "film-180.mov", "film-270.3gp", "film-90.mpeg-4", "film-270.qt",
            "film-colours.mjpg", "film-h264.mpg", "film-slices.mpeg", "film-h265.mpg", "film-mpeg4.mpg" }) {
        if (support::isOfThisShare(row++))
            QTest::newRow(name) << QString::fromLatin1(name);
    }
}

void PreviewFilesTest::everyKindPlaysAndSeeks()
{
    QFETCH(QString, name);
    const bool isSound = name.startsWith("sound"_L1);
    PreviewWindow player(path(name));
    QVERIFY(player.isSpinning());
    QVERIFY(!player.isReady());
    QTRY_VERIFY(player.isReady());
    QTRY_VERIFY(!player.isSpinning());
    QCOMPARE(player.showsNoVideo(), isSound);
    QVERIFY(!player.showsUnplayable());
    QVERIFY(!player.hasAlerted());
    QVERIFY(!player.find<QLabel>("failureLabel")->isVisible());
    QVERIFY2(std::abs(player.duration() - 12) < 0.5, qPrintable(QString::number(player.duration())));
    if (!isSound)
        QTRY_VERIFY(std::abs(player.pictureTime()) < 0.2);

    player.setCurrentTime(8);
    if (!isSound)
        QTRY_VERIFY2(
            std::abs(player.pictureTime() - 8) < 0.2, qPrintable(QString::number(player.pictureTime())));
    player.play()->click();
    QTRY_VERIFY(player.currentTime() > 8.5);
    QCOMPARE(player.rate(), 1.0);
    player.rewind()->click();
    player.rewind()->click();
    QTRY_VERIFY(player.currentTime() < 7);
    if (!isSound)
        QTRY_VERIFY(player.pictureTime() < 7);
    QCOMPARE(player.rate(), -4.0);
    player.setCurrentTime(1);
    QTRY_COMPARE(player.rate(), 0.0);
    QCOMPARE(player.currentTime(), 0.0);
}

void PreviewFilesTest::notMedia_data()
{
    QTest::addColumn<QByteArray>("content");
    QByteArray noise(100'000, Qt::Uninitialized);
    quint32 state = 1;
    for (char &byte : noise)
        byte = static_cast<char>((state = state * 1664525 + 1013904223) >> 24);
    QTest::newRow("text") << QByteArray("This is a letter, not a film.\n").repeated(200);
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("one byte") << QByteArray("x");
    QTest::newRow("noise") << noise;
    QTest::newRow("zeros") << QByteArray(50'000, 0);
    QTest::newRow("still picture") << read("still.png");
    QTest::newRow("still picture of a camera") << read("still.jpg");
    QTest::newRow("film without a picture") << read("nothing.avi");
    QTest::newRow("film of another kind without a picture") << read("nothing.wmv");
    QTest::newRow("sound without a sample") << read("nothing.wav");
    QTest::newRow("film without its index") << read("film.mp4").left(60'000);
    QTest::newRow("list of files") << QByteArray("#EXTM3U\nfilm.mp4\nsound.mp3\n");
    QTest::newRow("list of segments") << QByteArray("#EXTM3U\n#EXT-X-VERSION:3\n#EXT-X-TARGETDURATION:12\n"
                                                    "#EXTINF:12,\nfilm.ts\n#EXT-X-ENDLIST\n");
    QTest::newRow("list of other places") << QByteArray("<asx version=\"3.0\"><entry><ref href=\"http://"
                                                        "localhost:1/film.wmv\"/></entry></asx>\n");
}

void PreviewFilesTest::notMedia()
{
    QFETCH(QByteArray, content);
    PreviewWindow player(write(u"renamed.mp4"_s, content));
    QTRY_VERIFY(!player.isSpinning());
    QVERIFY(player.showsUnplayable());
    QVERIFY(!player.showsNoVideo());
    QVERIFY(!player.hasAlerted());
    QVERIFY(!player.isReady());
    QVERIFY(!player.play()->toolTip().isEmpty());
    QCOMPARE(player.duration(), 0.0);
    player.play()->click();
    player.setCurrentTime(3);
    QCOMPARE(player.rate(), 0.0);
    QCOMPARE(player.currentTime(), 0.0);
}

void PreviewFilesTest::cannotBeOpened_data()
{
    QTest::addColumn<QUrl>("url");
    const auto local = [this](const QString &name) { return QUrl::fromLocalFile(path(name)); };
    QDir(m_folder.path()).mkdir(u"folder.mp4"_s);
    QFile::copy(path(u"film.mp4"_s), path(u"folder.mp4/film.mp4"_s));
    ::mkfifo(QFile::encodeName(path(u"pipe.mp4"_s)).constData(), 0600);
    QFile::link(u"nowhere"_s, path(u"broken.mp4"_s));
    QTest::newRow("missing") << local(u"missing.mp4"_s);
    QTest::newRow("folder") << local(u"folder.mp4"_s);
    QTest::newRow("pipe") << local(u"pipe.mp4"_s);
    QTest::newRow("broken link") << local(u"broken.mp4"_s);
    QTest::newRow("name too long") << local(QString(5000, u'x'));
    QTest::newRow("not here") << QUrl(u"http://localhost:1/film.mp4"_s);
    QTest::newRow("nothing") << QUrl();
}

void PreviewFilesTest::cannotBeOpened()
{
    QFETCH(QUrl, url);
    PreviewWindow player(url);
    QTRY_VERIFY(player.hasAlerted());
    QVERIFY(!player.isSpinning());
    const auto text = u"Video could not be played."_s;
    QCOMPARE(player.alerts, (QList{ std::pair(text, text) }));
    QVERIFY(!player.isReady());
    QVERIFY(!player.showsUnplayable());
    QVERIFY(!player.showsNoVideo());
    QVERIFY(player->isVisible());
    const auto *reason = player.find<QLabel>("failureLabel"); // stays when the alert is gone
    QVERIFY(reason->isVisible());
    QVERIFY(!reason->text().isEmpty());
    QTest::keyClick(player.window(), Qt::Key_Escape);
    QVERIFY(!player->isVisible());
}

void PreviewFilesTest::truncatedFilesPlayWhatIsThere_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : { "faststart.mp4", "film.mpg", "film.ts", "film.flv", "film.avi", "sound.mp3" })
        QTest::newRow(name) << QString::fromLatin1(name);
}

void PreviewFilesTest::truncatedFilesPlayWhatIsThere()
{
    QFETCH(QString, name);
    const auto whole = read(name.toLatin1().constData());
    PreviewWindow player(write(u"cut-"_s + name, whole.left(whole.size() / 3)));
    QTRY_VERIFY(player.isReady());
    player.forward()->click();
    player.forward()->click();
    QTRY_VERIFY(player.currentTime() > 1.5);
    // It ends by itself, wherever the file says that its end is.
    QTRY_COMPARE_WITH_TIMEOUT(player.rate(), 0.0, 30'000);
    player.setCurrentTime(1);
    player.play()->click();
    QTRY_VERIFY(player.currentTime() > 1.2);
}

void PreviewFilesTest::removedWhilePlaying()
{
    QVERIFY(QFile::copy(path(u"film.mp4"_s), path(u"removed.mp4"_s)));
    PreviewWindow player(path(u"removed.mp4"_s));
    QTRY_VERIFY(player.isReady());
    player.play()->click();
    QTRY_VERIFY(player.currentTime() > 0.3);
    QVERIFY(QFile::remove(path(u"removed.mp4"_s)));
    player.setCurrentTime(8);
    QTRY_VERIFY(player.currentTime() > 8.3);
    QVERIFY(std::abs(player.pictureTime() - player.currentTime()) < 0.5);
    QVERIFY(!player.hasAlerted());
}

void PreviewFilesTest::truncatedWhilePlaying()
{
    const auto whole = read("film.mpg");
    PreviewWindow player(write(u"shrinking.mpg"_s, whole));
    QTRY_VERIFY(player.isReady());
    player.play()->click();
    QTRY_VERIFY(player.currentTime() > 0.3);
    QVERIFY(QFile::resize(path(u"shrinking.mpg"_s), whole.size() / 3));
    player.forward()->click();
    player.forward()->click();
    QTRY_COMPARE_WITH_TIMEOUT(player.rate(), 0.0, 30'000); // it ends, and what is there still plays
    player.setCurrentTime(1);
    player.play()->click();
    QTRY_VERIFY(player.currentTime() > 1.2);
    QCOMPARE(player.rate(), 1.0);
}

void PreviewFilesTest::oddNames_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const QByteArray &name : { QByteArray("two  blanks.mp4"), QByteArray("-rf.mp4"),
             QByteArray("\"quoted\" 'name'.mp4"), QByteArray("line\nbreak\ttab.mp4"),
             QByteArray("100%25?query#fragment.mp4"), QByteArray("%03d.mp4"),
             QByteArray("\xe6\x97\xa5\xe6\x9c\xac.mp4"), QByteArray("not utf\xff\xfe.mp4"),
             QByteArray("ytdl:.mp4"), QByteArray("$(touch x)`y`\\.mp4"), QByteArray(251, 'n') + ".mp4" })
        QTest::newRow(name.toPercentEncoding().constData()) << name;
}

void PreviewFilesTest::oddNames()
{
    QFETCH(QByteArray, name);
    const QByteArray whole = QFile::encodeName(m_folder.path()) + '/' + name;
    QVERIFY(::link(QFile::encodeName(path(u"film.mp4"_s)).constData(), whole.constData()) == 0);
    PreviewWindow player(QUrl::fromEncoded("file://" + whole.toPercentEncoding("/")));
    QTRY_VERIFY(player.isReady());
    QVERIFY(std::abs(player.duration() - 12) < 0.1);
    QVERIFY(!player->windowTitle().contains(u'\n'));
    QVERIFY(!player->windowTitle().isEmpty());
}

void PreviewFilesTest::closedWhileLoading()
{
    for (int i = 0; i < 20; ++i) {
        PreviewWindow player(path(u"film.ts"_s));
        QTest::qWait(i * 5);
        player->close();
    }
}

void PreviewFilesTest::missingModuleIsExplained()
{
    // The same program elsewhere has no module beside it.
    const auto elsewhere = path(u"elsewhere"_s);
    QVERIFY(QFile::copy(QCoreApplication::applicationFilePath(), elsewhere));
    QProcess process;
    process.start(elsewhere, { u"--play"_s, path(u"film.mp4"_s) });
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 1);
    const auto said = QString::fromUtf8(process.readAllStandardOutput());
    QVERIFY2(said.startsWith("The preview player is not installed completely"_L1), qPrintable(said));
    QVERIFY(said.contains("corvalis_preview.so"_L1));
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const auto arguments = application.arguments();
    if (arguments.value(1) == "--play"_L1) {
        QSettings preferences;
        const auto whyNot = playPreview(QUrl::fromLocalFile(arguments.value(2)), nullptr, preferences, {});
        std::fputs(whyNot.toUtf8().constData(), stdout);
        return whyNot.isEmpty() ? 0 : 1;
    }
    PreviewFilesTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "PreviewFilesTest.moc"
