// The headings of a list, and the look of lists.
#pragma once

#include <QHeaderView>
#include <QProxyStyle>

/// The desktop's style with more room left and right of the texts, and with the sort mark of a heading on the
/// line of its text: behind a text at the left, before one at the right. So the mark moves no text.
class ListStyle : public QProxyStyle {
    Q_OBJECT
public:
    static constexpr int room =
        8; ///< left and right of the text of a cell; that of a heading stands above it
    static constexpr int markRoom = 18; ///< for the sort mark and what parts it from the text

    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
        const QWidget *widget) const override;

private:
    static QRect textOf(const QStyleOptionHeader &heading);
    static QRect markOf(const QStyleOptionHeader &heading);
};

/// Headings of which every click of the left button counts, also the second of two quick ones.
class ListHeader : public QHeaderView {
    Q_OBJECT
public:
    /// `style` is not owned.
    ListHeader(ListStyle *style, QWidget *parent);

    /// The width at which no heading is cut, and none by its sort mark.
    int widestHeading() const;

protected:
    void mouseDoubleClickEvent(QMouseEvent *event) override;
};
