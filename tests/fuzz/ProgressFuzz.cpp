// Pieces of the transcoder's standard error, cut wherever a pipe cuts them.
#include "Fuzz.h"
#include "runner/ProgressParser.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString piece =
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const std::optional<quint64> newest = runner::newestProgress(piece);
    HOLDS(!newest || piece.contains(QLatin1String("time=")));
    if (newest)
        runner::progressPercent(*newest, size);
    runner::Return_Seconds_From_VOB_Duration_Str(piece);

    // A complete line at the end of any piece that has shown a time is the newest there is.
    if (newest)
        HOLDS(runner::newestProgress(piece + QLatin1String("             time=01:02:03.00 ")) == 3723U);
    return 0;
}
