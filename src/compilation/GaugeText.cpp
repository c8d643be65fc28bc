#include "compilation/GaugeText.h"

#include "compilation/Measuring.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace compilation {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(Gauge)
};

QString sizeWords(const Size &size, const QLocale &locale)
{
    return u"%1 %2"_s.arg(locale.toString(size.value, 'f', 2), unitWord(size.unit));
}

Size sizeOf(qint64 kilobytes)
{
    return scaled(static_cast<quint64>(kilobytes) * 1024);
}

struct Amounts {
    QString total, capacity;
};

Amounts sizes(qint64 total, qint64 capacity, const QLocale &locale)
{
    Size a = sizeOf(total);
    Size b = sizeOf(capacity);
    // Two that are not the same may look alike in the unit of the lists. Kilobytes tell them apart.
    while (total != capacity && a.unit > 1 && sizeWords(a, locale) == sizeWords(b, locale)) {
        a = a.finer();
        b = b.finer();
    }
    return { sizeWords(a, locale), sizeWords(b, locale) };
}

} // namespace

QString timeText(qint64 seconds, const QLocale &locale)
{
    const auto two = [&locale](qint64 number) {
        const QString digits = locale.toString(number);
        return number < 10 ? locale.zeroDigit() + digits : digits;
    };
    const QString rest = u"%1:%2"_s.arg(two(seconds / 60 % 60), two(seconds % 60));
    return seconds < 3600 ? rest : u"%1:%2"_s.arg(locale.toString(seconds / 3600), rest);
}

QString sizeText(qint64 bytes, const QLocale &locale)
{
    return sizeWords(scaled(static_cast<quint64>(bytes)), locale);
}

QString gaugeText(Page page, qint64 total, qint32 capacity, const QLocale &locale)
{
    const bool data = page == Page::Data;
    const Amounts amounts = data ? sizes(total, capacity, locale)
                                 : Amounts{ timeText(total, locale), timeText(capacity, locale) };
    const QString share = locale.toString(percentage(static_cast<quint64>(total), capacity));
    if (total > capacity) {
        const QString excess =
            data ? sizeWords(sizeOf(total - capacity), locale) : timeText(total - capacity, locale);
        return (data ? Texts::tr("Space occupied: %1 of %2 (%3 %), too large by %4")
                     : Texts::tr("Space occupied: %1 of %2 (%3 %), too long by %4"))
            .arg(amounts.total, amounts.capacity, share, excess);
    }
    const bool nearlyFull = total * 100 > qint64(capacity) * 90;
    return (nearlyFull ? Texts::tr("Space occupied: %1 of %2 (%3 %), nearly full")
                       : Texts::tr("Space occupied: %1 of %2 (%3 %)"))
        .arg(amounts.total, amounts.capacity, share);
}

} // namespace compilation
