#include "writing/Job.h"

#include "compilation/Measuring.h"
#include "writing/FolderClaim.h"
#include "writing/TitleAuthoring.h"

#include <QFileInfo>
#include <QRegularExpression>

using namespace Qt::StringLiterals;
using runner::ToolEnd;
using runner::ToolProgress;
using runner::ToolRun;

namespace writing {

namespace {

using Phase = ToolProgress::Phase;

/// How our disc tools begin a line that tells of something left out or changed, and the words for the former.
constexpr QLatin1StringView notePrefix("note: ");
constexpr QLatin1StringView leftOutWords("left out");

QString joined(const QString &one, const QString &other)
{
    return one.isEmpty() || other.isEmpty() ? one + other : one + u' ' + other;
}

} // namespace

Job::Job(Work work, EndingPatience patience)
    : m_work(std::move(work))
    , m_patience(patience)
    , m_drive(m_work.drive)
{
    m_clock.start();
}

Job::~Job()
{
    watch(nullptr, m_progress.stage, false);
}

bool Job::claim()
{
    m_claim = FolderClaim::take(m_work.workingFolder);
    return m_claim != nullptr;
}

void Job::enter(Stage stage)
{
    m_progress = {};
    m_progress.stage = stage;
    m_phase = Phase::Other;
    m_doneWeight = m_weight = m_weights = 0;
    m_timeLeft.reset();
    Q_EMIT progressed(m_progress);
}

void Job::beginItem(const QString &name, qsizetype number, qsizetype count, qint64 weight, qint64 weights)
{
    m_doneWeight = number == 1 ? 0 : m_doneWeight + m_weight;
    m_weight = weight;
    m_weights = weights;
    m_progress.item = name;
    m_progress.number = number;
    m_progress.count = count;
    itemProgressed(0);
}

void Job::itemProgressed(double percent)
{
    m_progress.itemPercent = percent;
    const double done = static_cast<double>(m_doneWeight) * 100 + static_cast<double>(m_weight) * percent;
    tell(m_weights > 0 ? done / static_cast<double>(m_weights) : -1);
}

void Job::gathered(const QString &folder, qsizetype number, qsizetype count, qint64 files, qint64 bytes,
    qint64 bytesExpected)
{
    m_progress.item = folder;
    m_progress.number = number;
    m_progress.count = count;
    m_progress.files = files;
    m_progress.bytes = bytes;
    m_progress.bytesExpected = bytesExpected;
    tell(bytesExpected > 0
            ? qMin(100.0, static_cast<double>(bytes) * 100 / static_cast<double>(bytesExpected))
            : -1);
}

void Job::watch(ToolRun *run, Stage stage, bool decides)
{
    if (m_watched)
        m_watched->leaveToItself();
    m_watched = run;
    if (!run)
        return;
    if (decides || m_progress.stage != stage)
        enter(stage);
    m_lines = {};
    m_lastWords.clear();
    // Before all other handlers of its end: they read what was decided.
    connect(run, &ToolRun::ended, this, [this, run, decides] {
        if (decides)
            decided(*run);
    });
    if (decides) {
        connect(run, &ToolRun::printed, this, [this](const QByteArray &piece) {
            for (const QString &line : m_lines.take(piece))
                readLine(line);
        });
    }
}

void Job::readLine(const QString &line)
{
    // The folder is told of a drive whose discs lie in one.
    static const QRegularExpression drive(
        u"^Burning in (drive .)(?:: (.+?))?\\.(?: Its discs lie in \"(/.*)\"\\.)?$"_s);
    if (m_progress.stage == Stage::Authoring)
        return readAuthoring(line);
    constexpr qsizetype most = 200;
    m_progress.words = forPerson(line.left(most).simplified());
    if (line.startsWith(notePrefix)) {
        readNote(line.mid(notePrefix.size()));
    } else if (const auto told = runner::readProgress(line)) {
        return readProgress(*told);
    } else if (const auto match = drive.match(line); match.hasMatch()) {
        m_driveNumber = match.captured(1).right(1);
        m_drive = match.captured(match.hasCaptured(2) ? 2 : 1);
        m_driveFolder = QFileInfo(match.captured(3)).isDir() ? match.captured(3) : QString();
    } else {
        m_lastWords = line;
    }
    Q_EMIT progressed(m_progress);
}

void Job::readAuthoring(const QString &line)
{
    const AuthoringLine told = authoringLine(line);
    if (!told.failure.isEmpty())
        m_lastWords = told.failure;
    if (told.doing.isEmpty())
        return;
    m_progress.words = forPerson(told.doing);
    Q_EMIT progressed(m_progress);
}

void Job::readNote(const QString &note)
{
    if (note.contains(leftOutWords))
        leaveOut(note, m_watched ? m_watched->position() : -1);
    else
        m_changed.append(forPerson(note).simplified());
}

void Job::readProgress(const ToolProgress &told)
{
    m_phase = told.phase;
    m_progress.speed = told.speed;
    // Erasing before a write, and what comes before and between, takes its own time: the bar waits.
    const bool ofWriting =
        told.phase == Phase::Writing || told.phase == Phase::Comparing || m_progress.stage != Stage::Writing;
    double percent = told.percent;
    if (percent >= 0 && m_work.compared && m_progress.stage == Stage::Writing)
        percent = told.phase == Phase::Comparing ? 50 + percent / 2 : percent / 2;
    tell(ofWriting && percent >= 0 ? percent : m_progress.percent);
}

void Job::tell(double percent)
{
    m_progress.percent = percent;
    m_progress.secondsLeft = m_timeLeft.at(percent, m_clock.elapsed());
    Q_EMIT progressed(m_progress);
}

/// An image or titles that are made to be written are not yet what the job is for.
bool Job::isLastWork() const
{
    if (m_work.result == Work::Result::Image)
        return m_progress.stage == Stage::Imaging;
    return m_progress.stage != Stage::Imaging && m_progress.stage != Stage::Authoring;
}

void Job::decided(const ToolRun &run)
{
    if (!m_lines.rest().trimmed().isEmpty())
        readLine(m_lines.rest().trimmed());
    const bool well = !run.end().troubled();
    if (isLastWork())
        m_done = well;
    // The first trouble decides, but a person who stopped a job wants to know in what state the disc is.
    if (well || (!m_reason.isEmpty() && run.end().how != ToolEnd::How::Stopped))
        return;
    m_decidingRun = run.position();
    m_reason = reasonOf(run);
}

QString Job::reasonOf(const ToolRun &run) const
{
    const ToolEnd &end = run.end();
    // The tool would speak of a folder that nobody knows.
    if (m_nothing && end.how == ToolEnd::How::Ended
        && (m_lastWords.contains("empty"_L1) || m_lastWords.isEmpty()))
        return tr("There was nothing left to write. The disc is as it was.");
    // What a tool said before a signal ended it tells nothing of that end.
    const bool endedItself = end.how == ToolEnd::How::Ended
        || (end.how == ToolEnd::How::Stopped && run.state() == QProcess::NotRunning
            && run.exitStatus() == QProcess::NormalExit);
    const QString tool = QFileInfo(run.program()).fileName();
    if (m_progress.stage == Stage::Authoring && endedItself && !m_lastWords.isEmpty())
        return tr("%1 could not make the titles: %2. The disc is as it was.")
            .arg(tool, forPerson(m_lastWords));
    // Our tools begin a failure with their name, as command-line programs do.
    if (endedItself && !m_lastWords.isEmpty())
        return forPerson(m_lastWords.mid(m_lastWords.startsWith(tool + u": "_s) ? tool.size() + 2 : 0));
    const QString happened = end.how == ToolEnd::How::Stopped ? QString() : end.sentence(tool) + u'.';
    return joined(
        happened, end.how == ToolEnd::How::CouldNotStart ? tr("The disc is as it was.") : stateOfDisc());
}

QString Job::stateOfDisc() const
{
    if (m_progress.stage == Stage::Imaging)
        return tr("There is no usable image.");
    if (m_progress.stage == Stage::Erasing)
        return tr("The disc has to be erased again before it can be used.");
    if (m_phase == Phase::Preparing || m_progress.stage != Stage::Writing)
        return tr("The disc is as it was.");
    if (m_phase == Phase::Comparing)
        return tr("The disc is written, but was not compared.");
    return m_work.rewritable ? tr("The disc is incomplete: erase it before you use it again.")
                             : tr("The disc is incomplete and cannot be used any more.");
}

void Job::describe(const QString &content, qint64 bytes)
{
    m_content = content;
    m_bytes = bytes;
}

void Job::fail(const QString &reason)
{
    if (m_reason.isEmpty())
        m_reason = reason;
}

void Job::leaveOut(const QString &what, qsizetype run)
{
    m_leftOut.append(forPerson(what).simplified());
    if (m_leftOutRun < 0)
        m_leftOutRun = run;
}

void Job::stop()
{
    if (m_stopping)
        return;
    m_stopping = true;
    if (m_watched)
        m_watched->stop(patience());
    Q_EMIT stopping();
}

int Job::patience() const
{
    switch (m_progress.stage) {
    case Stage::Erasing:
    case Stage::Writing:
        return m_patience.disc;
    case Stage::Imaging:
        return m_patience.image;
    default:
        return m_patience.tool;
    }
}

QString Job::costOfStopping() const
{
    switch (m_progress.stage) {
    case Stage::Converting:
    case Stage::Authoring:
        return tr("What was converted so far is thrown away. The disc stays as it is.");
    case Stage::Gathering:
        return tr("What was copied so far is thrown away. The disc and your folders stay as they are.");
    case Stage::Imaging:
        return tr("The image made so far is deleted.");
    case Stage::Exchanging:
    case Stage::Emptying:
        return {};
    case Stage::Erasing:
        return tr("The disc has to be erased again before it can be used.");
    case Stage::Writing:
        break;
    }
    if (m_phase == Phase::Preparing)
        return tr("Nothing is written yet. The disc stays as it is.");
    if (m_phase == Phase::Comparing)
        return tr("The disc is written. It is not compared to the end.");
    return m_work.rewritable
        ? tr("What was written so far is lost. The disc has to be erased before it is used again.")
        : tr("This disc is lost: it cannot be written a second time.");
}

Outcome Job::end()
{
    using How = Outcome::How;
    Q_ASSERT(!m_ended);
    m_ended = true;
    watch(nullptr, m_progress.stage, false);
    m_claim.reset();
    Outcome outcome;
    const bool whole = m_leftOut.isEmpty() && m_remark.isEmpty() && m_reason.isEmpty();
    outcome.how = m_done ? (whole ? How::Complete : How::Incomplete)
        : m_stopping     ? How::Stopped
                         : How::NotDone;
    outcome.heading = Outcome::headingOf(outcome.how, m_work.result);
    outcome.reason = joined(m_reason, m_remark);
    if (m_reason.isEmpty() && !m_done)
        outcome.reason = m_work.result == Work::Result::Image
            ? tr("No image was made.")
            : tr("Nothing was written. The disc is as it was.");
    if (m_done) {
        outcome.made = whatWasMade();
        outcome.folder = m_work.result == Work::Result::Image ? m_work.image : m_driveFolder;
    }
    outcome.leftOut = m_leftOut;
    outcome.changed = m_changed;
    outcome.onDisc = m_work.result != Work::Result::Image;
    outcome.drive = m_driveNumber;
    outcome.repeatable = m_work.repeatable && outcome.how != How::Stopped;
    outcome.run = m_decidingRun >= 0 ? m_decidingRun : m_leftOutRun;
    Q_EMIT ended(outcome);
    return outcome;
}

QString Job::whatWasMade() const
{
    QStringList parts{ m_work.name };
    if (!m_content.isEmpty())
        parts.append(m_content);
    if (m_bytes >= 0)
        parts.append(compilation::sizeText(static_cast<quint64>(m_bytes)));
    if (m_work.result == Work::Result::Image)
        parts.append(m_work.image);
    else if (!m_drive.isEmpty())
        parts.append(m_drive);
    return parts.join(u", "_s);
}

QString Job::forPerson(QString text) const
{
    const QString &folder = m_work.workingFolder;
    if (folder.isEmpty() || !text.contains(folder))
        return text;
    text.replace(folder + u'/', QString());
    // The folder itself, and none whose name begins alike.
    const QRegularExpression itself(QRegularExpression::escape(folder) + u"(?![\\w-]|\\.\\w)"_s,
        QRegularExpression::UseUnicodePropertiesOption);
    return text.replace(itself, tr("the working folder"));
}

} // namespace writing
