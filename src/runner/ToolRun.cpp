#include "runner/ToolRun.h"

#include "runner/ActivityLog.h"

#include <QDeadlineTimer>
#include <QMetaObject>
#include <QTimer>

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <optional>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

using namespace Qt::StringLiterals;

namespace runner {

/// What a child prints on both channels, in the order of writing.
class OutputPipe {
public:
    OutputPipe()
    {
        if (::pipe2(m_ends.data(), O_CLOEXEC) != 0)
            m_ends = { -1, -1 };
    }
    OutputPipe(const OutputPipe &) = delete;
    OutputPipe &operator=(const OutputPipe &) = delete;
    ~OutputPipe()
    {
        closeChildsEnd();
        if (m_ends[0] >= 0)
            ::close(m_ends[0]);
    }

    int childsEnd() const { return m_ends[1]; }
    void closeChildsEnd()
    {
        if (m_ends[1] >= 0)
            ::close(std::exchange(m_ends[1], -1));
    }

    /// What has arrived, waited for at most `patience` milliseconds; nothing at the end of the output.
    std::optional<QByteArray> read(int patience) const
    {
        pollfd arrival{ m_ends[0], POLLIN, 0 };
        const int ready = m_ends[0] < 0 ? 1 : ::poll(&arrival, 1, patience);
        if (ready <= 0)
            return QByteArray();
        QByteArray piece(64 * 1024, Qt::Uninitialized);
        const ssize_t count = ::read(m_ends[0], piece.data(), static_cast<std::size_t>(piece.size()));
        if (count == 0 || (count < 0 && errno != EINTR))
            return std::nullopt;
        piece.truncate(qMax<qsizetype>(count, 0));
        return piece;
    }

private:
    std::array<int, 2> m_ends;
};

QString ToolEnd::text() const
{
    switch (how) {
    case How::Ended:
        return code == 0 ? ToolRun::tr("ended without an error")
                         : ToolRun::tr("ended with status %1").arg(code);
    case How::CouldNotStart:
        return ToolRun::tr("could not be started: %1").arg(reason);
    case How::Crashed:
        return ToolRun::tr("crashed (signal %1)").arg(code);
    case How::EndedByUs:
        return ToolRun::tr("was ended because it gave no answer in time");
    case How::Stopped:
        return ToolRun::tr("was stopped");
    }
    Q_UNREACHABLE();
}

QString ToolEnd::sentence(const QString &tool) const
{
    switch (how) {
    case How::Ended:
        return code == 0 ? ToolRun::tr("%1 ended without an error").arg(tool)
                         : ToolRun::tr("%1 ended with status %2").arg(tool, QString::number(code));
    case How::CouldNotStart:
        return ToolRun::tr("%1 could not be started: %2").arg(tool, reason);
    case How::Crashed:
        return ToolRun::tr("%1 crashed (signal %2)").arg(tool, QString::number(code));
    case How::EndedByUs:
        return ToolRun::tr("%1 was ended because it gave no answer in time").arg(tool);
    case How::Stopped:
        return ToolRun::tr("%1 was stopped").arg(tool);
    }
    Q_UNREACHABLE();
}

ToolRun::ToolRun(const QString &program, const QStringList &arguments, ActivityLog *log, QObject *parent)
    : QProcess(parent)
    , m_log(log)
{
    setProgram(program);
    setArguments(arguments);
    setStandardInputFile(nullDevice());
}

ToolRun::~ToolRun()
{
    disconnect();
    if (state() != NotRunning) {
        kill();
        waitForFinished(1000);
        if (m_log && m_position >= 0)
            finish({ m_answered ? ToolEnd::How::Ended : ToolEnd::How::EndedByUs, 0, {} });
    }
}

void ToolRun::makeForOwnerOnly()
{
    setChildProcessModifier([] { ::umask(S_IRWXG | S_IRWXO); });
}

void ToolRun::launch()
{
    m_position = m_log->begin(program(), arguments(), m_subject);
    connect(this, &QProcess::finished, this, [this] { finish(endOfChild()); });
    connect(this, &QProcess::errorOccurred, this, [this](ProcessError error) {
        if (error == FailedToStart)
            QMetaObject::invokeMethod(
                this, [this] { finish(endOfChild()); }, Qt::QueuedConnection);
    });
    start(ReadOnly);
}

void ToolRun::stop(int patience)
{
    if (m_stopped || m_finished)
        return;
    m_stopped = true;
    terminate();
    QTimer::singleShot(patience, this, [this] { kill(); });
    // A child that waits for a dead device cannot be ended by anybody.
    constexpr int afterKill = 5000;
    QTimer::singleShot(patience + afterKill, this, [this] { finish({ ToolEnd::How::Stopped, 0, {} }); });
}

void ToolRun::leaveToItself()
{
    disconnect(this, &ToolRun::ended, nullptr, nullptr);
    disconnect(this, &ToolRun::printed, nullptr, nullptr);
    for (const auto channel : { &QProcess::readyReadStandardOutput, &QProcess::readyReadStandardError })
        disconnect(this, channel, nullptr, nullptr);
    if (state() == NotRunning && hasEnded())
        return deleteLater();
    connect(this, &QProcess::readyReadStandardOutput, this, [this] { take(StandardOutput); });
    connect(this, &QProcess::readyReadStandardError, this, [this] { take(StandardError); });
    connect(this, &QProcess::finished, this, &QObject::deleteLater);
    connect(this, &ToolRun::ended, this, [this] {
        if (state() == NotRunning)
            deleteLater();
    });
}

/// Adds what comes within `patience` milliseconds to `printed`, and nothing more once that is very long.
ToolRun::Piece ToolRun::collect(const OutputPipe &pipe, int patience, QByteArray &printed)
{
    constexpr qsizetype most = 64 * 1024 * 1024;
    const auto piece = pipe.read(patience);
    if (!piece)
        return Piece::End;
    if (piece->isEmpty())
        return Piece::None;
    m_log->append(m_position, *piece);
    printed.append(piece->constData(), qMin(piece->size(), most - printed.size()));
    return Piece::Some;
}

bool ToolRun::collectToEnd(
    const OutputPipe &pipe, int limit, const std::function<void()> &meanwhile, QByteArray &printed)
{
    constexpr qint64 moment = 40;
    const QDeadlineTimer deadline(limit);
    while (!deadline.hasExpired()) {
        if (meanwhile)
            meanwhile();
        const int patience = static_cast<int>(qMin(deadline.remainingTime(), moment));
        const Piece piece = collect(pipe, patience, printed);
        // A child of the child may keep the pipe open.
        if (piece == Piece::End || (piece == Piece::None && (waitForFinished(0) || state() == NotRunning)))
            return true;
    }
    return false;
}

void ToolRun::endChild()
{
    terminate();
    if (!waitForFinished(500)) {
        kill();
        waitForFinished(1000);
    }
}

QByteArray ToolRun::capture(int limit, const std::function<void()> &meanwhile)
{
    m_position = m_log->begin(program(), arguments(), m_subject);
    OutputPipe pipe;
    setProcessChannelMode(ForwardedChannels); // the pipe is our own: QProcess does not tell when it is closed
    setChildProcessModifier([fd = pipe.childsEnd()] {
        ::dup2(fd, STDOUT_FILENO);
        ::dup2(fd, STDERR_FILENO);
    });
    start(ReadOnly);
    pipe.closeChildsEnd();
    QByteArray printed;
    const bool closed = collectToEnd(pipe, limit, meanwhile, printed);
    // Most end at once after that, and how they do belongs into the log.
    constexpr int moment = 100;
    if (closed && state() != NotRunning && !waitForFinished(moment) && state() != NotRunning) {
        m_answered = true;
        connect(this, &QProcess::finished, this, [this] { finish(endOfChild()); });
        return printed;
    }
    const bool ended = state() == NotRunning;
    if (!ended)
        endChild();
    // What it printed just before its end.
    while (collect(pipe, 0, printed) == Piece::Some) { }
    finish(ended ? endOfChild() : ToolEnd{ ToolEnd::How::EndedByUs, 0, {} });
    return printed;
}

QByteArray ToolRun::take(ProcessChannel channel)
{
    if (!isOpen())
        return {}; // it could not be started
    const QByteArray piece = channel == StandardOutput ? readAllStandardOutput() : readAllStandardError();
    if (!piece.isEmpty()) {
        m_log->append(m_position, piece);
        Q_EMIT printed(piece);
    }
    return piece;
}

QByteArray ToolRun::output() const
{
    return m_log->at(m_position).output;
}

ToolEnd ToolRun::endOfChild() const
{
    const bool asItShould = exitStatus() == NormalExit && exitCode() == m_expectedStatus;
    if (m_stopped && !asItShould)
        return { ToolEnd::How::Stopped, exitCode(), {} };
    if (error() == FailedToStart)
        return { ToolEnd::How::CouldNotStart, 0, errorString() };
    if (exitStatus() == CrashExit)
        return { ToolEnd::How::Crashed, exitCode(), {} };
    return { ToolEnd::How::Ended, exitCode(), {} };
}

void ToolRun::finish(const ToolEnd &end)
{
    if (m_finished)
        return;
    m_finished = true;
    m_end = end;
    take(StandardOutput);
    if (processChannelMode() == SeparateChannels)
        take(StandardError);
    const bool troubled = end.troubled(m_expectedStatus) && end.how != ToolEnd::How::Stopped;
    m_log->end(m_position, !troubled && end.code != 0 ? tr("%1, as expected").arg(end.text()) : end.text(),
        troubled, end.how == ToolEnd::How::Ended);
    Q_EMIT ended(end);
}

} // namespace runner
