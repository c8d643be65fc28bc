// The order in which a file browser lists names: by locale, without regard to case, digit runs by value.
#pragma once

#include <QCollator>
#include <QList>
#include <QStringList>

#include <utility>

namespace compilation {

/// Compares names in that order.
QCollator fileBrowserCollator();

/// The order of the positions of `texts` that sorts them, equal ones in their present order.
/// Descending compares the second with the first.
QList<qsizetype> sortedOrder(const QStringList &texts, bool ascending);

/// The order of `count` positions in which `rows`, which are ascending, stand together before the one that
/// was at `before`; at the end where it is `count`.
QList<qsizetype> orderWithRowsBefore(qsizetype count, const QList<int> &rows, qsizetype before);

/// `list` in the given order of its positions, each of which occurs once.
template <class T>
QList<T> reordered(QList<T> list, const QList<qsizetype> &order)
{
    QList<T> result;
    result.reserve(list.size());
    for (const qsizetype position : order)
        result.append(std::move(list[position]));
    return result;
}

} // namespace compilation
