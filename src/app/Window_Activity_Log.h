// The window that shows the activity log.
#pragma once

#include <QTimer>
#include <QWidget>

#include <memory>

class ActivityLog;
namespace Ui {
class Window_Activity_Log;
}

/// Lists every run with its time, end and command line, and the selected one's whole output. Follows
/// the log while it is open.
class Window_Activity_Log : public QWidget {
    Q_OBJECT
public:
    /// `log` is not owned and outlives the window.
    Window_Activity_Log(ActivityLog *log, QWidget *parent);
    ~Window_Activity_Log() override;

    /// Selects a run and brings it into view.
    void select(qsizetype run);
    /// The log as text, for the clipboard: the selected runs, or all without a selection.
    QString selectedText() const;
    /// Writes the whole log; answers an empty text, or why it could not be written.
    QString saveTo(const QString &path) const;

protected:
    void showEvent(QShowEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void refresh();
    void showOutput();
    void copy();
    void save();

    ActivityLog *const m_log;
    std::unique_ptr<Ui::Window_Activity_Log> m_ui;
    QTimer m_refresh;
    QString m_shown; ///< of the selected runs, as of the last refresh
};
