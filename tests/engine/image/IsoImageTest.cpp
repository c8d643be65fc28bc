// Images of trees, read back by other programs.
#include "image/IsoImage.h"

#include "Trees.h"

#include <set>

using namespace engine;
using namespace Qt::StringLiterals;
using image::IsoImage;
using image::IsoOptions;
using image::Links;

class IsoImageTest : public QObject {
    Q_OBJECT

    static void writeImage(const std::string &folder, const std::string &path, const IsoOptions &options = {})
    {
        auto image = IsoImage::fromFolder(folder, options);
        QVERIFY2(image, image ? "" : image.error().message.c_str());
        const int fd = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
        QVERIFY(fd >= 0);
        const auto written = image->writeTo(fd, path);
        struct stat info { };
        QCOMPARE(fstat(fd, &info), 0);
        close(fd);
        QVERIFY2(written, written ? "" : written.error().message.c_str());
        QCOMPARE(std::uint64_t(info.st_size), std::uint64_t(image->blockCount()) * image::blockSize);
    }

    /// Reads the image `size` bytes at a time; the error's sentence when it fails.
    static std::string readAll(IsoImage &image, std::size_t size)
    {
        std::string bytes;
        std::string buffer(size, '\0');
        for (std::size_t got = size; got == size;) {
            const auto part = image.read(std::as_writable_bytes(std::span(buffer)));
            if (!part)
                return part.error().message;
            got = *part;
            bytes.append(buffer, 0, got);
        }
        return bytes;
    }

private Q_SLOTS:
    void rockRidgeHoldsEverything()
    {
        Scratch scratch;
        const std::string root = scratch.path("t");
        QVERIFY(makeAwkwardTree(root));
        QCOMPARE(symlink("readme", (root + "/link").c_str()), 0);
        QCOMPARE(symlink("nowhere", (root + "/dangling").c_str()), 0);
        QCOMPARE(mkfifo((root + "/pipe").c_str(), 0640), 0);
        QCOMPARE(chmod((root + "/sizes").c_str(), 0750), 0);
        const timespec times[2] = { { 1000000000, 0 }, { 1234567890, 0 } };
        QCOMPARE(utimensat(AT_FDCWD, (root + "/README").c_str(), times, 0), 0);
        writeImage(root, scratch.path("i.iso"));
        QVERIFY(extractRockRidge(scratch.path("i.iso"), scratch.path("out")));
        QCOMPARE(
            difference(list(root, modesAndTimes), list(scratch.path("out"), modesAndTimes)), QByteArray());
    }

    void linksToLongPaths_data()
    {
        QTest::addColumn<QByteArray>("target");
        QTest::addColumn<bool>("stored");
        const QByteArray name(255, 'n');
        QTest::newRow("a name of 255") << name << true;
        QTest::newRow("a name of 256") << name + 'n' << false;
        QTest::newRow("a name of 256 before others") << name + "n/a" << false;
        QTest::newRow("a name of 256 after others") << "../a/" + name + "n" << false;
        QTest::newRow("names of 255") << '/' + name + '/' + name + "/a" << true;
        QTest::newRow("1023 bytes") << QByteArray("dir/").repeated(255) + "end" << true;
        QTest::newRow("1024 bytes") << QByteArray("dir/").repeated(255) + "last" << false;
        QTest::newRow("as long as can be") << QByteArray("dir/").repeated(1023) + "end" << false;
    }

    void linksToLongPaths()
    {
        QFETCH(QByteArray, target);
        QFETCH(bool, stored);
        Scratch scratch;
        QVERIFY(makeFile(scratch.path("t/file"), "data"));
        QCOMPARE(symlink(target.constData(), scratch.path("t/link").c_str()), 0);
        auto image = IsoImage::fromFolder(scratch.path("t"), {});
        QVERIFY2(image, image ? "" : image.error().message.c_str());
        QCOMPARE(image->notes().size(), 1U);
        const bool told =
            image->notes().front().find("\"link\" is left out: what the link points to is too long")
            != std::string::npos;
        QCOMPARE(told, !stored);
        writeImage(scratch.path("t"), scratch.path("i.iso"));
        QVERIFY(extractRockRidge(scratch.path("i.iso"), scratch.path("out")));
        Listing expected = list(scratch.path("t"));
        if (!stored)
            expected.erase("link");
        QCOMPARE(difference(expected, list(scratch.path("out"))), QByteArray());
    }

