// Lets a test program run only where nothing of a person's can be lost. Linked into every one of them.
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <unistd.h>

namespace {

/// Tests empty the folder of documents and the configuration of their HOME, and write discs in its virtual
/// recorders. tests/in-own-home makes one for each run and names it in this variable, too.
bool isInOwnHome()
{
    const char *const made = std::getenv("CORVALIS_TEST_HOME");
    const char *const home = std::getenv("HOME");
    return made && home && *made != '\0' && std::string_view(made) == home;
}

/// Before main(), so that no test's own has to think of it.
[[gnu::constructor]] void endOutsideOfAnOwnHome()
{
    if (isInOwnHome())
        return;
    std::fputs(
        "This test program empties folders of its HOME, which may be yours, so it has done nothing. Run it "
        "in a HOME of its own:\n"
        "    ctest --test-dir BUILD -R NAME --output-on-failure\n"
        "    " TESTS "/in-own-home NAME PROGRAM [ARGUMENT...]\n",
        stderr);
    ::_exit(2);
}

} // namespace
