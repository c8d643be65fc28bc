// The disc utility's report about the medium.
#include "Fuzz.h"
#include "drives/MediaStatus.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString status =
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const QString type = drives::mediaType(status);
    HOLDS(type == QLatin1String("Other") || status.contains(type));
    HOLDS(type != QLatin1String("Other") || !status.contains(QLatin1String("CD")));
    // More text never takes an answer back.
    const QString more = QLatin1String("Name: /dev/sr0\n") + status + QLatin1String("\nSpace Free: 0\n");
    HOLDS(!drives::saysEmpty(status) || drives::saysEmpty(more));
    HOLDS(!drives::saysOverwritable(status) || drives::saysOverwritable(more));
    HOLDS(!drives::saysErasable(status) || drives::saysErasable(more));
    return 0;
}
