// Lists that are saved, opened, and whose files are found again.
#include "compilation/SavedLists.h"

#include "app/MainWindow.h"
#include "app/Preferences.h"
#include "compilation/ListTableView.h"
#include "compilation/Measuring.h"
#include "compilation/MissingFiles.h"
#include "kit/SheetStage.h"
#include "ui_MainWindow.h"
#include "writing/StatusSheets.h"

#include <QActionGroup>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMenu>
#include <QSettings>
#include <QStandardPaths>

#include <algorithm>

using namespace Qt::StringLiterals;
using compilation::ListFile;

namespace {

constexpr qsizetype mostRecent = 10;
const QString ending = u"corvalis"_s;

/// The entry of a record at `path`, for a list that lies in `folder`.
ListFile::Entry entryOf(const QString &path, const QString &folder)
{
    return { path, folder.isEmpty() ? QString() : QDir(folder).relativeFilePath(path), {}, {} };
}

QList<ListFile::Entry> entriesOf(const Compilation &compilation, const QString &folder)
{
    QList<ListFile::Entry> entries;
    for (const NodeMediaFile &file : compilation.media) {
        entries.append(entryOf(file.s_File_Path, folder));
        if (file.title != file.carriedTitle)
            entries.last().title = file.title;
        if (file.performer != file.carriedPerformer)
            entries.last().performer = file.performer;
    }
    for (const NodeDataFolder &record : compilation.folders)
        entries.append(entryOf(record.s_Path, folder));
    return entries;
}

const ProjectType *kindNamed(const QString &name)
{
    const auto row = std::ranges::find(projects::all, name, &ProjectType::name);
    return row == projects::all.end() ? nullptr : &*row;
}

} // namespace

bool AppDelegate::isListUnsaved() const
{
    const Compilation now = present();
    return !now.isEmpty() && !(now.holdsTheSameAs(m_lists->saved) && now.discName == m_lists->saved.discName);
}

bool AppDelegate::mayReplaceList()
{
    if (!isListUnsaved())
        return true;
    Alert question{ tr("Save the list first?"),
        tr("The list that is shown has changes that are not saved. What is opened now takes its place."),
        { tr("Save"), tr("Do Not Save"), tr("Cancel") } };
    question.dismissed = 2;
    switch (around.questions->ask(question, window)) {
    case 0:
        OnMenuListSave();
        return !isListUnsaved();
    case 1:
        return true;
    default:
        return false;
    }
}

void AppDelegate::OnMenuListSave()
{
    if (m_lists->path.isEmpty())
        OnMenuListSaveAs();
    else
        saveList(m_lists->path);
}

void AppDelegate::OnMenuListSaveAs()
{
    OpenPanel panel;
    panel.choose = OpenPanel::Choose::NewFile;
    panel.extensions = { ending };
    panel.message = tr("Save the list as");
    panel.newName =
        m_lists->path.isEmpty() ? tr("My disc") + u'.' + ending : QFileInfo(m_lists->path).fileName();
    // Not in the Documents folder's working folders, which every start empties.
    panel.startFolder = m_lists->path.isEmpty()
        ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
        : QFileInfo(m_lists->path).path();
    const QList<QUrl> chosen = around.questions->choose(panel, window);
    if (!chosen.isEmpty())
        saveList(chosen.first().toLocalFile());
}

bool AppDelegate::saveList(const QString &path)
{
    const Compilation now = present();
    const ProjectType *kind = projects::byVariant(now.tab, now.variant);
    if (!kind)
        return false;
    const ListFile list{ kind->name, now.discName, entriesOf(now, QFileInfo(path).path()) };
    if (const QString why = compilation::saveListFile(path, list); !why.isEmpty()) {
        alert(tr("The list could not be saved"), tr("%1\n\n%2").arg(path, why), Alert::Sign::Error);
        return false;
    }
    m_lists->path = path;
    m_lists->saved = now;
    listsChanged(); // nothing but where it is kept
    rememberList(path);
    return true;
}

void AppDelegate::OnMenuListOpen()
{
    OpenPanel panel;
    panel.extensions = { ending };
    panel.message = tr("Open a saved list");
    const QList<QUrl> chosen = around.questions->choose(panel, window);
    if (!chosen.isEmpty())
        openList(chosen.first().toLocalFile());
}

