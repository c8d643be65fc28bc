// A slider for a place in time.
#pragma once

#include <QSlider>
#include <QString>

/// A time as a clock shows it, in whole seconds: 0:07, 12:34, 1:02:03.
QString timeText(double seconds);

/// Its value is a place in milliseconds, so that it moves smoothly in a short file; everyone else talks to it
/// in seconds. A press on the groove takes the handle there. A screen reader is told times, too.
class TimeSlider : public QSlider {
    Q_OBJECT
    Q_PROPERTY(double seconds READ seconds WRITE setSeconds)
public:
    explicit TimeSlider(QWidget *parent = nullptr);

    double seconds() const { return value() / 1000.0; }
    /// Moves the handle without telling anybody, and not at all while a person holds it.
    void setSeconds(double seconds);
    void setDuration(double seconds);

Q_SIGNALS:
    /// A person moved the handle, with the mouse or the keyboard.
    void moved(double seconds);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    int valueAt(const QPoint &position) const;
};
