// The controller: the state of the program and the target of everything a person can press.
// An area's operations are defined in that area's folder; this header is their table of contents.
#pragma once

#include "app/Forward.h"
#include "app/ProjectTypes.h"
#include "app/Questions.h"
#include "app/Surroundings.h"
#include "compilation/DiscRoom.h"
#include "compilation/Records.h"
#include "drives/DriveList.h"

#include <QColor>
#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <memory>

/// See the head of this file. One instance, made by main(); lives and works on the GUI thread. All
/// fields are public to the areas; nobody else writes them.
class AppDelegate : public QObject {
    Q_OBJECT
public:
    AppDelegate(MainWindow *mainWindow, Surroundings surroundings);
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

    // ---- State: drive, formats, debug
    QString s_Current_Drive_Number;
    QString s_Gone_Drive; ///< title of the chosen drive once it is not there any more; else empty
    QString s_Disc_Name; ///< as typed, so it may be one that no disc can have; set it with setDiscName()
    QString s_Video_Output_Format, s_Audio_Output_Format; ///< "0" NTSC, Dolby Digital; else PAL, MPEG audio
    bool forPlayers = false; ///< Video DVDs are made for players in living rooms: titles and chapters
    bool m_b_Debug_Mode = false;

    // ---- State: the running tool
    /// The job under way; null when there is none. While there is one, nothing else can be begun.
    std::unique_ptr<writing::Job> job;
    bool terminated = false; ///< the transcoder of this round has ended
    QString s_Orig_Duration;
    quint64 i_Orig_Duration_in_Seconds = 0; ///< of the file being transcoded
    quint64 u_Duration_Segment_in_Seconds = 0, u_Duration_All_Segments_in_Seconds = 0;
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
    void windowWillClose();
    void applicationWillTerminate();
    void Terminate_App();
    static bool applicationShouldTerminateAfterLastWindowClosed() { return true; }
    static QSize windowWillResize_toSize(QSize proposed); ///< at least 700 x 400
    void setPreference(const QString &key, const QString &value); ///< written to disk at once
    QString preference(const QString &key) const; ///< null when absent

    // ---- Menus (app/)
    void OnMenuQuit();
    void OnMenuDebugMode();
    void OnMenuHelpAppHomePage(), OnMenuHelpCompanyHomePage(), OnMenuHelpSubmitTicket(),
        OnMenuHelpPrivacyPolicy(), OnMenuHelpUserGuide(), OnMenuHelpAbout();
    void OnMenuActivityLog();

    // ---- Project types, modes and tabs (app/)
    void ShowNewDiscWindow(), Show_Window_New_Disc(), Close_Window_New_Disc();
    void OnMenuDiscNew();
    void OnActionAudioCD(), OnActionMP3CD(), OnActionMP3DVD(), OnActionVideoDVD(), OnActionVideoBluray(),
        OnActionDataCD(), OnActionDataDVD(), OnActionDataBluray();
    void tabView_didSelectTabViewItem(const QString &identifier);
    void OnMenuTabAudio(), OnMenuTabVideo(), OnMenuTabData(), OnMenuTabISO(), OnMenuTabTools();
    void OnBtnBurn();

    // ---- Drives and media (drives/)
    void Load_List_Of_Optical_Drives();
    void OnMenuDriveSlot1(), OnMenuDriveSlot2(), OnMenuDriveSlot3(), OnMenuDriveSlot4(), OnMenuDriveSlot5(),
        OnMenuDriveSlot6();
    bool IsDriveEmpty();
    bool IsMediaOneTimeWritable();
    bool IsMediaReWritable();
    QString TypeOfMediaInTheDrive();
    void OnMenuDriveInsertBlank(const QString &kind); ///< virtual recorders only; "none" removes the disc
    void OnMenuDriveShowDiscs();
    void OnMenuDriveLook(); ///< which drives there are now; the chosen one stays chosen, even if it is gone
    bool takeDriveListing(const QByteArray &listing); ///< as just printed; false: it is none
    void takeStatus(const QString &status); ///< what the disc utility told of the current drive's disc
    void chooseDriveTitled(const QString &title); ///< the first listed one of this title, where there is one
    QString driveTitle() const; ///< vendor and product of the current drive, empty where none is listed

