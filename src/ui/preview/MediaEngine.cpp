#include "ui/preview/MediaEngine.h"

#include "ui/preview/FramedStream.h"

#include <QImage>
#include <QThreadPool>

#include <array>
#include <clocale>
#include <malloc.h>
#include <mpv/client.h>
#include <mpv/render.h>
#include <utility>
#include <vector>

namespace {

constexpr std::array<std::pair<const char *, const char *>, 24> options{ {
    // Nothing of a person's own configuration of other players.
    { "config", "no" },
    { "load-scripts", "no" },
    { "osc", "no" },
    { "ytdl", "no" },
    { "terminal", "no" },
    // One file, opened as media and never as a list of other places.
    { "demuxer", "lavf" },
    { "demuxer-lavf-probescore", "25" }, // as sure as one can be of a stream of plain pictures
    { "demuxer-thread", "no" },
    { "demuxer-lavf-o", "protocol_whitelist=file" },
    { "access-references", "no" },
    { "sub-auto", "no" },
    { "audio-file-auto", "no" },
    { "audio-display", "no" },
    { "vo", "libmpv" },
    { "hwdec", "no" },
    // The renderer in software cannot turn a picture: it ends the program where width and height change
    // places. Who shows the picture turns it.
    { "video-rotate", "no" },
    { "osd-level", "0" },
    { "idle", "yes" },
    { "pause", "yes" },
    { "keep-open", "always" },
    { "keep-open-pause", "yes" },
    { "hr-seek", "yes" },
    // One more would be tried after these, SDL, which has nothing of its own and leaks at every attempt.
    { "ao", "pipewire,pulse,alsa,jack" },
    // Without a sound device a file with sound would not play at all.
    { "audio-fallback-to-null", "yes" },
} };

/// Waits for the library, which takes a fifth of a second over a film: it gives whoever draws that long to
/// draw. A process that ends waits for the last one here.
void endInBackground(mpv_render_context *renderer, mpv_handle *core)
{
    static QThreadPool pool;
    pool.setExpiryTimeout(0);
    pool.start([renderer, core] {
        if (renderer)
            mpv_render_context_free(renderer);
        mpv_terminate_destroy(core);
    });
}

} // namespace

MediaEngine::MediaEngine(QObject *parent)
    : QObject(parent)
{
    startCore();
    if (m_core)
        startRenderer();
}

MediaEngine::~MediaEngine()
{
    if (!m_core)
        return;
    if (m_renderer)
        mpv_render_context_set_update_callback(m_renderer, nullptr, nullptr);
    mpv_set_wakeup_callback(m_core, nullptr, nullptr);
    setFlag("pause", true); // what the sound device holds would be played to its end
    endInBackground(m_renderer, m_core);
}

void MediaEngine::startCore()
{
#ifdef M_ARENA_MAX
    // Each of the library's threads would get a heap of its own, which stays behind half empty: 40 MB after
    // some hundred files.
    ::mallopt(M_ARENA_MAX, 2);
#endif
    std::setlocale(LC_NUMERIC, "C"); // the library refuses to start where numbers have a decimal comma
    m_core = mpv_create();
    if (!m_core)
        return;
    for (const auto &[name, value] : options)
        if (const int result = mpv_set_option_string(m_core, name, value); result < 0)
            qWarning("media library: option %s: %s", name, mpv_error_string(result));
    framed_stream::addTo(m_core);
    if (const int result = mpv_initialize(m_core); result < 0) {
        qWarning("media library: %s", mpv_error_string(result));
        mpv_terminate_destroy(std::exchange(m_core, nullptr));
        return;
    }
    mpv_set_wakeup_callback(m_core, &MediaEngine::wakeUp, this);
}

