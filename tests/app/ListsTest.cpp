// Adding to the lists and taking from them, through the window's own dialogs.
#include "app/BarButton.h"
#include "app/Window_Alert.h"
#include "compilation/ListTableModel.h"
#include "compilation/ListTableView.h"
#include "compilation/SpaceOccupiedView.h"
#include "runner/ActivityLog.h"
#include "support/Person.h"
#include "support/TestApplication.h"
#include "ui_MainWindow.h"
#include "writing/StatusSheets.h"

#include <QAbstractItemModelTester>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QProgressBar>
#include <QRegularExpression>
#include <QScreen>
#include <QTest>

#include <algorithm>
#include <dirent.h>
#include <filesystem>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

/// What a transcoder prints of a file when it is asked for nothing else.
QByteArray report(const QByteArray &duration)
{
    return "Input #0, mp3, from 'x':\n  Duration: " + duration + ", start: 0.000000, bitrate: 320 kb/s\n";
}

QStringList inTheFileSystemsOrder(const QString &folder)
{
    QStringList names;
    DIR *stream = ::opendir(qPrintable(folder));
    while (const dirent *entry = ::readdir(stream))
        names.append(QString::fromUtf8(entry->d_name));
    ::closedir(stream);
    return names;
}

/// Names, without an extension, that dialogs and shells have their own ideas about.
QStringList oddBaseNames()
{
    return { u"plain"_s, u"say \"yes\""_s, u"a\"b"_s, u"b"_s, u"\"quoted\""_s, u"quoted"_s, u"\"a\" \"b\""_s,
        u"\""_s, u"two\nlines\n"_s, u"-dash"_s, u" blanks "_s, u"\\back\\slash"_s, u"~"_s, u"~root"_s,
        u"$HOME"_s, u"${HOME}"_s, u"100%41"_s, u"tab\there"_s, u"*?[a]"_s, u"日本語 עברית 😀"_s,
        QString(251, u'x'), QString(125, u'ä') };
}

void makeFileOfBytes(const QByteArray &path)
{
    std::FILE *file = std::fopen(path.constData(), "w");
    if (!file)
        qFatal("%s cannot be written", path.constData());
    std::fclose(file);
}

/// Takes away what makeFileOfBytes() made, which Qt cannot.
void removeTree(const QString &folder)
{
    std::error_code failure;
    std::filesystem::remove_all(folder.toStdString(), failure);
}

} // namespace

class ListsTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void fileDialog_data();
    void fileDialog();
    void fileDialogFiltersInAnyCase();
    void markedFilesAreTakenExactly();
    void markedFoldersAreTakenExactly();
    void namesTypedWithQuotes();
    void quotesPartSeveralTypedNames();
    void manyMarkedFiles();
    void panelSortsAsTheListsDo();
    void panelIsLargeEnough();
    void panelRemembersATypedPath();
    void panelOffersPlaces();
    void panelCancelled_data();
    void panelCancelled();
    void recordsOfAddedFiles();
    void oddNames();
    void stoppedAddingKeepsWhatIsMeasured();
    void stepsAndRowsAtTheEnd();
    void windowAnswersWhileMeasuring();
    void quitWhileMeasuring();
    void unreadableFileIsListed();
    void whatCouldNotBeMeasuredIsMarked();
    void hangingTranscoder();
    void pipesAreRefused();
    void missingTranscoder_data();
    void missingTranscoder();
    void mediaFolder_data();
    void mediaFolder();
    void folderInTheFileSystemsOrder();
    void folderWithNothingAccepted();
    void folderThatIsGone();
    void namesThatAreNotTextAreTold();
    void namesThatTheDialogCannotShow();
    void pathsWithATrailingSlash();
    void duplicates();
    void dataFolder();
    void dataFolderTwice();
    void deleting_data();
    void deleting();
    void deletingFoldersWithTheKey();
    void deletingNothingRefreshes();
    void clearing_data();
    void clearing();
    void clearingIsSharedByAudioAndVideo();
    void playNothing_data();
    void playNothing();
    void playPanelsOfADataTabAreOff();
    void movingRows();
    void selectionAfterDeleting();
    void selectionSurvives();
    void rowsStayInView();
    void keysGoByRows();
    void rowsAreDragged_data();
    void rowsAreDragged();
    void aDragBeginsOnAnyRow();
    void draggedToWhereTheyAre();
    void dragOfOtherRows();
    void dropBetweenRows();
    void dropBetweenFolders();
    void theDropLine();
    void contextMenu_data();
    void contextMenu();
    void contextMenuActs();
    void dropOnAudio();
    void dropOnData();
    void singleFilesForADataDisc();
    void dropOfAnAlbum();
    void dropIsNeverAMove();
    void dropThatDoesNotFitIsTold();

private:
    ListTableView *table(const char *name) const { return m_app->element<ListTableView>(name); }
    ListTableView *audio() const { return table("tableviewAudioFiles"); }
    void click(const char *button) const { person::click(m_app->window.get(), button); }
    void showTab(int tab) const { person::clickTab(m_app->element<QTabWidget>("tabviewMain"), tab); }
    static QStringList column(const QTableView *view, int column);
    QString media(const QString &below = {}) const { return m_media->filePath(below); }
    /// Adds files of the media folder through the file dialog of the shown tab, and waits until they are
    /// listed.
    void addFiles(const char *button, const QStringList &names);
    void addNumbered(int count);
    void listNumbered(int count); ///< puts them on the list as if added
    void select(const QList<int> &rows) const;
    /// Lets something go over the audio list, above the middle of a row or below the last.
    bool letGo(const QMimeData *data, int before, Qt::DropActions actions) const;
    QPoint placeBefore(int row) const;
    bool awaitAdded() const
    {
        return QTest::qWaitFor([this] { return !m_app->controller->windowUniqueProgress; }, 20'000);
    }

    std::unique_ptr<QTemporaryDir> m_media;
    std::unique_ptr<TestApplication> m_app;
};

void ListsTest::init()
{
    QTest::failOnWarning(QRegularExpression(u"does not let mark"_s));
    emptyHome();
    m_media = std::make_unique<QTemporaryDir>();
    m_app = std::make_unique<TestApplication>();
    m_app->ffmpeg.print(u"-i"_s, report("00:03:25.47"));
    m_app->launchWithDialogs();
    for (QTableView *view : m_app->window->findChildren<QTableView *>())
        new QAbstractItemModelTester(
            view->model(), QAbstractItemModelTester::FailureReportingMode::QtTest, view);
    QVERIFY(person::awaitKeyboard(m_app->window.get()));
}

void ListsTest::cleanup()
{
    m_app.reset();
    removeTree(m_media->path());
    m_media.reset();
}

QStringList ListsTest::column(const QTableView *view, int column)
{
    QStringList texts;
    for (int row = 0; row < view->model()->rowCount(); ++row)
        texts.append(view->model()->index(row, column).data().toString());
    return texts;
}

void ListsTest::addFiles(const char *button, const QStringList &names)
{
    person::Expect<QFileDialog> dialog(
        [&](QFileDialog *panel) { person::openFiles(panel, m_media->path(), names); });
    click(button);
    QVERIFY(dialog.happened());
    QVERIFY(awaitAdded());
}

void ListsTest::addNumbered(int count)
{
    QStringList names;
    for (int i = 0; i < count; ++i) {
        names.append(u"%1.mp3"_s.arg(i));
        makeFile(media(names.last()));
    }
    addFiles("toolbar_btn_Audio_Add_Files", names);
    QCOMPARE(column(audio(), 0), names);
}

void ListsTest::fileDialog_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<QByteArray>("tableName");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("audio") << 0 << QByteArray("toolbar_btn_Audio_Add_Files")
                           << QByteArray("tableviewAudioFiles")
                           << QStringList{ u"a.mp3"_s, u"b.m4a"_s, u"c.wav"_s };
    QTest::newRow("video") << 1 << QByteArray("toolbar_btn_Video_Add_Files")
                           << QByteArray("tableviewVideoFiles")
                           << QStringList{ u"a.mpeg-4"_s, u"b.mkv.avi"_s, u"c.mp4"_s };
}

void ListsTest::fileDialog()
{
    QFETCH(int, tab);
    QFETCH(QByteArray, button);
    QFETCH(QByteArray, tableName);
    QFETCH(QStringList, names);
    for (const QString &name : names)
        makeFile(media(name));
    showTab(tab);
    addFiles(button.constData(), names);
    QCOMPARE(column(table(tableName.constData()), 0), names);
    // A second time they come after those that are listed.
    addFiles(button.constData(), { names.last() });
    QCOMPARE(column(table(tableName.constData()), 0), names + QStringList(names.last()));
    QCOMPARE(m_app->ffmpeg.runs().size(), 4);
    QCOMPARE(m_app->ffmpeg.runs().first(), QStringList({ u"-i"_s, media(names.first()) }));
}

void ListsTest::fileDialogFiltersInAnyCase()
{
    for (const auto &name :
        { u"a.mp3"_s, u"B.MP3"_s, u"c.WaV"_s, u"d.txt"_s, u"e.mp4"_s, u"mp3"_s, u"f.mp33"_s, u"z.wma"_s })
        makeFile(media(name));
    QStringList shown;
    person::Expect<QFileDialog> dialog([&](QFileDialog *panel) {
        shown = person::shownFiles(panel, m_media->path(), u"z.wma"_s);
        QCOMPARE(panel->fileMode(), QFileDialog::ExistingFiles);
        panel->reject();
    });
    click("toolbar_btn_Audio_Add_Files");
    QVERIFY(dialog.happened());
    std::ranges::sort(shown);
    QCOMPARE(shown, QStringList({ u"B.MP3"_s, u"a.mp3"_s, u"c.WaV"_s, u"z.wma"_s }));
}

