// The message buses, opened when they are first needed and without anybody waiting for them.
#pragma once

#include <QDBusConnection>
#include <QString>

#include <functional>

class QDBusMessage;
class QDBusPendingCallWatcher;

namespace desktop {

/// The program's name among those on the bus, of its desktop entry and of its folder of objects.
inline constexpr QLatin1String identity("org.corvalis.Corvalis");

enum class Bus { Session, System };

/// Calls `use` from the event loop of the GUI thread, once the bus has greeted; with a connection that is not connected
/// where there is no such bus, and never where the bus hangs or `context` is gone by then. Call it on the GUI thread.
void withBus(Bus which, QObject *context, const std::function<void(const QDBusConnection &)> &use);

/// The session's bus, for which this waits so many milliseconds; not connected where there is none or it hangs.
QDBusConnection sessionBusWithin(int milliseconds);

/// Calls `answered` from the event loop with the reply, also with one that is an error; not when `context` is gone.
void ask(const QDBusConnection &bus, const QDBusMessage &question, QObject *context,
    const std::function<void(const QDBusMessage &)> &answered);

} // namespace desktop
