#include "compilation/FolderNames.h"

#include "compilation/Measuring.h"

#include <QFile>

#include <algorithm>
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
            found.unreadable.append({ name.toByteArray(), entry->d_type == DT_DIR });
    }
    ::closedir(stream);
    return found;
}

int unreadableFiles(const FolderNames &found, const QStringList &extensions, Qt::CaseSensitivity sensitivity)
{
    return static_cast<int>(
        std::ranges::count_if(found.unreadable, [&](const FolderNames::Unreadable &entry) {
            return extensions.contains(pathExtension(QString::fromUtf8(entry.name)), sensitivity);
        }));
}

bool isReadable(const QUrl &url)
{
    return QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1()).isValidUtf8();
}

} // namespace compilation
