// Mounting for a test alone, without touching what others see.
#pragma once

#include <QProcess>
#include <QStringList>

namespace support {

/// The beginning of a command that has mounts of its own, which end with it. Empty where the system lets nobody
/// have them, as in many containers: such a test is skipped.
inline QStringList ownMounts()
{
    static const QStringList found = [] {
        const QString unshare = QStringLiteral("unshare"), mount = QStringLiteral("--mount");
        for (const QStringList &way :
            { QStringList{ unshare, mount }, { unshare, QStringLiteral("--map-root-user"), mount } }) {
            QProcess trial;
            trial.start(unshare,
                way.mid(1)
                    + QStringList{ QStringLiteral("mount"), QStringLiteral("-t"), QStringLiteral("tmpfs"),
                        QStringLiteral("none"), QStringLiteral("/mnt") });
            if (trial.waitForFinished() && trial.exitStatus() == QProcess::NormalExit
                && trial.exitCode() == 0)
                return way;
        }
        return QStringList();
    }();
    return found;
}

constexpr char noOwnMounts[] = "this system lets nobody mount for himself alone";

} // namespace support
