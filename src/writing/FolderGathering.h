// Gathering the listed folders in the data working folder.
#pragma once

#include "compilation/Records.h"

#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QTimer>

#include <memory>

namespace writing {

class CopyState;

/// How long gathering waits.
struct GatheringPace {
    int poll = 60'000; ///< ms between two looks at the size of a copy
    int endLimit = 10'000; ///< ms that the copies have to end in when the disc is written
    bool untilCopied = false; ///< goes on when a copy has ended, without waiting for the next look
};

/// How far it has come.
struct Gathered {
    QString folder; ///< the name of the folder at hand
    qsizetype number = 0, count = 0;
    qint64 files = 0, bytes = 0, bytesExpected = 0; ///< of all folders
    qint64 didNotFit = 0; ///< files and folders for which there was no room
};

/// Copies folder after folder, and single files like them. A folder counts as copied when, looked at once a poll interval, it
/// has reached the size that was measured when it was listed, or has not grown since the last look; a file also when its
/// copy has ended. Then the next one follows, and after the
/// last one ended() is emitted once. Lives on the GUI thread; each copy runs in a thread of its own that shares nothing
/// but the copy's state with it.
class FolderGathering : public QObject {
    Q_OBJECT
public:
    /// `folders` outlives this and is read again after each folder. Nothing begins before start().
    FolderGathering(const QList<NodeDataFolder> &folders, QString dataFolder, GatheringPace pace);
    ~FolderGathering() override;

    void start();
    /// Ends the copy at hand; ended() follows without another folder.
    void stop();
    /// Stops the running copies and waits for them, at most the pace's limit. False: one goes on. Any thread, once
    /// ended() has been emitted.
    bool endCopies();
    /// A copy that nobody has stopped still runs: what it has not copied yet will not be on the disc.
    bool isStillCopying() const;

    /// Where the folder `name` is copied to when `dataFolder` may hold one of that name already: the data folder itself,
    /// else the first free "NAME n" in it, with NAME cut where that is too long for a file system.
    static QString copyDestination(const QString &dataFolder, const QString &name);

    /// The bytes that gathering `folders` needs in `dataFolder` and its file system does not have; 0 where it has them, or
    /// where it shares the blocks of files with the folders.
    static qint64 bytesMissing(const QList<NodeDataFolder> &folders, const QString &dataFolder);

    const QList<std::shared_ptr<CopyState>> &copies() const { return m_copies; }
    /// Adds a copy that somebody else runs into the same folder.
    void add(const std::shared_ptr<CopyState> &copy) { m_copies.append(copy); }

Q_SIGNALS:
    void progressed(const writing::Gathered &gathered);
    /// Something was not copied; one sentence that begins with its full path.
    void leftOut(const QString &what);
    void ended();

private:
    void copyNextFolder();
    bool isFile() const; ///< the entry at hand, which is no folder then
    void startCopy(const QString &source, const QString &destination);
    void look();
    void poll();
    void measured(double copied);
    void finish();

    const QList<NodeDataFolder> &m_folders;
    const QString m_dataFolder;
    const GatheringPace m_pace;
    QTimer m_poll;
    QTimer m_look;
    double i_Last_Size = 0; ///< in KiB, at the last look at the folder at hand
    qsizetype m_index = -1;
    QString m_target;
    QList<std::shared_ptr<CopyState>> m_copies;
    bool m_ended = false;
};

} // namespace writing
