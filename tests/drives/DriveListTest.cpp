#include "drives/DriveList.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString header = u"   Vendor   Product           Rev   Bus       SupportLevel\n"_s;

/// A line of the listing with every column in its place.
QString line(const QString &number, const QString &vendor, const QString &product)
{
    return number + u"  "_s + vendor.leftJustified(9) + product.leftJustified(18)
        + u"1.00  SATA      Supported\n"_s;
}

/// The marks of the six slots as text, "x" for a checked one.
QString marks(const QList<bool> &checked)
{
    QString text;
    for (const bool mark : checked)
        text += mark ? u'x' : u'-';
    return text;
}

QList<Object_Optical_Drive> severalDrives(int count)
{
    QList<Object_Optical_Drive> drives;
    for (int i = 1; i <= count; ++i)
        drives.append({ QString::number(i), u"MAKER"_s, u"Model %1"_s.arg(i) });
    return drives;
}

} // namespace

class DriveListTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void parsesListings_data();
    void parsesListings();
    void titlesADrive();
    void choosesTheCurrentDrive_data();
    void choosesTheCurrentDrive();
};

void DriveListTest::parsesListings_data()
{
    using Drives = QList<Object_Optical_Drive>;
    QTest::addColumn<QString>("listing");
    QTest::addColumn<Drives>("expected");

    const auto row = [](const char *name, const QString &listing, const Drives &expected) {
        QTest::newRow(name) << listing << expected;
    };
    const Object_Optical_Drive writer{ u"1"_s, u"HL-DT-ST"_s, u"DVDRAM GH24NSD1"_s };
    const Object_Optical_Drive bluray{ u"2"_s, u"PIONEER"_s, u"BD-RW   BDR-209D"_s };
    const QString writerLine = line(u"1"_s, u"HL-DT-ST"_s, u"DVDRAM GH24NSD1"_s);
    const QString blurayLine = line(u"2"_s, u"PIONEER"_s, u"BD-RW   BDR-209D"_s);

    row("nothing printed", {}, {});
    row("only the header", header, {});
    row("only the header, no line end", header.chopped(1), {});
    row("only line ends", u"\n\n\n"_s, {});
    row("one drive", header + writerLine, { writer });
    row("one drive, no line end", header + writerLine.chopped(1), { writer });
    row("two drives", header + writerLine + blurayLine, { writer, bluray });
    row("an empty line ends the list", header + writerLine + u'\n' + blurayLine, { writer });
    row("an empty first line is no header", u'\n' + header + writerLine, {});
    row("a blank line is a drive without names", header + u" \n"_s + writerLine,
        { { u" "_s, {}, {} }, writer });
    row("vendor and product fill their columns", header + u"1  VENDOR789PRODUCT890123456781.00  USB\n"_s,
        { { u"1"_s, u"VENDOR789"_s, u"PRODUCT89012345678"_s } });
    row("blanks and tabs around names are cut off", header + u"3  \t ASUS \t \tDRW-24D5MT \t     1.00\n"_s,
        { { u"3"_s, u"ASUS"_s, u"DRW-24D5MT"_s } });
    row("other white space stays", header + u"3  \u00a0ASUS    DRW-24D5MT\r"_s,
        { { u"3"_s, u"\u00a0ASUS"_s, u"DRW-24D5MT\r"_s } });
    row("a number of two characters keeps its first", header + u"10 MAKER    Model 10          1.00\n"_s,
        { { u"1"_s, u"MAKER"_s, u"Model 10"_s } });
    row("a number is not trimmed", header + u"   MAKER    Model             1.00\n"_s,
        { { u" "_s, u"MAKER"_s, u"Model"_s } });
    row("a line that ends in its product", header + u"1  MAKER    Mod\n"_s,
        { { u"1"_s, u"MAKER"_s, u"Mod"_s } });
    row("a line that ends in its vendor", header + u"1  MA\n"_s, { { u"1"_s, u"MA"_s, {} } });
    row("a line of one character", header + u"1\n"_s, { { u"1"_s, {}, {} } });
    row("an error text instead of a table", u"drutil: there is no drive\nPlease attach one.\n"_s,
        { { u"P"_s, u"ase attac"_s, u"h one."_s } });
    row("names that are not ASCII", header + line(u"1"_s, u"ÄÖÜ光"_s, u"Größe"_s),
        { { u"1"_s, u"ÄÖÜ光"_s, u"Größe"_s } });
    QString many = header;
    for (const Object_Optical_Drive &drive : severalDrives(9))
        many += line(drive.s_Drive_Number, drive.sManufacturer, drive.sModel);
    row("more drives than there are slots", many, severalDrives(9));
}

