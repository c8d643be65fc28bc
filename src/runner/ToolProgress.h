// How far a disc tool says it is, read from its lines.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

namespace runner {

/// What one line tells: "Writing: 13.2 %, 8.1x, buffer 98 %".
struct ToolProgress {
    /// What the tool is doing, by the word with which the line begins.
    enum class Phase { Other, Preparing, Erasing, Writing, Comparing, Closing };

    Phase phase = Phase::Other;
    double percent = -1; ///< of the phase, 0 to 100; below 0: not told
    QString speed; ///< as told, such as "8.1x"; empty: not told
};

/// Nothing when the line tells no progress.
std::optional<ToolProgress> readProgress(const QString &line);

/// Gathers whole lines out of pieces that end anywhere, also within a letter. A carriage return ends a line as a line
/// feed does.
class LineReader {
public:
    /// The lines that this piece completes, without blanks at their ends; empty lines are left out. Of a line without
    /// end only the beginning is kept.
    QStringList take(const QByteArray &piece);
    /// The beginning of the line that is being printed.
    QString rest() const { return QString::fromUtf8(m_unfinished); }

private:
    QByteArray m_unfinished;
};

} // namespace runner
