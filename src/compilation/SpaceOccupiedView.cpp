#include "compilation/SpaceOccupiedView.h"

#include "compilation/Capacity.h"

#include <QLinearGradient>
#include <QPainter>

SpaceOccupiedView::SpaceOccupiedView(QWidget *parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void SpaceOccupiedView::setI_Percentage(qint64 percentage)
{
    m_percentage = percentage;
    setAccessibleDescription(tr("%1 per cent").arg(percentage));
    update();
}

void SpaceOccupiedView::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    QPainter painter(this);
    QLinearGradient ground(0, height(), 0, 0);
    ground.setColorAt(0, Qt::lightGray);
    ground.setColorAt(1, Qt::black);
    painter.fillRect(rect(), ground);
    const compilation::GaugeBars bars = compilation::gaugeBars(m_percentage, width());
    painter.fillRect(0, 0, bars.bar, height(), m_colour ? m_colour() : QColor());
    painter.fillRect(bars.bar, 0, bars.red, height(), QColor(255, 0, 0));
}
