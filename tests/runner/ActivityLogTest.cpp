#include "runner/ActivityLog.h"

#include <QProcess>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <atomic>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

class ActivityLogTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void quotesForAShell_data();
    void quotesForAShell();
    void followsARun();
    void keepsSoMuchOutput_data();
    void keepsSoMuchOutput();
    void tellsTroubles_data();
    void tellsTroubles();
    void tellsTroublesByWhatWasWorkedOn();
    void tellsNotes();
    void writesARunAsText_data();
    void writesARunAsText();
    void writesAllAsText();
    void takesEntriesFromAllThreads();
};

void ActivityLogTest::quotesForAShell_data()
{
    QTest::addColumn<QStringList>("command");
    QTest::addColumn<QString>("line");

    const auto row = [](const char *name, const QStringList &arguments, const QString &line) {
        QTest::newRow(name) << QStringList(u"printf"_s) + arguments << (u"printf"_s + line);
    };
    row("nothing to quote", { u"burn"_s, u"/home/me/Disc_1"_s, u"-drive"_s, u"1"_s },
        u" burn /home/me/Disc_1 -drive 1"_s);
    row("an empty word", { {} }, u" ''"_s);
    row("a blank", { u"My Music"_s }, u" 'My Music'"_s);
    row("single quotes", { u"it's 'it'"_s }, u" 'it'\\''s '\\''it'\\'''"_s);
    row("double quotes", { u"a\"b"_s }, u" 'a\"b'"_s);
    row("a line end", { u"a\nb"_s }, u" 'a\nb'"_s);
    row("a line end at the end", { u"a\n"_s }, u" 'a\n'"_s);
    row("a dollar sign, a star, a tilde", { u"$HOME"_s, u"*"_s, u"~"_s }, u" '$HOME' '*' '~'"_s);
    row("a backslash", { u"a\\nb"_s }, u" 'a\\nb'"_s);
    row("percent signs", { u"100%"_s }, u" 100%"_s);
    row("letters that are not ASCII", { u"Größe"_s }, u" 'Größe'"_s);
}

/// A shell must take the line for the very words that were run.
void ActivityLogTest::quotesForAShell()
{
    QFETCH(QStringList, command);
    Activity activity;
    activity.command = command;
    QTEST(activity.commandLine(), "line");

    QStringList words = command.mid(1);
    QProcess shell;
    shell.start(u"/bin/sh"_s, { u"-c"_s, u"printf '<%s>' "_s + activity.commandLine().mid(6) });
    QVERIFY(shell.waitForFinished());
    QCOMPARE(QString::fromUtf8(shell.readAllStandardOutput()), u"<"_s + words.join(u"><"_s) + u">"_s);
}

void ActivityLogTest::followsARun()
{
    ActivityLog log;
    QSignalSpy changed(&log, &ActivityLog::changed);
    QCOMPARE(log.size(), 0);
    const QDateTime before = QDateTime::currentDateTime();
    const qsizetype first = log.begin(u"drutil"_s, { u"list"_s });
    const qsizetype second = log.begin(u"ffmpeg"_s, { u"-i"_s, u"a b"_s });
    QCOMPARE(changed.size(), 2);
    QCOMPARE(first, 0);
    QCOMPARE(second, 1);
    QVERIFY(log.at(first).outcome.isEmpty());
    QVERIFY(log.at(first).started >= before);

    log.append(second, "half a li");
    log.append(first, "other");
    log.append(second, "ne\n");
    log.end(second, u"ended with status 1"_s, true);
    QCOMPARE(changed.size(), 6);
    QCOMPARE(log.size(), 2);
    QCOMPARE(log.at(second).command, (QStringList{ u"ffmpeg"_s, u"-i"_s, u"a b"_s }));
    QCOMPARE(log.at(second).output, QByteArray("half a line\n"));
    QCOMPARE(log.at(second).outcome, u"ended with status 1"_s);
    QVERIFY(log.at(second).troubled);
    QCOMPARE(log.at(first).output, QByteArray("other"));
    QVERIFY(!log.at(first).troubled);

    log.note(u"Not copied"_s, u"/a: Permission denied"_s);
    QCOMPARE(changed.size(), 7);
    QVERIFY(log.at(2).command.isEmpty());
    QVERIFY(log.at(2).troubled);
}

