// Stopping jobs, the moments between their windows, and closing the program under every sheet.
#include "app/TabView.h"
#include "app/Window_Alert.h"
#include "compilation/ListTableView.h"
#include "runner/ToolRun.h"
#include "support/JobKinds.h"
#include "ui_MainWindow.h"
#include "writing/FolderClaim.h"

#include <QMenu>

using namespace Qt::StringLiterals;
using writing::Stage;
using How = writing::Outcome::How;

namespace {

const QString asItWas = u"Nothing was written. The disc is as it was."_s;
const QString lost = u"The disc is incomplete and cannot be used any more."_s;

/// Does `act` once, as soon as `when` holds while the event loop runs.
class Once {
public:
    Once(std::function<bool()> when, std::function<void()> act)
        : m_when(std::move(when))
        , m_act(std::move(act))
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] {
            if (!m_when())
                return;
            m_timer.stop();
            m_act();
            m_done = true;
        });
        m_timer.start(10);
    }
    bool done() const { return m_done; }

private:
    const std::function<bool()> m_when;
    const std::function<void()> m_act;
    QTimer m_timer;
    bool m_done = false;
};

QString nameOf(int kind)
{
    switch (kind) {
    case CopyJob:
        return u"Copy of a disc"_s;
    case MakeImageJob:
        return u"Making an image"_s;
    case WriteImageJob:
        return u"Writing an image"_s;
    case EraseJob:
        return u"Erasing"_s;
    default:
        return projects::byCode(kind)->name;
    }
}

} // namespace

class StopTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void stops_data();
    void stops();
    void stopsBeforeGatheringHasBegun();
    void nothingHappensBetweenTheWindows_data();
    void nothingHappensBetweenTheWindows();
    void endsUnderEverySheet_data();
    void endsUnderEverySheet();
    void endsUnderAnAlert_data();
    void endsUnderAnAlert();
    void menusRestUnderASheet();
    void keysReachTheSheet();

private:
    static void nextJobRuns(JobKinds &app, int kind);
};

void StopTest::stops_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<Stage>("stage");
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("state");
    QTest::addColumn<QByteArray>("medium"); ///< empty: what the kind takes

    const auto row = [](int kind, const char *when, Stage stage, const QByteArray &line, const QString &state,
                         const QByteArray &medium = {}) {
        QTest::addRow("%s, %s", qPrintable(nameOf(kind)), when) << kind << stage << line << state << medium;
    };
    for (int kind = 1; kind <= 8; ++kind) {
        if (kind < 6)
            row(kind, "converting", Stage::Converting, {}, asItWas);
        else
            row(kind, "gathering", Stage::Gathering, {}, asItWas);
        row(kind, "preparing", Stage::Writing, "Preparing", u"The disc is as it was."_s);
        row(kind, "writing", Stage::Writing, "Writing: 13.2 %, 8.1x", lost);
        if (kind > 1)
            row(kind, "comparing", Stage::Writing, "Verifying: 13.2 %",
                u"The disc is written, but was not compared."_s);
    }
    row(2, "writing a rewritable disc", Stage::Writing, "Writing: 13.2 %",
        u"The disc is incomplete: erase it before you use it again."_s, discs::writtenCDRW);
    row(CopyJob, "imaging", Stage::Imaging, "Writing: 13.2 %", u"There is no usable image."_s);
    row(CopyJob, "writing", Stage::Writing, "Writing: 13.2 %", lost);
    row(CopyJob, "comparing", Stage::Writing, "Verifying: 13.2 %",
        u"The disc is written, but was not compared."_s);
    row(MakeImageJob, "imaging", Stage::Imaging, "Writing: 13.2 %", u"There is no usable image."_s);
    row(WriteImageJob, "writing", Stage::Writing, "Writing: 13.2 %", lost);
    row(WriteImageJob, "comparing", Stage::Writing, "Verifying: 13.2 %",
        u"The disc is written, but was not compared."_s);
    row(EraseJob, "erasing", Stage::Erasing, "Erasing: 13.2 %",
        u"The disc has to be erased again before it can be used."_s);
}

