// Discs that are copied block for block: how much of one, and what is said of blocks that cannot be read.
#include "image/DiscCopy.h"

#include "Trees.h"
#include "image/DiscFiles.h"
#include "image/IsoImage.h"

#include <csignal>
#include <set>

using namespace engine;
using namespace engine::image;
using namespace Qt::StringLiterals;

namespace {

/// A disc in memory, made of a folder, whose blocks can be made bad.
class Disc {
public:
    explicit Disc(const std::string &folder)
    {
        auto image = IsoImage::fromFolder(folder, {});
        if (!image)
            qFatal("%s", image.error().message.c_str());
        bytes.resize(std::size_t{ image->blockCount() } * blockSize);
        if (const auto got = image->read(bytes); !got || *got != bytes.size())
            qFatal("no image");
    }

    DiscSource source()
    {
        DiscSource source;
        source.name = "/dev/sr7";
        source.blocks = bytes.size() / blockSize;
        source.read = [this](std::uint64_t offset, std::span<std::byte> buffer) {
            ++reads;
            const std::size_t size = readAtOf(std::span<const std::byte>(bytes))(offset, buffer);
            for (auto [block, times] : bad)
                if (block >= offset / blockSize && block < (offset + size + blockSize - 1) / blockSize
                    && times > 0) {
                    --bad[block];
                    return std::size_t(block * blockSize - offset);
                }
            return size;
        };
        source.slowDown = [this] { ++slowed; };
        return source;
    }

    /// The first block in which `text` stands.
    std::uint64_t blockWith(const std::string &text) const
    {
        const std::string_view all(reinterpret_cast<const char *>(bytes.data()), bytes.size());
        return all.find(text) / blockSize;
    }

    std::vector<std::byte> bytes;
    std::map<std::uint64_t, int> bad; ///< how often each block fails
    int reads = 0;
    int slowed = 0;
};

QString copy(const DiscSource &source, std::uint64_t blocks, const std::string &path, const Stop &stop = {})
{
    const int fd = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    ImageFile file(fd, path, stop, {});
    const auto copied = copyDisc(source, blocks, file);
    close(fd);
    return copied ? QString() : QString::fromStdString(copied.error().message);
}

} // namespace

class DiscCopyTest : public QObject {
    Q_OBJECT

    Scratch m_scratch;

