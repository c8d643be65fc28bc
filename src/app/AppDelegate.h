// The controller: the state of the program and the target of everything a person can press.
// An area's operations are defined in that area's folder; this header is their table of contents.
#pragma once

#include "app/ProjectTypes.h"
#include "app/Questions.h"
#include "compilation/Capacity.h"
#include "compilation/Records.h"
#include "drives/DriveList.h"

#include <QColor>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <memory>

class ActivityLog;
class FolderClaim;
class MainWindow;
class QSettings;
class ListTableView;
class Window_Activity_Log;
class Window_Colors;
class Window_Data_Copy_Folders;
class Window_New_Disc;
class Window_Operation_Terminated;
class Window_Performing_Operation;
class Window_Progress;
class Window_Unique_Progress;
class Window_Video_Settings;
namespace Ui {
class MainWindow;
}
namespace runner {
class ToolRun;
struct ToolEnd;
} // namespace runner

namespace writing {
struct CopyState;
}

/// What the controller needs of the machine around it. The defaults are a person's machine; tests
/// and the batch form put their own in.
struct Surroundings {
    QString drutil; ///< full path of the disc utility
    QString hdiutil; ///< full path of the disk-image utility
    QString resources; ///< the folder of the application's own resources
    int probeLimit = 60'000; ///< ms after which a probe that gives no answer is ended
    int stagingPoll = 60'000; ///< ms between two measurements of a folder that is being copied
    int copyEndLimit = 10'000; ///< ms that a folder copy has to stop when the disc is written
    Questions *questions = nullptr; ///< answers alerts and panels; not owned
    std::function<void(int)> exitProcess; ///< ends the process at once with this status

    /// The machine as it is: tools at their usual places, else beside the program.
    static Surroundings ofThisMachine(Questions *questions);
};

/// See the head of this file. One instance, made by main(); lives and works on the GUI thread. All
/// fields are public to the areas; nobody else writes them.
class AppDelegate : public QObject {
    Q_OBJECT
public:
    AppDelegate(MainWindow *mainWindow, Surroundings around);
    ~AppDelegate() override;

    // ---- State: where files lie while a disc is made
    QString s_Output_Folder, s_Audio_Folder, s_Video_Folder, s_Data_Folder;
    QString sffmpegPath; ///< the transcoder; empty when it was not found
    QString SourcePath, DestPath, DestPathISO; ///< of the image being made

    // ---- State: project and mode
    qint64 i_Type_of_New_Disc = 1; ///< 1..8, as last confirmed; 99 while the new-disc sheet is cancelled
    qint64 i_Audio_Type = 0, i_Video_Type = 0, i_Data_Type = 0; ///< variant of each list tab
    qint64 i_Burn_Audio_Type = 0; ///< 1 CD-DA, 2 MP3, while an audio disc is made

    // ---- State: lists and totals
    QList<NodeMediaFile> arrayMediaFiles; ///< shown by the audio and the video tab alike
    QList<NodeDataFolder> arrayDataFolders;
    QList<Object_Optical_Drive> array_Optical_Media_Drives; ///< as found at start-up
    qint64 i_Audio_Total_Duration_in_Seconds = 0, i_Video_Total_Duration_in_Seconds = 0;
    qint64 i_Data_Total_Size_in_KBytes = 0;
    bool m_b_Col1_Ascenging = true, m_b_Col2_Ascenging = false, m_b_Col3_Ascenging = false,
         m_b_Col4_Ascenging = false;

    QList<std::shared_ptr<writing::CopyState>> stagingCopies; ///< folder copies that may still run

    // ---- State: drive, formats, debug
    QString s_Current_Drive_Number;
    QString s_Video_Output_Format, s_Audio_Output_Format; ///< "0" NTSC, Dolby Digital; else PAL, MPEG audio
    bool m_b_Debug_Mode = false;

    // ---- State: the running tool
    QPointer<runner::ToolRun> observed; ///< the child whose output and end are being watched
    bool terminated = false; ///< the transcoder of this round has ended
    QString s_Orig_Duration;
    quint64 i_Orig_Duration_in_Seconds = 0; ///< of the file being transcoded
    float percentTranscoded = 0; ///< of that file, 0 to 100
    quint64 u_Duration_Segment_in_Seconds = 0, u_Duration_All_Segments_in_Seconds = 0;
    std::unique_ptr<FolderClaim> folderClaim; ///< on the working folder of the present job
    bool b_Emptying_Data_Folder = false; ///< after a data disc was written
    qsizetype jobStart = 0; ///< where the present job begins in the activity log
    quint64 u_Type_Progress = 0; ///< 1 audio, 0 video, else progress is not read

