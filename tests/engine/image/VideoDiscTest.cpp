// Folders that are video discs: what players, other readers of UDF and another writer make of them.
#include "../drutil/Drutil.h"
#include "Trees.h"
#include "image/UdfDescriptor.h"

#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 block = 2048;

QString hdiutil()
{
    return qEnvironmentVariable("CORVALIS_BIN") + u"/hdiutil"_s;
}

QString text(const std::string &path)
{
    return QString::fromStdString(path);
}

Ran make(const std::string &image, const std::string &source)
{
    return runProgram(
        hdiutil(), { u"makehybrid"_s, u"-o"_s, text(image), text(source), u"-iso"_s, u"-joliet"_s });
}

/// Takes an image apart by its UDF volume alone.
bool extractUdf(const std::string &image, const std::string &folder)
{
    return run(u"7z"_s, { u"x"_s, u"-y"_s, u"-tudf"_s, u"-o"_s + text(folder), text(image) }) == 0;
}

QByteArray blockOf(const std::string &image, qint64 number)
{
    QFile file(text(image));
    return file.open(QFile::ReadOnly) && file.seek(number * block) ? file.read(block) : QByteArray();
}

quint32 number(const QByteArray &bytes, qsizetype at, int size = 4)
{
    quint32 value = 0;
    for (int byte = size; byte-- > 0;)
        value = value << 8 | quint8(bytes.at(at + byte));
    return value;
}

void putBigEndian(std::string &bytes, std::size_t at, quint32 value)
{
    for (std::size_t byte = 0; byte < 4; ++byte)
        bytes.at(at + byte) = char(value >> (8 * (3 - byte)));
}

/// First blocks of the files in VIDEO_TS by their names, as isoinfo lists them.
QMap<QString, int> placesIn(const std::string &image)
{
    QByteArray listing;
    run(u"isoinfo"_s, { u"-l"_s, u"-i"_s, text(image) }, &listing);
    QMap<QString, int> places;
    static const QRegularExpression row(u"\\[\\s*(\\d+) \\d+\\]\\s+(\\w+\\.(?:IFO|VOB|BUP))"_s);
    for (auto match = row.globalMatch(QString::fromLatin1(listing)); match.hasNext();) {
        const auto found = match.next();
        places.insert(found.captured(2), found.captured(1).toInt());
    }
    return places;
}

} // namespace

class VideoDiscTest : public QObject {
    Q_OBJECT

    /// A folder with a video disc of two title sets in it.
    std::string disc(const Scratch &scratch) const
    {
        run(u"cp"_s, { u"-r"_s, text(m_authored.path("disc")), text(scratch.path("disc")) });
        return scratch.path("disc");
    }

    Scratch m_authored;

private Q_SLOTS:
    void initTestCase()
    {
        const QString film = text(m_authored.path("film.mpg"));
        QCOMPARE(run(u"ffmpeg"_s,
                     { u"-v"_s, u"error"_s, u"-f"_s, u"lavfi"_s, u"-i"_s, u"testsrc=s=720x576:r=25:d=2"_s,
                         u"-f"_s, u"lavfi"_s, u"-i"_s, u"sine=440:d=2"_s, u"-target"_s, u"pal-dvd"_s, film }),
            0);
        const std::string set =
            "<titleset><titles><pgc><vob file='" + film.toStdString() + "'/></pgc></titles></titleset>";
        QVERIFY(makeFile(m_authored.path("disc.xml"),
            "<dvdauthor dest='" + m_authored.path("disc") + "'><vmgm/>" + set + set + "</dvdauthor>"));
        QCOMPARE(run(u"env"_s,
                     { u"VIDEO_FORMAT=PAL"_s, u"dvdauthor"_s, u"-x"_s, text(m_authored.path("disc.xml")) }),
            0);
        QCOMPARE(run(u"rmdir"_s, { text(m_authored.path("disc/AUDIO_TS")) }), 0);
    }

    void playersFindTheTitles()
    {
        Scratch scratch;
        const Ran made = make(scratch.path("i.iso"), disc(scratch));
        QCOMPARE(made.err, QString());
        QCOMPARE(made.exit, 0);
        QByteArray titles;
        QCOMPARE(run(u"lsdvd"_s, { text(scratch.path("i.iso")) }, &titles), 0);
        QVERIFY2(titles.contains("Disc Title: disc\n") && titles.contains("Title: 01, Length: 00:00:02")
                && titles.contains("Title: 02, Length: 00:00:02"),
            titles.constData());
    }

