#include "runner/ToolRun.h"

#include "runner/ActivityLog.h"

#include <QDeadlineTimer>
#include <QMetaObject>

using namespace Qt::StringLiterals;

namespace runner {

QString ToolEnd::text() const
{
    switch (how) {
    case How::Ended:
        return code == 0 ? QObject::tr("ended without an error")
                         : QObject::tr("ended with status %1").arg(code);
    case How::CouldNotStart:
        return QObject::tr("could not be started: %1").arg(reason);
    case How::Crashed:
        return QObject::tr("crashed (signal %1)").arg(code);
    case How::EndedByUs:
        return QObject::tr("was ended because it gave no answer in time");
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
    }
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

QByteArray ToolRun::capture(int limit)
{
    constexpr qsizetype most = 64 * 1024 * 1024;
    m_position = m_log->begin(program(), arguments(), m_subject);
    setProcessChannelMode(MergedChannels);
    start(ReadOnly);
    QByteArray printed;
    const auto collect = [this, &printed] {
        const QByteArray piece = take(StandardOutput);
        printed.append(piece.constData(), qMin(piece.size(), most - printed.size()));
    };
    const QDeadlineTimer deadline(limit);
    while (state() != NotRunning && !deadline.hasExpired()) {
        waitForReadyRead(static_cast<int>(qMin<qint64>(deadline.remainingTime(), 100)));
        collect();
    }
    ToolEnd end = endOfChild();
    if (state() != NotRunning) {
        end = { ToolEnd::How::EndedByUs, 0, {} };
        terminate();
        if (!waitForFinished(500)) {
            kill();
            waitForFinished(1000);
        }
    }
    collect();
    finish(end);
    return printed;
}

QByteArray ToolRun::take(ProcessChannel channel)
{
    if (!isOpen())
        return {}; // it could not be started
    const QByteArray piece = channel == StandardOutput ? readAllStandardOutput() : readAllStandardError();
    if (!piece.isEmpty())
        m_log->append(m_position, piece);
    return piece;
}

QByteArray ToolRun::output() const
{
    return m_log->at(m_position).output;
}

ToolEnd ToolRun::endOfChild() const
{
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
    const bool troubled = end.troubled(m_expectedStatus);
    m_log->end(m_position, !troubled && end.code != 0 ? tr("%1, as expected").arg(end.text()) : end.text(),
        troubled);
    Q_EMIT ended(end);
}

} // namespace runner
