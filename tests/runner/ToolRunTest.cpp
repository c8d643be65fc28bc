#include "runner/ToolRun.h"

#include "runner/ActivityLog.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <memory>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <vector>

using namespace Qt::StringLiterals;
using How = runner::ToolEnd::How;
using runner::ToolRun;

namespace {

const QString misbehave = QStringLiteral(MISBEHAVE);
constexpr int longEnough = 60'000; // a limit that no well-behaved run comes near

/// Waits for the end of a launched run; false when it does not come.
bool awaitEnd(ToolRun &run)
{
    return QTest::qWaitFor([&run] { return run.hasEnded(); }, longEnough);
}

bool isGone(qint64 process)
{
    return ::kill(static_cast<pid_t>(process), 0) != 0 && errno == ESRCH;
}

} // namespace

class ToolRunTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void tellsHowItEnded_data();
    void tellsHowItEnded();
    void captures_data();
    void captures();
    void launches_data();
    void launches();
    void couldNotStart_data();
    void couldNotStart();
    void endsWhatGivesNoAnswer_data();
    void endsWhatGivesNoAnswer();
    void hearsTheLastWords();
    void waitsForTheEndOfTheOutputOnly();
    void passesArgumentsAsTheyAre();
    void makesFilesForReaders_data();
    void makesFilesForReaders();
    void handsItsEnvironmentOn();
    void capturesBothChannelsInOrder();
    void keepsChannelsApart();
    void handsOutOutputAsItComes();
    void takesFloods_data();
    void takesFloods();
    void dropsWhatIsMoreThanItsShare();
    void doesNotWaitForGrandchildren();
    void endsTheChildWithItself_data();
    void endsTheChildWithItself();
    void endsOnlyOnce();
    void isWrittenIntoTheLog();
    void runsInSeveralThreads();
    void launchesInSeveralThreads();
};

void ToolRunTest::tellsHowItEnded_data()
{
    QTest::addColumn<runner::ToolEnd>("end");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("troubled");
    QTest::newRow("well") << runner::ToolEnd{} << u"ended without an error"_s << false;
    QTest::newRow("with a status") << runner::ToolEnd{ How::Ended, 3, {} } << u"ended with status 3"_s
                                   << true;
    QTest::newRow("not started") << runner::ToolEnd{ How::CouldNotStart, 0, u"100%1 gone"_s }
                                 << u"could not be started: 100%1 gone"_s << true;
    QTest::newRow("crashed") << runner::ToolEnd{ How::Crashed, 11, {} } << u"crashed (signal 11)"_s << true;
    QTest::newRow("ended by us") << runner::ToolEnd{ How::EndedByUs, 0, {} }
                                 << u"was ended because it gave no answer in time"_s << true;
}

void ToolRunTest::tellsHowItEnded()
{
    QFETCH(runner::ToolEnd, end);
    QTEST(end.text(), "text");
    QTEST(end.troubled(), "troubled");
}

/// The same children for captures() and launches().
void ToolRunTest::captures_data()
{
    QTest::addColumn<QStringList>("behaviour");
    QTest::addColumn<How>("how");
    QTest::addColumn<int>("code");
    QTest::addColumn<QByteArray>("printed");

    const auto row = [](const char *name, const QString &behaviour, How how, int code,
                         const QByteArray &printed) {
        QTest::newRow(name) << behaviour.split(u' ') << how << code << printed;
    };
    row("says nothing", u"exit 0"_s, How::Ended, 0, "");
    row("ends with a status", u"out one , exit 7"_s, How::Ended, 7, "one\n");
    row("ends with the highest status", u"exit 255"_s, How::Ended, 255, "");
    row("crashes", u"out one , crash"_s, How::Crashed, SIGSEGV, "one\n");
    row("gives up", u"err one , abort"_s, How::Crashed, SIGABRT, "one\n");
    row("prints no line end", u"out-raw one"_s, How::Ended, 0, "one");
    row("prints zero bytes", u"out-raw a\\x00b"_s, How::Ended, 0, QByteArray("a\0b", 3));
    row("prints half a character, later the other half", u"half-utf8"_s, How::Ended, 0, "\xc3\xa9\n\xc3");
    row("prints what is not UTF-8", u"out-raw \\xff\\xfe"_s, How::Ended, 0, "\xff\xfe");
    row("prints byte by byte", u"slow-drip drop 20"_s, How::Ended, 0, "drop");
    row("prints bare returns", u"out-raw 10%\\r20%\\r"_s, How::Ended, 0, "10%\r20%\r");
    row("closes its output and goes on", u"out one , close-early , sleep 200 , exit 4"_s, How::Ended, 4,
        "one\n");
    row("waits for input", u"read-stdin"_s, How::Ended, 0, "stdin 0\n");
    row("prints after a while", u"sleep 300 , out late"_s, How::Ended, 0, "late\n");
}

