// What a clip is, read from the report that the transcoder prints of its input.
#pragma once

#include <QByteArray>
#include <QList>
#include <QSize>
#include <QString>

namespace writing {

/// The facts on which it depends how a clip is put onto a disc for players.
struct ClipFacts {
    QSize picture; ///< stored, in pixels; empty: the clip has no picture
    double pixelAspect = 1; ///< width of a pixel to its height, above 0
    bool upended = false; ///< the transcoder turns it by a quarter to stand it upright
    bool hasSound = false;
    double seconds = 0; ///< 0: not known
    QList<double> chapters; ///< where the clip's own chapters begin, in seconds from its start, ascending

    bool hasPicture() const { return !picture.isEmpty(); }
    /// Width to height of the picture as a person sees it, upright. Above 0 where there is a picture.
    double displayAspect() const;
};

/// The facts in `report`, which `ffmpeg -i path` printed. Where there are several pictures, those of the one that ffmpeg
/// takes. A report of something else holds no picture and no sound. Any thread.
ClipFacts clipFacts(const QByteArray &report, const QString &path);

} // namespace writing
