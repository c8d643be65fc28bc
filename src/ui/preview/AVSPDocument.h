// The preview player's window.
#pragma once

#include "ui/PreviewPlayer.h"

#include <QDialog>
#include <QUrl>

#include <memory>

class MediaPlayer;
class QTimer;
namespace Ui {
class AVSPDocument;
}

/// Plays one local file, for as long as the window is open. GUI thread only.
class AVSPDocument : public QDialog {
    Q_OBJECT
    /// Seconds; 0 unless the file is ready to play.
    Q_PROPERTY(double duration READ duration NOTIFY durationChanged)
    /// Seconds; setting it goes to the whole second, exactly.
    Q_PROPERTY(double currentTime READ currentTime WRITE setCurrentTime NOTIFY currentTimeChanged)
    /// 0 silent ... 1 as recorded. After the window was closed, what it was last.
    Q_PROPERTY(float volume READ volume WRITE setVolume NOTIFY volumeChanged)
    /// 1 is normal, 0 stands still, below 0 is backward.
    Q_PROPERTY(double rate READ rate NOTIFY rateChanged)
public:
    AVSPDocument(const QUrl &file, QWidget *parent, const PreviewAlert &alert);
    ~AVSPDocument() override;

    const QUrl s_File_URL;
    MediaPlayer *player = nullptr; ///< until the window closes

    double duration() const;
    double currentTime() const;
    void setCurrentTime(double seconds);
    float volume() const;
    void setVolume(float volume);
    double rate() const;

    void playPauseToggle();
    void fastForward();
    void rewind();

    /// Closing ends playing, takes the player away and ends with the result 1, whatever closed it.
    void done(int result) override;

Q_SIGNALS:
    void durationChanged(double seconds);
    void currentTimeChanged(double seconds);
    void volumeChanged(float volume);
    void rateChanged(double rate);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void windowDidLoad();
    void windowWillClose();
    void setUpPlaybackOfAsset(bool hasVideo);
    void assetIsUnplayable();
    void stopLoadingAnimationAndHandleError(const QString &error = {});
    void showNoVideo();
    void takeShape(bool ofFilm);
    QSize room() const;
    void observeRate(double rate);
    void observeStatus();
    void observeDuration(double seconds);
    void readyForDisplay();
    void observeTime();
    void enableControls(bool enabled, const QString &whyNot = {});
    void connectControls();
    void giveSigns();
    void showTimes();
    void jump(double seconds);

    std::unique_ptr<Ui::AVSPDocument> m_ui;
    const PreviewAlert m_alert;
    QTimer *timeObserverToken = nullptr;
    float m_lastVolume = 1;
    bool m_isClosed = false;
};
