#include "runner/StatusSheets.h"

#include "app/AppDelegate.h"
#include "runner/ActivityLog.h"
#include "ui/SymbolIcon.h"
#include "ui_Window_Operation_Terminated.h"
#include "ui_Window_Performing_Operation.h"
#include "ui_Window_Progress.h"
#include "ui_Window_Unique_Progress.h"

#include <QPushButton>

#include <cmath>

using namespace Qt::StringLiterals;

void showOnBar(QProgressBar *bar, double value)
{
    const double shown =
        std::isnan(value) ? bar->minimum() : qBound<double>(bar->minimum(), value, bar->maximum());
    bar->setValue(static_cast<int>(shown));
}

Window_Progress::Window_Progress(AppDelegate *controller, QWidget *parent)
    : Sheet(parent, Dismiss::ByProgramOnly)
    , m_ui(std::make_unique<Ui::Window_Progress>())
{
    m_ui->setupUi(this);
    connect(this, &Sheet::quitRequested, controller, &AppDelegate::OnMenuQuit);
}

Window_Progress::~Window_Progress() = default;

QLabel *Window_Progress::labelDescription() const
{
    return m_ui->labelDescription;
}

QProgressBar *Window_Progress::progressBar() const
{
    return m_ui->progressBar;
}

QProgressBar *Window_Progress::progressOverall() const
{
    return m_ui->progressOverall;
}

void Window_Progress::showItem(const QString &name, qint64 seconds)
{
    constexpr int width = 360;
    m_ui->labelItem->setTextFormat(Qt::PlainText);
    m_ui->labelItem->setText(
        m_ui->labelItem->fontMetrics().elidedText(QString(name).simplified(), Qt::ElideMiddle, width));
    m_ui->progressBar->setRange(0, static_cast<int>(qMin<qint64>(seconds, INT_MAX)));
    m_ui->progressBar->setValue(0);
}

Window_Unique_Progress::Window_Unique_Progress(AppDelegate *controller, QWidget *parent)
    : Sheet(parent, Dismiss::ByProgramOnly)
    , m_ui(std::make_unique<Ui::Window_Unique_Progress>())
{
    m_ui->setupUi(this);
    connect(this, &Sheet::quitRequested, controller, &AppDelegate::OnMenuQuit);
}

Window_Unique_Progress::~Window_Unique_Progress() = default;

QProgressBar *Window_Unique_Progress::progressBar() const
{
    return m_ui->progressBar;
}

Window_Performing_Operation::Window_Performing_Operation(AppDelegate *controller, QWidget *parent)
    : Sheet(parent, Dismiss::ByProgramOnly)
    , m_ui(std::make_unique<Ui::Window_Performing_Operation>())
{
    m_ui->setupUi(this);
    connect(this, &Sheet::quitRequested, controller, &AppDelegate::OnMenuQuit);
    windowDidLoad();
}

Window_Performing_Operation::~Window_Performing_Operation() = default;

void Window_Performing_Operation::windowDidLoad()
{
    m_ui->labelDescription->setTextFormat(Qt::PlainText);
    m_newestLine = m_ui->labelDescription->text();
    m_ui->pgAnimation->start();
}

Spinner *Window_Performing_Operation::pgAnimation() const
{
    return m_ui->pgAnimation;
}

void Window_Performing_Operation::showNewestLine(const QByteArray &output)
{
    // A piece may end within a line, and within a letter.
    m_unfinished += output;
    const qsizetype end = qMax(m_unfinished.lastIndexOf('\n'), m_unfinished.lastIndexOf('\r'));
    const QByteArray lines = m_unfinished.first(end + 1).trimmed();
    const qsizetype start = qMax(lines.lastIndexOf('\n'), lines.lastIndexOf('\r')) + 1;
    constexpr qsizetype most = 200;
    m_unfinished = m_unfinished.mid(end + 1, most);
    const QString line = QString::fromUtf8(lines.mid(start, most)).simplified();
    if (line.isEmpty())
        return;
    m_newestLine = line;
    m_ui->labelDescription->setText(wrappable(line));
    growToText();
}

QString Window_Performing_Operation::newestLine() const
{
    return m_newestLine;
}

Window_Operation_Terminated::Window_Operation_Terminated(AppDelegate *controller, QWidget *parent)
    : Sheet(parent, Dismiss::ByPerson)
    , m_controller(controller)
    , m_ui(std::make_unique<Ui::Window_Operation_Terminated>())
{
    m_ui->setupUi(this);
    connect(this, &Sheet::quitRequested, controller, &AppDelegate::OnMenuQuit);
    connect(m_ui->buttonBox, &QDialogButtonBox::accepted, this, &Window_Operation_Terminated::OnOK);
    showOutcome();
    m_ui->buttonBox->button(QDialogButtonBox::Ok)->setDefault(true);
    m_ui->buttonBox->button(QDialogButtonBox::Ok)->setFocus();
}

Window_Operation_Terminated::~Window_Operation_Terminated() = default;

void Window_Operation_Terminated::showOutcome()
{
    const QStringList troubles = m_controller->activityLog->troublesSince(m_controller->jobStart);
    const QIcon icon =
        symbolIcon(troubles.isEmpty() ? u"success"_s : u"warning"_s, palette().color(QPalette::WindowText));
    m_ui->labelIcon->setPixmap(icon.pixmap(QSize(32, 32), devicePixelRatioF()));
    m_ui->labelDescription->setTextFormat(Qt::PlainText);
    m_ui->labelDescription->setVisible(!troubles.isEmpty());
    if (troubles.isEmpty())
        return;
    m_ui->labelHeading->setText(tr("The operation has ended, but not everything went well"));
    constexpr qsizetype shown = 3;
    QString text = troubles.first(qMin(shown, troubles.size())).join(u'\n');
    if (troubles.size() > shown)
        text += u'\n' + tr("and %n more", nullptr, static_cast<int>(troubles.size() - shown));
    m_ui->labelDescription->setText(wrappable(text));
    QPushButton *log = m_ui->buttonBox->addButton(tr("Activity Log…"), QDialogButtonBox::ActionRole);
    log->setAutoDefault(false);
    connect(log, &QPushButton::clicked, this, [this] {
        OnOK();
        m_controller->OnMenuActivityLog();
    });
}

void Window_Operation_Terminated::OnOK()
{
    m_controller->Close_Window_Operation_Complete();
}
