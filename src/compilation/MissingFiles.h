// Finding files again that were moved.
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <functional>

namespace compilation {

/// The full path of the first file or folder of each name below `folder`, at any depth, by name. The search goes level by level,
/// follows no links to folders, and ends when all names are found or after half a million entries. `breathe` is called now and then.
QHash<QString, QString> placesOf(
    const QStringList &names, const QString &folder, const std::function<void()> &breathe);

} // namespace compilation
