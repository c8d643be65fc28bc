#include "kit/SheetStage.h"

#include "kit/Sheet.h"

#include <QEvent>
#include <QGridLayout>
#include <QPaintEvent>
#include <QPainter>

SheetStage::SheetStage(QWidget *content)
    : QScrollArea(content->parentWidget())
    , m_content(content)
    , m_ground(new QWidget)
    , m_places(new QGridLayout(m_ground))
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    setWidget(m_ground);
    // The veil has to show what is behind it.
    m_ground->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
    m_places->setContentsMargins(16, 16, 16, 16);
    // In a column of its own width, which decides how high its texts are.
    m_places->setColumnStretch(0, 1);
    m_places->setColumnStretch(2, 1);
    m_places->setRowStretch(0, 1);
    m_places->setRowStretch(2, 5);
    content->installEventFilter(this);
    hide();
}

SheetStage::~SheetStage()
{
    // Also those that have ended or never begun: each speaks to its stage when it goes.
    m_sheets.clear();
    qDeleteAll(m_ground->findChildren<Sheet *>());
}

SheetStage *SheetStage::of(const QWidget *widget)
{
    return widget ? widget->window()->findChild<SheetStage *>() : nullptr;
}

void SheetStage::hold()
{
    ++m_holds;
    update();
}

void SheetStage::release()
{
    Q_ASSERT(m_holds > 0);
    --m_holds;
    update();
}

Sheet *SheetStage::sheet() const
{
    return m_sheets.isEmpty() ? nullptr : m_sheets.last();
}

QWidget *SheetStage::front() const
{
    return m_front ? m_front.data() : sheet();
}

void SheetStage::begin(Sheet *sheet)
{
    m_sheets.append(sheet);
    m_places->addWidget(sheet, 1, 1);
    update();
    sheet->show();
    sheet->raise();
    giveKeyboard();
}

void SheetStage::end(Sheet *sheet)
{
    if (m_sheets.removeAll(sheet) == 0)
        return;
    m_places->removeWidget(sheet);
    update();
    giveKeyboard();
}

void SheetStage::update()
{
    if (m_occupied == isOccupied())
        return;
    m_occupied = isOccupied();
    if (m_occupied)
        m_focusBefore = window()->focusWidget();
    m_content->setEnabled(!m_occupied);
    setGeometry(m_content->geometry());
    setVisible(m_occupied);
    raise();
    if (!m_occupied && m_focusBefore)
        m_focusBefore->setFocus();
    Q_EMIT occupiedChanged(m_occupied);
}

void SheetStage::giveKeyboard()
{
    Sheet *top = sheet();
    if (!top)
        return;
    top->setEnabled(true);
    top->takeKeyboard();
    for (Sheet *below : std::as_const(m_sheets))
        below->setEnabled(below == top);
}

void SheetStage::paintEvent(QPaintEvent *event)
{
    QPainter painter(viewport());
    QColor veil = palette().color(QPalette::Shadow);
    veil.setAlphaF(0.35F);
    painter.fillRect(event->rect(), veil);
}

bool SheetStage::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_content && (event->type() == QEvent::Resize || event->type() == QEvent::Move))
        setGeometry(m_content->geometry());
    return QScrollArea::eventFilter(watched, event);
}
