// The colours of windows on a dark and on a light desktop.
#pragma once

#include <QPalette>

/// A whole palette, for where the toolkit's own does not fit the desktop. Texts on their grounds have a contrast of
/// at least 4.5 to 1, but for what is disabled (WCAG 2.1, 1.4.3).
QPalette desktopColours(bool dark);
