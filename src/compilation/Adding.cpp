// What a person chooses or drops, and what of it goes on a list.
#include "app/AppDelegate.h"
#include "app/MainWindow.h"
#include "compilation/Acceptance.h"
#include "compilation/FolderNames.h"
#include "compilation/Measuring.h"
#include "compilation/MediaAdding.h"
#include "ui_MainWindow.h"

#include <QDir>
#include <QFileInfo>

#include <utility>

using namespace Qt::StringLiterals;
using compilation::Refusal;
using compilation::Refused;
using compilation::Wanted;

namespace {

const QStringList audioExtensions{ u"wma"_s, u"wav"_s, u"cda"_s, u"mp3"_s, u"mp2"_s, u"mpga"_s, u"m4a"_s };
const QStringList videoExtensions{ u"wmv"_s, u"mov"_s, u"mpg"_s, u"mpeg"_s, u"mpe"_s, u"avi"_s, u"asf"_s,
    u"asx"_s, u"qt"_s, u"mp4"_s, u"mpeg-4"_s, u"flv"_s, u"ts"_s, u"3gp"_s, u"fli"_s, u"m1v"_s, u"m2v"_s,
    u"mjpg"_s };

/// How a person knows what a URL leads to: by its name, or by its address on another computer.
QString nameOf(const QUrl &url)
{
    constexpr qsizetype half = 30; // of a name that would make the alert too wide
    const QString path = url.isLocalFile() ? QDir::cleanPath(url.toLocalFile()) : QString();
    const QString last = path.section(u'/', -1);
    const QString name = (path.isEmpty() ? url.toDisplayString() : last.isEmpty() ? path : last).simplified();
    return name.size() > 2 * half ? name.first(half) + u'…' + name.last(half) : name;
}

/// One a line, as many as an alert shows at a glance.
QString namesOf(const QList<QUrl> &urls)
{
    constexpr qsizetype shown = 10;
    QStringList names;
    for (const QUrl &url : urls.first(qMin(shown, urls.size())))
        names.append(nameOf(url));
    if (urls.size() > shown)
        names.append(AppDelegate::tr("and %Ln more", nullptr, static_cast<int>(urls.size() - shown)));
    return names.join(u'\n');
}

void pickOther(AppDelegate *controller, AppDelegate::ListKind kind)
{
    OpenPanel panel;
    panel.several = true;
    panel.message = kind == AppDelegate::ListKind::Audio
        ? AppDelegate::tr("Add any files with sound, and playlists, to the list")
        : AppDelegate::tr("Add any films, and playlists, to the list");
    controller->addOtherMedia(kind, controller->around.questions->choose(panel, controller->window));
}

} // namespace

const QStringList &AppDelegate::acceptedExtensions(ListKind kind)
{
    return kind == ListKind::Audio ? audioExtensions : videoExtensions;
}

void AppDelegate::pickMediaFiles(ListKind kind)
{
    OpenPanel panel;
    panel.several = true;
    panel.extensions = acceptedExtensions(kind);
    panel.message =
        kind == ListKind::Audio ? tr("Add audio files to the list") : tr("Add video files to the list");
    addMediaFiles(kind, around.questions->choose(panel, window));
}

void AppDelegate::pickMediaFolder(ListKind kind)
{
    OpenPanel panel;
    panel.choose = OpenPanel::Choose::Folder;
    panel.message = kind == ListKind::Audio ? tr("Add the audio files of a folder to the list")
                                            : tr("Add the video files of a folder to the list");
    const QList<QUrl> chosen = around.questions->choose(panel, window);
    if (!chosen.isEmpty())
        addMediaFolder(kind, QDir::cleanPath(chosen.first().toLocalFile()));
}

void AppDelegate::addMediaFolder(ListKind kind, const QString &folder)
{
    addMediaFiles(kind, mediaIn(kind, folder));
}

QList<QUrl> AppDelegate::mediaIn(ListKind kind, const QString &folder)
{
    // Unlike the panel's filter this distinguishes upper and lower case.
    const QStringList &accepted = acceptedExtensions(kind);
    const compilation::FolderNames found = compilation::namesIn(folder);
    if (const int unreadable = compilation::unreadableFiles(found, accepted, Qt::CaseSensitive)) {
        alert(tr("%n file(s) cannot be listed", nullptr, unreadable),
            tr("Their names in the folder “%1” are not valid UTF-8 text. Rename them and add the folder "
               "again.")
                .arg(folder));
    }
    // Two slashes at the start of a path would make a host of its first name.
    const QString place = folder.endsWith(u'/') ? folder : folder + u'/';
    QList<QUrl> urls;
    for (const QString &name : found.names) {
        if (accepted.contains(compilation::pathExtension(name)))
            urls.append(QUrl::fromLocalFile(place + name));
    }
    return urls;
}

void AppDelegate::addMediaFiles(ListKind kind, const QList<QUrl> &urls, int before)
{
    const auto measuring = std::make_shared<Measuring>(this, kind, before);
    for (const QUrl &url : urls) {
        if (compilation::isNoFile(url.toLocalFile()))
            measuring->refused.append({ Refusal::NoFile, url });
        else
            measuring->wanted.append({ url });
    }
    tellRefused(*measuring);
    measuring->refused.clear();
    measureMediaFiles(measuring);
}

