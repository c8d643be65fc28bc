// Files that are opened with the program, in its window.
#include "desktop/Opening.h"

#include "desktop/Window_Opened_Image.h"
#include "support/JobApplication.h"

#include <QTest>

using namespace Qt::StringLiterals;
using desktop::Opening;
using desktop::Window_Opened_Image;

class OpeningTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { emptyHome(); }
    void filesGoOnTheirTab_data();
    void filesGoOnTheirTab();
    void moreOfTheSameIsAdded();
    void savedList();
    void filledListIsAskedFor_data();
    void filledListIsAskedFor();
    void imageIsWrittenByOnePress();
    void imageIsLeftAlone();
    void imageIntoAnEmptyDrive();
    void nothingThatCanBeOpened();
    void waitsForTheEndOfAJob();
    void tooManyRequests();
    void actions_data();
    void actions();
    void unknownAction();

private:
    static desktop::Request files(const JobApplication &program, const QStringList &names);
    static int tab(const JobApplication &program)
    {
        return program.element<QTabWidget>("tabviewMain")->currentIndex();
    }
};

desktop::Request OpeningTest::files(const JobApplication &program, const QStringList &names)
{
    desktop::Request request;
    for (const QString &name : names) {
        const QString path = program.file(name.endsWith(u'/') ? name + u"letter.txt"_s : name);
        request.files.append(QUrl::fromLocalFile(name.endsWith(u'/') ? QFileInfo(path).path() : path));
    }
    return request;
}

void OpeningTest::filesGoOnTheirTab_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<int>("expectedTab");
    QTest::addColumn<int>("media");
    QTest::addColumn<int>("folders");
    QTest::addColumn<int>("alerts");
    QTest::newRow("music") << QStringList{ u"a.mp3"_s, u"b.wav"_s } << 0 << 2 << 0 << 0;
    QTest::newRow("films") << QStringList{ u"a.mp4"_s, u"b.avi"_s } << 1 << 2 << 0 << 0;
    QTest::newRow("folder") << QStringList{ u"letters/"_s } << 2 << 0 << 1 << 0;
    QTest::newRow("folders, a song") << QStringList{ u"letters/"_s, u"cards/"_s, u"a.mp3"_s } << 2 << 0 << 3
                                     << 0;
    QTest::newRow("music, a film") << QStringList{ u"a.mp3"_s, u"b.mp3"_s, u"c.mp4"_s } << 0 << 2 << 0 << 1;
}

void OpeningTest::filesGoOnTheirTab()
{
    QFETCH(QStringList, names);
    JobApplication program;
    AppDelegate &controller = program.launch();
    Opening opening(&controller);
    QVERIFY(opening.open(files(program, names)));
    QFETCH(int, expectedTab);
    QFETCH(int, media);
    QFETCH(int, folders);
    QTRY_COMPARE(tab(program), expectedTab);
    QTRY_COMPARE(controller.arrayMediaFiles.size(), media);
    QCOMPARE(controller.arrayDataFolders.size(), folders);
    QTEST(static_cast<int>(program.asked.alerts.size()), "alerts");
}

void OpeningTest::moreOfTheSameIsAdded()
{
    JobApplication program;
    AppDelegate &controller = program.launch();
    Opening opening(&controller);
    opening.open(files(program, { u"a.mp3"_s }));
    opening.open(files(program, { u"b.mp3"_s })); // waits until the first one was measured
    QTRY_COMPARE(controller.arrayMediaFiles.size(), 2);
    QCOMPARE(controller.arrayMediaFiles.last().s_File_Name_With_Extension, u"b.mp3"_s);
    QVERIFY(program.asked.alerts.isEmpty());
}

void OpeningTest::savedList()
{
    JobApplication program;
    AppDelegate &controller = program.launch();
    Opening opening(&controller);
    const QString list = program.media.filePath(u"party.corvalis"_s);
    makeFile(list,
        R"({"corvalis-list": 1, "kind": "MP3 CD", "entries": [{"path": ")" + program.file(u"a.mp3"_s).toUtf8()
            + R"("}]})");
    opening.open({ { QUrl::fromLocalFile(list) }, {} });
    QTRY_COMPARE(controller.arrayMediaFiles.size(), 1);
    QCOMPARE(controller.i_Audio_Type, 1);
    QVERIFY(program.asked.alerts.isEmpty());
}

