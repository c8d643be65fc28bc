#include "compilation/MissingFiles.h"

#include "compilation/FolderNames.h"

#include <QFileInfo>
#include <QSet>

namespace compilation {

QHash<QString, QString> placesOf(
    const QStringList &names, const QString &folder, const std::function<void()> &breathe)
{
    constexpr qsizetype most = 500'000;
    const QSet<QString> wanted(names.begin(), names.end());
    QHash<QString, QString> found;
    QStringList folders{ folder };
    qsizetype looked = 0;
    for (qsizetype at = 0; at < folders.size() && looked < most && found.size() < wanted.size(); ++at) {
        const QString place = folders.at(at).endsWith(u'/') ? folders.at(at) : folders.at(at) + u'/';
        const QStringList entries = namesIn(folders.at(at)).names;
        looked += entries.size();
        for (const QString &name : entries) {
            if (wanted.contains(name) && !found.contains(name))
                found.insert(name, place + name);
            const QFileInfo info(place + name);
            if (info.isDir() && !info.isSymLink())
                folders.append(place + name);
        }
        breathe();
    }
    return found;
}

} // namespace compilation
