// A data disc by the unattended form. It takes the minute that a folder's copy is waited for at least.
#include "support/WholeMachine.h"

using namespace Qt::StringLiterals;

class BatchDataRunTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aDataDiscIsMade()
    {
        Recorder recorder;
        QTemporaryDir media;
        makeFile(media.filePath(u"My folder/日本 \"x\"/file"_s), "content");
        const Printed printed = run(builtPrograms() + u"/corvalis"_s, { u"--burn"_s, u"Data CD"_s, u"My folder/"_s }, media.path());
        QVERIFY2(printed.status == 0, printed.errors.constData());
        QCOMPARE(printed.errors, QByteArray());
        QVERIFY(printed.output.contains("Gathering the folders"));
        const QString tree = reader::extractedByXorriso(recorder.iso(), media.path());
        QCOMPARE(reader::difference(media.filePath(u"My folder"_s), tree + u"/My folder"_s), QByteArray());
    }
};

QTEST_MAIN(BatchDataRunTest)
#include "BatchDataRunTest.moc"
