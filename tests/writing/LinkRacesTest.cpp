// Another process puts a link in the place of a folder or a file at the very moment at which a tree is copied or emptied. Whoever
// may write into a folder that is being copied, or into a working folder, must not get at what lies elsewhere that way.
#include "compilation/FolderTree.h"
#include "support/ScratchFolder.h"
#include "writing/FolderStaging.h"

#include <QTest>

#include <atomic>
#include <cstdio>
#include <thread>

using namespace support;

namespace {

constexpr int fewestRounds = 100;
constexpr int mostRounds = 100'000; // within them a thread of its own has had its turn

/// Has two names change places, again and again, while it lives.
class Exchange {
public:
    Exchange(std::string one, std::string other)
        : m_thread([this, one = std::move(one), other = std::move(other)] {
            while (!m_stop) {
                if (::renameat2(AT_FDCWD, one.c_str(), AT_FDCWD, other.c_str(), RENAME_EXCHANGE) == 0)
                    ++m_times;
            }
        })
    {
    }
    Exchange(const Exchange &) = delete;
    Exchange &operator=(const Exchange &) = delete;
    ~Exchange() { m_stop = true; }

    int times() const { return m_times; }

private:
    std::atomic_bool m_stop{ false };
    std::atomic_int m_times{ 0 };
    std::jthread m_thread;
};

bool isLink(const std::string &path)
{
    return S_ISLNK(infoOf(path).st_mode);
}

/// What was met at the place that changes, over all rounds.
struct Met {
    int links = 0;
    int others = 0;
    void count(bool link) { ++(link ? links : others); }
    bool enough(int round) const
    {
        return (round >= fewestRounds && links > 0 && others > 0) || round == mostRounds;
    }
};

void copy(const std::string &source, const std::string &destination)
{
    writing::CopyState state;
    writing::copyFolder(source, destination, "/nowhere", state, [](const std::string &) {});
}

void empty(const std::string &folder)
{
    compilation::emptyFolder(folder, [](const std::string &) {});
}

} // namespace

class LinkRacesTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void copiesNothingFromElsewhere();
    void readsNoFileFromElsewhere();
    void removesNothingElsewhere();
};

void LinkRacesTest::copiesNothingFromElsewhere()
{
    const ScratchFolder scratch;
    for (const char *folder : { "source", "source/a", "elsewhere", "disc" })
        makeFolder(scratch / folder);
    writeFile(scratch / "source/a/ours", "1");
    writeFile(scratch / "elsewhere/secret", "2");
    makeLink(scratch / "elsewhere", scratch / "link");
    const Exchange exchange(scratch / "source/a", scratch / "link");
    Met met;
    for (int round = 0; !met.enough(round); ++round) {
        copy(scratch / "source", scratch / "disc");
        const std::string made = scratch / "disc/source/a";
        if (exists(made)) {
            met.count(isLink(made));
            QVERIFY(isLink(made) || !exists(made + "/secret"));
        }
        empty(scratch / "disc");
    }
    QVERIFY(met.links > 0 && met.others > 0);
}

void LinkRacesTest::readsNoFileFromElsewhere()
{
    const ScratchFolder scratch;
    for (const char *folder : { "source", "disc" })
        makeFolder(scratch / folder);
    writeFile(scratch / "source/file", "ours");
    writeFile(scratch / "secret", "secret");
    makeLink(scratch / "secret", scratch / "link");
    const Exchange exchange(scratch / "source/file", scratch / "link");
    Met met;
    for (int round = 0; !met.enough(round); ++round) {
        copy(scratch / "source", scratch / "disc");
        const std::string made = scratch / "disc/source/file";
        if (exists(made)) {
            met.count(isLink(made));
            QVERIFY(isLink(made) || readFile(made) == "ours");
        }
        empty(scratch / "disc");
    }
    QVERIFY(met.links > 0 && met.others > 0);
}

void LinkRacesTest::removesNothingElsewhere()
{
    const ScratchFolder scratch;
    for (const char *folder : { "working", "elsewhere", "elsewhere/kept" })
        makeFolder(scratch / folder);
    writeFile(scratch / "elsewhere/kept/file", "1");
    int exchanged = 0;
    for (int round = 0; round < fewestRounds || (exchanged == 0 && round < mostRounds); ++round) {
        makeFolder(scratch / "working/a");
        for (const char *name : { "one", "two", "three", "four", "five" })
            writeFile(scratch / ("working/a/" + std::string(name)), "1");
        makeLink(scratch / "elsewhere", scratch / "link");
        {
            const Exchange exchange(scratch / "working/a", scratch / "link");
            empty(scratch / "working");
            exchanged += exchange.times();
        }
        QCOMPARE(readFile(scratch / "elsewhere/kept/file"), std::string("1"));
        // One of the two may stand where the other one was.
        empty(scratch / "working");
        if (exists(scratch / "link") && !isLink(scratch / "link"))
            empty(scratch / "link");
        check(::remove((scratch / "link").c_str()), "remove");
    }
    QVERIFY(exchanged > 0);
}

QTEST_GUILESS_MAIN(LinkRacesTest)
#include "LinkRacesTest.moc"
