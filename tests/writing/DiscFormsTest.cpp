#include "writing/DiscForms.h"

#include "support/ScratchFolder.h"
#include "writing/FolderGathering.h"
#include "writing/Names.h"

#include <QTest>

using namespace Qt::StringLiterals;

class DiscFormsTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void asksForWaveFiles();
    void asksForMp3Files();
    void asksForVideoStreams_data();
    void asksForVideoStreams();
    void namesConvertedFiles_data();
    void namesConvertedFiles();
    void namesFilesThatAFileSystemTakes_data();
    void namesFilesThatAFileSystemTakes();
    void findsAFreeFolder_data();
    void findsAFreeFolder();
};

void DiscFormsTest::asksForWaveFiles()
{
    QCOMPARE(writing::wavArguments(u"/m/-a b.m4a"_s, u"/w/-a b.wav"_s),
        (QStringList{ u"-i"_s, u"/m/-a b.m4a"_s, u"-acodec"_s, u"pcm_s16le"_s, u"-ar"_s, u"44100"_s, u"-ac"_s,
            u"2"_s, u"/w/-a b.wav"_s }));
}

void DiscFormsTest::asksForMp3Files()
{
    QCOMPARE(writing::mp3Arguments(u"/m/a.m4a"_s, u"/w/a.mp3"_s),
        (QStringList{ u"-i"_s, u"/m/a.m4a"_s, u"-vn"_s, u"-ar"_s, u"44100"_s, u"-ac"_s, u"2"_s, u"-ab"_s,
            u"192k"_s, u"-f"_s, u"mp3"_s, u"/w/a.mp3"_s }));
}

void DiscFormsTest::asksForVideoStreams_data()
{
    QTest::addColumn<QString>("videoFormat");
    QTest::addColumn<QString>("audioFormat");
    QTest::addColumn<QStringList>("chosen"); // target, picture size, pictures in a second, sound

    const QStringList ntsc{ u"ntsc-dvd"_s, u"720x480"_s, u"29.97"_s };
    const QStringList pal{ u"pal-dvd"_s, u"720x576"_s, u"25"_s };
    const auto row = [](const char *name, const QString &video, const QString &audio,
                         const QStringList &chosen) { QTest::newRow(name) << video << audio << chosen; };
    row("NTSC, Dolby Digital", u"0"_s, u"0"_s, ntsc + QStringList(u"ac3"_s));
    row("NTSC, MPEG audio", u"0"_s, u"1"_s, ntsc + QStringList(u"mp2"_s));
    row("PAL, Dolby Digital", u"1"_s, u"0"_s, pal + QStringList(u"ac3"_s));
    row("PAL, MPEG audio", u"1"_s, u"1"_s, pal + QStringList(u"mp2"_s));
    row("no setting", {}, {}, pal + QStringList(u"mp2"_s));
    row("an unknown setting", u"2"_s, u"none"_s, pal + QStringList(u"mp2"_s));
    row("a setting that only looks alike", u"00"_s, u" 0"_s, pal + QStringList(u"mp2"_s));
}

void DiscFormsTest::asksForVideoStreams()
{
    QFETCH(QString, videoFormat);
    QFETCH(QString, audioFormat);
    QFETCH(QStringList, chosen);
    QCOMPARE(writing::mpegArguments(u"/m/clip.mov"_s, u"/w/clip.mpg"_s, videoFormat, audioFormat),
        (QStringList{ u"-i"_s, u"/m/clip.mov"_s, u"-target"_s, chosen[0], u"-s"_s, chosen[1], u"-r"_s,
            chosen[2], u"-acodec"_s, chosen[3], u"-ar"_s, u"48000"_s, u"-ac"_s, u"2"_s, u"/w/clip.mpg"_s }));
}

void DiscFormsTest::namesConvertedFiles_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("name");

    QTest::newRow("another extension") << u"/m/a.m4a"_s << u"a.wav"_s;
    QTest::newRow("the same extension") << u"/m/b.wav"_s << u"b.wav"_s;
    QTest::newRow("the same base in another folder") << u"/y/a.mp3"_s << u"a.wav"_s;
    QTest::newRow("no extension") << u"/m.d/song"_s << u"song.wav"_s;
    QTest::newRow("only the last extension goes") << u"/m/a.tar.mp3"_s << u"a.tar.wav"_s;
    QTest::newRow("hidden") << u"/m/.a.mp3"_s << u".a.wav"_s;
    QTest::newRow("hidden, no extension") << u"/m/.mp3"_s << u".mp3.wav"_s;
    QTest::newRow("ends with a dot") << u"/m/a."_s << u"a..wav"_s;
    QTest::newRow("blanks and a leading dash") << u"/m/-i my song.mp3"_s << u"-i my song.wav"_s;
    QTest::newRow("percent signs") << u"/m/%1 100%2 %3.mp3"_s << u"%1 100%2 %3.wav"_s;
    QTest::newRow("quotes and line ends") << u"/m/\"a\"\n'b'.mp3"_s << u"\"a\"\n'b'.wav"_s;
    QTest::newRow("letters that are not ASCII") << u"/m/Größe 光.mp3"_s << u"Größe 光.wav"_s;
}

