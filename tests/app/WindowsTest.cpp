// The activity log's window and the alerts.
#include "app/Window_Activity_Log.h"
#include "app/Window_Alert.h"
#include "runner/ActivityLog.h"
#include "support/Person.h"
#include "support/TestApplication.h"
#include "ui_MainWindow.h"

#include <QClipboard>
#include <QFontDatabase>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

class WindowsTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { m_app.reset(); }

    void logOpensFrom_data();
    void logOpensFrom();
    void logListsEveryRun();
    void logFollows();
    void logFollowsOutput();
    void logRowsHaveRoom();
    void logKnowsWhatIsExpected();
    void logCopies();
    void logSaves();
    void logTellsWhyItCannotBeSaved();
    void logClosesWithEscape();

    void alertTexts();
    void alertIsPlainText();
    void alertWithALongText_data();
    void alertWithALongText();
    void alertFitsTheScreen_data();
    void alertFitsTheScreen();
    void alertShowsItsTextsInOrder_data();
    void alertShowsItsTextsInOrder();
    void alertIsAsLargeAsItsReport_data();
    void alertIsAsLargeAsItsReport();
    void alertHasTheSignOfItsKind();
    void alertWithANul();
    void alertKeys_data();
    void alertKeys();
    void alertOverTheWindow();

private:
    Window_Activity_Log *openLog();
    static QStringList texts(const QWidget *window);

    std::unique_ptr<TestApplication> m_app;
};

void WindowsTest::init()
{
    emptyHome();
    m_app = std::make_unique<TestApplication>();
    m_app->launchWithDialogs();
    QVERIFY(person::awaitKeyboard(m_app->window.get()));
}

Window_Activity_Log *WindowsTest::openLog()
{
    person::choose(m_app->window.get(), "menuitemActivityLog");
    return m_app->controller->windowActivityLog;
}

QStringList WindowsTest::texts(const QWidget *window)
{
    QStringList texts;
    for (const QLabel *label : window->findChildren<QLabel *>()) {
        if (label->isVisible() && !label->text().isEmpty())
            texts.append(label->text());
    }
    for (const QPlainTextEdit *field : window->findChildren<QPlainTextEdit *>()) {
        if (field->isVisible())
            texts.append(field->toPlainText());
    }
    return texts;
}

void WindowsTest::logOpensFrom_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("menu") << 0;
    QTest::newRow("keys") << 1;
    QTest::newRow("tools tab") << 2;
}

void WindowsTest::logOpensFrom()
{
    QFETCH(int, way);
    if (way == 0) {
        person::choose(m_app->window.get(), "menuitemActivityLog");
    } else if (way == 1) {
        person::press(QKeySequence(u"Ctrl+L"_s));
    } else {
        person::clickTab(m_app->element<QTabWidget>("tabviewMain"), 4);
        person::click(m_app->window.get(), "toolbar_btn_Tools_Activity_Log");
    }
    QTRY_VERIFY(m_app->controller->windowActivityLog);
    const QPointer<Window_Activity_Log> log = m_app->controller->windowActivityLog;
    QVERIFY(log->isVisible());
    QVERIFY(!log->isModal());
    // Opening it again shows the same one.
    person::choose(m_app->window.get(), "menuitemActivityLog");
    QCOMPARE(m_app->controller->windowActivityLog, log);
}

