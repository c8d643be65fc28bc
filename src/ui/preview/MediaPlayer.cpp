#include "ui/preview/MediaPlayer.h"

#include "ui/preview/FramedStream.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <mpv/client.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr double highestOwnRate = 8;
constexpr auto stepInterval = 40ms;

double toDouble(const void *data)
{
    return *static_cast<const double *>(data);
}

bool toFlag(const void *data)
{
    return *static_cast<const int *>(data) != 0;
}

/// A camera that is held askew may tell any angle; the picture is turned to the nearest upright place.
int toQuarterTurns(double degrees)
{
    const long turns = std::lround(degrees / 90) % 4;
    return static_cast<int>(turns < 0 ? turns + 4 : turns);
}

/// Where containers need help. All others have an index and tell their duration.
struct Container {
    const char *name;
    double
        seekLead; ///< seconds before a target at which to begin to decode; a guess by bitrate lands too late
    bool tellsDuration;
    const char *readAs = nullptr; ///< the format to read it in instead
};
constexpr std::array containers{
    Container{ "mpeg", 1, true }, Container{ "mpegts", 10, true }, Container{ "mpegvideo", 0, false },
    Container{ "m4v", 0, false }, Container{ "h263", 0, false }, Container{ "mjpeg", 0, false },
    Container{ "jpeg_pipe", 0, true, "mjpeg" }, // one picture, or a film of them
};

Container containerNamed(const QByteArray &name)
{
    const auto found = std::find_if(containers.begin(), containers.end(),
        [&](const Container &container) { return name == container.name; });
    return found == containers.end() ? Container{ "", 0, true } : *found;
}

constexpr double beyondEveryEnd = 1e6;
constexpr double usualFrameRate = 25; // what the library takes where a stream does not tell

} // namespace

MediaPlayer::MediaPlayer(QObject *parent)
    : QObject(parent)
{
    m_stepTimer.setInterval(stepInterval);
    connect(&m_stepTimer, &QTimer::timeout, this, &MediaPlayer::step);
    connect(&m_engine, &MediaEngine::eventReceived, this, &MediaPlayer::onEvent);
    connect(&m_engine, &MediaEngine::frameReady, this, &MediaPlayer::onFrame);
    m_engine.observe("time-pos", MPV_FORMAT_DOUBLE, TimePos);
    m_engine.observe("duration", MPV_FORMAT_DOUBLE, Duration);
    m_engine.observe("eof-reached", MPV_FORMAT_FLAG, EofReached);
    m_engine.observe("pause", MPV_FORMAT_FLAG, Pause);
    m_engine.observe("vid", MPV_FORMAT_INT64, Vid);
}

void MediaPlayer::open(const QByteArray &path)
{
    const auto failLater = [this](const QString &sentence) {
        QMetaObject::invokeMethod(
            this, [this, sentence] { fail(sentence); }, Qt::QueuedConnection);
    };
    struct stat file { };
    // The library would open a folder as a list of everything in it, and wait for ever at a pipe.
    if (::stat(path.constData(), &file) != 0)
        return failLater(tr("The file is not there."));
    if (!S_ISREG(file.st_mode))
        return failLater(tr("This is not a file."));
    if (::access(path.constData(), R_OK) != 0)
        return failLater(tr("You have no permission to read the file."));
    if (!m_engine.isRunning())
        return failLater(tr("The media library could not be started."));
    m_path = path;
    openAs("", path);
}

/// An empty format is left to the library.
void MediaPlayer::openAs(const char *format, const QByteArray &address)
{
    m_stage = Stage::Opening;
    m_hasPicture = false;
    m_engine.setText("demuxer-lavf-format", format);
    m_engine.command({ "loadfile", address }, Load);
}

// ---- What the library tells

void MediaPlayer::onEvent(const mpv_event &event)
{
    const auto request = static_cast<Request>(event.reply_userdata);
    switch (event.event_id) {
    case MPV_EVENT_PROPERTY_CHANGE: {
        const auto *property = static_cast<const mpv_event_property *>(event.data);
        return onProperty(request, property->data, property->format);
    }
    case MPV_EVENT_GET_PROPERTY_REPLY: {
        const auto *property = static_cast<const mpv_event_property *>(event.data);
        return onReply(request, event.error, property->data, property->format);
    }
    case MPV_EVENT_COMMAND_REPLY:
        return onReply(request, event.error, nullptr, MPV_FORMAT_NONE);
    case MPV_EVENT_PLAYBACK_RESTART:
        return onRestart();
    case MPV_EVENT_END_FILE:
        return onEndOfFile(event.data);
    default:
        return;
    }
}

