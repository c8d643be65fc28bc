#include "drives/DriveList.h"

#include <QStringTokenizer>

#include <utility>

using namespace Qt::StringLiterals;

namespace drives {
namespace {

QString trimmedColumn(QStringView line, int offset, int length)
{
    const auto isBlank = [](QChar c) { return c == u' ' || c == u'\t'; };
    QStringView column = offset < line.size() ? line.mid(offset, length) : QStringView();
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
    bool isHeader = true;
    for (const QStringView line : QStringView(listing).tokenize(u'\n')) {
        if (line.isEmpty())
            break;
        if (!std::exchange(isHeader, false))
            drives.append(
                { line.left(1).toString(), trimmedColumn(line, 3, 9), trimmedColumn(line, 12, 18) });
    }
    return drives;
}

bool isList(const QString &listing)
{
    const QString heading = listing.section(u'\n', 0, 0);
    return heading.contains("Vendor"_L1) && heading.contains("Product"_L1);
}

Choice choose(const QList<Object_Optical_Drive> &listed, const QString &remembered)
{
    Choice choice{ {}, {}, QList<bool>(slotCount, false) };
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
