// The streams that libburn reads.
#include "drive/Source.h"

#include <QtTest>

using namespace engine::drive;

namespace {

/// `bytes` bytes of `value`, given in pieces of at most `piece`; with `fails` an error follows them.
Source pieces(std::uint64_t bytes, std::size_t piece, std::byte value, bool fails = false)
{
    return newSource(bytes, [=, left = bytes](std::span<std::byte> out) mutable -> std::ptrdiff_t {
        if (left == 0)
            return fails ? -1 : 0;
        const auto n = static_cast<std::size_t>(std::min<std::uint64_t>({ left, piece, out.size() }));
        std::fill_n(out.begin(), n, value);
        left -= n;
        return static_cast<std::ptrdiff_t>(n);
    });
}

QByteArray readAll(burn::burn_source *source, std::size_t step)
{
    QByteArray all;
    std::vector<std::byte> buffer(step);
    for (std::ptrdiff_t n; (n = readSource(source, buffer)) > 0;)
        all.append(reinterpret_cast<const char *>(buffer.data()), n);
    return all;
}

} // namespace

class SourceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aChainGivesItsPartsInOrder()
    {
        for (const std::size_t step :
            { std::size_t(1), std::size_t(7), std::size_t(2352), std::size_t(100000) }) {
            std::vector<Source> parts;
            parts.push_back(zeros(3));
            parts.push_back(pieces(5000, 999, std::byte{ 'a' }));
            parts.push_back(zeros(0));
            parts.push_back(pieces(1, 1, std::byte{ 'b' }));
            const Source all = chain(std::move(parts), 5004);
            QCOMPARE(readAll(all.get(), step), QByteArray(3, '\0') + QByteArray(5000, 'a') + "b");
        }
    }

    void aFailureInAChainIsAFailure()
    {
        std::vector<Source> parts;
        parts.push_back(pieces(10, 10, std::byte{ 'a' }, true));
        parts.push_back(zeros(10));
        const Source all = chain(std::move(parts), 20);
        std::vector<std::byte> buffer(20);
        QCOMPARE(readSource(all.get(), buffer), std::ptrdiff_t(-1));
    }

    void aTapNotesWhatPasses()
    {
        constexpr std::uint64_t blocks = 100;
        const Source inner = pieces(blocks * blockBytes, 5000, std::byte{ 'x' });
        const auto state = std::make_shared<TapState>();
        const Source out = tap(inner.get(), blocks, state);
        const QByteArray all = readAll(out.get(), blockBytes);
        QCOMPARE(all, QByteArray(blocks * blockBytes, 'x'));
        QCOMPARE(state->bytes.load(), blocks * blockBytes);
        QCOMPARE(state->digests.blocks(), blocks);
        QVERIFY(!state->ranDry);
        const auto bytes = std::as_bytes(std::span(all.constData(), static_cast<std::size_t>(all.size())));
        QCOMPARE(state->digests.matching(0, bytes).value(), std::size_t(blocks));
    }

    void aTapNoticesASourceThatEndsEarlyOrFails()
    {
        for (const bool fails : { false, true }) {
            const Source inner = pieces(10 * blockBytes - 1, 100000, std::byte{ 'x' }, fails);
            const auto state = std::make_shared<TapState>();
            const Source out = tap(inner.get(), 10, state);
            std::vector<std::byte> buffer(10 * blockBytes);
            QCOMPARE(readSource(out.get(), buffer), std::ptrdiff_t(-1));
            QVERIFY(state->ranDry);
        }
    }

    void aTapTakesNoMoreThanItsBlocks()
    {
        const Source inner = pieces(1000 * blockBytes, 100000, std::byte{ 'x' });
        const auto state = std::make_shared<TapState>();
        QCOMPARE(readAll(tap(inner.get(), 3, state).get(), 100000).size(), qsizetype(3 * blockBytes));
        QVERIFY(!state->ranDry);
    }
};

QTEST_APPLESS_MAIN(SourceTest)
#include "SourceTest.moc"