    std::string folder() const { return m_scratch.path("t"); }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(makePlainTree(folder()));
        QVERIFY(makeFile(folder() + "/films/first", "one film" + std::string(100000, '1')));
        QVERIFY(makeFile(folder() + "/films/second", "another film" + std::string(100000, '2')));
    }

    void everyBlockIsCopied()
    {
        Disc disc(folder());
        const DiscSource source = disc.source();
        const auto end = volumeEnd(source);
        QVERIFY(end && *end == source.blocks);
        QCOMPARE(copy(source, *end, m_scratch.path("copy")), QString());
        QVERIFY(contentOf(m_scratch.path("copy"))
            == std::string(reinterpret_cast<const char *>(disc.bytes.data()), disc.bytes.size()));
    }

    void whatLiesBehindTheVolumeIsLeft()
    {
        Disc disc(folder());
        const std::size_t volume = disc.bytes.size() / blockSize;
        disc.bytes.resize(disc.bytes.size() + 2 * blockSize);
        DiscSource source = disc.source();
        QCOMPARE(volumeEnd(source) ? *volumeEnd(source) : 0, volume);
        // Later sessions lie behind the volume of the first.
        source.severalSessions = true;
        QCOMPARE(volumeEnd(source) ? *volumeEnd(source) : 0, volume + 2);
    }

    void aVideoDiscIsCopiedToItsLastBlock()
    {
        Scratch scratch;
        QVERIFY(makeFile(scratch.path("t/VIDEO_TS/file"), "x"));
        Disc disc(scratch.path("t"));
        disc.bytes.resize(disc.bytes.size() + 16 * blockSize);
        QCOMPARE(volumeEnd(disc.source()) ? *volumeEnd(disc.source()) : 0, disc.bytes.size() / blockSize);
    }

    void discsThatCannotBeCopied()
    {
        Disc cut(folder());
        cut.bytes.resize(cut.bytes.size() - 1000 * blockSize);
        const auto end = volumeEnd(cut.source());
        QVERIFY(!end);
        QVERIFY2(end.error().message.find("ends before its volume") != std::string::npos,
            end.error().message.c_str());
        Disc blank(folder());
        std::fill(blank.bytes.begin(), blank.bytes.end(), std::byte{});
        QVERIFY(!volumeEnd(blank.source()));
    }

    void aBlockThatIsReadLaterIsNoFault()
    {
        Disc disc(folder());
        disc.bad[disc.blockWith("one film") + 3] = 3; // in the sweep, and twice by itself
        QCOMPARE(copy(disc.source(), disc.bytes.size() / blockSize, m_scratch.path("copy")), QString());
        QVERIFY(contentOf(m_scratch.path("copy"))
            == std::string(reinterpret_cast<const char *>(disc.bytes.data()), disc.bytes.size()));
        QCOMPARE(disc.slowed, 1);
    }

    void badBlocksAreToldWithTheirFiles()
    {
        Disc disc(folder());
        const std::uint64_t first = disc.blockWith("one film") + 3, second = disc.blockWith("another film");
        disc.bad = { { first, 1000 }, { second, 1000 } };
        QCOMPARE(copy(disc.source(), disc.bytes.size() / blockSize, m_scratch.path("copy")),
            u"The disc in /dev/sr7 cannot be read at block %1 of \"films/first\", \"films/second\": clean "
            u"it, or copy it "
            "in another drive."_s.arg(std::min(first, second)));
    }

    void aBadBlockOfNoFile()
    {
        Disc disc(folder());
        disc.bad[disc.bytes.size() / blockSize - 1] = 1000;
        const QString said = copy(disc.source(), disc.bytes.size() / blockSize, m_scratch.path("copy"));
        QVERIFY2(QRegularExpression(u"cannot be read at block \\d+: clean it"_s).match(said).hasMatch(),
            qPrintable(said));
    }

    void aDeadDiscIsGivenUpSoon()
    {
        Disc disc(folder());
        for (std::uint64_t block = 0; block < 1000; ++block)
            disc.bad[block] = 1000;
        QVERIFY(!copy(disc.source(), disc.bytes.size() / blockSize, m_scratch.path("copy")).isEmpty());
        QVERIFY2(disc.reads < 100, qPrintable(QString::number(disc.reads)));
    }

    void aStopEndsTheAttempts()
    {
        Disc disc(folder());
        for (std::uint64_t block = 0; block < 1000; ++block)
            disc.bad[block] = 1000;
        DiscSource source = disc.source();
        source.stop = [] { return SIGTERM; };
        QVERIFY(copy(source, 1000, m_scratch.path("copy")).contains(u"was interrupted"_s));
        QCOMPARE(disc.reads, 1);
    }

    void foldersOfADamagedDiscDoNoHarm()
    {
        Disc disc(folder());
        const std::uint64_t wanted = disc.blockWith("one film");
        const ReadAt read = readAtOf(std::span<const std::byte>(disc.bytes));
        QVERIFY(filesAt(read, { wanted }) == std::vector<std::string>{ "films/first" });
        quint32 state = 1;
        for (int round = 0; round < 200; ++round) {
            for (int change = 0; change < 50; ++change) {
                state = state * 1664525 + 1013904223;
                const std::size_t at = 16 * blockSize + (state >> 8) % (100 * blockSize);
                disc.bytes[at] = std::byte(state >> 24);
            }
            for (const std::string &path : filesAt(read, { wanted }))
                QVERIFY(!path.empty());
        }
    }
};

QTEST_GUILESS_MAIN(DiscCopyTest)
#include "DiscCopyTest.moc"
