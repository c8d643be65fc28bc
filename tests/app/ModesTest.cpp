// The new-disc sheet, the mode buttons, the tabs, and what the burn button starts.
#include "app/BarButton.h"
#include "app/Window_New_Disc.h"
#include "compilation/ListTableView.h"
#include "compilation/SpaceOccupiedView.h"
#include "support/Person.h"
#include "support/TestApplication.h"
#include "ui_MainWindow.h"

#include <QLabel>
#include <QMenu>
#include <QRadioButton>
#include <QTest>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace {

/// The rows of the table of project types, as a person sees them.
struct Mode {
    int code;
    const char *button;
    int tab;
    int variant;
    const char *title;
    const char *nothingListed;
    const char *wrongMedium;
    const char *warning;
};
const Mode modes[] = {
    { 1, "btnAudioCD", 0, 0, "Burn Audio CD", "No audio files on the list", "Media not CD", "Warning 0060." },
    { 2, "btnMP3CD", 0, 1, "Burn MP3 CD", "No audio files on the list", "Media not CD", "Warning 0050." },
    { 3, "btnMP3DVD", 0, 2, "Burn MP3 DVD", "No audio files on the list", "Media not DVD", "Warning 0010." },
    { 4, "btnVideoDVD", 1, 0, "Burn Video DVD", "No video files on the list", "Media not DVD",
        "Warning 0000." },
    { 5, "btnVideoBluray", 1, 1, "Burn Video Blu-ray", "No video files on the list", "Media not Blu-ray",
        "Warning 0090." },
    { 6, "btnDataCD", 2, 0, "Burn Data CD", "No folders on the list", "Media not CD", "Warning 0070." },
    { 7, "btnDataDVD", 2, 1, "Burn Data DVD", "No folders on the list", "Media not DVD", "Warning 0020." },
    { 8, "btnDataBluray", 2, 2, "Burn Data Blu-ray", "No folders on the list", "Media not Blu-ray",
        "Warning 0090." },
};

const char *const tabItems[] = { "submenuItemTabAudio", "submenuItemTabVideo", "submenuItemTabData",
    "submenuItemTabISO", "submenuItemTabTools" };

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

} // namespace

class ModesTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { m_app.reset(); }

    void sheetOpensFrom_data();
    void sheetOpensFrom();
    void sheetConfirmed_data();
    void sheetConfirmed();
    void sheetRadiosExcludeEachOther();
    void sheetWithArrowKeys();
    void sheetByDoubleClick();
    void sheetSaysWhenAListIsEmptied();
    void sheetCancelled_data();
    void sheetCancelled();
    void sheetWithNothingOn();
    void sameTypeEmptiesTheLists();
    void otherVariantsStay();
    void sheetBlocksTheWindow();
    void quitFromTheSheet();
    void modeButton_data();
    void modeButton();
    void kindByKeys_data();
    void kindByKeys();
    void kindsWithoutAList();
    void modeButtonKeepsTheList();
    void tabsByClick();
    void tabsNotByTheWheel();
    void tabsByMenu();
    void tabsByKeys();
    void sameTabFromTheMenuEmptiesTheList();
    void listsSurviveTabsWithoutAList();
    void unknownTabChangesNothing();
    void titleFollowsTheVariant();
    void burnWithNothingListed_data();
    void burnWithNothingListed();
    void burnStartsTheTitlesPipeline_data();
    void burnStartsTheTitlesPipeline();
    void unknownTitleDoesNothing();

private:
    AppDelegate &controller() { return *m_app->controller; }
    void click(const char *button) { person::click(m_app->window.get(), button); }
    int tab() const { return m_app->element<QTabWidget>("tabviewMain")->currentIndex(); }
    QString title() const { return m_app->element<BarButton>("btnBurn")->text(); }
    QRadioButton *radio(int code)
    {
        return controller().windowNewDisc->findChild<QRadioButton *>(u"radio%1"_s.arg(code));
    }
    void pressInSheet(const QString &button)
    {
        person::pressTitled(controller().windowNewDisc, button);
        QTRY_VERIFY(!controller().windowNewDisc);
    }
    void confirmType(int code)
    {
        person::choose(m_app->window.get(), "menuitemNewDisc");
        person::click(radio(code));
        pressInSheet(u"OK"_s);
    }
    QList<int> radiosOn();
    QStringList borderedButtons() const;
    /// Something on either list, as if added.
    void fillLists();
    bool listsAreEmpty();

    std::unique_ptr<TestApplication> m_app;
};

