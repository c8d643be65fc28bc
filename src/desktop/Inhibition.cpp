#include "desktop/Inhibition.h"

#include "desktop/Bus.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCall>
#include <QDBusUnixFileDescriptor>
#include <QTimer>

#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace desktop {
namespace {

/// Logging out, suspending and the session's going idle, as the portal and the session manager number them.
constexpr uint logoutSleepIdle = 1 | 4 | 8;

/// Where something that inhibits lives, and what it is called there.
struct Place {
    QLatin1String service, path, interface, method;
    QLatin1String release; ///< takes what `method` answered; empty: that is told otherwise
};
constexpr Place portal{ QLatin1String("org.freedesktop.portal.Desktop"),
    QLatin1String("/org/freedesktop/portal/desktop"), QLatin1String("org.freedesktop.portal.Inhibit"),
    QLatin1String("Inhibit"), {} };
constexpr Place loginManager{ QLatin1String("org.freedesktop.login1"),
    QLatin1String("/org/freedesktop/login1"), QLatin1String("org.freedesktop.login1.Manager"),
    QLatin1String("Inhibit"), {} };
constexpr Place sessionManager{ QLatin1String("org.gnome.SessionManager"),
    QLatin1String("/org/gnome/SessionManager"), QLatin1String("org.gnome.SessionManager"),
    QLatin1String("Inhibit"), QLatin1String("Uninhibit") };
constexpr Place screenSaver{ QLatin1String("org.freedesktop.ScreenSaver"),
    QLatin1String("/org/freedesktop/ScreenSaver"), QLatin1String("org.freedesktop.ScreenSaver"),
    QLatin1String("Inhibit"), QLatin1String("UnInhibit") };

QDBusMessage call(const Place &place, const QVariantList &arguments)
{
    auto message = QDBusMessage::createMethodCall(place.service, place.path, place.interface, place.method);
    message.setArguments(arguments);
    return message;
}

} // namespace

/// One inhibition. An answer may come after it was released, and is given back then.
class Inhibition::Lock : public QObject {
public:
    Lock(const QString &reason, int portalPatience, QObject *parent);
    void release();

private:
    using Release = std::function<void()>;
    void askPortal(const QDBusConnection &bus);
    void askManagers(const QDBusConnection &bus);
    void askLoginManager(const QDBusConnection &bus);
    /// `refused` is called when the place answers with an error.
    void askForCookie(const QDBusConnection &bus, const Place &place, const QVariantList &arguments,
        const std::function<void()> &refused);
    void granted(const Release &release);
    void doWithoutPortal();
    void await(const QDBusConnection &bus, const QDBusMessage &question,
        const std::function<void(const QDBusMessage &)> &answered);
    void goWhenDone();

    const QString m_reason;
    QList<Release> m_granted;
    bool m_released = false;
    bool m_withoutPortal = false;
    int m_awaited = 0; ///< answers
};

Inhibition::Lock::Lock(const QString &reason, int portalPatience, QObject *parent)
    : QObject(parent)
    , m_reason(reason)
{
    withBus(Bus::Session, this, [this](const QDBusConnection &bus) {
        if (bus.isConnected() && !m_released)
            askPortal(bus);
        else
            doWithoutPortal();
    });
    QTimer::singleShot(portalPatience, this, &Lock::doWithoutPortal);
}

void Inhibition::Lock::askPortal(const QDBusConnection &bus)
{
    const QString token = u"corvalis%1"_s.arg(reinterpret_cast<quintptr>(this));
    const QVariantMap options{ { u"reason"_s, m_reason }, { u"handle_token"_s, token } };
    await(bus, call(portal, { u""_s, logoutSleepIdle, options }), [this, bus](const QDBusMessage &reply) {
        const auto handle = reply.arguments().value(0).value<QDBusObjectPath>().path();
        if (reply.type() != QDBusMessage::ReplyMessage || handle.isEmpty())
            return doWithoutPortal();
        m_withoutPortal = true; // nobody else need be asked any more
        granted([bus, handle] {
            bus.asyncCall(QDBusMessage::createMethodCall(
                portal.service, handle, u"org.freedesktop.portal.Request"_s, u"Close"_s));
        });
    });
}

void Inhibition::Lock::doWithoutPortal()
{
    if (m_released || std::exchange(m_withoutPortal, true))
        return;
    withBus(Bus::Session, this, [this](const QDBusConnection &bus) {
        if (bus.isConnected() && !m_released)
            askManagers(bus);
    });
    withBus(Bus::System, this, [this](const QDBusConnection &bus) {
        if (bus.isConnected() && !m_released)
            askLoginManager(bus);
    });
}

void Inhibition::Lock::askManagers(const QDBusConnection &bus)
{
    askForCookie(bus, sessionManager, { QString(identity), 0U, m_reason, logoutSleepIdle }, [this, bus] {
        if (!m_released)
            askForCookie(bus, screenSaver, { QString(identity), m_reason }, [] {});
    });
}

void Inhibition::Lock::askLoginManager(const QDBusConnection &bus)
{
    const QVariantList wish{ u"sleep:idle:shutdown"_s, u"Corvalis"_s, m_reason, u"block"_s };
    await(bus, call(loginManager, wish), [this](const QDBusMessage &reply) {
        const auto held = std::make_shared<QDBusUnixFileDescriptor>(
            reply.arguments().value(0).value<QDBusUnixFileDescriptor>());
        granted([held] { *held = QDBusUnixFileDescriptor(); });
    });
}

void Inhibition::Lock::askForCookie(const QDBusConnection &bus, const Place &place,
    const QVariantList &arguments, const std::function<void()> &refused)
{
    await(bus, call(place, arguments), [this, bus, place, refused](const QDBusMessage &reply) {
        if (reply.type() != QDBusMessage::ReplyMessage)
            return refused();
        granted([bus, place, cookie = reply.arguments().value(0).toUInt()] {
            auto message =
                QDBusMessage::createMethodCall(place.service, place.path, place.interface, place.release);
            message << cookie;
            bus.asyncCall(message);
        });
    });
}

void Inhibition::Lock::await(const QDBusConnection &bus, const QDBusMessage &question,
    const std::function<void(const QDBusMessage &)> &answered)
{
    ++m_awaited;
    ask(bus, question, this, [this, answered](const QDBusMessage &reply) {
        --m_awaited;
        answered(reply);
        goWhenDone();
    });
}

void Inhibition::Lock::granted(const Release &release)
{
    if (m_released)
        release();
    else
        m_granted.append(release);
}

void Inhibition::Lock::release()
{
    m_released = true;
    for (const Release &release : std::exchange(m_granted, {}))
        release();
    goWhenDone();
}

void Inhibition::Lock::goWhenDone()
{
    if (m_released && m_awaited == 0)
        deleteLater();
}

Inhibition::Inhibition(QObject *parent, int portalPatience)
    : QObject(parent)
    , m_portalPatience(portalPatience)
{
}

void Inhibition::begin(const QString &reason)
{
    end();
    m_lock = new Lock(reason, m_portalPatience, this);
}

void Inhibition::end()
{
    if (m_lock)
        std::exchange(m_lock, nullptr)->release();
}

} // namespace desktop
