// Erasing and formatting rewritable media, against a drive that keeps to MMC-5.
#include "Session.h"

#include <atomic>
#include <chrono>
#include <semaphore>

using namespace Qt::StringLiterals;
using namespace mmc;
using engine::drive::EraseMode;

namespace {

struct Erase {
    Disc disc;
    EraseMode mode = EraseMode::quick;
    int blanking = -1; ///< type of BLANK, -1 for none
    int formatting = -1; ///< type of FORMAT UNIT (MMC-5 6.5), -1 for none
    qint32 zeros = 0; ///< blocks that are overwritten
    int profile = none; ///< afterwards
};

constexpr int full = 0;
constexpr int minimal = 1;
constexpr int plusRwBasic = 0x26;
constexpr int fullFormat = 0x00;

Disc written(int profile)
{
    Disc disc{ profile, State::complete };
    for (qint32 i = 0; i < disc.capacity; ++i)
        disc.blocks[i] = QByteArray(2048, 'x');
    return disc;
}

Disc unformatted(int profile)
{
    return { profile, State::blank, false };
}

int only(const QList<Command> &commands, int (*value)(const Command &))
{
    return commands.isEmpty() ? -1 : commands.size() > 1 ? -2 : value(commands.first());
}

qint32 zeroBlocks(const Disc &disc)
{
    return qint32(std::ranges::count(disc.blocks, QByteArray(2048, '\0')));
}

} // namespace

class RewritableTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void erases_data()
    {
        QTest::addColumn<Erase>("erase");
        constexpr auto quick = EraseMode::quick;
        constexpr auto whole = EraseMode::full;
        QTest::newRow("CD-RW quick") << Erase{ written(cdRw), quick, minimal, -1, 0, cdRw };
        QTest::newRow("CD-RW full") << Erase{ written(cdRw), whole, full, -1, 0, cdRw };
        QTest::newRow("DVD-RW sequential quick")
            << Erase{ written(dvdRwSequential), quick, minimal, -1, 0, dvdRwSequential };
        QTest::newRow("DVD-RW sequential full")
            << Erase{ written(dvdRwSequential), whole, full, -1, 0, dvdRwSequential };
        QTest::newRow("DVD-RW restricted quick")
            << Erase{ written(dvdRwRestricted), quick, -1, -1, 512, dvdRwRestricted };
        QTest::newRow("DVD-RW restricted full")
            << Erase{ written(dvdRwRestricted), whole, full, -1, 0, dvdRwSequential };
        QTest::newRow("DVD+RW quick") << Erase{ written(dvdPlusRw), quick, -1, -1, 512, dvdPlusRw };
        QTest::newRow("DVD+RW full") << Erase{ written(dvdPlusRw), whole, -1, -1, 1024, dvdPlusRw };
        QTest::newRow("new DVD+RW") << Erase{ unformatted(dvdPlusRw), quick, -1, plusRwBasic, 512,
            dvdPlusRw };
        QTest::newRow("DVD-RAM quick") << Erase{ written(dvdRam), quick, -1, -1, 512, dvdRam };
        QTest::newRow("DVD-RAM full") << Erase{ written(dvdRam), whole, -1, -1, 1024, dvdRam };
        QTest::newRow("new DVD-RAM") << Erase{ unformatted(dvdRam), quick, -1, fullFormat, 512, dvdRam };
        QTest::newRow("BD-RE quick") << Erase{ written(bdRe), quick, -1, -1, 512, bdRe };
        QTest::newRow("BD-RE full") << Erase{ written(bdRe), whole, -1, -1, 1024, bdRe };
        QTest::newRow("new BD-RE") << Erase{ unformatted(bdRe), quick, -1, fullFormat, 512, bdRe };
    }

    void erases()
    {
        QFETCH(Erase, erase);
        Session session(erase.disc);
        QCOMPARE(sentence(session.erase(erase.mode)), QString());
        const Drive &drive = session.drive;
        QCOMPARE(only(drive.commandsOf(blankDisc), [](const Command &c) { return int(c.number(1, 1) & 7); }),
            erase.blanking);
        QCOMPARE(
            only(drive.commandsOf(formatUnit), [](const Command &c) { return int(c.dataNumber(8, 1)) >> 2; }),
            erase.formatting);
        QCOMPARE(zeroBlocks(drive.disc), erase.zeros);
        QCOMPARE(drive.disc.profile, erase.profile);
        QVERIFY(!drive.trayLocked);
        QVERIFY(session.status().contains(u"Space Used:   00:00:00"_s));
        QCOMPARE(sentence(session.burn()), QString());
    }

    // libburn formats a new DVD+RW in the course of the write, and no sector of it is written meanwhile.
    void aFormatWithinAWriteHasNoPercentage()
    {
        Session session(unformatted(dvdPlusRw));
        std::binary_semaphore told(0);
        bool formats = false;
        session.options.control.progress = [&](const engine::Progress &progress, unsigned) {
            if (progress.phase == engine::Phase::erasing && progress.total == 0 && !formats) {
                formats = true;
                told.release();
            }
        };
        bool seen = false;
        session.drive.refuse = [&](const Command &command) -> std::optional<Sense> {
            if (command.opcode() == formatUnit)
                seen = told.try_acquire_for(std::chrono::seconds(30));
            return {};
        };
        QCOMPARE(sentence(session.burn()), QString());
        QVERIFY(seen);
    }

    void aWrittenDiscIsErasedBeforeTheNextBurn_data()
    {
        QTest::addColumn<int>("profile");
        QTest::addColumn<bool>("blanks");
        QTest::newRow("CD-RW") << int(cdRw) << true;
        QTest::newRow("DVD-RW sequential") << int(dvdRwSequential) << true;
        QTest::newRow("DVD-RW restricted") << int(dvdRwRestricted) << false;
        QTest::newRow("DVD+RW") << int(dvdPlusRw) << false;
        QTest::newRow("BD-RE") << int(bdRe) << false;
    }

    void aWrittenDiscIsErasedBeforeTheNextBurn()
    {
        QFETCH(int, profile);
        Session session({ profile });
        QCOMPARE(sentence(session.burn(50)), QString());
        QVERIFY(session.drive.commandsOf(blankDisc).isEmpty());
        session.lines.clear();
        // Erased, it takes more than it held.
        QCOMPARE(sentence(session.burn(800)), QString());
        QVERIFY(session.lines.contains(u"The disc is not blank; it is erased first."_s));
        QTEST(!session.drive.commandsOf(blankDisc).isEmpty(), "blanks");
        QVERIFY(session.drive.content(0).contains(session.bigFile()));
    }

    void whatNoErasedDiscHoldsLeavesItAsItIs()
    {
        for (const int profile : { cdRw, dvdRwSequential }) {
            Session session(written(profile));
            const QString said = sentence(session.burn(1100));
            QVERIFY2(said.contains(u"has room for 2.1 MB (1024 blocks)"_s), qPrintable(said));
            QVERIFY(session.drive.commandsOf(blankDisc).isEmpty());
        }
    }

    // A drive that tells no size of the written disc tells that of the erased one.
    void whereNoSizeIsToldTheErasedDiscDecides()
    {
        for (const int profile : { cdRw, dvdRwSequential }) {
            Session session({ profile });
            session.drive.refuse = [](const Command &command) -> std::optional<Sense> {
                const bool atip = command.opcode() == readToc && (command.number(2, 1) & 0x0f) == 4;
                if (atip || command.opcode() == readFormatCapacities)
                    return Sense{ 5, 0x24, 0x00 };
                return {};
            };
            QCOMPARE(sentence(session.burn(50)), QString());
            QCOMPARE(sentence(session.burn(800)), QString());
            QVERIFY(session.drive.content(0).contains(session.bigFile()));
            const QString said = sentence(session.burn(1100));
            QVERIFY2(said.contains(u"has room for 2.1 MB (1024 blocks)"_s), qPrintable(said));
            QCOMPARE(session.drive.commandsOf(blankDisc).size(), 2);
            QCOMPARE(session.drive.disc.state, State::blank);
        }
    }

    // The spares that a format sets aside are known only when it is done.
    void whatDoesNotFitTheFormattedDiscIsNotBegun()
    {
        Session session(unformatted(bdRe));
        session.drive.spares = 224;
        const QString said = sentence(session.burn(800));
        QVERIFY2(said.contains(u"has room for 1.6 MB (800 blocks)"_s), qPrintable(said));
        QVERIFY(session.drive.commandsOf(write10).isEmpty());
        QVERIFY(!session.drive.trayLocked);
    }

    // The kernel's DVD-RAM driver of the lab and many real drives know no SET STREAMING.
    void withoutSetStreaming()
    {
        for (const int profile : { dvdRam, dvdPlusRw, bdRe }) {
            Session session({ profile });
            session.drive.refuse = [](const Command &command) -> std::optional<Sense> {
                if (command.opcode() == setStreaming)
                    return Sense{ 5, 0x20, 0x00 };
                return {};
            };
            QCOMPARE(sentence(session.burn()), QString());
            QCOMPARE(session.drive.writeSpeed, 11080); // by SET CD SPEED
        }
    }

    // Such a disc has no table of contents, and libburn calls it unsuitable; erasing is its cure.
    void aCdRwAfterAKilledWriteCanBeErased()
    {
        Session session(written(cdRw));
        session.drive.disc.state = State::appendable;
        session.drive.refuse = [&](const Command &command) -> std::optional<Sense> {
            if (command.opcode() == readToc && (command.number(2, 1) & 0x0f) == 2)
                return Sense{ 5, 0x24, 0x00 };
            return {};
        };
        QVERIFY2(session.status().contains(u"Writability: erasable"_s), qPrintable(session.status()));
        QCOMPARE(sentence(session.burn()), QString());
        QCOMPARE(session.drive.commandsOf(blankDisc).size(), 1);
    }

    void aRefusedBlankingIsTold()
    {
        Session session(written(cdRw));
        session.drive.refuse = [](const Command &command) -> std::optional<Sense> {
            if (command.opcode() == blankDisc)
                return Sense{ 3, 0x51, 0x00 };
            return {};
        };
        const QString said = sentence(session.erase(EraseMode::quick));
        QVERIFY2(said.startsWith(u"The disc in drive 1 cannot be erased ("_s), qPrintable(said));
        QVERIFY2(
            said.endsWith(
                u"try a full erase, or another disc. The disc in drive 1 has to be erased before it can be used."_s),
            qPrintable(said));
        QVERIFY(!session.drive.trayLocked);
        QCOMPARE(session.drive.disc.state, State::complete);
    }

    void aRefusedFormatIsTold()
    {
        Session session(unformatted(bdRe));
        session.drive.refuse = [](const Command &command) -> std::optional<Sense> {
            if (command.opcode() == formatUnit)
                return Sense{ 3, 0x31, 0x01 };
            return {};
        };
        const QString said = sentence(session.burn());
        QVERIFY2(said.startsWith(u"The disc in drive 1 cannot be formatted ("_s), qPrintable(said));
        QVERIFY(session.drive.commandsOf(write10).isEmpty());
        QVERIFY(!session.drive.trayLocked);
    }

    void aFormatThatFailsIsNotToldAsDoneAfterAStop_data()
    {
        QTest::addColumn<bool>("refused");
        QTest::addColumn<QString>("start");
        QTest::newRow("refused") << true << u"The disc in drive 1 cannot be formatted ("_s;
        QTest::newRow("well") << false << u"Stopped after the disc in drive 1 was formatted."_s;
    }

    void aFormatThatFailsIsNotToldAsDoneAfterAStop()
    {
        QFETCH(bool, refused);
        QFETCH(QString, start);
        Session session(unformatted(bdRe));
        std::binary_semaphore asked(0);
        std::atomic<bool> begun = false; // set by the thread that formats
        session.stopAt = [&, first = true]() mutable {
            if (begun && std::exchange(first, false))
                asked.release();
            return begun.load();
        };
        session.drive.refuse = [&](const Command &command) -> std::optional<Sense> {
            if (command.opcode() != formatUnit)
                return {};
            begun = true;
            (void)asked.try_acquire_for(std::chrono::seconds(30));
            return refused ? std::optional(Sense{ 3, 0x31, 0x01 }) : std::nullopt;
        };
        const auto done = session.burn();
        QVERIFY2(sentence(done).startsWith(start), qPrintable(sentence(done)));
        QCOMPARE(int(done.error().exit), refused ? 1 : 143);
        QVERIFY(session.drive.commandsOf(write10).isEmpty());
        QVERIFY(!session.drive.trayLocked);
    }

    void whatIsWrittenOnceIsNotErased()
    {
        for (const int profile : { cdR, dvdR, dvdPlusR, bdR }) {
            Session session({ profile });
            const QString said = sentence(session.erase(EraseMode::full));
            QVERIFY2(said.endsWith(u"cannot be erased: insert a rewritable disc."_s), qPrintable(said));
            QVERIFY(session.drive.commandsOf(blankDisc).isEmpty());
            QVERIFY(session.drive.commandsOf(formatUnit).isEmpty());
        }
    }

    // An erase that is broken off leaves a disc that many drives refuse; it ends, and the stop is told then.
    void aStopWaitsForTheEndOfABlanking()
    {
        Session session(written(cdRw));
        std::binary_semaphore asked(0);
        std::atomic<bool> begun = false; // set by the thread that blanks
        session.stopAt = [&, first = true]() mutable {
            if (begun && std::exchange(first, false))
                asked.release();
            return begun.load();
        };
        session.drive.refuse = [&](const Command &command) -> std::optional<Sense> {
            if (command.opcode() == blankDisc) {
                begun = true;
                (void)asked.try_acquire_for(std::chrono::seconds(30));
            }
            return {};
        };
        const auto done = session.erase(EraseMode::quick);
        QVERIFY(!done);
        QCOMPARE(int(done.error().exit), 143);
        QCOMPARE(sentence(done), u"Stopped after the erase had ended: the disc in drive 1 is blank."_s);
        QCOMPARE(session.drive.disc.state, State::blank);
    }
};

QTEST_GUILESS_MAIN(RewritableTest)
#include "RewritableTest.moc"