void AppDelegate::openList(const QString &path)
{
    const compilation::ListFileRead read = compilation::readListFile(path);
    const ProjectType *kind = kindNamed(read.list.kind);
    const QString why = !read.error.isEmpty() ? read.error
        : !kind ? tr("It is for a kind of disc that this Corvalis does not know: %1.").arg(read.list.kind)
                : QString();
    if (!why.isEmpty()) {
        forgetList(path);
        return alert(tr("The list cannot be opened"), tr("%1\n\n%2").arg(path, why), Alert::Sign::Error);
    }
    if (!mayReplaceList())
        return;
    auto opening = std::make_unique<Opening>();
    opening->tab = kind->tab;
    opening->path = QFileInfo(path).absoluteFilePath();
    for (ListFile::Entry entry : read.list.entries) {
        entry.path = compilation::placeOf(entry, QFileInfo(opening->path).path());
        opening->entries.append(entry);
    }
    beginOpening(std::move(opening), *kind);
    setDiscName(read.list.discName);
}

void AppDelegate::beginOpening(std::unique_ptr<Opening> opening, const ProjectType &kind)
{
    noteLists();
    m_lists->opening = std::move(opening);
    beginKind(kind);
    if (kind.tab == 2)
        return finishOpening();
    QList<QUrl> there;
    for (const ListFile::Entry &entry : std::as_const(m_lists->opening->entries)) {
        if (QFileInfo::exists(entry.path))
            there.append(QUrl::fromLocalFile(entry.path));
    }
    addMediaFiles(kind.tab == 0 ? ListKind::Audio : ListKind::Video, there);
    if (!windowUniqueProgress)
        return finishOpening();
    connect(this, &AppDelegate::addingEnded, this, &AppDelegate::finishOpening,
        static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
}

void AppDelegate::finishOpening()
{
    const std::unique_ptr<Opening> opening = std::move(m_lists->opening);
    if (opening->tab == 2)
        arrayDataFolders = foldersOf(*opening);
    else
        arrayMediaFiles = mediaOf(*opening, arrayMediaFiles);
    refreshTable(selectedTable());
    focusList();
    m_lists->path = opening->path;
    noteLists();
    if (opening->asSaved) {
        m_lists->saved = present();
        rememberList(opening->path);
    }
    const auto missing = std::ranges::count_if(
        opening->entries, [](const ListFile::Entry &entry) { return !QFileInfo::exists(entry.path); });
    if (missing > 0)
        tellMissing(static_cast<int>(missing));
}

QList<NodeDataFolder> AppDelegate::foldersOf(const Opening &opening)
{
    QList<NodeDataFolder> records;
    for (const ListFile::Entry &entry : opening.entries)
        records.append(compilation::dataRecord(entry.path));
    return records;
}

/// In the order of the entries: those that were measured, with the texts that were typed, and those that are missing.
QList<NodeMediaFile> AppDelegate::mediaOf(const Opening &opening, const QList<NodeMediaFile> &measured)
{
    QList<NodeMediaFile> records;
    auto next = measured.begin();
    for (const ListFile::Entry &entry : opening.entries) {
        NodeMediaFile record;
        if (next != measured.end() && next->s_File_Path == entry.path) {
            record = *next++;
        } else if (!QFileInfo::exists(entry.path)) {
            record = compilation::mediaRecord(QUrl::fromLocalFile(entry.path), entry.path);
            record.whyNotMeasured = compilation::whyNotMeasured(entry.path, {}, {});
        } else {
            continue;
        }
        record.title = entry.title.value_or(record.title);
        record.performer = entry.performer.value_or(record.performer);
        records.append(record);
    }
    return records;
}

void AppDelegate::tellMissing(int count)
{
    Alert question{ tr("%n entry(s) of the list cannot be found", nullptr, count),
        tr("What is missing stays on the list, marked. If it was moved, show a folder in which it is now, at "
           "any "
           "depth: "
           "it is found there by its name."),
        { tr("Close"), tr("Find in a Folder…") } };
    question.dismissed = 0;
    if (around.questions->ask(question, window) == 1)
        OnMenuFindMissing();
}

void AppDelegate::OnMenuFindMissing()
{
    const Compilation now = present();
    const ProjectType *kind = projects::byVariant(now.tab, now.variant);
    OpenPanel panel;
    panel.choose = OpenPanel::Choose::Folder;
    panel.message = tr("A folder in which the missing files are now");
    const QList<QUrl> chosen = kind ? around.questions->choose(panel, window) : QList<QUrl>();
    if (chosen.isEmpty())
        return;
    auto opening = std::make_unique<Opening>();
    opening->tab = now.tab;
    opening->path = m_lists->path;
    opening->asSaved = false;
    opening->entries = entriesOf(now, {});
    QStringList missing;
    for (const ListFile::Entry &entry : std::as_const(opening->entries)) {
        if (!QFileInfo::exists(entry.path))
            missing.append(QFileInfo(entry.path).fileName());
    }
    const QHash<QString, QString> found =
        awaitMissing(QDir::cleanPath(chosen.first().toLocalFile()), missing);
    if (found.isEmpty())
        return alert(tr("Nothing was found"),
            tr("No file or folder below %1 has one of the names that are "
               "missing.")
                .arg(chosen.first().toLocalFile()));
    for (ListFile::Entry &entry : opening->entries) {
        if (!QFileInfo::exists(entry.path))
            entry.path = found.value(QFileInfo(entry.path).fileName(), entry.path);
    }
    beginOpening(std::move(opening), *kind);
}

/// Where the names are below the folder. The window takes no input meanwhile, but goes on repainting.
QHash<QString, QString> AppDelegate::awaitMissing(const QString &folder, const QStringList &names)
{
    QGuiApplication::setOverrideCursor(Qt::BusyCursor);
    window->stage()->hold();
    const QHash<QString, QString> found = compilation::placesOf(
        names, folder, [] { QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); });
    window->stage()->release();
    QGuiApplication::restoreOverrideCursor();
    return found;
}

