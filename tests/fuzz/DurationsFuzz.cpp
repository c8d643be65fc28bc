// The transcoder's report about a file, and what is read from texts of durations, names and numbers.
#include "Fuzz.h"
#include "compilation/Measuring.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray report(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const QString duration = compilation::durationText(report);
    HOLDS(duration.size() <= 11);
    HOLDS(duration.isEmpty() || report.contains("Duration:"));
    HOLDS(compilation::secondsFromDurationText(duration) <= 99 * 3600 + 99 * 60 + 99);

    const QString text = QString::fromUtf8(report);
    compilation::secondsFromDurationText(text);
    compilation::lenientNumber(text);
    const QString extension = compilation::pathExtension(text);
    HOLDS(text.endsWith(extension) && !extension.contains(QLatin1Char('.')));
    HOLDS(compilation::splitStringIntoChars(text).size() <= text.size());

    quint64 bytes = 0;
    for (std::size_t i = 0; i < size && i < sizeof bytes; ++i)
        bytes = bytes << 8 | data[i];
    const QString sizeText = compilation::sizeText(bytes);
    HOLDS(sizeText.contains(QLatin1Char(' ')) && sizeText.size() <= 20);
    return 0;
}
