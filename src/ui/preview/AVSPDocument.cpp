#include "ui/preview/AVSPDocument.h"

#include "kit/SymbolIcon.h"
#include "ui/preview/MediaPlayer.h"
#include "ui_AVSPDocument.h"

#include <QKeyEvent>
#include <QLocale>
#include <QMimeDatabase>
#include <QScreen>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr double keyStep = 5;
constexpr double rateStep = 2;
constexpr float volumeStep = 0.05F;
constexpr QSize smallestFilm(440, 240);
constexpr QSize smallestSound(440, 0);
constexpr QSize frameOfWindow(16, 48); // about; it is known only once the window stands

/// The file's name in bytes. A URL keeps those that are no UTF-8 as they are, a text would lose them.
QByteArray localPath(const QUrl &url)
{
    return url.isLocalFile() ? QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1())
                             : QByteArray();
}

/// On one line, whatever the name contains.
QString titleOf(const QUrl &url)
{
    QString name = url.fileName(QUrl::FullyDecoded);
    for (QChar &character : name)
        if (character.category() == QChar::Other_Control || character == QChar::LineSeparator
            || character == QChar::ParagraphSeparator)
            character = u' ';
    return name;
}

/// By its name alone, so that the window need not change its shape once the file is known.
bool looksLikeSound(const QUrl &url)
{
    return QMimeDatabase()
        .mimeTypeForFile(url.fileName(), QMimeDatabase::MatchExtension)
        .name()
        .startsWith("audio/"_L1);
}

} // namespace

AVSPDocument::AVSPDocument(const QUrl &file, QWidget *parent, const PreviewAlert &alert)
    : QDialog(parent)
    , s_File_URL(file)
    , m_ui(std::make_unique<Ui::AVSPDocument>())
    , m_alert(alert)
{
    m_ui->setupUi(this);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    setWindowTitle(titleOf(file));
    m_ui->playerView->setFocus(); // else whatever is enabled while the file is loading takes the keys
    giveSigns();
    windowDidLoad();
}

AVSPDocument::~AVSPDocument()
{
    windowWillClose();
}

// ---- Loading

void AVSPDocument::windowDidLoad()
{
    m_ui->unplayableLabel->hide();
    m_ui->noVideoLabel->hide();
    m_ui->failureLabel->hide();
    for (auto *label : { m_ui->unplayableLabel, m_ui->noVideoLabel, m_ui->failureLabel }) {
        auto larger = label->font();
        larger.setPointSizeF(larger.pointSizeF() * 1.2);
        label->setFont(larger);
    }
    takeShape(!looksLikeSound(s_File_URL));
    m_ui->loadingSpinner->start();
    enableControls(false, tr("The file is being opened"));
    player = new MediaPlayer(this);
    connectControls();
    connect(player, &MediaPlayer::rateChanged, this, &AVSPDocument::observeRate);
    connect(player, &MediaPlayer::statusChanged, this, &AVSPDocument::observeStatus);
    connect(player, &MediaPlayer::loaded, this, &AVSPDocument::setUpPlaybackOfAsset);
    connect(player, &MediaPlayer::unplayable, this, &AVSPDocument::assetIsUnplayable);
    connect(player, &MediaPlayer::durationChanged, this, &AVSPDocument::observeDuration);
    connect(player, &MediaPlayer::volumeChanged, this, &AVSPDocument::volumeChanged);
    m_ui->playerView->setPainter([this](QImage &image) { return player->draw(image); });
    connect(player, &MediaPlayer::frameReady, m_ui->playerView, &VideoArea::redraw);
    player->open(localPath(s_File_URL));
}

/// A film gets a black area of its own shape, a sound a small window in the desktop's colours.
void AVSPDocument::takeShape(bool ofFilm)
{
    m_ui->playerView->setBlack(ofFilm);
    auto onGround = palette();
    if (ofFilm)
        onGround.setColor(QPalette::WindowText, QColor(230, 230, 230)); // whatever the desktop's colours are
    for (auto *label : { m_ui->unplayableLabel, m_ui->noVideoLabel, m_ui->failureLabel })
        label->setPalette(ofFilm ? onGround : QPalette());
    m_ui->loadingSpinner->setColour(onGround.color(QPalette::WindowText));
    setMinimumSize((ofFilm ? smallestFilm : smallestSound).boundedTo(room()));
    resize((m_ui->playerView->sizeHint() + QSize(0, m_ui->controls->sizeHint().height())).boundedTo(room()));
}

