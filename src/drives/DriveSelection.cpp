// The drives found at start-up, the Drive menu, and what only a virtual recorder offers.
#include "app/AppDelegate.h"
#include "app/MainWindow.h"
#include "app/Preferences.h"
#include "runner/ToolRun.h"
#include "ui_MainWindow.h"

#include <QDesktopServices>
#include <QDir>

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
    preferCurrentDrive();
    if (!choice.remember.isEmpty())
        setPreference(preferences::lastDrive, choice.remember);
    const Slots items = slotItems(ui);
    for (std::size_t slot = 0; slot < items.size(); ++slot) {
        const auto index = static_cast<qsizetype>(slot);
        const bool present = index < array_Optical_Media_Drives.size();
        items[slot]->setChecked(choice.checked.at(index));
        items[slot]->setVisible(present || slot == 0);
        if (present)
            items[slot]->setText(menuText(array_Optical_Media_Drives.at(index)));
    }
    offerVirtualDrive();
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
    preferCurrentDrive();
    setPreference(preferences::lastDrive, drives::title(drive));
    for (std::size_t i = 0; i < items.size(); ++i)
        items[i]->setChecked(static_cast<int>(i) == slot);
    offerVirtualDrive();
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

void AppDelegate::preferCurrentDrive()
{
    // For the tool that writes images, which is told no drive.
    qputenv("CORVALIS_PREFERRED_DRIVE", s_Current_Drive_Number.toUtf8());
}

QString AppDelegate::driveTitle() const
{
    for (const Object_Optical_Drive &drive : array_Optical_Media_Drives) {
        if (drive.s_Drive_Number == s_Current_Drive_Number)
            return drives::title(drive);
    }
    return {};
}

bool AppDelegate::isVirtualRecorderSelected() const
{
    return std::ranges::any_of(array_Optical_Media_Drives, [this](const Object_Optical_Drive &drive) {
        return drive.s_Drive_Number == s_Current_Drive_Number && drive.sManufacturer == "CORVALIS"_L1
            && drive.sModel == "Virtual Recorder"_L1;
    });
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
    runner::ToolEnd end;
    const QByteArray said =
        captureTool(around.drutil, { u"insert"_s, kind, u"-drive"_s, s_Current_Drive_Number }, &end);
    if (end.troubled())
        alert(tr("The disc could not be changed"),
            said.isEmpty() ? end.text() : QString::fromUtf8(said).trimmed(), Alert::Sign::Error);
}

void AppDelegate::OnMenuDriveShowDiscs()
{
    runner::ToolEnd end;
    const QString said = QString::fromUtf8(
        captureTool(around.drutil, { u"folder"_s, u"-drive"_s, s_Current_Drive_Number }, &end))
                             .trimmed();
    if (end.troubled() || !QDesktopServices::openUrl(QUrl::fromLocalFile(said)))
        alert(tr("The folder of written discs could not be opened"), said, Alert::Sign::Error);
}
