// What a start makes, empties, reads and shows, and in which order.
#include "app/BarButton.h"
#include "compilation/ListTableView.h"
#include "compilation/SpaceOccupiedView.h"
#include "runner/ActivityLog.h"
#include "support/Person.h"
#include "support/TestApplication.h"
#include "ui_MainWindow.h"

#include <QDesktopServices>
#include <QMenu>
#include <QSettings>
#include <QTest>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const QStringList workingFolders{ u"Corvalis"_s, u"CorvalisAudio"_s, u"CorvalisVideo"_s, u"CorvalisData"_s };

QString settingsFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::ConfigLocation) + u"/Corvalis/Corvalis.conf"_s;
}

QStringList entries(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

void makeLink(const QString &target, const QString &path)
{
    QDir().mkpath(QFileInfo(path).path());
    if (::symlink(qPrintable(target), qPrintable(path)) != 0)
        qFatal("%s cannot be made", qUtf8Printable(path));
}

} // namespace

class StartUpTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { emptyHome(); }

    void firstRun();
    void laterRunWithOneFolderMissing();
    void settingsAreRemembered();
    void plainFileStandsForAFolder();
    void folderThatCannotBeMade_data();
    void folderThatCannotBeMade();
    void contentOfWorkingFoldersGoes();
    void linkedWorkingFolderIsEmptied();
    void whatCannotBeRemovedStaysAndIsTold();
    void order();
    void stateAfterwards();
    void everyNamedElementIsThere();
    void damagedSettings();
    void settingsThatCannotBeSaved();
    void documentsElsewhere();
    void missingTranscoder();
    void smallestSize();
    void closingEnds();
    void quitEnds();
    void debugMode();
    void helpPages();
    void helpPageWithoutABrowser();
    void userGuide_data();
    void userGuide();
    void addressesThatExist();
    void about();
};

void StartUpTest::firstRun()
{
    TestApplication app;
    const AppDelegate &controller = app.launch();
    for (const QString &folder : workingFolders)
        QVERIFY2(QFileInfo(documents(folder)).isDir(), qPrintable(folder));
    QCOMPARE(controller.s_Output_Folder, documents(u"Corvalis"_s));
    QCOMPARE(controller.s_Audio_Folder, documents(u"CorvalisAudio"_s));
    QCOMPARE(controller.s_Video_Folder, documents(u"CorvalisVideo"_s));
    QCOMPARE(controller.s_Data_Folder, documents(u"CorvalisData"_s));
    // On the disk already, not only in this program's memory.
    const QList<QByteArray> lines = contentOf(settingsFile()).split('\n');
    QVERIFY(lines.contains("QuendralVideoFormat18=0"));
    QVERIFY(lines.contains("QuendralAudioFormat18=0"));
    QVERIFY(lines.contains("Quendral_Last_Selected_Drive_18=CORVALIS - Virtual Recorder"));
    QCOMPARE(controller.s_Video_Output_Format, u"0"_s);
    QCOMPARE(controller.s_Audio_Output_Format, u"0"_s);
    QCOMPARE(app.element<BarButton>("btnBurn")->text(), u"Burn Audio CD"_s);
    QVERIFY(app.exits.isEmpty());
    QVERIFY(app.questions.alerts.isEmpty());
}

void StartUpTest::laterRunWithOneFolderMissing()
{
    QDir().mkpath(documents(u"Corvalis"_s));
    QSettings(u"Corvalis"_s, u"Corvalis"_s).setValue(u"QuendralVideoFormat18"_s, u"1"_s);
    TestApplication app;
    const AppDelegate &controller = app.launch();
    for (const QString &folder : workingFolders)
        QVERIFY2(QFileInfo(documents(folder)).isDir(), qPrintable(folder));
    QCOMPARE(controller.s_Video_Output_Format, u"1"_s);
    // Never stored, and no first run that would store it.
    QVERIFY(controller.s_Audio_Output_Format.isNull());
    QVERIFY(!contentOf(settingsFile()).contains("QuendralAudioFormat18"));
}

void StartUpTest::settingsAreRemembered()
{
    {
        TestApplication first;
        first.launch();
        first.controller->setPreference(u"QuendralVideoFormat18"_s, u"1"_s);
        QVERIFY(contentOf(settingsFile()).split('\n').contains("QuendralVideoFormat18=1"));
    }
    TestApplication second;
    const AppDelegate &controller = second.launch();
    QCOMPARE(controller.s_Video_Output_Format, u"1"_s);
    QCOMPARE(controller.s_Audio_Output_Format, u"0"_s);
}

