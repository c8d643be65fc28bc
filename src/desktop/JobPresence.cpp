#include "desktop/JobPresence.h"

#include "app/AppDelegate.h"
#include "app/MainWindow.h"
#include "desktop/Raising.h"
#include "writing/Job.h"

#include <QEvent>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace desktop {

JobPresence::JobPresence(AppDelegate *controller, Audience audience)
    : m_controller(controller)
    , m_audience(audience)
{
    connect(controller, &AppDelegate::jobBegan, this, &JobPresence::begin);
    if (audience == Audience::Nobody)
        return;
    controller->window->installEventFilter(this);
    connect(&m_notifier, &Notifier::called, this,
        [controller](const QString &token) { raise(controller->window, token); });
}

void JobPresence::begin(writing::Job *job)
{
    using Result = writing::Work::Result;
    const Result result = job->work().result;
    m_inhibition.begin(result == Result::Image ? tr("A disc image is being made.")
            : result == Result::BlankDisc      ? tr("A disc is being erased.")
                                               : tr("A disc is being made."));
    // A job that is given up ends without a word.
    connect(job, &QObject::destroyed, this, &JobPresence::end);
    if (m_audience == Audience::Nobody)
        return;
    m_notifier.withdraw();
    connect(job, &writing::Job::progressed, this,
        [this](const writing::Progress &progress) { showPercent(static_cast<int>(progress.percent)); });
    connect(job, &writing::Job::ended, this, &JobPresence::tell);
}

void JobPresence::end()
{
    m_inhibition.end();
    showPercent(-1);
}

void JobPresence::showPercent(int percent)
{
    const int shown = std::clamp(percent, -1, 100);
    if (std::exchange(m_percent, shown) == shown)
        return;
    m_launcher.show(shown);
    showTitle();
}

void JobPresence::showTitle()
{
    const bool small = m_controller->window->isMinimized();
    m_controller->window->setWindowTitle(
        small && m_percent >= 0 ? tr("%1 % – Corvalis").arg(m_percent) : u"Corvalis"_s);
}

bool JobPresence::isInFront() const
{
    return m_controller->window->isActiveWindow() && !m_controller->window->isMinimized();
}

void JobPresence::tell(const writing::Outcome &outcome)
{
    if (isInFront())
        return;
    constexpr qsizetype most = 3; // more does not fit
    m_notifier.show(outcome.heading, outcome.lines(most).join(u'\n'), tr("Show Corvalis"));
}

bool JobPresence::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::WindowStateChange)
        showTitle();
    if (event->type() == QEvent::WindowStateChange || event->type() == QEvent::WindowActivate) {
        if (isInFront())
            m_notifier.withdraw();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace desktop
