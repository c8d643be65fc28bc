#include "compilation/FolderTree.h"

#include "support/ScratchFolder.h"

#include <QTest>

#include <algorithm>
#include <sys/socket.h>
#include <sys/un.h>
#include <vector>

using namespace support;

namespace {

/// Empties the folder and answers what was told.
std::vector<std::string> emptied(const std::string &path)
{
    std::vector<std::string> told;
    compilation::emptyFolder(path, [&told](const std::string &sentence) { told.push_back(sentence); });
    return told;
}

/// The folder is there and holds nothing.
bool isEmptyFolder(const std::string &path)
{
    return exists(path) && ::rmdir(path.c_str()) == 0 && ::mkdir(path.c_str(), 0755) == 0;
}

std::uint64_t ownSize(const std::string &path)
{
    return static_cast<std::uint64_t>(infoOf(path).st_size);
}

} // namespace

class FolderTreeTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void measuresWhatIsNoFolder_data();
    void measuresWhatIsNoFolder();
    void addsUpFilesFoldersAndLinks();
    void countsTheTargetOfALinkAndDoesNotEnterIt();
    void measuresOddNames();
    void measuresDeepTrees_data();
    void measuresDeepTrees();
    void measuresWideTrees();
    void passesOverWhatItMayNotRead();
    void comesBackOnlyWhereItCameFrom();
    void removesEverythingBelow();
    void removesOddNames();
    void removesLinksAndNotTheirTargets();
    void emptiesTheTargetOfALinkedWorkingFolder();
    void removesDeepTrees_data();
    void removesDeepTrees();
    void removesReadOnlyTrees_data();
    void removesReadOnlyTrees();
    void tellsWhatStays();
    void saysNothingOfAFolderThatIsGone();
};

void FolderTreeTest::initTestCase()
{
    limitOpenFiles();
}

void FolderTreeTest::measuresWhatIsNoFolder_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("nothing there") << QByteArray("gone");
    QTest::newRow("an empty folder") << QByteArray("empty");
    QTest::newRow("a file") << QByteArray("file");
    QTest::newRow("a link to nothing") << QByteArray("broken");
    QTest::newRow("a link to itself") << QByteArray("loop");
}

void FolderTreeTest::measuresWhatIsNoFolder()
{
    QFETCH(QByteArray, name);
    const ScratchFolder scratch;
    makeFolder(scratch / "empty");
    writeFile(scratch / "file", "content");
    makeLink("nowhere", scratch / "broken");
    makeLink("loop", scratch / "loop");
    QCOMPARE(compilation::treeSize(scratch / name.toStdString()), 0U);
    QCOMPARE(compilation::treeSize({}), 0U);
}

void FolderTreeTest::addsUpFilesFoldersAndLinks()
{
    const ScratchFolder scratch;
    makeFolder(scratch / "a");
    makeFolder(scratch / "a/b");
    makeFolder(scratch / ".hidden");
    writeFile(scratch / "one", std::string(1000, '1'));
    writeFile(scratch / "a/two", std::string(200, '2'));
    writeFile(scratch / "a/b/.three", std::string(30, '3'));
    writeFile(scratch / ".hidden/four", std::string(4, '4'));
    writeFile(scratch / "large", "");
    QCOMPARE(::truncate((scratch / "large").c_str(), off_t(1) << 33), 0);
    const std::uint64_t folders =
        ownSize(scratch / "a") + ownSize(scratch / "a/b") + ownSize(scratch / ".hidden");
    QCOMPARE(compilation::treeSize(scratch.path()), 1234 + (std::uint64_t(1) << 33) + folders);
    QCOMPARE(compilation::treeSize(scratch.path() + '/'), 1234 + (std::uint64_t(1) << 33) + folders);
    QCOMPARE(compilation::treeSize(scratch / "a/b"), 30U);
}

void FolderTreeTest::countsTheTargetOfALinkAndDoesNotEnterIt()
{
    const ScratchFolder scratch;
    const ScratchFolder outside;
    writeFile(outside / "file", std::string(5000, 'x'));
    makeFolder(scratch / "tree");
    makeLink(outside / "file", scratch / "tree/to file");
    makeLink("nowhere", scratch / "tree/to nothing");
    QCOMPARE(compilation::treeSize(scratch / "tree"), 5000U);
    makeLink(outside.path(), scratch / "tree/to folder");
    QCOMPARE(compilation::treeSize(scratch / "tree"), 5000U + ownSize(outside.path()));
    makeLink("..", scratch / "tree/to parent");
    QCOMPARE(
        compilation::treeSize(scratch / "tree"), 5000U + ownSize(outside.path()) + ownSize(scratch.path()));
    makeLink("tree", scratch / "linked");
    QCOMPARE(compilation::treeSize(scratch / "linked"), compilation::treeSize(scratch / "tree"));
}

void FolderTreeTest::measuresOddNames()
{
    const ScratchFolder scratch;
    const std::string folder = scratch / notUtf8;
    makeFolder(folder);
    writeFile(folder + '/' + longestName, "12345");
    writeFile(folder + "/-rf", "12");
    writeFile(folder + "/ ", "1");
    QCOMPARE(compilation::treeSize(folder), 8U);
}

