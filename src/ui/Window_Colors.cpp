#include "ui/Window_Colors.h"

#include "ui/ColourWell.h"
#include "ui_Window_Colors.h"

#include <QPushButton>

#include <array>

using namespace Qt::StringLiterals;

namespace {

/// The wells in the order of the fields.
std::array<ColourWell *, 5> wells(const Ui::Window_Colors &sheet)
{
    return { sheet.colorListBackground, sheet.colorListForeground, sheet.colorToolbar, sheet.colorBottomBar,
        sheet.colorSpaceOccupied };
}

} // namespace

Window_Colors::Window_Colors(SheetStage *stage, const QList<QColor> &colours, bool alternatingRows)
    : Sheet(stage, Dismiss::ByPerson)
    , m_ui(std::make_unique<Ui::Window_Colors>())
{
    m_ui->setupUi(this);
    makeButtons();
    showScheme(colours, alternatingRows);
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

void Window_Colors::showScheme(const QList<QColor> &colours, bool alternatingRows)
{
    const auto all = wells(*m_ui);
    for (std::size_t i = 0; i < all.size(); ++i)
        all[i]->setColour(colours.at(static_cast<qsizetype>(i)));
    m_ui->check_Alternating_Rows->setChecked(alternatingRows);
}

void Window_Colors::OnOK()
{
    QList<QColor> colours;
    for (const ColourWell *well : wells(*m_ui))
        colours.append(well->colour());
    Q_EMIT confirmed(colours, m_ui->check_Alternating_Rows->isChecked());
}

void Window_Colors::OnCancel()
{
    Q_EMIT dismissed();
}

void Window_Colors::OnOriginal()
{
    Q_EMIT originalWanted();
}
