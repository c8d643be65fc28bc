// What a person has put together for one disc.
#pragma once

#include "compilation/Records.h"

#include <QList>

/// The lists as they stand on one tab. A value: what undoing brings back, and what a saved list is compared with.
struct Compilation {
    int tab = 0; ///< index of the list tab, 0 to 2
    qint64 variant = 0; ///< the kind of disc of that tab
    QList<NodeMediaFile> media;
    QList<NodeDataFolder> folders;
    QString discName;
    QString listPath; ///< the file in which it is kept; empty: none yet

    bool isEmpty() const { return media.isEmpty() && folders.isEmpty(); }
    /// The same entries in the same order for the same kind of disc. Quick where the lists share their memory.
    bool holdsTheSameAs(const Compilation &other) const
    {
        return tab == other.tab && variant == other.variant && media == other.media
            && folders == other.folders;
    }
};
