// The eight kinds of disc, and what follows from each: one row a kind.
#pragma once

#include <QCoreApplication>
#include <QString>

#include <array>

/// One kind of disc.
struct ProjectType {
    int code; ///< 1..8, as in i_Type_of_New_Disc
    QLatin1StringView name; ///< in English, as it is given on the command line
    int tab; ///< index of the tab that holds its list
    int variant; ///< of that tab: i_Audio_Type, i_Video_Type or i_Data_Type
    QLatin1StringView burnTitle; ///< of the burn button, in English

    /// As a person calls it, in the language of the windows.
    QString shownName() const { return QCoreApplication::translate("ProjectType", name.data()); }
    /// What stands on the burn button, in the language of the windows. No two rows have the same one in any language.
    QString shownBurnTitle() const { return QCoreApplication::translate("ProjectType", burnTitle.data()); }
};

namespace projects {

inline constexpr int cancelled = 99;

inline constexpr std::array<ProjectType, 8> all{ {
    { 1, QLatin1StringView(QT_TRANSLATE_NOOP("ProjectType", "Audio CD")), 0, 0,
        QLatin1StringView(QT_TRANSLATE_NOOP("ProjectType", "Burn Audio CD")) },
    { 2, QLatin1StringView(QT_TRANSLATE_NOOP("ProjectType", "MP3 CD")), 0, 1,
        QLatin1StringView(QT_TRANSLATE_NOOP("ProjectType", "Burn MP3 CD")) },
    { 3, QLatin1StringView(QT_TRANSLATE_NOOP("ProjectType", "MP3 DVD")), 0, 2,
        QLatin1StringView(QT_TRANSLATE_NOOP("ProjectType", "Burn MP3 DVD")) },
    { 4, QLatin1StringView(QT_TRANSLATE_NOOP("ProjectType", "Video DVD")), 1, 0,
        QLatin1StringView(QT_TRANSLATE_NOOP("ProjectType", "Burn Video DVD")) },
    { 5, QLatin1StringView(QT_TRANSLATE_NOOP("ProjectType", "Video Blu-ray")), 1, 1,
        QLatin1StringView(QT_TRANSLATE_NOOP("ProjectType", "Burn Video Blu-ray")) },
    { 6, QLatin1StringView(QT_TRANSLATE_NOOP("ProjectType", "Data CD")), 2, 0,
        QLatin1StringView(QT_TRANSLATE_NOOP("ProjectType", "Burn Data CD")) },
    { 7, QLatin1StringView(QT_TRANSLATE_NOOP("ProjectType", "Data DVD")), 2, 1,
        QLatin1StringView(QT_TRANSLATE_NOOP("ProjectType", "Burn Data DVD")) },
    { 8, QLatin1StringView(QT_TRANSLATE_NOOP("ProjectType", "Data Blu-ray")), 2, 2,
        QLatin1StringView(QT_TRANSLATE_NOOP("ProjectType", "Burn Data Blu-ray")) },
} };

/// The row of a code, null for any other number.
constexpr const ProjectType *byCode(long long code)
{
    return code >= 1 && code <= 8 ? &all[static_cast<std::size_t>(code - 1)] : nullptr;
}

/// The row of a tab and its variant, null when there is none.
constexpr const ProjectType *byVariant(int tab, long long variant)
{
    for (const ProjectType &type : all) {
        if (type.tab == tab && type.variant == variant)
            return &type;
    }
    return nullptr;
}

/// Whether a disc of this kind carries a name that a person can give it. A CD with audio tracks has no file system for one.
constexpr bool hasDiscName(const ProjectType &type)
{
    return type.code != 1;
}

} // namespace projects
