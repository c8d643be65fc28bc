// What the desktop is told of a job, against stand-ins for the desktop on a bus of the test's own.
#include "desktop/JobPresence.h"

#include "support/JobApplication.h"
#include "support/PrivateBus.h"

#include <QTest>

using namespace Qt::StringLiterals;
using desktop::JobPresence;

/// A dock.
class Launcher : public QObject {
    Q_OBJECT
public:
    explicit Launcher(QDBusConnection bus)
    {
        bus.connect({}, {}, u"com.canonical.Unity.LauncherEntry"_s, u"Update"_s, this,
            SLOT(update(QString, QVariantMap)));
    }
    QString uri;
    QVariantMap newest;

public Q_SLOTS:
    void update(const QString &entry, const QVariantMap &properties)
    {
        uri = entry;
        newest = properties;
    }
};

/// An erasure that tells how far it is and waits.
class ErasingApplication : public JobApplication {
public:
    ErasingApplication()
    {
        insert(discs::writtenCDRW);
        drutil.run("tool=$0\n[ \"$1\" = erase ] && {\necho 'Erasing: 42.0 %'\n" + waitFor("erased") + "}\n");
        launch();
    }
    void erase() { controller->OnToolsFormatQuick(); }
    void finish() { release(drutil, "erased"); }
};

class JobPresenceTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { emptyHome(); }
    void jobKeepsTheMachineAwake();
    void silentJobOnlyKeepsTheMachineAwake();
    void launcherShowsProgress();
    void titleOfAMinimisedWindow();
    void notificationBehindOtherWindows();
    void noNotificationInFront();
    void textsAreNoMarkup_data();
    void textsAreNoMarkup();
    void jobThatIsGivenUp();

private:
    PrivateBus m_bus;
};

void JobPresenceTest::jobKeepsTheMachineAwake()
{
    PortalStandIn portal(m_bus);
    ErasingApplication program;
    const JobPresence presence(program.controller.get(), JobPresence::Audience::Person);
    program.erase();
    QTRY_COMPARE(portal.calls, QStringList{ u"13 A disc is being erased."_s });
    QTest::qWait(50);
    QCOMPARE(portal.request.closed, 0);
    program.finish();
    QVERIFY(program.completes());
    QTRY_COMPARE(portal.request.closed, 1);
}

void JobPresenceTest::silentJobOnlyKeepsTheMachineAwake()
{
    PortalStandIn portal(m_bus);
    NotificationsStandIn notifications(m_bus);
    Launcher launcher(m_bus.connection(u"dock"_s));
    ErasingApplication program;
    const JobPresence presence(program.controller.get(), JobPresence::Audience::Nobody);
    program.window->showMinimized();
    program.erase();
    QTRY_COMPARE(portal.calls.size(), 1);
    QTRY_COMPARE(program.controller->job->progress().percent, 42.0);
    QCOMPARE(program.window->windowTitle(), u"Corvalis"_s);
    program.finish();
    QVERIFY(program.completes());
    QTRY_COMPARE(portal.request.closed, 1);
    QTest::qWait(50);
    QVERIFY(notifications.calls.isEmpty());
    QVERIFY(launcher.uri.isEmpty());
}

void JobPresenceTest::launcherShowsProgress()
{
    Launcher launcher(m_bus.connection(u"dock"_s));
    ErasingApplication program;
    const JobPresence presence(program.controller.get(), JobPresence::Audience::Person);
    program.erase();
    QTRY_COMPARE(launcher.newest.value(u"progress"_s).toDouble(), 0.42);
    QCOMPARE(launcher.newest.value(u"progress-visible"_s), QVariant(true));
    QCOMPARE(launcher.uri, u"application://org.corvalis.Corvalis.desktop"_s);
    program.finish();
    QVERIFY(program.completes());
    QTRY_COMPARE(launcher.newest.value(u"progress-visible"_s), QVariant(false));
}