void WindowsTest::logListsEveryRun()
{
    m_app->drutil.run("echo 'what went wrong' >&2; exit 3");
    m_app->controller->s_Current_Drive_Number = u"it's"_s;
    m_app->controller->IsDriveEmpty();
    m_app->controller->around.drutil = u"/nowhere/at all/drutil"_s;
    m_app->controller->IsDriveEmpty();
    const auto *list = openLog()->findChild<QTreeWidget *>(u"listRuns"_s);
    QCOMPARE(list->topLevelItemCount(), 3);
    const auto command = [list](int row) { return list->topLevelItem(row)->text(2); };
    const auto outcome = [list](int row) { return list->topLevelItem(row)->text(1); };
    QCOMPARE(command(0), m_app->drutil.path() + u" list"_s);
    QCOMPARE(outcome(0), u"ended without an error"_s);
    // As a shell would take it.
    QCOMPARE(command(1), m_app->drutil.path() + u" status -drive 'it'\\''s'"_s);
    QCOMPARE(outcome(1), u"ended with status 3"_s);
    QVERIFY(command(2).startsWith(u"'/nowhere/at all/drutil' status"_s));
    QVERIFY2(outcome(2).startsWith(u"could not be started: "_s), qPrintable(outcome(2)));
    for (int row = 0; row < 3; ++row)
        QVERIFY(QTime::fromString(list->topLevelItem(row)->text(0), u"HH:mm:ss"_s).isValid());
    // A chosen run shows all that it said.
    const auto *said = m_app->controller->windowActivityLog->findChild<QPlainTextEdit *>(u"textOutput"_s);
    QVERIFY(said->toPlainText().isEmpty());
    person::clickRow(const_cast<QTreeWidget *>(list), list->model()->index(1, 0));
    QVERIFY(said->toPlainText().contains(u"what went wrong"_s));
    person::clickRow(const_cast<QTreeWidget *>(list), list->model()->index(0, 0));
    QVERIFY(said->toPlainText().contains(QString::fromLatin1(TestApplication::oneDrive)));
    QVERIFY(!said->toPlainText().contains(u"what went wrong"_s));
}

void WindowsTest::logFollows()
{
    const auto *list = openLog()->findChild<QTreeWidget *>(u"listRuns"_s);
    QCOMPARE(list->topLevelItemCount(), 1);
    m_app->controller->IsDriveEmpty();
    QTRY_COMPARE(list->topLevelItemCount(), 2);
    QTRY_COMPARE(list->topLevelItem(1)->text(1), u"ended without an error"_s);
}

void WindowsTest::logFollowsOutput()
{
    ActivityLog &activities = *m_app->controller->activityLog;
    const qsizetype run = activities.begin(u"tool"_s, {});
    for (int line = 0; line < 200; ++line)
        activities.append(run, "line\n");
    auto *list = openLog()->findChild<QTreeWidget *>(u"listRuns"_s);
    const auto *said = m_app->controller->windowActivityLog->findChild<QPlainTextEdit *>(u"textOutput"_s);
    person::clickRow(list, list->model()->index(static_cast<int>(run), 0));
    QScrollBar *bar = said->verticalScrollBar();
    QCOMPARE(bar->value(), 0);
    // Whoever reads keeps the place.
    bar->setValue(7);
    activities.append(run, "10 %\r20 %\r");
    QTRY_VERIFY(said->toPlainText().contains(u"20 %"_s));
    QCOMPARE(bar->value(), 7);
    // Whoever is at the end follows.
    bar->setValue(bar->maximum());
    activities.append(run, "more\nof\nit\nand the last line");
    QTRY_VERIFY(said->toPlainText().contains(u"the last line"_s));
    QCOMPARE(bar->value(), bar->maximum());
    QVERIFY(bar->value() > 190);
    // Another run begins at its beginning.
    person::clickRow(list, list->model()->index(0, 0));
    person::clickRow(list, list->model()->index(static_cast<int>(run), 0));
    QCOMPARE(bar->value(), 0);
    // What happens while it is closed is there when it opens again.
    m_app->controller->windowActivityLog->close();
    activities.append(run, "meanwhile");
    m_app->controller->IsDriveEmpty();
    QTest::qWait(50);
    openLog();
    QVERIFY(said->toPlainText().contains(u"meanwhile"_s));
    QCOMPARE(list->topLevelItemCount(), 3);
}

void WindowsTest::logRowsHaveRoom()
{
    const auto *list = openLog()->findChild<QTreeWidget *>(u"listRuns"_s);
    QVERIFY(list->visualItemRect(list->topLevelItem(0)).height() >= list->fontMetrics().height() + 8);
}

