// How much each kind of disc holds, and what share of it a compilation fills.
#pragma once

#include <QtGlobal>

namespace compilation {

inline constexpr qint32 constAudioCDCDASpaceInSeconds = 4440;
inline constexpr qint32 constAudioCDMP3SpaceInSeconds = 34200;
inline constexpr qint32 constAudioDVDMP3SpaceInSeconds = 136800;
inline constexpr qint32 constVideoDVDSpaceInSeconds = 9000;
inline constexpr qint32 constVideoBRSpaceInSeconds = 84230;
inline constexpr qint32 constDataCDSpaceInKBytes = 683593;
inline constexpr qint32 constDataDVDSpaceInKBytes = 4928307;
inline constexpr qint32 constDataBRSpaceInKBytes = 26214400;

/// The page of the main window whose list is measured, by the identifier of its tab.
enum class Page { Audio = 1, Video = 2, Data = 3 };

/// Capacity of the page's disc kind (0, 1, 2 as in i_Audio_Type, i_Video_Type, i_Data_Type), in
/// seconds for audio and video and in units of 1024 bytes for data; 0 for a kind or a page that is none.
qint32 capacity(Page page, qint64 kind);

/// Whole per cent, cut off, not limited to 100; 0 without a capacity.
qint64 percentage(quint64 total, qint32 capacity);

/// The widths of the two parts of a gauge `width` wide: the bar up to 90 per cent, and the red part
/// beyond, which is not limited to the gauge. In whole units, fractions dropped.
struct GaugeBars {
    qint32 bar;
    qint32 red;
};
GaugeBars gaugeBars(qint64 percent, double width);

} // namespace compilation
