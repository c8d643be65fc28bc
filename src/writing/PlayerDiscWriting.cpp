// Video DVDs for players in living rooms: every clip becomes a title with chapters, before the disc is written as any
// other video disc is.
#include "app/MainWindow.h"
#include "compilation/Measuring.h"
#include "runner/ActivityLog.h"
#include "runner/ToolRun.h"
#include "writing/Job.h"
#include "writing/PlayerTitles.h"
#include "writing/TitleAuthoring.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStorageInfo>
#include <QTimer>

#include <numeric>
#include <utility>

using namespace Qt::StringLiterals;
using writing::ClipFacts;

namespace {

/// A clip of unknown length counts as a second.
qint64 secondsOf(const QList<NodeMediaFile> &clips)
{
    return std::accumulate(
        clips.cbegin(), clips.cend(), qint64{ 0 }, [](qint64 sum, const NodeMediaFile &clip) {
            return sum + qMax<qint64>(1, clip.i_Duration_in_Seconds);
        });
}

QString descriptionIn(const QString &folder)
{
    return folder + u"/titles.xml"_s;
}

/// The bytes of all files below `folder`.
qint64 bytesBelow(const QString &folder)
{
    qint64 bytes = 0;
    for (QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories); files.hasNext();)
        bytes += files.nextFileInfo().size();
    return bytes;
}

} // namespace

AppDelegate::Titles::Titles(AppDelegate &controller)
    : app(controller)
{
    disc.format = { app.s_Video_Output_Format == u"0", app.s_Audio_Output_Format == u"0" };
    disc.videoRate = writing::playerVideoRate(secondsOf(app.arrayMediaFiles));
}

bool AppDelegate::Titles::mayBeMade(AppDelegate &controller)
{
    if (!QFileInfo(controller.around.dvdauthor).isExecutable()) {
        controller.alert(AppDelegate::tr("The program dvdauthor is missing"),
            AppDelegate::tr(
                "It makes the titles of a DVD for players. Install the package “dvdauthor” and try again, or "
                "switch "
                "“For DVD players” off in the video settings; the disc then holds files."));
        return false;
    }
    const qsizetype clips = controller.arrayMediaFiles.size();
    if (clips > writing::mostTitles) {
        controller.alert(AppDelegate::tr("Too many clips for one DVD"),
            AppDelegate::tr(
                "A DVD for players has room for 99 titles, and there are %Ln clip(s) on the list. Take "
                "some off and try again.",
                nullptr, static_cast<int>(clips)));
        return false;
    }
    return hasRoom(controller);
}

bool AppDelegate::Titles::hasRoom(AppDelegate &controller)
{
    const QStorageInfo storage(controller.s_Video_Folder);
    const qint64 needed = writing::playerRoom(secondsOf(controller.arrayMediaFiles));
    if (!storage.isValid() || storage.bytesAvailable() >= needed)
        return true;
    const auto text = [](qint64 bytes) { return compilation::sizeText(static_cast<quint64>(bytes)); };
    Alert question{ AppDelegate::tr("There is not enough room to make the titles"),
        AppDelegate::tr(
            "A disc is prepared in the folder %1. That may take %2 for these clips, and its file system has "
            "%3 left. "
            "Free some room and try again, or go on: a clip that finds no room will not be on the disc.")
            .arg(controller.s_Video_Folder, text(needed), text(storage.bytesAvailable())),
        { AppDelegate::tr("Close"), AppDelegate::tr("Go On") } };
    question.dismissed = 0;
    return controller.around.questions->ask(question, controller.window) == 1;
}

/// Runs the transcoder on its input only and answers the run's place in the activity log.
qsizetype AppDelegate::Titles::report(const QString &path, const QString &subject)
{
    constexpr quint64 unread = 2; // the words of a report are no progress
    const quint64 mode = std::exchange(app.u_Type_Progress, unread);
    // Without an output file to write, a report of the input is followed by an error and status 1.
    const qsizetype run = app.transcodeAndWait({ u"-i"_s, path }, subject, 1);
    app.u_Type_Progress = mode;
    return run;
}

ClipFacts AppDelegate::Titles::facts(qsizetype run, const QString &path) const
{
    return writing::clipFacts(app.activityLog->at(run).output, path);
}

/// It did not come to its proper end, which the job was told then.
bool AppDelegate::Titles::troubled(qsizetype run) const
{
    return app.job->isStopping() || app.activityLog->at(run).troubled;
}

