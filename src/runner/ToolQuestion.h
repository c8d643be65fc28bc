// A question to a tool whose answer nobody waits for.
#pragma once

#include "runner/ToolRun.h"

namespace runner {

/// Runs a tool and hands all that it printed, on both channels and as far as the log keeps it, to `answered`: once, from the
/// event loop, also when the tool cannot be started or is ended because `limit` milliseconds are over. The run belongs
/// to `owner` and destroys itself; leaveToItself() withdraws the question.
ToolRun *askInBackground(const QString &program, const QStringList &arguments, ActivityLog *log,
    QObject *owner, int limit, std::function<void(const QByteArray &printed)> answered);

} // namespace runner
