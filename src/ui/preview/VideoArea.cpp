#include "ui/preview/VideoArea.h"

#include <QPainter>

VideoArea::VideoArea(QWidget *parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void VideoArea::setPainter(std::function<bool(QImage &)> painter)
{
    m_painter = std::move(painter);
}

void VideoArea::setQuarterTurns(int turns)
{
    m_quarterTurns = turns;
    redraw();
}

void VideoArea::showPicture(bool shown)
{
    m_isShown = shown;
    update();
}

void VideoArea::setBlack(bool black)
{
    m_isBlack = black;
    updateGeometry();
    update();
}

QSize VideoArea::sizeHint() const
{
    return m_isBlack ? QSize(720, 405) : QWidget::sizeHint();
}

void VideoArea::redraw()
{
    if (m_painter) {
        const auto upright = size() * devicePixelRatioF();
        const auto pixels = m_quarterTurns % 2 ? upright.transposed() : upright;
        if (m_picture.size() != pixels)
            m_picture = QImage(pixels, QImage::Format_RGB32);
        if (!m_painter(m_picture))
            m_picture = {};
        m_picture.setDevicePixelRatio(devicePixelRatioF());
    }
    if (m_isShown)
        update();
}

void VideoArea::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), m_isBlack ? QBrush(Qt::black) : palette().window());
    if (!m_isShown || m_picture.isNull())
        return;
    const auto picture = m_picture.deviceIndependentSize();
    painter.translate(rect().toRectF().center());
    painter.rotate(m_quarterTurns * 90);
    painter.drawImage(QRectF(QPointF(-picture.width() / 2, -picture.height() / 2), picture), m_picture);
}

void VideoArea::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    redraw();
}
