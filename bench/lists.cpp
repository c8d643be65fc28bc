// What is done in the window. It is all there, off screen.
#include "Clock.h"
#include "Work.h"
#include "app/AppDelegate.h"
#include "app/MainWindow.h"
#include "compilation/ListTableModel.h"
#include "compilation/ListTableView.h"
#include "compilation/Measuring.h"
#include "ui_MainWindow.h"

#include <QApplication>
#include <QFileInfo>
#include <QRandomGenerator>

#include <algorithm>
#include <array>
#include <cstdio>
#include <functional>
#include <utility>

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

/// The started program without a person; answers what `work` does.
int inWindow(const std::function<int(AppDelegate &)> &work)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int count = 1;
    std::array<char, 15> name{ "corvalis-bench" };
    std::array<char *, 2> values{ name.data(), nullptr };
    QApplication application(count, values.data());
    QCoreApplication::setApplicationName(u"corvalis"_s);
    NoQuestions questions;
    MainWindow window;
    AppDelegate controller(&window, Surroundings::ofThisMachine(&questions));
    controller.awakeFromNib();
    controller.applicationDidFinishLaunching();
    QApplication::processEvents();
    return work(controller);
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

/// Seconds and processor seconds for sorting by this column.
std::pair<double, double> sortBy(int column, AppDelegate &controller)
{
    ListTableView *table = controller.ui->tableviewAudioFiles;
    std::shuffle(controller.arrayMediaFiles.begin(), controller.arrayMediaFiles.end(), QRandomGenerator(7));
    table->setSelectedColumn(column);
    const Clock clock;
    controller.tableView_sortDescriptorsDidChange(table);
    table->viewport()->repaint();
    return { clock.seconds(), clock.processorSeconds() };
}

} // namespace

int addFiles(const QStringList &paths)
{
    QList<QUrl> urls;
    for (const QString &path : paths)
        urls.append(QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath()));
    return inWindow([&urls](AppDelegate &controller) {
        const Clock clock;
        QObject::connect(&controller, &AppDelegate::addingEnded, &controller, [&] {
            printCost(clock.seconds(), clock.processorSeconds());
            QApplication::exit(controller.arrayMediaFiles.size() == urls.size() ? 0 : 1);
        });
        controller.addMediaFiles(AppDelegate::ListKind::Audio, urls);
        return QApplication::exec();
    });
}

int sortRows(const QStringList &count)
{
    const qsizetype rows = count[0].toLongLong();
    return inWindow([rows](AppDelegate &controller) {
        controller.arrayMediaFiles = madeUpRows(rows);
        controller.refreshTableAudioFiles();
        std::pair<double, double> slowest{ 0, 0 };
        for (int column = 0; column < ListTableModel::MediaColumnCount; ++column) {
            for (int direction = 0; direction < 2; ++direction) {
                const auto cost = sortBy(column, controller);
                std::fprintf(
                    stderr, "column %d: %.3f s, processor %.3f s\n", column, cost.first, cost.second);
                slowest = std::max(slowest, cost);
            }
        }
        printCost(slowest.first, slowest.second);
        return 0;
    });
}
