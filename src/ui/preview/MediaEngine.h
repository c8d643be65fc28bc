// The media library's core on Qt's terms: no call that waits, events on the thread that owns it.
#pragma once

#include <QByteArrayList>
#include <QObject>

#include <atomic>

struct mpv_event;
struct mpv_handle;
struct mpv_render_context;
class QImage;

/// Owns one libmpv core with a renderer that draws in software. Lives on the GUI thread. Every request is
/// asynchronous, because the core waits for this same thread to draw: a synchronous one blocked for 230 ms.
class MediaEngine : public QObject {
    Q_OBJECT
public:
    explicit MediaEngine(QObject *parent = nullptr);
    /// The sound ends and no signal comes any more; the library itself ends a little later, in the
    /// background.
    ~MediaEngine() override;

    /// False where the library could not be started; every other operation does nothing then.
    bool isRunning() const { return m_core && m_renderer; }

    /// What came of it is told by an event with the same `request` number, if that is not 0.
    void command(const QByteArrayList &arguments, quint64 request = 0);
    void setFlag(const char *property, bool value);
    void setText(const char *property, const char *value);
    void setNumber(const char *property, double value);
    void ask(const char *property, int format, quint64 request);
    /// Each change is an event with this number, beginning with the present value.
    void observe(const char *property, int format, quint64 request);

    /// Draws the present frame over the whole image, which must be Format_RGB32. False without a renderer.
    bool draw(QImage &image);

Q_SIGNALS:
    /// Valid only during the call.
    void eventReceived(const mpv_event &event);
    /// There is a picture to draw, another one than before.
    void frameReady();

private:
    void startCore();
    void startRenderer();
    void drainEvents();
    void drainFrames();
    static void wakeUp(void *engine);
    static void renderUpdate(void *engine);

    mpv_handle *m_core = nullptr;
    mpv_render_context *m_renderer = nullptr;
    std::atomic_flag m_eventsQueued;
    std::atomic_flag m_framesQueued;
};
