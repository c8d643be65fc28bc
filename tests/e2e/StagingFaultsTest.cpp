// Data discs of folders that cannot be copied as they are: what is told, what is written, what is left behind.
#include "support/OwnMounts.h"
#include "support/WholeMachine.h"

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// Runs the command that follows where a file system of 2 MiB, or one that cannot be written, stands in the
/// place of the folder in which discs are gathered. Nobody else sees it.
QStringList mounted(const QString &options)
{
    return support::ownMounts()
        + QStringList{ u"sh"_s, u"-c"_s,
              u"mount -t tmpfs -o %1 none \"$HOME/Documents/CorvalisData\" && exec \"$@\""_s.arg(options),
              u"sh"_s };
}

/// Runs the command that follows with the rights of the files' owner, also where that is root.
QStringList asOwner()
{
    if (::geteuid() != 0)
        return { u"env"_s };
    return { u"setpriv"_s, u"--bounding-set"_s, u"-dac_override,-dac_read_search"_s };
}

/// What a job in a process of its own told.
struct Outcome {
    QString trouble; ///< on the operation-complete sheet
    QString log; ///< the whole activity log
    int left = -1; ///< how many entries it left in the folder in which discs are gathered
    QString printed; ///< all that it printed, for a failure's message
};

/// In that process: writes the folder `source` with the whole application and prints the outcome.
int writeFolder(const QString &source)
{
    WholeMachine machine;
    machine.choose(6);
    if (!machine.addFolder(source))
        return 1;
    pressInAlert(u"Go On"_s); // where there is too little room, and the person has been told
    machine.press("btnBurn");
    if (!machine.completes())
        return 2;
    const int left = int(
        QDir(machine.controller->s_Data_Folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size());
    if (QFile::exists(machine.recorder.iso()))
        QFile::copy(machine.recorder.iso(), source + u".iso"_s);
    QFile output;
    if (!output.open(stdout, QIODevice::WriteOnly))
        return 3;
    for (const QString &part :
        { machine.trouble(), machine.controller->activityLog->text(), QString::number(left) })
        output.write(part.toUtf8() + '\0');
    return 0;
}

Outcome write(const QString &source, const QStringList &wrapper)
{
    const QStringList command =
        wrapper + QStringList{ QCoreApplication::applicationFilePath(), u"--write"_s, source };
    const Printed printed = run(command.first(), command.mid(1));
    const QList<QByteArray> parts = printed.output.split('\0');
    if (printed.status != 0 || parts.size() != 4)
        return { {}, {}, -1, u"ended with %1\n"_s.arg(printed.status) + QString::fromUtf8(printed.errors) };
    return { QString::fromUtf8(parts[0]), QString::fromUtf8(parts[1]), parts[2].toInt(),
        QString::fromUtf8(printed.errors) };
}

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

class StagingFaultsTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_place;

private Q_SLOTS:
    void init() { QVERIFY(QDir().mkpath(documents(u"CorvalisData"_s))); }

    void whatCannotBeReadIsLeftOutAndNamed()
    {
        const QString source = m_place.filePath(u"partly closed"_s);
        makeFile(source + u"/open"_s, "open");
        makeFile(source + u"/letters/open"_s, "open");
        makeFile(source + u"/letters/two\nlines \"secret\""_s, "secret");
        makeFile(source + u"/closed/file"_s, "file");
        QVERIFY(QFile::setPermissions(source + u"/letters/two\nlines \"secret\""_s, {}));
        QVERIFY(QFile::setPermissions(source + u"/closed"_s, {}));
        const Outcome outcome = write(source, asOwner());
        QVERIFY(QFile::setPermissions(
            source + u"/closed"_s, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        QVERIFY2(outcome.log.contains(source + u"/letters/two\nlines \"secret\": Permission denied\n"_s),
            qUtf8Printable(outcome.log + outcome.printed));
        QVERIFY2(outcome.trouble.contains(source + u"/closed: Permission denied"_s),
            qUtf8Printable(outcome.trouble));
        QCOMPARE(outcome.left, 0);
        QVERIFY(QDir(source + u"/closed"_s).removeRecursively());
        QVERIFY(QFile::remove(source + u"/letters/two\nlines \"secret\""_s));
        const QString tree =
            reader::extractedByXorriso(source + u".iso"_s, m_place.filePath(u"closed disc"_s));
        QCOMPARE(reader::difference(source, tree + u"/partly closed"_s), QByteArray());
    }

    void aFullDiskIsToldAndNoHalfFileIsWritten()
    {
        if (support::ownMounts().isEmpty())
            QSKIP(support::noOwnMounts);
        const QString source = m_place.filePath(u"too much"_s);
        for (int i = 0; i < 10; ++i)
            makeFile(source + u"/file %1"_s.arg(i), QByteArray(400'000, char('0' + i)));
        const Outcome outcome = write(source, mounted(u"size=2m"_s));
        QVERIFY2(outcome.trouble.contains(QRegularExpression(
                     QRegularExpression::escape(source) + u"/file \\d: No space left on device"_s)),
            qUtf8Printable(outcome.trouble + outcome.printed));
        QVERIFY2(outcome.trouble.contains(u"did not fit"_s), qUtf8Printable(outcome.trouble));
        QCOMPARE(outcome.left, 0);
        const QString tree =
            reader::extractedByXorriso(source + u".iso"_s, m_place.filePath(u"full disk"_s)) + u"/too much"_s;
        const qsizetype whole = QDir(tree).entryList(QDir::Files).size();
        QVERIFY2(whole >= 3 && whole < 10, qPrintable(QString::number(whole)));
        QVERIFY(holdsWholeFilesOnly(tree, source));
    }

    void aDiskThatCannotBeWrittenIsTold()
    {
        if (support::ownMounts().isEmpty())
            QSKIP(support::noOwnMounts);
        const QString source = m_place.filePath(u"photos"_s);
        makeFile(source + u"/beach.jpg"_s, "sand");
        const Outcome outcome = write(source, mounted(u"ro"_s));
        QVERIFY2(outcome.trouble.contains(source + u": Read-only file system"_s)
                && outcome.trouble.contains(u"nothing left to write"_s),
            qUtf8Printable(outcome.trouble + outcome.printed));
        QCOMPARE(outcome.left, 0);
    }
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--write") == 0)
        return writeFolder(QString::fromUtf8(argv[2]));
    StagingFaultsTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "StagingFaultsTest.moc"
