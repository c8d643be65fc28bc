// The program on the session's bus: starts with files while a window runs, and foreign calls.
#include "desktop/ApplicationService.h"
#include "desktop/Opening.h"
#include "support/JobApplication.h"
#include "support/PrivateBus.h"
#include "support/ProgramFolder.h"

#include <QDBusConnectionInterface>
#include <QDBusPendingCall>
#include <QTest>

using namespace Qt::StringLiterals;
using desktop::ApplicationService;
using desktop::Opening;

/// A window on the bus, as the test's own process.
class WindowOnTheBus : public JobApplication {
public:
    WindowOnTheBus()
        : opening(&launch())
        , service(&opening)
    {
    }

    bool hasName() const
    {
        const auto *bus = QDBusConnection::sessionBus().interface();
        return bus->serviceOwner(desktop::identity).value() == QDBusConnection::sessionBus().baseService();
    }

    Opening opening;
    ApplicationService service;
};

class SecondStartTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { emptyHome(); }
    void filesGoToTheWindowThatRuns();
    void actionGoesToTheWindowThatRuns();
    void newWindowIsAnother();
    void ownWindowWhereNoneRuns();
    void plainStartIsAWindowOfItsOwn();
    void nameIsPassedOn();
    void foreignCalls_data();
    void foreignCalls();
    void hangingWindow();

private:
    QDBusMessage called(const QString &method, const QVariantList &arguments);
    PrivateBus m_bus;
};

/// As another program calls, while this one's event loop runs.
QDBusMessage SecondStartTest::called(const QString &method, const QVariantList &arguments)
{
    auto message = QDBusMessage::createMethodCall(
        desktop::identity, ApplicationService::objectPath(), u"org.freedesktop.Application"_s, method);
    message.setArguments(arguments);
    const QDBusPendingCall call = m_bus.connection(u"caller"_s).asyncCall(message);
    if (!QTest::qWaitFor([&call] { return call.isFinished(); }))
        return {};
    return call.reply();
}

