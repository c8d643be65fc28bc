// The bars of the main window that fill themselves with a colour of the scheme, and the colour of text on
// them.
#pragma once

#include <QColor>
#include <QWidget>

#include <functional>

/// Black or white, whichever has the higher contrast to the background (WCAG 2.1, 1.4.3). A background that
/// is not opaque is taken as it looks on the window's own colour; an invalid one gives the palette's text
/// colour.
QColor readableTextOn(const QColor &background);

/// How well a text of one opaque colour is read on a ground of the other: 1 not at all ... 21 black on white (WCAG
/// 2.1, contrast ratio).
double contrastOf(const QColor &one, const QColor &other);

/// A view that fills its bounds with one colour. It asks for the colour at every redraw, so update() is
/// enough after a change. Where it finds that the colour has changed it has the whole window redrawn, so that no
/// part of it keeps the old colours beside the new. Without a source, or with an invalid colour, it shows the
/// window's background.
class PaintedView : public QWidget {
    Q_OBJECT
public:
    using QWidget::QWidget;
    /// The source is called on the GUI thread and must live as long as the view or be replaced.
    void setColourSource(std::function<QColor()> source);
    /// The colour that the next redraw will use; invalid where there is none.
    QColor colour() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    std::function<QColor()> m_source;
    QColor m_shown; ///< what the last redraw used
};

/// The toolbars and sub-toolbars of the tabs.
class View_Toolbar_BG_Color : public PaintedView {
    Q_OBJECT
public:
    using PaintedView::PaintedView;
};

/// The bar below the list.
class View_Bottom_Bar_BG_Color : public PaintedView {
    Q_OBJECT
public:
    using PaintedView::PaintedView;
};
