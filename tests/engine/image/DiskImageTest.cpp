// Image files that cannot be written as they are.
#include "image/DiskImage.h"

#include "Trees.h"

#include <algorithm>

using namespace engine::image;

class DiskImageTest : public QObject {
    Q_OBJECT

    static std::string big(std::uint64_t value, int size)
    {
        std::string bytes;
        for (int shift = (size - 1) * 8; shift >= 0; shift -= 8)
            bytes.push_back(char(value >> shift & 0xff));
        return bytes;
    }

    struct Run {
        std::uint32_t type;
        std::uint64_t sector, count, offset;
    };

    /// A UDIF file: data of `sectors` sectors, its property list, its trailer.
    static std::string udif(int sectors, const std::vector<Run> &runs, std::uint64_t dataFork = 0)
    {
        std::string table = "mish" + big(1, 4) + big(0, 8) + big(std::uint64_t(sectors), 8);
        table.resize(200);
        table += big(runs.size(), 4);
        for (const Run &run : runs)
            table += big(run.type, 4) + big(0, 4) + big(run.sector, 8) + big(run.count, 8)
                + big(run.offset, 8) + big(run.count * 512, 8);
        const std::string list = "<plist><dict><key>blkx</key><data>\n\t"
            + QByteArray::fromStdString(table).toBase64().toStdString() + "\n</data></dict></plist>";
        std::string file(std::size_t(sectors) * 512, 'd');
        std::string trailer =
            "koly" + big(4, 4) + big(512, 4) + big(1, 4) + big(0, 8) + big(dataFork, 8) + big(file.size(), 8);
        trailer.resize(216);
        trailer += big(file.size(), 8) + big(list.size(), 8);
        trailer.resize(512);
        return file + list + trailer;
    }

    /// A UDIF file without a property list, whose `sectors` sectors lie in 8 of them.
    static std::string udifWithoutList(std::uint64_t sectors)
    {
        std::string trailer =
            "koly" + big(4, 4) + big(512, 4) + big(1, 4) + big(0, 8) + big(0, 8) + big(8 * 512, 8);
        trailer.resize(492);
        trailer += big(sectors, 8);
        trailer.resize(512);
        return std::string(8 * 512, 'd') + trailer;
    }

    static DiskImageKind kindOf(const std::string &file)
    {
        return diskImageKind(engine::readAtOf(std::as_bytes(std::span(file))), file.size());
    }

private Q_SLOTS:
    void kinds_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<int>("kind");
        const auto row = [](const char *title, const std::string &file, DiskImageKind kind) {
            QTest::newRow(title) << QByteArray::fromStdString(file) << int(kind);
        };
        constexpr std::uint32_t zlib = 0x80000005, raw = 1, zero = 0, end = 0xffffffff, comment = 0x7ffffffe;
        row("empty", "", DiskImageKind::plain);
        row("short", "x", DiskImageKind::plain);
        row("ISO", std::string(40000, '\0'), DiskImageKind::plain);
        row("raw UDIF", udif(8, { { raw, 0, 8, 0 }, { end, 8, 0, 0 } }), DiskImageKind::plain);
        row("raw UDIF with a comment", udif(8, { { comment, 0, 3, 0 }, { raw, 0, 8, 0 }, { end, 8, 0, 0 } }),
            DiskImageKind::plain);
        row("zlib", udif(8, { { zlib, 0, 8, 0 }, { end, 8, 0, 0 } }), DiskImageKind::compressed);
        row("partly zlib", udif(8, { { raw, 0, 4, 0 }, { zlib, 4, 4, 2048 }, { end, 8, 0, 0 } }),
            DiskImageKind::compressed);
        row("zeros left out", udif(8, { { zero, 0, 4, 0 }, { raw, 4, 4, 0 }, { end, 8, 0, 0 } }),
            DiskImageKind::compressed);
        row("moved", udif(8, { { raw, 0, 8, 512 }, { end, 8, 0, 0 } }), DiskImageKind::compressed);
        row("data not at the start", udif(8, { { raw, 0, 8, 0 }, { end, 8, 0, 0 } }, 4096),
            DiskImageKind::compressed);
        row("raw, no property list", udifWithoutList(8), DiskImageKind::plain);
        row("packed, no property list", udifWithoutList(20), DiskImageKind::compressed);
        std::string lying = udif(8, { { raw, 0, 8, 0 } });
        lying.replace(lying.size() - 512 + 224, 8, big(~0ULL, 8));
        row("property list beyond the end", lying, DiskImageKind::compressed);
        row("encrypted", "encrcdsa" + std::string(4096, 'x'), DiskImageKind::encrypted);
        row("encrypted, older", std::string(4096, 'x') + "cdsaencr", DiskImageKind::encrypted);
        row("raw sectors",
            std::string("\0\xff\xff\xff\xff\xff\xff\xff\xff\xff\xff\0", 12) + std::string(2340, 'x'),
            DiskImageKind::rawSectors);
    }

    void kinds()
    {
        QFETCH(QByteArray, file);
        QTEST(int(kindOf(file.toStdString())), "kind");
    }

    void everyCutIsSurvived()
    {
        const std::string whole = udif(4, { { 0x80000006, 0, 4, 0 }, { 0xffffffff, 4, 0, 0 } });
        for (std::size_t size = 0; size <= whole.size(); ++size)
            kindOf(whole.substr(whole.size() - size));
        QCOMPARE(kindOf(whole), DiskImageKind::compressed);
    }

    void sentences()
    {
        Scratch scratch;
        QVERIFY(makeFile(scratch.path("c.dmg"), udif(8, { { 0x80000005, 0, 8, 0 } })));
        const auto compressed = checkDiskImage(scratch.path("c.dmg"));
        QVERIFY(!compressed);
        QVERIFY2(compressed.error().message.find("c.dmg") != std::string::npos,
            compressed.error().message.c_str());
        QVERIFY2(compressed.error().message.find("convert") != std::string::npos,
            compressed.error().message.c_str());
        QVERIFY(!checkDiskImage(scratch.path("missing.iso")));
        QVERIFY(!checkDiskImage(scratch.path()));
        QCOMPARE(mkfifo(scratch.path("pipe.iso").c_str(), 0600), 0);
        QVERIFY(!checkDiskImage(scratch.path("pipe.iso")));
        QVERIFY(makeFile(scratch.path("p.iso"), "anything"));
        QVERIFY(checkDiskImage(scratch.path("p.iso")));
    }
};

QTEST_GUILESS_MAIN(DiskImageTest)
#include "DiskImageTest.moc"