void StartUpTest::plainFileStandsForAFolder()
{
    for (const QString &folder : workingFolders)
        makeFile(documents(folder), "mine");
    TestApplication app;
    app.launch();
    for (const QString &folder : workingFolders)
        QCOMPARE(contentOf(documents(folder)), "mine");
    QVERIFY(app.exits.isEmpty());
    QVERIFY(app.questions.alerts.isEmpty());
    QVERIFY(app.window->isVisible());
    QVERIFY(!contentOf(settingsFile()).contains("Format18"));
}

void StartUpTest::folderThatCannotBeMade_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("made");
    QTest::newRow("output") << u"Corvalis"_s << u"Error #0008. Application will exit."_s << 0;
    QTest::newRow("audio") << u"CorvalisAudio"_s << u"Error #0009. Application will exit."_s << 1;
    QTest::newRow("video") << u"CorvalisVideo"_s << u"Error #000a. Application will exit."_s << 2;
    QTest::newRow("data") << u"CorvalisData"_s << u"Error #000b. Application will exit."_s << 3;
}

void StartUpTest::folderThatCannotBeMade()
{
    QFETCH(QString, folder);
    QFETCH(QString, text);
    QFETCH(int, made);
    makeLink(documents(u"nowhere/at all"_s), documents(folder));
    TestApplication app;
    app.launch();
    QCOMPARE(app.questions.texts(), QStringList(u"Error | "_s + text));
    QCOMPARE(app.questions.alerts.first().sign, Alert::Sign::Error);
    QCOMPARE(app.questions.alerts.first().buttons, QStringList(u"Close"_s));
    QCOMPARE(app.exits, QList<int>(1, 0));
    QVERIFY(!app.window->isVisible());
    QVERIFY(app.drutil.runs().isEmpty());
    for (int i = 0; i < workingFolders.size(); ++i)
        QCOMPARE(QFileInfo(documents(workingFolders.at(i))).isDir(), i < made);
}

void StartUpTest::contentOfWorkingFoldersGoes()
{
    QTemporaryDir outside;
    makeFile(outside.filePath(u"kept"_s), "kept");
    for (const QString &folder : workingFolders) {
        makeFile(documents(folder + u"/sub/sub/old.wav"_s), "old");
        makeFile(documents(folder + u"/.hidden"_s), "old");
        makeFile(documents(folder + u"/-rf \n'\" *"_s), "old");
        QDir().mkpath(documents(folder + u"/empty"_s));
        QFile(documents(folder + u"/.hidden"_s)).setPermissions({});
        makeLink(outside.path(), documents(folder + u"/link"_s));
        makeLink(outside.path(), documents(folder + u"/sub/link"_s));
        makeLink(u"nowhere"_s, documents(folder + u"/dangling"_s));
    }
    TestApplication app;
    app.launch();
    for (const QString &folder : workingFolders) {
        QVERIFY(QFileInfo(documents(folder)).isDir());
        QCOMPARE(entries(documents(folder)), QStringList());
    }
    QCOMPARE(entries(outside.path()), QStringList(u"kept"_s));
    QCOMPARE(contentOf(outside.filePath(u"kept"_s)), "kept");
}

void StartUpTest::linkedWorkingFolderIsEmptied()
{
    QTemporaryDir elsewhere;
    makeFile(elsewhere.filePath(u"old.wav"_s));
    makeLink(elsewhere.path(), documents(u"CorvalisAudio"_s));
    TestApplication app;
    app.launch();
    QVERIFY(QFileInfo(documents(u"CorvalisAudio"_s)).isSymLink());
    QCOMPARE(entries(elsewhere.path()), QStringList());
}

void StartUpTest::whatCannotBeRemovedStaysAndIsTold()
{
    // Nobody can remove what lies there, not even root.
    makeLink(u"/proc/self/ns"_s, documents(u"CorvalisVideo"_s));
    makeFile(documents(u"CorvalisData/old"_s));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^oops: .*"_s));
    TestApplication app;
    const AppDelegate &controller = app.launch();
    QVERIFY(app.window->isVisible());
    QVERIFY(app.questions.alerts.isEmpty());
    QVERIFY(!entries(documents(u"CorvalisVideo"_s)).isEmpty());
    QCOMPARE(entries(documents(u"CorvalisData"_s)), QStringList());
    QVERIFY(controller.activityLog->text().contains(u"could not be removed"_s));
}

