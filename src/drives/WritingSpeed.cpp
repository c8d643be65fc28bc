#include "drives/WritingSpeed.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace drives {

namespace {

constexpr qsizetype mostOffered = 32; // more is no answer of a drive

/// The factor of "16x" or "2.4"; below 0 where it is none.
double factorOf(const QString &text)
{
    static const QRegularExpression form(u"^([0-9]{1,4}(?:\\.[0-9]{1,3})?)x?$"_s);
    const auto match = form.match(text);
    const double factor = match.hasMatch() ? match.captured(1).toDouble() : -1;
    return factor >= 0.1 && factor <= 1000 ? factor : -1;
}

QStringList sortedFactors(const QStringList &texts)
{
    QList<double> factors;
    for (const QString &text : texts) {
        const double factor = factorOf(text);
        if (factor > 0 && !factors.contains(factor) && factors.size() < mostOffered)
            factors.append(factor);
    }
    std::ranges::sort(factors, std::greater());
    QStringList sorted;
    for (const double factor : std::as_const(factors))
        sorted.append(QString::number(factor));
    return sorted;
}

QStringList told(const QString &status)
{
    static const QRegularExpression line(u"^ *Write Speeds:(.*)$"_s, QRegularExpression::MultilineOption);
    QStringList texts = line.match(status).captured(1).split(u',');
    for (QString &text : texts)
        text = text.trimmed();
    return texts;
}

} // namespace

QStringList offeredSpeeds(const QString &status)
{
    return sortedFactors(told(status));
}

QStringList speedChoices(const QString &status, const QString &wish)
{
    return sortedFactors(QStringList(wish) + told(status));
}

bool isSpeedWish(const QString &wish)
{
    return wish == fastest || (factorOf(wish) > 0 && !wish.endsWith(u'x'));
}

} // namespace drives
