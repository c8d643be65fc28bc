#include "app/BarButton.h"

#include "kit/SymbolIcon.h"
#include "ui/PaintedViews.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <QTextLayout>

namespace {

constexpr int toolIcon = 24;
constexpr int cardIcon = 48;
constexpr int tallCardIcon = 72;
constexpr int tallCard = 200; ///< from this height on a card has its symbol above its text
constexpr int tallestCard = 300;
constexpr int radius = 6;

const PaintedView *barOf(const QWidget *widget)
{
    for (const QWidget *w = widget->parentWidget(); w; w = w->parentWidget()) {
        if (const auto *bar = qobject_cast<const PaintedView *>(w))
            return bar;
    }
    return nullptr;
}

QFont scaled(QFont font, double factor)
{
    font.setPointSizeF(font.pointSizeF() * factor);
    return font;
}

QColor withAlpha(QColor colour, double alpha)
{
    colour.setAlphaF(static_cast<float>(alpha));
    return colour;
}

/// The button for who cannot see it. A mode button is one of several of which one is chosen.
class ButtonFace : public QAccessibleWidget {
public:
    explicit ButtonFace(BarButton *button)
        : QAccessibleWidget(
            button, button->look() == BarButton::Look::Mode ? QAccessible::RadioButton : QAccessible::Button)
    {
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = button()->look() == BarButton::Look::Mode;
        state.checked = button()->isBordered();
        state.pressed = button()->isDown();
        return state;
    }

    QString text(QAccessible::Text kind) const override
    {
        const QString text = QAccessibleWidget::text(kind);
        return text.isEmpty() && kind == QAccessible::Name ? button()->text() : text;
    }

    QStringList actionNames() const override { return { pressAction(), setFocusAction() }; }

    void doAction(const QString &name) override
    {
        if (name == pressAction() && button()->isEnabled())
            button()->animateClick();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    BarButton *button() const { return static_cast<BarButton *>(widget()); }
};

QAccessibleInterface *makeFace(const QString &, QObject *object)
{
    auto *button = qobject_cast<BarButton *>(object);
    return button ? new ButtonFace(button) : nullptr;
}

} // namespace

QColor textColourOnBar(const QWidget *widget)
{
    const PaintedView *bar = barOf(widget);
    const QColor colour = bar ? bar->colour() : QColor();
    return colour.isValid() ? readableTextOn(colour) : widget->palette().color(QPalette::WindowText);
}

BarButton::BarButton(QWidget *parent)
    : QAbstractButton(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::ArrowCursor);
    QAccessible::installFactory(makeFace); // a second time it changes nothing
}

void BarButton::setLook(Look look)
{
    m_look = look;
    const bool card = look == Look::Card;
    setSizePolicy(card ? QSizePolicy::Expanding : QSizePolicy::Fixed,
        card ? QSizePolicy::Expanding : QSizePolicy::Fixed);
    setMaximumHeight(card ? tallestCard : QWIDGETSIZE_MAX);
    updateGeometry();
}

void BarButton::setSymbol(const QString &name)
{
    m_symbol = name;
    updateGeometry();
}

void BarButton::setDescription(const QString &text)
{
    m_description = text;
    updateGeometry();
}

