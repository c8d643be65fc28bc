// The Drive menu, the questions about the disc in the drive, and a disc utility that misbehaves.
#include "runner/ActivityLog.h"
#include "support/Person.h"
#include "support/TestApplication.h"
#include "ui_MainWindow.h"

#include <QDesktopServices>
#include <QMenu>
#include <QSettings>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString rememberedKey = u"Quendral_Last_Selected_Drive_18"_s;
constexpr const char *header = "   Vendor   Product           Rev   Bus       SupportLevel\n";

QByteArray driveLine(const QByteArray &number, const QByteArray &vendor, const QByteArray &product)
{
    return number.leftJustified(3) + vendor.leftJustified(9) + product.leftJustified(18)
        + "1.00  SATA      Supported\n";
}

/// A listing of `count` drives "VENDORn - MODEL n".
QByteArray listing(int count)
{
    QByteArray text = header;
    for (int i = 1; i <= count; ++i) {
        const QByteArray n = QByteArray::number(i);
        text += driveLine(n, "VENDOR" + n, "MODEL " + n);
    }
    return text;
}

QString remembered()
{
    return QSettings(u"Corvalis"_s, u"Corvalis"_s).value(rememberedKey).toString();
}

void remember(const QString &title)
{
    QSettings(u"Corvalis"_s, u"Corvalis"_s).setValue(rememberedKey, title);
}

} // namespace

class DriveMenuTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { m_app.reset(); }

    void menu_data();
    void menu();
    void remembering_data();
    void remembering();
    void sameTitles();
    void choosing();
    void choosingIsRememberedOnDisk();
    void choosingWithoutADrive();
    void titleWithAmpersand();
    void titleWithTab();
    void statusBehindALongText();
    void shortNumberColumn();
    void errorTextIsReadAsATable();
    void virtualRecorderItems();
    void insertingBlanks_data();
    void insertingBlanks();
    void insertingFails();
    void showWrittenDiscs();

    void probes_data();
    void probes();
    void probeAlerts();
    void probesUseTheChosenDrive();

    void hangingUtility();
    void hangingUtilityThatIgnoresSignals();
    void missingUtility();
    void floodingUtility();
    void crashingUtility();

private:
    QAction *slot(int number) const
    {
        return m_app->window->findChild<QAction *>(u"submenuItemDriveSlot%1"_s.arg(number));
    }
    QList<int> slotsChecked() const;
    QList<int> slotsVisible() const;
    AppDelegate &launchWith(const QByteArray &list);

    std::unique_ptr<TestApplication> m_app;
};

void DriveMenuTest::init()
{
    emptyHome();
    m_app = std::make_unique<TestApplication>();
}

AppDelegate &DriveMenuTest::launchWith(const QByteArray &list)
{
    m_app->drutil.print(u"list"_s, list);
    return m_app->launch();
}

QList<int> DriveMenuTest::slotsChecked() const
{
    QList<int> found;
    for (int number = 1; number <= 6; ++number) {
        if (slot(number)->isChecked())
            found.append(number);
    }
    return found;
}

QList<int> DriveMenuTest::slotsVisible() const
{
    QList<int> found;
    for (int number = 1; number <= 6; ++number) {
        if (slot(number)->isVisible())
            found.append(number);
    }
    return found;
}

void DriveMenuTest::menu_data()
{
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<int>("drives");
    QTest::newRow("prints nothing") << QByteArray() << 0;
    QTest::newRow("header only") << QByteArray(header) << 0;
    QTest::newRow("header without line break") << QByteArray(header).trimmed() << 0;
    for (const int count : { 1, 2, 6, 7, 9 })
        QTest::addRow("%d", count) << listing(count) << count;
    QTest::newRow("text after the table") << listing(2) + "\n3  VENDOR3  MODEL 3           \n" << 2;
}

void DriveMenuTest::menu()
{
    QFETCH(QByteArray, list);
    QFETCH(int, drives);
    const AppDelegate &controller = launchWith(list);
    QCOMPARE(m_app->drutil.runs(), QList<QStringList>({ { u"list"_s } }));
    QCOMPARE(controller.array_Optical_Media_Drives.size(), drives);
    QCOMPARE(controller.s_Current_Drive_Number, u"1"_s);
    QList<int> visible{ 1 };
    for (int number = 2; number <= qMin(drives, 6); ++number)
        visible.append(number);
    QCOMPARE(slotsVisible(), visible);
    for (int number = 1; number <= qMin(drives, 6); ++number)
        QCOMPARE(slot(number)->text(), u"VENDOR%1 - MODEL %1"_s.arg(number));
    QCOMPARE(slotsChecked(), drives > 0 ? QList<int>(1, 1) : QList<int>());
    QCOMPARE(remembered(), drives > 0 ? u"VENDOR1 - MODEL 1"_s : QString());
    if (drives == 0)
        QCOMPARE(slot(1)->text(), u"No Drive Found"_s);
    QVERIFY(m_app->questions.alerts.isEmpty());
}