void MediaPlayer::onProperty(Request request, const void *data, int format)
{
    const bool isThere = format != MPV_FORMAT_NONE;
    switch (request) {
    case TimePos:
        if (isThere && !m_seekInFlight)
            m_library.timePos = toDouble(data);
        // A guess by bitrate can be far too short.
        if (m_status == Status::ReadyToPlay && m_library.timePos > m_duration + 1) {
            m_duration = m_library.timePos;
            Q_EMIT durationChanged(m_duration);
        }
        break;
    case Duration:
        m_duration = isThere ? std::max(0.0, toDouble(data)) : 0;
        if (m_status == Status::ReadyToPlay)
            Q_EMIT durationChanged(m_duration);
        break;
    case EofReached:
        m_library.eofReached = isThere && toFlag(data);
        endIfReached();
        break;
    case Pause:
        m_library.pause = isThere && toFlag(data);
        endIfReached();
        break;
    case Vid:
        if (!isThere && std::exchange(m_library.hasVideo, false) && m_status == Status::ReadyToPlay)
            Q_EMIT videoLost();
        break;
    default:
        break;
    }
}

void MediaPlayer::onReply(Request request, int error, const void *data, int format)
{
    const bool isThere = error >= 0 && format != MPV_FORMAT_NONE;
    switch (request) {
    case Load:
        if (error < 0)
            fail(tr("The file could not be opened."));
        break;
    case Seek:
        if (error < 0)
            onRestart();
        break;
    case FileFormat:
        m_library.format = isThere ? *static_cast<char *const *>(data) : "";
        break;
    case EofReached:
        m_library.eofReached = isThere && toFlag(data);
        break;
    case Pause:
        m_library.pause = isThere && toFlag(data);
        endIfReached();
        break;
    case IsStill:
        m_library.isStill = isThere && toFlag(data);
        break;
    case Rotation:
        m_library.quarterTurns = isThere ? toQuarterTurns(toDouble(data)) : 0;
        break;
    case FrameRate:
        m_library.frameRate = isThere ? toDouble(data) : 0;
        break;
    case Duration:
        onMeasured(isThere ? toDouble(data) : 0);
        break;
    case PictureFormat:
        m_library.hasVideo = isThere;
        break;
    case SoundFormat: // asked last
        m_library.hasAudio = isThere;
        onAnswers();
        break;
    default:
        break;
    }
}

void MediaPlayer::onRestart()
{
    switch (m_stage) {
    case Stage::Closed:
        return;
    case Stage::Opening:
        return askWhatItIs();
    case Stage::Measuring:
        m_stage = Stage::Returning;
        return sendSeek(0);
    case Stage::Returning:
        return m_engine.ask("duration", MPV_FORMAT_DOUBLE, Duration);
    case Stage::Open:
        return onSeekEnd();
    }
}

void MediaPlayer::onSeekEnd()
{
    m_seekInFlight = false;
    if (m_pendingSeek)
        return sendPendingSeek();
    if (m_rate != 0 && !isStepping())
        m_shown.reset();
    // Both may have changed there and back during the seek, which no event tells.
    m_engine.ask("eof-reached", MPV_FORMAT_FLAG, EofReached);
    m_engine.ask("pause", MPV_FORMAT_FLAG, Pause);
}

void MediaPlayer::onFrame()
{
    m_hasPicture = true;
    Q_EMIT frameReady();
}

void MediaPlayer::onEndOfFile(const void *data)
{
    const auto *end = static_cast<const mpv_event_end_file *>(data);
    if (end->reason == MPV_END_FILE_REASON_STOP)
        return; // it is opened in another way
    const bool isStrange = end->error == MPV_ERROR_UNKNOWN_FORMAT || end->error == MPV_ERROR_NOTHING_TO_PLAY
        || end->reason == MPV_END_FILE_REASON_REDIRECT;
    if (m_status == Status::Unknown && isStrange)
        becomeUnplayable();
    else
        fail(QString::fromUtf8(mpv_error_string(end->error)));
}

void MediaPlayer::askWhatItIs()
{
    m_engine.ask("file-format", MPV_FORMAT_STRING, FileFormat);
    m_engine.ask("container-fps", MPV_FORMAT_DOUBLE, FrameRate);
    m_engine.ask("current-tracks/video/image", MPV_FORMAT_FLAG, IsStill);
    m_engine.ask("current-tracks/video/demux-rotation", MPV_FORMAT_DOUBLE, Rotation);
    // What a decoder made of a track, not what the file promises: a recording that was cut off at once has
    // tracks with nothing in them.
    m_engine.ask("video-params/pixelformat", MPV_FORMAT_STRING, PictureFormat);
    m_engine.ask("audio-params/format", MPV_FORMAT_STRING, SoundFormat);
}

// ---- What becomes of the file

void MediaPlayer::onAnswers()
{
    if (m_stage != Stage::Opening)
        return;
    const auto container = containerNamed(m_library.format);
    if (container.readAs)
        return openAs(container.readAs, m_path);
    if (framed_stream::isKnown(m_library.format)) {
        const double rate = m_library.frameRate > 0 ? m_library.frameRate : usualFrameRate;
        return openAs("avi", framed_stream::address(m_path, m_library.format, rate));
    }
    if (m_library.isStill || !(m_library.hasVideo || m_library.hasAudio))
        return becomeUnplayable();
    m_engine.setNumber("hr-seek-demuxer-offset", container.seekLead);
    if (container.tellsDuration)
        return becomeReady();
    m_stage = Stage::Measuring;
    sendSeek(beyondEveryEnd);
}

