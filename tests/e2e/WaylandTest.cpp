// A whole job on a compositor that places windows as it likes: everything has to stand in the one window.
#include "support/WholeMachine.h"

#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

/// A compositor of this test's own, without a screen.
class Compositor {
public:
    Compositor()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"XDG_RUNTIME_DIR"_s, m_runtime.path());
        m_process.setProcessEnvironment(environment);
        m_process.setProcessChannelMode(QProcess::MergedChannels);
        m_process.start(u"weston"_s,
            { u"--backend=headless-backend.so"_s, u"--use-pixman"_s, u"--idle-time=0"_s,
                u"--socket="_s + socket });
    }
    ~Compositor()
    {
        m_process.terminate();
        if (!m_process.waitForFinished(10'000)) {
            m_process.kill();
            m_process.waitForFinished();
        }
    }

    /// Why it cannot be used; empty when it can.
    QString objection()
    {
        if (QStandardPaths::findExecutable(u"weston"_s).isEmpty())
            return u"weston is not installed"_s;
        const bool ready = QTest::qWaitFor(
            [this] {
                return m_process.state() == QProcess::NotRunning || QFile::exists(m_runtime.filePath(socket));
            },
            30'000);
        if (ready && m_process.state() == QProcess::Running)
            return {};
        return u"weston does not start: "_s + QString::fromUtf8(m_process.readAll().right(400));
    }

    /// For its clients, which tell all that they ask of it on their standard error.
    QProcessEnvironment forClients() const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"XDG_RUNTIME_DIR"_s, m_runtime.path());
        environment.insert(u"WAYLAND_DISPLAY"_s, socket);
        environment.insert(u"WAYLAND_DEBUG"_s, u"1"_s);
        environment.insert(u"QT_QPA_PLATFORM"_s, u"wayland"_s);
        environment.remove(u"DISPLAY"_s);
        return environment;
    }

private:
    inline static const QString socket = u"corvalis-test"_s;

    QTemporaryDir m_runtime; // only its owner may enter it, as a compositor wants
    QProcess m_process;
};

} // namespace

class WaylandTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void aWholeJobHasOneWindow_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("source");
        QTest::newRow("audio") << u"Audio CD"_s << u"album/song.mp3"_s;
        QTest::newRow("data") << u"Data CD"_s << u"album"_s;
    }
    void aWholeJobHasOneWindow()
    {
        QFETCH(QString, kind);
        QFETCH(QString, source);
        Compositor compositor;
        if (const QString objection = compositor.objection(); !objection.isEmpty())
            QSKIP(qPrintable(objection));
        const QTemporaryDir media;
        makeMedia(media.filePath(u"album/song.mp3"_s), u"-f lavfi -i sine=duration=4 -ac 2"_s);
        Recorder recorder;
        Recorder::insert(u"cd-r"_s);

        QProcess program;
        program.setProcessEnvironment(compositor.forClients());
        program.setStandardInputFile(QProcess::nullDevice());
        program.start(
            builtPrograms() + u"/corvalis"_s, { u"--show"_s, u"--burn"_s, kind, media.filePath(source) });
        QByteArray printed;
        const bool completed = QTest::qWaitFor(
            [&] {
                printed += program.readAllStandardOutput();
                return program.state() == QProcess::NotRunning || printed.endsWith("Operation complete\n");
            },
            60'000);
        const bool stays = program.state() == QProcess::Running;
        program.terminate();
        QVERIFY(!stays || program.waitForFinished(30'000));
        const QByteArray requests = program.readAllStandardError();
        QVERIFY2(completed && stays, (printed + requests.right(2000)).constData());
        QVERIFY2(requests.contains("wl_surface"), "it is no client of the compositor");
        QCOMPARE(requests.count(".get_toplevel("), 1);
        QCOMPARE(requests.count(".get_popup("), 0);
    }
};

QTEST_MAIN(WaylandTest)
#include "WaylandTest.moc"
