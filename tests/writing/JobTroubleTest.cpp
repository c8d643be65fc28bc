// Jobs whose tools misbehave, and what a person can do while one runs.
#include "app/Window_Activity_Log.h"
#include "kit/Spinner.h"
#include "runner/ToolRun.h"
#include "support/JobApplication.h"
#include "support/TestAccess.h"
#include "writing/FolderClaim.h"

#include <QPlainTextEdit>

#include <csignal>

using namespace Qt::StringLiterals;

class JobTroubleTest : public QObject {
    Q_OBJECT

    static void ready(JobApplication &app, const QStringList &names = { u"song.mp3"_s })
    {
        app.launch();
        QStringList files;
        for (const QString &name : names)
            files.append(app.file(name));
        QVERIFY(app.add(files));
        app.sheets.clear();
    }

    /// Does `action` as soon as a sheet of this class is up and control is back in the event loop.
    static void whenShown(
        JobApplication &app, const char *sheetClass, const std::function<void(Sheet *)> &action)
    {
        app.sheets.onShow = [sheetClass, action](Sheet *sheet) {
            if (sheet->inherits(sheetClass))
                QTimer::singleShot(20, sheet, [sheet, action] { action(sheet); });
        };
    }

private Q_SLOTS:
    // ---- Between the windows of a job

    void noSecondJobBeginsBetweenTheWindows()
    {
        JobApplication app;
        ready(app, { u"one.mp3"_s, u"two.mp3"_s });
        int presses = 0;
        app.sheets.onHide = [&](Sheet *sheet) {
            if (!sheet->inherits("Window_Progress"))
                return;
            QTimer::singleShot(20, sheet->parentWidget(), [&] {
                ++presses;
                app.press("btnBurn");
            });
        };
        app.press("btnBurn");
        QVERIFY(app.completes());
        QCOMPARE(presses, 1);
        QCOMPARE(app.burned(), (QStringList{ u"one.wav"_s, u"two.wav"_s }));
        QCOMPARE(app.drutil.runs(u"burn"_s).size(), 1);
        QCOMPARE(app.sheets.order().count(u"+Window_Progress"_s), 1);
        QVERIFY(!app.controller->isJobPending());
    }

    void whatABurnPrintsIsInTheSystemsLog()
    {
        JobApplication app;
        app.burnWith("echo Writing\n" + app.waitFor("more") + "echo Done\n");
        ready(app);
        QTest::ignoreMessage(QtInfoMsg, "Data Available : 8 bytes");
        QTest::ignoreMessage(QtInfoMsg, "Data Available : 5 bytes");
        QTest::ignoreMessage(QtInfoMsg, "Data Ready : Writing\nDone\n");
        app.press("btnBurn");
        QTRY_VERIFY(app.controller->windowPerformingOperation);
        QTRY_COMPARE(app.controller->windowPerformingOperation->newestLine(), u"Writing"_s);
        app.release(app.drutil, "more");
        QVERIFY(app.completes());
    }

    // ---- Tools that misbehave

    void aMissingTranscoderIsToldAtTheEnd()
    {
        JobApplication app;
        app.around.resources = app.media.filePath(u"no resources"_s);
        app.launch();
        QCOMPARE(app.controller->sffmpegPath, QString());
        QVERIFY(app.add({ app.file(u"song.mp3"_s) }));
        QCOMPARE(app.controller->arrayMediaFiles.at(0).s_Duration, QString());
        app.press("btnBurn");
        QVERIFY(app.completes());
        QVERIFY2(app.trouble().contains(u"could not be started"_s), qUtf8Printable(app.trouble()));
        QCOMPARE(app.burned(), QStringList());
    }

    void aTranscoderThatFailsIsToldAndTheOthersAreWritten()
    {
        JobApplication app;
        app.convertWith("case \"$2\" in *bad*) echo 'Invalid data found' >&2; exit 1;; esac\n"
                        "echo converted > \"$output\"\n");
        ready(app, { u"bad.mp3"_s, u"good.mp3"_s });
        app.press("btnBurn");
        QVERIFY(app.completes());
        QCOMPARE(app.trouble(), u"bad.mp3: Invalid data found"_s);
        QCOMPARE(app.burned(), QStringList(u"good.wav"_s));
    }

