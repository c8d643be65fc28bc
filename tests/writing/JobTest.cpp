// A job by itself, with tools that behave and misbehave: what it tells meanwhile, how it is stopped, and its one end.
#include "writing/Job.h"

#include "runner/ActivityLog.h"
#include "writing/FolderClaim.h"

#include <QElapsedTimer>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <cerrno>
#include <csignal>
#include <functional>

using namespace Qt::StringLiterals;
using runner::ToolRun;
using writing::Job;
using writing::Outcome;
using writing::Progress;
using writing::Stage;
using writing::Work;
using How = Outcome::How;
using Result = Work::Result;

namespace {

const QString misbehave = QStringLiteral(MISBEHAVE);

const QString asItWas = u"The disc is as it was."_s;
const QString lost = u"The disc is incomplete and cannot be used any more."_s;
const QString toErase = u"The disc is incomplete: erase it before you use it again."_s;
const QString notCompared = u"The disc is written, but was not compared."_s;
const QString eraseAgain = u"The disc has to be erased again before it can be used."_s;
const QString noImage = u"There is no usable image."_s;

/// What a tool does: words of misbehave, steps separated by commas.
QStringList doing(const QString &steps)
{
    QStringList words;
    for (const QString &step : steps.split(u';')) {
        if (!words.isEmpty())
            words.append(u","_s);
        const QString word = step.trimmed().section(u' ', 0, 0);
        words.append(word);
        if (const QString rest = step.trimmed().section(u' ', 1); !rest.isEmpty())
            words.append(rest);
    }
    return words;
}

/// A job with its log; its tools are watched as the controller has them watched.
class Bench {
public:
    ActivityLog log;
    Job job;
    QList<Progress> told;
    QStringList words; ///< all different ones, in order

    explicit Bench(const Work &work, const writing::EndingPatience &patience = {})
        : job(work, patience)
    {
        QObject::connect(&job, &Job::progressed, &job, [this](const Progress &progress) {
            told.append(progress);
            if (!progress.words.isEmpty() && !words.endsWith(progress.words))
                words.append(progress.words);
        });
    }

    ToolRun *start(Stage stage, const QString &program, const QStringList &arguments)
    {
        auto *run = new ToolRun(program, arguments, &log, &job);
        run->setProcessChannelMode(QProcess::MergedChannels);
        job.watch(run, stage, true);
        QObject::connect(
            run, &QProcess::readyReadStandardOutput, run, [run] { run->take(QProcess::StandardOutput); });
        run->launch();
        return run;
    }

    /// Runs a tool to its end; false when it does not come.
    bool runs(Stage stage, const QString &steps) { return ended(start(stage, misbehave, doing(steps))); }