void ToolRunTest::captures()
{
    QFETCH(QStringList, behaviour);
    ActivityLog log;
    ToolRun run(misbehave, behaviour, &log);
    QSignalSpy ended(&run, &ToolRun::ended);
    QTEST(run.capture(longEnough), "printed");
    QTRY_VERIFY(run.hasEnded());
    QTEST(run.end().how, "how");
    QTEST(run.end().code, "code");
    QCOMPARE(ended.size(), 1);
    QCOMPARE(run.state(), QProcess::NotRunning);
}

void ToolRunTest::launches_data()
{
    captures_data();
}

void ToolRunTest::launches()
{
    QFETCH(QStringList, behaviour);
    QFETCH(QByteArray, printed);
    ActivityLog log;
    ToolRun run(misbehave, behaviour, &log);
    run.setProcessChannelMode(QProcess::MergedChannels);
    QSignalSpy ended(&run, &ToolRun::ended);
    run.launch();
    QCOMPARE(ended.size(), 0);
    QVERIFY(awaitEnd(run));
    QTEST(run.end().how, "how");
    QTEST(run.end().code, "code");
    QCOMPARE(run.output(), printed);
    QTest::qWait(50);
    QCOMPARE(ended.size(), 1);
}

void ToolRunTest::couldNotStart_data()
{
    QTest::addColumn<QString>("program");
    QTest::newRow("no such program") << u"gone/ffmpeg"_s;
    QTest::newRow("no such program on the path") << u"no-such-program-anywhere"_s;
    QTest::newRow("no name") << QString();
    QTest::newRow("a folder") << u"folder"_s;
    QTest::newRow("a file that may not be run") << u"text"_s;
    QTest::newRow("a program without a loader") << u"script"_s;
    QTest::newRow("a link to nothing") << u"link"_s;
}

void ToolRunTest::couldNotStart()
{
    QFETCH(QString, program);
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir(u"folder"_s));
    for (const QString &name : { u"text"_s, u"script"_s }) {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("#!/no/such/loader\n");
        if (name == u"script"_s)
            QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }
    QVERIFY(QFile::link(u"/nowhere/at/all"_s, folder.filePath(u"link"_s)));
    const bool isPath = !program.isEmpty() && !program.startsWith(u"no-such"_s);
    const QString path = isPath ? folder.filePath(program) : program;

    ActivityLog log;
    ToolRun captured(path, { u"-i"_s }, &log);
    QSignalSpy capturedEnd(&captured, &ToolRun::ended);
    QCOMPARE(captured.capture(longEnough), QByteArray());
    QCOMPARE(captured.end().how, How::CouldNotStart);
    QVERIFY(!captured.end().reason.isEmpty());
    QCOMPARE(capturedEnd.size(), 1);

    ToolRun launched(path, { u"-i"_s }, &log);
    QSignalSpy launchedEnd(&launched, &ToolRun::ended);
    launched.launch();
    QCOMPARE(launchedEnd.size(), 0);
    QVERIFY(awaitEnd(launched));
    QCOMPARE(launched.end().how, How::CouldNotStart);
    QVERIFY(!launched.end().reason.isEmpty());
    QTest::qWait(50);
    QCOMPARE(launchedEnd.size(), 1);

    QCOMPARE(log.size(), 2);
    for (qsizetype i = 0; i < 2; ++i) {
        QVERIFY(log.at(i).troubled);
        QVERIFY2(log.at(i).outcome.startsWith(u"could not be started: "_s), qPrintable(log.at(i).outcome));
    }
}

void ToolRunTest::endsWhatGivesNoAnswer_data()
{
    QTest::addColumn<QStringList>("behaviour");
    QTest::addColumn<QByteArray>("beginning");

    const auto row = [](const char *name, const QString &behaviour, const QByteArray &beginning) {
        QTest::newRow(name) << behaviour.split(u' ') << beginning;
    };
    row("hangs", u"out one , hang"_s, "one\n");
    row("hangs without a word", u"hang"_s, "");
    row("pays no heed to being asked", u"ignore-term , out one , hang"_s, "one\n");
    row("takes its time to end", u"slow-term 30000 , out one , hang"_s, "one\n");
    row("prints without end", u"flood"_s, "xxxxxxxx");
    row("prints without end and pays no heed", u"ignore-term , flood"_s, "xxxxxxxx");
    row("prints errors without end", u"flood-err"_s, "xxxxxxxx");
}

