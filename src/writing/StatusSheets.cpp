#include "writing/StatusSheets.h"

#include "kit/SymbolIcon.h"
#include "runner/TimeLeft.h"
#include "ui_Window_Operation_Terminated.h"
#include "ui_Window_Performing_Operation.h"
#include "ui_Window_Progress.h"
#include "ui_Window_Unique_Progress.h"

#include <QPushButton>

#include <cmath>

using namespace Qt::StringLiterals;
using writing::Outcome;
using writing::Progress;
using writing::Stage;

namespace {

/// A name on one line, cut in its middle where the sheet has no room for it.
QString fitted(const QLabel *label, const QString &name)
{
    constexpr int width = 360;
    return label->fontMetrics().elidedText(QString(name).simplified(), Qt::ElideMiddle, width);
}

/// "song.mp3 (2 of 5)".
QString numbered(const QLabel *label, const QString &name, qsizetype number, qsizetype count)
{
    return QCoreApplication::translate("StatusSheets", "%1 (%2 of %3)")
        .arg(fitted(label, name), QString::number(number), QString::number(count));
}

QString percentText(double percent)
{
    return QCoreApplication::translate("StatusSheets", "%1 %").arg(static_cast<int>(percent));
}

/// What is known, in this order, with a separator between.
QString facts(const QStringList &texts)
{
    QStringList known = texts;
    known.removeAll(QString());
    return known.join(u" · "_s);
}

} // namespace

void showOnBar(QProgressBar *bar, double value)
{
    const double shown =
        std::isnan(value) ? bar->minimum() : qBound<double>(bar->minimum(), value, bar->maximum());
    bar->setValue(static_cast<int>(shown));
}

