// The five colours of the main window and the switch for alternating rows, as the preferences keep them.
#pragma once

#include <QColor>
#include <QString>

#include <array>
#include <optional>

class QSettings;

namespace ColourScheme {

/// The five colours, in the order in which they are loaded, stored and shown.
enum class Role { TableBackground, TableForeground, Toolbar, BottomBar, SpaceOccupiedBar };
inline constexpr std::array roles{ Role::TableBackground, Role::TableForeground, Role::Toolbar,
    Role::BottomBar, Role::SpaceOccupiedBar };

/// A colour with its whole precision, each component 0...1, not premultiplied. QColor keeps 16 bits of each.
struct Components {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1;
    bool operator==(const Components &) const = default;
    QColor toColour() const;
};

/// The text that is stored: the four components, the shortest decimals that read back as the same doubles,
/// separated by single blanks, with a decimal point in every locale.
QString toText(const Components &components);
/// The opposite. Nothing unless the text is four finite numbers from 0 to 1.
std::optional<Components> fromText(const QString &text);

/// What the program ships with.
Components shipped(Role role);

/// The preference key of the colour's text, and of the marker that reads "Recorded" once a colour was stored.
QString valueKey(Role role);
QString markerKey(Role role);

/// Reads a colour. Where no marker is stored the shipped colour is returned and stored together with its
/// marker. A marker without a readable value gives an invalid QColor, which stands for an unset colour;
/// nothing is written.
QColor loadColour(QSettings &preferences, Role role);
/// Stores a colour without its marker. Where the stored text already stands for this colour it stays as it
/// is, so that digits which a QColor has no room for survive; an invalid colour is stored as an empty text.
void storeColour(QSettings &preferences, Role role, const QColor &colour);
/// Stores the shipped colour with all its digits and returns it.
QColor storeShippedColour(QSettings &preferences, Role role);

/// Reads the switch for alternating rows: 1, and stores it, where nothing is stored; otherwise the leading
/// decimal integer of the stored text, 0 where it begins with none, the nearest limit where it does not fit.
qint64 loadAlternatingRows(QSettings &preferences);
void storeAlternatingRows(QSettings &preferences, qint64 value);

} // namespace ColourScheme