void DriveMenuTest::remembering_data()
{
    QTest::addColumn<int>("drives");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("number");
    QTest::addColumn<QList<int>>("checked");
    QTest::addColumn<QString>("after");
    const QString first = u"VENDOR1 - MODEL 1"_s;
    const QString second = u"VENDOR2 - MODEL 2"_s;
    const QString seventh = u"VENDOR7 - MODEL 7"_s;
    QTest::newRow("nothing") << 2 << QString() << u"1"_s << QList<int>{ 1 } << first;
    QTest::newRow("second of two") << 2 << second << u"2"_s << QList<int>{ 2 } << second;
    QTest::newRow("absent") << 2 << u"OTHER - DRIVE"_s << u"1"_s << QList<int>{ 1 } << first;
    QTest::newRow("other case") << 2 << second.toLower() << u"1"_s << QList<int>{ 1 } << first;
    QTest::newRow("seventh") << 7 << seventh << u"7"_s << QList<int>() << seventh;
    QTest::newRow("no drive") << 0 << second << u"1"_s << QList<int>() << second;
}

void DriveMenuTest::remembering()
{
    QFETCH(int, drives);
    QFETCH(QString, before);
    QFETCH(QString, number);
    QFETCH(QList<int>, checked);
    QFETCH(QString, after);
    if (!before.isEmpty())
        remember(before);
    const AppDelegate &controller = launchWith(listing(drives));
    QCOMPARE(controller.s_Current_Drive_Number, number);
    QCOMPARE(slotsChecked(), checked);
    QCOMPARE(remembered(), after);
}

void DriveMenuTest::sameTitles()
{
    const AppDelegate &controller = launchWith(header + driveLine("1", "TWIN", "BURNER")
        + driveLine("2", "OTHER", "ONE") + driveLine("3", "TWIN", "BURNER"));
    QCOMPARE(controller.s_Current_Drive_Number, u"3"_s);
    QCOMPARE(slotsChecked(), QList<int>({ 1, 3 }));
    person::choose(m_app->window.get(), "submenuItemDriveSlot1");
    QCOMPARE(controller.s_Current_Drive_Number, u"1"_s);
    QCOMPARE(slotsChecked(), QList<int>({ 1 }));
    person::choose(m_app->window.get(), "submenuItemDriveSlot3");
    QCOMPARE(controller.s_Current_Drive_Number, u"3"_s);
    QCOMPARE(slotsChecked(), QList<int>({ 3 }));
}

void DriveMenuTest::choosing()
{
    AppDelegate &controller = launchWith(listing(6));
    controller.arrayDataFolders.append({ u"/x"_s, 1, u"1 KB"_s });
    for (const int number : { 6, 2, 2, 1, 5, 4, 3 }) {
        person::choose(m_app->window.get(), qPrintable(u"submenuItemDriveSlot%1"_s.arg(number)));
        QCOMPARE(controller.s_Current_Drive_Number, QString::number(number));
        QCOMPARE(slotsChecked(), QList<int>(1, number));
        QCOMPARE(remembered(), u"VENDOR%1 - MODEL %1"_s.arg(number));
    }
    QCOMPARE(controller.arrayDataFolders.size(), 1);
    QCOMPARE(m_app->drutil.runs(), QList<QStringList>({ { u"list"_s } }));
}

void DriveMenuTest::choosingIsRememberedOnDisk()
{
    launchWith(listing(3));
    person::choose(m_app->window.get(), "submenuItemDriveSlot2");
    const QString file =
        QStandardPaths::writableLocation(QStandardPaths::ConfigLocation) + u"/Corvalis/Corvalis.conf"_s;
    QVERIFY(contentOf(file).contains("Quendral_Last_Selected_Drive_18=VENDOR2 - MODEL 2\n"));
    TestApplication next;
    next.drutil.print(u"list"_s, listing(3));
    QCOMPARE(next.launch().s_Current_Drive_Number, u"2"_s);
}

