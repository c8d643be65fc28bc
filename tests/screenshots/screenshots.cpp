// Photographs of every window for the documentation: the real program with real tools, on the X display
// that scripts/screenshots makes. Usage: corvalis_screenshots light|dark FOLDER-OF-MEDIA OUTPUT-FOLDER
#include "app/AppDelegate.h"
#include "app/Languages.h"
#include "app/MainWindow.h"
#include "app/Window_Activity_Log.h"
#include "desktop/Opening.h"
#include "kit/SheetStage.h"
#include "support/Person.h"
#include "ui/ColourWell.h"
#include "ui/PreviewPlayer.h"
#include "ui/Window_Colors.h"
#include "ui_MainWindow.h"
#include "writing/StatusSheets.h"

#include <QApplication>
#include <QCheckBox>
#include <QCursor>
#include <QDialog>
#include <QDir>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QStyleFactory>
#include <QTest>
#include <QTreeWidget>

#include <cstdlib>
#include <functional>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// Confirms panels with what was laid ready, and shows alerts as they are.
class Panels : public WindowQuestions {
public:
    QList<QUrl> answer;
    QList<QUrl> choose(const OpenPanel &, QWidget *) override { return std::exchange(answer, {}); }
};

/// A scheme that somebody could have chosen: the wells of the sheet, and what to put into them.
struct Choice {
    const char *well;
    QColor light;
    QColor dark;
};
const Choice choices[] = {
    { "colorListBackground", QColor(250, 246, 236), QColor(24, 34, 31) },
    { "colorListForeground", QColor(52, 44, 38), QColor(214, 228, 220) },
    { "colorToolbar", QColor(47, 98, 84), QColor(38, 78, 67) },
    { "colorBottomBar", QColor(35, 74, 64), QColor(29, 59, 51) },
    { "colorSpaceOccupied", QColor(232, 163, 61), QColor(232, 163, 61) },
};

/// Waits until `reached` answers true; without it there is nothing to photograph.
void waitFor(const std::function<bool()> &reached, int limit)
{
    if (!QTest::qWaitFor(reached, limit))
        qFatal("The program did not come this far in %d ms.", limit);
}

class Photographer {
public:
    Photographer(const QString &suffix, const QString &media, const QString &output)
        : m_suffix(suffix)
        , m_media(media)
        , m_output(output)
        , m_around(Surroundings::ofThisMachine(&m_panels))
        , m_controller(&m_window, m_around)
    {
        m_controller.awakeFromNib();
        m_controller.applicationDidFinishLaunching();
        m_window.move(0, 0);
        QCursor::setPos(m_window.screen()->geometry().bottomRight()); // where nothing is under it
        QTest::qWait(400);
    }

    void photographAll()
    {
        takeAudio();
        takeColours();
        takePlayer();
        takeJob();
        takeTabs();
        takeSheets();
        takeAlerts();
    }

private:
    void shoot(const QString &name) { shoot(name, m_window); }

    /// What the screen shows where this window is.
    void shoot(const QString &name, const QWidget &window)
    {
        QTest::qWait(250);
        const QRect area(window.mapToGlobal(QPoint(0, 0)), window.size());
        const QPixmap picture =
            window.screen()->grabWindow(0, area.x(), area.y(), area.width(), area.height());
        picture.save(u"%1/%2-%3.png"_s.arg(m_output, name, m_suffix));
    }

    QList<QUrl> media(const QStringList &patterns) const
    {
        QList<QUrl> urls;
        for (const QFileInfo &file : QDir(m_media).entryInfoList(patterns, QDir::Files, QDir::Name))
            urls.append(QUrl::fromLocalFile(file.filePath()));
        return urls;
    }

