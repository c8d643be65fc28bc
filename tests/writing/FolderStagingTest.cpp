#include "writing/FolderStaging.h"

#include "support/OwnMounts.h"
#include "support/ScratchFolder.h"

#include <QTest>

#include <algorithm>
#include <csignal>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <thread>
#include <vector>

using namespace support;

namespace {

/// What a copy told, in alphabetical order, and that it has said that it has ended.
struct Result {
    std::vector<std::string> told;
    bool ended = false;
};

Result copied(
    const std::string &source, const std::string &destination, const std::string &never = "/nowhere")
{
    Result result;
    writing::CopyState state;
    writing::copyFolder(source, destination, never, state,
        [&result](const std::string &sentence) { result.told.push_back(sentence); });
    result.ended = state.ended;
    std::ranges::sort(result.told);
    return result;
}

/// The copy has ended and had nothing to tell.
bool copiesInSilence(const std::string &source, const std::string &destination)
{
    const Result result = copied(source, destination);
    for (const std::string &sentence : result.told)
        qWarning("%s", sentence.c_str());
    return result.ended && result.told.empty();
}

using Told = std::vector<std::string>;

bool sameModeAndTime(const std::string &one, const std::string &other)
{
    const struct stat a = infoOf(one);
    const struct stat b = infoOf(other);
    return a.st_mode == b.st_mode && a.st_mtim.tv_sec == b.st_mtim.tv_sec
        && a.st_mtim.tv_nsec == b.st_mtim.tv_nsec;
}

void setTime(const std::string &path, time_t seconds, long nanoseconds)
{
    const timespec times[] = { { seconds + 5, 0 }, { seconds, nanoseconds } };
    check(::utimensat(AT_FDCWD, path.c_str(), times, AT_SYMLINK_NOFOLLOW), path);
}

std::string randomContent(std::size_t size)
{
    std::string content(size, '\0');
    std::uint32_t state = 12345;
    for (char &c : content) {
        state = state * 1664525 + 1013904223;
        c = static_cast<char>(state >> 24);
    }
    return content;
}

/// From here on this process sees mounts of its own and may make some, root or not.
bool entersANamespaceOfItsOwn()
{
    const std::pair<const char *, uid_t> maps[] = { { "/proc/self/uid_map", ::geteuid() },
        { "/proc/self/gid_map", ::getegid() } };
    if (::geteuid() == 0)
        return ::unshare(CLONE_NEWNS) == 0
            && ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
    if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0)
        return false;
    const auto write = [](const char *path, const std::string &text) {
        const int file = ::open(path, O_WRONLY | O_CLOEXEC);
        return ::write(file, text.data(), text.size()) == static_cast<ssize_t>(text.size())
            && ::close(file) == 0;
    };
    bool written = write("/proc/self/setgroups", "deny");
    for (const auto &[path, id] : maps)
        written = written && write(path, "0 " + std::to_string(id) + " 1");
    return written;
}

} // namespace

class FolderStagingTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void copiesContents_data();
    void copiesContents();
    void copiesTheTreeUnderItsName();
    void keepsModesAndTimes();
    void keepsLinksAsTheyAre();
    void keepsSecondNames();
    void keepsHoles();
    void copiesHolesWithRoomReservedBehindTheEnd();
    void copiesOddNames();
    void copiesDeepTrees_data();
    void copiesDeepTrees();
    void copiesFilesShorterThanTheySay();
    void takesTheSourceAsItIsNamed_data();
    void takesTheSourceAsItIsNamed();
    void tellsOfWrongPlaces_data();
    void tellsOfWrongPlaces();
    void leavesOutWhatIsNoFile();
    void leavesOutWhatItMayNotRead();
    void leavesOutWhatTheDestinationRefuses();
    void leavesOutTheWorkingFolder();
    void refusesToCopyTheWorkingFolderIntoItself();
    void leavesNoHalfFileWhenOneGetsTooLarge();
    void namesAllThatDoesNotFit();
    void survivesASourceThatVanishes();
    void overwritesNothing();
    void stopsBeforeItHasBegun();
    void stopsBetweenFiles();
    void stopsFromAnotherThread();
};

void FolderStagingTest::initTestCase()
{
    limitOpenFiles();
}

