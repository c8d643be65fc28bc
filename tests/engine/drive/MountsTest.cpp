// The kernel's table of mounts.
#include "drive/Mounts.h"

#include <QtTest>

#include <array>

using namespace engine::drive;

namespace {

constexpr const char *table =
    "22 29 0:21 / /proc rw,nosuid shared:13 - proc proc rw\n"
    "29 1 8:1 / / rw,relatime shared:1 - ext4 /dev/sda1 rw\n"
    "411 29 11:0 / /media/ann/A\\040disc\\134 ro,nosuid shared:200 - iso9660 /dev/sr0 ro\n"
    "412 29 11:0 / /mnt ro shared:201 - iso9660 /dev/sr0 ro\n"
    "413 29 11:10 / /other ro shared:202 - iso9660 /dev/sr10 ro\n"
    "cut off";

} // namespace

class MountsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void pointsOfADevice()
    {
        QVERIFY((mountPointsIn(table, 11, 0) == std::vector<std::string>{ "/media/ann/A disc\\", "/mnt" }));
        QVERIFY((mountPointsIn(table, 11, 10) == std::vector<std::string>{ "/other" }));
        QVERIFY(mountPointsIn(table, 11, 1).empty());
        QVERIFY(mountPointsIn("", 11, 0).empty());
    }

    void wholeMounts()
    {
        const auto disc = mountedWholeAt(table, "/media/ann/A disc\\");
        QVERIFY(disc && disc->major == 11 && disc->minor == 0 && disc->source == "/dev/sr0");
        const auto other = mountedWholeAt(table, "/other");
        QVERIFY(other && other->minor == 10 && other->source == "/dev/sr10");
        for (const char *point : { "/media", "/media/ann/A disc\\/folder", "", "/no" })
            QVERIFY(!mountedWholeAt(table, point));
        // A folder of the disc that is shown elsewhere, and what lies over another mount.
        const std::string more = std::string(table)
            + "\n414 29 11:0 /folder /part ro - iso9660 /dev/sr0 ro\n"
              "415 29 11:0 / /twice ro shared:1 master:2 - iso9660 /dev/sr0 ro\n"
              "416 29 8:1 / /twice rw - ext4 /dev/sda1 rw\n"
              "417 29 11:0 / /fields ro shared:1 master:2 propagate_from:3 - udf /dev/sr0 ro\n";
        QVERIFY(!mountedWholeAt(more, "/part"));
        QVERIFY(mountedWholeAt(more, "/twice")->major == 8);
        QVERIFY(mountedWholeAt(more, "/fields")->source == "/dev/sr0");
    }

    void environmentOfTheUnmounters_data()
    {
        QTest::addColumn<QByteArray>("variable");
        QTest::addColumn<bool>("told");
        QTest::newRow("where programs are") << QByteArray("PATH=/usr/bin:/bin") << true;
        QTest::newRow("empty") << QByteArray("LANG=") << true;
        QTest::newRow("the system's bus") << QByteArray("DBUS_SYSTEM_BUS_ADDRESS=unix:path=/a=b") << true;
        QTest::newRow("foreign code") << QByteArray("LD_PRELOAD=/tmp/evil.so") << false;
        QTest::newRow("foreign modules") << QByteArray("GIO_EXTRA_MODULES=/tmp") << false;
        QTest::newRow("a name that begins alike") << QByteArray("PATHS=/tmp") << false;
        QTest::newRow("a secret") << QByteArray("TOKEN=PATH=/") << false;
        QTest::newRow("not a variable") << QByteArray("nonsense") << false;
    }

    void environmentOfTheUnmounters()
    {
        QFETCH(const QByteArray, variable);
        QFETCH(const bool, told);
        const std::array<const char *, 3> environment{ "HOME=/home/ann", variable.constData(), nullptr };
        std::vector<std::string> expected{ "HOME=/home/ann" };
        if (told)
            expected.push_back(variable.toStdString());
        QVERIFY(unmountersEnvironment(environment.data()) == expected);
    }

    void whatIsNotMountedNeedsNoUnmounting()
    {
        QVERIFY(mountPoints("/dev/null").empty());
        QVERIFY(mountPoints("/dev/no-such-node").empty());
        QVERIFY(unmount("/dev/no-such-node", "drive 1"));
    }
};

QTEST_APPLESS_MAIN(MountsTest)
#include "MountsTest.moc"
