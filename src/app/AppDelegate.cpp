#include "app/AppDelegate.h"

#include "app/MainWindow.h"
#include "app/Preferences.h"
#include "app/WindowPlace.h"
#include "compilation/FolderTree.h"
#include "compilation/ListTableView.h"
#include "compilation/SavedLists.h"
#include "drives/DriveWatch.h"
#include "runner/ActivityLog.h"
#include "ui_MainWindow.h"
#include "writing/FolderClaim.h"
#include "writing/FolderGathering.h"
#include "writing/Job.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLoggingCategory>
#include <QSettings>
#include <QStandardPaths>
#include <QThreadPool>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(files, "corvalis.files")

namespace {

/// The path of one of our tools: the system's where it has one, else the one built or installed with us.
QString toolPath(const QString &name)
{
    const QString here = QCoreApplication::applicationDirPath();
    for (const QString &path : { u"/usr/bin/"_s + name, here + u'/' + name }) {
        if (QFile::exists(path))
            return path;
    }
    return QDir::cleanPath(here + u"/../libexec/corvalis/"_s + name);
}

[[noreturn]] void exitAtOnce(int status)
{
    std::fflush(nullptr);
    std::_Exit(status);
}

} // namespace

Surroundings Surroundings::ofThisMachine(Questions *questions)
{
    Surroundings around;
    around.drutil = toolPath(u"drutil"_s);
    around.hdiutil = toolPath(u"hdiutil"_s);
    around.dvdauthor = u"/usr/bin/dvdauthor"_s;
    around.resources = QDir::cleanPath(QCoreApplication::applicationDirPath() + u"/../libexec/corvalis"_s);
    around.guide = QDir::cleanPath(
        QCoreApplication::applicationDirPath() + u"/../share/corvalis/guide/user-guide.html"_s);
    around.questions = questions;
    around.driveEvents = DriveEvents::ofUdev;
    around.exitProcess = exitAtOnce;
    return around;
}

AppDelegate::AppDelegate(MainWindow *mainWindow, Surroundings surroundings)
    : window(mainWindow)
    , ui(mainWindow->ui())
    , around(std::move(surroundings))
    , activityLog(new ActivityLog(this))
    , preferences(std::make_unique<QSettings>(u"Corvalis"_s, u"Corvalis"_s))
    , m_lists(std::make_unique<SavedLists>())
{
}

AppDelegate::~AppDelegate()
{
    // Files being measured and folders being copied report back to this object.
    QThreadPool::globalInstance()->waitForDone();
    if (m_gathering)
        m_gathering->endCopies();
    removeObservers();
    // The window may live on; its tables must not ask this object for their rows then.
    for (ListTableView *table :
        { ui->tableviewAudioFiles, ui->tableviewVideoFiles, ui->tableviewDataFolders })
        table->setModel(nullptr);
}

QString AppDelegate::preference(const QString &key) const
{
    return preferences->value(key).toString();
}

void AppDelegate::setPreference(const QString &key, const QString &value)
{
    preferences->setValue(key, value);
    savePreferences();
}

void AppDelegate::savePreferences()
{
    preferences->sync();
    if (preferences->status() != QSettings::NoError)
        activityLog->note(tr("The settings could not be saved"), preferences->fileName());
}

void AppDelegate::applicationDidFinishLaunching()
{
    m_b_Debug_Mode = false;
    s_Video_Output_Format = u""_s;
    s_Audio_Output_Format = u""_s;
    s_Current_Drive_Number = u"1"_s;
    if (!makeWorkingFolders())
        return around.exitProcess(0);
    emptyWorkingFolders();
    s_Video_Output_Format = preference(preferences::videoFormat);
    s_Audio_Output_Format = preference(preferences::audioFormat);
    forPlayers = preference(preferences::forPlayers) == u"1";
    array_Optical_Media_Drives.clear();
    Load_List_Of_Optical_Drives();
    arrayMediaFiles.clear();
    arrayDataFolders.clear();
    const QString ffmpeg = around.resources + u"/ffmpeg"_s;
    sffmpegPath = QFile::exists(ffmpeg) ? ffmpeg : QString();
    setModeDefaults();
    m_b_Col1_Ascenging = true;
    m_b_Col2_Ascenging = m_b_Col3_Ascenging = m_b_Col4_Ascenging = false;
    PaintSpaceOccupiedControl();
    i_Type_of_New_Disc = 1;
    offerRecentLists();
    loadColourScheme();
    schedule(timerSetAlternatingRows, &AppDelegate::TimerSetAlternatingRowsRoutine);
    schedule(timerForceColorsAtStartup, &AppDelegate::TimerForceColorsAtStartupRoutine);
    window->setWindowTitle(u"Corvalis"_s);
    focusList();
    if (around.remembersWindow) {
        new WindowPlace(window,
            { ui->tableviewAudioFiles, ui->tableviewVideoFiles, ui->tableviewDataFolders }, preferences.get(),
            this);
    }
    window->show();
    window->raise();
    window->activateWindow();
}