// Each of these lies beside those for which a dialog could take it.
void ListsTest::markedFilesAreTakenExactly()
{
    QStringList names = oddBaseNames();
    names.replaceInStrings(QRegularExpression(u"$"_s), u".mp3"_s);
    for (const QString &name : std::as_const(names))
        makeFile(media(name));
    for (const QString &name : std::as_const(names)) {
        addFiles("toolbar_btn_Audio_Add_Files", { name });
        QCOMPARE(column(audio(), 0), QStringList(name));
        QCOMPARE(m_app->controller->arrayMediaFiles.first().s_File_Path, media(name));
        click("toolbar_btn_Audio_Clear");
    }
    addFiles("toolbar_btn_Audio_Add_Files", names);
    QStringList listed = column(audio(), 0);
    std::ranges::sort(listed);
    std::ranges::sort(names);
    QCOMPARE(listed, names);
}

void ListsTest::markedFoldersAreTakenExactly()
{
    showTab(2);
    const QStringList names = oddBaseNames();
    for (const QString &name : names)
        QVERIFY(QDir(m_media->path()).mkdir(name));
    for (const QString &name : names) {
        person::Expect<QFileDialog> dialog(
            [&](QFileDialog *panel) { person::markFolder(panel, media(name)); });
        click("toolbar_btn_Data_Add_Folder");
        QVERIFY(dialog.happened());
        QCOMPARE(column(table("tableviewDataFolders"), 0), QStringList(media(name)));
        click("toolbar_btn_Data_Clear");
    }
}

void ListsTest::namesTypedWithQuotes()
{
    makeFile(media(u"in \"here\"/a\"b.mp3"_s));
    makeFile(media(u"in \"here\"/b.mp3"_s));
    person::Expect<QFileDialog> dialog([&](QFileDialog *panel) {
        person::pastePath(panel, {});
        auto *field = panel->findChild<QLineEdit *>(u"fileNameEdit"_s);
        for (const QString &typed : { media(u"in \"here\""_s), u"a\"b.mp3"_s }) {
            field->selectAll();
            QTest::keyClicks(field, typed);
            QTest::keyClick(field, Qt::Key_Return);
        }
    });
    click("toolbar_btn_Audio_Add_Files");
    QVERIFY(dialog.happened());
    QVERIFY(awaitAdded());
    QCOMPARE(column(audio(), 0), QStringList(u"a\"b.mp3"_s));
}

void ListsTest::quotesPartSeveralTypedNames()
{
    for (const auto &name : { u"a b.mp3"_s, u"c.mp3"_s, u"d.mp3"_s })
        makeFile(media(name));
    person::Expect<QFileDialog> dialog([&](QFileDialog *panel) {
        panel->setDirectory(m_media->path());
        person::pastePath(panel, {});
        auto *field = panel->findChild<QLineEdit *>(u"fileNameEdit"_s);
        QTest::keyClicks(field, u"\"a b.mp3\" \"d.mp3\""_s);
        QTest::keyClick(field, Qt::Key_Return);
    });
    click("toolbar_btn_Audio_Add_Files");
    QVERIFY(dialog.happened());
    QVERIFY(awaitAdded());
    QCOMPARE(column(audio(), 0), QStringList({ u"a b.mp3"_s, u"d.mp3"_s }));
}

void ListsTest::manyMarkedFiles()
{
    constexpr int count = 1000;
    for (int i = 0; i < count; ++i)
        makeFile(media(u"a name that is long as names of songs are %1.mp3"_s.arg(i, 4, 10, QChar(u'0'))));
    m_app->controller->sffmpegPath = u"/bin/true"_s; // nothing is to be measured
    person::Expect<QFileDialog> dialog([&](QFileDialog *panel) {
        person::shownFiles(panel, m_media->path(), u"a name that is long as names of songs are 0999.mp3"_s);
        auto *list = panel->findChild<QTreeView *>(u"treeView"_s);
        person::clickRow(list, list->model()->index(0, 0, list->rootIndex()));
        QTest::keyClick(list, Qt::Key_A, Qt::ControlModifier);
        person::pressTitled(panel, u"Open"_s);
    });
    click("toolbar_btn_Audio_Add_Files");
    QVERIFY(dialog.happened());
    QVERIFY(awaitAdded());
    QCOMPARE(audio()->model()->rowCount(), count);
}

// The tests' locale is one in which a file system's model does not know of numbers.
void ListsTest::panelSortsAsTheListsDo()
{
    for (const auto &[name, size] : { std::pair(u"Track 10.mp3"_s, 5), { u"track 2.mp3"_s, 3000 },
             { u"Track 1.mp3"_s, 200 }, { u"zoo/x.mp3"_s, 1 }, { u"Alps/x.mp3"_s, 1 } })
        makeFile(media(name), QByteArray(size, 'x'));
    const QStringList files{ u"Track 1.mp3"_s, u"track 2.mp3"_s, u"Track 10.mp3"_s };
    const auto reversed = [](QStringList names) {
        std::ranges::reverse(names);
        return names;
    };
    QList<QStringList> shown;
    person::Expect<QFileDialog> dialog([&](QFileDialog *panel) {
        person::shownFiles(panel, m_media->path(), u"track 2.mp3"_s);
        auto *list = panel->findChild<QTreeView *>(u"treeView"_s);
        for (const auto &[column, order] :
            { std::pair(0, Qt::AscendingOrder), { 0, Qt::DescendingOrder }, { 1, Qt::AscendingOrder } }) {
            list->sortByColumn(column, order);
            shown.append(person::shownFiles(panel, m_media->path(), u"track 2.mp3"_s));
        }
        panel->reject();
    });
    click("toolbar_btn_Audio_Add_Files");
    QVERIFY(dialog.happened());
    const QStringList folders{ u"Alps"_s, u"zoo"_s };
    QCOMPARE(shown.at(0), folders + files);
    QCOMPARE(shown.at(1), reversed(folders) + reversed(files));
    QCOMPARE(shown.at(2).last(3), QStringList({ u"Track 10.mp3"_s, u"Track 1.mp3"_s, u"track 2.mp3"_s }));
}

void ListsTest::panelIsLargeEnough()
{
    makeFile(media(u"A name that is long, as the names of songs often are.mp3"_s));
    person::Expect<QFileDialog> dialog([&](QFileDialog *panel) {
        person::shownFiles(
            panel, m_media->path(), u"A name that is long, as the names of songs often are.mp3"_s);
        const auto *list = panel->findChild<QTreeView *>(u"treeView"_s);
        const QSize room = panel->screen()->availableSize();
        QVERIFY(panel->width() > room.width() / 2 && panel->width() <= room.width());
        QVERIFY(panel->height() > room.height() / 2 && panel->height() <= room.height());
        const QModelIndex file = list->model()->index(0, 0, list->rootIndex());
        for (int column = 1; column < 4; ++column) {
            const QString text = file.siblingAtColumn(column).data().toString();
            QVERIFY2(
                list->columnWidth(column) >= list->fontMetrics().horizontalAdvance(text), qPrintable(text));
        }
        panel->reject();
    });
    click("toolbar_btn_Audio_Add_Files");
    QVERIFY(dialog.happened());
}

void ListsTest::panelRemembersATypedPath()
{
    makeFile(media(u"far/away/a.mp3"_s));
    makeFile(media(u"far/away/b.mp3"_s));
    QString second;
    {
        person::Expect<QFileDialog> dialog([&](QFileDialog *panel) {
            person::pastePath(panel, media(u"far/away/a.mp3"_s));
            person::pressTitled(panel, u"Open"_s);
        });
        click("toolbar_btn_Audio_Add_Files");
        QVERIFY(dialog.happened());
        QVERIFY(awaitAdded());
    }
    {
        person::Expect<QFileDialog> dialog([&](QFileDialog *panel) {
            second = panel->directory().absolutePath();
            person::markFolder(panel, media(u"far/away"_s));
        });
        click("toolbar_btn_Audio_Add_Folder");
        QVERIFY(dialog.happened());
        QVERIFY(awaitAdded());
    }
    QCOMPARE(second, media(u"far/away"_s));
    QCOMPARE(column(audio(), 0).size(), 3);
    person::Expect<QFileDialog> dialog([&](QFileDialog *panel) {
        second = panel->directory().absolutePath();
        panel->reject();
    });
    click("toolbar_btn_Audio_Add_Folder");
    QVERIFY(dialog.happened());
    QCOMPARE(second, media(u"far"_s)); // where the folder was marked
}

void ListsTest::panelOffersPlaces()
{
    for (const auto &name : { u"DISC_1"_s, u"DISC_2"_s })
        QDir().mkpath(media(name));
    OpenPanel panel;
    panel.choose = OpenPanel::Choose::Folder;
    panel.places = { QUrl::fromLocalFile(media(u"DISC_1"_s)), QUrl::fromLocalFile(media(u"DISC_2"_s)) };
    QList<QUrl> offered;
    person::Expect<QFileDialog> dialog([&](QFileDialog *shown) {
        offered = shown->sidebarUrls();
        person::pressTitled(shown, u"Choose"_s);
    });
    QCOMPARE(m_app->dialogs.choose(panel, m_app->window.get()), panel.places.first(1));
    QVERIFY(dialog.happened());
    QCOMPARE(offered.first(2), panel.places);
    QVERIFY(offered.size() > 2);
}

