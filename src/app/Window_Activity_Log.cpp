#include "app/Window_Activity_Log.h"

#include "app/Window_Alert.h"
#include "runner/ActivityLog.h"
#include "ui_Window_Activity_Log.h"

#include <QClipboard>
#include <QFileDialog>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QSaveFile>
#include <QScrollBar>
#include <QTreeWidgetItem>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

Window_Activity_Log::Window_Activity_Log(ActivityLog *log, QWidget *parent)
    : QWidget(parent, Qt::Window)
    , m_log(log)
    , m_ui(std::make_unique<Ui::Window_Activity_Log>())
{
    m_ui->setupUi(this);
    m_ui->textOutput->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_ui->splitter->setStretchFactor(0, 1);
    m_ui->splitter->setStretchFactor(1, 1);
    const int unit = fontMetrics().averageCharWidth();
    m_ui->listRuns->setColumnWidth(0, unit * 14);
    m_ui->listRuns->setColumnWidth(1, unit * 44);
    // The log may change many times a second and from any thread; the window looks at it twice.
    m_refresh.setSingleShot(true);
    m_refresh.setInterval(200);
    connect(&m_refresh, &QTimer::timeout, this, &Window_Activity_Log::refresh);
    connect(
        m_log, &ActivityLog::changed, this,
        [this] {
            if (isVisible() && !m_refresh.isActive())
                m_refresh.start();
        },
        Qt::QueuedConnection);
    connect(m_ui->listRuns, &QTreeWidget::itemSelectionChanged, this, &Window_Activity_Log::showOutput);
    connect(m_ui->btnCopy, &QPushButton::clicked, this, &Window_Activity_Log::copy);
    connect(m_ui->btnSave, &QPushButton::clicked, this, &Window_Activity_Log::save);
    connect(m_ui->btnClose, &QPushButton::clicked, this, &QWidget::close);
}

Window_Activity_Log::~Window_Activity_Log() = default;

void Window_Activity_Log::refresh()
{
    QTreeWidget *const list = m_ui->listRuns;
    for (qsizetype position = 0; position < m_log->size(); ++position) {
        const Activity activity = m_log->at(position);
        QTreeWidgetItem *item = list->topLevelItem(static_cast<int>(position));
        if (!item) {
            item = new QTreeWidgetItem(list);
            item->setSizeHint(0, { 0, list->fontMetrics().height() + 8 });
        }
        const bool isRun = !activity.command.isEmpty();
        item->setText(0, activity.started.toString(u"HH:mm:ss"_s));
        item->setText(1, activity.outcome.isEmpty() ? tr("is running") : activity.outcome);
        item->setText(2, isRun ? activity.commandLine() : QString::fromUtf8(activity.output));
        for (const int column : { 1, 2 })
            item->setToolTip(column, item->text(column).toHtmlEscaped());
        QFont font = list->font();
        font.setBold(activity.troubled);
        item->setFont(1, font);
    }
    showOutput();
}

void Window_Activity_Log::showOutput()
{
    const QString text = m_ui->listRuns->selectedItems().isEmpty() ? QString() : selectedText();
    if (text == m_shown)
        return;
    // Of a tool that is still at work there will be more: whoever reads keeps the place, and whoever is at the
    // end follows.
    const auto heading = [](const QString &runs) { return runs.section(u'\n', 0, 0); };
    const bool sameRun = !m_shown.isEmpty() && heading(text) == heading(m_shown);
    QScrollBar *const bar = m_ui->textOutput->verticalScrollBar();
    const int place = bar->value() == bar->maximum() ? std::numeric_limits<int>::max() : bar->value();
    m_ui->textOutput->setPlainText(text);
    if (sameRun)
        bar->setValue(qMin(place, bar->maximum()));
    m_shown = text;
}

void Window_Activity_Log::select(qsizetype run)
{
    refresh();
    QTreeWidgetItem *item = m_ui->listRuns->topLevelItem(static_cast<int>(run));
    m_ui->listRuns->setCurrentItem(item);
    m_ui->listRuns->scrollToItem(item);
    m_ui->listRuns->setFocus();
}

QString Window_Activity_Log::selectedText() const
{
    QList<int> positions;
    for (const QTreeWidgetItem *item : m_ui->listRuns->selectedItems())
        positions.append(m_ui->listRuns->indexOfTopLevelItem(const_cast<QTreeWidgetItem *>(item)));
    if (positions.isEmpty())
        return m_log->text();
    std::ranges::sort(positions);
    QString text;
    for (const int position : std::as_const(positions))
        text += ActivityLog::text(m_log->at(position));
    return text;
}

void Window_Activity_Log::copy()
{
    QGuiApplication::clipboard()->setText(selectedText());
}

QString Window_Activity_Log::saveTo(const QString &path) const
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(m_log->text().toUtf8()) < 0 || !file.commit())
        return file.errorString();
    return {};
}

void Window_Activity_Log::save()
{
    const QString path =
        QFileDialog::getSaveFileName(this, tr("Save the activity log"), u"corvalis-activity.txt"_s);
    if (path.isEmpty())
        return;
    const QString failure = saveTo(path);
    if (!failure.isEmpty())
        Window_Alert(
            { tr("The log could not be saved"), path + u'\n' + failure, { tr("Close") }, Alert::Sign::Error },
            this)
            .exec();
}

void Window_Activity_Log::showEvent(QShowEvent *event)
{
    refresh();
    QWidget::showEvent(event);
}

void Window_Activity_Log::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}
