// Names of files that are, and that are not, text.
#pragma once

#include <QByteArray>
#include <QList>
#include <QStringList>
#include <QUrl>

namespace compilation {

/// The names directly in a folder, hidden ones included, in the file system's order. File systems take any
/// bytes as a name; one that is not UTF-8 cannot be shown or handed to a tool and is kept apart.
struct FolderNames {
    struct Unreadable {
        QByteArray name;
        bool isFolder;
    };
    QStringList names;
    QList<Unreadable> unreadable;
};

/// Empty for a folder that cannot be read.
FolderNames namesIn(const QString &folder);

/// How many files with one of these extensions have names that are not UTF-8.
int unreadableFiles(const FolderNames &found, const QStringList &extensions, Qt::CaseSensitivity sensitivity);

/// Whether the path of a file's URL is UTF-8 once it is decoded.
bool isReadable(const QUrl &url);

} // namespace compilation