    void aTranscoderThatCrashesIsToldAndTheJobGoesOn()
    {
        JobApplication app;
        app.convertWith("kill -SEGV $$\n");
        QStringList names;
        QStringList told;
        for (int i = 1; i <= 9; ++i) {
            names.append(u"%1.mp3"_s.arg(i));
            told.append(u"%1.mp3: crashed (signal 11)"_s.arg(i));
        }
        ready(app, names);
        app.press("btnBurn");
        QVERIFY(app.completes());
        told.last() = u"and 1 more"_s;
        QCOMPARE(app.trouble(), told.join(u'\n'));
    }

    void aTranscoderThatPrintsWithoutEndDoesNotBlock()
    {
        JobApplication app;
        app.convertWith("head -c 20000000 /dev/zero | tr '\\0' x >&2\n"
                        "head -c 20000000 /dev/zero | tr '\\0' x\n"
                        "echo converted > \"$output\"\n");
        ready(app);
        app.press("btnBurn");
        QVERIFY(app.completes());
        QCOMPARE(app.burned(), QStringList(u"song.wav"_s));
        QVERIFY(
            app.controller->activityLog->at(app.controller->activityLog->size() - 2).leftOut > 30'000'000);
    }

    void aTranscoderThatPrintsHalfACharacterStillShowsItsProgress()
    {
        JobApplication app;
        app.convertWith("printf 'title: caf\\303 time=00:00:01.00 \\377\\303' >&2\n" + app.waitFor("bar")
            + "echo converted > \"$output\"\n");
        ready(app);
        QList<int> values;
        app.sheets.onShow = [&app, &values](Sheet *sheet) {
            if (const auto *progress = qobject_cast<Window_Progress *>(sheet)) {
                connect(
                    progress->progressBar(), &QProgressBar::valueChanged, sheet, [&app, &values](int value) {
                        values.append(value);
                        app.release(app.ffmpeg, "bar");
                    });
            }
        };
        app.press("btnBurn");
        QCOMPARE(values, QList<int>{ 7 });
        QVERIFY(app.completes());
    }

    void progressIsReadInTwoModesOnly_data()
    {
        QTest::addColumn<quint64>("mode");
        QTest::addColumn<int>("shown");
        QTest::newRow("video") << quint64(0) << 50;
        QTest::newRow("audio") << quint64(1) << 50;
        QTest::newRow("another") << quint64(2) << 1;
    }
    void progressIsReadInTwoModesOnly()
    {
        QFETCH(quint64, mode);
        JobApplication app;
        app.launch();
        app.controller->Show_Window_Progress(1);
        QProgressBar *bar = app.controller->windowProgress->progressBar();
        bar->setRange(0, 100);
        bar->setValue(1);
        app.controller->i_Orig_Duration_in_Seconds = 14;
        app.controller->u_Type_Progress = mode;
        TestAccess::showProgress(*app.controller, u"frame= 10 time=00:00:07.20 bitrate="_s);
        QTEST(bar->value(), "shown");
        TestAccess::showProgress(*app.controller, u"frame= 10 no time"_s);
        QTEST(bar->value(), "shown");
    }

    void aTranscoderThatAsksGetsNoAnswerAndEnds()
    {
        JobApplication app;
        app.convertWith("printf 'Overwrite? [y/N] ' >&2; if read answer; then echo read; else echo end of "
                        "input >&2; exit 1; fi\n");
        ready(app);
        app.press("btnBurn");
        QVERIFY(app.completes());
        QCOMPARE(app.trouble(), u"song.mp3: Overwrite? [y/N] end of input"_s);
    }

    void aDiscUtilityThatHasGoneIsToldAtTheEnd()
    {
        JobApplication app;
        ready(app);
        app.sheets.onHide = [&app](Sheet *sheet) {
            if (qobject_cast<Window_Progress *>(sheet))
                QFile::remove(app.drutil.path());
        };
        app.press("btnBurn");
        QVERIFY(app.completes());
        QVERIFY2(app.trouble().contains(u"could not be started"_s), qUtf8Printable(app.trouble()));
        QCOMPARE(app.namesIn(app.controller->s_Audio_Folder), QStringList());
        QCOMPARE(app.sheets.order().last(), u"+Window_Operation_Terminated"_s);
        QVERIFY(!app.controller->windowPerformingOperation);
    }