void MediaPlayer::onMeasured(double seconds)
{
    if (m_stage != Stage::Returning)
        return;
    m_duration = seconds;
    if (seconds > 0)
        becomeReady();
    else
        becomeUnplayable(); // a single picture
}

void MediaPlayer::becomeReady()
{
    m_stage = Stage::Open;
    Q_EMIT loaded(m_library.hasVideo);
    setStatus(Status::ReadyToPlay);
    Q_EMIT durationChanged(m_duration);
}

void MediaPlayer::becomeUnplayable()
{
    m_stage = Stage::Closed;
    Q_EMIT unplayable();
}

void MediaPlayer::fail(const QString &sentence)
{
    m_stage = Stage::Closed;
    m_error = sentence;
    stopStepping();
    changeRate(0);
    setStatus(Status::Failed);
}

void MediaPlayer::setStatus(Status status)
{
    if (std::exchange(m_status, status) != status)
        Q_EMIT statusChanged(status);
}

// ---- Position

double MediaPlayer::duration() const
{
    return m_status == Status::ReadyToPlay ? m_duration : 0;
}

double MediaPlayer::currentTime() const
{
    const double time = isStepping() ? steppedPosition() : m_shown.value_or(m_library.timePos);
    return std::clamp(time, 0.0, std::max(m_duration, 0.0));
}

void MediaPlayer::seek(double seconds)
{
    if (!std::isfinite(seconds) || m_status != Status::ReadyToPlay)
        return;
    const double target = std::clamp(seconds, 0.0, std::max(m_duration, 0.0));
    m_atEnd = false;
    m_stepStart = target;
    m_stepClock.start();
    m_shown = target;
    requestSeek(target);
}

void MediaPlayer::requestSeek(double seconds)
{
    m_pendingSeek = seconds;
    if (!m_seekInFlight)
        sendPendingSeek();
}

void MediaPlayer::sendPendingSeek()
{
    const double target = *std::exchange(m_pendingSeek, std::nullopt);
    m_seekInFlight = true;
    m_library.timePos = target;
    m_library.eofReached = false;
    sendSeek(target);
}

void MediaPlayer::sendSeek(double seconds)
{
    m_hasPicture = m_hasPicture && m_stage == Stage::Open; // the one at the other end is not to be seen
    m_engine.command({ "seek", QByteArray::number(seconds, 'f', 3), "absolute+exact" }, Seek);
}

// ---- Rate

void MediaPlayer::setRate(double rate)
{
    if (m_status != Status::ReadyToPlay || !std::isfinite(rate))
        return;
    const double position = currentTime();
    const bool steps = rate < 0 || rate > highestOwnRate || (rate > 0 && m_atEnd);
    if (isStepping() && !steps)
        requestSeek(position);
    stopStepping();
    m_atEnd = m_atEnd && rate >= 0;
    if (steps) {
        m_stepStart = position;
        m_stepClock.start();
        m_stepTimer.start();
    } else if (rate > 0) {
        m_engine.setNumber("speed", rate);
    }
    m_shown = position;
    if (rate > 0 && !steps && !m_seekInFlight) {
        m_library.timePos = position;
        m_shown.reset();
    }
    m_engine.setFlag("pause", steps || rate == 0);
    changeRate(rate);
}

void MediaPlayer::changeRate(double rate)
{
    if (std::exchange(m_rate, rate) != rate)
        Q_EMIT rateChanged(rate);
}

void MediaPlayer::endIfReached()
{
    // The first alone comes up to 0.45 s early where there is sound: the library pauses when all of it was
    // heard.
    if (m_library.eofReached && m_library.pause && m_rate > 0 && !isStepping() && !m_seekInFlight)
        standAt(m_duration);
}

/// At one of the ends.
void MediaPlayer::standAt(double seconds)
{
    stopStepping();
    m_atEnd = seconds > 0;
    m_shown = seconds;
    changeRate(0);
}

double MediaPlayer::steppedPosition() const
{
    return m_stepStart + m_rate * static_cast<double>(m_stepClock.nsecsElapsed()) / 1e9;
}

void MediaPlayer::step()
{
    const double position = steppedPosition();
    const bool isOver = m_rate < 0 ? position <= 0 : position >= m_duration;
    const double target = std::clamp(position, 0.0, m_duration);
    if (isOver) {
        standAt(target);
        requestSeek(target);
    } else if (!m_seekInFlight) {
        requestSeek(target);
    }
}

void MediaPlayer::stopStepping()
{
    m_stepTimer.stop();
}

// ---- Sound

void MediaPlayer::setVolume(float volume)
{
    const float wanted = std::isfinite(volume) ? std::clamp(volume, 0.0F, 1.0F) : m_volume;
    if (std::exchange(m_volume, wanted) == wanted)
        return;
    m_engine.setNumber("volume", double(wanted) * 100);
    Q_EMIT volumeChanged(wanted);
}