void StopTest::stops()
{
    QFETCH(int, kind);
    QFETCH(Stage, stage);
    QFETCH(QByteArray, line);
    QFETCH(QString, state);
    QFETCH(QByteArray, medium);
    JobKinds app;
    app.start();
    QVERIFY(app.prepare(kind));
    if (!medium.isEmpty())
        app.insert(medium);
    app.hold(stage, line);
    bool pressed = false;
    const auto isThere = [&] {
        if (!app.controller->job || app.controller->job->progress().stage != stage || !app.sheet())
            return false;
        return stage == Stage::Gathering
            || (app.isHeld()
                && (stage == Stage::Converting
                    || app.controller->job->progress().words == QString::fromUtf8(line)));
    };
    const Once stop(isThere, [&] { pressed = app.stopAsAPerson(); });
    app.begin(kind);
    QVERIFY(app.completes());
    QVERIFY(pressed);
    QVERIFY(app.outcome);
    QCOMPARE(app.outcome->how, How::Stopped);
    QCOMPARE(app.outcome->reason, state);
    QCOMPARE(app.outcome->heading, u"Stopped"_s);
    QCOMPARE(app.trouble(), state);
    QCOMPARE(app.wasAsked(), stage != Stage::Gathering);
    QVERIFY(!app.controller->job);
    if (kind != MakeImageJob && kind != EraseJob && kind != WriteImageJob) {
        QCOMPARE(app.namesIn(app.workingFolder(kind)), QStringList());
        QVERIFY(FolderClaim::take(app.workingFolder(kind)));
    }
    QCOMPARE(app.sheet(), app.controller->windowOperationCompleted.data());
    person::pressTitled(app.controller->windowOperationCompleted, u"OK"_s);
    QVERIFY(!app.window->stage()->isOccupied());
    nextJobRuns(app, kind);
}

/// With tools that work.
void StopTest::nextJobRuns(JobKinds &app, int kind)
{
    app.holdNothing();
    app.begin(kind);
    QVERIFY(app.completes());
    QCOMPARE(app.outcome->how, How::Complete);
    QVERIFY(!app.controller->job);
}

void StopTest::stopsBeforeGatheringHasBegun()
{
    JobKinds app;
    app.around.stagingPoll = JobKinds::never;
    app.start();
    QVERIFY(app.prepare(6));
    app.begin(6);
    QVERIFY(app.controller->job);
    QVERIFY(app.stopAsAPerson());
    QVERIFY(app.completes());
    QCOMPARE(app.outcome->how, How::Stopped);
    QCOMPARE(app.namesIn(app.controller->s_Data_Folder), QStringList());
    QCOMPARE(app.drutil.runs(u"burn"_s).size(), 0);
}

void StopTest::nothingHappensBetweenTheWindows_data()
{
    QTest::addColumn<int>("kind");
    for (const int kind : { 1, 2, 4, 6, static_cast<int>(CopyJob), static_cast<int>(MakeImageJob) })
        QTest::newRow(qPrintable(nameOf(kind))) << kind;
}

