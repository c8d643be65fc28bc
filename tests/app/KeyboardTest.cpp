// The program without a mouse and without eyes: shortcuts, tab order, names and tooltips.
#include "app/BarButton.h"
#include "app/TabView.h"
#include "app/Window_Activity_Log.h"
#include "app/Window_Alert.h"
#include "app/Window_New_Disc.h"
#include "compilation/ListTableView.h"
#include "support/Person.h"
#include "support/TestApplication.h"
#include "ui_MainWindow.h"
#include "writing/StatusSheets.h"
#include "writing/Window_Video_Settings.h"

#include <QAccessible>
#include <QLabel>
#include <QMenuBar>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString accessibleName(QWidget *widget)
{
    const QAccessibleInterface *face = QAccessible::queryAccessibleInterface(widget);
    return face ? face->text(QAccessible::Name) : QString();
}

QString described(const QObject *object)
{
    return u"%1 %2"_s.arg(QString::fromLatin1(object->metaObject()->className()), object->objectName());
}

/// What the Tab key has to reach: whatever can be pressed, chosen from or written into.
bool isUsable(const QWidget *widget)
{
    return qobject_cast<const BarButton *>(widget) || qobject_cast<const ListTableView *>(widget)
        || qobject_cast<const QLineEdit *>(widget);
}

} // namespace

class KeyboardTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { m_app.reset(); }

    void shortcutsAreUnique();
    void mnemonicsAreUnique();
    void expectedShortcuts_data();
    void expectedShortcuts();
    void everyItemHasKeys();
    void everyItemIsInAMenu();
    void noMenuSaysTheSameTwice();
    void pressableThingsHaveNames();
    void buttonsArePushButtons();
    void burnButtonIsNamedAsItIsTitled();
    void chosenModeIsTold();
    void gaugeHasAValue();
    void everyControlSpeaks();
    void listsSpeakTheirRows();
    void tabOrder_data();
    void tabOrder();
    void enterAndSpacePress();
    void theListHasTheKeyboard();
    void arrowsOnTheTabsKeepTheList();
    void theFocusedTabIsMarked();
    void everySheetHasNames();

private:
    /// The widgets that the Tab key reaches in turn, from the tab bar on.
    QWidgetList reached();

    std::unique_ptr<TestApplication> m_app;
};

void KeyboardTest::init()
{
    emptyHome();
    m_app = std::make_unique<TestApplication>();
    m_app->launch();
    QVERIFY(person::awaitKeyboard(m_app->window.get()));
}

void KeyboardTest::shortcutsAreUnique()
{
    QHash<QString, QString> taken;
    for (const QAction *action : m_app->window->findChildren<QAction *>()) {
        for (const QKeySequence &keys : action->shortcuts()) {
            const QString text = keys.toString();
            QVERIFY2(!taken.contains(text),
                qPrintable(text + u": "_s + action->objectName() + u", "_s + taken.value(text)));
            taken.insert(text, action->objectName());
        }
    }
    QVERIFY(taken.size() > 15);
}

void KeyboardTest::mnemonicsAreUnique()
{
    const auto check = [](const QList<QAction *> &actions, const QString &where) {
        QHash<QKeySequence, QString> taken;
        for (const QAction *action : actions) {
            const QKeySequence key = QKeySequence::mnemonic(action->text());
            if (key.isEmpty() || !action->isVisible())
                continue;
            QVERIFY2(!taken.contains(key),
                qPrintable(where + u": "_s + action->text() + u", "_s + taken.value(key)));
            taken.insert(key, action->text());
        }
    };
    for (int tab = 0; tab < 5; ++tab) {
        person::clickTab(m_app->element<QTabWidget>("tabviewMain"), tab);
        check(m_app->element<QMenuBar>("menubar")->actions(), u"menu bar"_s);
        for (const QMenu *menu : m_app->window->findChildren<QMenu *>())
            check(menu->actions(), menu->objectName());
    }
}

