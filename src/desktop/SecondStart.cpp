#include "desktop/SecondStart.h"

#include "desktop/ApplicationService.h"

#include <QDBusMessage>

using namespace Qt::StringLiterals;

namespace desktop {
namespace {

constexpr int busPatience = 2000; // ms
constexpr int windowPatience = 5000; // ms; it may be at its own start

} // namespace

Activation Activation::ofThisStart()
{
    return { qEnvironmentVariable("XDG_ACTIVATION_TOKEN"), qEnvironmentVariable("DESKTOP_STARTUP_ID") };
}

bool handOver(const Request &request, const Activation &activation)
{
    const QDBusConnection bus = sessionBusWithin(busPatience);
    if (!bus.isConnected())
        return false;
    auto message = QDBusMessage::createMethodCall(identity, ApplicationService::objectPath(),
        u"org.freedesktop.Application"_s, request.action.isEmpty() ? u"Open"_s : u"ActivateAction"_s);
    message.setAutoStartService(false); // that would be a window of its own anyway
    const QVariantMap platformData{ { u"activation-token"_s, activation.token },
        { u"desktop-startup-id"_s, activation.startupId } };
    QStringList addresses;
    for (const QUrl &url : request.files)
        addresses.append(QString::fromLatin1(url.toEncoded()));
    if (request.action.isEmpty())
        message << addresses << platformData;
    else
        message << request.action << QVariantList() << platformData;
    return bus.call(message, QDBus::Block, windowPatience).type() == QDBusMessage::ReplyMessage;
}

} // namespace desktop
