// The name of the disc: where it is offered, when it goes, and what the tools are told.
#include "support/JobApplication.h"
#include "writing/DiscNameField.h"

#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

constexpr const char *variable = "CORVALIS_VOLUME";

} // namespace

class DiscNamingTest : public QObject {
    Q_OBJECT

    static void type(const JobApplication &app, const QString &name)
    {
        auto *field = app.element<QLineEdit>("editDiscName");
        field->setFocus();
        field->clear();
        field->insert(name); // as an input method does
    }

private Q_SLOTS:
    void init() { qunsetenv(variable); }
    void cleanup() { qunsetenv(variable); }

    void isOfferedWhereADiscHasOne_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<bool>("offered");
        for (int code = 1; code <= 8; ++code)
            QTest::addRow("%d", code) << code << (code != 1);
    }
    void isOfferedWhereADiscHasOne()
    {
        QFETCH(int, code);
        JobApplication app;
        app.launch();
        const auto *field = app.element<QWidget>("customviewDiscName");
        QVERIFY(!field->isVisible());
        app.choose(code);
        QTEST(field->isVisible(), "offered");
        app.trigger("submenuItemTabTools");
        QVERIFY(!field->isVisible());
        app.trigger("submenuItemTabISO");
        QVERIFY(field->isVisible());
        app.trigger("submenuItemTabAudio");
        QCOMPARE(field->isVisible(), code == 2 || code == 3);
        app.press("btnMP3CD");
        QVERIFY(field->isVisible());
        app.press("btnAudioCD");
        QVERIFY(!field->isVisible());
    }

    void theToolsAreToldWhatIsTyped()
    {
        JobApplication app;
        AppDelegate &controller = app.launch();
        app.choose(6);
        QVERIFY(!qEnvironmentVariableIsSet(variable));
        type(app, u" Käse 1 "_s);
        QCOMPARE(qgetenv(variable), QByteArray("Käse 1"));
        QCOMPARE(controller.s_Disc_Name, u" Käse 1 "_s);
        QCOMPARE(app.element<QLabel>("labelDiscNameSentence")->text(),
            u"Where only plain letters are known, “ä” becomes “_”."_s);
        type(app, u"Cheese"_s);
        QCOMPARE(app.element<QLabel>("labelDiscNameSentence")->text(), u"6 of 32"_s);
        controller.setDiscName({});
        QVERIFY(!qEnvironmentVariableIsSet(variable));
        QVERIFY(!app.element<QLabel>("labelDiscNameSentence")->isVisible());
    }

    void whatWasThereAtTheStartComesBack()
    {
        qputenv(variable, "From outside");
        JobApplication app;
        AppDelegate &controller = app.launch();
        controller.setDiscName(u"Mine"_s);
        QCOMPARE(qgetenv(variable), "Mine");
        controller.setDiscName({});
        QCOMPARE(qgetenv(variable), "From outside");
    }

    void aWrongNameIsMarkedAndNotPassedOn()
    {
        JobApplication app;
        app.launch();
        app.choose(6);
        type(app, QString(33, u'x'));
        QVERIFY(!qEnvironmentVariableIsSet(variable));
        const auto *sentence = app.element<QLabel>("labelDiscNameSentence");
        QVERIFY(sentence->isVisible());
        QCOMPARE(sentence->text(), u"The name has 33 characters; a disc takes 32."_s);
        QVERIFY(app.element<QAction>("markDiscName"));
        QTest::keyClick(app.element<QLineEdit>("editDiscName"), Qt::Key_Backspace);
        QVERIFY(!app.element<QAction>("markDiscName"));
        QCOMPARE(qgetenv(variable), QByteArray(32, 'x'));
    }

    void aDiscWithAWrongNameIsNotWritten()
    {
        JobApplication app;
        AppDelegate &controller = app.launch();
        app.choose(6);
        controller.arrayDataFolders.append({ app.media.path(), 1, u"1 KB"_s });
        controller.setDiscName(u"a\nb"_s);
        app.press("btnBurn");
        QCOMPARE(app.texts(),
            QStringList(u"The disc cannot have this name | The name holds a character that cannot be seen. "
                        "Change the name and try again."_s));
        QVERIFY(!controller.job);
        QCOMPARE(app.drutil.runs(u"burn"_s).size(), 0);
    }

    void theNameGoesWithTheList()
    {
        JobApplication app;
        AppDelegate &controller = app.launch();
        app.choose(6);
        controller.setDiscName(u"Early"_s);
        app.trigger("submenuItemTabVideo"); // nothing was listed: it is for what comes
        QCOMPARE(controller.s_Disc_Name, u"Early"_s);
        app.trigger("submenuItemTabData");
        controller.arrayDataFolders.append({ app.media.path(), 1, u"1 KB"_s });
        app.trigger("submenuItemTabISO"); // keeps the lists
        QCOMPARE(controller.s_Disc_Name, u"Early"_s);
        app.trigger("submenuItemTabVideo");
        QCOMPARE(controller.s_Disc_Name, QString());
        controller.setDiscName(u"Late"_s);
        app.choose(4);
        QCOMPARE(controller.s_Disc_Name, QString());
        QVERIFY(!qEnvironmentVariableIsSet(variable));
    }

    void undoingBringsTheNameBack()
    {
        JobApplication app;
        AppDelegate &controller = app.launch();
        app.choose(6);
        QVERIFY(QDir(app.media.path()).mkpath(u"source"_s));
        app.addFolder(app.media.filePath(u"source"_s));
        QTRY_COMPARE(controller.arrayDataFolders.size(), 1);
        QCoreApplication::processEvents(); // the step is noted
        controller.setDiscName(u"Mine"_s);
        QCoreApplication::processEvents();
        app.choose(6);
        QCOMPARE(controller.s_Disc_Name, QString());
        QCoreApplication::processEvents();
        app.trigger("menuitemUndo");
        QCOMPARE(controller.s_Disc_Name, u"Mine"_s);
        QCOMPARE(qgetenv(variable), "Mine");
    }

    void theToolsOfAJobAreTold_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QByteArray>("told");
        QTest::newRow("data") << 6 << QByteArray("Mine");
        QTest::newRow("audio") << 1 << QByteArray("not set");
    }
    void theToolsOfAJobAreTold()
    {
        QFETCH(int, code);
        JobApplication app;
        app.burnWith("echo \"${CORVALIS_VOLUME-not set}\" > \"$tool.volume\"\n");
        AppDelegate &controller = app.launch();
        app.choose(code);
        controller.setDiscName(u"Mine"_s);
        if (code == 6) {
            QVERIFY(QDir(app.media.path()).mkpath(u"source"_s));
            app.addFolder(app.media.filePath(u"source"_s));
        } else {
            QVERIFY(app.add({ app.file(u"a.mp3"_s) }));
        }
        app.press("btnBurn");
        QVERIFY(app.completes());
        QFile told(app.drutil.path() + u".volume"_s);
        QVERIFY(told.open(QIODevice::ReadOnly));
        QTEST(told.readAll().trimmed(), "told");
        QCOMPARE(qgetenv(variable), "Mine"); // for the next one
    }
};

QTEST_MAIN(DiscNamingTest)
#include "DiscNamingTest.moc"
