// The disc utility's list of drives, and the choice of the current one. The first line of the input is the
// title remembered from an earlier session, the rest the listing.
#include "Fuzz.h"
#include "drives/DriveList.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray input(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const qsizetype cut = input.indexOf('\n');
    const QString remembered = QString::fromUtf8(input.left(cut < 0 ? 0 : cut));
    const QString listing = QString::fromUtf8(input.mid(cut + 1));

    const QList<Object_Optical_Drive> listed = drives::parseList(listing);
    HOLDS(listed.size() <= listing.count(QLatin1Char('\n')));
    for (const Object_Optical_Drive &drive : listed) {
        HOLDS(drive.s_Drive_Number.size() == 1);
        HOLDS(drive.sManufacturer.size() <= 9 && drive.sModel.size() <= 18);
        HOLDS(!drive.sManufacturer.startsWith(QLatin1Char(' ')) && !drive.sModel.endsWith(QLatin1Char(' ')));
    }

    const drives::Choice choice = drives::choose(listed, remembered);
    HOLDS(choice.checked.size() == drives::slotCount);
    HOLDS(choice.number.isEmpty() == listed.isEmpty());
    HOLDS(listed.isEmpty() || listed.size() > drives::slotCount || choice.checked.contains(true));
    if (!listed.isEmpty()) {
        // Whatever is stored now is found the next time, so nothing is stored again.
        const QString stored = choice.remember.isEmpty() ? remembered : choice.remember;
        const drives::Choice next = drives::choose(listed, stored);
        HOLDS(next.remember.isEmpty() && !next.number.isEmpty());
    }
    return 0;
}
