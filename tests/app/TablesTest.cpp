// What the tables show, how they are sorted, and what the gauge makes of them.
#include "app/BarButton.h"
#include "compilation/ListTableModel.h"
#include "compilation/ListTableView.h"
#include "compilation/SpaceOccupiedView.h"
#include "support/Person.h"
#include "support/TestApplication.h"
#include "ui_MainWindow.h"

#include <QAbstractItemModelTester>
#include <QLabel>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

NodeMediaFile file(const QString &name, const QString &duration = {}, const QString &size = {},
    const QString &folder = u"/x"_s)
{
    NodeMediaFile record;
    record.s_File_Name_With_Extension = name;
    record.s_Duration = duration;
    record.s_File_Size = size;
    record.s_Folder_Path = folder;
    record.s_File_Path = folder + u'/' + name;
    return record;
}

NodeDataFolder folder(const QString &path, const QString &size)
{
    return { path, 1, size };
}

} // namespace

class TablesTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { m_app.reset(); }

    void headings();
    void sortMedia_data();
    void sortMedia();
    void sortData_data();
    void sortData();
    void sortFromTheMenu();
    void everyClickSorts();
    void theMarkStandsBesideTheHeading_data();
    void theMarkStandsBesideTheHeading();
    void flagsAreShared();
    void dataSortLeavesTheOtherFlags();
    void leavingAColumnResetsIt();
    void noColumnOnlyRefreshes();
    void emptyList();
    void selectionIsKept();
    void theHeadingClaimsAnOrderOnlyWhileItIsKept();
    void selectionOfManyRows();
    void sortingIsTheWritingOrder();
    void textColour();
    void manyRows();

    void gauge_data();
    void gauge();
    void gaugeOfAFolder();
    void gaugeFollowsTheKind();
    void gaugeTellsItsLabel();
    void gaugeKeepsItsWidth();

private:
    void show(const QList<NodeMediaFile> &files);
    void show(const QList<NodeDataFolder> &folders);
    QStringList column(int column) const;
    QList<bool> flags() const
    {
        return { m_app->controller->m_b_Col1_Ascenging, m_app->controller->m_b_Col2_Ascenging,
            m_app->controller->m_b_Col3_Ascenging, m_app->controller->m_b_Col4_Ascenging };
    }
    ListTableView *table() const { return m_app->controller->selectedTable(); }
    void showTab(int tab) const { person::clickTab(m_app->element<QTabWidget>("tabviewMain"), tab); }
    qint64 percentage() const
    {
        return m_app->element<SpaceOccupiedView>("spaceoccupiedviewControl")->i_Percentage();
    }
    QString label() const { return m_app->element<QLabel>("label_BottomBar_SpaceOcuupied")->text(); }

    std::unique_ptr<TestApplication> m_app;
};

void TablesTest::init()
{
    emptyHome();
    m_app = std::make_unique<TestApplication>();
    m_app->launch();
    for (QTableView *view : m_app->window->findChildren<QTableView *>())
        new QAbstractItemModelTester(
            view->model(), QAbstractItemModelTester::FailureReportingMode::QtTest, view);
}

void TablesTest::show(const QList<NodeMediaFile> &files)
{
    m_app->controller->arrayMediaFiles = files;
    m_app->controller->refreshTableAudioFiles();
    m_app->controller->refreshTableVideoFiles();
}

void TablesTest::show(const QList<NodeDataFolder> &folders)
{
    m_app->controller->arrayDataFolders = folders;
    m_app->controller->refreshTableDataFolders();
}

QStringList TablesTest::column(int column) const
{
    QStringList texts;
    for (int row = 0; row < table()->model()->rowCount(); ++row)
        texts.append(table()->model()->index(row, column).data().toString());
    return texts;
}

