#include "compilation/MediaSearch.h"

#include "compilation/FolderNames.h"
#include "compilation/Playlist.h"
#include "compilation/Sorting.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <set>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

using namespace Qt::StringLiterals;

namespace compilation {
namespace {

class Search {
public:
    Search(const QStringList &endings, const std::atomic<bool> &stop)
        : m_endings(endings)
        , m_stop(stop)
    {
    }

    Found files(const QList<Wanted> &wanted)
    {
        for (const Wanted &one : wanted) {
            if (m_stop)
                break;
            m_place = one.place;
            if (one.way == Wanted::Way::Playlist)
                follow(one.url);
            else if (one.way == Wanted::Way::Tree)
                lookBelow(one.url);
            else
                m_found.files.append(one);
        }
        return std::exchange(m_found, {});
    }

private:
    void refuse(Refusal refusal, const QUrl &url) { m_found.refused.append({ refusal, url, m_place }); }

    void follow(const QUrl &url)
    {
        QFile file(url.toLocalFile());
        if (isNoFile(file.fileName()))
            return refuse(Refusal::NoFile, url);
        if (file.size() > mostPlaylistBytes)
            return refuse(Refusal::LargePlaylist, url);
        if (!file.open(QIODevice::ReadOnly))
            return refuse(Refusal::EmptyPlaylist, url);
        const QFileInfo info(file.fileName());
        const Playlist playlist = parsePlaylist(info.fileName(), file.read(mostPlaylistBytes));
        if (playlist.entries.isEmpty())
            return refuse(Refusal::EmptyPlaylist, url);
        for (const QString &entry : playlist.entries) {
            if (m_stop)
                return;
            takeEntry(placesOf(entry, playlist.areAddresses, info.absolutePath()));
        }
        if (playlist.isCut)
            refuse(Refusal::LongPlaylist, url);
    }

    void takeEntry(const QList<QUrl> &places)
    {
        const auto place = std::ranges::find_if(places,
            [](const QUrl &url) { return url.isLocalFile() && QFileInfo::exists(url.toLocalFile()); });
        const QUrl &url = place == places.end() ? places.first() : *place;
        const QFileInfo info(url.toLocalFile());
        if (url.isLocalFile() && !isReadable(url))
            m_found.unreadable.append(url);
        else if (!url.isLocalFile())
            refuse(Refusal::Elsewhere, url);
        else if (!info.exists())
            refuse(info.isSymbolicLink() ? Refusal::DanglingLink : Refusal::Missing, url);
        else if (info.isDir() || isPlaylist(info.fileName()))
            refuse(Refusal::InPlaylist, url);
        else if (isNoFile(info.filePath()))
            refuse(Refusal::NoFile, url);
        else
            m_found.files.append({ url, wayOf(url, m_endings), m_place });
    }

    /// True only once for each folder, by whatever links it is reached.
    bool isNew(const QString &folder)
    {
        struct stat facts;
        return ::stat(QFile::encodeName(folder).constData(), &facts) == 0
            && m_seen.insert({ facts.st_dev, facts.st_ino }).second;
    }

    /// A folder that is being looked into: its folders first, then its own files.
    struct Level {
        QString path; ///< with a slash at its end
        QStringList folders, files; ///< names in order
        qsizetype next = 0; ///< of the folders
    };

    void lookBelow(const QUrl &url)
    {
        m_room = mostFilesBelow;
        m_seen.clear();
        QList<Level> levels;
        enter(url.toLocalFile(), levels);
        while (!levels.isEmpty() && !m_stop && m_room >= 0) {
            Level &level = levels.last();
            if (level.next < level.folders.size())
                enter(level.path + level.folders.at(level.next++), levels);
            else
                take(levels.takeLast());
        }
        if (m_room < 0)
            refuse(Refusal::LargeFolder, url);
    }

    void enter(const QString &folder, QList<Level> &levels)
    {
        if (!isNew(folder))
            return;
        if (::access(QFile::encodeName(folder).constData(), R_OK | X_OK) != 0)
            return refuse(Refusal::Forbidden, QUrl::fromLocalFile(folder));
        Level level{ folder.endsWith(u'/') ? folder : folder + u'/', {}, {} };
        FolderNames found = namesIn(folder);
        std::ranges::stable_sort(found.names, m_collator);
        for (const QString &name : std::as_const(found.names))
            (QFileInfo(level.path + name).isDir() ? level.folders : level.files).append(name);
        const QByteArray place = "file://" + QFile::encodeName(level.path).toPercentEncoding("/");
        for (const FolderNames::Unreadable &entry : std::as_const(found.unreadable))
            m_found.unreadable.append(QUrl::fromEncoded(place + entry.name.toPercentEncoding()));
        levels.append(level);
    }

    void take(const Level &level)
    {
        for (const QString &name : level.files) {
            const QUrl url = QUrl::fromLocalFile(level.path + name);
            // A pipe would be waited for, and a playlist names what lies here or elsewhere anyway.
            if (isPlaylist(name) || isNoFile(level.path + name))
                continue;
            if (--m_room < 0)
                return;
            const bool isListed = wayOf(url, m_endings) == Wanted::Way::Listed;
            m_found.files.append({ url, isListed ? Wanted::Way::Listed : Wanted::Way::Found, m_place });
        }
    }

    const QStringList &m_endings;
    const std::atomic<bool> &m_stop;
    const QCollator m_collator = fileBrowserCollator();
    std::set<std::pair<dev_t, ino_t>> m_seen;
    qsizetype m_place = 0;
    qsizetype m_room = 0; ///< for further files below a folder; below 0: there are more
    Found m_found;
};

} // namespace

Wanted::Way wayOf(const QUrl &file, const QStringList &endings)
{
    const QFileInfo info(file.toLocalFile());
    return endings.contains(info.suffix(), Qt::CaseInsensitive) ? Wanted::Way::Listed
        : isPlaylist(info.fileName())                           ? Wanted::Way::Playlist
                                                                : Wanted::Way::Probed;
}

Found filesOf(const QList<Wanted> &wanted, const QStringList &endings, const std::atomic<bool> &stop)
{
    return Search(endings, stop).files(wanted);
}

} // namespace compilation