void ActivityLogTest::keepsSoMuchOutput_data()
{
    QTest::addColumn<QList<qint64>>("pieces");
    QTest::addColumn<qint64>("kept");
    QTest::addColumn<qint64>("leftOut");

    constexpr qint64 most = ActivityLog::keptOutput;
    QTest::newRow("nothing") << QList<qint64>{ 0 } << qint64(0) << qint64(0);
    QTest::newRow("a little") << QList<qint64>{ 10, 20 } << qint64(30) << qint64(0);
    QTest::newRow("all that is kept") << QList<qint64>{ most } << most << qint64(0);
    QTest::newRow("a byte more") << QList<qint64>{ most, 1 } << most << qint64(1);
    QTest::newRow("a piece across the end") << QList<qint64>{ most - 5, 12, 100 } << most << qint64(107);
    QTest::newRow("too much at once") << QList<qint64>{ 3 * most } << most << 2 * most;
}

void ActivityLogTest::keepsSoMuchOutput()
{
    QFETCH(QList<qint64>, pieces);
    ActivityLog log;
    const qsizetype run = log.begin(u"tool"_s, {});
    for (const qint64 piece : std::as_const(pieces))
        log.append(run, QByteArray(piece, 'x'));
    QTEST(qint64(log.at(run).output.size()), "kept");
    QTEST(log.at(run).leftOut, "leftOut");
}

void ActivityLogTest::tellsTroubles_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QByteArray>("output");
    QTest::addColumn<bool>("spoke");
    QTest::addColumn<QString>("trouble");

    const auto row = [](const char *name, const QString &program, const QByteArray &output, bool spoke,
                         const QString &trouble) {
        QTest::newRow(name) << program << output << spoke << trouble;
    };
    row("killed", u"/usr/bin/drutil"_s, "Writing: 13.2 %, 125x\n", false, u"drutil: how it ended"_s);
    row("crashed after a word", u"/usr/bin/drutil"_s, "all is well\n", false, u"drutil: how it ended"_s);
    row("nothing but how far a disc came", u"/usr/bin/drutil"_s, "Preparing\nWriting: 13.2 %, 125x\n", true,
        u"drutil: how it ended"_s);
    row("a reason before how far it came", u"/usr/bin/drutil"_s, "no room\nClosing the disc\n", true,
        u"drutil: no room"_s);
    row("its last line", u"/usr/bin/drutil"_s, "one\ntwo\ndrutil: no disc\n", true, u"drutil: no disc"_s);
    row("its last line without an end", u"ffmpeg"_s, "one\ntwo", true, u"ffmpeg: two"_s);
    row("its last line after bare returns", u"ffmpeg"_s, "10 %\r20 %\rfailed\r\n", true, u"ffmpeg: failed"_s);
    row("empty lines at the end", u"ffmpeg"_s, "failed\n\n  \n", true, u"ffmpeg: failed"_s);
    row("it said nothing", u"/usr/bin/drutil"_s, "", true, u"drutil: how it ended"_s);
    row("it said only line ends", u"/usr/bin/drutil"_s, "\n\r\n", true, u"drutil: how it ended"_s);
    row("a very long line", u"ffmpeg"_s, QByteArray(5000, 'x'), true, u"ffmpeg: "_s + QString(300, u'x'));
    row("a reason before how far it came and that it failed", u"ffmpeg"_s,
        "Error writing trailer: No space left on device\nsize=      64kB time=00:00:02.97 bitrate= "
        "176.0kbits/s\r"
        "video:0kB audio:257kB subtitle:0kB\nConversion failed!\n",
        true, u"ffmpeg: Error writing trailer: No space left on device"_s);
    row("nothing but how far it came", u"ffmpeg"_s, "frame=  10 fps=0.0\rConversion failed!\n", true,
        u"ffmpeg: how it ended"_s);
    row("a word that only begins so", u"ffmpeg"_s, "size= of the disc is not known\n", true,
        u"ffmpeg: size= of the disc is not known"_s);
    row("not UTF-8", u"ffmpeg"_s, "caf\xe9", true, u"ffmpeg: caf\ufffd"_s);
}

void ActivityLogTest::tellsTroubles()
{
    QFETCH(QString, program);
    QFETCH(QByteArray, output);
    QFETCH(bool, spoke);
    ActivityLog log;
    const qsizetype run = log.begin(program, { u"burn"_s });
    log.append(run, output);
    log.end(run, u"how it ended"_s, true, spoke);
    QTEST(log.trouble(run), "trouble");
}

void ActivityLogTest::tellsTroublesByWhatWasWorkedOn()
{
    ActivityLog log;
    const qsizetype run = log.begin(u"/usr/bin/ffmpeg"_s, { u"-i"_s, u"/m/song.mp3"_s }, u"song.mp3"_s);
    log.append(run, "no music\n");
    log.end(run, u"ended with status 1"_s, true);
    QCOMPARE(log.trouble(run), u"song.mp3: no music"_s);
    QVERIFY(log.text().contains(u"/usr/bin/ffmpeg -i /m/song.mp3"_s));
    // A tool that names it itself is enough.
    log.append(run, "/m/song.mp3: no such file\n");
    QCOMPARE(log.trouble(run), u"/m/song.mp3: no such file"_s);
}