    // ---- Records and measurements (compilation/)
    QString GetMediaFileDuration(const QString &path); ///< any thread; runs the transcoder and waits
    static qint64 Return_Seconds_From_Duration_Str(const QString &duration);
    static QStringList splitStringIntoChars(const QString &text); ///< a utility: one text per character
    static quint64 folderSize(const QString &path); ///< bytes below a folder, links followed; walks the tree

    // ---- Adding and removing (compilation/)
    enum class ListKind { Audio, Video };
    static const QStringList &acceptedExtensions(ListKind kind);
    /// Returns at once; addingEnded() follows. They come before the row `before`, -1: behind the last one.
    void addMediaFiles(ListKind kind, const QList<QUrl> &urls, int before = -1);
    void addMediaFolder(ListKind kind, const QString &folder);
    /// The same for files that are told by what is in them, and for playlists; with all below them, for folders.
    void addOtherMedia(ListKind kind, const QList<QUrl> &urls, int before = -1, bool withAllBelow = false);
    void addDataFolder(
        const QString &path, int before = -1); ///< or a file; before this row, -1: behind the last one
    void OnActionAudioAddFiles(), OnActionAudioAddFolder(), OnActionAudioDelete(), OnActionAudioClear(),
        OnActionAudioPlay(), OnActionAudioNewDisc(), OnActionAudioCopyDisc();
    void OnActionVideoAddFiles(), OnActionVideoAddFolder(), OnActionVideoDelete(), OnActionVideoClear(),
        OnActionVideoPlay(), OnActionVideoNewDisc(), OnActionVideoCopyDisc(), OnActionVideoSettings();
    void OnActionDataAddFolder(), OnActionDataDelete(), OnActionDataClear(), OnActionDataNewDisc(),
        OnActionDataCopyDisc(), OnActionDataAddFiles();
    void OnActionAudioAddOther(), OnActionVideoAddOther();
    /// Onto the list of the selected tab, before this row; tells what does not fit.
    void addDroppedFiles(const QList<QUrl> &urls, int before, bool withAllBelow = false);
    void moveSelectedEntries(int by); ///< up (-1) or down (1) in the list of the selected tab
    void moveSelectedEntriesBefore(int row); ///< of the same list; the number of rows is behind the last

    // ---- Saved lists and undoing (compilation/)
    /// Asks where the list that is shown would be lost; tells what is wrong with the file.
    void openList(const QString &path);
    bool mayReplaceList(); ///< false: the person wants to keep the list that is shown
    void OnMenuListOpen(), OnMenuListSave(), OnMenuListSaveAs(), OnMenuFindMissing();
    void OnMenuUndo(), OnMenuRedo();
    void listsChanged(); ///< for the history, which is told once control is back in the event loop
    void setDiscName(const QString &name); ///< any text; into the field, and where usable to the tools

    // ---- Tables, sorting, gauge (compilation/)
    qsizetype numberOfRowsInTableView(const ListTableView *table) const;
    void tableView_sortDescriptorsDidChange(ListTableView *table);
    void refreshTableAudioFiles(), refreshTableVideoFiles(), refreshTableDataFolders();
    void PaintSpaceOccupiedControl();
    QColor cellTextColour() const;
    ListTableView *selectedTable() const; ///< of the selected tab, null on a tab without a list
    void focusList(); ///< gives the list of the selected tab the keyboard; elsewhere it stays where it is