    void takeAudio()
    {
        shoot(u"audio-empty"_s);
        m_panels.answer = media({ u"*.mp3"_s, u"*.m4a"_s, u"*.wav"_s, u"*.wma"_s });
        m_controller.OnActionAudioAddFiles();
        waitFor([this] { return !m_controller.windowUniqueProgress; }, 30'000);
        ui()->tableviewAudioFiles->selectRow(2);
        shoot(u"audio"_s);
    }

    void takeColours()
    {
        m_controller.OnToolsColors();
        shoot(u"colours"_s);
        for (const Choice &choice : choices)
            inColours<ColourWell>(choice.well)->setColour(m_suffix == u"dark" ? choice.dark : choice.light);
        inColours<QCheckBox>("check_Alternating_Rows")->setChecked(false);
        inColours<QPushButton>("btnOK")->click();
        shoot(u"recoloured"_s);
        m_controller.OnToolsColors();
        inColours<QPushButton>("btnOriginal")->click();
        inColours<QPushButton>("btnOK")->click();
    }

    template <class T>
    T *inColours(const char *name) const
    {
        return m_controller.windowColors->findChild<T *>(QLatin1StringView(name));
    }

    void takePlayer()
    {
        QString whyNot;
        const std::unique_ptr<QDialog> player(
            createPreview(QUrl::fromLocalFile(m_media + u"/Seaside.mov"_s), nullptr, {}, &whyNot));
        if (!player)
            qFatal("%s", qPrintable(whyNot));
        player->move(0, 0);
        player->show();
        waitFor([&] { return player->property("duration").toDouble() > 0; }, 30'000);
        player->setProperty("currentTime", 17);
        player->findChild<QPushButton *>(u"playPauseButton"_s)->click();
        waitFor([&] { return player->property("currentTime").toDouble() > 18.5; }, 30'000);
        shoot(u"player"_s, *player);
    }

    void takeJob()
    {
        QTimer progress;
        QObject::connect(&progress, &QTimer::timeout, qApp, [this] {
            if (m_controller.windowProgress && m_controller.windowProgress->progressOverall()->value() >= 2
                && m_controller.windowProgress->progressBar()->value() > 20 && !m_progressTaken) {
                m_progressTaken = true;
                shoot(u"progress"_s);
            }
        });
        progress.start(20);
        ui()->btnBurn->click();
        waitFor([this] { return !m_controller.windowPerformingOperation.isNull(); }, 60'000);
        if (!m_progressTaken)
            qFatal("The conversion was over too soon to be photographed.");
        shoot(u"working"_s);
        waitFor([this] { return !m_controller.windowOperationCompleted.isNull(); }, 60'000);
        shoot(u"complete"_s);
        m_controller.Close_Window_Operation_Complete();
        QTest::qWait(100);
        takeLog();
    }

    void takeLog()
    {
        m_controller.OnMenuActivityLog();
        Window_Activity_Log &log = *m_controller.windowActivityLog;
        log.move(90, 70);
        auto *runs = log.findChild<QTreeWidget *>(u"listRuns"_s);
        waitFor([&] { return runs->topLevelItemCount() > 0; }, 5'000);
        runs->setCurrentItem(runs->topLevelItem(runs->topLevelItemCount() - 1)); // the writing
        shoot(u"activity-log"_s);
        log.close();
    }

    void takeTabs()
    {
        ui()->submenuItemTabVideo->trigger();
        m_panels.answer = media({ u"*.mp4"_s, u"*.avi"_s, u"*.mov"_s });
        m_controller.OnActionVideoAddFiles();
        waitFor([this] { return !m_controller.windowUniqueProgress; }, 30'000);
        shoot(u"video"_s);
        ui()->submenuItemTabData->trigger();
        m_panels.answer = { QUrl::fromLocalFile(m_media) };
        m_controller.OnActionDataAddFolder();
        shoot(u"data"_s);
        ui()->submenuItemTabISO->trigger();
        shoot(u"iso"_s);
        takeOpenedImage();
        ui()->submenuItemTabTools->trigger();
        shoot(u"tools"_s);
        ui()->submenuItemTabAudio->trigger();
    }

    void takeOpenedImage()
    {
        desktop::Opening opening(&m_controller);
        opening.open(
            { { QUrl::fromLocalFile(QFileInfo(m_media).dir().filePath(u"Holidays 2026.iso"_s)) }, {} });
        waitFor([this] { return m_window.stage()->isOccupied(); }, 10'000);
        shoot(u"opened-image"_s);
        QTest::keyClick(m_window.windowHandle(), Qt::Key_Escape);
        QTest::qWait(100);
    }

    void takeSheets()
    {
        const std::pair<QString, void (AppDelegate::*)()> sheets[] = {
            { u"new-disc"_s, &AppDelegate::ShowNewDiscWindow },
            { u"video-settings"_s, &AppDelegate::OnActionVideoSettings },
        };
        for (const auto &[name, open] : sheets) {
            (m_controller.*open)();
            shoot(name);
            QTest::keyClick(m_window.windowHandle(), Qt::Key_Escape); // a sheet stands in it
            QTest::qWait(100);
        }
    }

    void takeAlerts()
    {
        const std::pair<QString, void (AppDelegate::*)()> alerts[] = {
            { u"alert"_s, &AppDelegate::OnBtnBurn },
            { u"disc-information"_s, &AppDelegate::OnToolsDiscInfo },
        };
        for (const auto &[name, open] : alerts) {
            QTimer::singleShot(500, qApp, [this, picture = name] {
                shoot(picture);
                QWidget *const alert = person::waitingDialog();
                QTest::keyClick(alert ? alert : &m_window, Qt::Key_Escape);
            });
            (m_controller.*open)();
        }
    }

    Ui::MainWindow *ui() const { return m_window.ui(); }

    const QString m_suffix, m_media, m_output;
    Panels m_panels;
    MainWindow m_window;
    Surroundings m_around;
    AppDelegate m_controller;
    bool m_progressTaken = false;
};

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    if (argc != 4)
        return 2;
    languages::speak(QLocale(QLocale::English));
    QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
    const QString suffix = QString::fromLocal8Bit(argv[1]);
    Photographer photographer(suffix, QString::fromLocal8Bit(argv[2]), QString::fromLocal8Bit(argv[3]));
    photographer.photographAll();
    std::_Exit(0);
}