void WindowsTest::logKnowsWhatIsExpected()
{
    m_app->ffmpeg.run("exit 1");
    m_app->controller->GetMediaFileDuration(u"/song.mp3"_s);
    m_app->ffmpeg.run("exit 2");
    m_app->controller->GetMediaFileDuration(u"/song.mp3"_s);
    const auto *list = openLog()->findChild<QTreeWidget *>(u"listRuns"_s);
    QCOMPARE(list->topLevelItem(1)->text(1), u"ended with status 1, as expected"_s);
    QVERIFY(!list->topLevelItem(1)->font(1).bold());
    QCOMPARE(list->topLevelItem(2)->text(1), u"ended with status 2"_s);
    QVERIFY(list->topLevelItem(2)->font(1).bold());
}

void WindowsTest::logCopies()
{
    m_app->controller->IsDriveEmpty();
    Window_Activity_Log *log = openLog();
    person::click(log, "btnCopy");
    QCOMPARE(QGuiApplication::clipboard()->text(), m_app->controller->activityLog->text());
    QVERIFY(QGuiApplication::clipboard()->text().contains(u"status -drive 1"_s));
    auto *list = log->findChild<QTreeWidget *>(u"listRuns"_s);
    person::clickRow(list, list->model()->index(0, 0));
    person::click(log, "btnCopy");
    QVERIFY(QGuiApplication::clipboard()->text().contains(u" list\n"_s));
    QVERIFY(!QGuiApplication::clipboard()->text().contains(u"status -drive 1"_s));
}

void WindowsTest::logSaves()
{
    QTemporaryDir folder;
    person::Expect<QFileDialog> dialog([&](QFileDialog *panel) {
        panel->findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(folder.filePath(u"my log.txt"_s));
        person::pressTitled(panel, u"Save"_s);
    });
    person::click(openLog(), "btnSave");
    QVERIFY(dialog.happened());
    QCOMPARE(contentOf(folder.filePath(u"my log.txt"_s)), m_app->controller->activityLog->text().toUtf8());
}

void WindowsTest::logTellsWhyItCannotBeSaved()
{
    QTemporaryDir folder;
    makeFile(folder.filePath(u"plain"_s));
    const QString path = folder.filePath(u"plain/log.txt"_s);
    QVERIFY(!openLog()->saveTo(path).isEmpty());
    QVERIFY(!openLog()->saveTo(folder.path()).isEmpty());
    QVERIFY(openLog()->saveTo(folder.filePath(u"log.txt"_s)).isEmpty());
    // In the window: a folder in which nobody can make files.
    QStringList told;
    person::Expect<QFileDialog> dialog([&](QFileDialog *panel) {
        panel->findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(u"/proc/log.txt"_s);
        person::pressTitled(panel, u"Save"_s);
    });
    person::Expect<Window_Alert> alert([&](Window_Alert *window) {
        told = texts(window);
        person::pressTitled(window, u"Close"_s);
    });
    person::click(openLog(), "btnSave");
    QVERIFY(dialog.happened());
    QVERIFY(alert.happened());
    QCOMPARE(told.first(), u"The log could not be saved"_s);
    QVERIFY(told.last().startsWith(u"/proc/log.txt\n"_s));
}

void WindowsTest::logClosesWithEscape()
{
    openLog();
    QVERIFY(person::awaitKeyboard(m_app->controller->windowActivityLog));
    person::press(QKeySequence(Qt::Key_Escape));
    QTRY_VERIFY(!m_app->controller->windowActivityLog || !m_app->controller->windowActivityLog->isVisible());
    QVERIFY(m_app->exits.isEmpty());
    QVERIFY(openLog()->isVisible());
}

