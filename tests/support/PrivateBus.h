// A message bus of the test's own, and stand-ins for what a desktop has on it.
#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusUnixFileDescriptor>
#include <QDBusVariant>
#include <QProcess>
#include <QTemporaryFile>
#include <QtTest>

#include <fcntl.h>
#include <unistd.h>

/// The session's and the machine's bus in one, for this process and its children. Make it before anything asks for a bus:
/// a connection belongs to a process once and for all.
class PrivateBus {
public:
    PrivateBus()
    {
        // Without the services that are installed on this machine, which the bus would start instead of a stand-in.
        static constexpr const char *configuration =
            "<!DOCTYPE busconfig PUBLIC \"-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN\""
            " \"http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd\">\n"
            "<busconfig><type>session</type><listen>unix:tmpdir=/tmp</listen><auth>EXTERNAL</auth>"
            "<policy context=\"default\"><allow send_destination=\"*\" eavesdrop=\"true\"/>"
            "<allow eavesdrop=\"true\"/><allow own=\"*\"/></policy></busconfig>\n";
        if (!m_configuration.open() || m_configuration.write(configuration) < 0 || !m_configuration.flush())
            qFatal("the bus cannot be described");
        m_daemon.start(QStringLiteral("dbus-daemon"),
            { QStringLiteral("--config-file=") + m_configuration.fileName(), QStringLiteral("--nofork"),
                QStringLiteral("--print-address") });
        if (!m_daemon.waitForReadyRead())
            qFatal("there is no bus to be had");
        m_address = m_daemon.readLine().trimmed();
        qputenv("DBUS_SESSION_BUS_ADDRESS", m_address);
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", m_address);
    }

    ~PrivateBus()
    {
        m_daemon.kill();
        m_daemon.waitForFinished();
    }

    QByteArray address() const { return m_address; }

    /// A connection of its own, as another program has one.
    QDBusConnection connection(const QString &name) const
    {
        return QDBusConnection::connectToBus(QString::fromLatin1(m_address), name);
    }

private:
    QTemporaryFile m_configuration;
    QProcess m_daemon;
    QByteArray m_address;
};

/// A part of the desktop: an object of a service, on a connection of its own, for as long as it lives.
class StandIn : public QObject, protected QDBusContext {
    Q_OBJECT
public:
    StandIn(const PrivateBus &bus, const QString &service, const QString &path)
        : m_bus(bus.connection(service))
        , m_service(service)
    {
        m_bus.registerObject(path, this, QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals);
        if (!m_bus.registerService(service))
            qFatal("%s cannot be had on the bus", qUtf8Printable(service));
    }
    ~StandIn() override
    {
        // The connection may live on for a while, and the next one wants the name at once.
        m_bus.unregisterService(m_service);
        QDBusConnection::disconnectFromBus(m_service);
    }

    bool silent = false; ///< never answers
    QStringList calls; ///< "method reason"

protected:
    void note(const QString &call)
    {
        calls.append(call);
        if (silent)
            setDelayedReply(true);
    }

    QDBusConnection m_bus;

private:
    const QString m_service;
};

/// What a portal was asked for and grants until it is closed.
class PortalRequest : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Request")
public:
    int closed = 0;
public Q_SLOTS:
    void Close() { ++closed; }
};

/// The desktop portal's Inhibit.
class PortalStandIn : public StandIn {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Inhibit")
public:
    PortalRequest request;
    QDBusMessage unanswered;

    explicit PortalStandIn(const PrivateBus &bus)
        : StandIn(bus, QStringLiteral("org.freedesktop.portal.Desktop"),
            QStringLiteral("/org/freedesktop/portal/desktop"))
    {
        m_bus.registerObject(handle().path(), &request, QDBusConnection::ExportAllSlots);
    }