void AppDelegate::Titles::convert(const NodeMediaFile &file)
{
    const QString subject = file.s_File_Name_With_Extension.simplified();
    const qsizetype run = report(file.s_File_Path, subject);
    if (troubled(run))
        return;
    const ClipFacts clip = facts(run, file.s_File_Path);
    if (!clip.hasPicture())
        return app.job->leaveOut(AppDelegate::tr("%1: there is no picture in it.").arg(subject), run);
    const QString name = u"title-%1.mpg"_s.arg(disc.titles.size() + 1, 2, 10, QLatin1Char('0'));
    const QString path = app.s_Video_Folder + u'/' + name;
    const QList<double> marks = writing::chapterMarks(clip);
    const QStringList arguments = writing::playerArguments(file.s_File_Path, path, clip, disc, marks);
    if (!troubled(app.transcodeAndWait(arguments, subject, 0)) && hasPicture(path, subject))
        disc.titles.append(
            { name, writing::playerPicture(clip.displayAspect(), disc.format.ntsc).wide, marks });
    else
        QFile::remove(path);
}

/// Whether the converted clip has one. The transcoder does not count it as a failure when it could read none, and one
/// title without a picture would spoil all.
bool AppDelegate::Titles::hasPicture(const QString &path, const QString &subject)
{
    const qsizetype run = report(path, subject);
    if (troubled(run))
        return false;
    if (facts(run, path).hasPicture())
        return true;
    app.job->leaveOut(AppDelegate::tr("%1: its picture could not be read.").arg(subject), run);
    return false;
}

void AppDelegate::Titles::author()
{
    if (disc.titles.isEmpty())
        return app.VideoBurnTerminated();
    QSaveFile description(descriptionIn(app.s_Video_Folder));
    if (!description.open(QIODevice::WriteOnly) || description.write(writing::authoringXml(disc)) < 0
        || !description.commit()) {
        app.job->fail(AppDelegate::tr("The titles could not be described: %1. The disc is as it was.")
                          .arg(description.errorString()));
        return app.VideoBurnTerminated();
    }
    // The description names the clips without a folder, as it could not hold the name of every folder.
    app.runInBackground(app.around.dvdauthor,
        writing::authoringArguments(app.s_Video_Folder, description.fileName()), writing::Stage::Authoring,
        &AppDelegate::titlesAuthored, Output::Ignored, Readers::AsUsual, app.s_Video_Folder);
    endWhenSilent(app.job->watched());
    app.Show_Window_Performing_Operation();
}

/// Nobody may be there to see that it hangs.
void AppDelegate::Titles::endWhenSilent(runner::ToolRun *run)
{
    auto *silence = new QTimer(run);
    silence->setSingleShot(true);
    connect(run, &runner::ToolRun::printed, silence, qOverload<>(&QTimer::start));
    connect(run, &runner::ToolRun::ended, silence, &QTimer::stop);
    connect(silence, &QTimer::timeout, run, [run, job = app.job.get()] {
        job->remark(AppDelegate::tr("dvdauthor told nothing for a long time and was ended."));
        run->stop(writing::EndingPatience().tool);
    });
    silence->start(app.around.authoringSilence);
}

void AppDelegate::Titles::clear() const
{
    for (const writing::PlayerTitle &title : disc.titles)
        QFile::remove(app.s_Video_Folder + u'/' + title.file);
    QFile::remove(descriptionIn(app.s_Video_Folder));
}

void AppDelegate::Titles::describe() const
{
    app.job->describe(AppDelegate::tr("%Ln title(s)", nullptr, static_cast<int>(disc.titles.size())),
        bytesBelow(app.s_Video_Folder));
}

void AppDelegate::authorTitles()
{
    if (!endStopped(&AppDelegate::VideoBurnTerminated))
        m_titles->author();
}

void AppDelegate::titlesAuthored()
{
    constexpr qint64 asGoodAsNothing = 1024 * 1024;
    if (job->watched()->end().troubled()) {
        if (!job->isStopping() && QStorageInfo(s_Video_Folder).bytesAvailable() < asGoodAsNothing)
            job->remark(AppDelegate::tr("The file system of the folder %1 is full.").arg(s_Video_Folder));
        return VideoBurnTerminated();
    }
    m_titles->clear();
    Close_Window_Performing_Operation();
    schedule(timerBurnVideo, &AppDelegate::TimerBurnVideoRoutine);
}
