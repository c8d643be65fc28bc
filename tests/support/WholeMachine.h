// The application with the real engine, the real transcoder and a virtual recorder of the test's own.
#pragma once

#include "app/Window_New_Disc.h"
#include "runner/ActivityLog.h"
#include "support/Person.h"
#include "support/TestApplication.h"
#include "writing/StatusSheets.h"

#include <QDirIterator>
#include <QFileDialog>
#include <QLabel>
#include <QProcess>
#include <QRadioButton>
#include <QTabWidget>

/// What a program printed and how it ended.
struct Printed {
    int status = -1; ///< -1: it crashed, or did not start or end
    QByteArray output;
    QByteArray errors;
};

/// Runs a program to its end, at most two minutes.
inline Printed run(const QString &program, const QStringList &arguments, const QString &folder = {})
{
    QProcess process;
    process.setWorkingDirectory(folder);
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(program, arguments);
    if (!process.waitForFinished(120'000)) {
        process.kill();
        process.waitForFinished();
        return { -1, process.readAllStandardOutput(), process.errorString().toUtf8() };
    }
    return { process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
        process.readAllStandardOutput(), process.readAllStandardError() };
}

/// Runs a program whose failure would make the test worthless, and answers its standard output.
inline QByteArray runWell(const QString &program, const QStringList &arguments, const QString &folder = {})
{
    const Printed printed = run(program, arguments, folder);
    if (printed.status != 0) {
        qFatal("%s %s\nended with %d:\n%s", qUtf8Printable(program),
            qUtf8Printable(arguments.join(QLatin1Char(' '))), printed.status,
            printed.errors.right(4000).constData());
    }
    return printed.output;
}

/// Makes a file with the transcoder; `arguments` come before its path.
inline void makeMedia(const QString &path, const QString &arguments)
{
    QDir().mkpath(QFileInfo(path).path());
    runWell(QStringLiteral("ffmpeg"),
        QStringList{ QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-y") }
            + arguments.split(QLatin1Char(' ')) + QStringList(path));
}

/// Virtual recorder 1 of this process, in a folder of its own. Make it before the application.
class Recorder {
public:
    Recorder()
    {
        qputenv("CORVALIS_VIRTUAL", "only");
        qputenv("CORVALIS_RECORDERS", m_folder.filePath(QStringLiteral("recorders")).toUtf8());
        drutil({ QStringLiteral("list") });
    }

    static QByteArray drutil(const QStringList &arguments)
    {
        return runWell(builtPrograms() + QStringLiteral("/drutil"), arguments);
    }

    static void insert(const QString &kind) { drutil({ QStringLiteral("insert"), kind }); }
    static QByteArray status() { return drutil({ QStringLiteral("status") }); }

    /// A file of the disc that lies in the recorder.
    QString path(const QString &file) const
    {
        return m_folder.filePath(QStringLiteral("recorders/1/") + file);
    }
    QString iso() const { return path(QStringLiteral("disc.iso")); }
    QStringList ejectedDiscs() const { return QDir(path(QStringLiteral("discs"))).entryList(QDir::Files); }

private:
    QTemporaryDir m_folder;
};

/// The whole application as a person has it, with its own dialogs.
class WholeMachine : public TestApplication {
public:
    Recorder recorder;
    QTemporaryDir media;

    WholeMachine()
    {
        useRealTools();
        around.stagingPoll = 1000;
        launchWithDialogs();
    }

    ~WholeMachine() { QThreadPool::globalInstance()->waitForDone(); }

    void press(const char *button) const { person::click(window.get(), button); }

    /// Chooses the kind of disc in the new-disc sheet.
    void choose(int code)
    {
        person::choose(window.get(), "menuitemNewDisc");
        controller->windowNewDisc->findChild<QRadioButton *>(QStringLiteral("radio%1").arg(code))->click();
        person::pressTitled(controller->windowNewDisc, QStringLiteral("OK"));
    }

    /// Adds files that lie in one folder, through the file dialog.
    [[nodiscard]] bool addFiles(const QString &place, const QStringList &names)
    {
        QSignalSpy ended(controller.get(), &AppDelegate::addingEnded);
        person::Expect<QFileDialog> dialog(
            [&](QFileDialog *panel) { person::openFiles(panel, place, names); });
        press(element<QTabWidget>("tabviewMain")->currentIndex() == 0 ? "toolbar_btn_Audio_Add_Files"
                                                                      : "toolbar_btn_Video_Add_Files");
        return dialog.happened() && (ended.count() > 0 || ended.wait(60'000));
    }

    [[nodiscard]] bool addFolder(const QString &place)
    {
        const qsizetype listed = controller->arrayDataFolders.size();
        chooseFolder("toolbar_btn_Data_Add_Folder", place);
        return controller->arrayDataFolders.size() == listed + 1;
    }

    /// Adds single files of one folder to a data disc.
    [[nodiscard]] bool addDataFiles(const QString &place, const QStringList &names)
    {
        const qsizetype listed = controller->arrayDataFolders.size();
        person::Expect<QFileDialog> dialog(
            [&](QFileDialog *panel) { person::openFiles(panel, place, names); });
        press("toolbar_btn_Data_Add_Files");
        return dialog.happened() && controller->arrayDataFolders.size() == listed + names.size();
    }

    /// Presses a button and answers the dialog for a folder that comes.
    void chooseFolder(const char *button, const QString &place)
    {
        person::Expect<QFileDialog> dialog([&](QFileDialog *panel) { person::markFolder(panel, place); });
        press(button);
        if (!dialog.happened())
            qWarning() << "no dialog asked for" << place;
    }

    [[nodiscard]] bool completes()
    {
        return QTest::qWaitFor([this] { return !controller->windowOperationCompleted.isNull(); }, 120'000);
    }

    /// The line of trouble on the operation-complete sheet, empty when it tells of none.
    QString trouble() const
    {
        const auto *text =
            controller->windowOperationCompleted->findChild<QLabel *>(QStringLiteral("labelDescription"));
        return text->isVisible() ? text->text().remove(QChar(0x200b)) : QString();
    }

    void closeCompleteSheet() const
    {
        person::pressTitled(controller->windowOperationCompleted, QStringLiteral("OK"));
    }

    QString mediaPath(const QString &name) const { return media.filePath(name); }
};

namespace reader {

/// Everything of an ISO image, by Rock Ridge names, in a new folder below `place`.
inline QString extractedByXorriso(const QString &image, const QString &place)
{
    const QString target = place + QStringLiteral("/by-xorriso");
    runWell(QStringLiteral("xorriso"),
        { QStringLiteral("-abort_on"), QStringLiteral("FAILURE"), QStringLiteral("-osirrox"),
            QStringLiteral("on:auto_chmod_on"), QStringLiteral("-indev"), QStringLiteral("stdio:") + image,
            QStringLiteral("-extract"), QStringLiteral("/"), target });
    return target;
}

/// The same by Joliet names.
inline QString extractedBy7z(const QString &image, const QString &place)
{
    const QString target = place + QStringLiteral("/by-7z");
    runWell(QStringLiteral("7z"),
        { QStringLiteral("x"), QStringLiteral("-y"), QStringLiteral("-o") + target, image });
    return target;
}

/// How many files and folders isoinfo finds in the Joliet tree; it knows no Unicode, so it cannot be asked
/// for their names.
inline qsizetype countedByIsoinfo(const QString &image)
{
    const QByteArray listing = runWell(QStringLiteral("isoinfo"),
        { QStringLiteral("-J"), QStringLiteral("-f"), QStringLiteral("-i"), image });
    return listing.count('\n');
}

/// What `diff -r` says of two trees, links compared as links; empty when they are the same.
inline QByteArray difference(const QString &one, const QString &other)
{
    const Printed printed = run(QStringLiteral("diff"),
        { QStringLiteral("-r"), QStringLiteral("--no-dereference"), QStringLiteral("--"), one, other });
    return printed.output + printed.errors;
}

/// What ffprobe says of the first stream of a kind ("v" or "a"), "key=value|key=value".
inline QString stream(const QString &file, const QString &kind, const QString &entries)
{
    QString line =
        QString::fromUtf8(runWell(QStringLiteral("ffprobe"),
                              { QStringLiteral("-v"), QStringLiteral("error"),
                                  QStringLiteral("-select_streams"), kind + QStringLiteral(":0"),
                                  QStringLiteral("-show_entries"), QStringLiteral("stream=") + entries,
                                  QStringLiteral("-of"), QStringLiteral("compact=p=0"), file }))
            .section(QLatin1Char('\n'), 0, 0);
    return line.endsWith(QLatin1Char('|')) ? line.chopped(1)
                                           : line; // side data of a stream add an empty field
}

} // namespace reader
