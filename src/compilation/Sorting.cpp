#include "compilation/Sorting.h"

#include <QCollator>
#include <QLocale>

#include <algorithm>
#include <future>
#include <iterator>
#include <numeric>
#include <vector>

namespace compilation {
namespace {

QCollator fileBrowserCollator()
{
    // The C locale has no collation of its own: it would compare code units.
    const QLocale user;
    QCollator collator(user.language() == QLocale::C ? QLocale(QLocale::English) : user);
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    collator.setIgnorePunctuation(false);
    return collator;
}

using Keys = std::vector<QCollatorSortKey>;

Keys keysOf(const QStringList &texts, qsizetype from, qsizetype to)
{
    const QCollator collator = fileBrowserCollator();
    Keys keys;
    keys.reserve(static_cast<std::size_t>(to - from));
    for (qsizetype i = from; i < to; ++i)
        keys.push_back(collator.sortKey(texts.at(i)));
    return keys;
}

/// Making the keys is most of the work of sorting a long list; a second core takes half of it.
Keys sortKeys(const QStringList &texts)
{
    constexpr qsizetype longList = 2000;
    const qsizetype half = texts.size() < longList ? texts.size() : texts.size() / 2;
    std::future<Keys> rest;
    if (half < texts.size())
        rest = std::async(std::launch::async, keysOf, std::cref(texts), half, texts.size());
    Keys keys = keysOf(texts, 0, half);
    if (rest.valid())
        std::ranges::move(rest.get(), std::back_inserter(keys));
    return keys;
}

} // namespace

QList<qsizetype> sortedOrder(const QStringList &texts, bool ascending)
{
    const Keys keys = sortKeys(texts);
    QList<qsizetype> order(texts.size());
    std::iota(order.begin(), order.end(), qsizetype(0));
    const auto key = [&keys](qsizetype i) -> const QCollatorSortKey & { return keys[static_cast<std::size_t>(i)]; };
    if (ascending)
        std::ranges::stable_sort(order, [&](qsizetype a, qsizetype b) { return key(a).compare(key(b)) < 0; });
    else
        std::ranges::stable_sort(order, [&](qsizetype a, qsizetype b) { return key(b).compare(key(a)) < 0; });
    return order;
}

} // namespace compilation