void OpeningTest::filledListIsAskedFor_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<int>("expectedTab");
    QTest::addColumn<bool>("behindImages");
    QTest::newRow("given up") << 2 << 2 << false;
    QTest::newRow("not saved") << 1 << 0 << false;
    QTest::newRow("given up, list not in sight") << 2 << 3 << true;
}

void OpeningTest::filledListIsAskedFor()
{
    QFETCH(int, button);
    QFETCH(int, expectedTab);
    QFETCH(bool, behindImages);
    JobApplication program;
    AppDelegate &controller = program.launch();
    Opening opening(&controller);
    opening.open(files(program, { u"letters/"_s }));
    QTRY_COMPARE(controller.arrayDataFolders.size(), 1);
    if (behindImages)
        controller.OnMenuTabISO();
    program.asked.buttons = { button };
    opening.open(files(program, { u"a.mp3"_s }));
    QTRY_COMPARE(program.asked.alerts.size(), 1);
    QCOMPARE(program.asked.alerts.first().message, u"Save the list first?"_s);
    const bool emptied = expectedTab == 0;
    QTRY_COMPARE(controller.arrayMediaFiles.size(), emptied ? 1 : 0);
    QTest::qWait(50);
    QCOMPARE(controller.arrayDataFolders.size(), emptied ? 0 : 1);
    QCOMPARE(tab(program), expectedTab);
}

void OpeningTest::imageIsWrittenByOnePress()
{
    JobApplication program;
    AppDelegate &controller = program.launch();
    Opening opening(&controller);
    opening.open(files(program, { u"disc.iso"_s }));
    QTRY_VERIFY(program.element<Window_Opened_Image>("Window_Opened_Image"));
    auto *sheet = program.element<Window_Opened_Image>("Window_Opened_Image");
    QCOMPARE(tab(program), 3);
    QCOMPARE(sheet->findChild<QLabel *>(u"labelImage"_s)->text(), u"disc.iso"_s);
    QVERIFY(program.button(sheet, QDialogButtonBox::Cancel)->hasFocus()); // Return alone writes nothing
    QVERIFY(program.hdiutil.runs().isEmpty());
    sheet->findChild<QPushButton *>(u"buttonWrite"_s)->click();
    QVERIFY(program.completes());
    QCOMPARE(
        program.hdiutil.runs(), QList<QStringList>({ { u"burn"_s, program.media.filePath(u"disc.iso"_s) } }));
    QVERIFY(program.asked.panels.isEmpty());
}

void OpeningTest::imageIsLeftAlone()
{
    JobApplication program;
    AppDelegate &controller = program.launch();
    Opening opening(&controller);
    opening.open(files(program, { u"disc.img"_s, u"other.iso"_s }));
    QTRY_COMPARE(program.asked.alerts.size(), 1);
    QVERIFY2(
        program.asked.texts().first().contains(u"other.iso"_s), qPrintable(program.asked.texts().first()));
    QTest::keyClick(program.element<Window_Opened_Image>("Window_Opened_Image"), Qt::Key_Escape);
    QTRY_VERIFY(!program.element<Window_Opened_Image>("Window_Opened_Image"));
    QVERIFY(program.hdiutil.runs().isEmpty());
    QVERIFY(!controller.isJobPending());
}

void OpeningTest::imageIntoAnEmptyDrive()
{
    JobApplication program;
    program.insert(discs::none);
    AppDelegate &controller = program.launch();
    Opening opening(&controller);
    opening.open(files(program, { u"disc.iso"_s }));
    QTRY_VERIFY(program.element<Window_Opened_Image>("Window_Opened_Image"));
    QVERIFY(program.asked.alerts.isEmpty()); // the drive is looked at after the press, not before
    program.element<QPushButton>("buttonWrite")->click();
    QTRY_COMPARE(program.asked.alerts.size(), 1);
    QCOMPARE(program.asked.alerts.first().message, u"No disc"_s);
    QVERIFY(program.hdiutil.runs().isEmpty());
}