void WindowsTest::alertTexts()
{
    Window_Alert alert({ u"Message"_s, u"Informative"_s, { u"First"_s, u"Last"_s } }, m_app->window.get());
    alert.show();
    QCOMPARE(texts(&alert), QStringList({ u"Message"_s, u"Informative"_s }));
    QCOMPARE(alert.windowModality(), Qt::ApplicationModal);
    QStringList buttons;
    for (const auto *button : alert.findChildren<QPushButton *>())
        buttons.append(button->text());
    QCOMPARE(QSet<QString>(buttons.cbegin(), buttons.cend()), QSet<QString>({ u"First"_s, u"Last"_s }));
}

void WindowsTest::alertIsPlainText()
{
    const QString rich = u"<img src=\"/etc/passwd\"><b>bold</b> <script>x</script> &amp; ok"_s;
    Window_Alert alert({ rich, rich, { u"Close"_s } }, m_app->window.get());
    alert.show();
    QCOMPARE(texts(&alert), QStringList({ rich, rich }));
    for (const QLabel *label : alert.findChildren<QLabel *>()) {
        if (!label->text().isEmpty())
            QCOMPARE(label->textFormat(), Qt::PlainText);
    }
}

void WindowsTest::alertWithALongText_data()
{
    QTest::addColumn<bool>("longMessage");
    QTest::addColumn<bool>("fixedWidth");
    QTest::newRow("message") << true << false;
    QTest::newRow("informative") << false << false;
    QTest::newRow("short report") << false << true;
}

void WindowsTest::alertWithALongText()
{
    QFETCH(bool, longMessage);
    QFETCH(bool, fixedWidth);
    const QString report = fixedWidth ? u" Type: CD-R\n Size: 1"_s : u"a line of a tool\n"_s.repeated(2000);
    const QString other = u"Warning 0030."_s;
    Window_Alert alert(
        { longMessage ? report : other, longMessage ? other : report, { u"Close"_s }, Alert::Sign::Warning,
            fixedWidth ? Alert::Report::Informative : Alert::Report::None },
        m_app->window.get());
    alert.show();
    const auto *field = alert.findChild<QPlainTextEdit *>();
    QVERIFY(field->isVisible());
    QVERIFY(field->isReadOnly());
    QCOMPARE(field->toPlainText(), report);
    QVERIFY(texts(&alert).contains(other));
    QCOMPARE(field->font().family(), QFontDatabase::systemFont(QFontDatabase::FixedFont).family());
}

