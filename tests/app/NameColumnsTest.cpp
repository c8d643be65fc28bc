// Titles and performers on the audio list, in the real window.
#include "app/Preferences.h"
#include "compilation/ListTableModel.h"
#include "compilation/ListTableView.h"
#include "support/Person.h"
#include "support/TestApplication.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QSettings>

using namespace Qt::StringLiterals;

class NameColumnsTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { m_app.reset(); }
    void namesComeFromTheTags();
    void typing_data();
    void typing();
    void undone();
    void escapeTakesBack();
    void doubleClicks();
    void aNameIsOneLineOfAtMostSoMany();
    void headingsDoNotSort();
    void hiddenColumnsStayHidden();
    void theSwitchIsKept();

private:
    static constexpr int title = ListTableModel::NameTitle;
    static constexpr int performer = ListTableModel::NamePerformer;

    ListTableView *audio() const { return m_app->element<ListTableView>("tableviewAudioFiles"); }
    QAction *item(const char *name) const { return m_app->element<QAction>(name); }
    QModelIndex cell(int row, int column) const { return audio()->model()->index(row, column); }
    QLineEdit *field() const { return audio()->findChild<QLineEdit *>(u"fieldName"_s); }
    const NodeMediaFile &record(int row) const { return m_app->controller->arrayMediaFiles.at(row); }
    void doubleClick(const QModelIndex &index) const
    {
        audio()->scrollTo(index);
        const QPoint place = audio()->visualRect(index).center();
        QTest::mouseClick(audio()->viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(audio()->viewport(), Qt::LeftButton, {}, place);
    }
    void launch()
    {
        m_app = std::make_unique<TestApplication>();
        m_app->launch();
        QList<NodeMediaFile> files(3);
        for (int i = 0; i < 3; ++i) {
            files[i].s_File_Name_With_Extension = u"%1.mp3"_s.arg(i);
            files[i].title = u"Title %1"_s.arg(i);
            files[i].performer = u"Band"_s;
        }
        m_app->controller->arrayMediaFiles = files;
        m_app->controller->refreshTableAudioFiles();
        m_app->controller->refreshTableVideoFiles();
        QVERIFY(person::awaitKeyboard(m_app->window.get()));
    }

    std::unique_ptr<TestApplication> m_app;
};

void NameColumnsTest::init()
{
    emptyHome();
    launch();
    QVERIFY(audio()->isColumnHidden(title) && audio()->isColumnHidden(performer));
    person::choose(m_app->window.get(), "menuitemNameColumns");
}

