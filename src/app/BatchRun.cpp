#include "app/BatchRun.h"

#include "app/AppDelegate.h"
#include "app/MainWindow.h"
#include "app/Surface.h"
#include "app/Window_New_Disc.h"
#include "runner/ActivityLog.h"
#include "runner/StatusSheets.h"
#include "ui_MainWindow.h"
#include "writing/Window_Data_Copy_Folders.h"

#include <QDir>
#include <QFileInfo>
#include <QProgressBar>
#include <QRadioButton>

#include <cstdio>
#include <sys/ioctl.h>
#include <unistd.h>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// The columns of the terminal on standard output; 0 where there is no terminal.
int terminalWidth()
{
    winsize size{};
    if (!::isatty(STDOUT_FILENO))
        return 0;
    return ::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : 80;
}

} // namespace

int BatchQuestions::ask(const Alert &alert, QWidget *over)
{
    m_alerted = true;
    if (m_beforeAlert)
        m_beforeAlert();
    std::fprintf(stderr, "%s\n%s\n", surface::printable(alert.message).constData(),
        surface::printable(alert.informative).constData());
    return m_show ? m_windows.ask(alert, over) : 0;
}

QList<QUrl> BatchQuestions::choose(const OpenPanel &panel, QWidget *over)
{
    const QList<QUrl> answer = std::exchange(m_answer, {});
    return answer.isEmpty() && m_show ? m_windows.choose(panel, over) : answer;
}

BatchRun::BatchRun(
    const BatchJob &job, AppDelegate *controller, BatchQuestions *questions, std::function<void(int)> finish)
    : m_job(job)
    , m_controller(controller)
    , m_questions(questions)
    , m_finish(std::move(finish))
{
    m_questions->setBeforeAlert([this] { endLine(); });
    m_progress.setInterval(200);
    connect(&m_progress, &QTimer::timeout, this, &BatchRun::showProgress);
}

QString BatchRun::meantPath(const QString &argument)
{
    const QString path = QDir::current().absoluteFilePath(argument);
    const QFileInfo info(path);
    if (!path.split(u'/').contains(u".."_s) || !info.exists())
        return QDir::cleanPath(path);
    // Behind a link to a folder, ".." is above the folder and not above the link.
    const QString name = info.fileName();
    return name == ".."_L1 || name == "."_L1 || name.isEmpty() ? info.canonicalFilePath()
                                                               : QDir(info.canonicalPath()).filePath(name);
}

QString BatchRun::objection(const BatchJob &job)
{
    const bool data = job.type->tab == 2;
    for (const QString &path : job.paths) {
        const QFileInfo info(path);
        if (!info.exists())
            return tr("%1: there is no such file or folder.").arg(path);
        if (data && !info.isDir())
            return tr("%1 is no folder: a data disc is made of folders.").arg(path);
        if (data)
            continue;
        const QStringList &accepted = AppDelegate::acceptedExtensions(
            job.type->tab == 0 ? AppDelegate::ListKind::Audio : AppDelegate::ListKind::Video);
        if (!info.isFile() || !accepted.contains(info.suffix(), Qt::CaseInsensitive)) {
            return tr("%1 is not a file that this disc can take. Accepted are: %2.")
                .arg(path, accepted.join(u", "_s));
        }
    }
    return {};
}

void BatchRun::start()
{
    connect(m_controller, &AppDelegate::operationCompleted, this, &BatchRun::completed, Qt::QueuedConnection);
    connect(m_controller, &AppDelegate::addingEnded, this, &BatchRun::burn, Qt::QueuedConnection);
    m_progress.start();
    chooseType();
    add();
}

void BatchRun::chooseType()
{
    m_controller->ShowNewDiscWindow();
    m_controller->windowNewDisc->findChild<QRadioButton *>(u"radio%1"_s.arg(m_job.type->code))->click();
    m_controller->windowNewDisc->OnOK();
}

void BatchRun::add()
{
    QList<QUrl> urls;
    for (const QString &path : m_job.paths)
        urls.append(QUrl::fromLocalFile(path));
    const bool data = m_job.type->tab == 2;
    if (!data)
        m_questions->answerNextPanelWith(urls);
    for (qsizetype i = 0; data && i < urls.size(); ++i) {
        m_questions->answerNextPanelWith({ urls.at(i) });
        m_controller->OnActionDataAddFolder();
    }
    if (data || urls.isEmpty())
        return burn();
    if (m_job.type->tab == 0)
        m_controller->OnActionAudioAddFiles();
    else
        m_controller->OnActionVideoAddFiles();
}

void BatchRun::burn()
{
    m_controller->ui->btnBurn->click();
    if (m_questions->alerted())
        end(1);
}

void BatchRun::completed()
{
    const QStringList troubles = m_controller->activityLog->troublesSince(m_controller->jobStart);
    printLine(Stage::Done,
        troubles.isEmpty() ? tr("Operation complete")
                           : tr("The operation has ended, but not everything went well"));
    end(0);
    for (const QString &trouble : troubles)
        std::fprintf(stderr, "%s\n", surface::printable(trouble).constData());
    if (m_job.show)
        return;
    m_controller->Close_Window_Operation_Complete();
    m_finish(0);
}

void BatchRun::end(int status)
{
    m_progress.stop();
    endLine();
    if (status != 0 && !m_job.show)
        m_finish(status);
}

void BatchRun::showProgress()
{
    if (const Window_Unique_Progress *adding = m_controller->windowUniqueProgress) {
        printLine(Stage::Adding,
            tr("Adding files: %1 of %2")
                .arg(adding->progressBar()->value())
                .arg(adding->progressBar()->maximum()));
    } else if (const Window_Progress *converting = m_controller->windowProgress) {
        printLine(Stage::Converting,
            tr("Converting: file %1 of %2, %3 %")
                .arg(qMin(
                    converting->progressOverall()->value() + 1, converting->progressOverall()->maximum()))
                .arg(converting->progressOverall()->maximum())
                .arg(static_cast<int>(m_controller->percentTranscoded)));
    } else if (m_controller->windowDataCopyFolders) {
        printLine(Stage::Gathering, tr("Gathering the folders"));
    } else if (const Window_Performing_Operation *working = m_controller->windowPerformingOperation) {
        printLine(Stage::Writing, working->newestLine());
    }
}

void BatchRun::printLine(Stage stage, const QString &line)
{
    if (line == m_lastLine)
        return;
    // In a file each is a line of its own: one for each stage, and a sign of life now and then.
    constexpr qint64 sign = 5000;
    const bool newStage = std::exchange(m_stage, stage) != stage;
    if (terminalWidth() == 0 && !newStage && m_sinceLine.elapsed() < sign)
        return;
    m_sinceLine.start();
    m_lastLine = line;
    // On a terminal one line is written over and over, which only works as long as it does not wrap.
    if (const int width = terminalWidth())
        std::printf("\r\033[K%s", surface::printable(line.left(width - 1)).constData());
    else
        std::printf("%s\n", surface::printable(line).constData());
    std::fflush(stdout);
}

void BatchRun::endLine()
{
    if (!m_lastLine.isEmpty() && terminalWidth() > 0)
        std::printf("\n");
    m_lastLine.clear();
    std::fflush(stdout);
}
