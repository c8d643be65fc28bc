#include "app/Questions.h"

#include "app/Window_Alert.h"
#include "app/Window_Open_Panel.h"
#include "compilation/FolderNames.h"
#include "kit/SheetStage.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

QString Questions::unusableFiles()
{
    return tr("Some files cannot be used");
}

QString Questions::otherKindText(const QStringList &extensions)
{
    return tr("Only files with these extensions can: .%1").arg(extensions.join(u", ."_s));
}

QString Questions::unreadableNamesText()
{
    return tr("Their names are not valid UTF-8 text. Rename them and try again.");
}

int WindowQuestions::ask(const Alert &alert, QWidget *over)
{
    Window_Alert window(alert, over && over->isVisible() ? over : nullptr);
    SheetStage *const stage = SheetStage::of(over && over->isVisible() ? over : nullptr);
    return stage ? window.askOver(stage) : window.exec();
}

/// `path`, or what is left of the way to it: nothing can be chosen where a dialog stands in no folder.
static QString nearestFolder(QString path)
{
    while (!QFileInfo(path).isDir())
        path = QFileInfo(path).path();
    return path;
}

/// The folder that a choice was made in: the one shown, `shown`, unless a path was typed that leads elsewhere.
static QString folderOf(const QList<QUrl> &chosen, const QString &shown)
{
    const QString path = chosen.isEmpty() ? shown : QDir::cleanPath(chosen.first().toLocalFile());
    return path == shown ? shown : QFileInfo(path).path();
}

QList<QUrl> WindowQuestions::choose(const OpenPanel &panel, QWidget *over)
{
    const QString start = !panel.startFolder.isEmpty() ? panel.startFolder
        : !panel.places.isEmpty()                      ? panel.places.first().toLocalFile()
        : !m_lastFolder.isEmpty()                      ? m_lastFolder
                                                       : QDir::homePath();
    Window_Open_Panel dialog(panel, nearestFolder(start), over);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    const QList<QUrl> chosen = dialog.chosen();
    if (panel.places.isEmpty()) // a disc is ejected, and its folder goes with it
        m_lastFolder = folderOf(chosen, dialog.directory().absolutePath());
    // A new file may have any name.
    const bool isNew = panel.choose == OpenPanel::Choose::NewFile;
    return usable(chosen, isNew ? QStringList() : panel.extensions, over);
}

QList<QUrl> WindowQuestions::usable(QList<QUrl> chosen, const QStringList &extensions, QWidget *over)
{
    if (chosen.removeIf([](const QUrl &url) { return !compilation::isReadable(url); }) > 0)
        ask({ unusableFiles(), unreadableNamesText(), { Questions::tr("Close") } }, over);
    // A name that is typed passes the dialog's filter by.
    const auto isOfOtherKind = [&extensions](const QUrl &url) {
        return !extensions.isEmpty()
            && !extensions.contains(QFileInfo(url.fileName()).suffix(), Qt::CaseInsensitive);
    };
    if (chosen.removeIf(isOfOtherKind) > 0)
        ask({ unusableFiles(), otherKindText(extensions), { Questions::tr("Close") } }, over);
    return chosen;
}