void NameColumnsTest::namesComeFromTheTags()
{
    m_app->ffmpeg.run("printf \"Input #0, ogg, from '%s':\\n  Duration: 00:00:04.20, start: 0\\n"
                      "  Stream #0:0: Audio: opus\\n    Metadata:\\n      title           : Inside\\n"
                      "      artist          : Other Band\\n\" \"$2\"\n");
    QSignalSpy ended(m_app->controller.get(), &AppDelegate::addingEnded);
    m_app->controller->addMediaFiles(AppDelegate::ListKind::Audio,
        { QUrl::fromLocalFile(u"/x/song.ogg"_s), QUrl::fromLocalFile(u"/x/song.mp3"_s) });
    QVERIFY(ended.count() > 0 || ended.wait(20'000));
    QCOMPARE(cell(3, title).data().toString(), u"Inside"_s);
    QCOMPARE(cell(3, performer).data().toString(), u"Other Band"_s);
    QCOMPARE(record(3).carriedTitle, QString());
    // Untouched, a disc of the usual files says what the conversion takes over, and so does the list.
    QCOMPARE(record(4).title, QString());
}

void NameColumnsTest::typing_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("into");
    QTest::newRow("title") << int(ListTableModel::MediaFile) << title;
    QTest::newRow("performer") << performer << performer;
}

void NameColumnsTest::typing()
{
    QFETCH(int, from);
    QFETCH(int, into);
    const QSignalSpy opened(audio(), &ListTableView::rowOpened);
    audio()->setCurrentIndex(cell(1, from));
    person::press(QKeySequence(Qt::Key_F2));
    QVERIFY(field());
    QVERIFY(!field()->accessibleName().isEmpty());
    QTest::keyClicks(field(), u" New  name "_s);
    QTest::keyClick(field(), Qt::Key_Return);
    QTRY_COMPARE(cell(1, into).data().toString(), u"New name"_s); // the field gives it back a moment later
    QCOMPARE(into == title ? record(1).title : record(1).performer, u"New name"_s);
    QCOMPARE(into == title ? record(1).performer : record(1).title, into == title ? u"Band"_s : u"Title 1"_s);
    QCOMPARE(audio()->selectedRows(), QList<int>{ 1 });
    QCOMPARE(opened.count(), 0); // nothing was played
}

void NameColumnsTest::undone()
{
    QCoreApplication::processEvents(); // the list as it was is a step of its own
    QVERIFY(audio()->model()->setData(cell(0, title), u"Typed"_s, Qt::EditRole));
    QTRY_VERIFY(item("menuitemUndo")->isEnabled());
    person::choose(m_app->window.get(), "menuitemUndo");
    QCOMPARE(cell(0, title).data().toString(), u"Title 0"_s);
    person::choose(m_app->window.get(), "menuitemRedo");
    QCOMPARE(cell(0, title).data().toString(), u"Typed"_s);
}

void NameColumnsTest::escapeTakesBack()
{
    audio()->setCurrentIndex(cell(0, title));
    person::press(QKeySequence(Qt::Key_F2));
    QVERIFY(field());
    QTest::keyClicks(field(), u"other"_s);
    QTest::keyClick(field(), Qt::Key_Escape);
    QCOMPARE(record(0).title, u"Title 0"_s);
    QCOMPARE(cell(0, title).data().toString(), u"Title 0"_s);
}

// On a name it is typed into, anywhere else the row is played.
void NameColumnsTest::doubleClicks()
{
    QSignalSpy opened(audio(), &ListTableView::rowOpened);
    disconnect(audio(), &ListTableView::rowOpened, m_app->controller.get(), nullptr);
    doubleClick(cell(2, title));
    QVERIFY(field());
    QCOMPARE(opened.count(), 0);
    QTest::keyClick(field(), Qt::Key_Escape);
    doubleClick(cell(2, ListTableModel::MediaFile));
    QCOMPARE(opened.count(), 1);
}

void NameColumnsTest::aNameIsOneLineOfAtMostSoMany()
{
    QVERIFY(audio()->model()->setData(cell(0, title), u" two\nlines\t"_s, Qt::EditRole));
    QCOMPARE(record(0).title, u"two lines"_s);
    QVERIFY(!audio()->model()->setData(cell(0, ListTableModel::MediaFile), u"x"_s, Qt::EditRole));
    audio()->setCurrentIndex(cell(0, title));
    person::press(QKeySequence(Qt::Key_F2));
    QTest::keyClicks(field(), QString(200, u'x'));
    QCOMPARE(field()->text().size(), 160);
}

void NameColumnsTest::headingsDoNotSort()
{
    m_app->controller->arrayMediaFiles[0].title = u"Z"_s;
    for (const int column : { title, performer }) {
        audio()->scrollTo(cell(0, column));
        person::clickHeading(audio(), column);
        QCOMPARE(record(0).title, u"Z"_s);
        QVERIFY(m_app->controller->m_b_Col1_Ascenging);
    }
    QCOMPARE(m_app->element<ListTableView>("tableviewVideoFiles")->model()->columnCount(), 4);
}

void NameColumnsTest::hiddenColumnsStayHidden()
{
    m_app.reset();
    launch();
    QVERIFY(!audio()->isColumnHidden(title));
    QHeaderView *headings = audio()->horizontalHeader();
    Q_EMIT headings->customContextMenuRequested({ 5, 5 });
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    QVERIFY(menu && menu->actions().contains(item("menuitemNameColumns")));
    menu->actions().first()->trigger();
    menu->close();
    QVERIFY(audio()->isColumnHidden(title) && audio()->isColumnHidden(performer));
    QVERIFY(!item("menuitemEditTitle")->isEnabled());
    m_app.reset();
    launch();
    QVERIFY(audio()->isColumnHidden(title) && !item("menuitemNameColumns")->isChecked());
    person::choose(m_app->window.get(), "menuitemNameColumns");
    QVERIFY(!audio()->isColumnHidden(title) && !audio()->isColumnHidden(performer));
    QVERIFY(audio()->columnWidth(title) > 20);
    QVERIFY(item("menuitemEditTitle")->isEnabled());
}

void NameColumnsTest::theSwitchIsKept()
{
    QVERIFY(item("menuitemWriteTitles")->isChecked());
    person::choose(m_app->window.get(), "menuitemWriteTitles");
    QCOMPARE(m_app->controller->preference(preferences::writeTitles), u"0"_s);
    m_app.reset();
    launch();
    QVERIFY(!item("menuitemWriteTitles")->isChecked());
}

QTEST_MAIN(NameColumnsTest)
#include "NameColumnsTest.moc"
