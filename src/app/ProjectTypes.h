// The eight kinds of disc, and what follows from each: one row a kind.
#pragma once

#include <QLatin1StringView>

#include <array>

/// One kind of disc.
struct ProjectType {
    int code; ///< 1..8, as in i_Type_of_New_Disc
    QLatin1StringView name; ///< as a person calls it
    int tab; ///< index of the tab that holds its list
    int variant; ///< of that tab: i_Audio_Type, i_Video_Type or i_Data_Type
    QLatin1StringView burnTitle; ///< of the burn button
};

namespace projects {

inline constexpr int cancelled = 99;

inline constexpr std::array<ProjectType, 8> all{ {
    { 1, QLatin1StringView("Audio CD"), 0, 0, QLatin1StringView("Burn Audio CD") },
    { 2, QLatin1StringView("MP3 CD"), 0, 1, QLatin1StringView("Burn MP3 CD") },
    { 3, QLatin1StringView("MP3 DVD"), 0, 2, QLatin1StringView("Burn MP3 DVD") },
    { 4, QLatin1StringView("Video DVD"), 1, 0, QLatin1StringView("Burn Video DVD") },
    { 5, QLatin1StringView("Video Blu-ray"), 1, 1, QLatin1StringView("Burn Video Blu-ray") },
    { 6, QLatin1StringView("Data CD"), 2, 0, QLatin1StringView("Burn Data CD") },
    { 7, QLatin1StringView("Data DVD"), 2, 1, QLatin1StringView("Burn Data DVD") },
    { 8, QLatin1StringView("Data Blu-ray"), 2, 2, QLatin1StringView("Burn Data Blu-ray") },
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

} // namespace projects
