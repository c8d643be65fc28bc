#include "app/Questions.h"

#include "app/Window_Alert.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

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

} // namespace

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
    if (dialog.exec() != QDialog::Accepted)
        return {};
    m_lastFolder = dialog.directory().absolutePath();
    return dialog.selectedUrls();
}
