// The built program in a folder of its own, beside tools that a test chooses, with a HOME of its own.
#pragma once

#include "support/TestApplication.h"

#include <QProcess>
#include <QProcessEnvironment>

/// Runs the real `corvalis` as a child. It finds its tools beside itself, so the noting ones lie there.
class ProgramFolder {
public:
    QTemporaryDir root;
    NotingTool drutil{ made(QStringLiteral("bin")), QStringLiteral("drutil") };
    NotingTool hdiutil{ made(QStringLiteral("bin")), QStringLiteral("hdiutil") };
    NotingTool ffmpeg{ made(QStringLiteral("libexec/corvalis")), QStringLiteral("ffmpeg") };
    QProcess process;

    ProgramFolder()
    {
        if (!QFile::copy(builtPrograms() + QStringLiteral("/corvalis"), program()))
            qFatal("the program cannot be copied");
        drutil.print(QStringLiteral("list"), TestApplication::oneDrive);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("HOME"), made(QStringLiteral("home")));
        process.setProcessEnvironment(environment);
    }

    ~ProgramFolder()
    {
        if (process.state() != QProcess::NotRunning) {
            process.kill();
            process.waitForFinished();
        }
    }

    QString program() const { return root.filePath(QStringLiteral("bin/corvalis")); }
    QString home(const QString &below = {}) const { return root.filePath(QStringLiteral("home/") + below); }

    void start(const QStringList &arguments = {}) { process.start(program(), arguments); }

    /// Runs to the end and answers the exit status; -1 when it crashed or did not end.
    int run(const QStringList &arguments)
    {
        start(arguments);
        return ended();
    }

    int ended()
    {
        if (process.state() != QProcess::NotRunning && !process.waitForFinished(30'000))
            return -1;
        return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    }

    QString errors() { return QString::fromUtf8(process.readAllStandardError()); }

private:
    QString made(const QString &folder) const
    {
        QDir(root.path()).mkpath(folder);
        return root.filePath(folder);
    }
};