void StartUpTest::order()
{
    for (const QString &folder : workingFolders)
        makeFile(documents(folder + u"/old"_s));
    TestApplication app;
    QFile::remove(app.ffmpeg.path());
    // The drive list is asked for when the folders are empty, and before the transcoder is looked for.
    app.drutil.run("find \"$HOME/Documents\" -type f > \"$0.found\"; touch \"${0%/*}/ffmpeg\"");
    const AppDelegate &controller = app.launch();
    QVERIFY(QFile::exists(app.drutil.path() + u".found"_s));
    QCOMPARE(contentOf(app.drutil.path() + u".found"_s), QByteArray());
    QCOMPARE(controller.sffmpegPath, app.ffmpeg.path());
    QCOMPARE(app.drutil.runs(), QList<QStringList>({ { u"list"_s } }));
}

void StartUpTest::stateAfterwards()
{
    TestApplication app;
    const AppDelegate &controller = app.launch();
    QCOMPARE(app.window->windowTitle(), u"Corvalis"_s);
    QVERIFY(app.window->isVisible());
    QTRY_VERIFY(app.window->isActiveWindow());
    QCOMPARE(app.element<QTabWidget>("tabviewMain")->currentIndex(), 0);
    QCOMPARE(app.element<BarButton>("btnBurn")->text(), u"Burn Audio CD"_s);
    QVERIFY(!controller.m_b_Debug_Mode);
    QCOMPARE(controller.i_Type_of_New_Disc, 1);
    QCOMPARE(controller.i_Audio_Type, 0);
    QCOMPARE(controller.i_Video_Type, 0);
    QCOMPARE(controller.i_Data_Type, 0);
    QVERIFY(controller.m_b_Col1_Ascenging);
    QVERIFY(!controller.m_b_Col2_Ascenging);
    QVERIFY(!controller.m_b_Col3_Ascenging);
    QVERIFY(!controller.m_b_Col4_Ascenging);
    QVERIFY(controller.arrayMediaFiles.isEmpty());
    QVERIFY(controller.arrayDataFolders.isEmpty());
    QCOMPARE(app.element<SpaceOccupiedView>("spaceoccupiedviewControl")->i_Percentage(), 0);
    for (const char *chosen : { "btnAudioCD", "btnVideoDVD", "btnDataCD" })
        QVERIFY2(app.element<BarButton>(chosen)->isBordered(), chosen);
    for (const char *other : { "btnMP3CD", "btnMP3DVD", "btnVideoBluray", "btnDataDVD", "btnDataBluray" })
        QVERIFY2(!app.element<BarButton>(other)->isBordered(), other);
    QVERIFY(app.element<QAction>("submenuItemTabAudio")->isChecked());
    QVERIFY(!app.element<QAction>("menuitemDebugMode")->isChecked());
    QVERIFY(AppDelegate::applicationShouldTerminateAfterLastWindowClosed());
}

void StartUpTest::everyNamedElementIsThere()
{
    TestApplication app;
    app.launch();
    QCOMPARE(app.window->objectName(), u"window"_s);
    const char *const names[] = { "tabviewMain", "btnBurn", "spaceoccupiedviewControl",
        "label_BottomBar_SpaceOcuupied", "customviewSpaceOccupied", "customviewButtonBurn", "btnAudioCD",
        "btnMP3CD", "btnMP3DVD", "btnVideoDVD", "btnVideoBluray", "btnDataCD", "btnDataDVD", "btnDataBluray",
        "tableviewAudioFiles", "tableviewVideoFiles", "tableviewDataFolders", "toolbar_btn_Audio_Add_Files",
        "toolbar_btn_Audio_Add_Folder", "toolbar_btn_Audio_New_Disc", "toolbar_btn_Audio_Copy_Disc",
        "toolbar_btn_Video_Add_Files", "toolbar_btn_Video_Add_Folder", "toolbar_btn_Video_New_Disc",
        "toolbar_btn_Video_Copy_Disc", "toolbar_btn_Data_Add_Folder", "toolbar_btn_Data_New_Disc",
        "toolbar_btn_Data_Copy_Disc", "toolbar_btn_ISO_Create_ISO", "toolbar_btn_ISO_Burn_ISO",
        "toolbar_btn_Tools_Erase_Disc", "toolbar_btn_Tools_Eject_Disc", "toolbar_btn_Tools_Load_Disc",
        "toolbar_btn_Tools_Disc_Info", "toolbar_btn_Tools_Colors", "popupmenuErase", "view_Toolbar_Audio_BG",
        "view_Toolbar_Audio_Sub_BG", "view_Toolbar_Video_BG", "view_Toolbar_Video_Sub_BG",
        "view_Toolbar_Data_BG", "view_Toolbar_Data_Sub_BG", "view_Toolbar_ISO_BG", "view_Toolbar_Tools_BG",
        "submenuItemTabAudio", "submenuItemTabVideo", "submenuItemTabData", "submenuItemTabISO",
        "submenuItemTabTools", "submenuItemDriveSlot1", "submenuItemDriveSlot2", "submenuItemDriveSlot3",
        "submenuItemDriveSlot4", "submenuItemDriveSlot5", "submenuItemDriveSlot6", "menuitemDebugMode" };
    for (const char *name : names)
        QVERIFY2(app.element<QObject>(name), name);
}

