// The program where the buses are missing, dead or hang: nothing changes.
#include "support/ProgramFolder.h"

#include <QElapsedTimer>
#include <QTest>

#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

/// It takes connections and never says a word.
class SilentBus {
public:
    SilentBus()
        : m_path(QDir::tempPath() + "/silent-bus"_L1)
        , m_fd(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::strncpy(address.sun_path, QFile::encodeName(m_path).constData(), sizeof address.sun_path - 1);
        if (::bind(m_fd, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0
            || ::listen(m_fd, 8) != 0)
            qFatal("no socket");
    }
    ~SilentBus()
    {
        ::close(m_fd);
        QFile::remove(m_path);
    }
    QString address() const { return "unix:path="_L1 + m_path; }

private:
    const QString m_path;
    const int m_fd;
};

class BusTroubleTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void discIsWritten_data();
    void discIsWritten();
};

void BusTroubleTest::discIsWritten_data()
{
    QTest::addColumn<QString>("bus");
    QTest::newRow("none") << QString();
    QTest::newRow("nobody listens") << u"unix:path=/nobody/listens"_s;
    QTest::newRow("no address") << u"nonsense"_s;
    QTest::newRow("hangs") << u"silent"_s;
}

void BusTroubleTest::discIsWritten()
{
    QFETCH(QString, bus);
    const SilentBus silent;
    ProgramFolder program;
    program.drutil.print(u"status"_s, "Type: CD-R\nWritability: appendable, blank, overwritable\n");
    makeFile(program.home(u"letters/one.txt"_s), "Dear all");
    QProcessEnvironment environment = program.process.processEnvironment();
    for (const auto &name : { u"DBUS_SESSION_BUS_ADDRESS"_s, u"DBUS_SYSTEM_BUS_ADDRESS"_s }) {
        if (!bus.isEmpty())
            environment.insert(name, bus == "silent"_L1 ? silent.address() : bus);
    }
    program.process.setProcessEnvironment(environment);
    const int status = program.run({ u"--burn"_s, u"Data CD"_s, program.home(u"letters"_s) });
    QVERIFY2(status == 0, qPrintable(program.errors()));
    QCOMPARE(program.drutil.runs(u"burn"_s).size(), 1);
}

QTEST_GUILESS_MAIN(BusTroubleTest)
#include "BusTroubleTest.moc"
