// The drives found at start-up, the Drive menu, and what only a virtual recorder offers.
#include "app/AppDelegate.h"
#include "app/MainWindow.h"
#include "app/Preferences.h"
#include "drives/DriveChanges.h"
#include "runner/ToolRun.h"
#include "ui_MainWindow.h"

#include <QDesktopServices>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

using Slots = std::array<QAction *, drives::slotCount>;

Slots slotItems(const Ui::MainWindow *ui)
{
    return { ui->submenuItemDriveSlot1, ui->submenuItemDriveSlot2, ui->submenuItemDriveSlot3,
        ui->submenuItemDriveSlot4, ui->submenuItemDriveSlot5, ui->submenuItemDriveSlot6 };
}

/// Bytes of a listing that are read; a flood would be taken for a million drives.
constexpr qsizetype mostListed = 64 * 1024;

QString menuText(const Object_Optical_Drive &drive)
{
    // What follows a tab would stand in the column of the keys.
    return drives::title(drive).replace(u'&', u"&&"_s).replace(u'\t', u' ');
}

} // namespace

void AppDelegate::Load_List_Of_Optical_Drives()
{
    const QByteArray listing = captureTool(around.drutil, { u"list"_s }).left(mostListed);
    array_Optical_Media_Drives = drives::parseList(QString::fromUtf8(listing));
    const drives::Choice choice =
        drives::choose(array_Optical_Media_Drives, preference(preferences::lastDrive));
    if (!choice.number.isEmpty())
        s_Current_Drive_Number = choice.number;
    if (!choice.remember.isEmpty())
        setPreference(preferences::lastDrive, choice.remember);
    showDrives(choice.checked);
    useCurrentDrive();
}

void AppDelegate::showDrives(const QList<bool> &checked)
{
    const Slots items = slotItems(ui);
    if (!items.front()->data().isValid())
        items.front()->setData(items.front()->text()); // what it says where there is no drive
    for (std::size_t slot = 0; slot < items.size(); ++slot) {
        const auto index = static_cast<qsizetype>(slot);
        const bool present = index < array_Optical_Media_Drives.size();
        items[slot]->setChecked(checked.value(index));
        items[slot]->setVisible(present || slot == 0);
        if (present)
            items[slot]->setText(menuText(array_Optical_Media_Drives.at(index)));
        else if (slot == 0)
            items[slot]->setText(items[slot]->data().toString());
    }
}

void AppDelegate::useCurrentDrive()
{
    // For the tool that writes images, which is told no drive.
    qputenv(
        "CORVALIS_PREFERRED_DRIVE", s_Gone_Drive.isEmpty() ? s_Current_Drive_Number.toUtf8() : QByteArray());
    offerVirtualDrive();
    Q_EMIT driveChosen();
    forgetDisc();
}

void AppDelegate::chooseDrive(int slot)
{
    const Slots items = slotItems(ui);
    if (slot >= array_Optical_Media_Drives.size()) {
        // The one item that stands for "no drive" was pressed: it stays without a mark.
        items.at(static_cast<std::size_t>(slot))->setChecked(false);
        return;
    }
    const Object_Optical_Drive &drive = array_Optical_Media_Drives.at(slot);
    s_Current_Drive_Number = drive.s_Drive_Number;
    s_Gone_Drive.clear();
    setPreference(preferences::lastDrive, drives::title(drive));
    for (std::size_t i = 0; i < items.size(); ++i)
        items[i]->setChecked(static_cast<int>(i) == slot);
    useCurrentDrive();
}

void AppDelegate::chooseDriveTitled(const QString &title)
{
    const auto found = std::ranges::find(array_Optical_Media_Drives, title, drives::title);
    if (found != array_Optical_Media_Drives.end())
        chooseDrive(static_cast<int>(found - array_Optical_Media_Drives.begin()));
}

void AppDelegate::OnMenuDriveLook()
{
    const QByteArray said = lookForDrives();
    if (!tellNotStarted() && !said.isEmpty())
        alert(tr("The drives could not be listed"), QString::fromUtf8(said).trimmed());
}

