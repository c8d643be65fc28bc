// Lists of songs and films that players write: M3U, M3U8, PLS and XSPF.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QUrl>

namespace compilation {

inline constexpr qsizetype mostPlaylistEntries = 100'000;
inline constexpr qint64 mostPlaylistBytes = 32 * 1024 * 1024;

/// Whether a file of this name is a playlist, by its ending in any case.
bool isPlaylist(const QString &fileName);

/// What a playlist names, in its order, as it stands there.
struct Playlist {
    QStringList entries; ///< at most mostPlaylistEntries
    bool isCut = false; ///< there are more than those
    bool isBroken = false; ///< XSPF that is no XML; there are no entries then
    bool areAddresses = false; ///< XSPF: every entry is a URL, with its percent escapes
};

/// Reads the playlist of the name `fileName`. Texts that are not UTF-8 (or, with a byte order mark, UTF-16) are taken for
/// ISO 8859-1. Lines may end in LF, CR or both. Of a track of XSPF the first location counts; the entries of PLS come in
/// the order of their numbers. Pure.
Playlist parsePlaylist(const QString &fileName, const QByteArray &content);

/// Where an entry of a playlist in `folder` may lie, the likeliest place first; never empty. One place that is no local
/// file: an address on the network. Names in a playlist are paths, paths with percent escapes, or paths of a system that
/// parts folders by backslashes: only a look at the folder tells. Pure.
QList<QUrl> placesOf(const QString &entry, bool isAddress, const QString &folder);

} // namespace compilation
