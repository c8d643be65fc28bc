#include "writing/PlayerDisc.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace writing {

namespace {

constexpr double wideAspect = 16.0 / 9, narrowAspect = 4.0 / 3;
constexpr int presetVideoRate = 6'000'000; ///< of ffmpeg's presets for DVDs
constexpr int leastVideoRate = 2'000'000; ///< below, a moving picture falls into blocks
constexpr int soundRate = 448'000; ///< of the presets; MPEG audio has a little less

/// The even number that is nearest, but 2 to `most`: colours are stored for two pixels by two.
int even(double length, int most)
{
    return qBound(2, static_cast<int>(std::lround(length / 2)) * 2, most);
}

/// How much of a screen of shape `screen` a picture of shape `picture` fills.
double filled(double picture, double screen)
{
    return qMin(picture / screen, screen / picture);
}

QList<double> everyFewMinutes(double seconds)
{
    constexpr double step = 300, shortest = 30;
    QList<double> marks{ 0 };
    for (double mark = step; mark + shortest <= seconds; mark += step)
        marks.append(mark);
    return marks;
}

QList<double> ownChapters(const ClipFacts &facts)
{
    constexpr double shortest = 1; // a player has to find its way to the next one
    QList<double> marks{ 0 };
    for (const double mark : facts.chapters) {
        if (mark - marks.last() >= shortest && (facts.seconds <= 0 || mark + shortest <= facts.seconds))
            marks.append(mark);
    }
    return marks;
}

QString filters(const PlayerPicture &picture)
{
    // What is interlaced would be torn by the scaling. The colours of a DVD are those of standard television.
    return u"yadif=deint=interlaced,scale=%1:%2:out_color_matrix=bt601:out_range=tv,pad=%3:%4:%5:%6"_s
        .arg(picture.place.width())
        .arg(picture.place.height())
        .arg(picture.frame.width())
        .arg(picture.frame.height())
        .arg(picture.place.x())
        .arg(picture.place.y());
}

} // namespace

PlayerPicture playerPicture(double displayAspect, bool ntsc)
{
    PlayerPicture picture;
    picture.frame = ntsc ? QSize(720, 480) : QSize(720, 576);
    picture.wide = filled(displayAspect, wideAspect) > filled(displayAspect, narrowAspect);
    const double screen = picture.wide ? wideAspect : narrowAspect;
    const int width = even(picture.frame.width() * qMin(1.0, displayAspect / screen), picture.frame.width());
    const int height =
        even(picture.frame.height() * qMin(1.0, screen / displayAspect), picture.frame.height());
    picture.place = { (picture.frame.width() - width) / 4 * 2, (picture.frame.height() - height) / 4 * 2,
        width, height };
    return picture;
}

QList<double> chapterMarks(const ClipFacts &facts)
{
    constexpr qsizetype most = 99; // programs of a chain (DVD-Video)
    const QList<double> own = ownChapters(facts);
    const QList<double> all = own.size() > 1 ? own : everyFewMinutes(facts.seconds);
    const qsizetype every = (all.size() + most - 1) / most;
    QList<double> marks;
    for (qsizetype i = 0; i < all.size(); i += every)
        marks.append(all.at(i));
    return marks;
}

int playerVideoRate(qint64 seconds)
{
    // A DVD has 2,295,104 sectors of 2048 bytes (ECMA-267). Packets, tables and two file systems take their share, and
    // the encoder keeps an average only roughly.
    constexpr double usableBits = 2'295'104.0 * 2048 * 8 * 0.94;
    const double rate = usableBits / static_cast<double>(qMax<qint64>(1, seconds)) - soundRate;
    return static_cast<int>(qBound<double>(leastVideoRate, rate, presetVideoRate)) / 1000 * 1000;
}

qint64 playerRoom(qint64 seconds)
{
    constexpr int copies = 2;
    constexpr qint64 tables = 16 * 1024 * 1024;
    const qint64 rate = (playerVideoRate(seconds) + soundRate) / 8;
    return copies * (rate + rate / 20) * seconds + tables; // a twentieth for packets
}

QStringList playerArguments(const QString &source, const QString &output, const ClipFacts &facts,
    const PlayerDisc &disc, const QList<double> &marks)
{
    const PlayerPicture picture = playerPicture(facts.displayAspect(), disc.format.ntsc);
    QStringList arguments{ u"-i"_s, source };
    if (!facts.hasSound) // which players expect
        arguments += { u"-f"_s, u"lavfi"_s, u"-i"_s, u"anullsrc=channel_layout=stereo:sample_rate=48000"_s,
            u"-shortest"_s };
    arguments += { u"-target"_s, disc.format.ntsc ? u"ntsc-dvd"_s : u"pal-dvd"_s, u"-vf"_s, filters(picture),
        u"-aspect"_s, picture.aspect(), u"-b:v"_s, QString::number(disc.videoRate) };
    QStringList later;
    for (const double mark : marks.mid(1))
        later.append(QString::number(mark, 'f', 3));
    if (!later.isEmpty())
        arguments += { u"-force_key_frames"_s, later.join(u',') };
    // Gaps in the sound, and one before its beginning, are filled: a title's sound has none.
    return arguments
        + QStringList{ u"-acodec"_s, disc.format.dolby ? u"ac3"_s : u"mp2"_s, u"-af"_s,
              u"aresample=async=1:first_pts=0"_s, u"-ar"_s, u"48000"_s, u"-ac"_s, u"2"_s, output };
}

} // namespace writing