    void jolietHoldsPlainNamesAsTheyAre()
    {
        Scratch scratch;
        QVERIFY(makePlainTree(scratch.path("t")));
        IsoOptions options;
        options.rockRidge = false;
        writeImage(scratch.path("t"), scratch.path("i.iso"), options);
        QVERIFY(extractJoliet(scratch.path("i.iso"), scratch.path("out")));
        QCOMPARE(difference(list(scratch.path("t")), list(scratch.path("out"))), QByteArray());
    }

    void jolietDropsNothing()
    {
        Scratch scratch;
        QVERIFY(makeAwkwardTree(scratch.path("t")));
        writeImage(scratch.path("t"), scratch.path("i.iso"));
        QVERIFY(extractJoliet(scratch.path("i.iso"), scratch.path("out")));
        std::multiset<std::string> expected, actual;
        for (const auto &[path, what] : list(scratch.path("t")))
            expected.insert(what);
        for (const auto &[path, what] : list(scratch.path("out")))
            actual.insert(what);
        QCOMPARE(actual, expected);
    }

    void isoinfoReadsJoliet()
    {
        Scratch scratch;
        QVERIFY(makeFile(scratch.path("t/Some Folder/long name with blanks.tar.gz"), "joliet data"));
        QVERIFY(makeFile(scratch.path("t/caf\xc3\xa9"), "x"));
        writeImage(scratch.path("t"), scratch.path("i.iso"));
        const QString image = QString::fromStdString(scratch.path("i.iso"));
        QByteArray output;
        QCOMPARE(run(u"isoinfo"_s, { u"-J"_s, u"-f"_s, u"-i"_s, image }, &output), 0);
        const QList<QByteArray> lines = output.trimmed().split('\n');
        QCOMPARE(QSet<QByteArray>(lines.begin(), lines.end()),
            (QSet<QByteArray>{ "/Some Folder", "/Some Folder/long name with blanks.tar.gz", "/caf\xe9" }));
        QCOMPARE(run(u"isoinfo"_s,
                     { u"-J"_s, u"-x"_s, u"/Some Folder/long name with blanks.tar.gz"_s, u"-i"_s, image },
                     &output),
            0);
        QCOMPARE(output, QByteArray("joliet data"));
    }

    void primaryNamesFollowTheStandard()
    {
        Scratch scratch;
        for (const char *name : { "plain.txt", "README", "Readme", "two.dots.tar.gz", "\xc3\xbc", "a b" })
            QVERIFY(makeFile(scratch.path(std::string("t/") + name), name));
        IsoOptions options;
        options.rockRidge = false;
        writeImage(scratch.path("t"), scratch.path("i.iso"), options);
        QByteArray output;
        QCOMPARE(
            run(u"isoinfo"_s, { u"-f"_s, u"-i"_s, QString::fromStdString(scratch.path("i.iso")) }, &output),
            0);
        const QList<QByteArray> lines = output.trimmed().split('\n');
        QCOMPARE(lines.size(), 6);
        for (const QByteArray &line : lines) // ECMA-119 7.5: d-characters, one '.', a version number
            QVERIFY2(QRegularExpression(u"^/[A-Z0-9_]{0,30}\\.[A-Z0-9_]{0,30};1$"_s)
                         .match(QString::fromUtf8(line))
                         .hasMatch(),
                line.constData());
    }

