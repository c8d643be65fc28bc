#include "drives/MountedDiscs.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

class MountedDiscsTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void knowsADisc_data();
    void knowsADisc();
    void findsThoseOfThisMachine();
};

void MountedDiscsTest::knowsADisc_data()
{
    QTest::addColumn<QByteArray>("device");
    QTest::addColumn<QByteArray>("fileSystem");
    QTest::addColumn<bool>("disc");
    const auto row = [](const char *name, const char *device, const char *fileSystem, bool disc) {
        QTest::newRow(name) << QByteArray(device) << QByteArray(fileSystem) << disc;
    };
    row("data CD", "/dev/sr0", "iso9660", true);
    row("second drive with a film", "/dev/sr1", "udf", true);
    row("disc of another computer's kind", "/dev/sr0", "hfsplus", true);
    row("mounted image", "/dev/loop3", "iso9660", true);
    row("hard disk", "/dev/sda1", "ext4", false);
    row("card", "/dev/mmcblk0p1", "vfat", false);
    row("another image", "/dev/loop0", "squashfs", false);
    row("memory", "tmpfs", "tmpfs", false);
}

void MountedDiscsTest::knowsADisc()
{
    QFETCH(QByteArray, device);
    QFETCH(QByteArray, fileSystem);
    QTEST(drives::isDisc(device, fileSystem), "disc");
}

/// The kernel's own table of mounts says the same.
void MountedDiscsTest::findsThoseOfThisMachine()
{
    QFile table(u"/proc/self/mounts"_s);
    QVERIFY(table.open(QFile::ReadOnly));
    qsizetype discs = 0;
    for (const QByteArray &line : table.readAll().split('\n')) {
        const QList<QByteArray> fields = line.split(' ');
        discs += fields.size() > 2 && drives::isDisc(fields.at(0), fields.at(2)) ? 1 : 0;
    }
    QCOMPARE(drives::mountedDiscs().size(), discs);
}

QTEST_APPLESS_MAIN(MountedDiscsTest)
#include "MountedDiscsTest.moc"
