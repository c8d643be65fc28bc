// The program's symbols, drawn in any colour and sharp at any size.
#pragma once

#include <QColor>
#include <QIcon>
#include <QString>

/// The symbol `name` (a file of src/kit/icons without its ending) in `color`, drawn anew for each size in
/// device pixels and kept in the pixmap cache. Disabled it has 40 % of the colour's opacity; the other
/// modes and states look alike. An empty or unknown name gives a null icon. GUI thread only.
QIcon symbolIcon(const QString &name, const QColor &color);

/// The program's own icon, in its own colours. GUI thread only.
QIcon applicationIcon();
