// Opening and closing the player leaves nothing behind.
#include "ui/preview/PreviewWindow.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <array>
#include <malloc.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

qsizetype entries(const char *folder)
{
    return QDir(QLatin1StringView(folder))
        .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System)
        .size();
}

/// What this process holds of the machine.
struct Holdings {
    qsizetype threads = entries("/proc/self/task");
    qsizetype descriptors = entries("/proc/self/fd");
    qint64 residentKilobytes = resident();

    static qint64 resident()
    {
        ::malloc_trim(0);
        QFile file(u"/proc/self/statm"_s);
        return file.open(QIODevice::ReadOnly)
            ? file.readAll().split(' ').value(1).toLongLong() * ::sysconf(_SC_PAGESIZE) / 1024
            : -1;
    }
};

} // namespace

class PreviewRoundsTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { QVERIFY(makeMedia(m_folder.path())); }
    void twoHundredRounds();

private:
    void round(int number);
    QTemporaryDir m_folder;
};

/// Films, sounds and what is neither; untouched, playing, rewinding, or closed before they are ready.
void PreviewRoundsTest::round(int number)
{
    const std::array files{ "film.mp4", "sound.mp3", "still.png", "film.mpg", "silent.mp4" };
    PreviewWindow player(
        m_folder.filePath(QLatin1StringView(files[static_cast<std::size_t>(number) % files.size()])));
    if (number % 7 == 0)
        return;
    QTRY_VERIFY(!player.isSpinning());
    if (!player.isReady())
        return;
    if (number % 3 == 0) {
        player.play()->click();
        QTRY_VERIFY(player.currentTime() > 0.1);
    } else if (number % 3 == 1) {
        player.setCurrentTime(5);
        player.rewind()->click();
        QTRY_VERIFY(player.currentTime() < 4.9);
    }
    player->close();
}

void PreviewRoundsTest::twoHundredRounds()
{
    for (int i = 0; i < 30; ++i)
        round(i);
    const Holdings before;
    for (int i = 0; i < 200; ++i)
        round(i);
    const Holdings after;
    qInfo("threads %lld -> %lld, descriptors %lld -> %lld, resident %lld -> %lld KB",
        qlonglong(before.threads), qlonglong(after.threads), qlonglong(before.descriptors),
        qlonglong(after.descriptors), qlonglong(before.residentKilobytes),
        qlonglong(after.residentKilobytes));
    QCOMPARE(after.threads, before.threads);
    QCOMPARE(after.descriptors, before.descriptors);
    QVERIFY(after.residentKilobytes - before.residentKilobytes < 20 * 1024);
}

QTEST_MAIN(PreviewRoundsTest)
#include "PreviewRoundsTest.moc"
