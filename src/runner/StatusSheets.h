// The four sheets that are shown while an operation runs and when it has ended.
#pragma once

#include "app/Sheet.h"

#include <memory>

class AppDelegate;
class QLabel;
class QProgressBar;
class Spinner;
namespace Ui {
class Window_Operation_Terminated;
class Window_Performing_Operation;
class Window_Progress;
class Window_Unique_Progress;
} // namespace Ui

/// Puts a value on a bar whose maximum is in another unit: beyond the ends it stands at the end, and
/// what is not a number counts as the beginning.
void showOnBar(QProgressBar *bar, double value);

/// The two-bar sheet of a job that converts files.
class Window_Progress : public Sheet {
    Q_OBJECT
public:
    Window_Progress(AppDelegate *controller, QWidget *parent);
    ~Window_Progress() override;

    QLabel *labelDescription() const;
    QProgressBar *progressBar() const; ///< the current item
    QProgressBar *progressOverall() const; ///< the whole list
    /// Begins the next item: its name over an empty bar whose maximum is its duration in seconds.
    void showItem(const QString &name, qint64 seconds);

private:
    std::unique_ptr<Ui::Window_Progress> m_ui;
};

/// The one-bar sheet shown while files are added.
class Window_Unique_Progress : public Sheet {
    Q_OBJECT
public:
    Window_Unique_Progress(AppDelegate *controller, QWidget *parent);
    ~Window_Unique_Progress() override;

    QProgressBar *progressBar() const;

private:
    std::unique_ptr<Ui::Window_Unique_Progress> m_ui;
};

/// The working sheet: a tool runs and nobody knows for how long. Shows the tool's newest line.
class Window_Performing_Operation : public Sheet {
    Q_OBJECT
public:
    Window_Performing_Operation(AppDelegate *controller, QWidget *parent);
    ~Window_Performing_Operation() override;

    Spinner *pgAnimation() const;
    /// Puts the last whole line of the tool's output, of which this is the next piece, below the heading.
    void showNewestLine(const QByteArray &output);
    QString newestLine() const;

private:
    void windowDidLoad();

    QString m_newestLine;
    std::unique_ptr<Ui::Window_Performing_Operation> m_ui;
    QByteArray m_unfinished; ///< the beginning of the line that is being printed
};

/// The operation-complete sheet. A job always ends here; when tools of the job reported trouble it
/// says so, with the last thing that they said.
class Window_Operation_Terminated : public Sheet {
    Q_OBJECT
public:
    Window_Operation_Terminated(AppDelegate *controller, QWidget *parent);
    ~Window_Operation_Terminated() override;

    void OnOK();

protected:
    void cancelled() override { OnOK(); }

private:
    void showOutcome();

    AppDelegate *const m_controller;
    std::unique_ptr<Ui::Window_Operation_Terminated> m_ui;
};