void DriveMenuTest::choosingWithoutADrive()
{
    const AppDelegate &controller = launchWith({});
    person::choose(m_app->window.get(), "submenuItemDriveSlot1");
    QCOMPARE(controller.s_Current_Drive_Number, u"1"_s);
    QCOMPARE(slotsChecked(), QList<int>());
    QVERIFY(remembered().isEmpty());
}

void DriveMenuTest::titleWithAmpersand()
{
    launchWith(header + driveLine("1", "R&D", "A && B"));
    QCOMPARE(slot(1)->text().replace(u"&&"_s, u"&"_s), u"R&D - A && B"_s);
    QCOMPARE(remembered(), u"R&D - A && B"_s);
}

/// What follows a tab in a menu item's text is shown as its key.
void DriveMenuTest::titleWithTab()
{
    launchWith(header + driveLine("1", "VENDOR", "BURN\tCtrl+Q"));
    QCOMPARE(slot(1)->text(), u"VENDOR - BURN Ctrl+Q"_s);
    QCOMPARE(remembered(), u"VENDOR - BURN\tCtrl+Q"_s);
}

/// The words are searched in all that the utility prints, more than the activity log keeps.
void DriveMenuTest::statusBehindALongText()
{
    AppDelegate &controller = launchWith(listing(1));
    m_app->drutil.run("yes 'a drive that tells a lot' | head -c 6000000; echo 'DVD overwritable erasable'");
    QVERIFY(!controller.IsDriveEmpty());
    QVERIFY(controller.IsMediaOneTimeWritable());
    QVERIFY(controller.IsMediaReWritable());
    QCOMPARE(controller.TypeOfMediaInTheDrive(), u"DVD"_s);
    m_app->drutil.run("yes 'a drive that tells a lot' | head -c 6000000; echo 'No Media Inserted'");
    QVERIFY(controller.IsDriveEmpty());
}

void DriveMenuTest::shortNumberColumn()
{
    const AppDelegate &controller =
        launchWith(QByteArray(header) + "12 VENDOR   MODEL             1.0\n2  A\n");
    QCOMPARE(controller.array_Optical_Media_Drives.at(0).s_Drive_Number, u"1"_s);
    QCOMPARE(
        controller.array_Optical_Media_Drives.at(1), Object_Optical_Drive({ u"2"_s, u"A"_s, QString() }));
    QCOMPARE(slot(2)->text(), u"A - "_s);
}

void DriveMenuTest::errorTextIsReadAsATable()
{
    const AppDelegate &controller = launchWith("drutil: the drives cannot be read\nTry again later.\n");
    QCOMPARE(controller.array_Optical_Media_Drives.size(), 1);
    QCOMPARE(controller.s_Current_Drive_Number, u"T"_s);
    QVERIFY(m_app->questions.alerts.isEmpty());
}

void DriveMenuTest::virtualRecorderItems()
{
    launchWith(header + driveLine("1", "CORVALIS", "Virtual Recorder") + driveLine("2", "ACME", "BURNER"));
    const auto offered = [this] {
        return QList<bool>{ m_app->element<QMenu>("submenuInsertBlank")->menuAction()->isVisible(),
            m_app->element<QAction>("menuitemRemoveDisc")->isVisible(),
            m_app->element<QAction>("menuitemShowWrittenDiscs")->isVisible() };
    };
    QCOMPARE(offered(), QList<bool>(3, true));
    person::choose(m_app->window.get(), "submenuItemDriveSlot2");
    QCOMPARE(offered(), QList<bool>(3, false));
    person::choose(m_app->window.get(), "submenuItemDriveSlot1");
    QCOMPARE(offered(), QList<bool>(3, true));
}

void DriveMenuTest::insertingBlanks_data()
{
    QTest::addColumn<QByteArray>("item");
    QTest::addColumn<QString>("kind");
    QTest::newRow("CD-R") << QByteArray("menuitemInsert_cd_r") << u"cd-r"_s;
    QTest::newRow("CD-RW") << QByteArray("menuitemInsert_cd_rw") << u"cd-rw"_s;
    QTest::newRow("DVD-R") << QByteArray("menuitemInsert_dvd_r") << u"dvd-r"_s;
    QTest::newRow("DVD+R") << QByteArray("menuitemInsert_dvd_plus_r") << u"dvd+r"_s;
    QTest::newRow("DVD-RW") << QByteArray("menuitemInsert_dvd_rw") << u"dvd-rw"_s;
    QTest::newRow("DVD+RW") << QByteArray("menuitemInsert_dvd_plus_rw") << u"dvd+rw"_s;
    QTest::newRow("BD-R") << QByteArray("menuitemInsert_bd_r") << u"bd-r"_s;
    QTest::newRow("BD-RE") << QByteArray("menuitemInsert_bd_re") << u"bd-re"_s;
    QTest::newRow("remove") << QByteArray("menuitemRemoveDisc") << u"none"_s;
}

