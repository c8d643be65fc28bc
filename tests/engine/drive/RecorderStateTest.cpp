// The recorder.ini of a virtual recorder: what is read, what is refused, what a medium follows from it.
#include "drive/RecorderState.h"

#include "report/StatusText.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace engine;
using namespace engine::drive;

class RecorderStateTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void whatIsWrittenIsRead()
    {
        for (const DiscState disc :
            { DiscState::blank, DiscState::writing, DiscState::written, DiscState::spoilt }) {
            for (const MediumKind kind :
                { MediumKind::none, MediumKind::cdRw, MediumKind::dvdPlusR, MediumKind::bdRe }) {
                RecorderState state;
                state.vendor = "A = B";
                state.product = "";
                state.trayOpen = kind == MediumKind::none;
                state.kind = kind;
                state.disc = disc;
                state.blocks = 12219392;
                const auto read = parseRecorder(recorderText(state));
                QVERIFY(read);
                QVERIFY(*read == state);
            }
        }
    }

    void texts_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("error");
        const QString second = u"cannot be understood in line 2"_s;
        const QString noKind = u"does not tell the kind of the disc"_s;
        const QString noState = u"does not tell the state of the disc"_s;
        QTest::newRow("empty") << QByteArray() << noKind;
        QTest::newRow("cut off before the kind")
            << QByteArray("[recorder]\ntray=closed\n\n[medium]\n") << noKind;
        QTest::newRow("cut off in the kind") << QByteArray("[medium]\nkind=dvd+r") << noState;
        QTest::newRow("cut off before the state") << QByteArray("[medium]\nkind=cd-r\n") << noState;
        QTest::newRow("cut off in the state")
            << QByteArray("[medium]\nkind=cd-r\nstate=wri") << u"cannot be understood in line 3"_s;
        QTest::newRow("no disc") << QByteArray("[medium]\nkind=none\n") << QString();
        QTest::newRow("comments and blanks")
            << QByteArray("# one\n\n ; two\n[medium]\r\n kind = cd-r \r\nstate\t=blank\n") << QString();
        QTest::newRow("unknown key") << QByteArray("[recorder]\nshelf=3\nkind=none\n") << QString();
        QTest::newRow("unknown section")
            << QByteArray("[other]\nkind=disk\n[medium]\nkind=cd-r\nstate=blank\n") << QString();
        QTest::newRow("only in an unknown section")
            << QByteArray("[other]\nkind=cd-r\nstate=blank\n") << noKind;
        QTest::newRow("no end of line") << QByteArray("[medium]\nkind=dvd-r\nstate=blank") << QString();
        QTest::newRow("unknown kind") << QByteArray("[medium]\nkind=cd\n") << second;
        QTest::newRow("unknown state") << QByteArray("[medium]\nstate=full\n") << second;
        QTest::newRow("unknown tray") << QByteArray("[recorder]\ntray=ajar\n") << second;
        QTest::newRow("negative blocks") << QByteArray("[medium]\nblocks=-1\n") << second;
        QTest::newRow("too many blocks") << QByteArray("[medium]\nblocks=99999999999999999999\n") << second;
        QTest::newRow("words") << QByteArray("[medium]\nhello\n") << second;
        QTest::newRow("a picture") << QByteArray("\x89PNG\r\n\x1a\n") << u"cannot be understood in line 1"_s;
    }

    void texts()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, error);
        const auto read = parseRecorder(text.toStdString());
        QCOMPARE(read ? QString() : QString::fromStdString(read.error().message), error);
    }

    void mediumFollows_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("disc");
        QTest::addColumn<QString>("words");
        const auto row = [](const char *name, MediumKind kind, DiscState disc, const QString &words) {
            QTest::newRow(name) << int(kind) << int(disc) << words;
        };
        row("blank CD-R", MediumKind::cdR, DiscState::blank, u"appendable, blank, overwritable"_s);
        row("written CD-R", MediumKind::cdR, DiscState::written, u"not writable"_s);
        row("killed CD-R", MediumKind::cdR, DiscState::writing, u"not writable"_s);
        row("spoilt BD-R", MediumKind::bdR, DiscState::spoilt, u"not writable"_s);
        row("blank CD-RW", MediumKind::cdRw, DiscState::blank,
            u"appendable, blank, erasable, overwritable"_s);
        row("written DVD-RW", MediumKind::dvdRw, DiscState::written, u"erasable"_s);
        row("killed DVD-RW", MediumKind::dvdRw, DiscState::writing, u"erasable"_s);
        row("blank DVD+RW", MediumKind::dvdPlusRw, DiscState::blank, u"erasable, overwritable"_s);
        row("written BD-RE", MediumKind::bdRe, DiscState::written, u"erasable, overwritable"_s);
    }

    void mediumFollows()
    {
        QFETCH(int, kind);
        QFETCH(int, disc);
        RecorderState state;
        state.kind = MediumKind(kind);
        state.disc = DiscState(disc);
        QTEST(QString::fromStdString(report::writability(mediumOf(state))), "words");
        state.trayOpen = true;
        QCOMPARE(int(mediumOf(state).kind), int(MediumKind::none));
    }
};

QTEST_APPLESS_MAIN(RecorderStateTest)
#include "RecorderStateTest.moc"