void FolderTreeTest::measuresDeepTrees_data()
{
    addRowsOfDeepTrees();
}

void FolderTreeTest::measuresDeepTrees()
{
    QFETCH(QByteArray, name);
    QFETCH(int, levels);
    const ScratchFolder scratch;
    std::uint64_t expected = 0;
    makeDeepTree(scratch.path(), name.toStdString(), levels, [&expected](int folder) {
        // Entries on both sides of the way down, so that the walk has to come back to each level.
        for (const char *file : { "a", "z" }) {
            const int written = check(::openat(folder, file, O_WRONLY | O_CREAT | O_CLOEXEC, 0644), file);
            expected += static_cast<std::uint64_t>(::write(written, "1234567", 7));
            ::close(written);
        }
        struct stat info;
        check(::fstat(folder, &info), "stat");
        expected += static_cast<std::uint64_t>(info.st_size);
    });
    QCOMPARE(expected > 14 * static_cast<std::uint64_t>(levels), true);
    QCOMPARE(compilation::treeSize(scratch.path()), expected);
}

void FolderTreeTest::measuresWideTrees()
{
    const ScratchFolder scratch;
    for (int i = 0; i < 1200; ++i)
        writeFile(scratch / (std::to_string(i) + std::string(100, 'w')), "abc");
    QCOMPARE(compilation::treeSize(scratch.path()), 3600U);
}

void FolderTreeTest::passesOverWhatItMayNotRead()
{
    const ScratchFolder scratch;
    makeFolder(scratch / "tree");
    writeFile(scratch / "tree/seen", "123");
    makeFolder(scratch / "tree/locked");
    writeFile(scratch / "tree/locked/unseen", "1234567");
    const std::uint64_t seen = 3 + ownSize(scratch / "tree/locked");
    giveToOrdinaryUser(scratch / "tree");
    for (const mode_t mode : { 0000, 0111, 0444 }) {
        check(::chmod((scratch / "tree/locked").c_str(), mode), "chmod");
        QCOMPARE(
            asOrdinaryUser(scratch.path(), [seen] { return compilation::treeSize("tree") == seen ? 0 : 1; }),
            0);
    }
}

void FolderTreeTest::comesBackOnlyWhereItCameFrom()
{
    constexpr int levels = 40;
    const ScratchFolder scratch;
    makeFolder(scratch / "other");
    makeDeepTree(scratch.path(), "d", levels);
    compilation::TreeCursor cursor(scratch.path());
    QVERIFY(!cursor.enter("gone"));
    makeLink("other", scratch / "link");
    QVERIFY(!cursor.enter("link"));
    for (int level = 0; level < levels; ++level)
        QVERIFY(cursor.enter("d"));
    QCOMPARE(cursor.path().size(), std::size_t(2 * levels));
    // The third level from the top moves away with all that lies below it.
    check(::rename((scratch / "d/d/d").c_str(), (scratch / "other/d").c_str()), "rename");
    int left = 0;
    while (cursor.leave())
        ++left;
    QCOMPARE(left, levels - 3);
    QCOMPARE(cursor.path(), std::string("/d/d/d"));
}

void FolderTreeTest::removesEverythingBelow()
{
    const ScratchFolder scratch;
    makeFolder(scratch / "w");
    makeFolder(scratch / "w/a");
    makeFolder(scratch / "w/a/b");
    makeFolder(scratch / "w/.hidden");
    writeFile(scratch / "w/a/b/file", "1");
    writeFile(scratch / "w/.hidden/file", "1");
    writeFile(scratch / "w/read only", "1");
    check(::chmod((scratch / "w/read only").c_str(), 0), "chmod");
    check(::mkfifo((scratch / "w/fifo").c_str(), 0644), "mkfifo");
    sockaddr_un address{ AF_UNIX, "socket" };
    const int socket = check(::socket(AF_UNIX, SOCK_STREAM, 0), "socket");
    check(::chdir((scratch / "w").c_str()), "chdir");
    check(::bind(socket, reinterpret_cast<sockaddr *>(&address), sizeof address), "bind");
    check(::chdir("/"), "chdir");
    ::close(socket);
    QCOMPARE(infoOf(scratch / "w/socket").st_mode & S_IFMT, mode_t(S_IFSOCK));

    QCOMPARE(emptied(scratch / "w"), std::vector<std::string>());
    QVERIFY(isEmptyFolder(scratch / "w"));
    QCOMPARE(emptied(scratch / "w"), std::vector<std::string>());
}

void FolderTreeTest::removesOddNames()
{
    const ScratchFolder scratch;
    makeFolder(scratch / "w");
    makeFolder(scratch / "w" + '/' + notUtf8);
    makeFolder(scratch / "w" + '/' + longestName);
    writeFile(scratch / "w/" + notUtf8 + '/' + longestName, "1");
    writeFile(scratch / "w/" + longestName + '/' + notUtf8, "1");
    writeFile(scratch / "w/-rf", "1");
    writeFile(scratch / "w/...", "1");
    writeFile(scratch / "w/ \t\n", "1");
    QCOMPARE(emptied(scratch / "w"), std::vector<std::string>());
    QVERIFY(isEmptyFolder(scratch / "w"));
}

