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

void VideoArea::showPicture(bool shown)
{
    m_isShown = shown;
    update();
}

void VideoArea::redraw()
{
    if (m_painter) {
        const auto pixels = size() * devicePixelRatioF();
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
    painter.fillRect(rect(), Qt::black);
    if (m_isShown && !m_picture.isNull())
        painter.drawImage(QPoint(0, 0), m_picture);
}

void VideoArea::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    redraw();
}