void ModesTest::init()
{
    emptyHome();
    m_app = std::make_unique<TestApplication>();
    m_app->launch();
    QVERIFY(person::awaitKeyboard(m_app->window.get()));
}

QList<int> ModesTest::radiosOn()
{
    QList<int> on;
    for (int code = 1; code <= 8; ++code) {
        if (radio(code)->isChecked())
            on.append(code);
    }
    return on;
}

QStringList ModesTest::borderedButtons() const
{
    QStringList bordered;
    for (const Mode &mode : modes) {
        if (m_app->element<BarButton>(mode.button)->isBordered())
            bordered.append(text(mode.button));
    }
    return bordered;
}

void ModesTest::fillLists()
{
    NodeMediaFile file;
    file.s_File_Path = u"/x/y.mp3"_s;
    file.i_Duration_in_Seconds = 444;
    controller().arrayMediaFiles = { file };
    controller().arrayDataFolders = { { u"/x"_s, 68359, u"66.76 MB"_s } };
    controller().refreshTableAudioFiles();
    controller().refreshTableVideoFiles();
    controller().refreshTableDataFolders();
}

bool ModesTest::listsAreEmpty()
{
    return controller().arrayMediaFiles.isEmpty() && controller().arrayDataFolders.isEmpty()
        && m_app->element<ListTableView>("tableviewAudioFiles")->model()->rowCount() == 0
        && m_app->element<ListTableView>("tableviewDataFolders")->model()->rowCount() == 0
        && controller().i_Audio_Total_Duration_in_Seconds == 0
        && controller().i_Video_Total_Duration_in_Seconds == 0
        && controller().i_Data_Total_Size_in_KBytes == 0
        && m_app->element<SpaceOccupiedView>("spaceoccupiedviewControl")->i_Percentage() == 0;
}

void ModesTest::sheetOpensFrom_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<QByteArray>("button");
    QTest::newRow("menu") << 0 << QByteArray();
    QTest::newRow("menu on the tools tab") << 4 << QByteArray();
    QTest::newRow("audio") << 0 << QByteArray("toolbar_btn_Audio_New_Disc");
    QTest::newRow("video") << 1 << QByteArray("toolbar_btn_Video_New_Disc");
    QTest::newRow("data") << 2 << QByteArray("toolbar_btn_Data_New_Disc");
}

void ModesTest::sheetOpensFrom()
{
    QFETCH(int, tab);
    QFETCH(QByteArray, button);
    person::clickTab(m_app->element<QTabWidget>("tabviewMain"), tab);
    if (button.isEmpty())
        person::press(QKeySequence(u"Ctrl+N"_s));
    else
        click(button.constData());
    QVERIFY(controller().windowNewDisc);
    QVERIFY(controller().windowNewDisc->isVisible());
    QVERIFY(!m_app->element<QTabWidget>("tabviewMain")->isEnabled());
    QCOMPARE(controller().windowNewDisc->window(), m_app->window.get());
    QCOMPARE(radiosOn(), QList<int>(1, 1));
}

void ModesTest::sheetConfirmed_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < 8; ++row)
        QTest::newRow(modes[row].title) << row;
}

void ModesTest::sheetConfirmed()
{
    QFETCH(int, row);
    const Mode &mode = modes[row];
    fillLists();
    confirmType(mode.code);
    QCOMPARE(controller().i_Type_of_New_Disc, mode.code);
    QCOMPARE(tab(), mode.tab);
    QCOMPARE(title(), text(mode.title));
    QVERIFY(listsAreEmpty());
    QCOMPARE(controller().i_Audio_Type, mode.tab == 0 ? mode.variant : 0);
    QCOMPARE(controller().i_Video_Type, mode.tab == 1 ? mode.variant : 0);
    QCOMPARE(controller().i_Data_Type, mode.tab == 2 ? mode.variant : 0);
    QStringList bordered{ u"btnAudioCD"_s, u"btnVideoDVD"_s, u"btnDataCD"_s };
    bordered[mode.tab] = text(mode.button);
    QCOMPARE(borderedButtons(), bordered);
    // The next sheet begins with this type.
    person::choose(m_app->window.get(), "menuitemNewDisc");
    QCOMPARE(radiosOn(), QList<int>(1, mode.code));
}

