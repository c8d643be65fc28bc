#include "writing/Names.h"

#include "compilation/Measuring.h"

using namespace Qt::StringLiterals;

namespace writing {

QString suffixedName(QString name, const QString &suffix)
{
    constexpr qsizetype longestName = 255;
    while (!name.isEmpty() && name.toUtf8().size() + suffix.toUtf8().size() > longestName)
        name.chop(name.back().isLowSurrogate() ? 2 : 1);
    return name + suffix;
}

QString convertedPath(const QString &folder, const QString &source, QLatin1StringView extension)
{
    QString base = source.mid(source.lastIndexOf(u'/') + 1);
    const QString oldExtension = compilation::pathExtension(base);
    if (!oldExtension.isEmpty())
        base.chop(oldExtension.size() + 1);
    return u"%1/%2"_s.arg(folder, suffixedName(base, u'.' + extension));
}

} // namespace writing
