// Files on their way onto the media list.
#pragma once

#include "app/AppDelegate.h"
#include "compilation/MediaSearch.h"

#include <QSet>

#include <atomic>
#include <memory>

/// One adding. Lives on the GUI thread, but for look(), which a task runs; that one only reads `wanted`, and the flags
/// are for both threads.
struct AppDelegate::Measuring : std::enable_shared_from_this<AppDelegate::Measuring> {
    /// `adder` is not owned, and outlives the task.
    Measuring(AppDelegate *adder, ListKind list, int row)
        : controller(adder)
        , kind(list)
        , before(row)
    {
    }

    /// Whether anything depends on more than its name.
    bool looksInside() const;
    /// Searches and measures; runs the transcoder. Tells the other operations, on the GUI thread.
    void look();

    AppDelegate *const controller;
    const ListKind kind;
    const int before; ///< the row before which they come; -1: behind the last one
    QList<compilation::Wanted> wanted; ///< not changed any more once the measuring has begun
    QList<compilation::Refused> refused;
    QList<QUrl> unreadable; ///< names that are no text
    std::atomic<bool> stop = false;

private:
    /// What became of one file.
    struct Measured {
        compilation::Wanted file;
        NodeMediaFile record;
        bool fits = false; ///< there is in it what the list is for, as far as that was asked
    };
    Measured measured(const compilation::Wanted &file);
    void takeFound(const compilation::Found &found);
    void takeMeasured(const Measured &file);
    void end();
    void refuseEmptyFolders();
    void tellSameNames() const; ///< of which only the first would be on the disc

    QList<compilation::Wanted> files; ///< those that were found
    QList<NodeMediaFile> records; ///< of the first of the files
    QSet<qsizetype> served; ///< places of what there are records for
    qsizetype done = 0; ///< of the files
    std::atomic<bool> withoutTranscoder = false;
};
