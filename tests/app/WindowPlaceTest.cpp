// The main window's size, place and columns, from one start to the next.
#include "app/WindowPlace.h"

#include "app/Preferences.h"
#include "compilation/ListTableView.h"
#include "support/Person.h"
#include "support/TestApplication.h"
#include "ui_MainWindow.h"

#include <QScreen>
#include <QTest>

using namespace Qt::StringLiterals;

class WindowPlaceTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { emptyHome(); }

    void fits_data();
    void fits();
    void opensInsideTheScreen();
    void comesBack();
    void maximisedComesBack();
    void junkIsLeftAlone();
    void batchRunsLeaveNoTrace();

private:
    static QByteArray stored()
    {
        return QSettings(u"Corvalis"_s, u"Corvalis"_s).value(preferences::windowGeometry).toByteArray();
    }
};

void WindowPlaceTest::fits_data()
{
    QTest::addColumn<QRect>("wanted");
    QTest::addColumn<QRect>("available");
    QTest::addColumn<QRect>("fitted");
    const QRect screen(0, 0, 1280, 800);
    QTest::newRow("inside") << QRect(100, 50, 1000, 640) << screen << QRect(100, 50, 1000, 640);
    QTest::newRow("scale 2 below a panel")
        << QRect(0, 0, 1000, 640) << QRect(0, 27, 960, 513) << QRect(4, 51, 952, 485);
    QTest::newRow("144 dpi") << QRect(0, 0, 1000, 640) << QRect(0, 0, 853, 533) << QRect(4, 24, 845, 505);
    QTest::newRow("off to the right") << QRect(1000, 700, 800, 500) << screen << QRect(476, 296, 800, 500);
    QTest::newRow("off to the left") << QRect(-900, -30, 800, 500) << screen << QRect(4, 24, 800, 500);
    QTest::newRow("screen at the left")
        << QRect(-1200, 50, 800, 500) << QRect(-1280, 0, 1280, 800) << QRect(-1200, 50, 800, 500);
    QTest::newRow("too small a screen")
        << QRect(0, 0, 1000, 640) << QRect(0, 0, 640, 380) << QRect(4, 24, 700, 400);
}

void WindowPlaceTest::fits()
{
    QFETCH(QRect, wanted);
    QFETCH(QRect, available);
    QTEST(WindowPlace::fitted(wanted, available, { 4, 24, 4, 4 }, { 700, 400 }), "fitted");
}

void WindowPlaceTest::opensInsideTheScreen()
{
    TestApplication app;
    app.launch();
    const QSize room = app.window->screen()->availableSize();
    QVERIFY(app.window->width() <= room.width() && app.window->height() <= room.height());
    QVERIFY(app.element<QWidget>("btnBurn")->isVisible());
    QVERIFY(app.window->rect().contains(
        QRect(app.element<QWidget>("btnBurn")->mapTo(app.window.get(), QPoint()), QSize(1, 1))));
}

void WindowPlaceTest::comesBack()
{
    const QRect place(30, 60, 720, 444);
    {
        TestApplication app;
        app.launch();
        app.window->setGeometry(place);
        app.element<QTableView>("tableviewAudioFiles")->horizontalHeader()->resizeSection(0, 222);
        app.element<QTableView>("tableviewDataFolders")->horizontalHeader()->resizeSection(1, 155);
        QTRY_VERIFY(!stored().isEmpty());
        QTRY_COMPARE(QSettings(u"Corvalis"_s, u"Corvalis"_s)
                         .value(preferences::columns + u"tableviewDataFolders"_s)
                         .toString()
                         .section(u',', 1),
            u"155"_s);
    }
    TestApplication app;
    app.launch();
    QCOMPARE(app.window->geometry(), place);
    QCOMPARE(app.element<QTableView>("tableviewAudioFiles")->horizontalHeader()->sectionSize(0), 222);
    QVERIFY(app.element<QTableView>("tableviewVideoFiles")->horizontalHeader()->sectionSize(0) != 222);
    QCOMPARE(app.element<QTableView>("tableviewDataFolders")->horizontalHeader()->sectionSize(1), 155);
    // The wide column still takes the rest.
    const QHeaderView *header = app.element<QTableView>("tableviewAudioFiles")->horizontalHeader();
    QTRY_COMPARE(header->length(), header->viewport()->width());
    QVERIFY(!header->isSortIndicatorShown());
}

void WindowPlaceTest::maximisedComesBack()
{
    {
        TestApplication app;
        app.launch();
        app.window->showMaximized();
        QTRY_VERIFY(app.window->isMaximized());
        const QByteArray before = stored();
        QTRY_VERIFY(stored() != before);
    }
    TestApplication app;
    app.launch();
    QVERIFY(app.window->isMaximized());
}

void WindowPlaceTest::junkIsLeftAlone()
{
    {
        QSettings settings(u"Corvalis"_s, u"Corvalis"_s);
        settings.setValue(preferences::windowGeometry, QByteArray("no geometry"));
        settings.setValue(preferences::columns + u"tableviewAudioFiles"_s, u"x,-3,99999999,,1,1,1"_s);
    }
    TestApplication app;
    app.launch();
    QVERIFY(app.window->width() >= 700 && app.window->height() >= 400);
    const QHeaderView *header = app.element<QTableView>("tableviewAudioFiles")->horizontalHeader();
    for (int column = 0; column < 3; ++column) {
        QVERIFY(header->sectionSize(column) >= header->minimumSectionSize());
        QVERIFY(header->sectionSize(column) <= 4000);
    }
}

// Nobody sees the window of a batch run.
void WindowPlaceTest::batchRunsLeaveNoTrace()
{
    TestApplication app;
    app.around.remembersWindow = false;
    app.launch();
    app.window->resize(750, 450);
    QTest::qWait(500);
    QVERIFY(stored().isEmpty());
}

QTEST_MAIN(WindowPlaceTest)
#include "WindowPlaceTest.moc"
