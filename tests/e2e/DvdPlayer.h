// A DVD player in a living room, as far as a program can be one: follows the disc's own commands through libdvdnav, which
// reads it through libdvdread, and keeps what it plays.
#pragma once

#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include <dvdnav/dvdnav.h>

/// Plays a disc from its first command to the end that the disc itself brings about.
class DvdPlayer {
public:
    /// The numbers of the titles in the order in which they were played.
    QList<int> titles;
    /// Whether the disc stopped by itself; false also where it could not be read.
    bool stopped = false;
    QString trouble; ///< in the library's words; empty: none

    explicit DvdPlayer(const QString &disc)
    {
        if (dvdnav_open(&m_player, QFile::encodeName(disc).constData()) != DVDNAV_STATUS_OK) {
            trouble = QStringLiteral("the disc cannot be opened");
            return;
        }
        dvdnav_set_readahead_flag(m_player, 0);
        constexpr int mostBlocks = 200'000; // 400 MB: a disc that plays in a circle ends here
        for (int i = 0; i < mostBlocks && !stopped && trouble.isEmpty(); ++i)
            next();
        dvdnav_close(m_player);
    }
    DvdPlayer(const DvdPlayer &) = delete;
    DvdPlayer &operator=(const DvdPlayer &) = delete;

    /// The file with what was played of a title.
    QString played(int title) const { return m_folder.filePath(QStringLiteral("%1.vob").arg(title)); }

private:
    void next()
    {
        uint8_t block[DVD_VIDEO_LB_LEN];
        int32_t event = 0, length = 0;
        if (dvdnav_get_next_block(m_player, block, &event, &length) != DVDNAV_STATUS_OK) {
            trouble = QString::fromUtf8(dvdnav_err_to_string(m_player));
            return;
        }
        switch (event) {
        case DVDNAV_BLOCK_OK:
            m_file.write(reinterpret_cast<const char *>(block), length);
            break;
        case DVDNAV_CELL_CHANGE:
            changeTitle();
            break;
        case DVDNAV_STILL_FRAME:
            dvdnav_still_skip(m_player);
            break;
        case DVDNAV_WAIT:
            dvdnav_wait_skip(m_player);
            break;
        case DVDNAV_STOP:
            stopped = true;
            m_file.close();
            break;
        default:
            break;
        }
    }

    void changeTitle()
    {
        int32_t title = 0, part = 0;
        if (dvdnav_current_title_info(m_player, &title, &part) != DVDNAV_STATUS_OK) {
            trouble = QString::fromUtf8(dvdnav_err_to_string(m_player));
            return;
        }
        if (!titles.isEmpty() && titles.last() == title)
            return; // another chapter
        titles.append(title);
        m_file.close();
        m_file.setFileName(played(title));
        if (!m_file.open(QIODevice::WriteOnly))
            trouble = m_file.errorString();
    }

    QTemporaryDir m_folder;
    QFile m_file;
    dvdnav_t *m_player = nullptr;
};
