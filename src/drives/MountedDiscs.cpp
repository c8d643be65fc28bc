#include "drives/MountedDiscs.h"

#include <QStorageInfo>

namespace drives {

bool isDisc(const QByteArray &device, const QByteArray &fileSystem)
{
    return device.startsWith("/dev/sr") || fileSystem == "iso9660" || fileSystem == "udf";
}

QList<QUrl> mountedDiscs()
{
    QList<QUrl> places;
    for (const QStorageInfo &volume : QStorageInfo::mountedVolumes()) {
        if (isDisc(volume.device(), volume.fileSystemType()))
            places.append(QUrl::fromLocalFile(volume.rootPath()));
    }
    return places;
}

} // namespace drives