    // ---- State: appearance; an invalid colour is one whose stored value could not be read
    QColor colorTableBackground, colorTableForeground, colorToolbar, colorBottomBar, colorSpaceOccupiedBar;
    qint64 b_List_Alternating_Rows = 1;

    // ---- State: one-shot timers, owned by this controller as its children
    QPointer<QTimer> timerBurnAudioCD, timerBurnMP3, timerBurnVideo, timerBurnDataFolder,
        timerDuplicateMediaCopy;
    QPointer<QTimer> timerCreateISOStep1, timerCreateISOStep2, timerCreateISOStep3;
    QPointer<QTimer> timerSetAlternatingRows, timerForceColorsAtStartup;

    // ---- State: secondary windows, owned by the main window, null while they are not shown
    QPointer<Window_New_Disc> windowNewDisc;
    QPointer<Window_Video_Settings> windowVideoSettings;
    QPointer<Window_Data_Copy_Folders> windowDataCopyFolders;
    QPointer<Window_Colors> windowColors;
    QPointer<Window_Progress> windowProgress;
    QPointer<Window_Unique_Progress> windowUniqueProgress;
    QPointer<Window_Performing_Operation> windowPerformingOperation;
    QPointer<Window_Operation_Terminated> windowOperationCompleted;
    QPointer<Window_Activity_Log> windowActivityLog;

    // ---- State: around the controller
    MainWindow *const window;
    Ui::MainWindow *const ui; ///< every interface element under its given name
    Surroundings around;
    ActivityLog *const activityLog;
    const std::unique_ptr<QSettings> preferences;

    // ---- Start and end (app/)
    void awakeFromNib();
    void applicationDidFinishLaunching();
    void RemoveAllContentInFolder(const QString &folder);
    void emptyWorkingFolders(); ///< but for those in which another Corvalis prepares a disc
    void windowWillClose();
    void applicationWillTerminate();
    void Terminate_App();
    static bool applicationShouldTerminateAfterLastWindowClosed() { return true; }
    static QSize windowWillResize_toSize(QSize proposed); ///< at least 700 x 400
    bool makeWorkingFolders(); ///< false: one could not be made, and the person has been told
    void storeFirstRunFormats();
    void setPreference(const QString &key, const QString &value); ///< written to disk at once
    void savePreferences();
    QString preference(const QString &key) const; ///< null when absent

    // ---- Menus (app/)
    void OnMenuQuit();
    void OnMenuDebugMode();
    void openPage(const QUrl &page); ///< in the browser; tells the address where that fails
    void OnMenuHelpAppHomePage();
    void OnMenuHelpCompanyHomePage();
    void OnMenuHelpSubmitTicket();
    void OnMenuHelpPrivacyPolicy();
    void OnMenuHelpAbout();
    void OnMenuActivityLog();
    void connectMenus();
    void connectLists();
    void connectTools();
    static void arrangeColumns(ListTableView *table, int wideColumn);

    // ---- Project types, modes and tabs (app/)
    void ShowNewDiscWindow();
    void Show_Window_New_Disc();
    void Close_Window_New_Disc();
    void OnMenuDiscNew();
    void OnActionAudioCD();
    void OnActionMP3CD();
    void OnActionMP3DVD();
    void OnActionVideoDVD();
    void OnActionVideoBluray();
    void OnActionDataCD();
    void OnActionDataDVD();
    void OnActionDataBluray();
    void tabView_didSelectTabViewItem(const QString &identifier);
    void OnMenuTabAudio();
    void OnMenuTabVideo();
    void OnMenuTabData();
    void OnMenuTabISO();
    void OnMenuTabTools();
    void OnBtnBurn();
    void setModeDefaults();
    void chooseVariant(int code); ///< what a mode button of the project type does
    void markVariant(int code); ///< borders its mode button alone in its tab
    void emptyAllLists();
    void showTab(int index);
    void didSelectTab(int index); ///< what follows from showing a tab
    void offerKinds(int tab); ///< names the menu items of the tab's kinds of disc
    void offerListActions(int tab); ///< enables the menu items that the tab has a use for
    QString selectedPage() const; ///< identifier of the selected tab, "1" to "5"

