// Titles and performers from tags and from the keyboard onto an audio CD, and none of them where nobody wants any.
#include "compilation/ListTableModel.h"
#include "compilation/ListTableView.h"
#include "support/WholeMachine.h"

using namespace Qt::StringLiterals;

class AudioNamesTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_media;

    /// What was written.
    struct Disc {
        QByteArray sound, sheet, tracks;
        QString trouble, changed; ///< as the last sheet tells them
    };

    /// Puts both songs on a disc, `change` having been done to the list before.
    Disc written(const std::function<void(WholeMachine &)> &change)
    {
        Disc disc;
        WholeMachine machine;
        machine.controller->around.questions = &machine.questions;
        machine.recorder.insert(u"cd-r"_s);
        machine.questions.choices.append({ QUrl::fromLocalFile(m_media.filePath(u"one.mp3"_s)),
            QUrl::fromLocalFile(m_media.filePath(u"two.wav"_s)) });
        QSignalSpy ended(machine.controller.get(), &AppDelegate::addingEnded);
        machine.press("toolbar_btn_Audio_Add_Files");
        if (ended.count() == 0 && !ended.wait(60'000))
            return disc;
        change(machine);
        machine.press("btnBurn");
        if (!machine.completes())
            return disc;
        disc.trouble = machine.trouble();
        disc.changed =
            machine.controller->windowOperationCompleted->findChild<QLabel *>(u"labelChanged"_s)->text();
        disc.sound = contentOf(machine.recorder.path(u"disc.bin"_s));
        disc.sheet = contentOf(machine.recorder.path(u"disc.cue"_s));
        disc.tracks = Recorder::drutil({ u"tracks"_s }).simplified();
        return disc;
    }

    static void type(const WholeMachine &machine, int row, int column, const QString &name)
    {
        QAbstractItemModel *model = machine.element<ListTableView>("tableviewAudioFiles")->model();
        QVERIFY(model->setData(model->index(row, column), name, Qt::EditRole));
    }

private Q_SLOTS:
    void init() { emptyHome(); }

    void initTestCase()
    {
        makeMedia(m_media.filePath(u"one.mp3"_s),
            u"-f lavfi -i sine=duration=4.2 -ac 2 -metadata title=First -metadata artist=Band"_s);
        makeMedia(m_media.filePath(u"two.wav"_s), u"-f lavfi -i sine=frequency=600:duration=4.3 -ac 2"_s);
    }

    void whatNobodyTouchesIsWrittenAsTheTagsSay()
    {
        const Disc disc = written([](WholeMachine &) {});
        QCOMPARE(disc.trouble, QString());
        QVERIFY2(disc.tracks.endsWith("First Band 2 audio 00:06:15 00:04:23"), disc.tracks.constData());
        // That the columns are shown changes nothing, neither in the sound nor in the sheet.
        const Disc shown = written(
            [](WholeMachine &machine) { person::choose(machine.window.get(), "menuitemNameColumns"); });
        QVERIFY(!disc.sound.isEmpty() && shown.sound == disc.sound);
        QCOMPARE(shown.sheet, disc.sheet);
    }

    void whatIsTypedIsOnTheDisc()
    {
        const Disc plain = written([](WholeMachine &) {});
        const Disc disc = written([](WholeMachine &machine) {
            type(machine, 0, ListTableModel::NameTitle, {});
            type(machine, 1, ListTableModel::NameTitle, u"Über \"uns\""_s);
            type(machine, 1, ListTableModel::NamePerformer, u"Band"_s);
        });
        QCOMPARE(disc.trouble, QString());
        QVERIFY2(disc.tracks.startsWith("Album performer: Band "), disc.tracks.constData());
        QVERIFY2(disc.tracks.contains(" 00:04:15 Band 2 "), disc.tracks.constData());
        QVERIFY(disc.sheet.contains("TITLE \"\xdc"
                                    "ber 'uns'\""));
        QVERIFY(!disc.sheet.contains("First"));
        QVERIFY2(!plain.sound.isEmpty() && disc.sound == plain.sound, "the sound is another one");
    }

    void whatADiscCannotHoldIsTold()
    {
        const Disc disc =
            written([](WholeMachine &machine) { type(machine, 1, ListTableModel::NameTitle, u"日本"_s); });
        QVERIFY2(disc.changed.contains(u"日本"_s), qUtf8Printable(disc.changed));
        QVERIFY(disc.sheet.contains("TITLE \"??\""));
    }

    void switchedOffThereAreNoNames()
    {
        const Disc plain = written([](WholeMachine &) {});
        const Disc disc = written([](WholeMachine &machine) {
            type(machine, 1, ListTableModel::NameTitle, u"Typed"_s);
            person::choose(machine.window.get(), "menuitemWriteTitles");
        });
        QCOMPARE(disc.trouble, QString());
        QVERIFY(!disc.sheet.isEmpty() && !disc.sheet.contains("TITLE") && !disc.sheet.contains("PERFORMER"));
        QVERIFY(disc.sound == plain.sound);
    }
};

QTEST_MAIN(AudioNamesTest)
#include "AudioNamesTest.moc"