Window_Progress::Window_Progress(SheetStage *stage)
    : WorkSheet(stage, Dismiss::ByPerson)
    , m_ui(std::make_unique<Ui::Window_Progress>())
{
    m_ui->setupUi(this);
    m_ui->labelItem->setTextFormat(Qt::PlainText);
    adopt(m_ui->stopBar);
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

void Window_Progress::showProgress(const Progress &progress)
{
    if (progress.count == 0)
        return;
    m_ui->labelItem->setText(
        facts({ numbered(m_ui->labelItem, progress.item, progress.number, progress.count),
            progress.itemPercent < 0 ? QString() : percentText(progress.itemPercent) }));
    m_ui->labelOverall->setText(
        facts({ tr("All files"), progress.percent < 0 ? QString() : percentText(progress.percent),
            runner::TimeLeft::text(progress.secondsLeft) }));
}

Window_Unique_Progress::Window_Unique_Progress(SheetStage *stage)
    : WorkSheet(stage, Dismiss::ByPerson)
    , m_ui(std::make_unique<Ui::Window_Unique_Progress>())
{
    m_ui->setupUi(this);
    m_ui->labelItem->setTextFormat(Qt::PlainText);
    adopt(m_ui->stopBar);
    setCostOfStopping(tr("The files that were measured so far are added to the list."));
}

Window_Unique_Progress::~Window_Unique_Progress() = default;

QProgressBar *Window_Unique_Progress::progressBar() const
{
    return m_ui->progressBar;
}

void Window_Unique_Progress::showItem(const QString &name, qsizetype number, qsizetype count)
{
    m_ui->labelItem->setText(numbered(m_ui->labelItem, name, number, count));
}

Window_Performing_Operation::Window_Performing_Operation(SheetStage *stage)
    : WorkSheet(stage, Dismiss::ByPerson)
    , m_ui(std::make_unique<Ui::Window_Performing_Operation>())
{
    m_ui->setupUi(this);
    adopt(m_ui->stopBar);
    windowDidLoad();
}

Window_Performing_Operation::~Window_Performing_Operation() = default;

void Window_Performing_Operation::windowDidLoad()
{
    m_ui->labelDescription->setTextFormat(Qt::PlainText);
    m_ui->progressBar->hide();
    m_newestLine = m_ui->labelDescription->text();
    m_ui->pgAnimation->start();
}

Spinner *Window_Performing_Operation::pgAnimation() const
{
    return m_ui->pgAnimation;
}

void Window_Performing_Operation::showProgress(const Progress &progress)
{
    struct Row {
        Stage stage;
        QString heading, advice;
    };
    const QString leave = tr("This can take several minutes. Please leave the disc in the drive.");
    const Row rows[] = {
        { Stage::Authoring, tr("Making the titles and chapters"), tr("This can take several minutes.") },
        { Stage::Imaging, tr("Making the image"), tr("This can take several minutes.") },
        { Stage::Erasing, tr("Erasing the disc"), leave },
        { Stage::Writing, tr("Writing the disc"), leave },
    };
    for (const Row &row : rows) {
        if (row.stage != progress.stage)
            continue;
        m_ui->labelHeading->setText(row.heading);
        setAccessibleName(row.heading);
        m_newestLine = progress.words.isEmpty() ? row.advice : progress.words;
    }
    m_ui->labelDescription->setText(wrappable(m_newestLine));
    const bool known = progress.percent >= 0;
    m_ui->progressBar->setVisible(known);
    if (known)
        showOnBar(m_ui->progressBar, progress.percent * 10);
    m_ui->labelTime->setText(facts({ known ? percentText(progress.percent) : QString(),
        known ? progress.speed : QString(), runner::TimeLeft::text(progress.secondsLeft) }));
}

QString Window_Performing_Operation::newestLine() const
{
    return m_newestLine;
}

Window_Operation_Terminated::Window_Operation_Terminated(SheetStage *stage, const Outcome &outcome)
    : Sheet(stage, Dismiss::ByPerson)
    , m_ui(std::make_unique<Ui::Window_Operation_Terminated>())
{
    m_ui->setupUi(this);
    connect(m_ui->buttonBox, &QDialogButtonBox::accepted, this, &Window_Operation_Terminated::OnOK);
    showOutcome(outcome);
    addButtons(outcome);
}

Window_Operation_Terminated::~Window_Operation_Terminated() = default;

void Window_Operation_Terminated::showOutcome(const Outcome &outcome)
{
    using How = Outcome::How;
    const QString symbol = outcome.how == How::Complete ? u"success"_s
        : outcome.how == How::NotDone                   ? u"error"_s
                                                        : u"warning"_s;
    const QIcon icon = symbolIcon(symbol, palette().color(QPalette::WindowText));
    m_ui->labelIcon->setPixmap(icon.pixmap(QSize(32, 32), devicePixelRatioF()));
    m_ui->labelHeading->setText(outcome.heading);
    constexpr qsizetype shown = 8;
    Outcome trouble = outcome;
    trouble.made.clear();
    trouble.changed.clear();
    Outcome changed;
    changed.changed = outcome.changed;
    const std::pair<QLabel *, QString> texts[] = {
        { m_ui->labelMade, outcome.made },
        { m_ui->labelDescription, trouble.lines(shown).join(u'\n') },
        { m_ui->labelChanged, changed.lines(shown).join(u'\n') },
    };
    for (const auto &[label, text] : texts) {
        label->setTextFormat(Qt::PlainText);
        label->setText(wrappable(text));
        label->setVisible(!text.isEmpty());
    }
}

QPushButton *Window_Operation_Terminated::addButton(
    const QString &title, const QString &name, const QString &toolTip)
{
    QPushButton *button = m_ui->buttonBox->addButton(title, QDialogButtonBox::ActionRole);
    button->setObjectName(name);
    button->setToolTip(toolTip);
    button->setAutoDefault(false);
    return button;
}

void Window_Operation_Terminated::addButtons(const Outcome &outcome)
{
    if (!outcome.folder.isEmpty()) {
        connect(addButton(tr("Show in Folder"), u"btnShowInFolder"_s, tr("Show in its folder what was made")),
            &QPushButton::clicked, this, [this, path = outcome.folder] { Q_EMIT folderWanted(path); });
    }
    if (outcome.how != Outcome::How::Complete) {
        connect(addButton(tr("Activity Log…"), u"btnActivityLog"_s,
                    tr("Show the command that decided, and all it said")),
            &QPushButton::clicked, this, [this, run = outcome.run] { Q_EMIT logWanted(run); });
    }
    if (outcome.onDisc) {
        QPushButton *button = addButton(tr("&Eject"), u"btnEject"_s, tr("Open the tray of the drive"));
        connect(button, &QPushButton::clicked, this, [this, button] { eject(button); });
    }
    if (outcome.repeatable) {
        connect(addButton(tr("&Burn Another"), u"btnBurnAnother"_s,
                    tr("Do the same once more, with the disc that is in the drive then")),
            &QPushButton::clicked, this, &Window_Operation_Terminated::anotherWanted);
    }
    m_ui->buttonBox->button(QDialogButtonBox::Ok)->setDefault(true);
}

void Window_Operation_Terminated::eject(QPushButton *button)
{
    const QPointer<Window_Operation_Terminated> alive(this);
    setEnabled(false);
    Q_EMIT ejectWanted();
    if (!alive)
        return;
    setEnabled(true);
    button->setEnabled(false); // it is out
    m_ui->buttonBox->button(QDialogButtonBox::Ok)->setFocus(Qt::OtherFocusReason);
}

void Window_Operation_Terminated::OnOK()
{
    Q_EMIT closed();
}
