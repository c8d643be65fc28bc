#include "drives/DriveChanges.h"

namespace drives {

namespace {

QList<qsizetype> placesOf(const QString &wanted, const QList<Object_Optical_Drive> &drives)
{
    QList<qsizetype> places;
    for (qsizetype place = 0; place < drives.size(); ++place) {
        if (title(drives.at(place)) == wanted)
            places.append(place);
    }
    return places;
}

qsizetype placeOfChosen(const QList<Object_Optical_Drive> &before, qsizetype chosen, const QString &goneTitle,
    const QList<Object_Optical_Drive> &listed)
{
    if (chosen < 0) {
        const qsizetype first = listed.isEmpty() ? -1 : 0;
        return goneTitle.isEmpty() ? first : placesOf(goneTitle, listed).value(0, -1);
    }
    const QString wanted = title(before.at(chosen));
    const QList<qsizetype> twins = placesOf(wanted, before);
    const QList<qsizetype> now = placesOf(wanted, listed);
    return now.size() < twins.size() ? -1 : now.at(twins.indexOf(chosen));
}

} // namespace

Changes changes(const QList<Object_Optical_Drive> &before, qsizetype chosen, const QString &goneTitle,
    const QList<Object_Optical_Drive> &listed)
{
    Changes found{ placeOfChosen(before, chosen, goneTitle, listed), {} };
    QStringList known;
    for (const Object_Optical_Drive &drive : before)
        known.append(title(drive));
    for (const Object_Optical_Drive &drive : listed) {
        if (!known.removeOne(title(drive)))
            found.appeared.append(title(drive));
    }
    return found;
}

} // namespace drives