    void everyVolumeHoldsEverything()
    {
        Scratch scratch;
        const std::string root = disc(scratch);
        QVERIFY(makePlainTree(root + "/JACKET_P"));
        QVERIFY(makeFile(root + "/gap 0", "a name like those of what keeps files apart"));
        QCOMPARE(make(scratch.path("i.iso"), root).exit, 0);
        Listing expected = list(root);
        expected["AUDIO_TS"] = "folder";
        QVERIFY(extractUdf(scratch.path("i.iso"), scratch.path("udf")));
        QCOMPARE(difference(expected, list(scratch.path("udf"))), QByteArray());
        QVERIFY(extractRockRidge(scratch.path("i.iso"), scratch.path("iso")));
        QCOMPARE(difference(expected, list(scratch.path("iso"))), QByteArray());
    }

    void filesLieWhereTheirPointersSay()
    {
        Scratch scratch;
        const std::string root = disc(scratch);
        QCOMPARE(make(scratch.path("i.iso"), root).exit, 0);
        QCOMPARE(run(u"genisoimage"_s,
                     { u"-quiet"_s, u"-dvd-video"_s, u"-udf"_s, u"-o"_s, text(scratch.path("g.iso")),
                         text(root) }),
            0);
        const auto ours = placesIn(scratch.path("i.iso"));
        const auto theirs = placesIn(scratch.path("g.iso"));
        QCOMPARE(ours.size(), 8);
        QCOMPARE(ours.keys(), theirs.keys());
        for (const auto &[name, place] : ours.asKeyValueRange())
            QCOMPARE(
                place - ours.value(u"VIDEO_TS.IFO"_s), theirs.value(name) - theirs.value(u"VIDEO_TS.IFO"_s));
    }

    void descriptorsAreSoundAndThoseOfAnotherWriter()
    {
        Scratch scratch;
        const std::string root = disc(scratch), image = scratch.path("i.iso"), other = scratch.path("g.iso");
        QCOMPARE(make(image, root).exit, 0);
        QCOMPARE(run(u"genisoimage"_s,
                     { u"-quiet"_s, u"-dvd-video"_s, u"-udf"_s, u"-o"_s, text(other), text(root) }),
            0);
        // Behind the descriptors of ISO 9660, of which the other writer makes one less.
        for (int structure = 0; structure < 3; ++structure)
            QCOMPARE(blockOf(image, 19 + structure), blockOf(other, 18 + structure));
        const qint64 last = QFileInfo(text(image)).size() / block - 1;
        QList<qint64> places{ 256, last, 64, 65, 257, 258, 259 };
        for (const qint64 sequence : { 32, 48 })
            for (int step = 0; step < 6; ++step)
                places.append(sequence + step);
        for (const qint64 place : places) {
            const QByteArray found = blockOf(image, place);
            quint8 sum = 0;
            for (int at = 0; at < 16; ++at)
                sum = quint8(sum + (at == 4 ? 0 : quint8(found.at(at))));
            QCOMPARE(quint8(found.at(4)), sum);
            const QByteArray content = found.mid(16, qsizetype(number(found, 10, 2)));
            QVERIFY(!content.isEmpty());
            QCOMPARE(number(found, 8, 2),
                quint32(engine::image::udfCrc(
                    std::as_bytes(std::span(content.data(), std::size_t(content.size()))))));
            QCOMPARE(qint64(number(found, 12)), place >= 257 && place != last ? place - 257 : place);
        }
        struct Same {
            int place; ///< of ours
            QList<std::pair<int, int>> ranges;
        };
        const int theirSequence = int(number(blockOf(other, 256), 20));
        for (const Same &same : { Same{ 0, { { 20, 4 }, { 56, 16 }, { 200, 128 } } }, // primary volume
                 Same{ 1, { { 48, 68 } } }, // implementation use: the revision and the character set
                 Same{ 2, { { 20, 4 }, { 25, 167 } } }, // partition: where it begins
                 Same{ 3, { { 20, 64 }, { 212, 62 }, { 298, 148 } } }, // logical volume
                 Same{ 4, { { 0, 512 } } }, Same{ 5, { { 0, 512 } } } })
            for (const auto &[at, size] : same.ranges)
                QCOMPARE(blockOf(image, 32 + same.place).mid(at, size).toHex(),
                    blockOf(other, theirSequence + same.place).mid(at, size).toHex());
    }

