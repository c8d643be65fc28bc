#include "app/Questions.h"

#include "app/Window_Alert.h"
#include "compilation/FolderNames.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QGridLayout>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

/// The file dialog's filter for extensions in any case, as its patterns distinguish upper and lower case.
QString nameFilter(const QStringList &extensions)
{
    QStringList patterns;
    for (const QString &extension : extensions) {
        QString pattern = u"*."_s;
        for (const QChar c : extension)
            pattern += c.isLetter() ? u"[%1%2]"_s.arg(c.toLower()).arg(c.toUpper()) : QString(c);
        patterns.append(pattern);
    }
    return QFileDialog::tr("Accepted files (%1)").arg(patterns.join(u' '));
}

void setUp(QFileDialog &dialog, const OpenPanel &panel)
{
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    if (panel.choose == OpenPanel::Choose::Folder) {
        dialog.setFileMode(QFileDialog::Directory);
        dialog.setOption(QFileDialog::ShowDirsOnly);
        dialog.setLabelText(QFileDialog::Accept, QFileDialog::tr("Choose"));
    } else {
        dialog.setFileMode(panel.several ? QFileDialog::ExistingFiles : QFileDialog::ExistingFile);
    }
    if (!panel.extensions.isEmpty()) {
        dialog.setNameFilter(nameFilter(panel.extensions));
        dialog.setOption(QFileDialog::HideNameFilterDetails);
    }
}

/// Says below the list of a dialog's files how many it cannot show. A desktop's own dialog has no place
/// for it, and shows all.
void tellWhatIsHidden(QFileDialog *dialog)
{
    auto *const grid = qobject_cast<QGridLayout *>(dialog->layout());
    const auto *const files = dialog->findChild<QFileSystemModel *>();
    if (!grid || !files)
        return;
    auto *const label = new QLabel(dialog);
    label->setObjectName(u"labelUnreadable"_s);
    label->setWordWrap(true);
    grid->addWidget(label, grid->rowCount(), 0, 1, -1);
    const auto count = [label](const QString &folder) {
        const int hidden = compilation::namesIn(folder).unreadable;
        label->setVisible(hidden > 0);
        label->setText(QFileDialog::tr("%n file(s) of this folder cannot be shown: the names are not valid UTF-8 text. "
                                       "Rename them to choose them.", nullptr, hidden));
    };
    QObject::connect(files, &QFileSystemModel::rootPathChanged, label, count);
    count(files->rootPath());
}

} // namespace

QString Questions::unreadableNames()
{
    return QFileDialog::tr("Some files cannot be used");
}

QString Questions::unreadableNamesText()
{
    return QFileDialog::tr("Their names are not valid UTF-8 text. Rename them and try again.");
}

int WindowQuestions::ask(const Alert &alert, QWidget *over)
{
    Window_Alert window(alert, over && over->isVisible() ? over : nullptr);
    return window.exec();
}

QList<QUrl> WindowQuestions::choose(const OpenPanel &panel, QWidget *over)
{
    const QString start = !panel.startFolder.isEmpty() ? panel.startFolder
        : !m_lastFolder.isEmpty()                      ? m_lastFolder
                                                       : QDir::homePath();
    QFileDialog dialog(over, panel.message, start);
    setUp(dialog, panel);
    tellWhatIsHidden(&dialog);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    m_lastFolder = dialog.directory().absolutePath();
    QList<QUrl> chosen = dialog.selectedUrls();
    if (chosen.removeIf([](const QUrl &url) { return !compilation::isReadable(url); }) > 0)
        ask({unreadableNames(), unreadableNamesText(), {u"Close"_s}}, over);
    return chosen;
}
