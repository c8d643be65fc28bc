#include "drives/DriveNews.h"

#include "app/AppDelegate.h"
#include "app/MainWindow.h"
#include "drives/DriveNotice.h"
#include "drives/MediaStatus.h"
#include "runner/ToolQuestion.h"
#include "ui_MainWindow.h"

using namespace Qt::StringLiterals;

DriveNews::DriveNews(std::unique_ptr<DriveEvents> events, AppDelegate *controller)
    : QObject(controller)
    , m_controller(controller)
    , m_notice(new DriveNotice(controller->ui->centralwidget))
{
    Ui::MainWindow *const ui = controller->ui;
    ui->layout_Central->insertWidget(ui->layout_Central->indexOf(ui->tabviewMain) + 1, m_notice);
    ui->menuDrive->setToolTipsVisible(true);
    connect(controller, &AppDelegate::drivesListed, this, &DriveNews::listed);
    connect(controller, &AppDelegate::driveChosen, this, &DriveNews::chosen);
    connect(controller, &AppDelegate::discTold, this, &DriveNews::told);
    connect(ui->menuitemDriveLook, &QAction::triggered, this, &DriveNews::looked);
    if (events) {
        auto *watch = new DriveWatch(std::move(events), this);
        connect(watch, &DriveWatch::changed, this, &DriveNews::listAnew);
    }
}

void DriveNews::listAnew()
{
    if (m_listing)
        m_listing->leaveToItself(); // it may have been asked too early
    m_listing = runner::askInBackground(m_controller->around.drutil, { u"list"_s }, m_controller->activityLog,
        this, m_controller->around.probeLimit, [this](const QByteArray &printed) {
            m_listing = nullptr;
            m_controller->takeDriveListing(printed);
            m_nothingNew = false; // nobody asked
        });
}

void DriveNews::listed(const QStringList &appeared)
{
    m_nothingNew = appeared.isEmpty();
    if (m_nothingNew)
        return;
    const QString title = appeared.first();
    m_offered = title;
    if (title == m_controller->driveTitle())
        return m_notice->tell(tr("The drive “%1” is connected.").arg(title));
    m_notice->offer(tr("A drive was plugged in: “%1”.").arg(title), tr("Use This Drive"),
        tr("Write discs with this drive from now on"),
        [this, title] { m_controller->chooseDriveTitled(title); });
}

void DriveNews::looked()
{
    if (std::exchange(m_nothingNew, false) && m_toldGone.isEmpty())
        m_notice->tell(tr("No other drive was found."));
}

void DriveNews::chosen()
{
    showRefusal({});
    if (!m_offered.isEmpty() && m_offered == m_controller->driveTitle())
        m_notice->takeAway();
    const QString gone = m_controller->s_Gone_Drive;
    if (gone == m_toldGone)
        return;
    m_toldGone = gone;
    delete m_goneItem;
    m_notice->takeAway();
    if (gone.isEmpty())
        return;
    Ui::MainWindow *const ui = m_controller->ui;
    m_goneItem =
        new QAction(tr("%1 (not connected)").arg(QString(gone).replace(u'&', u"&&"_s).replace(u'\t', u' ')),
            ui->menuDrive);
    m_goneItem->setObjectName(u"itemDriveGone"_s);
    m_goneItem->setCheckable(true);
    m_goneItem->setChecked(true);
    m_goneItem->setEnabled(false);
    ui->menuDrive->insertAction(ui->submenuItemDriveSlot1, m_goneItem);
    m_notice->tell(tr("The drive “%1” is not connected any more. Connect it again, or choose another one in "
                      "the Drive menu.")
                       .arg(gone));
}

void DriveNews::told(const QString &status)
{
    // Nothing told: the disc was changed, which is no news of the drive.
    if (!status.isEmpty())
        showRefusal(drives::refusal(status));
}

void DriveNews::showRefusal(const QString &sentence)
{
    if (sentence == m_refusal)
        return;
    m_refusal = sentence;
    delete m_refusedItem;
    delete m_whyItem;
    m_notice->takeAway();
    if (sentence.isEmpty())
        return;
    const auto tellWhy = [this, sentence] {
        m_controller->alert(tr("You may not use this drive"), sentence);
    };
    QMenu *const menu = m_controller->ui->menuDrive;
    m_refusedItem = new QAction(tr("You may not use this drive"), menu);
    m_refusedItem->setObjectName(u"itemDriveRefused"_s);
    m_refusedItem->setToolTip(sentence);
    m_refusedItem->setEnabled(false);
    m_whyItem = new QAction(tr("Wh&y…"), menu);
    m_whyItem->setObjectName(u"itemDriveWhyRefused"_s);
    m_whyItem->setToolTip(tr("Tell why, and how to change it"));
    connect(m_whyItem, &QAction::triggered, this, tellWhy);
    menu->insertActions(m_controller->ui->submenuSpeed->menuAction(), { m_refusedItem, m_whyItem });
    m_notice->offer(tr("You may not use the drive “%1”.").arg(m_controller->driveTitle()), tr("Why…"),
        tr("Tell why, and how to change it"), tellWhy);
}