void FolderTreeTest::removesLinksAndNotTheirTargets()
{
    const ScratchFolder scratch;
    const ScratchFolder outside;
    makeFolder(scratch / "w");
    makeFolder(outside / "folder", 0555);
    writeFile(outside / "file", "kept");
    makeLink(outside.path(), scratch / "w/to folder");
    makeLink(outside / "folder", scratch / "w/to read-only folder");
    makeLink(outside / "file", scratch / "w/to file");
    makeLink("..", scratch / "w/to parent");
    makeLink("nowhere", scratch / "w/to nothing");
    check(::link((outside / "file").c_str(), (scratch / "w/second name").c_str()), "link");

    QCOMPARE(emptied(scratch / "w"), std::vector<std::string>());
    QVERIFY(isEmptyFolder(scratch / "w"));
    QCOMPARE(readFile(outside / "file"), std::string("kept"));
    QCOMPARE(infoOf(outside / "folder").st_mode & 07777, mode_t(0555));
    QCOMPARE(infoOf(outside / "file").st_mode & 07777, mode_t(0644));
}

void FolderTreeTest::emptiesTheTargetOfALinkedWorkingFolder()
{
    const ScratchFolder scratch;
    makeFolder(scratch / "elsewhere");
    writeFile(scratch / "elsewhere/file", "1");
    makeLink("elsewhere", scratch / "w");
    QCOMPARE(emptied(scratch / "w"), std::vector<std::string>());
    QVERIFY(isEmptyFolder(scratch / "elsewhere"));
    QVERIFY(exists(scratch / "w"));
}

void FolderTreeTest::removesDeepTrees_data()
{
    measuresDeepTrees_data();
}

void FolderTreeTest::removesDeepTrees()
{
    QFETCH(QByteArray, name);
    QFETCH(int, levels);
    const ScratchFolder scratch;
    makeFolder(scratch / "w");
    makeDeepTree(scratch / "w", name.toStdString(), levels, [](int folder) {
        ::close(check(::openat(folder, "file", O_WRONLY | O_CREAT | O_CLOEXEC, 0644), "file"));
    });
    QCOMPARE(depthOf(scratch / "w", name.toStdString()), levels);
    QCOMPARE(emptied(scratch / "w"), std::vector<std::string>());
    QVERIFY(isEmptyFolder(scratch / "w"));
}

void FolderTreeTest::removesReadOnlyTrees_data()
{
    QTest::addColumn<int>("mode");
    QTest::newRow("read and search") << 0555;
    QTest::newRow("read") << 0444;
    QTest::newRow("write") << 0222;
    QTest::newRow("search") << 0111;
    QTest::newRow("nothing") << 0000;
}

void FolderTreeTest::removesReadOnlyTrees()
{
    QFETCH(int, mode);
    const ScratchFolder scratch;
    makeFolder(scratch / "w");
    makeFolder(scratch / "w/a");
    makeFolder(scratch / "w/a/b");
    writeFile(scratch / "w/a/b/file", "1");
    giveToOrdinaryUser(scratch / "w");
    check(::chmod((scratch / "w/a/b").c_str(), static_cast<mode_t>(mode)), "chmod");
    check(::chmod((scratch / "w/a").c_str(), static_cast<mode_t>(mode)), "chmod");

    const int failures = asOrdinaryUser(scratch.path(), [] { return static_cast<int>(emptied("w").size()); });
    QCOMPARE(failures, 0);
    QVERIFY(isEmptyFolder(scratch / "w"));
}

void FolderTreeTest::tellsWhatStays()
{
    const ScratchFolder scratch;
    makeFolder(scratch / "w");
    makeFolder(scratch / "w/folder");
    writeFile(scratch / "w/folder/file", "1");
    writeFile(scratch / "w/file", "1");
    giveToOrdinaryUser(scratch / "w");
    check(::chmod((scratch / "w").c_str(), 0555), "chmod");

    const int status = asOrdinaryUser(scratch.path(), [] {
        std::vector<std::string> told = emptied("w");
        std::ranges::sort(told);
        return told == std::vector<std::string>{ "w/file: Permission denied", "w/folder: Permission denied" }
            ? 0
            : 1;
    });
    QCOMPARE(status, 0);
    QVERIFY(exists(scratch / "w/file"));
    QVERIFY(!exists(scratch / "w/folder/file"));
}

void FolderTreeTest::saysNothingOfAFolderThatIsGone()
{
    const ScratchFolder scratch;
    QCOMPARE(emptied(scratch / "gone"), std::vector<std::string>());
    QCOMPARE(emptied({}), std::vector<std::string>());
    writeFile(scratch / "file", "kept");
    QCOMPARE(emptied(scratch / "file"), std::vector<std::string>());
    QCOMPARE(readFile(scratch / "file"), std::string("kept"));
}

QTEST_GUILESS_MAIN(FolderTreeTest)
#include "FolderTreeTest.moc"
