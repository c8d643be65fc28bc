#include "writing/FolderGathering.h"

#include "compilation/FolderTree.h"
#include "writing/FolderStaging.h"
#include "writing/Names.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPointer>
#include <QStorageInfo>
#include <QThreadPool>

#include <algorithm>
#include <chrono>
#include <sys/stat.h>
#include <thread>

using namespace Qt::StringLiterals;

namespace writing {

namespace {

QString lastComponent(const QString &path)
{
    return path.mid(path.lastIndexOf(u'/') + 1);
}

/// The file systems that let two files share their blocks, so that a copy costs nothing.
bool sharesBlocks(const QStorageInfo &storage)
{
    return storage.fileSystemType() == "btrfs" || storage.fileSystemType() == "bcachefs";
}

} // namespace

FolderGathering::FolderGathering(const QList<NodeDataFolder> &folders, QString dataFolder, GatheringPace pace)
    : m_folders(folders)
    , m_dataFolder(std::move(dataFolder))
    , m_pace(pace)
{
    m_poll.setSingleShot(true);
    m_poll.setTimerType(Qt::PreciseTimer); // others round a minute, and may be half a second early
    connect(&m_poll, &QTimer::timeout, this, &FolderGathering::poll);
    constexpr int glance = 100;
    m_look.setInterval(glance);
    connect(&m_look, &QTimer::timeout, this, &FolderGathering::look);
}

FolderGathering::~FolderGathering()
{
    for (const auto &copy : std::as_const(m_copies))
        copy->stop = true;
}

void FolderGathering::start()
{
    m_look.start();
    copyNextFolder();
}

void FolderGathering::stop()
{
    for (const auto &copy : std::as_const(m_copies))
        copy->stop = true;
    finish();
}

bool FolderGathering::endCopies()
{
    for (const auto &copy : std::as_const(m_copies))
        copy->stop = true;
    const QDeadlineTimer deadline(m_pace.endLimit);
    return std::ranges::all_of(std::as_const(m_copies), [&deadline](const auto &copy) {
        return copy->waitForEnd(std::chrono::milliseconds(deadline.remainingTime()));
    });
}

bool FolderGathering::isStillCopying() const
{
    return std::ranges::any_of(m_copies, [](const auto &copy) { return !copy->ended && !copy->stop; });
}

QString FolderGathering::copyDestination(const QString &dataFolder, const QString &name)
{
    const auto taken = [](const QString &path) {
        return QFileInfo::exists(path) || QFileInfo(path).isSymLink();
    };
    if (!taken(u"%1/%2"_s.arg(dataFolder, name)))
        return dataFolder;
    for (qint64 n = 1;; ++n) {
        const QString numbered = u"%1/%2"_s.arg(dataFolder, suffixedName(name, u" %1"_s.arg(n)));
        if (!taken(numbered))
            return numbered;
    }
}

qint64 FolderGathering::bytesMissing(const QList<NodeDataFolder> &folders, const QString &dataFolder)
{
    const QStorageInfo storage(dataFolder);
    struct stat there;
    if (!storage.isValid() || ::stat(QFile::encodeName(dataFolder).constData(), &there) != 0)
        return 0;
    qint64 needed = 0;
    for (const NodeDataFolder &folder : folders) {
        struct stat source;
        const bool readable = ::stat(QFile::encodeName(folder.s_Path).constData(), &source) == 0;
        if (readable && !(source.st_dev == there.st_dev && sharesBlocks(storage)))
            needed += folder.i_Size_in_KBytes * 1024;
    }
    return qMax<qint64>(0, needed - storage.bytesAvailable());
}

void FolderGathering::copyNextFolder()
{
    ++m_index;
    if (m_index >= m_folders.size())
        return finish();
    i_Last_Size = 0;
    const QString source = m_folders.at(m_index).s_Path;
    const QString name = lastComponent(source);
    m_target = u"%1/%2"_s.arg(m_dataFolder, name);
    const QString destination = copyDestination(m_dataFolder, name);
    QDir().mkpath(destination);
    startCopy(source, destination);
    m_poll.start(m_pace.poll);
    look();
}

void FolderGathering::startCopy(const QString &source, const QString &destination)
{
    m_copies.append(std::make_shared<CopyState>());
    // A thread of its own: a copy from a server that has gone away must not keep the pool's threads.
    std::thread([copy = m_copies.last(), from = QFile::encodeName(source).toStdString(),
                    to = QFile::encodeName(destination).toStdString(),
                    never = QFile::encodeName(m_dataFolder).toStdString()] {
        const auto tell = [&copy](const std::string &failure) { copy->tell(failure); };
        struct stat info;
        if (::stat(from.c_str(), &info) == 0 && !S_ISDIR(info.st_mode))
            copyFile(from, to, *copy, tell);
        else
            copyFolder(from, to, never, *copy, tell);
    }).detach();
}

/// Tells how far the copies have come, and what they left out.
void FolderGathering::look()
{
    const bool ended = !m_copies.isEmpty() && m_copies.last()->ended; // before its last failures are taken
    Gathered gathered;
    gathered.count = m_folders.size();
    gathered.number = qMin(m_index + 1, gathered.count);
    gathered.folder = lastComponent(m_folders.value(gathered.number - 1).s_Path);
    for (const auto &copy : std::as_const(m_copies)) {
        gathered.files += copy->files;
        gathered.bytes += copy->bytes;
        gathered.didNotFit += copy->didNotFit;
        for (const std::string &failure : copy->takeFailures())
            Q_EMIT leftOut(QString::fromStdString(failure));
    }
    for (const NodeDataFolder &folder : m_folders)
        gathered.bytesExpected += folder.i_Size_in_KBytes * 1024;
    Q_EMIT progressed(gathered);
    // A folder is looked at once a poll interval; whether a file is there is known at once.
    const bool goesOn = m_pace.untilCopied || isFile();
    if (ended && goesOn && m_poll.isActive()) {
        m_poll.stop();
        copyNextFolder();
    }
}

bool FolderGathering::isFile() const
{
    return QFileInfo(m_folders.value(m_index).s_Path).isFile();
}

void FolderGathering::poll()
{
    if (isFile())
        return measured(static_cast<double>(m_copies.last()->bytes >> 10));
    QThreadPool::globalInstance()->start([self = QPointer(this), target = m_target] {
        const auto copied =
            static_cast<double>(compilation::treeSize(QFile::encodeName(target).toStdString()) >> 10);
        QMetaObject::invokeMethod(
            qApp,
            [self, copied] {
                if (self)
                    self->measured(copied);
            },
            Qt::QueuedConnection);
    });
}

void FolderGathering::measured(double copied)
{
    if (m_ended)
        return;
    // The size is always taken at the unnumbered path, also for a folder that went into a numbered one.
    const auto expected = static_cast<double>(m_folders.value(m_index).i_Size_in_KBytes);
    if (copied < expected && copied != i_Last_Size) {
        i_Last_Size = copied;
        m_poll.start(m_pace.poll);
        return;
    }
    copyNextFolder();
}

void FolderGathering::finish()
{
    if (m_ended)
        return;
    m_poll.stop();
    look();
    m_look.stop();
    m_ended = true;
    Q_EMIT ended();
}

} // namespace writing
