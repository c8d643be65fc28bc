// Reading what `drutil status` prints: four questions, each answered by a search of the whole text.
#pragma once

#include <QString>

namespace drives {

/// No disc, or an open tray ("No Media Inserted").
bool saysEmpty(const QString &status);

/// The disc can be written from its start now ("overwritable"): a blank one, or a rewritable one.
bool saysOverwritable(const QString &status);

/// The disc can be erased ("erasable").
bool saysErasable(const QString &status);

/// The drive itself does not exist, or not any more, in the words of our disc utility.
bool saysGone(const QString &status);

/// The sentence on why the person may not use the drive, in the words of our disc utility; empty: it says nothing of that.
QString refusal(const QString &status);

/// "DVD", "CD" or "BD", whichever occurs first in this order of preference anywhere in the text,
/// the lines about the drive included; "Other" when none does.
QString mediaType(const QString &status);

} // namespace drives
