#include "compilation/Acceptance.h"

#include "compilation/FolderNames.h"
#include "compilation/Measuring.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace compilation {
namespace {

struct Row {
    Refusal refusal;
    const char *sentence; ///< %1: the endings
};
const Row rows[] = {
    { Refusal::Elsewhere,
        QT_TRANSLATE_NOOP("Acceptance",
            "These are not files of this computer. Copy them into a folder of it, and add them from "
            "there.") },
    { Refusal::Missing,
        QT_TRANSLATE_NOOP("Acceptance",
            "There are no files of these names any more. They may have been moved or renamed.") },
    { Refusal::DanglingLink,
        QT_TRANSLATE_NOOP("Acceptance", "These are links, and what they lead to is not there.") },
    { Refusal::Forbidden,
        QT_TRANSLATE_NOOP("Acceptance",
            "You have no permission to look into these folders. Their owner can give it to you.") },
    { Refusal::NoFile,
        QT_TRANSLATE_NOOP("Acceptance",
            "These are pipes or devices and not files, whatever their names end in. They have no length.") },
    { Refusal::OtherEnding,
        QT_TRANSLATE_NOOP(
            "Acceptance", "This list takes files that end in %1, and folders with such files in them.") },
    { Refusal::FolderWithout,
        QT_TRANSLATE_NOOP("Acceptance",
            "No file directly in these folders ends in %1. Folders in them are not looked into.") },
    { Refusal::FolderInCapitals,
        QT_TRANSLATE_NOOP("Acceptance",
            "The files in these folders have their endings in capital letters, and of a folder only those in "
            "small letters are taken. Add the files themselves.") },
    { Refusal::NoSound,
        QT_TRANSLATE_NOOP("Acceptance",
            "This list takes files that end in %1, and any others with sound in them. ffmpeg finds none in "
            "these.") },
    { Refusal::NoFilm,
        QT_TRANSLATE_NOOP("Acceptance",
            "This list takes files that end in %1, and any others with a film in them. ffmpeg finds none in "
            "these.") },
    { Refusal::FolderWithoutSound,
        QT_TRANSLATE_NOOP("Acceptance", "ffmpeg finds no sound in any file in these folders or below.") },
    { Refusal::FolderWithoutFilm,
        QT_TRANSLATE_NOOP("Acceptance", "ffmpeg finds no film in any file in these folders or below.") },
    { Refusal::InPlaylist,
        QT_TRANSLATE_NOOP("Acceptance",
            "These are playlists and folders that a playlist names, and those are not followed. Add them "
            "themselves.") },
    { Refusal::EmptyPlaylist,
        QT_TRANSLATE_NOOP("Acceptance", "These playlists name no files, or they are damaged.") },
    { Refusal::LongPlaylist,
        QT_TRANSLATE_NOOP("Acceptance",
            "These playlists name more than 100,000 files. Only so many were taken, the first ones.") },
    { Refusal::LargePlaylist,
        QT_TRANSLATE_NOOP("Acceptance", "These files are too large for playlists, which have up to 32 MB.") },
    { Refusal::LargeFolder,
        QT_TRANSLATE_NOOP("Acceptance",
            "There are more than 100,000 files below these folders. Only so many were taken, the first "
            "ones.") },
};

/// What keeps anything at all from being added, whatever it is.
Refusal refusalOfPlace(const QUrl &url)
{
    if (!url.isLocalFile())
        return Refusal::Elsewhere;
    const QFileInfo info(url.toLocalFile());
    if (!info.exists())
        return info.isSymbolicLink() ? Refusal::DanglingLink : Refusal::Missing;
    const QByteArray path = QFile::encodeName(info.filePath());
    const bool listable = ::access(path.constData(), R_OK | X_OK) == 0;
    return info.isDir() && !listable ? Refusal::Forbidden : Refusal::None;
}

Refusal refusalOfContent(const QString &folder, const QStringList &endings)
{
    const QStringList names = namesIn(folder).names;
    const auto some = [&](Qt::CaseSensitivity sensitivity) {
        return std::ranges::any_of(
            names, [&](const QString &name) { return endings.contains(pathExtension(name), sensitivity); });
    };
    return some(Qt::CaseSensitive)  ? Refusal::None
        : some(Qt::CaseInsensitive) ? Refusal::FolderInCapitals
                                    : Refusal::FolderWithout;
}

} // namespace

Refusal refusalOfMedia(const QUrl &url, const QStringList &endings)
{
    if (const Refusal refusal = refusalOfPlace(url); refusal != Refusal::None)
        return refusal;
    const QFileInfo info(url.toLocalFile());
    if (info.isDir())
        return refusalOfContent(info.filePath(), endings);
    if (isNoFile(info.filePath()))
        return Refusal::NoFile;
    return endings.contains(info.suffix(), Qt::CaseInsensitive) ? Refusal::None : Refusal::OtherEnding;
}

Refusal refusalOfData(const QUrl &url)
{
    if (const Refusal refusal = refusalOfPlace(url); refusal != Refusal::None)
        return refusal;
    return isNoFile(url.toLocalFile()) ? Refusal::NoFile : Refusal::None;
}

bool isNoFile(const QString &path)
{
    struct stat facts;
    return ::stat(QFile::encodeName(path).constData(), &facts) == 0 && !S_ISREG(facts.st_mode)
        && !S_ISDIR(facts.st_mode);
}

QString sentence(Refusal refusal, const QStringList &endings)
{
    const auto row = std::ranges::find(rows, refusal, &Row::refusal);
    if (row == std::end(rows))
        return {};
    const QString text = QCoreApplication::translate("Acceptance", row->sentence);
    return text.contains("%1"_L1) ? text.arg(endings.join(u", "_s)) : text;
}

} // namespace compilation
