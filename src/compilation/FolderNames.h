// Names of files that are, and that are not, text.
#pragma once

#include <QStringList>
#include <QUrl>

namespace compilation {

/// The names directly in a folder, hidden ones included, in the file system's order. File systems take any
/// bytes as a name; one that is not UTF-8 cannot be shown or handed to a tool and is counted apart.
struct FolderNames {
    QStringList names;
    int unreadable = 0;
};

/// Empty for a folder that cannot be read.
FolderNames namesIn(const QString &folder);

/// Whether the path of a file's URL is UTF-8 once it is decoded.
bool isReadable(const QUrl &url);

} // namespace compilation