void ToolRunTest::endsWhatGivesNoAnswer()
{
    QFETCH(QStringList, behaviour);
    QFETCH(QByteArray, beginning);
    ActivityLog log;
    ToolRun run(misbehave, behaviour, &log);
    qint64 process = 0;
    connect(&run, &QProcess::started, this, [&run, &process] { process = run.processId(); });
    const QByteArray printed = run.capture(1500);
    QVERIFY(printed.startsWith(beginning));
    QCOMPARE(run.end().how, How::EndedByUs);
    QCOMPARE(run.state(), QProcess::NotRunning);
    QVERIFY(process > 0);
    QVERIFY(isGone(process));
    QVERIFY(log.at(0).troubled);
    QCOMPARE(log.at(0).outcome, run.end().text());
}

void ToolRunTest::hearsTheLastWords()
{
    ActivityLog log;
    ToolRun run(u"/bin/sh"_s,
        { u"-c"_s, u"trap 'echo cleaned up; exit 0' TERM; echo one; while :; do sleep 0.05; done"_s }, &log);
    QCOMPARE(run.capture(1500), QByteArray("one\ncleaned up\n"));
    QCOMPARE(run.end().how, How::EndedByUs);
    QCOMPARE(run.output(), QByteArray("one\ncleaned up\n"));
}

void ToolRunTest::waitsForTheEndOfTheOutputOnly()
{
    ActivityLog log;
    {
        ToolRun run(misbehave, { u"out"_s, u"one"_s, u","_s, u"close-hang"_s }, &log);
        QCOMPARE(run.capture(longEnough), QByteArray("one\n"));
        QVERIFY(!run.hasEnded());
        QCOMPARE(run.state(), QProcess::Running);
        QCOMPARE(log.at(0).outcome, QString());
    }
    QCOMPARE(log.at(0).outcome, runner::ToolEnd().text());
}

void ToolRunTest::passesArgumentsAsTheyAre()
{
    const QStringList arguments{ u"%s|"_s, u"a b"_s, {}, u"'\"$HOME\\*"_s, u"line\nend"_s, u"-n"_s,
        u"Größe 光"_s, QString(255, u'n') };
    ActivityLog log;
    ToolRun run(u"/usr/bin/printf"_s, arguments, &log);
    QCOMPARE(QString::fromUtf8(run.capture(longEnough)), arguments.mid(1).join(u'|') + u'|');
    QCOMPARE(log.at(0).command, QStringList(u"/usr/bin/printf"_s) + arguments);
}

void ToolRunTest::makesFilesForReaders_data()
{
    QTest::addColumn<bool>("ownerOnly");
    QTest::newRow("as a person's files are") << false;
    QTest::newRow("for its owner only") << true;
}

void ToolRunTest::makesFilesForReaders()
{
    QFETCH(bool, ownerOnly);
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"track.wav"_s);
    const mode_t before = ::umask(S_IWGRP | S_IWOTH);
    ActivityLog log;
    ToolRun run(misbehave, { u"touch"_s, file }, &log);
    if (ownerOnly)
        run.makeForOwnerOnly();
    run.launch();
    QVERIFY(awaitEnd(run));
    ::umask(before);
    const auto others = QFile::ReadGroup | QFile::ReadOther;
    QCOMPARE(QFile::permissions(file) & others, ownerOnly ? QFile::Permissions() : others);
}

void ToolRunTest::handsItsEnvironmentOn()
{
    const auto variables = [](const QByteArray &printed) {
        QList<QByteArray> lines = printed.split('\n');
        lines.removeIf([](const QByteArray &line) { return line.isEmpty() || line.startsWith("_="); });
        std::sort(lines.begin(), lines.end());
        return lines;
    };
    qputenv("CORVALIS_TEST_OF_MANY_WORDS", "a b=c");
    QList<QByteArray> ours;
    for (char **variable = environ; *variable; ++variable)
        ours.append(*variable);
    ActivityLog log;
    ToolRun run(u"/usr/bin/env"_s, {}, &log);
    QCOMPARE(variables(run.capture(longEnough)), variables(ours.join('\n')));
    qunsetenv("CORVALIS_TEST_OF_MANY_WORDS");
}

