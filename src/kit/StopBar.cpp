#include "kit/StopBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

StopBar::StopBar(QWidget *parent)
    : QWidget(parent)
    , m_question(new QLabel(this))
    , m_stop(new QPushButton(tr("&Stop"), this))
    , m_goOn(new QPushButton(tr("&Go On"), this))
    , m_stopNow(new QPushButton(tr("Stop &Now"), this))
{
    m_question->setObjectName(u"labelStopQuestion"_s);
    m_question->setTextFormat(Qt::PlainText);
    m_question->setWordWrap(true);
    m_stop->setObjectName(u"btnStop"_s);
    m_stop->setToolTip(tr("Asks before it stops (Escape)"));
    m_goOn->setObjectName(u"btnGoOn"_s);
    m_goOn->setToolTip(tr("Takes the question back; the work has gone on meanwhile (Escape)"));
    m_stopNow->setObjectName(u"btnStopNow"_s);
    m_stopNow->setToolTip(tr("Ends the work at once"));
    connect(m_stop, &QPushButton::clicked, this, [this] { ask(true); });
    connect(m_goOn, &QPushButton::clicked, this, [this] { ask(false); });
    connect(m_stopNow, &QPushButton::clicked, this, &StopBar::stop);

    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 4, 0, 0);
    rows->addWidget(m_question);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    for (QPushButton *button : { m_stop, m_stopNow, m_goOn })
        buttons->addWidget(button);
    rows->addLayout(buttons);
    for (QWidget *part : { static_cast<QWidget *>(m_question), static_cast<QWidget *>(m_goOn),
             static_cast<QWidget *>(m_stopNow) })
        part->hide();
}

void StopBar::setCost(const QString &cost)
{
    const QString text = tr("Stop now?") + u' ' + cost;
    if (!m_stopped && m_question->text() != text)
        m_question->setText(text);
}

void StopBar::escape()
{
    if (!m_stopped)
        ask(!m_asking);
}

void StopBar::ask(bool asking)
{
    m_asking = asking;
    m_question->setVisible(asking);
    m_goOn->setVisible(asking);
    m_stopNow->setVisible(asking);
    m_stop->setVisible(!asking);
    (asking ? m_goOn : m_stop)->setFocus();
}

void StopBar::stop()
{
    if (m_stopped)
        return;
    m_stopped = true;
    m_question->setText(tr("Stopping…"));
    m_goOn->setEnabled(false);
    m_stopNow->setEnabled(false);
    Q_EMIT stopRequested();
}