    static bool ended(const ToolRun *run)
    {
        return QTest::qWaitFor([run] { return run->hasEnded(); }, 60'000);
    }
    bool says(const QString &line)
    {
        return QTest::qWaitFor([&] { return words.contains(line); }, 60'000);
    }
};

Work disc(bool rewritable = false)
{
    Work work;
    work.name = u"MP3 CD"_s;
    work.compared = true;
    work.rewritable = rewritable;
    return work;
}

Work of(Result result)
{
    Work work;
    work.result = result;
    work.name = u"Work"_s;
    return work;
}

} // namespace

class JobTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void comesToOneOfFourEnds_data();
    void comesToOneOfFourEnds();
    void toolThatIsNotThere();
    void imageThatFailedIsToldBeforeTheDisc();
    void stoppedAfterATroubleTellsTheDisc();
    void notesAreLeftOut();
    void notesOfWhatIsThereDoNotSpoilTheEnd();
    void changesAreNotLeftOut();
    void remarkMakesItIncomplete();
    void neverShowsItsWorkingFolder();
    void tellsWhatWasMade();
    void tellsHowFarItIs();
    void itemsHaveTheirWeight();
    void listensToTheNewestToolOnly();
    void costOfStopping_data();
    void costOfStopping();
    void isStopped_data();
    void isStopped();
    void stopsAtOnce();
    void stopsOnce();
    void killsWhatDoesNotEnd_data();
    void killsWhatDoesNotEnd();
    void endsInSpiteOfStop();
    void givesItsFolderBack();
};

void JobTest::comesToOneOfFourEnds_data()
{
    QTest::addColumn<Work>("work");
    QTest::addColumn<Stage>("stage");
    QTest::addColumn<QString>("steps");
    QTest::addColumn<How>("how");
    QTest::addColumn<QString>("reason");

    const auto row = [](const char *name, const Work &work, Stage stage, const QString &steps, How how,
                         const QString &reason) {
        QTest::newRow(name) << work << stage << steps << how << reason;
    };
    const auto written = [&row](const char *name, const QString &steps, How how, const QString &reason) {
        row(name, disc(), Stage::Writing, steps, how, reason);
    };
    const QString crashed = u"misbehave crashed (signal 11). "_s;

    written(
        "done", u"out Preparing; out Writing: 99.0 %; out Done: the disc is written."_s, How::Complete, {});
    written("refused", u"err The disc is too small by 12 MB.; exit 1"_s, How::NotDone,
        u"The disc is too small by 12 MB."_s);
    written("the last sentence is the reason", u"out Reading; err The drive is gone.; exit 1"_s, How::NotDone,
        u"The drive is gone."_s);
    written("a reason without a line end", u"err-raw The drive is gone.; exit 1"_s, How::NotDone,
        u"The drive is gone."_s);
    written("progress after the reason", u"err The drive is gone.; out Writing: 13.2 %, 125x; exit 1"_s,
        How::NotDone, u"The drive is gone."_s);
    written("a note after the reason", u"err The drive is gone.; out note: a was left out.; exit 1"_s,
        How::NotDone, u"The drive is gone."_s);
    written("nothing but progress", u"out Preparing; out Writing: 13.2 %, 125x; exit 4"_s, How::NotDone,
        u"misbehave ended with status 4. "_s + lost);
    written("nothing at all", u"out Preparing; exit 4"_s, How::NotDone,
        u"misbehave ended with status 4. "_s + asItWas);
    written("crashed before writing", u"out Preparing; crash"_s, How::NotDone, crashed + asItWas);
    written("crashed while writing", u"out Preparing; out Writing: 13.2 %, 125x; crash"_s, How::NotDone,
        crashed + lost);
    written("crashed while closing", u"out Writing: 99.0 %; out Closing the disc; crash"_s, How::NotDone,
        crashed + lost);
    written("crashed while comparing", u"out Writing: 99.0 %; out Verifying: 1.0 %; crash"_s, How::NotDone,
        crashed + notCompared);
    written("crashed after words", u"out Writing: 13.2 %; out All is well.; crash"_s, How::NotDone,
        crashed + lost);
    row("crashed on a rewritable disc", disc(true), Stage::Writing, u"out Writing: 13.2 %; crash"_s,
        How::NotDone, crashed + toErase);
    row("erased", of(Result::BlankDisc), Stage::Erasing, u"out Erasing: 10.0 %"_s, How::Complete, {});
    row("crashed while erasing", of(Result::BlankDisc), Stage::Erasing, u"out Erasing: 10.0 %; crash"_s,
        How::NotDone, crashed + eraseAgain);
    row("an image", of(Result::Image), Stage::Imaging, u"out Writing: 10.0 %"_s, How::Complete, {});
    row("no image", of(Result::Image), Stage::Imaging, u"err text.mp3: Invalid argument; exit 1"_s,
        How::NotDone, u"text.mp3: Invalid argument"_s);
    row("crashed while imaging", of(Result::Image), Stage::Imaging, u"out Writing: 10.0 %; crash"_s,
        How::NotDone, crashed + noImage);
}

void JobTest::comesToOneOfFourEnds()
{
    QFETCH(Work, work);
    QFETCH(Stage, stage);
    QFETCH(QString, steps);
    QFETCH(How, how);
    Bench bench(work);
    QSignalSpy ended(&bench.job, &Job::ended);
    QVERIFY(bench.runs(stage, steps));
    const Outcome outcome = bench.job.end();
    QCOMPARE(outcome.how, how);
    QTEST(outcome.reason, "reason");
    QCOMPARE(outcome.heading, Outcome::headingOf(how, work.result));
    QCOMPARE(outcome.run, how == How::Complete ? -1 : 0);
    QCOMPARE(outcome.made.isEmpty(), how == How::NotDone);
    QCOMPARE(ended.count(), 1);
}

void JobTest::toolThatIsNotThere()
{
    Bench bench(disc());
    QVERIFY(Bench::ended(bench.start(Stage::Writing, u"/nowhere/drutil"_s, {})));
    const Outcome outcome = bench.job.end();
    QCOMPARE(outcome.how, How::NotDone);
    QVERIFY2(outcome.reason.startsWith(u"drutil could not be started: "_s), qPrintable(outcome.reason));
    QVERIFY2(outcome.reason.endsWith(asItWas), qPrintable(outcome.reason));
}

void JobTest::imageThatFailedIsToldBeforeTheDisc()
{
    Bench bench(disc());
    QVERIFY(bench.runs(Stage::Imaging, u"err The folder cannot be read.; exit 1"_s));
    QVERIFY(bench.runs(Stage::Writing, u"err There is no image.; exit 1"_s));
    const Outcome outcome = bench.job.end();
    QCOMPARE(outcome.how, How::NotDone);
    QCOMPARE(outcome.reason, u"The folder cannot be read."_s);
    QCOMPARE(outcome.run, 0);
}

void JobTest::stoppedAfterATroubleTellsTheDisc()
{
    Bench bench(disc());
    QVERIFY(bench.runs(Stage::Imaging, u"err The folder cannot be read.; exit 1"_s));
    const ToolRun *run = bench.start(Stage::Writing, misbehave, doing(u"out Writing: 13.2 %; hang"_s));
    QVERIFY(bench.says(u"Writing: 13.2 %"_s));
    bench.job.stop();
    QVERIFY(Bench::ended(run));
    const Outcome outcome = bench.job.end();
    QCOMPARE(outcome.how, How::Stopped);
    QCOMPARE(outcome.reason, lost);
}

void JobTest::notesAreLeftOut()
{
    Bench bench(disc());
    QVERIFY(bench.runs(Stage::Writing,
        u"out Preparing; out note: a link was left out.; out-raw note:  two  left out\\r\\nnote: left out at the end"_s));
    const Outcome outcome = bench.job.end();
    QCOMPARE(outcome.how, How::Incomplete);
    QCOMPARE(outcome.exitStatus(), 3);
    QCOMPARE(outcome.leftOut,
        (QStringList{ u"a link was left out."_s, u"two left out"_s, u"left out at the end"_s }));
    QCOMPARE(outcome.reason, QString());
    QCOMPARE(outcome.run, 0);
}

void JobTest::notesOfWhatIsThereDoNotSpoilTheEnd()
{
    Bench bench(disc());
    QVERIFY(bench.runs(Stage::Writing, u"out note: The names are cut.; out Done"_s));
    const Outcome outcome = bench.job.end();
    QCOMPARE(outcome.how, How::Complete);
    QCOMPARE(outcome.exitStatus(), 0);
    QCOMPARE(outcome.leftOut, QStringList());
    QCOMPARE(outcome.changed, QStringList(u"The names are cut."_s));
    QVERIFY(outcome.lines(9).contains(u"The names are cut."_s));
}

void JobTest::changesAreNotLeftOut()
{
    Bench bench(disc());
    QVERIFY(bench.runs(Stage::Writing, u"out Preparing; out note: “a” is called “A” on the disc."_s));
    const Outcome outcome = bench.job.end();
    QCOMPARE(outcome.how, How::Complete);
    QCOMPARE(outcome.changed, QStringList(u"“a” is called “A” on the disc."_s));
    QCOMPARE(outcome.leftOut, QStringList());
}

void JobTest::remarkMakesItIncomplete()
{
    Bench bench(disc());
    bench.job.remark(u"2 files did not fit."_s);
    QVERIFY(bench.runs(Stage::Writing, u"out Preparing"_s));
    Outcome outcome = bench.job.end();
    QCOMPARE(outcome.how, How::Incomplete);
    QCOMPARE(outcome.reason, u"2 files did not fit."_s);

    Bench failed(disc());
    failed.job.remark(u"2 files did not fit."_s);
    QVERIFY(failed.runs(Stage::Writing, u"err The drive is gone.; exit 1"_s));
    outcome = failed.job.end();
    QCOMPARE(outcome.reason, u"The drive is gone. 2 files did not fit."_s);
}

void JobTest::neverShowsItsWorkingFolder()
{
    const QTemporaryDir folder;
    Work work = disc();
    work.workingFolder = folder.path();
    Bench bench(work);
    const QString in = folder.path() + u"/album/song.mp3"_s;
    bench.job.leaveOut(in + u": it cannot be read."_s);
    bench.job.leaveOut(folder.path() + u"2/other: it cannot be read."_s); // another one that begins alike
    QVERIFY(bench.runs(Stage::Writing,
        u"out Reading %1; out note: “%1” was left out.; out note: %2 was left out.; err %2.; exit 1"_s.arg(
            in, folder.path())));
    const Outcome outcome = bench.job.end();
    QCOMPARE(outcome.reason, u"the working folder."_s);
    QCOMPARE(outcome.leftOut,
        (QStringList{ u"album/song.mp3: it cannot be read."_s,
            folder.path() + u"2/other: it cannot be read."_s, u"“album/song.mp3” was left out."_s,
            u"the working folder was left out."_s }));
    QCOMPARE(bench.words.first(), u"Reading album/song.mp3"_s);
    for (const QString &words : std::as_const(bench.words))
        QVERIFY2(!words.contains(folder.path()), qPrintable(words));
}

void JobTest::tellsWhatWasMade()
{
    const QTemporaryDir recorder;
    Work work = disc();
    work.drive = u"As listed"_s;
    Bench bench(work);
    bench.job.describe(u"2 files"_s, 3'000'000);
    QVERIFY(bench.runs(Stage::Writing,
        u"out Burning in drive 1: CORVALIS Virtual Recorder (1). Its discs lie in \"%1\".; out Writing: 1.0 %"_s
            .arg(recorder.path())));
    Outcome outcome = bench.job.end();
    QCOMPARE(outcome.made, u"MP3 CD, 2 files, 2.86 MB, CORVALIS Virtual Recorder (1)"_s);
    QCOMPARE(outcome.folder, recorder.path());

    Bench unnamed(work);
    QVERIFY(unnamed.runs(Stage::Writing, u"out Writing: 1.0 %"_s));
    outcome = unnamed.job.end();
    QCOMPARE(outcome.made, u"MP3 CD, As listed"_s);
    QCOMPARE(outcome.folder, QString());

    work = of(Result::Image);
    work.name = u"Disc image"_s;
    Bench image(work);
    image.job.setImage(u"/home/me/image.iso"_s);
    QVERIFY(image.runs(Stage::Imaging, u"out Writing: 1.0 %"_s));
    outcome = image.job.end();
    QCOMPARE(outcome.made, u"Disc image, /home/me/image.iso"_s);
    QCOMPARE(outcome.folder, u"/home/me/image.iso"_s);
}

void JobTest::tellsHowFarItIs()
{
    Bench bench(disc());
    QVERIFY(bench.runs(Stage::Writing,
        u"out Preparing; out Erasing: 80.0 %; out Writing: 50.0 %, 8.1x, buffer 98 %; out Closing the disc; "
        "out Verifying: 50.0 %, 16x"_s));
    QList<double> percent;
    QStringList speeds;
    for (const Progress &progress : std::as_const(bench.told)) {
        if (!progress.words.isEmpty()) {
            percent.append(progress.percent);
            speeds.append(progress.speed);
        }
    }
    QCOMPARE(percent, (QList<double>{ -1, -1, 25, 25, 75 }));
    QCOMPARE(speeds, (QStringList{ {}, {}, u"8.1x"_s, {}, u"16x"_s }));
    bench.job.end();

    Work audio = disc();
    audio.compared = false;
    Bench alone(audio);
    QVERIFY(alone.runs(Stage::Writing, u"out Writing: 50.0 %"_s));
    QCOMPARE(alone.told.last().percent, 50.0);
}

void JobTest::itemsHaveTheirWeight()
{
    Bench bench(disc());
    bench.job.enter(Stage::Converting);
    bench.job.beginItem(u"short"_s, 1, 3, 10, 100);
    bench.job.itemProgressed(50);
    QCOMPARE(bench.told.last().percent, 5.0);
    QCOMPARE(bench.told.last().itemPercent, 50.0);
    bench.job.beginItem(u"long"_s, 2, 3, 80, 100);
    QCOMPARE(bench.told.last().percent, 10.0);
    QCOMPARE(bench.told.last().itemPercent, 0.0);
    bench.job.beginItem(u"last"_s, 3, 3, 10, 100);
    QCOMPARE(bench.told.last().percent, 90.0);
    QCOMPARE(bench.told.last().item, u"last"_s);
    QCOMPARE(bench.told.last().number, 3);
    bench.job.enter(Stage::Writing);
    QCOMPARE(bench.told.last().count, 0);
    QCOMPARE(bench.told.last().percent, -1.0);
}

void JobTest::listensToTheNewestToolOnly()
{
    const QTemporaryDir folder;
    const QString gate = folder.filePath(u"gate"_s);
    Bench bench(disc());
    bench.start(Stage::Writing, misbehave, doing(u"out first; wait-for %1; err late; exit 1"_s.arg(gate)));
    QVERIFY(bench.says(u"first"_s));
    const qint64 process = bench.job.watched()->processId();
    const ToolRun *second = bench.start(Stage::Writing, misbehave, doing(u"out Writing: 1.0 %"_s));
    QVERIFY(QFile(gate).open(QIODevice::WriteOnly));
    QVERIFY(Bench::ended(second));
    QTRY_VERIFY(::kill(static_cast<pid_t>(process), 0) != 0 && errno == ESRCH);
    QTRY_VERIFY(!bench.log.at(0).outcome.isEmpty()); // the log hears it all the same
    QCOMPARE(bench.job.end().how, How::Complete);
    QVERIFY(!bench.words.contains(u"late"_s));
}

void JobTest::costOfStopping_data()
{
    QTest::addColumn<Stage>("stage");
    QTest::addColumn<QString>("line");
    QTest::addColumn<bool>("rewritable");
    QTest::addColumn<QString>("cost");
    const auto row = [](const char *name, Stage stage, const QString &line, bool rewritable,
                         const QString &cost) { QTest::newRow(name) << stage << line << rewritable << cost; };
    row("converting", Stage::Converting, {}, false,
        u"What was converted so far is thrown away. The disc stays as it is."_s);
    row("gathering", Stage::Gathering, {}, false,
        u"What was copied so far is thrown away. The disc and your folders stay as they are."_s);
    row("imaging", Stage::Imaging, u"Writing: 5.0 %"_s, false, u"The image made so far is deleted."_s);
    row("exchanging", Stage::Exchanging, {}, false, {});
    row("erasing", Stage::Erasing, u"Erasing: 5.0 %"_s, true, eraseAgain);
    row("preparing", Stage::Writing, u"Preparing"_s, false,
        u"Nothing is written yet. The disc stays as it is."_s);
    const QString lostForGood = u"This disc is lost: it cannot be written a second time."_s;
    const QString lostForNow =
        u"What was written so far is lost. The disc has to be erased before it is used again."_s;
    for (const QString &line : { u"Writing: 5.0 %"_s, u"Erasing: 5.0 %"_s, u"Closing the disc"_s }) {
        QTest::addRow("%s, once", qPrintable(line)) << Stage::Writing << line << false << lostForGood;
        QTest::addRow("%s, rewritable", qPrintable(line)) << Stage::Writing << line << true << lostForNow;
    }
    row("comparing", Stage::Writing, u"Verifying: 5.0 %"_s, false,
        u"The disc is written. It is not compared to the end."_s);
    row("emptying", Stage::Emptying, {}, false, {});
}

void JobTest::costOfStopping()
{
    QFETCH(Stage, stage);
    QFETCH(QString, line);
    QFETCH(bool, rewritable);
    Bench bench(disc(rewritable));
    bench.job.enter(stage);
    if (!line.isEmpty())
        QVERIFY(bench.runs(stage, u"out "_s + line));
    QTEST(bench.job.costOfStopping(), "cost");
}

void JobTest::isStopped_data()
{
    QTest::addColumn<Work>("work");
    QTest::addColumn<Stage>("stage");
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char *name, const Work &work, Stage stage, const QString &line,
                         const QString &reason) { QTest::newRow(name) << work << stage << line << reason; };
    row("before writing", disc(), Stage::Writing, u"Preparing"_s, asItWas);
    row("while writing", disc(), Stage::Writing, u"Writing: 13.2 %, 125x"_s, lost);
    row("while writing a rewritable disc", disc(true), Stage::Writing, u"Writing: 13.2 %, 125x"_s, toErase);
    row("while closing", disc(), Stage::Writing, u"Closing the disc"_s, lost);
    row("while comparing", disc(), Stage::Writing, u"Verifying: 13.2 %"_s, notCompared);
    row("while erasing", of(Result::BlankDisc), Stage::Erasing, u"Erasing: 1.0 %"_s, eraseAgain);
    row("while imaging", of(Result::Image), Stage::Imaging, u"Writing: 1.0 %"_s, noImage);
}

