// Bringing the window to the front when somebody else asked for it.
#pragma once

#include <QString>

class QWidget;

namespace desktop {

/// Shows the window in front, restored where it was minimised. `token` is what the desktop gave to whoever asked, so that
/// it lets the window come; may be empty, and is used only where it looks like one.
void raise(QWidget *window, const QString &token);

} // namespace desktop