void TablesTest::headings()
{
    const QList<QStringList> expected{ { u"File"_s, u"Duration"_s, u"Size"_s, u"Path"_s, u"Title"_s,
                                           u"Performer"_s },
        { u"File"_s, u"Duration"_s, u"Size"_s, u"Path"_s }, { u"Folder"_s, u"Size"_s } };
    for (int tab = 0; tab < 3; ++tab) {
        showTab(tab);
        QStringList shown, identifiers;
        for (int i = 0; i < table()->model()->columnCount(); ++i) {
            const auto heading = [this, i](int role) {
                return table()->model()->headerData(i, Qt::Horizontal, role).toString();
            };
            shown.append(heading(Qt::DisplayRole));
            identifiers.append(heading(ListTableModel::IdentifierRole));
        }
        QCOMPARE(shown, expected.at(tab));
        const QStringList keys{ u"key1"_s, u"key2"_s, u"key3"_s, u"key4"_s, u"key5"_s, u"key6"_s };
        QCOMPARE(identifiers, keys.first(shown.size()));
        // All of them are there to be pressed, at any width, but for the names, which wait until they are asked for.
        const QHeaderView *header = table()->horizontalHeader();
        for (int i = 0; i < header->count(); ++i)
            QCOMPARE(header->sectionSize(i) > 20, i < ListTableModel::NameTitle);
    }
}

void TablesTest::sortMedia_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<int>("column");
    QTest::addColumn<QStringList>("ascending");
    QTest::addColumn<bool>("ascendingFirst");
    struct Row {
        const char *name;
        int column;
        QStringList ascending;
    };
    const Row rows[] = {
        { "name", 0, { u"track 1.mp3"_s, u"Track 2.mp3"_s, u"Track 9.mp3"_s, u"Track 10.mp3"_s } },
        { "duration", 1, { u" 00:09:59.9"_s, u" 00:10:00.0"_s, u" 01:00:00.0"_s, u" N/A, start"_s } },
        // Size texts, not sizes: the unit is not looked at.
        { "size", 2, { u"2.00 MB"_s, u"10.00 bytes"_s, u"900.00 KB"_s, u"1000.00 GB"_s } },
        // By the full path, though the folder is shown: "/a/10/x.mp3" comes before "/a/x.mp3".
        { "path", 3, { u"/A/2"_s, u"/a/10"_s, u"/a"_s, u"/b"_s } },
    };
    for (const int tab : { 0, 1 }) {
        for (const Row &row : rows)
            QTest::addRow("%s, tab %d", row.name, tab)
                << tab << row.column << row.ascending << (row.column == 0);
    }
}

void TablesTest::sortMedia()
{
    QFETCH(int, tab);
    QFETCH(int, column);
    QFETCH(QStringList, ascending);
    QFETCH(bool, ascendingFirst);
    QStringList descending = ascending;
    std::ranges::reverse(descending);
    showTab(tab);
    QList<NodeMediaFile> files;
    for (const int i : { 2, 0, 3, 1 }) {
        const QString &text = ascending.at(i);
        files.append(column == 0 ? file(text)
                : column == 1    ? file(u"x.mp3"_s, text)
                : column == 2    ? file(u"x.mp3"_s, {}, text)
                                 : file(u"x.mp3"_s, {}, {}, text));
    }
    show(files);
    for (int click = 0; click < 4; ++click) {
        const bool isAscending = (click % 2 == 0) == ascendingFirst;
        person::clickHeading(table(), column);
        QCOMPARE(this->column(column), isAscending ? ascending : descending);
        for (int flag = 0; flag < 4; ++flag)
            QCOMPARE(flags().at(flag), flag == column && !isAscending);
        QCOMPARE(table()->horizontalHeader()->sortIndicatorSection(), column);
    }
}

void TablesTest::sortData_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QStringList>("ascending");
    QTest::newRow("folder") << 0 << QStringList{ u"/A/2"_s, u"/a/10"_s, u"/b"_s };
    QTest::newRow("size") << 1 << QStringList{ u"2.00 MB"_s, u"900.00 KB"_s, u"1000.00 bytes"_s };
}

void TablesTest::sortData()
{
    QFETCH(int, column);
    QFETCH(QStringList, ascending);
    QStringList descending = ascending;
    std::ranges::reverse(descending);
    showTab(2);
    QList<NodeDataFolder> folders;
    for (const int i : { 1, 2, 0 })
        folders.append(column == 0 ? folder(ascending.at(i), u"1"_s) : folder(u"/x"_s, ascending.at(i)));
    show(folders);
    for (int click = 0; click < 3; ++click) {
        const bool isAscending = (click % 2 == 0) == (column == 0);
        person::clickHeading(table(), column);
        QCOMPARE(this->column(column), isAscending ? ascending : descending);
        QCOMPARE(flags().at(column), !isAscending);
        QCOMPARE(flags().at(1 - column), false);
    }
}

