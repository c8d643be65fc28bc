// How a batch run ends, as whoever started it sees it: the exit status, what it printed, and what it left behind.
#include "support/ProgramFolder.h"
#include "support/WholeMachine.h"

#include <QElapsedTimer>
#include <QRegularExpression>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

/// The real program with the real engine, in a home and with a recorder of its own.
class BatchProcess {
public:
    QTemporaryDir home;
    QProcess process;
    QByteArray output; ///< all so far

    explicit BatchProcess(const QString &disc)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"HOME"_s, home.path());
        environment.insert(u"CORVALIS_VIRTUAL"_s, u"only"_s);
        environment.insert(u"CORVALIS_RECORDERS"_s, home.filePath(u"recorders"_s));
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(home.path());
        drutil({ u"list"_s });
        drutil({ u"insert"_s, disc });
    }
    ~BatchProcess()
    {
        process.kill();
        process.waitForFinished();
    }

    QByteArray drutil(const QStringList &arguments) const
    {
        QProcess tool;
        tool.setProcessEnvironment(process.processEnvironment());
        tool.start(builtPrograms() + u"/drutil"_s, arguments);
        tool.waitForFinished(60'000);
        return tool.readAllStandardOutput();
    }

    void start(const QString &kind, const QStringList &files)
    {
        process.start(builtPrograms() + u"/corvalis"_s, QStringList{ u"--burn"_s, kind } + files);
    }

    bool prints(const QString &pattern)
    {
        const QRegularExpression text(pattern);
        return QTest::qWaitFor(
            [&] {
                output += process.readAllStandardOutput();
                return text.match(QString::fromUtf8(output)).hasMatch();
            },
            60'000);
    }

    /// The exit status; the negative signal where one ended it; -1000 where it does not end.
    int ends()
    {
        if (process.state() != QProcess::NotRunning && !process.waitForFinished(120'000))
            return -1000;
        output += process.readAllStandardOutput();
        return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -process.exitCode();
    }

    /// Everything in the folders where discs are prepared.
    QStringList leftBehind() const
    {
        QStringList names;
        for (const char *folder : { "CorvalisAudio", "CorvalisVideo", "CorvalisData" }) {
            const QDir place(home.filePath(u"Documents/"_s + QLatin1String(folder)));
            names += place.entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
        }
        return names;
    }

    void makeSparse(const QString &name, qint64 bytes) const
    {
        makeFile(home.filePath(name));
        if (!QFile::resize(home.filePath(name), bytes))
            qFatal("there is no room for %s", qUtf8Printable(name));
    }
};

constexpr qint64 megabyte = 1'000'000;

/// More than a beginning is on the disc.
const QString underWay = u"Writing: [1-9]"_s;

} // namespace

class BatchEndsTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_media;
    QString media(const QString &file) const { return m_media.filePath(file); }

private Q_SLOTS:
    void initTestCase()
    {
        makeMedia(media(u"song.wma"_s), u"-f lavfi -i sine=frequency=600:duration=4.5 -ac 2 -c:a wmav2"_s);
        makeMedia(media(u"long.wma"_s), u"-f lavfi -i sine=frequency=600:duration=3000 -ac 1 -c:a wmav2"_s);
        makeFile(media(u"noise.mp3"_s), "no music at all");
        makeFile(media(u"photos/one"_s), QByteArray(3'000'000, 'x'));
        makeFile(media(u"linked/file"_s), "content");
    }

    void tellsByItsStatus_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("printed");
        QTest::addColumn<QByteArray>("errors"); ///< a part of it
        QTest::addColumn<bool>("written");
        const auto row = [](const char *name, const QString &kind, const QStringList &files, int status,
                             const QByteArray &printed, const QByteArray &errors, bool written) {
            QTest::newRow(name) << kind << files << status << printed << errors << written;
        };
        const QString data = u"Data CD"_s;
        const QString mp3 = u"MP3 CD"_s;
        row("everything is on it", data, { media(u"photos"_s) }, 0, "Operation complete\n", {}, true);
        row("converted", mp3, { media(u"song.wma"_s) }, 0, "Operation complete\n", {}, true);
        row("one file cannot be converted", mp3, { media(u"noise.mp3"_s), media(u"song.wma"_s) }, 3,
            "The disc was written, but some things are not on it\n", "noise.mp3", true);
        row("nothing can be converted", mp3, { media(u"noise.mp3"_s) }, 1, "The disc was not written\n",
            "noise.mp3", false);
        row("nothing can be converted to tracks", u"Audio CD"_s, { media(u"noise.mp3"_s) }, 1,
            "The disc was not written\n", "noise.mp3", false);
        row("no file is named", mp3, {}, 1, {}, "No audio files on the list\n", false);
        row("too large", data, { u"large"_s }, 1, "The disc was not written\n", "MB", false);
        row("another kind of disc", u"Data DVD"_s, { media(u"photos"_s) }, 1, {}, "Media not DVD\n", false);
        row("wrong arguments", u"Data Tape"_s, {}, 2, {}, "there is no project", false);
    }
    void tellsByItsStatus()
    {
        QFETCH(QString, kind);
        QFETCH(QStringList, files);
        QFETCH(QByteArray, printed);
        QFETCH(QByteArray, errors);
        QFETCH(bool, written);
        BatchProcess batch(u"cd-r"_s);
        batch.makeSparse(u"large/file"_s, 900 * megabyte);
        const QByteArray blank = batch.drutil({ u"status"_s });
        QElapsedTimer clock;
        clock.start();
        batch.start(kind, files);
        const int status = batch.ends();
        const QByteArray said = batch.process.readAllStandardError();
        QVERIFY2(clock.elapsed() < 45'000, "nothing here takes a minute");
        QTEST(status, "status");
        QVERIFY2(batch.output.endsWith(printed), batch.output.constData());
        QVERIFY2(errors.isEmpty() ? said.isEmpty() : said.contains(errors), said.constData());
        QVERIFY2(!said.contains("/Documents/Corvalis"), said.constData());
        QCOMPARE(batch.drutil({ u"status"_s }) != blank, written);
        QCOMPARE(batch.leftBehind(), QStringList());
    }

    void endsByTheSignalThatStoppedIt_data()
    {
        QTest::addColumn<int>("signal");
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("stage"); ///< what is printed when it has begun
        for (const auto &[name, signal] :
            { std::pair{ "SIGINT", SIGINT }, std::pair{ "SIGTERM", SIGTERM } }) {
            QTest::addRow("%s, converting", name) << signal << u"Audio CD"_s << u"Converting: "_s;
            QTest::addRow("%s, gathering", name) << signal << u"Data DVD"_s << u"Gathering the folders"_s;
            QTest::addRow("%s, writing", name) << signal << u"Data DVD"_s << underWay;
        }
    }
    void endsByTheSignalThatStoppedIt()
    {
        QFETCH(int, signal);
        QFETCH(QString, kind);
        QFETCH(QString, stage);
        const bool data = kind == u"Data DVD"_s;
        BatchProcess batch(data ? u"dvd+r"_s : u"cd-r"_s);
        const QByteArray blank = batch.drutil({ u"status"_s });
        batch.makeSparse(u"large/file"_s, 4000 * megabyte);
        batch.start(kind, { data ? u"large"_s : media(u"long.wma"_s) });
        QVERIFY2(batch.prints(stage), batch.output.constData());
        QElapsedTimer clock;
        clock.start();
        ::kill(static_cast<pid_t>(batch.process.processId()), signal);
        QCOMPARE(batch.ends(), -signal);
        QVERIFY2(clock.elapsed() < 20'000, "it ends at once");
        QVERIFY2(batch.output.endsWith("Stopped\n"), batch.output.constData());
        QCOMPARE(batch.leftBehind(), QStringList());
        const QByteArray said = batch.process.readAllStandardError();
        if (stage == underWay) {
            QVERIFY2(said.contains("Stopped") && said.contains("disc in drive 1"), said.constData());
        } else {
            QCOMPARE(said, QByteArray("Nothing was written. The disc is as it was.\n"));
            QCOMPARE(batch.drutil({ u"status"_s }), blank);
        }
    }

    void aStoppedDiscTellsSoAfterwards_data()
    {
        QTest::addColumn<QString>("disc");
        QTest::addColumn<QByteArray>("writability");
        QTest::newRow("write-once") << u"dvd+r"_s << QByteArray("not writable");
        QTest::newRow("rewritable") << u"dvd+rw"_s << QByteArray("erasable, overwritable");
    }
    void aStoppedDiscTellsSoAfterwards()
    {
        QFETCH(QString, disc);
        BatchProcess batch(disc);
        batch.makeSparse(u"large/file"_s, 4000 * megabyte);
        batch.start(u"Data DVD"_s, { u"large"_s });
        QVERIFY(batch.prints(underWay));
        batch.process.terminate();
        QCOMPARE(batch.ends(), -SIGTERM);
        const QByteArray status = batch.drutil({ u"status"_s });
        const qsizetype at = status.indexOf("Writability: ");
        QVERIFY2(at >= 0, status.constData());
        QTEST(status.mid(at + 13, status.indexOf('\n', at) - at - 13).trimmed(), "writability");
    }

    void aLineForEachTenthOfTheWriting()
    {
        ProgramFolder program;
        program.ffmpeg.run("for output; do :; done\n[ $# -gt 2 ] && echo converted > \"$output\"\n");
        program.drutil.print(u"status"_s,
            "           Type: CD-R                 Name: /dev/sr0\n"
            "    Writability: appendable, blank, overwritable\n");
        program.drutil.run(
            "[ \"$1\" = burn ] || exit 0\necho Preparing\n"
            "for word in Writing Verifying; do for i in 0 20 40 60 80; do\n"
            "for more in 1 2 3 4 5 6 7 8; do echo \"$word: $((i + more)).0 %\"; sleep 0.1; done\n"
            "done; done\n");
        QCOMPARE(program.run({ u"--burn"_s, u"MP3 CD"_s, media(u"song.wma"_s) }), 0);
        QMap<int, int> tenths;
        const QList<QByteArray> lines = program.process.readAllStandardOutput().split('\n');
        for (const QByteArray &line : lines) {
            const int half = line.startsWith("Writing: ") ? 0 : line.startsWith("Verifying: ") ? 50 : -1;
            if (half >= 0)
                ++tenths[static_cast<int>((half + line.split(' ').at(1).toDouble() / 2) / 10)];
        }
        QCOMPARE(tenths.keys(), (QList<int>{ 0, 1, 2, 3, 4, 5, 6, 7, 8, 9 }));
        for (const int count : std::as_const(tenths))
            QVERIFY(count <= 2); // and a sign of life where it takes long
        QVERIFY(lines.size() < 40);
    }
};

QTEST_MAIN(BatchEndsTest)
#include "BatchEndsTest.moc"