    // ---- Running tools (runner/)
    void outData(runner::ToolRun *tool);
    void errData(runner::ToolRun *tool);
    void dataReady(const QByteArray &data); ///< all that a background run printed, at its end
    void dataAvailable(const QByteArray &data);
    void taskTerminated();
    void AudioBurnTerminated(), VideoBurnTerminated(), dataBurnTerminated(), MediaDuplicationTerminated(),
        CreateISOfromDriveTerminated();
    void Show_Window_Performing_Operation(), Close_Window_Performing_Operation();
    void Show_Window_Operation_Complete(), Close_Window_Operation_Complete();
    void Show_Window_Progress(qsizetype items);
    void Close_Window_Progress();
    /// A job is under way, also in the moments when none of its windows is up: no other one may begin.
    bool isJobPending() const { return job != nullptr; }

    // ---- Writing discs (writing/)
    void Burn_Audio_CD(), Burn_Audio_MP3_CD(), Burn_Audio_MP3_DVD();
    void TimerBurnAudioCD(), TimerBurnMP3(), TimerBurnVideoRoutine(), TimerBurnDataFolder();
    void Burn_Video_DVD(), Burn_Video_Bluray();
    void Burn_Data_CD(), Burn_Data_DVD(), Burn_Data_Bluray();
    void Show_Window_Data_Copy_Folders(), Close_Window_Data_Copy_Folders();
    void Show_Window_Video_Settings(), Close_Window_Video_Settings();
    void DuplicateMedia();
    void TimerDuplicateMediaCopy();
    void OnActionISOCreate();
    void TimerCreateISOStep1Routine(), TimerCreateISOStep2Routine(), TimerCreateISOStep3Routine();
    void OnActionISOBurn();
    void burnImage(const QString &image); ///< full path

    // ---- Disc tools (tools/)
    void OnToolsFormatRWMedia(), OnToolsFormatFull(), OnToolsFormatQuick();
    void OnToolsEjectDisc(), OnToolsLoadDisc(), OnToolsDiscInfo();

    // ---- Appearance (ui/)
    void OnToolsColors(), OK_Window_Colors(), Cancel_Window_Colors();
    void TimerSetAlternatingRowsRoutine(), TimerForceColorsAtStartupRoutine();

    /// Shows one alert with the button "Close".
    void alert(const QString &message, const QString &informative, Alert::Sign sign = Alert::Sign::Warning);

Q_SIGNALS:
    /// A job has begun; it is the controller's, and lives until just before operationCompleted() or is given up silently.
    void jobBegan(writing::Job *job);
    /// The burn button's job, or another job behind sheets, has reached the operation-complete sheet.
    void operationCompleted();
    void discTold(const QString &status); ///< of the current drive; empty: what was told holds no more
    void driveChosen(); ///< another one, or the chosen one is gone, back, or has another number
    void drivesListed(const QStringList &appeared); ///< anew; titles of those that were not there before
    /// Of `count` files that are being probed `done` are.
    void addingProgressed(qsizetype done, qsizetype count);
    /// Files that were being probed are all on the list.
    void addingEnded();

private:
    friend class TestAccess;

    // ---- Start and end (app/)
    void emptyWorkingFolders(); ///< but for those in which another Corvalis prepares a disc
    bool makeWorkingFolders(); ///< false: one could not be made, and the person has been told
    void storeFirstRunFormats();
    void savePreferences();
    void openPage(const QUrl &page); ///< in the browser; tells the address where that fails
    void connectMenus();
    void connectLists();
    void connectTools();
    void blockWhileOccupied(); ///< no action but quitting, help and the log while a sheet or a job is there
    static void arrangeColumns(ListTableView *table, int wideColumn);
    using TimerRoutine = void (AppDelegate::*)();
    void schedule(QPointer<QTimer> &timer, TimerRoutine routine); ///< after 0.1 s, replacing a pending one
    void showActivityLog(qsizetype run); ///< with this run selected; below 0: none

