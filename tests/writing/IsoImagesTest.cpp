// Making an ISO image in three stages, and writing one.
#include "app/Questions.h"
#include "support/JobApplication.h"
#include "support/Person.h"

using namespace Qt::StringLiterals;

class IsoImagesTest : public QObject {
    Q_OBJECT

    static void ready(JobApplication &app)
    {
        app.hdiutil.run("tool=$0\n[ \"$1\" = makehybrid ] && { ls -A \"$(dirname \"$3\")\" > \"$0.before\"; "
                        "echo image > \"$3\"; }\n"
                        "if [ -e \"$0.slow\" ]; then\n"
            + app.waitFor("done") + "fi\n");
        app.launch();
        app.trigger("submenuItemTabISO");
        QVERIFY(QDir(app.media.path()).mkdir(u"source"_s));
        QVERIFY(QDir(app.media.path()).mkdir(u"destination"_s));
    }

    static constexpr int longest = 60'000; ///< milliseconds that a busy machine may need for a stage

    static QUrl url(const JobApplication &app, const QString &name)
    {
        return QUrl::fromLocalFile(app.media.filePath(name));
    }

    /// Makes the image tool wait for release("done").
    static void slowDown(const JobApplication &app)
    {
        QVERIFY(QFile(app.hdiutil.path() + u".slow"_s).open(QIODevice::WriteOnly));
    }

private Q_SLOTS:
    void anImageIsMade_data()
    {
        QTest::addColumn<bool>("byMenu");
        QTest::newRow("button") << false;
        QTest::newRow("menu") << true;
    }
    void anImageIsMade()
    {
        QFETCH(bool, byMenu);
        JobApplication app;
        ready(app);
        app.insert(discs::none); // no disc is needed
        slowDown(app);
        app.asked.choices = { { url(app, u"source"_s) }, { url(app, u"destination"_s) } };
        if (byMenu)
            app.trigger("menuitemISOCreate");
        else
            app.press("toolbar_btn_ISO_Create_ISO");
        QTRY_VERIFY_WITH_TIMEOUT(app.controller->windowPerformingOperation, longest);
        app.release(app.hdiutil, "done");
        QVERIFY(app.completes());
        const QString image = app.media.filePath(u"destination/image.iso"_s);
        const QList<QStringList> runs{ { u"makehybrid"_s, u"-o"_s, image, app.media.filePath(u"source"_s),
            u"-iso"_s, u"-joliet"_s } };
        QCOMPARE(app.hdiutil.runs(), runs);
        QVERIFY(QFile::exists(image));
        QCOMPARE(app.drutil.runs(), QList<QStringList>{ { u"list"_s } });
        const QStringList sheets{ u"+Window_Performing_Operation"_s, u"-Window_Performing_Operation"_s,
            u"+Window_Operation_Terminated"_s };
        QCOMPARE(app.sheets.order(), sheets);
        QCOMPARE(app.texts(), QStringList());
        QCOMPARE(app.controller->SourcePath, app.media.filePath(u"source"_s));
        QCOMPARE(app.controller->DestPath, app.media.filePath(u"destination"_s));
        QCOMPARE(app.controller->DestPathISO, image);
    }

    void thePanelsAskForTwoFolders()
    {
        JobApplication app;
        ready(app);
        app.asked.choices = { { url(app, u"source"_s) }, { url(app, u"destination"_s) } };
        app.press("toolbar_btn_ISO_Create_ISO");
        QVERIFY(app.completes());
        QCOMPARE(app.asked.panels.size(), 2);
        QCOMPARE(app.asked.panels.at(0).message, u"Select a folder to export to ISO format."_s);
        QCOMPARE(app.asked.panels.at(1).message, u"Select a folder to save the Image.iso file."_s);
        QCOMPARE(app.asked.panels.at(1).startFolder, QDir::home().filePath(u"Documents"_s));
        for (const OpenPanel &panel : std::as_const(app.asked.panels)) {
            QVERIFY(panel.choose == OpenPanel::Choose::Folder);
            QVERIFY(!panel.several);
        }
    }