    void aDiscUtilityThatPrintsWithoutEndDoesNotBlock()
    {
        JobApplication app;
        app.burnWith("head -c 40000000 /dev/zero | tr '\\0' '\\n'; echo; printf 'broken \\303'; exit 1\n");
        ready(app);
        app.press("btnBurn");
        QVERIFY(app.completes());
        QCOMPARE(app.namesIn(app.controller->s_Audio_Folder), QStringList());
    }

    void aWorkingFolderThatWasTakenAwayIsMadeAgain()
    {
        JobApplication app;
        ready(app);
        const QString folder = app.controller->s_Audio_Folder;
        QVERIFY(QDir(folder).removeRecursively());
        bool isOurs = false;
        app.sheets.onShow = [&](Sheet *) { isOurs = isOurs || !FolderClaim::take(folder); };
        app.press("btnBurn");
        QVERIFY(app.completes());
        QVERIFY(isOurs);
        QCOMPARE(app.trouble(), QString());
        QCOMPARE(app.burned(), QStringList(u"song.wav"_s));
    }

    void aWorkingFolderThatTakesNothingIsTold()
    {
        JobApplication app;
        app.convertWith(
            "echo converted 2> /dev/null > \"$output\" || { echo \"$output: $?\" >&2; exit 1; }\n");
        ready(app);
        const QString folder = app.controller->s_Audio_Folder;
        QVERIFY(QDir().rmdir(folder));
        QFile inTheWay(folder);
        QVERIFY(inTheWay.open(QIODevice::WriteOnly));
        app.press("btnBurn");
        QVERIFY(app.completes());
        QVERIFY2(app.trouble().startsWith(u"song.mp3: "_s), qUtf8Printable(app.trouble()));
        QVERIFY(inTheWay.exists());
    }

    void aProbeThatHangsIsEndedAndNotAskedAgain_data()
    {
        QTest::addColumn<QByteArray>("hanging");
        QTest::newRow("it sleeps") << QByteArray("exec sleep 600\n");
        QTest::newRow("it does not want to end") << QByteArray("trap '' TERM; while :; do sleep 0.1; done\n");
        QTest::newRow("it prints on and on") << QByteArray("while :; do echo more; sleep 0.01; done\n");
    }
    void aProbeThatHangsIsEndedAndNotAskedAgain()
    {
        QFETCH(QByteArray, hanging);
        JobApplication app;
        app.around.probeLimit = 300;
        ready(app);
        app.drutil.run("[ \"$1\" = status ] || exit 0\necho $$ >> \"$0.pids\"\n" + hanging);
        app.press("btnBurn");
        QCOMPARE(app.texts().size(), 1);
        QVERIFY(app.texts().first().startsWith(u"Media not writable | "_s));
        QVERIFY(!app.controller->isJobPending());
        QVERIFY(!QGuiApplication::overrideCursor());
        QFile pids(app.drutil.path() + u".pids"_s);
        QVERIFY(pids.open(QIODevice::ReadOnly));
        const QList<QByteArray> started = pids.readAll().trimmed().split('\n');
        QCOMPARE(started.size(), 1);
        for (const QByteArray &pid : started)
            QVERIFY2(::kill(pid.toInt(), 0) != 0, "a probe whose time is up is still running");
        QVERIFY(app.controller->activityLog->text().contains(u"gave no answer in time"_s));
    }

