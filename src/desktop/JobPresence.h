// What the desktop is told of a job.
#pragma once

#include "desktop/Inhibition.h"
#include "desktop/LauncherProgress.h"
#include "desktop/Notifier.h"
#include "writing/Outcome.h"

#include <QObject>

class AppDelegate;
namespace writing {
class Job;
}

namespace desktop {

/// While a job is there the machine stays awake and the person logged in, the program's entry in a dock shows how far the
/// job is, and so does the window's title while it is minimised. A job that ends behind other windows is told of.
/// Listens to the controller, which knows nothing of it. GUI thread; never waits, and does nothing before the first job.
class JobPresence : public QObject {
    Q_OBJECT
public:
    enum class Audience {
        Person, ///< somebody sees the window
        Nobody, ///< only the machine is kept awake
    };

    /// `controller` and its window outlive this.
    JobPresence(AppDelegate *controller, Audience audience);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void begin(writing::Job *job);
    void end();
    void showPercent(int percent);
    void showTitle();
    bool isInFront() const;
    void tell(const writing::Outcome &outcome);

    AppDelegate *const m_controller;
    const Audience m_audience;
    Inhibition m_inhibition;
    LauncherProgress m_launcher;
    Notifier m_notifier;
    int m_percent = -1; ///< of the job's stage; below 0: none, or not known
};

} // namespace desktop
