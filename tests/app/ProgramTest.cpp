// The program as a process: how it ends, and what it answers on the command line.
#include "app/BatchRun.h"
#include "app/Surface.h"
#include "support/Person.h"
#include "support/ProgramFolder.h"
#include "support/TestApplication.h"
#include "writing/FolderClaim.h"
#include "writing/StatusSheets.h"

#include <QDialog>
#include <QLabel>
#include <QTest>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <pwd.h>
#include <sys/ioctl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// A tool that says its process id and then works until the end of the test.
constexpr const char *works = "case \"$1\" in burn|erase) echo $$ > \"$0.pid\"; exec sleep 60;; esac";

bool lives(qint64 pid)
{
    return pid > 0 && ::kill(static_cast<pid_t>(pid), 0) == 0;
}

/// In a process of its own: the window with a tool at work, ended in the way that the test names.
int windowThatEnds(const QString &way)
{
    WindowQuestions questions;
    MainWindow window;
    Surroundings around = Surroundings::ofThisMachine(&questions);
    around.drutil = qEnvironmentVariable("APP_TEST_DRUTIL");
    AppDelegate controller(&window, around);
    controller.awakeFromNib();
    controller.applicationDidFinishLaunching();
    QTimer::singleShot(0, &window, [&] {
        controller.OnToolsFormatQuick();
        while (!QFile::exists(around.drutil + u".pid"_s))
            QTest::qWait(20);
        if (way == "menu"_L1)
            return person::choose(&window, "menuitemQuit");
        if (way == "close"_L1) {
            window.close();
        } else if (person::awaitKeyboard(controller.windowPerformingOperation)) {
            person::press(QKeySequence(u"Ctrl+Q"_s));
        }
    });
    QApplication::exec();
    return 99; // the process should have ended long ago
}

/// A terminal of so many columns.
class Terminal {
public:
    explicit Terminal(unsigned short columns)
        : m_fd(::posix_openpt(O_RDWR | O_NOCTTY))
    {
        const winsize size{ 24, columns, 0, 0 };
        if (m_fd < 0 || ::grantpt(m_fd) != 0 || ::unlockpt(m_fd) != 0
            || ::ioctl(m_fd, TIOCSWINSZ, &size) != 0)
            qFatal("there is no terminal to be had");
    }
    ~Terminal() { ::close(m_fd); }
    Terminal(const Terminal &) = delete;
    Terminal &operator=(const Terminal &) = delete;

    QString path() const { return QString::fromLocal8Bit(::ptsname(m_fd)); }

    /// All that was written, once its last writer is gone; then a terminal has no end but an error.
    QByteArray shown() const
    {
        QByteArray shown;
        char piece[4096];
        while (const ssize_t count = qMax(ssize_t(0), ::read(m_fd, piece, sizeof piece)))
            shown.append(piece, count);
        return shown;
    }

private:
    const int m_fd;
};

} // namespace

class ProgramTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void endsWhileAToolWorks_data();
    void endsWhileAToolWorks();
    void signalEndsTheWindow_data();
    void signalEndsTheWindow();
    void signalEndsABatchRunAtWork_data() { signalEndsTheWindow_data(); }
    void signalEndsABatchRunAtWork();
    void emptiesItsFoldersAtTheNextStart();

    void leavesAnothersJobAlone();
    void claimsOfAFolder();

    void folderThatCannotBeMade_data();
    void folderThatCannotBeMade();

    void wrongArguments_data();
    void wrongArguments();
    void argumentThatIsNotText();
    void help();
    void version();
    void alertEndsABatchRun_data();
    void alertEndsABatchRun();
    void debugIsOffInABatchRun();
    void burnsWithoutADisplay();
    void missingToolStillEndsTheJob();
    void onlyOwnWordsInABatchRun();
    void nobodyReadsTheProgress();
    void progressFitsTheTerminal();
    void alertHasItsOwnLine();
    void progressInAFile();
    void progressOfALongFile();

    void pathsAreWhatTheyAreToAShell_data();
    void pathsAreWhatTheyAreToAShell();
    void namesDoNotCommandTheTerminal();
    void withoutADisplay_data();
    void withoutADisplay();
    void withoutAHome();
};

