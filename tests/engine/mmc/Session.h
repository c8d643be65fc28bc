// What the tests on the drive without hardware share: the drive as the engine sees it, and what it said.
#pragma once

#include "MmcDrive.h"
#include "drive/Burn.h"
#include "drive/PhysicalDrive.h"
#include "report/ProgressText.h"
#include "report/StatusText.h"

#include <QtTest>

#include <csignal>

/// One medium in one drive, and the engine on it.
class Session {
public:
    explicit Session(mmc::Disc disc, const QList<int> &speeds = { 2770, 5540, 11080 })
        : drive(std::move(disc))
        , physical({ drive.device().toStdString(), {}, true })
    {
        drive.speeds = speeds;
        physical.setNumber('1');
        options.control.progress = [this](const engine::Progress &progress, unsigned) {
            lines.append(QString::fromStdString(engine::report::progressText(progress)));
        };
        options.control.stop = [this] { return stopAt && stopAt() ? SIGTERM : 0; };
        options.say = [this](const std::string &line) { lines.append(QString::fromStdString(line)); };
        options.note = [this](const std::string &line) { lines.append(QString::fromStdString(line)); };
    }

    /// A folder with a file of `blocks` blocks, no two of them alike, and a small one.
    std::string folder(int blocks)
    {
        const QString path = m_dir.filePath(QStringLiteral("Data"));
        QDir().mkpath(path);
        m_bigFile.clear();
        for (int i = 0; i < blocks * 256; ++i)
            m_bigFile += QByteArray::number(i).rightJustified(8, '.');
        put(path + QStringLiteral("/big.bin"), m_bigFile);
        put(path + QStringLiteral("/note.txt"), "a note");
        return path.toStdString();
    }

    QByteArray bigFile() const { return m_bigFile; }

    QString path(const QString &name) const { return m_dir.filePath(name); }

    static void put(const QString &path, const QByteArray &content)
    {
        QFile file(path);
        if (!file.open(QFile::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write %s", qPrintable(path));
    }

    engine::Result<void> burn(int blocks = 100)
    {
        return engine::drive::burnFolder(physical, folder(blocks), options);
    }

    engine::Result<void> erase(engine::drive::EraseMode mode)
    {
        return engine::drive::eraseMedium(physical, mode, options.control);
    }

    /// What `drutil status` prints; empty when it fails.
    QString status()
    {
        const auto lease = physical.acquire(engine::drive::Purpose::look);
        if (!lease)
            return {};
        const auto medium = (*lease)->medium();
        return medium ? QString::fromStdString(engine::report::statusText(*medium)) : QString();
    }

    mmc::Drive drive;
    engine::drive::PhysicalDrive physical;
    engine::drive::BurnOptions options;
    std::function<bool()> stopAt; ///< true when SIGTERM has come
    QStringList lines; ///< of progress, and what was noted

private:
    QTemporaryDir m_dir;
    QByteArray m_bigFile;
};

/// The sentence of an error; empty for success.
template <typename T>
QString sentence(const engine::Result<T> &result)
{
    return result ? QString() : QString::fromStdString(result.error().message);
}