void BarButton::setBordered(bool bordered)
{
    const bool isNew = bordered != m_bordered;
    m_bordered = bordered;
    update();
    if (!isNew)
        return;
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

void BarButton::setPossibleTexts(const QStringList &texts)
{
    m_possibleTexts = texts;
    updateGeometry();
}

int BarButton::widestText(const QFontMetrics &metrics) const
{
    int widest = metrics.horizontalAdvance(text());
    for (const QString &text : m_possibleTexts)
        widest = qMax(widest, metrics.horizontalAdvance(text));
    return widest;
}

QFont BarButton::headingFont() const
{
    QFont heading = font();
    if (m_look == Look::Card || m_look == Look::Prominent) {
        heading.setBold(true);
        heading = scaled(heading, 1.1);
    } else if (m_look == Look::Mode && m_bordered) {
        heading.setBold(true);
    }
    return heading;
}

QSize BarButton::sizeHint() const
{
    QFont widest = headingFont();
    widest.setBold(true);
    const QFontMetrics metrics(m_look == Look::Mode ? widest : headingFont());
    const QSize text(widestText(metrics), metrics.height());
    switch (m_look) {
    case Look::Tool:
        return { qMax(64, text.width() + 16), 6 + toolIcon + 4 + text.height() + 6 };
    case Look::Mode:
        return { text.width() + 24, text.height() + 10 };
    case Look::Card:
        return { 320, qMax(cardIcon, text.height() * 4) + 40 };
    case Look::Prominent:
        return { qMax(200, toolIcon + 10 + text.width() + 40), qMax(48, text.height() + 24) };
    }
    Q_UNREACHABLE();
}

QSize BarButton::minimumSizeHint() const
{
    if (m_look != Look::Card)
        return sizeHint();
    // A heading and two lines; three rows of cards have to fit into the smallest window.
    return { 220, qMax(cardIcon, QFontMetrics(headingFont()).height() * 3) + 24 };
}

QRect BarButton::mirrored(const QRect &where) const
{
    return QStyle::visualRect(layoutDirection(), rect(), where);
}

void BarButton::paintSymbol(QPainter &painter, const QRect &where, const QColor &colour) const
{
    if (!m_symbol.isEmpty())
        symbolIcon(m_symbol, colour)
            .paint(&painter, where, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
}

void BarButton::paintBackground(QPainter &painter, const QColor &text) const
{
    const bool pressed = isDown() && isEnabled();
    const bool hovered = underMouse() && isEnabled();
    double layer = m_look == Look::Card ? 0.10 : m_bordered ? 0.14 : 0.0;
    layer += pressed ? 0.18 : hovered ? 0.10 : 0.0;
    const QRectF frame = QRectF(rect()).adjusted(1, 1, -1, -1);
    painter.setPen(m_bordered ? QPen(text, 1.5) : QPen(Qt::NoPen));
    // Never nearer to the text: what is chosen or under the pointer stays as readable as the rest.
    painter.setBrush(withAlpha(readableTextOn(text), layer));
    if (m_look == Look::Prominent) {
        const double strength = !isEnabled() ? 0.4 : pressed ? 0.80 : hovered ? 1.0 : 0.92;
        painter.setBrush(withAlpha(text, strength));
    }
    painter.drawRoundedRect(frame, radius, radius);
    if (hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        const bool filled = m_look == Look::Prominent;
        painter.setPen(QPen(filled ? readableTextOn(text) : withAlpha(text, 0.85), 1.5, Qt::DotLine));
        painter.drawRoundedRect(frame.adjusted(3, 3, -3, -3), radius - 2, radius - 2);
    }
}

void BarButton::paintSymbolOverText(QPainter &painter, const QColor &text) const
{
    const int top = (height() - (toolIcon + 4 + fontMetrics().height())) / 2;
    paintSymbol(painter, { (width() - toolIcon) / 2, top, toolIcon, toolIcon }, text);
    painter.drawText(QRect(0, top + toolIcon + 4, width(), fontMetrics().height()), Qt::AlignCenter,
        fontMetrics().elidedText(this->text(), Qt::ElideRight, width() - 4));
}

void BarButton::paintSymbolBesideText(QPainter &painter, const QColor &text) const
{
    const int iconWidth = m_symbol.isEmpty() ? 0 : toolIcon + 10;
    const QString shown =
        painter.fontMetrics().elidedText(this->text(), Qt::ElideRight, width() - iconWidth - 16);
    const int textWidth = painter.fontMetrics().horizontalAdvance(shown);
    const int left = (width() - iconWidth - textWidth) / 2;
    paintSymbol(painter, mirrored({ left, (height() - toolIcon) / 2, toolIcon, toolIcon }), text);
    painter.drawText(
        mirrored({ left + iconWidth, 0, textWidth + 1, height() }), Qt::AlignVCenter | Qt::AlignLeft, shown);
}

QStringList BarButton::descriptionLines(int width, int most) const
{
    QStringList lines;
    QTextLayout layout(m_description, font());
    layout.beginLayout();
    while (lines.size() < most) {
        QTextLine line = layout.createLine();
        if (!line.isValid())
            break;
        line.setLineWidth(width);
        const bool isLast = lines.size() + 1 == most;
        lines.append(isLast
                ? fontMetrics().elidedText(m_description.mid(line.textStart()), Qt::ElideRight, width)
                : m_description.mid(line.textStart(), line.textLength()));
    }
    layout.endLayout();
    return lines;
}

void BarButton::paintCard(QPainter &painter, const QColor &text) const
{
    constexpr int margin = 20;
    const bool tall = height() >= tallCard;
    const int icon = tall ? tallCardIcon : cardIcon;
    const int left = tall ? margin : margin * 2 + icon;
    if (tall)
        painter.setFont(scaled(painter.font(), 1.2));
    const int above = tall ? icon + 16 : 0;
    const QRect room(left, 8, width() - left - margin, height() - above - 16);
    const int headingHeight = painter.fontMetrics().height() + 4;
    const int lineHeight = fontMetrics().lineSpacing();
    const QStringList lines = descriptionLines(room.width(), (room.height() - headingHeight) / lineHeight);
    int top = (height() - above - headingHeight - lineHeight * static_cast<int>(lines.size())) / 2;
    const QPoint corner = tall ? QPoint((width() - icon) / 2, top) : QPoint(margin, (height() - icon) / 2);
    paintSymbol(painter, mirrored({ corner, QSize(icon, icon) }), text);
    top += above;
    const auto place =
        static_cast<int>(tall ? Qt::AlignHCenter | Qt::AlignTop : Qt::AlignLeft | Qt::AlignTop);
    painter.drawText(mirrored({ left, top, room.width(), headingHeight }), place,
        painter.fontMetrics().elidedText(this->text(), Qt::ElideRight, room.width()));
    top += headingHeight;
    painter.setFont(font());
    painter.setPen(withAlpha(text, isEnabled() ? 0.85 : 0.4));
    for (const QString &line : lines) {
        painter.drawText(mirrored({ left, top, room.width(), lineHeight }), place, line.trimmed());
        top += lineHeight;
    }
}

void BarButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor text = textColourOnBar(this);
    paintBackground(painter, text);
    if (m_look == Look::Prominent)
        text = readableTextOn(text);
    painter.setFont(headingFont());
    painter.setPen(isEnabled() ? text : withAlpha(text, 0.4));
    switch (m_look) {
    case Look::Tool:
        return paintSymbolOverText(painter, text);
    case Look::Mode:
    case Look::Prominent:
        return paintSymbolBesideText(painter, text);
    case Look::Card:
        return paintCard(painter, text);
    }
}

void BarButton::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        animateClick();
    else
        QAbstractButton::keyPressEvent(event);
}

void BarButton::enterEvent(QEnterEvent *event)
{
    QAbstractButton::enterEvent(event);
    update();
}

void BarButton::leaveEvent(QEvent *event)
{
    QAbstractButton::leaveEvent(event);
    update();
}

void BarButton::changeEvent(QEvent *event)
{
    QAbstractButton::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        updateGeometry();
}

void BarLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(textColourOnBar(this));
    painter.drawText(rect(), static_cast<int>(alignment()) | Qt::TextSingleLine,
        fontMetrics().elidedText(text(), Qt::ElideRight, width()));
}
