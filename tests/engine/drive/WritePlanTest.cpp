// Which way of writing comes after a refusal.
#include "drive/WritePlan.h"

#include <QtTest>

using namespace engine::drive;
using engine::Rewriting;

namespace {

const std::vector<int> speeds{ 2770, 5540, 11080 };
// As libburn words them.
const LibburnMessage reserve{ 0x20138, 0, "Cannot reserve track of 4325376 bytes" };
const LibburnMessage calibration{ 0x2013c, 0,
    "SCSI error on write(0,16): [3 73 03] Medium error. Power calibration area error." };
const LibburnMessage mode{ 0x20139, 0, "Write job parameters are unsuitable" };

} // namespace

class WritePlanTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void sequentialMediaAreWrittenAtOnce()
    {
        QVERIFY((firstAttempt(Rewriting::once, 11080) == Attempt{ WriteMode::sessionAtOnce, 11080 }));
        QVERIFY((firstAttempt(Rewriting::erase, 0) == Attempt{ WriteMode::sessionAtOnce, 0 }));
        QVERIFY((firstAttempt(Rewriting::overwrite, 11080) == Attempt{ WriteMode::trackAtOnce, 11080 }));
    }

    void aRefusedModeGivesTheIncrementalOne()
    {
        for (const LibburnMessage &refusal : { reserve, mode }) {
            const Attempt first{ WriteMode::sessionAtOnce, 11080 };
            const auto next = nextAttempt(first, refusal, false, speeds);
            QVERIFY((next == Attempt{ WriteMode::trackAtOnce, 11080 }));
            QVERIFY(!nextAttempt(*next, refusal, false, speeds));
        }
    }

    void audioIsNeverWrittenTrackByTrack()
    {
        QVERIFY(!nextAttempt({ WriteMode::sessionAtOnce, 8467 }, mode, true, speeds));
    }

    void aRefusedDiscWithNamesIsWrittenWithout()
    {
        const Attempt named{ WriteMode::sessionAtOnce, 8467, true };
        const auto next = nextAttempt(named, mode, true, speeds);
        QVERIFY((next == Attempt{ WriteMode::sessionAtOnce, 8467, false }));
        QVERIFY(!nextAttempt(*next, mode, true, speeds));
        // What a lower speed can mend is not the names' fault.
        QVERIFY((nextAttempt(named, calibration, true, speeds)
            == Attempt{ WriteMode::sessionAtOnce, 5540, true }));
    }

    void aSpeedErrorLowersTheSpeedUntilTheSlowest()
    {
        Attempt attempt{ WriteMode::sessionAtOnce, 11080 };
        for (const int speed : { 5540, 2770 }) {
            const auto next = nextAttempt(attempt, calibration, true, speeds);
            QVERIFY((next == Attempt{ WriteMode::sessionAtOnce, speed }));
            attempt = *next;
        }
        QVERIFY(!nextAttempt(attempt, calibration, true, speeds));
        QVERIFY(!nextAttempt({ WriteMode::sessionAtOnce, 0 }, calibration, false, {}));
    }
};

QTEST_APPLESS_MAIN(WritePlanTest)
#include "WritePlanTest.moc"