void FolderStagingTest::copiesContents_data()
{
    QTest::addColumn<int>("size");
    for (const int size : { 0, 1, 4095, 4096, 4097, (1 << 20) - 1, 1 << 20, (1 << 20) + 1, 5'000'001 })
        QTest::addRow("%d bytes", size) << size;
}

void FolderStagingTest::copiesContents()
{
    QFETCH(int, size);
    const ScratchFolder scratch;
    const std::string content = randomContent(static_cast<std::size_t>(size));
    makeFolder(scratch / "source");
    makeFolder(scratch / "disc");
    writeFile(scratch / "source/file", content);
    QVERIFY(copiesInSilence(scratch / "source", scratch / "disc"));
    QCOMPARE(readFile(scratch / "disc/source/file") == content, true);
}

void FolderStagingTest::copiesTheTreeUnderItsName()
{
    const ScratchFolder scratch;
    makeFolder(scratch / "Holiday 2024");
    makeFolder(scratch / "Holiday 2024/a");
    makeFolder(scratch / "Holiday 2024/a/empty");
    makeFolder(scratch / "Holiday 2024/.hidden");
    writeFile(scratch / "Holiday 2024/one", "1");
    writeFile(scratch / "Holiday 2024/a/two", "22");
    writeFile(scratch / "Holiday 2024/.hidden/three", "333");
    makeFolder(scratch / "disc");
    QVERIFY(copiesInSilence(scratch / "Holiday 2024", scratch / "disc"));
    QCOMPARE(readFile(scratch / "disc/Holiday 2024/one"), std::string("1"));
    QCOMPARE(readFile(scratch / "disc/Holiday 2024/a/two"), std::string("22"));
    QCOMPARE(readFile(scratch / "disc/Holiday 2024/.hidden/three"), std::string("333"));
    QCOMPARE(infoOf(scratch / "disc/Holiday 2024/a/empty").st_mode & S_IFMT, mode_t(S_IFDIR));
    QCOMPARE(readFile(scratch / "Holiday 2024/one"), std::string("1"));
}

