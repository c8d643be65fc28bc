// What every tool run of this program was: for the person who wants to know, never for the program.
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QMutex>
#include <QObject>
#include <QStringList>

/// One line of the log: a tool run, or a note that no tool stands behind.
struct Activity {
    QDateTime started;
    QStringList command; ///< program and arguments; empty for a note
    QString subject; ///< what the run works on, as a person knows it; empty: nothing but the tool is known
    QString outcome; ///< how it ended, in words; empty while it runs
    bool troubled = false; ///< it did not start, crashed, was ended, or ended with another status than 0
    QByteArray output; ///< standard output and standard error as they came
    qint64 leftOut = 0; ///< bytes of output beyond what is kept
    bool spoke = true; ///< it ended by itself

    /// The command as one line that a shell would take, or the note's text.
    QString commandLine() const;
};

/// The list of all runs since the program started. Every operation may be called from any thread;
/// changed() is emitted in the thread that made the change.
class ActivityLog : public QObject {
    Q_OBJECT
public:
    /// More output of one run than this is counted, not kept.
    static constexpr qint64 keptOutput = 4 * 1024 * 1024;

    using QObject::QObject;

    /// Adds a run that has begun and answers its position in the log.
    qsizetype begin(const QString &program, const QStringList &arguments, const QString &subject = {});
    void append(qsizetype position, const QByteArray &output);
    /// `spoke`: it ended by itself, so that its last line is its reason.
    void end(qsizetype position, const QString &outcome, bool troubled, bool spoke = true);

    /// Adds something that went wrong without a tool, for example a file that could not be copied.
    void note(const QString &text, const QString &detail);

    qsizetype size() const;
    Activity at(qsizetype position) const;

    /// Why a run did not end well, on one line: its subject or the tool, and the last reason that it gave; how it ended
    /// where it gave none, or where it did not end by itself.
    QString trouble(qsizetype position) const;

    /// The whole log, or one run, as text to copy or save.
    QString text() const;
    static QString text(const Activity &activity);

Q_SIGNALS:
    void changed();

private:
    mutable QMutex m_mutex;
    QList<Activity> m_activities;
};
