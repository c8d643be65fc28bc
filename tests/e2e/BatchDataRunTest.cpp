// A data disc by the unattended form.
#include "support/WholeMachine.h"

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

/// The program in a home of its own, with a recorder of its own, writing the folder "photos" of that home.
class DataRun {
public:
    QTemporaryDir home;
    QProcess process;

    DataRun()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"HOME"_s, home.path());
        environment.insert(u"CORVALIS_VIRTUAL"_s, u"only"_s);
        environment.insert(u"CORVALIS_RECORDERS"_s, home.filePath(u"recorders"_s));
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(home.path());
        QDir(home.path()).mkpath(u"Documents/CorvalisData"_s);
        makeFile(home.filePath(u"photos/日本 \"x\"/file"_s), "content");
        makeFile(home.filePath(u"photos/large"_s), QByteArray(3'000'000, 'x'));
        makeFile(home.filePath(u"notes.txt"_s), "notes");
    }

    ~DataRun()
    {
        process.kill();
        process.waitForFinished();
    }

    void start()
    {
        process.start(
            builtPrograms() + u"/corvalis"_s, { u"--burn"_s, u"Data CD"_s, u"photos/"_s, u"notes.txt"_s });
    }

    /// How it ended, within two minutes.
    Printed printed()
    {
        if (process.state() != QProcess::NotRunning && !process.waitForFinished(120'000))
            return { -1, process.readAllStandardOutput(), "does not end" };
        return { process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            process.readAllStandardOutput(), process.readAllStandardError() };
    }

    QString source() const { return home.filePath(u"photos"_s); }
    QString dataFolder(const QString &below = {}) const
    {
        return home.filePath(u"Documents/CorvalisData/"_s + below);
    }
    /// What is on the disc.
    QString onDisc() const
    {
        return reader::extractedByXorriso(home.filePath(u"recorders/1/disc.iso"_s), home.path());
    }
};

} // namespace

class BatchDataRunTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aDataDiscIsMade()
    {
        DataRun run;
        run.start();
        const Printed printed = run.printed();
        QCOMPARE(printed.errors, QByteArray());
        QCOMPARE(printed.status, 0);
        QVERIFY(printed.output.contains("Gathering the folders\n"));
        QVERIFY2(!printed.output.contains("Writing: Writing"), printed.output.constData());
        const QString disc = run.onDisc();
        QCOMPARE(reader::difference(run.source(), disc + u"/photos"_s), QByteArray());
        QCOMPARE(contentOf(disc + u"/notes.txt"_s), QByteArray("notes"));
        QCOMPARE(QDir(run.dataFolder()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
    }

    void aRunThatIsKilledIsClearedAwayByTheNext()
    {
        DataRun run;
        run.start();
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(run.dataFolder(u"photos/large"_s)), 60'000);
        run.process.kill();
        QVERIFY(run.process.waitForFinished(30'000));
        QVERIFY(QFile::exists(run.dataFolder(u"photos"_s)));

        QVERIFY(QDir(run.source()).removeRecursively());
        QDir().mkpath(run.source());
        run.start();
        QTRY_VERIFY_WITH_TIMEOUT(!QFile::exists(run.dataFolder(u"photos/large"_s)), 60'000);
        QCOMPARE(run.process.state(), QProcess::Running);
    }
};

QTEST_MAIN(BatchDataRunTest)
#include "BatchDataRunTest.moc"
