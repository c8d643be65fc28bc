// Data discs from the window: how folders are gathered, when they count as copied, and what runs.
#include "kit/Spinner.h"
#include "support/JobApplication.h"
#include "support/TestAccess.h"
#include "writing/FolderStaging.h"

#include <QRegularExpression>

#include <thread>

using namespace Qt::StringLiterals;

namespace {

struct Kind {
    int code;
    QByteArray blank;
};

const Kind kinds[] = { { 6, discs::blankCD }, { 7, discs::blankDVD }, { 8, discs::blankBD } };

const QStringList sheetsOfAJob{ u"+Window_Data_Copy_Folders"_s, u"-Window_Data_Copy_Folders"_s,
    u"+Window_Performing_Operation"_s, u"-Window_Performing_Operation"_s, u"+Window_Operation_Terminated"_s };

} // namespace

class DataJobTest : public QObject {
    Q_OBJECT

    static void ready(JobApplication &app, const QStringList &folders, const Kind &kind = kinds[0])
    {
        app.insert(kind.blank);
        app.launch();
        app.choose(kind.code);
        for (const QString &folder : folders)
            app.addFolder(app.media.filePath(folder));
        QCOMPARE(app.controller->arrayDataFolders.size(), folders.size());
        app.sheets.clear();
    }

    /// Waits for the copy of the folder "slow" and adds 20 KiB to it; nothing before there is one.
    static void growCopy(const JobApplication &app)
    {
        const auto *gathering = TestAccess::gathering(*app.controller);
        if (!gathering || gathering->copies().isEmpty())
            return;
        while (!gathering->copies().constLast()->ended)
            std::this_thread::yield();
        QFile more(app.controller->s_Data_Folder + u"/slow/more"_s);
        QVERIFY(more.open(QIODevice::Append));
        QCOMPARE(more.write(QByteArray(20 * 1024, 'x')), 20 * 1024);
    }

    /// Adds a copy of the test's own to the job's as soon as these begin.
    static void alsoCopies(JobApplication &app, const std::shared_ptr<writing::CopyState> &copy)
    {
        connect(app.controller.get(), &AppDelegate::jobBegan, qApp, [&app, copy](writing::Job *job) {
            connect(job, &writing::Job::progressed, job, [&app, copy] {
                auto *gathering = TestAccess::gathering(*app.controller);
                if (gathering && !gathering->copies().isEmpty() && !gathering->copies().contains(copy))
                    gathering->add(copy);
            });
        });
    }

    static QStringList sorted(QStringList names)
    {
        names.sort();
        return names;
    }

private Q_SLOTS:
    void theFolderIsGatheredAndWritten_data()
    {
        QTest::addColumn<Kind>("kind");
        for (const Kind &kind : kinds)
            QTest::newRow(projects::byCode(kind.code)->name.data()) << kind;
    }
    void theFolderIsGatheredAndWritten()
    {
        QFETCH(Kind, kind);
        JobApplication app;
        app.file(u"photos/summer/beach.jpg"_s);
        app.file(u"photos/.hidden"_s);
        ready(app, { u"photos"_s }, kind);
        QVERIFY(QDir(app.controller->s_Data_Folder).mkpath(u"left over/from before"_s));
        app.press("btnBurn");
        QVERIFY(app.completes());
        const QStringList burn{ u"burn"_s, app.controller->s_Data_Folder, u"-drive"_s, u"1"_s };
        QCOMPARE(app.drutil.runs(u"burn"_s), QList<QStringList>{ burn });
        const QStringList tree{ u"photos"_s, u"photos/.hidden"_s, u"photos/summer"_s,
            u"photos/summer/beach.jpg"_s };
        QCOMPARE(app.burned(), tree);
        QCOMPARE(app.sheets.order(), sheetsOfAJob);
        QCOMPARE(app.trouble(), QString());
        QCOMPARE(app.namesIn(app.controller->s_Data_Folder), QStringList());
        QCOMPARE(app.controller->arrayDataFolders.size(), 1);
        QCOMPARE(app.ffmpeg.runs(), QList<QStringList>());
        QTest::keyClick(app.controller->windowOperationCompleted, Qt::Key_Return);
        QVERIFY(!app.controller->windowOperationCompleted);
    }