void StopTest::nothingHappensBetweenTheWindows()
{
    QFETCH(int, kind);
    JobKinds app;
    app.start();
    QVERIFY(app.prepare(kind));
    const auto between = [&app] {
        return app.controller->job && !app.sheet() && !app.asked.panels.isEmpty();
    };
    const auto state = [&app] {
        const AppDelegate &c = *app.controller;
        return QStringList{ QString::number(c.arrayMediaFiles.size()),
            QString::number(c.arrayDataFolders.size()),
            QString::number(app.element<QTabWidget>("tabviewMain")->currentIndex()),
            QString::number(c.i_Type_of_New_Disc), c.s_Current_Drive_Number,
            QString::number(c.m_b_Debug_Mode),
            QString::number(!c.windowNewDisc.isNull() + !c.windowVideoSettings.isNull()),
            QString::number(app.drutil.runs(u"tray"_s).size()),
            QString::number(app.drutil.runs(u"erase"_s).size()),
            QString::number(app.drutil.runs(u"insert"_s).size()), QString::number(app.exits.size()) };
    };
    QList<std::pair<QString, std::function<void()>>> actions;
    QWindow *const handle = app.window->windowHandle();
    for (const char *keys : { "Ctrl+E", "Ctrl+N", "Ctrl+O", "Ctrl+B", "Del", "Ctrl+1", "Ctrl+2", "Ctrl+3",
             "Ctrl+4", "Ctrl+5", "Return", "Space" }) {
        actions.append({ QString::fromLatin1(keys),
            [=] { QTest::keySequence(handle, QKeySequence(QString::fromLatin1(keys))); } });
    }
    for (const auto *button : app.window->findChildren<QAbstractButton *>()) {
        if (button->isVisible() && !button->objectName().isEmpty())
            actions.append(
                { button->objectName(), [button] { person::clickAt(button, button->rect().center()); } });
    }
    auto *tabs = app.element<QTabWidget>("tabviewMain");
    for (int tab = 0; tab < 5; ++tab)
        actions.append({ u"tab %1"_s.arg(tab), [tabs, tab] { person::clickTab(tabs, tab); } });
    for (QAction *item : app.window->findChildren<QAction *>()) {
        const QString name = item->objectName();
        const bool always = name == u"menuitemQuit"_s || name == u"menuitemActivityLog"_s
            || app.element<QMenu>("menuHelp")->actions().contains(item);
        if (!always && (name.startsWith(u"menuitem"_s) || name.startsWith(u"submenuItem"_s)))
            actions.append({ name, [item] { item->trigger(); } });
    }
    const QList<QUrl> dropped{ QUrl::fromLocalFile(app.media.filePath(u"album/song.mp3"_s)),
        QUrl::fromLocalFile(app.media.filePath(u"album"_s)) };
    actions.append({ u"drop"_s, [&] { person::drop(tabs, dropped); } });

    qsizetype next = 0;
    QStringList changed;
    QTimer timer;
    const auto pressAll = [&] {
        while (next < actions.size() && between()) {
            const QStringList before = state();
            actions.at(next).second();
            if (state() != before)
                changed.append(actions.at(next).first);
            ++next;
        }
    };
    connect(&timer, &QTimer::timeout, this, pressAll);
    timer.start(5);
    QVERIFY(actions.size() > 40);
    for (int round = 0; round < 40 && next < actions.size(); ++round) {
        app.begin(kind);
        QVERIFY(app.completes());
        person::pressTitled(app.controller->windowOperationCompleted, u"OK"_s);
        QCOMPARE(changed.join(u' '), QString());
    }
    QCOMPARE(next, actions.size());
}

void StopTest::endsUnderEverySheet_data()
{
    QTest::addColumn<QByteArray>("sheet");
    QTest::addColumn<QByteArray>("way");
    for (const char *sheet : { "new disc", "video settings", "adding", "converting", "gathering", "writing",
             "complete", "between" }) {
        for (const char *way : { "close", "keys", "menu" })
            QTest::addRow("%s, %s", sheet, way) << QByteArray(sheet) << QByteArray(way);
    }
}

namespace {

void endProgram(const JobApplication &app, const QByteArray &way)
{
    if (way == "close")
        app.window->windowHandle()->close();
    else if (way == "keys")
        QTest::keyClick(app.window->windowHandle(), Qt::Key_Q, Qt::ControlModifier);
    else
        person::choose(app.window.get(), "menuitemQuit");
}

} // namespace

void StopTest::endsUnderEverySheet()
{
    QFETCH(QByteArray, sheet);
    QFETCH(QByteArray, way);
    JobKinds app;
    const int kind = sheet == "gathering" ? 6 : sheet == "video settings" ? 4 : 1;
    app.around.stagingPoll = sheet == "gathering" ? 1500 : 50;
    app.start();
    QVERIFY(person::awaitKeyboard(app.window.get()));
    const auto showing = [&] {
        return sheet == "between" ? app.controller->job && !app.sheet() : app.sheet() != nullptr;
    };
    bool wasUp = false;
    QList<int> exits;
    const auto end = [&] {
        wasUp = showing();
        endProgram(app, way);
        exits = app.exits;
    };
    if (sheet == "adding") {
        app.ffmpeg.run("sleep 1\n");
        const Once quit([&] { return !app.controller->windowUniqueProgress.isNull(); }, end);
        QVERIFY(app.prepare(kind));
        QVERIFY(quit.done());
    } else if (sheet == "new disc" || sheet == "video settings") {
        QVERIFY(app.prepare(kind));
        app.trigger(sheet == "new disc" ? "menuitemNewDisc" : "menuitemVideoSettings");
        end();
    } else {
        QVERIFY(app.prepare(kind));
        // Long enough to be met.
        if (sheet == "converting")
            app.convertWith("sleep 0.5\necho converted > \"$output\"\n");
        else if (sheet == "writing")
            app.burnWith("sleep 0.5\n");
        const Once quit(
            [&] {
                const AppDelegate &c = *app.controller;
                return sheet == "converting" ? !c.windowProgress.isNull()
                    : sheet == "gathering"   ? !c.windowDataCopyFolders.isNull()
                    : sheet == "writing"     ? !c.windowPerformingOperation.isNull()
                    : sheet == "complete"    ? !c.windowOperationCompleted.isNull()
                                             : showing();
            },
            end);
        app.begin(kind);
        QVERIFY(app.completes());
        QTRY_VERIFY(quit.done());
    }
    QVERIFY(wasUp);
    QCOMPARE(exits, QList<int>{ 0 });
}