    void theChecksumIsThatOfTheStandard()
    {
        // The example of ECMA-167 3/7.2.6.
        const unsigned char bytes[] = { 0x70, 0x6a, 0x77 };
        QCOMPARE(int(engine::image::udfCrc(std::as_bytes(std::span(bytes)))), 0x3299);
    }

    void aFileOverOneExtent()
    {
        Scratch scratch;
        const std::string root = disc(scratch);
        const qint64 size = (1LL << 30) + 5000;
        QVERIFY(sparseFile(text(root + "/large"), size));
        QFile file(text(root + "/large"));
        QVERIFY(file.open(QFile::ReadWrite) && file.seek(size - 3) && file.write("end") == 3);
        file.close();
        QCOMPARE(make(scratch.path("i.iso"), root).exit, 0);
        QByteArray end;
        QCOMPARE(run(u"sh"_s,
                     { u"-c"_s, u"7z e -so -tudf \"$0\" large | tail -c 4999 | tail -c 3"_s,
                         text(scratch.path("i.iso")) },
                     &end),
            0);
        QCOMPARE(end, "end");
    }

    void namesThatAreTooLongAreCutAndKeptApart()
    {
        Scratch scratch;
        const std::string root = disc(scratch);
        std::string umlauts, words;
        for (int i = 0; i < 80; ++i)
            words += "\xe6\x97\xa5"; // 240 bytes, 80 characters of two bytes
        for (int i = 0; i < 127; ++i)
            umlauts += "\xc3\xbc";
        for (const std::string &name : { std::string(255, 'n'), std::string(254, 'n') + 'm', umlauts, words,
                 std::string("latin\xe9"), std::string("latin\xe8") })
            QVERIFY(makeFile(root + '/' + name, name));
        QCOMPARE(make(scratch.path("i.iso"), root).exit, 0);
        QByteArray listing;
        QCOMPARE(
            run(u"7z"_s, { u"l"_s, u"-ba"_s, u"-slt"_s, u"-tudf"_s, text(scratch.path("i.iso")) }, &listing),
            0);
        QStringList names;
        for (const QByteArray &line : listing.split('\n'))
            if (line.startsWith("Path = ") && !line.contains("_TS"))
                names.append(QString::fromUtf8(line.mid(7)));
        names.sort();
        QStringList expected{ u"latin_"_s, u"latin_~2"_s, QString(253, u'n'), QString(124, u'n') + u"~2"_s,
            QString::fromStdString(umlauts), QString::fromStdString(words) };
        expected.sort();
        QCOMPARE(names, expected);
    }

    void whatCannotWorkIsNoted_data()
    {
        QTest::addColumn<QString>("change"); // by the shell, in VIDEO_TS
        QTest::addColumn<QString>("note"); // as it begins
        const auto row = [](const char *title, const QString &change, const QString &note) {
            QTest::newRow(title) << change << note;
        };
        row("no manager", u"rm VIDEO_TS.IFO"_s, u"\"VIDEO_TS/VIDEO_TS.IFO\" is missing: players will not"_s);
        row("no title set", u"rm VTS_02_0.IFO"_s, u"\"VIDEO_TS/VTS_02_0.IFO\" is missing"_s);
        row("no file of a title set", u"rm VTS_02_*"_s,
            u"\"VIDEO_TS/VTS_02_0.IFO\" is missing, although a title"_s);
        row("no backup", u"rm VTS_01_0.BUP"_s,
            u"\"VIDEO_TS/VTS_01_0.BUP\" is missing: players have nothing"_s);
        row("an empty manager", u": > VIDEO_TS.IFO"_s, u"\"VIDEO_TS/VIDEO_TS.IFO\" is no information"_s);
        row("something else", u"cp VTS_01_1.VOB VTS_01_0.IFO"_s,
            u"\"VIDEO_TS/VTS_01_0.IFO\" is no information"_s);
        row("a title that grew", u"cat VTS_01_1.VOB VTS_02_1.VOB > x && mv x VTS_01_1.VOB"_s,
            u"\"VIDEO_TS/VTS_01_0.BUP\" does not lie where"_s);
        row("nothing", u"rm *"_s, u"\"VIDEO_TS/VIDEO_TS.IFO\" is missing"_s);
    }

