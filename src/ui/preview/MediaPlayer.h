// Plays one file at any rate, forward and backward.
#pragma once

#include "ui/preview/MediaEngine.h"

#include <QElapsedTimer>
#include <QString>
#include <QTimer>

#include <optional>

/// Opens a file and plays it. Times are seconds from the beginning of the file. Lives on the GUI thread.
///
/// From 0 to 8 the library plays by itself at the rate; a 1080p film saturates it at about 12. Beyond, and
/// backward, it stands still and is sent from one exact place to the next, as fast as it can draw, so that
/// the position keeps the rate whatever the file costs to decode. That is silent.
class MediaPlayer : public QObject {
    Q_OBJECT
public:
    enum class Status { Unknown, ReadyToPlay, Failed };
    Q_ENUM(Status)

    explicit MediaPlayer(QObject *parent = nullptr);

    /// Opens a file, once in the life of a player. `path` is the file's name in bytes, absolute. What came of
    /// it is signalled later.
    void open(const QByteArray &path);

    Status status() const { return m_status; }
    /// A sentence about what failed; empty unless the status is Failed.
    QString error() const { return m_error; }

    /// 0 until the file is ready and where a file does not tell.
    double duration() const;
    /// 0 ... duration(). After a seek, its target; backward and above rate 8, what the clock says.
    double currentTime() const;
    /// Goes to this place exactly. Of several in a hurry the last one counts.
    void seek(double seconds);

    /// 1 is normal, 0 stands still, below 0 is backward. Falls to 0 at both ends of the file.
    double rate() const { return m_rate; }
    void setRate(double rate);

    /// 0 silent ... 1 as recorded.
    float volume() const { return m_volume; }
    void setVolume(float volume);

    /// Whether there is a picture to draw.
    bool hasPicture() const { return m_hasPicture; }
    /// How often the picture is to be turned by 90 degrees, clockwise, to stand upright: 0 ... 3. Known once
    /// the file is loaded.
    int quarterTurns() const { return m_library.quarterTurns; }
    /// The picture as it is stored, which may lie on its side; see MediaEngine::draw.
    bool draw(QImage &image) { return m_engine.draw(image); }

Q_SIGNALS:
    /// The file is known: it can be played, with or without a picture. The status becomes ReadyToPlay next.
    void loaded(bool hasVideo);
    /// The file could be read and is nothing that plays. Its status stays Unknown.
    void unplayable();
    void statusChanged(MediaPlayer::Status status);
    void rateChanged(double rate);
    void durationChanged(double seconds);
    void volumeChanged(float volume);
    /// There is a picture to draw, another one than before.
    void frameReady();
    /// The picture of a file that has one cannot be decoded; its sound plays on.
    void videoLost();

private:
    /// On the way to being ready. A file that the library reads better in another way is opened twice. One
    /// that does not tell its duration is measured: the library goes to its end and returns, and knows every
    /// place on the way then.
    enum class Stage { Closed, Opening, Measuring, Returning, Open };

    /// Numbers that tell the library's answers apart.
    enum Request : quint64 {
        None,
        Load,
        Seek,
        TimePos,
        Duration,
        EofReached,
        Pause,
        Vid,
        FileFormat,
        FrameRate,
        IsStill,
        Rotation,
        PictureFormat,
        SoundFormat
    };

    void onEvent(const mpv_event &event);
    void onProperty(Request request, const void *data, int format);
    void onReply(Request request, int error, const void *data, int format);
    void onRestart();
    void onSeekEnd();
    void onFrame();
    void onEndOfFile(const void *data);
    void askWhatItIs();
    void onAnswers();
    void openAs(const char *format, const QByteArray &address);
    void onMeasured(double seconds);
    void sendSeek(double seconds);
    void becomeReady();
    void becomeUnplayable();
    void fail(const QString &sentence);
    void setStatus(Status status);
    void changeRate(double rate);
    void endIfReached();
    void requestSeek(double seconds);
    void sendPendingSeek();
    void step();
    void stopStepping();
    void standAt(double seconds);
    double steppedPosition() const;
    bool isStepping() const { return m_stepTimer.isActive(); }

    MediaEngine m_engine;
    QByteArray m_path;
    Status m_status = Status::Unknown;
    QString m_error;
    float m_volume = 1;
    double m_rate = 0;
    double m_duration = 0;
    Stage m_stage = Stage::Closed;
    bool m_hasPicture = false;
    bool m_atEnd = false;

    struct {
        double timePos = 0;
        bool eofReached = false;
        bool pause = true;
        bool hasVideo = false;
        bool hasAudio = false;
        bool isStill = false;
        int quarterTurns = 0;
        double frameRate = 0; ///< 0 where it is not known
        QByteArray format;
    } m_library; ///< what the library told last

    bool m_seekInFlight = false;
    std::optional<double> m_pendingSeek; ///< to be sent when the one in flight has landed
    std::optional<double> m_shown; ///< the target of a seek, shown instead of what the library tells

    QTimer m_stepTimer;
    QElapsedTimer m_stepClock;
    double m_stepStart = 0;
};
