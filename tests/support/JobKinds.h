// Every kind of job that a person can begin, with tools that wait where a test wants them to.
#pragma once

#include "kit/SheetStage.h"
#include "support/JobApplication.h"
#include "support/Person.h"
#include "writing/Job.h"

#include <optional>

/// Codes of the jobs beside the eight kinds of disc.
enum JobKind { CopyJob = 10, MakeImageJob, WriteImageJob, EraseJob };

/// Begins jobs as a person would. Where a tool is held it prints its line, notes when it is asked to end, and ends then.
class JobKinds : public JobApplication {
public:
    static constexpr int never = 600'000; ///< ms, longer than any test
    std::optional<writing::Outcome> outcome; ///< of the newest job

    JobKinds()
    {
        makeFile(media.filePath(QStringLiteral("album/song.mp3")), "00:00:14.00");
        makeFile(media.filePath(QStringLiteral("disc.iso")), "an image");
        QDir().mkpath(media.filePath(QStringLiteral("place")));
        holdNothing();
    }

    void start()
    {
        launch();
        QObject::connect(
            controller.get(), &AppDelegate::jobBegan, controller.get(), [this](writing::Job *job) {
                outcome.reset();
                QObject::connect(job, &writing::Job::ended, controller.get(),
                    [this](const writing::Outcome &ended) { outcome = ended; });
            });
    }

    void holdNothing()
    {
        (controller ? controller->around : around).stagingPoll = 50;
        convertWith("echo converted > \"$output\"\n");
        burnWith("");
        hdiutil.run("[ \"$1\" = makehybrid ] && echo image > \"$3\"\n");
    }

    /// In that stage a tool prints `line` and waits.
    void hold(writing::Stage stage, const QByteArray &line)
    {
        using writing::Stage;
        const QByteArray held = "trap 'echo asked >> \"$0.asked\"; exit 143' TERM\n: > \"$0.held\"\necho '"
            + line + "'\nwaited=0; until [ $waited -gt 2400 ]; do sleep 0.05; waited=$((waited + 1)); done\n";
        if (stage == Stage::Converting)
            convertWith(held);
        if (stage == Stage::Gathering)
            controller->around.stagingPoll = never;
        if (stage == Stage::Imaging)
            hdiutil.run("[ \"$1\" = makehybrid ] && {\necho part > \"$3\"\n" + held + "}\n");
        if (stage == Stage::Writing)
            hdiutil.run(
                "[ \"$1\" = makehybrid ] && echo image > \"$3\"\n[ \"$1\" = burn ] && {\n" + held + "}\n");
        if (stage == Stage::Writing || stage == Stage::Erasing)
            drutil.run("case $1 in burn|erase)\n" + held + ";; esac\n");
    }

    /// Whether a tool that was held was asked to end.
    bool wasAsked() const { return hasNoted(QStringLiteral(".asked")); }
    /// Whether a tool waits, ready to be asked.
    bool isHeld() const { return hasNoted(QStringLiteral(".held")); }

    QString workingFolder(int kind) const
    {
        return kind <= 3 ? controller->s_Audio_Folder
            : kind <= 5  ? controller->s_Video_Folder
                         : controller->s_Data_Folder;
    }

    static QByteArray discFor(int kind)
    {
        switch (kind) {
        case 3:
        case 4:
        case 7:
            return discs::blankDVD;
        case 5:
        case 8:
            return discs::blankBD;
        case EraseJob:
            return discs::writtenCDRW;
        default:
            return discs::blankCD;
        }
    }

    /// Fills the list that this kind of disc takes.
    bool prepare(int kind)
    {
        insert(discFor(kind));
        if (kind > 8)
            return true;
        choose(kind);
        if (kind < 6)
            return add({ media.filePath(QStringLiteral("album/song.mp3")) });
        addFolder(media.filePath(QStringLiteral("album")));
        return controller->arrayDataFolders.size() == 1;
    }

    void begin(int kind)
    {
        const auto url = [this](const char *name) {
            return QList<QUrl>{ QUrl::fromLocalFile(media.filePath(QLatin1String(name))) };
        };
        switch (kind) {
        case CopyJob:
            asked.choices = { url("album") };
            return trigger("menuitemCopyDisc");
        case MakeImageJob:
            asked.choices = { url("album"), url("place") };
            return trigger("menuitemISOCreate");
        case WriteImageJob:
            asked.choices = { url("disc.iso") };
            return trigger("menuitemISOBurn");
        case EraseJob:
            return trigger("menuitemEraseQuick");
        default:
            return press("btnBurn");
        }
    }

    bool hasNoted(const QString &what) const
    {
        for (const NotingTool *tool : { &drutil, &hdiutil, &ffmpeg }) {
            if (QFile::exists(tool->path() + what))
                return true;
        }
        return false;
    }

    Sheet *sheet() const { return window->stage()->sheet(); }

    /// Presses Stop and Stop Now; false where a sheet has no such buttons.
    bool stopAsAPerson() const
    {
        const QPointer<Sheet> up(sheet());
        person::click(up, "btnStop");
        const auto *now = up ? up->findChild<QPushButton *>(QStringLiteral("btnStopNow")) : nullptr;
        if (!now || !now->isVisible())
            return false;
        person::click(up, "btnStopNow");
        return true;
    }
};
