// Drive > Writing Speed: what is offered, what is kept, and what the tools are told.
#include "support/Person.h"
#include "support/TestApplication.h"

#include <QMenu>
#include <QSettings>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr const char *twoDrives = "   Vendor   Product           Rev   Bus       SupportLevel\n"
                                  "1  ACME     BURNER/1          1.00  SATA      Supported\n"
                                  "2  OTHER    WRITER            1.00  SATA      Supported\n";
const QByteArray disc = "               Type: CD-R                 Name: /dev/sr0\n"
                        "       Write Speeds: 2.4x, 16x, 48x\n"
                        "        Writability: appendable, blank, overwritable\n";

} // namespace

class SpeedMenuTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void nothingIsAskedBeforeTheMenuIsOpened();
    void offersWhatTheDriveTells();
    void aDriveWithoutSpeeds_data();
    void aDriveWithoutSpeeds();
    void theChoiceIsKeptForEachDrive();
    void aKeptValueThatIsNoSpeedIsIgnored();
    void whatWasThereAtTheStartComesBack();
    void theAnswerOfTheDriveBeforeIsDropped();
    void whatIsKnownIsNotAskedAgain();

private:
    /// Opens the submenu as a person does and waits for the drive's answer; the texts of what it offers.
    QStringList open();
    QMenu *menu() const { return m_app->element<QMenu>("submenuSpeed"); }
    QString chosen() const;

    std::unique_ptr<TestApplication> m_app;
};

void SpeedMenuTest::init()
{
    emptyHome();
    qunsetenv("CORVALIS_SPEED");
    m_app = std::make_unique<TestApplication>();
    m_app->drutil.print(u"list"_s, twoDrives);
    m_app->drutil.print(u"status"_s, disc);
}

void SpeedMenuTest::cleanup()
{
    m_app.reset();
    qunsetenv("CORVALIS_SPEED");
}

QStringList SpeedMenuTest::open()
{
    menu()->popup({});
    const auto texts = [this] {
        QStringList found;
        for (const QAction *action : menu()->actions()) {
            if (!action->isSeparator())
                found.append(action->text().remove(u'&'));
        }
        return found;
    };
    if (!QTest::qWaitFor([&] { return !texts().contains(u"The drive is being asked…"_s); }, person::patience))
        qWarning() << "the drive gives no answer";
    const QStringList found = texts();
    menu()->close();
    return found;
}

QString SpeedMenuTest::chosen() const
{
    QStringList found;
    for (const QAction *action : menu()->actions()) {
        if (action->isChecked())
            found.append(action->objectName());
    }
    return found.join(u' ');
}

void SpeedMenuTest::nothingIsAskedBeforeTheMenuIsOpened()
{
    m_app->launch();
    person::choose(m_app->window.get(), "submenuItemDriveSlot2");
    QCOMPARE(m_app->drutil.runs(), QList<QStringList>({ { u"list"_s } }));
    QVERIFY(!qEnvironmentVariableIsSet("CORVALIS_SPEED"));
}

void SpeedMenuTest::offersWhatTheDriveTells()
{
    m_app->launch();
    QCOMPARE(open(), QStringList({ u"Fastest"_s, u"48×"_s, u"16×"_s, u"2.4×"_s }));
    QCOMPARE(m_app->drutil.runs(u"status"_s), QList<QStringList>({ { u"status"_s, u"-drive"_s, u"1"_s } }));
    QCOMPARE(chosen(), u"menuitemSpeedFastest"_s);
}

void SpeedMenuTest::aDriveWithoutSpeeds_data()
{
    QTest::addColumn<QByteArray>("status");
    QTest::addColumn<QString>("line");
    QTest::newRow("nothing printed") << QByteArray() << u"The drive does not answer"_s;
    QTest::newRow("no disc") << QByteArray("  Type: No Media Inserted\n")
                             << u"There is no disc in the drive"_s;
    QTest::newRow("no speeds") << QByteArray("  Type: CD-R\n Writability: blank, overwritable\n")
                               << u"The drive names no speeds for its disc"_s;
}

