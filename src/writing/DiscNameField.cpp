#include "writing/DiscNameField.h"

#include "app/BarButton.h"
#include "kit/SymbolIcon.h"
#include "writing/DiscName.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLineEdit>

using namespace Qt::StringLiterals;

DiscNameField::DiscNameField(QWidget *parent)
    : View_Bottom_Bar_BG_Color(parent)
    , m_heading(new BarLabel(tr("Disc name"), this))
    , m_edit(new QLineEdit(this))
    , m_sentence(new BarLabel(this))
{
    constexpr int width = 220, most = 255;
    m_heading->setObjectName(u"labelDiscName"_s);
    m_heading->setBuddy(m_edit);
    m_heading->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    m_edit->setObjectName(u"editDiscName"_s);
    m_edit->setFixedWidth(width);
    m_edit->setMaxLength(most); // of a pasted text; a name that is too long by less stays to be mended
    m_edit->setPlaceholderText(tr("Chosen for you"));
    m_edit->setAccessibleName(tr("Name of the disc"));
    m_edit->setToolTip(tr("What the disc is called where it is put in"));
    m_sentence->setObjectName(u"labelDiscNameSentence"_s);
    m_sentence->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(16, 10, 16, 0);
    row->setSpacing(8);
    row->addWidget(m_heading);
    row->addWidget(m_edit);
    row->addWidget(m_sentence, 1);
    row->addStretch();
    connect(m_edit, &QLineEdit::textChanged, this, [this](const QString &name) {
        check();
        Q_EMIT nameChanged(name);
    });
    check();
}

void DiscNameField::setName(const QString &name)
{
    m_edit->setText(name);
}

QString DiscNameField::name() const
{
    return m_edit->text();
}

void DiscNameField::takeKeyboard()
{
    m_edit->setFocus(Qt::OtherFocusReason);
    m_edit->selectAll();
}

void DiscNameField::check()
{
    const writing::DiscNameCheck found = writing::checkDiscName(m_edit->text());
    const qsizetype length = writing::discNameLength(m_edit->text());
    const QString count = tr("%1 of %2", "characters").arg(length).arg(writing::longestDiscName);
    const QString sentence = found.wrong.isEmpty() ? found.remark : found.wrong;
    m_sentence->setText(length == 0 ? QString() : sentence.isEmpty() ? count : sentence);
    m_sentence->setVisible(length > 0);
    m_sentence->setToolTip(sentence); // where the window is too narrow for it
    m_edit->setAccessibleDescription(sentence);
    mark(found.wrong);
}

void DiscNameField::mark(const QString &wrong)
{
    if (wrong.isEmpty()) {
        delete m_mark;
        m_mark = nullptr;
        return;
    }
    if (!m_mark) {
        m_mark = m_edit->addAction(
            symbolIcon(u"warning"_s, palette().color(QPalette::Text)), QLineEdit::TrailingPosition);
        m_mark->setObjectName(u"markDiscName"_s);
    }
    m_mark->setText(wrong);
    m_mark->setToolTip(wrong);
}
