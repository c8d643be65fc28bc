#include "ui/preview/TimeSlider.h"

#include <QAccessibleWidget>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionSlider>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

int toMilliseconds(double seconds)
{
    return static_cast<int>(std::clamp(seconds * 1000, 0.0, double(std::numeric_limits<int>::max())));
}

/// A slider's own interface would tell milliseconds.
class AccessibleTimeSlider : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit AccessibleTimeSlider(TimeSlider *slider)
        : QAccessibleWidget(slider, QAccessible::Slider)
    {
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface *>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }

    /// Readers that ask for the number only, and never for the value's text, read the description.
    QString text(QAccessible::Text kind) const override
    {
        if (kind != QAccessible::Value && kind != QAccessible::Description)
            return QAccessibleWidget::text(kind);
        return TimeSlider::tr("%1 of %2").arg(timeText(slider()->seconds()), timeText(duration()));
    }

    QVariant currentValue() const override { return std::floor(slider()->seconds()); }
    QVariant minimumValue() const override { return 0.0; }
    QVariant maximumValue() const override { return duration(); }
    QVariant minimumStepSize() const override { return 1.0; }
    void setCurrentValue(const QVariant &seconds) override
    {
        slider()->setValue(toMilliseconds(seconds.toDouble()));
    }

private:
    TimeSlider *slider() const { return static_cast<TimeSlider *>(widget()); }
    double duration() const { return slider()->maximum() / 1000.0; }
};

QAccessibleInterface *makeInterface(const QString &, QObject *object)
{
    auto *slider = qobject_cast<TimeSlider *>(object);
    return slider ? new AccessibleTimeSlider(slider) : nullptr;
}

} // namespace

QString timeText(double seconds)
{
    const auto whole = static_cast<qint64>(seconds);
    const auto twoDigits = [](qint64 value) { return u"%1"_s.arg(value, 2, 10, QChar(u'0')); };
    return whole < 3600
        ? u"%1:%2"_s.arg(whole / 60).arg(twoDigits(whole % 60))
        : u"%1:%2:%3"_s.arg(whole / 3600).arg(twoDigits(whole / 60 % 60), twoDigits(whole % 60));
}

TimeSlider::TimeSlider(QWidget *parent)
    : QSlider(Qt::Horizontal, parent)
{
    static const bool isInstalled = (QAccessible::installFactory(makeInterface), true);
    Q_UNUSED(isInstalled)
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