void FolderStagingTest::keepsModesAndTimes()
{
    const ScratchFolder scratch;
    makeFolder(scratch / "source");
    makeFolder(scratch / "disc");
    const struct {
        const char *name;
        mode_t mode;
        time_t time;
    } files[] = {
        { "usual", 0644, 1'000'000'000 },
        { "read-only", 0444, 1 },
        { "private", 0600, 0 },
        { "program", 04755, 2'000'000'000 },
        { "before 1970", 0666, -86'400'000 },
        { "far", 0640, 8'000'000'000 },
    };
    for (const auto &file : files) {
        writeFile(scratch / "source/" + file.name, "content");
        check(::chmod((scratch / "source/" + file.name).c_str(), file.mode), file.name);
        setTime(scratch / "source/" + file.name, file.time, 123'456'789);
    }
    makeFolder(scratch / "source/folder");
    writeFile(scratch / "source/folder/file", "1");
    makeLink("usual", scratch / "source/link");
    setTime(scratch / "source/link", 1'234'567, 89);
    for (const char *folder : { "source/folder", "source" }) {
        check(::chmod((scratch / folder).c_str(), 0555), folder);
        setTime(scratch / folder, 1'100'000'000, 987'654'321);
    }

    QVERIFY(copiesInSilence(scratch / "source", scratch / "disc"));
    for (const auto &file : files)
        QVERIFY2(sameModeAndTime(scratch / "source/" + file.name, scratch / "disc/source/" + file.name),
            file.name);
    for (const char *name : { "source/folder/file", "source/link" })
        QVERIFY2(sameModeAndTime(scratch / name, scratch / "disc/" + name), name);
    // Folders keep their times; their owner may do with the copies what making a disc takes.
    for (const char *name : { "source", "source/folder" }) {
        const struct stat info = infoOf(scratch / "disc/" + name);
        QCOMPARE(info.st_mode & 07777U, 0755U);
        QCOMPARE(info.st_mtim.tv_sec, 1'100'000'000);
    }
}

void FolderStagingTest::keepsLinksAsTheyAre()
{
    const ScratchFolder scratch;
    makeFolder(scratch / "source");
    makeFolder(scratch / "disc");
    writeFile(scratch / "outside", "outside");
    const std::string targets[] = { "file", "../outside", scratch.path(), "nowhere", "..", ".", "link 0",
        notUtf8, std::string(300, 'x'), std::string(4095, 'y') };
    for (std::size_t i = 0; i < std::size(targets); ++i)
        makeLink(targets[i], scratch / "source/link " + std::to_string(i));

    QVERIFY(copiesInSilence(scratch / "source", scratch / "disc"));
    for (std::size_t i = 0; i < std::size(targets); ++i) {
        std::string target(5000, '\0');
        const std::string link = scratch / "disc/source/link " + std::to_string(i);
        target.resize(static_cast<std::size_t>(
            check(static_cast<int>(::readlink(link.c_str(), target.data(), target.size())), link)));
        QCOMPARE(target, targets[i]);
    }
}

void FolderStagingTest::keepsSecondNames()
{
    const ScratchFolder scratch;
    makeFolder(scratch / "source");
    makeFolder(scratch / "source/folder");
    makeFolder(scratch / "disc");
    writeFile(scratch / "source/one", "content");
    check(::link((scratch / "source/one").c_str(), (scratch / "source/two").c_str()), "link");
    check(::link((scratch / "source/one").c_str(), (scratch / "source/folder/three").c_str()), "link");
    check(::link((scratch / "source/one").c_str(), (scratch / "outside").c_str()), "link");

    QVERIFY(copiesInSilence(scratch / "source", scratch / "disc"));
    const struct stat one = infoOf(scratch / "disc/source/one");
    QCOMPARE(one.st_nlink, nlink_t(3));
    QCOMPARE(infoOf(scratch / "disc/source/two").st_ino, one.st_ino);
    QCOMPARE(infoOf(scratch / "disc/source/folder/three").st_ino, one.st_ino);
    QVERIFY(one.st_ino != infoOf(scratch / "source/one").st_ino);
    QCOMPARE(readFile(scratch / "disc/source/folder/three"), std::string("content"));
}

void FolderStagingTest::keepsHoles()
{
    constexpr off_t size = off_t(6) << 30;
    const ScratchFolder scratch;
    makeFolder(scratch / "source");
    makeFolder(scratch / "disc");
    writeFile(scratch / "source/nothing but a hole", "");
    check(::truncate((scratch / "source/nothing but a hole").c_str(), size), "truncate");
    const int file =
        check(::open((scratch / "source/islands").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0644), "open");
    const std::pair<off_t, std::string> islands[] = { { 0, "start" }, { (off_t(5) << 30) + 12345, "middle" },
        { size - 3, "end" } };
    for (const auto &[at, text] : islands)
        QCOMPARE(::pwrite(file, text.data(), text.size(), at), static_cast<ssize_t>(text.size()));
    ::close(file);

    QVERIFY(copiesInSilence(scratch / "source", scratch / "disc"));
    for (const char *name : { "nothing but a hole", "islands" }) {
        const struct stat info = infoOf(scratch / "disc/source/" + name);
        QCOMPARE(info.st_size, size);
        QVERIFY2(info.st_blocks * 512 < (1 << 20), name);
    }
    const int copy = check(::open((scratch / "disc/source/islands").c_str(), O_RDONLY | O_CLOEXEC), "open");
    for (const auto &[at, text] : islands) {
        std::string read(text.size(), '\0');
        QCOMPARE(::pread(copy, read.data(), read.size(), at), static_cast<ssize_t>(text.size()));
        QCOMPARE(read, text);
    }
    ::close(copy);
}

/// Its blocks are enough for all its bytes, yet some of these have none.
void FolderStagingTest::copiesHolesWithRoomReservedBehindTheEnd()
{
    constexpr off_t size = 300'000;
    const ScratchFolder scratch;
    makeFolder(scratch / "source");
    makeFolder(scratch / "disc");
    writeFile(scratch / "source/file", "start");
    const int file = check(::open((scratch / "source/file").c_str(), O_WRONLY | O_CLOEXEC), "open");
    check(::ftruncate(file, size), "ftruncate");
    check(::fallocate(file, FALLOC_FL_KEEP_SIZE, size, 2 * size), "fallocate");
    ::close(file);
    QVERIFY(infoOf(scratch / "source/file").st_blocks * 512 >= size);
    QVERIFY(copiesInSilence(scratch / "source", scratch / "disc"));
    QCOMPARE(readFile(scratch / "disc/source/file"), readFile(scratch / "source/file"));
}

void FolderStagingTest::copiesOddNames()
{
    const ScratchFolder scratch;
    const std::string source = scratch / notUtf8;
    const std::string copy = scratch / "disc/" + notUtf8;
    makeFolder(source);
    makeFolder(source + '/' + longestName);
    makeFolder(scratch / "disc");
    const std::string names[] = { "-rf", " ", "...", "*", "%1%2", "a\\b", notUtf8,
        longestName + '/' + longestName };
    for (const std::string &name : names)
        writeFile(source + '/' + name, name);
    QVERIFY(copiesInSilence(source, scratch / "disc"));
    for (const std::string &name : names)
        QCOMPARE(readFile(copy + '/' + name), name);
}

void FolderStagingTest::copiesDeepTrees_data()
{
    addRowsOfDeepTrees();
}

void FolderStagingTest::copiesDeepTrees()
{
    QFETCH(QByteArray, name);
    QFETCH(int, levels);
    const ScratchFolder scratch;
    makeFolder(scratch / "source");
    makeFolder(scratch / "disc");
    makeDeepTree(scratch / "source", name.toStdString(), levels, [](int folder) {
        // Entries on both sides of the way down, one with two names.
        ::close(check(::openat(folder, "a", O_WRONLY | O_CREAT | O_CLOEXEC, 0644), "a"));
        check(::linkat(folder, "a", folder, "z", 0), "z");
    });
    QVERIFY(copiesInSilence(scratch / "source", scratch / "disc"));

    int here = check(::open((scratch / "disc/source").c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC), "copy");
    for (int level = 0; level < levels; ++level) {
        const int below =
            check(::openat(here, name.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC), "level");
        QCOMPARE(::faccessat(below, "a", R_OK, 0), 0);
        QCOMPARE(::faccessat(below, "z", R_OK, 0), 0);
        ::close(std::exchange(here, below));
    }
    ::close(here);
}

/// The kernel's own files have one page as their size and hold less; padding would come from nowhere.
void FolderStagingTest::copiesFilesShorterThanTheySay()
{
    const ScratchFolder scratch;
    QVERIFY(infoOf("/sys/class/net/lo/mtu").st_size >= 4096);
    QVERIFY(copied("/sys/class/net/lo", scratch.path()).ended);
    QCOMPARE(readFile(scratch / "lo/mtu"), readFile("/sys/class/net/lo/mtu"));
}

void FolderStagingTest::takesTheSourceAsItIsNamed_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QByteArray>("copy");
    QTest::newRow("a folder") << QByteArray("folder") << QByteArray("folder");
    QTest::newRow("with a slash at its end") << QByteArray("folder/") << QByteArray("folder");
    QTest::newRow("with slashes at its end") << QByteArray("folder///") << QByteArray("folder");
    QTest::newRow("a link to a folder") << QByteArray("link") << QByteArray("link");
    QTest::newRow("through a link") << QByteArray("link/below") << QByteArray("below");
}

void FolderStagingTest::takesTheSourceAsItIsNamed()
{
    QFETCH(QByteArray, source);
    QFETCH(QByteArray, copy);
    const ScratchFolder scratch;
    makeFolder(scratch / "folder");
    makeFolder(scratch / "folder/below");
    writeFile(scratch / "folder/file", "above");
    writeFile(scratch / "folder/below/file", "below");
    makeLink("folder", scratch / "link");
    makeFolder(scratch / "disc");
    QVERIFY(copiesInSilence(scratch / source.toStdString(), scratch / "disc"));
    const std::string top = scratch / "disc/" + copy.toStdString();
    QCOMPARE(infoOf(top).st_mode & S_IFMT, mode_t(S_IFDIR));
    QCOMPARE(readFile(top + "/file"), std::string(copy == "below" ? "below" : "above"));
}

void FolderStagingTest::tellsOfWrongPlaces_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QByteArray>("destination");
    QTest::addColumn<QByteArray>("told");
    QTest::newRow("the source is gone")
        << QByteArray("gone") << QByteArray("disc") << QByteArray("gone: No such file or directory");
    QTest::newRow("the source is a file")
        << QByteArray("file") << QByteArray("disc") << QByteArray("file: Not a directory");
    QTest::newRow("the source is a link to nothing")
        << QByteArray("broken") << QByteArray("disc") << QByteArray("broken: No such file or directory");
    QTest::newRow("the destination is gone")
        << QByteArray("folder") << QByteArray("gone") << QByteArray("gone: No such file or directory");
    QTest::newRow("the destination is a file")
        << QByteArray("folder") << QByteArray("file") << QByteArray("file: Not a directory");
    QTest::newRow("a file has the name of the copy")
        << QByteArray("folder") << QByteArray("taken") << QByteArray("folder: Not a directory");
    QTest::newRow("the root") << QByteArray("/") << QByteArray("disc")
                              << QByteArray("/: has no name under which it could be copied");
    QTest::newRow("the folder above") << QByteArray("folder/..") << QByteArray("disc")
                                      << QByteArray("folder/..: has no name under which it could be copied");
}

void FolderStagingTest::tellsOfWrongPlaces()
{
    QFETCH(QByteArray, source);
    QFETCH(QByteArray, destination);
    const ScratchFolder scratch;
    makeFolder(scratch / "folder");
    makeFolder(scratch / "disc");
    makeFolder(scratch / "taken");
    writeFile(scratch / "taken/folder", "kept");
    writeFile(scratch / "file", "1");
    makeLink("nowhere", scratch / "broken");
    check(::chdir(scratch.path().c_str()), "chdir");
    const Result result = copied(source.toStdString(), destination.toStdString());
    check(::chdir("/"), "chdir");
    QVERIFY(result.ended);
    QCOMPARE(result.told.size(), std::size_t(1));
    QTEST(QByteArray::fromStdString(result.told.front()), "told");
    QVERIFY(::rmdir((scratch / "disc").c_str()) == 0);
}

void FolderStagingTest::leavesOutWhatIsNoFile()
{
    const ScratchFolder scratch;
    makeFolder(scratch / "source");
    makeFolder(scratch / "disc");
    check(::mkfifo((scratch / "source/pipe").c_str(), 0644), "mkfifo");
    writeFile(scratch / "source/file", "1");
    const Result result = copied(scratch / "source", scratch / "disc");
    QCOMPARE(result.told, (Told{ scratch / "source/pipe: is no file, folder or link, and is left out" }));
    QVERIFY(result.ended);
    QVERIFY(!exists(scratch / "disc/source/pipe"));
    QCOMPARE(readFile(scratch / "disc/source/file"), std::string("1"));
}

void FolderStagingTest::leavesOutWhatItMayNotRead()
{
    const ScratchFolder scratch;
    makeFolder(scratch / "source");
    makeFolder(scratch / "source/locked");
    makeFolder(scratch / "source/listed");
    makeFolder(scratch / "disc");
    writeFile(scratch / "source/open", "1");
    writeFile(scratch / "source/secret", "1");
    writeFile(scratch / "source/locked/file", "1");
    writeFile(scratch / "source/listed/file", "1");
    giveToOrdinaryUser(scratch / "source");
    giveToOrdinaryUser(scratch / "disc");
    check(::chmod((scratch / "source/secret").c_str(), 0), "chmod");
    check(::chmod((scratch / "source/locked").c_str(), 0), "chmod");
    check(::chmod((scratch / "source/listed").c_str(), 0444), "chmod");
    const int status = asOrdinaryUser(scratch.path(), [] {
        const Told expected{ "source/listed/file: Permission denied", "source/locked: Permission denied",
            "source/secret: Permission denied" };
        const Result result = copied("source", "disc");
        return result.ended && result.told == expected ? 0 : 1;
    });
    QCOMPARE(status, 0);
    QCOMPARE(readFile(scratch / "disc/source/open"), std::string("1"));
    QVERIFY(!exists(scratch / "disc/source/secret"));
    QVERIFY(!exists(scratch / "disc/source/locked"));
    QVERIFY(!exists(scratch / "disc/source/listed/file"));
}

void FolderStagingTest::leavesOutWhatTheDestinationRefuses()
{
    const ScratchFolder scratch;
    makeFolder(scratch / "source");
    makeFolder(scratch / "disc", 0555);
    writeFile(scratch / "source/file", "1");
    const int status = asOrdinaryUser(scratch.path(), [] {
        const Result result = copied("source", "disc");
        return result.ended && result.told == Told{ "source: Permission denied" } ? 0 : 1;
    });
    QCOMPARE(status, 0);
    QVERIFY(!exists(scratch / "disc/source"));
}

void FolderStagingTest::leavesOutTheWorkingFolder()
{
    const ScratchFolder scratch;
    makeFolder(scratch / "home");
    makeFolder(scratch / "home/Documents");
    makeFolder(scratch / "home/Documents/disc");
    // On both sides of the working folder, in whatever order the folder is read.
    for (char name = 'a'; name <= 'z'; ++name)
        writeFile(scratch / "home/Documents/" + name, "1");
    makeLink("Documents", scratch / "home/linked");
    const std::string disc = scratch / "home/Documents/disc";
    const Result result = copied(scratch / "home", disc, scratch / "home/linked/disc");
    QCOMPARE(result.told,
        (Told{
            scratch / "home/Documents/disc: is the folder in which the disc is gathered, and is left out" }));
    for (char name = 'a'; name <= 'z'; ++name)
        QCOMPARE(readFile(disc + "/home/Documents/" + name), std::string("1"));
    QVERIFY(!exists(disc + "/home/Documents/disc"));
}

void FolderStagingTest::refusesToCopyTheWorkingFolderIntoItself()
{
    const ScratchFolder scratch;
    makeFolder(scratch / "disc");
    const Result result = copied(scratch / "disc", scratch / "disc", scratch / "disc");
    QCOMPARE(result.told,
        (Told{ scratch / "disc: is the folder in which the disc is gathered, and is left out" }));
    QVERIFY(::rmdir((scratch / "disc").c_str()) == 0);
}

void FolderStagingTest::leavesNoHalfFileWhenOneGetsTooLarge()
{
    const ScratchFolder scratch;
    makeFolder(scratch / "source");
    makeFolder(scratch / "disc");
    writeFile(scratch / "source/large", randomContent(3'000'000));
    writeFile(scratch / "source/small", "1");
    writeFile(scratch / "source/tiny", "2");
    giveToOrdinaryUser(scratch / "disc");
    const int status = asOrdinaryUser(scratch.path(), [] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit most{ 1'000'000, 1'000'000 };
        check(::setrlimit(RLIMIT_FSIZE, &most), "setrlimit");
        const Result result = copied("source", "disc");
        return result.ended && result.told == Told{ "source/large: File too large" } ? 0 : 1;
    });
    QCOMPARE(status, 0);
    QVERIFY(!exists(scratch / "disc/source/large"));
    QCOMPARE(readFile(scratch / "disc/source/small"), std::string("1"));
    QCOMPARE(readFile(scratch / "disc/source/tiny"), std::string("2"));
}

/// A file system of 1 MiB of its own, seen by this process alone.
void FolderStagingTest::namesAllThatDoesNotFit()
{
    if (support::ownMounts().isEmpty())
        QSKIP(support::noOwnMounts);
    const ScratchFolder scratch;
    makeFolder(scratch / "source");
    makeFolder(scratch / "disc");
    for (int i = 0; i < 8; ++i)
        writeFile(scratch / "source/" + std::to_string(i), randomContent(400'000));
    const pid_t child = check(::fork(), "fork");
    if (child == 0) {
        const bool ready = entersANamespaceOfItsOwn()
            && ::mount("none", (scratch / "disc").c_str(), "tmpfs", 0, "size=1m") == 0;
        if (!ready)
            ::_exit(2);
        const Result result = copied(scratch / "source", scratch / "disc");
        int whole = 0;
        int broken = 0;
        for (int i = 0; i < 8; ++i) {
            const std::string copy = scratch / "disc/source/" + std::to_string(i);
            if (exists(copy))
                ++(infoOf(copy).st_size == 400'000 && readFile(copy) == randomContent(400'000) ? whole
                                                                                               : broken);
        }
        const bool told = result.told.size() == 6
            && std::ranges::all_of(result.told,
                [](const std::string &line) { return line.ends_with(": No space left on device"); });
        ::_exit(result.ended && told && whole == 2 && broken == 0 ? 0 : 1);
    }
    int status = 0;
    check(::waitpid(child, &status, 0), "waitpid");
    QCOMPARE(WEXITSTATUS(status), 0);
}

void FolderStagingTest::survivesASourceThatVanishes()
{
    const ScratchFolder scratch;
    makeFolder(scratch / "source");
    makeFolder(scratch / "disc");
    // A pipe is told of in whatever order the folder is read, and what is left goes at that moment.
    std::string folder = scratch / "source";
    for (int level = 0; level < 30; ++level) {
        for (const char *name : { "a", "m", "z" })
            writeFile(folder + '/' + name, "content");
        check(::mkfifo((folder + "/pipe").c_str(), 0644), "mkfifo");
        folder += "/d";
        makeFolder(folder);
    }
    writing::CopyState state;
    int told = 0;
    writing::copyFolder(scratch / "source", scratch / "disc", "/nowhere", state, [&](const std::string &) {
        if (++told == 3) {
            QProcess::execute(
                QStringLiteral("rm"), { QStringLiteral("-rf"), QString::fromStdString(scratch / "source") });
        }
    });
    QVERIFY(state.ended);
    QVERIFY(told >= 3);
    QVERIFY(!exists(scratch / "source"));
    QVERIFY(exists(scratch / "disc/source"));
}

void FolderStagingTest::overwritesNothing()
{
    const ScratchFolder scratch;
    makeFolder(scratch / "source");
    makeFolder(scratch / "disc");
    makeFolder(scratch / "disc/source");
    writeFile(scratch / "source/file", "new");
    writeFile(scratch / "source/other", "new");
    writeFile(scratch / "disc/source/file", "old");
    const Result result = copied(scratch / "source", scratch / "disc");
    QCOMPARE(result.told, (Told{ scratch / "source/file: File exists" }));
    QCOMPARE(readFile(scratch / "disc/source/file"), std::string("old"));
    QCOMPARE(readFile(scratch / "disc/source/other"), std::string("new"));
}

void FolderStagingTest::stopsBeforeItHasBegun()
{
    const ScratchFolder scratch;
    makeFolder(scratch / "source");
    makeFolder(scratch / "disc");
    writeFile(scratch / "source/file", "1");
    writing::CopyState state;
    state.stop = true;
    writing::copyFolder(scratch / "source", scratch / "disc", "/nowhere", state, [](const std::string &) {});
    QVERIFY(state.ended);
    QVERIFY(!exists(scratch / "disc/source"));
}

void FolderStagingTest::stopsBetweenFiles()
{
    const ScratchFolder scratch;
    makeFolder(scratch / "source");
    makeFolder(scratch / "disc");
    for (int i = 0; i < 20; ++i)
        check(::mkfifo((scratch / "source/" + std::to_string(i)).c_str(), 0644), "mkfifo");
    writing::CopyState state;
    int told = 0;
    writing::copyFolder(scratch / "source", scratch / "disc", "/nowhere", state, [&](const std::string &) {
        if (++told == 5)
            state.stop = true;
    });
    QVERIFY(state.ended);
    QCOMPARE(told, 5);
}

void FolderStagingTest::stopsFromAnotherThread()
{
    const ScratchFolder scratch;
    makeFolder(scratch / "source");
    makeFolder(scratch / "disc");
    const std::string content = randomContent(100'000);
    for (int i = 0; i < 200; ++i)
        writeFile(scratch / "source/" + std::to_string(i), content);
    writing::CopyState state;
    std::jthread copying([&] {
        writing::copyFolder(
            scratch / "source", scratch / "disc", "/nowhere", state, [](const std::string &) {});
    });
    while (!exists(scratch / "disc/source/0") && !exists(scratch / "disc/source/199") && !state.ended)
        std::this_thread::yield();
    state.stop = true;
    copying.join();
    QVERIFY(state.ended);
    for (int i = 0; i < 200; ++i) {
        const std::string copy = scratch / "disc/source/" + std::to_string(i);
        QVERIFY(!exists(copy) || readFile(copy) == content);
    }
}

QTEST_GUILESS_MAIN(FolderStagingTest)
#include "FolderStagingTest.moc"
