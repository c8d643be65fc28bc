// A small wheel that turns while something takes its time and nobody knows how long.
#pragma once

#include <QBasicTimer>
#include <QColor>
#include <QWidget>

/// Twelve spokes in the text colour of the palette. It uses the processor only while it turns and can be
/// seen.
class Spinner : public QWidget {
    Q_OBJECT
    Q_PROPERTY(bool spinning READ isSpinning WRITE setSpinning)
    Q_PROPERTY(QColor colour READ colour WRITE setColour)
public:
    explicit Spinner(QWidget *parent = nullptr);

    void start() { setSpinning(true); }
    void stop() { setSpinning(false); }
    bool isSpinning() const { return m_spinning; }
    /// A spinner that does not spin shows nothing but keeps its place; hide() it to give the place up.
    void setSpinning(bool spinning);
    /// The colour of the spokes; an invalid one stands for the palette's text colour.
    QColor colour() const { return m_colour; }
    void setColour(const QColor &colour);

    QSize sizeHint() const override { return { 32, 32 }; }
    QSize minimumSizeHint() const override { return { 16, 16 }; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void timerEvent(QTimerEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void updateTimer();

    QBasicTimer m_timer;
    QColor m_colour;
    int m_step = 0;
    bool m_spinning = false;
};