void StartUpTest::damagedSettings()
{
    makeFile(settingsFile(), "\x00\xff\xfe[[[\nQuendralVideoFormat18\n=\n]]%%%@Invalid(");
    TestApplication app;
    app.launch();
    QVERIFY(app.window->isVisible());
    QVERIFY(app.exits.isEmpty());
}

void StartUpTest::settingsThatCannotBeSaved()
{
    // A plain file where the folder of the settings would be.
    makeFile(QStandardPaths::writableLocation(QStandardPaths::ConfigLocation) + u"/Corvalis"_s, "mine");
    TestApplication app;
    const AppDelegate &controller = app.launch();
    QVERIFY(app.window->isVisible());
    QCOMPARE(controller.s_Video_Output_Format, u"0"_s);
    QVERIFY(controller.activityLog->text().contains(u"The settings could not be saved"_s));
}

void StartUpTest::documentsElsewhere()
{
    makeFile(QStandardPaths::writableLocation(QStandardPaths::ConfigLocation) + u"/user-dirs.dirs"_s,
        "XDG_DOCUMENTS_DIR=\"$HOME/Dokumente mit Leerzeichen\"\n");
    TestApplication app;
    const AppDelegate &controller = app.launch();
    QCOMPARE(controller.s_Audio_Folder, QDir::homePath() + u"/Dokumente mit Leerzeichen/CorvalisAudio"_s);
    QVERIFY(QFileInfo(controller.s_Audio_Folder).isDir());
    QDir(QDir::homePath() + u"/Dokumente mit Leerzeichen"_s).removeRecursively();
}

void StartUpTest::missingTranscoder()
{
    TestApplication app;
    QFile::remove(app.ffmpeg.path());
    const AppDelegate &controller = app.launch();
    QVERIFY(controller.sffmpegPath.isEmpty());
    QVERIFY(app.window->isVisible());
    QVERIFY(app.questions.alerts.isEmpty());
}

void StartUpTest::smallestSize()
{
    TestApplication app;
    app.launch();
    app.window->resize(300, 900);
    QCOMPARE(app.window->size(), QSize(700, 900));
    app.window->resize(1200, 100);
    QCOMPARE(app.window->size(), QSize(1200, 400));
    app.window->resize(10, 10);
    QCOMPARE(app.window->size(), QSize(700, 400));
    // Nothing is cut off at that size, on any tab.
    for (int tab = 0; tab < 5; ++tab) {
        app.element<QTabWidget>("tabviewMain")->setCurrentIndex(tab);
        QCoreApplication::processEvents();
        for (const BarButton *button : app.window->findChildren<BarButton *>()) {
            const QSize least = button->minimumSizeHint();
            if (button->isVisible())
                QVERIFY2(button->width() >= least.width() && button->height() >= least.height(),
                    qPrintable(button->objectName()));
        }
    }
    QCOMPARE(AppDelegate::windowWillResize_toSize({ 699, 401 }), QSize(700, 401));
    QCOMPARE(AppDelegate::windowWillResize_toSize({ 5000, 0 }), QSize(5000, 400));
}

void StartUpTest::closingEnds()
{
    TestApplication app;
    app.launch();
    app.window->close();
    QCOMPARE(app.exits, QList<int>(1, 0));
}

void StartUpTest::quitEnds()
{
    TestApplication app;
    app.launch();
    QTRY_VERIFY(app.window->isActiveWindow());
    person::choose(app.window.get(), "menuitemQuit");
    QCOMPARE(app.exits, QList<int>(1, 0));
    person::press(QKeySequence(u"Ctrl+Q"_s));
    QTRY_COMPARE(app.exits, QList<int>(2, 0));
}

