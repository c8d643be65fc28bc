#include "desktop/ApplicationService.h"

#include "desktop/Opening.h"

#include <QDBusMessage>
#include <QDBusPendingCall>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace desktop {
namespace {

/// What the caller got from the desktop, so that the window may come to the front.
QString tokenIn(const QVariantMap &platformData)
{
    const QString token = platformData.value(u"activation-token"_s).toString();
    return token.isEmpty() ? platformData.value(u"desktop-startup-id"_s).toString() : token;
}

/// To the bus itself.
QDBusMessage aboutName(const QString &method)
{
    auto message = QDBusMessage::createMethodCall(
        u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s, u"org.freedesktop.DBus"_s, method);
    message << QString(identity);
    return message;
}

bool isFileHere(const QUrl &url)
{
    const QString path = url.toLocalFile();
    return url.isValid() && url.isLocalFile() && url.host().isEmpty() && path.startsWith(u'/')
        && !path.contains(QChar(u'\0'));
}

} // namespace

ApplicationService::ApplicationService(Opening *opening)
    : m_opening(opening)
{
    withBus(Bus::Session, this, [this](const QDBusConnection &bus) {
        if (bus.isConnected())
            takeName(bus);
    });
}

ApplicationService::~ApplicationService()
{
    if (m_bus.isConnected())
        m_bus.asyncCall(aboutName(u"ReleaseName"_s));
}

QString ApplicationService::objectPath()
{
    return u"/org/corvalis/Corvalis"_s;
}

void ApplicationService::takeName(const QDBusConnection &bus)
{
    m_bus = bus;
    m_bus.registerObject(objectPath(), this, QDBusConnection::ExportScriptableSlots);
    // Not by the connection's own operation, which would wait for the bus. No flags: in the queue behind another one.
    m_bus.asyncCall(aboutName(u"RequestName"_s) << 0U);
}

void ApplicationService::Activate(const QVariantMap &platformData)
{
    m_opening->raiseWindow(tokenIn(platformData));
}

void ApplicationService::Open(const QStringList &addresses, const QVariantMap &platformData)
{
    if (addresses.size() > mostFiles)
        return sendErrorReply(QDBusError::LimitsExceeded, u"Too many files at once."_s);
    Request request;
    for (const QString &address : addresses) {
        const QUrl url(address, QUrl::StrictMode);
        if (url.scheme() == "burn"_L1)
            continue; // a blank disc, as file managers call it; there is nothing on it to be opened
        if (address.size() > longestAddress || !isFileHere(url))
            return sendErrorReply(QDBusError::InvalidArgs, u"Only addresses of files of this computer."_s);
        request.files.append(url);
    }
    pass(request, platformData);
}

void ApplicationService::ActivateAction(
    const QString &action, const QVariantList &, const QVariantMap &platformData)
{
    if (!Opening::actions().contains(action))
        return sendErrorReply(QDBusError::InvalidArgs, u"There is no such action."_s);
    pass({ {}, action }, platformData);
}

void ApplicationService::pass(const Request &request, const QVariantMap &platformData)
{
    m_opening->raiseWindow(tokenIn(platformData));
    if (!request.isEmpty() && !m_opening->open(request))
        sendErrorReply(QDBusError::LimitsExceeded, u"Too many requests wait already."_s);
}

} // namespace desktop
