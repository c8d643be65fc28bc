// The keys under which settings are kept.
#pragma once

#include <QLatin1StringView>

namespace preferences {

inline constexpr QLatin1StringView videoFormat("QuendralVideoFormat18"); ///< "0" NTSC, else PAL
inline constexpr QLatin1StringView audioFormat(
    "QuendralAudioFormat18"); ///< "0" Dolby Digital, else MPEG audio
inline constexpr QLatin1StringView forPlayers("Corvalis_Video_DVD_For_Players"); ///< "1" titles, else files
inline constexpr QLatin1StringView lastDrive(
    "Quendral_Last_Selected_Drive_18"); ///< title of the chosen drive

inline constexpr QLatin1StringView recentLists("Corvalis_Recent_Lists"); ///< full paths, the newest first
inline constexpr QLatin1StringView speed("Corvalis_Speed_"); ///< and a drive's title: a factor, or "max"

inline constexpr QLatin1StringView windowGeometry("Corvalis_Window_Geometry"); ///< as QWidget::saveGeometry()
inline constexpr QLatin1StringView columns("Corvalis_Columns_"); ///< and a table's name: widths, by commas
inline constexpr QLatin1StringView nameColumns("Corvalis_Name_Columns"); ///< "1": shown
inline constexpr QLatin1StringView writeTitles("Corvalis_Write_Titles"); ///< "0": audio CDs without CD-TEXT

} // namespace preferences
