#include "ui/ColourWell.h"

#include <QColorDialog>
#include <QPainter>

using namespace Qt::StringLiterals;

ColourWell::ColourWell(QWidget *parent)
    : QPushButton(parent)
{
    setAutoDefault(false);
    setColour({});
    connect(this, &QPushButton::clicked, this, &ColourWell::choose);
}

void ColourWell::setColour(const QColor &colour)
{
    setAccessibleDescription(colour.isValid() ? colour.name() : tr("No colour"));
    setToolTip(colour.isValid() ? tr("%1: press to choose another colour").arg(colour.name())
                                : tr("No colour: press to choose one"));
    const bool changes = colour != m_colour;
    m_colour = colour;
    update();
    if (changes)
        Q_EMIT colourChanged(colour);
}

QSize ColourWell::sizeHint() const
{
    return QSize(72, QPushButton::sizeHint().height()).expandedTo({ 0, 28 });
}

void ColourWell::choose()
{
    auto *dialog = new QColorDialog(m_colour, this);
    dialog->setObjectName(u"colourDialog"_s);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(accessibleName());
    connect(dialog, &QColorDialog::colorSelected, this, &ColourWell::setColour);
    dialog->open();
}

void ColourWell::paintEvent(QPaintEvent *event)
{
    QPushButton::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF well = QRectF(rect()).adjusted(6.5, 6.5, -6.5, -6.5);
    QColor border = palette().color(QPalette::ButtonText);
    border.setAlphaF(0.4F);
    painter.setPen(border);
    painter.setBrush(m_colour.isValid() ? m_colour : QColor(Qt::transparent));
    painter.drawRoundedRect(well, 2, 2);
    if (!m_colour.isValid())
        painter.drawLine(well.bottomLeft(), well.topRight());
}
