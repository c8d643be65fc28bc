// A job: one disc, image or erasure in the making, from the moment after the checks to its one end.
//
//     begin -> [Converting | Authoring | Gathering | Imaging]* -> Writing -> Comparing -> Emptying -> end(Outcome)
//                  |  progressed(Progress)
//                  '--stop()--> the same way out, Outcome::How::Stopped
//
// The controller holds at most one, and "a job is under way" is that pointer. The job owns what lives as long as it
// does: the claim on the working folder, the run that is watched, what was left out so far. It knows none of those who
// listen to it.
#pragma once

#include "runner/TimeLeft.h"
#include "runner/ToolProgress.h"
#include "runner/ToolRun.h"
#include "writing/Outcome.h"

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>

#include <memory>

class FolderClaim;

namespace writing {

enum class Stage { Converting, Authoring, Gathering, Imaging, Exchanging, Erasing, Writing, Emptying };

/// What a job tells while it runs.
struct Progress {
    Stage stage = Stage::Writing;
    QString words; ///< the newest whole line of the tool
    QString item; ///< the file or folder at hand
    qsizetype number = 0; ///< of that item, from 1
    qsizetype count = 0; ///< of all items
    double itemPercent = -1; ///< of the item, 0 to 100; below 0: not known, as below
    double percent = -1; ///< of the stage; of a disc that is compared, over writing and comparing together
    QString speed; ///< as the tool tells it; empty: not told
    qint64 files = 0, bytes = 0, bytesExpected = 0; ///< gathered so far
    std::optional<int> secondsLeft; ///< of the stage
};

/// How long a tool that was asked to end may take before it is killed, in milliseconds.
struct EndingPatience {
    int tool = 5'000; ///< one that only uses files
    int image = 30'000; ///< one that makes an image: what it wrote has to reach the file system
    int disc = 180'000; ///< one that writes or erases a disc: a drive has to close what it was writing
};

/// Lives on the GUI thread.
class Job : public QObject {
    Q_OBJECT
public:
    explicit Job(Work work, EndingPatience patience = {});
    ~Job() override;

    /// Keeps other programs of ours out of the working folder for the time of the job. False: one is in it already.
    bool claim();

    const Work &work() const { return m_work; }
    const Progress &progress() const { return m_progress; }

    /// A stage begins that is not a tool's.
    void enter(Stage stage);
    /// The next of `count` items begins; `weight` of `weights` is its share of the stage's work.
    void beginItem(const QString &name, qsizetype number, qsizetype count, qint64 weight, qint64 weights);
    void itemProgressed(double percent);
    void gathered(const QString &folder, qsizetype number, qsizetype count, qint64 files, qint64 bytes,
        qint64 bytesExpected);

    /// Makes `run` the one that is watched, and drops the one before: no handler of that one can fire any more, though
    /// it may go on by itself. Null: none. `decides`: its end decides whether the job's work was done.
    void watch(runner::ToolRun *run, Stage stage, bool decides);
    runner::ToolRun *watched() const { return m_watched; }

    /// The full path of the image that is made.
    void setImage(const QString &path) { m_work.image = path; }

    /// The medium that is written can be erased, by its newest status.
    void setRewritable(bool rewritable) { m_work.rewritable = rewritable; }

    /// What the writing tool is about to be given is empty: a failure of it needs no other reason.
    void foundNothing() { m_nothing = true; }

    /// What goes onto the disc or into the image, as far as it is known before: "12 tracks", and its bytes.
    void describe(const QString &content, qint64 bytes);

    /// A sentence that goes before what was left out, and makes the disc incomplete as that does.
    void remark(const QString &sentence) { m_remark = sentence; }

    /// The work cannot go on, for this reason: a sentence. The first reason holds.
    void fail(const QString &reason);

    /// Something will not be on the disc; told by the name that a person knows. `run`: where the log tells of it.
    void leaveOut(const QString &what, qsizetype run = -1);

    /// Ends the work as soon as it can be: the tool that runs is asked to end at once, and killed when it does not
    /// within the time that its stage needs. What follows is the ordinary way out. Never blocks.
    void stop();
    bool isStopping() const { return m_stopping; }
    /// What is lost by stopping now, in whole sentences.
    QString costOfStopping() const;

    /// The job's one end: gives the working folder back and tells how it went. Once.
    Outcome end();

    /// `text` with the paths in the working folder as a person knows them, from that folder on, and without its own.
    QString forPerson(QString text) const;

Q_SIGNALS:
    void progressed(const writing::Progress &progress);
    /// stop() was called for the first time.
    void stopping();
    void ended(const writing::Outcome &outcome);

private:
    void readLine(const QString &line);
    void readAuthoring(const QString &line);
    void readNote(const QString &note);
    void readProgress(const runner::ToolProgress &told);
    void decided(const runner::ToolRun &run);
    bool isLastWork() const;
    QString reasonOf(const runner::ToolRun &run) const;
    void tell(double percent);
    QString stateOfDisc() const;
    QString whatWasMade() const;

    int patience() const;

    Work m_work;
    const EndingPatience m_patience;
    std::unique_ptr<FolderClaim> m_claim;
    QPointer<runner::ToolRun> m_watched;
    runner::LineReader m_lines;
    Progress m_progress;
    runner::TimeLeft m_timeLeft;
    QElapsedTimer m_clock;
    qint64 m_doneWeight = 0, m_weight = 0, m_weights = 0; ///< of the items before, of the present one, of all
    runner::ToolProgress::Phase m_phase = runner::ToolProgress::Phase::Other; ///< of the running tool
    bool m_stopping = false;
    bool m_nothing = false; ///< there is nothing to be written
    bool m_ended = false;
    bool m_done = false; ///< the work of the last deciding run was done
    QString m_content;
    qint64 m_bytes = -1;
    QString m_drive, m_driveNumber, m_driveFolder; ///< as the tool tells them
    QString m_lastWords; ///< of the running tool: its newest line that is neither progress nor a note
    QString m_reason, m_remark;
    qsizetype m_decidingRun = -1;
    QStringList m_leftOut, m_changed;
    qsizetype m_leftOutRun = -1;
};

} // namespace writing
