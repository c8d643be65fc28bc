// What can go on a list, and why the rest cannot.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>

namespace compilation {

/// Why something cannot go on a list.
enum class Refusal {
    None, ///< it can
    Elsewhere, ///< its address is not one of this computer's files
    Missing, ///< there is nothing of this name
    DanglingLink, ///< a link to something that is not there
    Forbidden, ///< a folder whose names this user may not read
    NoFile, ///< a pipe, a socket or a device: it can be read once, or never ends
    OtherEnding,
    FolderWithout, ///< a folder without a file that ends in one of the list's endings
    FolderInCapitals, ///< the same, but for capital letters; of a folder only small ones are taken
};

/// Of a file or folder for a list of media files with these endings, which are in small letters. Its own
/// ending may be in any case; of a folder the files directly in it count, as they are written.
Refusal refusalOfMedia(const QUrl &url, const QStringList &endings);

/// Of a folder or a file for the list of a data disc.
Refusal refusalOfData(const QUrl &url);

/// A pipe, a socket or a device, links followed.
bool isNoFile(const QString &path);

/// A sentence for a person about several of the kind; their names follow below it.
QString sentence(Refusal refusal, const QStringList &endings);

} // namespace compilation
