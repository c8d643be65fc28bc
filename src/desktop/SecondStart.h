// A start with files, while a window of ours is there already.
#pragma once

#include "desktop/Opening.h"

namespace desktop {

/// What the desktop gave to this start, so that a window of it may come to the front. Either may be empty.
struct Activation {
    QString token; ///< Wayland
    QString startupId; ///< X11

    /// To be called before the application object is made, which takes them out of the environment.
    static Activation ofThisStart();
};

/// Hands the request to the window that runs. False: there is none, or it has not answered within some seconds, or there
/// is no bus; then this process shows it itself. Waits for the answer.
bool handOver(const Request &request, const Activation &activation);

} // namespace desktop
