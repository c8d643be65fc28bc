// Drives that are plugged in, pulled out, or may not be used.
#include "drives/DriveNotice.h"
#include "drives/DriveWatch.h"
#include "support/Person.h"
#include "support/TestApplication.h"

#include <QMenu>
#include <QPushButton>
#include <QTest>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

QByteArray listing(const QByteArrayList &products)
{
    QByteArray text = "   Vendor   Product           Rev   Bus       SupportLevel\n";
    for (qsizetype i = 0; i < products.size(); ++i)
        text += QByteArray::number(i + 1) + "  ACME     " + products.at(i).leftJustified(18)
            + "1.00  USB       Supported\n";
    return text;
}

/// Events that a test lets happen: a byte each, 'd' for a drive.
class TestEvents : public DriveEvents {
public:
    explicit TestEvents(int descriptor)
        : m_descriptor(descriptor)
    {
    }
    ~TestEvents() override { ::close(m_descriptor); }
    int descriptor() const override { return m_descriptor; }
    bool take() override
    {
        char event = 0;
        return ::read(m_descriptor, &event, 1) == 1 && event == 'd';
    }

private:
    const int m_descriptor;
};

} // namespace

class DriveNewsTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void aDriveThatIsPluggedInIsOffered();
    void severalEventsAreOneLook();
    void whatIsNoDriveIsNoEvent();
    void theChosenDriveKeepsItsPlace();
    void theChosenDriveIsGone_data();
    void theChosenDriveIsGone();
    void theGoneDriveComesBack();
    void anotherDriveIsChosen();
    void aDriveThatGoesUnseen_data();
    void aDriveThatGoesUnseen();
    void aToolThatOnlyFailsIsNoGoneDrive();
    void lookingForDrives();
    void aListingThatFails();
    void theFirstDriveIsTaken();
    void aDriveThatMayNotBeUsed();
    void theRealWatchCanBeMade();

private:
    void launch(const QByteArrayList &products);
    void plug(const QByteArrayList &products); ///< from now on these are listed, and an event tells
    QString notice() const { return m_app->element<DriveNotice>("noticeDrive")->text(); }
    QStringList checkedItems() const;
    qsizetype listings() const { return m_app->drutil.runs(u"list"_s).size(); }

    std::unique_ptr<TestApplication> m_app;
    int m_tell = -1;
};

void DriveNewsTest::init()
{
    emptyHome();
    std::array<int, 2> ends{};
    QCOMPARE(::pipe(ends.data()), 0);
    m_tell = ends[1];
    m_app = std::make_unique<TestApplication>();
    m_app->around.driveEvents = [end = ends[0]] { return std::make_unique<TestEvents>(end); };
}

void DriveNewsTest::cleanup()
{
    m_app.reset();
    ::close(m_tell);
}

void DriveNewsTest::launch(const QByteArrayList &products)
{
    m_app->drutil.print(u"list"_s, listing(products));
    m_app->drutil.print(
        u"status"_s, "  Type: CD-R                 Name: /dev/sr0\n Writability: overwritable\n");
    m_app->launch();
}

void DriveNewsTest::plug(const QByteArrayList &products)
{
    m_app->drutil.print(u"list"_s, listing(products));
    QCOMPARE(::write(m_tell, "d", 1), 1);
}

QStringList DriveNewsTest::checkedItems() const
{
    QStringList found;
    for (const QAction *action : m_app->element<QMenu>("menuDrive")->actions()) {
        if (action->isChecked() && action->isVisible())
            found.append(action->text());
    }
    return found;
}

void DriveNewsTest::aDriveThatIsPluggedInIsOffered()
{
    launch({ "ONE" });
    plug({ "ONE", "TWO" });
    QTRY_COMPARE(notice(), u"A drive was plugged in: “ACME - TWO”."_s);
    QCOMPARE(m_app->controller->s_Current_Drive_Number, u"1"_s);
    QCOMPARE(checkedItems(), QStringList(u"ACME - ONE"_s));
    QVERIFY(m_app->element<QAction>("submenuItemDriveSlot2")->isVisible());
    QVERIFY(m_app->questions.alerts.isEmpty());
    person::click(m_app->window.get(), "btnDriveNotice");
    QCOMPARE(m_app->controller->s_Current_Drive_Number, u"2"_s);
    QCOMPARE(checkedItems(), QStringList(u"ACME - TWO"_s));
    QCOMPARE(notice(), QString());
    QCOMPARE(m_app->controller->preference(u"Quendral_Last_Selected_Drive_18"_s), u"ACME - TWO"_s);
}

