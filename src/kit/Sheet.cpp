#include "kit/Sheet.h"

#include "kit/SheetStage.h"

#include <QDialogButtonBox>
#include <QPainter>
#include <QPushButton>

#include <algorithm>

Sheet::Sheet(SheetStage *stage, Dismiss dismiss)
    : QDialog(stage->ground())
    , m_stage(stage)
    , m_dismiss(dismiss)
{
    setWindowFlags(Qt::Widget); // the dialog's constructor makes a window of itself
}

Sheet::~Sheet()
{
    if (m_stage)
        m_stage->end(this);
}

void Sheet::beginSheet()
{
    // Some styles put signs on the standard buttons, and only on these.
    for (const auto *box : findChildren<QDialogButtonBox *>())
        for (QAbstractButton *button : box->buttons())
            button->setIcon({});
    // Outside a window of its own, a default button that is automatic too stops being one with the first other focus.
    for (QPushButton *button : findChildren<QPushButton *>()) {
        if (button->isDefault())
            button->setAutoDefault(false);
    }
    if (const auto *heading = findChild<SheetHeading *>())
        setAccessibleName(heading->text());
    m_stage->begin(this);
}

void Sheet::endSheet()
{
    hide();
    if (m_stage)
        m_stage->end(this);
    deleteLater();
}

void Sheet::takeKeyboard()
{
    QWidget *receiver = focusWidget();
    const auto buttons = findChildren<QPushButton *>();
    if (!receiver) {
        const auto found = std::ranges::find_if(
            buttons, [](const QPushButton *button) { return button->isDefault() && button->isEnabled(); });
        receiver = found != buttons.end() ? *found : nullptr;
    }
    for (QPushButton *button : buttons) {
        if (!receiver && button->isVisibleTo(this) && button->isEnabled())
            receiver = button;
    }
    if (receiver)
        receiver->setFocus();
}

QString Sheet::wrappable(const QString &text)
{
    constexpr qsizetype longestRun = 40;
    constexpr QChar zeroWidthSpace(0x200b);
    QString broken;
    qsizetype run = 0;
    for (const QChar character : text) {
        run = character.isSpace() ? 0 : run + 1;
        if (run > longestRun && !character.isLowSurrogate()) {
            broken += zeroWidthSpace;
            run = 1;
        }
        broken += character;
    }
    return broken;
}

void Sheet::reject()
{
    if (m_dismiss == Dismiss::ByPerson)
        cancelled();
}

void Sheet::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Window));
    QColor border = palette().color(QPalette::WindowText);
    border.setAlphaF(0.35F);
    painter.setPen(border);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

/// Not the dialog's own: that one would place it as a window on the screen.
void Sheet::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
}

SheetHeading::SheetHeading(QWidget *parent)
    : QLabel(parent)
{
    QFont heading = font();
    heading.setBold(true);
    heading.setPointSizeF(heading.pointSizeF() * 1.15);
    setFont(heading);
    setWordWrap(true);
    setTextFormat(Qt::PlainText);
}
