#include "kit/Spinner.h"

#include <QPainter>
#include <QTimerEvent>

#include <algorithm>

namespace {
constexpr int spokes = 12;
constexpr int millisecondsPerSpoke = 80;
} // namespace

Spinner::Spinner(QWidget *parent)
    : QWidget(parent)
{
    setAccessibleName(tr("Working"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Spinner::setSpinning(bool spinning)
{
    if (spinning == m_spinning)
        return;
    m_spinning = spinning;
    m_step = 0;
    updateTimer();
    update();
}

void Spinner::setColour(const QColor &colour)
{
    m_colour = colour;
    update();
}

void Spinner::updateTimer()
{
    if (m_spinning && isVisible())
        m_timer.start(millisecondsPerSpoke, this);
    else
        m_timer.stop();
}

void Spinner::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_timer.timerId())
        return QWidget::timerEvent(event);
    m_step = (m_step + 1) % spokes;
    update();
}

void Spinner::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    updateTimer();
}

void Spinner::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    updateTimer();
}

void Spinner::paintEvent(QPaintEvent *)
{
    if (!m_spinning)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(rect().toRectF().center());
    const double radius = std::min(width(), height()) / 2.0;
    const double thickness = radius * 0.17;
    auto colour = m_colour.isValid() ? m_colour : palette().color(foregroundRole());
    painter.rotate(m_step * 360.0 / spokes);
    for (int i = 0; i < spokes; ++i) {
        painter.rotate(360.0 / spokes);
        colour.setAlphaF(qMin(1.0F, 0.15F + 0.85F * static_cast<float>(i + 1) / spokes));
        painter.setPen(QPen(colour, thickness, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(QPointF(0, -radius * 0.5), QPointF(0, -radius + thickness));
    }
}
