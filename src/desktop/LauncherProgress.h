// The bar on the program's entry in a dock or task bar.
#pragma once

#include <QObject>

namespace desktop {

/// Tells launchers that listen for com.canonical.Unity.LauncherEntry. GUI thread; never waits.
class LauncherProgress : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    /// 0 to 100; below 0: not known, so that no bar is shown.
    void show(int percent);
    /// The work is over.
    void clear() { show(-1); }

private:
    int m_shown = -1;
};

} // namespace desktop
