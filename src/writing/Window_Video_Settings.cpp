#include "writing/Window_Video_Settings.h"

#include "kit/RadioChoice.h"
#include "ui_Window_Video_Settings.h"

#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

void switchOffIfOn(const QRadioButton *pressed, QRadioButton *other)
{
    if (pressed->isChecked())
        other->setChecked(false);
}

} // namespace

Window_Video_Settings::Window_Video_Settings(
    SheetStage *stage, const QString &videoFormat, const QString &audioFormat, bool forPlayers)
    : Sheet(stage, Dismiss::ByPerson)
    , m_ui(std::make_unique<Ui::Window_Video_Settings>())
{
    m_ui->setupUi(this);
    using Handler = void (Window_Video_Settings::*)();
    const std::pair<QRadioButton *, Handler> radios[] = {
        { m_ui->radioVideoNTSC, &Window_Video_Settings::OnVideoNTSC },
        { m_ui->radioVideoPal, &Window_Video_Settings::OnVideoPal },
        { m_ui->radioAudioDolbyDigital, &Window_Video_Settings::OnAudioDolbyDigital },
        { m_ui->radioAudioMPEG2, &Window_Video_Settings::OnAudioMPEG2 },
    };
    for (const auto &row : radios) {
        QRadioButton *const radio = row.first;
        connect(radio, &QRadioButton::clicked, radio, [radio] { radio->setChecked(true); });
        connect(radio, &QRadioButton::clicked, this, row.second);
    }
    connect(m_ui->buttonBox, &QDialogButtonBox::accepted, this, &Window_Video_Settings::OnOK);
    connect(m_ui->buttonBox, &QDialogButtonBox::rejected, this, &Window_Video_Settings::OnCancel);
    m_ui->buttonBox->button(QDialogButtonBox::Ok)->setDefault(true);
    new RadioChoice({ m_ui->radioVideoNTSC, m_ui->radioVideoPal }, this);
    new RadioChoice({ m_ui->radioAudioDolbyDigital, m_ui->radioAudioMPEG2 }, this);
    windowDidLoad(videoFormat, audioFormat);
    m_ui->checkForPlayers->setChecked(forPlayers);
}

Window_Video_Settings::~Window_Video_Settings() = default;

bool Window_Video_Settings::isForPlayers() const
{
    return m_ui->checkForPlayers->isChecked();
}

void Window_Video_Settings::windowDidLoad(const QString &videoFormat, const QString &audioFormat)
{
    const bool ntsc = videoFormat == u"0";
    m_ui->radioVideoNTSC->setChecked(ntsc);
    m_ui->radioVideoPal->setChecked(!ntsc);
    const bool dolby = audioFormat == u"0";
    m_ui->radioAudioDolbyDigital->setChecked(dolby);
    m_ui->radioAudioMPEG2->setChecked(!dolby);
}

void Window_Video_Settings::OnVideoNTSC()
{
    switchOffIfOn(m_ui->radioVideoNTSC, m_ui->radioVideoPal);
}

void Window_Video_Settings::OnVideoPal()
{
    switchOffIfOn(m_ui->radioVideoPal, m_ui->radioVideoNTSC);
}

void Window_Video_Settings::OnAudioDolbyDigital()
{
    switchOffIfOn(m_ui->radioAudioDolbyDigital, m_ui->radioAudioMPEG2);
}

void Window_Video_Settings::OnAudioMPEG2()
{
    switchOffIfOn(m_ui->radioAudioMPEG2, m_ui->radioAudioDolbyDigital);
}

void Window_Video_Settings::OnOK()
{
    Q_EMIT confirmed(m_ui->radioVideoNTSC->isChecked() ? u"0"_s : u"1"_s,
        m_ui->radioAudioDolbyDigital->isChecked() ? u"0"_s : u"1"_s);
}

void Window_Video_Settings::OnCancel()
{
    Q_EMIT dismissed();
}
