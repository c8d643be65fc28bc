// Names of files in a working folder.
#pragma once

#include <QString>

namespace writing {

/// `name` with its end cut off where name and `suffix` together would pass the 255 bytes that a file system
/// takes, and `suffix` behind it. No character is cut in two.
QString suffixedName(QString name, const QString &suffix);

/// folder/base.extension, base being the source's name without its extension, shortened where the
/// new name would pass the 255 bytes that a file system takes.
QString convertedPath(const QString &folder, const QString &source, QLatin1StringView extension);

} // namespace writing
