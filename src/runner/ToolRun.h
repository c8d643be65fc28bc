// One wrapper for every child process: what to run goes in, how it ended comes out.
#pragma once

#include <QByteArray>
#include <QPointer>
#include <QProcess>
#include <QString>
#include <QStringList>

#include <functional>

class ActivityLog;

namespace runner {

class OutputPipe;

/// How a child process came to its end.
struct ToolEnd {
    enum class How {
        Ended, ///< by itself, with `code`
        CouldNotStart,
        Crashed, ///< by a signal that we did not send
        EndedByUs, ///< because its time was up
        Stopped, ///< because a person wanted it
    };
    How how = How::Ended;
    int code = 0;
    QString reason; ///< why it could not start, in the system's words

    /// What happened, for the log; begins in small letters where the language has it so.
    QString text() const;
    /// The same as a sentence about `tool`, without its full stop.
    QString sentence(const QString &tool) const;
    /// Whether this is not how a run that should end with `expected` ends.
    bool troubled(int expected = 0) const { return how != How::Ended || code != expected; }
};

/// A child process that writes itself into the activity log. Its standard input is the null device.
/// Lives in the thread that made it; that thread needs an event loop unless only capture() is used.
/// Destroying it ends the child.
class ToolRun : public QProcess {
    Q_OBJECT
public:
    ToolRun(
        const QString &program, const QStringList &arguments, ActivityLog *log, QObject *parent = nullptr);
    ~ToolRun() override;

    /// The status with which this tool ends when all is well; 0 unless set.
    void setExpectedStatus(int status) { m_expectedStatus = status; }

    /// What the run works on, as a person knows it; told in place of the tool's name when it fails.
    void setSubject(const QString &subject) { m_subject = subject; }

    /// What the child makes can be read by its owner only. Call it before launch().
    void makeForOwnerOnly();

    /// Starts the child. ended() follows exactly once, also when it cannot be started, and never
    /// before control is back in the event loop.
    void launch();

    /// Asks the child to end, and ends it where it has not done so after `patience` milliseconds. Returns at once; ended()
    /// follows also when the child cannot be ended, which is then left to itself. A child that ends as it should in spite
    /// of it has ended by itself.
    void stop(int patience);

    /// Drops all who listen to this run. It goes on by itself where it has not ended, and is destroyed at its end.
    void leaveToItself();

    /// Answers all that it prints, both channels in the order of writing. Blocks the calling thread until
    /// the child closes its output, at most `limit` milliseconds: then the child is ended, and what it printed
    /// so far is the answer. Of more than 64 MiB the rest is dropped. A child that closes its output and
    /// goes on is left to itself: hasEnded() is false then, and ended() follows, unless this is destroyed before.
    /// `meanwhile` is called many times a second until then.
    QByteArray capture(int limit, const std::function<void()> &meanwhile = {});

    /// How the child ended; meaningful after ended() or capture().
    const ToolEnd &end() const { return m_end; }
    bool hasEnded() const { return m_finished; }
    /// Where the run stands in the activity log.
    qsizetype position() const { return m_position; }
    /// All output so far, as far as the log keeps it.
    QByteArray output() const;

    /// Takes what has arrived on a channel, into the log as well.
    QByteArray take(ProcessChannel channel);

Q_SIGNALS:
    /// What has just been taken from a channel.
    void printed(const QByteArray &piece);
    void ended(const runner::ToolEnd &end);

private:
    enum class Piece { Some, None, End };
    Piece collect(const OutputPipe &pipe, int patience, QByteArray &printed);
    /// Until the child has closed its output or ended; false when `limit` milliseconds have passed.
    bool collectToEnd(
        const OutputPipe &pipe, int limit, const std::function<void()> &meanwhile, QByteArray &printed);
    void endChild(); ///< asks it to end, and ends it half a second later
    void finish(const ToolEnd &end);
    ToolEnd endOfChild() const;

    const QPointer<ActivityLog> m_log;
    qsizetype m_position = -1;
    ToolEnd m_end;
    QString m_subject;
    int m_expectedStatus = 0;
    bool m_finished = false;
    bool m_answered = false; ///< it has closed its output and goes on
    bool m_stopped = false; ///< it was asked to end
};

} // namespace runner
