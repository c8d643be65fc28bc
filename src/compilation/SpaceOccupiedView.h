// The capacity gauge: a bar as long as the share of the disc that the compilation fills.
#pragma once

#include <QColor>
#include <QWidget>

#include <functional>

/// Paints a gradient from light grey at its bottom to black at its top, over it the bar in the scheme's
/// colour, and from 90 per cent on the rest in red, cut off at its right edge.
class SpaceOccupiedView : public QWidget {
    Q_OBJECT
    Q_PROPERTY(qint64 i_Percentage READ i_Percentage WRITE setI_Percentage)
public:
    explicit SpaceOccupiedView(QWidget *parent = nullptr);

    qint64 i_Percentage() const { return m_percentage; }
    void setI_Percentage(qint64 percentage);
    /// Where the bar's colour comes from; asked at every redraw, on the GUI thread.
    void setColourSource(std::function<QColor()> source) { m_colour = std::move(source); }

    QSize sizeHint() const override { return { 200, 20 }; }
    QSize minimumSizeHint() const override { return { 80, 16 }; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    qint64 m_percentage = 0;
    std::function<QColor()> m_colour;
};
