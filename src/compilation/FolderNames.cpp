#include "compilation/FolderNames.h"

#include <QFile>

#include <dirent.h>

namespace compilation {

FolderNames namesIn(const QString &folder)
{
    FolderNames found;
    DIR *const stream = ::opendir(QFile::encodeName(folder).constData());
    if (!stream)
        return found;
    while (const dirent *entry = ::readdir(stream)) {
        const QByteArrayView name(entry->d_name);
        if (name == "." || name == "..")
            continue;
        if (name.isValidUtf8())
            found.names.append(QString::fromUtf8(name));
        else
            ++found.unreadable;
    }
    ::closedir(stream);
    return found;
}

bool isReadable(const QUrl &url)
{
    return QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1()).isValidUtf8();
}

} // namespace compilation
