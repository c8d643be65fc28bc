// The discs that the desktop has mounted.
#pragma once

#include <QByteArray>
#include <QList>
#include <QUrl>

namespace drives {

/// Whether what is mounted is an optical disc, or an image of one: by its device (a kernel's name of a drive,
/// as /dev/sr0), else by its file system as mount(8) calls it.
bool isDisc(const QByteArray &device, const QByteArray &fileSystem);

/// The folders where discs are mounted now, in the order in which they were. Asks the system only for the
/// table of mounts, so that no drive has to turn its disc for it.
QList<QUrl> mountedDiscs();

} // namespace drives