    void whatCannotWorkIsNoted()
    {
        QFETCH(QString, change);
        QFETCH(QString, note);
        Scratch scratch;
        const std::string root = disc(scratch);
        QCOMPARE(run(u"sh"_s, { u"-c"_s, u"cd \"$0\" && "_s + change, text(root + "/VIDEO_TS") }), 0);
        QVERIFY(makeFile(root + "/file", "x"));
        const Ran made = make(scratch.path("i.iso"), root);
        QCOMPARE(made.exit, 0);
        const QStringList notes = notesIn(made.err);
        QVERIFY2(std::ranges::any_of(notes, [&](const QString &line) { return line.startsWith(note); }),
            qPrintable(made.err));
        QVERIFY(extractUdf(scratch.path("i.iso"), scratch.path("udf")));
        Listing expected = list(root);
        expected["AUDIO_TS"] = "folder";
        QCOMPARE(difference(expected, list(scratch.path("udf"))), QByteArray());
    }

    void pointersOfAnyKindDoNoHarm()
    {
        std::mt19937 random(20261121);
        for (int round = 0; round < 20; ++round) {
            Scratch scratch;
            const std::string root = disc(scratch);
            for (const char *name : { "VIDEO_TS.IFO", "VTS_01_0.IFO", "VTS_02_0.IFO" }) {
                const std::string path = root + "/VIDEO_TS/" + name;
                std::string bytes = contentOf(path);
                for (const std::size_t at : { 0x0cU, 0xc0U, 0xc4U, 0x800U, 0x80eU, 0x810U, 0x81cU })
                    if (random() % 2 == 0)
                        putBigEndian(
                            bytes, at, random() % 3 == 0 ? quint32(random()) : quint32(random() % 3000));
                QVERIFY(makeFile(path, bytes));
            }
            const Ran made = make(scratch.path("i.iso"), root);
            QVERIFY2(made.exit == 0, qPrintable(made.err));
            QVERIFY(QFileInfo(text(scratch.path("i.iso"))).size() < 40'000'000);
            QVERIFY(extractUdf(scratch.path("i.iso"), scratch.path("udf")));
            QVERIFY(extractRockRidge(scratch.path("i.iso"), scratch.path("iso")));
            QCOMPARE(difference(list(scratch.path("udf")), list(scratch.path("iso"))), QByteArray());
            QCOMPARE(difference(list(root + "/VIDEO_TS"), list(scratch.path("udf/VIDEO_TS"))), QByteArray());
        }
    }

    void aBackupThatIsALinkLiesApart()
    {
        Scratch scratch;
        const std::string root = disc(scratch), folder = root + "/VIDEO_TS/";
        for (const std::string name : { "VIDEO_TS", "VTS_01_0", "VTS_02_0" }) {
            QCOMPARE(unlink((folder + name + ".BUP").c_str()), 0);
            QCOMPARE(link((folder + name + ".IFO").c_str(), (folder + name + ".BUP").c_str()), 0);
        }
        QCOMPARE(make(scratch.path("i.iso"), root).exit, 0);
        const auto places = placesIn(scratch.path("i.iso"));
        for (const auto &name : { u"VIDEO_TS"_s, u"VTS_01_0"_s, u"VTS_02_0"_s })
            QVERIFY(places.value(name + u".BUP"_s) - places.value(name + u".IFO"_s) >= 16);
        QCOMPARE(run(u"lsdvd"_s, { text(scratch.path("i.iso")) }), 0);
    }

    void aBurnedDiscIsAVideoDiscToo()
    {
        Scratch scratch;
        Drutil drutil;
        QVERIFY(drutil.insert(u"dvd-r"_s));
        const Ran ran = drutil({ u"burn"_s, text(disc(scratch)) });
        QVERIFY2(ran.exit == 0, qPrintable(ran.err));
        QByteArray titles;
        QCOMPARE(run(u"lsdvd"_s, { drutil.recorder() + u"/disc.iso"_s }, &titles), 0);
        QVERIFY2(titles.contains("Title: 02, Length: 00:00:02"), titles.constData());
    }

    void otherFoldersStayAsTheyWere()
    {
        Scratch scratch;
        for (const char *name : { "t/inner/VIDEO_TS/file", "t/VIDEO_TS.IFO", "t/video_ts/file" })
            QVERIFY(makeFile(scratch.path(name), "x"));
        QVERIFY(makeFile(scratch.path("file/VIDEO_TS"), "x"));
        for (const char *name : { "t", "file" }) {
            const std::string image = scratch.path(name) + ".iso";
            QCOMPARE(make(image, scratch.path(name)).exit, 0);
            QCOMPARE(contentOf(image).find("NSR02"), std::string::npos);
        }
    }
};

QTEST_GUILESS_MAIN(VideoDiscTest)
#include "VideoDiscTest.moc"
