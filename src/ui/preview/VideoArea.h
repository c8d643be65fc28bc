// The area in which a film is drawn.
#pragma once

#include <QImage>
#include <QWidget>

#include <functional>

/// Black, with the picture in it once it may be seen. The picture keeps its proportions. Where there is no
/// picture to come it is as small as what lies on it, in the window's colour.
class VideoArea : public QWidget {
    Q_OBJECT
public:
    explicit VideoArea(QWidget *parent = nullptr);

    /// What draws the present picture over a whole image of Format_RGB32; none at first.
    void setPainter(std::function<bool(QImage &)> painter);
    /// How often what the painter draws is to be turned by 90 degrees, clockwise: 0 ... 3.
    void setQuarterTurns(int turns);
    /// The picture has changed. It is drawn also while it is not shown, because the library waits for that.
    void redraw();
    /// Not at first.
    void showPicture(bool shown);
    /// Black at first.
    void setBlack(bool black);
    bool isBlack() const { return m_isBlack; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    std::function<bool(QImage &)> m_painter;
    QImage m_picture; ///< as it was drawn, not turned
    int m_quarterTurns = 0;
    bool m_isShown = false;
    bool m_isBlack = true;
};