    void aProbeWhoseChildKeepsTheOutputOpenIsNotWaitedFor()
    {
        JobApplication app;
        ready(app);
        app.drutil.run("[ \"$1\" = status ] && { sleep 30 & }\n");
        QElapsedTimer clock;
        clock.start();
        app.press("btnBurn");
        QVERIFY(app.completes());
        QVERIFY(clock.elapsed() < 30'000);
    }

    void aProbeThatPrintsBrokenTextIsStillSearched()
    {
        JobApplication app;
        app.insert("\303 Type: CD-R \377\377 over\nwritable overwritable\303");
        ready(app);
        app.press("btnBurn");
        QVERIFY(app.completes());
        QCOMPARE(app.texts(), QStringList());
    }

    void aProbeThatPrintsWithoutEndIsCutOff()
    {
        JobApplication app;
        ready(app);
        app.drutil.run("[ \"$1\" = status ] && head -c 90000000 /dev/zero | tr '\\0' x\n");
        app.press("btnBurn");
        QVERIFY(app.completes());
        QCOMPARE(app.texts(), QStringList());
    }

    // ---- While a job runs

    void theWindowKeepsRepaintingWhileFilesAreConverted()
    {
        JobApplication app;
        app.convertWith(app.waitFor("ticks") + "echo converted > \"$output\"\n");
        ready(app);
        int ticks = 0;
        int paints = 0;
        PaintCounter counter(paints);
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] {
            if (!app.controller->windowProgress)
                return;
            app.controller->windowProgress->installEventFilter(&counter);
            app.controller->windowProgress->update();
            if (++ticks == 20)
                app.release(app.ffmpeg, "ticks");
        });
        timer.start(10);
        app.press("btnBurn");
        QVERIFY(ticks >= 20);
        QVERIFY(paints >= 5);
        QVERIFY(app.completes());
    }

    void theWorkingSheetTurnsItsSpinnerAndShowsTheNewestLine()
    {
        JobApplication app;
        app.burnWith("printf 'Reading\\n12%% written\\r13%% written\\n'\n" + app.waitFor("line"));
        ready(app);
        app.press("btnBurn");
        QTRY_VERIFY(app.controller->windowPerformingOperation);
        QTRY_COMPARE(app.controller->windowPerformingOperation->newestLine(), u"13% written"_s);
        QVERIFY(app.controller->windowPerformingOperation->pgAnimation()->isSpinning());
        app.release(app.drutil, "line");
        QVERIFY(app.completes());
    }

    void theWorkingSheetShowsWholeLines()
    {
        JobApplication app;
        app.burnWith("printf 'Reading\\n12%% wri'\n" + app.waitFor("middle") + "printf 'tten: caf\\303'\n"
            + app.waitFor("letter") + "printf '\\251\\n13%% wri'\n" + app.waitFor("end"));
        ready(app);
        app.press("btnBurn");
        QTRY_VERIFY(app.controller->windowPerformingOperation);
        const Window_Performing_Operation *sheet = app.controller->windowPerformingOperation;
        QTRY_COMPARE(sheet->newestLine(), u"Reading"_s);
        app.release(app.drutil, "middle");
        QTRY_VERIFY(app.controller->job->watched()->output().endsWith('\303'));
        QCOMPARE(sheet->newestLine(), u"Reading"_s);
        app.release(app.drutil, "letter");
        QTRY_COMPARE(sheet->newestLine(), u"12% written: café"_s);
        app.release(app.drutil, "end");
        QVERIFY(app.completes());
    }

    /// A writer whose speed is held: it writes for seven seconds and compares as long.
    void theTimeLeftIsRightAtHalfTime()
    {
        JobApplication app;
        app.burnWith(
            "for phase in Writing Verifying; do n=0; while [ $n -le 100 ]; do echo \"$phase: $n.0 %, 8.0x\"; "
            "n=$((n + 1)); sleep 0.07; done; done\n");
        app.launch();
        app.choose(2);
        QVERIFY(app.add({ app.file(u"song.mp3"_s) }));
        QElapsedTimer clock;
        std::optional<int> told;
        qint64 half = 0;
        connect(app.controller.get(), &AppDelegate::jobBegan, &app.sheets, [&](writing::Job *job) {
            connect(job, &writing::Job::progressed, job, [&](const writing::Progress &progress) {
                if (half > 0 || progress.stage != writing::Stage::Writing || progress.percent < 50)
                    return;
                half = clock.elapsed();
                told = progress.secondsLeft;
            });
        });
        clock.start();
        app.press("btnBurn");
        QVERIFY(app.completes());
        const double left = static_cast<double>(clock.elapsed() - half) / 1000;
        QVERIFY(told);
        QVERIFY2(
            qAbs(*told - left) <= left / 4, qPrintable(u"%1 s told, %2 s it took"_s.arg(*told).arg(left)));
    }

    void longWordsStayInsideTheSheets()
    {
        JobApplication app;
        app.burnWith("printf '%0250d is a long name.\\n' 1\n" + app.waitFor("line") + "exit 1\n");
        ready(app);
        app.press("btnBurn");
        const QString line = u'0' + QString(198, u'0') + u'0';
        const auto fits = [&app](const Sheet *sheet) {
            const auto *text = sheet->findChild<QLabel *>(u"labelDescription"_s);
            return sheet->width() < app.window->width()
                && text->height() >= text->heightForWidth(text->width())
                && text->width() >= text->minimumSizeHint().width();
        };
        QTRY_VERIFY(app.controller->windowPerformingOperation);
        QTRY_COMPARE(app.controller->windowPerformingOperation->newestLine(), line);
        QTRY_VERIFY(fits(app.controller->windowPerformingOperation));
        QCOMPARE(app.controller->windowPerformingOperation->pgAnimation()->width(), 32);
        app.release(app.drutil, "line");
        QVERIFY(app.completes());
        QVERIFY2(app.trouble().contains(line), qUtf8Printable(app.trouble()));
        QTRY_VERIFY(fits(app.controller->windowOperationCompleted));
    }

    void theMainWindowTakesNoInputBelowASheet()
    {
        JobApplication app;
        app.burnWith(app.waitFor("go"));
        ready(app);
        app.press("btnBurn");
        QTRY_VERIFY(app.controller->windowPerformingOperation);
        QTRY_COMPARE(app.drutil.runs(u"burn"_s).size(), 1);
        const qsizetype runs = app.drutil.runs().size();
        app.press("btnBurn");
        app.press("toolbar_btn_Audio_Clear");
        QTest::keyClick(app.window.get(), Qt::Key_B, Qt::ControlModifier);
        QCOMPARE(app.drutil.runs().size(), runs);
        QCOMPARE(app.controller->arrayMediaFiles.size(), 1);
        QCOMPARE(app.texts(), QStringList());
        app.release(app.drutil, "go");
        QVERIFY(app.completes());
    }

    void sheetsOfRunningWorkStayWhenEscapeIsPressed_data() { rowsOfSheets(); }
    void sheetsOfRunningWorkStayWhenEscapeIsPressed()
    {
        QFETCH(QByteArray, sheetClass);
        QFETCH(int, project);
        JobApplication app;
        bool stayed = false;
        holdAt(app, sheetClass, [&](Sheet *sheet) {
            QTest::keyClick(sheet, Qt::Key_Escape);
            QTest::keyClick(sheet, Qt::Key_Return);
            stayed = sheet->isVisible();
        });
        runThrough(app, project);
        QVERIFY(stayed);
        QCOMPARE(app.exits, QList<int>());
    }

    void quittingFromASheetEndsAtOnce_data() { rowsOfSheets(); }
    void quittingFromASheetEndsAtOnce()
    {
        QFETCH(QByteArray, sheetClass);
        QFETCH(int, project);
        JobApplication app;
        QList<int> exits;
        holdAt(app, sheetClass, [&](Sheet *sheet) {
            QVERIFY(QTest::qWaitForWindowActive(sheet));
            QTest::keyClick(sheet, Qt::Key_Q, Qt::ControlModifier);
            exits = app.exits;
        });
        runThrough(app, project);
        QCOMPARE(exits, QList<int>{ 0 });
    }

    void theCompleteSheetClosesByButtonEnterAndEscape_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("button") << 0;
        QTest::newRow("Return") << static_cast<int>(Qt::Key_Return);
        QTest::newRow("Enter") << static_cast<int>(Qt::Key_Enter);
        QTest::newRow("Escape") << static_cast<int>(Qt::Key_Escape);
        QTest::newRow("Space") << static_cast<int>(Qt::Key_Space);
    }
    void theCompleteSheetClosesByButtonEnterAndEscape()
    {
        QFETCH(int, key);
        JobApplication app;
        ready(app);
        app.press("btnBurn");
        QVERIFY(app.completes());
        Sheet *sheet = app.controller->windowOperationCompleted;
        QVERIFY(QTest::qWaitForWindowActive(sheet));
        QPushButton *ok = app.button(sheet, QDialogButtonBox::Ok);
        QVERIFY(ok->isDefault());
        if (key == 0)
            QTest::mouseClick(ok, Qt::LeftButton);
        else
            QTest::keyClick(sheet->focusWidget(), static_cast<Qt::Key>(key));
        QVERIFY(!app.controller->windowOperationCompleted);
        QCOMPARE(app.sheets.order().last(), u"-Window_Operation_Terminated"_s);
        QCOMPARE(app.exits, QList<int>());
    }

    void theCompleteSheetLeadsToTheLogWhenSomethingWentWrong()
    {
        JobApplication app;
        app.burnWith("echo 'The disc is full.' >&2; exit 1\n");
        ready(app);
        app.press("btnBurn");
        QVERIFY(app.completes());
        QCOMPARE(app.trouble(), u"The disc is full."_s);
        const auto buttons = app.controller->windowOperationCompleted->findChildren<QPushButton *>();
        for (QPushButton *button : buttons) {
            if (button->text().startsWith(u"Activity Log"_s))
                QTest::mouseClick(button, Qt::LeftButton);
        }
        QVERIFY(!app.controller->windowOperationCompleted);
        QVERIFY(app.controller->windowActivityLog && app.controller->windowActivityLog->isVisible());
    }

    void aSecondJobEndsOnceAndTellsOfItsOwnTroubleOnly()
    {
        JobApplication app;
        app.burnWith("echo first trouble; exit 1\n");
        ready(app);
        QSignalSpy completed(app.controller.get(), &AppDelegate::operationCompleted);
        app.press("btnBurn");
        QVERIFY(app.completes());
        QTest::mouseClick(
            app.button(app.controller->windowOperationCompleted, QDialogButtonBox::Ok), Qt::LeftButton);
        app.burnWith("");
        app.press("btnBurn");
        QVERIFY(app.completes());
        QTest::qWait(50);
        QCOMPARE(app.trouble(), QString());
        QCOMPARE(completed.count(), 2);
    }

