// A DVD for players in living rooms, as values: how clips are converted to titles, and how long, wide and large they are.
#pragma once

#include "writing/ClipFacts.h"

#include <QRect>
#include <QStringList>

namespace writing {

/// What the video settings ask for.
struct PlayerFormat {
    bool ntsc = true; ///< 720 x 480 at 30000/1001 frames a second; else PAL, 720 x 576 at 25
    bool dolby = true; ///< AC-3; else MPEG audio layer II
};

/// How a picture is shown on a screen of one of the two shapes that a DVD knows.
struct PlayerPicture {
    bool wide = false; ///< 16:9; else 4:3
    QSize frame; ///< stored, in pixels
    QRect place; ///< of the clip's picture in the frame, all even; the rest is black

    QString aspect() const { return QString::fromLatin1(wide ? "16:9" : "4:3"); }
};

/// One clip, converted.
struct PlayerTitle {
    QString file; ///< of the converted clip, its name in the working folder
    bool wide = false;
    QList<double> chapters; ///< where they begin, in seconds; the first one is 0
};

/// The disc in the making.
struct PlayerDisc {
    PlayerFormat format;
    int videoRate = 0; ///< bits a second on average
    QList<PlayerTitle> titles; ///< in the order in which they are played
};

/// A disc's table of titles has no more rows (DVD-Video: TT_SRPT).
inline constexpr qsizetype mostTitles = 99;

/// The shape that leaves less of the screen black, and the place in it. `displayAspect`: width to height, above 0.
PlayerPicture playerPicture(double displayAspect, bool ntsc);

/// Where a title's chapters begin: the clip's own where it has at least two, else every five minutes; never more than
/// the 99 that a title can have, and none at the very end. The first one is always 0.
QList<double> chapterMarks(const ClipFacts &facts);

/// The average rate of the pictures, in bits a second, at which `seconds` of film fit on a DVD of 4.7 GB: at most what
/// the presets take, and never so little that it cannot be watched.
int playerVideoRate(qint64 seconds);

/// The room that a disc of `seconds` needs while it is made, in bytes: for the converted clips and the titles made of
/// them, which are there side by side for a while.
qint64 playerRoom(qint64 seconds);

/// ffmpeg's arguments for one title. `marks`: its chapters, each of which begins with a whole picture.
QStringList playerArguments(const QString &source, const QString &output, const ClipFacts &facts,
    const PlayerDisc &disc, const QList<double> &marks);

} // namespace writing