/// By a tool that says nothing of it, and by one that has the last word.
void JobTest::isStopped()
{
    QFETCH(Work, work);
    QFETCH(Stage, stage);
    QFETCH(QString, line);
    {
        Bench silent(work);
        const ToolRun *run = silent.start(stage, misbehave, doing(u"out Reading; out %1; hang"_s.arg(line)));
        QVERIFY(silent.says(line));
        silent.job.stop();
        QVERIFY(Bench::ended(run));
        const Outcome outcome = silent.job.end();
        QCOMPARE(outcome.how, How::Stopped);
        QTEST(outcome.reason, "reason");
        QCOMPARE(outcome.made, QString());
    }
    Bench speaking(work);
    const QString last = u"Stopped: the disc in drive 1 is this or that."_s;
    const ToolRun *run = speaking.start(stage, u"/bin/sh"_s,
        { u"-c"_s,
            u"trap 'echo \"%2\" >&2; exit 143' TERM; echo \"%1\"; while :; do sleep 0.02; done"_s.arg(
                line, last) });
    QVERIFY(speaking.says(line));
    speaking.job.stop();
    QVERIFY(Bench::ended(run));
    const Outcome outcome = speaking.job.end();
    QCOMPARE(outcome.how, How::Stopped);
    QCOMPARE(outcome.reason, last);
    QCOMPARE(outcome.exitStatus(), 1);
}

