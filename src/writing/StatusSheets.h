// The four sheets that are shown while an operation runs and when it has ended. They take values and emit signals.
#pragma once

#include "kit/WorkSheet.h"
#include "writing/Job.h"

#include <memory>

class QProgressBar;
class QPushButton;
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
class Window_Progress : public WorkSheet {
    Q_OBJECT
public:
    explicit Window_Progress(SheetStage *stage);
    ~Window_Progress() override;

    QLabel *labelDescription() const;
    QProgressBar *progressBar() const; ///< the current item
    QProgressBar *progressOverall() const; ///< the whole list
    /// Names the file, its number and how far it is, and tells the time left, beside the bars.
    void showProgress(const writing::Progress &progress);

private:
    std::unique_ptr<Ui::Window_Progress> m_ui;
};

/// The one-bar sheet shown while files are added.
class Window_Unique_Progress : public WorkSheet {
    Q_OBJECT
public:
    explicit Window_Unique_Progress(SheetStage *stage);
    ~Window_Unique_Progress() override;

    QProgressBar *progressBar() const;
    /// `number` of `count` files, from 1, is measured now.
    void showItem(const QString &name, qsizetype number, qsizetype count);

private:
    std::unique_ptr<Ui::Window_Unique_Progress> m_ui;
};

/// The working sheet: a tool runs. Shows the tool's newest line, and a bar where the tool tells how far it is.
class Window_Performing_Operation : public WorkSheet {
    Q_OBJECT
public:
    explicit Window_Performing_Operation(SheetStage *stage);
    ~Window_Performing_Operation() override;

    Spinner *pgAnimation() const;
    void showProgress(const writing::Progress &progress);
    QString newestLine() const;

private:
    void windowDidLoad();

    QString m_newestLine;
    std::unique_ptr<Ui::Window_Performing_Operation> m_ui;
};

/// The operation-complete sheet. A job always ends here; the sheet tells which of the four ends it was, what was made, and
/// what is not on the disc.
class Window_Operation_Terminated : public Sheet {
    Q_OBJECT
public:
    Window_Operation_Terminated(SheetStage *stage, const writing::Outcome &outcome);
    ~Window_Operation_Terminated() override;

    void OnOK();

Q_SIGNALS:
    void closed();
    /// The person wants the log, at this run; below 0 at its end.
    void logWanted(qsizetype run);
    /// The person wants to see what was made in its folder.
    void folderWanted(const QString &path);
    /// The person wants the disc out. The sheet stays, and takes no input until this signal has been dealt with.
    void ejectWanted();
    /// The person wants the same job once more.
    void anotherWanted();

protected:
    void cancelled() override { OnOK(); }

private:
    void showOutcome(const writing::Outcome &outcome);
    void addButtons(const writing::Outcome &outcome);
    QPushButton *addButton(const QString &title, const QString &name, const QString &toolTip);
    void eject(QPushButton *button);

    std::unique_ptr<Ui::Window_Operation_Terminated> m_ui;
};