void ModesTest::sheetRadiosExcludeEachOther()
{
    person::choose(m_app->window.get(), "menuitemNewDisc");
    for (const int code : { 5, 8, 1, 2, 2, 6, 4 }) {
        person::click(radio(code));
        QCOMPARE(radiosOn(), QList<int>(1, code));
    }
    pressInSheet(u"OK"_s);
    QCOMPARE(controller().i_Type_of_New_Disc, 4);
}

void ModesTest::sheetWithArrowKeys()
{
    person::choose(m_app->window.get(), "menuitemNewDisc");
    QTRY_COMPARE(QApplication::focusWidget(), radio(1));
    // Each arrow key chooses, over the three boxes and round.
    const std::pair<Qt::Key, int> steps[] = { { Qt::Key_Up, 8 }, { Qt::Key_Right, 1 }, { Qt::Key_Down, 2 },
        { Qt::Key_Down, 3 }, { Qt::Key_Down, 4 }, { Qt::Key_Left, 3 }, { Qt::Key_Up, 2 } };
    for (const auto &[key, code] : steps) {
        QTest::keyClick(QApplication::focusWidget(), key);
        QCOMPARE(radiosOn(), QList<int>(1, code));
        QCOMPARE(QApplication::focusWidget(), radio(code));
    }
    // Tab leaves the choice, and comes back to what is chosen.
    QTest::keyClick(m_app->window->windowHandle(), Qt::Key_Tab);
    QVERIFY(!qobject_cast<QRadioButton *>(QApplication::focusWidget()));
    QTest::keyClick(m_app->window->windowHandle(), Qt::Key_Tab, Qt::ShiftModifier);
    QCOMPARE(QApplication::focusWidget(), radio(2));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QTRY_VERIFY(!controller().windowNewDisc);
    QCOMPARE(title(), u"Burn MP3 CD"_s);
}