    void volumeName_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("given");
        QTest::addColumn<QString>("volume");
        QTest::newRow("of the folder") << u"Photos"_s << QString() << u"Photos"_s;
        QTest::newRow("given") << u"Photos"_s << u"Other"_s << u"Other"_s;
        QTest::newRow("longer than the field") << QString(40, u'v') << QString() << QString(32, u'v');
    }

    void volumeName()
    {
        QFETCH(QString, folder);
        QFETCH(QString, given);
        QFETCH(QString, volume);
        Scratch scratch;
        QVERIFY(makeFolder(scratch.path(folder.toStdString())));
        IsoOptions options;
        options.volumeName = given.toStdString();
        writeImage(scratch.path(folder.toStdString()) + "/", scratch.path("i.iso"), options);
        QByteArray output;
        QCOMPARE(
            run(u"isoinfo"_s, { u"-d"_s, u"-i"_s, QString::fromStdString(scratch.path("i.iso")) }, &output),
            0);
        QVERIFY2(output.contains("Volume id: " + volume.toUtf8() + '\n'), output.constData());
    }

    void oddVolumeNames()
    {
        for (const char *name : { "caf\xe9",
                 "\xf0\x9f\x98\x80\xf0\x9f\x98\x80\xf0\x9f\x98\x80\xf0\x9f\x98\x80\xf0\x9f\x98\x80\xf0\x9f"
                 "\x98\x80\xf0\x9f\x98\x80\xf0\x9f\x98\x80\xf0\x9f\x98\x80",
                 "new\nline", "\xe6\x97\xa5\xe6\x9c\xac" }) {
            Scratch scratch;
            QVERIFY(makeFile(scratch.path(name) + "/file", "x"));
            writeImage(scratch.path(name), scratch.path("i.iso"));
            QVERIFY(extractRockRidge(scratch.path("i.iso"), scratch.path("out")));
            QCOMPARE(difference(list(scratch.path(name)), list(scratch.path("out"))), QByteArray());
        }
    }

    void followedLinksBecomeFiles()
    {
        Scratch scratch;
        const std::string root = scratch.path("t");
        QVERIFY(makePlainTree(root) && makeFile(scratch.path("outside"), "outside"));
        QCOMPARE(symlink("sizes", (root + "/linked").c_str()), 0);
        QCOMPARE(symlink("../outside", (root + "/out").c_str()), 0);
        IsoOptions options;
        options.links = Links::follow;
        writeImage(root, scratch.path("i.iso"), options);
        QVERIFY(extractRockRidge(scratch.path("i.iso"), scratch.path("out")));
        Listing expected = list(root, followLinks);
        for (const auto &[path, what] : list(root + "/sizes"))
            expected["linked/" + path] = what;
        QCOMPARE(difference(expected, list(scratch.path("out"))), QByteArray());
    }

    void readingGivesTheSameImage_data()
    {
        QTest::addColumn<int>("size");
        QTest::newRow("block") << 2048;
        QTest::newRow("odd") << 3333;
        QTest::newRow("large") << 1000000;
    }

    void readingGivesTheSameImage()
    {
        QFETCH(int, size);
        Scratch scratch;
        QVERIFY(makeAwkwardTree(scratch.path("t")));
        auto image = IsoImage::fromFolder(scratch.path("t"), {});
        QVERIFY(image);
        const std::string bytes = readAll(*image, std::size_t(size));
        QCOMPARE(bytes.size(), std::size_t(image->blockCount()) * 2048);
        QVERIFY(makeFile(scratch.path("i.iso"), bytes));
        QVERIFY(extractRockRidge(scratch.path("i.iso"), scratch.path("out")));
        QCOMPARE(difference(list(scratch.path("t"), modesAndTimes), list(scratch.path("out"), modesAndTimes)),
            QByteArray());
    }

    void unusedImageGoesQuietly()
    {
        Scratch scratch;
        QVERIFY(makePlainTree(scratch.path("t")));
        auto image = IsoImage::fromFolder(scratch.path("t"), {});
        QVERIFY(image);
        auto half = IsoImage::fromFolder(scratch.path("t"), {});
        QVERIFY(half);
        std::string block(2048, '\0');
        QCOMPARE(half->read(std::as_writable_bytes(std::span(block))).value(), std::size_t(2048));
        *half = std::move(*image);
    }

    void shrinkingFileIsNamed_data()
    {
        QTest::addColumn<int>("size");
        QTest::newRow("small") << 5000;
        QTest::newRow("large") << 3000000;
    }

    void shrinkingFileIsNamed()
    {
        QFETCH(int, size);
        Scratch scratch;
        QVERIFY(makeFile(scratch.path("t/shrinks"), std::string(std::size_t(size), 'x')));
        auto written = IsoImage::fromFolder(scratch.path("t"), {});
        auto streamed = IsoImage::fromFolder(scratch.path("t"), {});
        QVERIFY(written && streamed);
        QCOMPARE(truncate(scratch.path("t/shrinks").c_str(), 100), 0);
        const int fd = open(scratch.path("i.iso").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0644);
        const auto done = written->writeTo(fd, "i.iso");
        close(fd);
        QVERIFY(!done);
        QVERIFY2(done.error().message.find("shrinks\" became shorter") != std::string::npos,
            done.error().message.c_str());
        QVERIFY(readAll(*streamed, 2048).find("shrinks\" became shorter") != std::string::npos);
    }

    void growingFileKeepsItsFirstBytes()
    {
        Scratch scratch;
        QVERIFY(makeFile(scratch.path("t/grows"), "first"));
        auto image = IsoImage::fromFolder(scratch.path("t"), {});
        QVERIFY(image);
        QVERIFY(makeFile(scratch.path("t/grows"), "first and more"));
        const int fd = open(scratch.path("i.iso").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0644);
        QVERIFY(image->writeTo(fd, "i.iso"));
        close(fd);
        QVERIFY(extractRockRidge(scratch.path("i.iso"), scratch.path("out")));
        QCOMPARE(contentOf(scratch.path("out/grows")), std::string("first"));
    }

    void vanishedFileIsNamed()
    {
        Scratch scratch;
        QVERIFY(makeFile(scratch.path("t/gone"), "data"));
        auto image = IsoImage::fromFolder(scratch.path("t"), {});
        QVERIFY(image);
        QCOMPARE(unlink(scratch.path("t/gone").c_str()), 0);
        const int fd = open("/dev/null", O_WRONLY | O_CLOEXEC);
        const auto done = image->writeTo(fd, "null");
        close(fd);
        QVERIFY(!done);
        QVERIFY(done.error().message.find("gone") != std::string::npos);
    }

    void fullDestinationIsNamed()
    {
        Scratch scratch;
        QVERIFY(makeFile(scratch.path("t/file"), std::string(3000000, 'x')));
        auto image = IsoImage::fromFolder(scratch.path("t"), {});
        QVERIFY(image);
        const int fd = open("/dev/full", O_WRONLY | O_CLOEXEC);
        const auto done = image->writeTo(fd, "/dev/full");
        close(fd);
        QVERIFY(!done);
        QVERIFY2(
            done.error().message.find("\"/dev/full\" cannot be written: no space left") != std::string::npos,
            done.error().message.c_str());
    }

    void moreThanAVolumeCounts_data()
    {
        QTest::addColumn<QList<qint64>>("sizes");
        QTest::addColumn<quint64>("least"); // of the blocks that the error tells
        constexpr qint64 limit = qint64(1) << 32;
        QTest::newRow("one file") << QList<qint64>{ limit * 2048 } << quint64(limit + 150);
        QTest::newRow("two files") << QList<qint64>{ 5000LL << 30, 3192LL << 30 } << quint64(limit + 150);
        QTest::newRow("only with the folders") << QList<qint64>{ (limit - 152) * 2048 } << quint64(limit);
    }

    void moreThanAVolumeCounts()
    {
        QFETCH(QList<qint64>, sizes);
        QFETCH(quint64, least);
        Scratch scratch;
        for (int i = 0; i < sizes.size(); ++i) {
            const std::string path = scratch.path("t/" + std::to_string(i));
            QVERIFY(makeFile(path, {}));
            QCOMPARE(truncate(path.c_str(), sizes[i]), 0);
        }
        const auto image = IsoImage::fromFolder(scratch.path("t"), {});
        QVERIFY(!image);
        const QString said = QString::fromStdString(image.error().message);
        const auto match = QRegularExpression(
            u"^The content of \".*/t\" needs [\\d.]+ MB \\((\\d+) blocks\\), and an image has at most "
            "8796093.0 MB \\(4294967295 blocks\\): take"_s)
                               .match(said);
        QVERIFY2(match.hasMatch(), qPrintable(said));
        QVERIFY2(match.captured(1).toULongLong() >= least, qPrintable(said));
        QVERIFY2(match.captured(1).toULongLong() < least + 1000, qPrintable(said));
    }

    void asMuchAsAVolumeCounts()
    {
        Scratch scratch;
        QVERIFY(makeFile(scratch.path("t/large"), {}));
        const auto blocksWith = [&](qint64 blocks) {
            if (truncate(scratch.path("t/large").c_str(), blocks * 2048) != 0)
                return quint64(0);
            const auto image = IsoImage::fromFolder(scratch.path("t"), {});
            return image ? quint64(image->blockCount()) : quint64(0);
        };
        constexpr quint64 most = UINT32_MAX;
        constexpr qint64 nearly = qint64(most) - 2000;
        const quint64 blocks = blocksWith(nearly);
        QVERIFY(blocks > quint64(nearly) && blocks <= most);
        QCOMPARE(blocksWith(nearly + qint64(most - blocks)), most);
        QCOMPARE(blocksWith(nearly + qint64(most - blocks) + 1), quint64(0));
    }

    void fiveGibibytes()
    {
        Scratch scratch;
        const std::string path = scratch.path("t/five");
        QVERIFY(makeFile(path, "start") && makeFile(scratch.path("t/zz after"), "after"));
        constexpr off_t size = off_t{ 5 } * 1024 * 1024 * 1024;
        int fd = open(path.c_str(), O_WRONLY | O_CLOEXEC);
        for (const off_t at : std::initializer_list<off_t>{ 4294965246, 4294965250, 4294967296, size - 3 })
            QCOMPARE(pwrite(fd, "END", 3, at), 3);
        close(fd);
        auto image = IsoImage::fromFolder(scratch.path("t"), {});
        QVERIFY(image);
        QVERIFY(image->blockCount() > size / 2048);
        // Only what is not zeros is kept of the image, so that the test needs no 5 GiB of disk.
        fd = open(scratch.path("i.iso").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0644);
        std::string block(1024 * 1024, '\0');
        off_t at = 0;
        const std::string zeros(block.size(), '\0');
        for (std::size_t got = block.size(); got == block.size();) {
            got = image->read(std::as_writable_bytes(std::span(block))).value();
            if (std::memcmp(block.data(), zeros.data(), got) != 0)
                QCOMPARE(pwrite(fd, block.data(), got, at), ssize_t(got));
            at += off_t(got);
        }
        QCOMPARE(at, off_t(image->blockCount()) * 2048);
        QCOMPARE(ftruncate(fd, at), 0);
        close(fd);
        QByteArray output;
        QCOMPARE(run(u"7z"_s, { u"l"_s, u"-slt"_s, QString::fromStdString(scratch.path("i.iso")), u"five"_s },
                     &output),
            0);
        QVERIFY2(output.contains("Size = 5368709120"), output.constData());
        QCOMPARE(
            run(u"sh"_s,
                { u"-c"_s,
                    u"xorriso -osirrox on -indev \"$1\" -concat pipe + $(command -v cksum) + /five -- 2>/dev/null"_s,
                    u"sh"_s, QString::fromStdString(scratch.path("i.iso")) },
                &output),
            0);
        QByteArray expected;
        QCOMPARE(
            run(u"sh"_s, { u"-c"_s, u"cksum < \"$1\""_s, u"sh"_s, QString::fromStdString(path) }, &expected),
            0);
        QCOMPARE(output.trimmed(), expected.trimmed());
    }

    void manyFiles()
    {
        Scratch scratch;
        QVERIFY(makeFolder(scratch.path("t/many")));
        const int folder = open(scratch.path("t/many").c_str(), O_RDONLY | O_CLOEXEC);
        for (int i = 0; i < 20000; ++i) {
            const int fd =
                openat(folder, ("file " + std::to_string(i)).c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0644);
            QVERIFY(fd >= 0);
            close(fd);
        }
        close(folder);
        writeImage(scratch.path("t"), scratch.path("i.iso"));
        QByteArray output;
        QCOMPARE(run(u"isoinfo"_s,
                     { u"-J"_s, u"-f"_s, u"-i"_s, QString::fromStdString(scratch.path("i.iso")) }, &output),
            0);
        QCOMPARE(output.count('\n'), 20001);
    }
};

QTEST_GUILESS_MAIN(IsoImageTest)
#include "IsoImageTest.moc"
