// Reading a disc back: the first block that is not what was sent is named.
#include "drive/BlockDigests.h"

#include <QtTest>

#include <csignal>

using namespace Qt::StringLiterals;
using namespace engine;
using namespace engine::drive;

namespace {

constexpr std::size_t blocks = 300;

/// A disc in memory, of which blocks from `unreadable` on cannot be read.
class MemoryLease final : public Lease {
public:
    std::vector<std::byte> content;
    std::size_t unreadable = blocks;

    Result<report::Medium> medium() override { return report::Medium{}; }
    Result<void> erase(EraseMode, const Control &) override { return {}; }
    Result<void> writeData(DiscData &, BlockDigests &, const Control &) override { return {}; }
    Result<void> writeAudio(const audio::AudioDisc &, const Control &) override { return {}; }
    Result<void> reload() override { return {}; }
    void present() override { }
    Result<std::size_t> read(std::uint64_t block, std::span<std::byte> buffer) override
    {
        const std::size_t end = std::min(unreadable * blockBytes, block * blockBytes + buffer.size());
        const std::size_t start = std::min<std::size_t>(block * blockBytes, end);
        std::copy(content.begin() + qsizetype(start), content.begin() + qsizetype(end), buffer.begin());
        return end - start;
    }
};

} // namespace

class BlockDigestsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_lease.content.resize(blocks * blockBytes);
        m_lease.unreadable = blocks;
        for (std::size_t i = 0; i < m_lease.content.size(); ++i)
            m_lease.content[i] = std::byte((i * 7 + i / blockBytes) & 0xff);
        m_sent.start(blocks);
        m_sent.add(m_lease.content);
    }

    void anExactCopyIsGood() { QVERIFY(verify(m_lease, m_sent, "drive 1", {})); }

    void nothingIsKeptOfADiscThatIsNotCompared()
    {
        BlockDigests none(false);
        none.start(blocks);
        none.add(m_lease.content);
        QCOMPARE(none.blocks(), std::uint64_t(0));
        QCOMPARE(m_sent.blocks(), std::uint64_t(blocks));
    }

    void oneBitIsFound_data()
    {
        QTest::addColumn<int>("block");
        for (const int block : { 0, 1, 127, 128, 255, 256, 299 })
            QTest::newRow(QByteArray::number(block).constData()) << block;
    }

    void oneBitIsFound()
    {
        QFETCH(int, block);
        m_lease.content[std::size_t(block) * blockBytes + 2047] ^= std::byte{ 1 };
        m_lease.content.back() ^= std::byte{ 2 };
        const auto verified = verify(m_lease, m_sent, "drive 1", {});
        QVERIFY(!verified);
        QCOMPARE(QString::fromStdString(verified.error().message),
            u"The disc in drive 1 does not hold what was sent: block %1 differs; write another disc."_s.arg(
                block));
    }

    void anUnreadableBlockIsNamed()
    {
        for (const std::size_t block : { std::size_t(0), std::size_t(130), blocks - 1 }) {
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
        control.stopSignal = [] { return SIGTERM; };
        const auto verified = verify(m_lease, m_sent, "drive 1", control);
        QVERIFY(!verified);
        QCOMPARE(int(verified.error().exit), 143);
        QVERIFY(
            QString::fromStdString(verified.error().message).contains(u"written, but was not compared"_s));
    }

private:
    MemoryLease m_lease;
    BlockDigests m_sent;
};

QTEST_APPLESS_MAIN(BlockDigestsTest)
#include "BlockDigestsTest.moc"
