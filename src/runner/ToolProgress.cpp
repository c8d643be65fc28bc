#include "runner/ToolProgress.h"

#include <QRegularExpression>

#include <array>

using namespace Qt::StringLiterals;

namespace runner {

namespace {

using Phase = ToolProgress::Phase;

struct PhaseRow {
    QLatin1StringView word;
    Phase phase;
};
constexpr std::array phases{
    PhaseRow{ "Preparing"_L1, Phase::Preparing },
    PhaseRow{ "Erasing"_L1, Phase::Erasing },
    PhaseRow{ "Writing"_L1, Phase::Writing },
    PhaseRow{ "Closing the disc"_L1, Phase::Closing },
    PhaseRow{ "Verifying"_L1, Phase::Comparing },
};

/// A line is no longer than this; what comes behind is dropped up to its end.
constexpr qsizetype longestLine = 4096;

} // namespace

std::optional<ToolProgress> readProgress(const QString &line)
{
    static const QRegularExpression shape(
        u"^(\\w[\\w ]*?)(?:: (\\d{1,3}(?:\\.\\d+)?) ?%)?(?:, (\\d+(?:\\.\\d+)?x))?(?:, buffer \\d+ ?%)?$"_s);
    const QRegularExpressionMatch match = shape.match(line);
    if (!match.hasMatch())
        return std::nullopt;
    ToolProgress progress;
    for (const PhaseRow &row : phases) {
        if (match.capturedView(1) == row.word)
            progress.phase = row.phase;
    }
    if (match.hasCaptured(2))
        progress.percent = qMin(match.capturedView(2).toDouble(), 100.0);
    progress.speed = match.captured(3);
    if (progress.phase == Phase::Other && progress.percent < 0)
        return std::nullopt;
    return progress;
}

QStringList LineReader::take(const QByteArray &piece)
{
    m_unfinished += piece;
    QStringList lines;
    qsizetype start = 0;
    for (qsizetype i = 0; i < m_unfinished.size(); ++i) {
        if (m_unfinished.at(i) != '\n' && m_unfinished.at(i) != '\r')
            continue;
        const QString line =
            QString::fromUtf8(m_unfinished.mid(start, qMin(i - start, longestLine))).trimmed();
        if (!line.isEmpty())
            lines.append(line);
        start = i + 1;
    }
    m_unfinished = m_unfinished.mid(start, longestLine);
    return lines;
}

} // namespace runner
