// A whole application for tests: the real window and controller, with tools that note how they were run
// and questions that a test answers.
#pragma once

#include "app/AppDelegate.h"
#include "app/MainWindow.h"
#include "app/Window_Alert.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

/// A program that notes the arguments of every run, prints what the test wants, and ends.
class NotingTool {
public:
    /// Makes the program `name` in `folder`.
    NotingTool(const QString &folder, const QString &name)
        : m_path(folder + QLatin1Char('/') + name)
    {
        QFile script(m_path);
        if (!script.open(QIODevice::WriteOnly))
            qFatal("%s cannot be written", qUtf8Printable(m_path));
        // Arguments end with a unit separator, runs with a record separator, so that any name can be noted.
        script.write(
            "#!/bin/sh\n"
            "{ for argument; do printf '%s\\037' \"$argument\"; done; printf '\\036'; } >> \"$0.log\"\n"
            "[ -e \"$0.out.$1\" ] && cat \"$0.out.$1\"\n"
            "[ -e \"$0.do\" ] && . \"$0.do\"\n"
            "exit 0\n");
        script.close();
        script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    QString path() const { return m_path; }

    /// What it prints when its first argument is `verb`.
    void print(const QString &verb, const QByteArray &text) const
    {
        write(m_path + QLatin1String(".out.") + verb, text);
    }

    /// Shell commands that it runs before it ends; the arguments are in "$@".
    void run(const QByteArray &commands) const { write(m_path + QLatin1String(".do"), commands); }

    /// The argument vectors of all runs so far, in order.
    QList<QStringList> runs() const
    {
        QFile log(m_path + QLatin1String(".log"));
        QList<QStringList> runs;
        if (!log.open(QIODevice::ReadOnly))
            return runs;
        QList<QByteArray> records = log.readAll().split('\036');
        records.removeLast();
        for (const QByteArray &record : std::as_const(records)) {
            QStringList arguments = QString::fromUtf8(record).split(QChar(0x1f));
            arguments.removeLast();
            runs.append(arguments);
        }
        return runs;
    }

    /// The runs whose first argument is `verb`.
    QList<QStringList> runs(const QString &verb) const
    {
        QList<QStringList> all = runs();
        all.removeIf([&verb](const QStringList &run) { return run.value(0) != verb; });
        return all;
    }

private:
    static void write(const QString &path, const QByteArray &content)
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly))
            qFatal("%s cannot be written", qUtf8Printable(path));
        file.write(content);
    }

    QString m_path;
};

/// Notes every alert and panel, presses the first button unless told otherwise, and answers panels with
/// what the test has laid ready, else by not confirming.
class NotingQuestions : public Questions {
public:
    QList<Alert> alerts;
    QList<OpenPanel> panels;
    QList<int> buttons; ///< positions for the coming alerts; then 0
    QList<QList<QUrl>> choices; ///< for the coming panels; then none

    int ask(const Alert &alert, QWidget *) override
    {
        alerts.append(alert);
        return buttons.isEmpty() ? 0 : buttons.takeFirst();
    }

    QList<QUrl> choose(const OpenPanel &panel, QWidget *) override
    {
        panels.append(panel);
        return choices.isEmpty() ? QList<QUrl>() : choices.takeFirst();
    }

    /// "message | informative" of each alert.
    QStringList texts() const
    {
        QStringList texts;
        for (const Alert &alert : alerts)
            texts.append(alert.message + QLatin1String(" | ") + alert.informative);
        return texts;
    }
};

/// The folder of the built programs.
inline QString builtPrograms()
{
    return qEnvironmentVariable("CORVALIS_BIN");
}

/// The application with noting tools. Set the tools up, then call launch().
class TestApplication {
public:
    QTemporaryDir folder;
    NotingTool drutil{ folder.path(), QStringLiteral("drutil") };
    NotingTool hdiutil{ folder.path(), QStringLiteral("hdiutil") };
    NotingTool ffmpeg{ folder.path(), QStringLiteral("ffmpeg") };
    NotingTool dvdauthor{ folder.path(), QStringLiteral("dvdauthor") };
    NotingQuestions questions;
    WindowQuestions dialogs;
    QList<int> exits; ///< every status with which the program would have ended
    Surroundings around;
    std::unique_ptr<MainWindow> window;
    std::unique_ptr<AppDelegate> controller;

    TestApplication()
    {
        around.drutil = drutil.path();
        around.hdiutil = hdiutil.path();
        around.dvdauthor = dvdauthor.path();
        around.resources = folder.path();
        around.probeLimit = 20'000;
        around.stagingPoll = 50;
        around.questions = &questions;
        around.exitProcess = [this](int status) { exits.append(status); };
        drutil.print(QStringLiteral("list"), oneDrive);
    }

    /// The real engine and the real transcoder instead of the noting ones.
    void useRealTools()
    {
        around.drutil = builtPrograms() + QLatin1String("/drutil");
        around.hdiutil = builtPrograms() + QLatin1String("/hdiutil");
        around.dvdauthor = QStandardPaths::findExecutable(QStringLiteral("dvdauthor"));
        around.resources = QDir::cleanPath(builtPrograms() + QLatin1String("/../libexec/corvalis"));
    }

    AppDelegate &launch()
    {
        window = std::make_unique<MainWindow>();
        controller = std::make_unique<AppDelegate>(window.get(), around);
        controller->awakeFromNib();
        controller->applicationDidFinishLaunching();
        return *controller;
    }

    /// The application with the window's own alerts and panels, which a test answers as a person does.
    AppDelegate &launchWithDialogs()
    {
        around.questions = &dialogs;
        return launch();
    }

    /// The interface element with this name.
    template <class Element>
    Element *element(const char *name) const
    {
        return window->findChild<Element *>(QLatin1String(name));
    }

    static constexpr const char *oneDrive = "   Vendor   Product           Rev   Bus       SupportLevel\n"
                                            "1  CORVALIS Virtual Recorder  1.0   Virtual   Supported\n";
};

/// Makes the HOME of the running test as it is before the program's first start. OwnHome.cpp sees to it that it
/// is no person's.
inline void emptyHome()
{
    for (const auto place : { QStandardPaths::DocumentsLocation, QStandardPaths::ConfigLocation })
        QDir(QStandardPaths::writableLocation(place)).removeRecursively();
}

/// The path of a file or folder in the Documents folder.
inline QString documents(const QString &below = {})
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + QLatin1Char('/') + below;
}

/// Writes a file, its folders as well.
inline void makeFile(const QString &path, const QByteArray &content = {})
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("%s cannot be written", qUtf8Printable(path));
}

/// The whole file; empty when there is none.
inline QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Presses the button `title` of the modal alert that is up, as soon as one is.
inline void pressInAlert(const QString &title)
{
    QTimer::singleShot(50, qApp, [title] {
        for (const QWidget *alert : QApplication::topLevelWidgets()) {
            if (!alert->isVisible() || !qobject_cast<const Window_Alert *>(alert))
                continue;
            for (QAbstractButton *button : alert->findChildren<QAbstractButton *>()) {
                if (button->text().remove(QLatin1Char('&')) == title)
                    return button->click();
            }
        }
        pressInAlert(title);
    });
}
