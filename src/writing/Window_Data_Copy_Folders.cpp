#include "writing/Window_Data_Copy_Folders.h"

#include "compilation/FolderTree.h"
#include "compilation/Measuring.h"
#include "ui_Window_Data_Copy_Folders.h"
#include "writing/Job.h"

#include <QFile>
#include <QLocale>

using namespace Qt::StringLiterals;

Window_Data_Copy_Folders::Window_Data_Copy_Folders(SheetStage *stage)
    : WorkSheet(stage, Dismiss::ByPerson)
    , m_ui(std::make_unique<Ui::Window_Data_Copy_Folders>())
{
    m_ui->setupUi(this);
    adopt(m_ui->stopBar);
    windowDidLoad();
}

Window_Data_Copy_Folders::~Window_Data_Copy_Folders() = default;

Spinner *Window_Data_Copy_Folders::pgAnimation() const
{
    return m_ui->pgAnimation;
}

quint64 Window_Data_Copy_Folders::folderSize(const QString &path)
{
    return compilation::treeSize(QFile::encodeName(path).toStdString());
}

void Window_Data_Copy_Folders::windowDidLoad()
{
    m_ui->labelFolder->setTextFormat(Qt::PlainText);
    m_ui->pgAnimation->start();
    timerCloseWindow.setSingleShot(true);
    timerCloseWindow.setTimerType(Qt::PreciseTimer); // others may be early
    connect(&timerCloseWindow, &QTimer::timeout, this, &Window_Data_Copy_Folders::TimerCloseWindow);
    timerCloseWindow.start(100);
}

void Window_Data_Copy_Folders::TimerCloseWindow()
{
    Q_EMIT shown();
}

void Window_Data_Copy_Folders::showProgress(const writing::Progress &progress)
{
    if (progress.count == 0)
        return;
    constexpr int width = 280;
    const QString name =
        fontMetrics().elidedText(QString(progress.item).simplified(), Qt::ElideMiddle, width);
    m_ui->labelFolder->setText(
        tr("%1 (%2 of %3)").arg(name, QString::number(progress.number), QString::number(progress.count)));
    const auto size = [](qint64 bytes) { return compilation::sizeText(static_cast<quint64>(bytes)); };
    const QString files = QLocale().toString(progress.files);
    m_ui->labelGathered->setText(progress.bytesExpected > 0
            ? tr("Files copied: %1 (%2 of %3)").arg(files, size(progress.bytes), size(progress.bytesExpected))
            : tr("Files copied: %1 (%2)").arg(files, size(progress.bytes)));
}