void SpeedMenuTest::aDriveWithoutSpeeds()
{
    QFETCH(QByteArray, status);
    QFETCH(QString, line);
    m_app->drutil.print(u"status"_s, status);
    m_app->launch();
    QCOMPARE(open(), QStringList({ u"Fastest"_s, line }));
    QVERIFY(!menu()->actions().last()->isEnabled());
}

void SpeedMenuTest::theChoiceIsKeptForEachDrive()
{
    m_app->launch();
    open();
    person::choose(m_app->window.get(), "menuitemSpeed_2.4");
    QCOMPARE(qgetenv("CORVALIS_SPEED"), "2.4");
    person::choose(m_app->window.get(), "submenuItemDriveSlot2");
    QVERIFY(!qEnvironmentVariableIsSet("CORVALIS_SPEED"));
    open();
    QCOMPARE(chosen(), u"menuitemSpeedFastest"_s);
    person::choose(m_app->window.get(), "menuitemSpeedFastest");
    QCOMPARE(qgetenv("CORVALIS_SPEED"), "max");

    m_app = std::make_unique<TestApplication>();
    m_app->drutil.print(u"list"_s, twoDrives);
    m_app->drutil.print(u"status"_s, "  Type: DVD-R\n       Write Speeds: 4x\n");
    m_app->launch();
    person::choose(m_app->window.get(), "submenuItemDriveSlot1");
    QCOMPARE(qgetenv("CORVALIS_SPEED"), "2.4");
    // What was chosen with another disc stays in sight.
    QCOMPARE(open(), QStringList({ u"Fastest"_s, u"4×"_s, u"2.4×"_s }));
    QCOMPARE(chosen(), u"menuitemSpeed_2.4"_s);
}

void SpeedMenuTest::aKeptValueThatIsNoSpeedIsIgnored()
{
    QSettings(u"Corvalis"_s, u"Corvalis"_s).setValue(u"Corvalis_Speed_ACME - BURNER_1"_s, u"8; rm -rf"_s);
    m_app->launch();
    QVERIFY(!qEnvironmentVariableIsSet("CORVALIS_SPEED"));
    open();
    QCOMPARE(chosen(), u"menuitemSpeedFastest"_s);
}

void SpeedMenuTest::whatWasThereAtTheStartComesBack()
{
    qputenv("CORVALIS_SPEED", "8");
    m_app->launch();
    QCOMPARE(qgetenv("CORVALIS_SPEED"), "8");
    QCOMPARE(open(), QStringList({ u"Fastest"_s, u"48×"_s, u"16×"_s, u"8×"_s, u"2.4×"_s }));
    QCOMPARE(chosen(), u"menuitemSpeed_8"_s);
    person::choose(m_app->window.get(), "menuitemSpeed_16");
    QCOMPARE(qgetenv("CORVALIS_SPEED"), "16");
    person::choose(m_app->window.get(), "submenuItemDriveSlot2");
    QCOMPARE(qgetenv("CORVALIS_SPEED"), "8");
}

void SpeedMenuTest::theAnswerOfTheDriveBeforeIsDropped()
{
    // Drive 1 answers when the other one is asked, and in other words.
    m_app->drutil.run("if [ \"$1 $3\" = 'status 1' ]; then\n"
                      "  i=0; until [ -e \"$0.second\" ] || [ $i -gt 400 ]; do sleep 0.05; i=$((i+1)); done\n"
                      "  echo 'Write Speeds: 99x'\n"
                      "elif [ \"$1\" = status ]; then : > \"$0.second\"; sleep 0.3; fi\n");
    m_app->launch();
    menu()->popup({});
    menu()->close();
    person::choose(m_app->window.get(), "submenuItemDriveSlot2");
    QCOMPARE(open(), QStringList({ u"Fastest"_s, u"48×"_s, u"16×"_s, u"2.4×"_s }));
}

void SpeedMenuTest::whatIsKnownIsNotAskedAgain()
{
    AppDelegate &controller = m_app->launch();
    QVERIFY(!controller.IsDriveEmpty());
    open();
    QCOMPARE(m_app->drutil.runs(u"status"_s).size(), 1);
    person::choose(m_app->window.get(), "menuitemEject");
    open();
    QCOMPARE(m_app->drutil.runs(u"status"_s).size(), 2);
}

QTEST_MAIN(SpeedMenuTest)
#include "SpeedMenuTest.moc"
