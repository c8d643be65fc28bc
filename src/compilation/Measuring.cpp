#include "compilation/Measuring.h"

#include "compilation/FolderTree.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStringDecoder>

#include <array>
#include <limits>

using namespace Qt::StringLiterals;

namespace compilation {

static constexpr std::array units{ "bytes", "KB", "MB", "GB", "TB" };

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

QString whyNotMeasured(const QString &path, const QString &duration, const QByteArray &report)
{
    static const QRegularExpression measured(u"^ \\d+:\\d\\d:"_s);
    if (measured.match(duration).hasMatch())
        return {};
    const auto say = [](const char *text) { return QCoreApplication::translate("Measuring", text); };
    const QFileInfo info(path);
    if (!info.exists())
        return say(QT_TRANSLATE_NOOP("Measuring", "There is no such file any more."));
    if (!info.isReadable())
        return say(QT_TRANSLATE_NOOP("Measuring", "You have no permission to read this file."));
    if (info.isFile() && info.size() == 0)
        return say(QT_TRANSLATE_NOOP("Measuring", "The file is empty."));
    if (!QByteArrayView(report).isValidUtf8())
        return say(QT_TRANSLATE_NOOP("Measuring", "What the file says of itself is not valid UTF-8 text."));
    const QString last = QString::fromUtf8(report).trimmed().section(u'\n', -1).trimmed();
    const qsizetype reason = last.startsWith(path + u": "_s) ? path.size() + 2 : -1;
    if (reason < 0)
        return say(QT_TRANSLATE_NOOP("Measuring", "The file does not say how long it is."));
    return say(QT_TRANSLATE_NOOP("Measuring", "The file cannot be read as sound or film: %1."))
        .arg(last.sliced(reason));
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

Size scaled(quint64 bytes)
{
    Size size{ static_cast<double>(bytes), 0 };
    if (bytes >= 1025) {
        do {
            size.value *= 0.0009765625;
            ++size.unit;
        } while (size.value > 1024.0 && size.unit + 1 < static_cast<int>(units.size()));
    }
    return size;
}

QString unitWord(int unit)
{
    return QLatin1StringView(units.at(static_cast<std::size_t>(unit)));
}

QString sizeText(quint64 bytes)
{
    const Size size = scaled(bytes);
    return QString::asprintf("%4.2f ", size.value) + unitWord(size.unit);
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
    return { path, static_cast<qint64>(bytes >> 10), sizeText(bytes), {} };
}

NodeDataFolder dataRecord(const QString &path)
{
    const QFileInfo info(path);
    const quint64 bytes = info.isDir() ? treeSize(QFile::encodeName(path).toStdString())
        : info.exists()                ? fileSize(path)
                                       : 0;
    NodeDataFolder record = folderRecord(path, bytes);
    if (!info.exists()) {
        record.whyNotMeasured = QCoreApplication::translate(
            "Measuring", QT_TRANSLATE_NOOP("Measuring", "There is no such file or folder any more."));
    }
    return record;
}

} // namespace compilation
