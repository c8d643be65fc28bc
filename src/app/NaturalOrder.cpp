#include "app/NaturalOrder.h"

#include "compilation/Sorting.h"

#include <QDateTime>
#include <QFileSystemModel>

namespace {

/// Of QFileSystemModel, which names only the first.
enum Column { Name, Size, Type, Modified };

} // namespace

NaturalOrder::NaturalOrder(QObject *parent)
    : QSortFilterProxyModel(parent)
    , m_collator(compilation::fileBrowserCollator())
{
}

bool NaturalOrder::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    const auto *files = static_cast<const QFileSystemModel *>(sourceModel());
    if (files->isDir(left) != files->isDir(right))
        return files->isDir(left) == (sortOrder() == Qt::AscendingOrder);
    int order = 0;
    if (left.column() == Size && files->size(left) != files->size(right))
        return files->size(left) < files->size(right);
    if (left.column() == Modified && files->lastModified(left) != files->lastModified(right))
        return files->lastModified(left) < files->lastModified(right);
    if (left.column() == Type)
        order = m_collator.compare(files->type(left), files->type(right));
    return order != 0 ? order < 0 : m_collator.compare(files->fileName(left), files->fileName(right)) < 0;
}
