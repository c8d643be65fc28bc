// corvalis-bench add FILE...   list these files as the file dialog would, and print the seconds it took
// corvalis-bench sort ROWS     sort a list of so many made-up rows by each column both ways, refresh the
// table
//                              and paint it; print the seconds of the slowest
// The whole window is there, off screen. Run it with a HOME of its own: starting empties the working folders.
#include "app/AppDelegate.h"
#include "app/MainWindow.h"
#include "compilation/ListTableModel.h"
#include "compilation/ListTableView.h"
#include "compilation/Measuring.h"
#include "ui_MainWindow.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QRandomGenerator>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

/// Prints an alert and ends: a measurement with an alert in it measures nothing.
class NoQuestions : public Questions {
public:
    int ask(const Alert &alert, QWidget *) override
    {
        std::fprintf(stderr, "%s\n%s\n", qUtf8Printable(alert.message), qUtf8Printable(alert.informative));
        std::exit(1);
    }
    QList<QUrl> choose(const OpenPanel &, QWidget *) override { return {}; }
};

double seconds(const QElapsedTimer &clock)
{
    return static_cast<double>(clock.nsecsElapsed()) / 1e9;
}

int add(AppDelegate &controller, const QStringList &paths)
{
    QList<QUrl> urls;
    for (const QString &path : paths)
        urls.append(QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath()));
    QElapsedTimer clock;
    QObject::connect(&controller, &AppDelegate::addingEnded, &controller, [&] {
        std::printf("%.4f\n", seconds(clock));
        QApplication::exit(controller.arrayMediaFiles.size() == urls.size() ? 0 : 1);
    });
    clock.start();
    controller.addMediaFiles(AppDelegate::ListKind::Audio, urls);
    return QApplication::exec();
}

/// Rows as a large collection has them: few folders, names that share long beginnings, numbers in them.
QList<NodeMediaFile> madeUpRows(qsizetype count)
{
    QRandomGenerator random(20);
    QList<NodeMediaFile> rows;
    rows.reserve(count);
    for (qsizetype i = 0; i < count; ++i) {
        NodeMediaFile row;
        const quint32 album = random.bounded(2000U);
        row.s_File_Name_With_Extension =
            u"%1 - Étude no. %2.mp3"_s.arg(random.bounded(30)).arg(random.bounded(5000));
        row.s_Folder_Path = u"/home/listener/Music/Composer %1/Album %2"_s.arg(album % 97).arg(album);
        row.s_File_Path = row.s_Folder_Path + u'/' + row.s_File_Name_With_Extension;
        row.s_File_URL = QUrl::fromLocalFile(row.s_File_Path);
        row.s_File_Extension = u"mp3"_s;
        row.s_File_Size = compilation::sizeText(random.bounded(20'000'000U));
        const quint32 length = random.bounded(1200U);
        row.s_Duration =
            u" 00:%1:%2.5"_s.arg(length / 60, 2, 10, QChar(u'0')).arg(length % 60, 2, 10, QChar(u'0'));
        row.i_Duration_in_Seconds = length;
        rows.append(row);
    }
    return rows;
}

int sort(AppDelegate &controller, qsizetype count)
{
    ListTableView *table = controller.ui->tableviewAudioFiles;
    controller.arrayMediaFiles = madeUpRows(count);
    controller.refreshTableAudioFiles();
    double slowest = 0;
    for (int column = 0; column < ListTableModel::MediaColumnCount; ++column) {
        for (int direction = 0; direction < 2; ++direction) {
            std::shuffle(
                controller.arrayMediaFiles.begin(), controller.arrayMediaFiles.end(), QRandomGenerator(7));
            table->setSelectedColumn(column);
            QElapsedTimer clock;
            clock.start();
            controller.tableView_sortDescriptorsDidChange(table);
            table->viewport()->repaint();
            const double took = seconds(clock);
            std::fprintf(stderr, "column %d: %.3f s\n", column, took);
            slowest = std::max(slowest, took);
        }
    }
    std::printf("%.4f\n", slowest);
    return 0;
}

} // namespace

int main(int count, char **values)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(count, values);
    QCoreApplication::setApplicationName(u"corvalis"_s);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.size() < 2 || (arguments[0] != u"add" && arguments[0] != u"sort")) {
        std::fputs("usage: corvalis-bench add FILE... | sort ROWS\n", stderr);
        return 2;
    }
    NoQuestions questions;
    MainWindow window;
    AppDelegate controller(&window, Surroundings::ofThisMachine(&questions));
    controller.awakeFromNib();
    controller.applicationDidFinishLaunching();
    QApplication::processEvents();
    return arguments[0] == u"add" ? add(controller, arguments.mid(1))
                                  : sort(controller, arguments[1].toLongLong());
}
