// The unattended form as a real process with the real engine: the kinds of disc that convert files, and what it
// answers when the disc will not do.
#include "app/ProjectTypes.h"
#include "support/WholeMachine.h"

using namespace Qt::StringLiterals;

namespace {

const QString corvalis = builtPrograms() + u"/corvalis"_s;

QString name(int code)
{
    return projects::byCode(code)->name;
}

} // namespace

class BatchRunTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_media;

    QString media(const QString &file) const { return m_media.filePath(file); }

private Q_SLOTS:
    void initTestCase()
    {
        makeMedia(media(u"-song \"1\".mp3"_s), u"-f lavfi -i sine=duration=4.5 -ac 2"_s);
        makeMedia(media(u"日本.wma"_s), u"-f lavfi -i sine=frequency=600:duration=4.5 -ac 2 -c:a wmav2"_s);
        makeMedia(media(u"clip.mp4"_s),
            u"-f lavfi -i testsrc=size=160x120:duration=1 -f lavfi -i sine=duration=1 -ac 2"_s);
        makeFile(media(u"folder/file"_s), "content");
    }

    void aDiscIsMade_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("disc");
        QTest::addColumn<QStringList>("expected");
        const QStringList songs{ u"-song \"1\".mp3"_s, u"日本.mp3"_s };
        QTest::newRow("Audio CD") << 1 << u"cd-r"_s << QStringList();
        QTest::newRow("MP3 CD") << 2 << u"cd-rw"_s << songs;
        QTest::newRow("MP3 DVD") << 3 << u"dvd-r"_s << songs;
        QTest::newRow("Video DVD") << 4 << u"dvd+rw"_s << QStringList(u"clip.mpg"_s);
        QTest::newRow("Video Blu-ray") << 5 << u"bd-r"_s << QStringList(u"clip.mpg"_s);
    }
    void aDiscIsMade()
    {
        QFETCH(int, code);
        QFETCH(QString, disc);
        QFETCH(QStringList, expected);
        Recorder recorder;
        recorder.insert(disc);
        QStringList arguments{ u"--burn"_s, name(code) };
        if (code <= 3)
            arguments += { u"./-song \"1\".mp3"_s, media(u"日本.wma"_s) };
        else
            arguments.append(u"clip.mp4"_s);
        const Printed printed = run(corvalis, arguments, m_media.path());
        QVERIFY2(printed.status == 0, printed.errors.constData());
        QCOMPARE(printed.errors, QByteArray());
        const QList<QByteArray> lines = printed.output.trimmed().split('\n');
        QCOMPARE(lines.last(), QByteArray("Operation complete"));
        if (code == 1) {
            QVERIFY(contentOf(recorder.path(u"disc.bin"_s)).size() > 2 * 4 * 176400);
            return;
        }
        QTemporaryDir place;
        const QString tree = reader::extractedByXorriso(recorder.iso(), place.path());
        QCOMPARE(QDir(tree).entryList(QDir::Files, QDir::Name), expected);
    }

    void anAlertEndsItWithOne_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("disc");
        QTest::addColumn<QByteArray>("told");
        const QByteArray again = " and try again.\n";
        const QByteArray noDisc =
            "No disc\nThere is no disc on the drive. insert a writable media on the drive" + again;
        const auto wrong = [&again](const QByteArray &family) {
            return "Media not " + family + "\nThe media on the drive is not a " + family
                + ". insert a writable " + family + " on the drive" + again;
        };
        for (int code = 1; code <= 8; ++code) {
            const QString title = name(code);
            const bool cd = code == 1 || code == 2 || code == 6;
            const bool dvd = code == 3 || code == 4 || code == 7;
            QTest::addRow("%s, no disc", qUtf8Printable(title)) << code << u"none"_s << noDisc;
            QTest::addRow("%s, wrong disc", qUtf8Printable(title)) << code << (cd ? u"bd-r"_s : u"cd-r"_s)
                                                                   << wrong(cd      ? "CD"
                                                                              : dvd ? "DVD"
                                                                                    : "Blu-ray");
        }
    }
    void anAlertEndsItWithOne()
    {
        QFETCH(int, code);
        QFETCH(QString, disc);
        QFETCH(QByteArray, told);
        Recorder recorder;
        recorder.insert(disc);
        const QByteArray before = recorder.status();
        const QString file = media(code <= 3 ? u"日本.wma"_s : code <= 5 ? u"clip.mp4"_s : u"folder"_s);
        const Printed printed = run(corvalis, { u"--burn"_s, name(code), file });
        QCOMPARE(printed.errors, told);
        QCOMPARE(printed.status, 1);
        QCOMPARE(recorder.status(), before);
    }

    void whatIsNotOnTheDiscIsToldByTheStatus()
    {
        Recorder recorder;
        makeFile(media(u"noise.mp3"_s), "no music at all");
        const Printed printed =
            run(corvalis, { u"--burn"_s, u"MP3 CD"_s, media(u"noise.mp3"_s), media(u"日本.wma"_s) });
        QCOMPARE(printed.status, 3);
        QVERIFY2(printed.errors.contains("noise.mp3"), printed.errors.constData());
        QVERIFY(printed.output.endsWith("The disc was written, but some things are not on it\n"));
        QVERIFY(QFile::exists(recorder.iso()));
    }
};

QTEST_MAIN(BatchRunTest)
#include "BatchRunTest.moc"
