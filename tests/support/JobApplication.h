// A whole application to run jobs in: discs for the noting disc utility, a transcoder that converts,
// files to list, and the sheets noted as they come and go.
#pragma once

#include "app/Window_New_Disc.h"
#include "kit/Sheet.h"
#include "runner/ActivityLog.h"
#include "support/TestApplication.h"
#include "writing/StatusSheets.h"
#include "writing/Window_Data_Copy_Folders.h"

#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QThreadPool>
#include <QWindow>

/// What the disc utility says of a medium.
namespace discs {

inline const QByteArray none = "           Type: No Media Inserted\n";
inline const QByteArray blankCD = "           Type: CD-R                 Name: /dev/sr0\n"
                                  "    Writability: appendable, blank, overwritable\n";
inline const QByteArray writtenCDRW = "           Type: CD-RW                Name: /dev/sr0\n"
                                      "    Writability: erasable\n";
inline const QByteArray pressedCD = "           Type: CD-ROM               Name: /dev/sr0\n"
                                    "    Writability: not writable\n";
inline const QByteArray blankDVD = "           Type: DVD+R                Name: /dev/sr0\n"
                                   "    Writability: appendable, blank, overwritable\n";
inline const QByteArray blankBD = "           Type: BD-R                 Name: /dev/sr0\n"
                                  "    Writability: appendable, blank, overwritable\n";
inline const QByteArray blankOther = "           Type: MO                   Name: /dev/sr0\n"
                                     "    Writability: appendable, blank, overwritable\n";

} // namespace discs

/// Notes "+Name" when a sheet shows and "-Name" when it goes, for as long as it lives.
class SheetNotes : public QObject {
public:
    std::function<void(Sheet *)> onShow; ///< called when a sheet has become visible
    std::function<void(Sheet *)> onHide;
    /// The notes since the last clear().
    QStringList order() const { return m_order; }
    /// Milliseconds between the last notes with these texts.
    qint64 sinceLast(const QString &first, const QString &second) const
    {
        return m_times.value(second) - m_times.value(first);
    }
    void clear() { m_order.clear(); }

    SheetNotes()
    {
        m_clock.start();
        qApp->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const bool shown = event->type() == QEvent::Show;
        if ((shown || event->type() == QEvent::Hide) && !event->spontaneous()) {
            if (auto *sheet = qobject_cast<Sheet *>(watched)) {
                m_order.append(
                    QLatin1Char(shown ? '+' : '-') + QLatin1String(sheet->metaObject()->className()));
                m_times[m_order.last()] = m_clock.elapsed();
                if (const auto &hook = shown ? onShow : onHide)
                    hook(sheet);
            }
        }
        return false;
    }

private:
    QElapsedTimer m_clock;
    QStringList m_order;
    QHash<QString, qint64> m_times;
};

/// Answers as NotingQuestions does, and tells the test before each answer.
class TellingQuestions : public NotingQuestions {
public:
    std::function<void(const Alert &)> onAlert;
    std::function<void(const OpenPanel &)> onPanel;

    int ask(const Alert &alert, QWidget *over) override
    {
        if (onAlert)
            onAlert(alert);
        return NotingQuestions::ask(alert, over);
    }

    QList<QUrl> choose(const OpenPanel &panel, QWidget *over) override
    {
        if (onPanel)
            onPanel(panel);
        return NotingQuestions::choose(panel, over);
    }
};

/// The application with tools that work as far as a job can see. Each media file holds its duration as
/// text ("00:00:14.00"), the transcoder writes "converted" into its output, and the disc utility notes
/// the names in the folder that it is given.
class JobApplication : public TestApplication {
public:
    QTemporaryDir media;
    SheetNotes sheets;
    TellingQuestions asked;

    JobApplication()
    {
        around.questions = &asked;
        around.stagingPoll = 250; // on a machine at work a copy may have to wait that long before it begins
        insert(discs::blankCD);
        convertWith("echo converted > \"$output\"\n");
        burnWith("");
    }

    ~JobApplication()
    {
        // What still measures in the background speaks to the controller.
        QThreadPool::globalInstance()->waitForDone();
    }

    void insert(const QByteArray &status) const { drutil.print(QStringLiteral("status"), status); }

    /// Shell commands of a conversion; "$output" is the file to be made, "$tool" the path for side files.
    void convertWith(const QByteArray &commands) const
    {
        ffmpeg.run(
            "tool=$0\n"
            "if [ $# -eq 2 ]; then printf '  Duration: %s, start: 0.0\\n' \"$(cat \"$2\")\" >&2; exit 1; fi\n"
            "for output; do :; done\n"
            + commands);
    }

