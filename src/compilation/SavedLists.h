// What the controller keeps for saving lists and for undoing.
#pragma once

#include "app/AppDelegate.h"
#include "compilation/Compilation.h"
#include "compilation/EditHistory.h"
#include "compilation/ListFile.h"

#include <memory>

/// A list that is being opened: its entries, some of which are still being measured.
struct AppDelegate::Opening {
    int tab = 0;
    QList<compilation::ListFile::Entry> entries; ///< with the paths where they are now
    QString path; ///< of the list's file; may be empty
    bool asSaved = true; ///< the file holds what is opened
};

/// Of one window. GUI thread.
struct AppDelegate::SavedLists {
    EditHistory history;
    int tab = 0; ///< the list tab that was shown last, 0 to 2
    bool noting =
        false; ///< the lists were changed; the history is told once control is back in the event loop
    QString path; ///< of the file that the list was saved to or opened from; empty: none
    Compilation saved; ///< what that file holds
    std::unique_ptr<Opening> opening;
};
