// Durations and sizes of what is listed.
#pragma once

#include "compilation/Records.h"

#include <QByteArray>
#include <QStringList>
#include <QStringView>

namespace compilation {

/// The 11 characters after the first "Duration:" of what `ffmpeg -i FILE` printed, unchanged, e.g.
/// " 00:03:25.4"; fewer where the report ends sooner, none without the word or when the report is
/// not UTF-8.
QString durationText(const QByteArray &report);

/// Whole seconds from a duration text, read by position: hours at 1-2, minutes at 4-5, seconds at
/// 7-8; what is no number there counts 0, the fraction is dropped.
qint64 secondsFromDurationText(const QString &duration);

/// Why a file has no duration: a sentence from the state of the file, and else from what `ffmpeg -i FILE`
/// printed. Empty where `duration`, its duration text, is that of a measured file. Any thread.
QString whyNotMeasured(const QString &path, const QString &duration, const QByteArray &report);

/// The leading digits of a field as a number: blanks before them are skipped, without digits it is 0.
qint64 lenientNumber(QStringView field);

/// A byte count for people: "%4.2f %@" with "bytes" to "TB" and the divisor 1024. A value of exactly
/// 1024 stays in the smaller unit.
QString sizeText(quint64 bytes);

/// A byte count in the largest unit by the same rule.
struct Size {
    double value;
    int unit; ///< 0 bytes to 4 TB

    /// In the next smaller unit; bytes have none.
    Size finer() const { return { value * 1024, unit - 1 }; }
};
Size scaled(quint64 bytes);
/// "bytes", "KB" to "TB"
QString unitWord(int unit);

/// The size of a file in bytes, links followed; 0 when it cannot be read.
quint64 fileSize(const QString &path);

/// The extension of a file name, without the dot: what follows the last dot, unless the name begins
/// with it or ends with it.
QString pathExtension(const QString &fileName);

/// One text per character of `text`, each made from the character's code.
QStringList splitStringIntoChars(const QString &text);

/// The record of the file at `path`, all but its duration. Any thread.
NodeMediaFile mediaRecord(const QUrl &url, const QString &path);

/// The record of the folder or file at `path`, which holds `bytes`.
NodeDataFolder folderRecord(const QString &path, quint64 bytes);

/// The record of the folder or file at `path`, measured at once. Of a folder's tree each file is asked.
NodeDataFolder dataRecord(const QString &path);

} // namespace compilation
