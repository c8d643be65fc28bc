// Writes that are stopped, killed, watched by nobody, or meet another program.
#include "../audio/Waves.h"
#include "Drutil.h"
#include "support/OwnMounts.h"

#include <array>
#include <csignal>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/types.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// A WAVE file of four seconds of silence.
QByteArray silence()
{
    constexpr quint32 bytes = 4 * 176400;
    QByteArray wave;
    QDataStream out(&wave, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out.writeRawData("RIFF", 4);
    out << quint32(36 + bytes);
    out.writeRawData("WAVEfmt ", 8);
    out << quint32(16) << quint16(1) << quint16(2) << quint32(44100) << quint32(176400) << quint16(4)
        << quint16(16);
    out.writeRawData("data", 4);
    out << bytes;
    return wave + QByteArray(bytes, '\0');
}

/// Whether the process notes a SIGTERM instead of dying of it.
bool catchesStops(qint64 process)
{
    const QList<QByteArray> lines = readFile(u"/proc/%1/status"_s.arg(process)).split('\n');
    for (const QByteArray &line : lines)
        if (line.startsWith("SigCgt:"))
            return (line.mid(7).trimmed().toULongLong(nullptr, 16) >> (SIGTERM - 1) & 1) != 0;
    return false;
}

/// A pipe that is full, and ends with a line break.
class FullPipe {
public:
    FullPipe()
    {
        if (::pipe2(m_ends.data(), O_CLOEXEC | O_NONBLOCK) != 0)
            qFatal("no pipe");
        while (::write(m_ends[1], "\n", 1) == 1)
            continue;
        // Whoever gets it writes as to any other pipe.
        ::fcntl(m_ends[1], F_SETFL, 0);
    }
    ~FullPipe()
    {
        ::close(m_ends[0]);
        ::close(m_ends[1]);
    }

    int writing() const { return m_ends[1]; }

    /// Reads until `text` has come, a minute at most.
    bool readUntil(const QByteArray &text) const
    {
        QByteArray all;
        const QDeadlineTimer deadline(60000);
        while (!all.contains(text) && !deadline.hasExpired()) {
            char byte = 0;
            if (::read(m_ends[0], &byte, 1) == 1)
                all += byte;
            else
                QTest::qWait(10);
        }
        return all.contains(text);
    }

private:
    std::array<int, 2> m_ends{ -1, -1 };
};

} // namespace

class InterruptionTest : public QObject {
    Q_OBJECT

    QString source() const { return m_drutil->path(u"source"_s); }
    QString disc() const { return m_drutil->recorder() + u"/disc.iso"_s; }

    /// Starts a burn and waits until data are on the disc: more than the pause of an audio disc.
    std::unique_ptr<QProcess> startBurn(const QStringList &options = {})
    {
        auto process = std::make_unique<QProcess>();
        process->setProcessEnvironment(m_drutil->environment());
        process->start(Drutil::program(), QStringList{ u"burn"_s, source() } + options);
        const QString file = options.contains(u"-audio"_s) ? m_drutil->recorder() + u"/disc.bin"_s : disc();
        for (int i = 0; i < 3000 && QFileInfo(file).size() <= 200 * 2352; ++i) {
            if (process->waitForFinished(10))
                break;
        }
        return process;
    }

    /// Runs `script` with recorder 1 on a file system of its own: $0 is drutil, $1 the source, $2 the recorders.
    Ran onFileSystem(const QString &size, const QString &script) const
    {
        const QString mount =
            u"mkdir -p \"$2\" && mount -t tmpfs -o size=%1 none \"$2\" && \"$0\" list && "_s;
        const QStringList command = support::ownMounts()
            + QStringList{ u"sh"_s, u"-c"_s, mount.arg(size) + script, Drutil::program(), source(),
                  m_drutil->recorders() };
        return runProgram(command.first(), command.mid(1), m_drutil->environment());
    }

    static void end(QProcess &process, int signal)
    {
        QVERIFY(process.processId() > 0); // none is the whole group of this test
        ::kill(pid_t(process.processId()), signal);
        QVERIFY(process.waitForFinished(120000));
    }

    /// The blocks that a status calls used.
    qint64 usedBlocks() const
    {
        const QString used = m_drutil->fact(u"Space Used:"_s).section(u"blocks:"_s, 1).trimmed();
        return used.section(u' ', 0, 0).toLongLong();
    }

