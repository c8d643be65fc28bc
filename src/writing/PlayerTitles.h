// The part of a job that makes a DVD for players: converting and authoring, between the checks and the writing.
#pragma once

#include "app/AppDelegate.h"
#include "writing/PlayerDisc.h"

/// The titles of one disc, from the clips on the list in their order. Made when the job has begun; works in the
/// video working folder, and leaves only the finished disc there. GUI thread.
struct AppDelegate::Titles {
    explicit Titles(AppDelegate &controller);

    /// False: something is missing for such a disc, and an alert has told what.
    static bool mayBeMade(AppDelegate &controller);

    /// Converts one clip to the next title. What cannot be one is left out, and told.
    void convert(const NodeMediaFile &file);
    /// Makes the titles of the converted clips, in the background: titlesAuthored() follows.
    void author();
    /// Takes away what only the authoring needed.
    void clear() const;
    /// Tells the job what goes onto the disc.
    void describe() const;

private:
    static bool hasRoom(AppDelegate &controller);
    qsizetype report(const QString &path, const QString &subject);
    writing::ClipFacts facts(qsizetype run, const QString &path) const;
    bool troubled(qsizetype run) const;
    bool hasPicture(const QString &path, const QString &subject);
    void endWhenSilent(runner::ToolRun *run);

    AppDelegate &app;
    writing::PlayerDisc disc;
};
