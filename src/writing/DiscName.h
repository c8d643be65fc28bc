// What a disc may be called. A disc carries its name once for each of its file systems, and each holds less than people write.
#pragma once

#include <QString>

namespace writing {

/// Characters that the longest form takes (ECMA-119 8.4.7).
inline constexpr qsizetype longestDiscName = 32;

/// What is to be said of a name.
struct DiscNameCheck {
    QString wrong; ///< a sentence on why no disc can have this name; empty: it can
    QString
        remark; ///< of a name that can be had: how it will look elsewhere; empty: as it is, or there is no name
};

/// `name` is any text. Blanks around it do not count; an empty one leaves the name to the tools.
DiscNameCheck checkDiscName(const QString &name);

/// Characters as a person counts them, without the blanks around: a pair of surrogates is one.
qsizetype discNameLength(const QString &name);

/// What the tools are told: `name` without the blanks around it, empty where it is wrong.
QString usableDiscName(const QString &name);

} // namespace writing
