#include "ui/preview/TimeSlider.h"

#include <QMouseEvent>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionSlider>

#include <algorithm>
#include <limits>

namespace {

int toMilliseconds(double seconds)
{
    return static_cast<int>(std::clamp(seconds * 1000, 0.0, double(std::numeric_limits<int>::max())));
}

} // namespace

TimeSlider::TimeSlider(QWidget *parent)
    : QSlider(Qt::Horizontal, parent)
{
    setRange(0, 0);
    setSingleStep(1000);
    setPageStep(10'000);
    // Dragging, keys and the wheel all come this way; setSeconds does not.
    connect(this, &QSlider::valueChanged, this, [this] { Q_EMIT moved(seconds()); });
}

void TimeSlider::setSeconds(double seconds)
{
    const QSignalBlocker silence(this);
    if (!isSliderDown())
        setValue(toMilliseconds(seconds));
}

void TimeSlider::setDuration(double seconds)
{
    const QSignalBlocker silence(this);
    setRange(0, toMilliseconds(seconds));
}

void TimeSlider::mousePressEvent(QMouseEvent *event)
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    const auto handle = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    if (event->button() == Qt::LeftButton && !handle.contains(event->position().toPoint())) {
        // Held from now on: whoever is told of the new place may answer with a rounded one, and the handle
        // would slip from under the pointer.
        setSliderDown(true);
        setValue(valueAt(event->position().toPoint()));
    }
    QSlider::mousePressEvent(event); // the handle is now under the pointer and can be dragged on
}

void TimeSlider::mouseReleaseEvent(QMouseEvent *event)
{
    QSlider::mouseReleaseEvent(event);
    setSliderDown(false);
}

int TimeSlider::valueAt(const QPoint &position) const
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    const auto groove = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, this);
    const int handle =
        style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this).width();
    return QStyle::sliderValueFromPosition(minimum(), maximum(), position.x() - groove.x() - handle / 2,
        groove.width() - handle, option.upsideDown);
}
