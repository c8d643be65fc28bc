// A DVD for players as values: shapes, chapters, rates, arguments and the description of the titles.
#include "writing/PlayerDisc.h"

#include "writing/TitleAuthoring.h"

#include <QTest>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;
using writing::ClipFacts;
using writing::PlayerDisc;
using writing::PlayerTitle;

class PlayerDiscTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void placesThePicture_data();
    void placesThePicture();
    void keepsTheShapeOfThePicture_data();
    void keepsTheShapeOfThePicture();
    void marksChapters_data();
    void marksChapters();
    void fitsTheDisc_data();
    void fitsTheDisc();
    void asksForATitle_data();
    void asksForATitle();
    void asksForSilence();
    void describesTheDisc();
    void describesSets_data();
    void describesSets();
    void escapesNames();
    void readsWhatIsTold_data();
    void readsWhatIsTold();
};

void PlayerDiscTest::placesThePicture_data()
{
    QTest::addColumn<double>("aspect");
    QTest::addColumn<bool>("ntsc");
    QTest::addColumn<QString>("shape");
    QTest::addColumn<QRect>("place");

    const auto row = [](const char *name, double aspect, bool ntsc, const char *shape, const QRect &place) {
        QTest::newRow(name) << aspect << ntsc << QString::fromLatin1(shape) << place;
    };
    row("16:9, NTSC", 16.0 / 9, true, "16:9", { 0, 0, 720, 480 });
    row("16:9, PAL", 16.0 / 9, false, "16:9", { 0, 0, 720, 576 });
    row("4:3, NTSC", 4.0 / 3, true, "4:3", { 0, 0, 720, 480 });
    row("4:3, PAL", 4.0 / 3, false, "4:3", { 0, 0, 720, 576 });
    row("2.35:1, NTSC", 2.35, true, "16:9", { 0, 58, 720, 364 });
    row("2.35:1, PAL", 2.35, false, "16:9", { 0, 70, 720, 436 });
    row("3:2", 1.5, true, "4:3", { 0, 26, 720, 426 });
    row("14:9", 14.0 / 9, true, "16:9", { 44, 0, 630, 480 });
    row("a square", 1, true, "4:3", { 90, 0, 540, 480 });
    row("upright, NTSC", 9.0 / 16, true, "4:3", { 208, 0, 304, 480 });
    row("upright, PAL", 9.0 / 16, false, "4:3", { 208, 0, 304, 576 });
    row("a line", 2000, true, "16:9", { 0, 238, 720, 2 });
    row("a pillar", 0.0001, true, "4:3", { 358, 0, 2, 480 });
}

void PlayerDiscTest::placesThePicture()
{
    QFETCH(double, aspect);
    QFETCH(bool, ntsc);
    QFETCH(QString, shape);
    QFETCH(QRect, place);
    const writing::PlayerPicture picture = writing::playerPicture(aspect, ntsc);
    QCOMPARE(picture.aspect(), shape);
    QCOMPARE(picture.frame, ntsc ? QSize(720, 480) : QSize(720, 576));
    QCOMPARE(picture.place, place);
}

void PlayerDiscTest::keepsTheShapeOfThePicture_data()
{
    QTest::addColumn<double>("aspect");
    for (const double aspect :
        { 0.4, 0.5625, 0.75, 1.0, 1.25, 1.33, 1.5, 1.54, 1.6, 1.778, 1.85, 2.35, 2.76, 3.5 })
        QTest::addRow("%.3f", aspect) << aspect;
}

/// To the two pixels to which places are rounded.
void PlayerDiscTest::keepsTheShapeOfThePicture()
{
    QFETCH(double, aspect);
    for (const bool ntsc : { true, false }) {
        const writing::PlayerPicture picture = writing::playerPicture(aspect, ntsc);
        const QRect frame(QPoint(), picture.frame);
        QVERIFY(frame.contains(picture.place));
        QVERIFY(picture.place.x() % 2 == 0 && picture.place.y() % 2 == 0);
        QVERIFY(picture.place.width() == frame.width() || picture.place.height() == frame.height());
        const double screen = picture.wide ? 16.0 / 9 : 4.0 / 3;
        const double pixel = screen * frame.height() / frame.width();
        const double shown = picture.place.width() * pixel / picture.place.height();
        QVERIFY2(qAbs(shown / aspect - 1) < 0.01, qPrintable(QString::number(shown)));
    }
}

