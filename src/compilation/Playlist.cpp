#include "compilation/Playlist.h"

#include "compilation/Measuring.h"

#include <QDir>
#include <QRegularExpression>
#include <QStringDecoder>
#include <QXmlStreamReader>

#include <algorithm>
#include <array>
#include <map>

using namespace Qt::StringLiterals;

namespace compilation {
namespace {

using Parse = void (*)(const QByteArray &content, Playlist &playlist);

/// False: the playlist is full.
bool append(Playlist &playlist, const QString &entry)
{
    playlist.isCut = playlist.entries.size() >= mostPlaylistEntries;
    if (!playlist.isCut)
        playlist.entries.append(entry);
    return !playlist.isCut;
}

QString decoded(const QByteArray &content)
{
    const auto marked = QStringConverter::encodingForData(content);
    QStringDecoder decoder(marked.value_or(QStringConverter::Utf8));
    const QString text = decoder(content);
    if (!decoder.hasError())
        return text;
    return QString::fromLatin1(content);
}

QStringList linesOf(const QByteArray &content)
{
    static const QRegularExpression end(u"[\\r\\n]"_s);
    return decoded(content).split(end, Qt::SkipEmptyParts);
}

void parseM3u(const QByteArray &content, Playlist &playlist)
{
    const QStringList lines = linesOf(content);
    for (const QString &line : lines) {
        const bool isEntry = !line.startsWith(u'#') && !line.trimmed().isEmpty();
        if (isEntry && !append(playlist, line))
            return;
    }
}

void parsePls(const QByteArray &content, Playlist &playlist)
{
    static const QRegularExpression file(
        u"^\\s*File(\\d{1,9})\\s*=\\s*(.+)$"_s, QRegularExpression::CaseInsensitiveOption);
    std::map<int, QString> entries;
    const QStringList lines = linesOf(content);
    for (const QString &line : lines) {
        if (const auto match = file.match(line); match.hasMatch())
            entries.insert_or_assign(match.captured(1).toInt(), match.captured(2).trimmed());
    }
    for (const auto &[number, entry] : entries) {
        if (!append(playlist, entry))
            return;
    }
}

/// The first location inside a track, which the reader has just entered; null where it has none.
QString locationIn(QXmlStreamReader &xml)
{
    QString location;
    while (xml.readNextStartElement()) {
        if (location.isNull() && xml.name() == "location"_L1)
            location = xml.readElementText(QXmlStreamReader::SkipChildElements).trimmed();
        else
            xml.skipCurrentElement();
    }
    return location;
}

void parseXspf(const QByteArray &content, Playlist &playlist)
{
    playlist.areAddresses = true;
    QXmlStreamReader xml(content);
    bool isPlaylist = false;
    while (!xml.atEnd() && !playlist.isCut) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        isPlaylist = isPlaylist || xml.name() == "playlist"_L1;
        if (!isPlaylist || xml.name() != "track"_L1)
            continue;
        if (const QString location = locationIn(xml); !location.isEmpty())
            append(playlist, location);
    }
    if (xml.hasError() || !isPlaylist)
        playlist = { {}, false, true, true };
}

struct Form {
    QLatin1StringView ending;
    Parse parse;
};
constexpr std::array forms{
    Form{ "m3u"_L1, parseM3u },
    Form{ "m3u8"_L1, parseM3u },
    Form{ "pls"_L1, parsePls },
    Form{ "xspf"_L1, parseXspf },
};

const Form *formOf(const QString &fileName)
{
    const QString ending = pathExtension(fileName).toLower();
    const auto form = std::ranges::find(forms, ending, &Form::ending);
    return form == forms.end() ? nullptr : &*form;
}

QUrl fileIn(const QString &folder, const QString &path)
{
    return QUrl::fromLocalFile(QDir::cleanPath(path.startsWith(u'/') ? path : folder + u'/' + path));
}

/// Of this computer, or of another one.
QUrl addressed(const QString &address, const QString &folder)
{
    const QUrl url = QUrl::fromLocalFile(folder + u'/').resolved(QUrl(address));
    const bool isHere = url.isLocalFile() && (url.host().isEmpty() || url.host() == "localhost"_L1);
    return isHere ? QUrl::fromEncoded("file://" + url.path(QUrl::FullyEncoded).toLatin1()) : url;
}

} // namespace

bool isPlaylist(const QString &fileName)
{
    return formOf(fileName);
}

Playlist parsePlaylist(const QString &fileName, const QByteArray &content)
{
    Playlist playlist;
    if (const Form *form = formOf(fileName))
        form->parse(content, playlist);
    return playlist;
}

QList<QUrl> placesOf(const QString &entry, bool isAddress, const QString &folder)
{
    static const QRegularExpression address(
        u"^\\s*(file:/|[a-z][a-z0-9+.-]+://)"_s, QRegularExpression::CaseInsensitiveOption);
    if (isAddress || address.match(entry).hasMatch())
        return { addressed(entry.trimmed(), folder) };
    QList<QUrl> places;
    const auto add = [&places, &folder](const QString &path) {
        if (const QUrl url = fileIn(folder, path); !places.contains(url))
            places.append(url);
    };
    for (const QString &path : { entry, entry.trimmed() }) {
        add(path);
        add(QUrl::fromPercentEncoding(path.toUtf8()));
        add(QString(path).replace(u'\\', u'/'));
    }
    return places;
}

} // namespace compilation
