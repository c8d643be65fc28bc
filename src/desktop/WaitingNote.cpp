#include "desktop/WaitingNote.h"

#include <QEvent>

namespace desktop {

WaitingNote::WaitingNote(QWidget *over)
    : QLabel(over)
{
    setObjectName(QStringLiteral("labelWaiting"));
    setTextFormat(Qt::PlainText);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    setMargin(8);
    over->installEventFilter(this);
}

void WaitingNote::setText(const QString &text)
{
    m_whole = text;
    setAccessibleName(text);
    setToolTip(text.left(2000));
    place();
    show();
    raise();
}

bool WaitingNote::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize)
        place();
    return QLabel::eventFilter(watched, event);
}

void WaitingNote::place()
{
    const int width = parentWidget()->width();
    QLabel::setText(fontMetrics().elidedText(m_whole, Qt::ElideRight, width - 2 * margin()));
    setGeometry(0, 0, width, sizeHint().height());
}

} // namespace desktop
