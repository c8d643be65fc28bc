// After a burn: the same once more, and the disc out.
#include "support/JobApplication.h"
#include "support/Person.h"

using namespace Qt::StringLiterals;

class AnotherDiscTest : public QObject {
    Q_OBJECT

    static QPushButton *offered(const JobApplication &app, const char *name)
    {
        return app.controller->windowOperationCompleted->findChild<QPushButton *>(QLatin1String(name));
    }

    static void burnFolder(JobApplication &app)
    {
        app.launch();
        app.choose(6);
        QVERIFY(QDir(app.media.path()).mkpath(u"source"_s));
        app.addFolder(app.media.filePath(u"source"_s));
        app.press("btnBurn");
        QVERIFY(app.completes());
    }

private Q_SLOTS:
    void theSameListIsWrittenAgain()
    {
        JobApplication app;
        burnFolder(app);
        QCOMPARE(app.burned(), QStringList(u"source"_s));
        const QPushButton *ok = app.button(app.controller->windowOperationCompleted, QDialogButtonBox::Ok);
        QVERIFY(ok->isDefault() && ok->hasFocus());
        person::click(offered(app, "btnBurnAnother"));
        QVERIFY(app.completes());
        QCOMPARE(app.drutil.runs(u"burn"_s).size(), 2);
        QCOMPARE(app.drutil.runs(u"burn"_s).first(), app.drutil.runs(u"burn"_s).last());
        QCOMPARE(app.burned(), QStringList(u"source"_s));
    }

    void theSameChecksAreMade()
    {
        JobApplication app;
        burnFolder(app);
        app.insert(discs::pressedCD);
        person::click(offered(app, "btnBurnAnother"));
        QCOMPARE(app.texts().size(), 1);
        QVERIFY(app.texts().first().startsWith(u"Media not writable"_s));
        QCOMPARE(app.drutil.runs(u"burn"_s).size(), 1);
        QVERIFY(!app.controller->windowOperationCompleted);
    }

    void theDiscIsEjectedAndTheSheetStays()
    {
        JobApplication app;
        app.burnWith("echo 'Burning in drive 7: ACME BURNER.'\n");
        burnFolder(app);
        QPushButton *eject = offered(app, "btnEject");
        person::click(eject);
        // The drive that has the disc, whichever is chosen now.
        QCOMPARE(app.drutil.runs(u"tray"_s),
            QList<QStringList>({ { u"tray"_s, u"eject"_s, u"-drive"_s, u"7"_s } }));
        QVERIFY(app.controller->windowOperationCompleted);
        QVERIFY(!eject->isEnabled());
        QVERIFY(app.button(app.controller->windowOperationCompleted, QDialogButtonBox::Ok)->hasFocus());
    }

    void anImageIsWrittenAgain()
    {
        JobApplication app;
        app.launch();
        app.trigger("submenuItemTabISO");
        const QString image = app.file(u"a.iso"_s);
        app.asked.choices = { { QUrl::fromLocalFile(image) } };
        app.press("toolbar_btn_ISO_Burn_ISO");
        QVERIFY(app.completes());
        person::click(offered(app, "btnBurnAnother"));
        QVERIFY(app.completes());
        QCOMPARE(app.hdiutil.runs(), QList<QStringList>({ { u"burn"_s, image }, { u"burn"_s, image } }));
        QCOMPARE(app.asked.panels.size(), 1);
    }

    void whatCannotBeRepeatedIsNotOffered()
    {
        JobApplication app;
        app.insert(discs::writtenCDRW);
        app.launch();
        app.trigger("menuitemEraseQuick");
        QVERIFY(app.completes());
        QVERIFY(!offered(app, "btnBurnAnother"));
        QVERIFY(offered(app, "btnEject"));
    }

    void aStoppedJobIsNotRepeated()
    {
        JobApplication app;
        app.burnWith(
            "i=0; until [ -e \"$tool.never\" ] || [ $i -gt 1200 ]; do sleep 0.05; i=$((i+1)); done\n");
        app.launch();
        app.choose(6);
        QVERIFY(QDir(app.media.path()).mkpath(u"source"_s));
        app.addFolder(app.media.filePath(u"source"_s));
        app.press("btnBurn");
        QTRY_VERIFY_WITH_TIMEOUT(app.controller->windowPerformingOperation, 60'000);
        app.controller->job->stop();
        QVERIFY(app.completes());
        QVERIFY(!offered(app, "btnBurnAnother"));
    }
};

QTEST_MAIN(AnotherDiscTest)
#include "AnotherDiscTest.moc"