    static QDBusObjectPath handle()
    {
        return QDBusObjectPath(QStringLiteral("/org/freedesktop/portal/desktop/request/test"));
    }
    void answerNow() { m_bus.send(unanswered.createReply(QVariant::fromValue(handle()))); }

public Q_SLOTS:
    QDBusObjectPath Inhibit(const QString &, uint flags, const QVariantMap &options)
    {
        note(QStringLiteral("%1 %2").arg(flags).arg(options.value(QStringLiteral("reason")).toString()));
        unanswered = message();
        return handle();
    }
};

class LoginManagerStandIn : public StandIn {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Manager")
public:
    explicit LoginManagerStandIn(const PrivateBus &bus)
        : StandIn(bus, QStringLiteral("org.freedesktop.login1"), QStringLiteral("/org/freedesktop/login1"))
    {
    }
    ~LoginManagerStandIn() override { ::close(m_pipe[0]); }

    /// Whether nobody holds the lock any more.
    bool isReleased() const
    {
        char byte;
        return ::read(m_pipe[0], &byte, 1) == 0;
    }

public Q_SLOTS:
    QDBusUnixFileDescriptor Inhibit(
        const QString &what, const QString &who, const QString &why, const QString &mode)
    {
        note(QStringList{ what, who, why, mode }.join(QLatin1Char('|')));
        if (::pipe2(m_pipe, O_CLOEXEC | O_NONBLOCK) != 0)
            qFatal("no pipe");
        QDBusUnixFileDescriptor held;
        held.giveFileDescriptor(m_pipe[1]);
        return held;
    }

private:
    int m_pipe[2] = { -1, -1 };
};

class SessionManagerStandIn : public StandIn {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.gnome.SessionManager")
public:
    explicit SessionManagerStandIn(const PrivateBus &bus)
        : StandIn(
            bus, QStringLiteral("org.gnome.SessionManager"), QStringLiteral("/org/gnome/SessionManager"))
    {
    }
public Q_SLOTS:
    uint Inhibit(const QString &application, uint, const QString &reason, uint flags)
    {
        note(QStringLiteral("%1|%2|%3").arg(application, reason).arg(flags));
        return 4711;
    }
    void Uninhibit(uint cookie) { note(QStringLiteral("Uninhibit %1").arg(cookie)); }
};

class ScreenSaverStandIn : public StandIn {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.ScreenSaver")
public:
    explicit ScreenSaverStandIn(const PrivateBus &bus)
        : StandIn(bus, QStringLiteral("org.freedesktop.ScreenSaver"),
            QStringLiteral("/org/freedesktop/ScreenSaver"))
    {
    }
public Q_SLOTS:
    uint Inhibit(const QString &application, const QString &reason)
    {
        note(QStringLiteral("%1|%2").arg(application, reason));
        return 42;
    }
    void UnInhibit(uint cookie) { note(QStringLiteral("UnInhibit %1").arg(cookie)); }
};

class NotificationsStandIn : public StandIn {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")
public:
    QStringList capabilities{ QStringLiteral("actions"), QStringLiteral("body"),
        QStringLiteral("body-markup") };
    QStringList actions; ///< of the newest notification

    explicit NotificationsStandIn(const PrivateBus &bus)
        : StandIn(bus, QStringLiteral("org.freedesktop.Notifications"),
            QStringLiteral("/org/freedesktop/Notifications"))
    {
    }

public Q_SLOTS:
    QStringList GetCapabilities() { return capabilities; }
    uint Notify(const QString &application, uint, const QString &icon, const QString &heading,
        const QString &text, const QStringList &offered, const QVariantMap &, int)
    {
        note(QStringList{ application, icon, heading, text }.join(QLatin1Char('|')));
        actions = offered;
        return 7;
    }
    void CloseNotification(uint id) { note(QStringLiteral("Close %1").arg(id)); }

Q_SIGNALS:
    void ActionInvoked(uint id, const QString &action);
    void ActivationToken(uint id, const QString &token);
    void NotificationClosed(uint id, uint reason);
};
