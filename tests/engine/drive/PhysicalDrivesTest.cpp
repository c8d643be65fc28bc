// The kernel's description of drives, as folders of sysfs and the table of the cdrom driver.
#include "drive/PhysicalDrives.h"

#include "drive/DeviceNode.h"
#include "report/DriveList.h"

#include <QtTest>

#include <cerrno>

using namespace Qt::StringLiterals;
using namespace engine;
using namespace engine::drive;

namespace {

// As printed by Linux 6.1 with three drives: the columns go from the newest drive to the oldest.
constexpr const char *table = "CD-ROM information, Id: cdrom.c 3.20 2003/12/17\n"
                              "\n"
                              "drive name:\t\tsr10\tsr1\tsr0\n"
                              "drive speed:\t\t24\t48\t8\n"
                              "drive # of slots:\t1\t1\t1\n"
                              "Can close tray:\t\t1\t1\t0\n"
                              "Can play audio:\t\t1\t1\t1\n"
                              "Can write CD-R:\t\t0\t1\t0\n"
                              "Can write CD-RW:\t0\t1\t0\n"
                              "Can read DVD:\t\t1\t1\t1\n"
                              "Can write DVD-R:\t0\t1\t0\n"
                              "Can write DVD-RAM:\t0\t1\t1\n"
                              "Can read MRW:\t\t1\t1\t1\n"
                              "\n\n";

} // namespace

class PhysicalDrivesTest : public QObject {
    Q_OBJECT

    void addDrive(const QString &name, const QString &bus, const QByteArray &vendor, const QByteArray &model,
        const QByteArray &revision)
    {
        const QString device = m_dir.path() + u"/devices/"_s + bus + u"/target0"_s;
        const QString block = device + u"/block/"_s + name;
        QVERIFY(QDir().mkpath(block));
        QVERIFY(QDir().mkpath(m_dir.path() + u"/class"_s));
        const QList<std::pair<QString, QByteArray>> attributes{ { u"vendor"_s, vendor },
            { u"model"_s, model }, { u"rev"_s, revision } };
        for (const auto &[attribute, value] : attributes) {
            QFile file(device + u'/' + attribute);
            QVERIFY(file.open(QFile::WriteOnly) && file.write(value) == value.size());
        }
        QVERIFY(QFile::link(device, block + u"/device"_s));
        QVERIFY(QFile::link(block, m_dir.path() + u"/class/"_s + name));
    }

private Q_SLOTS:
    void initTestCase()
    {
        addDrive(u"sr10"_s, u"pci0000:00/usb2/2-1/host9"_s, "HL-DT-ST\n", "BD-RE BU40N     \n", "1.03\n");
        addDrive(u"sr1"_s, u"pci0000:00/ata2/host1"_s, "HL-DT-ST\n", "DVDRAM GH24NSD1 \n", "LG00\n");
        addDrive(u"sr0"_s, u"platform/host3/session1"_s, "IET     \n", "VIRTUAL-CDROM   \n", "0001\n");
        QVERIFY(QDir().mkpath(m_dir.path() + u"/class/sda"_s));
        // A Blu-ray writer of which the kernel's table says nothing.
        addDrive(u"sr11"_s, u"pci0000:00/usb2/2-2/host10"_s, "PIONEER\n", "BD-RW BDR-XD07\n", "1.01\n");
        QFile number(m_dir.path() + u"/class/sr11/dev"_s);
        QVERIFY(number.open(QFile::WriteOnly) && number.write("11:11\n") == 6);
        QVERIFY(QDir().mkpath(m_dir.path() + u"/udev"_s));
        QFile record(m_dir.path() + u"/udev/b11:11"_s);
        QVERIFY(record.open(QFile::WriteOnly)
            && record.write("S:cdrom\nE:ID_CDROM=1\nE:ID_CDROM_BD_RE=1\nG:systemd\n") > 0);
        QVERIFY(QDir().mkpath(m_dir.path() + u"/class/srx"_s));
        QVERIFY(QDir().mkpath(m_dir.path() + u"/class/sr"_s));
    }

