#include "app/Questions.h"

#include "app/Window_Alert.h"
#include "app/Window_Open_Panel.h"
#include "compilation/FolderNames.h"

#include <QDir>

using namespace Qt::StringLiterals;

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
    Window_Open_Panel dialog(panel, start, over);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    m_lastFolder = dialog.directory().absolutePath();
    QList<QUrl> chosen = dialog.chosen();
    if (chosen.removeIf([](const QUrl &url) { return !compilation::isReadable(url); }) > 0)
        ask({ unreadableNames(), unreadableNamesText(), { u"Close"_s } }, over);
    return chosen;
}
