#include "runner/ToolQuestion.h"

#include <QTimer>

namespace runner {

ToolRun *askInBackground(const QString &program, const QStringList &arguments, ActivityLog *log,
    QObject *owner, int limit, std::function<void(const QByteArray &printed)> answered)
{
    constexpr int patience = 5'000;
    auto *run = new ToolRun(program, arguments, log, owner);
    run->setProcessChannelMode(QProcess::MergedChannels);
    QObject::connect(
        run, &QProcess::readyReadStandardOutput, run, [run] { run->take(QProcess::StandardOutput); });
    QObject::connect(run, &ToolRun::ended, run, [run, answered = std::move(answered)] {
        run->leaveToItself();
        answered(run->output());
    });
    QTimer::singleShot(limit, run, [run] { run->stop(patience); });
    run->launch();
    return run;
}

} // namespace runner
