#include "ui/SystemAppearance.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDir>
#include <QFile>
#include <QPalette>
#include <QProcess>
#include <QSettings>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

static const auto askOnce = u"--ask-once"_s;

/// The settings part of a desktop portal, on a bus of its own.
class Portal : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")
public:
    uint scheme = 0;

    void announce(uint value)
    {
        scheme = value;
        Q_EMIT SettingChanged(u"org.freedesktop.appearance"_s, u"color-scheme"_s, QDBusVariant(value));
    }

public Q_SLOTS:
    QDBusVariant Read(const QString &nameSpace, const QString &key)
    {
        if (nameSpace != "org.freedesktop.appearance"_L1 || key != "color-scheme"_L1)
            return QDBusVariant(u"wrong question"_s);
        return QDBusVariant(QVariant::fromValue(QDBusVariant(scheme)));
    }

Q_SIGNALS:
    void SettingChanged(const QString &nameSpace, const QString &key, const QDBusVariant &value);
};

class SystemAppearanceTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void cleanupTestCase();
    void withoutBusThePaletteDecides();
    void globalPreferencesComeFirst_data();
    void globalPreferencesComeFirst();
    void globalPreferencesAreWatched();
    void hangingBusBlocksNobody();
    void portalIsAskedInTheBackground();

private:
    void setPalette(bool dark);
    void writeGlobalPreferences(const QByteArray &content);
    QPalette m_original;
    QProcess m_bus;
};

void SystemAppearanceTest::initTestCase()
{
    m_original = QApplication::palette();
    QVERIFY(QDir().mkpath(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)));
}

void SystemAppearanceTest::cleanup()
{
    QApplication::setPalette(m_original);
    QFile::remove(SystemAppearance::globalPreferencesFile());
}

void SystemAppearanceTest::cleanupTestCase()
{
    m_bus.terminate();
    m_bus.waitForFinished();
}

void SystemAppearanceTest::setPalette(bool dark)
{
    QPalette palette;
    palette.setColor(QPalette::Window, dark ? QColor(30, 30, 30) : QColor(240, 240, 240));
    palette.setColor(QPalette::WindowText, dark ? Qt::white : Qt::black);
    QApplication::setPalette(palette);
}

void SystemAppearanceTest::writeGlobalPreferences(const QByteArray &content)
{
    QFile file(SystemAppearance::globalPreferencesFile());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

void SystemAppearanceTest::withoutBusThePaletteDecides()
{
    QVERIFY(qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS"));
    setPalette(false);
    SystemAppearance appearance;
    QSignalSpy changed(&appearance, &SystemAppearance::changed);
    QVERIFY(!appearance.isDark());
    setPalette(true);
    QVERIFY(appearance.isDark());
    QCOMPARE(changed.size(), 1);
    setPalette(true);
    QCOMPARE(changed.size(), 1);
    setPalette(false);
    QCOMPARE(changed.size(), 2);
    QVERIFY(!isDarkAppearance());
}

void SystemAppearanceTest::globalPreferencesComeFirst_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("darkPalette");
    QTest::addColumn<bool>("isDark");
    QTest::newRow("dark") << QByteArray("AppleInterfaceStyle=Dark\n") << false << true;
    QTest::newRow("in a section") << QByteArray("[General]\nAppleInterfaceStyle=Dark\n") << false << true;
    QTest::newRow("light") << QByteArray("AppleInterfaceStyle=Light\n") << true << false;
    QTest::newRow("case matters") << QByteArray("AppleInterfaceStyle=dark\n") << true << false;
    QTest::newRow("other keys") << QByteArray("Other=Dark\n") << true << true;
    QTest::newRow("not a settings file") << QByteArray("\x00\xff\n[[=\n", 7) << true << true;
}

void SystemAppearanceTest::globalPreferencesComeFirst()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, darkPalette);
    QFETCH(bool, isDark);
    setPalette(darkPalette);
    SystemAppearance appearance;
    QCOMPARE(appearance.isDark(), darkPalette);
    writeGlobalPreferences(content); // and seen at once
    QCOMPARE(appearance.isDark(), isDark);
    QFile::remove(SystemAppearance::globalPreferencesFile());
    QCOMPARE(appearance.isDark(), darkPalette);
}