void ProgramTest::endsWhileAToolWorks_data()
{
    QTest::addColumn<QString>("way");
    for (const char *way : { "menu", "keys", "close" })
        QTest::newRow(way) << QString::fromLatin1(way);
}

void ProgramTest::endsWhileAToolWorks()
{
    QFETCH(QString, way);
    TestApplication tools;
    tools.drutil.run(works);
    tools.drutil.print(u"status"_s, "Type: CD-RW\nerasable\n");
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"APP_TEST_DRUTIL"_s, tools.drutil.path());
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationFilePath(), { u"--window-that-ends"_s, way });
    QVERIFY(process.waitForFinished(30'000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
    const qint64 tool = contentOf(tools.drutil.path() + u".pid"_s).trimmed().toLongLong();
    QVERIFY(lives(tool));
    ::kill(static_cast<pid_t>(tool), SIGKILL);
}

void ProgramTest::signalEndsTheWindow_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("TERM") << SIGTERM;
    QTest::newRow("INT") << SIGINT;
    QTest::newRow("HUP") << SIGHUP;
}

void ProgramTest::signalEndsTheWindow()
{
    QFETCH(int, signal);
    ProgramFolder folder;
    folder.start();
    QVERIFY(folder.process.waitForStarted());
    // It runs once it has asked for the drives; the event loop follows.
    QTRY_VERIFY(!folder.drutil.runs().isEmpty());
    ::kill(static_cast<pid_t>(folder.process.processId()), signal);
    QCOMPARE(folder.ended(), 0);
}

