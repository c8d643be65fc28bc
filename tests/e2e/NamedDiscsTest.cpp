// The name that a person gives a disc and the speed that one chooses, on written discs and in the tools' words.
#include "runner/ActivityLog.h"
#include "support/WholeMachine.h"

#include <QLineEdit>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace {

/// The name of the volume, by an independent reader.
QString volumeOf(const QString &image)
{
    const QString label = u"Volume id: "_s;
    const QString text = QString::fromUtf8(runWell(u"isoinfo"_s, { u"-d"_s, u"-i"_s, image }));
    return text.mid(text.indexOf(label) + label.size()).section(u'\n', 0, 0);
}

void type(const WholeMachine &machine, const QString &name)
{
    auto *field = machine.element<QLineEdit>("editDiscName");
    person::clickAt(field, field->rect().center());
    QTest::keyClicks(field, name);
}

} // namespace

class NamedDiscsTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { emptyHome(); }
    void cleanup()
    {
        qunsetenv("CORVALIS_VOLUME");
        qunsetenv("CORVALIS_SPEED");
    }

    void aDataDiscHasTheName()
    {
        WholeMachine machine;
        makeFile(machine.mediaPath(u"folder/file"_s), "content");
        machine.choose(6);
        QVERIFY(machine.addFolder(machine.mediaPath(u"folder"_s)));
        type(machine, u"Holiday 2026"_s);
        machine.press("btnBurn");
        QVERIFY(machine.completes());
        QCOMPARE(machine.trouble(), QString());
        QCOMPARE(volumeOf(machine.recorder.iso()), u"Holiday 2026"_s);
    }

    void withoutANameTheEngineChooses()
    {
        WholeMachine machine;
        makeFile(machine.mediaPath(u"folder/file"_s), "content");
        machine.choose(6);
        QVERIFY(machine.addFolder(machine.mediaPath(u"folder"_s)));
        machine.press("btnBurn");
        QVERIFY(machine.completes());
        QCOMPARE(volumeOf(machine.recorder.iso()), u"folder"_s);
    }

    void anImageHasTheName()
    {
        WholeMachine machine;
        makeFile(machine.mediaPath(u"source/file"_s), "content");
        QVERIFY(QDir().mkpath(machine.mediaPath(u"target"_s)));
        person::choose(machine.window.get(), "submenuItemTabISO");
        type(machine, u"My Image"_s);
        AppDelegate &controller = *machine.controller;
        NotingQuestions answers;
        answers.choices = { { QUrl::fromLocalFile(machine.mediaPath(u"source"_s)) },
            { QUrl::fromLocalFile(machine.mediaPath(u"target"_s)) } };
        controller.around.questions = &answers;
        machine.press("toolbar_btn_ISO_Create_ISO");
        QVERIFY(machine.completes());
        QCOMPARE(volumeOf(machine.mediaPath(u"target/image.iso"_s)), u"My Image"_s);
    }

    void theNextDiscIsTheSame()
    {
        WholeMachine machine;
        makeFile(machine.mediaPath(u"folder/file"_s), "content");
        machine.choose(6);
        QVERIFY(machine.addFolder(machine.mediaPath(u"folder"_s)));
        type(machine, u"Twice"_s);
        machine.press("btnBurn");
        QVERIFY(machine.completes());
        person::click(machine.controller->windowOperationCompleted, "btnEject");
        QCOMPARE(machine.recorder.ejectedDiscs().size(), 1);
        person::click(machine.controller->windowOperationCompleted, "btnBurnAnother");
        QVERIFY(machine.completes());
        QCOMPARE(machine.trouble(), QString());
        QCOMPARE(volumeOf(machine.recorder.iso()), u"Twice"_s);
        QCOMPARE(volumeOf(machine.recorder.path(u"discs/"_s + machine.recorder.ejectedDiscs().first())),
            u"Twice"_s);
    }

    void theEngineIsToldTheSpeed_data()
    {
        QTest::addColumn<bool>("chosen");
        QTest::newRow("fastest, chosen") << true;
        QTest::newRow("nothing chosen") << false;
    }
    void theEngineIsToldTheSpeed()
    {
        QFETCH(bool, chosen);
        WholeMachine machine;
        makeFile(machine.mediaPath(u"folder/file"_s), "content");
        if (chosen) {
            auto *menu = machine.element<QMenu>("submenuSpeed");
            menu->popup({});
            person::choose(machine.window.get(), "menuitemSpeedFastest");
            menu->close();
        }
        machine.choose(6);
        QVERIFY(machine.addFolder(machine.mediaPath(u"folder"_s)));
        machine.press("btnBurn");
        QVERIFY(machine.completes());
        // The engine tells a speed only to who wished for one.
        QCOMPARE(machine.controller->activityLog->text().contains(u"The drive names no speeds"_s), chosen);
        QCOMPARE(machine.trouble(), QString());
    }
};

QTEST_MAIN(NamedDiscsTest)
#include "NamedDiscsTest.moc"
