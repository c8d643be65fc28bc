#include "app/Window_Alert.h"

#include "kit/SheetStage.h"
#include "kit/SymbolIcon.h"
#include "ui_Window_Alert.h"

#include <QClipboard>
#include <QEventLoop>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QStringTokenizer>
#include <QStyle>
#include <QtMath>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int textWidth = 380;
/// About what stands around a report: frame, sign, the other text, buttons.
constexpr QSize aroundReport(128, 176);
constexpr QSize leastReport(textWidth, 80);

/// A text that would make an alert taller than the window behind it.
bool isLong(const QString &text)
{
    return text.count(u'\n') > 8 || text.size() > 600;
}

/// The toolkit ends a text at a NUL in some places and not in others.
QString shown(QString text)
{
    return text.replace(QChar::Null, QChar::ReplacementCharacter);
}

/// What a field can lay out in a moment. Nobody reads more of what a tool that ran wild has printed.
QString beginning(const QString &text)
{
    constexpr qsizetype most = 512 * 1024;
    return text.size() <= most ? text : text.first(most) + u'…';
}

/// Lines of a fixed-width text as a field shows them without a scroll bar, no larger than `room`.
QSize extent(const QString &text, const QFontMetrics &metrics, const QSize &room)
{
    constexpr int higherThanAScreen = 100'000;
    int width = 0;
    int height = 0;
    for (const QStringView line : QStringTokenizer(text, u'\n')) {
        height += metrics.lineSpacing();
        const bool isWide = line.size() > 4096 || width >= room.width();
        width = isWide ? room.width() : qMax(width, metrics.horizontalAdvance(line.toString()));
        if (height > higherThanAScreen)
            break;
    }
    return QSize(width, height).boundedTo(room);
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
    showSign(alert.sign);
    showTexts(alert);
    addButtons(alert.buttons);
    layout()->setSizeConstraint(QLayout::SetMinAndMaxSize);
}

Window_Alert::~Window_Alert() = default;

void Window_Alert::showSign(Alert::Sign sign)
{
    struct Row {
        Alert::Sign sign;
        QString symbol;
        QString name;
    };
    const Row rows[]{
        { Alert::Sign::Note, u"info-emblem"_s, tr("Note") },
        { Alert::Sign::Warning, u"warning"_s, tr("Warning") },
        { Alert::Sign::Error, u"error"_s, tr("Error") },
    };
    const auto &row = *std::ranges::find(rows, sign, &Row::sign);
    const QIcon icon = symbolIcon(row.symbol, palette().color(QPalette::WindowText));
    m_ui->labelIcon->setPixmap(icon.pixmap(QSize(32, 32), devicePixelRatioF()));
    m_ui->labelIcon->setAccessibleName(row.name);
}

void Window_Alert::showTexts(const Alert &alert)
{
    QFont heading = font();
    heading.setBold(true);
    m_ui->labelMessage->setFont(heading);
    const QString message = shown(alert.message);
    const QString informative = shown(alert.informative);
    const bool messageInReport = alert.report == Alert::Report::Message || isLong(message);
    const bool informativeInReport = alert.report == Alert::Report::Informative || isLong(informative);
    // Also an unseen label lays its text out, which takes long for what a tool printed.
    const auto showLabel = [](QLabel *label, const QString &text) {
        label->setText(text);
        label->setMinimumWidth(textWidth);
        label->setVisible(!text.isEmpty());
    };
    showLabel(m_ui->labelMessage, messageInReport ? QString() : message);
    showLabel(m_ui->labelInformative, informativeInReport ? QString() : informative);
    m_ui->textReport->setVisible(messageInReport || informativeInReport);
    m_ui->textReport->setAccessibleName(messageInReport ? tr("Report") : message);
    if (messageInReport)
        m_ui->textLayout->insertWidget(0, m_ui->textReport);
    if (messageInReport && informativeInReport)
        showReport(message + u"\n\n"_s + informative);
    else if (messageInReport || informativeInReport)
        showReport(messageInReport ? message : informative);
}

QSize Window_Alert::roomForReport() const
{
    const QSize screenRoom = screen()->availableGeometry().size();
    const QSize room = parentWidget() ? parentWidget()->window()->size() : screenRoom;
    return (room.boundedTo(screenRoom) - aroundReport).expandedTo(leastReport);
}

void Window_Alert::showReport(const QString &text)
{
    QPlainTextEdit *const field = m_ui->textReport;
    field->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    field->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    const QString seen = beginning(text);
    field->setPlainText(seen);
    // As large as its text, within reason; the rest scrolls. One bar takes room from the other direction.
    // A line that touches the lower rim counts as one that does not fit.
    const int rim = 2 * (field->frameWidth() + qCeil(field->document()->documentMargin())) + 1;
    const QSize room = roomForReport() - QSize(rim, rim);
    const QSize all = extent(seen, field->fontMetrics(), room);
    const int bar = field->style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, field);
    const QSize bars(all.height() == room.height() ? bar : 0, all.width() == room.width() ? bar : 0);
    const QSize size = all + QSize(rim + field->cursorWidth(), rim) + bars;
    // Else each of the two bars asks for the other while the window finds its size.
    if (all.width() < room.width())
        field->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    field->setMinimumWidth(qMax(size.width(), textWidth));
    field->setFixedHeight(size.height());
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
