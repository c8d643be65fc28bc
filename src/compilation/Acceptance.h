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
    NoSound, ///< a file of another ending, in which the transcoder finds no sound
    NoFilm, ///< the same, with no moving pictures
    FolderWithoutSound, ///< a folder with no sound in any file below it
    FolderWithoutFilm,
    InPlaylist, ///< a playlist or a folder that a playlist names
    EmptyPlaylist, ///< or one that cannot be read as what its ending says
    LongPlaylist, ///< what comes after the first entries of it is left out
    LargePlaylist, ///< too large to be one
    LargeFolder, ///< what comes after the first files below it is left out
};

/// Something that cannot go on a list.
struct Refused {
    Refusal refusal;
    QUrl url;
    qsizetype place = 0; ///< among all that was to be added with it
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
