// Where files go that are opened with the program.
#pragma once

#include <QList>
#include <QUrl>

namespace desktop {

/// What of the program a file is for.
enum class Destination { None, List, Image, Audio, Video, Data };

/// What is opened at once.
struct OpenedFiles {
    Destination destination = Destination::None; ///< of the most; of as many, of what comes first
    QList<QUrl>
        taken; ///< in their order; for a list all of them, since the list tells itself what it does not take
    QList<QUrl> left; ///< what nothing can be done with; of several images or saved lists all but the first
};

/// Of a file by the ending of its name, then by what the desktop knows of names; of anything else that is there: a data
/// disc. None for what is not there and for addresses elsewhere.
Destination destinationOf(const QUrl &url);

OpenedFiles sortedOut(const QList<QUrl> &urls);

} // namespace desktop