void AppDelegate::forgetListFile()
{
    // What is put together from now on is another disc, and must not take the place of the saved one.
    m_lists->path.clear();
    m_lists->saved = {};
}

void AppDelegate::rememberList(const QString &path)
{
    QStringList recent = preferences->value(preferences::recentLists).toStringList();
    recent.removeAll(path);
    recent.prepend(path);
    keepRecentLists(recent.first(qMin(mostRecent, recent.size())));
}

void AppDelegate::forgetList(const QString &path)
{
    QStringList recent = preferences->value(preferences::recentLists).toStringList();
    if (recent.removeAll(path) > 0)
        keepRecentLists(recent);
}

void AppDelegate::keepRecentLists(const QStringList &paths)
{
    preferences->setValue(preferences::recentLists, paths);
    savePreferences();
    offerRecentLists();
}

void AppDelegate::offerRecentLists()
{
    const QStringList recent = preferences->value(preferences::recentLists).toStringList();
    QMenu *const menu = ui->submenuRecent;
    menu->clear();
    menu->menuAction()->setVisible(!recent.isEmpty());
    for (qsizetype i = 0; i < recent.size(); ++i) {
        QString name = QFileInfo(recent.at(i)).completeBaseName().simplified();
        name.replace(u'&', u"&&"_s);
        const QString number = i < 9 ? u"&%1"_s.arg(i + 1) : u"1&0"_s;
        QAction *const item = menu->addAction(number + u' ' + name);
        item->setObjectName(u"menuitemRecent%1"_s.arg(i + 1));
        item->setToolTip(recent.at(i));
        connect(item, &QAction::triggered, this, [this, path = recent.at(i)] { openList(path); });
    }
    menu->addSeparator();
    QAction *const clear = menu->addAction(tr("&Clear This Menu"));
    clear->setObjectName(u"menuitemRecentClear"_s);
    connect(clear, &QAction::triggered, this, [this] { keepRecentLists({}); });
    // As the other items that a sheet blocks, see blockWhileOccupied().
    auto *const blocked = findChild<QActionGroup *>(u"groupBlocked"_s);
    for (QAction *item : menu->actions())
        blocked->addAction(item);
}
