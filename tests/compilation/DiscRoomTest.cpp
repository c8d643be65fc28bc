#include "compilation/DiscRoom.h"

#include <QTest>

using namespace Qt::StringLiterals;
using compilation::DiscRoom;
using compilation::Page;

namespace {

QString status(const char *type, const char *free, const char *writability)
{
    return u"               Type: %1 Name: /dev/sr0\n         Space Free:   79:57:69         blocks: %2 / "
           u"736.96MB / "
           "702.82MiB\n         Space Used:   00:00:00         blocks:        0 /   0.00MB /   0.00MiB\n"
           "        Writability: %3\n"_s.arg(QLatin1StringView(type).toString().leftJustified(20),
               QString::fromLatin1(free).rightJustified(8), QLatin1StringView(writability));
}

} // namespace

class DiscRoomTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void readsAStatus_data();
    void readsAStatus();
    void tellsWhetherTheListFits_data();
    void tellsWhetherTheListFits();
};

void DiscRoomTest::readsAStatus_data()
{
    QTest::addColumn<QString>("status");
    QTest::addColumn<std::optional<DiscRoom>>("room");
    const auto row = [](const char *name, const QString &status, const std::optional<DiscRoom> &room) {
        QTest::newRow(name) << status << room;
    };
    row("nothing printed", {}, std::nullopt);
    row("no disc", u"               Type: No Media Inserted\n"_s, std::nullopt);
    row("an error", u"drutil: There is no drive \"9\"\n"_s, std::nullopt);
    row("blank CD-R", status("CD-R", "359844", "appendable, blank, overwritable"),
        DiscRoom{ u"CD-R"_s, true, 359844 });
    row("blank DVD+R DL", status("DVD+R DL", "4173824", "appendable, blank, overwritable"),
        DiscRoom{ u"DVD+R DL"_s, true, 4173824 });
    row("written CD-RW", status("CD-RW", "0", "erasable"), DiscRoom{ u"CD-RW"_s, true, -1 });
    row("written BD-RE", status("BD-RE", "11826176", "erasable, overwritable"),
        DiscRoom{ u"BD-RE"_s, true, 11826176 });
    row("closed CD-R", status("CD-R", "0", "not writable"), DiscRoom{ u"CD-R"_s, false, -1 });
    row("open CD-R", status("CD-R", "100", "appendable"), DiscRoom{ u"CD-R"_s, false, -1 });
    row("without figures",
        u" Type: CD-R                 Name: /dev/sr0\n Writability: blank, overwritable\n"_s,
        DiscRoom{ u"CD-R"_s, true, -1 });
    row("without a name", u" Type: BD-R\n Writability: blank, overwritable\n"_s,
        DiscRoom{ u"BD-R"_s, true, -1 });
}

void DiscRoomTest::readsAStatus()
{
    QFETCH(QString, status);
    QFETCH(std::optional<DiscRoom>, room);
    QVERIFY(compilation::readDiscRoom(status) == room);
}

void DiscRoomTest::tellsWhetherTheListFits_data()
{
    QTest::addColumn<DiscRoom>("room");
    QTest::addColumn<Page>("page");
    QTest::addColumn<qint64>("kind");
    QTest::addColumn<qint64>("total");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, const DiscRoom &room, Page page, qint64 kind, qint64 total,
                         const QString &text) {
        QTest::newRow(name) << room << page << kind << total << text;
    };
    const DiscRoom cd{ u"CD-R"_s, true, 359844 };
    const QString holds = u"The CD-R in the drive holds 1:19:57."_s;
    row("an empty list", cd, Page::Audio, 0, 0, holds);
    row("more than 74 minutes", cd, Page::Audio, 0, 4700, holds + u" The list fits."_s);
    row("to the last second", cd, Page::Audio, 0, 4797, holds + u" The list just about fits."_s);
    row("too long", cd, Page::Audio, 0, 4858, holds + u" The list is too long by 01:01."_s);
    row("MP3", cd, Page::Audio, 1, 3600, u"The CD-R in the drive holds 702.82 MB. The list fits."_s);
    row("MP3, too large", cd, Page::Audio, 1, 34200,
        u"The CD-R in the drive holds 702.82 MB. The list is too large by 79.96 MB."_s);
    row("data", cd, Page::Data, 0, 690'000, u"The CD-R in the drive holds 702.82 MB. The list fits."_s);
    row("data, one block too large", cd, Page::Data, 0, 719'690,
        u"The CD-R in the drive holds 702.82 MB. The list is too large by 2.00 KB."_s);
    const DiscRoom dl{ u"DVD+R DL"_s, true, 4173824 };
    row("two layers", dl, Page::Data, 1, 6'000'000,
        u"The DVD+R DL in the drive holds 7.96 GB. The list fits."_s);
    row("film", dl, Page::Video, 0, 9000, u"The DVD+R DL in the drive holds about 4:32:23. The list fits."_s);
    row("a plain film disc is what the gauge says", { u"DVD-R"_s, true, 2'298'496 }, Page::Video, 0, 0,
        u"The DVD-R in the drive holds about 2:30:00."_s);
    row("BDXL", { u"BD-R"_s, true, 48'878'592 }, Page::Data, 2, 26'214'400,
        u"The BD-R in the drive holds 93.23 GB. The list fits."_s);
    row("another kind of disc", dl, Page::Audio, 0, 100,
        u"In the drive is a DVD+R DL; this list needs a CD."_s);
    row("closed", { u"CD-R"_s, false, -1 }, Page::Audio, 0, 100,
        u"The CD-R in the drive cannot be written."_s);
    row("written", { u"CD-RW"_s, true, -1 }, Page::Data, 0, 100,
        u"The CD-RW in the drive is erased before it is written."_s);
    row("no list", cd, Page::Audio, -1, 0, {});
}

void DiscRoomTest::tellsWhetherTheListFits()
{
    QFETCH(DiscRoom, room);
    QFETCH(Page, page);
    QFETCH(qint64, kind);
    QFETCH(qint64, total);
    QTEST(compilation::discRoomText(room, page, kind, total, QLocale::c()), "text");
}

QTEST_GUILESS_MAIN(DiscRoomTest)
#include "DiscRoomTest.moc"
