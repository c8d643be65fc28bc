// ISO images, copies of discs with one recorder, and the disc tools, as whole jobs.
#include "app/Window_Alert.h"
#include "support/WholeMachine.h"

#include <QMenu>
#include <QPlainTextEdit>

using namespace Qt::StringLiterals;

namespace {

const QString prompt =
    u"Insert a writable media and click OK or click Cancel to stop the media duplication."_s;

} // namespace

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
        person::Expect<QFileDialog> second(
            [&](QFileDialog *panel) { person::openFolder(panel, destination); });
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
        const QByteArray run = bigEndian(0x80000005, 4) + bigEndian(0, 4) + bigEndian(0, 8)
            + bigEndian(400, 8) + bigEndian(0, 8) + bigEndian(4096, 8);
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
        person::Expect<QFileDialog> dialog(
            [&](QFileDialog *panel) { person::openFiles(panel, folder, { name }); });
        machine.press("toolbar_btn_ISO_Burn_ISO");
        QVERIFY(dialog.happened());
    }

    static QStringList textsOf(const Window_Alert *alert)
    {
        return { alert->findChild<QLabel *>(u"labelMessage"_s)->text(),
            alert->findChild<QLabel *>(u"labelInformative"_s)->text() };
    }

    /// Answers the coming alerts, one after the other.
    class Alerts {
    public:
        struct Answer {
            QString button;
            std::function<void()> before; ///< done before the button is pressed
        };
        explicit Alerts(const QList<Answer> &answers)
            : m_answers(answers)
        {
            await();
        }
        /// The messages of the alerts so far.
        QStringList texts() const { return m_texts; }

    private:
        void await()
        {
            if (m_texts.size() == m_answers.size())
                return;
            m_expected.push_back(std::make_unique<person::Expect<Window_Alert>>([this](Window_Alert *alert) {
                const Answer answer = m_answers.at(m_texts.size());
                m_texts.append(textsOf(alert).first());
                if (answer.before)
                    answer.before();
                await();
                person::pressTitled(alert, answer.button);
            }));
        }

        QList<Answer> m_answers;
        QStringList m_texts;
        std::vector<std::unique_ptr<person::Expect<Window_Alert>>> m_expected;
    };

    /// Starts the copy of a disc that is mounted at `volume`.
    static void copyDisc(WholeMachine &machine, const QString &volume)
    {
        const person::Expect<QFileDialog> dialog(
            [&](QFileDialog *panel) { person::markFolder(panel, volume); });
        machine.press("toolbar_btn_Audio_Copy_Disc");
        QVERIFY(dialog.happened());
    }

    static QStringList workingFiles(const WholeMachine &machine)
    {
        return QDir(machine.controller->s_Data_Folder)
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    static void expectCopy(const WholeMachine &machine, const QString &volume)
    {
        QCOMPARE(machine.trouble(), QString());
        const QString copy = reader::extractedByXorriso(machine.recorder.iso(), machine.media.path());
        QCOMPARE(reader::difference(volume, copy), QByteArray());
        QCOMPARE(workingFiles(machine), QStringList());
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
        QCOMPARE(reader::difference(source, reader::extractedBy7z(image, machine.mediaPath(u"out"_s))),
            QByteArray());
        QCOMPARE(reader::countedByIsoinfo(image), 7);

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
        runWell(u"xorriso"_s,
            { u"-as"_s, u"mkisofs"_s, u"-quiet"_s, u"-J"_s, u"-R"_s, u"-o"_s, image,
                machine.mediaPath(u"tree"_s) });
        machine.recorder.insert(u"dvd+rw"_s);
        writeImage(machine, machine.mediaPath(u"images"_s), name);
        QVERIFY(machine.completes());
        QCOMPARE(machine.trouble(), QString());
        QVERIFY(contentOf(machine.recorder.iso()).startsWith(contentOf(image)));
    }

    void anImageOfAWrongSizeIsTold_data()
    {
        QTest::addColumn<qint64>("size");
        QTest::addColumn<QString>("words");
        QTest::newRow("larger than the disc") << 900'000'000LL << u"439454 blocks"_s;
        QTest::newRow("empty") << 0LL << u"is empty"_s;
    }
    void anImageOfAWrongSizeIsTold()
    {
        QFETCH(qint64, size);
        QFETCH(QString, words);
        WholeMachine machine;
        QFile image(machine.mediaPath(u"wrong.iso"_s));
        QVERIFY(image.open(QIODevice::WriteOnly) && image.resize(size));
        image.close();
        const QByteArray before = machine.recorder.status();
        writeImage(machine, machine.media.path(), u"wrong.iso"_s);
        QVERIFY(machine.completes());
        QVERIFY2(machine.trouble().contains(words), qUtf8Printable(machine.trouble()));
        QCOMPARE(machine.recorder.status(), before);
    }

    void anImageOfOddSizeIsFilledToAWholeBlock()
    {
        WholeMachine machine;
        makeFile(machine.mediaPath(u"odd.img"_s), QByteArray(700'001, 'x'));
        writeImage(machine, machine.media.path(), u"odd.img"_s);
        QVERIFY(machine.completes());
        QCOMPARE(machine.trouble(), QString());
        QCOMPARE(contentOf(machine.recorder.iso()), QByteArray(700'001, 'x').leftJustified(342 * 2048, '\0'));
    }

    void aFileOfAnotherKindIsNotWritten()
    {
        WholeMachine machine;
        makeFile(machine.mediaPath(u"letter.txt"_s), "Dear Anna");
        person::choose(machine.window.get(), "submenuItemTabISO");
        const person::Expect<QFileDialog> typed([&machine](QFileDialog *panel) {
            person::pastePath(panel, machine.mediaPath(u"letter.txt"_s));
            person::pressTitled(panel, u"Open"_s);
        });
        QStringList told;
        person::Expect<Window_Alert> refused([&told](Window_Alert *alert) {
            told = textsOf(alert);
            person::pressTitled(alert, u"Close"_s);
        });
        machine.press("toolbar_btn_ISO_Burn_ISO");
        const QStringList expected{ u"Some files cannot be used"_s,
            u"Only files with these extensions can: .iso, .img, .dmg"_s };
        QCOMPARE(told, expected);
        QVERIFY(machine.recorder.status().contains("blank"));
        QVERIFY(!machine.controller->windowPerformingOperation);
    }

    void aPanelThatIsCancelledEndsTheAction_data()
    {
        QTest::addColumn<QByteArray>("tab");
        QTest::addColumn<QByteArray>("button");
        QTest::addColumn<bool>("second");
        QTest::newRow("folder of an image")
            << QByteArray("submenuItemTabISO") << QByteArray("toolbar_btn_ISO_Create_ISO") << false;
        QTest::newRow("place of an image")
            << QByteArray("submenuItemTabISO") << QByteArray("toolbar_btn_ISO_Create_ISO") << true;
        QTest::newRow("image to write")
            << QByteArray("submenuItemTabISO") << QByteArray("toolbar_btn_ISO_Burn_ISO") << false;
        QTest::newRow("disc to copy")
            << QByteArray("submenuItemTabData") << QByteArray("toolbar_btn_Data_Copy_Disc") << false;
    }
    void aPanelThatIsCancelledEndsTheAction()
    {
        QFETCH(QByteArray, tab);
        QFETCH(QByteArray, button);
        QFETCH(bool, second);
        WholeMachine machine;
        const QString source = machine.mediaPath(u"source"_s);
        makeTree(source);
        person::choose(machine.window.get(), tab.constData());
        const QByteArray before = machine.recorder.status();
        const auto cancel = [](QFileDialog *panel) { QTest::keyClick(panel, Qt::Key_Escape); };
        auto first = std::make_unique<person::Expect<QFileDialog>>(
            [&](QFileDialog *panel) { second ? person::markFolder(panel, source) : cancel(panel); });
        machine.press(button.constData());
        QVERIFY(first->happened());
        first.reset();
        const person::Expect<QFileDialog> further(cancel);
        if (second)
            QTRY_VERIFY_WITH_TIMEOUT(further.happened(), person::patience);
        QTest::qWait(400);
        QCOMPARE(further.happened(), second);
        QVERIFY(!QApplication::activeModalWidget());
        QCOMPARE(machine.recorder.status(), before);
        QVERIFY(!machine.controller->activityLog->text().contains(u"hdiutil"_s));
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

    void aDestinationThatCannotBeWrittenIsTold_data()
    {
        QTest::addColumn<qint64>("size");
        QTest::addColumn<QString>("destination");
        QTest::addColumn<QString>("words");
        QTest::newRow("not writable") << 10LL << u"/proc"_s << u"cannot be created"_s;
        QTest::newRow("too small") << (1LL << 42) << QString()
                                   << u"free some space or choose another place"_s;
    }
    void aDestinationThatCannotBeWrittenIsTold()
    {
        QFETCH(qint64, size);
        QFETCH(QString, destination);
        QFETCH(QString, words);
        WholeMachine machine;
        makeTree(machine.mediaPath(u"tree"_s));
        QVERIFY(QFile(machine.mediaPath(u"tree/empty"_s)).resize(size));
        if (destination.isEmpty())
            destination = machine.mediaPath(u"out"_s);
        QDir().mkpath(destination);
        makeImage(machine, machine.mediaPath(u"tree"_s), destination);
        QVERIFY2(machine.trouble().contains(words), qUtf8Printable(machine.trouble()));
        QVERIFY2(machine.controller->activityLog->text().contains(words),
            qUtf8Printable(machine.controller->activityLog->text()));
        QVERIFY(!QFile::exists(destination + u"/image.iso"_s));
    }

    void aDiscIsCopiedWithOneRecorder()
    {
        WholeMachine machine;
        const QString volume = machine.mediaPath(u"Volume – 1"_s);
        makeTree(volume);
        machine.recorder.drutil({ u"burn"_s, volume });
        QVERIFY(machine.recorder.status().contains("not writable"));
        Alerts alerts({ { u"OK"_s, {} } });
        copyDisc(machine, volume);
        QVERIFY(machine.completes());
        QCOMPARE(alerts.texts(), QStringList(prompt));
        expectCopy(machine, volume);
        QCOMPARE(machine.recorder.ejectedDiscs().size(), 1);
    }

    void theWrongDiscIsToldUntilTheRightOneLiesThere()
    {
        WholeMachine machine;
        const QString volume = machine.mediaPath(u"volume"_s);
        makeTree(volume);
        machine.recorder.drutil({ u"burn"_s, volume });
        const auto insert = [](const QString &kind) { return [kind] { Recorder::insert(kind); }; };
        Alerts alerts({ { u"OK"_s, insert(u"none"_s) }, { u"Close"_s, {} },
            { u"OK"_s,
                [&volume] {
                    Recorder::insert(u"dvd-r"_s);
                    Recorder::drutil({ u"burn"_s, volume });
                } },
            { u"Close"_s, {} }, { u"OK"_s, insert(u"cd-rw"_s) } });
        copyDisc(machine, volume);
        QVERIFY(machine.completes());
        const QStringList expected{ prompt, u"No disc"_s, prompt, u"Media not writable"_s, prompt };
        QCOMPARE(alerts.texts(), expected);
        expectCopy(machine, volume);
        QVERIFY(machine.recorder.status().contains("CD-RW"));
    }

    void aCopyIsGivenUpAtThePrompt_data()
    {
        QTest::addColumn<bool>("wrongDiscBefore");
        QTest::newRow("at once") << false;
        QTest::newRow("after a wrong disc") << true;
    }
    void aCopyIsGivenUpAtThePrompt()
    {
        QFETCH(bool, wrongDiscBefore);
        WholeMachine machine;
        const QString volume = machine.mediaPath(u"volume"_s);
        makeTree(volume);
        machine.recorder.drutil({ u"burn"_s, volume });
        QList<Alerts::Answer> answers;
        if (wrongDiscBefore)
            answers = { { u"OK"_s, [] { Recorder::insert(u"none"_s); } },
                { u"Close"_s, [] { Recorder::insert(u"cd-r"_s); } } };
        answers.append({ u"Cancel"_s, {} });
        const Alerts alerts(answers);
        copyDisc(machine, volume);
        QTRY_COMPARE_WITH_TIMEOUT(alerts.texts().size(), answers.size(), person::patience);
        QTRY_COMPARE_WITH_TIMEOUT(workingFiles(machine), QStringList(), person::patience);
        QVERIFY(!machine.controller->windowOperationCompleted);
        QVERIFY(!machine.controller->windowPerformingOperation);
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
        machine.recorder.drutil({ u"burn"_s, machine.mediaPath(u"tree"_s) });
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
