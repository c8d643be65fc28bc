// How a job ended, as a value. The closing sheet, the batch form and whoever else wants to know read the same one.
#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

namespace writing {

/// What a job makes.
struct Work {
    enum class Result { Disc, Image, BlankDisc };
    Result result = Result::Disc;
    int kind = 0; ///< code of the project type; 0: none of them
    QString name; ///< as a person calls it: "Audio CD", "Copy of a disc"; in the language of the windows
    QString drive; ///< vendor and product; empty: the tool chooses one, or none is needed
    QString workingFolder; ///< claimed for the time of the job and not named to a person; empty: none
    QString image; ///< the full path of the image that is made, or written to a disc; empty: none
    bool repeatable = false; ///< the same disc can be made once more as things stand
    bool named = false; ///< the name that a person gave the disc goes onto it
    bool compared = false; ///< the tool reads the disc back after writing it
    bool rewritable = false; ///< the medium can be erased, by its last status
};

/// How a job ended.
struct Outcome {
    enum class How { Complete, Incomplete, NotDone, Stopped };

    How how = How::Complete;
    QString heading; ///< one of the four ends, in words
    QString made; ///< what was made, of what, where; empty where nothing was
    QString folder; ///< the folder or file to show; empty: none
    QString reason; ///< what decided the end, and in what state the disc is; empty when all is well
    QStringList
        leftOut; ///< one line for each thing that is not on the disc, by the names that a person knows
    QStringList changed; ///< one line for each thing that is there, but not as it was
    bool onDisc = false; ///< the job was done to a disc, which can be ejected now
    QString drive; ///< number of the drive with that disc, as the tool told it; empty: the current one
    bool repeatable = false; ///< the same job can be begun once more
    qsizetype run = -1; ///< the run in the activity log that decided; -1: none

    /// The exit status of a batch run: 0 complete, 1 not done or stopped, 3 incomplete.
    int exitStatus() const;
    /// All but the heading, line by line; `most` lines of what was left out or changed, and how many there are more.
    QStringList lines(qsizetype most) const;

    static QString headingOf(How how, Work::Result result);

    Q_DECLARE_TR_FUNCTIONS(Outcome)
};

} // namespace writing