    void theWorkingFolderIsEmptyAfterEveryEnd_data()
    {
        QTest::addColumn<QByteArray>("ending");
        QTest::newRow("failure") << QByteArray("exit 1\n");
        QTest::newRow("crash") << QByteArray("kill -SEGV $$\n");
        QTest::newRow("a folder that nobody may write") << QByteArray("chmod 500 \"$folder/photos\"\n");
    }
    void theWorkingFolderIsEmptyAfterEveryEnd()
    {
        QFETCH(QByteArray, ending);
        JobApplication app;
        app.burnWith(ending);
        app.file(u"photos/beach.jpg"_s);
        ready(app, { u"photos"_s });
        app.press("btnBurn");
        QVERIFY(app.completes());
        QCOMPARE(app.namesIn(app.controller->s_Data_Folder), QStringList());
        QCOMPARE(app.sheets.order(), sheetsOfAJob);
    }

    void foldersOfOneNameGoIntoNumberedFolders()
    {
        JobApplication app;
        for (const char *folder : { "a", "b", "c" })
            app.file(QLatin1StringView(folder) + u"/photos/"_s + QLatin1StringView(folder) + u".jpg"_s);
        ready(app, { u"a/photos"_s, u"b/photos"_s, u"c/photos"_s });
        app.press("btnBurn");
        QVERIFY(app.completes());
        const QStringList tree{ u"photos"_s, u"photos 1"_s, u"photos 1/photos"_s, u"photos 1/photos/b.jpg"_s,
            u"photos 2"_s, u"photos 2/photos"_s, u"photos 2/photos/c.jpg"_s, u"photos/a.jpg"_s };
        QCOMPARE(app.burned(), tree);
    }

    void aNumberThatIsTakenIsPassedOver()
    {
        JobApplication app;
        app.file(u"a/photos/a.jpg"_s);
        app.file(u"photos 1/b.jpg"_s);
        app.file(u"c/photos/c.jpg"_s);
        ready(app, { u"a/photos"_s, u"photos 1"_s, u"c/photos"_s });
        app.press("btnBurn");
        QVERIFY(app.completes());
        const QStringList tree{ u"photos"_s, u"photos 1"_s, u"photos 1/b.jpg"_s, u"photos 2"_s,
            u"photos 2/photos"_s, u"photos 2/photos/c.jpg"_s, u"photos/a.jpg"_s };
        QCOMPARE(app.burned(), tree);
    }

    void awkwardNamesAreGatheredAndNumberedAsTheyAre_data()
    {
        QTest::addColumn<QString>("name");
        for (const QString &name :
            { u"100%1 %2 %n"_s, u"O'Brien \"x\""_s, u"two\nlines"_s, u"-drive"_s, u"  blanks  "_s,
                u"日本 עברית 😀"_s, u"$(x) `y` *"_s, u"dot.in.name"_s, u".hidden"_s, QString(250, u'x') })
            QTest::newRow(name.toUtf8().toPercentEncoding().left(40).constData()) << name;
    }
    void awkwardNamesAreGatheredAndNumberedAsTheyAre()
    {
        QFETCH(QString, name);
        JobApplication app;
        app.file(u"a/"_s + name + u"/"_s + name);
        app.file(u"b/"_s + name + u"/"_s + name);
        ready(app, { u"a/"_s + name, u"b/"_s + name });
        app.press("btnBurn");
        QVERIFY(app.completes());
        const QString second = name + u" 1"_s;
        const QStringList tree{ name, name + u'/' + name, second, second + u'/' + name,
            second + u'/' + name + u'/' + name };
        QCOMPARE(app.burned(), sorted(tree));
        QCOMPARE(app.trouble(), QString());
    }