void DriveNewsTest::severalEventsAreOneLook()
{
    launch({ "ONE" });
    for (int i = 0; i < 5; ++i)
        plug({ "ONE", "TWO" });
    QTRY_VERIFY(!notice().isEmpty());
    QCOMPARE(listings(), 2);
}

void DriveNewsTest::whatIsNoDriveIsNoEvent()
{
    launch({ "ONE" });
    m_app->drutil.print(u"list"_s, listing({ "ONE", "TWO" }));
    QCOMPARE(::write(m_tell, "xxx", 3), 3);
    plug({ "ONE", "TWO", "THREE" });
    QTRY_COMPARE(listings(), 2);
    QTRY_COMPARE(m_app->controller->array_Optical_Media_Drives.size(), 3);
}

void DriveNewsTest::theChosenDriveKeepsItsPlace()
{
    launch({ "ONE" });
    plug({ "NEW", "ONE" });
    QTRY_COMPARE(m_app->controller->s_Current_Drive_Number, u"2"_s);
    QCOMPARE(checkedItems(), QStringList(u"ACME - ONE"_s));
    QCOMPARE(qgetenv("CORVALIS_PREFERRED_DRIVE"), "2");
    QCOMPARE(m_app->controller->preference(u"Quendral_Last_Selected_Drive_18"_s), u"ACME - ONE"_s);
}

void DriveNewsTest::theChosenDriveIsGone_data()
{
    QTest::addColumn<QByteArray>("item");
    for (const char *item : { "menuitemDiscInfo", "menuitemEject", "menuitemLoad", "menuitemEraseQuick" })
        QTest::newRow(item) << QByteArray(item);
}

void DriveNewsTest::theChosenDriveIsGone()
{
    QFETCH(QByteArray, item);
    launch({ "ONE", "TWO" });
    plug({ "TWO" });
    QTRY_VERIFY(notice().startsWith(u"The drive “ACME - ONE” is not connected any more."_s));
    QCOMPARE(checkedItems(), QStringList(u"ACME - ONE (not connected)"_s));
    QCOMPARE(qgetenv("CORVALIS_PREFERRED_DRIVE"), "");
    m_app->questions.alerts.clear();
    person::choose(m_app->window.get(), item.constData());
    QCOMPARE(m_app->questions.texts(),
        QStringList(u"The drive is not there any more | “ACME - ONE” is not connected. Connect it again, or "
                    "choose another drive in the Drive menu."_s));
    // Nothing was asked of the drive that has its number now.
    QCOMPARE(m_app->drutil.runs().size(), listings());
}

void DriveNewsTest::theGoneDriveComesBack()
{
    launch({ "ONE", "TWO" });
    plug({ "TWO" });
    QTRY_COMPARE(m_app->controller->s_Gone_Drive, u"ACME - ONE"_s);
    plug({ "NEW", "ONE", "TWO" });
    QTRY_COMPARE(m_app->controller->s_Gone_Drive, QString());
    QCOMPARE(m_app->controller->s_Current_Drive_Number, u"2"_s);
    QCOMPARE(checkedItems(), QStringList(u"ACME - ONE"_s));
}

void DriveNewsTest::anotherDriveIsChosen()
{
    launch({ "ONE", "TWO" });
    plug({ "TWO" });
    QTRY_VERIFY(!m_app->controller->s_Gone_Drive.isEmpty());
    person::choose(m_app->window.get(), "submenuItemDriveSlot1");
    QCOMPARE(checkedItems(), QStringList(u"ACME - TWO"_s));
    QCOMPARE(m_app->controller->s_Gone_Drive, QString());
    QCOMPARE(notice(), QString());
    person::choose(m_app->window.get(), "menuitemEject");
    QVERIFY(m_app->questions.alerts.isEmpty());
}

void DriveNewsTest::aDriveThatGoesUnseen_data()
{
    QTest::addColumn<QByteArray>("said");
    QTest::newRow("no such number") << QByteArray(
        "drutil: There is no drive \"2\": 'drutil list' shows those there are.\n");
    QTest::newRow("cable") << QByteArray("drutil: /dev/sr1 (drive 2) is gone; check its cable.\n");
}

void DriveNewsTest::aDriveThatGoesUnseen()
{
    QFETCH(QByteArray, said);
    launch({ "ONE", "TWO" });
    person::choose(m_app->window.get(), "submenuItemDriveSlot2");
    m_app->drutil.print(u"list"_s, listing({ "ONE" }));
    m_app->drutil.print(u"status"_s, said);
    person::choose(m_app->window.get(), "menuitemDiscInfo");
    QCOMPARE(m_app->questions.alerts.size(), 1);
    QCOMPARE(m_app->questions.alerts.first().message, u"The drive is not there any more"_s);
    QCOMPARE(checkedItems(), QStringList(u"ACME - TWO (not connected)"_s));
}

