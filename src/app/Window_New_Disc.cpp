#include "app/Window_New_Disc.h"

#include "kit/RadioChoice.h"
#include "ui_Window_New_Disc.h"

#include <QPushButton>

Window_New_Disc::Window_New_Disc(SheetStage *stage, qint64 code, bool emptiesLists)
    : Sheet(stage, Dismiss::ByPerson)
    , m_ui(std::make_unique<Ui::Window_New_Disc>())
{
    m_ui->setupUi(this);
    m_radios = { m_ui->radio1, m_ui->radio2, m_ui->radio3, m_ui->radio4, m_ui->radio5, m_ui->radio6,
        m_ui->radio7, m_ui->radio8 };
    connect(m_ui->buttonBox, &QDialogButtonBox::accepted, this, &Window_New_Disc::OnOK);
    connect(m_ui->buttonBox, &QDialogButtonBox::rejected, this, &Window_New_Disc::OnCancel);
    m_ui->labelNote->setVisible(emptiesLists);
    windowDidLoad(code);
}

Window_New_Disc::~Window_New_Disc() = default;

void Window_New_Disc::windowDidLoad(qint64 code)
{
    // The buttons stand in three groups but exclude each other over all of them, so this class
    // switches the others off, not the toolkit.
    constexpr std::array actions{ &Window_New_Disc::OnRadio1, &Window_New_Disc::OnRadio2,
        &Window_New_Disc::OnRadio3, &Window_New_Disc::OnRadio4, &Window_New_Disc::OnRadio5,
        &Window_New_Disc::OnRadio6, &Window_New_Disc::OnRadio7, &Window_New_Disc::OnRadio8 };
    for (int number = 1; number <= 8; ++number) {
        const auto position = static_cast<std::size_t>(number - 1);
        QRadioButton *radio = m_radios.at(position);
        radio->setChecked(number == code);
        connect(radio, &QRadioButton::clicked, radio, [radio] { radio->setChecked(true); });
        connect(radio, &QRadioButton::clicked, this, actions.at(position));
        if (radio->isChecked())
            radio->setFocus();
    }
    auto *choice = new RadioChoice({ m_radios.begin(), m_radios.end() }, this);
    connect(choice, &RadioChoice::confirmed, this, &Window_New_Disc::OnOK);
    m_ui->buttonBox->button(QDialogButtonBox::Ok)->setDefault(true);
}

void Window_New_Disc::chosen(int number)
{
    const QRadioButton *pressed = m_radios.at(static_cast<std::size_t>(number - 1));
    if (!pressed->isChecked())
        return;
    for (QRadioButton *radio : m_radios) {
        if (radio != pressed)
            radio->setChecked(false);
    }
}

void Window_New_Disc::OnOK()
{
    std::optional<int> code;
    for (int number = 1; number <= 8; ++number) {
        if (m_radios.at(static_cast<std::size_t>(number - 1))->isChecked())
            code = number;
    }
    Q_EMIT confirmed(code);
}

void Window_New_Disc::OnCancel()
{
    Q_EMIT dismissed();
}
