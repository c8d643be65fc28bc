#include "writing/Window_Data_Copy_Folders.h"

#include "app/AppDelegate.h"
#include "runner/ActivityLog.h"
#include "ui_Window_Data_Copy_Folders.h"
#include "writing/DiscForms.h"
#include "writing/FolderStaging.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPointer>
#include <QThreadPool>

#include <thread>

using namespace Qt::StringLiterals;

Window_Data_Copy_Folders::Window_Data_Copy_Folders(AppDelegate *controller, QWidget *parent)
    : Sheet(parent, Dismiss::ByProgramOnly)
    , m_controller(controller)
    , m_ui(std::make_unique<Ui::Window_Data_Copy_Folders>())
{
    m_ui->setupUi(this);
    connect(this, &Sheet::quitRequested, controller, &AppDelegate::OnMenuQuit);
    windowDidLoad();
}

Window_Data_Copy_Folders::~Window_Data_Copy_Folders() = default;

Spinner *Window_Data_Copy_Folders::pgAnimation() const
{
    return m_ui->pgAnimation;
}

quint64 Window_Data_Copy_Folders::folderSize(const QString &path)
{
    return AppDelegate::folderSize(path);
}

QString Window_Data_Copy_Folders::copyDestination(const QString &dataFolder, const QString &name)
{
    const auto taken = [](const QString &path) {
        return QFileInfo::exists(path) || QFileInfo(path).isSymLink();
    };
    if (!taken(u"%1/%2"_s.arg(dataFolder, name)))
        return dataFolder;
    for (qint64 n = 1;; ++n) {
        const QString numbered = u"%1/%2"_s.arg(dataFolder, writing::suffixedName(name, u" %1"_s.arg(n)));
        if (!taken(numbered))
            return numbered;
    }
}

void Window_Data_Copy_Folders::windowDidLoad()
{
    m_ui->labelFolder->setTextFormat(Qt::PlainText);
    m_ui->pgAnimation->start();
    timerCloseWindow.setSingleShot(true);
    timerCloseWindow.setTimerType(Qt::PreciseTimer); // others round a minute, and may be half a second early
    connect(&timerCloseWindow, &QTimer::timeout, this, &Window_Data_Copy_Folders::TimerCloseWindow);
    timerCloseWindow.start(100);
}

void Window_Data_Copy_Folders::TimerCloseWindow()
{
    disconnect(&timerCloseWindow, nullptr, this, nullptr);
    connect(&timerCloseWindow, &QTimer::timeout, this, &Window_Data_Copy_Folders::poll);
    copyNextFolder();
}

void Window_Data_Copy_Folders::copyNextFolder()
{
    ++m_index;
    if (m_index >= m_controller->arrayDataFolders.size()) {
        Q_EMIT stagingEnded();
        return;
    }
    i_Last_Size = 0;
    const QString source = m_controller->arrayDataFolders.at(m_index).s_Path;
    const QString name = source.mid(source.lastIndexOf(u'/') + 1);
    m_target = u"%1/%2"_s.arg(m_controller->s_Data_Folder, name);
    const QString destination = copyDestination(m_controller->s_Data_Folder, name);
    QDir().mkpath(destination);
    showFolder(name);
    startCopy(source, destination);
    timerCloseWindow.start(m_controller->around.stagingPoll);
}

void Window_Data_Copy_Folders::showFolder(const QString &name)
{
    constexpr int width = 280;
    const QString shown = fontMetrics().elidedText(QString(name).simplified(), Qt::ElideMiddle, width);
    m_ui->labelFolder->setText(tr("%1 (%2 of %3)")
                                   .arg(shown, QString::number(m_index + 1),
                                       QString::number(m_controller->arrayDataFolders.size())));
}

void Window_Data_Copy_Folders::startCopy(const QString &source, const QString &destination)
{
    m_copy = std::make_shared<writing::CopyState>();
    m_controller->stagingCopies.append(m_copy);
    // A thread of its own: a copy from a server that has gone away must not keep the pool's threads.
    std::thread([copy = m_copy, log = m_controller->activityLog,
                    from = QFile::encodeName(source).toStdString(),
                    to = QFile::encodeName(destination).toStdString(),
                    never = QFile::encodeName(m_controller->s_Data_Folder).toStdString()] {
        writing::copyFolder(from, to, never, *copy, [log](const std::string &failure) {
            log->note(tr("Not copied"), QString::fromStdString(failure));
        });
    }).detach();
}

void Window_Data_Copy_Folders::poll()
{
    QThreadPool::globalInstance()->start(
        [sheet = QPointer(this), controller = m_controller, target = m_target] {
            const auto copied = static_cast<double>(folderSize(target) >> 10);
            QMetaObject::invokeMethod(
                controller,
                [sheet, copied] {
                    if (sheet)
                        sheet->measured(copied);
                },
                Qt::QueuedConnection);
        });
}

void Window_Data_Copy_Folders::measured(double copied)
{
    // The size is always taken at the unnumbered path, also for a folder that went into a numbered one.
    const auto expected = static_cast<double>(m_controller->arrayDataFolders.at(m_index).i_Size_in_KBytes);
    if (copied < expected && copied != i_Last_Size) {
        i_Last_Size = copied;
        timerCloseWindow.start(m_controller->around.stagingPoll);
        return;
    }
    copyNextFolder();
}