void OpeningTest::nothingThatCanBeOpened()
{
    JobApplication program;
    AppDelegate &controller = program.launch();
    Opening opening(&controller);
    opening.open({ { QUrl(u"https://somewhere/song.mp3"_s) }, {} });
    QTRY_COMPARE(program.asked.alerts.size(), 1);
    QCOMPARE(program.asked.alerts.first().message, u"Not everything can be opened"_s);
    QVERIFY(program.asked.alerts.first().informative.contains(u"https://somewhere/song.mp3"_s));
    QVERIFY(controller.arrayMediaFiles.isEmpty());
}

void OpeningTest::waitsForTheEndOfAJob()
{
    JobApplication program;
    program.insert(discs::writtenCDRW);
    program.drutil.run("tool=$0\n[ \"$1\" = erase ] && {\n" + JobApplication::waitFor("erased") + "}\n");
    AppDelegate &controller = program.launch();
    Opening opening(&controller);
    controller.OnToolsFormatQuick();
    opening.open(files(program, { u"a.mp3"_s }));
    QTRY_VERIFY(program.element<QLabel>("labelWaiting"));
    const auto *note = program.element<QLabel>("labelWaiting");
    QVERIFY(note->isVisible());
    QCOMPARE(note->text(), u"Opened when the job has ended: a.mp3"_s);
    program.window->resize(720, 420);
    QTRY_COMPARE(note->width(), note->parentWidget()->width());
    JobApplication::release(program.drutil, "erased");
    QVERIFY(program.completes());
    QTest::qWait(50);
    QVERIFY(controller.arrayMediaFiles.isEmpty()); // the sheet that tells the end comes first
    controller.Close_Window_Operation_Complete();
    QTRY_COMPARE(controller.arrayMediaFiles.size(), 1);
    QVERIFY(!program.element<QLabel>("labelWaiting"));
}

void OpeningTest::tooManyRequests()
{
    JobApplication program;
    AppDelegate &controller = program.launch();
    Opening opening(&controller);
    for (qsizetype i = 0; i < Opening::mostWaiting; ++i)
        QVERIFY(opening.open({ {}, u"new-data-disc"_s }));
    QVERIFY(!opening.open({ {}, u"new-data-disc"_s }));
    QTRY_VERIFY(opening.open({ {}, u"new-data-disc"_s })); // once some were carried out
}

void OpeningTest::actions_data()
{
    QTest::addColumn<int>("expectedTab");
    QTest::addColumn<QString>("panel");
    QTest::newRow("new-audio-cd") << 0 << QString();
    QTest::newRow("new-data-disc") << 2 << QString();
    QTest::newRow("write-image") << 3 << u"Select a ISO image to burn to media."_s;
    QTest::newRow("copy-disc") << 0 << u"Select a volume to duplicate."_s;
}

void OpeningTest::actions()
{
    QFETCH(QString, panel);
    QFETCH(int, expectedTab);
    JobApplication program;
    AppDelegate &controller = program.launch();
    controller.OnActionMP3CD();
    Opening opening(&controller);
    const QString action = QString::fromLatin1(QTest::currentDataTag());
    QVERIFY(Opening::actions().contains(action));
    opening.open({ {}, action });
    QTRY_COMPARE(tab(program), expectedTab);
    QTRY_COMPARE(program.asked.panels.value(0).message, panel);
    QTRY_COMPARE(controller.i_Audio_Type, action == "new-audio-cd"_L1 ? 0 : 1);
    QVERIFY(program.hdiutil.runs().isEmpty());
    QVERIFY(!controller.isJobPending());
}

void OpeningTest::unknownAction()
{
    JobApplication program;
    AppDelegate &controller = program.launch();
    Opening opening(&controller);
    opening.open({ {}, u"burn"_s });
    QTest::qWait(50);
    QVERIFY(program.drutil.runs(u"burn"_s).isEmpty());
    QVERIFY(program.asked.alerts.isEmpty());
}

QTEST_MAIN(OpeningTest)
#include "OpeningTest.moc"