void KeyboardTest::expectedShortcuts_data()
{
    QTest::addColumn<QByteArray>("item");
    QTest::addColumn<QString>("keys");
    QTest::newRow("new disc") << QByteArray("menuitemNewDisc") << u"Ctrl+N"_s;
    QTest::newRow("add files") << QByteArray("menuitemAddFiles") << u"Ctrl+O"_s;
    QTest::newRow("delete") << QByteArray("menuitemDelete") << u"Del"_s;
    QTest::newRow("burn") << QByteArray("menuitemBurn") << u"Ctrl+B"_s;
    QTest::newRow("quit") << QByteArray("menuitemQuit") << u"Ctrl+Q"_s;
    QTest::newRow("log") << QByteArray("menuitemActivityLog") << u"Ctrl+L"_s;
    QTest::newRow("audio") << QByteArray("submenuItemTabAudio") << u"Ctrl+1"_s;
    QTest::newRow("video") << QByteArray("submenuItemTabVideo") << u"Ctrl+2"_s;
    QTest::newRow("data") << QByteArray("submenuItemTabData") << u"Ctrl+3"_s;
    QTest::newRow("ISO") << QByteArray("submenuItemTabISO") << u"Ctrl+4"_s;
    QTest::newRow("tools") << QByteArray("submenuItemTabTools") << u"Ctrl+5"_s;
}

void KeyboardTest::expectedShortcuts()
{
    QFETCH(QByteArray, item);
    QTEST(m_app->element<QAction>(item.constData())->shortcut().toString(), "keys");
}

void KeyboardTest::everyItemHasKeys()
{
    // What destroys without asking, and what is rarely wanted, is not had by one slip of a finger: a letter
    // in its menu chooses it.
    const QStringList byLetter{ u"menuitemErase"_s, u"menuitemInsert"_s, u"menuitemHelp"_s,
        u"menuitemRecent"_s };
    for (const QMenu *menu : m_app->window->findChildren<QMenu *>()) {
        for (const QAction *action : menu->actions()) {
            if (action->isSeparator() || action->menu())
                continue;
            const bool letter = std::ranges::any_of(
                byLetter, [action](const QString &name) { return action->objectName().startsWith(name); });
            const bool reached = !action->shortcut().isEmpty()
                || (letter && !QKeySequence::mnemonic(action->text()).isEmpty());
            QVERIFY2(reached, qPrintable(described(action)));
        }
    }
}

void KeyboardTest::noMenuSaysTheSameTwice()
{
    for (int tab = 0; tab < 5; ++tab) {
        person::clickTab(m_app->element<QTabWidget>("tabviewMain"), tab);
        for (const QMenu *menu : m_app->window->findChildren<QMenu *>()) {
            QSet<QString> taken;
            for (const QAction *action : menu->actions()) {
                if (action->isSeparator() || !action->isVisible())
                    continue;
                const QString text = action->text().remove(u'&');
                QVERIFY2(!taken.contains(text), qPrintable(menu->objectName() + u": "_s + text));
                taken.insert(text);
            }
        }
    }
}

void KeyboardTest::everyItemIsInAMenu()
{
    QSet<const QAction *> inMenus;
    for (const QMenu *menu : m_app->window->findChildren<QMenu *>()) {
        for (const QAction *action : menu->actions())
            inMenus.insert(action);
    }
    for (const QAction *action : m_app->window->findChildren<QAction *>()) {
        if (action->objectName().startsWith(u"menuitem"_s)
            || action->objectName().startsWith(u"submenuItem"_s)) {
            QVERIFY2(inMenus.contains(action), qPrintable(action->objectName()));
            QVERIFY2(action->isSeparator() || !action->text().isEmpty(), qPrintable(action->objectName()));
        }
    }
}

