// What is done to folder trees. No window: both run beside it.
#include "Clock.h"
#include "Work.h"
#include "compilation/FolderTree.h"
#include "writing/FolderStaging.h"

#include <QFile>

int stageFolder(const QStringList &paths)
{
    const std::string source = QFile::encodeName(paths[0]).toStdString();
    const std::string into = QFile::encodeName(paths[1]).toStdString();
    bool failed = false;
    writing::CopyState state;
    const Clock clock;
    writing::copyFolder(source, into, into, state, [&failed](const std::string &failure) {
        std::fprintf(stderr, "%s\n", failure.c_str());
        failed = true;
    });
    printCost(clock.seconds(), clock.processorSeconds());
    return failed ? 1 : 0;
}

int measureFolder(const QStringList &path)
{
    const std::string folder = QFile::encodeName(path[0]).toStdString();
    const Clock clock;
    const std::uint64_t bytes = compilation::treeSize(folder);
    printCost(clock.seconds(), clock.processorSeconds(), bytes);
    return bytes > 0 ? 0 : 1;
}
