#include "ui/Window_Colors.h"

#include "app/AppDelegate.h"
#include "ui/ColourFields.h"
#include "ui_Window_Colors.h"

#include <QPushButton>
#include <QSettings>

#include <array>

using namespace Qt::StringLiterals;

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
    makeButtons();
    windowDidLoad();
}

Window_Colors::~Window_Colors() = default;

void Window_Colors::makeButtons()
{
    struct Row {
        QPushButton *button;
        QLatin1StringView name;
        QString toolTip;
        void (Window_Colors::*action)();
    };
    QDialogButtonBox &box = *m_ui->buttonBox;
    QPushButton *const ok = box.button(QDialogButtonBox::Ok);
    const Row rows[]{
        { ok, "btnOK"_L1, tr("Use these colours"), &Window_Colors::OnOK },
        { box.button(QDialogButtonBox::Cancel), "btnCancel"_L1,
            tr("Close and leave the window as it is (Escape)"), &Window_Colors::OnCancel },
        { box.addButton(tr("Original Colo&urs"), QDialogButtonBox::ResetRole), "btnOriginal"_L1,
            tr("Bring back the colours that Corvalis came with, and keep them even if you cancel"),
            &Window_Colors::OnOriginal },
    };
    for (const auto &[button, name, toolTip, action] : rows) {
        button->setObjectName(name);
        button->setToolTip(toolTip);
        connect(button, &QPushButton::clicked, this, action);
    }
    ok->setDefault(true);
    ok->setFocus();
}

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