void ListsTest::panelCancelled_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<QByteArray>("button");
    QTest::newRow("audio files") << 0 << QByteArray("toolbar_btn_Audio_Add_Files");
    QTest::newRow("audio folder") << 0 << QByteArray("toolbar_btn_Audio_Add_Folder");
    QTest::newRow("video files") << 1 << QByteArray("toolbar_btn_Video_Add_Files");
    QTest::newRow("video folder") << 1 << QByteArray("toolbar_btn_Video_Add_Folder");
    QTest::newRow("data folder") << 2 << QByteArray("toolbar_btn_Data_Add_Folder");
}

void ListsTest::panelCancelled()
{
    QFETCH(int, tab);
    QFETCH(QByteArray, button);
    showTab(tab);
    person::Expect<QFileDialog> dialog([](QFileDialog *panel) { QTest::keyClick(panel, Qt::Key_Escape); });
    click(button.constData());
    QVERIFY(dialog.happened());
    QVERIFY(!m_app->controller->windowUniqueProgress);
    QVERIFY(m_app->controller->arrayMediaFiles.isEmpty());
    QVERIFY(m_app->controller->arrayDataFolders.isEmpty());
}

void ListsTest::recordsOfAddedFiles()
{
    makeFile(media(u"Songs/One.Two.M4A"_s), QByteArray(1025, 'x'));
    person::Expect<QFileDialog> dialog(
        [&](QFileDialog *panel) { person::openFiles(panel, media(u"Songs"_s), { u"One.Two.M4A"_s }); });
    person::press(QKeySequence(u"Ctrl+O"_s));
    QTRY_VERIFY(dialog.happened());
    QTRY_COMPARE(m_app->controller->arrayMediaFiles.size(), 1);
    const NodeMediaFile &file = m_app->controller->arrayMediaFiles.first();
    QCOMPARE(file.s_File_URL, QUrl::fromLocalFile(media(u"Songs/One.Two.M4A"_s)));
    QCOMPARE(file.s_File_Path, media(u"Songs/One.Two.M4A"_s));
    QCOMPARE(file.s_Folder_Path, media(u"Songs"_s));
    QCOMPARE(file.s_File_Name_With_Extension, u"One.Two.M4A"_s);
    QCOMPARE(file.s_File_Extension, u"M4A"_s);
    QCOMPARE(file.s_File_Size, u"1.00 KB"_s);
    QCOMPARE(file.s_Duration, u" 00:03:25.4"_s);
    QCOMPARE(file.i_Duration_in_Seconds, 205);
    QStringList cells;
    for (int i = 0; i < 4; ++i)
        cells.append(column(audio(), i).first());
    QCOMPARE(cells, QStringList({ u"One.Two.M4A"_s, u" 00:03:25.4"_s, u"1.00 KB"_s, media(u"Songs"_s) }));
    QCOMPARE(m_app->controller->i_Audio_Total_Duration_in_Seconds, 205);
    QCOMPARE(m_app->element<SpaceOccupiedView>("spaceoccupiedviewControl")->i_Percentage(), 205 * 100 / 4440);
}

void ListsTest::oddNames()
{
    const QStringList names{ u"-i.mp3"_s, u"a 'b' \"c\" $(d) `e`;.mp3"_s, u"line\nbreak.mp3"_s,
        u"<b>bold<b>.mp3"_s, u"100%1 %s.mp3"_s, u"Ünïcødé 漢字 שלום 🎵.mp3"_s, QString(251, u'x') + u".mp3"_s,
        u"back\\slash.mp3"_s, u" blanks .mp3"_s };
    for (const QString &name : names)
        makeFile(media(name));
    person::Expect<QFileDialog> dialog(
        [this](QFileDialog *panel) { person::openFolder(panel, m_media->path()); });
    click("toolbar_btn_Audio_Add_Folder");
    QVERIFY(awaitAdded());
    QStringList listed = column(audio(), 0);
    QStringList given;
    for (const QStringList &run : m_app->ffmpeg.runs())
        given.append(run.value(1));
    for (const QString &name : names) {
        QVERIFY2(listed.contains(name), qPrintable(name));
        QVERIFY2(given.contains(media(name)), qPrintable(name));
    }
    QCOMPARE(listed.size(), names.size());
    audio()->grab();
    // What looks like rich text is shown as it is.
    const int bold = static_cast<int>(listed.indexOf(u"<b>bold<b>.mp3"_s));
    const QString tip = audio()->model()->index(bold, 0).data(Qt::ToolTipRole).toString();
    QVERIFY(!tip.contains(u"<b>"_s));
}

void ListsTest::stoppedAddingKeepsWhatIsMeasured()
{
    QList<QUrl> files;
    for (const auto &name : { u"0.mp3"_s, u"1.mp3"_s, u"2.mp3"_s }) {
        makeFile(media(name));
        files.append(QUrl::fromLocalFile(media(name)));
    }
    m_app->ffmpeg.run("while [ ! -e \"$2.go\" ]; do sleep 0.02; done");
    m_app->controller->addMediaFiles(AppDelegate::ListKind::Audio, files);
    const QPointer<Window_Unique_Progress> sheet = m_app->controller->windowUniqueProgress;
    const auto *told = sheet->findChild<QLabel *>(u"labelItem"_s);
    QCOMPARE(told->text(), u"0.mp3 (1 of 3)"_s);
    makeFile(media(u"0.mp3.go"_s));
    QTRY_COMPARE(told->text(), u"1.mp3 (2 of 3)"_s);
    person::press(QKeySequence(Qt::Key_Escape));
    person::click(sheet->findChild<QAbstractButton *>(u"btnStopNow"_s));
    makeFile(media(u"1.mp3.go"_s));
    QVERIFY(awaitAdded());
    QCOMPARE(column(audio(), 0), (QStringList{ u"0.mp3"_s, u"1.mp3"_s }));
    QVERIFY(m_app->element<QTabWidget>("tabviewMain")->isEnabled());
}

void ListsTest::stepsAndRowsAtTheEnd()
{
    for (const auto &name : { u"0.mp3"_s, u"1.mp3"_s, u"2.mp3"_s })
        makeFile(media(name));
    // The tool measures a file only once the test says so.
    m_app->ffmpeg.run("while [ ! -e \"$2.go\" ]; do sleep 0.02; done");
    person::Expect<QFileDialog> dialog([this](QFileDialog *panel) {
        person::openFiles(panel, m_media->path(), { u"2.mp3"_s, u"0.mp3"_s, u"1.mp3"_s });
    });
    click("toolbar_btn_Audio_Add_Files");
    QVERIFY(dialog.happened());
    const QPointer<Window_Unique_Progress> sheet = m_app->controller->windowUniqueProgress;
    QVERIFY(sheet);
    QVERIFY(sheet->isVisible());
    QVERIFY(!m_app->element<QTabWidget>("tabviewMain")->isEnabled());
    QCOMPARE(sheet->progressBar()->minimum(), 0);
    QCOMPARE(sheet->progressBar()->maximum(), 3);
    QCOMPARE(sheet->progressBar()->value(), 0);
    // In the order in which they were marked.
    const QStringList order{ u"2.mp3"_s, u"0.mp3"_s, u"1.mp3"_s };
    for (int done = 1; done <= 2; ++done) {
        makeFile(media(order.at(done - 1) + u".go"_s));
        QTRY_COMPARE(sheet->progressBar()->value(), done);
        QVERIFY(m_app->controller->windowUniqueProgress);
        QCOMPARE(audio()->model()->rowCount(), 0);
        QCOMPARE(m_app->controller->i_Audio_Total_Duration_in_Seconds, 0);
        // One tool at a time.
        QTRY_COMPARE(m_app->ffmpeg.runs().size(), done + 1);
    }
    makeFile(media(order.at(2) + u".go"_s));
    QVERIFY(awaitAdded());
    QCOMPARE(column(audio(), 0), order);
    QCOMPARE(m_app->controller->i_Audio_Total_Duration_in_Seconds, 3 * 205);
    QTRY_VERIFY(!sheet);
}

void ListsTest::windowAnswersWhileMeasuring()
{
    makeFile(media(u"a.mp3"_s));
    m_app->ffmpeg.run("while [ ! -e \"$2.go\" ]; do sleep 0.02; done");
    m_app->controller->addMediaFiles(
        AppDelegate::ListKind::Audio, { QUrl::fromLocalFile(media(u"a.mp3"_s)) });
    // The window lives, but the sheet is in front of it and cannot be put away.
    QVERIFY(person::awaitKeyboard(m_app->controller->windowUniqueProgress));
    person::press(QKeySequence(u"Ctrl+2"_s));
    person::press(QKeySequence(Qt::Key_Escape));
    person::clickTab(m_app->element<QTabWidget>("tabviewMain"), 1);
    QVERIFY(m_app->controller->windowUniqueProgress->isVisible());
    QCOMPARE(m_app->element<QTabWidget>("tabviewMain")->currentIndex(), 0);
    makeFile(media(u"a.mp3.go"_s));
    QVERIFY(awaitAdded());
    QCOMPARE(audio()->model()->rowCount(), 1);
    person::press(QKeySequence(u"Ctrl+2"_s));
    QTRY_COMPARE(m_app->element<QTabWidget>("tabviewMain")->currentIndex(), 1);
}

