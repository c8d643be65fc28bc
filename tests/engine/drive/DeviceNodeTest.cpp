// Why a device cannot be opened, in words.
#include "drive/DeviceNode.h"

#include <QtTest>

#include <cerrno>

using namespace Qt::StringLiterals;
using namespace engine;
using namespace engine::drive;

class DeviceNodeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void sentences_data()
    {
        QTest::addColumn<int>("failure");
        QTest::addColumn<int>("exit");
        QTest::addColumn<QString>("sentence");
        const QString busy = u"/dev/sr0 (drive 1) is busy with another program; wait until that has ended."_s;
        const QString forbidden =
            u"You may not use /dev/sr0 (drive 1): log in at this machine itself, or have yourself added to the group cdrom and log in again."_s;
        const QString gone = u"/dev/sr0 (drive 1) is gone; check its cable."_s;
        QTest::newRow("busy") << EBUSY << 1 << busy;
        QTest::newRow("group") << EACCES << 1 << forbidden;
        QTest::newRow("not permitted") << EPERM << 1 << forbidden;
        QTest::newRow("no node") << ENOENT << 3 << gone;
        QTest::newRow("no device") << ENODEV << 3 << gone;
        QTest::newRow("no unit") << ENXIO << 3 << gone;
        QTest::newRow("read-only")
            << EROFS << 1
            << u"/dev/sr0 (drive 1) cannot be opened: read-only file system; its file system takes no changes, choose another place."_s;
    }

    void sentences()
    {
        QFETCH(int, failure);
        const Error error = openError("/dev/sr0", "drive 1", failure, "cdrom");
        QTEST(int(error.exit), "exit");
        QTEST(QString::fromStdString(error.message), "sentence");
    }

    void aNodeThatIsNotThere()
    {
        QTemporaryDir dir;
        const std::string device = dir.filePath(u"sr0"_s).toStdString();
        const auto result = checkFree(device, "drive 1");
        QVERIFY(!result);
        QCOMPARE(int(result.error().exit), 3);
        QVERIFY(isGone(device));
        QCOMPARE(int(trayOf(device)), int(Tray::unknown));
    }

    void aNodeThatStays()
    {
        QTemporaryFile file;
        QVERIFY(file.open());
        const std::string device = file.fileName().toStdString();
        QVERIFY(checkFree(device, "drive 1"));
        QVERIFY(!isGone(device));
        QCOMPARE(int(trayOf(device)), int(Tray::unknown));
    }
};

QTEST_APPLESS_MAIN(DeviceNodeTest)
#include "DeviceNodeTest.moc"