    /// Shell commands of a write, after the folder's names are noted.
    void burnWith(const QByteArray &commands) const
    {
        drutil.run("[ \"$1\" = burn ] || exit 0\n"
                   "if [ \"$2\" = -audio ]; then folder=$3; else folder=$2; fi\n"
                   "tool=$0\n"
                   "(cd \"$folder\" && find . -mindepth 1 -printf '%P\\0') > \"$0.seen\"\n"
            + commands);
    }

    /// Shell commands that wait until release(gate), at most two minutes.
    static QByteArray waitFor(const QByteArray &gate)
    {
        return "waited=0; until [ -e \"$tool.go." + gate
            + "\" ] || [ $waited -gt 2400 ]; do sleep 0.05; waited=$((waited + 1)); done\n";
    }
    static void release(const NotingTool &tool, const QByteArray &gate)
    {
        if (!QFile(tool.path() + QLatin1String(".go.") + QString::fromUtf8(gate)).open(QIODevice::WriteOnly))
            qFatal("the gate cannot be opened");
    }

    /// The paths that the disc utility found in the folder that it was to write, sorted.
    QStringList burned() const
    {
        QFile noted(drutil.path() + QLatin1String(".seen"));
        if (!noted.open(QIODevice::ReadOnly))
            return { QStringLiteral("nothing was written") };
        QStringList names = QString::fromUtf8(noted.readAll()).split(QChar(0), Qt::SkipEmptyParts);
        names.sort();
        return names;
    }

    /// A media file of this name; the name may have folders in front.
    QString file(const QString &name, const QByteArray &duration = "00:00:14.00") const
    {
        const QString path = media.filePath(name);
        QDir().mkpath(path.left(path.lastIndexOf(QLatin1Char('/'))));
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(duration) < 0)
            qFatal("%s cannot be written", qUtf8Printable(path));
        return path;
    }

    /// Clicks where a button of the main window is, as the mouse does: what covers or blocks the button
    /// keeps the click from it.
    void press(const char *button) const
    {
        const auto *widget = element<QAbstractButton>(button);
        if (!QTest::qWaitForWindowExposed(window.get()) || !widget->isVisible())
            qWarning() << "nobody can press" << widget;
        QTest::mouseClick(
            window->windowHandle(), Qt::LeftButton, {}, widget->mapTo(window.get(), widget->rect().center()));
    }
    void trigger(const char *menuItem) const { element<QAction>(menuItem)->trigger(); }

    /// Chooses the kind of disc in the new-disc sheet.
    void choose(int code)
    {
        trigger("menuitemNewDisc");
        controller->windowNewDisc->findChild<QRadioButton *>(QStringLiteral("radio%1").arg(code))->click();
        controller->windowNewDisc->OnOK();
    }

    /// Adds files through the button of the tab that is shown, and waits for them.
    bool add(const QStringList &paths)
    {
        QList<QUrl> urls;
        for (const QString &path : paths)
            urls.append(QUrl::fromLocalFile(path));
        asked.choices.append(urls);
        QSignalSpy ended(controller.get(), &AppDelegate::addingEnded);
        press(element<QTabWidget>("tabviewMain")->currentIndex() == 0 ? "toolbar_btn_Audio_Add_Files"
                                                                      : "toolbar_btn_Video_Add_Files");
        return ended.count() > 0 || ended.wait(20'000);
    }

    void addFolder(const QString &path)
    {
        asked.choices.append(QList<QUrl>{ QUrl::fromLocalFile(path) });
        press("toolbar_btn_Data_Add_Folder");
    }

    /// Waits for the operation-complete sheet; tells how far the job came where it does not.
    bool completes()
    {
        if (QTest::qWaitFor([this] { return !controller->windowOperationCompleted.isNull(); }, 120'000))
            return true;
        qWarning() << "the job has not ended: sheets" << sheets.order() << "panels" << asked.panels.size()
                   << "alerts" << asked.texts() << "modal" << QApplication::activeModalWidget();
        qWarning().noquote() << controller->activityLog->text();
        return false;
    }

    /// The button of a sheet's button box.
    static QPushButton *button(const QWidget *sheet, QDialogButtonBox::StandardButton which)
    {
        return sheet->findChild<QDialogButtonBox *>()->button(which);
    }

    /// The line of trouble on the operation-complete sheet, empty when it tells of none.
    QString trouble() const
    {
        const auto *text =
            controller->windowOperationCompleted->findChild<QLabel *>(QStringLiteral("labelDescription"));
        return text->isVisible() ? text->text().remove(QChar(0x200b)) : QString();
    }

    static QStringList namesIn(const QString &folder)
    {
        return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    /// "message | informative" of each alert so far.
    QStringList texts() const { return asked.texts(); }
};