void PlayerDiscTest::marksChapters_data()
{
    QTest::addColumn<QList<double>>("own");
    QTest::addColumn<double>("seconds");
    QTest::addColumn<QList<double>>("marks");

    using Marks = QList<double>;
    QTest::newRow("short") << Marks{} << 12.0 << Marks{ 0 };
    QTest::newRow("five minutes") << Marks{} << 300.0 << Marks{ 0 };
    QTest::newRow("a last one that is too short") << Marks{} << 329.0 << Marks{ 0 };
    QTest::newRow("a last one that is long enough") << Marks{} << 331.0 << Marks{ 0, 300 };
    QTest::newRow("an hour and a bit") << Marks{} << 1000.0 << Marks{ 0, 300, 600, 900 };
    QTest::newRow("of unknown length") << Marks{} << 0.0 << Marks{ 0 };
    QTest::newRow("its own") << Marks{ 0, 10.5, 400 } << 1000.0 << Marks{ 0, 10.5, 400 };
    QTest::newRow("its own, the first one later") << Marks{ 20, 400 } << 1000.0 << Marks{ 0, 20, 400 };
    QTest::newRow("its only one") << Marks{ 0 } << 700.0 << Marks{ 0, 300, 600 };
    QTest::newRow("twice the same, and too near") << Marks{ 0, 0, 7, 7, 7.5, 9 } << 60.0 << Marks{ 0, 7, 9 };
    QTest::newRow("at the end and behind it") << Marks{ 0, 30, 59.5, 60, 90 } << 60.0 << Marks{ 0, 30 };
    QTest::newRow("its own of unknown length") << Marks{ 0, 30 } << 0.0 << Marks{ 0, 30 };

    Marks many, everyThird;
    for (int i = 0; i < 250; ++i) {
        many.append(i * 10);
        if (i % 3 == 0)
            everyThird.append(i * 10);
    }
    QTest::newRow("more than a title can have") << many << 9000.0 << everyThird;
}

void PlayerDiscTest::marksChapters()
{
    QFETCH(QList<double>, own);
    QFETCH(double, seconds);
    QFETCH(QList<double>, marks);
    ClipFacts facts;
    facts.seconds = seconds;
    facts.chapters = own;
    QCOMPARE(writing::chapterMarks(facts), marks);
    QVERIFY(writing::chapterMarks(facts).size() <= 99);
}