void MediaEngine::startRenderer()
{
    std::array parameters{
        mpv_render_param{ MPV_RENDER_PARAM_API_TYPE, const_cast<char *>(MPV_RENDER_API_TYPE_SW) },
        mpv_render_param{ MPV_RENDER_PARAM_INVALID, nullptr },
    };
    if (const int result = mpv_render_context_create(&m_renderer, m_core, parameters.data()); result < 0) {
        qWarning("media library: renderer: %s", mpv_error_string(result));
        m_renderer = nullptr;
        return;
    }
    mpv_render_context_set_update_callback(m_renderer, &MediaEngine::renderUpdate, this);
}

// Both callbacks come on threads of the library, often, and must not call it.
void MediaEngine::wakeUp(void *engine)
{
    auto *self = static_cast<MediaEngine *>(engine);
    if (!self->m_eventsQueued.test_and_set())
        QMetaObject::invokeMethod(self, &MediaEngine::drainEvents, Qt::QueuedConnection);
}

void MediaEngine::renderUpdate(void *engine)
{
    auto *self = static_cast<MediaEngine *>(engine);
    if (!self->m_framesQueued.test_and_set())
        QMetaObject::invokeMethod(self, &MediaEngine::drainFrames, Qt::QueuedConnection);
}

void MediaEngine::drainEvents()
{
    m_eventsQueued.clear();
    for (;;) {
        const mpv_event *event = mpv_wait_event(m_core, 0);
        if (event->event_id == MPV_EVENT_NONE)
            return;
        Q_EMIT eventReceived(*event);
    }
}

void MediaEngine::drainFrames()
{
    m_framesQueued.clear();
    drainEvents(); // what happened before the frame is to be known before the frame
    if (mpv_render_context_update(m_renderer) & MPV_RENDER_UPDATE_FRAME)
        Q_EMIT frameReady();
}

void MediaEngine::command(const QByteArrayList &arguments, quint64 request)
{
    std::vector<const char *> words;
    for (const auto &argument : arguments)
        words.push_back(argument.constData());
    words.push_back(nullptr);
    if (isRunning())
        mpv_command_async(m_core, request, words.data());
}

void MediaEngine::setFlag(const char *property, bool value)
{
    int flag = value;
    if (isRunning())
        mpv_set_property_async(m_core, 0, property, MPV_FORMAT_FLAG, &flag);
}

void MediaEngine::setText(const char *property, const char *value)
{
    if (isRunning())
        mpv_set_property_async(m_core, 0, property, MPV_FORMAT_STRING, static_cast<void *>(&value));
}

void MediaEngine::setNumber(const char *property, double value)
{
    if (isRunning())
        mpv_set_property_async(m_core, 0, property, MPV_FORMAT_DOUBLE, &value);
}

void MediaEngine::ask(const char *property, int format, quint64 request)
{
    if (isRunning())
        mpv_get_property_async(m_core, request, property, static_cast<mpv_format>(format));
}

void MediaEngine::observe(const char *property, int format, quint64 request)
{
    if (isRunning())
        mpv_observe_property(m_core, request, property, static_cast<mpv_format>(format));
}

bool MediaEngine::draw(QImage &image)
{
    if (!isRunning() || image.isNull())
        return false;
    std::array size{ image.width(), image.height() };
    auto stride = static_cast<std::size_t>(image.bytesPerLine());
    int wait = 0;
    std::array parameters{
        mpv_render_param{ MPV_RENDER_PARAM_SW_SIZE, size.data() },
        mpv_render_param{ MPV_RENDER_PARAM_SW_FORMAT, const_cast<char *>("bgr0") },
        mpv_render_param{ MPV_RENDER_PARAM_SW_STRIDE, &stride },
        mpv_render_param{ MPV_RENDER_PARAM_SW_POINTER, image.bits() },
        mpv_render_param{ MPV_RENDER_PARAM_BLOCK_FOR_TARGET_TIME, &wait },
        mpv_render_param{ MPV_RENDER_PARAM_INVALID, nullptr },
    };
    return mpv_render_context_render(m_renderer, parameters.data()) >= 0;
}
