// The application's transcoder: what of its arguments reaches the system's.
#include "support/TestApplication.h"

#include <QProcess>
#include <QTest>

using namespace Qt::StringLiterals;

class TranscoderTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void passesItsArguments_data();
    void passesItsArguments();
    void endsAsTheSystemsDoes_data();
    void endsAsTheSystemsDoes();

private:
    /// The application's transcoder before the system's one at `path`.
    QString before(const QString &path) const;

    QTemporaryDir m_folder;
};

QString TranscoderTest::before(const QString &path) const
{
    QByteArray script = contentOf(QStringLiteral(FFMPEG_IN));
    const QString wrapper = m_folder.filePath(u"wrapper"_s);
    makeFile(wrapper, script.replace("@FFMPEG@", path.toUtf8()));
    QFile::setPermissions(wrapper, QFile::ReadOwner | QFile::ExeOwner | QFile::WriteOwner);
    return wrapper;
}

void TranscoderTest::passesItsArguments_data()
{
    QTest::addColumn<QStringList>("given");
    QTest::addColumn<QStringList>("expected");
    const QString empty = u""_s;
    const auto unchanged = [](const char *name, const QStringList &given) {
        QTest::newRow(name) << given << given;
    };
    unchanged("report", { u"-i"_s, u"/music/song.mp3"_s });
    unchanged("empty words", { u"-i"_s, empty, empty });
    unchanged("a shell's signs", { u"-i"_s, u"/$(id) `id` ~ * ? ! \\n %s ' \" # & ; | <"_s, u"-"_s });
    unchanged("line breaks", { u"-i"_s, u"/a\nb\n"_s, u"\n"_s });
    unchanged("sound", { u"-i"_s, u"/a.mp3"_s, u"-acodec"_s, u"mp2"_s, u"/b.mp2"_s });
    unchanged("other sound",
        { u"-y"_s, u"-i"_s, u"/a"_s, u"-target"_s, u"pal-dvd"_s, u"-acodec"_s, u"ac3"_s, u"/b.mpg"_s });
    unchanged("a file like an option", { u"-i"_s, u"-target"_s, u"-acodec"_s, u"mp2"_s, u"/b.mp2"_s });
    unchanged("a codec like an option",
        { u"-acodec"_s, u"-target"_s, u"-acodec"_s, u"mp2"_s, u"-i"_s, u"/a"_s, u"/b"_s });
    const QStringList video{ u"-y"_s, u"-i"_s, u"/a b\n.avi"_s, u"-target"_s, u"ntsc-dvd"_s, u"-acodec"_s,
        u"mp2"_s };
    const QStringList rate{ u"-b:a"_s, u"384k"_s };
    for (const auto &output : { u"/b.mpg"_s, u"/ \n'\"$x.mpg"_s, u"/-target"_s, empty })
        QTest::addRow("video to %s", qUtf8Printable(output))
            << video + QStringList(output) << video + rate + QStringList(output);
}

void TranscoderTest::passesItsArguments()
{
    QFETCH(QStringList, given);
    QTemporaryDir folder;
    const NotingTool systems(folder.path(), u"it's the system's"_s);
    QProcess process;
    process.start(before(systems.path()), given);
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.readAllStandardError(), QByteArray());
    QCOMPARE(systems.runs().size(), 1);
    QTEST(systems.runs().first(), "expected");
}

void TranscoderTest::endsAsTheSystemsDoes_data()
{
    QTest::addColumn<QByteArray>("commands");
    QTest::addColumn<QProcess::ExitStatus>("how");
    QTest::addColumn<int>("status");
    QTest::newRow("well") << QByteArray("exit 0") << QProcess::NormalExit << 0;
    QTest::newRow("with an error") << QByteArray("exit 37") << QProcess::NormalExit << 37;
    QTest::newRow("of a signal") << QByteArray("kill -TERM $$") << QProcess::CrashExit << 15;
}

void TranscoderTest::endsAsTheSystemsDoes()
{
    QFETCH(QByteArray, commands);
    QTemporaryDir folder;
    const NotingTool systems(folder.path(), u"ffmpeg"_s);
    systems.run(commands);
    QProcess process;
    process.start(before(systems.path()), {});
    QVERIFY(process.waitForFinished());
    QTEST(process.exitStatus(), "how");
    QTEST(process.exitCode(), "status");
}

QTEST_GUILESS_MAIN(TranscoderTest)
#include "TranscoderTest.moc"