void ProgramTest::signalEndsABatchRunAtWork()
{
    QFETCH(int, signal);
    ProgramFolder folder;
    folder.drutil.print(u"status"_s, "Type: CD-R\noverwritable\n");
    folder.drutil.run(works);
    folder.ffmpeg.run(
        "for last; do :; done; case \"$last\" in */CorvalisAudio/*) echo sound > \"$last\";; esac");
    makeFile(folder.home(u"song.mp3"_s));
    folder.start({ u"--burn"_s, u"MP3 CD"_s, folder.home(u"song.mp3"_s) });
    QTRY_VERIFY_WITH_TIMEOUT(contentOf(folder.drutil.path() + u".pid"_s).endsWith('\n'), 20'000);
    QCOMPARE(folder.process.state(), QProcess::Running);
    ::kill(static_cast<pid_t>(folder.process.processId()), signal);
    // Whoever waits for the disc must not take it for done.
    QVERIFY(folder.process.waitForFinished(30'000));
    QCOMPARE(folder.process.exitStatus(), QProcess::CrashExit);
    QCOMPARE(folder.process.exitCode(), signal);
    const qint64 tool = contentOf(folder.drutil.path() + u".pid"_s).trimmed().toLongLong();
    // A closed terminal ends the program at once; at the other signals it stops the work first.
    QCOMPARE(lives(tool), signal == SIGHUP);
    QCOMPARE(QDir(folder.home(u"Documents/CorvalisAudio"_s)).isEmpty(), signal != SIGHUP);
    if (lives(tool))
        ::kill(static_cast<pid_t>(tool), SIGKILL);
}

void ProgramTest::emptiesItsFoldersAtTheNextStart()
{
    ProgramFolder folder;
    makeFile(folder.home(u"Documents/CorvalisAudio/left over.wav"_s));
    folder.start();
    QTRY_VERIFY(!folder.drutil.runs().isEmpty());
    QVERIFY(!QFile::exists(folder.home(u"Documents/CorvalisAudio/left over.wav"_s)));
    folder.process.terminate();
    QCOMPARE(folder.ended(), 0);
}

void ProgramTest::leavesAnothersJobAlone()
{
    ProgramFolder folder;
    folder.drutil.print(u"status"_s, "Type: CD-R\noverwritable\n");
    folder.drutil.run(works);
    // The converted file, which the writing tool reads.
    folder.ffmpeg.run(
        "for last; do :; done; case \"$last\" in */CorvalisAudio/*) echo sound > \"$last\";; esac");
    const QString song = folder.home(u"song.mp3"_s);
    const QString converted = folder.home(u"Documents/CorvalisAudio/song.mp3"_s);
    makeFile(song);
    folder.start({ u"--burn"_s, u"MP3 CD"_s, song });
    QTRY_VERIFY_WITH_TIMEOUT(contentOf(folder.drutil.path() + u".pid"_s).endsWith('\n'), 20'000);
    QCOMPARE(contentOf(converted), "sound\n");

    QProcess second;
    second.setProcessEnvironment(folder.process.processEnvironment());
    second.start(folder.program(), { u"--burn"_s, u"MP3 CD"_s, song });
    QVERIFY(second.waitForFinished(20'000));
    QCOMPARE(second.exitCode(), 1);
    const QByteArray told = second.readAllStandardError();
    QVERIFY2(told.startsWith("Another Corvalis is at work\n"), told.constData());
    QCOMPARE(contentOf(converted), "sound\n");
    QCOMPARE(folder.drutil.runs(u"burn"_s).size(), 1);

    // What lived in a folder dies with the process, and the next start tidies up.
    folder.process.kill();
    QVERIFY(folder.process.waitForFinished());
    ::kill(static_cast<pid_t>(contentOf(folder.drutil.path() + u".pid"_s).trimmed().toLongLong()), SIGKILL);
    folder.drutil.run("ls \"$HOME/Documents/CorvalisAudio\" > \"$0.$1.seen\"");
    second.start(folder.program(), { u"--burn"_s, u"MP3 CD"_s, song });
    QVERIFY(second.waitForFinished(20'000));
    QCOMPARE(second.exitCode(), 0);
    QCOMPARE(contentOf(folder.drutil.path() + u".list.seen"_s), QByteArray());
    QCOMPARE(contentOf(folder.drutil.path() + u".burn.seen"_s), "song.mp3\n");
}

void ProgramTest::claimsOfAFolder()
{
    QTemporaryDir folder;
    auto claim = FolderClaim::take(folder.path());
    QVERIFY(claim);
    QVERIFY(!FolderClaim::take(folder.path()));
    // Another path to the same folder.
    QVERIFY(!FolderClaim::take(folder.path() + u"/."_s));
    claim.reset();
    QVERIFY(FolderClaim::take(folder.path()));
    QVERIFY(FolderClaim::take(folder.filePath(u"not there"_s)));
}

void ProgramTest::folderThatCannotBeMade_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("text");
    QTest::newRow("no Documents") << QString() << u"Error #0008. Application will exit."_s;
    QTest::newRow("output") << u"Corvalis"_s << u"Error #0008. Application will exit."_s;
    QTest::newRow("audio") << u"CorvalisAudio"_s << u"Error #0009. Application will exit."_s;
    QTest::newRow("video") << u"CorvalisVideo"_s << u"Error #000a. Application will exit."_s;
    QTest::newRow("data") << u"CorvalisData"_s << u"Error #000b. Application will exit."_s;
}

void ProgramTest::folderThatCannotBeMade()
{
    QFETCH(QString, folder);
    QFETCH(QString, text);
    // In the window: the alert is up, and with it dismissed the program ends.
    TestApplication app;
    emptyHome();
    if (folder.isEmpty()) {
        makeFile(QDir::homePath() + u"/Documents"_s);
    } else {
        QDir().mkpath(documents());
        QVERIFY(QFile::link(documents(u"nowhere/at all"_s), documents(folder)));
    }
    QStringList told;
    person::Expect<QDialog> alert([&](QDialog *window) {
        for (const QLabel *label : window->findChildren<QLabel *>()) {
            if (!label->text().isEmpty())
                told.append(label->text());
        }
        QVERIFY(app.exits.isEmpty());
        person::pressTitled(window, u"Close"_s);
    });
    app.launchWithDialogs();
    QVERIFY(alert.happened());
    QCOMPARE(told, QStringList({ u"Error"_s, text }));
    QCOMPARE(app.exits, QList<int>(1, 0));
    // On the command line: nothing has been burned, so it is no success.
    ProgramFolder program;
    makeFile(program.home(u"song.mp3"_s));
    if (folder.isEmpty()) {
        makeFile(program.home(u"Documents"_s));
    } else {
        QDir().mkpath(program.home(u"Documents"_s));
        QVERIFY(QFile::link(program.home(u"nowhere/at all"_s), program.home(u"Documents/"_s + folder)));
    }
    QCOMPARE(program.run({ u"--burn"_s, u"MP3 CD"_s, program.home(u"song.mp3"_s) }), 1);
    QVERIFY(program.errors().contains(u"Error\n"_s + text + u'\n'));
    QFile::remove(QDir::homePath() + u"/Documents"_s);
}

void ProgramTest::wrongArguments_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("sentence");
    const QString all =
        u"\"Audio CD\", \"MP3 CD\", \"MP3 DVD\", \"Video DVD\", \"Video Blu-ray\", \"Data CD\", "
        "\"Data DVD\", \"Data Blu-ray\""_s;
    QTest::newRow("unknown project") << QStringList{ u"--burn"_s, u"Audio DVD"_s, u"song.mp3"_s } << all;
    QTest::newRow("other case") << QStringList{ u"--burn"_s, u"audio cd"_s, u"song.mp3"_s } << all;
    QTest::newRow("no project") << QStringList{ u"--burn"_s } << u"burn"_s;
    QTest::newRow("missing file") << QStringList{ u"--burn"_s, u"Audio CD"_s, u"gone.mp3"_s }
                                  << u"gone.mp3"_s;
    QTest::newRow("wrong extension") << QStringList{ u"--burn"_s, u"Audio CD"_s, u"text.txt"_s }
                                     << u"wma, wav, cda, mp3"_s;
    QTest::newRow("video on an audio disc")
        << QStringList{ u"--burn"_s, u"Audio CD"_s, u"clip.mp4"_s } << u"clip.mp4"_s;
    QTest::newRow("audio on a video disc")
        << QStringList{ u"--burn"_s, u"Video DVD"_s, u"song.mp3"_s } << u"song.mp3"_s;
    QTest::newRow("one of two missing")
        << QStringList{ u"--burn"_s, u"Audio CD"_s, u"song.mp3"_s, u"gone.mp3"_s } << u"gone.mp3"_s;
    QTest::newRow("folder on an audio disc")
        << QStringList{ u"--burn"_s, u"Audio CD"_s, u"folder.mp3"_s } << u"folder.mp3"_s;
    QTest::newRow("device on a data disc")
        << QStringList{ u"--burn"_s, u"Data CD"_s, u"/dev/null"_s } << u"/dev/null"_s;
    QTest::newRow("empty name") << QStringList{ u"--burn"_s, u"Audio CD"_s, QString(u""_s) } << u"file"_s;
    QTest::newRow("unknown option") << QStringList{ u"--bake"_s } << u"bake"_s;
    QTest::newRow("missing file for the window") << QStringList{ u"gone.mp3"_s } << u"gone.mp3"_s;
    QTest::newRow("nameless file for the window") << QStringList{ QString(u""_s) } << u"file"_s;
    QTest::newRow("unknown action") << QStringList{ u"--action"_s, u"burn"_s }
                                    << u"new-audio-cd, new-data-disc, write-image, copy-disc"_s;
    QTest::newRow("action with files")
        << QStringList{ u"--action"_s, u"copy-disc"_s, u"song.mp3"_s } << u"--action"_s;
    QTest::newRow("action in a batch run") << QStringList{ u"--action"_s, u"copy-disc"_s, u"--burn"_s,
        u"MP3 CD"_s, u"song.mp3"_s } << u"--action"_s;
    QTest::newRow("new window of a batch run")
        << QStringList{ u"--new-window"_s, u"--burn"_s, u"MP3 CD"_s, u"song.mp3"_s } << u"--new-window"_s;
    QTest::newRow("show without a project") << QStringList{ u"--show"_s } << u"--burn"_s;
    const QString players = u"--for-players goes with --burn \"Video DVD\"."_s;
    QTest::newRow("for players without a project") << QStringList{ u"--for-players"_s } << players;
    QTest::newRow("a Blu-ray for players")
        << QStringList{ u"--burn"_s, u"Video Blu-ray"_s, u"--for-players"_s, u"clip.mp4"_s } << players;
    QTest::newRow("an audio CD for players")
        << QStringList{ u"--for-players"_s, u"--burn"_s, u"Audio CD"_s, u"song.mp3"_s } << players;
}

void ProgramTest::wrongArguments()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, sentence);
    ProgramFolder folder;
    folder.process.setWorkingDirectory(folder.home());
    for (const auto &name : { u"song.mp3"_s, u"text.txt"_s, u"clip.mp4"_s })
        makeFile(folder.home(name));
    QDir().mkpath(folder.home(u"folder.mp3"_s));
    QCOMPARE(folder.run(arguments), 2);
    const QString said = folder.errors();
    QVERIFY2(said.startsWith(u"corvalis: "_s) && said.contains(sentence), qPrintable(said));
    // Nothing has been touched.
    QVERIFY(folder.drutil.runs().isEmpty());
    QVERIFY(!QFile::exists(folder.home(u"Documents"_s)));
}

void ProgramTest::argumentThatIsNotText()
{
    ProgramFolder folder;
    folder.process.setWorkingDirectory(folder.home());
    // QProcess hands on text only, a shell any bytes.
    folder.process.start(u"/bin/sh"_s,
        { u"-c"_s, u"f=$(printf 'bad \\377.mp3'); : > \"$f\"; exec \"$0\" --burn 'Audio CD' \"$f\""_s,
            folder.program() });
    QCOMPARE(folder.ended(), 2);
    // What Qt cannot remove.
    QProcess::execute(u"/bin/sh"_s, { u"-c"_s, u"rm -f \"$0\"/*.mp3"_s, folder.home() });
    const QString said = folder.errors();
    QVERIFY2(
        said.contains(u"argument 3, \"bad \ufffd.mp3\""_s) && said.contains(u"UTF-8"_s), qPrintable(said));
}

void ProgramTest::help()
{
    ProgramFolder folder;
    QCOMPARE(folder.run({ u"--help"_s }), 0);
    const QString said = QString::fromUtf8(folder.process.readAllStandardOutput());
    QVERIFY(said.contains(u"--burn"_s) && said.contains(u"--show"_s) && said.contains(u"FILE"_s));
    QVERIFY(said.contains(u"--for-players"_s));
    QVERIFY(folder.drutil.runs().isEmpty());
}

void ProgramTest::version()
{
    ProgramFolder folder;
    QCOMPARE(folder.run({ u"--version"_s }), 0);
    QVERIFY(folder.process.readAllStandardOutput().startsWith("corvalis "));
}

void ProgramTest::alertEndsABatchRun_data()
{
    QTest::addColumn<QByteArray>("status");
    QTest::addColumn<QString>("texts");
    QTest::newRow("no disc")
        << QByteArray("Type: No Media Inserted\n")
        << u"No disc\nThere is no disc on the drive. insert a writable media on the drive and try again.\n"_s;
    QTest::newRow("not writable")
        << QByteArray("Type: CD-ROM\n")
        << u"Media not writable\nThe media on the drive is not writable. insert a writable "
           "media on the drive and try again.\n"_s;
    QTest::newRow("wrong type")
        << QByteArray("Type: DVD-R\noverwritable\n")
        << u"Media not CD\nThe media on the drive is not a CD. insert a writable CD on the "
           "drive and try again.\n"_s;
}

void ProgramTest::alertEndsABatchRun()
{
    QFETCH(QByteArray, status);
    QFETCH(QString, texts);
    ProgramFolder folder;
    folder.drutil.print(u"status"_s, status);
    makeFile(folder.home(u"song.mp3"_s));
    QCOMPARE(folder.run({ u"--burn"_s, u"Audio CD"_s, folder.home(u"song.mp3"_s) }), 1);
    QCOMPARE(folder.errors(), texts);
    QVERIFY(folder.drutil.runs(u"burn"_s).isEmpty());
    // It was measured, as adding it in the window would have.
    QCOMPARE(folder.ffmpeg.runs(), QList<QStringList>({ { u"-i"_s, folder.home(u"song.mp3"_s) } }));
}

void ProgramTest::debugIsOffInABatchRun()
{
    ProgramFolder folder;
    QCOMPARE(folder.run({ u"--burn"_s, u"Data DVD"_s }), 1);
    QCOMPARE(folder.errors(),
        u"No folders on the list\nThere are no folders on the list. Add folders to the list and try again.\n"_s);
}

void ProgramTest::burnsWithoutADisplay()
{
    ProgramFolder folder;
    folder.drutil.print(u"status"_s, "Type: CD-R\noverwritable\n");
    makeFile(folder.home(u"song.mp3"_s));
    QProcessEnvironment environment = folder.process.processEnvironment();
    environment.remove(u"QT_QPA_PLATFORM"_s);
    folder.process.setProcessEnvironment(environment);
    folder.process.setWorkingDirectory(folder.home());
    QCOMPARE(folder.run({ u"--burn"_s, u"MP3 CD"_s, u"song.mp3"_s }), 0);
    const QString audio = folder.home(u"Documents/CorvalisAudio"_s);
    QCOMPARE(
        folder.drutil.runs(u"burn"_s), QList<QStringList>({ { u"burn"_s, audio, u"-drive"_s, u"1"_s } }));
    QVERIFY(folder.process.readAllStandardOutput().contains("Operation complete\n"));
}

void ProgramTest::missingToolStillEndsTheJob()
{
    ProgramFolder folder;
    folder.drutil.print(u"status"_s, "Type: CD-R\noverwritable\n");
    makeFile(folder.home(u"song.mp3"_s));
    QFile::remove(folder.ffmpeg.path());
    // Its disc utility writes all the same, but without the song.
    QCOMPARE(folder.run({ u"--burn"_s, u"MP3 CD"_s, folder.home(u"song.mp3"_s) }), 3);
    QVERIFY(!folder.errors().isEmpty());
    QCOMPARE(folder.drutil.runs(u"burn"_s).size(), 1);
}

void ProgramTest::onlyOwnWordsInABatchRun()
{
    ProgramFolder folder;
    folder.drutil.print(u"status"_s, "Type: CD-R\noverwritable\n");
    makeFile(folder.home(u"song.mp3"_s));
    // What a scheduled job has: no runtime folder, no locale.
    QProcessEnvironment environment = folder.process.processEnvironment();
    environment.remove(u"XDG_RUNTIME_DIR"_s);
    environment.insert(u"LC_ALL"_s, u"C"_s);
    folder.process.setProcessEnvironment(environment);
    QCOMPARE(folder.run({ u"--burn"_s, u"MP3 CD"_s, folder.home(u"song.mp3"_s) }), 0);
    QCOMPARE(folder.errors(), QString());
    // What cannot be removed from a working folder is told all the same.
    QVERIFY(QDir(folder.home(u"Documents/CorvalisVideo"_s)).removeRecursively());
    QVERIFY(QFile::link(u"/proc/self/ns"_s, folder.home(u"Documents/CorvalisVideo"_s)));
    QCOMPARE(folder.run({ u"--burn"_s, u"MP3 CD"_s, folder.home(u"song.mp3"_s) }), 0);
    QVERIFY(folder.errors().contains(u"oops: "_s));
}

void ProgramTest::nobodyReadsTheProgress()
{
    ProgramFolder folder;
    folder.drutil.print(u"status"_s, "Type: CD-R\noverwritable\n");
    makeFile(folder.home(u"song.mp3"_s));
    folder.start({ u"--burn"_s, u"MP3 CD"_s, folder.home(u"song.mp3"_s) });
    QVERIFY(folder.process.waitForStarted());
    folder.process.closeReadChannel(QProcess::StandardOutput);
    QCOMPARE(folder.ended(), 0);
    QCOMPARE(folder.drutil.runs(u"burn"_s).size(), 1);
}

void ProgramTest::progressFitsTheTerminal()
{
    const Terminal terminal(30);
    ProgramFolder folder;
    folder.drutil.print(u"status"_s, "Type: CD-R\noverwritable\n");
    folder.drutil.run(
        "case \"$1\" in burn) echo 'a line that is longer than the terminal is wide'; sleep 1;; esac");
    makeFile(folder.home(u"song.mp3"_s));
    folder.process.setStandardOutputFile(terminal.path());
    QCOMPARE(folder.run({ u"--burn"_s, u"MP3 CD"_s, folder.home(u"song.mp3"_s) }), 0);
    const QByteArray shown = terminal.shown();
    QVERIFY2(shown.contains("a line that is longer than th"), shown.constData());
    QVERIFY2(shown.endsWith("Operation complete\r\n"), shown.constData());
    // One line, written over and over.
    QCOMPARE(shown.count('\n'), 1);
    for (QByteArray line : shown.trimmed().split('\r')) {
        line.replace("\033[K", "");
        QVERIFY2(line.size() < 30, line.constData());
    }
}

void ProgramTest::alertHasItsOwnLine()
{
    const Terminal terminal(80);
    ProgramFolder folder;
    folder.drutil.print(u"status"_s, "Type: No Media Inserted\n");
    folder.ffmpeg.run("sleep 1");
    makeFile(folder.home(u"song.mp3"_s));
    folder.process.setStandardOutputFile(terminal.path());
    folder.process.setStandardErrorFile(terminal.path());
    QCOMPARE(folder.run({ u"--burn"_s, u"MP3 CD"_s, folder.home(u"song.mp3"_s) }), 1);
    const QByteArray shown = terminal.shown();
    QVERIFY2(shown.contains("Adding files: 0 of 1\r\nNo disc\r\n"), shown.constData());
    QVERIFY2(shown.endsWith("and try again.\r\n"), shown.constData());
}

void ProgramTest::progressInAFile()
{
    ProgramFolder folder;
    folder.drutil.print(u"status"_s, "Type: CD-R\noverwritable\n");
    folder.drutil.run("case \"$1\" in burn) for i in 1 2 3 4 5 6 7 8 9 10 11 12; do echo \"$i %\"; sleep "
                      "0.25; done;; esac");
    makeFile(folder.home(u"song.mp3"_s));
    QCOMPARE(folder.run({ u"--burn"_s, u"MP3 CD"_s, folder.home(u"song.mp3"_s) }), 0);
    const QList<QByteArray> lines = folder.process.readAllStandardOutput().trimmed().split('\n');
    // Not every one of them.
    const auto writing = std::ranges::count_if(
        lines, [](const QByteArray &line) { return line.endsWith(" %") && !line.contains(':'); });
    QVERIFY2(writing > 0 && writing < 6, lines.join(" | ").constData());
    QCOMPARE(lines.last(), QByteArray("Operation complete"));
}

void ProgramTest::progressOfALongFile()
{
    ProgramFolder folder;
    folder.drutil.print(u"status"_s, "Type: CD-R\noverwritable\n");
    folder.ffmpeg.run("if [ $# -eq 2 ]; then echo '  Duration: 00:10:00.00, start' >&2\n"
                      "else echo 'time=00:05:00.00' >&2; sleep 1.5; fi");
    makeFile(folder.home(u"song.mp3"_s));
    QCOMPARE(folder.run({ u"--burn"_s, u"MP3 CD"_s, folder.home(u"song.mp3"_s) }), 0);
    const QByteArray told = folder.process.readAllStandardOutput();
    QVERIFY2(told.contains("Converting: file 1 of 1, 50 %\n"), told.constData());
}

void ProgramTest::pathsAreWhatTheyAreToAShell_data()
{
    QTest::addColumn<QString>("argument");
    QTest::addColumn<QString>("path");
    QTest::newRow("name") << u"song.mp3"_s << u"song.mp3"_s;
    QTest::newRow("empty steps") << u".//./song.mp3"_s << u"song.mp3"_s;
    QTest::newRow("above a folder") << u"folder/../song.mp3"_s << u"song.mp3"_s;
    QTest::newRow("above a link's folder") << u"link/../song.mp3"_s << u"far/song.mp3"_s;
    QTest::newRow("a link keeps its name") << u"folder/../other.mp3"_s << u"other.mp3"_s;
    QTest::newRow("slash at the end") << u"folder/"_s << u"folder"_s;
    QTest::newRow("here") << u"."_s << u""_s;
    QTest::newRow("above") << u"folder/.."_s << u""_s;
    QTest::newRow("above a link") << u"link/.."_s << u"far"_s;
    QTest::newRow("above a link, slash at the end") << u"link/../"_s << u"far"_s;
    QTest::newRow("nothing there") << u"nowhere/../gone.mp3"_s << u"gone.mp3"_s;
    QTest::newRow("like an option") << u"-song.mp3"_s << u"-song.mp3"_s;
}

void ProgramTest::pathsAreWhatTheyAreToAShell()
{
    QFETCH(QString, argument);
    QFETCH(QString, path);
    QTemporaryDir place;
    const QDir here(QFileInfo(place.path()).canonicalFilePath());
    for (const auto &file :
        { u"song.mp3"_s, u"-song.mp3"_s, u"folder/x"_s, u"far/song.mp3"_s, u"far/away/x"_s })
        makeFile(here.filePath(file));
    QVERIFY(QFile::link(here.filePath(u"far/away"_s), here.filePath(u"link"_s)));
    QVERIFY(QFile::link(u"song.mp3"_s, here.filePath(u"other.mp3"_s)));
    const QString before = QDir::currentPath();
    QDir::setCurrent(here.path());
    const QString meant = BatchRun::meantPath(argument);
    QDir::setCurrent(before);
    QCOMPARE(meant, path.isEmpty() ? here.path() : here.filePath(path));
}

void ProgramTest::namesDoNotCommandTheTerminal()
{
    QCOMPARE(surface::printable(u"a\tb\nc é\x1b[31m\a\x7f\u009b"_s), "a\tb\nc é\ufffd[31m\ufffd\ufffd\ufffd");
    ProgramFolder folder;
    folder.drutil.print(u"status"_s, "Type: CD-R\noverwritable\n");
    folder.drutil.run("case \"$1\" in burn) printf '\\033[31mred\\n'; sleep 1; exit 1;; esac");
    folder.ffmpeg.run("printf '\\033[31mno music'; exit 1");
    const QString song = folder.home(u"\x1b[31msong.mp3"_s);
    makeFile(song);
    QCOMPARE(folder.run({ u"--burn"_s, u"MP3 CD"_s, song }), 1);
    const QByteArray said = folder.process.readAllStandardError();
    QVERIFY2(said.contains("no music") && said.contains("red"), said.constData());
    QVERIFY(!said.contains('\x1b'));
    QVERIFY(!folder.process.readAllStandardOutput().contains('\x1b'));
    QCOMPARE(folder.run({ u"--burn"_s, u"MP3 CD"_s, song + u".gone"_s }), 2);
    QVERIFY(!folder.process.readAllStandardError().contains('\x1b'));
}

void ProgramTest::withoutADisplay_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("display");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("told");
    const QString noDisplay = u"there is no display"_s;
    const QStringList shown{ u"--show"_s, u"--burn"_s, u"Data CD"_s, u"/"_s };
    QTest::newRow("window") << QStringList() << QString() << 1 << noDisplay;
    QTest::newRow("window, display gone") << QStringList() << u":987"_s << 1 << noDisplay;
    QTest::newRow("shown job") << shown << QString() << 1 << noDisplay;
    QTest::newRow("shown job, display gone") << shown << u":987"_s << 1 << noDisplay;
    QTest::newRow("unknown option") << QStringList{ u"--bake"_s } << QString() << 2 << u"bake"_s;
    QTest::newRow("file") << QStringList{ u"/"_s } << QString() << 1 << noDisplay;
    QTest::newRow("file that looks like an option")
        << QStringList{ u"--burn"_s, u"Data CD"_s, u"--"_s, u"--show"_s } << QString() << 2 << u"--show"_s;
    for (const auto &help : { u"-h"_s, u"--help"_s, u"--help-all"_s, u"-v"_s, u"--version"_s })
        QTest::newRow(qPrintable(help)) << QStringList{ help } << u":987"_s << 0 << QString();
}

void ProgramTest::withoutADisplay()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, display);
    QFETCH(QString, told);
    ProgramFolder folder;
    QProcessEnvironment environment = folder.process.processEnvironment();
    environment.remove(u"QT_QPA_PLATFORM"_s);
    if (!display.isEmpty())
        environment.insert(u"DISPLAY"_s, display);
    folder.process.setProcessEnvironment(environment);
    QTEST(folder.run(arguments), "status");
    const QString said = folder.errors();
    QVERIFY2(told.isEmpty() ? said.isEmpty() : said.contains(told), qPrintable(said));
    QVERIFY(folder.drutil.runs().isEmpty());
}

void ProgramTest::withoutAHome()
{
    const QByteArray home = qgetenv("HOME");
    surface::knowHome();
    QCOMPARE(qgetenv("HOME"), home);
    qunsetenv("HOME");
    surface::knowHome();
    const QByteArray found = qgetenv("HOME");
    qputenv("HOME", home);
    QCOMPARE(found, QByteArray(::getpwuid(::getuid())->pw_dir));
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == "--window-that-ends"_L1)
        return windowThatEnds(arguments.value(2));
    ProgramTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "ProgramTest.moc"