/// The largest size at which all of the window is on the screen.
QSize AVSPDocument::room() const
{
    const QWidget *where = parentWidget() ? parentWidget() : this;
    return where->screen()->availableGeometry().size() - frameOfWindow;
}

void AVSPDocument::setUpPlaybackOfAsset(bool hasVideo)
{
    if (hasVideo != m_ui->playerView->isBlack())
        takeShape(hasVideo);
    if (hasVideo) {
        m_ui->playerView->setQuarterTurns(player->quarterTurns());
        connect(player, &MediaPlayer::frameReady, this, &AVSPDocument::readyForDisplay);
        connect(player, &MediaPlayer::videoLost, this, &AVSPDocument::showNoVideo);
        if (player->hasPicture())
            readyForDisplay();
    } else {
        showNoVideo();
    }
    timeObserverToken = new QTimer(this);
    connect(timeObserverToken, &QTimer::timeout, this, &AVSPDocument::observeTime);
    timeObserverToken->start(100ms);
}

void AVSPDocument::showNoVideo()
{
    stopLoadingAnimationAndHandleError();
    m_ui->playerView->showPicture(false);
    m_ui->noVideoLabel->show();
}

void AVSPDocument::assetIsUnplayable()
{
    stopLoadingAnimationAndHandleError();
    m_ui->unplayableLabel->show();
    enableControls(false, tr("The file cannot be played"));
}

void AVSPDocument::stopLoadingAnimationAndHandleError(const QString &error)
{
    m_ui->loadingSpinner->stop();
    m_ui->loadingSpinner->hide();
    if (error.isEmpty())
        return;
    qWarning().noquote() << "preview:" << s_File_URL.toDisplayString() << error;
    const auto text = tr("Video could not be played.");
    // It is gone only when a person pressed its button, and whoever told of the error is to be done by then.
    QMetaObject::invokeMethod(
        this, [this, text] { m_alert(text, text, this); }, Qt::QueuedConnection);
}

// ---- What the player tells

void AVSPDocument::observeStatus()
{
    const bool isReady = player->status() == MediaPlayer::Status::ReadyToPlay;
    const bool hasFailed = player->status() == MediaPlayer::Status::Failed;
    enableControls(isReady, hasFailed ? tr("The file could not be played") : QString());
    if (hasFailed) {
        m_ui->playerView->showPicture(false);
        m_ui->noVideoLabel->hide();
        m_ui->failureLabel->setText(player->error());
        m_ui->failureLabel->show();
        stopLoadingAnimationAndHandleError(player->error());
    }
    observeDuration(duration());
}

void AVSPDocument::readyForDisplay()
{
    disconnect(player, &MediaPlayer::frameReady, this, nullptr);
    stopLoadingAnimationAndHandleError();
    m_ui->playerView->showPicture(true);
}

void AVSPDocument::observeRate(double rate)
{
    const bool plays = rate == 1.0;
    m_ui->playPauseButton->setText(plays ? tr("Pause") : tr("Play"));
    m_ui->playPauseButton->setAccessibleName(m_ui->playPauseButton->text());
    m_ui->rateLabel->setText(
        plays || rate == 0 ? QString() : u"%1×"_s.arg(QLocale().toString(rate).replace(u'-', u'−')));
    giveSigns();
    Q_EMIT rateChanged(rate);
    observeTime();
}

void AVSPDocument::observeDuration(double seconds)
{
    m_ui->timeSlider->setDuration(seconds);
    showTimes();
    Q_EMIT durationChanged(seconds);
}

void AVSPDocument::observeTime()
{
    m_ui->timeSlider->setSeconds(currentTime());
    showTimes();
    Q_EMIT currentTimeChanged(currentTime());
}

// ---- Properties

double AVSPDocument::duration() const
{
    return player ? player->duration() : 0;
}

double AVSPDocument::currentTime() const
{
    return player ? player->currentTime() : 0;
}

void AVSPDocument::setCurrentTime(double seconds)
{
    if (!player)
        return;
    player->seek(std::trunc(seconds));
    observeTime();
}

float AVSPDocument::volume() const
{
    return player ? player->volume() : m_lastVolume;
}

void AVSPDocument::setVolume(float volume)
{
    if (player)
        player->setVolume(volume);
}

double AVSPDocument::rate() const
{
    return player ? player->rate() : 0;
}

// ---- Transport

void AVSPDocument::playPauseToggle()
{
    if (!player)
        return;
    if (player->rate() == 1.0)
        return player->setRate(0);
    if (currentTime() == duration())
        setCurrentTime(0);
    player->setRate(1);
}

void AVSPDocument::fastForward()
{
    if (!player)
        return;
    player->setRate(player->rate() < rateStep ? rateStep : player->rate() + rateStep);
}

