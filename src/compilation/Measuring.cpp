#include "compilation/Measuring.h"

#include <QFileInfo>
#include <QStringDecoder>

#include <array>
#include <limits>

using namespace Qt::StringLiterals;

namespace compilation {

QString durationText(const QByteArray &report)
{
    constexpr auto mark = "Duration:"_L1;
    constexpr qsizetype length = 11;
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = utf8(report);
    if (utf8.hasError())
        return {};
    const qsizetype at = text.indexOf(mark);
    return at < 0 ? QString() : text.mid(at + mark.size(), length);
}

qint64 lenientNumber(QStringView field)
{
    qsizetype i = 0;
    while (i < field.size() && (field[i] == u' ' || field[i] == u'\t'))
        ++i;
    constexpr qint64 most = (std::numeric_limits<qint64>::max() - 9) / 10;
    qint64 number = 0;
    for (; i < field.size() && field[i] >= u'0' && field[i] <= u'9' && number <= most; ++i)
        number = number * 10 + (field[i].unicode() - u'0');
    return number;
}

qint64 secondsFromDurationText(const QString &duration)
{
    const QStringView text(duration);
    const auto field = [text](qsizetype at) {
        return lenientNumber(at < text.size() ? text.mid(at, 2) : QStringView());
    };
    return field(1) * 3600 + field(4) * 60 + field(7);
}

QString sizeText(quint64 bytes)
{
    constexpr std::array units{ "bytes", "KB", "MB", "GB", "TB" };
    auto value = static_cast<double>(bytes);
    std::size_t unit = 0;
    if (bytes >= 1025) {
        do {
            value *= 0.0009765625;
            ++unit;
        } while (value > 1024.0 && unit + 1 < units.size());
    }
    return QString::asprintf("%4.2f %s", value, units[unit]);
}

quint64 fileSize(const QString &path)
{
    return static_cast<quint64>(QFileInfo(path).size());
}

QString pathExtension(const QString &fileName)
{
    const qsizetype dot = fileName.lastIndexOf(u'.');
    return dot > 0 ? fileName.mid(dot + 1) : QString();
}

QStringList splitStringIntoChars(const QString &text)
{
    QStringList characters;
    for (const QChar character : text)
        characters.append(QString(character));
    return characters;
}

NodeMediaFile mediaRecord(const QUrl &url, const QString &path)
{
    NodeMediaFile record;
    const qsizetype slash = path.lastIndexOf(u'/');
    record.s_File_URL = url;
    record.s_File_Path = path;
    record.s_Folder_Path = slash == 0 ? u"/"_s : path.left(qMax(slash, qsizetype(0)));
    record.s_File_Name_With_Extension = path.mid(slash + 1);
    record.s_File_Extension = pathExtension(record.s_File_Name_With_Extension);
    record.s_File_Size = sizeText(fileSize(path));
    return record;
}

NodeDataFolder folderRecord(const QString &path, quint64 bytes)
{
    return { path, static_cast<qint64>(bytes >> 10), sizeText(bytes) };
}

} // namespace compilation