    void aPanelWhoseFolderHasGoneStandsInTheNearestOne()
    {
        JobApplication app;
        WindowQuestions windows;
        ready(app);
        person::Expect<QFileDialog> panel([&app](QFileDialog *dialog) {
            QCOMPARE(dialog->directory().absolutePath(), app.media.path());
            person::pressTitled(dialog, u"Choose"_s);
        });
        OpenPanel asked;
        asked.choose = OpenPanel::Choose::Folder;
        asked.startFolder = app.media.filePath(u"gone/with all/its folders"_s);
        QCOMPARE(windows.choose(asked, app.window.get()), { QUrl::fromLocalFile(app.media.path()) });
        QVERIFY(panel.happened());
    }

    void noOtherJobBeginsBetweenTheStages()
    {
        JobApplication app;
        ready(app);
        app.insert(discs::writtenCDRW);
        slowDown(app);
        app.asked.choices = { { url(app, u"source"_s) }, { url(app, u"destination"_s) } };
        // Ten of them in each gap.
        QTimer impatience;
        connect(&impatience, &QTimer::timeout, this, [&app] {
            if (!app.controller->windowPerformingOperation && !app.controller->windowOperationCompleted)
                app.trigger("menuitemEraseQuick");
        });
        app.asked.onPanel = [&](const OpenPanel &) { impatience.start(10); };
        app.press("toolbar_btn_ISO_Create_ISO");
        QTRY_VERIFY_WITH_TIMEOUT(app.controller->windowPerformingOperation, longest);
        app.release(app.hdiutil, "done");
        QVERIFY(app.completes());
        QCOMPARE(app.drutil.runs(u"erase"_s), QList<QStringList>());
        QCOMPARE(app.hdiutil.runs().size(), 1);
        QCOMPARE(app.sheets.order().last(), u"+Window_Operation_Terminated"_s);
        QCOMPARE(app.sheets.order().size(), 3);
    }

    void theStagesAreATenthOfASecondApart()
    {
        JobApplication app;
        ready(app);
        slowDown(app);
        QElapsedTimer clock;
        QList<qint64> panels;
        qsizetype toolsAtPanels = 0;
        qint64 sheet = 0;
        app.asked.onPanel = [&](const OpenPanel &) {
            panels.append(clock.elapsed());
            toolsAtPanels += app.controller->activityLog->text().count(u"makehybrid"_s);
        };
        app.sheets.onShow = [&](Sheet *) { sheet = sheet == 0 ? clock.elapsed() : sheet; };
        app.asked.choices = { { url(app, u"source"_s) }, { url(app, u"destination"_s) } };
        clock.start();
        app.press("toolbar_btn_ISO_Create_ISO");
        QCOMPARE(panels.size(), 1);
        QTRY_VERIFY_WITH_TIMEOUT(app.controller->windowPerformingOperation, longest);
        QCOMPARE(panels.size(), 2);
        QCOMPARE(toolsAtPanels, 0);
        QCOMPARE(app.controller->activityLog->text().count(u"makehybrid"_s), 1);
        // However busy the machine is, no stage may come too early.
        QVERIFY(panels.at(1) - panels.at(0) >= 100);
        QVERIFY(sheet - panels.at(1) >= 200);
        app.release(app.hdiutil, "done");
        QVERIFY(app.completes());
    }

    void givingUpAtAPanelEndsSilently_data()
    {
        QTest::addColumn<int>("panel");
        QTest::newRow("at the first") << 1;
        QTest::newRow("at the second") << 2;
    }
    void givingUpAtAPanelEndsSilently()
    {
        QFETCH(int, panel);
        JobApplication app;
        ready(app);
        app.file(u"destination/image.iso"_s, "old");
        if (panel == 2)
            app.asked.choices = { { url(app, u"source"_s) } };
        app.press("toolbar_btn_ISO_Create_ISO");
        QTRY_COMPARE_WITH_TIMEOUT(app.asked.panels.size(), panel, longest);
        QTest::qWait(250);
        QCOMPARE(app.asked.panels.size(), panel);
        QCOMPARE(app.hdiutil.runs(), QList<QStringList>());
        QCOMPARE(app.sheets.order(), QStringList());
        QCOMPARE(app.texts(), QStringList());
        QVERIFY(QFile::exists(app.media.filePath(u"destination/image.iso"_s)));
        QCOMPARE(app.controller->SourcePath, panel == 2 ? app.media.filePath(u"source"_s) : QString());
        QCOMPARE(app.controller->DestPathISO, QString());
    }

