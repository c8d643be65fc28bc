// Data discs on every kind of medium, against a drive that keeps to MMC-5.
#include "Session.h"

using namespace Qt::StringLiterals;
using namespace mmc;

namespace {

/// How a medium is written.
struct Way {
    Disc disc;
    QList<int> announced; ///< commands that come before the first block, besides modes and speeds
    int writeType = -1; ///< of mode page 05h; -1 where that page means nothing
    QString before; ///< words of the status
    QString after;
    bool closes = false; ///< by CLOSE TRACK SESSION
};

constexpr int sessionAtOnce = 2;
const QString once = u"appendable, blank, overwritable"_s;
const QString erasable = u"appendable, blank, erasable, overwritable"_s;
const QString always = u"erasable, overwritable"_s;

QString writability(const QString &status)
{
    return status.section(u"Writability: "_s, 1).section(u'\n', 0, 0);
}

QList<int> announcements(const Drive &drive)
{
    constexpr std::array interesting{ formatUnit, reserveTrack, sendCueSheet, sendOpc, blankDisc };
    QList<int> found;
    for (const int opcode : drive.opcodes()) {
        if (opcode == write10 || opcode == write12)
            break;
        if (std::ranges::count(interesting, opcode) > 0)
            found.append(opcode);
    }
    return found;
}

} // namespace

class DataDiscTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void burns_data()
    {
        QTest::addColumn<Way>("way");
        const Disc newPlusRw{ dvdPlusRw, State::blank, false };
        const Disc newBdRe{ bdRe, State::blank, false };
        QTest::newRow("CD-R") << Way{ { cdR }, { sendCueSheet }, sessionAtOnce, once, u"not writable"_s };
        QTest::newRow("CD-RW") << Way{ { cdRw }, { sendCueSheet }, sessionAtOnce, erasable, u"erasable"_s };
        QTest::newRow("DVD-R") << Way{ { dvdR }, { reserveTrack }, sessionAtOnce, once, u"not writable"_s };
        QTest::newRow("DVD-R DL") << Way{ { dvdRDualLayer }, { reserveTrack }, sessionAtOnce, once,
            u"not writable"_s };
        QTest::newRow("DVD-RW sequential")
            << Way{ { dvdRwSequential }, { reserveTrack }, sessionAtOnce, erasable, u"erasable"_s };
        QTest::newRow("DVD-RW restricted overwrite") << Way{ { dvdRwRestricted }, {}, -1, always, always };
        QTest::newRow("DVD-RAM") << Way{ { dvdRam }, {}, -1, always, always };
        QTest::newRow("new DVD+RW") << Way{ newPlusRw, { formatUnit }, -1, always, always, true };
        QTest::newRow("DVD+RW") << Way{ { dvdPlusRw }, {}, -1, always, always };
        QTest::newRow("DVD+R") << Way{ { dvdPlusR }, { reserveTrack }, -1, once, u"not writable"_s, true };
        QTest::newRow("DVD+R DL") << Way{ { dvdPlusRDualLayer }, { reserveTrack }, -1, once,
            u"not writable"_s, true };
        QTest::newRow("BD-R") << Way{ { bdR }, { reserveTrack }, -1, once, u"not writable"_s, true };
        QTest::newRow("new BD-RE") << Way{ newBdRe, { formatUnit }, -1, always, always };
        QTest::newRow("BD-RE") << Way{ { bdRe }, {}, -1, always, always };
    }

    void burns()
    {
        QFETCH(Way, way);
        Session session(way.disc);
        QCOMPARE(writability(session.status()), way.before);
        QCOMPARE(sentence(session.burn()), QString());
        const Drive &drive = session.drive;
        QCOMPARE(announcements(drive), way.announced);
        QCOMPARE(drive.writeSpeed, 11080);
        if (way.writeType >= 0) {
            QCOMPARE(drive.writeType(), way.writeType);
            QVERIFY(drive.underrunProtection());
        }
        QCOMPARE(!drive.commandsOf(closeTrack).isEmpty(), way.closes);
        QCOMPARE(drive.content(16).left(6), "\1CD001"_ba);
        QVERIFY(drive.content(0).contains(session.bigFile()));
        QCOMPARE(writability(session.status()), way.after);
    }

    // The kernel looks at the disc anew when the tray goes in.
    void theTrayGoesOutAndIn()
    {
        Session session({ dvdPlusR });
        QVERIFY(session.burn());
        QList<quint32> motions;
        for (const Command &command : session.drive.commandsOf(startStop))
            if ((command.number(4, 1) & 2) != 0)
                motions.append(command.number(4, 1) & 3);
        QVERIFY(motions.size() >= 2);
        QCOMPARE(motions.last(2), (QList<quint32>{ 2, 3 }));
        QVERIFY(!session.drive.trayOpen);
        QVERIFY(!session.drive.trayLocked);
    }

    void aClosedDiscIsNotTouched()
    {
        Session session({ dvdR, State::complete, true, 1024, { { 0, QByteArray(2048, 'x') } } });
        QCOMPARE(sentence(session.burn()),
            u"The DVD-R in drive 1 cannot be written any more: insert a blank or rewritable disc."_s);
        QVERIFY(session.drive.commandsOf(write10).isEmpty());
        QVERIFY(!session.drive.trayLocked);
    }

    void tooMuchIsRefusedBeforeAnyBlock()
    {
        for (const int profile : { cdR, dvdRwSequential, dvdPlusRw, bdRe }) {
            Session session({ profile });
            const QString said = sentence(session.burn(1000));
            QVERIFY2(
                said.contains(u"has room for 2.1 MB (1024 blocks): take something out"_s), qPrintable(said));
            QVERIFY(session.drive.commandsOf(write10).isEmpty());
            QVERIFY(session.drive.commandsOf(reserveTrack).isEmpty());
        }
    }

    void aDiscCanBeFilledToItsLastBlock()
    {
        Session measured({ cdR });
        const QString said = sentence(measured.burn(1024));
        const int overhead = said.section(u" MB ("_s, 1).section(u' ', 0, 0).toInt() - 1024;
        QVERIFY(overhead > 0);
        for (const int profile :
            { cdR, dvdR, dvdRwSequential, dvdRwRestricted, dvdPlusR, dvdPlusRw, bdR, bdRe }) {
            Session session({ profile });
            QCOMPARE(sentence(session.burn(1024 - overhead)), QString());
            QCOMPARE(session.drive.disc.blocks.lastKey(), 1023);
            Session larger({ profile });
            QVERIFY(sentence(larger.burn(1025 - overhead)).contains(u"(1025 blocks)"_s));
        }
    }

    // A drive may have no answer about speeds, as old ones do; it chooses for itself then.
    void withoutSpeedsTheDriveChooses()
    {
        Session session({ dvdPlusR }, {});
        QVERIFY(session.burn());
        QVERIFY(session.drive.writeSpeed > 1'000'000);
    }
};

QTEST_GUILESS_MAIN(DataDiscTest)
#include "DataDiscTest.moc"
