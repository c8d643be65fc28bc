#include "writing/DiscForms.h"

#include "app/FolderClaim.h"
#include "compilation/Measuring.h"
#include "runner/ActivityLog.h"
#include "runner/StatusSheets.h"

#include <QDir>
#include <QFileInfo>
#include <QProgressBar>

using namespace Qt::StringLiterals;

namespace writing {

QStringList wavArguments(const QString &source, const QString &output)
{
    return { u"-i"_s, source, u"-acodec"_s, u"pcm_s16le"_s, u"-ar"_s, u"44100"_s, u"-ac"_s, u"2"_s, output };
}

QStringList mp3Arguments(const QString &source, const QString &output)
{
    return { u"-i"_s, source, u"-vn"_s, u"-ar"_s, u"44100"_s, u"-ac"_s, u"2"_s, u"-ab"_s, u"192k"_s, u"-f"_s,
        u"mp3"_s, output };
}

QStringList mpegArguments(
    const QString &source, const QString &output, const QString &videoFormat, const QString &audioFormat)
{
    const bool ntsc = videoFormat == u"0";
    return { u"-i"_s, source, u"-target"_s, ntsc ? u"ntsc-dvd"_s : u"pal-dvd"_s, u"-s"_s,
        ntsc ? u"720x480"_s : u"720x576"_s, u"-r"_s, ntsc ? u"29.97"_s : u"25"_s, u"-acodec"_s,
        audioFormat == u"0" ? u"ac3"_s : u"mp2"_s, u"-ar"_s, u"48000"_s, u"-ac"_s, u"2"_s, output };
}

QString suffixedName(QString name, const QString &suffix)
{
    constexpr qsizetype longestName = 255;
    while (!name.isEmpty() && name.toUtf8().size() + suffix.toUtf8().size() > longestName)
        name.chop(name.back().isLowSurrogate() ? 2 : 1);
    return name + suffix;
}

QString convertedPath(const QString &folder, const QString &source, QLatin1StringView extension)
{
    QString base = source.mid(source.lastIndexOf(u'/') + 1);
    const QString oldExtension = compilation::pathExtension(base);
    if (!oldExtension.isEmpty())
        base.chop(oldExtension.size() + 1);
    return u"%1/%2"_s.arg(folder, suffixedName(base, u'.' + extension));
}

} // namespace writing

bool AppDelegate::mayWrite(const DiscForm &form, bool listIsEmpty)
{
    if (listIsEmpty)
        return alert(form.nothingListed, form.nothingListedText), false;
    if (IsDriveEmpty())
        return alert(writing::noDisc, writing::noDiscText), false;
    if (!IsMediaOneTimeWritable() && !IsMediaReWritable())
        return alert(writing::notWritable, writing::notWritableText), false;
    const QString type = TypeOfMediaInTheDrive();
    if (type == form.mediaType)
        return true;
    alert(form.wrongMedium, form.wrongMediumText);
    if (m_b_Debug_Mode)
        alert(type, form.warning);
    return false;
}

bool AppDelegate::claimFolder(const QString &folder)
{
    folderClaim.reset();
    QDir().mkpath(folder); // a person may have taken it away from the Documents folder
    folderClaim = FolderClaim::take(folder);
    if (!folderClaim) {
        alert(tr("Another Corvalis is at work"),
            tr("It prepares a disc in the folder %1. Wait until that disc is done and try again.")
                .arg(folder));
        return false;
    }
    RemoveAllContentInFolder(folder);
    return true;
}

void AppDelegate::beginJob()
{
    jobStart = activityLog->size();
}

void AppDelegate::convertList(
    quint64 progressMode, const std::function<QStringList(const NodeMediaFile &)> &argumentsFor)
{
    Show_Window_Progress(arrayMediaFiles.size());
    for (qsizetype i = 0; i < arrayMediaFiles.size(); ++i) {
        const NodeMediaFile file = arrayMediaFiles.at(i);
        i_Orig_Duration_in_Seconds = static_cast<quint64>(file.i_Duration_in_Seconds);
        windowProgress->showItem(file.s_File_Name_With_Extension, file.i_Duration_in_Seconds);
        percentTranscoded = 0;
        u_Type_Progress = progressMode;
        const QStringList arguments = argumentsFor(file);
        // Nothing is written over: of two files that are converted to one name the first one is kept.
        const bool taken = QFile::exists(arguments.last());
        transcodeAndWait(arguments, file.s_File_Name_With_Extension.simplified(), taken ? 1 : 0);
        if (taken) {
            activityLog->note(tr("“%1” was left out").arg(file.s_File_Path.simplified()),
                tr("another entry of the list is converted to “%1” too. Rename one of the files and try "
                   "again.")
                    .arg(QFileInfo(arguments.last()).fileName().simplified()));
        }
        windowProgress->progressOverall()->setValue(static_cast<int>(i + 1));
    }
    Close_Window_Progress();
}
