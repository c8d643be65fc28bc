// ISO images, copies of discs with one recorder, and the disc tools, as whole jobs.
#include "app/Window_Alert.h"
#include "support/WholeMachine.h"

#include <QMenu>
#include <QPlainTextEdit>

using namespace Qt::StringLiterals;

class ImagesAndCopiesTest : public QObject {
    Q_OBJECT

    static void makeTree(const QString &root)
    {
        makeFile(root + u"/O'Brien \"x\".txt"_s, "one");
        makeFile(root + u"/日本 עברית/deep/file"_s, QByteArray(5000, 'd'));
        makeFile(root + u"/.hidden"_s, "hidden");
        makeFile(root + u"/empty"_s);
        QDir().mkpath(root + u"/no files"_s);
    }

    /// Answers the dialogs for the source and the destination of an image.
    static void makeImage(WholeMachine &machine, const QString &source, const QString &destination)
    {
        person::choose(machine.window.get(), "submenuItemTabISO");
        auto first = std::make_unique<person::Expect<QFileDialog>>(
            [&](QFileDialog *panel) { person::markFolder(panel, source); });
        machine.press("toolbar_btn_ISO_Create_ISO");
        QVERIFY(first->happened());
        person::Expect<QFileDialog> second([&](QFileDialog *panel) { person::openFolder(panel, destination); });
        QVERIFY(machine.completes());
        QVERIFY(second.happened());
    }

    static QByteArray bigEndian(quint64 value, int bytes)
    {
        QByteArray number;
        for (int byte = bytes - 1; byte >= 0; --byte)
            number.append(static_cast<char>(value >> (8 * byte) & 0xff));
        return number;
    }

    /// A disk image of the kind that ends with a trailer, whose one run of blocks is packed with zlib.
    static QByteArray compressedImage()
    {
        const QByteArray packed(4096, 'p');
        const QByteArray run = bigEndian(0x80000005, 4) + bigEndian(0, 4) + bigEndian(0, 8) + bigEndian(400, 8)
            + bigEndian(0, 8) + bigEndian(4096, 8);
        const QByteArray table = QByteArray("mish").leftJustified(204, '\0') + run + bigEndian(0xffffffff, 4)
            + QByteArray(36, '\0');
        const QByteArray list = "<plist><dict><data>" + table.toBase64() + "</data></dict></plist>";
        QByteArray trailer = QByteArray("koly").leftJustified(512, '\0');
        trailer.replace(216, 8, bigEndian(4096, 8));
        trailer.replace(224, 8, bigEndian(static_cast<quint64>(list.size()), 8));
        return packed + list + trailer;
    }

    static void writeImage(WholeMachine &machine, const QString &folder, const QString &name)
    {
        person::choose(machine.window.get(), "submenuItemTabISO");
        person::Expect<QFileDialog> dialog([&](QFileDialog *panel) { person::openFiles(panel, folder, {name}); });
        machine.press("toolbar_btn_ISO_Burn_ISO");
        QVERIFY(dialog.happened());
    }

private Q_SLOTS:
    void anImageIsMadeAndWritten()
    {
        WholeMachine machine;
        const QString source = machine.mediaPath(u"My tree"_s);
        makeTree(source);
        makeFile(machine.mediaPath(u"out/image.iso"_s), "an old image");
        makeImage(machine, source, machine.mediaPath(u"out"_s));
        QCOMPARE(machine.trouble(), QString());
        machine.closeCompleteSheet();
        const QString image = machine.mediaPath(u"out/image.iso"_s);
        const QString byRockRidge = reader::extractedByXorriso(image, machine.mediaPath(u"out"_s));
        QCOMPARE(reader::difference(source, byRockRidge), QByteArray());
        QVERIFY(reader::countedByIsoinfo(image) >= 7);

        writeImage(machine, machine.mediaPath(u"out"_s), u"image.iso"_s);
        QVERIFY(machine.completes());
        QCOMPARE(machine.trouble(), QString());
        const QByteArray written = contentOf(machine.recorder.iso());
        QVERIFY(written.startsWith(contentOf(image)));
        QVERIFY(machine.recorder.status().contains("not writable"));
    }