void SystemAppearanceTest::globalPreferencesAreWatched()
{
    setPalette(false);
    SystemAppearance appearance;
    QSignalSpy changed(&appearance, &SystemAppearance::changed);
    const auto file = SystemAppearance::globalPreferencesFile();
    writeGlobalPreferences("AppleInterfaceStyle=Dark\n"); // comes
    QTRY_COMPARE(changed.size(), 1);
    QVERIFY(appearance.isDark());
    writeGlobalPreferences("AppleInterfaceStyle=Light\n"); // is written
    QTRY_COMPARE(changed.size(), 2);
    for (int i = 3; i < 7; ++i) { // is replaced
        QSettings settings(file, QSettings::IniFormat);
        settings.setValue("AppleInterfaceStyle", i % 2 ? u"Dark"_s : u"Light"_s);
        settings.sync();
        QTRY_COMPARE(changed.size(), i);
        QCOMPARE(appearance.isDark(), i % 2 == 1);
    }
    setPalette(true);
    QCOMPARE(changed.size(), 6);
    QVERIFY(QFile::remove(file)); // goes
    QTRY_COMPARE(changed.size(), 7);
    QVERIFY(appearance.isDark());
}

void SystemAppearanceTest::hangingBusBlocksNobody()
{
    // It takes connections and never says a word.
    const int silent = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const auto path = QFile::encodeName(QDir::tempPath() + "/silent-bus"_L1);
    std::strncpy(address.sun_path, path.constData(), sizeof address.sun_path - 1);
    QCOMPARE(::bind(silent, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
    QCOMPARE(::listen(silent, 8), 0);
    QProcess child; // because a connection once begun belongs to its whole process
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, "unix:path="_L1 + QFile::decodeName(path));
    child.setProcessEnvironment(environment);
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    child.start(QCoreApplication::applicationFilePath(), { askOnce });
    QVERIFY(child.waitForFinished());
    QCOMPARE(child.exitStatus(), QProcess::NormalExit);
    QCOMPARE(child.exitCode(), 0);
    QCOMPARE(child.readAllStandardOutput(), QByteArray("light"));
    ::close(silent);
}

void SystemAppearanceTest::portalIsAskedInTheBackground()
{
    m_bus.start(u"dbus-daemon"_s, { u"--session"_s, u"--nofork"_s, u"--print-address"_s });
    QVERIFY(m_bus.waitForReadyRead());
    qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus.readLine().trimmed());
    auto server = QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"portal"_s);
    Portal portal;
    portal.scheme = 1;
    QVERIFY(server.registerObject(u"/org/freedesktop/portal/desktop"_s, &portal,
        QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals));
    QVERIFY(server.registerService(u"org.freedesktop.portal.Desktop"_s));

    setPalette(false);
    SystemAppearance appearance;
    QSignalSpy changed(&appearance, &SystemAppearance::changed);
    QVERIFY(!appearance.isDark()); // the portal has not answered yet
    QTRY_VERIFY(appearance.isDark());
    QCOMPARE(changed.size(), 1);
    portal.announce(2);
    QTRY_VERIFY(!appearance.isDark());
    portal.announce(1);
    QTRY_VERIFY(appearance.isDark());
    writeGlobalPreferences("AppleInterfaceStyle=Light\n");
    QVERIFY(!appearance.isDark());
    QVERIFY(QFile::remove(SystemAppearance::globalPreferencesFile()));
    portal.announce(0);
    QTRY_VERIFY(!appearance.isDark()); // no preference: back to the palette
    setPalette(true);
    QVERIFY(appearance.isDark());

    // With the windows' colours in its hands they follow.
    setPalette(false);
    const auto isWindowDark = [] {
        return QApplication::palette().color(QPalette::Window).lightness() < 128;
    };
    appearance.leadPalette();
    QVERIFY(!isWindowDark());
    portal.announce(1);
    QTRY_VERIFY(isWindowDark());
    portal.announce(0);
    QTRY_VERIFY(!isWindowDark());
    QVERIFY(!appearance.isDark());
    QDBusConnection::disconnectFromBus(u"portal"_s);
}

/// What a program does at its start: it asks, goes on, and ends before the bus has said anything. It leaves
/// by _Exit, because Qt's own end of the process waits for the bus.
static int answerOnce()
{
    std::fputs(isDarkAppearance() ? "dark" : "light", stdout);
    QTimer::singleShot(50, qApp, [] {
        std::fflush(stdout);
        std::_Exit(0);
    });
    return QApplication::exec();
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    if (application.arguments().mid(1) == QStringList{ askOnce })
        return answerOnce();
    SystemAppearanceTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "SystemAppearanceTest.moc"
