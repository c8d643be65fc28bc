#include "desktop/Notifier.h"

#include "desktop/Bus.h"

#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QStringList>

#include <utility>

using namespace Qt::StringLiterals;

namespace desktop {
namespace {

const auto service = u"org.freedesktop.Notifications"_s;
const auto path = u"/org/freedesktop/Notifications"_s;
const auto interface = service;

QDBusMessage call(const QString &method)
{
    return QDBusMessage::createMethodCall(service, path, interface, method);
}

} // namespace

void Notifier::show(const QString &heading, const QString &text, const QString &button)
{
    m_wanted = true;
    withBus(Bus::Session, this, [=, this](const QDBusConnection &bus) {
        if (!bus.isConnected())
            return;
        listen();
        // A text is markup to some, and shown as it is by others.
        ask(bus, call(u"GetCapabilities"_s), this, [=, this](const QDBusMessage &reply) {
            const QStringList can = reply.arguments().value(0).toStringList();
            const bool markup = can.contains("body-markup"_L1);
            const QVariantMap hints{ { u"desktop-entry"_s, QString(identity) },
                { u"category"_s, u"transfer.complete"_s } };
            auto notify = call(u"Notify"_s);
            notify << u"Corvalis"_s << m_id << u"corvalis"_s << heading
                   << (markup ? text.toHtmlEscaped() : text)
                   << QStringList{ u"default"_s, button, u"show"_s, button } << hints << -1;
            if (!m_wanted || reply.type() != QDBusMessage::ReplyMessage)
                return;
            ask(bus, notify, this, [this](const QDBusMessage &shown) {
                m_id = shown.arguments().value(0).toUInt();
                if (!m_wanted)
                    withdraw();
            });
        });
    });
}

void Notifier::listen()
{
    if (std::exchange(m_listens, true))
        return;
    // With a service name this would wait for the bus to tell who owns it.
    auto bus = QDBusConnection::sessionBus();
    bus.connect({}, path, interface, u"ActionInvoked"_s, this, SLOT(onActionInvoked(uint, QString)));
    bus.connect({}, path, interface, u"ActivationToken"_s, this, SLOT(onActivationToken(uint, QString)));
    bus.connect({}, path, interface, u"NotificationClosed"_s, this, SLOT(onNotificationClosed(uint, uint)));
}

void Notifier::withdraw()
{
    m_wanted = false;
    if (m_id == 0)
        return;
    auto close = call(u"CloseNotification"_s);
    close << std::exchange(m_id, 0);
    QDBusConnection::sessionBus().asyncCall(close);
}

void Notifier::onActionInvoked(uint id, const QString &)
{
    if (id != 0 && id == m_id)
        Q_EMIT called(std::exchange(m_token, {}));
}

void Notifier::onActivationToken(uint id, const QString &token)
{
    if (id != 0 && id == m_id)
        m_token = token;
}

void Notifier::onNotificationClosed(uint id, uint)
{
    if (id == m_id)
        m_id = 0;
}

} // namespace desktop