void DriveMenuTest::insertingBlanks()
{
    QFETCH(QByteArray, item);
    QFETCH(QString, kind);
    launchWith(TestApplication::oneDrive);
    person::choose(m_app->window.get(), item.constData());
    QCOMPARE(
        m_app->drutil.runs(u"insert"_s), QList<QStringList>({ { u"insert"_s, kind, u"-drive"_s, u"1"_s } }));
    QVERIFY(m_app->questions.alerts.isEmpty());
}

void DriveMenuTest::insertingFails()
{
    launchWith(TestApplication::oneDrive);
    m_app->drutil.run("echo 'the tray is locked'; exit 1");
    person::choose(m_app->window.get(), "menuitemInsert_cd_r");
    QCOMPARE(m_app->questions.alerts.size(), 1);
    QCOMPARE(m_app->questions.alerts.first().informative, u"the tray is locked"_s);
}

/// Takes the place of the desktop's file manager.
class FileManager : public QObject {
    Q_OBJECT
public:
    QStringList folders;
    FileManager() { QDesktopServices::setUrlHandler(u"file"_s, this, "open"); }
    ~FileManager() override { QDesktopServices::unsetUrlHandler(u"file"_s); }
    Q_INVOKABLE void open(const QUrl &url) { folders.append(url.toLocalFile()); }
};

void DriveMenuTest::showWrittenDiscs()
{
    FileManager manager;
    launchWith(TestApplication::oneDrive);
    m_app->drutil.print(u"folder"_s, "/discs/written here\n");
    person::choose(m_app->window.get(), "menuitemShowWrittenDiscs");
    QCOMPARE(m_app->drutil.runs(u"folder"_s), QList<QStringList>({ { u"folder"_s, u"-drive"_s, u"1"_s } }));
    QCOMPARE(manager.folders, QStringList(u"/discs/written here"_s));
}

void DriveMenuTest::probes_data()
{
    QTest::addColumn<QByteArray>("status");
    QTest::addColumn<bool>("empty");
    QTest::addColumn<bool>("writable");
    QTest::addColumn<bool>("erasable");
    QTest::addColumn<QString>("type");
    QTest::newRow("nothing printed") << QByteArray() << false << false << false << u"Other"_s;
    QTest::newRow("no disc") << QByteArray("  Type: No Media Inserted\n") << true << false << false
                             << u"Other"_s;
    QTest::newRow("empty and writable")
        << QByteArray("No Media Inserted\noverwritable\n") << true << true << false << u"Other"_s;
    QTest::newRow("CD-R in a drive called DVD")
        << QByteArray("ACME DVDRAM\n Type: CD-R\n overwritable\n") << false << true << false << u"DVD"_s;
    QTest::newRow("BD") << QByteArray("Type: BD-R\n") << false << false << false << u"BD"_s;
    QTest::newRow("CD before BD") << QByteArray("BD CD\n") << false << false << false << u"CD"_s;
    QTest::newRow("rewritable") << QByteArray("Type: CD-RW\nWritability: erasable, overwritable\n") << false
                                << true << true << u"CD"_s;
    QTest::newRow("other case") << QByteArray("no media inserted cd OVERWRITABLE Erasable") << false << false
                                << false << u"Other"_s;
    QTest::newRow("error") << QByteArray("there is no drive 1\n") << false << false << false << u"Other"_s;
    QTest::newRow("not UTF-8") << QByteArray("\xff\xfe CD \x80 overwritable") << false << true << false
                               << u"CD"_s;
}

void DriveMenuTest::probes()
{
    QFETCH(QByteArray, status);
    AppDelegate &controller = launchWith(TestApplication::oneDrive);
    m_app->drutil.print(u"status"_s, status);
    // A status that comes in two channels and ends badly reads the same.
    m_app->drutil.run("exit 7");
    QTEST(controller.IsDriveEmpty(), "empty");
    QTEST(controller.IsMediaOneTimeWritable(), "writable");
    QTEST(controller.IsMediaReWritable(), "erasable");
    QTEST(controller.TypeOfMediaInTheDrive(), "type");
    // Each asks anew.
    QCOMPARE(m_app->drutil.runs(u"status"_s), QList<QStringList>(4, { u"status"_s, u"-drive"_s, u"1"_s }));
    QVERIFY(m_app->questions.alerts.isEmpty());
}

