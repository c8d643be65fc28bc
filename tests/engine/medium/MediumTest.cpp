// Profiles and status bits as drives answer them, and the words that follow from them.
#include "medium/Medium.h"

#include "report/StatusText.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace engine;
using namespace engine::report;

namespace {

struct Row {
    const char *name;
    DriveAnswers answers;
    const char *type;
    const char *words;
    quint64 free;
    quint64 used;
    quint64 capacity;
};

DriveAnswers answers(int profile, const char *bits, quint64 free = 0, quint64 readable = 0)
{
    DriveAnswers a;
    a.profile = profile;
    const QByteArray set(bits);
    a.blank = set.contains('b');
    a.appendable = set.contains('a');
    a.damagedTrack = set.contains('d');
    a.suitable = !set.contains('u');
    a.freeBlocks = free;
    a.readableBlocks = readable;
    return a;
}

DriveAnswers withFormat(DriveAnswers a, quint64 blocks)
{
    a.formatBlocks = blocks;
    return a;
}

DriveAnswers with(DriveAnswers a, quint64 leadOut, quint64 volume = 0)
{
    a.leadOutBlocks = leadOut;
    a.volumeBlocks = volume;
    return a;
}

constexpr const char *blankOnce = "appendable, blank, overwritable";
constexpr const char *blankErasable = "appendable, blank, erasable, overwritable";

} // namespace

class MediumTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void answers_data()
    {
        QTest::addColumn<Row>("row");
        const QList<Row> rows{
            { "empty", ::answers(0x00, ""), "No Media Inserted", "not writable", 0, 0, 0 },
            { "pressed CD", ::answers(0x08, "", 0, 300000), "CD-ROM", "not writable", 0, 300000, 300000 },
            { "blank CD-R", with(::answers(0x09, "b", 359844), 359845), "CD-R", blankOnce, 359844, 0,
                359845 },
            { "open CD-R", with(::answers(0x09, "a", 200000, 150000), 359845), "CD-R", "appendable", 200000,
                150000, 359845 },
            { "closed CD-R", with(::answers(0x09, "", 0, 150000), 359845), "CD-R", "not writable", 0, 150000,
                359845 },
            { "broken CD-R", ::answers(0x09, "ad", 200000, 20), "CD-R", "not writable", 0, 20, 20 },
            { "blank CD-RW", ::answers(0x0a, "b", 359844), "CD-RW", blankErasable, 359844, 0, 359844 },
            { "written CD-RW", with(::answers(0x0a, "", 0, 5000), 359845), "CD-RW", "erasable", 0, 5000,
                359845 },
            { "open CD-RW", ::answers(0x0a, "a", 300000, 5000), "CD-RW", "erasable", 300000, 5000, 0 },
            { "CD-RW after a kill", ::answers(0x0a, "u"), "CD-RW", "erasable", 0, 0, 0 },
            { "pressed DVD", ::answers(0x10, "", 0, 2000000), "DVD-ROM", "not writable", 0, 2000000,
                2000000 },
            { "blank DVD-R", ::answers(0x11, "b", 2298496), "DVD-R", blankOnce, 2298496, 0, 2298496 },
            { "closed DVD-R", ::answers(0x11, "", 0, 1000), "DVD-R", "not writable", 0, 1000, 1000 },
            { "DVD-RAM", ::answers(0x12, "b", 0, 2236704), "DVD-RAM", "erasable, overwritable", 2236704, 0,
                2236704 },
            { "written DVD-RAM", with(::answers(0x12, "b", 0, 2236704), 0, 777), "DVD-RAM",
                "erasable, overwritable", 2236704, 777, 2236704 },
            { "DVD-RW restricted overwrite", ::answers(0x13, "b", 2297888), "DVD-RW",
                "erasable, overwritable", 2297888, 0, 2297888 },
            { "blank DVD-RW sequential", ::answers(0x14, "b", 2297888), "DVD-RW", blankErasable, 2297888, 0,
                2297888 },
            { "written DVD-RW sequential", withFormat(::answers(0x14, "", 0, 90000), 2297888), "DVD-RW",
                "erasable", 0, 90000, 2297888 },
            { "open DVD-RW sequential", withFormat(::answers(0x14, "a", 2000000, 90000), 2297888), "DVD-RW",
                "erasable", 2000000, 90000, 2297888 },
            { "written DVD-RW, no format told", ::answers(0x14, "", 0, 90000), "DVD-RW", "erasable", 0, 90000,
                0 },
            { "open DVD-RW, no format told", ::answers(0x14, "a", 2000000, 90000), "DVD-RW", "erasable",
                2000000, 90000, 0 },
            { "blank DVD-R DL", ::answers(0x15, "b", 4171712), "DVD-R DL", blankOnce, 4171712, 0, 4171712 },
            { "DVD-R DL in layer jump", ::answers(0x16, "b", 4171712), "DVD-R DL", "not writable", 0, 0, 0 },
            { "new DVD+RW", ::answers(0x1a, "b", 2295104), "DVD+RW", "erasable, overwritable", 2295104, 0,
                2295104 },
            { "written DVD+RW", with(::answers(0x1a, "b", 2295104, 2295104), 0, 123456), "DVD+RW",
                "erasable, overwritable", 2295104, 123456, 2295104 },
            { "blank DVD+R", ::answers(0x1b, "b", 2295104), "DVD+R", blankOnce, 2295104, 0, 2295104 },
            { "open DVD+R", ::answers(0x1b, "a", 2000000, 200000), "DVD+R", "appendable", 2000000, 200000,
                2000000 },
            { "blank DVD+R DL", ::answers(0x2b, "b", 4173824), "DVD+R DL", blankOnce, 4173824, 0, 4173824 },
            { "pressed BD", ::answers(0x40, "", 0, 12000000), "BD-ROM", "not writable", 0, 12000000,
                12000000 },
            { "blank BD-R", ::answers(0x41, "b", 12219392), "BD-R", blankOnce, 12219392, 0, 12219392 },
            { "closed BD-R", ::answers(0x41, "", 0, 44), "BD-R", "not writable", 0, 44, 44 },
            { "BD-R in random recording", ::answers(0x42, "b", 12219392), "BD-R", "not writable", 0, 0, 0 },
            { "unformatted BD-RE", ::answers(0x43, "b", 12219392), "BD-RE", "erasable, overwritable",
                12219392, 0, 12219392 },
            { "written BD-RE", with(::answers(0x43, "b", 0, 11826176), 0, 5), "BD-RE",
                "erasable, overwritable", 11826176, 5, 11826176 },
            { "HD DVD", ::answers(0x51, "b", 7000000), "Unknown", "not writable", 0, 0, 0 },
            { "unsuitable BD-R", ::answers(0x41, "bu", 12219392), "BD-R", "not writable", 0, 0, 0 },
        };
        for (const Row &row : rows)
            QTest::newRow(row.name) << row;
    }

    void answers()
    {
        QFETCH(Row, row);
        const Medium medium = mediumFromAnswers(row.answers);
        QCOMPARE(QLatin1StringView(factsOf(medium.kind).type), QLatin1StringView(row.type));
        QCOMPARE(QString::fromStdString(writability(medium)), QLatin1StringView(row.words));
        QCOMPARE(quint64(medium.free), row.free);
        QCOMPARE(quint64(medium.used), row.used);
        QCOMPARE(quint64(medium.capacity), row.capacity);
    }

    // Callers erase what is called erasable and write what is called overwritable.
    void wordsAgreeWithWhatCanBeDone()
    {
        for (const int profile : { 0x00, 0x08, 0x09, 0x0a, 0x10, 0x11, 0x12, 0x13, 0x14, 0x15, 0x1a, 0x1b,
                 0x2b, 0x40, 0x41, 0x43, 0x99 }) {
            for (const char *bits : { "", "a", "b", "ad", "u" }) {
                const Medium medium = mediumFromAnswers(::answers(profile, bits, 1000, 10));
                const std::string words = writability(medium);
                QCOMPARE(words.find("overwritable") != std::string::npos, canWriteNow(medium));
                QCOMPARE(words.find("erasable") != std::string::npos, canErase(medium));
            }
        }
    }

    void speedsAreSortedAndOnce()
    {
        DriveAnswers a = ::answers(0x09, "b", 100);
        a.speeds = { 8467, 2822, 4234, 2822 };
        const std::vector<int> expected{ 2822, 4234, 8467 };
        QVERIFY(mediumFromAnswers(a).speeds == expected);
    }

    void insertNames_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("type");
        QTest::addColumn<quint64>("blocks");
        QTest::newRow("cd-r") << u"cd-r"_s << u"CD-R"_s << quint64(359844);
        QTest::newRow("cd-rw") << u"cd-rw"_s << u"CD-RW"_s << quint64(359844);
        QTest::newRow("dvd-r") << u"dvd-r"_s << u"DVD-R"_s << quint64(2298496);
        QTest::newRow("dvd-rw") << u"dvd-rw"_s << u"DVD-RW"_s << quint64(2298496);
        QTest::newRow("dvd+r") << u"dvd+r"_s << u"DVD+R"_s << quint64(2295104);
        QTest::newRow("dvd+rw") << u"dvd+rw"_s << u"DVD+RW"_s << quint64(2295104);
        QTest::newRow("bd-r") << u"bd-r"_s << u"BD-R"_s << quint64(12219392);
        QTest::newRow("bd-re") << u"bd-re"_s << u"BD-RE"_s << quint64(12219392);
    }

    void insertNames()
    {
        QFETCH(QString, name);
        QFETCH(QString, type);
        QFETCH(quint64, blocks);
        const auto kind = kindOfInsertName(name.toStdString());
        QVERIFY(kind.has_value());
        QCOMPARE(QString::fromLatin1(factsOf(*kind).type), type);
        QCOMPARE(quint64(factsOf(*kind).virtualBlocks), blocks);
        QVERIFY(QString::fromStdString(engine::insertNames()).split(u", "_s).contains(name));
    }

    void otherNamesAreNoKinds()
    {
        for (const char *name : { "", "none", "CD-R", "cd", "dvd-ram", "bd-rom" })
            QVERIFY(!kindOfInsertName(name));
    }
};

QTEST_APPLESS_MAIN(MediumTest)
#include "MediumTest.moc"