void ToolRunTest::capturesBothChannelsInOrder()
{
    ActivityLog log;
    ToolRun run(misbehave, u"out 1 , err 2 , out 3 , err 4"_s.split(u' '), &log);
    QCOMPARE(run.capture(longEnough), QByteArray("1\n2\n3\n4\n"));
    QCOMPARE(run.output(), QByteArray("1\n2\n3\n4\n"));
}

void ToolRunTest::keepsChannelsApart()
{
    ActivityLog log;
    ToolRun run(misbehave, u"out 1 , err 2 , sleep 100 , out 3 , err 4"_s.split(u' '), &log);
    QByteArray out;
    QByteArray err;
    connect(
        &run, &QProcess::readyReadStandardOutput, this, [&] { out += run.take(QProcess::StandardOutput); });
    connect(&run, &QProcess::readyReadStandardError, this, [&] { err += run.take(QProcess::StandardError); });
    run.launch();
    QVERIFY(awaitEnd(run));
    QCOMPARE(out, QByteArray("1\n3\n"));
    QCOMPARE(err, QByteArray("2\n4\n"));
    QCOMPARE(run.output().size(), 8);
}

void ToolRunTest::handsOutOutputAsItComes()
{
    const QTemporaryDir folder;
    const QString go = folder.filePath(u"go"_s);
    ActivityLog log;
    ToolRun run(misbehave,
        { u"cr-progress"_s, u"2"_s, u"5"_s, u"0"_s, u","_s, u"wait-for"_s, go, u","_s, u"err"_s, u"end"_s },
        &log);
    QByteArray err;
    connect(&run, &QProcess::readyReadStandardError, this, [&] { err += run.take(QProcess::StandardError); });
    run.launch();
    // The child waits for us, so these lines arrive while it runs or never.
    QVERIFY(QTest::qWaitFor([&err] { return err.contains("time=00:00:10"); }, longEnough));
    QVERIFY(!run.hasEnded());
    QCOMPARE(log.at(0).output, err);
    QFile file(go);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(awaitEnd(run));
    QVERIFY(err.endsWith("end\n"));
}

void ToolRunTest::takesFloods_data()
{
    QTest::addColumn<QStringList>("behaviour");
    QTest::addColumn<qint64>("bytes");
    QTest::newRow("to its output") << u"flood 20000000"_s.split(u' ') << qint64(20'000'000);
    QTest::newRow("to its errors") << u"flood-err 20000000"_s.split(u' ') << qint64(20'000'000);
    QTest::newRow("to both") << u"flood-both 10000000"_s.split(u' ') << qint64(20'000'000);
}

void ToolRunTest::takesFloods()
{
    QFETCH(QStringList, behaviour);
    QFETCH(qint64, bytes);
    ActivityLog log;
    ToolRun captured(misbehave, behaviour, &log);
    QCOMPARE(captured.capture(longEnough).size(), bytes);
    QCOMPARE(captured.end().how, How::Ended);

    ToolRun launched(misbehave, behaviour, &log);
    launched.launch();
    QVERIFY(awaitEnd(launched));
    for (qsizetype i = 0; i < 2; ++i) {
        QCOMPARE(log.at(i).output.size(), ActivityLog::keptOutput);
        QCOMPARE(log.at(i).leftOut, bytes - ActivityLog::keptOutput);
    }
}

void ToolRunTest::dropsWhatIsMoreThanItsShare()
{
    constexpr qint64 share = 64 * 1024 * 1024;
    ActivityLog log;
    ToolRun run(
        misbehave, { u"flood"_s, QString::number(share + 5'000'000), u","_s, u"exit"_s, u"3"_s }, &log);
    QCOMPARE(run.capture(longEnough).size(), share);
    QCOMPARE(run.end().how, How::Ended);
    QCOMPARE(run.end().code, 3);
}

void ToolRunTest::doesNotWaitForGrandchildren()
{
    ActivityLog log;
    ToolRun run(misbehave, u"grandchild 0 , out done"_s.split(u' '), &log);
    const QByteArray printed = run.capture(longEnough);
    const pid_t grandchild = printed.split('\n').first().split(' ').last().toInt();
    QVERIFY(grandchild > 0);
    ::kill(grandchild, SIGKILL);
    QCOMPARE(run.end().how, How::Ended);
    QVERIFY(printed.endsWith("done\n"));
}