void TablesTest::sortFromTheMenu()
{
    show({ file(u"b"_s, u" 00:00:01.0"_s), file(u"a"_s, u" 00:00:02.0"_s) });
    person::choose(m_app->window.get(), "menuitemSort1");
    QCOMPARE(column(0), QStringList({ u"a"_s, u"b"_s }));
    person::choose(m_app->window.get(), "menuitemSort2");
    QCOMPARE(column(0), QStringList({ u"a"_s, u"b"_s }));
    person::choose(m_app->window.get(), "menuitemSort2");
    QCOMPARE(column(0), QStringList({ u"b"_s, u"a"_s }));
}

// The second of two quick clicks arrives as a double click.
void TablesTest::everyClickSorts()
{
    show({ file(u"b"_s), file(u"a"_s) });
    const QHeaderView *header = table()->horizontalHeader();
    const QPoint place = header->viewport()->mapTo(m_app->window.get(), QPoint(30, header->height() / 2));
    QSignalSpy reloads(table()->model(), &QAbstractItemModel::modelReset);
    for (int sorts = 2; sorts <= 6; sorts += 2) {
        QTest::mouseDClick(m_app->window->windowHandle(), Qt::LeftButton, {}, place);
        QCOMPARE(reloads.size(), sorts);
        QCOMPARE(column(0), QStringList({ u"b"_s, u"a"_s }));
    }
    // With another button it is no click on a heading.
    QTest::mouseDClick(m_app->window->windowHandle(), Qt::RightButton, {}, place);
    QCOMPARE(reloads.size(), 6);
}

void TablesTest::theMarkStandsBesideTheHeading_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("left") << 0 << Qt::LeftToRight;
    QTest::newRow("right") << 1 << Qt::LeftToRight;
    QTest::newRow("right to left") << 0 << Qt::RightToLeft;
    QTest::newRow("right to left, number") << 2 << Qt::RightToLeft;
}

/// The smallest rectangle around what differs between two pictures of the same size.
static QRect difference(const QImage &a, const QImage &b)
{
    QRect changed;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            if (a.pixel(x, y) != b.pixel(x, y))
                changed |= QRect(x, y, 1, 1);
        }
    }
    return changed;
}

