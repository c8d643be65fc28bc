// The four questions about the disc in the current drive. Each asks the disc utility anew.
#include "app/AppDelegate.h"
#include "drives/MediaStatus.h"

using namespace Qt::StringLiterals;

QString AppDelegate::driveStatus()
{
    return QString::fromUtf8(
        captureTool(around.drutil, { u"status"_s, u"-drive"_s, s_Current_Drive_Number }));
}

bool AppDelegate::IsDriveEmpty()
{
    return drives::saysEmpty(driveStatus());
}

bool AppDelegate::IsMediaOneTimeWritable()
{
    const QString status = driveStatus();
    const bool writable = drives::saysOverwritable(status);
    if (!writable && m_b_Debug_Mode)
        alert(status, u"Warning 0030."_s);
    return writable;
}

bool AppDelegate::IsMediaReWritable()
{
    const QString status = driveStatus();
    const bool erasable = drives::saysErasable(status);
    if (!erasable && m_b_Debug_Mode)
        alert(status, u"Warning 0040."_s);
    return erasable;
}

QString AppDelegate::TypeOfMediaInTheDrive()
{
    return drives::mediaType(driveStatus());
}