    void anImageOfEveryExtensionIsWritten_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("iso") << u"a \"disc\" 100%1.iso"_s;
        QTest::newRow("img") << u"disc.img"_s;
        QTest::newRow("dmg") << u"disc.dmg"_s;
        QTest::newRow("capitals") << u"DISC.ISO"_s;
    }
    void anImageOfEveryExtensionIsWritten()
    {
        QFETCH(QString, name);
        WholeMachine machine;
        makeTree(machine.mediaPath(u"tree"_s));
        const QString image = machine.mediaPath(u"images/"_s + name);
        QDir().mkpath(machine.mediaPath(u"images"_s));
        runWell(u"xorriso"_s, {u"-as"_s, u"mkisofs"_s, u"-quiet"_s, u"-J"_s, u"-R"_s, u"-o"_s, image, machine.mediaPath(u"tree"_s)});
        machine.recorder.insert(u"dvd+rw"_s);
        writeImage(machine, machine.mediaPath(u"images"_s), name);
        QVERIFY(machine.completes());
        QCOMPARE(machine.trouble(), QString());
        QVERIFY(contentOf(machine.recorder.iso()).startsWith(contentOf(image)));
    }

    void anImageThatDoesNotFitIsTold()
    {
        WholeMachine machine;
        QFile large(machine.mediaPath(u"large.iso"_s));
        QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(900'000'000));
        large.close();
        const QByteArray before = machine.recorder.status();
        writeImage(machine, machine.media.path(), u"large.iso"_s);
        QVERIFY(machine.completes());
        QVERIFY2(machine.trouble().startsWith(u"hdiutil: "_s), qUtf8Printable(machine.trouble()));
        QCOMPARE(machine.recorder.status(), before);
    }

    void aCompressedImageIsRefusedWithAdvice()
    {
        WholeMachine machine;
        makeFile(machine.mediaPath(u"packed.dmg"_s), compressedImage());
        writeImage(machine, machine.media.path(), u"packed.dmg"_s);
        QVERIFY(machine.completes());
        QVERIFY2(machine.trouble().contains(u"compressed"_s), qUtf8Printable(machine.trouble()));
        QVERIFY(machine.recorder.status().contains("blank"));
    }

    void aDestinationThatCannotBeWrittenIsTold()
    {
        WholeMachine machine;
        makeTree(machine.mediaPath(u"tree"_s));
        makeImage(machine, machine.mediaPath(u"tree"_s), u"/proc"_s);
        QVERIFY2(machine.trouble().startsWith(u"hdiutil: "_s), qUtf8Printable(machine.trouble()));
    }

    void aDiscIsCopiedWithOneRecorder()
    {
        WholeMachine machine;
        const QString volume = machine.mediaPath(u"Volume – 1"_s);
        makeTree(volume);
        machine.recorder.drutil({u"burn"_s, volume});
        QVERIFY(machine.recorder.status().contains("not writable"));

        auto dialog = std::make_unique<person::Expect<QFileDialog>>(
            [&](QFileDialog *panel) { person::markFolder(panel, volume); });
        machine.press("toolbar_btn_Audio_Copy_Disc");
        QVERIFY(dialog->happened());
        dialog.reset();
        person::Expect<Window_Alert> prompt([](Window_Alert *alert) { person::pressTitled(alert, u"OK"_s); });
        QVERIFY(machine.completes());
        QVERIFY(prompt.happened());
        QCOMPARE(machine.trouble(), QString());
        QCOMPARE(machine.recorder.ejectedDiscs().size(), 1);
        const QString copy = reader::extractedByXorriso(machine.recorder.iso(), machine.media.path());
        QCOMPARE(reader::difference(volume, copy), QByteArray());
        QCOMPARE(QDir(machine.controller->s_Data_Folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
    }

    void aCopyIsGivenUpAtThePrompt()
    {
        WholeMachine machine;
        makeTree(machine.mediaPath(u"volume"_s));
        machine.recorder.drutil({u"burn"_s, machine.mediaPath(u"volume"_s)});
        auto dialog = std::make_unique<person::Expect<QFileDialog>>(
            [&](QFileDialog *panel) { person::openFolder(panel, machine.mediaPath(u"volume"_s)); });
        machine.press("toolbar_btn_Audio_Copy_Disc");
        dialog.reset();
        person::Expect<Window_Alert> prompt([](Window_Alert *alert) { person::pressTitled(alert, u"Cancel"_s); });
        QTRY_VERIFY_WITH_TIMEOUT(prompt.happened(), 30'000);
        QTRY_COMPARE(QDir(machine.controller->s_Data_Folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
        QVERIFY(!machine.controller->windowOperationCompleted);
        QVERIFY(machine.recorder.status().contains("blank"));
    }

    void aDiscIsErasedEjectedAndLoaded_data()
    {
        QTest::addColumn<QByteArray>("item");
        QTest::newRow("full") << QByteArray("menuitemEraseFull");
        QTest::newRow("quick") << QByteArray("menuitemEraseQuick");
    }
    void aDiscIsErasedEjectedAndLoaded()
    {
        QFETCH(QByteArray, item);
        WholeMachine machine;
        makeTree(machine.mediaPath(u"tree"_s));
        machine.recorder.insert(u"cd-rw"_s);
        const QByteArray blank = machine.recorder.status();
        machine.recorder.drutil({u"burn"_s, machine.mediaPath(u"tree"_s)});
        QVERIFY(machine.recorder.status() != blank);
        person::choose(machine.window.get(), "submenuItemTabTools");
        person::choose(machine.window.get(), item.constData());
        QVERIFY(machine.completes());
        QCOMPARE(machine.trouble(), QString());
        QCOMPARE(machine.recorder.status(), blank);
        machine.closeCompleteSheet();

        machine.press("toolbar_btn_Tools_Eject_Disc");
        machine.press("toolbar_btn_Tools_Load_Disc");
        QCOMPARE(machine.recorder.status(), blank);
        person::Expect<Window_Alert> information([&blank](Window_Alert *alert) {
            QCOMPARE(alert->findChild<QPlainTextEdit *>()->toPlainText(), QString::fromUtf8(blank));
            person::pressTitled(alert, u"OK"_s);
        });
        machine.press("toolbar_btn_Tools_Disc_Info");
        QVERIFY(information.happened());
    }

    void theDriveMenuPutsBlanksInAndTakesThemOut()
    {
        WholeMachine machine;
        person::choose(machine.window.get(), "menuitemInsert_bd_re");
        QVERIFY(machine.recorder.status().contains("BD-RE"));
        person::choose(machine.window.get(), "menuitemRemoveDisc");
        QVERIFY(machine.recorder.status().contains("No Media Inserted"));
    }
};

QTEST_MAIN(ImagesAndCopiesTest)
#include "ImagesAndCopiesTest.moc"
