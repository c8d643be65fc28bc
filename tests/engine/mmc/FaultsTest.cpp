// Drives that refuse, fail, or go away, and what is tried next and said.
#include "Session.h"
#include "drive/LibburnDrive.h"

#include <atomic>
#include <chrono>
#include <semaphore>

using namespace Qt::StringLiterals;
using namespace mmc;

namespace {

constexpr Sense powerCalibration{ 3, 0x73, 0x03 };
constexpr Sense writeError{ 3, 0x0c, 0x00 };
constexpr Sense refused{ 5, 0x20, 0x00 };

bool isWrite(const Command &command)
{
    return command.opcode() == write10 || command.opcode() == write12;
}

/// The speeds that were asked for, without repetition.
QList<int> speedsOf(const Drive &drive)
{
    QList<int> found;
    for (const Command &command : drive.commands) {
        const bool streaming = command.opcode() == setStreaming;
        if (!streaming && command.opcode() != setSpeed)
            continue;
        const int speed = int(streaming ? command.dataNumber(20, 4) : command.number(4, 2));
        if (found.isEmpty() || found.last() != speed)
            found.append(speed);
    }
    return found;
}

} // namespace

class FaultsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theNearestSpeedIsTakenAndTold_data()
    {
        QTest::addColumn<double>("factor"); // 0 for the fastest
        QTest::addColumn<bool>("cd");
        QTest::addColumn<int>("speed");
        QTest::newRow("DVD, nearest") << 3.9 << false << 5540;
        QTest::newRow("DVD, fastest") << 0.0 << false << 11080;
        QTest::newRow("CD, nearest") << 5.0 << true << 706;
    }

    void theNearestSpeedIsTakenAndTold()
    {
        QFETCH(double, factor);
        QFETCH(bool, cd);
        QFETCH(int, speed);
        Session session(
            { cd ? int(cdR) : int(dvdR) }, cd ? QList<int>{ 706, 1411 } : QList<int>{ 2770, 5540, 11080 });
        QList<int> told;
        session.options.pace = { factor > 0 ? engine::SpeedWish(factor) : engine::SpeedWish(),
            [&](int begun, engine::Family) { told.append(begun); } };
        QCOMPARE(sentence(session.burn(100)), QString());
        QCOMPARE(told, QList<int>{ speed });
        // libburn rounds what it asks of a CD drive.
        QVERIFY2(qAbs(session.drive.writeSpeed - speed) <= 1,
            QByteArray::number(session.drive.writeSpeed).constData());
    }

    void aLowerSpeedIsToldAsWell()
    {
        Session session({ dvdR });
        int refused = 0;
        session.drive.refuse = [&](const Command &command) -> std::optional<Sense> {
            const bool write = command.opcode() == write10 || command.opcode() == write12;
            return write && session.drive.writeSpeed > 2770 && ++refused
                ? std::optional(Sense{ 3, 0x73, 0x03 })
                : std::nullopt;
        };
        QList<int> told;
        session.options.pace = { engine::SpeedWish(4.0),
            [&](int begun, engine::Family) { told.append(begun); } };
        QCOMPARE(sentence(session.burn(100)), QString());
        QCOMPARE(told, (QList<int>{ 5540, 2770 }));
        QVERIFY(refused > 0);
    }

    void aPowerCalibrationErrorLowersTheSpeed_data()
    {
        QTest::addColumn<int>("profile");
        for (const auto &[name, profile] :
            { std::pair{ "CD-R", cdR }, { "DVD-R", dvdR }, { "DVD+R", dvdPlusR }, { "DVD+RW", dvdPlusRw } })
            QTest::newRow(name) << int(profile);
    }

    void aPowerCalibrationErrorLowersTheSpeed()
    {
        QFETCH(int, profile);
        Session session({ profile });
        session.drive.refuse = [&](const Command &command) -> std::optional<Sense> {
            if (isWrite(command) && session.drive.writeSpeed > 2770)
                return powerCalibration;
            return {};
        };
        QCOMPARE(sentence(session.burn()), QString());
        QCOMPARE(speedsOf(session.drive), (QList<int>{ 11080, 5540, 2770 }));
        QVERIFY(session.drive.content(0).contains(session.bigFile()));
    }

    void atTheLowestSpeedTheErrorIsTold()
    {
        Session session({ dvdR });
        session.drive.refuse = [](const Command &command) -> std::optional<Sense> {
            return isWrite(command) ? std::optional(powerCalibration) : std::nullopt;
        };
        const QString said = sentence(session.burn());
        QVERIFY2(said.contains(u"Power calibration area error"_s), qPrintable(said));
        QVERIFY2(said.endsWith(u"The disc in drive 1 is still blank."_s), qPrintable(said));
        QCOMPARE(speedsOf(session.drive), (QList<int>{ 11080, 5540, 2770 }));
        QVERIFY(!session.drive.trayLocked);
    }

    void aDriveThatRefusesToReserveWritesIncrementally_data()
    {
        QTest::addColumn<int>("profile");
        QTest::addColumn<int>("refusal");
        QTest::newRow("CD-R") << int(cdR) << int(sendCueSheet);
        QTest::newRow("DVD-R") << int(dvdR) << int(reserveTrack);
        QTest::newRow("DVD+R") << int(dvdPlusR) << int(reserveTrack);
        QTest::newRow("BD-R") << int(bdR) << int(reserveTrack);
    }

    void aDriveThatRefusesToReserveWritesIncrementally()
    {
        QFETCH(int, profile);
        QFETCH(int, refusal);
        Session session({ profile });
        session.drive.refuse = [refusal](const Command &command) -> std::optional<Sense> {
            return command.opcode() == refusal ? std::optional(refused) : std::nullopt;
        };
        QCOMPARE(sentence(session.burn()), QString());
        QVERIFY(session.drive.content(0).contains(session.bigFile()));
        QCOMPARE(session.drive.disc.state, State::complete);
    }

    void aDvdRwThatTakesOneSessionAtOnceOnlyIsNotTriedOtherwise()
    {
        Session session({ dvdRwSequential });
        session.drive.disc.incremental = false;
        session.drive.refuse = [](const Command &command) -> std::optional<Sense> {
            return command.opcode() == reserveTrack ? std::optional(refused) : std::nullopt;
        };
        const QString said = sentence(session.burn());
        QVERIFY2(said.startsWith(u"The write to drive 1 failed ("_s), qPrintable(said));
        QVERIFY2(said.endsWith(u"The disc in drive 1 is still blank."_s), qPrintable(said));
        QVERIFY(session.drive.commandsOf(write10).isEmpty());
    }

    // What took blocks is not begun again.
    void anErrorInMidWriteSpoilsADiscThatIsWrittenOnce()
    {
        Session session({ dvdPlusR });
        session.drive.refuse = [](const Command &command) -> std::optional<Sense> {
            return isWrite(command) && command.number(2, 4) >= 640 ? std::optional(writeError) : std::nullopt;
        };
        const QString said = sentence(session.burn(700));
        QVERIFY2(said.startsWith(u"The write to drive 1 failed (SCSI error on write(640,16): [3 0C 00]"_s),
            qPrintable(said));
        QVERIFY2(said.endsWith(u"The disc in drive 1 is spoilt."_s), qPrintable(said));
        QCOMPARE(session.drive.disc.blocks.lastKey(), 639);
        QVERIFY(!session.drive.trayLocked);
    }

    void anErrorInMidWriteLeavesARewritableDiscUsable()
    {
        for (const int profile : { cdRw, dvdRwSequential, dvdPlusRw, bdRe }) {
            Session session({ profile });
            session.drive.refuse = [](const Command &command) -> std::optional<Sense> {
                return isWrite(command) && command.number(2, 4) - 640 < 1000 ? std::optional(writeError)
                                                                             : std::nullopt;
            };
            QVERIFY(sentence(session.burn(700)).startsWith(u"The write to drive 1 failed"_s));
            session.drive.refuse = {};
            QCOMPARE(sentence(session.burn(100)), QString());
        }
    }

    void aStopEndsTheWriteAndUnlocksTheTray()
    {
        Session session({ dvdPlusR });
        std::binary_semaphore asked(0);
        std::atomic<bool> written = false; // set by the thread that writes
        session.stopAt = [&] {
            if (!written.exchange(false))
                return false;
            asked.release();
            return true;
        };
        session.drive.refuse = [&](const Command &command) -> std::optional<Sense> {
            if (isWrite(command) && command.number(2, 4) == 160) {
                written = true;
                (void)asked.try_acquire_for(std::chrono::seconds(30));
            }
            return {};
        };
        const auto done = session.burn(700);
        QVERIFY(!done);
        QCOMPARE(int(done.error().exit), 143);
        QCOMPARE(sentence(done), u"Stopped. The disc in drive 1 is spoilt."_s);
        QVERIFY(session.drive.disc.blocks.size() < 700);
        QVERIFY(!session.drive.trayLocked);
    }

    void aStopWhileTheDiscIsClosedIsOnlyNoted_data()
    {
        QTest::addColumn<int>("profile");
        QTest::addColumn<bool>("verify");
        QTest::addColumn<QString>("said");
        const QString uncompared = u"Stopped: the disc in drive 1 is written, but was not compared."_s;
        const QString closed = u"Stopped after the disc in drive 1 was written and closed."_s;
        QTest::newRow("CD-R, compared") << int(cdR) << true << uncompared;
        QTest::newRow("DVD+R, compared") << int(dvdPlusR) << true << uncompared;
        QTest::newRow("DVD+R") << int(dvdPlusR) << false << closed;
        QTest::newRow("BD-R") << int(bdR) << false << closed;
    }

    void aStopWhileTheDiscIsClosedIsOnlyNoted()
    {
        QFETCH(int, profile);
        QFETCH(bool, verify);
        Session session({ profile });
        session.options.verify = verify;
        std::binary_semaphore asked(0);
        std::atomic<bool> closing = false; // set by the thread that tells of progress
        session.options.control.progress = [&](const engine::Progress &progress, unsigned) {
            closing = closing || progress.phase == engine::Phase::closing;
        };
        session.stopAt = [&, first = true]() mutable {
            if (closing && std::exchange(first, false))
                asked.release();
            return closing.load();
        };
        // The drive empties its buffer until the stop has come.
        session.drive.refuse = [&, held = false](const Command &command) mutable -> std::optional<Sense> {
            if (command.opcode() == synchronizeCache && !std::exchange(held, true))
                (void)asked.try_acquire_for(std::chrono::seconds(30));
            return {};
        };
        const auto done = session.burn(700);
        QTEST(sentence(done), "said");
        QCOMPARE(int(done.error().exit), 143);
        QCOMPARE(session.drive.disc.state, State::complete);
        QVERIFY(session.drive.content(0).contains(session.bigFile()));
        QVERIFY(!session.drive.trayLocked);
    }

    void aStopEndsTheWaitForADiscThatDoesNotGetReady()
    {
        Session session({ dvdPlusR });
        session.drive.refuse = [](const Command &command) -> std::optional<Sense> {
            return command.opcode() == readDiscInformation ? std::optional(writeError) : std::nullopt;
        };
        int asked = 0;
        session.options.control.stop = [&asked] { return ++asked > 2 ? SIGINT : 0; };
        const auto done = session.burn();
        QCOMPARE(sentence(done), u"Stopped before anything was written: the disc is as it was."_s);
        QCOMPARE(int(done.error().exit), 130);
        QVERIFY(!session.lines.contains(u"Preparing"_s)); // the wait comes before that
        QVERIFY(!session.drive.trayLocked);
    }

    void aDiscThatIsSlowToGetReadyIsWaitedFor()
    {
        Session session({ dvdPlusR });
        int asked = 0;
        session.drive.refuse = [&](const Command &command) -> std::optional<Sense> {
            const bool turning =
                (command.opcode() == testUnitReady || command.opcode() == readDiscInformation)
                && ++asked <= 12;
            return turning ? std::optional(Sense{ 2, 0x04, 0x01 }) : std::nullopt; // becoming ready
        };
        QCOMPARE(sentence(session.burn()), QString());
        QVERIFY(asked > 12);
        QVERIFY(session.drive.content(0).contains(session.bigFile()));
    }

    // The button was pressed, and another disc is in; what was announced is gone.
    void anotherDiscBetweenTwoCommandsEndsTheWrite()
    {
        Session session({ dvdPlusR });
        session.drive.refuse = [&, changed = false](const Command &command) mutable -> std::optional<Sense> {
            if (!changed && isWrite(command) && command.number(2, 4) == 640) {
                changed = true;
                session.drive.exchange({ dvdPlusR });
                return Sense{ 6, 0x28, 0x00 };
            }
            return {};
        };
        const QString said = sentence(session.burn(700));
        QVERIFY2(said.startsWith(u"The write to drive 1 failed ("_s), qPrintable(said));
        QVERIFY2(said.contains(u"[6 28 00]"_s) || said.contains(u"[5 21 02]"_s), qPrintable(said));
        QVERIFY2(said.endsWith(u"The disc in drive 1 is spoilt."_s), qPrintable(said));
        QVERIFY(!session.drive.trayLocked);
    }

    void whatTheDriveCachesReachesTheDisc_data()
    {
        QTest::addColumn<int>("profile");
        for (const auto &[name, profile] : { std::pair{ "CD-R", cdR }, { "DVD-R", dvdR },
                 { "DVD-RW", dvdRwSequential }, { "DVD+R", dvdPlusR }, { "DVD+RW", dvdPlusRw },
                 { "DVD-RAM", dvdRam }, { "BD-R", bdR }, { "BD-RE", bdRe } })
            QTest::newRow(name) << int(profile);
    }

    void whatTheDriveCachesReachesTheDisc()
    {
        QFETCH(int, profile);
        Session session({ profile });
        session.drive.caches = true;
        QCOMPARE(sentence(session.burn(300)), QString());
        QVERIFY(session.drive.content(0).contains(session.bigFile()));
    }

    void aCacheThatCannotBeFlushedIsTold()
    {
        Session session({ dvdR });
        session.drive.caches = true;
        session.drive.refuse = [](const Command &command) -> std::optional<Sense> {
            return command.opcode() == synchronizeCache ? std::optional(writeError) : std::nullopt;
        };
        const QString said = sentence(session.burn(300));
        QVERIFY2(said.startsWith(u"The write to drive 1 failed (Failed to synchronize drive cache. "_s),
            qPrintable(said));
        QVERIFY(!session.drive.trayLocked);
    }

    // The drive had said that all is well when it took the blocks.
    void anErrorThatComesLateIsTold()
    {
        Session session({ dvdPlusR });
        session.drive.refuse = [](const Command &command) -> std::optional<Sense> {
            return isWrite(command) && command.number(2, 4) >= 640
                ? std::optional(Sense{ 3, 0x0c, 0x00, true })
                : std::nullopt;
        };
        const QString said = sentence(session.burn(700));
        QVERIFY2(said.startsWith(u"The write to drive 1 failed ("_s), qPrintable(said));
        QVERIFY2(said.contains(u"[3 0C 00]"_s), qPrintable(said));
        QVERIFY2(said.endsWith(u"The disc in drive 1 is spoilt."_s), qPrintable(said));
    }

    void aDriveThatPromisesMoreRoomThanThereIs()
    {
        for (const int profile : { cdR, dvdR, dvdPlusR, bdR }) {
            Session session({ profile });
            session.drive.promised = 1000;
            const QString said = sentence(session.burn(1500));
            QVERIFY2(said.startsWith(u"The write to drive 1 failed ("_s), qPrintable(said));
            QVERIFY2(said.endsWith(u"The disc in drive 1 is spoilt."_s), qPrintable(said));
            QVERIFY(!session.drive.trayLocked);
        }
    }

    void theDiscIsReadBackInLargePieces()
    {
        Session session({ dvdR });
        int pieces = 0, large = 0;
        bool largeOnes = true;
        session.drive.refuse = [&](const Command &command) -> std::optional<Sense> {
            if (command.opcode() != read10 || command.number(7, 2) == 1)
                return {};
            ++pieces;
            const bool isLarge = command.number(7, 2) > 32;
            large += int(isLarge);
            return isLarge && !largeOnes ? std::optional(Sense{ 5, 0x24, 0x00 }) : std::nullopt;
        };
        QCOMPARE(sentence(session.burn(700)), QString());
        QVERIFY2(large >= 3 && pieces < 10, QByteArray::number(pieces).constData());

        // A drive that does not take such reads is read as libburn reads.
        Session other({ dvdR });
        largeOnes = false;
        other.drive.refuse = session.drive.refuse;
        QCOMPARE(sentence(other.burn(700)), QString());
    }

    void theCableIsPulled()
    {
        Session session({ dvdPlusR });
        session.drive.refuse = [&, pulled = false](const Command &command) mutable -> std::optional<Sense> {
            if (!pulled && isWrite(command) && command.number(2, 4) >= 320) {
                pulled = true;
                session.drive.unplug();
            }
            return {};
        };
        QCOMPARE(sentence(session.burn(700)),
            u"The connection to drive 1 was lost during the write; check its cable. The disc in drive 1 is spoilt."_s);
    }

    void whatCannotBeReadBackIsNamed()
    {
        Session session({ cdR });
        session.drive.refuse = [](const Command &command) -> std::optional<Sense> {
            const quint32 last = command.opcode() == read10 ? command.number(2, 4) + command.number(7, 2) : 0;
            return last > 123 ? std::optional(Sense{ 3, 0x11, 0x05 }) : std::nullopt;
        };
        const QString said = sentence(session.burn());
        QVERIFY2(said.contains(u"123"_s), qPrintable(said));
        QVERIFY(!session.drive.trayLocked);
    }

    void whatWasWrittenWronglyIsNamed()
    {
        Session session({ dvdR });
        session.drive.refuse = [&](const Command &command) -> std::optional<Sense> {
            if (command.opcode() == synchronizeCache && session.drive.disc.blocks.contains(77))
                session.drive.disc.blocks[77][5] = char(~session.drive.disc.blocks[77].at(5));
            return {};
        };
        const QString said = sentence(session.burn());
        QVERIFY2(said.contains(u"77"_s), qPrintable(said));
    }

    void anEmptyDriveAndAnOpenTray()
    {
        Session session({});
        QCOMPARE(session.status().trimmed(), u"Type: No Media Inserted"_s);
        auto done = session.burn();
        QCOMPARE(int(done.error().exit), 3);
        QCOMPARE(sentence(done),
            u"There is no disc in drive 1, or its tray is open: insert one and close the tray."_s);
        session.drive.disc.profile = cdR;
        session.drive.trayOpen = true;
        QCOMPARE(session.status().trimmed(), u"Type: No Media Inserted"_s);
        QVERIFY(session.drive.trayOpen);
    }

    // A drive in a notebook cannot pull its tray in; the finished disc lies in the open one.
    void aTrayThatDoesNotComeInIsNoFailure()
    {
        Session session({ dvdPlusR });
        session.options.verify = false;
        session.drive.refuse = [&](const Command &command) -> std::optional<Sense> {
            if (command.opcode() == startStop && (command.number(4, 1) & 3) == 3 && session.drive.trayOpen)
                return Sense{ 5, 0x24, 0x00 };
            return {};
        };
        QCOMPARE(sentence(session.burn()), QString());
        QVERIFY(session.drive.trayOpen);
        QVERIFY(!session.drive.trayLocked);
    }

    void anUnknownMediumIsNotWritten()
    {
        Session session({ 0x51 }); // HD DVD-R
        QVERIFY(session.status().contains(u"not writable"_s));
        QCOMPARE(sentence(session.burn()),
            u"The disc in drive 1 is of a kind that cannot be written: insert a blank CD, DVD or BD."_s);
    }

    // Not every drive sets the damage bit of a track that broke off.
    void aFirstTrackThatWasNeverClosedIsASpoiltDisc()
    {
        for (const int profile : { cdR, dvdR, dvdPlusR, bdR }) {
            Session session({ profile, State::appendable });
            for (int block = 0; block < 320; ++block)
                session.drive.disc.blocks.insert(block, QByteArray(2048, 'x'));
            session.drive.disc.firstTrackOpen = true;
            const QString status = session.status();
            QVERIFY2(status.contains(u"State: spoilt, a write did not reach its end"_s), qPrintable(status));
            QVERIFY2(status.contains(u"Writability: not writable"_s), qPrintable(status));
            QVERIFY2(status.contains(u"Space Free:   00:00:00"_s), qPrintable(status));
            QVERIFY(sentence(session.burn()).contains(u"cannot be written any more"_s));
        }
    }

    // A drive that does not tell where it would write on leaves open what became of the last write.
    void anOpenDiscIsNotCalledSpoiltWithoutGround()
    {
        for (const int profile : { cdR, dvdR, dvdPlusR, bdR }) {
            Session session({ profile, State::appendable });
            session.drive.disc.firstTrackOpen = true;
            const QString status = session.status();
            QVERIFY2(!status.contains(u"State:"_s), qPrintable(status));
            QVERIFY2(status.contains(u"Writability: appendable\n"_s), qPrintable(status));
            QCOMPARE(sentence(session.burn()),
                QString(status.simplified().section(u' ', 1, 1)).prepend(u"The "_s)
                    + u" in drive 1 is not empty, and Corvalis writes empty discs only: "
                      "insert a blank or rewritable disc."_s);
        }
    }

    // A session that was closed by another program may be followed by another.
    void aDiscWithAClosedSessionIsOpen()
    {
        for (const int profile : { cdR, dvdR, dvdPlusR, bdR }) {
            Session session({ profile, State::appendable });
            for (int block = 0; block < 320; ++block)
                session.drive.disc.blocks.insert(block, QByteArray(2048, 'x'));
            const QString status = session.status();
            QVERIFY2(status.contains(u"Writability: appendable\n"_s), qPrintable(status));
            QVERIFY(!status.contains(u"State:"_s));
        }
    }

    void aDiscWhoseLastWriteBrokeOffSaysSo()
    {
        Session session({ dvdPlusR, State::appendable });
        session.drive.disc.blocks.insert(0, QByteArray(2048, 'x'));
        session.drive.disc.damaged = true;
        const QString status = session.status();
        QVERIFY2(status.contains(u"State: spoilt, a write did not reach its end"_s), qPrintable(status));
        QVERIFY2(status.contains(u"Writability: not writable"_s), qPrintable(status));
        QVERIFY(sentence(session.burn()).contains(u"cannot be written any more"_s));
        QVERIFY(session.drive.commandsOf(write10).isEmpty());
    }

    void theTrayOpensAndCloses()
    {
        Session session({ cdR });
        QCOMPARE(sentence(session.physical.eject()), QString());
        QVERIFY(session.drive.trayOpen);
        QCOMPARE(sentence(session.physical.close()), QString());
        QVERIFY(!session.drive.trayOpen);
        QVERIFY(!session.drive.trayLocked);
    }

    void aStopBeforeTheTrayMovesLeavesIt()
    {
        Session session({ cdR });
        session.physical.setStop([] { return SIGTERM; });
        for (const auto &done : { session.physical.eject(), session.physical.close() }) {
            QCOMPARE(sentence(done), u"Stopped before the tray of drive 1 was moved."_s);
            QCOMPARE(int(done.error().exit), 143);
        }
        QVERIFY(session.drive.commandsOf(startStop).isEmpty());
    }

    void theTrayOfAMountedDiscStaysLocked()
    {
        using engine::drive::LibburnDrive;
        Session session({ cdR });
        for (const bool locked : { true, false }) {
            auto grabbed = LibburnDrive::grab(session.drive.device().toStdString(), "drive 1", true, false);
            QVERIFY(grabbed);
            QVERIFY(session.drive.trayLocked);
            if (locked)
                (*grabbed)->leave(LibburnDrive::Leave::locked);
            std::move(grabbed).value().reset();
            QCOMPARE(session.drive.trayLocked, locked);
        }
    }

    void aTrayThatDoesNotMoveIsTold()
    {
        Session session({ cdR });
        session.drive.refuse = [](const Command &command) -> std::optional<Sense> {
            const bool moves = command.opcode() == startStop && (command.number(4, 1) & 2) != 0;
            return moves ? std::optional(Sense{ 5, 0x53, 0x02 }) : std::nullopt;
        };
        QCOMPARE(sentence(session.physical.eject()),
            u"The tray of drive 1 did not open: close the programs that use the disc, or press the button of the drive."_s);
        session.drive.trayOpen = true;
        QCOMPARE(
            sentence(session.physical.close()), u"The tray of drive 1 did not close: push it in by hand."_s);
    }
};

QTEST_GUILESS_MAIN(FaultsTest)
#include "FaultsTest.moc"