void ToolRunTest::endsTheChildWithItself_data()
{
    QTest::addColumn<QStringList>("behaviour");
    QTest::newRow("hangs") << u"out ready , hang"_s.split(u' ');
    QTest::newRow("pays no heed to being asked") << u"ignore-term , out ready , hang"_s.split(u' ');
    QTest::newRow("prints without end") << u"out ready , flood"_s.split(u' ');
}

void ToolRunTest::endsTheChildWithItself()
{
    QFETCH(QStringList, behaviour);
    ActivityLog log;
    auto run = std::make_unique<ToolRun>(misbehave, behaviour, &log);
    int ends = 0;
    connect(run.get(), &ToolRun::ended, this, [&ends] { ++ends; });
    run->launch();
    QVERIFY(QTest::qWaitFor([&run] { return run->bytesAvailable() > 0; }, longEnough));
    const qint64 process = run->processId();
    run.reset();
    QVERIFY(isGone(process));
    QCOMPARE(ends, 0);
}

void ToolRunTest::endsOnlyOnce()
{
    ActivityLog log;
    ToolRun run(misbehave, u"out ready , hang"_s.split(u' '), &log);
    QSignalSpy ended(&run, &ToolRun::ended);
    run.launch();
    QVERIFY(QTest::qWaitFor([&run] { return run.bytesAvailable() > 0; }, longEnough));
    run.kill();
    run.terminate();
    QVERIFY(awaitEnd(run));
    QTest::qWait(50);
    QCOMPARE(ended.size(), 1);
    QCOMPARE(run.end().how, How::Crashed);
    QCOMPARE(run.end().code, SIGKILL);
    QCOMPARE(run.output(), QByteArray("ready\n"));
}

void ToolRunTest::isWrittenIntoTheLog()
{
    ActivityLog log;
    const QStringList behaviour = u"out one , err two , exit 2"_s.split(u' ');
    ToolRun run(misbehave, behaviour, &log);
    QCOMPARE(log.size(), 0);
    run.launch();
    QCOMPARE(log.size(), 1);
    QVERIFY(log.at(0).outcome.isEmpty());
    QVERIFY(awaitEnd(run));
    const Activity activity = log.at(0);
    QCOMPARE(activity.command, QStringList(misbehave) + behaviour);
    QCOMPARE(activity.outcome, u"ended with status 2"_s);
    QVERIFY(activity.troubled);
    QCOMPARE(activity.output, QByteArray("one\ntwo\n"));
    QCOMPARE(log.trouble(0), u"misbehave: two"_s);
}

void ToolRunTest::runsInSeveralThreads()
{
    constexpr int threads = 4;
    constexpr int runs = 8;
    ActivityLog log;
    std::atomic<int> right = 0;
    std::vector<std::jthread> workers;
    for (int thread = 0; thread < threads; ++thread) {
        workers.emplace_back([&log, &right, thread] {
            for (int i = 0; i < runs; ++i) {
                const QString word = u"%1-%2"_s.arg(thread).arg(i);
                ToolRun run(misbehave, { u"out"_s, word, u","_s, u"exit"_s, QString::number(i) }, &log);
                const QByteArray printed = run.capture(longEnough);
                if (printed == word.toUtf8() + '\n' && run.end().how == How::Ended && run.end().code == i)
                    ++right;
            }
        });
    }
    for (std::jthread &worker : workers)
        worker.join();
    QCOMPARE(right.load(), threads * runs);
    QCOMPARE(log.size(), threads * runs);
    for (qsizetype i = 0; i < log.size(); ++i)
        QCOMPARE(log.at(i).output, log.at(i).command.at(2).toUtf8() + '\n');
}

void ToolRunTest::launchesInSeveralThreads()
{
    constexpr int threads = 4;
    ActivityLog log;
    std::atomic<int> right = 0;
    std::vector<std::unique_ptr<QThread>> workers;
    for (int thread = 0; thread < threads; ++thread) {
        workers.emplace_back(QThread::create([&log, &right, thread] {
            QEventLoop loop;
            ToolRun run(misbehave,
                { u"flood-both"_s, u"500000"_s, u","_s, u"exit"_s, QString::number(thread) }, &log);
            QObject::connect(&run, &ToolRun::ended, &loop, &QEventLoop::quit);
            run.launch();
            loop.exec();
            if (run.end().how == How::Ended && run.end().code == thread && run.output().size() == 1'000'000)
                ++right;
        }));
        workers.back()->start();
    }
    for (const auto &worker : workers)
        QVERIFY(worker->wait(longEnough));
    QCOMPARE(right.load(), threads);
}

QTEST_GUILESS_MAIN(ToolRunTest)
#include "ToolRunTest.moc"
