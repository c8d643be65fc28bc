// Lists that are saved and opened from the menu, their files found again.
#include "compilation/ListFile.h"
#include "compilation/ListTableModel.h"
#include "compilation/ListTableView.h"
#include "support/JobApplication.h"
#include "support/Person.h"
#include "ui_MainWindow.h"

#include <QMenu>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

class SavedListsTest : public QObject {
    Q_OBJECT

    std::unique_ptr<JobApplication> m_app;

    QString place(const QString &name) const { return m_app->media.filePath(name); }
    QStringList paths() const
    {
        QStringList paths;
        for (const NodeMediaFile &file : m_app->controller->arrayMediaFiles)
            paths.append(file.s_File_Path);
        for (const NodeDataFolder &folder : m_app->controller->arrayDataFolders)
            paths.append(folder.s_Path);
        return paths;
    }
    void start()
    {
        m_app->launch();
        m_app->choose(2);
        for (const auto &name : { u"b \"x\".mp3"_s, u"a\nb.mp3"_s })
            QVERIFY(m_app->add({ m_app->file(name) }));
    }
    void saveAs(const QString &path)
    {
        m_app->asked.choices.append(QList<QUrl>{ QUrl::fromLocalFile(path) });
        m_app->trigger("menuitemListSaveAs");
    }
    /// Opens a list through the panel, and waits for its files.
    void open(const QString &path)
    {
        m_app->asked.choices.append(QList<QUrl>{ QUrl::fromLocalFile(path) });
        m_app->trigger("menuitemListOpen");
        settle();
    }
    void settle() const
    {
        QVERIFY(QTest::qWaitFor([this] { return !m_app->controller->windowUniqueProgress; }, 20'000));
        QCoreApplication::processEvents();
    }
    QStringList recent() const
    {
        QStringList names;
        for (const QAction *action : m_app->element<QMenu>("submenuRecent")->actions()) {
            if (!action->isSeparator())
                names.append(action->text().remove(u'&'));
        }
        return names;
    }

private Q_SLOTS:
    void init()
    {
        emptyHome();
        m_app = std::make_unique<JobApplication>();
    }
    void cleanup() { m_app.reset(); }

    void savedAndOpenedByAnotherWindow()
    {
        start();
        m_app->controller->arrayMediaFiles[0].title = u"Typed"_s;
        m_app->controller->setDiscName(u"Summer"_s);
        const QStringList before = paths();
        const QString list = place(u"My list.corvalis"_s);
        saveAs(list);
        QCOMPARE(m_app->texts(), QStringList());
        QCOMPARE(m_app->asked.panels.constLast().choose, OpenPanel::Choose::NewFile);
        m_app->controller.reset();
        m_app->launch();
        QCOMPARE(recent().first(), u"1 My list"_s);
        open(list);
        QCOMPARE(paths(), before);
        QCOMPARE(m_app->texts(), QStringList());
        QCOMPARE(m_app->controller->arrayMediaFiles.constFirst().title, u"Typed"_s);
        QCOMPARE(m_app->controller->arrayMediaFiles.constFirst().i_Duration_in_Seconds, 14);
        QCOMPARE(m_app->controller->s_Disc_Name, u"Summer"_s);
        QCOMPARE(m_app->element<QAbstractButton>("btnBurn")->text(), u"Burn MP3 CD"_s);
        QCOMPARE(m_app->controller->i_Audio_Total_Duration_in_Seconds, 28);
    }

    void savedAgainUnderItsName()
    {
        start();
        const QString list = place(u"a.corvalis"_s);
        saveAs(list);
        QVERIFY(m_app->add({ m_app->file(u"c.mp3"_s) }));
        const qsizetype panels = m_app->asked.panels.size();
        m_app->trigger("menuitemListSave");
        QCOMPARE(m_app->asked.panels.size(), panels);
        QCOMPARE(compilation::readListFile(list).list.entries.size(), 3);
    }

    void anotherDiscDoesNotTakeTheSavedOnesPlace()
    {
        start();
        const QString list = place(u"a.corvalis"_s);
        saveAs(list);
        m_app->choose(1);
        QVERIFY(m_app->add({ m_app->file(u"c.mp3"_s) }));
        m_app->trigger("menuitemListSave"); // the panel is cancelled
        QCOMPARE(m_app->asked.panels.constLast().choose, OpenPanel::Choose::NewFile);
        QCOMPARE(compilation::readListFile(list).list.entries.size(), 2);
        QCOMPARE(compilation::readListFile(list).list.kind, u"MP3 CD"_s);
    }

    void undoingKeepsTheFile()
    {
        start();
        const QString list = place(u"a.corvalis"_s);
        saveAs(list);
        QCoreApplication::processEvents();
        m_app->press("toolbar_btn_Audio_Clear");
        QCoreApplication::processEvents();
        m_app->trigger("menuitemUndo");
        const qsizetype panels = m_app->asked.panels.size();
        m_app->trigger("menuitemListSave");
        QCOMPARE(m_app->asked.panels.size(), panels);
        QCOMPARE(compilation::readListFile(list).list.entries.size(), 2);
        // Another list of the same kind was opened in between: each goes into its own file.
        saveAs(place(u"b.corvalis"_s));
        QCoreApplication::processEvents();
        m_app->press("toolbar_btn_Audio_Clear");
        QCoreApplication::processEvents();
        open(list);
        QCOMPARE(m_app->texts(), QStringList());
        m_app->trigger("menuitemUndo");
        m_app->trigger("menuitemUndo");
        QVERIFY(m_app->add({ m_app->file(u"c.mp3"_s) }));
        m_app->trigger("menuitemListSave");
        QCOMPARE(compilation::readListFile(list).list.entries.size(), 2);
        QCOMPARE(compilation::readListFile(place(u"b.corvalis"_s)).list.entries.size(), 3);
    }

    void changesAreAskedAbout_data()
    {
        QTest::addColumn<int>("button");
        QTest::addColumn<bool>("opened");
        QTest::addColumn<int>("entriesKept");
        QTest::newRow("save") << 0 << true << 3;
        QTest::newRow("do not save") << 1 << true << 2;
        QTest::newRow("cancel") << 2 << false << 2;
    }
    void changesAreAskedAbout()
    {
        QFETCH(int, button);
        QFETCH(bool, opened);
        QFETCH(int, entriesKept);
        start();
        const QString first = place(u"first.corvalis"_s);
        const QString second = place(u"second.corvalis"_s);
        saveAs(second);
        saveAs(first);
        QVERIFY(m_app->add({ m_app->file(u"c.mp3"_s) }));
        m_app->asked.buttons = { button };
        open(second);
        QCOMPARE(m_app->asked.alerts.size(), 1);
        QCOMPARE(m_app->asked.alerts.first().message, u"Save the list first?"_s);
        QCOMPARE(paths().size(), opened ? 2 : 3);
        QCOMPARE(compilation::readListFile(first).list.entries.size(), entriesKept);
        // What was opened is not changed.
        m_app->asked.alerts.clear();
        if (opened)
            open(second);
        QCOMPARE(m_app->texts(), QStringList());
    }

    void whatWasOpenedCanBeUndone()
    {
        start();
        const QString list = place(u"a.corvalis"_s);
        saveAs(list);
        QVERIFY(m_app->add({ m_app->file(u"c.mp3"_s) }));
        QCoreApplication::processEvents();
        m_app->asked.buttons = { 1 };
        open(list);
        QCOMPARE(paths().size(), 2);
        m_app->trigger("menuitemUndo");
        QCOMPARE(paths().size(), 3);
    }

    void missingFilesStayAndAreFoundAgain()
    {
        start();
        QVERIFY(m_app->add({ m_app->file(u"c.mp3"_s) }));
        m_app->controller->arrayMediaFiles[1].title = u"Typed"_s;
        const QString list = place(u"lists/a.corvalis"_s);
        QDir().mkpath(place(u"lists"_s));
        saveAs(list);
        const QStringList before = paths();
        QDir().mkpath(place(u"moved/deep"_s));
        QVERIFY(QFile::rename(before.at(1), place(u"moved/deep/a\nb.mp3"_s)));
        m_app->asked.buttons = { 0 };
        open(list);
        QCOMPARE(paths(), before);
        QCOMPARE(m_app->asked.alerts.size(), 1);
        QCOMPARE(m_app->asked.alerts.first().buttons.size(), 2);
        const NodeMediaFile &missing = m_app->controller->arrayMediaFiles.at(1);
        QVERIFY2(missing.whyNotMeasured.contains(u"no such file"_s), qPrintable(missing.whyNotMeasured));
        QCOMPARE(missing.title, u"Typed"_s);
        const QAbstractItemModel *model = m_app->controller->selectedTable()->model();
        QVERIFY(model->index(1, ListTableModel::MediaDuration).data(Qt::DecorationRole).isValid());

        m_app->asked.choices.append(QList<QUrl>{ QUrl::fromLocalFile(place(u"moved"_s)) });
        m_app->trigger("menuitemFindMissing");
        settle();
        QCOMPARE(paths(), QStringList({ before.at(0), place(u"moved/deep/a\nb.mp3"_s), before.at(2) }));
        QCOMPARE(m_app->controller->arrayMediaFiles.at(1).i_Duration_in_Seconds, 14);
        QCOMPARE(m_app->controller->arrayMediaFiles.at(1).title, u"Typed"_s);
        QVERIFY(!m_app->element<QAction>("menuitemFindMissing")->isEnabled());
        m_app->trigger("menuitemListSave");
        QCOMPARE(compilation::readListFile(list).list.entries.at(1).path, place(u"moved/deep/a\nb.mp3"_s));
    }

    void aFolderThatMovedWithItsList()
    {
        m_app->launch();
        m_app->choose(6);
        m_app->file(u"project/photos/beach.jpg"_s);
        m_app->file(u"project/notes.txt"_s, QByteArray(2048, 'x'));
        m_app->addFolder(place(u"project/photos"_s));
        m_app->asked.choices.append(QList<QUrl>{ QUrl::fromLocalFile(place(u"project/notes.txt"_s)) });
        m_app->press("toolbar_btn_Data_Add_Files");
        saveAs(place(u"project/disc.corvalis"_s));
        QVERIFY(QDir().rename(place(u"project"_s), place(u"elsewhere"_s)));
        m_app->trigger("menuitemNewDisc");
        m_app->controller->windowNewDisc->OnOK();
        open(place(u"elsewhere/disc.corvalis"_s));
        QCOMPARE(m_app->texts(), QStringList());
        QCOMPARE(paths(), QStringList({ place(u"elsewhere/photos"_s), place(u"elsewhere/notes.txt"_s) }));
        QCOMPARE(m_app->controller->arrayDataFolders.at(1).s_Size, u"2.00 KB"_s);
    }

    void whatCannotBeOpened_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("broken") << QByteArray("{\"corvalis-list\": 1");
        QTest::newRow("newer") << QByteArray(R"({"corvalis-list": 7, "kind": "Audio CD", "entries": []})");
        QTest::newRow("unknown kind") << QByteArray(R"({"corvalis-list": 1, "kind": "LP", "entries": []})");
    }
    void whatCannotBeOpened()
    {
        QFETCH(QByteArray, content);
        start();
        makeFile(place(u"bad.corvalis"_s), content);
        open(place(u"bad.corvalis"_s));
        QCOMPARE(m_app->asked.alerts.size(), 1);
        QCOMPARE(m_app->asked.alerts.first().message, u"The list cannot be opened"_s);
        QCOMPARE(paths().size(), 2);
    }

    void devicesOnAList()
    {
        start();
        const compilation::ListFile list{ u"Audio CD"_s, {},
            { { u"/dev/zero"_s, {}, {}, {} }, { m_app->file(u"c.mp3"_s), {}, {}, {} } } };
        makeFile(place(u"odd.corvalis"_s), compilation::written(list));
        m_app->asked.buttons = { 1, 0 };
        open(place(u"odd.corvalis"_s));
        QCOMPARE(paths(), QStringList(place(u"c.mp3"_s)));
        QCOMPARE(m_app->asked.alerts.size(), 2);
        QVERIFY(m_app->asked.alerts.at(1).informative.contains(u"zero"_s));
    }

    void whatCannotBeSaved()
    {
        start();
        saveAs(place(u"no/such/folder/a.corvalis"_s));
        QCOMPARE(m_app->asked.alerts.size(), 1);
        QCOMPARE(m_app->asked.alerts.first().message, u"The list could not be saved"_s);
        QCOMPARE(recent(), QStringList(u"Clear This Menu"_s));
    }

    void theRecentOnes()
    {
        start();
        for (int i = 1; i <= 12; ++i)
            saveAs(place(u"%1 & more.corvalis"_s.arg(i)));
        saveAs(place(u"5 & more.corvalis"_s));
        QCOMPARE(recent().size(), 11); // ten, and the item that clears them
        QCOMPARE(recent().first(), u"1 5  more"_s);
        QVERIFY(QFile::remove(place(u"5 & more.corvalis"_s)));
        m_app->element<QMenu>("submenuRecent")->actions().constFirst()->trigger();
        QCOMPARE(m_app->asked.alerts.constLast().message, u"The list cannot be opened"_s);
        QCOMPARE(recent().first(), u"1 12  more"_s);
        m_app->element<QMenu>("submenuRecent")->actions().constFirst()->trigger();
        settle();
        QCOMPARE(paths().size(), 2);
        m_app->element<QMenu>("submenuRecent")->actions().constLast()->trigger();
        QVERIFY(!m_app->element<QMenu>("submenuRecent")->menuAction()->isVisible());
    }
};

QTEST_MAIN(SavedListsTest)
#include "SavedListsTest.moc"