void PlayerDiscTest::fitsTheDisc_data()
{
    QTest::addColumn<qint64>("seconds");
    QTest::addColumn<int>("rate");
    QTest::newRow("nothing") << qint64{ 0 } << 6'000'000;
    QTest::newRow("an hour") << qint64{ 3600 } << 6'000'000;
    QTest::newRow("two hours") << qint64{ 7200 } << 4'461'000;
    QTest::newRow("two and a half, as much as the gauge takes") << qint64{ 9000 } << 3'479'000;
    QTest::newRow("four hours") << qint64{ 14'400 } << 2'006'000;
    QTest::newRow("a day") << qint64{ 86'400 } << 2'000'000;
}

void PlayerDiscTest::fitsTheDisc()
{
    QFETCH(qint64, seconds);
    QFETCH(int, rate);
    QCOMPARE(writing::playerVideoRate(seconds), rate);
    QVERIFY(writing::playerRoom(seconds) > 2 * seconds * (rate + 448'000) / 8);
}

void PlayerDiscTest::asksForATitle_data()
{
    QTest::addColumn<bool>("ntsc");
    QTest::addColumn<bool>("dolby");
    QTest::newRow("NTSC, Dolby Digital") << true << true;
    QTest::newRow("NTSC, MPEG audio") << true << false;
    QTest::newRow("PAL, Dolby Digital") << false << true;
    QTest::newRow("PAL, MPEG audio") << false << false;
}

void PlayerDiscTest::asksForATitle()
{
    QFETCH(bool, ntsc);
    QFETCH(bool, dolby);
    ClipFacts facts;
    facts.picture = { 1920, 1080 };
    facts.hasSound = true;
    const PlayerDisc disc{ { ntsc, dolby }, 5'000'000, {} };
    const QString place = ntsc ? u"720:480"_s : u"720:576"_s;
    QCOMPARE(
        writing::playerArguments(u"/m/-a \"b\".mov"_s, u"/w/title-01.mpg"_s, facts, disc, { 0, 300, 600.5 }),
        (QStringList{ u"-i"_s, u"/m/-a \"b\".mov"_s, u"-target"_s, ntsc ? u"ntsc-dvd"_s : u"pal-dvd"_s,
            u"-vf"_s,
            u"yadif=deint=interlaced,scale=%1:out_color_matrix=bt601:out_range=tv,pad=%1:0:0"_s.arg(place),
            u"-aspect"_s, u"16:9"_s, u"-b:v"_s, u"5000000"_s, u"-force_key_frames"_s, u"300.000,600.500"_s,
            u"-acodec"_s, dolby ? u"ac3"_s : u"mp2"_s, u"-af"_s, u"aresample=async=1:first_pts=0"_s, u"-ar"_s,
            u"48000"_s, u"-ac"_s, u"2"_s, u"/w/title-01.mpg"_s }));
}

void PlayerDiscTest::asksForSilence()
{
    ClipFacts facts;
    facts.picture = { 1080, 1080 };
    const QStringList arguments =
        writing::playerArguments(u"/m/a.mov"_s, u"/w/a.mpg"_s, facts, { {}, 6'000'000, {} }, { 0 });
    QCOMPARE(arguments.mid(0, 7),
        (QStringList{ u"-i"_s, u"/m/a.mov"_s, u"-f"_s, u"lavfi"_s, u"-i"_s,
            u"anullsrc=channel_layout=stereo:sample_rate=48000"_s, u"-shortest"_s }));
    QVERIFY(!arguments.contains(u"-force_key_frames"_s));
    QCOMPARE(arguments.at(arguments.indexOf(u"-aspect"_s) + 1), u"4:3"_s);
}

void PlayerDiscTest::describesTheDisc()
{
    const PlayerDisc disc{ { false, true }, 6'000'000,
        { { u"title-01.mpg"_s, true, { 0, 300, 3723.5 } }, { u"title-02.mpg"_s, false, { 0 } } } };
    QCOMPARE(writing::authoringXml(disc),
        QByteArray(
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?><dvdauthor><vmgm><fpc>jump title 1;</fpc><menus>"
            "<video format=\"pal\" aspect=\"4:3\"/>"
            "<pgc entry=\"title\"><pre>jump title 1;</pre></pgc><pgc><pre>jump title "
            "2;</pre></pgc></menus></vmgm>"
            "<titleset><titles><video format=\"pal\" aspect=\"16:9\" widescreen=\"nopanscan\"/>"
            "<audio format=\"ac3\" channels=\"2\"/>"
            "<pgc><vob file=\"title-01.mpg\" chapters=\"0:00:00.000,0:05:00.000,1:02:03.500\"/>"
            "<post>call vmgm menu 2;</post></pgc></titles></titleset>"
            "<titleset><titles><video format=\"pal\" aspect=\"4:3\"/><audio format=\"ac3\" channels=\"2\"/>"
            "<pgc><vob file=\"title-02.mpg\" "
            "chapters=\"0:00:00.000\"/><post>exit;</post></pgc></titles></titleset>"
            "</dvdauthor>\n"));
}

void PlayerDiscTest::describesSets_data()
{
    QTest::addColumn<QString>("shapes"); // w or n for each title
    QTest::addColumn<QString>("commands"); // how each title ends
    QTest::newRow("one") << u"w"_s << u"exit"_s;
    QTest::newRow("alike") << u"nnn"_s << u"jump title 2|jump title 3|exit"_s;
    QTest::newRow("mixed") << u"wwnnw"_s
                           << u"jump title 2|call vmgm menu 2|jump title 2|call vmgm menu 3|exit"_s;
}

void PlayerDiscTest::describesSets()
{
    QFETCH(QString, shapes);
    QFETCH(QString, commands);
    PlayerDisc disc;
    for (const QChar shape : shapes)
        disc.titles.append({ u"a.mpg"_s, shape == u'w', { 0 } });
    QXmlStreamReader xml(writing::authoringXml(disc));
    QStringList ends;
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == "post"_L1)
            ends.append(xml.readElementText().chopped(1));
    }
    QVERIFY(!xml.hasError());
    QCOMPARE(ends.join(u'|'), commands);
    const QList<writing::TitleSet> sets = writing::titleSets(disc.titles);
    qsizetype next = 1;
    for (const writing::TitleSet &set : sets) {
        QCOMPARE(set.first, next);
        next += set.titles.size();
    }
    QCOMPARE(next, shapes.size() + 1);
}

void PlayerDiscTest::escapesNames()
{
    const QString name = u"-a & <b> \"c\" 'd'\ne\t映画.mpg"_s;
    const PlayerDisc disc{ {}, 0, { { name, false, { 0 } } } };
    QXmlStreamReader xml(writing::authoringXml(disc));
    QString read;
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == "vob"_L1)
            read = xml.attributes().value("file"_L1).toString();
    }
    QVERIFY(!xml.hasError());
    QCOMPARE(read, name);
    QCOMPARE(writing::authoringArguments(u"/w/-x"_s, u"/w/-x/a.xml"_s),
        (QStringList{ u"-o"_s, u"/w/-x"_s, u"-x"_s, u"/w/-x/a.xml"_s }));
}

void PlayerDiscTest::readsWhatIsTold_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("doing");
    QTest::addColumn<QString>("failure");
    // As dvdauthor 0.7.2 prints them.
    QTest::newRow("a file") << u"STAT: Processing title-01.mpg..."_s << u"Processing title-01.mpg..."_s
                            << QString();
    QTest::newRow("how far") << u"STAT: VOBU 16 at 7MB, 1 PGCs"_s << u"VOBU 16 at 7MB, 1 PGCs"_s << QString();
    QTest::newRow("no room") << u"ERR:  Error 28 -- No space left on device -- writing data"_s << QString()
                             << u"Error 28 -- No space left on device -- writing data"_s;
    QTest::newRow("a fact") << u"INFO: Aspect ratio: 16:9"_s << QString() << QString();
    QTest::newRow("a warning") << u"WARN: Discontinuity of 9 in audio channel 0"_s << QString() << QString();
    QTest::newRow("nothing") << QString() << QString() << QString();
}

void PlayerDiscTest::readsWhatIsTold()
{
    QFETCH(QString, line);
    QFETCH(QString, doing);
    QFETCH(QString, failure);
    const writing::AuthoringLine told = writing::authoringLine(line);
    QCOMPARE(told.doing, doing);
    QCOMPARE(told.failure, failure);
}

QTEST_APPLESS_MAIN(PlayerDiscTest)
#include "PlayerDiscTest.moc"
