#include "desktop/Bus.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDeadlineTimer>
#include <QFileInfo>
#include <QThread>

#include <memory>
#include <utility>

namespace desktop {
namespace {

/// Without this test libdbus would try to start a bus of its own, which takes long and leaves a process
/// behind.
bool isThere(Bus which)
{
    if (which == Bus::System)
        return !qEnvironmentVariableIsEmpty("DBUS_SYSTEM_BUS_ADDRESS")
            || QFileInfo::exists(QLatin1String("/run/dbus/system_bus_socket"));
    return !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS")
        || QFileInfo::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QLatin1String("/bus"));
}

QDBusConnection opened(Bus which)
{
    return which == Bus::Session ? QDBusConnection::sessionBus() : QDBusConnection::systemBus();
}

/// Opening a connection waits for the bus to greet, and a bus can hang. The thread ends when it has greeted; it is kept
/// as long as the process lives, since nothing could end one that hangs.
QThread *greeting(Bus which)
{
    static QThread *threads[2] = {};
    QThread *&thread = threads[which == Bus::Session ? 0 : 1];
    if (!thread) {
        thread = QThread::create([which] { opened(which); });
        thread->start();
    }
    return thread;
}

} // namespace

void withBus(Bus which, QObject *context, const std::function<void(const QDBusConnection &)> &use)
{
    const auto call = [which, use, called = std::make_shared<bool>(false)] {
        if (!std::exchange(*called, true))
            use(isThere(which) ? opened(which) : QDBusConnection(QString()));
    };
    if (isThere(which)) {
        const QThread *thread = greeting(which);
        QObject::connect(thread, &QThread::finished, context, call);
        if (!thread->isFinished())
            return;
    }
    QMetaObject::invokeMethod(context, call, Qt::QueuedConnection);
}

QDBusConnection sessionBusWithin(int milliseconds)
{
    if (isThere(Bus::Session) && greeting(Bus::Session)->wait(QDeadlineTimer(milliseconds)))
        return opened(Bus::Session);
    return QDBusConnection(QString());
}

void ask(const QDBusConnection &bus, const QDBusMessage &question, QObject *context,
    const std::function<void(const QDBusMessage &)> &answered)
{
    auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(question), context);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, context, [watcher, answered] {
        watcher->deleteLater();
        answered(watcher->reply());
    });
}

} // namespace desktop