    void aFolderWhoseNumberDoesNotFitIntoANameIsNumberedAllTheSame_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("cut");
        QTest::newRow("letters") << QString(255, u'x') << QString(253, u'x');
        QTest::newRow("characters of four bytes")
            << u"xxx"_s + u"😀"_s.repeated(63) << u"xxx"_s + u"😀"_s.repeated(62);
    }
    void aFolderWhoseNumberDoesNotFitIntoANameIsNumberedAllTheSame()
    {
        QFETCH(QString, name);
        QFETCH(QString, cut);
        JobApplication app;
        for (const char *folder : { "a/", "b/", "c/" })
            app.file(QLatin1StringView(folder) + name + u"/file"_s);
        ready(app, { u"a/"_s + name, u"b/"_s + name, u"c/"_s + name });
        app.press("btnBurn");
        QVERIFY(app.completes());
        QStringList tree{ name, name + u"/file"_s };
        for (const QString &numbered : { cut + u" 1"_s, cut + u" 2"_s })
            tree += { numbered, numbered + u'/' + name, numbered + u'/' + name + u"/file"_s };
        QCOMPARE(app.burned(), sorted(tree));
        QCOMPARE(app.trouble(), QString());
    }

    void aFolderThatIsThereAtOnceStillTakesOneInterval()
    {
        QCOMPARE(Surroundings().stagingPoll, 60'000);
        JobApplication app;
        app.around.stagingPoll = 400;
        app.file(u"a/one"_s);
        app.file(u"b/two"_s);
        ready(app, { u"a"_s, u"b"_s });
        app.press("btnBurn");
        QVERIFY(app.completes());
        QVERIFY(app.sheets.sinceLast(u"+Window_Data_Copy_Folders"_s, u"-Window_Data_Copy_Folders"_s)
            >= 100 + 2 * 380);
    }

    void theSecondOfTwoNamesakesIsMeasuredWhereTheFirstLies()
    {
        JobApplication app;
        app.around.stagingPoll = 400;
        app.file(u"a/photos/small"_s, QByteArray(2000, 'x'));
        app.file(u"b/photos/large"_s, QByteArray(200'000, 'x'));
        ready(app, { u"a/photos"_s, u"b/photos"_s });
        app.press("btnBurn");
        QVERIFY(app.completes());
        // The first takes one interval. The second one's size is never reached at the unnumbered path: a second
        // look finds no growth, and that takes two.
        QVERIFY(app.sheets.sinceLast(u"+Window_Data_Copy_Folders"_s, u"-Window_Data_Copy_Folders"_s)
            >= 100 + 3 * 380);
        QVERIFY(app.burned().contains(u"photos 1/photos/large"_s));
    }

    void aFolderThatGrowsIsWaitedForUntilItHasItsSize()
    {
        JobApplication app;
        app.burnWith("du -sb \"$folder/slow\" | cut -f1 > \"$0.size\"\n");
        app.file(u"slow/first"_s, QByteArray(1024, 'x'));
        ready(app, { u"slow"_s });
        app.controller->arrayDataFolders.first().i_Size_in_KBytes = 300;
        QTimer growing;
        connect(&growing, &QTimer::timeout, this, [&app] { growCopy(app); });
        growing.start(40);
        app.press("btnBurn");
        QVERIFY(app.completes());
        growing.stop();
        QFile size(app.drutil.path() + u".size"_s);
        QVERIFY(size.open(QIODevice::ReadOnly));
        QVERIFY(size.readAll().trimmed().toLongLong() >= 300 * 1024);
    }

    void aFolderThatStopsGrowingIsTakenAsItIs()
    {
        JobApplication app;
        app.file(u"photos/beach.jpg"_s);
        ready(app, { u"photos"_s });
        app.controller->arrayDataFolders.first().i_Size_in_KBytes = 1'000'000;
        app.press("btnBurn");
        QVERIFY(app.completes());
        QVERIFY(app.burned().contains(u"photos/beach.jpg"_s));
    }

    void aCopyThatStillRunsIsStoppedBeforeTheWorkingFolderIsEmptied()
    {
        JobApplication app;
        app.file(u"photos/beach.jpg"_s);
        ready(app, { u"photos"_s });
        auto slow = std::make_shared<writing::CopyState>();
        alsoCopies(app, slow);
        std::thread copying([slow, late = app.controller->s_Data_Folder + u"/late"_s] {
            while (!slow->stop)
                std::this_thread::sleep_for(std::chrono::milliseconds(5));
            std::this_thread::sleep_for(std::chrono::milliseconds(300));
            makeFile(late, "late");
            slow->ended = true;
        });
        int ticks = 0;
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] {
            if (slow->stop && app.controller->isJobPending()) {
                ++ticks;
                app.press("btnBurn"); // no second job meanwhile
            }
        });
        timer.start(10);
        app.press("btnBurn");
        const bool completed = app.completes();
        slow->stop = true;
        copying.join();
        QVERIFY(completed);
        QVERIFY2(ticks >= 5, "the window stood still while the copy was waited for");
        QVERIFY(!QGuiApplication::overrideCursor());
        QCOMPARE(app.namesIn(app.controller->s_Data_Folder), QStringList());
        QCOMPARE(app.sheets.order(), sheetsOfAJob);
        QVERIFY2(app.trouble().contains(u"before the copying of a folder has ended"_s),
            qUtf8Printable(app.trouble()));
    }

    void aLargeFolderThatIsStillCopiedLeavesNothingBehind()
    {
        JobApplication app;
        app.around.stagingPoll = 1;
        for (int i = 0; i < 5000; ++i)
            app.file(u"photos/%1/%2"_s.arg(i / 100).arg(i), "sand");
        ready(app, { u"photos"_s });
        app.press("btnBurn");
        QVERIFY(app.completes());
        QCOMPARE(app.namesIn(app.controller->s_Data_Folder), QStringList());
    }

    void aCopyThatDoesNotEndIsNotWaitedForWithoutEnd()
    {
        JobApplication app;
        app.around.copyEndLimit = 50;
        app.file(u"photos/beach.jpg"_s);
        ready(app, { u"photos"_s });
        const auto endless = std::make_shared<writing::CopyState>();
        alsoCopies(app, endless);
        app.press("btnBurn");
        QVERIFY(app.completes());
        QVERIFY2(app.trouble().contains(u"does not end"_s), qUtf8Printable(app.trouble()));
        QVERIFY(endless->stop);
        QCOMPARE(app.namesIn(app.controller->s_Data_Folder), QStringList());
    }

    void aFolderThatHasVanishedIsToldAndTheOthersAreWritten()
    {
        JobApplication app;
        app.file(u"gone/file"_s);
        app.file(u"here/file"_s);
        ready(app, { u"gone"_s, u"here"_s });
        QVERIFY(QDir(app.media.filePath(u"gone"_s)).removeRecursively());
        app.press("btnBurn");
        QVERIFY(app.completes());
        const QStringList tree{ u"here"_s, u"here/file"_s };
        QCOMPARE(app.burned(), tree);
        QVERIFY2(app.trouble().contains(app.media.filePath(u"gone"_s)), qUtf8Printable(app.trouble()));
        QVERIFY(app.trouble().contains(u"No such file or directory"_s));
    }

    void anEmptyFolderIsWritten()
    {
        JobApplication app;
        QVERIFY(QDir(app.media.path()).mkdir(u"empty"_s));
        ready(app, { u"empty"_s });
        app.press("btnBurn");
        QVERIFY(app.completes());
        QCOMPARE(app.burned(), QStringList(u"empty"_s));
        QCOMPARE(app.trouble(), QString());
    }

    void aFolderThatHoldsTheWorkingFolderIsCopiedWithoutIt()
    {
        JobApplication app;
        app.launch();
        app.choose(6);
        const QString documents = QFileInfo(app.controller->s_Data_Folder).path();
        QFile letter(documents + u"/letter.txt"_s);
        QVERIFY(letter.open(QIODevice::WriteOnly) && letter.write("Dear reader") > 0);
        letter.close();
        app.addFolder(documents);
        app.press("btnBurn");
        QVERIFY(app.completes());
        QVERIFY(letter.remove());
        const QStringList tree{ u"Documents"_s, u"Documents/Corvalis"_s, u"Documents/CorvalisAudio"_s,
            u"Documents/CorvalisVideo"_s, u"Documents/letter.txt"_s };
        QCOMPARE(app.burned(), tree);
        QVERIFY2(app.trouble().contains(u"left out"_s), qUtf8Printable(app.trouble()));
    }

    void withoutAnyFolderGatheringEndsAtOnce()
    {
        JobApplication app;
        app.around.stagingPoll = 60'000;
        app.file(u"photos/beach.jpg"_s);
        ready(app, { u"photos"_s });
        app.sheets.onShow = [&app](Sheet *sheet) {
            if (sheet->inherits("Window_Data_Copy_Folders"))
                app.controller->arrayDataFolders.clear(); // before gathering begins
        };
        app.press("btnBurn");
        QVERIFY(app.completes());
        QCOMPARE(app.sheets.order(), sheetsOfAJob);
        QCOMPARE(app.burned(), QStringList());
    }

    void theSheetTurnsItsSpinnerAndTheWindowRepaints()
    {
        JobApplication app;
        app.around.stagingPoll = 600;
        app.file(u"photos/beach.jpg"_s);
        ready(app, { u"photos"_s });
        int ticks = 0;
        bool spinning = false;
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] {
            if (app.controller->windowDataCopyFolders) {
                ++ticks;
                spinning = app.controller->windowDataCopyFolders->pgAnimation()->isSpinning();
            }
        });
        timer.start(10);
        app.press("btnBurn");
        QVERIFY(app.completes());
        QVERIFY(spinning);
        QVERIFY(ticks >= 10);
    }

    void theSheetNamesTheFolderAndTellsWhyItTakesSoLong()
    {
        JobApplication app;
        app.around.stagingPoll = 600;
        app.file(QString(255, u'W') + u"/one"_s);
        app.file(u"<b>photos/two"_s);
        ready(app, { QString(255, u'W'), u"<b>photos"_s });
        QStringList shown;
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] {
            const auto sheet = app.controller->windowDataCopyFolders;
            const auto *name = sheet ? sheet->findChild<QLabel *>(u"labelFolder"_s) : nullptr;
            if (!name || name->text().isEmpty() || shown.contains(name->text()))
                return;
            shown.append(name->text());
            QVERIFY(sheet->findChild<QLabel *>(u"labelDescription"_s)->text().contains(u"minute"_s));
            QVERIFY(name->width() >= name->sizeHint().width());
            QCOMPARE(sheet->pgAnimation()->width(), 32);
        });
        timer.start(50);
        app.press("btnBurn");
        QVERIFY(app.completes());
        QCOMPARE(shown.size(), 2);
        QVERIFY2(shown.first().contains(QRegularExpression(u"^W+…W+ \\(1 of 2\\)$"_s)),
            qUtf8Printable(shown.first()));
        QCOMPARE(shown.last(), u"<b>photos (2 of 2)"_s);
    }

    void roomIsAskedForBeforeAnythingIsGathered_data()
    {
        QTest::addColumn<int>("button");
        QTest::newRow("closed") << 0;
        QTest::newRow("gone on") << 1;
    }
    void roomIsAskedForBeforeAnythingIsGathered()
    {
        QFETCH(int, button);
        JobApplication app;
        app.launch();
        app.choose(6);
        // On a file system that shares its blocks with no other one.
        app.controller->arrayDataFolders = { { u"/sys/class/net/lo"_s, 1'000'000'000'000, {} } };
        app.asked.buttons = { button };
        app.press("btnBurn");
        QCOMPARE(app.asked.alerts.size(), 1);
        const Alert asked = app.asked.alerts.first();
        QCOMPARE(asked.message, u"There is not enough room to gather the folders"_s);
        QVERIFY2(asked.informative.contains(app.controller->s_Data_Folder)
                && asked.informative.contains(QRegularExpression(u" has \\d+\\.\\d\\d TB too little"_s)),
            qUtf8Printable(asked.informative));
        if (button == 0)
            QVERIFY(!app.controller->isJobPending());
        else
            QVERIFY(app.completes());
        QCOMPARE(app.drutil.runs(u"burn"_s).size(), button);
        QCOMPARE(app.namesIn(app.controller->s_Data_Folder), QStringList());
    }

    void theListedFolderIsNeverTouched()
    {
        JobApplication app;
        const QString path = app.file(u"photos/beach.jpg"_s, "sand");
        QVERIFY(QFile::setPermissions(path, QFile::ReadOwner));
        const QDateTime modified = QFileInfo(path).lastModified();
        ready(app, { u"photos"_s });
        app.press("btnBurn");
        QVERIFY(app.completes());
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("sand"));
        QCOMPARE(QFileInfo(path).lastModified(), modified);
        QCOMPARE(QFileInfo(path).permissions() & QFile::WriteOwner, QFile::Permissions());
    }

    void closingTheWindowWhileFoldersAreGatheredEndsAtOnceAndTheNextStartClears()
    {
        {
            JobApplication app;
            app.around.stagingPoll = 300;
            app.file(u"photos/beach.jpg"_s);
            ready(app, { u"photos"_s });
            app.press("btnBurn");
            QTRY_VERIFY(QFile::exists(app.controller->s_Data_Folder + u"/photos/beach.jpg"_s));
            app.window->close();
            QCOMPARE(app.exits, QList<int>{ 0 });
        }
        JobApplication app;
        app.launch();
        QCOMPARE(app.namesIn(app.controller->s_Data_Folder), QStringList());
    }
};

QTEST_MAIN(DataJobTest)
#include "DataJobTest.moc"