private:
    /// Counts the paint events of what it filters.
    class PaintCounter : public QObject {
    public:
        explicit PaintCounter(int &count)
            : m_count(count)
        {
        }

    protected:
        bool eventFilter(QObject *, QEvent *event) override
        {
            m_count += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }

    private:
        int &m_count;
    };

    static void rowsOfSheets()
    {
        QTest::addColumn<QByteArray>("sheetClass");
        QTest::addColumn<int>("project");
        QTest::newRow("adding") << QByteArray("Window_Unique_Progress") << 1;
        QTest::newRow("converting") << QByteArray("Window_Progress") << 1;
        QTest::newRow("working") << QByteArray("Window_Performing_Operation") << 1;
        QTest::newRow("gathering") << QByteArray("Window_Data_Copy_Folders") << 6;
    }

    /// Does `action` with the first sheet of this class while its work is held up.
    static void holdAt(
        JobApplication &app, const QByteArray &sheetClass, const std::function<void(Sheet *)> &action)
    {
        const QByteArray wait = app.waitFor("held");
        const QByteArray held =
            sheetClass == "Window_Unique_Progress" ? "-eq" : "-gt"; // a probe has two arguments
        app.ffmpeg.run("tool=$0\nfor output; do :; done\n"
                       "if [ $# "
            + held + " 2 ]; then\n" + wait
            + "fi\n"
              "[ $# -gt 2 ] && echo converted > \"$output\"\n");
        app.burnWith(wait);
        app.around.stagingPoll = 500;
        whenShown(app, sheetClass.constData(), [&app, action](Sheet *sheet) {
            app.sheets.onShow = nullptr;
            action(sheet);
            app.release(app.ffmpeg, "held");
            app.release(app.drutil, "held");
        });
        if (sheetClass == "Window_Performing_Operation" || sheetClass == "Window_Data_Copy_Folders")
            app.release(app.ffmpeg, "held");
    }

    static void runThrough(JobApplication &app, int project)
    {
        app.launch();
        app.choose(project);
        const QString file = app.file(u"album/song.mp3"_s);
        if (project == 6)
            app.addFolder(file.left(file.lastIndexOf(u'/')));
        else
            QVERIFY(app.add({ file }));
        app.press("btnBurn");
        QVERIFY(app.completes());
    }
};

QTEST_MAIN(JobTroubleTest)
#include "JobTroubleTest.moc"