    // ---- Project types, modes and tabs (app/)
    void setModeDefaults();
    void chooseVariant(int code); ///< what a mode button of the project type does
    void markVariant(int code); ///< borders its mode button alone in its tab
    void emptyAllLists();
    void beginKind(const ProjectType &type); ///< with empty lists
    qint64 variantOf(int tab) const; ///< of a list tab
    void showTab(int index);
    void didSelectTab(int index); ///< what follows from showing a tab
    void offerKinds(int tab); ///< names the menu items of the tab's kinds of disc
    void offerDiscName(); ///< shows its field where the chosen kind of disc has a name
    void offerListActions(int tab); ///< enables the menu items that the tab has a use for
    QString selectedPage() const; ///< identifier of the selected tab, "1" to "5"

    // ---- Drives and media (drives/)
    /// In debug mode, what the disc utility printed, as it stands.
    void tellPrinted(const QString &printed, const QString &code);
    QString driveStatus(); ///< what the disc utility prints of the current drive's medium
    QByteArray lookForDrives(); ///< lists them anew; what the disc utility printed where that was no listing
    bool isDriveGone(); ///< looks once more; true: an alert has told that the chosen drive is not there
    bool tellDriveGone(); ///< an alert, where the newest status or listing had no such drive any more
    void chooseDrive(int slot); ///< 0..5
    void showDrives(const QList<bool> &checked); ///< in the menu, with a mark for each of the slots
    void useCurrentDrive(); ///< tells the tools, by this process' environment, and all who want to know
    qsizetype currentDrive() const; ///< its place in the list; -1: it is not there
    void forgetDisc(); ///< the disc in the drive may be another one, or changed
    void offerVirtualDrive(); ///< shows or hides what only a virtual recorder can do
    bool isVirtualRecorderSelected() const;
    std::optional<compilation::DiscRoom> m_discRoom; ///< until it may be another disc
    QString m_lastStatus; ///< the newest answer of driveStatus()
    QString m_notStarted; ///< why the newest tool that was waited for could not be started; empty: it was
    bool m_probeHung = false; ///< the newest tool that was waited for gave no answer in time

    // ---- Adding, removing, tables (compilation/)
    void pickMediaFiles(ListKind kind);
    void pickMediaFolder(ListKind kind);
    QList<QUrl> mediaIn(ListKind kind, const QString &folder); ///< the accepted files; tells what is no text
    struct Measuring; ///< of the files that are being added
    template <class Record>
    void insertRecords(ListTableView *table, QList<Record> &list, const QList<Record> &records, int before);
    void addData(const QStringList &paths, int before); ///< folders and files
    void insertMedia(ListKind kind, const QList<NodeMediaFile> &records, int before);
    template <class Record>
    void deleteSelected(ListTableView *table, QList<Record> &list);
    void playSelected(const ListTableView *table);
    void addDroppedFolders(const QList<QUrl> &urls, int before);
    void tellRefused(const Measuring &measuring); ///< in one alert, each with its sentence
    void measureMediaFiles(const std::shared_ptr<Measuring> &measuring);
    void tellTranscoderMissing(); ///< once
    bool m_transcoderMissingTold = false;
    void forgetSorting(); ///< no heading claims any more that the list is in its order
    void reorderList(const ListTableView *table, const QList<qsizetype> &order, QList<int> &selected);
    void showReordered(ListTableView *table, const QList<qsizetype> &order, QList<int> selected);
    void showListMenu(ListTableView *table, const QPoint &place, bool forRows); ///< at a place on the screen
    static void reloadTable(ListTableView *table);
    void refreshTable(const ListTableView *table); ///< the list kind's refresh