void AVSPDocument::rewind()
{
    if (!player)
        return;
    player->setRate(player->rate() > -rateStep ? -rateStep : player->rate() - rateStep);
}

void AVSPDocument::jump(double seconds)
{
    if (!m_ui->playPauseButton->isEnabled())
        return;
    player->seek(currentTime() + seconds);
    observeTime();
}

// ---- Closing

void AVSPDocument::done(int)
{
    windowWillClose();
    QDialog::done(1);
}

void AVSPDocument::windowWillClose()
{
    if (std::exchange(m_isClosed, true))
        return;
    delete std::exchange(timeObserverToken, nullptr);
    m_ui->playerView->setPainter({});
    m_ui->playerView->showPicture(false);
    m_lastVolume = player->volume();
    player->disconnect();
    delete std::exchange(player, nullptr);
    enableControls(false);
}

// ---- Controls

void AVSPDocument::connectControls()
{
    connect(m_ui->playPauseButton, &QPushButton::clicked, this, &AVSPDocument::playPauseToggle);
    connect(m_ui->fastForwardButton, &QPushButton::clicked, this, &AVSPDocument::fastForward);
    connect(m_ui->rewindButton, &QPushButton::clicked, this, &AVSPDocument::rewind);
    connect(m_ui->timeSlider, &TimeSlider::moved, this, &AVSPDocument::setCurrentTime);
    connect(m_ui->volumeSlider, &QSlider::valueChanged, this,
        [this](int percent) { setVolume(static_cast<float>(percent) / 100); });
    connect(this, &AVSPDocument::volumeChanged, m_ui->volumeSlider,
        [this](float value) { m_ui->volumeSlider->setValue(qRound(value * 100)); });
    for (QWidget *control : std::initializer_list<QWidget *>{
             m_ui->playPauseButton, m_ui->fastForwardButton, m_ui->rewindButton, m_ui->timeSlider })
        control->installEventFilter(this);
}

void AVSPDocument::enableControls(bool enabled, const QString &whyNot)
{
    const std::initializer_list<std::pair<QWidget *, QString>> controls{
        { m_ui->playPauseButton, tr("Play or pause (Space)") },
        { m_ui->fastForwardButton, tr("Fast forward; each press is faster") },
        { m_ui->rewindButton, tr("Rewind; each press is faster") },
        { m_ui->timeSlider, tr("Position (Left and Right: five seconds)") },
    };
    for (const auto &[control, tip] : controls) {
        control->setEnabled(enabled);
        control->setToolTip(enabled ? tip : whyNot);
    }
}

void AVSPDocument::giveSigns()
{
    const bool plays = player && player->rate() == 1.0;
    const auto onButton = palette().color(QPalette::Active, QPalette::ButtonText);
    m_ui->playPauseButton->setIcon(symbolIcon(plays ? u"pause"_s : u"play"_s, onButton));
    m_ui->fastForwardButton->setIcon(symbolIcon(u"fast-forward"_s, onButton));
    m_ui->rewindButton->setIcon(symbolIcon(u"rewind"_s, onButton));
    const auto onWindow = palette().color(QPalette::Active, QPalette::WindowText);
    m_ui->volumeSign->setPixmap(symbolIcon(u"volume"_s, onWindow).pixmap(QSize(18, 18), devicePixelRatioF()));
}

void AVSPDocument::showTimes()
{
    m_ui->elapsedLabel->setText(timeText(currentTime()));
    m_ui->durationLabel->setText(timeText(duration()));
}

void AVSPDocument::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        giveSigns();
}

/// An arrow key does the same everywhere. A button would give the focus to its neighbour, and the slider
/// would take all four for itself.
bool AVSPDocument::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        auto *key = static_cast<QKeyEvent *>(event);
        if (key->key() >= Qt::Key_Left && key->key() <= Qt::Key_Down) {
            keyPressEvent(key);
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void AVSPDocument::keyPressEvent(QKeyEvent *event)
{
    if (event->modifiers() & ~Qt::KeypadModifier)
        return QDialog::keyPressEvent(event);
    switch (event->key()) {
    case Qt::Key_Space:
        return m_ui->playPauseButton->click();
    case Qt::Key_Left:
        return jump(-keyStep);
    case Qt::Key_Right:
        return jump(keyStep);
    case Qt::Key_Up:
        return setVolume(volume() + volumeStep);
    case Qt::Key_Down:
        return setVolume(volume() - volumeStep);
    default:
        QDialog::keyPressEvent(event);
    }
}
