#include "desktop/Raising.h"

#include <QWidget>

#include <algorithm>

namespace desktop {

void raise(QWidget *window, const QString &token)
{
    constexpr qsizetype longest = 1024;
    const bool plausible = !token.isEmpty() && token.size() <= longest
        && std::ranges::all_of(token, [](QChar c) { return c.unicode() > 0x20 && c.unicode() < 0x7f; });
    if (plausible)
        qputenv("XDG_ACTIVATION_TOKEN", token.toLatin1()); // the toolkit takes it from there
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->show();
    window->raise();
    window->activateWindow();
}

} // namespace desktop