void JobPresenceTest::titleOfAMinimisedWindow()
{
    ErasingApplication program;
    const JobPresence presence(program.controller.get(), JobPresence::Audience::Person);
    const auto title = [&program] { return program.window->windowTitle(); };
    program.erase();
    QTRY_COMPARE(program.controller->job->progress().percent, 42.0);
    QCOMPARE(title(), u"Corvalis"_s);
    program.window->showMinimized();
    QTRY_COMPARE(title(), u"42 % – Corvalis"_s);
    program.window->showNormal();
    QTRY_COMPARE(title(), u"Corvalis"_s);
    program.window->showMinimized();
    QTRY_COMPARE(title(), u"42 % – Corvalis"_s);
    program.finish();
    QVERIFY(program.completes());
    QCOMPARE(title(), u"Corvalis"_s);
}

void JobPresenceTest::notificationBehindOtherWindows()
{
    NotificationsStandIn notifications(m_bus);
    ErasingApplication program;
    const JobPresence presence(program.controller.get(), JobPresence::Audience::Person);
    program.window->showMinimized();
    program.erase();
    program.finish();
    QVERIFY(program.completes());
    QTRY_COMPARE(notifications.calls.size(), 1);
    QVERIFY2(notifications.calls.first().startsWith("Corvalis|corvalis|Operation complete|"_L1),
        qPrintable(notifications.calls.first()));
    QCOMPARE(notifications.actions,
        (QStringList{ u"default"_s, u"Show Corvalis"_s, u"show"_s, u"Show Corvalis"_s }));

    Q_EMIT notifications.ActionInvoked(8, u"show"_s); // of another program's notification
    QTest::qWait(100);
    QVERIFY(program.window->isMinimized());
    Q_EMIT notifications.ActivationToken(7, u"a token"_s); // a blank is in no token
    Q_EMIT notifications.ActionInvoked(7, u"show"_s);
    QTRY_VERIFY(!program.window->isMinimized());
    QVERIFY(program.window->isVisible());
    QVERIFY(!qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"));
    QTRY_COMPARE(notifications.calls.value(1), u"Close 7"_s); // it has been seen
}

void JobPresenceTest::noNotificationInFront()
{
    NotificationsStandIn notifications(m_bus);
    ErasingApplication program;
    const JobPresence presence(program.controller.get(), JobPresence::Audience::Person);
    QVERIFY(QTest::qWaitForWindowActive(program.window.get()));
    program.erase();
    program.finish();
    QVERIFY(program.completes());
    QTest::qWait(100);
    QVERIFY(notifications.calls.isEmpty());
}

void JobPresenceTest::textsAreNoMarkup_data()
{
    QTest::addColumn<bool>("markup");
    QTest::addColumn<QString>("shown");
    QTest::newRow("markup") << true << u"Corvalis|corvalis|Done|&lt;b&gt; &amp; more"_s;
    QTest::newRow("plain") << false << u"Corvalis|corvalis|Done|<b> & more"_s;
}

void JobPresenceTest::textsAreNoMarkup()
{
    QFETCH(bool, markup);
    NotificationsStandIn notifications(m_bus);
    if (!markup)
        notifications.capabilities.removeAll(u"body-markup"_s);
    desktop::Notifier notifier;
    notifier.show(u"Done"_s, u"<b> & more"_s, u"Show"_s);
    QTRY_COMPARE(notifications.calls.size(), 1);
    QTEST(notifications.calls.first(), "shown");
}

void JobPresenceTest::jobThatIsGivenUp()
{
    PortalStandIn portal(m_bus);
    NotificationsStandIn notifications(m_bus);
    ErasingApplication program;
    const JobPresence presence(program.controller.get(), JobPresence::Audience::Person);
    program.window->showMinimized();
    program.asked.choices = { { QUrl::fromLocalFile(program.media.path()) } }; // what, but not where to
    program.controller->OnActionISOCreate();
    QTRY_VERIFY(!program.controller->isJobPending());
    QTRY_COMPARE(portal.calls, QStringList{ u"13 A disc image is being made."_s });
    QTRY_COMPARE(portal.request.closed, 1);
    QVERIFY(notifications.calls.isEmpty());
}

QTEST_MAIN(JobPresenceTest)
#include "JobPresenceTest.moc"
