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
    m_lastStatus =
        QString::fromUtf8(captureTool(around.drutil, { u"status"_s, u"-drive"_s, s_Current_Drive_Number }));
    return m_lastStatus;
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
