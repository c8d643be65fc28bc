#include "writing/DiscName.h"

#include <QCoreApplication>
#include <QList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace writing {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(DiscName)
};

constexpr qsizetype jolietUnits = 16; // "Joliet Specification", volume identifier of 32 bytes
constexpr QStringView forbiddenInJoliet(u"*/:;?\\"); // the same, "Allowed Character Set"

bool isUnprintable(char32_t character)
{
    return !QChar::isPrint(character) || character == QChar::ReplacementCharacter; // of half a pair
}

/// The first of `characters` that `what` holds of; empty where there is none.
template <class What>
QString first(const QList<uint> &characters, What what)
{
    const auto found = std::ranges::find_if(characters, what);
    if (found == characters.end())
        return {};
    const char32_t character = *found;
    return QString::fromUcs4(&character, 1);
}

QString remarkOn(const QString &name, const QList<uint> &characters)
{
    const QString foreign = first(characters, [](uint character) { return character > 0x7e; });
    const QString forbidden = first(characters,
        [](uint character) { return character < 0x80 && forbiddenInJoliet.contains(QChar(character)); });
    if (!foreign.isEmpty())
        return Texts::tr("Where only plain letters are known, “%1” becomes “_”.").arg(foreign);
    if (!forbidden.isEmpty())
        return Texts::tr("On Windows “%1” becomes “_”.").arg(forbidden);
    return name.size() > jolietUnits ? Texts::tr("Windows shows “%1”.").arg(name.left(jolietUnits))
                                     : QString();
}

} // namespace

qsizetype discNameLength(const QString &name)
{
    return name.trimmed().toUcs4().size();
}

DiscNameCheck checkDiscName(const QString &name)
{
    const QString meant = name.trimmed();
    const QList<uint> characters = meant.toUcs4();
    if (meant.isEmpty())
        return {};
    if (std::ranges::any_of(characters, isUnprintable))
        return { Texts::tr("The name holds a character that cannot be seen."), {} };
    if (characters.size() > longestDiscName) {
        return { Texts::tr("The name has %1 characters; a disc takes %2.")
                     .arg(characters.size())
                     .arg(longestDiscName),
            {} };
    }
    return { {}, remarkOn(meant, characters) };
}

QString usableDiscName(const QString &name)
{
    return checkDiscName(name).wrong.isEmpty() ? name.trimmed() : QString();
}

} // namespace writing
