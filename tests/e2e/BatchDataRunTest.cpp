// Data discs by the unattended form as real processes, with the minute that a folder's copy is waited for at
// least. The runs go side by side.
#include "support/WholeMachine.h"

#include <functional>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// Runs the command that follows where a shell has mounted something that nobody else sees.
QStringList mounted(const QString &options)
{
    return { u"unshare"_s, ::geteuid() == 0 ? u"--mount"_s : u"--map-root-user"_s, u"--mount"_s, u"sh"_s, u"-c"_s,
        u"mount -t tmpfs -o %1 none \"$HOME/Documents/CorvalisData\" && exec \"$@\""_s.arg(options), u"sh"_s };
}

/// Runs the command that follows with the rights of the files' owner, also where that is root.
QStringList asOwner()
{
    if (::geteuid() != 0)
        return {};
    return { u"setpriv"_s, u"--bounding-set"_s, u"-dac_override,-dac_read_search"_s };
}

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
    }

    ~DataRun()
    {
        process.kill();
        process.waitForFinished();
        QFile::setPermissions(home.filePath(u"photos/closed"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    void start(const QStringList &wrapper = {})
    {
        const QStringList command = wrapper
            + QStringList { builtPrograms() + u"/corvalis"_s, u"--burn"_s, u"Data CD"_s, u"photos/"_s };
        process.start(command.first(), command.mid(1));
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
    QString dataFolder(const QString &below = {}) const { return home.filePath(u"Documents/CorvalisData/"_s + below); }
    /// The folder as it is on the disc.
    QString onDisc() const
    {
        return reader::extractedByXorriso(home.filePath(u"recorders/1/disc.iso"_s), home.path()) + u"/photos"_s;
    }
};

/// Whether every file of a tree is the whole file of that name in the other one.
bool holdsWholeFilesOnly(const QString &tree, const QString &source)
{
    QDirIterator files(tree, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        if (contentOf(path) != contentOf(source + path.mid(tree.size())))
            return false;
    }
    return true;
}

} // namespace

class BatchDataRunTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void discsAreMadeOfWhatCanBeCopied()
    {
        DataRun whole;
        DataRun closed;
        DataRun fullDisk;
        DataRun readOnlyDisk;
        makeFile(closed.home.filePath(u"photos/secret"_s), "secret");
        makeFile(closed.home.filePath(u"photos/closed/file"_s), "file");
        QVERIFY(QFile::setPermissions(closed.home.filePath(u"photos/secret"_s), {}));
        QVERIFY(QFile::setPermissions(closed.home.filePath(u"photos/closed"_s), {}));
        whole.start();
        closed.start(asOwner());
        fullDisk.start(mounted(u"size=2m"_s));
        readOnlyDisk.start(mounted(u"ro"_s));

        Printed printed = whole.printed();
        QCOMPARE(printed.errors, QByteArray());
        QCOMPARE(printed.status, 0);
        QVERIFY(printed.output.contains("Gathering the folders"));
        QCOMPARE(reader::difference(whole.source(), whole.onDisc()), QByteArray());
        QCOMPARE(QDir(whole.dataFolder()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());

        printed = closed.printed();
        QVERIFY2(printed.errors.contains("/photos/secret: Permission denied\n"), printed.errors.constData());
        QVERIFY2(printed.errors.contains("/photos/closed: Permission denied\n"), printed.errors.constData());
        const QStringList left { u"large"_s, u"日本 \"x\""_s };
        QCOMPARE(QDir(closed.onDisc()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name), left);

        printed = fullDisk.printed();
        QVERIFY2(printed.errors.contains("/photos/large: No space left on device\n"), printed.errors.constData());
        QVERIFY(printed.output.contains("not everything went well"));
        QVERIFY(holdsWholeFilesOnly(fullDisk.onDisc(), fullDisk.source()));

        printed = readOnlyDisk.printed();
        QVERIFY2(printed.errors.contains("/photos: Read-only file system\n"), printed.errors.constData());
        QVERIFY(printed.output.contains("not everything went well"));
    }

    void aRunThatIsEndedIsClearedAwayByTheNext()
    {
        DataRun run;
        run.start();
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(run.dataFolder(u"photos/large"_s)), 60'000);
        run.process.terminate();
        QVERIFY(run.process.waitForFinished(30'000));
        QCOMPARE(run.process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(run.process.exitCode(), 0);
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