QByteArray AppDelegate::lookForDrives()
{
    const QByteArray said = captureTool(around.drutil, { u"list"_s });
    return takeDriveListing(said) ? QByteArray() : said;
}

bool AppDelegate::takeDriveListing(const QByteArray &listing)
{
    const QString text = QString::fromUtf8(listing.left(mostListed));
    if (!drives::isList(text))
        return false;
    const QList<Object_Optical_Drive> listed = drives::parseList(text);
    const QString before = driveTitle();
    const qsizetype chosen = s_Gone_Drive.isEmpty() ? currentDrive() : -1;
    const drives::Changes found = drives::changes(array_Optical_Media_Drives, chosen, s_Gone_Drive, listed);
    array_Optical_Media_Drives = listed;
    if (found.chosen >= 0) {
        s_Current_Drive_Number = listed.at(found.chosen).s_Drive_Number;
        s_Gone_Drive.clear();
    } else if (chosen >= 0) {
        s_Gone_Drive = before;
    }
    QList<bool> checked(drives::slotCount, false);
    if (found.chosen >= 0 && found.chosen < drives::slotCount)
        checked[found.chosen] = true;
    showDrives(checked);
    useCurrentDrive();
    Q_EMIT drivesListed(found.appeared);
    return true;
}

void AppDelegate::OnMenuDriveSlot1()
{
    chooseDrive(0);
}

void AppDelegate::OnMenuDriveSlot2()
{
    chooseDrive(1);
}

void AppDelegate::OnMenuDriveSlot3()
{
    chooseDrive(2);
}

void AppDelegate::OnMenuDriveSlot4()
{
    chooseDrive(3);
}

void AppDelegate::OnMenuDriveSlot5()
{
    chooseDrive(4);
}

void AppDelegate::OnMenuDriveSlot6()
{
    chooseDrive(5);
}

qsizetype AppDelegate::currentDrive() const
{
    const auto isCurrent = [this](const Object_Optical_Drive &drive) {
        return drive.s_Drive_Number == s_Current_Drive_Number;
    };
    const auto found = std::ranges::find_if(array_Optical_Media_Drives, isCurrent);
    return found == array_Optical_Media_Drives.end() ? -1 : found - array_Optical_Media_Drives.begin();
}

QString AppDelegate::driveTitle() const
{
    const qsizetype place = s_Gone_Drive.isEmpty() ? currentDrive() : -1;
    return place < 0 ? s_Gone_Drive : drives::title(array_Optical_Media_Drives.at(place));
}

bool AppDelegate::isVirtualRecorderSelected() const
{
    return s_Gone_Drive.isEmpty() && driveTitle() == u"CORVALIS - Virtual Recorder";
}

void AppDelegate::offerVirtualDrive()
{
    const bool isVirtual = isVirtualRecorderSelected();
    ui->submenuInsertBlank->menuAction()->setVisible(isVirtual);
    for (QAction *item :
        { ui->menuitemVirtualSeparator, ui->menuitemRemoveDisc, ui->menuitemShowWrittenDiscs })
        item->setVisible(isVirtual);
}

void AppDelegate::OnMenuDriveInsertBlank(const QString &kind)
{
    if (isDriveGone())
        return;
    runner::ToolEnd end;
    const QByteArray said =
        captureTool(around.drutil, { u"insert"_s, kind, u"-drive"_s, s_Current_Drive_Number }, &end);
    if (end.troubled())
        alert(tr("The disc could not be changed"),
            said.isEmpty() ? end.text() : QString::fromUtf8(said).trimmed(), Alert::Sign::Error);
    forgetDisc();
}

void AppDelegate::OnMenuDriveShowDiscs()
{
    if (isDriveGone())
        return;
    runner::ToolEnd end;
    const QString said = QString::fromUtf8(
        captureTool(around.drutil, { u"folder"_s, u"-drive"_s, s_Current_Drive_Number }, &end))
                             .trimmed();
    if (end.troubled() || !QDesktopServices::openUrl(QUrl::fromLocalFile(said)))
        alert(tr("The folder of written discs could not be opened"), said, Alert::Sign::Error);
}