void SecondStartTest::filesGoToTheWindowThatRuns()
{
    WindowOnTheBus window;
    QTRY_VERIFY(window.hasName());
    window.window->showMinimized();
    const QString name = u"100% of #1 ü?.mp3"_s;
    window.file(name);
    ProgramFolder second;
    second.process.setWorkingDirectory(window.media.path());
    second.start({ name });
    QTRY_COMPARE_WITH_TIMEOUT(window.controller->arrayMediaFiles.size(), 1, 20'000);
    QCOMPARE(window.controller->arrayMediaFiles.first().s_File_Name_With_Extension, name);
    QVERIFY(!window.window->isMinimized());
    QTRY_COMPARE(second.process.state(), QProcess::NotRunning);
    QCOMPARE(second.process.exitCode(), 0);
    QVERIFY(second.drutil.runs().isEmpty()); // it has not begun a window
}

void SecondStartTest::actionGoesToTheWindowThatRuns()
{
    WindowOnTheBus window;
    QTRY_VERIFY(window.hasName());
    ProgramFolder second;
    second.start({ u"--action"_s, u"new-data-disc"_s });
    QTRY_COMPARE_WITH_TIMEOUT(window.element<QTabWidget>("tabviewMain")->currentIndex(), 2, 20'000);
    QTRY_COMPARE(second.process.state(), QProcess::NotRunning);
}

void SecondStartTest::newWindowIsAnother()
{
    WindowOnTheBus window;
    QTRY_VERIFY(window.hasName());
    ProgramFolder second;
    second.start({ u"--new-window"_s, window.file(u"a.mp3"_s) });
    QTRY_VERIFY_WITH_TIMEOUT(!second.ffmpeg.runs().isEmpty(), 20'000); // it measures the file
    QCOMPARE(second.process.state(), QProcess::Running);
    QVERIFY(window.controller->arrayMediaFiles.isEmpty());
}

void SecondStartTest::ownWindowWhereNoneRuns()
{
    ProgramFolder program;
    makeFile(program.home(u"a.mp3"_s));
    program.start({ program.home(u"a.mp3"_s) });
    QTRY_VERIFY_WITH_TIMEOUT(!program.ffmpeg.runs().isEmpty(), 20'000);
    QCOMPARE(program.process.state(), QProcess::Running);
}

void SecondStartTest::plainStartIsAWindowOfItsOwn()
{
    WindowOnTheBus window;
    QTRY_VERIFY(window.hasName());
    ProgramFolder second;
    second.start();
    QTRY_VERIFY_WITH_TIMEOUT(!second.drutil.runs(u"list"_s).isEmpty(), 20'000);
    QTest::qWait(200);
    QCOMPARE(second.process.state(), QProcess::Running);
}

void SecondStartTest::nameIsPassedOn()
{
    ProgramFolder first;
    first.start();
    const auto owner = [] {
        return QDBusConnection::sessionBus().interface()->serviceOwner(desktop::identity).value();
    };
    QTRY_VERIFY_WITH_TIMEOUT(!owner().isEmpty(), 20'000);
    WindowOnTheBus second;
    QTest::qWait(100);
    QVERIFY(!second.hasName());
    first.process.terminate();
    QTRY_VERIFY(second.hasName());
    QCOMPARE(called(u"Open"_s,
                 { QStringList{ QUrl::fromLocalFile(second.file(u"a.mp3"_s)).toString() }, QVariantMap() })
                 .type(),
        QDBusMessage::ReplyMessage);
    QTRY_COMPARE(second.controller->arrayMediaFiles.size(), 1);
}

void SecondStartTest::foreignCalls_data()
{
    QTest::addColumn<QString>("method");
    QTest::addColumn<QVariantList>("arguments");
    QTest::addColumn<bool>("accepted");
    const QVariantMap data;
    const auto open = [&data](const QStringList &addresses) { return QVariantList{ addresses, data }; };
    QStringList many;
    for (qsizetype i = 0; i <= ApplicationService::mostFiles; ++i)
        many.append(u"file:///a.mp3"_s);
    const QString longOne = u"file:///"_s + QString(ApplicationService::longestAddress, u'a');
    QTest::newRow("activate") << u"Activate"_s << QVariantList{ data } << true;
    QTest::newRow("no files") << u"Open"_s << open({}) << true;
    QTest::newRow("blank disc") << u"Open"_s << open({ u"burn:///"_s }) << true;
    QTest::newRow("elsewhere") << u"Open"_s << open({ u"https://somewhere/a.mp3"_s }) << false;
    QTest::newRow("other host") << u"Open"_s << open({ u"file://somewhere/a.mp3"_s }) << false;
    QTest::newRow("relative") << u"Open"_s << open({ u"a.mp3"_s }) << false;
    QTest::newRow("relative file") << u"Open"_s << open({ u"file:a.mp3"_s }) << false;
    QTest::newRow("end of text within") << u"Open"_s << open({ u"file:///a%00.mp3"_s }) << false;
    QTest::newRow("good and bad") << u"Open"_s << open({ u"file:///a.mp3"_s, u"javascript:1"_s }) << false;
    QTest::newRow("too many") << u"Open"_s << open(many) << false;
    QTest::newRow("too long") << u"Open"_s << open({ longOne }) << false;
    QTest::newRow("unknown action") << u"ActivateAction"_s << QVariantList{ u"burn"_s, QVariantList(), data }
                                    << false;
    QTest::newRow("other types") << u"Open"_s << QVariantList{ 1, 2 } << false;
    QTest::newRow("the toolkit's") << u"deleteLater"_s << QVariantList{} << false;
}

void SecondStartTest::foreignCalls()
{
    QFETCH(QString, method);
    QFETCH(QVariantList, arguments);
    QFETCH(bool, accepted);
    WindowOnTheBus window;
    QTRY_VERIFY(window.hasName());
    QCOMPARE(
        called(method, arguments).type(), accepted ? QDBusMessage::ReplyMessage : QDBusMessage::ErrorMessage);
    QTest::qWait(50);
    QVERIFY(window.asked.alerts.isEmpty());
    QVERIFY(window.controller->arrayMediaFiles.isEmpty());
    QVERIFY(window.drutil.runs(u"burn"_s).isEmpty());
}

void SecondStartTest::hangingWindow()
{
    StandIn window(m_bus, desktop::identity, u"/nothing/here"_s); // it has the name, but knows no such call
    ProgramFolder second;
    makeFile(second.home(u"a.mp3"_s));
    second.start({ second.home(u"a.mp3"_s) });
    QTRY_VERIFY_WITH_TIMEOUT(!second.ffmpeg.runs().isEmpty(), 20'000); // in a window of its own
}

QTEST_MAIN(SecondStartTest)
#include "SecondStartTest.moc"
