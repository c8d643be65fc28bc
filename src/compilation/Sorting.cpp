#include "compilation/Sorting.h"

#include <QCollator>
#include <QLocale>

#include <algorithm>
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

} // namespace

QList<qsizetype> sortedOrder(const QStringList &texts, bool ascending)
{
    const QCollator collator = fileBrowserCollator();
    std::vector<QCollatorSortKey> keys;
    keys.reserve(static_cast<std::size_t>(texts.size()));
    for (const QString &text : texts)
        keys.push_back(collator.sortKey(text));
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