void JobTest::stopsAtOnce()
{
    Bench bench(disc());
    const ToolRun *run =
        bench.start(Stage::Writing, misbehave, doing(u"slow-term 300; out Writing: 1.0 %; hang"_s));
    QVERIFY(bench.says(u"Writing: 1.0 %"_s));
    bench.job.stop();
    QVERIFY2(!run->hasEnded() && run->state() == QProcess::Running, "the tool was waited for");
    QVERIFY(Bench::ended(run));
    constexpr int afterSigterm = 143; // it was asked, not killed
    QCOMPARE(run->end().code, afterSigterm);
}

void JobTest::stopsOnce()
{
    Bench bench(disc());
    QSignalSpy stopping(&bench.job, &Job::stopping);
    bench.job.stop();
    bench.job.stop();
    QCOMPARE(stopping.count(), 1);
    QVERIFY(bench.job.isStopping());
    const Outcome outcome = bench.job.end();
    QCOMPARE(outcome.how, How::Stopped);
    QCOMPARE(outcome.reason, u"Nothing was written. The disc is as it was."_s);
}

void JobTest::killsWhatDoesNotEnd_data()
{
    QTest::addColumn<Stage>("stage");
    QTest::addColumn<writing::EndingPatience>("patience");
    constexpr int shorter = 400;
    constexpr int never = 600'000;
    QTest::newRow("converting") << Stage::Converting << writing::EndingPatience{ shorter, never, never };
    QTest::newRow("imaging") << Stage::Imaging << writing::EndingPatience{ never, shorter, never };
    QTest::newRow("writing") << Stage::Writing << writing::EndingPatience{ never, never, shorter };
    QTest::newRow("erasing") << Stage::Erasing << writing::EndingPatience{ never, never, shorter };
}

