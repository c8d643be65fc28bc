#include "ui/ColourScheme.h"

#include <QLocale>
#include <QSettings>
#include <QStringList>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace ColourScheme {
namespace {

struct Row {
    QLatin1StringView key;
    Components shipped;
};

// The greys and the blue are the single-precision values of 82/255, 75/255, 105/255 and 141/255, widened.
constexpr Components blueGrey{ 0.29411765933036804, 0.4117647111415863, 0.5529412031173706, 1 };
constexpr std::array rows{
    Row{ "Quendral_Corvalis_Color_Table_Background"_L1,
        { 0.32156863808631897, 0.32156863808631897, 0.32156863808631897, 1 } },
    Row{ "Quendral_Corvalis_Color_Table_Foreground"_L1, { 1, 1, 1, 1 } },
    Row{ "Quendral_Corvalis_Color_Toolbar"_L1, blueGrey },
    Row{ "Quendral_Corvalis_Color_Bottom_Bar"_L1, blueGrey },
    Row{ "Quendral_Corvalis_Color_Space_Occupied_Bar"_L1, { 0, 0, 1, 1 } },
};
constexpr auto alternatingRowsKey = "Quendral_Corvalis_b_List_Alternating_Rows"_L1;

const Row &rowOf(Role role)
{
    return rows.at(static_cast<std::size_t>(role));
}

QColor colourOfText(const QString &text)
{
    const auto components = fromText(text);
    return components ? components->toColour() : QColor();
}

} // namespace

QColor Components::toColour() const
{
    return QColor::fromRgbF(static_cast<float>(red), static_cast<float>(green), static_cast<float>(blue),
        static_cast<float>(alpha));
}

QString toText(const Components &components)
{
    QStringList parts;
    for (const double value : { components.red, components.green, components.blue, components.alpha })
        parts += QString::number(value, 'g', QLocale::FloatingPointShortest);
    return parts.join(u' ');
}

std::optional<Components> fromText(const QString &text)
{
    const auto parts = text.split(u' ');
    std::array<double, 4> values{};
    if (parts.size() != qsizetype(values.size()))
        return {};
    for (std::size_t i = 0; i < values.size(); ++i) {
        bool isNumber = false;
        values[i] = parts[qsizetype(i)].toDouble(&isNumber);
        if (!isNumber || !(values[i] >= 0 && values[i] <= 1)) // not a number fails both comparisons
            return {};
    }
    return Components{ values[0], values[1], values[2], values[3] };
}

Components shipped(Role role)
{
    return rowOf(role).shipped;
}

QString valueKey(Role role)
{
    return rowOf(role).key;
}

QString markerKey(Role role)
{
    return rowOf(role).key + "_String"_L1;
}

QColor loadColour(QSettings &preferences, Role role)
{
    if (!preferences.value(markerKey(role)).toString().isEmpty())
        return colourOfText(preferences.value(valueKey(role)).toString());
    const auto colour = storeShippedColour(preferences, role);
    preferences.setValue(markerKey(role), u"Recorded"_s);
    return colour;
}

void storeColour(QSettings &preferences, Role role, const QColor &colour)
{
    if (colourOfText(preferences.value(valueKey(role)).toString()) == colour)
        return;
    QString text;
    if (colour.isValid()) {
        const auto rgb = colour.toRgb().rgba64();
        const auto component = [](quint16 value) { return value / 65535.0; };
        text = colour == shipped(role).toColour() ? toText(shipped(role))
                                                  : toText({ component(rgb.red()), component(rgb.green()),
                                                      component(rgb.blue()), component(rgb.alpha()) });
    }
    preferences.setValue(valueKey(role), text);
}

QColor storeShippedColour(QSettings &preferences, Role role)
{
    preferences.setValue(valueKey(role), toText(shipped(role)));
    return shipped(role).toColour();
}

qint64 loadAlternatingRows(QSettings &preferences)
{
    const auto text = preferences.value(alternatingRowsKey).toString();
    if (!text.isEmpty())
        return std::strtoll(text.toUtf8().constData(), nullptr, 10);
    storeAlternatingRows(preferences, 1);
    return 1;
}

void storeAlternatingRows(QSettings &preferences, qint64 value)
{
    preferences.setValue(alternatingRowsKey, QString::number(value));
}

} // namespace ColourScheme
