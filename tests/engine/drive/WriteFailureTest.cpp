// What is said after a write that did not reach its end.
#include "drive/WriteFailure.h"

#include <QtTest>

#include <cerrno>
#include <csignal>

using namespace Qt::StringLiterals;
using namespace engine;
using namespace engine::drive;

namespace {

LibburnDrive::Outcome outcome(int signal, bool sourceFailed, LibburnMessage message)
{
    LibburnDrive::Outcome o;
    o.signal = signal;
    o.sourceFailed = sourceFailed;
    o.message = std::move(message);
    return o;
}

} // namespace

class WriteFailureTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void sentences_data()
    {
        QTest::addColumn<LibburnDrive::Outcome>("how");
        QTest::addColumn<QString>("source");
        QTest::addColumn<int>("left");
        QTest::addColumn<int>("exit");
        QTest::addColumn<QString>("sentence");
        const LibburnMessage full{ 0x20148, ENOSPC,
            "Cannot write desired amount of 32768 bytes. write(2) returned -1." };
        const LibburnMessage sense{ 0x2013c, 0,
            "SCSI error on write(16,16): [3 0C 00] Medium error. Write error. " };
        QTest::newRow("ctrl-c") << outcome(SIGINT, false, {}) << QString() << int(Left::spoilt) << 130
                                << u"Stopped. The disc in drive 1 is spoilt."_s;
        QTest::newRow("term") << outcome(SIGTERM, true, sense) << QString() << int(Left::erasable) << 143
                              << u"Stopped. The disc in drive 1 has to be erased before it can be used."_s;
        QTest::newRow("term on DVD+RW")
            << outcome(SIGTERM, false, {}) << QString() << int(Left::overwritable) << 143
            << u"Stopped. What the disc in drive 1 holds is incomplete; it can be written again."_s;
        QTest::newRow("file") << outcome(0, true, {}) << u"\"a\" became shorter."_s << int(Left::blank) << 1
                              << u"\"a\" became shorter. The disc in drive 1 is still blank."_s;
        QTest::newRow("end") << outcome(0, true, {}) << u"The data for the disc ended too early."_s
                             << int(Left::spoilt) << 1
                             << u"The data for the disc ended too early. The disc in drive 1 is spoilt."_s;
        QTest::newRow("full")
            << outcome(0, false, full) << QString() << int(Left::spoilt) << 1
            << u"The file system that holds drive 1 takes no more: no space left on device; free some space or choose another place. The disc in drive 1 is spoilt."_s;
        QTest::newRow("drive")
            << outcome(0, false, sense) << QString() << int(Left::spoilt) << 1
            << u"The write to drive 1 failed (SCSI error on write(16,16): [3 0C 00] Medium error. Write error). The disc in drive 1 is spoilt."_s;
        LibburnDrive::Outcome unplugged = outcome(0, false, sense);
        unplugged.gone = true;
        QTest::newRow("unplugged")
            << unplugged << QString() << int(Left::spoilt) << 1
            << u"The connection to drive 1 was lost during the write; check its cable. The disc in drive 1 is spoilt."_s;
        QTest::newRow("no word") << outcome(0, false, {}) << QString() << int(Left::blank) << 1
                                 << u"The write to drive 1 failed. The disc in drive 1 is still blank."_s;
    }

    void whatLibburnSaidStandsInBrackets()
    {
        QCOMPARE(inBrackets({ 1, 0, "Medium error. " }), std::string(" (Medium error)"));
        for (const char *nothing : { "", ". ", "\n" })
            QCOMPARE(inBrackets({ 1, 0, nothing }), std::string());
    }

    void sentences()
    {
        QFETCH(LibburnDrive::Outcome, how);
        QFETCH(QString, source);
        QFETCH(int, left);
        const Result<void> read =
            source.isEmpty() ? Result<void>() : Result<void>(Error{ Exit::failed, source.toStdString() });
        const Error error = writeFailure(how, read, "drive 1", Left(left));
        QTEST(int(error.exit), "exit");
        QTEST(QString::fromStdString(error.message), "sentence");
    }

    void whatIsLeft()
    {
        const auto medium = [](MediumKind kind) {
            return engine::mediumOf(kind, MediumState::blank, 1000, 0);
        };
        QCOMPARE(int(leftOf(medium(MediumKind::cdR), false)), int(Left::blank));
        QCOMPARE(int(leftOf(medium(MediumKind::cdR), true)), int(Left::spoilt));
        QCOMPARE(int(leftOf(medium(MediumKind::cdRw), true)), int(Left::erasable));
        QCOMPARE(int(leftOf(medium(MediumKind::bdRe), true)), int(Left::overwritable));
        QCOMPARE(int(leftOf(medium(MediumKind::bdR), true)), int(Left::spoilt));
    }

    void bufferFill()
    {
        QVERIFY(!bufferPercent(0, 0));
        QVERIFY(!bufferPercent(100, 101));
        QCOMPARE(bufferPercent(2000000, 0).value_or(-1), 100);
        QCOMPARE(bufferPercent(4000000000U, 1000000000U).value_or(-1), 75);
        QCOMPARE(bufferPercent(100, 100).value_or(-1), 0);
    }
};

QTEST_APPLESS_MAIN(WriteFailureTest)
#include "WriteFailureTest.moc"