void StopTest::endsUnderAnAlert_data()
{
    QTest::addColumn<QByteArray>("way");
    QTest::newRow("close") << QByteArray("close");
    QTest::newRow("keys") << QByteArray("keys");
    QTest::newRow("keys in the window behind") << QByteArray("keys behind");
}

void StopTest::endsUnderAnAlert()
{
    QFETCH(QByteArray, way);
    JobKinds app;
    app.launchWithDialogs();
    QVERIFY(person::awaitKeyboard(app.window.get()));
    QList<int> exits;
    person::Expect<Window_Alert> alert([&](Window_Alert *up) {
        if (way == "keys")
            QTest::keyClick(up, Qt::Key_Q, Qt::ControlModifier);
        else
            endProgram(app, way == "close" ? "close" : "keys");
        exits = app.exits;
        up->close();
    });
    app.trigger("menuitemBurn"); // of an empty list
    QVERIFY(alert.happened());
    QCOMPARE(exits, QList<int>{ 0 });
}

void StopTest::menusRestUnderASheet()
{
    JobKinds app;
    app.start();
    QVERIFY(app.prepare(1));
    app.trigger("submenuItemTabISO"); // where nothing is listed, what lists can do is off
    const auto enabled = [&app] {
        QMap<QString, bool> states;
        for (const QAction *item : app.window->findChildren<QAction *>()) {
            if (!item->objectName().isEmpty() && item->isVisible())
                states.insert(item->objectName(), item->isEnabled());
        }
        return states;
    };
    const QMap<QString, bool> before = enabled();
    QVERIFY(before.values().contains(true) && before.values().contains(false));
    app.trigger("menuitemNewDisc");
    QVERIFY(app.sheet());
    const QMap<QString, bool> during = enabled();
    for (auto it = during.cbegin(); it != during.cend(); ++it) {
        const bool stays = it.key() == u"menuitemQuit"_s || it.key() == u"menuitemActivityLog"_s
            || app.element<QMenu>("menuHelp")->actions().contains(app.element<QAction>(qPrintable(it.key())));
        if (it.key().startsWith(u"menuitem"_s) || it.key().startsWith(u"submenuItem"_s))
            QVERIFY2(it.value() == (stays && before.value(it.key())), qPrintable(it.key()));
    }
    for (const char *menu : { "menuDisc", "menuTools", "menuHelp" })
        QVERIFY2(app.element<QMenu>(menu)->menuAction()->isEnabled(), menu);
    person::pressTitled(app.controller->windowNewDisc, u"Cancel"_s);
    QVERIFY(!app.sheet());
    QCOMPARE(enabled(), before);
}

/// Also when the window manager or a click behind it has taken the keyboard from it.
void StopTest::keysReachTheSheet()
{
    JobKinds app;
    app.start();
    QVERIFY(person::awaitKeyboard(app.window.get()));
    QVERIFY(app.prepare(1));
    app.trigger("menuitemNewDisc");
    QTest::mouseClick(app.window->windowHandle(), Qt::LeftButton, {}, QPoint(8, app.window->height() - 8));
    QTest::keyClick(app.window->windowHandle(), Qt::Key_Escape);
    QVERIFY(!app.controller->windowNewDisc);
    app.trigger("menuitemNewDisc");
    app.window->focusWidget()->clearFocus();
    QTest::keyClick(app.window->windowHandle(), Qt::Key_Return);
    QVERIFY2(!app.controller->windowNewDisc, "Return presses OK though nothing has the keyboard");
    app.trigger("menuitemNewDisc");
    app.window->focusWidget()->clearFocus();
    QTest::keyClick(app.window->windowHandle(), Qt::Key_Escape);
    QVERIFY2(!app.controller->windowNewDisc, "Escape cancels though nothing has the keyboard");
}

QTEST_MAIN(StopTest)
#include "StopTest.moc"