    void aNewJobForgetsThePathsOfTheLast()
    {
        JobApplication app;
        ready(app);
        app.asked.choices = { { url(app, u"source"_s) }, { url(app, u"destination"_s) } };
        app.press("toolbar_btn_ISO_Create_ISO");
        QVERIFY(app.completes());
        QTest::keyClick(app.controller->windowOperationCompleted, Qt::Key_Return);
        QVERIFY(!app.controller->DestPathISO.isEmpty());
        app.press("toolbar_btn_ISO_Create_ISO");
        QCOMPARE(
            app.controller->SourcePath + app.controller->DestPath + app.controller->DestPathISO, QString());
    }

    void anImageThatIsThereIsReplacedWithoutAQuestion()
    {
        JobApplication app;
        ready(app);
        app.file(u"destination/image.iso"_s, "old");
        app.file(u"destination/Image.iso"_s, "another file");
        app.asked.choices = { { url(app, u"source"_s) }, { url(app, u"destination"_s) } };
        app.press("toolbar_btn_ISO_Create_ISO");
        QVERIFY(app.completes());
        QFile before(app.hdiutil.path() + u".before"_s);
        QVERIFY(before.open(QIODevice::ReadOnly));
        QCOMPARE(before.readAll(), QByteArray("Image.iso\n")); // the old image had gone before the tool began
        QCOMPARE(app.texts(), QStringList());
    }

    void aFastToolLeavesNoWorkingSheetBehind()
    {
        for (int round = 0; round < 3; ++round) {
            JobApplication app;
            ready(app);
            app.asked.choices = { { url(app, u"source"_s) }, { url(app, u"destination"_s) } };
            app.press("toolbar_btn_ISO_Create_ISO");
            QVERIFY(app.completes());
            QTest::qWait(200);
            QVERIFY(!app.controller->windowPerformingOperation);
            QCOMPARE(app.sheets.order().last(), u"+Window_Operation_Terminated"_s);
            QTest::keyClick(app.controller->windowOperationCompleted, Qt::Key_Return);
            QTRY_VERIFY_WITH_TIMEOUT(!QApplication::activeModalWidget(), longest);
        }
    }

    void aToolThatFailsIsTold()
    {
        JobApplication app;
        ready(app);
        app.hdiutil.run("echo 'There is no room left.' >&2; exit 1\n");
        app.asked.choices = { { url(app, u"source"_s) }, { url(app, u"destination"_s) } };
        app.press("toolbar_btn_ISO_Create_ISO");
        QVERIFY(app.completes());
        QCOMPARE(app.trouble(), u"There is no room left."_s);
    }

    void aMissingToolIsTold()
    {
        JobApplication app;
        app.around.hdiutil = app.folder.filePath(u"none"_s);
        ready(app);
        app.asked.choices = { { url(app, u"source"_s) }, { url(app, u"destination"_s) } };
        app.press("toolbar_btn_ISO_Create_ISO");
        QVERIFY(app.completes());
        QVERIFY(app.trouble().contains(u"could not be started"_s));
        QVERIFY(!app.controller->windowPerformingOperation);
    }

    void noWorkingFolderIsEmptied()
    {
        JobApplication app;
        ready(app);
        QVERIFY(QDir(app.controller->s_Data_Folder).mkdir(u"kept"_s));
        app.asked.choices = { { url(app, u"source"_s) }, { url(app, u"destination"_s) } };
        app.press("toolbar_btn_ISO_Create_ISO");
        QVERIFY(app.completes());
        QTest::keyClick(app.controller->windowOperationCompleted, Qt::Key_Return);
        app.asked.choices = { { QUrl::fromLocalFile(app.file(u"some.iso"_s)) } };
        app.press("toolbar_btn_ISO_Burn_ISO");
        QVERIFY(app.completes());
        QCOMPARE(app.namesIn(app.controller->s_Data_Folder), QStringList(u"kept"_s));
    }

    // ---- Writing an image