void DriveListTest::parsesListings()
{
    QFETCH(QString, listing);
    QFETCH(QList<Object_Optical_Drive>, expected);
    QCOMPARE(drives::parseList(listing), expected);
}

void DriveListTest::titlesADrive()
{
    QCOMPARE(drives::title({ u"1"_s, u"HL-DT-ST"_s, u"DVDRAM GH24NSD1"_s }), u"HL-DT-ST - DVDRAM GH24NSD1"_s);
    QCOMPARE(drives::title({ u"1"_s, u"%2"_s, u"%1"_s }), u"%2 - %1"_s);
    QCOMPARE(drives::title({}), u" - "_s);
}

void DriveListTest::choosesTheCurrentDrive_data()
{
    QTest::addColumn<QList<Object_Optical_Drive>>("listed");
    QTest::addColumn<QString>("remembered");
    QTest::addColumn<QString>("number");
    QTest::addColumn<QString>("remember");
    QTest::addColumn<QString>("checked");

    const QList<Object_Optical_Drive> two = severalDrives(2);
    QList<Object_Optical_Drive> twins = severalDrives(3);
    twins[2].sModel = twins[0].sModel;
    QList<Object_Optical_Drive> twinAfterSlots = severalDrives(8);
    twinAfterSlots[7].sModel = twinAfterSlots[1].sModel;

    QTest::newRow("no drive, nothing remembered")
        << QList<Object_Optical_Drive>() << QString() << QString() << QString() << u"------"_s;
    QTest::newRow("no drive, one remembered")
        << QList<Object_Optical_Drive>() << u"MAKER - Model 1"_s << QString() << QString() << u"------"_s;
    QTest::newRow("one drive, nothing remembered")
        << severalDrives(1) << QString() << u"1"_s << u"MAKER - Model 1"_s << u"x-----"_s;
    QTest::newRow("two drives, nothing remembered")
        << two << QString() << u"1"_s << u"MAKER - Model 1"_s << u"x-----"_s;
    QTest::newRow("two drives, the second remembered")
        << two << u"MAKER - Model 2"_s << u"2"_s << QString() << u"-x----"_s;
    QTest::newRow("the remembered drive is gone")
        << two << u"OTHER - Model 9"_s << u"1"_s << u"MAKER - Model 1"_s << u"x-----"_s;
    QTest::newRow("another case is another drive")
        << two << u"maker - model 2"_s << u"1"_s << u"MAKER - Model 1"_s << u"x-----"_s;
    QTest::newRow("the sixth of seven remembered")
        << severalDrives(7) << u"MAKER - Model 6"_s << u"6"_s << QString() << u"-----x"_s;
    QTest::newRow("the seventh of seven remembered")
        << severalDrives(7) << u"MAKER - Model 7"_s << u"7"_s << QString() << u"------"_s;
    QTest::newRow("two of the same title, remembered")
        << twins << u"MAKER - Model 1"_s << u"3"_s << QString() << u"x-x---"_s;
    QTest::newRow("two of the same title, nothing remembered")
        << twins << QString() << u"3"_s << u"MAKER - Model 1"_s << u"x-x---"_s;
    QTest::newRow("the later of the same title has no slot")
        << twinAfterSlots << u"MAKER - Model 2"_s << u"8"_s << QString() << u"-x----"_s;
    QTest::newRow("a drive without names") << QList<Object_Optical_Drive>{ { u"4"_s, {}, {} } } << QString()
                                           << u"4"_s << u" - "_s << u"x-----"_s;
}

void DriveListTest::choosesTheCurrentDrive()
{
    QFETCH(QList<Object_Optical_Drive>, listed);
    QFETCH(QString, remembered);
    const drives::Choice choice = drives::choose(listed, remembered);
    QTEST(choice.number, "number");
    QTEST(choice.remember, "remember");
    QTEST(marks(choice.checked), "checked");
}

QTEST_GUILESS_MAIN(DriveListTest)
#include "DriveListTest.moc"