    void drivesAreListedInTheOrderOfTheirNames()
    {
        const auto drives = physicalRecords(
            m_dir.path().toStdString() + "/class", table, m_dir.path().toStdString() + "/udev");
        QCOMPARE(drives.size(), std::size_t(4));
        QCOMPARE(drives[0].device, std::string("/dev/sr0"));
        QCOMPARE(drives[1].device, std::string("/dev/sr1"));
        QCOMPARE(drives[2].device, std::string("/dev/sr10"));
        QCOMPARE(QString::fromStdString(report::driveListText(
                     { drives[0].record, drives[1].record, drives[2].record, drives[3].record })),
            u"   Vendor   Product           Rev   Bus       SupportLevel\n"
            "1  IET      VIRTUAL-CDROM     0001  iSCSI     Supported\n"
            "2  HL-DT-ST DVDRAM GH24NSD1   LG00  SATA      Supported\n"
            "3  HL-DT-ST BD-RE BU40N       1.03  USB       Read Only\n"
            "4  PIONEER  BD-RW BDR-XD07    1.01  USB       Supported\n"_s);
        QVERIFY(drives[0].writes && drives[1].writes && !drives[2].writes && drives[3].writes);
    }

    void noDrives() { QVERIFY(physicalRecords(m_dir.path().toStdString() + "/nothing", table, "").empty()); }

    void aTableWithoutTheDrive()
    {
        QVERIFY(!canWrite(table, "sr2"));
        QVERIFY(!canWrite("", "sr0"));
        QVERIFY(!canWrite("drive name:\tsr0\nCan write CD-R:\n", "sr0"));
        QVERIFY(canWrite("drive name:\tsr0\nCan write CD-R:\t1", "sr0"));
    }

    void udevRecords()
    {
        QVERIFY(canWrite("E:ID_CDROM_CD_R=1"));
        QVERIFY(canWrite("S:dvd\nE:ID_CDROM_DVD_PLUS_R=1\n"));
        QVERIFY(!canWrite(""));
        QVERIFY(!canWrite("E:ID_CDROM_CD_R=0\nE:ID_CDROM_MEDIA_CD_R=1\nE:ID_CDROM_BD=1\n"));
    }

    void buses_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("bus");
        QTest::newRow("ata")
            << u"/sys/devices/pci0000:00/0000:00:1f.2/ata2/host1/target1:0:0/1:0:0:0/block/sr0"_s
            << u"SATA"_s;
        QTest::newRow("usb") << u"/sys/devices/pci0000:00/0000:00:14.0/usb2/2-1/2-1:1.0/host6/block/sr0"_s
                             << u"USB"_s;
        QTest::newRow("firewire") << u"/sys/devices/pci0000:00/0000:00:1c.5/fw1/fw1.0/host7/block/sr0"_s
                                  << u"FireWire"_s;
        QTest::newRow("iscsi") << u"/sys/devices/platform/host2/session1/target2:0:0/block/sr0"_s
                               << u"iSCSI"_s;
        QTest::newRow("other") << u"/sys/devices/pci0000:00/virtio1/host0/block/sr0"_s << u"SCSI"_s;
    }

    void buses()
    {
        QFETCH(QString, path);
        QTEST(QString::fromStdString(busOf(path.toStdString())), "bus");
    }

    void openErrors_data()
    {
        QTest::addColumn<int>("failure");
        QTest::addColumn<int>("exit");
        QTest::addColumn<QString>("part");
        QTest::newRow("busy") << EBUSY << 1 << u"/dev/sr0 (drive 1) is busy with another program"_s;
        QTest::newRow("permission") << EACCES << 1 << u"the group optical"_s;
        QTest::newRow("gone") << ENXIO << 3 << u"/dev/sr0 (drive 1) is gone"_s;
        QTest::newRow("other") << EIO << 1 << u"/dev/sr0 (drive 1) cannot be opened: "_s;
    }

    void openErrors()
    {
        QFETCH(int, failure);
        QFETCH(QString, part);
        const Error error = openError("/dev/sr0", "drive 1", failure, "optical");
        QTEST(int(error.exit), "exit");
        QVERIFY2(QString::fromStdString(error.message).contains(part), error.message.c_str());
    }

    void aMissingNodeIsGone()
    {
        const auto free = checkFree(m_dir.path().toStdString() + "/sr0", "drive 1");
        QVERIFY(!free);
        QCOMPARE(int(free.error().exit), 3);
    }

private:
    QTemporaryDir m_dir;
};

QTEST_APPLESS_MAIN(PhysicalDrivesTest)
#include "PhysicalDrivesTest.moc"
