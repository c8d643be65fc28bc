// The unattended form: one job, given on the command line, through the same operations as in the window.
#pragma once

#include "app/Questions.h"
#include "writing/Job.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <functional>

class AppDelegate;
struct ProjectType;

/// What the command line asks for.
struct BatchJob {
    const ProjectType *type = nullptr;
    QStringList paths; ///< files, or folders for a data disc; absolute
    bool show = false; ///< in visible windows, which stay when the job is done
    bool forPlayers = false; ///< a Video DVD with titles and chapters, whatever the settings say
};

/// Answers alerts by printing their two texts to standard error and pressing the first button, and
/// panels with what the command line named. With windows shown, a person answers the alerts.
class BatchQuestions : public Questions {
public:
    explicit BatchQuestions(bool show)
        : m_show(show)
    {
    }

    int ask(const Alert &alert, QWidget *over) override;
    QList<QUrl> choose(const OpenPanel &panel, QWidget *over) override;

    bool alerted() const { return m_alerted; }
    /// What was told so far does not end the run.
    void forgetAlerts() { m_alerted = false; }
    /// What is done before an alert's texts are printed.
    void setBeforeAlert(std::function<void()> act) { m_beforeAlert = std::move(act); }
    void answerNextPanelWith(const QList<QUrl> &urls) { m_answer = urls; }

private:
    const bool m_show;
    bool m_alerted = false;
    std::function<void()> m_beforeAlert;
    QList<QUrl> m_answer;
    WindowQuestions m_windows;
};

/// Drives the controller as a person would: chooses the type in the new-disc sheet, adds the files,
/// presses the burn button, and takes the sheets away. Lives on the GUI thread.
class BatchRun : public QObject {
    Q_OBJECT
public:
    /// `finish` is called once with the exit status: 0 the disc was written and everything is on it, 1 it was not
    /// written, 3 it was written but something is not on it.
    BatchRun(const BatchJob &job, AppDelegate *controller, BatchQuestions *questions,
        std::function<void(int)> finish);

    void start();

    /// Stops the job as a person would. False: there is none to be stopped.
    bool stop();

    /// The full path of what an argument names, from the working folder on.
    static QString meantPath(const QString &argument);

    /// Why the job cannot be what a person could have chosen in the panels; empty when it can.
    static QString objection(const BatchJob &job);

    /// What is said of --for-players beside anything else than a Video DVD.
    static QString playersNeedVideo();

private:
    void chooseType();
    void add();
    void burn();
    void completed();
    void showAdding(qsizetype done, qsizetype count);
    void showProgress(const writing::Progress &progress);
    enum class Stage { None, Adding, Converting, Authoring, Gathering, Writing, Done };
    void show(); ///< prints what was told last, if it has not been printed
    void printLine(Stage stage, const QString &line);
    void endLine();

    const BatchJob m_job;
    AppDelegate *const m_controller;
    BatchQuestions *const m_questions;
    const std::function<void(int)> m_finish;
    writing::Outcome m_outcome;
    QTimer m_look; ///< a few times a second: a tool may tell more than a terminal can show
    std::function<void()> m_show; ///< prints what was told last; empty when it has been printed
    Stage m_stage = Stage::None;
    QString m_lastLine;
    bool m_newTenth = false; ///< the line at hand tells of another tenth of the writing than the last one
    int m_tenth = -1; ///< of the writing, of which the last line told
    QElapsedTimer m_sinceLine; ///< since one was printed where there is no terminal
};