void DiscFormsTest::namesConvertedFiles()
{
    QFETCH(QString, source);
    QFETCH(QString, name);
    QCOMPARE(writing::convertedPath(u"/work %1/audio"_s, source, "wav"_L1), u"/work %1/audio/"_s + name);
}

void DiscFormsTest::namesFilesThatAFileSystemTakes_data()
{
    QTest::addColumn<QString>("base");
    QTest::addColumn<QString>("shortened");

    QTest::newRow("251 bytes still fit") << QString(251, u'a') << QString(251, u'a');
    QTest::newRow("252 bytes do not") << QString(252, u'a') << QString(251, u'a');
    QTest::newRow("255 bytes without an extension") << QString(255, u'a') << QString(251, u'a');
    QTest::newRow("cut between letters of two bytes") << QString(126, u'ä') << QString(125, u'ä');
    QTest::newRow("cut between letters of three bytes") << QString(84, u'光') << QString(83, u'光');
    QTest::newRow("cut between letters of four bytes") << u"🎵"_s.repeated(63) << u"🎵"_s.repeated(62);
}

void DiscFormsTest::namesFilesThatAFileSystemTakes()
{
    QFETCH(QString, base);
    QFETCH(QString, shortened);
    const support::ScratchFolder scratch;
    const QString path =
        writing::convertedPath(QString::fromStdString(scratch.path()), u"/m/"_s + base, "mpg"_L1);
    QCOMPARE(path, QString::fromStdString(scratch / "") + shortened + u".mpg"_s);
    support::writeFile(path.toStdString(), "1");
}

void DiscFormsTest::findsAFreeFolder_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("there");
    QTest::addColumn<QString>("destination");

    const auto row = [](const char *description, const QString &name, const QStringList &there,
                         const QString &free) { QTest::newRow(description) << name << there << free; };
    row("the first of its name", u"Music"_s, {}, {});
    row("another name is there", u"Music"_s, { u"music"_s }, {});
    row("the second of its name", u"Music"_s, { u"Music"_s }, u"/Music 1"_s);
    row("the third of its name", u"Music"_s, { u"Music"_s, u"Music 1"_s }, u"/Music 2"_s);
    row("a number between is free", u"Music"_s, { u"Music"_s, u"Music 2"_s }, u"/Music 1"_s);
    row("only a numbered one is there", u"Music"_s, { u"Music 1"_s }, {});
    row("a name with a number", u"Music 1"_s, { u"Music"_s, u"Music 1"_s }, u"/Music 1 1"_s);
    row("a link to nothing is there", u"Music"_s, { u"Music"_s, u"->Music 1"_s }, u"/Music 2"_s);
    row("percent signs", u"100%2b %1"_s, { u"100%2b %1"_s }, u"/100%2b %1 1"_s);
    row("line ends", u"a\nb"_s, { u"a\nb"_s }, u"/a\nb 1"_s);
    row("no room for the number", QString(255, u'x'), { QString(255, u'x') },
        u'/' + QString(253, u'x') + u" 1"_s);
}

void DiscFormsTest::findsAFreeFolder()
{
    QFETCH(QString, name);
    QFETCH(QStringList, there);
    QFETCH(QString, destination);
    const support::ScratchFolder scratch;
    for (const QString &entry : std::as_const(there)) {
        if (entry.startsWith(u"->"_s))
            support::makeLink("nowhere", scratch / entry.mid(2).toStdString());
        else
            support::makeFolder(scratch / entry.toStdString());
    }
    const QString folder = QString::fromStdString(scratch.path());
    QCOMPARE(writing::FolderGathering::copyDestination(folder, name), folder + destination);
}

QTEST_GUILESS_MAIN(DiscFormsTest)
#include "DiscFormsTest.moc"