    // ---- Saved lists and undoing (compilation/)
    struct SavedLists;
    struct Opening; ///< a list that is being opened
    const std::unique_ptr<SavedLists> m_lists;
    Compilation present() const;
    void show(const Compilation &compilation);
    void noteLists();
    bool isListUnsaved() const;
    bool saveList(const QString &path);
    void beginOpening(std::unique_ptr<Opening> opening, const ProjectType &kind);
    void finishOpening();
    static QList<NodeDataFolder> foldersOf(const Opening &opening);
    static QList<NodeMediaFile> mediaOf(const Opening &opening, const QList<NodeMediaFile> &measured);
    void tellMissing(int count);
    QHash<QString, QString> awaitMissing(const QString &folder, const QStringList &names);
    void forgetListFile();
    void rememberList(const QString &path), forgetList(const QString &path), offerRecentLists();
    void keepRecentLists(const QStringList &paths);

    // ---- Running tools (runner/)
    QByteArray captureTool(const QString &program, const QStringList &arguments,
        runner::ToolEnd *end = nullptr); ///< waits; the window goes on repainting, but takes no input
    using Observer = void (AppDelegate::*)();
    /// What a background run is watched for beside its end: `drutil` runs have their output logged.
    enum class Output { Observed, Ignored };
    /// Who can read what a run makes: as a person's files are, or its owner only.
    enum class Readers { AsUsual, Owner };
    void runInBackground(const QString &program, const QStringList &arguments, writing::Stage stage,
        Observer atEnd, Output output, Readers readers = Readers::AsUsual, const QString &workingFolder = {});
    /// Converts `subject`, in a nested run of the event loop; answers its place in the activity log.
    qsizetype transcodeAndWait(const QStringList &arguments, const QString &subject, int expectedStatus);
    void removeObservers(); ///< no handler of an earlier run can fire any more
    void showProgress(const QString &piece); ///< of the transcoder's standard error
    void transcoderTerminated();

    // ---- Jobs (writing/)
    struct DiscForm; ///< the checks before a job: what all kinds of disc have in common
    struct AudioForm;
    bool mayWrite(const DiscForm &form, bool listIsEmpty); ///< false: an alert has told why not
    void connectDiscName();
    bool mayUseDiscName(); ///< false: an alert has told what is wrong with it
    writing::Work workOn(
        int code, const QString &workingFolder) const; ///< a disc of this kind in the current drive
    bool beginJob(
        const writing::Work &work); ///< with its working folder emptied; false: an alert told whose it is
    void dropJob(); ///< without the operation-complete sheet
    template <class Sheet>
    void attach(Sheet *sheet); ///< to the job: it tells the progress, and its Stop stops
    bool endStopped(Observer atEnd); ///< where the job is to stop: goes the way that its last tool's end goes
    void finishWriting(const QString &workingFolder);
    void burnAudio(const AudioForm &form);
    void burnVideo(const DiscForm &form), burnData(const DiscForm &form);
    void describeConverted(const QString &folder); ///< tells the job what is in it
    /// Converts the listed files behind the progress sheet, each with `convertOne`.
    void convertList(quint64 progressMode, const std::function<void(const NodeMediaFile &)> &convertOne);
    void convert(const QStringList &arguments, const NodeMediaFile &file);
    struct Titles; ///< of a DVD for players, in the making
    std::shared_ptr<Titles> m_titles; ///< of the present job; null: its disc holds files
    bool hasRoomFor(const QList<NodeDataFolder> &folders); ///< false: there is none, and the person gave up
    void gatherFolders(), authorTitles(), titlesAuthored();
    void dataFolderEmptied(bool copiesEnded);
    void isoMakingTerminated();
    QString duplicationImage() const;
    bool promptForBlank(); ///< false: the person gave up
    void eraseDisc(const QString &extent); ///< "full" or "quick"
    void moveTray(const QString &motion, const QString &drive = {}); ///< a number; empty: the current one
    bool tellNotStarted(); ///< an alert, where the newest tool could not be started
    std::unique_ptr<writing::FolderGathering> m_gathering; ///< of the present job

    // ---- Appearance (ui/)
    void loadColourScheme();
    void paintTableBackgrounds(bool alternating);
};
