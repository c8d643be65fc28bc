// corvalis-bench VERB ARGUMENT...: does a piece of the application's work that cannot be timed from outside
// it, and prints the seconds that it took, the processor seconds, and a result.
// Run it with a HOME of its own: starting the window empties the working folders.
#include "Work.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>

namespace {

struct Verb {
    const char *name;
    const char *usage;
    int fewest;
    int most;
    int (*work)(const QStringList &);
};

constexpr std::array verbs{
    Verb{ "add", "add FILE...", 1, 100'000, addFiles },
    Verb{ "sort", "sort ROWS", 1, 1, sortRows },
    Verb{ "stage", "stage FOLDER INTO", 2, 2, stageFolder },
    Verb{ "size", "size FOLDER", 1, 1, measureFolder },
};

} // namespace

int main(int count, char **values)
{
    const auto verb = std::ranges::find_if(
        verbs, [&](const Verb &known) { return count > 1 && std::strcmp(values[1], known.name) == 0; });
    QStringList arguments;
    for (int i = 2; i < count; ++i)
        arguments.append(QFile::decodeName(values[i]));
    if (verb != verbs.end() && arguments.size() >= verb->fewest && arguments.size() <= verb->most)
        return verb->work(arguments);
    for (const Verb &known : verbs)
        std::fprintf(stderr, "usage: corvalis-bench %s\n", known.usage);
    return 2;
}