void AppDelegate::addOtherMedia(ListKind kind, const QList<QUrl> &urls, int before, bool withAllBelow)
{
    const QStringList &endings = acceptedExtensions(kind);
    const auto measuring = std::make_shared<Measuring>(this, kind, before);
    for (qsizetype place = 0; place < urls.size(); ++place) {
        const QUrl &url = urls.at(place);
        const bool isFolder = QFileInfo(url.toLocalFile()).isDir();
        Refusal refusal = compilation::refusalOfMedia(url, endings);
        const bool isContent = refusal == Refusal::FolderWithout || refusal == Refusal::FolderInCapitals;
        if (refusal == Refusal::OtherEnding || (isContent && withAllBelow))
            refusal = Refusal::None;
        if (url.isLocalFile() && !compilation::isReadable(url))
            measuring->unreadable.append(url);
        else if (refusal != Refusal::None)
            measuring->refused.append({ refusal, url, place });
        else if (isFolder && withAllBelow)
            measuring->wanted.append({ url, Wanted::Way::Tree, place });
        else if (isFolder) {
            for (const QUrl &file : mediaIn(kind, QDir::cleanPath(url.toLocalFile())))
                measuring->wanted.append({ file, Wanted::Way::Listed, place });
        } else
            measuring->wanted.append({ url, compilation::wayOf(url, endings), place });
    }
    // What only a look into files can tell is told with the rest, when all of them have been looked into.
    if (!measuring->looksInside()) {
        tellRefused(*measuring);
        measuring->refused.clear();
        measuring->unreadable.clear();
    }
    if (measuring->wanted.isEmpty() && !urls.isEmpty())
        Q_EMIT addingEnded(); // for a batch run, which would wait
    measureMediaFiles(measuring);
}

void AppDelegate::OnActionAudioAddFiles()
{
    pickMediaFiles(ListKind::Audio);
}

void AppDelegate::OnActionAudioAddFolder()
{
    pickMediaFolder(ListKind::Audio);
}

void AppDelegate::OnActionVideoAddFiles()
{
    pickMediaFiles(ListKind::Video);
}

void AppDelegate::OnActionVideoAddFolder()
{
    pickMediaFolder(ListKind::Video);
}

void AppDelegate::OnActionDataAddFolder()
{
    OpenPanel panel;
    panel.choose = OpenPanel::Choose::Folder;
    panel.message = tr("Add a folder to the list");
    const QList<QUrl> chosen = around.questions->choose(panel, window);
    if (!chosen.isEmpty())
        addDataFolder(QDir::cleanPath(chosen.first().toLocalFile()));
}

void AppDelegate::OnActionDataAddFiles()
{
    OpenPanel panel;
    panel.several = true;
    panel.message = tr("Add files to the list");
    addDroppedFiles(around.questions->choose(panel, window), -1);
}

void AppDelegate::OnActionAudioAddOther()
{
    pickOther(this, ListKind::Audio);
}

void AppDelegate::OnActionVideoAddOther()
{
    pickOther(this, ListKind::Video);
}

void AppDelegate::tellRefused(const Measuring &measuring)
{
    QStringList paragraphs;
    QList<Refusal> told;
    for (const Refused &first : measuring.refused) {
        if (told.contains(first.refusal))
            continue;
        told.append(first.refusal);
        QList<QUrl> alike;
        for (const Refused &other : measuring.refused) {
            if (other.refusal == first.refusal)
                alike.append(other.url);
        }
        paragraphs.append(compilation::sentence(first.refusal, acceptedExtensions(measuring.kind)) + u"\n\n"_s
            + namesOf(alike));
    }
    if (!paragraphs.isEmpty())
        alert(tr("Not everything can go on this list"), paragraphs.join(u"\n\n"_s));
    if (!measuring.unreadable.isEmpty())
        alert(Questions::unusableFiles(),
            Questions::unreadableNamesText() + u"\n\n"_s + namesOf(measuring.unreadable));
}

void AppDelegate::addDroppedFiles(const QList<QUrl> &urls, int before, bool withAllBelow)
{
    const int tab = ui->tabviewMain->currentIndex();
    if (tab == 2)
        return addDroppedFolders(urls, before);
    addOtherMedia(tab == 0 ? ListKind::Audio : ListKind::Video, urls, before, withAllBelow);
}

void AppDelegate::addDroppedFolders(const QList<QUrl> &urls, int before)
{
    QList<QUrl> taken;
    Measuring refused(this, ListKind::Audio, before); // nothing is measured of folders
    for (const QUrl &url : urls) {
        const Refusal refusal = compilation::refusalOfData(url);
        if (url.isLocalFile() && !compilation::isReadable(url))
            refused.unreadable.append(url);
        else if (refusal != Refusal::None)
            refused.refused.append({ refusal, url });
        else
            taken.append(url);
    }
    tellRefused(refused);
    QStringList paths;
    for (const QUrl &url : std::as_const(taken))
        paths.append(QDir::cleanPath(url.toLocalFile()));
    if (!paths.isEmpty())
        addData(paths, before);
}