/// The answer alone takes no drive away.
void DriveNewsTest::aToolThatOnlyFailsIsNoGoneDrive()
{
    launch({ "ONE" });
    m_app->drutil.print(u"status"_s, "drutil: /dev/sr0 (drive 1) is gone; check its cable.\n");
    person::choose(m_app->window.get(), "menuitemEraseQuick");
    QCOMPARE(m_app->questions.alerts.size(), 1);
    QCOMPARE(m_app->questions.alerts.first().message, u"Media not rewritable"_s);
    QCOMPARE(checkedItems(), QStringList(u"ACME - ONE"_s));
}

void DriveNewsTest::lookingForDrives()
{
    launch({ "ONE" });
    person::press(QKeySequence(Qt::Key_F5));
    QTRY_COMPARE(notice(), u"No other drive was found."_s);
    QCOMPARE(listings(), 2);
    m_app->drutil.print(u"list"_s, listing({ "TWO", "ONE" }));
    person::choose(m_app->window.get(), "menuitemDriveLook");
    QCOMPARE(notice(), u"A drive was plugged in: “ACME - TWO”."_s);
    QCOMPARE(m_app->controller->s_Current_Drive_Number, u"2"_s);
    person::click(m_app->window.get(), "btnCloseDriveNotice");
    QCOMPARE(notice(), QString());
    m_app->drutil.print(u"list"_s, listing({}));
    person::choose(m_app->window.get(), "menuitemDriveLook");
    QVERIFY(notice().startsWith(u"The drive “ACME - ONE” is not connected"_s));
    QCOMPARE(m_app->element<QAction>("submenuItemDriveSlot1")->text(), u"No Drive Found"_s);
    QVERIFY(!m_app->element<QAction>("submenuItemDriveSlot2")->isVisible());
}

void DriveNewsTest::aListingThatFails()
{
    launch({ "ONE", "TWO" });
    m_app->drutil.print(u"list"_s, "drutil: the recorders' folder cannot be read\n");
    person::choose(m_app->window.get(), "menuitemDriveLook");
    QCOMPARE(m_app->questions.texts(),
        QStringList(u"The drives could not be listed | drutil: the recorders' folder cannot be read"_s));
    QCOMPARE(m_app->controller->array_Optical_Media_Drives.size(), 2);
    QCOMPARE(checkedItems(), QStringList(u"ACME - ONE"_s));
}

void DriveNewsTest::theFirstDriveIsTaken()
{
    launch({});
    plug({ "ONE" });
    QTRY_COMPARE(notice(), u"The drive “ACME - ONE” is connected."_s);
    QCOMPARE(checkedItems(), QStringList(u"ACME - ONE"_s));
    QCOMPARE(m_app->controller->s_Current_Drive_Number, u"1"_s);
}

void DriveNewsTest::aDriveThatMayNotBeUsed()
{
    launch({ "ONE", "TWO" });
    const QString sentence =
        u"You may not use /dev/sr0 (drive 1): log in at this machine itself, or have yourself "
        "added to the group cdrom and log in again."_s;
    m_app->drutil.print(u"status"_s, "drutil: " + sentence.toUtf8() + '\n');
    person::choose(m_app->window.get(), "menuitemDiscInfo");
    m_app->questions.alerts.clear();
    QCOMPARE(notice(), u"You may not use the drive “ACME - ONE”."_s);
    const auto *line = m_app->element<QAction>("itemDriveRefused");
    QVERIFY(line && !line->isEnabled());
    QCOMPARE(line->toolTip(), sentence);
    person::choose(m_app->window.get(), "itemDriveWhyRefused");
    person::click(m_app->window.get(), "btnDriveNotice");
    const QString told = u"You may not use this drive | "_s + sentence;
    QCOMPARE(m_app->questions.texts(), QStringList({ told, told }));
    // Another drive may be used, as far as is known.
    person::choose(m_app->window.get(), "submenuItemDriveSlot2");
    QVERIFY(!m_app->element<QAction>("itemDriveRefused"));
    QVERIFY(!m_app->element<QAction>("itemDriveWhyRefused"));
}

void DriveNewsTest::theRealWatchCanBeMade()
{
    const std::unique_ptr<DriveEvents> events = DriveEvents::ofUdev();
    if (!events)
        QSKIP("There is no udev here.");
    QVERIFY(events->descriptor() >= 0);
    QVERIFY(!events->take()); // without waiting
}

QTEST_MAIN(DriveNewsTest)
#include "DriveNewsTest.moc"
