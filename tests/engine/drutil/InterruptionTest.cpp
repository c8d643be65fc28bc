// Writes that are stopped, killed, watched by nobody, or meet another program.
#include "Drutil.h"

#include <csignal>
#include <sys/types.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

class InterruptionTest : public QObject {
    Q_OBJECT

    QString source() const { return m_drutil->path(u"source"_s); }
    QString disc() const { return m_drutil->recorder() + u"/disc.iso"_s; }

    /// Starts a burn and waits until data are on the disc.
    std::unique_ptr<QProcess> startBurn(const QStringList &options = {})
    {
        auto process = std::make_unique<QProcess>();
        process->setProcessEnvironment(m_drutil->environment());
        process->start(Drutil::program(), QStringList{ u"burn"_s, source() } + options);
        for (int i = 0; i < 3000 && QFileInfo(disc()).size() == 0; ++i) {
            if (process->waitForFinished(10))
                break;
        }
        return process;
    }

    static void end(QProcess &process, int signal)
    {
        ::kill(pid_t(process.processId()), signal);
        QVERIFY(process.waitForFinished(120000));
    }

private Q_SLOTS:
    void init()
    {
        m_drutil = std::make_unique<Drutil>();
        QVERIFY(QDir().mkpath(source()));
        QVERIFY(sparseFile(source() + u"/large"_s, 2000LL * 1000 * 1000));
    }

    void stopSignals_data()
    {
        QTest::addColumn<int>("signal");
        QTest::addColumn<int>("exit");
        QTest::newRow("SIGINT") << SIGINT << 130;
        QTest::newRow("SIGTERM") << SIGTERM << 143;
    }

    void stopSignals()
    {
        QFETCH(int, signal);
        QFETCH(int, exit);
        QVERIFY(m_drutil->insert(u"dvd-r"_s));
        auto burn = startBurn();
        ::kill(pid_t(burn->processId()), signal);
        end(*burn, signal); // the second one changes nothing
        QCOMPARE(burn->exitStatus(), QProcess::NormalExit);
        QCOMPARE(burn->exitCode(), exit);
        const QString said = QString::fromUtf8(burn->readAllStandardError());
        QVERIFY2(QRegularExpression(u"^drutil: Stopped\\. The disc in drive . is spoilt\\.\n$"_s)
                     .match(said)
                     .hasMatch(),
            qPrintable(said));
        QVERIFY(m_drutil->state().contains("state=spoilt"));
        QCOMPARE(m_drutil->fact(u"Writability:"_s), u"not writable"_s);
        QVERIFY(m_drutil->fact(u"State:"_s).startsWith(u"spoilt"_s));
        QCOMPARE((*m_drutil)({ u"burn"_s, source() }).exit, 1);
        QCOMPARE((*m_drutil)({ u"tray"_s, u"eject"_s }).exit, 0);
        QCOMPARE(m_drutil->fact(u"Writability:"_s), u"appendable, blank, overwritable"_s);
        const QStringList kept = QDir(m_drutil->recorder() + u"/discs"_s).entryList(QDir::Files);
        QCOMPARE(kept.size(), 1);
        QVERIFY(kept.first().endsWith(u"-dvd-r-spoilt.iso"_s));
    }

    void aStoppedWriteToARewritableDisc()
    {
        QVERIFY(m_drutil->insert(u"dvd-rw"_s));
        auto burn = startBurn();
        end(*burn, SIGTERM);
        QCOMPARE(burn->exitCode(), 143);
        QVERIFY(QString::fromUtf8(burn->readAllStandardError())
                    .contains(u"has to be erased before it can be used"_s));
        QCOMPARE(m_drutil->fact(u"Writability:"_s), u"erasable"_s);
        QCOMPARE((*m_drutil)({ u"erase"_s, u"quick"_s }).exit, 0);
        QCOMPARE(m_drutil->fact(u"Writability:"_s), u"appendable, blank, erasable, overwritable"_s);
        QCOMPARE(m_drutil->fact(u"State:"_s), QString());
    }

    void aKilledWrite_data()
    {
        QTest::addColumn<QString>("words");
        QTest::addColumn<QStringList>("repair");
        QTest::newRow("dvd+r") << u"not writable"_s << QStringList{ u"tray"_s, u"eject"_s };
        QTest::newRow("dvd-rw") << u"erasable"_s << QStringList{ u"erase"_s, u"full"_s };
        QTest::newRow("dvd+rw") << u"erasable, overwritable"_s << QStringList{ u"erase"_s, u"quick"_s };
        QTest::newRow("bd-re") << u"erasable, overwritable"_s << QStringList{ u"tray"_s, u"eject"_s };
    }