void ListsTest::quitWhileMeasuring()
{
    makeFile(media(u"a.mp3"_s));
    m_app->ffmpeg.run("while [ ! -e \"$2.go\" ]; do sleep 0.02; done");
    m_app->controller->addMediaFiles(
        AppDelegate::ListKind::Audio, { QUrl::fromLocalFile(media(u"a.mp3"_s)) });
    QVERIFY(person::awaitKeyboard(m_app->controller->windowUniqueProgress));
    person::press(QKeySequence(u"Ctrl+Q"_s));
    QTRY_COMPARE(m_app->exits, QList<int>(1, 0));
    makeFile(media(u"a.mp3.go"_s));
    QVERIFY(awaitAdded());
}

void ListsTest::unreadableFileIsListed()
{
    makeFile(media(u"no music.mp3"_s), "text");
    m_app->ffmpeg.print(u"-i"_s, "no music.mp3: Invalid data found when processing input\n");
    m_app->ffmpeg.run("exit 1");
    addFiles("toolbar_btn_Audio_Add_Files", { u"no music.mp3"_s });
    QCOMPARE(column(audio(), 1), QStringList(QString()));
    QCOMPARE(m_app->controller->arrayMediaFiles.first().i_Duration_in_Seconds, 0);
    QCOMPARE(column(audio(), 2), QStringList(u"4.00 bytes"_s));
}

void ListsTest::whatCouldNotBeMeasuredIsMarked()
{
    for (const auto &name : { u"good.mp3"_s, u"a & b <i>.mp3"_s })
        makeFile(media(name), "x");
    addFiles("toolbar_btn_Audio_Add_Files", { u"good.mp3"_s });
    m_app->ffmpeg.print(u"-i"_s, "no words of a length\n");
    addFiles("toolbar_btn_Audio_Add_Files", { u"a & b <i>.mp3"_s });
    const QAbstractItemModel *model = audio()->model();
    const auto cell = [model](int row, int role, int column = ListTableModel::MediaDuration) {
        return model->index(row, column).data(role);
    };
    for (const int row : { 0, 1 }) {
        const bool marked = row == 1;
        QCOMPARE(!cell(row, Qt::DecorationRole).value<QIcon>().isNull(), marked);
        QCOMPARE(cell(row, Qt::ToolTipRole).toString().contains(u"The file does not say how long it is."_s),
            marked);
        QCOMPARE(cell(row, Qt::AccessibleTextRole).toString(), marked ? u"not measured"_s : QString());
        QVERIFY(cell(row, Qt::DecorationRole, ListTableModel::MediaFile).isNull());
    }
    // The name is shown as it is, in a tooltip that is rich text.
    QVERIFY(Qt::mightBeRichText(cell(1, Qt::ToolTipRole).toString()));
    QVERIFY(cell(1, Qt::ToolTipRole).toString().contains(u"a &amp; b &lt;i&gt;.mp3"_s));
    audio()->grab();
}

void ListsTest::hangingTranscoder()
{
    makeFile(media(u"a.mp3"_s));
    m_app->controller->around.probeLimit = 300;
    m_app->ffmpeg.run("sleep 100");
    addFiles("toolbar_btn_Audio_Add_Files", { u"a.mp3"_s });
    QCOMPARE(column(audio(), 1), QStringList(u" 00:03:25.4"_s));
}

void ListsTest::missingTranscoder()
{
    m_app->controller->around.questions = &m_app->questions;
    QFETCH(QByteArray, script);
    QFETCH(QString, advice);
    for (const auto &name : { u"a.mp3"_s, u"b.mp3"_s })
        makeFile(media(name), "x");
    QFile::remove(m_app->ffmpeg.path());
    if (!script.isEmpty()) {
        makeFile(m_app->ffmpeg.path(), script);
        QFile::setPermissions(m_app->ffmpeg.path(), QFile::ReadOwner | QFile::ExeOwner);
    }
    // Said once, not for each file and not again.
    for (int times = 1; times <= 2; ++times) {
        m_app->controller->addMediaFolder(AppDelegate::ListKind::Audio, m_media->path());
        QVERIFY(awaitAdded());
        QCOMPARE(audio()->model()->rowCount(), 2 * times);
        QCOMPARE(m_app->questions.alerts.size(), 1);
    }
    QCOMPARE(column(audio(), 1), QStringList(4, QString()));
    QVERIFY2(m_app->questions.alerts.first().informative.contains(advice),
        qPrintable(m_app->questions.texts().first()));
    QVERIFY(audio()->model()->index(0, 1).data(Qt::ToolTipRole).toString().contains(u"ffmpeg"_s));
    if (script.isEmpty())
        QVERIFY(m_app->controller->activityLog->text().contains(u"could not be started"_s));
}

void ListsTest::missingTranscoder_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("advice");
    QTest::newRow("ours") << QByteArray() << u"Install Corvalis again."_s;
    QTest::newRow("the system's") << QByteArray("#!/bin/sh\nexec /nowhere/ffmpeg \"$@\"\n")
                                  << u"Install the package “ffmpeg”"_s;
}

void ListsTest::pipesAreRefused()
{
    m_app->controller->around.questions = &m_app->questions;
    makeFile(media(u"good.mp3"_s));
    QCOMPARE(::mkfifo(media(u"pipe.mp3"_s).toUtf8().constData(), 0600), 0);
    QVERIFY(QFile::link(u"/dev/zero"_s, media(u"zero.mp3"_s)));
    m_app->controller->addMediaFolder(AppDelegate::ListKind::Audio, m_media->path());
    QCOMPARE(m_app->questions.alerts.size(), 1); // before anything is measured
    const QString told = m_app->questions.alerts.first().informative;
    QVERIFY2(
        told.contains(u"pipes or devices"_s) && told.contains(u"pipe.mp3"_s) && told.contains(u"zero.mp3"_s),
        qPrintable(told));
    QVERIFY(awaitAdded());
    QCOMPARE(column(audio(), 0), QStringList(u"good.mp3"_s));
    QCOMPARE(m_app->ffmpeg.runs().size(), 1);
    m_app->controller->addMediaFiles(
        AppDelegate::ListKind::Audio, { QUrl::fromLocalFile(media(u"pipe.mp3"_s)) });
    QCOMPARE(m_app->questions.alerts.size(), 2);
    QVERIFY(!m_app->controller->windowUniqueProgress);
    QCOMPARE(audio()->model()->rowCount(), 1);
}

void ListsTest::mediaFolder_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<QByteArray>("tableName");
    QTest::addColumn<QStringList>("accepted");
    QTest::newRow("audio") << 0 << QByteArray("toolbar_btn_Audio_Add_Folder")
                           << QByteArray("tableviewAudioFiles")
                           << QStringList{ u"wma"_s, u"wav"_s, u"cda"_s, u"mp3"_s, u"mp2"_s, u"mpga"_s,
                                  u"m4a"_s };
    QTest::newRow("video") << 1 << QByteArray("toolbar_btn_Video_Add_Folder")
                           << QByteArray("tableviewVideoFiles")
                           << QStringList{ u"wmv"_s, u"mov"_s, u"mpg"_s, u"mpeg"_s, u"mpe"_s, u"avi"_s,
                                  u"asf"_s, u"asx"_s, u"qt"_s, u"mp4"_s, u"mpeg-4"_s, u"flv"_s, u"ts"_s,
                                  u"3gp"_s, u"fli"_s, u"m1v"_s, u"m2v"_s, u"mjpg"_s };
}

void ListsTest::mediaFolder()
{
    QFETCH(int, tab);
    QFETCH(QByteArray, button);
    QFETCH(QByteArray, tableName);
    QFETCH(QStringList, accepted);
    QStringList expected;
    for (const QString &extension : accepted) {
        expected.append(u"file."_s + extension);
        makeFile(media(expected.last()));
        makeFile(media(u"FILE."_s + extension.toUpper()));
    }
    expected.append(u".hidden."_s + accepted.first());
    makeFile(media(expected.last()));
    for (const QString &other : { u"text.txt"_s, u"none"_s, u"dot."_s, u".mp3"_s, u".mp4"_s })
        makeFile(media(other));
    makeFile(media(u"sub/inside."_s + accepted.first()));
    showTab(tab);
    person::Expect<QFileDialog> dialog([this](QFileDialog *panel) {
        QCOMPARE(panel->fileMode(), QFileDialog::Directory);
        person::openFolder(panel, m_media->path());
    });
    click(button.constData());
    QVERIFY(dialog.happened());
    QVERIFY(awaitAdded());
    QStringList listed = column(table(tableName.constData()), 0);
    std::ranges::sort(listed);
    std::ranges::sort(expected);
    QCOMPARE(listed, expected);
    const NodeMediaFile &file = m_app->controller->arrayMediaFiles.first();
    QCOMPARE(file.s_File_Path, media(file.s_File_Name_With_Extension));
    QCOMPARE(file.s_File_URL, QUrl::fromLocalFile(file.s_File_Path));
}