void JobTest::killsWhatDoesNotEnd()
{
    QFETCH(Stage, stage);
    QFETCH(writing::EndingPatience, patience);
    Bench bench(disc(), patience);
    const ToolRun *run =
        bench.start(stage, misbehave, doing(u"ignore-term; out All is well.; out Writing: 1.0 %; hang"_s));
    QVERIFY(bench.says(u"Writing: 1.0 %"_s));
    const auto process = static_cast<pid_t>(run->processId());
    int ticks = 0; // of the event loop while the tool is given its time
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] { ++ticks; });
    timer.start(10);
    QElapsedTimer clock;
    clock.start();
    bench.job.stop();
    QVERIFY(Bench::ended(run));
    QVERIFY2(clock.elapsed() >= 400, "it is given its time");
    QVERIFY2(ticks >= 3, "the window would have stood still");
    QVERIFY(::kill(process, 0) != 0 && errno == ESRCH);
    const Outcome outcome = bench.job.end();
    QCOMPARE(outcome.how, How::Stopped);
    QVERIFY2(outcome.reason != u"All is well."_s, "what a killed tool said before tells nothing of the disc");
}

void JobTest::endsInSpiteOfStop()
{
    Bench bench(disc());
    const ToolRun *run = bench.start(Stage::Writing, u"/bin/sh"_s,
        { u"-c"_s, u"trap 'exit 0' TERM; echo 'Closing the disc'; while :; do sleep 0.02; done"_s });
    QVERIFY(bench.says(u"Closing the disc"_s));
    bench.job.stop();
    QVERIFY(Bench::ended(run));
    QCOMPARE(bench.job.end().how, How::Complete);
}

void JobTest::givesItsFolderBack()
{
    const QTemporaryDir folder;
    Work work = disc();
    work.workingFolder = folder.path();
    Bench bench(work);
    QVERIFY(bench.job.claim());
    QVERIFY(!FolderClaim::take(folder.path()));
    Bench other(work);
    QVERIFY(!other.job.claim());
    bench.job.end();
    QVERIFY(FolderClaim::take(folder.path()));
    {
        Bench dropped(work);
        QVERIFY(dropped.job.claim());
    }
    QVERIFY(FolderClaim::take(folder.path()));
}

QTEST_GUILESS_MAIN(JobTest)
#include "JobTest.moc"