void ActivityLogTest::tellsNotes()
{
    ActivityLog log;
    log.note(u"Not copied"_s, u"/music/a: Permission denied"_s);
    QCOMPARE(log.trouble(0), u"Not copied: /music/a: Permission denied"_s);
}

void ActivityLogTest::writesARunAsText_data()
{
    QTest::addColumn<Activity>("activity");
    QTest::addColumn<QString>("text");

    const QDateTime started(QDate(2024, 2, 29), QTime(13, 5, 9));
    const QString time = u"2024-02-29 13:05:09  "_s;
    const QStringList command{ u"drutil"_s, u"burn"_s, u"My Disc"_s };
    const QString line = time + u"drutil burn 'My Disc'\n    "_s;
    QTest::newRow("is running") << Activity{ started, command, {}, {}, false, {}, 0 }
                                << line + u"is running\n"_s;
    QTest::newRow("ended") << Activity{ started, command, {}, u"ended with status 3"_s, true, "no disc\n", 0 }
                           << line + u"ended with status 3\nno disc\n"_s;
    QTest::newRow("output without a line end")
        << Activity{ started, command, {}, u"ended"_s, false, "50 %", 0 } << line + u"ended\n50 %\n"_s;
    QTest::newRow("output that was not kept") << Activity{ started, command, {}, u"ended"_s, false, "x",
        7 } << line + u"ended\nx\n(7 more bytes of output are not kept)\n"_s;
    QTest::newRow("a note") << Activity{ started, {}, {}, u"Not copied"_s, true, "/a: gone", 0 }
                            << time + u"Not copied\n/a: gone\n"_s;
    QTest::newRow("output that is not UTF-8")
        << Activity{ started, {}, {}, u"Note"_s, true, "\xff\xc3", 0 } << time + u"Note\n\ufffd\ufffd\n"_s;
}

void ActivityLogTest::writesARunAsText()
{
    QFETCH(Activity, activity);
    QTEST(ActivityLog::text(activity), "text");
}

void ActivityLogTest::writesAllAsText()
{
    ActivityLog log;
    QCOMPARE(log.text(), QString());
    log.end(log.begin(u"first"_s, {}), u"ended"_s, false);
    log.note(u"second"_s, u"third"_s);
    static const QRegularExpression form(u"^\\S+ \\S+  first\n    ended\n\n\\S+ \\S+  second\nthird\n\n$"_s);
    QVERIFY2(form.match(log.text()).hasMatch(), qPrintable(log.text()));
}

void ActivityLogTest::takesEntriesFromAllThreads()
{
    constexpr int threads = 6;
    constexpr int runs = 200;
    ActivityLog log;
    std::atomic<int> changes = 0;
    connect(
        &log, &ActivityLog::changed, &log, [&changes] { ++changes; }, Qt::DirectConnection);
    std::vector<std::jthread> writers;
    for (int thread = 0; thread < threads; ++thread) {
        writers.emplace_back([&log, thread] {
            for (int i = 0; i < runs; ++i) {
                const QByteArray mine = QByteArray::number(thread) + ' ' + QByteArray::number(i);
                const qsizetype run = log.begin(u"tool"_s, { QString::fromLatin1(mine) });
                log.append(run, mine);
                log.append(run, "\n");
                log.end(run, u"ended"_s, i % 10 == 0);
                if (i % 50 == 0)
                    log.note(u"note"_s, QString::fromLatin1(mine));
            }
        });
    }
    // Whoever looks meanwhile sees whole entries.
    for (int look = 0; look < 50; ++look) {
        const qsizetype before = log.size();
        for (qsizetype i = 0; i < before; i += 97) {
            const QString trouble = log.trouble(i);
            QVERIFY2(trouble.startsWith(u"tool: "_s) || trouble.startsWith(u"note: "_s), qPrintable(trouble));
        }
        const QString text = log.text();
        QVERIFY(text.count(u"  tool '"_s) + text.count(u"  note\n"_s) >= before);
    }
    for (std::jthread &writer : writers)
        writer.join();

    constexpr int notes = threads * runs / 50;
    QCOMPARE(log.size(), threads * runs + notes);
    QCOMPARE(changes.load(), 4 * threads * runs + notes);
    for (qsizetype i = 0; i < log.size();
         ++i) { // NOLINT(modernize-loop-convert): its begin() and end() are those of a run
        const Activity activity = log.at(i);
        if (!activity.command.isEmpty())
            QCOMPARE(activity.output, activity.command.at(1).toLatin1() + '\n');
    }
}

QTEST_GUILESS_MAIN(ActivityLogTest)
#include "ActivityLogTest.moc"
