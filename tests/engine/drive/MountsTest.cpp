// The kernel's table of mounts.
#include "drive/Mounts.h"

#include <QtTest>

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

    void whatIsNotMountedNeedsNoUnmounting()
    {
        QVERIFY(mountPoints("/dev/null").empty());
        QVERIFY(mountPoints("/dev/no-such-node").empty());
        QVERIFY(unmount("/dev/no-such-node", "drive 1"));
    }
};

QTEST_APPLESS_MAIN(MountsTest)
#include "MountsTest.moc"
