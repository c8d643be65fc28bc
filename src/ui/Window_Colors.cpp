#include "ui/Window_Colors.h"

#include "app/AppDelegate.h"
#include "ui/ColourFields.h"
#include "ui_Window_Colors.h"

#include <QSettings>

#include <array>

namespace {

/// The wells in the order of the fields.
std::array<ColourWell *, colourFields.size()> wells(const Ui::Window_Colors &sheet)
{
    return { sheet.colorListBackground, sheet.colorListForeground, sheet.colorToolbar, sheet.colorBottomBar,
        sheet.colorSpaceOccupied };
}

} // namespace

Window_Colors::Window_Colors(AppDelegate *controller, QWidget *parent)
    : Sheet(parent, Dismiss::ByPerson)
    , m_controller(controller)
    , m_ui(std::make_unique<Ui::Window_Colors>())
{
    m_ui->setupUi(this);
    connect(this, &Sheet::quitRequested, controller, &AppDelegate::OnMenuQuit);
    connect(m_ui->btnOK, &QPushButton::clicked, this, &Window_Colors::OnOK);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &Window_Colors::OnCancel);
    connect(m_ui->btnOriginal, &QPushButton::clicked, this, &Window_Colors::OnOriginal);
    m_ui->btnOK->setFocus();
    windowDidLoad();
}

Window_Colors::~Window_Colors() = default;

void Window_Colors::windowDidLoad()
{
    m_ui->check_Alternating_Rows->setChecked(m_controller->b_List_Alternating_Rows == 1);
    showColours();
}

void Window_Colors::showColours()
{
    const auto all = wells(*m_ui);
    for (std::size_t i = 0; i < all.size(); ++i)
        all[i]->setColour(m_controller->*colourFields[i].field);
}

void Window_Colors::OnOK()
{
    m_controller->b_List_Alternating_Rows = m_ui->check_Alternating_Rows->isChecked() ? 1 : 0;
    const auto all = wells(*m_ui);
    for (std::size_t i = 0; i < all.size(); ++i)
        m_controller->*colourFields[i].field = all[i]->colour();
    m_controller->OK_Window_Colors();
}

void Window_Colors::OnCancel()
{
    m_controller->Cancel_Window_Colors();
}

void Window_Colors::OnOriginal()
{
    QSettings &preferences = *m_controller->preferences;
    for (const auto &[role, field] : colourFields)
        m_controller->*field = ColourScheme::storeShippedColour(preferences, role);
    ColourScheme::storeAlternatingRows(preferences, 1);
    m_controller->savePreferences();
    showColours();
    m_ui->check_Alternating_Rows->setChecked(true);
}
