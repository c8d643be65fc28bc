#include "compilation/Sorting.h"

#include <QLocale>

#include <algorithm>
#include <functional>
#include <future>
#include <iterator>
#include <numeric>
#include <vector>

namespace compilation {

QCollator fileBrowserCollator()
{
    // The C locale has no collation of its own: it would compare code units.
    const QLocale user = QLocale().collation(); // LC_COLLATE may name another one than LANG
    QCollator collator(user.language() == QLocale::C ? QLocale(QLocale::English) : user);
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    collator.setIgnorePunctuation(false);
    return collator;
}

namespace {

using Keys = std::vector<QCollatorSortKey>;

/// A stretch of the texts, sorted by itself.
struct Part {
    qsizetype first = 0; ///< the position of the text of the first key
    Keys keys;
    std::vector<qsizetype> order; ///< positions among all texts

    const QCollatorSortKey &key(qsizetype position) const
    {
        return keys[static_cast<std::size_t>(position - first)];
    }
};

bool precedes(const QCollatorSortKey &a, const QCollatorSortKey &b, bool ascending)
{
    return ascending ? a.compare(b) < 0 : b.compare(a) < 0;
}

Part sortedPart(const QStringList &texts, qsizetype from, qsizetype to, bool ascending)
{
    const QCollator collator = fileBrowserCollator();
    Part part;
    part.first = from;
    part.keys.reserve(static_cast<std::size_t>(to - from));
    for (qsizetype i = from; i < to; ++i)
        part.keys.push_back(collator.sortKey(texts.at(i)));
    part.order.resize(part.keys.size());
    std::iota(part.order.begin(), part.order.end(), from);
    std::ranges::stable_sort(part.order, [&part, ascending](qsizetype a, qsizetype b) {
        return precedes(part.key(a), part.key(b), ascending);
    });
    return part;
}

} // namespace

QList<qsizetype> sortedOrder(const QStringList &texts, bool ascending)
{
    // A second core takes half of a long list.
    constexpr qsizetype longList = 2000;
    const qsizetype half = texts.size() < longList ? texts.size() : texts.size() / 2;
    std::future<Part> second;
    if (half < texts.size())
        second = std::async(std::launch::async, sortedPart, std::cref(texts), half, texts.size(), ascending);
    const Part head = sortedPart(texts, 0, half, ascending);
    const Part tail = second.valid() ? second.get() : Part{};
    const auto key = [&](qsizetype i) -> const QCollatorSortKey & { return (i < half ? head : tail).key(i); };
    QList<qsizetype> order;
    order.reserve(texts.size());
    std::ranges::merge(head.order, tail.order, std::back_inserter(order),
        [&](qsizetype a, qsizetype b) { return precedes(key(a), key(b), ascending); });
    return order;
}

QList<qsizetype> orderWithRowsBefore(qsizetype count, const QList<int> &rows, qsizetype before)
{
    QList<qsizetype> order(count);
    std::iota(order.begin(), order.end(), qsizetype(0));
    const auto isMoved = [&rows](qsizetype position) { return std::ranges::binary_search(rows, position); };
    // Those before the place give way to its front, those behind it to its back.
    const auto place = order.begin() + before;
    std::stable_partition(order.begin(), place, std::not_fn(isMoved));
    std::stable_partition(place, order.end(), isMoved);
    return order;
}

} // namespace compilation
