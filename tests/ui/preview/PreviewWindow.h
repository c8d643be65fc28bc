// The preview player as a person meets it: the module that is installed, its window and its controls.
#pragma once

#include "ui/PreviewPlayer.h"

#include <QAbstractSlider>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QUrl>

#include <algorithm>
#include <memory>

/// One open player, closed with this object.
class PreviewWindow {
public:
    explicit PreviewWindow(const QUrl &url)
        : m_window(createPreview(
            url, nullptr,
            [this](const QString &message, const QString &informative, QWidget *) {
                alerts.append({ message, informative });
            },
            &whyNot))
    {
        if (m_window)
            m_window->show();
    }
    explicit PreviewWindow(const QString &path)
        : PreviewWindow(QUrl::fromLocalFile(path))
    {
    }

    QDialog *operator->() const { return m_window.get(); }
    QDialog *window() const { return m_window.get(); }
    QString whyNot;
    QList<std::pair<QString, QString>> alerts; ///< both texts of each

    template <class T>
    T *find(const char *name) const
    {
        return m_window->findChild<T *>(QLatin1StringView(name));
    }
    QPushButton *play() const { return find<QPushButton>("playPauseButton"); }
    QPushButton *forward() const { return find<QPushButton>("fastForwardButton"); }
    QPushButton *rewind() const { return find<QPushButton>("rewindButton"); }
    QWidget *view() const { return find<QWidget>("playerView"); }
    bool isSpinning() const { return find<QWidget>("loadingSpinner")->property("spinning").toBool(); }
    bool showsUnplayable() const { return find<QLabel>("unplayableLabel")->isVisible(); }
    bool showsNoVideo() const { return find<QLabel>("noVideoLabel")->isVisible(); }
    bool hasAlerted() const { return !alerts.isEmpty(); }
    bool isReady() const { return play()->isEnabled(); }

    double duration() const { return m_window->property("duration").toDouble(); }
    double currentTime() const { return m_window->property("currentTime").toDouble(); }
    void setCurrentTime(double seconds) const { m_window->setProperty("currentTime", seconds); }
    double rate() const { return m_window->property("rate").toDouble(); }

    /// The time that the picture of a made film shows, below -0.9 where there is none.
    double pictureTime() const
    {
        const auto image = view()->grab().toImage();
        int white = 0;
        for (int x = 0; x < image.width(); ++x)
            white += image.pixelColor(x, image.height() / 2).value() > 127;
        return 16 * white / std::min(double(image.width()), image.height() * 352.0 / 288) - 1;
    }

private:
    std::unique_ptr<QDialog> m_window;
};

/// Puts a copy of every film and sound into this folder; see make-media.
inline bool copyMedia(const QString &folder)
{
    const QDir made(QStringLiteral(MEDIA));
    const auto names = made.entryList(QDir::Files);
    return !names.isEmpty() && std::ranges::all_of(names, [&](const QString &name) {
        return QFile::copy(made.filePath(name), QDir(folder).filePath(name));
    });
}
