#include "ui/PaintedViews.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

QColor onWindow(const QColor &colour)
{
    const auto below = QGuiApplication::palette().color(QPalette::Window);
    const auto mix = [&](float top, float bottom) {
        return top * colour.alphaF() + bottom * (1 - colour.alphaF());
    };
    return QColor::fromRgbF(mix(colour.redF(), below.redF()), mix(colour.greenF(), below.greenF()),
        mix(colour.blueF(), below.blueF()));
}

double relativeLuminance(const QColor &colour)
{
    const auto linear = [](double value) {
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
        + 0.0722 * linear(colour.blueF());
}

} // namespace

QColor readableTextOn(const QColor &background)
{
    if (!background.isValid())
        return QGuiApplication::palette().color(QPalette::WindowText);
    const double luminance = relativeLuminance(onWindow(background.toRgb()));
    const double contrastToWhite = 1.05 / (luminance + 0.05);
    const double contrastToBlack = (luminance + 0.05) / 0.05;
    return contrastToWhite >= contrastToBlack ? QColor(Qt::white) : QColor(Qt::black);
}

double contrastOf(const QColor &one, const QColor &other)
{
    const double ratio = (relativeLuminance(one.toRgb()) + 0.05) / (relativeLuminance(other.toRgb()) + 0.05);
    return std::max(ratio, 1 / ratio);
}

void PaintedView::setColourSource(std::function<QColor()> source)
{
    m_source = std::move(source);
    update();
}

QColor PaintedView::colour() const
{
    return m_source ? m_source() : QColor();
}

void PaintedView::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    const auto fill = colour();
    if (std::exchange(m_shown, fill) != fill)
        window()->update();
    if (fill.isValid())
        QPainter(this).fillRect(rect(), fill);
}