void ListsTest::folderInTheFileSystemsOrder()
{
    for (const int number : { 7, 3, 9, 1, 5, 12, 10 })
        makeFile(media(u"%1.mp3"_s.arg(number)));
    QStringList expected = inTheFileSystemsOrder(m_media->path());
    expected.removeIf([](const QString &name) { return !name.endsWith(u".mp3"_s); });
    person::Expect<QFileDialog> dialog(
        [this](QFileDialog *panel) { person::openFolder(panel, m_media->path()); });
    person::choose(m_app->window.get(), "menuitemAddFolder");
    QVERIFY(awaitAdded());
    QCOMPARE(column(audio(), 0), expected);
}

void ListsTest::folderWithNothingAccepted()
{
    makeFile(media(u"b.MP3"_s));
    person::Expect<QFileDialog> dialog(
        [this](QFileDialog *panel) { person::openFolder(panel, m_media->path()); });
    click("toolbar_btn_Audio_Add_Folder");
    QVERIFY(dialog.happened());
    QVERIFY(!m_app->controller->windowUniqueProgress);
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(audio()->model()->rowCount(), 0);
}

void ListsTest::folderThatIsGone()
{
    m_app->controller->addMediaFolder(AppDelegate::ListKind::Audio, media(u"gone"_s));
    QVERIFY(!m_app->controller->windowUniqueProgress);
    QVERIFY(m_app->controller->arrayMediaFiles.isEmpty());
}

void ListsTest::namesThatAreNotTextAreTold()
{
    makeFile(media(u"good.mp3"_s));
    makeFileOfBytes(m_media->path().toUtf8() + "/bad \xff\xfe.mp3");
    // What would not be listed anyway is not told of.
    makeFileOfBytes(m_media->path().toUtf8() + "/bad \xff\xfe.txt");
    makeFileOfBytes(m_media->path().toUtf8() + "/bad \xff\xfe.MP3");
    person::Expect<QFileDialog> dialog(
        [this](QFileDialog *panel) { person::openFolder(panel, m_media->path()); });
    QString told;
    person::Expect<Window_Alert> alert([&](Window_Alert *window) {
        for (const QLabel *label : window->findChildren<QLabel *>())
            told += label->text() + u'\n';
        person::pressTitled(window, u"Close"_s);
    });
    click("toolbar_btn_Audio_Add_Folder");
    QVERIFY(dialog.happened());
    QVERIFY(alert.happened());
    QVERIFY(told.contains(u"1 file"_s));
    QVERIFY(told.contains(u"not valid UTF-8"_s));
    QVERIFY(told.contains(m_media->path()));
    QVERIFY(awaitAdded());
    QCOMPARE(column(audio(), 0), QStringList(u"good.mp3"_s));
}

void ListsTest::namesThatTheDialogCannotShow()
{
    makeFile(media(u"good.mp3"_s));
    makeFileOfBytes(m_media->path().toUtf8() + "/bad \xff\xfe.Mp3");
    makeFileOfBytes(m_media->path().toUtf8() + "/bad \xff\xfe.txt");
    QString told;
    person::Expect<QFileDialog> dialog([&](QFileDialog *panel) {
        const auto *label = panel->findChild<QLabel *>(u"labelUnreadable"_s);
        QVERIFY(!label->isVisible());
        person::openFiles(panel, m_media->path(), {});
        QTRY_VERIFY(label->isVisible());
        told = label->text();
        panel->reject();
    });
    click("toolbar_btn_Audio_Add_Files");
    QVERIFY(dialog.happened());
    QVERIFY2(told.startsWith(u"1 file"_s) && told.contains(u"UTF-8"_s), qPrintable(told));
}

void ListsTest::pathsWithATrailingSlash()
{
    makeFile(media(u"album/song.mp3"_s));
    {
        person::Expect<QFileDialog> dialog(
            [this](QFileDialog *panel) { person::openFolder(panel, media(u"album/"_s)); });
        click("toolbar_btn_Audio_Add_Folder");
        QVERIFY(dialog.happened());
        QVERIFY(awaitAdded());
        QCOMPARE(m_app->controller->arrayMediaFiles.first().s_File_Path, media(u"album/song.mp3"_s));
    }
    showTab(2);
    person::Expect<QFileDialog> dialog(
        [this](QFileDialog *panel) { person::openFolder(panel, media(u"album//"_s)); });
    click("toolbar_btn_Data_Add_Folder");
    QVERIFY(dialog.happened());
    QCOMPARE(m_app->controller->arrayDataFolders.first().s_Path, media(u"album"_s));
}

void ListsTest::duplicates()
{
    addNumbered(1);
    addFiles("toolbar_btn_Audio_Add_Files", { u"0.mp3"_s });
    QCOMPARE(column(audio(), 0), QStringList(2, u"0.mp3"_s));
    QCOMPARE(m_app->controller->i_Audio_Total_Duration_in_Seconds, 410);
}

void ListsTest::dataFolder()
{
    makeFile(media(u"a & b/one"_s), QByteArray(1023, 'x'));
    showTab(2);
    person::Expect<QFileDialog> dialog(
        [this](QFileDialog *panel) { person::openFolder(panel, media(u"a & b"_s)); });
    click("toolbar_btn_Data_Add_Folder");
    QVERIFY(dialog.happened());
    // At once, without a sheet.
    QVERIFY(!m_app->controller->windowUniqueProgress);
    const ListTableView *folders = table("tableviewDataFolders");
    QCOMPARE(column(folders, 0), QStringList(media(u"a & b"_s)));
    QCOMPARE(column(folders, 1), QStringList(u"1023.00 bytes"_s));
    QCOMPARE(m_app->controller->i_Data_Total_Size_in_KBytes, 0);
    QVERIFY(m_app->ffmpeg.runs().isEmpty());
}

void ListsTest::dataFolderTwice()
{
    makeFile(media(u"big/one"_s), QByteArray(2048, 'x'));
    showTab(2);
    for (int times = 1; times <= 2; ++times) {
        person::Expect<QFileDialog> dialog(
            [this](QFileDialog *panel) { person::openFolder(panel, media(u"big"_s)); });
        person::press(QKeySequence(u"Ctrl+O"_s));
        QTRY_COMPARE(m_app->controller->arrayDataFolders.size(), times);
        QCOMPARE(m_app->controller->i_Data_Total_Size_in_KBytes, 2 * times);
    }
}

void ListsTest::deleting_data()
{
    QTest::addColumn<QList<int>>("rows");
    QTest::addColumn<QStringList>("left");
    QTest::newRow("1 and 3") << QList<int>{ 1, 3 } << QStringList{ u"0.mp3"_s, u"2.mp3"_s, u"4.mp3"_s };
    QTest::newRow("last to first") << QList<int>{ 4, 0 } << QStringList{ u"1.mp3"_s, u"2.mp3"_s, u"3.mp3"_s };
    QTest::newRow("one") << QList<int>{ 2 } << QStringList{ u"0.mp3"_s, u"1.mp3"_s, u"3.mp3"_s, u"4.mp3"_s };
    QTest::newRow("all") << QList<int>{ 0, 1, 2, 3, 4 } << QStringList();
}

void ListsTest::deleting()
{
    QFETCH(QList<int>, rows);
    QFETCH(QStringList, left);
    addNumbered(5);
    for (const int row : rows)
        person::clickRow(audio(), audio()->model()->index(row, 0), Qt::ControlModifier);
    click("toolbar_btn_Audio_Delete");
    QCOMPARE(column(audio(), 0), left);
    QCOMPARE(audio()->currentIndex().row(),
        qMin(*std::ranges::min_element(rows), static_cast<int>(left.size()) - 1));
    QCOMPARE(m_app->controller->i_Audio_Total_Duration_in_Seconds, 205 * left.size());
}

void ListsTest::deletingFoldersWithTheKey()
{
    showTab(2);
    for (const auto &name : { u"a"_s, u"b"_s, u"c"_s }) {
        QDir().mkpath(media(name));
        m_app->controller->addDataFolder(media(name));
    }
    const ListTableView *folders = table("tableviewDataFolders");
    person::clickRow(table("tableviewDataFolders"), folders->model()->index(1, 0));
    person::press(QKeySequence(Qt::Key_Delete));
    QTRY_COMPARE(column(folders, 0), QStringList({ media(u"a"_s), media(u"c"_s) }));
    person::press(QKeySequence(u"Ctrl+A"_s));
    person::press(QKeySequence(Qt::Key_Delete));
    QTRY_COMPARE(folders->model()->rowCount(), 0);
}

void ListsTest::deletingNothingRefreshes()
{
    addNumbered(2);
    QSignalSpy reloads(audio()->model(), &QAbstractItemModel::modelReset);
    m_app->controller->i_Audio_Total_Duration_in_Seconds = 0;
    click("toolbar_btn_Audio_Delete");
    QCOMPARE(reloads.size(), 1);
    QCOMPARE(audio()->model()->rowCount(), 2);
    QCOMPARE(m_app->controller->i_Audio_Total_Duration_in_Seconds, 410);
}

void ListsTest::clearing_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<QByteArray>("button");
    QTest::newRow("audio") << 0 << QByteArray("toolbar_btn_Audio_Clear");
    QTest::newRow("video") << 1 << QByteArray("toolbar_btn_Video_Clear");
    QTest::newRow("data") << 2 << QByteArray("toolbar_btn_Data_Clear");
    QTest::newRow("by keys") << 0 << QByteArray();
}

