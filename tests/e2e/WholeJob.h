// A whole job: the real window, the real transcoder, the real engine with a virtual recorder.
#pragma once

#include "runner/StatusSheets.h"
#include "support/TestApplication.h"
#include "ui_MainWindow.h"

#include <QFileDialog>
#include <QListView>
#include <QProcess>
#include <QPushButton>
#include <QTimer>

/// Runs a program to its end and answers its standard output; fails the test when it does not end well.
inline QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(program, arguments);
    if (!process.waitForFinished(120'000) || process.exitCode() != 0)
        qWarning("%ls: %s", qUtf16Printable(program), process.readAllStandardError().constData());
    return process.readAllStandardOutput();
}

/// Makes a media file with the transcoder: `input` as a lavfi graph for each source.
inline void makeMedia(const QString &path, const QStringList &graphs, const QStringList &options = {})
{
    QStringList arguments{QStringLiteral("-nostdin"), QStringLiteral("-loglevel"), QStringLiteral("error")};
    for (const QString &graph : graphs)
        arguments += {QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"), graph};
    outputOf(QStringLiteral("ffmpeg"), arguments + options + QStringList{path});
    QVERIFY2(QFile::exists(path), qPrintable(path));
}

/// The application on a virtual recorder of its own.
class WholeJob {
public:
    QTemporaryDir folder;
    TestApplication application;

    WholeJob()
    {
        qputenv("CORVALIS_RECORDERS", QFile::encodeName(recorders()));
        qputenv("CORVALIS_VIRTUAL", "only");
        application.useRealTools();
    }

    QString recorders() const { return folder.filePath(QStringLiteral("recorders")); }
    QString disc(const QString &name) const { return recorders() + QStringLiteral("/1/") + name; }
    QString mediaFolder() const { return folder.filePath(QStringLiteral("media")); }

    AppDelegate &launch(const QString &medium)
    {
        AppDelegate &controller = application.launch();
        controller.OnMenuDriveInsertBlank(medium);
        return controller;
    }

    /// Chooses all files of the media folder in the file dialog that opens next, as a person would.
    void chooseAllInDialog(QAbstractButton *button)
    {
        application.controller->around.questions = &m_windows;
        QTimer opened;
        QObject::connect(&opened, &QTimer::timeout, qApp, [this] {
            auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            dialog->setDirectory(mediaFolder());
            auto *list = dialog->findChild<QListView *>(QStringLiteral("listView"));
            if (!list || list->model()->rowCount(list->rootIndex()) == 0)
                return;
            list->selectAll();
            for (QPushButton *accept : dialog->findChildren<QPushButton *>()) {
                if (accept->text().contains(QLatin1String("Open")) && accept->isEnabled())
                    return accept->click();
            }
        });
        opened.start(100);
        button->click();
        application.controller->around.questions = &application.questions;
        QTRY_VERIFY_WITH_TIMEOUT(!application.controller->windowUniqueProgress, 60'000);
    }

    /// Presses the burn button, waits for the operation-complete sheet, and presses its OK.
    void burn()
    {
        AppDelegate &controller = *application.controller;
        QTest::mouseClick(application.element<QAbstractButton>("btnBurn"), Qt::LeftButton);
        QTRY_VERIFY_WITH_TIMEOUT(controller.windowOperationCompleted, 120'000);
        QCOMPARE(application.questions.texts(), QStringList());
        auto *ok = controller.windowOperationCompleted->findChild<QPushButton *>();
        ok->click();
        QTRY_VERIFY(!controller.windowOperationCompleted);
    }

    /// The button with this name.
    QAbstractButton *window(const QString &name) const
    {
        return application.window->findChild<QAbstractButton *>(name);
    }

    /// Unpacks the written data disc with xorriso and answers the folder.
    QString extract() const
    {
        const QString target = folder.filePath(QStringLiteral("read"));
        outputOf(QStringLiteral("xorriso"),
                 {QStringLiteral("-osirrox"), QStringLiteral("on"), QStringLiteral("-indev"),
                  QStringLiteral("stdio:") + disc(QStringLiteral("disc.iso")), QStringLiteral("-extract"),
                  QStringLiteral("/"), target});
        outputOf(QStringLiteral("chmod"), {QStringLiteral("-R"), QStringLiteral("u+rwX"), target});
        return target;
    }

private:
    WindowQuestions m_windows;
};