    void aKilledWrite()
    {
        QFETCH(QString, words);
        QFETCH(QStringList, repair);
        QVERIFY(m_drutil->insert(QString::fromLatin1(QTest::currentDataTag())));
        const QString fresh = (*m_drutil)({ u"status"_s }).out;
        auto burn = startBurn();
        end(*burn, SIGKILL);
        QCOMPARE(m_drutil->fact(u"Writability:"_s), words);
        QVERIFY(m_drutil->fact(u"State:"_s).startsWith(u"spoilt"_s));
        QVERIFY(!m_drutil->fact(u"Space Used:"_s).startsWith(u"00:00:00"_s));
        QCOMPARE((*m_drutil)(repair).exit, 0);
        QCOMPARE((*m_drutil)({ u"status"_s }).out, fresh);
        QVERIFY(QFile::resize(source() + u"/large"_s, 10));
        QCOMPARE((*m_drutil)({ u"burn"_s, source() }).exit, 0);
    }

    void aBusyRecorderSaysSo()
    {
        QVERIFY(m_drutil->insert(u"dvd+rw"_s));
        auto burn = startBurn();
        for (const QStringList &verb : { QStringList{ u"status"_s }, QStringList{ u"burn"_s, source() },
                 QStringList{ u"erase"_s, u"quick"_s }, QStringList{ u"tray"_s, u"eject"_s },
                 QStringList{ u"insert"_s, u"cd-r"_s } }) {
            // Stopped, it cannot finish while the others are asked.
            ::kill(pid_t(burn->processId()), SIGSTOP);
            const Ran ran = (*m_drutil)(verb);
            QCOMPARE(ran.exit, 1);
            QVERIFY2(ran.err.contains(u"is busy with another program"_s), qPrintable(ran.err));
        }
        QCOMPARE((*m_drutil)({ u"list"_s }).exit, 0);
        ::kill(pid_t(burn->processId()), SIGCONT);
        end(*burn, SIGTERM);
        QCOMPARE(burn->exitCode(), 143);
    }

    void manyMayLookAtOnce()
    {
        QVERIFY(m_drutil->insert(u"cd-r"_s));
        std::vector<std::unique_ptr<QProcess>> looks;
        for (int i = 0; i < 20; ++i) {
            looks.push_back(std::make_unique<QProcess>());
            looks.back()->setProcessEnvironment(m_drutil->environment());
            looks.back()->start(Drutil::program(), { u"status"_s });
        }
        for (const auto &look : looks) {
            QVERIFY(look->waitForFinished());
            QCOMPARE(look->exitCode(), 0);
        }
    }

