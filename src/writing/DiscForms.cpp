#include "writing/DiscForms.h"

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

} // namespace writing

bool AppDelegate::mayWrite(const DiscForm &form, bool listIsEmpty)
{
    if (listIsEmpty)
        return alert(tr(form.nothingListed), tr(form.nothingListedText)), false;
    const bool empty = IsDriveEmpty();
    if (tellDriveGone())
        return false;
    if (empty)
        return alert(tr(writing::noDisc), tr(writing::noDiscText)), false;
    if (!IsMediaOneTimeWritable() && !IsMediaReWritable())
        return alert(tr(writing::notWritable), tr(writing::notWritableText)), false;
    const QString type = TypeOfMediaInTheDrive();
    if (type == form.mediaType)
        return !projects::hasDiscName(*projects::byCode(form.code)) || mayUseDiscName();
    alert(tr(form.wrongMedium), tr(form.wrongMediumText));
    if (m_b_Debug_Mode)
        alert(type, tr(form.warning));
    return false;
}