void WindowsTest::alertFitsTheScreen_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("one very long line") << QString(300'000, u'x');
    QTest::newRow("long word") << QString(590, u'W');
    QTest::newRow("many lines") << u"\n"_s.repeated(100'000);
    QTest::newRow("eight lines") << u"line\n"_s.repeated(8);
    QTest::newRow("long path") << u"/home/somebody"_s + u"/folder"_s.repeated(80);
}

void WindowsTest::alertFitsTheScreen()
{
    QFETCH(QString, text);
    const QSize screen = m_app->window->screen()->size();
    for (const bool asMessage : { true, false }) {
        Window_Alert alert(
            { asMessage ? text : u"m"_s, asMessage ? u"i"_s : text, { u"Close"_s } }, m_app->window.get());
        alert.show();
        QCoreApplication::processEvents();
        QVERIFY2(alert.width() <= screen.width() && alert.height() <= screen.height(),
            qPrintable(u"%1 x %2"_s.arg(alert.width()).arg(alert.height())));
        const auto *button = alert.findChild<QPushButton *>();
        QVERIFY(alert.rect().contains(QRect(button->mapTo(&alert, QPoint()), button->size())));
    }
}

/// Whatever of it is long or was printed, the message stands above the text below it, and what was printed in
/// a fixed-width field.
void WindowsTest::alertShowsItsTextsInOrder_data()
{
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("informative");
    QTest::addColumn<Alert::Report>("report");
    QTest::addColumn<QStringList>("fields");
    QTest::addColumn<QStringList>("labels");
    const auto few = u" Type: CD-R\n Size: 1\n"_s;
    const auto many = u"a line of a tool\n"_s.repeated(30);
    const auto code = u"Warning 0030."_s;
    using enum Alert::Report;
    const QStringList nothing;
    QTest::newRow("two lines printed") << few << code << Message << QStringList(few) << QStringList(code);
    QTest::newRow("many lines printed") << many << code << Message << QStringList(many) << QStringList(code);
    QTest::newRow("nothing printed") << QString() << code << Message << QStringList(QString())
                                     << QStringList(code);
    QTest::newRow("printed below") << code << few << Informative << QStringList(few) << QStringList(code);
    QTest::newRow("two short texts") << code << few << None << nothing << QStringList({ code, few });
    QTest::newRow("long message") << many << code << None << QStringList(many) << QStringList(code);
    QTest::newRow("both long") << many << many << None << QStringList(many + u"\n\n"_s + many) << nothing;
}

void WindowsTest::alertShowsItsTextsInOrder()
{
    QFETCH(QString, message);
    QFETCH(QString, informative);
    QFETCH(Alert::Report, report);
    QFETCH(QStringList, fields);
    QFETCH(QStringList, labels);
    Window_Alert alert(
        { message, informative, { u"Close"_s }, Alert::Sign::Warning, report }, m_app->window.get());
    alert.show();
    QMap<int, QString> byHeight;
    QStringList seenFields;
    QStringList seenLabels;
    const auto note = [&](const QWidget *widget, const QString &text, QStringList &seen) {
        if (!widget->isVisible() || (text.isEmpty() && widget->inherits("QLabel")))
            return;
        seen.append(text);
        byHeight.insert(widget->mapTo(&alert, QPoint()).y(), text);
    };
    for (const char *name : { "labelMessage", "labelInformative" }) {
        const auto *label = alert.findChild<QLabel *>(QLatin1StringView(name));
        note(label, label->text(), seenLabels);
    }
    const auto *field = alert.findChild<QPlainTextEdit *>();
    note(field, field->toPlainText(), seenFields);
    QCOMPARE(seenFields, fields);
    QCOMPARE(seenLabels, labels);
    if (byHeight.size() == 2)
        QCOMPARE(byHeight.values(), QStringList({ message, informative }));
    const QFontMetrics metrics = field->fontMetrics();
    if (field->isVisible())
        QCOMPARE(metrics.horizontalAdvance(u"iiii"_s), metrics.horizontalAdvance(u"MMMM"_s));
}

void WindowsTest::alertIsAsLargeAsItsReport_data()
{
    QTest::addColumn<int>("lines");
    QTest::addColumn<int>("columns");
    QTest::addColumn<bool>("fits");
    QTest::newRow("four lines") << 4 << 30 << true;
    QTest::newRow("a status of a drive") << 22 << 80 << true;
    QTest::newRow("one line") << 1 << 85 << true;
    QTest::newRow("a page") << 200 << 30 << false;
    QTest::newRow("wide") << 4 << 400 << false;
}

void WindowsTest::alertIsAsLargeAsItsReport()
{
    QFETCH(int, lines);
    QFETCH(int, columns);
    QFETCH(bool, fits);
    const QString text = (QString(columns, u'm') + u'\n').repeated(lines);
    for (const auto report : { Alert::Report::Message, Alert::Report::Informative }) {
        const bool above = report == Alert::Report::Message;
        Window_Alert alert({ above ? text : u"Disc Information"_s, above ? u"Warning 0030."_s : text,
                               { u"OK"_s }, Alert::Sign::Note, report },
            m_app->window.get());
        alert.show();
        QCoreApplication::processEvents();
        const auto *field = alert.findChild<QPlainTextEdit *>();
        const bool down = field->verticalScrollBar()->maximum() > 0;
        const bool across = field->horizontalScrollBar()->maximum() > 0;
        QVERIFY2((!down && !across) == fits,
            qPrintable(u"%1 of %2, %3 of %4"_s.arg(field->width())
                           .arg(field->fontMetrics().horizontalAdvance(QString(columns, u'm')))
                           .arg(field->height())
                           .arg(field->fontMetrics().lineSpacing() * (lines + 1))));
        QCOMPARE(down, lines > 100);
        QCOMPARE(across, columns > 200);
        QVERIFY2(alert.width() <= m_app->window->width() && alert.height() <= m_app->window->height(),
            qPrintable(u"%1 x %2"_s.arg(alert.width()).arg(alert.height())));
        const int line = field->fontMetrics().lineSpacing();
        if (fits)
            QVERIFY2(field->height() < (lines + 3) * line, qPrintable(QString::number(field->height())));
    }
}

void WindowsTest::alertHasTheSignOfItsKind()
{
    QMap<QString, QImage> signs;
    for (const auto sign : { Alert::Sign::Note, Alert::Sign::Warning, Alert::Sign::Error }) {
        Window_Alert alert({ u"m"_s, u"i"_s, { u"Close"_s }, sign }, m_app->window.get());
        const auto *label = alert.findChild<QLabel *>(u"labelIcon"_s);
        QVERIFY(!label->accessibleName().isEmpty());
        signs.insert(label->accessibleName(), label->pixmap().toImage());
    }
    QCOMPARE(signs.keys(), QStringList({ u"Error"_s, u"Note"_s, u"Warning"_s }));
    QVERIFY(signs[u"Error"_s] != signs[u"Warning"_s] && signs[u"Warning"_s] != signs[u"Note"_s]
        && signs[u"Note"_s] != signs[u"Error"_s]);
}

/// What stands behind it is read, too.
void WindowsTest::alertWithANul()
{
    const QString text = u"before"_s + QChar::Null + u"behind"_s;
    const QString seen = u"before"_s + QChar::ReplacementCharacter + u"behind"_s;
    Window_Alert alert({ text, text, { u"Close"_s } }, m_app->window.get());
    QCOMPARE(alert.findChild<QLabel *>(u"labelMessage"_s)->text(), seen);
    QCOMPARE(alert.findChild<QLabel *>(u"labelInformative"_s)->text(), seen);
    Window_Alert report(
        { text, text, { u"Close"_s }, Alert::Sign::Note, Alert::Report::Message }, m_app->window.get());
    QCOMPARE(report.findChild<QPlainTextEdit *>()->toPlainText(), seen);
}

void WindowsTest::alertKeys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("answer");
    QTest::newRow("Escape is the last button") << int(Qt::Key_Escape) << 2;
    QTest::newRow("Enter is the first") << int(Qt::Key_Return) << 0;
    QTest::newRow("closing is the last") << 0 << 2;
}