void ListsTest::clearing()
{
    QFETCH(int, tab);
    QFETCH(QByteArray, button);
    showTab(tab);
    AppDelegate &controller = *m_app->controller;
    NodeMediaFile file;
    file.i_Duration_in_Seconds = 100;
    controller.arrayMediaFiles = QList<NodeMediaFile>(3, file);
    controller.arrayDataFolders = QList<NodeDataFolder>(3, { u"/x"_s, 10, u"10.00 KB"_s });
    if (tab == 0)
        controller.refreshTableAudioFiles();
    if (button.isEmpty())
        person::press(QKeySequence(u"Ctrl+Shift+Del"_s));
    else
        click(button.constData());
    if (tab == 2) {
        QVERIFY(controller.arrayDataFolders.isEmpty());
        QCOMPARE(controller.i_Data_Total_Size_in_KBytes, 0);
        QCOMPARE(controller.arrayMediaFiles.size(), 3);
    } else {
        QTRY_VERIFY(controller.arrayMediaFiles.isEmpty());
        QCOMPARE(controller.arrayDataFolders.size(), 3);
        QCOMPARE(tab == 0 ? controller.i_Audio_Total_Duration_in_Seconds
                          : controller.i_Video_Total_Duration_in_Seconds,
            0);
    }
    QVERIFY(!QApplication::activeModalWidget());
}

void ListsTest::clearingIsSharedByAudioAndVideo()
{
    addNumbered(3);
    m_app->controller->OnActionVideoClear();
    QCOMPARE(audio()->model()->rowCount(), 0);
    QVERIFY(m_app->controller->arrayMediaFiles.isEmpty());
    // The table that is not refreshed must not ask for rows that are gone.
    audio()->grab();
    audio()->selectAll();
    click("toolbar_btn_Audio_Delete");
    click("toolbar_btn_Audio_Clear");
}

void ListsTest::playNothing_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<QByteArray>("button");
    QTest::newRow("audio") << 0 << QByteArray("toolbar_btn_Audio_Play");
    QTest::newRow("video") << 1 << QByteArray("toolbar_btn_Video_Play");
    QTest::newRow("by keys") << 1 << QByteArray();
}

void ListsTest::playNothing()
{
    QFETCH(int, tab);
    QFETCH(QByteArray, button);
    m_app->controller->around.questions = &m_app->questions;
    showTab(tab);
    m_app->controller->arrayMediaFiles.append(NodeMediaFile());
    m_app->controller->refreshTableAudioFiles();
    m_app->controller->refreshTableVideoFiles();
    if (button.isEmpty())
        person::press(QKeySequence(u"Ctrl+P"_s));
    else
        click(button.constData());
    QTRY_COMPARE(
        m_app->questions.texts(), QStringList(u"There is no file selected. | There is no file selected."_s));
    QCOMPARE(m_app->questions.alerts.first().buttons, QStringList(u"Close"_s));
}

void ListsTest::playPanelsOfADataTabAreOff()
{
    showTab(2);
    QVERIFY(!m_app->element<QAction>("menuitemPlay")->isEnabled());
    showTab(4);
    for (const char *item : { "menuitemPlay", "menuitemBurn", "menuitemAddFiles", "menuitemDelete",
             "menuitemClear", "menuitemSelectAll", "menuitemMoveUp", "menuitemSort1" })
        QVERIFY2(!m_app->element<QAction>(item)->isEnabled(), item);
    showTab(0);
    QVERIFY(m_app->element<QAction>("menuitemPlay")->isEnabled());
}

void ListsTest::movingRows()
{
    addNumbered(4);
    person::clickRow(audio(), audio()->model()->index(2, 0));
    person::clickRow(audio(), audio()->model()->index(3, 0), Qt::ControlModifier);
    person::press(QKeySequence(u"Alt+Up"_s));
    QTRY_COMPARE(column(audio(), 0), QStringList({ u"0.mp3"_s, u"2.mp3"_s, u"3.mp3"_s, u"1.mp3"_s }));
    QCOMPARE(audio()->selectedRows(), QList<int>({ 1, 2 }));
    person::press(QKeySequence(u"Alt+Up"_s));
    person::press(QKeySequence(u"Alt+Up"_s)); // the first stays the first
    QTRY_COMPARE(column(audio(), 0), QStringList({ u"2.mp3"_s, u"3.mp3"_s, u"0.mp3"_s, u"1.mp3"_s }));
    person::press(QKeySequence(u"Alt+Down"_s));
    QTRY_COMPARE(column(audio(), 0), QStringList({ u"0.mp3"_s, u"2.mp3"_s, u"3.mp3"_s, u"1.mp3"_s }));
    QCOMPARE(audio()->selectedRows(), QList<int>({ 1, 2 }));
}

void ListsTest::listNumbered(int count)
{
    m_app->controller->arrayMediaFiles.clear();
    for (int i = 0; i < count; ++i) {
        m_app->controller->arrayMediaFiles.append(NodeMediaFile());
        m_app->controller->arrayMediaFiles.last().s_File_Name_With_Extension = QString::number(i);
    }
    m_app->controller->refreshTableAudioFiles();
}

void ListsTest::select(const QList<int> &rows) const
{
    audio()->clearSelection();
    for (const int row : rows)
        person::clickRow(audio(), audio()->model()->index(row, 0), Qt::ControlModifier);
}

QPoint ListsTest::placeBefore(int row) const
{
    const int rows = audio()->model()->rowCount();
    const QRect last = audio()->visualRect(audio()->model()->index(qMin(row, rows - 1), 0));
    return { 40, row < rows ? last.top() + 2 : last.bottom() - 2 };
}

