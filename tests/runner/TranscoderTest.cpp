// The application's transcoder: what of its arguments reaches the system's.
#include "support/TestApplication.h"

#include <QProcess>
#include <QTest>

#include <cerrno>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

class TranscoderTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void passesItsArguments_data();
    void passesItsArguments();
    void endsAsTheSystemsDoes_data();
    void endsAsTheSystemsDoes();
    void reachesNoNetwork_data();
    void reachesNoNetwork();

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

void TranscoderTest::reachesNoNetwork_data()
{
    QTest::addColumn<QByteArray>("playlist");
    QTest::newRow("a list of segments")
        << QByteArray("#EXTM3U\n#EXT-X-VERSION:3\n#EXT-X-TARGETDURATION:10\n#EXT-X-MEDIA-SEQUENCE:0\n"
                      "#EXTINF:10,\nhttp://ADDRESS/a.ts\n#EXT-X-ENDLIST\n");
    QTest::newRow("a key for segments") << QByteArray(
        "#EXTM3U\n#EXT-X-TARGETDURATION:10\n#EXT-X-KEY:METHOD=AES-128,URI=\"http://ADDRESS/k\"\n"
        "#EXTINF:10,\na.ts\n#EXT-X-ENDLIST\n");
    QTest::newRow("a list of files") << QByteArray("ffconcat version 1.0\nfile http://ADDRESS/b.mp3\n");
    QTest::newRow("a redirection") << QByteArray("[Reference]\nRef1=http://ADDRESS/c.mp3\n");
}

// A file is a song by its name only. What it tells the transcoder to fetch would tell a stranger who has listed it, and when.
void TranscoderTest::reachesNoNetwork()
{
    QFETCH(QByteArray, playlist);
    const int server = ::socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto *const generic = reinterpret_cast<sockaddr *>(&address);
    QVERIFY(::bind(server, generic, size) == 0 && ::listen(server, 1) == 0);
    QVERIFY(::getsockname(server, generic, &size) == 0);
    playlist.replace("ADDRESS", "127.0.0.1:" + QByteArray::number(ntohs(address.sin_port)));
    const QString song = m_folder.filePath(u"song.mp3"_s);
    makeFile(song, playlist);
    QProcess transcoder;
    transcoder.setProcessChannelMode(QProcess::MergedChannels);
    transcoder.start(builtPrograms() + u"/../libexec/corvalis/ffmpeg"_s, { u"-i"_s, song });
    transcoder.closeWriteChannel();
    QVERIFY(transcoder.waitForFinished());
    QCOMPARE(transcoder.exitStatus(), QProcess::NormalExit);
    const int caller = ::accept(server, nullptr, nullptr);
    const int error = errno;
    ::close(server);
    QVERIFY2(caller < 0 && error == EAGAIN, transcoder.readAll().constData());
}

QTEST_GUILESS_MAIN(TranscoderTest)
#include "TranscoderTest.moc"