    void manyListsMakeOneRecorder()
    {
        std::vector<std::unique_ptr<QProcess>> lists;
        for (int i = 0; i < 20; ++i) {
            lists.push_back(std::make_unique<QProcess>());
            lists.back()->setProcessEnvironment(m_drutil->environment());
            lists.back()->start(Drutil::program(), { u"list"_s });
        }
        for (const auto &list : lists) {
            QVERIFY(list->waitForFinished());
            QCOMPARE(list->exitCode(), 0);
            QCOMPARE(list->readAllStandardOutput().count("Virtual Recorder"), 1);
        }
        QCOMPARE(QDir(m_drutil->recorders()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
            QStringList(u"1"_s));
    }

    void aWriteOutlivesItsReader()
    {
        QVERIFY(QFile::resize(source() + u"/large"_s, 300LL * 1000 * 1000));
        QVERIFY(m_drutil->insert(u"cd-r"_s));
        // head goes away after the first line, and takes the pipe with it.
        const Ran ran = runProgram(u"/bin/sh"_s,
            { u"-c"_s, u"(\"$0\" burn \"$1\"; echo $? > \"$2\") 2>&1 | head -n 1"_s, Drutil::program(),
                source(), m_drutil->path(u"exit"_s) },
            m_drutil->environment());
        QCOMPARE(ran.out, u"Preparing\n"_s);
        QTRY_VERIFY_WITH_TIMEOUT(!readFile(m_drutil->path(u"exit"_s)).isEmpty(), 120000);
        QCOMPARE(readFile(m_drutil->path(u"exit"_s)).trimmed(), "0");
        QVERIFY(m_drutil->state().contains("state=written"));
        QVERIFY(QFileInfo(disc()).size() > 300LL * 1000 * 1000);
    }

    void closedOutputsDoNotEndUpOnTheDisc()
    {
        QVERIFY(QFile::resize(source() + u"/large"_s, 300LL * 1000 * 1000));
        QVERIFY(m_drutil->insert(u"cd-r"_s));
        const Ran ran = runProgram(u"/bin/sh"_s,
            { u"-c"_s, u"\"$0\" burn \"$1\" <&- >&- 2>&-"_s, Drutil::program(), source() },
            m_drutil->environment());
        QCOMPARE(ran.exit, 0);
        QVERIFY(m_drutil->state().contains("state=written"));
    }

    void aFileThatShrinksIsNamed()
    {
        QVERIFY(m_drutil->insert(u"dvd-r"_s));
        auto burn = startBurn();
        QVERIFY(QFile::resize(source() + u"/large"_s, 1000));
        QVERIFY(burn->waitForFinished(120000));
        QCOMPARE(burn->exitCode(), 1);
        const QString said = QString::fromUtf8(burn->readAllStandardError());
        QVERIFY2(said.contains(u"/source/large"_s) && said.contains(u"is spoilt"_s), qPrintable(said));
        QVERIFY(m_drutil->state().contains("state=spoilt"));
    }

    void aBlockThatTurnsBadIsNamed()
    {
        QVERIFY(m_drutil->insert(u"dvd-r"_s));
        auto burn = startBurn();
        // A block that is written already, long before it is compared.
        QTRY_VERIFY_WITH_TIMEOUT(QFileInfo(disc()).size() > 301 * 2048, 60000);
        QFile file(disc());
        QVERIFY(file.open(QFile::ReadWrite) && file.seek(300 * 2048 + 7));
        QCOMPARE(file.write("bad"), qint64(3));
        file.close();
        QVERIFY(burn->waitForFinished(120000));
        QCOMPARE(burn->exitCode(), 1);
        const QString said = QString::fromUtf8(burn->readAllStandardError());
        QVERIFY2(QRegularExpression(
                     u"^drutil: The disc in drive . does not hold what was sent: block 300 differs; "
                     "write another disc\\.\n$"_s)
                     .match(said)
                     .hasMatch(),
            qPrintable(said));
    }

    void aFileThatVanishesIsNamed()
    {
        // The second file is opened long after the first was begun.
        QVERIFY(QFile::resize(source() + u"/large"_s, 600LL * 1000 * 1000));
        QVERIFY(sparseFile(source() + u"/later"_s, 1000 * 1000));
        QVERIFY(m_drutil->insert(u"dvd-r"_s));
        auto burn = startBurn();
        QVERIFY(QFile::remove(source() + u"/later"_s));
        QVERIFY(burn->waitForFinished(120000));
        QCOMPARE(burn->exitCode(), 1);
        const QString said = QString::fromUtf8(burn->readAllStandardError());
        QVERIFY2(said.contains(u"/source/later"_s), qPrintable(said));
    }

    void aFileSystemThatIsTooSmallIsSaidBeforehand()
    {
        QVERIFY(QDir().mkpath(m_drutil->recorders()));
        // A name space of its own may mount without privileges, and takes its mount away when it ends.
        const QString script = u"mount -t tmpfs -o size=20m none \"$2\" && \"$0\" list && \"$0\" insert bd-r "
                               u"&& \"$0\" burn \"$1\"; "
                               "echo $?; cat \"$2\"/1/recorder.ini"_s;
        const Ran ran = runProgram(u"unshare"_s,
            { u"--map-root-user"_s, u"--mount"_s, u"sh"_s, u"-c"_s, script, Drutil::program(), source(),
                m_drutil->recorders() },
            m_drutil->environment());
        QVERIFY2(ran.out.contains(u"\n1\n"_s), qPrintable(ran.out + ran.err));
        QVERIFY2(QRegularExpression(u"has room for \\d+ blocks, and the disc needs 976\\d+"_s)
                     .match(ran.err)
                     .hasMatch(),
            qPrintable(ran.err));
        QVERIFY(ran.out.contains(u"state=blank"_s));
    }

    void aWriteThatTheSystemRefuses()
    {
        QVERIFY(m_drutil->insert(u"dvd-r"_s));
        // The limit of the shell is in blocks of 512 bytes or of 1024.
        const Ran ran = runProgram(u"/bin/sh"_s,
            { u"-c"_s, u"ulimit -f 100000 && \"$0\" burn \"$1\""_s, Drutil::program(), source() },
            m_drutil->environment());
        QCOMPARE(ran.exit, 1);
        QVERIFY2(
            ran.err.contains(u"takes no more"_s) && ran.err.contains(u"is spoilt"_s), qPrintable(ran.err));
        QVERIFY(m_drutil->state().contains("state=spoilt"));
    }

private:
    std::unique_ptr<Drutil> m_drutil;
};

QTEST_GUILESS_MAIN(InterruptionTest)
#include "InterruptionTest.moc"
