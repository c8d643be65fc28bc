// The four questions about the disc in the current drive. Each asks the disc utility anew.
#include "app/AppDelegate.h"
#include "app/MainWindow.h"
#include "drives/MediaStatus.h"

using namespace Qt::StringLiterals;

QString AppDelegate::driveStatus()
{
    // A drive that has not answered will not answer the next question of the same press either.
    if (m_probeHung)
        return {};
    if (!s_Gone_Drive.isEmpty())
        lookForDrives(); // it may be back
    if (!s_Gone_Drive.isEmpty())
        return m_lastStatus = QString();
    const auto ask = [this] {
        takeStatus(QString::fromUtf8(
            captureTool(around.drutil, { u"status"_s, u"-drive"_s, s_Current_Drive_Number })));
    };
    ask();
    if (drives::saysGone(m_lastStatus)) {
        const QString number = s_Current_Drive_Number;
        lookForDrives();
        if (s_Gone_Drive.isEmpty() && s_Current_Drive_Number != number)
            ask();
    }
    return m_lastStatus;
}

void AppDelegate::takeStatus(const QString &status)
{
    m_lastStatus = status;
    m_discRoom = compilation::readDiscRoom(status);
    PaintSpaceOccupiedControl();
    Q_EMIT discTold(status);
}

void AppDelegate::forgetDisc()
{
    m_discRoom.reset();
    PaintSpaceOccupiedControl();
    Q_EMIT discTold({});
}

bool AppDelegate::isDriveGone()
{
    if (!s_Gone_Drive.isEmpty())
        lookForDrives(); // it may be back
    return tellDriveGone();
}

bool AppDelegate::tellDriveGone()
{
    if (s_Gone_Drive.isEmpty())
        return false;
    alert(tr("The drive is not there any more"),
        tr("“%1” is not connected. Connect it again, or choose another drive in the Drive menu.")
            .arg(s_Gone_Drive));
    return true;
}

void AppDelegate::tellPrinted(const QString &printed, const QString &code)
{
    around.questions->ask(
        { printed, code, { tr("Close") }, Alert::Sign::Warning, Alert::Report::Message }, window);
}

bool AppDelegate::IsDriveEmpty()
{
    m_probeHung = false; // always the first question
    return drives::saysEmpty(driveStatus());
}

bool AppDelegate::IsMediaOneTimeWritable()
{
    const QString status = driveStatus();
    const bool writable = drives::saysOverwritable(status);
    if (!writable && m_b_Debug_Mode)
        tellPrinted(status, tr("Warning 0030."));
    return writable;
}

bool AppDelegate::IsMediaReWritable()
{
    const QString status = driveStatus();
    const bool erasable = drives::saysErasable(status);
    if (!erasable && m_b_Debug_Mode)
        tellPrinted(status, tr("Warning 0040."));
    return erasable;
}

QString AppDelegate::TypeOfMediaInTheDrive()
{
    return drives::mediaType(driveStatus());
}
