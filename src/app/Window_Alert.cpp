#include "app/Window_Alert.h"

#include "kit/SheetStage.h"
#include "kit/SymbolIcon.h"
#include "ui_Window_Alert.h"

#include <QClipboard>
#include <QEventLoop>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QPushButton>
#include <QShortcut>

using namespace Qt::StringLiterals;

namespace {

constexpr int textWidth = 380;

/// A text that would make an alert taller than the window behind it.
bool isLong(const QString &text)
{
    return text.count(u'\n') > 8 || text.size() > 600;
}

} // namespace

Window_Alert::Window_Alert(const Alert &alert, QWidget *over)
    : QDialog(over)
    , m_ui(std::make_unique<Ui::Window_Alert>())
    , m_dismissed(alert.dismissed >= 0 ? alert.dismissed : static_cast<int>(alert.buttons.size()) - 1)
{
    m_ui->setupUi(this);
    setWindowTitle(over ? over->window()->windowTitle() : QString());
    setWindowModality(Qt::ApplicationModal);
    const bool question = alert.buttons.size() > 1;
    const QIcon icon = symbolIcon(alert.fixedWidth ? u"info-emblem"_s
            : question                             ? u"warning"_s
                                                   : u"info-emblem"_s,
        palette().color(QPalette::WindowText));
    m_ui->labelIcon->setPixmap(icon.pixmap(QSize(32, 32), devicePixelRatioF()));
    showTexts(alert);
    addButtons(alert.buttons);
    layout()->setSizeConstraint(QLayout::SetMinAndMaxSize);
}

Window_Alert::~Window_Alert() = default;

void Window_Alert::showTexts(const Alert &alert)
{
    QFont heading = font();
    heading.setBold(true);
    m_ui->labelMessage->setFont(heading);
    const bool longMessage = isLong(alert.message);
    const bool report = alert.fixedWidth || longMessage || isLong(alert.informative);
    m_ui->labelMessage->setText(longMessage ? QString() : alert.message);
    m_ui->labelMessage->setVisible(!longMessage);
    m_ui->labelMessage->setMinimumWidth(textWidth);
    const bool informativeInReport = report && !longMessage;
    // Also an unseen label lays its text out, which takes long for what a tool printed.
    m_ui->labelInformative->setText(informativeInReport ? QString() : alert.informative);
    m_ui->labelInformative->setMinimumWidth(textWidth);
    m_ui->labelInformative->setVisible(!informativeInReport && !alert.informative.isEmpty());
    m_ui->textReport->setVisible(report);
    if (report)
        showReport(longMessage ? alert.message : alert.informative, alert.fixedWidth);
    m_ui->textReport->setAccessibleName(longMessage ? tr("Report") : alert.message);
}

void Window_Alert::showReport(const QString &text, bool columns)
{
    QPlainTextEdit *const field = m_ui->textReport;
    field->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    field->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    field->setPlainText(text);
    // As high as its text, within reason; the rest scrolls.
    constexpr qsizetype most = 14;
    const auto lines = static_cast<int>(columns ? qBound(qsizetype{ 5 }, text.count(u'\n') + 2, most) : most);
    field->setMinimumWidth(field->fontMetrics().averageCharWidth() * 80);
    field->setFixedHeight(field->fontMetrics().lineSpacing() * lines);
    // Where nothing is selected, the whole report is what one wants to paste into a letter.
    auto *copy = new QShortcut(QKeySequence::Copy, this);
    connect(copy, &QShortcut::activated, field, [field, text] {
        if (field->textCursor().hasSelection())
            field->copy();
        else
            QGuiApplication::clipboard()->setText(text);
    });
}

void Window_Alert::addButtons(const QStringList &titles)
{
    for (int position = 0; position < titles.size(); ++position) {
        QPushButton *button = m_ui->buttonBox->addButton(
            titles.at(position), position == 0 ? QDialogButtonBox::AcceptRole : QDialogButtonBox::RejectRole);
        button->setAutoDefault(true);
        connect(button, &QPushButton::clicked, this, [this, position] { done(position); });
        if (position == 0) {
            button->setDefault(true);
            button->setFocus();
        }
    }
}

int Window_Alert::askOver(SheetStage *stage)
{
    setWindowModality(Qt::NonModal);
    addActions(stage->window()->actions());
    QWidget *const before = stage->front();
    stage->hold();
    stage->setFront(this);
    QEventLoop answered;
    connect(this, &QDialog::finished, &answered, &QEventLoop::quit);
    show();
    raise();
    activateWindow();
    answered.exec();
    stage->setFront(qobject_cast<Window_Alert *>(before));
    stage->release();
    return result();
}

void Window_Alert::reject()
{
    done(m_dismissed);
}