    /// Runs a program that has to wait for the recorder, because it is held in the way of flock(2), and stops it
    /// in the wait.
    Ran stoppedInTheWait(const QString &program, const QStringList &arguments, int hold)
    {
        const int held = ::open(QFile::encodeName(m_drutil->recorder()).constData(), O_RDONLY | O_CLOEXEC);
        ::flock(held, hold);
        QProcess process;
        process.setProcessEnvironment(m_drutil->environment());
        process.start(program, arguments);
        process.waitForStarted();
        while (process.state() == QProcess::Running && !catchesStops(process.processId()))
            process.waitForFinished(1);
        if (process.state() == QProcess::Running)
            ::kill(pid_t(process.processId()), SIGTERM);
        ::close(held);
        process.waitForFinished(60000);
        Ran ran;
        if (process.exitStatus() == QProcess::NormalExit)
            ran.exit = process.exitCode();
        ran.out = QString::fromUtf8(process.readAllStandardOutput());
        ran.err = QString::fromUtf8(process.readAllStandardError());
        return ran;
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

    // The disc is complete by then, whatever the file system still does.
    void aStopWhileTheDiscIsClosed()
    {
        QVERIFY(QFile::resize(source() + u"/large"_s, 600LL * 1000 * 1000));
        QVERIFY(m_drutil->insert(u"dvd-r"_s));
        auto burn = startBurn();
        QByteArray out;
        while (!out.contains("Closing the disc") && !out.contains("Verifying")) {
            QVERIFY(burn->waitForReadyRead(60000));
            out += burn->readAllStandardOutput();
        }
        end(*burn, SIGTERM);
        QCOMPARE(burn->exitCode(), 143);
        const QString said = QString::fromUtf8(burn->readAllStandardError());
        QVERIFY2(said.contains(u"is written, but was not compared."_s), qPrintable(said));
        QVERIFY(m_drutil->state().contains("state=written"));
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

    void aStopBeforeAnythingIsWritten_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("program");
        QTest::addColumn<QStringList>("words");
        for (const char *kind : { "cd-r", "cd-rw" }) {
            const QString name = QString::fromLatin1(kind);
            QTest::addRow("%s, folder", kind) << name << u"drutil"_s << QStringList{ u"burn"_s, u"source"_s };
            QTest::addRow("%s, audio", kind)
                << name << u"drutil"_s << QStringList{ u"burn"_s, u"-audio"_s, u"audio"_s };
            QTest::addRow("%s, image", kind)
                << name << u"hdiutil"_s << QStringList{ u"burn"_s, u"source/large"_s };
        }
        QTest::newRow("erase") << u"cd-rw"_s << u"drutil"_s << QStringList{ u"erase"_s, u"quick"_s };
    }

    void aStopBeforeAnythingIsWritten()
    {
        QFETCH(QString, kind);
        QFETCH(QString, program);
        QFETCH(QStringList, words);
        QVERIFY(QDir().mkpath(m_drutil->path(u"audio"_s)));
        QVERIFY(writeFile(m_drutil->path(u"audio/one.wav"_s), silence()));
        QVERIFY(QFile::resize(source() + u"/large"_s, 100 * 1000));
        QVERIFY(m_drutil->insert(kind));
        if (kind == u"cd-rw"_s)
            QCOMPARE((*m_drutil)({ u"burn"_s, source() }).exit, 0);
        const QByteArray before = m_drutil->state();
        const QByteArray disc = readFile(this->disc());
        if (QFile::exists(m_drutil->path(words.last())))
            words.last() = m_drutil->path(words.last());
        const Ran ran = stoppedInTheWait(Drutil::program().replace(u"drutil"_s, program), words, LOCK_SH);
        QCOMPARE(ran.err, program + u": Stopped before anything was written: the disc is as it was.\n"_s);
        QCOMPARE(ran.exit, 143);
        QCOMPARE(m_drutil->state(), before);
        QCOMPARE(readFile(this->disc()), disc);
    }

    void aStopIsHeededByEveryVerbThatOpensADrive_data()
    {
        QTest::addColumn<QString>("program");
        QTest::addColumn<QStringList>("words");
        QTest::newRow("status") << u"drutil"_s << QStringList{ u"status"_s };
        QTest::newRow("eject") << u"drutil"_s << QStringList{ u"tray"_s, u"eject"_s };
        QTest::newRow("close") << u"drutil"_s << QStringList{ u"tray"_s, u"close"_s };
        QTest::newRow("insert") << u"drutil"_s << QStringList{ u"insert"_s, u"bd-r"_s };
        QTest::newRow("choice of a drive") << u"hdiutil"_s << QStringList{ u"burn"_s, u"image"_s };
    }

    void aStopIsHeededByEveryVerbThatOpensADrive()
    {
        QFETCH(QString, program);
        QFETCH(QStringList, words);
        QVERIFY(QFile::resize(m_drutil->path(u"source/large"_s), 100 * 1000));
        QVERIFY(m_drutil->insert(u"cd-r"_s));
        if (program == u"hdiutil"_s)
            words.last() = source() + u"/large"_s;
        const Ran ran = stoppedInTheWait(Drutil::program().replace(u"drutil"_s, program), words, LOCK_EX);
        QCOMPARE(ran.exit, 143);
        QVERIFY2(
            ran.err.startsWith(program + u": Stopped "_s) && ran.err.count(u'\n') == 1, qPrintable(ran.err));
        QCOMPARE(ran.out, QString());
        QCOMPARE((*m_drutil)({ u"status"_s }).exit, 0);
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

    void aKilledAudioWriteCountsItsSectors_data()
    {
        QTest::addColumn<qint64>("bytes");
        QTest::addColumn<qint64>("used");
        QTest::newRow("nothing") << qint64(0) << qint64(0);
        QTest::newRow("in the pause") << qint64(100 * 2352) << qint64(0);
        QTest::newRow("in the first sector") << qint64(150 * 2352 + 2351) << qint64(0);
        QTest::newRow("sectors") << qint64((150 + 375) * 2352) << qint64(375);
    }

    void aKilledAudioWriteCountsItsSectors()
    {
        QFETCH(qint64, bytes);
        QVERIFY(m_drutil->insert(u"cd-r"_s));
        QVERIFY(writeFile(m_drutil->recorder() + u"/recorder.ini"_s, "[medium]\nkind=cd-r\nstate=writing\n"));
        QVERIFY(sparseFile(m_drutil->recorder() + u"/disc.bin"_s, bytes));
        QTEST(usedBlocks(), "used");
    }

    void aStoppedAudioWriteCountsItsSectors()
    {
        const QString track = source() + u"/1.wav"_s;
        const std::string header = wave(4).substr(0, 40);
        QVERIFY(writeFile(track, QByteArray::fromStdString(header + little(0xffffffff, 4))));
        QVERIFY(QFile::resize(track, 700LL * 1000 * 1000));
        QVERIFY(m_drutil->insert(u"cd-r"_s));
        auto burn = startBurn({ u"-audio"_s });
        end(*burn, SIGTERM);
        QCOMPARE(burn->exitCode(), 143);
        QVERIFY(m_drutil->state().contains("state=spoilt"));
        const qint64 sectors = QFileInfo(m_drutil->recorder() + u"/disc.bin"_s).size() / 2352;
        QCOMPARE(usedBlocks(), std::max<qint64>(sectors - 150, 0));
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

    void aReaderWhoReadsNoMoreDoesNotKeepTheProgramFromEnding_data()
    {
        QTest::addColumn<int>("signal");
        QTest::addColumn<int>("exit");
        QTest::addColumn<bool>("both");
        QTest::newRow("SIGINT") << SIGINT << 130 << false;
        QTest::newRow("SIGTERM") << SIGTERM << 143 << false;
        QTest::newRow("SIGTERM, errors in the same pipe") << SIGTERM << 143 << true;
    }

    void aReaderWhoReadsNoMoreDoesNotKeepTheProgramFromEnding()
    {
        QFETCH(int, signal);
        QFETCH(int, exit);
        QFETCH(bool, both);
        const FullPipe pipe;
        QVERIFY(m_drutil->insert(u"dvd-r"_s));
        QProcess burn;
        burn.setProcessEnvironment(m_drutil->environment());
        burn.setChildProcessModifier([&] {
            ::dup2(pipe.writing(), 1);
            if (both)
                ::dup2(pipe.writing(), 2);
        });
        burn.start(Drutil::program(), { u"burn"_s, source() });
        QTRY_VERIFY_WITH_TIMEOUT(QFileInfo(disc()).size() > 0, 60000);
        end(burn, signal);
        QCOMPARE(burn.exitStatus(), QProcess::NormalExit);
        QCOMPARE(burn.exitCode(), exit);
        QVERIFY(m_drutil->state().contains("state=spoilt"));
        if (!both)
            QVERIFY(burn.readAllStandardError().contains("is spoilt"));
    }

    void aSlowReaderGetsTheEnd()
    {
        const FullPipe pipe;
        QVERIFY(QFile::resize(source() + u"/large"_s, 10));
        QVERIFY(m_drutil->insert(u"cd-r"_s));
        QProcess burn;
        burn.setProcessEnvironment(m_drutil->environment());
        burn.setChildProcessModifier([&] { ::dup2(pipe.writing(), 1); });
        burn.start(Drutil::program(), { u"burn"_s, source() });
        QTRY_VERIFY_WITH_TIMEOUT(m_drutil->state().contains("state=written"), 60000);
        QVERIFY(pipe.readUntil(" is written and was compared.\n"));
        QVERIFY(burn.waitForFinished(60000));
        QCOMPARE(burn.exitCode(), 0);
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
        QVERIFY2(
            ran.out.startsWith(u"Burning in drive 1: CORVALIS Virtual Recorder. "_s), qPrintable(ran.out));
        QCOMPARE(ran.out.count(u'\n'), 1);
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
                     "write another disc\\. The disc in drive . is written and closed\\.\n$"_s)
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
        if (support::ownMounts().isEmpty())
            QSKIP(support::noOwnMounts);
        const Ran ran = onFileSystem(
            u"20m"_s, u"\"$0\" insert bd-r && \"$0\" burn \"$1\"; echo $?; cat \"$2\"/1/recorder.ini"_s);
        QVERIFY2(ran.out.contains(u"\n1\n"_s), qPrintable(ran.out + ran.err));
        QVERIFY2(
            QRegularExpression(
                u"has room for [\\d.]+ MB \\(\\d+ blocks\\), and the disc needs [\\d.]+ MB \\(976\\d+ blocks\\)"_s)
                .match(ran.err)
                .hasMatch(),
            qPrintable(ran.err));
        QVERIFY(ran.out.contains(u"state=blank"_s));
    }

    void theStateOfADiscNeedsRoomAsWell_data()
    {
        QTest::addColumn<bool>("audio");
        QTest::addColumn<int>("more"); // bytes beside those of the disc
        QTest::addColumn<QString>("end");
        const QString blank = u"exit 1\nstate=blank"_s;
        const QString written = u"exit 0\nstate=written"_s;
        QTest::newRow("data, the disc alone") << false << 0 << blank;
        QTest::newRow("data, a little more") << false << 4096 << blank;
        QTest::newRow("data, enough") << false << 80 * 1024 << written;
        QTest::newRow("audio, the disc alone") << true << 0 << blank;
        QTest::newRow("audio, enough") << true << 80 * 1024 << written;
    }

    void theStateOfADiscNeedsRoomAsWell()
    {
        if (support::ownMounts().isEmpty())
            QSKIP(support::noOwnMounts);
        QFETCH(bool, audio);
        QFETCH(int, more);
        QFETCH(QString, end);
        QVERIFY(QFile::remove(source() + u"/large"_s));
        QVERIFY(writeFile(source() + u"/1.wav"_s, QByteArray::fromStdString(wave(400))));
        const QString burn = audio ? u"burn -audio"_s : u"burn"_s;
        QVERIFY(m_drutil->insert(u"cd-r"_s));
        QCOMPARE((*m_drutil)(burn.split(u' ') + QStringList{ source() }).exit, 0);
        const qint64 size = QFileInfo(audio ? m_drutil->recorder() + u"/disc.bin"_s : disc()).size();
        const qint64 free = (size + 4095) / 4096 * 4096 + more;
        const Ran ran = onFileSystem(u"4m"_s,
            u"\"$0\" insert cd-r; room=$(($(stat -f -c '%a * %S' \"$2\") - %1)); "
            "head -c $room /dev/zero > \"$2\"/filler; "
            "\"$0\" %2 \"$1\" > /dev/null; echo exit $?; grep state= \"$2\"/1/recorder.ini; ls \"$2\"/1"_s
                .arg(free)
                .arg(burn));
        QVERIFY2(ran.out.contains(end), qPrintable(ran.out + ran.err));
        QCOMPARE(ran.err.contains(u": make room there."_s), end.contains(u"blank"_s));
        const QString files = ran.out.section(u"state="_s, 1).section(u'\n', 1);
        const QString disc = audio ? u"disc.bin\ndisc.cue\n"_s : u"disc.iso\n"_s;
        QCOMPARE(files, end.contains(u"blank"_s) ? u"recorder.ini\n"_s : disc + u"recorder.ini\n"_s);
    }

    void aDiscStaysInARecorderThatHasNoRoomToEjectIt()
    {
        if (support::ownMounts().isEmpty())
            QSKIP(support::noOwnMounts);
        QVERIFY(QFile::remove(source() + u"/large"_s));
        QVERIFY(writeFile(source() + u"/1.wav"_s, QByteArray::fromStdString(wave(400))));
        for (const QString &burn : { u"burn"_s, u"burn -audio"_s }) {
            const Ran ran = onFileSystem(u"4m"_s,
                u"\"$0\" insert cd-r; \"$0\" %1 \"$1\" > /dev/null; cat /dev/zero > \"$2\"/filler 2> "
                u"/dev/null; "
                "ls \"$2\"/1 > \"$1.before\"; \"$0\" tray eject; echo exit $?; ls \"$2\"/1 > \"$1.after\"; "
                "cmp \"$1.before\" \"$1.after\"; "
                "grep state= \"$2\"/1/recorder.ini; rm \"$2\"/filler; "
                "\"$0\" tray eject; echo exit $?; grep state= \"$2\"/1/recorder.ini; ls \"$2\"/1/discs | wc -l"_s
                    .arg(burn));
            const QString files = burn == u"burn"_s ? u"1\n"_s : u"2\n"_s;
            QVERIFY2(ran.out.endsWith(u"exit 1\nstate=written\nexit 0\nstate=blank\n"_s + files),
                qPrintable(ran.out + ran.err));
            QVERIFY2(
                ran.err.endsWith(u"; free some space or choose another place.\n"_s), qPrintable(ran.err));
        }
    }

    void aFileSystemThatFillsUpMeanwhile_data()
    {
        QTest::addColumn<QString>("then");
        QTest::addColumn<QString>("end");
        QTest::addColumn<QString>("sentence");
        const QString spoilt = u" The disc in drive . is spoilt\\.\n$"_s;
        // A write that was under way may still end after the process was stopped.
        const QString fill =
            u"until mount -o remount,size=$(($(stat -f -c '(%b - %f) * %S' \"$2\"))) \"$2\" 2> /dev/null; "
            "do sleep 0.01; done"_s;
        QTest::newRow("the disc") << fill << u"exit 1\nstate=spoilt"_s
                                  << u"^drutil: The file system that holds drive . takes no more: no space "
                                     "left on device; free some space or choose another place\\."_s
                + spoilt;
        QTest::newRow("the disc, and it is stopped")
            << fill + u"; kill -TERM $burn"_s << u"exit 143\nstate=spoilt"_s
            << u"^drutil: Stopped\\."_s + spoilt;
        // What is in its way keeps the end of the write from being noted, whatever room there is.
        QTest::newRow("the state, and it is stopped")
            << u"mkdir -p \"$2\"/1/recorder.ini.new && kill -TERM $burn"_s << u"exit 143\nstate=writing"_s
            << u"^drutil: Stopped\\."_s + spoilt;
    }

    void aFileSystemThatFillsUpMeanwhile()
    {
        if (support::ownMounts().isEmpty())
            QSKIP(support::noOwnMounts);
        QFETCH(QString, then);
        QFETCH(QString, end);
        QFETCH(QString, sentence);
        const Ran ran = onFileSystem(u"2500m"_s,
            u"\"$0\" insert dvd-r; \"$0\" burn \"$1\" > /dev/null & burn=$!; "
            "until [ -s \"$2\"/1/disc.iso ]; do kill -0 $burn || exit; sleep 0.01; done; "
            "kill -STOP $burn; %1; kill -CONT $burn; wait $burn; echo exit $?; "
            "cat \"$2\"/1/recorder.ini | grep state=; \"$0\" status"_s.arg(then));
        QVERIFY2(ran.out.contains(end), qPrintable(ran.out + ran.err));
        QVERIFY2(ran.out.contains(u"State: spoilt"_s), qPrintable(ran.out));
        QVERIFY2(QRegularExpression(sentence).match(ran.err).hasMatch(), qPrintable(ran.err));
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
