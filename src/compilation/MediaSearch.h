// The files that a playlist names and those below a folder, for a list of media files.
#pragma once

#include "compilation/Acceptance.h"

#include <QList>
#include <QStringList>
#include <QUrl>

#include <atomic>

namespace compilation {

inline constexpr qsizetype mostFilesBelow = 100'000;

/// Something for a list of media files, and how it gets there.
struct Wanted {
    enum class Way {
        Listed, ///< whatever is in it
        Probed, ///< if there is in it what the list is for; else it is refused
        Found, ///< the same, and else nothing is said: it only lay in a folder
        Playlist, ///< the files it names in its place
        Tree, ///< all files below it, in its place
    };
    QUrl url;
    Way way = Way::Listed;
    qsizetype place = 0; ///< among all that was to be added with it; what is found for it has the same
};

/// How a file that a person names gets onto a list of media files with these endings.
Wanted::Way wayOf(const QUrl &file, const QStringList &endings);

/// Files, and what is none.
struct Found {
    QList<Wanted> files; ///< neither playlists nor folders
    QList<Refused> refused;
    QList<QUrl> unreadable; ///< names that are no text
};

/// Puts files in the place of playlists and folders. Those below a folder come as the open panel shows them: folders
/// first, names in the order of a file browser. Below one of them no folder is looked into twice, also when links lead to it. Looks at
/// files and folders, so it may take long: any thread, and `stop` ends it early.
Found filesOf(const QList<Wanted> &wanted, const QStringList &endings, const std::atomic<bool> &stop);

} // namespace compilation
