#include "desktop/OpenedFiles.h"

#include "app/AppDelegate.h"

#include <QFileInfo>
#include <QMap>
#include <QMimeDatabase>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace desktop {
namespace {

struct Row {
    Destination destination;
    QStringList endings;
};

const QList<Row> &rows()
{
    using Kind = AppDelegate::ListKind;
    static const QList<Row> all{
        { Destination::List, { u"corvalis"_s } },
        { Destination::Image, { u"iso"_s, u"img"_s, u"dmg"_s } },
        { Destination::Audio, AppDelegate::acceptedExtensions(Kind::Audio) },
        { Destination::Video, AppDelegate::acceptedExtensions(Kind::Video) },
        { Destination::Audio, { u"m3u"_s, u"m3u8"_s, u"pls"_s, u"xspf"_s } },
    };
    return all;
}

/// Music and films of other formats.
Destination destinationByType(const QFileInfo &file)
{
    const QString type =
        QMimeDatabase().mimeTypeForFile(file.fileName(), QMimeDatabase::MatchExtension).name();
    return type.startsWith("audio/"_L1) || type == "application/ogg"_L1 ? Destination::Audio
        : type.startsWith("video/"_L1)                                  ? Destination::Video
                                                                        : Destination::Data;
}

} // namespace

Destination destinationOf(const QUrl &url)
{
    const QFileInfo file(url.toLocalFile());
    if (!url.isLocalFile() || !file.exists())
        return Destination::None;
    if (file.isDir())
        return Destination::Data;
    for (const Row &row : rows()) {
        if (row.endings.contains(file.suffix(), Qt::CaseInsensitive))
            return row.destination;
    }
    return destinationByType(file);
}

OpenedFiles sortedOut(const QList<QUrl> &urls)
{
    QMap<Destination, QList<QUrl>> found;
    QList<Destination> order;
    for (const QUrl &url : urls) {
        const Destination destination = destinationOf(url);
        found[destination].append(url);
        if (destination != Destination::None && !order.contains(destination))
            order.append(destination);
    }
    const auto most = std::ranges::max_element(
        order, {}, [&found](Destination destination) { return found.value(destination).size(); });
    if (most == order.end())
        return { Destination::None, {}, urls };
    if (*most != Destination::List && *most != Destination::Image)
        return { *most, urls, {} };
    OpenedFiles opened{ *most, found.value(*most).first(1), urls };
    opened.left.removeOne(opened.taken.first());
    return opened;
}

} // namespace desktop
