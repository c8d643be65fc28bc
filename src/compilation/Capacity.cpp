#include "compilation/Capacity.h"

#include <array>

namespace compilation {

qint32 capacity(Page page, qint64 kind)
{
    struct Row {
        Page page;
        std::array<qint32, 3> kinds;
    };
    static constexpr std::array rows{
        Row{ Page::Audio,
            { constAudioCDCDASpaceInSeconds, constAudioCDMP3SpaceInSeconds,
                constAudioDVDMP3SpaceInSeconds } },
        Row{ Page::Video, { constVideoDVDSpaceInSeconds, constVideoBRSpaceInSeconds, 0 } },
        Row{ Page::Data, { constDataCDSpaceInKBytes, constDataDVDSpaceInKBytes, constDataBRSpaceInKBytes } },
    };
    for (const Row &row : rows) {
        if (row.page == page && kind >= 0 && kind < static_cast<qint64>(row.kinds.size()))
            return row.kinds[static_cast<std::size_t>(kind)];
    }
    return 0;
}

qint64 percentage(quint64 total, qint32 capacity)
{
    return capacity > 0 ? static_cast<qint64>(total * 100 / static_cast<quint64>(capacity)) : 0;
}

GaugeBars gaugeBars(qint64 percent, double width)
{
    const auto whole = [](double units) { return static_cast<qint32>(qBound(0.0, units, 1e9)); };
    if (percent > 89)
        return { whole(width * 90 / 100), whole(static_cast<double>(percent - 90) * width / 100) };
    return { whole(static_cast<double>(percent) * width / 100), 0 };
}

} // namespace compilation
