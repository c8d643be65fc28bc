#include "app/Sheet.h"

#include <QAction>
#include <QCloseEvent>
#include <QDialogButtonBox>
#include <QLayout>
#include <QPainter>
#include <QPushButton>

Sheet::Sheet(QWidget *parent, Dismiss dismiss)
    : QDialog(parent, Qt::Sheet | Qt::FramelessWindowHint)
    , m_dismiss(dismiss)
{
    setWindowModality(Qt::WindowModal);
    auto *quit = new QAction(this);
    quit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
    connect(quit, &QAction::triggered, this, &Sheet::quitRequested);
    addAction(quit);
}

void Sheet::beginSheet()
{
    setWindowTitle(parentWidget()->windowTitle());
    parentWidget()->window()->installEventFilter(this);
    // Some styles put signs on the standard buttons, and only on these.
    for (const auto *box : findChildren<QDialogButtonBox *>())
        for (QAbstractButton *button : box->buttons())
            button->setIcon({});
    adjustSize();
    growToText();
    show();
}

void Sheet::endSheet()
{
    hide();
    deleteLater();
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

void Sheet::growToText()
{
    layout()->activate(); // it remembers how high the old text was
    resize(width(), qMax(height(), heightForWidth(width())));
}

void Sheet::reject()
{
    if (m_dismiss == Dismiss::ByPerson)
        cancelled();
}

void Sheet::closeEvent(QCloseEvent *event)
{
    // Closing asked for from outside means the whole window: the sheet has no close button of its own.
    event->ignore();
    Q_EMIT quitRequested();
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

void Sheet::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    placeOverParent();
}

bool Sheet::eventFilter(QObject *watched, QEvent *event)
{
    if (isVisible() && (event->type() == QEvent::Resize || event->type() == QEvent::Move))
        placeOverParent();
    return QDialog::eventFilter(watched, event);
}

void Sheet::placeOverParent()
{
    const QWidget *owner = parentWidget()->window();
    const QPoint corner = owner->mapToGlobal(QPoint((owner->width() - width()) / 2, owner->height() / 7));
    move(corner);
}

SheetHeading::SheetHeading(QWidget *parent)
    : QLabel(parent)
{
    QFont heading = font();
    heading.setBold(true);
    heading.setPointSizeF(heading.pointSizeF() * 1.15);
    setFont(heading);
    setWordWrap(true);
}
