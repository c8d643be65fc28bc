// Reading a disc back: the first block that is not what was sent is named.
#include "drive/BlockDigests.h"

#include <QtTest>

#include <csignal>
#include <cstring>
#include <set>
#include <sys/resource.h>

using namespace Qt::StringLiterals;
using namespace engine;
using namespace engine::drive;

namespace {

// More than the digests that are kept in memory, by a part of what is read at once.
constexpr std::size_t blocks = 3 * 8 * 1024 + 300;

/// A disc whose blocks from `unreadable` on cannot be read, and those in `changed` are not as they were sent.
class MadeUpLease final : public Lease {
public:
    std::set<std::size_t> changed;
    std::size_t unreadable = blocks;

    void fill(std::size_t block, std::span<std::byte> bytes) const
    {
        for (std::size_t i = 0; i < blockBytes; i += sizeof block)
            std::memcpy(&bytes[i], &block, sizeof block);
        if (changed.contains(block))
            bytes.back() ^= std::byte{ 1 };
    }

    Result<Medium> medium() override { return Medium{}; }
    Result<void> erase(EraseMode, const Control &) override { return {}; }
    Result<void> writeData(DiscData &, BlockDigests &, const Pace &, const Control &) override { return {}; }
    Result<AudioWritten> writeAudio(const audio::AudioDisc &, const Pace &, const Control &) override
    {
        return AudioWritten();
    }
    Result<DiscTracks> tracks() override { return DiscTracks(); }
    Result<void> reload() override { return {}; }
    void present() override { }
    Result<std::size_t> read(std::uint64_t block, std::span<std::byte> buffer) override
    {
        std::size_t done = 0;
        for (; done < buffer.size() && block < unreadable; done += blockBytes)
            fill(block++, buffer.subspan(done, blockBytes));
        return done;
    }
};

} // namespace

class BlockDigestsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_lease = {};
        sendTo(m_sent);
    }

    void anExactCopyIsGood() { QVERIFY(verify(m_lease, m_sent, "drive 1", {})); }

    void nothingIsKeptOfADiscThatIsNotCompared()
    {
        BlockDigests none(false);
        sendTo(none);
        QCOMPARE(none.blocks(), std::uint64_t(0));
        QCOMPARE(m_sent.blocks(), std::uint64_t(blocks));
    }

    void oneBitIsFound_data()
    {
        QTest::addColumn<int>("block");
        for (const int block : { 0, 1, 31, 32, 8'191, 8'192, 16'383, 16'384, 24'575, 24'576, 24'875 })
            QTest::newRow(QByteArray::number(block).constData()) << block;
    }

    void oneBitIsFound()
    {
        QFETCH(int, block);
        m_lease.changed = { std::size_t(block), blocks - 1 };
        const auto verified = verify(m_lease, m_sent, "drive 1", {});
        QVERIFY(!verified);
        QCOMPARE(QString::fromStdString(verified.error().message),
            u"The disc in drive 1 does not hold what was sent: block %1 differs; write another disc."_s.arg(
                block));
    }

    void anUnreadableBlockIsNamed()
    {
        for (const std::size_t block :
            { std::size_t(0), std::size_t(130), std::size_t(20'000), blocks - 1 }) {
            m_lease.unreadable = block;
            const auto verified = verify(m_lease, m_sent, "drive 1", {});
            QVERIFY(!verified);
            QVERIFY(QString::fromStdString(verified.error().message)
                        .contains(u"block %1 cannot be read"_s.arg(block)));
        }
    }

    void aSignalEndsTheComparison()
    {
        Control control;
        control.stop = [] { return SIGTERM; };
        const auto verified = verify(m_lease, m_sent, "drive 1", control);
        QVERIFY(!verified);
        QCOMPARE(int(verified.error().exit), 143);
        QVERIFY(
            QString::fromStdString(verified.error().message).contains(u"written, but was not compared"_s));
    }

    // A second attempt to write the same disc begins anew.
    void anotherStartForgetsWhatWasSent()
    {
        sendTo(m_sent);
        QVERIFY(verify(m_lease, m_sent, "drive 1", {}));
        QCOMPARE(m_sent.blocks(), std::uint64_t(blocks));
    }

    void withoutAFolderForTemporaryFilesTheyAreKeptInMemory()
    {
        const auto restore = qScopeGuard(
            [was = qgetenv("TMPDIR")] { was.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", was); });
        qputenv("TMPDIR", "/nowhere at all");
        BlockDigests kept;
        sendTo(kept);
        QVERIFY(verify(m_lease, kept, "drive 1", {}));
        m_lease.changed = { 20'000 };
        QVERIFY(!verify(m_lease, kept, "drive 1", {}));
    }

    void whatCouldNotBeKeptIsSaid()
    {
        struct rlimit was { };
        QCOMPARE(getrlimit(RLIMIT_FSIZE, &was), 0);
        const auto restore = qScopeGuard([&] { setrlimit(RLIMIT_FSIZE, &was); });
        const struct rlimit small {
            1024, was.rlim_max
        };
        std::signal(SIGXFSZ, SIG_IGN);
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &small), 0);
        BlockDigests lost;
        sendTo(lost);
        const auto verified = verify(m_lease, lost, "drive 1", {});
        QVERIFY(!verified);
        QCOMPARE(QString::fromStdString(verified.error().message),
            u"The disc is written, but what was sent was not kept to compare it with: file too large; its file system does not take a file of this size, choose another place."_s);
    }

private:
    void sendTo(BlockDigests &digests) const
    {
        std::vector<std::byte> piece(64 * blockBytes);
        digests.start(blocks);
        for (std::size_t block = 0; block < blocks;) {
            std::size_t count = 0;
            for (; count < 64 && block < blocks; ++count)
                m_lease.fill(block++, std::span(piece).subspan(count * blockBytes, blockBytes));
            digests.add(std::span(piece).first(count * blockBytes));
        }
    }

    MadeUpLease m_lease;
    BlockDigests m_sent;
};

QTEST_APPLESS_MAIN(BlockDigestsTest)
#include "BlockDigestsTest.moc"