    // ---- Drives and media (drives/)
    void Load_List_Of_Optical_Drives();
    void OnMenuDriveSlot1();
    void OnMenuDriveSlot2();
    void OnMenuDriveSlot3();
    void OnMenuDriveSlot4();
    void OnMenuDriveSlot5();
    void OnMenuDriveSlot6();
    QString driveStatus(); ///< what the disc utility prints of the current drive's medium
    bool IsDriveEmpty();
    bool IsMediaOneTimeWritable();
    bool IsMediaReWritable();
    QString TypeOfMediaInTheDrive();
    void chooseDrive(int slot); ///< 0..5
    void offerVirtualDrive(); ///< shows or hides what only a virtual recorder can do
    void OnMenuDriveInsertBlank(const QString &kind); ///< virtual recorders only; "none" removes the disc
    void OnMenuDriveShowDiscs();
    bool isVirtualRecorderSelected() const;

    // ---- Records and measurements (compilation/)
    QString GetMediaFileDuration(const QString &path); ///< any thread; runs the transcoder and waits
    static qint64 Return_Seconds_From_Duration_Str(const QString &duration);
    static QStringList splitStringIntoChars(const QString &text); ///< a utility: one text per character
    static quint64 folderSize(const QString &path); ///< bytes below a folder, links followed; walks the tree

    // ---- Adding and removing (compilation/)
    enum class ListKind { Audio, Video };
    static const QStringList &acceptedExtensions(ListKind kind);
    void pickMediaFiles(ListKind kind);
    void pickMediaFolder(ListKind kind);
    void addMediaFiles(ListKind kind, const QList<QUrl> &urls); ///< returns at once; addingEnded() follows
    void addMediaFolder(ListKind kind, const QString &folder);
    QList<QUrl> mediaIn(ListKind kind, const QString &folder); ///< the accepted files; tells what is no text
    void mediaFileMeasured(ListKind kind, const QList<NodeMediaFile> &records, qsizetype count);
    void addDataFolder(const QString &path);
    template <class Record>
    void deleteSelected(ListTableView *table, QList<Record> &list);
    void playSelected(const ListTableView *table);
    void OnActionAudioAddFiles();
    void OnActionAudioAddFolder();
    void OnActionAudioDelete();
    void OnActionAudioClear();
    void OnActionAudioPlay();
    void OnActionAudioNewDisc();
    void OnActionAudioCopyDisc();
    void OnActionVideoAddFiles();
    void OnActionVideoAddFolder();
    void OnActionVideoDelete();
    void OnActionVideoClear();
    void OnActionVideoPlay();
    void OnActionVideoNewDisc();
    void OnActionVideoCopyDisc();
    void OnActionVideoSettings();
    void OnActionDataAddFolder();
    void OnActionDataDelete();
    void OnActionDataClear();
    void OnActionDataNewDisc();
    void OnActionDataCopyDisc();
    void addDroppedFiles(const QList<QUrl> &urls); ///< onto the selected tab; tells what does not fit
    bool listTakes(int tab, const QUrl &url) const; ///< whether it can go on the tab's list
    void moveSelectedEntries(int by); ///< up (-1) or down (1) in the list of the selected tab

    // ---- Tables, sorting, gauge (compilation/)
    qsizetype numberOfRowsInTableView(const ListTableView *table) const;
    void tableView_sortDescriptorsDidChange(ListTableView *table);
    void forgetSorting(); ///< no heading claims any more that the list is in its order
    void reorderList(const ListTableView *table, const QList<qsizetype> &order, QList<int> &selected);
    static void reloadTable(ListTableView *table);
    void refreshTable(const ListTableView *table); ///< the list kind's refresh
    void refreshTableAudioFiles();
    void refreshTableVideoFiles();
    void refreshTableDataFolders();
    void PaintSpaceOccupiedControl();
    QColor cellTextColour() const;
    ListTableView *selectedTable() const; ///< of the selected tab, null on a tab without a list

