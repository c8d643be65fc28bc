// Reading what `drutil list` prints, and deciding which of the drives is the current one.
#pragma once

#include <QList>
#include <QString>

/// One optical drive as the disc utility lists it.
struct Object_Optical_Drive {
    QString s_Drive_Number; ///< one character, handed to the disc utility as it stands
    QString sManufacturer; ///< vendor, trimmed
    QString sModel; ///< product, trimmed

    bool operator==(const Object_Optical_Drive &) const = default;
};

namespace drives {

/// The slots that the Drive menu offers.
inline constexpr int slotCount = 6;

/// "vendor - product": the menu item's text and the name by which a drive is known across sessions.
QString title(const Object_Optical_Drive &drive);

/// The drives of a listing in its order. The first line is a header, an empty line ends the list,
/// columns are fixed (number 0, vendor 3..11, product 12..29); a line that is too short reads as if
/// it were filled with blanks.
QList<Object_Optical_Drive> parseList(const QString &listing);

/// Whether a text is a listing at all, be it one without drives: its first line names the columns.
bool isList(const QString &listing);

/// What follows from a listing and the title remembered from an earlier session.
struct Choice {
    QString number; ///< the current drive's number; empty: no drive, keep the present one
    QString remember; ///< the title to store; empty: nothing to store
    QList<bool> checked; ///< a mark for each of the six slots
};

/// The drive with the remembered title becomes current; of several the last one, and each is checked.
/// Without a remembered title the first drive is taken, likewise when the remembered one is not there.
Choice choose(const QList<Object_Optical_Drive> &listed, const QString &remembered);

} // namespace drives