void StartUpTest::debugMode()
{
    TestApplication app;
    const AppDelegate &controller = app.launch();
    const auto *item = app.element<QAction>("menuitemDebugMode");
    for (const bool on : { true, false, true }) {
        person::choose(app.window.get(), "menuitemDebugMode");
        QCOMPARE(controller.m_b_Debug_Mode, on);
        QCOMPARE(item->isChecked(), on);
    }
}

/// Takes the place of the desktop's browser.
class Browser : public QObject {
    Q_OBJECT
public:
    QStringList pages;
    explicit Browser(const QString &opened)
        : scheme(opened)
    {
        QDesktopServices::setUrlHandler(scheme, this, "open");
    }
    ~Browser() override { QDesktopServices::unsetUrlHandler(scheme); }
    Q_INVOKABLE void open(const QUrl &url) { pages.append(url.toString()); }

private:
    const QString scheme;
};

void StartUpTest::helpPageWithoutABrowser()
{
    TestApplication app;
    app.launch();
    // Off screen, the toolkit knows of no desktop that could open anything.
    person::choose(app.window.get(), "menuitemHelpAppHomePage");
    QCOMPARE(app.questions.alerts.size(), 1);
    QCOMPARE(app.questions.alerts.first().message, u"The page could not be opened"_s);
    QVERIFY(app.questions.alerts.first().informative.contains(u"https://"_s));
}

void StartUpTest::helpPages()
{
    Browser browser(u"https"_s);
    TestApplication app;
    app.launch();
    for (const char *item : { "menuitemHelpAppHomePage", "menuitemHelpCompanyHomePage",
             "menuitemHelpSubmitTicket", "menuitemHelpPrivacyPolicy" }) {
        const qsizetype before = browser.pages.size();
        person::choose(app.window.get(), item);
        QCOMPARE(browser.pages.size(), before + 1);
    }
    QVERIFY(app.questions.alerts.isEmpty());
    QCOMPARE(QSet<QString>(browser.pages.cbegin(), browser.pages.cend()).size(), 4);
}

void StartUpTest::userGuide_data()
{
    QTest::addColumn<bool>("installed");
    QTest::newRow("the installed one") << true;
    QTest::newRow("the one on the web, where none is installed") << false;
}

void StartUpTest::userGuide()
{
    QFETCH(bool, installed);
    Browser web(u"https"_s);
    Browser files(u"file"_s);
    TestApplication app;
    app.around.guide = app.folder.filePath(u"a guide.html"_s);
    if (installed) {
        QFile guide(app.around.guide);
        QVERIFY(guide.open(QFile::WriteOnly));
    }
    app.launch();
    person::choose(app.window.get(), "menuitemHelpUserGuide");
    QVERIFY(app.questions.alerts.isEmpty());
    if (installed) {
        QCOMPARE(files.pages, QStringList(QUrl::fromLocalFile(app.around.guide).toString()));
        QVERIFY(web.pages.isEmpty());
    } else {
        QCOMPARE(web.pages.size(), 1);
        QVERIFY(files.pages.isEmpty());
    }
}

void StartUpTest::addressesThatExist()
{
    Browser browser(u"https"_s);
    TestApplication app;
    app.launch();
    for (const char *item : { "menuitemHelpUserGuide", "menuitemHelpAppHomePage",
             "menuitemHelpCompanyHomePage", "menuitemHelpSubmitTicket", "menuitemHelpPrivacyPolicy" })
        person::choose(app.window.get(), item);
    QCOMPARE(browser.pages.size(), 5);
    for (const QString &page : std::as_const(browser.pages)) {
        const QString host = QUrl(page).host();
        QVERIFY2(host.contains(u'.'), qPrintable(page));
        // RFC 2606: names under which nobody will ever be found.
        for (const auto &nowhere : { u".example"_s, u".test"_s, u".invalid"_s, u".localhost"_s })
            QVERIFY2(!host.endsWith(nowhere) && !host.contains(u"example."_s), qPrintable(page));
    }
}

void StartUpTest::about()
{
    TestApplication app;
    app.launch();
    person::choose(app.window.get(), "menuitemHelpAbout");
    QCOMPARE(app.questions.alerts.size(), 1);
    QVERIFY(app.questions.alerts.first().message.startsWith(u"Corvalis"_s));
}

QTEST_MAIN(StartUpTest)
#include "StartUpTest.moc"
