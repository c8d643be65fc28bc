#include "desktop/LauncherProgress.h"

#include "desktop/Bus.h"

#include <QDBusMessage>

#include <utility>

using namespace Qt::StringLiterals;

namespace desktop {

void LauncherProgress::show(int percent)
{
    if (std::exchange(m_shown, percent) == percent)
        return;
    withBus(Bus::Session, this, [percent](const QDBusConnection &bus) {
        auto update = QDBusMessage::createSignal(
            u"/org/corvalis/Corvalis/LauncherEntry"_s, u"com.canonical.Unity.LauncherEntry"_s, u"Update"_s);
        const QVariantMap properties{ { u"progress"_s, qMax(0, percent) / 100.0 },
            { u"progress-visible"_s, percent >= 0 } };
        update << u"application://%1.desktop"_s.arg(identity) << properties;
        if (bus.isConnected())
            bus.send(update);
    });
}

} // namespace desktop
