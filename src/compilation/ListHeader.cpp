#include "compilation/ListHeader.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionHeader>

int ListStyle::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const
{
    const bool isMargin = metric == PM_HeaderMargin || metric == PM_FocusFrameHMargin;
    return isMargin ? room : QProxyStyle::pixelMetric(metric, option, widget);
}

/// Cells have their text a unit further in than the room beside it (PM_FocusFrameHMargin + 1).
QRect ListStyle::textOf(const QStyleOptionHeader &heading)
{
    return heading.rect.adjusted(room + 1, 0, -room - 1, 0);
}

QRect ListStyle::markOf(const QStyleOptionHeader &heading)
{
    const QRect line = textOf(heading);
    const int size = heading.fontMetrics.xHeight() + 2;
    const int text = heading.fontMetrics.horizontalAdvance(heading.text);
    const int behind = qMin(text + markRoom - size, line.width() - size);
    QRect mark(line.left() + behind, line.center().y() - size / 2 + 1, size, size);
    if (heading.textAlignment & Qt::AlignRight)
        mark.moveLeft(line.right() + 1 - behind - size);
    return visualRect(heading.direction, heading.rect, mark);
}

void ListStyle::drawControl(
    ControlElement element, const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    const auto *heading = qstyleoption_cast<const QStyleOptionHeaderV2 *>(option);
    if (element != CE_Header || !heading)
        return QProxyStyle::drawControl(element, option, painter, widget);
    painter->save();
    painter->setClipRect(heading->rect);
    drawControl(CE_HeaderSection, heading, painter, widget);
    QStyleOptionHeaderV2 part(*heading);
    part.rect = textOf(*heading);
    drawControl(CE_HeaderLabel, &part, painter, widget);
    if (heading->sortIndicator != QStyleOptionHeader::None) {
        part.rect = markOf(*heading);
        drawPrimitive(PE_IndicatorHeaderArrow, &part, painter, widget);
    }
    painter->restore();
}

ListHeader::ListHeader(ListStyle *style, QWidget *parent)
    : QHeaderView(Qt::Horizontal, parent)
{
    setStyle(style);
    setHighlightSections(false);
    setSectionsClickable(true);
    setFixedHeight(fontMetrics().height() + 12);
    setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

int ListHeader::widestHeading() const
{
    int widest = 0;
    for (int section = 0; section < count(); ++section) {
        const QString text = model()->headerData(section, Qt::Horizontal, Qt::DisplayRole).toString();
        widest = qMax(widest, fontMetrics().horizontalAdvance(text));
    }
    return widest + 2 * ListStyle::room + ListStyle::markRoom;
}

void ListHeader::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    // The handle between two columns gets its double click, which fits the width to the texts.
    if (cursor().shape() == Qt::SplitHCursor)
        QHeaderView::mouseDoubleClickEvent(event);
    else
        mousePressEvent(event);
}