bool AppDelegate::makeWorkingFolders()
{
    const QDir documents(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    struct WorkingFolder {
        QString AppDelegate::*path;
        QString name;
        QString failure;
    };
    const QList<WorkingFolder> folders{
        { &AppDelegate::s_Output_Folder, u"Corvalis"_s, tr("Error #0008. Application will exit.") },
        { &AppDelegate::s_Audio_Folder, u"CorvalisAudio"_s, tr("Error #0009. Application will exit.") },
        { &AppDelegate::s_Video_Folder, u"CorvalisVideo"_s, tr("Error #000a. Application will exit.") },
        { &AppDelegate::s_Data_Folder, u"CorvalisData"_s, tr("Error #000b. Application will exit.") },
    };
    for (const WorkingFolder &folder : folders)
        this->*folder.path = documents.filePath(folder.name);
    for (const WorkingFolder &folder : folders) {
        const QString path = this->*folder.path;
        if (QFile::exists(path))
            continue;
        if (!QDir().mkpath(path)) {
            alert(tr("Error"), folder.failure, Alert::Sign::Error);
            return false;
        }
        if (folder.path == &AppDelegate::s_Output_Folder)
            storeFirstRunFormats();
    }
    return true;
}

void AppDelegate::emptyWorkingFolders()
{
    for (const QString &folder : { s_Output_Folder, s_Audio_Folder, s_Video_Folder, s_Data_Folder }) {
        if (const auto claim = FolderClaim::take(folder))
            RemoveAllContentInFolder(folder);
        else
            activityLog->note(
                tr("A working folder was not emptied, as another Corvalis prepares a disc in it"), folder);
    }
}

void AppDelegate::storeFirstRunFormats()
{
    s_Video_Output_Format = s_Audio_Output_Format = u"0"_s;
    setPreference(preferences::videoFormat, s_Video_Output_Format);
    setPreference(preferences::audioFormat, s_Audio_Output_Format);
}

void AppDelegate::RemoveAllContentInFolder(const QString &folder)
{
    compilation::emptyFolder(QFile::encodeName(folder).toStdString(), [this](const std::string &failure) {
        const QString text = QString::fromStdString(failure);
        qCWarning(files).noquote() << u"oops: %1"_s.arg(text);
        activityLog->note(tr("A file in a working folder could not be removed"), text);
    });
}

QSize AppDelegate::windowWillResize_toSize(QSize proposed)
{
    return proposed.expandedTo({ 700, 400 });
}

void AppDelegate::windowWillClose()
{
    Terminate_App();
}

void AppDelegate::applicationWillTerminate()
{
    Terminate_App();
}

void AppDelegate::Terminate_App()
{
    around.exitProcess(0);
}

void AppDelegate::alert(const QString &message, const QString &informative, Alert::Sign sign)
{
    around.questions->ask({ message, informative, { tr("Close") }, sign }, window);
}

void AppDelegate::schedule(QPointer<QTimer> &timer, TimerRoutine routine)
{
    delete timer;
    timer = new QTimer(this);
    timer->setSingleShot(true);
    timer->setTimerType(Qt::PreciseTimer); // others may be early
    connect(timer, &QTimer::timeout, this, routine);
    connect(timer, &QTimer::timeout, timer, &QObject::deleteLater);
    timer->start(100);
}
