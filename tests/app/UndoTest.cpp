// Going back from what empties, shortens or reorders a list, from the menu and with the keys.
#include "compilation/ListTableModel.h"
#include "compilation/ListTableView.h"
#include "support/JobApplication.h"
#include "support/Person.h"
#include "ui_MainWindow.h"

using namespace Qt::StringLiterals;

class UndoTest : public QObject {
    Q_OBJECT

    std::unique_ptr<JobApplication> m_app;

    QStringList names() const
    {
        QStringList names;
        const ListTableView *table = m_app->controller->selectedTable();
        for (int row = 0; table && row < table->model()->rowCount(); ++row)
            names.append(table->model()->index(row, 0).data().toString().section(u'/', -1));
        return names;
    }
    int tab() const { return m_app->element<QTabWidget>("tabviewMain")->currentIndex(); }
    QString burnTitle() const { return m_app->element<QAbstractButton>("btnBurn")->text(); }
    QAction *item(const char *name) const { return m_app->element<QAction>(name); }
    void settle() const { QCoreApplication::processEvents(); }

private Q_SLOTS:
    void init()
    {
        emptyHome();
        m_app = std::make_unique<JobApplication>();
        m_app->launch();
        m_app->choose(2);
        QStringList paths;
        for (const auto &name : { u"c.mp3"_s, u"a.mp3"_s, u"b.mp3"_s })
            paths.append(m_app->file(name));
        QVERIFY(m_app->add(paths));
        settle();
        QCOMPARE(names(), QStringList({ u"c.mp3"_s, u"a.mp3"_s, u"b.mp3"_s }));
    }
    void cleanup() { m_app.reset(); }

    void everyWayBack_data()
    {
        using Act = std::function<void(JobApplication &)>;
        QTest::addColumn<Act>("act");
        QTest::addColumn<QStringList>("after");
        const auto add = [](const char *name, const Act &act, const QStringList &after) {
            QTest::newRow(name) << act << after;
        };
        const auto select = [](const JobApplication &app) {
            app.controller->selectedTable()->selectRows({ 1 });
        };
        add("clearing", [](JobApplication &app) { app.press("toolbar_btn_Audio_Clear"); }, {});
        add("deleting", [select](JobApplication &app) { select(app), app.press("toolbar_btn_Audio_Delete"); },
            { u"c.mp3"_s, u"b.mp3"_s });
        add("sorting", [](JobApplication &app) { app.element<QAction>("menuitemSort1")->trigger(); },
            { u"a.mp3"_s, u"b.mp3"_s, u"c.mp3"_s });
        add("moving",
            [select](JobApplication &app) { select(app), app.element<QAction>("menuitemMoveUp")->trigger(); },
            { u"a.mp3"_s, u"c.mp3"_s, u"b.mp3"_s });
        add("another tab",
            [](JobApplication &app) { app.element<QTabWidget>("tabviewMain")->setCurrentIndex(1); }, {});
        add("another kind", [](JobApplication &app) { app.press("btnMP3DVD"); },
            { u"c.mp3"_s, u"a.mp3"_s, u"b.mp3"_s });
        add("a new disc", [](JobApplication &app) { app.choose(6); }, {});
    }
    void everyWayBack()
    {
        using Act = std::function<void(JobApplication &)>;
        QFETCH(Act, act);
        QFETCH(QStringList, after);
        const QStringList before = names();
        act(*m_app);
        settle();
        QCOMPARE(names(), after);
        const int tabAfter = tab();
        const QString titleAfter = burnTitle();
        QVERIFY(item("menuitemUndo")->isEnabled());
        person::press(QKeySequence(Qt::CTRL | Qt::Key_Z));
        QCOMPARE(names(), before);
        QCOMPARE(tab(), 0);
        QCOMPARE(burnTitle(), u"Burn MP3 CD"_s);
        QCOMPARE(m_app->controller->i_Audio_Type, 1);
        QCOMPARE(m_app->controller->i_Audio_Total_Duration_in_Seconds, 3 * 14);
        settle();
        person::press(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z));
        QCOMPARE(names(), after);
        QCOMPARE(tab(), tabAfter);
        QCOMPARE(burnTitle(), titleAfter);
        QVERIFY(!item("menuitemRedo")->isEnabled());
    }

    void backToTheBeginning()
    {
        person::press(QKeySequence(Qt::CTRL | Qt::Key_Z)); // the adding
        settle();
        QCOMPARE(names(), QStringList());
        QVERIFY(!item("menuitemUndo")->isEnabled());
        person::press(QKeySequence(Qt::CTRL | Qt::Key_Z));
        QCOMPARE(names(), QStringList());
    }

    void fromATabWithoutAList()
    {
        m_app->press("toolbar_btn_Audio_Clear");
        settle();
        m_app->element<QTabWidget>("tabviewMain")->setCurrentIndex(3);
        settle();
        person::press(QKeySequence(Qt::CTRL | Qt::Key_Z));
        QCOMPARE(tab(), 0);
        QCOMPARE(names().size(), 3);
    }

    void foldersToo()
    {
        m_app->choose(7);
        m_app->file(u"photos/beach.jpg"_s);
        m_app->addFolder(m_app->media.filePath(u"photos"_s));
        settle();
        m_app->press("toolbar_btn_Data_Clear");
        settle();
        QCOMPARE(names(), QStringList());
        person::press(QKeySequence(Qt::CTRL | Qt::Key_Z));
        QCOMPARE(names(), QStringList(u"photos"_s));
        QCOMPARE(burnTitle(), u"Burn Data DVD"_s);
    }

    void notWhileASheetIsUp()
    {
        m_app->press("toolbar_btn_Audio_Clear");
        settle();
        m_app->controller->ShowNewDiscWindow();
        QVERIFY(!item("menuitemUndo")->isEnabled());
        QTest::keyClick(m_app->controller->windowNewDisc, Qt::Key_Escape);
        settle();
        QVERIFY(item("menuitemUndo")->isEnabled());
    }
};

QTEST_MAIN(UndoTest)
#include "UndoTest.moc"
