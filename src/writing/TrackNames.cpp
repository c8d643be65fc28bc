#include "writing/TrackNames.h"

#include <QCoreApplication>
#include <QFile>
#include <QtEndian>

#include <limits>

using namespace Qt::StringLiterals;

namespace writing {
namespace {

constexpr qint64 sizeField = 4; ///< where a RIFF file says how long it is
constexpr qint64 uncounted = 8; ///< bytes at its beginning that this length leaves out

QByteArray number(quint32 value)
{
    QByteArray bytes(sizeof value, Qt::Uninitialized);
    qToLittleEndian(value, bytes.data());
    return bytes;
}

/// A chunk of a RIFF file; chunks begin at even places.
QByteArray chunk(const char *id, const QByteArray &content)
{
    const QByteArray padding(content.size() % 2, '\0');
    return id + number(static_cast<quint32>(content.size())) + content + padding;
}

QByteArray field(const char *id, const QString &text)
{
    return chunk(id, text.toUtf8() + '\0');
}

/// Whether the file is as long as it says.
bool isComplete(QFile &wave)
{
    const QByteArray start = wave.read(uncounted);
    return start.size() == uncounted && start.startsWith("RIFF")
        && qFromLittleEndian<quint32>(start.constData() + sizeField) + uncounted == wave.size();
}

} // namespace

std::optional<compilation::TrackNames> namesToWrite(const NodeMediaFile &file, bool wanted)
{
    if (!wanted)
        return compilation::TrackNames();
    const compilation::TrackNames names{ file.title, file.performer };
    const compilation::TrackNames carried{ file.carriedTitle, file.carriedPerformer };
    return names == carried ? std::nullopt : std::optional(names);
}

QString writeTrackNames(const QString &path, const compilation::TrackNames &names)
{
    QFile wave(path);
    if (!wave.open(QIODevice::ReadWrite | QIODevice::Unbuffered | QIODevice::ExistingOnly))
        return wave.errorString();
    const qint64 size = wave.size();
    const QByteArray list = QByteArray(size % 2, '\0')
        + chunk("LIST", "INFO" + field("INAM", names.title) + field("IART", names.performer));
    const qint64 counted = size + list.size() - uncounted;
    if (!isComplete(wave) || counted > std::numeric_limits<quint32>::max())
        return QCoreApplication::translate("TrackNames", "The converted file is not complete");
    const QByteArray length = number(static_cast<quint32>(counted));
    if (wave.seek(size) && wave.write(list) == list.size() && wave.seek(sizeField)
        && wave.write(length) == length.size())
        return {};
    const QString why = wave.errorString();
    wave.resize(size);
    return why;
}

} // namespace writing
