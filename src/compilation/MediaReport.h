// What the transcoder tells of a file that it was asked to look at.
#pragma once

#include <QByteArray>
#include <QString>

namespace compilation {

/// A title and who performs it; one line each, empty where a file does not say.
struct TrackNames {
    QString title, performer;

    bool operator==(const TrackNames &) const = default;
};

/// What is in a file, as far as a list of media files asks.
struct MediaReport {
    bool hasSound = false; ///< a stream of sound that ffmpeg can decode
    bool hasFilm = false; ///< moving pictures; the cover of an album and a single picture are none
    TrackNames names; ///< those of the whole file, and where it has none those of its first stream of sound
    TrackNames carried; ///< those of the whole file alone: ffmpeg gives no others to what it converts to
};

/// Reads what `ffmpeg -i FILE` printed of the file at `path`. Never fails: of a report that is cut or that tells of no
/// file nothing is known. A name of a file or in a file that looks like a line of a report is taken for a name.
MediaReport mediaReport(const QByteArray &report, const QString &path);

} // namespace compilation