void DriveMenuTest::probeAlerts()
{
    AppDelegate &controller = launchWith(TestApplication::oneDrive);
    m_app->drutil.print(u"status"_s, "Type: CD-ROM\n");
    m_app->drutil.run("echo 'on the other channel' >&2");
    person::choose(m_app->window.get(), "menuitemDebugMode");
    QVERIFY(!controller.IsDriveEmpty());
    QCOMPARE(controller.TypeOfMediaInTheDrive(), u"CD"_s);
    QVERIFY(m_app->questions.alerts.isEmpty());
    QVERIFY(!controller.IsMediaOneTimeWritable());
    QVERIFY(!controller.IsMediaReWritable());
    const QString whole = u"Type: CD-ROM\non the other channel\n"_s;
    QCOMPARE(m_app->questions.texts(),
        QStringList({ whole + u" | Warning 0030."_s, whole + u" | Warning 0040."_s }));
    QCOMPARE(m_app->questions.alerts.first().buttons, QStringList(u"Close"_s));
    // A disc that can be written brings no alert in debug mode either.
    m_app->questions.alerts.clear();
    m_app->drutil.print(u"status"_s, "overwritable erasable\n");
    QVERIFY(controller.IsMediaOneTimeWritable());
    QVERIFY(controller.IsMediaReWritable());
    QVERIFY(m_app->questions.alerts.isEmpty());
}

void DriveMenuTest::probesUseTheChosenDrive()
{
    AppDelegate &controller = launchWith(listing(3));
    person::choose(m_app->window.get(), "submenuItemDriveSlot3");
    controller.IsDriveEmpty();
    QCOMPARE(m_app->drutil.runs(u"status"_s), QList<QStringList>({ { u"status"_s, u"-drive"_s, u"3"_s } }));
}

void DriveMenuTest::hangingUtility()
{
    m_app->around.probeLimit = 300;
    m_app->drutil.run("sleep 100");
    const AppDelegate &controller = launchWith(listing(2));
    QVERIFY(m_app->window->isVisible());
    // What it printed before it hung counts.
    QCOMPARE(controller.array_Optical_Media_Drives.size(), 2);
    QVERIFY(controller.activityLog->text().contains(u"gave no answer in time"_s));
}

void DriveMenuTest::hangingUtilityThatIgnoresSignals()
{
    m_app->around.probeLimit = 300;
    m_app->drutil.run("trap '' TERM INT HUP; while :; do sleep 1; done");
    const AppDelegate &controller = launchWith(listing(1));
    QVERIFY(m_app->window->isVisible());
    QCOMPARE(controller.array_Optical_Media_Drives.size(), 1);
}

void DriveMenuTest::missingUtility()
{
    m_app->around.drutil = m_app->folder.filePath(u"not there"_s);
    AppDelegate &controller = m_app->launch();
    QVERIFY(m_app->window->isVisible());
    QCOMPARE(slotsVisible(), QList<int>(1, 1));
    QVERIFY(!controller.IsDriveEmpty());
    QVERIFY(!controller.IsMediaOneTimeWritable());
    QVERIFY(!controller.IsMediaReWritable());
    QCOMPARE(controller.TypeOfMediaInTheDrive(), u"Other"_s);
    QVERIFY(m_app->questions.alerts.isEmpty());
    QVERIFY(controller.activityLog->text().contains(u"could not be started"_s));
}

void DriveMenuTest::floodingUtility()
{
    m_app->around.probeLimit = 1500;
    m_app->drutil.run("exec yes");
    const AppDelegate &controller = launchWith(listing(2));
    QVERIFY(m_app->window->isVisible());
    QCOMPARE(controller.array_Optical_Media_Drives.at(1).sModel, u"MODEL 2"_s);
}

void DriveMenuTest::crashingUtility()
{
    m_app->drutil.run("kill -SEGV $$");
    const AppDelegate &controller = launchWith(listing(2));
    QCOMPARE(controller.array_Optical_Media_Drives.size(), 2);
    QVERIFY(controller.activityLog->text().contains(u"crashed"_s));
}

QTEST_MAIN(DriveMenuTest)
#include "DriveMenuTest.moc"
