#include "drives/SpeedMenu.h"

#include "app/AppDelegate.h"
#include "app/Preferences.h"
#include "drives/MediaStatus.h"
#include "drives/WritingSpeed.h"
#include "runner/ToolQuestion.h"

#include <QActionGroup>
#include <QLocale>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace {

/// A drive's own key. The settings file takes a slash for a section.
QString keyOf(const QString &drive)
{
    return preferences::speed + QString(drive).replace(u'/', u'_').replace(u'\\', u'_');
}

} // namespace

SpeedMenu::SpeedMenu(QMenu *menu, AppDelegate *controller)
    : QObject(controller)
    , m_menu(menu)
    , m_controller(controller)
{
    connect(controller, &AppDelegate::driveChosen, this, [this] {
        // The answer would be another drive's.
        if (m_asking)
            m_asking->leaveToItself();
        m_asking = nullptr;
        m_status.clear();
        m_variable.set(wish());
    });
    connect(controller, &AppDelegate::discTold, this, [this](const QString &status) {
        m_status = status;
        if (m_menu->isVisible())
            fill();
    });
    connect(menu, &QMenu::aboutToShow, this, [this] {
        m_answered = false;
        fill();
        if (m_status.isEmpty())
            ask();
    });
}

QString SpeedMenu::wish() const
{
    const QString drive = m_controller->driveTitle();
    const QString kept = drive.isEmpty() ? QString() : m_controller->preference(keyOf(drive));
    return drives::isSpeedWish(kept) ? kept : QString();
}

void SpeedMenu::choose(const QString &wish)
{
    const QString drive = m_controller->driveTitle();
    if (drive.isEmpty())
        return;
    m_controller->setPreference(keyOf(drive), wish);
    m_variable.set(wish);
}

void SpeedMenu::fill()
{
    m_menu->clear();
    delete m_menu->findChild<QActionGroup *>();
    auto *group = new QActionGroup(m_menu);
    connect(group, &QActionGroup::triggered, this,
        [this](const QAction *action) { choose(action->data().toString()); });
    addWish(drives::fastest, tr("&Fastest"), u"menuitemSpeedFastest"_s);
    m_menu->addSeparator();
    const QString wanted = wish().isEmpty() ? QString::fromUtf8(m_variable.inherited()) : wish();
    const QStringList choices = drives::speedChoices(m_status, wanted);
    for (const QString &choice : choices) {
        const QString shown = QLocale().toString(choice.toDouble(), 'g', 6);
        addWish(
            choice, tr("%1×", "a factor of the speed, as in 16×").arg(shown), u"menuitemSpeed_"_s + choice);
    }
    for (QAction *action : group->actions())
        action->setChecked(action->data() == (choices.contains(wanted) ? wanted : QString(drives::fastest)));
    if (drives::offeredSpeeds(m_status).isEmpty())
        m_menu->addAction(whyNone())->setEnabled(false);
}

void SpeedMenu::addWish(const QString &wish, const QString &text, const QString &name)
{
    QAction *action = m_menu->addAction(text);
    action->setObjectName(name);
    action->setData(wish);
    action->setCheckable(true);
    action->setActionGroup(m_menu->findChild<QActionGroup *>());
}

QString SpeedMenu::whyNone() const
{
    if (m_status.isEmpty())
        return m_answered ? tr("The drive does not answer") : tr("The drive is being asked…");
    if (drives::saysEmpty(m_status))
        return tr("There is no disc in the drive");
    return tr("The drive names no speeds for its disc");
}

void SpeedMenu::ask()
{
    if (m_asking || !m_controller->s_Gone_Drive.isEmpty())
        return;
    m_asking = runner::askInBackground(m_controller->around.drutil,
        { u"status"_s, u"-drive"_s, m_controller->s_Current_Drive_Number }, m_controller->activityLog, this,
        m_controller->around.probeLimit, [this](const QByteArray &printed) {
            m_asking = nullptr;
            m_answered = true;
            m_controller->takeStatus(QString::fromUtf8(printed));
        });
}