bool ListsTest::letGo(const QMimeData *data, int before, Qt::DropActions actions) const
{
    const QPoint place = placeBefore(before);
    QDragEnterEvent enter(place, actions, data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(audio()->viewport(), &enter);
    QDragMoveEvent move(place, actions, data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(audio()->viewport(), &move);
    if (!move.isAccepted())
        return false;
    QDropEvent drop(place, actions, data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(audio()->viewport(), &drop);
    return drop.isAccepted();
}

void ListsTest::selectionAfterDeleting()
{
    listNumbered(5);
    select({ 1, 3 });
    person::press(QKeySequence(Qt::Key_Delete));
    QTRY_COMPARE(column(audio(), 0), QStringList({ u"0"_s, u"2"_s, u"4"_s }));
    QCOMPARE(audio()->selectedRows(), QList<int>{ 1 });
    for (const auto &left : { QStringList{ u"0"_s, u"4"_s }, QStringList{ u"0"_s }, QStringList() }) {
        person::press(QKeySequence(Qt::Key_Delete));
        QTRY_COMPARE(column(audio(), 0), left);
        QCOMPARE(audio()->selectedRows(), left.isEmpty() ? QList<int>() : QList<int>{ int(left.size()) - 1 });
    }
}

void ListsTest::selectionSurvives()
{
    addNumbered(4);
    select({ 1, 2 });
    click("btnMP3DVD");
    QCOMPARE(audio()->selectedRows(), QList<int>({ 1, 2 }));
    makeFile(media(u"more.mp3"_s));
    addFiles("toolbar_btn_Audio_Add_Files", { u"more.mp3"_s });
    QCOMPARE(audio()->selectedRows(), QList<int>({ 1, 2 }));
    QMimeData data;
    data.setUrls({ QUrl::fromLocalFile(media(u"more.mp3"_s)) });
    QVERIFY(letGo(&data, 2, Qt::CopyAction));
    QVERIFY(awaitAdded());
    QCOMPARE(audio()->selectedRows(), QList<int>({ 1, 3 })); // still the same files
    click("toolbar_btn_Audio_Clear");
    QCOMPARE(audio()->selectedRows(), QList<int>());
    addFiles("toolbar_btn_Audio_Add_Files", { u"more.mp3"_s });
    QCOMPARE(audio()->selectedRows(), QList<int>());
}

void ListsTest::rowsStayInView()
{
    listNumbered(200);
    const auto isInView = [this](int row) {
        const QRect place = audio()->visualRect(audio()->model()->index(row, 0));
        return audio()->viewport()->rect().contains(place.center());
    };
    QVERIFY(isInView(0) && !isInView(199));
    makeFile(media(u"new.mp3"_s));
    addFiles("toolbar_btn_Audio_Add_Files", { u"new.mp3"_s });
    QVERIFY(isInView(200));
    select({ 200 });
    m_app->controller->moveSelectedEntriesBefore(0);
    QVERIFY(isInView(0) && !isInView(200));
    for (int presses = 0; presses < 40; ++presses)
        person::press(QKeySequence(u"Alt+Down"_s));
    QTRY_COMPARE(audio()->selectedRows(), QList<int>{ 40 });
    QVERIFY(isInView(40));
    // What is shown does not jump where nothing was added or moved.
    audio()->scrollTo(audio()->model()->index(120, 0), QAbstractItemView::PositionAtTop);
    QVERIFY(isInView(121) && !isInView(40));
    click("btnMP3CD");
    QVERIFY(isInView(120) && !isInView(40));
}

void ListsTest::keysGoByRows()
{
    listNumbered(100);
    audio()->setFocus();
    struct Step {
        QKeySequence keys;
        QList<int> selected;
    };
    const int page = audio()->viewport()->height() / audio()->rowHeight(0);
    QVERIFY(audio()->selectedRows().isEmpty());
    for (const Step &step : { Step{ Qt::Key_Down, { 0 } }, Step{ Qt::Key_Down, { 1 } },
             Step{ Qt::Key_End, { 99 } }, Step{ Qt::Key_Up, { 98 } }, Step{ Qt::Key_Home, { 0 } },
             Step{ Qt::SHIFT | Qt::Key_Down, { 0, 1 } }, Step{ Qt::Key_Home, { 0 } } }) {
        person::press(step.keys);
        QCOMPARE(audio()->selectedRows(), step.selected);
    }
    person::press(QKeySequence(Qt::Key_PageDown));
    const int down = audio()->selectedRows().value(0);
    QVERIFY2(
        qAbs(down - page) <= 1 && audio()->selectedRows().size() == 1, qPrintable(QString::number(down)));
    person::press(QKeySequence(Qt::Key_PageUp));
    QCOMPARE(audio()->selectedRows(), QList<int>{ 0 });
    person::press(QKeySequence(Qt::SHIFT | Qt::Key_End));
    QCOMPARE(audio()->selectedRows().size(), 100);
    // The first key that goes up also begins at the first row.
    audio()->clearSelection();
    audio()->setCurrentIndex({});
    listNumbered(3);
    click("btnMP3CD");
    audio()->setFocus();
    person::press(QKeySequence(Qt::Key_Up));
    QCOMPARE(audio()->selectedRows(), QList<int>{ 0 });
}

void ListsTest::rowsAreDragged_data()
{
    QTest::addColumn<QList<int>>("rows");
    QTest::addColumn<int>("before");
    QTest::addColumn<QString>("order");
    QTest::addColumn<QList<int>>("selected");
    QTest::newRow("up") << QList<int>{ 3 } << 1 << u"03124"_s << QList<int>{ 1 };
    QTest::newRow("down") << QList<int>{ 1 } << 4 << u"02314"_s << QList<int>{ 3 };
    QTest::newRow("to the top") << QList<int>{ 4 } << 0 << u"40123"_s << QList<int>{ 0 };
    QTest::newRow("to the end") << QList<int>{ 0 } << 5 << u"12340"_s << QList<int>{ 4 };
    QTest::newRow("several") << QList<int>{ 0, 1 } << 4 << u"23014"_s << QList<int>{ 2, 3 };
    QTest::newRow("apart") << QList<int>{ 0, 2, 4 } << 2 << u"10243"_s << QList<int>{ 1, 2, 3 };
    QTest::newRow("apart, to the end") << QList<int>{ 0, 3 } << 5 << u"12403"_s << QList<int>{ 3, 4 };
}

void ListsTest::rowsAreDragged()
{
    QFETCH(QList<int>, rows);
    QFETCH(int, before);
    listNumbered(5);
    select(rows);
    QVERIFY(letGo(audio()->selectedRowsData().get(), before, Qt::MoveAction));
    QTEST(column(audio(), 0).join(QString()), "order");
    QTEST(audio()->selectedRows(), "selected");
}

// A press that moves carries the rows and does not select those that it comes over.
void ListsTest::aDragBeginsOnAnyRow()
{
    listNumbered(6);
    select({ 1, 2 });
    QWindow *const window = m_app->window->windowHandle();
    const auto place = [this](int row) {
        const QRect cell = audio()->visualRect(audio()->model()->index(row, 0));
        return audio()->viewport()->mapTo(m_app->window.get(), cell.center());
    };
    for (const auto &[pressed, selected] :
        { std::pair(2, QList<int>{ 1, 2 }), std::pair(4, QList<int>{ 4 }) }) {
        QTest::mousePress(window, Qt::LeftButton, {}, place(pressed));
        for (const int row : { 3, 4, 5 })
            QTest::mouseMove(window, place(row));
        QCOMPARE(audio()->selectedRows(), selected);
        QTest::mouseRelease(window, Qt::LeftButton, {}, place(5));
    }
}

void ListsTest::draggedToWhereTheyAre()
{
    listNumbered(4);
    person::clickHeading(audio(), 0);
    select({ 1, 2 });
    QSignalSpy reloads(audio()->model(), &QAbstractItemModel::modelReset);
    for (const int before : { 1, 2, 3 })
        QVERIFY(letGo(audio()->selectedRowsData().get(), before, Qt::MoveAction));
    QCOMPARE(reloads.size(), 0);
    QVERIFY(audio()->horizontalHeader()->isSortIndicatorShown());
    QVERIFY(letGo(audio()->selectedRowsData().get(), 0, Qt::MoveAction));
    QVERIFY(!audio()->horizontalHeader()->isSortIndicatorShown());
}

void ListsTest::dragOfOtherRows()
{
    listNumbered(3);
    select({ 0 });
    const auto other = table("tableviewVideoFiles")->selectedRowsData();
    QVERIFY(!letGo(other.get(), 2, Qt::MoveAction));
    QMimeData text;
    text.setText(u"words"_s);
    QVERIFY(!letGo(&text, 2, Qt::CopyAction | Qt::MoveAction));
    QCOMPARE(column(audio(), 0).join(QString()), u"012"_s);
}

void ListsTest::dropBetweenRows()
{
    addNumbered(3);
    QMimeData data;
    for (const auto &name : { u"b.mp3"_s, u"a.mp3"_s })
        makeFile(media(name));
    data.setUrls({ QUrl::fromLocalFile(media(u"b.mp3"_s)), QUrl::fromLocalFile(media(u"a.mp3"_s)) });
    QVERIFY(letGo(&data, 1, Qt::CopyAction));
    QVERIFY(awaitAdded());
    QStringList expected{ u"0.mp3"_s, u"b.mp3"_s, u"a.mp3"_s, u"1.mp3"_s, u"2.mp3"_s };
    QCOMPARE(column(audio(), 0), expected);
    QVERIFY(letGo(&data, 5, Qt::CopyAction));
    QVERIFY(awaitAdded());
    expected += { u"b.mp3"_s, u"a.mp3"_s };
    QCOMPARE(column(audio(), 0), expected);
}

void ListsTest::dropBetweenFolders()
{
    showTab(2);
    for (const auto &name : { u"1"_s, u"2"_s, u"3"_s, u"4"_s })
        QDir().mkpath(media(name));
    m_app->controller->addDataFolder(media(u"1"_s));
    m_app->controller->addDataFolder(media(u"4"_s));
    m_app->controller->addDroppedFiles(
        { QUrl::fromLocalFile(media(u"2"_s)), QUrl::fromLocalFile(media(u"3"_s)) }, 1);
    QCOMPARE(column(table("tableviewDataFolders"), 0),
        QStringList({ media(u"1"_s), media(u"2"_s), media(u"3"_s), media(u"4"_s) }));
}

void ListsTest::theDropLine()
{
    listNumbered(4);
    select({ 0 });
    const auto picture = [this] { return audio()->viewport()->grab().toImage(); };
    const auto isLine = [this](const QImage &image, int row) {
        const int y = audio()->visualRect(audio()->model()->index(row, 0)).top();
        const QRgb line = audio()->palette().color(QPalette::Active, QPalette::Highlight).rgb();
        return image.pixel(300, y) == line && image.pixel(700, y) == line;
    };
    const QImage before = picture();
    const auto data = audio()->selectedRowsData();
    for (const int row : { 2, 3 }) {
        QDragEnterEvent enter(placeBefore(row), Qt::MoveAction, data.get(), Qt::LeftButton, {});
        QCoreApplication::sendEvent(audio()->viewport(), &enter);
        QDragMoveEvent move(placeBefore(row), Qt::MoveAction, data.get(), Qt::LeftButton, {});
        QCoreApplication::sendEvent(audio()->viewport(), &move);
        QVERIFY(isLine(picture(), row));
        QVERIFY(!isLine(picture(), 5 - row));
    }
    QDragLeaveEvent leave;
    QCoreApplication::sendEvent(audio()->viewport(), &leave);
    QCOMPARE(picture(), before);
    // An empty list shows that it would take files.
    listNumbered(0);
    const QImage empty = picture();
    QMimeData files;
    files.setUrls({ QUrl::fromLocalFile(u"/x/y.mp3"_s) });
    QDragEnterEvent enter({ 50, 50 }, Qt::CopyAction, &files, Qt::LeftButton, {});
    QCoreApplication::sendEvent(audio()->viewport(), &enter);
    QVERIFY(picture() != empty);
    QDropEvent drop({ 50, 50 }, Qt::MoveAction, data.get(), Qt::LeftButton, {});
    QCoreApplication::sendEvent(audio()->viewport(), &drop);
    QCOMPARE(picture(), empty);
}

void ListsTest::contextMenu_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("on"); // -1: below the rows
    QTest::addColumn<QStringList>("items");
    const QStringList add{ u"Add Files…"_s, u"Add Folder…"_s, u"Add Other Files…"_s };
    const QStringList all{ u"Select All"_s, u"Sort By"_s, u"Clear List"_s };
    const QStringList row{ u"Delete"_s, u"Move Up"_s, u"Move Down"_s };
    QTest::newRow("empty list") << 0 << 0 << -1 << add;
    QTest::newRow("row") << 0 << 3 << 1 << QStringList{ u"Play"_s } + row + all;
    QTest::newRow("below") << 1 << 2 << -1 << add + all;
    QTest::newRow("no folder") << 2 << 0 << -1 << QStringList{ u"Add Folder…"_s, u"Add Files…"_s };
    QTest::newRow("folder") << 2 << 2 << 0 << row + all;
}

void ListsTest::contextMenu()
{
    QFETCH(int, tab);
    QFETCH(int, rows);
    QFETCH(int, on);
    QFETCH(QStringList, items);
    showTab(tab);
    m_app->controller->arrayMediaFiles = QList<NodeMediaFile>(rows);
    m_app->controller->arrayDataFolders = QList<NodeDataFolder>(rows);
    ListTableView *list = m_app->controller->selectedTable();
    m_app->controller->refreshTableAudioFiles();
    m_app->controller->refreshTableVideoFiles();
    m_app->controller->refreshTableDataFolders();
    const auto offered = [&] {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QStringList texts;
        for (const QAction *action : menu ? menu->actions() : QList<QAction *>()) {
            if (!action->isSeparator() && action->isVisible())
                texts.append(action->text().remove(u'&'));
        }
        if (menu)
            menu->close();
        return texts;
    };
    const QPoint place = on < 0 ? QPoint(200, list->viewport()->height() - 5)
                                : list->visualRect(list->model()->index(on, 0)).center();
    if (on >= 0)
        person::clickRow(list, list->model()->index(on, 0));
    QContextMenuEvent mouse(QContextMenuEvent::Mouse, place, list->viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(list->viewport(), &mouse);
    QCOMPARE(offered(), items);
    list->setFocus();
    person::press(QKeySequence(Qt::SHIFT | Qt::Key_F10));
    QCOMPARE(offered(), items);
    QContextMenuEvent key(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QCoreApplication::sendEvent(list, &key);
    QCOMPARE(offered(), items);
}

void ListsTest::contextMenuActs()
{
    listNumbered(3);
    select({ 1 });
    person::press(QKeySequence(Qt::SHIFT | Qt::Key_F10));
    const QPointer<QWidget> menu = QApplication::activePopupWidget();
    QVERIFY(menu);
    QTest::keyClick(menu, Qt::Key_D);
    QTRY_COMPARE(column(audio(), 0).join(QString()), u"02"_s);
    QTRY_VERIFY(!menu);
}

void ListsTest::dropOnAudio()
{
    makeFile(media(u"b.MP3"_s));
    makeFile(media(u"a.wav"_s));
    person::drop(audio(), { QUrl::fromLocalFile(media(u"b.MP3"_s)), QUrl::fromLocalFile(media(u"a.wav"_s)) });
    QVERIFY(awaitAdded());
    QCOMPARE(column(audio(), 0), QStringList({ u"b.MP3"_s, u"a.wav"_s }));
}

void ListsTest::dropOfAnAlbum()
{
    m_app->controller->around.questions = &m_app->questions;
    for (const auto &name : { u"album/one.mp3"_s, u"album/TWO.MP3"_s, u"album/cover.jpg"_s,
             u"album/disc 2/three.mp3"_s, u"no music/text.txt"_s, u"last.wav"_s })
        makeFile(media(name));
    QList<QUrl> urls;
    for (const auto &name : { u"album/"_s, u"no music"_s, u"last.wav"_s })
        urls.append(QUrl::fromLocalFile(media(name)));
    person::drop(audio(), urls);
    QVERIFY(awaitAdded());
    QCOMPARE(column(audio(), 0), QStringList({ u"one.mp3"_s, u"last.wav"_s }));
    QCOMPARE(m_app->controller->arrayMediaFiles.first().s_File_Path, media(u"album/one.mp3"_s));
    QCOMPARE(m_app->questions.alerts.size(), 1);
    QVERIFY(m_app->questions.alerts.first().informative.endsWith(u"\n\nno music"_s));
    makeFile(media(u"loud/X.MP3"_s));
    person::drop(audio(), { QUrl::fromLocalFile(media(u"loud/"_s)) });
    QCOMPARE(m_app->questions.alerts.size(), 2);
    QVERIFY(m_app->questions.alerts.last().informative.contains(u"capital letters"_s));
    QVERIFY(m_app->questions.alerts.last().informative.endsWith(u"\n\nloud"_s));
}

// A file manager that is told that files were moved may take them away.
void ListsTest::dropIsNeverAMove()
{
    makeFile(media(u"a.mp3"_s));
    QMimeData data;
    data.setUrls({ QUrl::fromLocalFile(media(u"a.mp3"_s)) });
    const QPoint place = audio()->viewport()->rect().center();
    const std::pair<Qt::DropActions, Qt::DropAction> offers[] = {
        { Qt::CopyAction | Qt::MoveAction | Qt::LinkAction, Qt::CopyAction },
        { Qt::MoveAction | Qt::LinkAction, Qt::LinkAction },
    };
    for (const auto &[possible, taken] : offers) {
        QDragEnterEvent enter(place, possible, &data, Qt::LeftButton, Qt::ShiftModifier);
        QCoreApplication::sendEvent(audio()->viewport(), &enter);
        QCOMPARE(enter.dropAction(), taken);
        QDropEvent drop(place, possible, &data, Qt::LeftButton, Qt::ShiftModifier);
        drop.setDropAction(Qt::MoveAction);
        QCoreApplication::sendEvent(audio()->viewport(), &drop);
        QVERIFY(drop.isAccepted());
        QCOMPARE(drop.dropAction(), taken);
        QVERIFY(awaitAdded());
    }
    QDragEnterEvent onlyMove(place, Qt::MoveAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(audio()->viewport(), &onlyMove);
    QVERIFY(!onlyMove.isAccepted());
    QCOMPARE(audio()->model()->rowCount(), 2);
}

void ListsTest::dropOnData()
{
    showTab(2);
    QDir().mkpath(media(u"one"_s));
    QDir().mkpath(media(u"two"_s));
    person::drop(table("tableviewDataFolders"),
        { QUrl::fromLocalFile(media(u"two"_s)), QUrl::fromLocalFile(media(u"one/"_s)) });
    QCOMPARE(column(table("tableviewDataFolders"), 0), QStringList({ media(u"two"_s), media(u"one"_s) }));
}

void ListsTest::singleFilesForADataDisc()
{
    showTab(2);
    makeFile(media(u"a.txt"_s), QByteArray(1500, 'a'));
    makeFile(media(u"b.bin"_s), QByteArray(3000, 'b'));
    person::Expect<QFileDialog> dialog([&](QFileDialog *panel) {
        person::openFiles(panel, media(), { u"a.txt"_s, u"b.bin"_s });
    });
    click("toolbar_btn_Data_Add_Files");
    QVERIFY(dialog.happened());
    QCOMPARE(column(table("tableviewDataFolders"), 0), QStringList({ media(u"a.txt"_s), media(u"b.bin"_s) }));
    QCOMPARE(column(table("tableviewDataFolders"), 1), QStringList({ u"1.46 KB"_s, u"2.93 KB"_s }));
    QCOMPARE(m_app->controller->i_Data_Total_Size_in_KBytes, 1 + 2);
}

void ListsTest::dropThatDoesNotFitIsTold()
{
    m_app->controller->around.questions = &m_app->questions;
    makeFile(media(u"good.mp3"_s));
    makeFile(media(u"text.txt"_s));
    makeFileOfBytes(m_media->path().toUtf8() + "/bad \xff.mp3");
    const QUrl bad = QUrl::fromEncoded(m_media->path().toUtf8() + "/bad%20%FF.mp3");
    person::drop(audio(),
        { QUrl::fromLocalFile(media(u"text.txt"_s)), QUrl::fromLocalFile(media(u"good.mp3"_s)),
            QUrl(u"https://example.org/song.mp3"_s), QUrl::fromLocalFile(media(u"gone.mp3"_s)) });
    QVERIFY(awaitAdded());
    QCOMPARE(column(audio(), 0), QStringList(u"good.mp3"_s));
    QCOMPARE(m_app->questions.alerts.size(), 1);
    const QString told = m_app->questions.alerts.first().informative;
    // Each under its own reason, in the order in which they came.
    qsizetype at = -1;
    for (const auto &text :
        { u"files that end in wma"_s, u"\n\ntext.txt\n\n"_s, u"not files of this computer"_s,
            u"\n\nhttps://example.org/song.mp3\n\n"_s, u"no files of these names"_s, u"\n\ngone.mp3"_s }) {
        QVERIFY2(told.indexOf(text) > at, qPrintable(told));
        at = told.indexOf(text);
    }
    QVERIFY(!told.contains(u"good.mp3"_s));
    m_app->questions.alerts.clear();
    person::drop(audio(), { QUrl(QUrl::fromEncoded("file://" + bad.toEncoded())) });
    QCOMPARE(m_app->questions.alerts.size(), 1);
    QVERIFY(m_app->questions.alerts.first().informative.contains(u"UTF-8"_s));
    // A data disc takes any file, but nothing that is none.
    showTab(2);
    m_app->questions.alerts.clear();
    QCOMPARE(::mkfifo(qPrintable(media(u"pipe"_s)), 0600), 0);
    person::drop(table("tableviewDataFolders"),
        { QUrl::fromLocalFile(media(u"good.mp3"_s)), QUrl::fromLocalFile(media(u"pipe"_s)) });
    QCOMPARE(m_app->questions.alerts.size(), 1);
    QVERIFY(m_app->questions.alerts.first().informative.contains(u"\n\npipe"_s));
    QCOMPARE(column(table("tableviewDataFolders"), 0), QStringList(media(u"good.mp3"_s)));
}

QTEST_MAIN(ListsTest)
#include "ListsTest.moc"