    // ---- Running tools (runner/)
    QByteArray captureTool(const QString &program, const QStringList &arguments,
        runner::ToolEnd *end = nullptr); ///< blocks
    using Observer = void (AppDelegate::*)();
    /// What a background run is watched for beside its end: `drutil` runs have their output logged.
    enum class Output { Observed, Ignored };
    void runInBackground(const QString &program, const QStringList &arguments, Observer atEnd, Output output);
    /// Converts `subject`, in a nested run of the event loop. `expectedStatus`: how the transcoder should end.
    void transcodeAndWait(const QStringList &arguments, const QString &subject, int expectedStatus);
    void removeObservers(); ///< no handler of an earlier run can fire any more
    void outData(runner::ToolRun *tool);
    void errData(runner::ToolRun *tool);
    void showProgress(const QString &piece); ///< of the transcoder's standard error
    void transcoderTerminated();
    void dataReady(const QByteArray &data); ///< all that a background run printed, at its end
    void dataAvailable(const QByteArray &data);
    void taskTerminated();
    void finishWriting(const QString &workingFolder);
    void AudioBurnTerminated();
    void VideoBurnTerminated();
    void dataBurnTerminated();
    void dataFolderEmptied();
    void MediaDuplicationTerminated();
    void CreateISOfromDriveTerminated();
    void Show_Window_Performing_Operation();
    void Close_Window_Performing_Operation();
    void Show_Window_Operation_Complete();
    void Close_Window_Operation_Complete();
    void Show_Window_Progress(qsizetype items);
    void Close_Window_Progress();
    using TimerRoutine = void (AppDelegate::*)();
    void schedule(QPointer<QTimer> &timer, TimerRoutine routine); ///< after 0.1 s, replacing a pending one
    /// A job is under way, also in the moments when none of its windows is up: no other one may begin.
    bool isJobPending() const;

    // ---- Writing discs (writing/)
    /// What the three forms of every kind of disc have in common: the checks before a job.
    struct DiscForm;
    bool mayWrite(const DiscForm &form, bool listIsEmpty); ///< false: an alert has told why not
    struct AudioForm;
    void burnAudio(const AudioForm &form);
    void burnVideo(const DiscForm &form);
    void burnData(const DiscForm &form);
    /// Converts every listed file with the arguments that `argumentsFor` gives, behind the progress sheet.
    void convertList(
        quint64 progressMode, const std::function<QStringList(const NodeMediaFile &)> &argumentsFor);
    bool claimFolder(const QString &folder); ///< empties it for this job; false: an alert told whose it is
    void beginJob(); ///< what the operation-complete sheet reports begins here
    void Burn_Audio_CD();
    void Burn_Audio_MP3_CD();
    void Burn_Audio_MP3_DVD();
    void TimerBurnAudioCD();
    void TimerBurnMP3();
    void Burn_Video_DVD();
    void Burn_Video_Bluray();
    void TimerBurnVideoRoutine();
    void Burn_Data_CD();
    void Burn_Data_DVD();
    void Burn_Data_Bluray();
    void TimerBurnDataFolder();
    void Show_Window_Data_Copy_Folders();
    void Close_Window_Data_Copy_Folders();
    bool endStagingCopies(); ///< stops the running ones and waits; false: one goes on. Any thread
    void Show_Window_Video_Settings();
    void Close_Window_Video_Settings();
    void DuplicateMedia();
    QString duplicationImage() const;
    bool promptForBlank(); ///< false: the person gave up
    void TimerDuplicateMediaCopy();
    void OnActionISOCreate();
    void TimerCreateISOStep1Routine();
    void TimerCreateISOStep2Routine();
    void TimerCreateISOStep3Routine();
    void isoMakingTerminated();
    void OnActionISOBurn();

    // ---- Disc tools (tools/)
    void eraseDisc(const QString &extent); ///< "full" or "quick"
    void OnToolsFormatRWMedia();
    void OnToolsFormatFull();
    void OnToolsFormatQuick();
    void OnToolsEjectDisc();
    void OnToolsLoadDisc();
    void OnToolsDiscInfo();

    // ---- Appearance (ui/)
    void OnToolsColors();
    void OK_Window_Colors();
    void Cancel_Window_Colors();
    void loadColourScheme();
    void paintTableBackgrounds(bool alternating);
    void TimerSetAlternatingRowsRoutine();
    void TimerForceColorsAtStartupRoutine();

    /// Shows one alert with the button "Close".
    void alert(const QString &message, const QString &informative);

Q_SIGNALS:
    /// The burn button's job, or another job behind sheets, has reached the operation-complete sheet.
    void operationCompleted();
    /// Files that were being probed are all on the list.
    void addingEnded();
};
