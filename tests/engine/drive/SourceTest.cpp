// The sources that libburn reads, and what is known of what went through them.
#include "drive/Source.h"

#include "Sources.h"

#include <QtTest>

#include <thread>

using namespace engine;
using namespace engine::drive;

namespace {

/// `bytes` bytes of `value`, then the end; with `fails` an error instead.
Read letters(std::uint64_t bytes, char value, bool fails = false)
{
    return [=, left = bytes](std::span<std::byte> out) mutable -> Result<std::size_t> {
        const auto n = static_cast<std::size_t>(std::min<std::uint64_t>(left, out.size()));
        if (fails && n < out.size())
            return Error{ Exit::failed, "The letters have gone." };
        std::fill_n(out.begin(), n, static_cast<std::byte>(value));
        left -= n;
        return n;
    };
}

QByteArray readAll(burn::burn_source *source, std::size_t step)
{
    QByteArray all;
    std::vector<std::byte> buffer(step);
    for (std::ptrdiff_t n; (n = readFrom(source, buffer)) > 0;)
        all.append(reinterpret_cast<const char *>(buffer.data()), n);
    return all;
}

constexpr std::uint64_t blocks = 100;

} // namespace

class SourceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyByteGoesOut_data()
    {
        QTest::addColumn<int>("step");
        for (const int step : { 1, 7, 2048, 2352, 1'000'000 })
            QTest::newRow(QByteArray::number(step).constData()) << step;
    }

    void everyByteGoesOut()
    {
        QFETCH(int, step);
        const auto supply = std::make_shared<Supply>();
        // More than one piece that is read ahead, and no whole number of blocks.
        const Source source = newSource(letters(150'001, 'a'), 150'001, supply);
        QCOMPARE(source->get_size(source.get()), off_t(150'001));
        QCOMPARE(readAll(source.get(), std::size_t(step)), QByteArray(150'001, 'a'));
        QCOMPARE(supply->bytes(), std::uint64_t(150'001));
        QVERIFY(!supply->failed());
    }

    void digestsAreTakenOfWhatGoesOut()
    {
        const auto supply = std::make_shared<Supply>(BlockDigests());
        supply->start(blocks);
        const Source source = newSource(letters(blocks * blockBytes, 'x'), blocks * blockBytes, supply);
        // As libburn does, on another thread.
        QByteArray all;
        std::thread([&] { all = readAll(source.get(), blockBytes); }).join();
        const BlockDigests digests = supply->takeDigests();
        QCOMPARE(digests.blocks(), blocks);
        const auto bytes = std::as_bytes(std::span(all.constData(), static_cast<std::size_t>(all.size())));
        QCOMPARE(digests.matching(0, bytes).value(), std::size_t(blocks));
    }

    void anotherAttemptForgetsTheFirst()
    {
        const auto supply = std::make_shared<Supply>(BlockDigests());
        for (int attempt = 0; attempt < 2; ++attempt) {
            supply->start(blocks);
            const Source source = newSource(letters(blocks * blockBytes, 'x'), blocks * blockBytes, supply);
            readAll(source.get(), 10'000);
            QCOMPARE(supply->bytes(), blocks * blockBytes);
            supply->fail({ Exit::failed, "Something else." });
        }
        QCOMPARE(supply->takeDigests().blocks(), blocks);
    }

    void dataThatFailOrEndEarlyAreNoticed_data()
    {
        QTest::addColumn<bool>("fails");
        QTest::addColumn<QString>("sentence");
        QTest::newRow("failure") << true << QStringLiteral("The letters have gone.");
        QTest::newRow("early end") << false << QStringLiteral("The data for the disc ended too early.");
    }

    void dataThatFailOrEndEarlyAreNoticed()
    {
        QFETCH(bool, fails);
        const auto supply = std::make_shared<Supply>();
        const Source source =
            newSource(letters(blocks * blockBytes - 1, 'x', fails), blocks * blockBytes, supply);
        std::vector<std::byte> buffer(blocks * blockBytes);
        QCOMPARE(readFrom(source.get(), buffer), std::ptrdiff_t(-1));
        QVERIFY(supply->failed());
        QTEST(QString::fromStdString(supply->outcome().error().message), "sentence");
        // The other tracks of the same disc are not read on.
        const Source next = newSource(letters(blockBytes, 'y'), blockBytes, supply);
        QCOMPARE(readFrom(next.get(), buffer), std::ptrdiff_t(-1));
    }

    void noMoreIsTakenThanWasAnnounced()
    {
        const auto supply = std::make_shared<Supply>();
        QCOMPARE(readAll(newSource(zeros(), 3 * blockBytes, supply).get(), 100'000),
            QByteArray(3 * blockBytes, '\0'));
        QVERIFY(!supply->failed());
    }

    void whatIsReadLivesAsLongAsTheSource()
    {
        const auto kept = std::make_shared<int>(0);
        Source source =
            newSource([kept](std::span<std::byte>) -> Result<std::size_t> { return std::size_t{ 0 }; },
                blockBytes, std::make_shared<Supply>());
        QCOMPARE(kept.use_count(), 2);
        source.reset();
        QCOMPARE(kept.use_count(), 1);
    }
};

QTEST_APPLESS_MAIN(SourceTest)
#include "SourceTest.moc"