void KeyboardTest::pressableThingsHaveNames()
{
    for (QWidget *widget : m_app->window->findChildren<QWidget *>()) {
        const bool internal =
            widget->objectName().startsWith(u"qt_"_s) || qobject_cast<QTabBar *>(widget->parent());
        if (widget->focusPolicy() == Qt::NoFocus || internal)
            continue;
        QVERIFY2(!accessibleName(widget).isEmpty(), qPrintable(described(widget)));
        if (qobject_cast<QAbstractButton *>(widget))
            QVERIFY2(!widget->toolTip().isEmpty(), qPrintable(described(widget)));
    }
}

void KeyboardTest::buttonsArePushButtons()
{
    for (QAbstractButton *button : m_app->window->findChildren<BarButton *>()) {
        QAccessibleInterface *face = QAccessible::queryAccessibleInterface(button);
        const bool isMode = static_cast<BarButton *>(button)->look() == BarButton::Look::Mode;
        QCOMPARE(face->role(), isMode ? QAccessible::RadioButton : QAccessible::Button);
        QVERIFY2(face->actionInterface(), qPrintable(described(button)));
        QVERIFY(face->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
    }
    // A screen reader can press it.
    auto *mode = m_app->element<BarButton>("btnMP3CD");
    QAccessible::queryAccessibleInterface(mode)->actionInterface()->doAction(
        QAccessibleActionInterface::pressAction());
    QTRY_COMPARE(m_app->element<BarButton>("btnBurn")->text(), u"Burn MP3 CD"_s);
}

void KeyboardTest::burnButtonIsNamedAsItIsTitled()
{
    auto *burn = m_app->element<BarButton>("btnBurn");
    for (const char *mode : { "btnMP3DVD", "btnAudioCD", "btnMP3CD" }) {
        person::click(m_app->window.get(), mode);
        QCOMPARE(accessibleName(burn), burn->text());
    }
}

void KeyboardTest::chosenModeIsTold()
{
    const auto isChecked = [this](const char *button) {
        const auto state = QAccessible::queryAccessibleInterface(m_app->element<BarButton>(button))->state();
        return state.checkable && state.checked;
    };
    for (const char *chosen : { "btnMP3CD", "btnAudioCD", "btnMP3DVD" }) {
        person::click(m_app->window.get(), chosen);
        for (const char *button : { "btnAudioCD", "btnMP3CD", "btnMP3DVD" })
            QCOMPARE(isChecked(button), qstrcmp(button, chosen) == 0);
    }
    QVERIFY(!QAccessible::queryAccessibleInterface(m_app->element<BarButton>("btnBurn"))->state().checkable);
}

void KeyboardTest::gaugeHasAValue()
{
    auto *gauge = QAccessible::queryAccessibleInterface(m_app->element<QWidget>("spaceoccupiedviewControl"));
    QVERIFY(gauge->valueInterface());
    QCOMPARE(gauge->role(), QAccessible::ProgressBar);
    NodeMediaFile hour;
    hour.i_Duration_in_Seconds = 3600;
    for (const qsizetype files : { 1, 2, 0 }) {
        m_app->controller->arrayMediaFiles = QList<NodeMediaFile>(files, hour);
        m_app->controller->refreshTableAudioFiles();
        const qint64 percent = files * 3600 * 100 / 4440;
        QCOMPARE(gauge->valueInterface()->currentValue().toLongLong(), percent);
        QCOMPARE(gauge->valueInterface()->maximumValue().toLongLong(), qMax(qint64(100), percent));
        QCOMPARE(gauge->text(QAccessible::Value), u"%1 %"_s.arg(percent));
        QCOMPARE(gauge->text(QAccessible::Description),
            m_app->element<QLabel>("label_BottomBar_SpaceOcuupied")->text());
    }
}

/// All that a screen reader finds below an object, itself included, but for what it is told is not there.
static QList<QAccessibleInterface *> accessibleTree(QAccessibleInterface *top)
{
    QList<QAccessibleInterface *> found;
    if (!top || !top->isValid() || top->state().invisible)
        return found;
    found.append(top);
    for (int child = 0; child < top->childCount(); ++child)
        found += accessibleTree(top->child(child));
    return found;
}

void KeyboardTest::everyControlSpeaks()
{
    const QList<QAccessible::Role> controls{ QAccessible::Button, QAccessible::RadioButton,
        QAccessible::CheckBox, QAccessible::PageTab, QAccessible::PageTabList, QAccessible::MenuItem,
        QAccessible::Table, QAccessible::ColumnHeader, QAccessible::ProgressBar, QAccessible::StaticText };
    QSet<int> seen;
    for (int tab = 0; tab < 5; ++tab) {
        person::clickTab(m_app->element<QTabWidget>("tabviewMain"), tab);
        NodeMediaFile file;
        file.s_File_Name_With_Extension = u"a.mp3"_s;
        file.whyNotMeasured = u"The file is empty."_s;
        m_app->controller->arrayMediaFiles = { file };
        m_app->controller->arrayDataFolders = { { u"/x"_s, 1, u"1.00 KB"_s } };
        m_app->controller->refreshTableAudioFiles();
        m_app->controller->refreshTableVideoFiles();
        m_app->controller->refreshTableDataFolders();
        QAccessibleInterface *const window = QAccessible::queryAccessibleInterface(m_app->window.get());
        for (QAccessibleInterface *face : accessibleTree(window)) {
            const QString what = u"%1, role %2"_s.arg(face->object() ? described(face->object()) : u"part"_s)
                                     .arg(face->role());
            const bool isControl = controls.contains(face->role());
            seen.insert(face->role());
            if (isControl && !face->state().invisible)
                QVERIFY2(!face->text(QAccessible::Name).isEmpty(), qPrintable(what));
            // What hands the keyboard on, as the tab widget to its bar, is no control itself.
            const auto *widget = qobject_cast<QWidget *>(face->object());
            if (widget && face->state().focusable && !widget->focusProxy()) {
                QVERIFY2(face->role() != QAccessible::NoRole && face->role() != QAccessible::Client,
                    qPrintable(what));
                QVERIFY2(!face->text(QAccessible::Name).isEmpty(), qPrintable(what));
            }
        }
    }
    for (const QAccessible::Role role : { QAccessible::Button, QAccessible::RadioButton, QAccessible::PageTab,
             QAccessible::Table, QAccessible::ColumnHeader, QAccessible::ProgressBar })
        QVERIFY2(seen.contains(role), qPrintable(QString::number(role)));
}

void KeyboardTest::listsSpeakTheirRows()
{
    NodeMediaFile file;
    file.s_File_Name_With_Extension = u"a.mp3"_s;
    file.s_Folder_Path = u"/x"_s;
    file.whyNotMeasured = u"The file is empty."_s;
    m_app->controller->arrayMediaFiles = { file };
    m_app->controller->refreshTableAudioFiles();
    auto *table = QAccessible::queryAccessibleInterface(m_app->element<QWidget>("tableviewAudioFiles"));
    QVERIFY(table->tableInterface());
    QCOMPARE(table->tableInterface()->rowCount(), 1);
    QStringList cells;
    for (int column = 0; column < 4; ++column)
        cells.append(table->tableInterface()->cellAt(0, column)->text(QAccessible::Name));
    QCOMPARE(cells.first(2), QStringList({ u"a.mp3"_s, u"not measured"_s }));
    QCOMPARE(table->tableInterface()->cellAt(0, 0)->text(QAccessible::Description), u"The file is empty."_s);
    m_app->element<QTableView>("tableviewAudioFiles")->selectRow(0);
    QVERIFY(table->tableInterface()->cellAt(0, 1)->state().selected);
}

QWidgetList KeyboardTest::reached()
{
    QWidget *start = m_app->element<QTabWidget>("tabviewMain")->tabBar();
    start->setFocus();
    QWidgetList order;
    for (int presses = 0; presses < 50; ++presses) {
        QTest::keyClick(QGuiApplication::focusWindow(), Qt::Key_Tab);
        if (QApplication::focusWidget() == start || !QApplication::focusWidget())
            break;
        order.append(QApplication::focusWidget());
    }
    return order;
}

void KeyboardTest::tabOrder_data()
{
    QTest::addColumn<int>("tab");
    const char *const names[] = { "audio", "video", "data", "ISO", "tools" };
    for (int tab = 0; tab < 5; ++tab)
        QTest::newRow(names[tab]) << tab;
}

void KeyboardTest::tabOrder()
{
    QFETCH(int, tab);
    person::clickTab(m_app->element<QTabWidget>("tabviewMain"), tab);
    const QWidgetList order = reached();
    // All that can be pressed or chosen from is reached, and nothing else.
    for (QWidget *widget : m_app->window->findChildren<QWidget *>()) {
        if (isUsable(widget) && widget->isVisible())
            QVERIFY2(order.contains(widget), qPrintable(described(widget)));
    }
    // As one reads: rows from the top, in a row from the left.
    QPoint before(-1, -1);
    for (QWidget *widget : order) {
        QVERIFY2(isUsable(widget), qPrintable(described(widget)));
        const QPoint place = widget->mapTo(m_app->window.get(), QPoint());
        const bool sameRow = qAbs(place.y() - before.y()) < 8;
        QVERIFY2(sameRow ? place.x() > before.x() : place.y() > before.y(), qPrintable(described(widget)));
        before = place;
    }
}

void KeyboardTest::enterAndSpacePress()
{
    auto *mode = m_app->element<BarButton>("btnMP3CD");
    mode->setFocus();
    person::press(QKeySequence(Qt::Key_Space));
    QTRY_COMPARE(m_app->element<BarButton>("btnBurn")->text(), u"Burn MP3 CD"_s);
    m_app->element<BarButton>("btnMP3DVD")->setFocus();
    person::press(QKeySequence(Qt::Key_Return));
    QTRY_COMPARE(m_app->element<BarButton>("btnBurn")->text(), u"Burn MP3 DVD"_s);
}

void KeyboardTest::theListHasTheKeyboard()
{
    const auto shown = [this] { return static_cast<QWidget *>(m_app->controller->selectedTable()); };
    QCOMPARE(m_app->window->focusWidget(), shown());
    for (const int tab : { 1, 2, 0 }) {
        person::clickTab(m_app->element<QTabWidget>("tabviewMain"), tab);
        QCOMPARE(m_app->window->focusWidget(), shown());
    }
    person::press(QKeySequence(u"Ctrl+2"_s));
    QTRY_COMPARE(m_app->window->focusWidget(), m_app->element<QWidget>("tableviewVideoFiles"));
    m_app->element<BarButton>("btnVideoBluray")->setFocus();
    QSignalSpy added(m_app->controller.get(), &AppDelegate::addingEnded);
    m_app->controller->addMediaFiles(AppDelegate::ListKind::Video, { QUrl::fromLocalFile(u"/x/0.mp4"_s) });
    QVERIFY(added.wait());
    QTRY_COMPARE(m_app->window->focusWidget(), shown());
    // What has no list leaves the keyboard on the tab that was chosen with it.
    m_app->element<QTabWidget>("tabviewMain")->tabBar()->setFocus();
    m_app->window->activateWindow();
    QTRY_VERIFY(m_app->element<QTabWidget>("tabviewMain")->tabBar()->hasFocus());
    for (int presses = 0; presses < 2; ++presses)
        person::press(QKeySequence(Qt::Key_Right));
    person::press(QKeySequence(Qt::Key_Space));
    QTRY_COMPARE(m_app->element<QTabWidget>("tabviewMain")->currentIndex(), 3);
    QCOMPARE(m_app->window->focusWidget(), m_app->element<QTabWidget>("tabviewMain")->tabBar());
}

void KeyboardTest::arrowsOnTheTabsKeepTheList()
{
    auto *tabs = m_app->element<QTabWidget>("tabviewMain");
    m_app->controller->arrayMediaFiles = QList<NodeMediaFile>(2);
    m_app->controller->refreshTableAudioFiles();
    tabs->tabBar()->setFocus();
    const auto focused = [tabs] { return static_cast<TabBar *>(tabs->tabBar())->focusedTab(); };
    const std::pair<Qt::Key, int> moves[] = { { Qt::Key_Right, 1 }, { Qt::Key_Right, 2 }, { Qt::Key_End, 4 },
        { Qt::Key_Right, 4 }, { Qt::Key_Left, 3 }, { Qt::Key_Home, 0 }, { Qt::Key_Left, 0 } };
    for (const auto &[key, expected] : moves) {
        person::press(QKeySequence(key));
        QCOMPARE(focused(), expected);
        QCOMPARE(tabs->currentIndex(), 0);
        QCOMPARE(m_app->controller->arrayMediaFiles.size(), 2);
    }
    person::press(QKeySequence(Qt::Key_Right));
    person::press(QKeySequence(Qt::Key_Return));
    QTRY_COMPARE(tabs->currentIndex(), 1);
    QVERIFY(m_app->controller->arrayMediaFiles.isEmpty());
    // Coming back, the keyboard begins at the page that is shown.
    QCOMPARE(focused(), -1);
    tabs->tabBar()->setFocus();
    QCOMPARE(focused(), 1);
}

void KeyboardTest::theFocusedTabIsMarked()
{
    QTabBar *bar = m_app->element<QTabWidget>("tabviewMain")->tabBar();
    const auto picture = [bar](int tab) { return bar->grab(bar->tabRect(tab)).toImage(); };
    bar->setFocus();
    const QImage audio = picture(0);
    const QImage data = picture(2);
    person::press(QKeySequence(Qt::Key_Right));
    person::press(QKeySequence(Qt::Key_Right));
    QVERIFY(picture(2) != data);
    QVERIFY(picture(0) != audio);
}

void KeyboardTest::everySheetHasNames()
{
    AppDelegate &controller = *m_app->controller;
    controller.Show_Window_New_Disc();
    controller.Show_Window_Video_Settings();
    controller.Show_Window_Progress(3);
    controller.Show_Window_Performing_Operation();
    controller.Show_Window_Operation_Complete();
    controller.OnMenuActivityLog();
    Window_Alert alert({ u"m"_s, u"line\n"_s.repeated(50), { u"Close"_s } }, m_app->window.get());
    alert.show();
    const QWidgetList windows{ controller.windowNewDisc, controller.windowVideoSettings,
        controller.windowProgress, controller.windowPerformingOperation, controller.windowOperationCompleted,
        controller.windowActivityLog, &alert };
    for (QWidget *window : windows) {
        QVERIFY(window);
        QSet<QKeySequence> mnemonics;
        for (QWidget *widget : window->findChildren<QWidget *>()) {
            const bool internal = widget->objectName().startsWith(u"qt_"_s);
            if (widget->focusPolicy() != Qt::NoFocus && !internal && widget->isVisible())
                QVERIFY2(!accessibleName(widget).isEmpty(),
                    qPrintable(described(window) + u": "_s + described(widget)));
            if (const auto *button = qobject_cast<QAbstractButton *>(widget)) {
                const QKeySequence key = QKeySequence::mnemonic(button->text());
                QVERIFY2(key.isEmpty() || !mnemonics.contains(key),
                    qPrintable(described(window) + u": "_s + button->text()));
                mnemonics.insert(key);
            }
        }
    }
}

QTEST_MAIN(KeyboardTest)
#include "KeyboardTest.moc"
