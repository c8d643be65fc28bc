#include "runner/ProgressParser.h"

#include "compilation/Measuring.h"

using namespace Qt::StringLiterals;

namespace runner {

quint64 Return_Seconds_From_VOB_Duration_Str(const QString &time)
{
    const QStringView text(time);
    const auto field = [text](qsizetype at) {
        return static_cast<quint64>(
            compilation::lenientNumber(at < text.size() ? text.mid(at, 2) : QStringView()));
    };
    return field(0) * 3600 + field(3) * 60 + field(6);
}

std::optional<quint64> newestProgress(const QString &piece)
{
    constexpr auto mark = "time="_L1;
    constexpr qsizetype complete = 13; // the mark and eight characters of time
    qsizetype newest = piece.indexOf(mark);
    if (newest < 0 || piece.size() - newest < complete)
        return std::nullopt;
    for (;;) {
        const qsizetype next = piece.indexOf(mark, newest + complete, Qt::CaseInsensitive);
        if (next < 0 || piece.size() - next < complete)
            break;
        newest = next;
    }
    return Return_Seconds_From_VOB_Duration_Str(piece.mid(newest + mark.size(), 8));
}

float progressPercent(quint64 seconds, quint64 duration)
{
    return static_cast<float>(seconds) * 100.0F / static_cast<float>(duration);
}

} // namespace runner
