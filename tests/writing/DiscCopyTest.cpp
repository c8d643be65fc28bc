// Copying a disc with one drive: the image, the eject, the prompt for a blank, the write.
#include "support/JobApplication.h"

using namespace Qt::StringLiterals;

namespace {

const QString prompt =
    u"Insert a writable media and click OK or click Cancel to stop the media duplication."_s;
const QString promptAlert = prompt + u" | "_s + prompt;
const QString noDiscAlert =
    u"No disc | There is no disc on the drive. insert a writable media on the drive and try "
    "again."_s;
const QString notWritableAlert =
    u"Media not writable | The media on the drive is not writable. insert a writable "
    "media on the drive and try again."_s;

} // namespace

class DiscCopyTest : public QObject {
    Q_OBJECT

    static QString image(const JobApplication &app)
    {
        return app.controller->s_Data_Folder + u"/image.iso"_s;
    }

    /// An application in which a volume is chosen and the image is made.
    static void ready(JobApplication &app)
    {
        app.insert(discs::pressedCD);
        app.hdiutil.run("tool=$0\ncase \"$1\" in\n"
                        "makehybrid) ls -A \"$(dirname \"$3\")\" > \"$0.before\"; echo image > \"$3\";;\n"
                        "burn) cat \"$2\" > \"$0.burned\";;\nesac\n");
        app.file(u"volume/track"_s);
        app.launch();
        app.asked.choices = { { QUrl::fromLocalFile(app.media.filePath(u"volume"_s)) } };
    }

