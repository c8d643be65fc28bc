#include "drives/DriveList.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace drives {
namespace {

constexpr int lineWidth = 30;

QString trimmedColumn(const QString &line, int offset, int length)
{
    const auto isBlank = [](QChar c) { return c == u' ' || c == u'\t'; };
    QStringView column = QStringView(line).mid(offset, length);
    while (!column.isEmpty() && isBlank(column.front()))
        column = column.mid(1);
    while (!column.isEmpty() && isBlank(column.back()))
        column.chop(1);
    return column.toString();
}

} // namespace

QString title(const Object_Optical_Drive &drive)
{
    return drive.sManufacturer + u" - "_s + drive.sModel;
}

QList<Object_Optical_Drive> parseList(const QString &listing)
{
    QList<Object_Optical_Drive> drives;
    const QStringList lines = listing.split(u'\n');
    for (int i = 0; i < lines.size() && !lines.at(i).isEmpty(); ++i) {
        if (i == 0)
            continue;
        const QString line = lines.at(i).leftJustified(lineWidth);
        drives.append({line.left(1), trimmedColumn(line, 3, 9), trimmedColumn(line, 12, 18)});
    }
    return drives;
}

Choice choose(const QList<Object_Optical_Drive> &listed, const QString &remembered)
{
    Choice choice{{}, {}, QList<bool>(slotCount, false)};
    QString wanted = remembered;
    bool found = false;
    for (int index = 0; index < listed.size(); ++index) {
        const QString name = title(listed.at(index));
        if (wanted.isEmpty()) {
            wanted = name;
            choice.remember = name;
        }
        if (wanted != name)
            continue;
        found = true;
        choice.number = listed.at(index).s_Drive_Number;
        if (index < slotCount)
            choice.checked[index] = true;
    }
    if (!found && !listed.isEmpty()) {
        choice.number = listed.first().s_Drive_Number;
        choice.remember = title(listed.first());
        choice.checked[0] = true;
    }
    return choice;
}

} // namespace drives
