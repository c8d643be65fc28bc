#include "app/BatchRun.h"

#include "app/AppDelegate.h"
#include "app/BatchMedia.h"
#include "app/MainWindow.h"
#include "app/Surface.h"
#include "app/Window_New_Disc.h"
#include "ui_MainWindow.h"

#include <QDir>
#include <QFileInfo>
#include <QRadioButton>

#include <algorithm>
#include <cstdio>
#include <limits>
#include <sys/ioctl.h>
#include <unistd.h>
#include <utility>

using namespace Qt::StringLiterals;
using compilation::Wanted;
using ListKind = AppDelegate::ListKind;

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
    m_questions->setBeforeAlert([this] {
        m_show = {};
        endLine();
    });
    m_look.setInterval(200);
    connect(&m_look, &QTimer::timeout, this, &BatchRun::show);
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
    if (job.forPlayers && job.type->code != 4)
        return playersNeedVideo();
    const ListKind kind = job.type->tab == 0 ? ListKind::Audio : ListKind::Video;
    const QStringList &accepted = AppDelegate::acceptedExtensions(kind);
    QList<Wanted> wanted;
    for (const QString &path : job.paths) {
        const QFileInfo info(path);
        if (!info.exists())
            return tr("%1: there is no such file or folder.").arg(path);
        if (data && !info.isDir() && !info.isFile())
            return tr("%1 is no file or folder, and a data disc is made of these.").arg(path);
        if (data)
            continue;
        if (!info.isFile())
            return tr("%1 is not a file that this disc can take. Accepted are: %2.")
                .arg(path, accepted.join(u", "_s));
        const QUrl url = QUrl::fromLocalFile(path);
        wanted.append({ url, compilation::wayOf(url, accepted) });
    }
    return batch::objectionToMedia(kind, wanted);
}

QString BatchRun::playersNeedVideo()
{
    return tr("--for-players goes with --burn \"Video DVD\".");
}

void BatchRun::start()
{
    connect(m_controller, &AppDelegate::operationCompleted, this, &BatchRun::completed, Qt::QueuedConnection);
    connect(m_controller, &AppDelegate::addingEnded, this, &BatchRun::burn, Qt::QueuedConnection);
    connect(m_controller, &AppDelegate::addingProgressed, this, [this](qsizetype done, qsizetype count) {
        m_show = [this, done, count] { showAdding(done, count); };
    });
    connect(m_controller, &AppDelegate::jobBegan, this, [this](writing::Job *job) {
        connect(job, &writing::Job::progressed, this, [this](const writing::Progress &progress) {
            m_show = [this, progress] { showProgress(progress); };
        });
        connect(job, &writing::Job::ended, this,
            [this](const writing::Outcome &outcome) { m_outcome = outcome; });
    });
    m_look.start();
    chooseType();
    add();
}

void BatchRun::chooseType()
{
    m_controller->ShowNewDiscWindow();
    m_controller->windowNewDisc->findChild<QRadioButton *>(u"radio%1"_s.arg(m_job.type->code))->click();
    m_controller->windowNewDisc->OnOK();
    if (m_job.forPlayers)
        m_controller->forPlayers = true;
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
        if (QFileInfo(m_job.paths.at(i)).isDir())
            m_controller->OnActionDataAddFolder();
        else
            m_controller->OnActionDataAddFiles();
    }
    if (data || urls.isEmpty())
        return burn();
    const bool isAudio = m_job.type->tab == 0;
    const QStringList &accepted =
        AppDelegate::acceptedExtensions(isAudio ? ListKind::Audio : ListKind::Video);
    const bool asEver = std::ranges::all_of(
        urls, [&](const QUrl &url) { return compilation::wayOf(url, accepted) == Wanted::Way::Listed; });
    if (isAudio)
        asEver ? m_controller->OnActionAudioAddFiles() : m_controller->OnActionAudioAddOther();
    else
        asEver ? m_controller->OnActionVideoAddFiles() : m_controller->OnActionVideoAddOther();
}

void BatchRun::burn()
{
    m_questions->forgetAlerts(); // of the adding; the list is as it could be made
    m_controller->ui->btnBurn->click();
    if (!m_questions->alerted())
        return;
    m_look.stop();
    endLine();
    constexpr int notWritten = 1;
    if (!m_job.show)
        m_finish(notWritten);
}

bool BatchRun::stop()
{
    if (!m_controller->job)
        return false;
    m_controller->job->stop();
    return true;
}

void BatchRun::show()
{
    if (const auto print = std::exchange(m_show, {}))
        print();
}

void BatchRun::completed()
{
    m_look.stop();
    show();
    printLine(Stage::Done, m_outcome.heading);
    endLine();
    constexpr qsizetype all = std::numeric_limits<qsizetype>::max();
    writing::Outcome trouble = m_outcome;
    trouble.made.clear();
    for (const QString &line : trouble.lines(all))
        std::fprintf(stderr, "%s\n", surface::printable(line).constData());
    if (m_job.show)
        return;
    m_controller->Close_Window_Operation_Complete();
    m_finish(m_outcome.exitStatus());
}

void BatchRun::showAdding(qsizetype done, qsizetype count)
{
    printLine(Stage::Adding, tr("Adding files: %1 of %2").arg(done).arg(count));
}

void BatchRun::showProgress(const writing::Progress &progress)
{
    using writing::Stage;
    switch (progress.stage) {
    case Stage::Converting:
        if (progress.count == 0)
            return;
        return printLine(BatchRun::Stage::Converting,
            tr("Converting: file %1 of %2, %3 %")
                .arg(progress.number)
                .arg(progress.count)
                .arg(static_cast<int>(qMax(0.0, progress.itemPercent))));
    case Stage::Authoring:
        return printLine(BatchRun::Stage::Authoring, tr("Making the titles and chapters"));
    case Stage::Gathering:
        return printLine(BatchRun::Stage::Gathering, tr("Gathering the folders"));
    default:
        m_newTenth = progress.percent >= 0 && static_cast<int>(progress.percent / 10) != m_tenth;
        if (!progress.words.isEmpty())
            printLine(BatchRun::Stage::Writing, progress.words);
        if (m_newTenth)
            m_tenth = static_cast<int>(progress.percent / 10);
        m_newTenth = false;
    }
}

void BatchRun::printLine(Stage stage, const QString &line)
{
    if (line == m_lastLine)
        return;
    // In a file each is a line of its own: one for each stage and each tenth of the writing, and a sign of life.
    constexpr qint64 sign = 5000;
    const bool newStage = std::exchange(m_stage, stage) != stage;
    if (terminalWidth() == 0 && !newStage && !m_newTenth && m_sinceLine.elapsed() < sign)
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
