#include "kit/RadioChoice.h"

#include <QKeyEvent>
#include <QRadioButton>

#include <algorithm>

RadioChoice::RadioChoice(const QList<QRadioButton *> &buttons, QObject *parent)
    : QObject(parent)
    , m_buttons(buttons)
{
    for (QRadioButton *button : m_buttons) {
        button->setAutoExclusive(false);
        button->installEventFilter(this);
        connect(button, &QRadioButton::toggled, this, &RadioChoice::offerToTab);
    }
    offerToTab();
}

void RadioChoice::offerToTab()
{
    const bool none = std::ranges::none_of(m_buttons, &QRadioButton::isChecked);
    for (QRadioButton *button : m_buttons) {
        const bool offered = button->isChecked() || (none && button == m_buttons.first());
        button->setFocusPolicy(offered ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

bool RadioChoice::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonDblClick) {
        Q_EMIT confirmed();
        return true;
    }
    if (event->type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<QKeyEvent *>(event)->key();
    const bool forward = key == Qt::Key_Down || key == Qt::Key_Right;
    if (!forward && key != Qt::Key_Up && key != Qt::Key_Left)
        return false;
    const auto at = std::ranges::find(m_buttons, watched) - m_buttons.begin();
    const qsizetype count = m_buttons.size();
    QRadioButton *next = m_buttons.at((at + (forward ? 1 : count - 1)) % count);
    next->setFocus();
    next->click();
    return true;
}