void ModesTest::sheetByDoubleClick()
{
    person::choose(m_app->window.get(), "menuitemNewDisc");
    const QRadioButton *chosen = radio(7);
    const QPoint place = chosen->mapTo(m_app->window.get(), chosen->rect().center());
    QTest::mouseClick(m_app->window->windowHandle(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(m_app->window->windowHandle(), Qt::LeftButton, {}, place);
    QTRY_VERIFY(!controller().windowNewDisc);
    QCOMPARE(title(), u"Burn Data DVD"_s);
}

void ModesTest::sheetSaysWhenAListIsEmptied()
{
    const auto says = [this] {
        person::choose(m_app->window.get(), "menuitemNewDisc");
        const bool shown = controller().windowNewDisc->findChild<QLabel *>(u"labelNote"_s)->isVisible();
        pressInSheet(u"Cancel"_s);
        return shown;
    };
    QVERIFY(!says());
    fillLists();
    QVERIFY(says());
}

void ModesTest::sheetCancelled_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("Cancel") << false;
    QTest::newRow("Escape") << true;
}

void ModesTest::sheetCancelled()
{
    QFETCH(bool, byKey);
    confirmType(7);
    fillLists();
    person::choose(m_app->window.get(), "menuitemNewDisc");
    QCOMPARE(radiosOn(), QList<int>(1, 7));
    person::click(radio(2));
    if (byKey) {
        QTest::keyClick(controller().windowNewDisc, Qt::Key_Escape);
        QTRY_VERIFY(!controller().windowNewDisc);
    } else {
        pressInSheet(u"Cancel"_s);
    }
    QCOMPARE(controller().i_Type_of_New_Disc, 1);
    QCOMPARE(tab(), 2);
    QCOMPARE(title(), u"Burn Data DVD"_s);
    QCOMPARE(controller().i_Data_Type, 1);
    QCOMPARE(controller().arrayMediaFiles.size(), 1);
    QCOMPARE(controller().arrayDataFolders.size(), 1);
    QCOMPARE(borderedButtons(), QStringList({ u"btnAudioCD"_s, u"btnVideoDVD"_s, u"btnDataDVD"_s }));
    person::choose(m_app->window.get(), "menuitemNewDisc");
    QCOMPARE(radiosOn(), QList<int>(1, 1));
}

void ModesTest::sheetWithNothingOn()
{
    // No project type has such a code, so none is chosen and confirming only empties the lists.
    click("btnMP3CD");
    controller().i_Type_of_New_Disc = 12;
    fillLists();
    person::choose(m_app->window.get(), "menuitemNewDisc");
    QCOMPARE(radiosOn(), QList<int>());
    pressInSheet(u"OK"_s);
    QCOMPARE(controller().i_Type_of_New_Disc, 12);
    QVERIFY(listsAreEmpty());
    QCOMPARE(title(), u"Burn MP3 CD"_s);
    QCOMPARE(tab(), 0);
}

void ModesTest::sameTypeEmptiesTheLists()
{
    confirmType(1);
    fillLists();
    QVERIFY(!listsAreEmpty());
    confirmType(1);
    QVERIFY(listsAreEmpty());
}

void ModesTest::otherVariantsStay()
{
    confirmType(3);
    confirmType(8);
    confirmType(5);
    QCOMPARE(controller().i_Audio_Type, 2);
    QCOMPARE(controller().i_Video_Type, 1);
    QCOMPARE(controller().i_Data_Type, 2);
    QCOMPARE(borderedButtons(), QStringList({ u"btnMP3DVD"_s, u"btnVideoBluray"_s, u"btnDataBluray"_s }));
}

void ModesTest::sheetBlocksTheWindow()
{
    fillLists();
    person::choose(m_app->window.get(), "menuitemNewDisc");
    QVERIFY(person::awaitKeyboard(controller().windowNewDisc));
    person::press(QKeySequence(u"Ctrl+2"_s));
    click("btnMP3CD");
    QTest::qWait(50);
    QCOMPARE(tab(), 0);
    QCOMPARE(title(), u"Burn Audio CD"_s);
    QCOMPARE(controller().arrayMediaFiles.size(), 1);
}

void ModesTest::quitFromTheSheet()
{
    person::choose(m_app->window.get(), "menuitemNewDisc");
    QVERIFY(person::awaitKeyboard(controller().windowNewDisc));
    person::press(QKeySequence(u"Ctrl+Q"_s));
    QTRY_COMPARE(m_app->exits, QList<int>(1, 0));
}

void ModesTest::modeButton_data()
{
    sheetConfirmed_data();
}

void ModesTest::modeButton()
{
    QFETCH(int, row);
    const Mode &mode = modes[row];
    person::clickTab(m_app->element<QTabWidget>("tabviewMain"), mode.tab);
    click(mode.button);
    QCOMPARE(title(), text(mode.title));
    QCOMPARE(m_app->element<QTabWidget>("tabviewMain")->currentIndex(), mode.tab);
    const qint64 variants[] = { controller().i_Audio_Type, controller().i_Video_Type,
        controller().i_Data_Type };
    for (int i = 0; i < 3; ++i)
        QCOMPARE(variants[i], i == mode.tab ? mode.variant : 0);
    QStringList bordered{ u"btnAudioCD"_s, u"btnVideoDVD"_s, u"btnDataCD"_s };
    bordered[mode.tab] = text(mode.button);
    QCOMPARE(borderedButtons(), bordered);
    QCOMPARE(controller().i_Type_of_New_Disc, 1);
}

void ModesTest::kindByKeys_data()
{
    sheetConfirmed_data();
}

void ModesTest::kindByKeys()
{
    QFETCH(int, row);
    const Mode &mode = modes[row];
    person::clickTab(m_app->element<QTabWidget>("tabviewMain"), mode.tab);
    // From another kind, so that something has to happen.
    person::press(QKeySequence(mode.variant == 0 ? u"Alt+2"_s : u"Alt+1"_s));
    QTRY_VERIFY(title() != text(mode.title));
    person::press(QKeySequence(u"Alt+%1"_s.arg(mode.variant + 1)));
    QTRY_COMPARE(title(), text(mode.title));
    QVERIFY(borderedButtons().contains(text(mode.button)));
    // In the menu as it is called on its button.
    const auto *item = m_app->window->findChild<QAction *>(u"menuitemKind%1"_s.arg(mode.variant + 1));
    QCOMPARE(item->text(), m_app->element<BarButton>(mode.button)->text());
}

void ModesTest::kindsWithoutAList()
{
    person::clickTab(m_app->element<QTabWidget>("tabviewMain"), 3);
    person::press(QKeySequence(u"Alt+2"_s));
    QTest::qWait(50);
    QCOMPARE(title(), u"Burn Audio CD"_s);
    QCOMPARE(controller().i_Audio_Type, 0);
    QVERIFY(!m_app->element<QMenu>("submenuKind")->menuAction()->isEnabled());
    // The video tab has two kinds.
    person::clickTab(m_app->element<QTabWidget>("tabviewMain"), 1);
    QVERIFY(m_app->element<QMenu>("submenuKind")->menuAction()->isEnabled());
    person::press(QKeySequence(u"Alt+3"_s));
    QTest::qWait(50);
    QCOMPARE(title(), u"Burn Video DVD"_s);
}

void ModesTest::modeButtonKeepsTheList()
{
    fillLists();
    const auto *gauge = m_app->element<SpaceOccupiedView>("spaceoccupiedviewControl");
    QCOMPARE(gauge->i_Percentage(), 10);
    click("btnMP3DVD");
    QCOMPARE(controller().arrayMediaFiles.size(), 1);
    QCOMPARE(gauge->i_Percentage(), 0);
    click("btnAudioCD");
    QCOMPARE(gauge->i_Percentage(), 10);
}

void ModesTest::tabsByClick()
{
    auto *tabs = m_app->element<QTabWidget>("tabviewMain");
    for (const int index : { 3, 0, 4, 1, 2, 0 }) {
        fillLists();
        person::clickTab(tabs, index);
        QCOMPARE(tabs->currentIndex(), index);
        const bool isList = index < 3;
        QCOMPARE(m_app->element<QWidget>("customviewSpaceOccupied")->isVisible(), isList);
        QCOMPARE(m_app->element<QWidget>("customviewButtonBurn")->isVisible(), isList);
        QCOMPARE(listsAreEmpty(), isList);
        for (int item = 0; item < 5; ++item)
            QCOMPARE(m_app->element<QAction>(tabItems[item])->isChecked(), item == index);
    }
}

void ModesTest::tabsNotByTheWheel()
{
    fillLists();
    QTabBar *bar = m_app->element<QTabWidget>("tabviewMain")->tabBar();
    const QPointF place = bar->rect().center();
    QWheelEvent turn(place, bar->mapToGlobal(place), {}, { 0, -120 }, Qt::NoButton, Qt::NoModifier,
        Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(bar, &turn);
    QCOMPARE(tab(), 0);
    QVERIFY(!listsAreEmpty());
}

void ModesTest::tabsByMenu()
{
    for (const int index : { 4, 2, 3, 1, 0 }) {
        fillLists();
        person::choose(m_app->window.get(), tabItems[index]);
        QCOMPARE(tab(), index);
        QCOMPARE(m_app->element<QWidget>("customviewButtonBurn")->isVisible(), index < 3);
        QCOMPARE(listsAreEmpty(), index < 3);
        for (int item = 0; item < 5; ++item)
            QCOMPARE(m_app->element<QAction>(tabItems[item])->isChecked(), item == index);
    }
}

void ModesTest::tabsByKeys()
{
    for (int index = 4; index >= 0; --index) {
        person::press(QKeySequence(u"Ctrl+%1"_s.arg(index + 1)));
        QTRY_COMPARE(tab(), index);
    }
}

void ModesTest::sameTabFromTheMenuEmptiesTheList()
{
    fillLists();
    person::choose(m_app->window.get(), "submenuItemTabAudio");
    QVERIFY(listsAreEmpty());
    QVERIFY(m_app->element<QAction>("submenuItemTabAudio")->isChecked());
    // A click on the tab that is shown already is no switch.
    fillLists();
    person::clickTab(m_app->element<QTabWidget>("tabviewMain"), 0);
    QVERIFY(!listsAreEmpty());
}

void ModesTest::listsSurviveTabsWithoutAList()
{
    click("btnMP3CD");
    fillLists();
    auto *tabs = m_app->element<QTabWidget>("tabviewMain");
    person::clickTab(tabs, 3);
    QCOMPARE(controller().arrayMediaFiles.size(), 1);
    QCOMPARE(title(), u"Burn MP3 CD"_s);
    person::clickTab(tabs, 4);
    QCOMPARE(controller().arrayMediaFiles.size(), 1);
    person::clickTab(tabs, 0);
    QVERIFY(listsAreEmpty());
    QCOMPARE(title(), u"Burn MP3 CD"_s);
}

void ModesTest::unknownTabChangesNothing()
{
    fillLists();
    for (const QString &identifier : { u""_s, u"0"_s, u"6"_s, u"Audio"_s })
        controller().tabView_didSelectTabViewItem(identifier);
    QCOMPARE(controller().arrayMediaFiles.size(), 1);
    QVERIFY(m_app->element<QAction>("submenuItemTabAudio")->isChecked());
    QVERIFY(m_app->element<QWidget>("customviewButtonBurn")->isVisible());
}

void ModesTest::titleFollowsTheVariant()
{
    auto *tabs = m_app->element<QTabWidget>("tabviewMain");
    for (const Mode &mode : modes) {
        person::clickTab(tabs, mode.tab);
        click(mode.button);
        person::clickTab(tabs, 4);
        person::clickTab(tabs, mode.tab);
        QCOMPARE(title(), text(mode.title));
    }
    // A variant that is none leaves the title as it was.
    controller().i_Audio_Type = 7;
    person::clickTab(tabs, 0);
    QCOMPARE(title(), u"Burn Data Blu-ray"_s);
}

void ModesTest::burnWithNothingListed_data()
{
    sheetConfirmed_data();
}

void ModesTest::burnWithNothingListed()
{
    QFETCH(int, row);
    const Mode &mode = modes[row];
    confirmType(mode.code);
    click("btnBurn");
    QCOMPARE(m_app->questions.alerts.size(), 1);
    QCOMPARE(m_app->questions.alerts.first().message, text(mode.nothingListed));
    QCOMPARE(m_app->questions.alerts.first().buttons, QStringList(u"Close"_s));
    // The drive has not been looked at.
    QCOMPARE(m_app->drutil.runs(), QList<QStringList>({ { u"list"_s } }));
}

void ModesTest::burnStartsTheTitlesPipeline_data()
{
    sheetConfirmed_data();
}

void ModesTest::burnStartsTheTitlesPipeline()
{
    QFETCH(int, row);
    const Mode &mode = modes[row];
    m_app->drutil.print(u"status"_s, "a disc, overwritable, of no known kind\n");
    person::choose(m_app->window.get(), "menuitemDebugMode");
    person::clickTab(m_app->element<QTabWidget>("tabviewMain"), mode.tab);
    click(mode.button);
    fillLists();
    // The title decides, not the type that the sheet confirmed last.
    controller().i_Type_of_New_Disc = 9 - mode.code;
    person::press(QKeySequence(u"Ctrl+B"_s));
    QTRY_COMPARE(m_app->questions.alerts.size(), 2);
    QCOMPARE(m_app->questions.alerts.at(0).message, text(mode.wrongMedium));
    QCOMPARE(m_app->questions.alerts.at(1).message, u"Other"_s);
    QCOMPARE(m_app->questions.alerts.at(1).informative, text(mode.warning));
    QVERIFY(m_app->ffmpeg.runs().isEmpty());
}

void ModesTest::unknownTitleDoesNothing()
{
    fillLists();
    auto *burn = m_app->element<BarButton>("btnBurn");
    for (const QString &title : { u"burn audio cd"_s, u"Burn Audio CD "_s, u"Burn"_s }) {
        burn->setText(title);
        person::click(burn);
    }
    QVERIFY(m_app->questions.alerts.isEmpty());
    QCOMPARE(m_app->drutil.runs(), QList<QStringList>({ { u"list"_s } }));
}

QTEST_MAIN(ModesTest)
#include "ModesTest.moc"
