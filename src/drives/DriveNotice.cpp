#include "drives/DriveNotice.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

using namespace Qt::StringLiterals;

DriveNotice::DriveNotice(QWidget *parent)
    : QFrame(parent)
    , m_row(new QHBoxLayout(this))
    , m_text(new QLabel(this))
{
    setObjectName(u"noticeDrive"_s);
    setAutoFillBackground(true);
    m_text->setObjectName(u"labelDriveNotice"_s);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    auto *closer = new QToolButton(this);
    closer->setObjectName(u"btnCloseDriveNotice"_s);
    closer->setAutoRaise(true);
    closer->setText(u"✕"_s);
    closer->setAccessibleName(tr("Close this notice"));
    closer->setToolTip(tr("Close this notice"));
    closer->setFocusPolicy(Qt::TabFocus);
    m_row->setContentsMargins(16, 8, 8, 8);
    m_row->setSpacing(8);
    m_row->addWidget(m_text, 1);
    m_row->addWidget(closer);
    connect(closer, &QToolButton::clicked, this, &DriveNotice::takeAway);
    hide();
}

void DriveNotice::tell(const QString &text)
{
    takeAway();
    m_text->setText(text);
    show();
}

void DriveNotice::offer(
    const QString &text, const QString &title, const QString &toolTip, std::function<void()> act)
{
    tell(text);
    m_button = new QPushButton(title, this);
    m_button->setObjectName(u"btnDriveNotice"_s);
    m_button->setToolTip(toolTip);
    m_row->insertWidget(1, m_button);
    m_button->show();
    connect(m_button, &QPushButton::clicked, this, [this, act = std::move(act)] {
        takeAway();
        act();
    });
}

void DriveNotice::takeAway()
{
    if (m_button) {
        m_button->hide();
        m_button->deleteLater(); // it may be what was pressed
        m_button = nullptr;
    }
    hide();
}

QString DriveNotice::text() const
{
    return isHidden() ? QString() : m_text->text();
}