void TablesTest::theMarkStandsBesideTheHeading()
{
    QFETCH(int, column);
    QFETCH(Qt::LayoutDirection, direction);
    table()->setLayoutDirection(direction);
    show({ file(u"a"_s) });
    QHeaderView *header = table()->horizontalHeader();
    const int width = header->sectionSize(column);
    const QRect place(header->sectionViewportPosition(column), 0, width, header->height());
    const auto picture = [&] { return header->viewport()->grab(place).toImage(); };
    person::clickHeading(table(), column);
    const QImage marked = picture();
    header->setSortIndicatorShown(false);
    const QRect mark = difference(marked, picture());
    // All that changes is a small mark, at the height of the text and not on it.
    QVERIFY2(mark.width() >= 5 && mark.width() < 16, qPrintable(QString::number(mark.width())));
    QVERIFY(mark.height() >= 3 && mark.height() < 16);
    QVERIFY2(
        qAbs(mark.center().y() - header->height() / 2) <= 2, qPrintable(QString::number(mark.center().y())));
    const int text = header->fontMetrics().horizontalAdvance(
        table()->model()->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
    const bool textAtLeft = (column == 0) == (direction == Qt::LeftToRight);
    const int gap = textAtLeft ? mark.left() - (8 + text) : width - 8 - text - mark.right() - 1;
    QVERIFY2(gap >= 2 && gap <= 12, qPrintable(QString::number(gap)));
}

void TablesTest::flagsAreShared()
{
    show({ file(u"b"_s), file(u"a"_s) });
    person::clickHeading(table(), 0);
    QCOMPARE(column(0), QStringList({ u"a"_s, u"b"_s }));
    showTab(2);
    show({ folder(u"/a"_s, u"1"_s), folder(u"/b"_s, u"1"_s) });
    person::clickHeading(table(), 0);
    QCOMPARE(column(0), QStringList({ u"/b"_s, u"/a"_s }));
    QVERIFY(flags().at(0));
}

void TablesTest::dataSortLeavesTheOtherFlags()
{
    show({ file(u"b"_s), file(u"a"_s) });
    person::clickHeading(table(), 2); // descending, so the flag is set now
    QCOMPARE(flags(), QList<bool>({ false, false, true, false }));
    showTab(2);
    show({ folder(u"/a"_s, u"1"_s) });
    person::clickHeading(table(), 1);
    QCOMPARE(flags(), QList<bool>({ false, true, true, false }));
}

void TablesTest::leavingAColumnResetsIt()
{
    show({ file(u"a"_s, u"2"_s), file(u"b"_s, u"1"_s) });
    person::clickHeading(table(), 0); // ascending, its first time
    QCOMPARE(column(0), QStringList({ u"a"_s, u"b"_s }));
    person::clickHeading(table(), 1); // descending
    QCOMPARE(column(1), QStringList({ u"2"_s, u"1"_s }));
    person::clickHeading(table(), 0); // begins from descending again
    QCOMPARE(column(0), QStringList({ u"b"_s, u"a"_s }));
    person::clickHeading(table(), 1);
    QCOMPARE(column(1), QStringList({ u"2"_s, u"1"_s }));
}

void TablesTest::noColumnOnlyRefreshes()
{
    show({ file(u"b"_s), file(u"a"_s) });
    QSignalSpy reloads(table()->model(), &QAbstractItemModel::modelReset);
    for (const int none : { -1, 4 }) {
        table()->setSelectedColumn(none);
        m_app->controller->tableView_sortDescriptorsDidChange(table());
    }
    QCOMPARE(reloads.size(), 2);
    QCOMPARE(column(0), QStringList({ u"b"_s, u"a"_s }));
    QCOMPARE(flags(), QList<bool>({ true, false, false, false }));
}

void TablesTest::emptyList()
{
    for (int tab = 0; tab < 3; ++tab) {
        showTab(tab);
        for (int column = 0; column < table()->model()->columnCount(); ++column)
            person::clickHeading(table(), column);
        QCOMPARE(table()->model()->rowCount(), 0);
        QCOMPARE(percentage(), 0);
        table()->grab();
    }
    QCOMPARE(m_app->controller->i_Audio_Total_Duration_in_Seconds, 0);
    QCOMPARE(m_app->controller->i_Video_Total_Duration_in_Seconds, 0);
    QCOMPARE(m_app->controller->i_Data_Total_Size_in_KBytes, 0);
}

void TablesTest::selectionIsKept()
{
    show({ file(u"d"_s), file(u"b"_s), file(u"a"_s), file(u"c"_s) });
    person::clickRow(table(), table()->model()->index(0, 0));
    person::clickRow(table(), table()->model()->index(1, 0), Qt::ControlModifier);
    person::clickHeading(table(), 0);
    QCOMPARE(column(0), QStringList({ u"a"_s, u"b"_s, u"c"_s, u"d"_s }));
    QCOMPARE(table()->selectedRows(), QList<int>({ 1, 3 }));
    person::clickHeading(table(), 0);
    QCOMPARE(table()->selectedRows(), QList<int>({ 0, 2 }));
}

void TablesTest::theHeadingClaimsAnOrderOnlyWhileItIsKept()
{
    AppDelegate &controller = *m_app->controller;
    const auto claimed = [this] { return table()->horizontalHeader()->isSortIndicatorShown(); };
    const auto sorted = [&] {
        show({ file(u"c"_s), file(u"a"_s), file(u"b"_s) });
        person::clickHeading(table(), 0);
        return claimed();
    };
    QVERIFY(!claimed());
    QVERIFY(sorted());
    person::clickRow(table(), table()->model()->index(1, 0));
    person::click(m_app->window.get(), "toolbar_btn_Audio_Delete");
    QVERIFY(claimed());
    person::clickRow(table(), table()->model()->index(1, 0));
    controller.moveSelectedEntries(1); // the last row cannot go down
    QVERIFY(claimed());
    controller.moveSelectedEntries(-1);
    QVERIFY(!claimed());
    QVERIFY(sorted());
    QSignalSpy added(&controller, &AppDelegate::addingEnded);
    controller.addMediaFiles(AppDelegate::ListKind::Audio, { QUrl::fromLocalFile(u"/x/0.mp3"_s) });
    QVERIFY(added.wait());
    QVERIFY(!claimed());
    QVERIFY(sorted());
    showTab(2);
    showTab(0);
    QVERIFY(!claimed());
}

void TablesTest::selectionOfManyRows()
{
    QList<NodeMediaFile> files;
    for (int i = 0; i < 5000; ++i)
        files.append(file(QString::number(i)));
    show(files);
    QList<int> rows;
    for (int row = 0; row < 5000; row += row % 7 == 3 ? 2 : 1)
        rows.append(row);
    table()->selectRows(rows);
    QCOMPARE(table()->selectedRows(), rows);
    QCOMPARE(table()->selectionModel()->selection().size(),
        std::ranges::count_if(rows, [&rows](int row) { return !rows.contains(row - 1); }));
    table()->selectRows({});
    QCOMPARE(table()->selectedRows(), QList<int>());
}

void TablesTest::sortingIsTheWritingOrder()
{
    show({ file(u"b.mp3"_s), file(u"a.mp3"_s) });
    person::clickHeading(table(), 0);
    QCOMPARE(m_app->controller->arrayMediaFiles.first().s_File_Path, u"/x/a.mp3"_s);
    // The other kind's table shows the same list.
    QCOMPARE(m_app->element<ListTableView>("tableviewVideoFiles")->model()->index(0, 0).data().toString(),
        u"a.mp3"_s);
}

void TablesTest::textColour()
{
    show({ file(u"a"_s) });
    AppDelegate &controller = *m_app->controller;
    const auto colour = [this] {
        return table()->model()->index(0, 0).data(Qt::ForegroundRole).value<QColor>();
    };
    controller.b_List_Alternating_Rows = 0;
    controller.colorTableForeground = QColor(1, 2, 3);
    QCOMPARE(colour(), QColor(1, 2, 3));
    controller.b_List_Alternating_Rows = 1;
    QVERIFY(colour() == QColor(Qt::black) || colour() == QColor(Qt::white));
}

void TablesTest::manyRows()
{
    QList<NodeMediaFile> files;
    for (int i = 0; i < 20'000; ++i)
        files.append(file(u"Track %1.mp3"_s.arg(i * 7919 % 20'000), u" 00:00:01.0"_s));
    m_app->controller->arrayMediaFiles = files;
    m_app->controller->refreshTableAudioFiles();
    person::clickHeading(table(), 0);
    for (int i = 0; i < 20'000; i += 999)
        QCOMPARE(table()->model()->index(i, 0).data().toString(), u"Track %1.mp3"_s.arg(i));
    table()->selectAll();
    person::click(m_app->window.get(), "toolbar_btn_Audio_Delete");
    QCOMPARE(table()->model()->rowCount(), 0);
}

void TablesTest::gauge_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<qint64>("total");
    QTest::addColumn<qint64>("percent");
    const auto row = [](int tab, const char *button, qint64 total, qint64 percent) {
        QTest::addRow("%s %lld", button, static_cast<long long>(total))
            << tab << QByteArray(button) << total << percent;
    };
    row(0, "btnAudioCD", 4439, 99);
    row(0, "btnAudioCD", 4440, 100);
    row(0, "btnAudioCD", 4484, 100);
    row(0, "btnAudioCD", 4485, 101);
    row(0, "btnMP3CD", 34200, 100);
    row(0, "btnMP3CD", 34199, 99);
    row(0, "btnMP3DVD", 136800, 100);
    row(0, "btnMP3DVD", 342000, 250);
    row(1, "btnVideoDVD", 9000, 100);
    row(1, "btnVideoDVD", 8999, 99);
    row(1, "btnVideoBluray", 84230, 100);
    row(1, "btnVideoBluray", 84229, 99);
    row(2, "btnDataCD", 683593, 100);
    row(2, "btnDataCD", 683592, 99);
    row(2, "btnDataDVD", 4928307, 100);
    row(2, "btnDataDVD", 4928306, 99);
    row(2, "btnDataBluray", 26214400, 100);
    row(2, "btnDataBluray", 26214399, 99);
    row(2, "btnDataBluray", 0, 0);
}

void TablesTest::gauge()
{
    QFETCH(int, tab);
    QFETCH(QByteArray, button);
    QFETCH(qint64, total);
    showTab(tab);
    person::click(m_app->window.get(), button.constData());
    // In two entries, so that a sum is shown.
    NodeMediaFile half;
    half.i_Duration_in_Seconds = total / 2;
    NodeMediaFile rest;
    rest.i_Duration_in_Seconds = total - total / 2;
    if (tab == 2)
        show({ { u"/a"_s, total / 2, {} }, { u"/b"_s, total - total / 2, {} } });
    else
        show({ half, rest });
    QTEST(percentage(), "percent");
    QFETCH(qint64, percent);
    QVERIFY2(label().contains(u"(%1 %)"_s.arg(percent)), qPrintable(label()));
    // Pages without a list show nothing; the list and its share are untouched.
    showTab(3);
    m_app->controller->PaintSpaceOccupiedControl();
    QCOMPARE(percentage(), 0);
}

void TablesTest::gaugeOfAFolder()
{
    QTemporaryDir parent;
    QDir(parent.path()).mkpath(u"disc"_s);
    // A file with a hole: it takes no room, but its size is that of a whole disc.
    QFile file(parent.filePath(u"disc/image"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.resize(683593LL * 1024));
    showTab(2);
    m_app->questions.choices = { { QUrl::fromLocalFile(parent.filePath(u"disc"_s)) } };
    person::click(m_app->window.get(), "toolbar_btn_Data_Add_Folder");
    QCOMPARE(m_app->controller->i_Data_Total_Size_in_KBytes, 683593);
    QCOMPARE(percentage(), 100);
    m_app->questions.choices = { { QUrl::fromLocalFile(parent.filePath(u"disc"_s)) } };
    person::click(m_app->window.get(), "toolbar_btn_Data_Add_Folder");
    QCOMPARE(percentage(), 200);
    person::clickRow(table(), table()->model()->index(0, 0));
    person::click(m_app->window.get(), "toolbar_btn_Data_Delete");
    QCOMPARE(percentage(), 100);
}

void TablesTest::gaugeFollowsTheKind()
{
    NodeMediaFile hour;
    hour.i_Duration_in_Seconds = 3600;
    show({ hour });
    QCOMPARE(percentage(), 81);
    person::click(m_app->window.get(), "btnMP3CD");
    QCOMPARE(percentage(), 10);
    person::click(m_app->window.get(), "btnMP3DVD");
    QCOMPARE(percentage(), 2);
    m_app->controller->i_Audio_Type = 3;
    m_app->controller->PaintSpaceOccupiedControl();
    QCOMPARE(percentage(), 0);
}

void TablesTest::gaugeTellsItsLabel()
{
    NodeMediaFile hour;
    hour.i_Duration_in_Seconds = 3661;
    show({ hour });
    QCOMPARE(label(), u"Space occupied: 1:01:01 of 1:14:00 (82 %)"_s);
    hour.i_Duration_in_Seconds = 4500;
    show({ hour });
    QCOMPARE(label(), u"Space occupied: 1:15:00 of 1:14:00 (101 %), too long by 01:00"_s);
    person::click(m_app->window.get(), "toolbar_btn_Audio_Clear");
    QCOMPARE(label(), u"Space occupied: 00:00 of 1:14:00 (0 %)"_s);
    showTab(2);
    show({ { u"/a"_s, 1024 * 1024 + 1, u"1.00 GB"_s } });
    QVERIFY2(label().contains(u"1.00 GB"_s) && label().contains(u"(153 %)"_s), qPrintable(label()));
    // What the button of a kind says that it holds is what the gauge says.
    const QString capacity = label().section(u" of "_s, 1).section(u' ', 0, 0).section(u'.', 0, 0);
    QVERIFY(m_app->element<BarButton>("btnDataCD")->toolTip().contains(capacity + u" MB"_s));
}

void TablesTest::gaugeKeepsItsWidth()
{
    const auto *gauge = m_app->element<SpaceOccupiedView>("spaceoccupiedviewControl");
    const int width = gauge->width();
    for (const auto &[tab, button] : { std::pair(0, "btnMP3DVD"), { 1, "btnVideoBluray" },
             { 2, "btnDataBluray" }, { 2, "btnDataCD" }, { 0, "btnMP3CD" } }) {
        showTab(tab);
        person::click(m_app->window.get(), button);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        QCOMPARE(gauge->width(), width);
    }
}

QTEST_MAIN(TablesTest)
#include "TablesTest.moc"