    void anImageIsWritten_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("medium");
        QTest::newRow("iso on a CD") << u"disc.iso"_s << discs::blankCD;
        QTest::newRow("img on a DVD") << u"disc.img"_s << discs::blankDVD;
        QTest::newRow("dmg on a Blu-ray") << u"disc.dmg"_s << discs::blankBD;
        QTest::newRow("on a disc to be erased") << u"disc.iso"_s << discs::writtenCDRW;
        QTest::newRow("awkward name") << u"-o \"%1\"\nΩ 'x'.ISO"_s << discs::blankOther;
    }
    void anImageIsWritten()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, medium);
        JobApplication app;
        ready(app);
        app.insert(medium);
        const QString image = app.file(name);
        app.asked.choices = { { QUrl::fromLocalFile(image) } };
        app.press("toolbar_btn_ISO_Burn_ISO");
        QCOMPARE(app.sheets.order(), QStringList(u"+Window_Performing_Operation"_s)); // at once
        QVERIFY(app.completes());
        const QList<QStringList> runs{ { u"burn"_s, image } };
        QCOMPARE(app.hdiutil.runs(), runs);
        QCOMPARE(app.texts(), QStringList());
        const QStringList sheets{ u"+Window_Performing_Operation"_s, u"-Window_Performing_Operation"_s,
            u"+Window_Operation_Terminated"_s };
        QCOMPARE(app.sheets.order(), sheets);
        QVERIFY(QFile::exists(image));
    }

    void theImageIsChosenInAPanelForOneFile()
    {
        JobApplication app;
        ready(app);
        app.insert(discs::none);
        app.trigger("menuitemISOBurn");
        QCOMPARE(app.asked.panels.size(), 1);
        const OpenPanel panel = app.asked.panels.first();
        QCOMPARE(panel.message, u"Select a ISO image to burn to media."_s);
        QVERIFY(panel.choose == OpenPanel::Choose::Files);
        QVERIFY(!panel.several);
        const QStringList accepted{ u"iso"_s, u"img"_s, u"dmg"_s };
        QCOMPARE(panel.extensions, accepted);
        // Nothing chosen: the drive is not even looked at.
        QCOMPARE(app.drutil.runs(u"status"_s), QList<QStringList>());
        QCOMPARE(app.texts(), QStringList());
        QCOMPARE(app.sheets.order(), QStringList());
    }

    void aDiscThatWillNotDoIsToldAfterTheChoice_data()
    {
        QTest::addColumn<QByteArray>("medium");
        QTest::addColumn<bool>("debug");
        QTest::addColumn<QStringList>("told");
        const QString noDisc =
            u"No disc | There is no disc on the drive. insert a writable media on the drive and "
            "try again."_s;
        const QString notWritable =
            u"Media not writable | The media on the drive is not writable. insert a writable "
            "media on the drive and try again."_s;
        const QString pressed = QString::fromUtf8(discs::pressedCD);
        QTest::newRow("none") << discs::none << false << QStringList(noDisc);
        QTest::newRow("none, debug mode") << discs::none << true << QStringList(noDisc);
        QTest::newRow("pressed") << discs::pressedCD << false << QStringList(notWritable);
        QTest::newRow("pressed, debug mode")
            << discs::pressedCD << true
            << QStringList{ pressed + u" | Warning 0030."_s, pressed + u" | Warning 0040."_s, notWritable };
    }
    void aDiscThatWillNotDoIsToldAfterTheChoice()
    {
        QFETCH(QByteArray, medium);
        QFETCH(bool, debug);
        QFETCH(QStringList, told);
        JobApplication app;
        ready(app);
        app.insert(medium);
        if (debug)
            app.trigger("menuitemDebugMode");
        app.asked.choices = { { QUrl::fromLocalFile(app.file(u"disc.iso"_s)) } };
        app.press("toolbar_btn_ISO_Burn_ISO");
        QCOMPARE(app.asked.panels.size(), 1);
        QCOMPARE(app.texts(), told);
        for (const Alert &alert : std::as_const(app.asked.alerts))
            QCOMPARE(alert.buttons, QStringList(u"Close"_s));
        QTest::qWait(150);
        QCOMPARE(app.hdiutil.runs(), QList<QStringList>());
        QCOMPARE(app.sheets.order(), QStringList());
    }
};

QTEST_MAIN(IsoImagesTest)
#include "IsoImagesTest.moc"
