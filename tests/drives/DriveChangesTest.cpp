#include "drives/DriveChanges.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// Drives numbered from 1, by their products; "T" is one of several of the same make.
QList<Object_Optical_Drive> drivesOf(const QString &products)
{
    QList<Object_Optical_Drive> drives;
    for (const QChar product : products)
        drives.append({ QString::number(drives.size() + 1), u"ACME"_s, QString(product) });
    return drives;
}

} // namespace

class DriveChangesTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void followsTheChosenDrive_data();
    void followsTheChosenDrive();
};

void DriveChangesTest::followsTheChosenDrive_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<qsizetype>("chosen");
    QTest::addColumn<QString>("gone");
    QTest::addColumn<QString>("listed");
    QTest::addColumn<qsizetype>("now");
    QTest::addColumn<QStringList>("appeared");
    const auto row = [](const char *name, const char *before, qsizetype chosen, const char *gone,
                         const char *listed, qsizetype now, const QStringList &appeared = {}) {
        QTest::newRow(name) << QString::fromLatin1(before) << chosen << QString::fromLatin1(gone)
                            << QString::fromLatin1(listed) << now << appeared;
    };
    row("nothing has changed", "AB", 1, "", "AB", 1);
    row("one before it was plugged in", "AB", 1, "", "CAB", 2, { u"ACME - C"_s });
    row("one before it was pulled out", "AB", 1, "", "B", 0);
    row("it was pulled out", "AB", 0, "", "B", -1);
    row("all were pulled out", "AB", 0, "", "", -1);
    row("it is back", "B", -1, "ACME - A", "BA", 1, { u"ACME - A"_s });
    row("it stays away", "B", -1, "ACME - A", "BC", -1, { u"ACME - C"_s });
    row("the first drive at all", "", -1, "", "AB", 0, { u"ACME - A"_s, u"ACME - B"_s });
    row("still none", "", -1, "", "", -1);
    row("the second of two of one make", "TAT", 2, "", "BTAT", 3, { u"ACME - B"_s });
    row("one of two of one make is gone", "TAT", 2, "", "TA", -1);
    row("another of one make", "T", 0, "", "TT", 0, { u"ACME - T"_s });
}

void DriveChangesTest::followsTheChosenDrive()
{
    QFETCH(QString, before);
    QFETCH(qsizetype, chosen);
    QFETCH(QString, gone);
    QFETCH(QString, listed);
    const drives::Changes found = drives::changes(drivesOf(before), chosen, gone, drivesOf(listed));
    QTEST(found.chosen, "now");
    QTEST(found.appeared, "appeared");
}

QTEST_GUILESS_MAIN(DriveChangesTest)
#include "DriveChangesTest.moc"
