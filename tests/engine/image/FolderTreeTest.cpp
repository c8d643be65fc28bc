// What is found under a folder, and what is said about what is not taken.
#include "image/FolderTree.h"

#include "Trees.h"
#include "image/TreeOpener.h"

#include <algorithm>
#include <csignal>
#include <set>

using namespace engine;
using image::FolderTree;
using image::IsoOptions;
using image::Links;

class FolderTreeTest : public QObject {
    Q_OBJECT

    static std::set<std::string> paths(const FolderTree &tree)
    {
        std::set<std::string> result;
        for (std::uint32_t entry = 1; entry < tree.entries().size(); ++entry)
            result.insert(tree.relativePath(entry));
        return result;
    }

    static IsoOptions following()
    {
        IsoOptions options;
        options.links = Links::follow;
        return options;
    }

private Q_SLOTS:
    void everyNameIsFound()
    {
        Scratch scratch;
        QVERIFY(makeAwkwardTree(scratch.path("t")));
        const auto tree = FolderTree::read(scratch.path("t"), {});
        QVERIFY2(tree, tree ? "" : tree.error().message.c_str());
        std::set<std::string> expected;
        for (const auto &[path, what] : list(scratch.path("t")))
            expected.insert(path);
        QCOMPARE(paths(*tree), expected);
        QVERIFY(tree->notes().empty());
    }

    void dataOfHardLinksIsStoredOnce()
    {
        Scratch scratch;
        QVERIFY(makeFile(scratch.path("t/a"), "data"));
        QCOMPARE(link(scratch.path("t/a").c_str(), scratch.path("t/b").c_str()), 0);
        QVERIFY(makeFile(scratch.path("t/c"), "data"));
        const auto tree = FolderTree::read(scratch.path("t"), {});
        QVERIFY(tree);
        QCOMPARE(tree->entries().size(), 4U);
        QCOMPARE(tree->contents().size(), 2U);
    }

    void linksAreFollowed()
    {
        Scratch scratch;
        const std::string root = scratch.path("t");
        QVERIFY(makeFile(root + "/folder/file", "data") && makeFile(scratch.path("outside"), "data"));
        const std::pair<const char *, const char *> links[] = {
            { "file", "folder/file" },
            { "linked", "folder" },
            { "out", "../outside" },
            { "dangling", "nothing" },
            { "self", "self" },
            { "folder/up", ".." },
            { "one", "two" },
            { "two", "one" },
        };
        for (const auto &[name, target] : links)
            QCOMPARE(symlink(target, (root + '/' + name).c_str()), 0);
        const auto tree = FolderTree::read(root, following());
        QVERIFY(tree);
        QCOMPARE(paths(*tree),
            (std::set<std::string>{ "folder", "folder/file", "file", "linked", "linked/file", "out" }));
        QCOMPARE(tree->contents().size(), 2U); // the file under three names, and the one outside
        QCOMPARE(tree->notes().size(), 6U);
        for (const std::string &note : tree->notes()) {
            QVERIFY2(note.find("is left out") != std::string::npos, note.c_str());
            QVERIFY2(note.find(root) == std::string::npos, note.c_str());
        }
        const auto hasNoteOf = [&](const std::string &name) {
            return std::ranges::any_of(tree->notes(),
                [&](const std::string &note) { return note.starts_with('"' + name + "\" is left out: "); });
        };
        QVERIFY(hasNoteOf("dangling") && hasNoteOf("folder/up"));
    }

    void linksThatMultiplyWithoutEnd()
    {
        Scratch scratch;
        const std::string root = scratch.path("t");
        for (int from = 0; from < 12; ++from) {
            const std::string folder = root + '/' + std::to_string(from);
            QVERIFY(makeFolder(folder));
            for (int to = 0; to < 12; ++to)
                QCOMPARE(symlink(("../" + std::to_string(to)).c_str(),
                             (folder + '/' + std::to_string(to)).c_str()),
                    0);
        }
        const auto tree = FolderTree::read(root, following());
        QVERIFY(!tree);
        QVERIFY2(tree.error().message.find("without end") != std::string::npos, tree.error().message.c_str());
    }

    void specialFiles()
    {
        Scratch scratch;
        QVERIFY(makeFile(scratch.path("t/file"), "data"));
        QCOMPARE(mkfifo(scratch.path("t/pipe").c_str(), 0600), 0);
        const auto kept = FolderTree::read(scratch.path("t"), {});
        QVERIFY(kept);
        QCOMPARE(paths(*kept), (std::set<std::string>{ "file", "pipe" }));
        const auto followed = FolderTree::read(scratch.path("t"), following());
        QVERIFY(followed);
        QCOMPARE(paths(*followed), (std::set<std::string>{ "file" }));
        QCOMPARE(followed->notes().size(), 1U);
    }

    void deepFolders()
    {
        Scratch scratch;
        QVERIFY(makeFolder(scratch.path("t")));
        int fd = open(scratch.path("t").c_str(), O_RDONLY | O_CLOEXEC);
        const std::string name(200, 'd');
        for (int depth = 0; depth < 100; ++depth) { // 20,000 bytes, five times PATH_MAX
            QCOMPARE(mkdirat(fd, name.c_str(), 0755), 0);
            const int next = openat(fd, name.c_str(), O_RDONLY | O_CLOEXEC);
            close(fd);
            fd = next;
        }
        for (const char *leaf : { "leaf", "other" })
            QCOMPARE(mkdirat(fd, leaf, 0755), 0);
        close(fd);
        const auto tree = FolderTree::read(scratch.path("t"), {});
        QVERIFY(tree);
        QCOMPARE(tree->entries().size(), 103U);
        image::TreeOpener opener(*tree);
        QVERIFY(opener.enter(102) >= 0);
        QVERIFY(opener.enter(50) >= 0);
        QVERIFY(opener.enter(101) >= 0);
    }

    void aFolderThatIsNotThere()
    {
        const auto missing = FolderTree::read("/nowhere/at all", {});
        QVERIFY(!missing);
        QVERIFY(missing.error().message.find("\"/nowhere/at all\" cannot be read") != std::string::npos);
    }

    void stopEndsTheReading()
    {
        Scratch scratch;
        QVERIFY(makeFile(scratch.path("t/file"), "data"));
        IsoOptions options;
        options.stop = [] { return SIGTERM; };
        const auto tree = FolderTree::read(scratch.path("t"), options);
        QVERIFY(!tree);
        QCOMPARE(tree.error().exit, Exit::terminated);
    }
};

QTEST_GUILESS_MAIN(FolderTreeTest)
#include "FolderTreeTest.moc"