void WindowsTest::alertKeys()
{
    QFETCH(int, key);
    QFETCH(int, answer);
    person::Expect<Window_Alert> alert([key](Window_Alert *window) {
        QVERIFY(person::awaitKeyboard(window));
        if (key == 0)
            window->close();
        else
            person::press(QKeySequence(key));
    });
    const int given =
        m_app->dialogs.ask({ u"m"_s, u"i"_s, { u"Erase"_s, u"Other"_s, u"Cancel"_s } }, m_app->window.get());
    QVERIFY(alert.happened());
    QCOMPARE(given, answer);
}

void WindowsTest::alertOverTheWindow()
{
    QStringList told;
    person::Expect<Window_Alert> alert([&](Window_Alert *window) {
        told = texts(window);
        person::choose(m_app->window.get(), "menuitemDebugMode");
        person::clickTab(m_app->element<QTabWidget>("tabviewMain"), 1);
        person::pressTitled(window, u"Close"_s);
    });
    person::click(m_app->window.get(), "btnBurn");
    QVERIFY(alert.happened());
    QCOMPARE(told.first(), u"No audio files on the list"_s);
    // The window behind it took no press.
    QCOMPARE(m_app->element<QTabWidget>("tabviewMain")->currentIndex(), 0);
}

QTEST_MAIN(WindowsTest)
#include "WindowsTest.moc"
