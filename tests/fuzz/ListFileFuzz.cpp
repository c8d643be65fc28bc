// Saved lists, which may come from anybody.
#include "Fuzz.h"
#include "compilation/ListFile.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using compilation::ListFile;
    const QByteArray content(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const compilation::ListFileRead read = compilation::parsedListFile(content);
    HOLDS(read.list.entries.size() <= ListFile::mostEntries);
    for (const ListFile::Entry &entry : read.list.entries) {
        HOLDS(entry.path.startsWith(QLatin1Char('/')) && !entry.path.contains(QChar(0)));
        HOLDS(!entry.relative.startsWith(QLatin1Char('/')));
    }
    if (!read.error.isEmpty())
        return 0;
    // What was understood is saved so that it is understood again, in the same way.
    const compilation::ListFileRead again = compilation::parsedListFile(compilation::written(read.list));
    HOLDS(again.error.isEmpty() && again.list.entries == read.list.entries
        && again.list.kind == read.list.kind);
    return 0;
}