    static QByteArray noted(const JobApplication &app, const char *name)
    {
        QFile file(app.hdiutil.path() + QLatin1StringView(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("not there");
    }

    /// Lays the medium that is found after each of the coming prompts.
    static void layMedia(JobApplication &app, const QList<QByteArray> &media)
    {
        app.asked.onAlert = [&app, media, next = 0](const Alert &alert) mutable {
            if (alert.message == prompt && next < media.size())
                app.insert(media.at(next++));
        };
    }

private Q_SLOTS:
    void noOtherJobBeginsBetweenTheEjectAndThePrompt()
    {
        JobApplication app;
        ready(app);
        layMedia(app, { discs::blankDVD });
        app.trigger("submenuItemTabData");
        app.file(u"photos/beach.jpg"_s);
        app.addFolder(app.media.filePath(u"photos"_s));
        app.insert(discs::pressedCD);
        app.sheets.clear();
        app.sheets.onHide = [&app](Sheet *sheet) {
            if (sheet->inherits("Window_Performing_Operation") && app.hdiutil.runs(u"burn"_s).isEmpty()) {
                app.insert(discs::blankCD);
                QTimer::singleShot(0, sheet->parentWidget(), [&app] { app.press("btnBurn"); });
            }
        };
        app.press("toolbar_btn_Data_Copy_Disc");
        QVERIFY(app.completes());
        QCOMPARE(noted(app, ".burned"), QByteArray("image\n"));
        QCOMPARE(app.drutil.runs(u"burn"_s), QList<QStringList>());
        QVERIFY(!app.sheets.order().contains(u"+Window_Data_Copy_Folders"_s));
    }

    void aDiscIsCopied_data()
    {
        QTest::addColumn<int>("tab");
        QTest::addColumn<QByteArray>("button");
        QTest::newRow("audio tab") << 1 << QByteArray("toolbar_btn_Audio_Copy_Disc");
        QTest::newRow("video tab") << 2 << QByteArray("toolbar_btn_Video_Copy_Disc");
        QTest::newRow("data tab") << 3 << QByteArray("toolbar_btn_Data_Copy_Disc");
        QTest::newRow("menu") << 3 << QByteArray("menuitemCopyDisc");
    }
    void aDiscIsCopied()
    {
        QFETCH(int, tab);
        QFETCH(QByteArray, button);
        JobApplication app;
        ready(app);
        layMedia(app, { discs::blankDVD });
        QVERIFY(QDir(app.controller->s_Data_Folder).mkdir(u"left over"_s));
        app.trigger(tab == 1 ? "submenuItemTabAudio"
                : tab == 2   ? "submenuItemTabVideo"
                             : "submenuItemTabData");
        if (button.startsWith("menu"))
            app.trigger(button.constData());
        else
            app.press(button.constData());
        QVERIFY(app.completes());

        const QString volume = app.media.filePath(u"volume"_s);
        const QList<QStringList> images{ { u"makehybrid"_s, u"-o"_s, image(app), volume, u"-iso"_s,
                                             u"-joliet"_s },
            { u"burn"_s, image(app) } };
        QCOMPARE(app.hdiutil.runs(), images);
        const QStringList eject{ u"tray"_s, u"eject"_s, u"-drive"_s, u"1"_s };
        const QStringList status{ u"status"_s, u"-drive"_s, u"1"_s };
        const QList<QStringList> drive{ { u"list"_s }, status, eject, status, status };
        QCOMPARE(app.drutil.runs(), drive);
        QCOMPARE(noted(app, ".before"), QByteArray());
        QCOMPARE(noted(app, ".burned"), QByteArray("image\n"));
        QCOMPARE(app.texts(), QStringList(promptAlert));
        const QStringList buttons{ u"OK"_s, u"Cancel"_s };
        QCOMPARE(app.asked.alerts.first().buttons, buttons);
        const QStringList sheets{ u"+Window_Performing_Operation"_s, u"-Window_Performing_Operation"_s,
            u"+Window_Performing_Operation"_s, u"-Window_Performing_Operation"_s,
            u"+Window_Operation_Terminated"_s };
        QCOMPARE(app.sheets.order(), sheets);
        QCOMPARE(app.namesIn(app.controller->s_Data_Folder), QStringList());
    }

    void theSourceIsChosenInAPanelForFolders()
    {
        JobApplication app;
        ready(app);
        app.asked.choices.clear();
        app.press("toolbar_btn_Audio_Copy_Disc");
        QCOMPARE(app.asked.panels.size(), 1);
        const OpenPanel panel = app.asked.panels.first();
        QCOMPARE(panel.message, u"Select a volume to duplicate."_s);
        QVERIFY(panel.choose == OpenPanel::Choose::Folder);
        QVERIFY(!panel.several);
        // Not confirmed: nothing follows.
        QTest::qWait(150);
        QCOMPARE(app.hdiutil.runs(), QList<QStringList>());
        QCOMPARE(app.drutil.runs(u"tray"_s), QList<QStringList>());
        QCOMPARE(app.texts(), QStringList());
        QCOMPARE(app.sheets.order(), QStringList());
    }

    void anEmptyDriveIsToldInTheWordsOfACopy()
    {
        JobApplication app;
        ready(app);
        app.insert(discs::none);
        QVERIFY(QDir(app.controller->s_Data_Folder).mkdir(u"kept"_s));
        app.press("toolbar_btn_Audio_Copy_Disc");
        QTest::qWait(150);
        QCOMPARE(app.texts(),
            QStringList(u"No disc | There is no disc on the drive. insert a media on the drive to copy "
                        "and try again."_s));
        QCOMPARE(app.asked.alerts.first().buttons, QStringList(u"Close"_s));
        QCOMPARE(app.asked.panels.size(), 0);
        QCOMPARE(app.hdiutil.runs(), QList<QStringList>());
        QCOMPARE(app.namesIn(app.controller->s_Data_Folder), QStringList(u"kept"_s));
    }

    void theSourceDiscNeedNotBeOfAnyKind()
    {
        JobApplication app;
        ready(app);
        app.insert("no drive speaks like this");
        layMedia(app, { discs::blankBD });
        app.press("toolbar_btn_Audio_Copy_Disc");
        QVERIFY(app.completes());
        QCOMPARE(app.texts(), QStringList(promptAlert));
    }

    void thePromptReturnsUntilADiscCanBeWritten()
    {
        JobApplication app;
        ready(app);
        layMedia(app, { discs::none, discs::pressedCD, discs::none, discs::writtenCDRW });
        app.press("toolbar_btn_Audio_Copy_Disc");
        QVERIFY(app.completes());
        const QStringList expected{ promptAlert, noDiscAlert, promptAlert, notWritableAlert, promptAlert,
            noDiscAlert, promptAlert };
        QCOMPARE(app.texts(), expected);
        QCOMPARE(app.hdiutil.runs(u"burn"_s).size(), 1);
    }

    void debugModeShowsWhatTheProbesReadAtThePrompt()
    {
        JobApplication app;
        ready(app);
        app.trigger("menuitemDebugMode");
        layMedia(app, { discs::pressedCD, discs::blankCD });
        app.press("toolbar_btn_Audio_Copy_Disc");
        QVERIFY(app.completes());
        const QString pressed = QString::fromUtf8(discs::pressedCD);
        const QStringList expected{ promptAlert, pressed + u" | Warning 0030."_s,
            pressed + u" | Warning 0040."_s, notWritableAlert, promptAlert };
        QCOMPARE(app.texts(), expected);
    }

    void cancellingThePromptDeletesTheImage_data()
    {
        QTest::addColumn<int>("promptsBefore");
        QTest::newRow("at once") << 0;
        QTest::newRow("after two discs that would not do") << 2;
    }
    void cancellingThePromptDeletesTheImage()
    {
        QFETCH(int, promptsBefore);
        JobApplication app;
        ready(app);
        bool imageWasThere = false;
        QSignalSpy completed(app.controller.get(), &AppDelegate::operationCompleted);
        app.asked.onAlert = [&](const Alert &) { imageWasThere = QFile::exists(image(app)); };
        for (int i = 0; i < promptsBefore; ++i)
            app.asked.buttons.append({ 0, 0 }); // the prompt's OK, the alert's Close
        app.asked.buttons.append(1);
        app.press("toolbar_btn_Audio_Copy_Disc");
        QTRY_COMPARE_WITH_TIMEOUT(app.texts().size(), promptsBefore * 2 + 1, 60'000);
        QTRY_COMPARE(app.namesIn(app.controller->s_Data_Folder), QStringList());
        QVERIFY(imageWasThere);
        QTest::qWait(150);
        QCOMPARE(app.hdiutil.runs(u"burn"_s), QList<QStringList>());
        QCOMPARE(completed.count(), 0);
        QVERIFY(!app.controller->windowOperationCompleted);
        QVERIFY(!app.controller->windowPerformingOperation);
        QCOMPARE(app.drutil.runs(u"tray"_s).size(), 1);
    }

    void theDiscIsEjectedAfterTheSheetHasGoneAndBeforeThePrompt()
    {
        JobApplication app;
        ready(app);
        layMedia(app, { discs::blankCD });
        qsizetype ejectsAtHide = -1;
        qsizetype ejectsAtPrompt = -1;
        QElapsedTimer sinceHide;
        qint64 wait = 0;
        app.sheets.onHide = [&](Sheet *) {
            if (ejectsAtHide < 0) {
                ejectsAtHide = app.drutil.runs(u"tray"_s).size();
                sinceHide.start();
            }
        };
        const auto lay = app.asked.onAlert;
        app.asked.onAlert = [&](const Alert &alert) {
            ejectsAtPrompt = app.drutil.runs(u"tray"_s).size();
            wait = sinceHide.elapsed();
            QVERIFY(!app.controller->windowPerformingOperation);
            lay(alert);
        };
        app.press("toolbar_btn_Audio_Copy_Disc");
        QVERIFY(app.completes());
        QCOMPARE(ejectsAtHide, 0);
        QCOMPARE(ejectsAtPrompt, 1);
        QVERIFY(wait >= 90);
    }

    void anImageThatFailsLeadsOnAndIsTold()
    {
        JobApplication app;
        ready(app);
        app.hdiutil.run("echo 'The disc cannot be read.'; exit 1\n");
        layMedia(app, { discs::blankCD });
        app.press("toolbar_btn_Audio_Copy_Disc");
        QVERIFY(app.completes());
        QCOMPARE(app.hdiutil.runs(u"burn"_s).size(), 1);
        QCOMPARE(app.drutil.runs(u"tray"_s).size(), 1);
        QCOMPARE(app.trouble(), u"The disc cannot be read."_s);
        QCOMPARE(app.namesIn(app.controller->s_Data_Folder), QStringList());
    }

    void aMissingImageToolLeadsOnAndIsTold()
    {
        JobApplication app;
        app.around.hdiutil = app.folder.filePath(u"none"_s);
        ready(app);
        layMedia(app, { discs::blankCD });
        app.press("toolbar_btn_Audio_Copy_Disc");
        QVERIFY(app.completes());
        QVERIFY(app.trouble().contains(u"could not be started"_s));
    }

    void theChosenDriveIsEjected()
    {
        JobApplication app;
        app.drutil.print(u"list"_s,
            "header\n"
            "1  ACME     Reader            1.0   SATA      Supported\n"
            "7  ACME     Writer            1.0   SATA      Supported\n");
        ready(app);
        app.trigger("submenuItemDriveSlot2");
        layMedia(app, { discs::blankCD });
        app.press("toolbar_btn_Audio_Copy_Disc");
        QVERIFY(app.completes());
        const QList<QStringList> tray{ { u"tray"_s, u"eject"_s, u"-drive"_s, u"7"_s } };
        QCOMPARE(app.drutil.runs(u"tray"_s), tray);
        QCOMPARE(app.hdiutil.runs(u"burn"_s).first().size(), 2);
    }

    void anAwkwardVolumeIsPassedAsItIs()
    {
        JobApplication app;
        ready(app);
        const QString volume = app.media.filePath(u"-o \"Vol %1\"\nΩ"_s);
        QVERIFY(QDir().mkpath(volume));
        app.asked.choices = { { QUrl::fromLocalFile(volume) } };
        layMedia(app, { discs::blankCD });
        app.press("toolbar_btn_Audio_Copy_Disc");
        QVERIFY(app.completes());
        QCOMPARE(app.hdiutil.runs().first().at(3), volume);
    }
};

QTEST_MAIN(DiscCopyTest)
#include "DiscCopyTest.moc"
