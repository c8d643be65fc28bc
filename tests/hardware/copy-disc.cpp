// copy-disc FOLDER COMMAND: the whole application copies the disc that is mounted at FOLDER. Where a person
// would change the disc, COMMAND is run. Ends with 0 at the operation-complete sheet.
#include "app/AppDelegate.h"
#include "app/MainWindow.h"

#include <QApplication>
#include <QProcess>
#include <QTimer>

#include <cstdio>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

class Person : public Questions {
public:
    Person(QString folder, QString command)
        : m_folder(std::move(folder))
        , m_command(std::move(command))
    {
    }

    int ask(const Alert &alert, QWidget *) override
    {
        std::printf("asked: %s\n", qUtf8Printable(alert.message));
        std::fflush(stdout);
        // An alert that is no question about the disc is a failure, and so is a question asked again.
        if (!alert.message.startsWith(u"Insert a writable media"_s) || std::exchange(m_changed, true))
            ::_exit(1);
        return QProcess::execute(u"bash"_s, { u"-c"_s, m_command }) == 0 ? 0 : 1;
    }

    QList<QUrl> choose(const OpenPanel &, QWidget *) override { return { QUrl::fromLocalFile(m_folder) }; }

private:
    const QString m_folder;
    const QString m_command;
    bool m_changed = false;
};

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 3) {
        std::fputs("Usage: copy-disc FOLDER COMMAND\n", stderr);
        return 2;
    }
    Person person(arguments.at(1), arguments.at(2));
    MainWindow window;
    AppDelegate controller(&window, Surroundings::ofThisMachine(&person));
    QObject::connect(
        &controller, &AppDelegate::operationCompleted, &application, [] { QApplication::exit(0); });
    controller.awakeFromNib();
    controller.applicationDidFinishLaunching();
    QTimer::singleShot(0, &controller, &AppDelegate::OnActionDataCopyDisc);
    return QApplication::exec();
}
