// Keeping the machine awake, against stand-ins for the desktop on a bus of the test's own.
#include "desktop/Inhibition.h"

#include "support/PrivateBus.h"

#include <QCoreApplication>
#include <QTest>

using namespace Qt::StringLiterals;

static const auto hold = u"--hold"_s;
static const auto reason = u"A disc is being made."_s;
constexpr int shortPatience = 50;
constexpr int longPatience = 60'000;

class InhibitionTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void portalIsAskedAlone();
    void managersWherePortalIsNot();
    void screenSaverWhereNoSessionManagerIs();
    void managersWherePortalIsSilent();
    void grantedAfterItsEnd();
    void endsWithTheProcess();
    void twiceInARow();

private:
    PrivateBus m_bus;
};

void InhibitionTest::portalIsAskedAlone()
{
    PortalStandIn portal(m_bus);
    LoginManagerStandIn login(m_bus);
    SessionManagerStandIn session(m_bus);
    desktop::Inhibition inhibition(nullptr, longPatience);
    inhibition.begin(reason);
    QTRY_COMPARE(portal.calls, QStringList{ u"13 "_s + reason });
    QTest::qWait(50);
    QCOMPARE(portal.request.closed, 0);
    inhibition.end();
    QTRY_COMPARE(portal.request.closed, 1);
    QVERIFY(login.calls.isEmpty());
    QVERIFY(session.calls.isEmpty());
}

void InhibitionTest::managersWherePortalIsNot()
{
    LoginManagerStandIn login(m_bus);
    SessionManagerStandIn session(m_bus);
    ScreenSaverStandIn saver(m_bus);
    desktop::Inhibition inhibition(nullptr, longPatience);
    inhibition.begin(reason);
    QTRY_COMPARE(login.calls, QStringList{ u"sleep:idle:shutdown|Corvalis|"_s + reason + u"|block"_s });
    QTRY_COMPARE(session.calls, QStringList{ u"org.corvalis.Corvalis|"_s + reason + u"|13"_s });
    QTest::qWait(50);
    QVERIFY(!login.isReleased());
    inhibition.end();
    QTRY_VERIFY(login.isReleased());
    QTRY_COMPARE(session.calls.value(1), u"Uninhibit 4711"_s);
    QVERIFY(saver.calls.isEmpty());
}

void InhibitionTest::screenSaverWhereNoSessionManagerIs()
{
    ScreenSaverStandIn saver(m_bus);
    desktop::Inhibition inhibition(nullptr, longPatience);
    inhibition.begin(reason);
    QTRY_COMPARE(saver.calls, QStringList{ u"org.corvalis.Corvalis|"_s + reason });
    QTest::qWait(50);
    inhibition.end();
    QTRY_COMPARE(saver.calls.value(1), u"UnInhibit 42"_s);
}

void InhibitionTest::managersWherePortalIsSilent()
{
    PortalStandIn portal(m_bus);
    portal.silent = true;
    SessionManagerStandIn session(m_bus);
    desktop::Inhibition inhibition(nullptr, shortPatience);
    inhibition.begin(reason);
    QTRY_COMPARE(session.calls.size(), 1);
    QTRY_COMPARE(portal.calls.size(), 1);
    portal.answerNow(); // late, and kept as well
    QTest::qWait(50);
    inhibition.end();
    QTRY_COMPARE(session.calls.value(1), u"Uninhibit 4711"_s);
    QTRY_COMPARE(portal.request.closed, 1);
}

void InhibitionTest::grantedAfterItsEnd()
{
    PortalStandIn portal(m_bus);
    portal.silent = true;
    SessionManagerStandIn session(m_bus);
    desktop::Inhibition inhibition(nullptr, longPatience);
    inhibition.begin(reason);
    QTRY_COMPARE(portal.calls.size(), 1);
    inhibition.end();
    QTest::qWait(50);
    QCOMPARE(portal.request.closed, 0); // there is nothing to be closed yet
    portal.answerNow();
    QTRY_COMPARE(portal.request.closed, 1);
    QVERIFY(session.calls.isEmpty());
}

void InhibitionTest::endsWithTheProcess()
{
    LoginManagerStandIn login(m_bus);
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), { hold });
    QTRY_COMPARE(login.calls.size(), 1);
    QTest::qWait(50);
    QVERIFY(!login.isReleased());
    child.kill();
    QVERIFY(child.waitForFinished());
    QTRY_VERIFY(login.isReleased());
}

void InhibitionTest::twiceInARow()
{
    PortalStandIn portal(m_bus);
    desktop::Inhibition inhibition(nullptr, longPatience);
    inhibition.begin(reason);
    QTRY_COMPARE(portal.calls.size(), 1);
    inhibition.begin(u"A disc is being erased."_s);
    QTRY_COMPARE(portal.calls.size(), 2);
    QTRY_COMPARE(portal.request.closed, 1);
    inhibition.end();
    QTRY_COMPARE(portal.request.closed, 2);
}

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    if (application.arguments().contains(hold)) {
        desktop::Inhibition inhibition;
        inhibition.begin(reason);
        return QCoreApplication::exec();
    }
    InhibitionTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "InhibitionTest.moc"
