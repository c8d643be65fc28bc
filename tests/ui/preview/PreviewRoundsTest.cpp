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
    /// What was allocated and not freed again; 0 under a sanitizer, whose own allocator does not tell, finds
    /// what leaks by itself, and keeps for a while what was freed.
    qint64 allocatedKilobytes = static_cast<qint64>(::mallinfo2().uordblks / 1024);

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
    void initTestCase() { QVERIFY(copyMedia(m_folder.path())); }
    void closingWaitsForNothing();
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

void PreviewRoundsTest::closingWaitsForNothing()
{
    const auto before = entries("/proc/self/task");
    // The library takes a while to end its threads. On a busy machine it may be done before this one is asked
    // again.
    bool closedFirst = false;
    for (int attempt = 0; attempt < 20 && !closedFirst; ++attempt) {
        PreviewWindow player(m_folder.filePath(u"film.mp4"_s));
        QTRY_VERIFY(player.isReady() && !player.isSpinning());
        player.play()->click();
        QTRY_VERIFY(player.currentTime() > 0.1);
        player->close();
        closedFirst = entries("/proc/self/task") > before;
        QTRY_COMPARE(entries("/proc/self/task"), before);
    }
    QVERIFY(closedFirst);
}

void PreviewRoundsTest::twoHundredRounds()
{
    const auto threads = entries("/proc/self/task");
    const auto allHaveEnded = [threads] { return entries("/proc/self/task") == threads; };
    for (int i = 0; i < 30; ++i)
        round(i);
    QTRY_VERIFY(allHaveEnded());
    const Holdings before;
    for (int i = 0; i < 200; ++i)
        round(i);
    QTRY_VERIFY(allHaveEnded());
    const Holdings after;
    qInfo(
        "threads %lld -> %lld, descriptors %lld -> %lld, allocated %lld -> %lld KB, resident %lld -> %lld KB",
        qlonglong(before.threads), qlonglong(after.threads), qlonglong(before.descriptors),
        qlonglong(after.descriptors), qlonglong(before.allocatedKilobytes),
        qlonglong(after.allocatedKilobytes), qlonglong(before.residentKilobytes),
        qlonglong(after.residentKilobytes));
    QCOMPARE(after.threads, before.threads);
    QCOMPARE(after.descriptors, before.descriptors);
    QVERIFY(after.allocatedKilobytes - before.allocatedKilobytes < 512);
    // The system keeps the stacks of ended threads for the next ones, 40 MB of them at most.
    if (after.allocatedKilobytes > 0)
        QVERIFY(after.residentKilobytes - before.residentKilobytes < 60 * 1024);
}

QTEST_MAIN(PreviewRoundsTest)
#include "PreviewRoundsTest.moc"
