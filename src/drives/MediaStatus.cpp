#include "drives/MediaStatus.h"

using namespace Qt::StringLiterals;

namespace drives {

bool saysEmpty(const QString &status)
{
    return status.contains("No Media Inserted"_L1);
}

bool saysOverwritable(const QString &status)
{
    return status.contains("overwritable"_L1);
}

bool saysErasable(const QString &status)
{
    return status.contains("erasable"_L1);
}

bool saysGone(const QString &status)
{
    return status.contains("There is no drive \""_L1) || status.contains(" is gone; check its cable."_L1);
}

QString refusal(const QString &status)
{
    const qsizetype start = status.indexOf("You may not use "_L1);
    return start < 0 ? QString() : status.mid(start).section(u'\n', 0, 0).trimmed();
}

QString mediaType(const QString &status)
{
    for (const auto type : { "DVD"_L1, "CD"_L1, "BD"_L1 }) {
        if (status.contains(type))
            return type;
    }
    return u"Other"_s;
}

} // namespace drives
