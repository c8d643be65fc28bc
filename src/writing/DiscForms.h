// What differs between the kinds of disc that are written: texts, media types, argument vectors.
#pragma once

#include "app/AppDelegate.h"

/// The checks before a disc is written, in their order, and what each failure says.
struct AppDelegate::DiscForm {
    int code; ///< of the project type
    const char
        *nothingListed; ///< message when the list is empty; this and the other texts in English, for tr()
    const char *nothingListedText;
    QLatin1StringView mediaType; ///< what the probe must answer
    const char *wrongMedium; ///< message when it answers something else
    const char *wrongMediumText;
    const char *warning; ///< the code of the second alert of debug mode
};

/// One of the forms of an audio disc.
struct AppDelegate::AudioForm {
    DiscForm checks;
    qint64 burnAudioType; ///< 1 CD-DA, 2 MP3
    QStringList (*transcoderArguments)(const QString &source, const QString &output);
    QLatin1StringView extension;
    QPointer<QTimer> AppDelegate::*timer;
    TimerRoutine write;
};

namespace writing {

inline constexpr const char *notCD = QT_TRANSLATE_NOOP("AppDelegate", "Media not CD");
inline constexpr const char *notCDText = QT_TRANSLATE_NOOP(
    "AppDelegate", "The media on the drive is not a CD. insert a writable CD on the drive and try again.");
inline constexpr const char *notDVD = QT_TRANSLATE_NOOP("AppDelegate", "Media not DVD");
inline constexpr const char *notDVDText = QT_TRANSLATE_NOOP(
    "AppDelegate", "The media on the drive is not a DVD. insert a writable DVD on the drive and try again.");
inline constexpr const char *notBluray = QT_TRANSLATE_NOOP("AppDelegate", "Media not Blu-ray");
inline constexpr const char *notBlurayText = QT_TRANSLATE_NOOP("AppDelegate",
    "The media on the drive is not a Blu-ray. insert a writable Blu-ray on the drive and try again.");
inline constexpr const char *noDisc = QT_TRANSLATE_NOOP("AppDelegate", "No disc");
inline constexpr const char *noDiscText = QT_TRANSLATE_NOOP(
    "AppDelegate", "There is no disc on the drive. insert a writable media on the drive and try again.");
inline constexpr const char *notWritable = QT_TRANSLATE_NOOP("AppDelegate", "Media not writable");
inline constexpr const char *notWritableText = QT_TRANSLATE_NOOP("AppDelegate",
    "The media on the drive is not writable. insert a writable media on the drive and try again.");

/// ffmpeg's arguments for one track of an audio CD: 16-bit PCM, 44100 Hz, two channels.
QStringList wavArguments(const QString &source, const QString &output);
/// For one file of an MP3 disc: 192 kbit/s, 44100 Hz, two channels, without pictures.
QStringList mp3Arguments(const QString &source, const QString &output);
/// For one clip of a video disc: an MPEG-2 program stream, NTSC and Dolby Digital where the format
/// code is "0", PAL and MPEG audio for anything else.
QStringList mpegArguments(
    const QString &source, const QString &output, const QString &videoFormat, const QString &audioFormat);

/// Lets the converted file at `path`, where it is a track of the job's audio CD, say the names that `file` has on the list.
/// Called right behind the conversion, as the disc utility orders the tracks by when their files were last changed.
void nameTrack(const AppDelegate &controller, const QString &path, const NodeMediaFile &file);

} // namespace writing
