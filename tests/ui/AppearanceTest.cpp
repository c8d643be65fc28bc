// The colour scheme in the whole application: kept, shown, changed in its sheet.
#include "app/BarButton.h"
#include "compilation/ListTableView.h"
#include "compilation/SpaceOccupiedView.h"
#include "support/JobApplication.h"
#include "ui/ColourScheme.h"
#include "ui/ColourWell.h"
#include "ui/DesktopColours.h"
#include "ui/PaintedViews.h"
#include "ui/SystemAppearance.h"
#include "ui/Window_Colors.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QMenuBar>
#include <QProxyStyle>
#include <QScopeGuard>
#include <QSettings>
#include <QStyleFactory>

#include <algorithm>
#include <cmath>
#include <functional>

using namespace Qt::StringLiterals;
using ColourScheme::Role;

namespace {

constexpr std::array wellNames{ "colorListBackground", "colorListForeground", "colorToolbar",
    "colorBottomBar", "colorSpaceOccupied" };
constexpr std::array toolbarNames{ "view_Toolbar_Audio_BG", "view_Toolbar_Audio_Sub_BG",
    "view_Toolbar_Video_BG", "view_Toolbar_Video_Sub_BG", "view_Toolbar_Data_BG", "view_Toolbar_Data_Sub_BG",
    "view_Toolbar_ISO_BG", "view_Toolbar_Tools_BG" };
constexpr std::array tableNames{ "tableviewAudioFiles", "tableviewVideoFiles", "tableviewDataFolders" };
const QColor blueGrey(75, 105, 141);

QString stored(const QString &key)
{
    return QSettings(u"Corvalis"_s, u"Corvalis"_s).value(key).toString();
}

QString storedAlternating()
{
    return stored(u"Quendral_Corvalis_b_List_Alternating_Rows"_s);
}

void store(const QString &key, const QString &value)
{
    QSettings(u"Corvalis"_s, u"Corvalis"_s).setValue(key, value);
}

/// The colour at the right edge of a view, where nothing stands on it.
QColor edge(const QWidget *view)
{
    const auto image = const_cast<QWidget *>(view)->grab().toImage();
    return image.pixelColor(image.width() - 1, image.height() / 2);
}

/// The colours of a picture, the most frequent first.
QList<QColor> mostFrequent(const QImage &image)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            ++counts[image.pixel(x, y)];
    auto colours = counts.keys();
    std::ranges::sort(colours, std::greater(), [&](QRgb colour) { return counts[colour]; });
    return { colours.begin(), colours.end() };
}

/// A picture of the widget without its border.
QImage insideOf(QWidget *widget)
{
    const int margin = widget->height() > 30 ? 7 : 4;
    return widget->window()
        ->grab(QRect(widget->mapTo(widget->window(), QPoint(0, 0)), widget->size())
                   .adjusted(margin, margin, -margin, -margin))
        .toImage();
}

double contrast(const QColor &a, const QColor &b)
{
    const auto luminance = [](const QColor &colour) {
        const auto linear = [](double value) {
            return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
            + 0.0722 * linear(colour.blueF());
    };
    const double ratio = (luminance(a) + 0.05) / (luminance(b) + 0.05);
    return std::max(ratio, 1 / ratio);
}

void setDark(bool dark)
{
    QFile file(SystemAppearance::globalPreferencesFile());
    QVERIFY(QDir().mkpath(QFileInfo(file).path()));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(dark ? "AppleInterfaceStyle=Dark\n" : "AppleInterfaceStyle=Light!\n");
    file.close();
    QCoreApplication::processEvents(); // which is when it is seen by who watches the file
}

} // namespace

class AppearanceTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void firstStart();
    void restartKeepsTheScheme();
    void tablesFollowTheScheme_data();
    void tablesFollowTheScheme();
    void rowsAndCellsOfEveryTable_data();
    void rowsAndCellsOfEveryTable();
    void desktopTurnsDark();
    void preferencesFileTurnsDark();
    void wholeWindowTurnsDark();
    void ownPaletteIsReadable_data();
    void ownPaletteIsReadable();
    void selectedRowsAreReadable_data();
    void selectedRowsAreReadable();
    void stripesAreSeen_data();
    void stripesAreSeen();
    void cellsArePaintedInTheSchemesColours();
    void toolbarsAndBottomBarArePainted();
    void everythingOnABarIsReadable_data();
    void everythingOnABarIsReadable();
    void sheetsHaveTheirButtonsAlike();
    void gauge_data();
    void gauge();
    void sheetShowsTheScheme();
    void everyMnemonicIsItsOwn();
    void okTakesOver();
    void okKeepsTheSelection();
    void cancelLeavesEverything();
    void originalThenCancel();
    void originalThenCancelLeavesNoPatch();
    void originalThenOk();
    void damagedColourStaysUnset();
    void strangeAlternatingValue();
    void wellAsksForAColour();
    void openingTwiceReplacesTheSheet();

private:
    template <class T>
    static T *inSheet(const JobApplication &app, const char *name)
    {
        return app.controller->windowColors->findChild<T *>(QLatin1StringView(name));
    }
    static void open(const JobApplication &app) { app.trigger("menuitemColors"); }
    static void click(const JobApplication &app, const char *button)
    {
        inSheet<QPushButton>(app, button)->click();
    }
};

void AppearanceTest::init()
{
    QSettings(u"Corvalis"_s, u"Corvalis"_s).clear();
    setDark(false);
}

void AppearanceTest::firstStart()
{
    JobApplication app;
    app.launch();
    QCOMPARE(storedAlternating(), u"1"_s);
    for (const Role role : ColourScheme::roles) {
        QCOMPARE(stored(ColourScheme::markerKey(role)), u"Recorded"_s);
        QCOMPARE(stored(ColourScheme::valueKey(role)), ColourScheme::toText(ColourScheme::shipped(role)));
    }
    QCOMPARE(app.controller->colorToolbar, blueGrey);
    QCOMPARE(app.controller->colorTableForeground, QColor(Qt::white));
}

void AppearanceTest::restartKeepsTheScheme()
{
    {
        JobApplication app;
        app.launch();
        open(app);
        for (std::size_t i = 0; i < wellNames.size(); ++i)
            inSheet<ColourWell>(app, wellNames[i])->setColour(QColor(10 * int(i), 200, 30));
        inSheet<QCheckBox>(app, "check_Alternating_Rows")->setChecked(false);
        click(app, "btnOK");
    }
    JobApplication app;
    const auto &controller = app.launch();
    const std::array colours{ controller.colorTableBackground, controller.colorTableForeground,
        controller.colorToolbar, controller.colorBottomBar, controller.colorSpaceOccupiedBar };
    for (std::size_t i = 0; i < colours.size(); ++i)
        QCOMPARE(colours[i], QColor(10 * int(i), 200, 30));
    QCOMPARE(controller.b_List_Alternating_Rows, 0);
}

void AppearanceTest::tablesFollowTheScheme_data()
{
    QTest::addColumn<bool>("dark");
    QTest::addColumn<QString>("alternating");
    QTest::addColumn<QColor>("ground");
    QTest::addColumn<QColor>("text");
    const QColor black(Qt::black);
    const QColor white(Qt::white);
    QTest::newRow("on, light") << false << u"1"_s << white << black;
    QTest::newRow("on, dark") << true << u"1"_s << black << white;
    QTest::newRow("off, light") << false << u"0"_s << QColor(82, 82, 82) << white;
    QTest::newRow("off, dark") << true << u"0"_s << QColor(82, 82, 82) << white;
}

void AppearanceTest::tablesFollowTheScheme()
{
    QFETCH(bool, dark);
    QFETCH(QString, alternating);
    QFETCH(QColor, ground);
    QFETCH(QColor, text);
    setDark(dark);
    store(u"Quendral_Corvalis_b_List_Alternating_Rows"_s, alternating);
    JobApplication app;
    app.launch();
    QTRY_COMPARE(
        app.element<ListTableView>("tableviewAudioFiles")->alternatingRowColors(), alternating == u"1");
    for (const char *name : tableNames) {
        const auto *table = app.element<ListTableView>(name);
        QCOMPARE(table->palette().color(QPalette::Base), ground);
        QCOMPARE(table->alternatingRowColors(), alternating == u"1");
    }
    QCOMPARE(app.controller->cellTextColour(), text);
}

void AppearanceTest::rowsAndCellsOfEveryTable_data()
{
    tablesFollowTheScheme_data();
}

void AppearanceTest::rowsAndCellsOfEveryTable()
{
    QFETCH(bool, dark);
    QFETCH(QString, alternating);
    QFETCH(QColor, ground);
    QFETCH(QColor, text);
    setDark(dark);
    store(u"Quendral_Corvalis_b_List_Alternating_Rows"_s, alternating);
    JobApplication app;
    app.launch();
    const auto check = [&](const char *name) {
        auto *table = app.element<ListTableView>(name);
        table->clearSelection();
        table->setCurrentIndex({}); // which is tinted where it has the keyboard
        QTRY_COMPARE(table->alternatingRowColors(), alternating == u"1");
        QCOMPARE(table->model()->rowCount(), 2);
        const auto cell = [&](int row, int column) {
            return table->viewport()->grab(table->visualRect(table->model()->index(row, column))).toImage();
        };
        for (int column = 0; column < table->model()->columnCount(); ++column) {
            for (int row = 0; row < 2 && !table->isColumnHidden(column); ++row) {
                const auto colours = mostFrequent(cell(row, column));
                const bool second = row == 1 && alternating == u"1";
                QCOMPARE(colours.first() != ground, second);
                // The alternate ground is near the other: no row stands out.
                QVERIFY(std::abs(colours.first().value() - ground.value()) < 32);
                // Thin strokes are mixed with the ground; the strongest is nearest to the text's colour.
                const auto strongest =
                    std::ranges::max(colours, {}, [&](const QColor &c) { return contrast(c, ground); });
                QVERIFY2(std::abs(strongest.value() - text.value()) < 64,
                    qPrintable(u"%1, column %2: %3"_s.arg(QLatin1StringView(name))
                                   .arg(column)
                                   .arg(strongest.name())));
            }
        }
        // Below the last row there is the plain ground.
        const auto below = table->viewport()->grab().toImage();
        QCOMPARE(below.pixelColor(5, below.height() - 5), ground);
    };
    const QStringList files{ app.file(u"Hill.mp4"_s), app.file(u"Mill.mp4"_s) };
    QVERIFY(app.add({ app.file(u"Hill.mp3"_s), app.file(u"Mill.mp3"_s) }));
    check("tableviewAudioFiles");
    app.trigger("submenuItemTabVideo");
    QVERIFY(app.add(files));
    check("tableviewVideoFiles");
    app.trigger("submenuItemTabData");
    for (const auto &name : { u"Hill"_s, u"Mill"_s }) {
        app.file(name + u"/content.txt"_s);
        app.addFolder(app.media.filePath(name));
    }
    check("tableviewDataFolders");
}

void AppearanceTest::desktopTurnsDark()
{
    QVERIFY(QFile::remove(SystemAppearance::globalPreferencesFile())); // so that the palette decides
    const auto original = QApplication::palette();
    JobApplication app;
    app.launch();
    const auto *table = app.element<ListTableView>("tableviewAudioFiles");
    QCOMPARE(table->palette().color(QPalette::Base), QColor(Qt::white));
    auto dark = original;
    dark.setColor(QPalette::Window, QColor(40, 40, 40));
    dark.setColor(QPalette::WindowText, Qt::white);
    QApplication::setPalette(dark);
    QCOMPARE(table->palette().color(QPalette::Base), QColor(Qt::black));
    QCOMPARE(app.controller->cellTextColour(), QColor(Qt::white));
    QApplication::setPalette(original);
    QCOMPARE(table->palette().color(QPalette::Base), QColor(Qt::white));
}

void AppearanceTest::preferencesFileTurnsDark()
{
    JobApplication app;
    app.launch();
    const auto *table = app.element<ListTableView>("tableviewAudioFiles");
    QCOMPARE(table->palette().color(QPalette::Base), QColor(Qt::white));
    setDark(true);
    QTRY_COMPARE(table->palette().color(QPalette::Base), QColor(Qt::black));
    QCOMPARE(app.controller->cellTextColour(), QColor(Qt::white));
    setDark(false);
    QTRY_COMPARE(table->palette().color(QPalette::Base), QColor(Qt::white));
    QCOMPARE(app.controller->cellTextColour(), QColor(Qt::black));
}

/// Where the desktop is said to be dark and the toolkit does not know, everything is dark, not the lists alone.
void AppearanceTest::wholeWindowTurnsDark()
{
    const auto toolkits = QApplication::palette();
    JobApplication app;
    app.launch();
    const auto ground = [&](QWidget *widget) { return mostFrequent(widget->grab().toImage()).first(); };
    const auto parts = QList<QWidget *>{ app.window->menuBar(), app.element<QTabWidget>("tabviewMain") };
    for (auto *part : parts)
        QVERIFY(ground(part).lightness() > 128);
    setDark(true);
    QTRY_VERIFY(QApplication::palette().color(QPalette::Window).lightness() < 128);
    for (auto *part : parts)
        QTRY_VERIFY(ground(part).lightness() < 128);
    open(app);
    QVERIFY(ground(app.controller->windowColors).lightness() < 128);
    click(app, "btnCancel");
    setDark(false);
    QTRY_COMPARE(QApplication::palette(), toolkits);
    for (auto *part : parts)
        QTRY_VERIFY(ground(part).lightness() > 128);

    // The other way round, and back when nothing is said any more.
    QApplication::setPalette(desktopColours(true));
    QTRY_VERIFY(QApplication::palette().color(QPalette::Window).lightness() > 128);
    QVERIFY(QFile::remove(SystemAppearance::globalPreferencesFile()));
    QTRY_COMPARE(QApplication::palette(), desktopColours(true));
    QApplication::setPalette(toolkits);
}

void AppearanceTest::ownPaletteIsReadable_data()
{
    QTest::addColumn<bool>("dark");
    QTest::newRow("dark") << true;
    QTest::newRow("light") << false;
}

void AppearanceTest::ownPaletteIsReadable()
{
    QFETCH(bool, dark);
    const auto palette = desktopColours(dark);
    using P = QPalette;
    for (const auto &[text, ground] : { std::pair{ P::WindowText, P::Window }, { P::Text, P::Base },
             { P::Text, P::AlternateBase }, { P::PlaceholderText, P::Base }, { P::ButtonText, P::Button },
             { P::HighlightedText, P::Highlight }, { P::Link, P::Base }, { P::Link, P::Window },
             { P::LinkVisited, P::Base }, { P::ToolTipText, P::ToolTipBase } })
        QVERIFY2(contrast(palette.color(text), palette.color(ground)) >= 4.5,
            qPrintable(u"%1 on %2"_s.arg(int(text)).arg(int(ground))));
}

void AppearanceTest::selectedRowsAreReadable_data()
{
    QTest::addColumn<bool>("dark");
    QTest::addColumn<QColor>("highlight");
    QTest::addColumn<QColor>("text");
    for (const bool dark : { false, true }) {
        const auto row = [dark](const char *name, const QColor &highlight, const QColor &text) {
            QTest::addRow("%s, %s", name, dark ? "dark" : "light") << dark << highlight << text;
        };
        row("the toolkit's", {}, {});
        row("pale with white", QColor(145, 200, 245), Qt::white);
        row("yellow with white", Qt::yellow, Qt::white);
        row("dark with black", QColor(60, 20, 90), Qt::black);
    }
}

/// Whatever colour a person's desktop has for what is selected, in the window that has the keyboard and in others.
void AppearanceTest::selectedRowsAreReadable()
{
    QFETCH(bool, dark);
    QFETCH(QColor, highlight);
    QFETCH(QColor, text);
    const auto original = QApplication::palette();
    const auto restore = qScopeGuard([&] { QApplication::setPalette(original); });
    if (highlight.isValid()) {
        auto palette = original;
        palette.setColor(QPalette::Highlight, highlight);
        palette.setColor(QPalette::HighlightedText, text);
        QApplication::setPalette(palette);
    }
    setDark(dark);
    JobApplication app;
    app.launch();
    QVERIFY(app.add({ app.file(u"MMMMMMMM.mp3"_s), app.file(u"WWWWWWWW.mp3"_s) }));
    auto *table = app.element<ListTableView>("tableviewAudioFiles");
    table->selectRows({ 0, 1 });
    const auto check = [&] {
        for (int row = 0; row < 2; ++row) {
            const auto cell = table->visualRect(table->model()->index(row, 0)).adjusted(2, 2, -2, -2);
            const auto colours = mostFrequent(table->viewport()->grab(cell).toImage());
            const auto ground = colours.first();
            const auto strongest =
                std::ranges::max(colours, {}, [&](const QColor &c) { return contrast(c, ground); });
            QVERIFY2(contrast(strongest, ground) >= 4.5,
                qPrintable(u"%1 on %2"_s.arg(strongest.name(), ground.name())));
        }
    };
    app.window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(app.window.get()));
    check();
    QWidget other;
    other.show();
    other.activateWindow();
    QTRY_VERIFY(!app.window->isActiveWindow());
    check();
    setDark(false);
}

void AppearanceTest::stripesAreSeen_data()
{
    QTest::addColumn<bool>("dark");
    QTest::addColumn<double>("least");
    QTest::newRow("light") << false << 1.1;
    QTest::newRow("dark") << true << 1.25;
}

void AppearanceTest::stripesAreSeen()
{
    QFETCH(bool, dark);
    QFETCH(double, least);
    setDark(dark);
    JobApplication app;
    app.launch();
    const auto palette = app.element<ListTableView>("tableviewAudioFiles")->palette();
    const double seen = contrast(palette.color(QPalette::Base), palette.color(QPalette::AlternateBase));
    QVERIFY2(seen >= least, qPrintable(QString::number(seen)));
    setDark(false);
}

void AppearanceTest::cellsArePaintedInTheSchemesColours()
{
    JobApplication app;
    app.launch();
    QVERIFY(app.add({ app.file(u"MMMMMMMM.mp3"_s), app.file(u"WWWWWWWW.mp3"_s) }));
    auto *table = app.element<ListTableView>("tableviewAudioFiles");
    table->clearSelection();
    table->setCurrentIndex({}); // which is tinted where it has the keyboard
    const auto cell = [table](int row) {
        return table->viewport()->grab(table->visualRect(table->model()->index(row, 0))).toImage();
    };
    const auto ground = [&](int row) { return cell(row).pixelColor(cell(row).width() - 3, 3); };
    const auto hasColour = [&](int row, const QColor &colour) {
        const auto image = cell(row);
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixelColor(x, y).rgb() == colour.rgb())
                    return true;
        return false;
    };
    QTRY_VERIFY(ground(0) != ground(1)); // the rows alternate once the timer has come
    QCOMPARE(ground(0), QColor(Qt::white));
    QVERIFY(hasColour(0, Qt::black));

    open(app);
    inSheet<ColourWell>(app, "colorListBackground")->setColour(QColor(0, 64, 0));
    inSheet<ColourWell>(app, "colorListForeground")->setColour(QColor(255, 255, 0));
    inSheet<QCheckBox>(app, "check_Alternating_Rows")->setChecked(false);
    click(app, "btnOK");
    QTRY_COMPARE(ground(1), QColor(0, 64, 0));
    QCOMPARE(ground(0), QColor(0, 64, 0));
    QVERIFY(hasColour(0, QColor(255, 255, 0)));
    QVERIFY(!hasColour(0, Qt::black));

    setDark(true);
    open(app);
    inSheet<QCheckBox>(app, "check_Alternating_Rows")->setChecked(true);
    click(app, "btnOK");
    QTRY_VERIFY(ground(0) != ground(1));
    QCOMPARE(ground(0), QColor(Qt::black));
    QVERIFY(hasColour(0, Qt::white));
}

void AppearanceTest::toolbarsAndBottomBarArePainted()
{
    JobApplication app;
    app.launch();
    for (const char *name : toolbarNames)
        QCOMPARE(edge(app.element<QWidget>(name)), blueGrey);
    QVERIFY(!app.window->findChildren<View_Bottom_Bar_BG_Color *>().isEmpty());
    open(app);
    inSheet<ColourWell>(app, "colorToolbar")->setColour(QColor(200, 220, 40));
    inSheet<ColourWell>(app, "colorBottomBar")->setColour(QColor(90, 20, 20));
    click(app, "btnOK");
    for (const char *name : toolbarNames)
        QCOMPARE(edge(app.element<QWidget>(name)), QColor(200, 220, 40));
    for (const auto *bar : app.window->findChildren<View_Bottom_Bar_BG_Color *>())
        QCOMPARE(edge(bar), QColor(90, 20, 20));
}

void AppearanceTest::everythingOnABarIsReadable_data()
{
    QTest::addColumn<QColor>("bar");
    QTest::newRow("shipped") << blueGrey;
    // Around these greys black and white are equally far.
    for (const int grey : { 0, 64, 112, 117, 118, 124, 190, 255 })
        QTest::addRow("grey %d", grey) << QColor(grey, grey, grey);
    for (const auto &colour : { QColor(Qt::red), QColor(Qt::green), QColor(Qt::blue), QColor(Qt::yellow),
             QColor(Qt::magenta), QColor(Qt::cyan), QColor(200, 60, 60), QColor(30, 130, 76) })
        QTest::newRow(qPrintable(colour.name())) << colour;
}

void AppearanceTest::everythingOnABarIsReadable()
{
    QFETCH(QColor, bar);
    JobApplication app;
    auto &controller = app.launch();
    controller.colorToolbar = controller.colorBottomBar = bar;
    const auto check = [](QWidget *widget, const char *state) {
        const auto colours = mostFrequent(insideOf(widget));
        const auto best =
            std::ranges::max(colours, {}, [&](const QColor &c) { return contrast(c, colours.first()); });
        // WCAG 2.1, 1.4.3: 4.5 to 1
        QVERIFY2(contrast(best, colours.first()) >= 4.5,
            qPrintable(u"%1 %2: %3 on %4"_s.arg(
                widget->objectName(), QLatin1StringView(state), best.name(), colours.first().name())));
    };
    for (const char *tab : { "submenuItemTabAudio", "submenuItemTabISO", "submenuItemTabTools" }) {
        app.trigger(tab);
        for (auto *button : app.window->findChildren<BarButton *>()) {
            if (!button->isVisible() || !button->isEnabled())
                continue;
            check(button, "at rest");
            button->setAttribute(Qt::WA_UnderMouse);
            check(button, "under the pointer");
            button->setDown(true);
            check(button, "pressed");
            button->setDown(false);
            button->setAttribute(Qt::WA_UnderMouse, false);
        }
        for (auto *label : app.window->findChildren<BarLabel *>())
            if (label->isVisible() && !label->text().isEmpty())
                check(label, "at rest");
    }
}

void AppearanceTest::sheetsHaveTheirButtonsAlike()
{
    class StyleWithSigns : public QProxyStyle {
    public:
        int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
            QStyleHintReturn *data) const override
        {
            return hint == SH_DialogButtonBox_ButtonsHaveIcons
                ? 1
                : QProxyStyle::styleHint(hint, option, widget, data);
        }
    };
    const auto usual = QApplication::style()->name();
    QApplication::setStyle(new StyleWithSigns);
    const auto back = qScopeGuard([usual] { QApplication::setStyle(QStyleFactory::create(usual)); });
    JobApplication app;
    auto &controller = app.launch();
    const auto check = [](const QWidget *sheet, bool *okFirst) {
        const auto *box = sheet->findChild<QDialogButtonBox *>();
        for (const auto *button : box->buttons())
            QVERIFY2(button->icon().isNull(), qPrintable(button->text()));
        *okFirst = box->button(QDialogButtonBox::Ok)->x() < box->button(QDialogButtonBox::Cancel)->x();
    };
    bool elsewhere = false;
    app.trigger("menuitemNewDisc");
    check(controller.windowNewDisc, &elsewhere);
    controller.windowNewDisc->OnCancel();
    bool here = false;
    open(app);
    check(controller.windowColors, &here);
    QCOMPARE(here, elsewhere);
    click(app, "btnCancel");
}

void AppearanceTest::gauge_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<qint64>("percent");
    QTest::addColumn<int>("bar");
    QTest::addColumn<int>("red");
    QTest::newRow("empty") << 200 << qint64(0) << 0 << 0;
    QTest::newRow("a third") << 200 << qint64(33) << 66 << 0;
    QTest::newRow("a third, cut off") << 199 << qint64(33) << 65 << 0;
    QTest::newRow("89") << 200 << qint64(89) << 178 << 0;
    QTest::newRow("90") << 200 << qint64(90) << 180 << 0;
    QTest::newRow("95") << 200 << qint64(95) << 180 << 10;
    QTest::newRow("100") << 200 << qint64(100) << 180 << 20;
    QTest::newRow("250") << 200 << qint64(250) << 180 << 20;
}

void AppearanceTest::gauge()
{
    QFETCH(int, width);
    QFETCH(qint64, percent);
    QFETCH(int, bar);
    QFETCH(int, red);
    QColor colour(Qt::blue);
    SpaceOccupiedView view;
    view.setColourSource([&] { return colour; });
    view.resize(width, 20);
    view.setI_Percentage(percent);
    for (const auto chosen : { QColor(Qt::blue), QColor(20, 180, 60) }) {
        colour = chosen;
        const auto image = view.grab().toImage();
        for (int x = 0; x < width; ++x) {
            const auto pixel = image.pixelColor(x, 10);
            if (x < bar)
                QCOMPARE(pixel, chosen);
            else if (x < bar + red)
                QCOMPARE(pixel, QColor(255, 0, 0));
            else // the ground is grey, lighter at the bottom
                QVERIFY(pixel.saturation() == 0
                    && image.pixelColor(x, 19).value() > image.pixelColor(x, 0).value());
        }
    }
}

void AppearanceTest::sheetShowsTheScheme()
{
    JobApplication app;
    auto &controller = app.launch();
    controller.colorBottomBar = QColor(1, 2, 3);
    open(app);
    QVERIFY(inSheet<QCheckBox>(app, "check_Alternating_Rows")->isChecked());
    QCOMPARE(inSheet<ColourWell>(app, "colorListBackground")->colour(), QColor(82, 82, 82));
    QCOMPARE(inSheet<ColourWell>(app, "colorListForeground")->colour(), QColor(Qt::white));
    QCOMPARE(inSheet<ColourWell>(app, "colorToolbar")->colour(), blueGrey);
    QCOMPARE(inSheet<ColourWell>(app, "colorBottomBar")->colour(), QColor(1, 2, 3));
    QCOMPARE(inSheet<ColourWell>(app, "colorSpaceOccupied")->colour(), QColor(Qt::blue));
    for (const auto *button : controller.windowColors->findChildren<QAbstractButton *>()) {
        QVERIFY(!button->toolTip().isEmpty());
        QVERIFY(!button->text().isEmpty() || !button->accessibleName().isEmpty());
    }
    QVERIFY(QTest::qWaitForWindowActive(controller.windowColors));
    QCOMPARE(QApplication::focusWidget()->objectName(), u"btnOK"_s);
}

void AppearanceTest::everyMnemonicIsItsOwn()
{
    JobApplication app;
    auto &controller = app.launch();
    open(app);
    QStringList texts;
    for (const auto *label : controller.windowColors->findChildren<QLabel *>())
        texts += label->text();
    for (const auto *button : controller.windowColors->findChildren<QAbstractButton *>())
        texts += button->text();
    QHash<QKeySequence, QString> taken;
    for (const auto &text : texts) {
        const auto mnemonic = QKeySequence::mnemonic(text);
        if (mnemonic.isEmpty())
            continue;
        QVERIFY2(!taken.contains(mnemonic), qPrintable(taken[mnemonic] + u" and "_s + text));
        taken[mnemonic] = text;
    }
    QVERIFY(taken.size() >= 7);
}

void AppearanceTest::okTakesOver()
{
    JobApplication app;
    auto &controller = app.launch();
    open(app);
    const QPointer<Window_Colors> sheet = controller.windowColors;
    inSheet<ColourWell>(app, "colorSpaceOccupied")->setColour(QColor(255, 128, 0));
    inSheet<QCheckBox>(app, "check_Alternating_Rows")->setChecked(false);
    click(app, "btnOK");
    QVERIFY(!controller.windowColors);
    QTRY_VERIFY(!sheet);
    QCOMPARE(controller.colorSpaceOccupiedBar, QColor(255, 128, 0));
    QCOMPARE(controller.b_List_Alternating_Rows, 0);
    QCOMPARE(storedAlternating(), u"0"_s);
    const auto text = stored(ColourScheme::valueKey(Role::SpaceOccupiedBar));
    QCOMPARE(ColourScheme::fromText(text)->toColour(), QColor(255, 128, 0));
    // What was not changed keeps all its digits.
    for (const Role role : { Role::TableBackground, Role::TableForeground, Role::Toolbar, Role::BottomBar })
        QCOMPARE(stored(ColourScheme::valueKey(role)), ColourScheme::toText(ColourScheme::shipped(role)));
}

void AppearanceTest::okKeepsTheSelection()
{
    JobApplication app;
    app.launch();
    QVERIFY(app.add({ app.file(u"a.mp3"_s), app.file(u"b.mp3"_s), app.file(u"c.mp3"_s) }));
    auto *table = app.element<ListTableView>("tableviewAudioFiles");
    for (const QList<int> &rows : { QList<int>{ 0, 2 }, QList<int>{ 1 }, QList<int>{} }) {
        table->selectRows(rows);
        open(app);
        inSheet<ColourWell>(app, "colorToolbar")->setColour(QColor(10, 20, int(rows.size())));
        click(app, "btnOK");
        QCOMPARE(table->selectedRows(), rows);
    }
}

void AppearanceTest::cancelLeavesEverything()
{
    JobApplication app;
    auto &controller = app.launch();
    open(app);
    inSheet<ColourWell>(app, "colorToolbar")->setColour(Qt::red);
    inSheet<QCheckBox>(app, "check_Alternating_Rows")->setChecked(false);
    QTest::keyClick(controller.windowColors, Qt::Key_Escape);
    QVERIFY(!controller.windowColors);
    QCOMPARE(controller.colorToolbar, blueGrey);
    QCOMPARE(controller.b_List_Alternating_Rows, 1);
    QCOMPARE(storedAlternating(), u"1"_s);
    QCOMPARE(stored(ColourScheme::valueKey(Role::Toolbar)),
        ColourScheme::toText(ColourScheme::shipped(Role::Toolbar)));
}

void AppearanceTest::originalThenCancel()
{
    JobApplication app;
    auto &controller = app.launch();
    open(app);
    inSheet<ColourWell>(app, "colorToolbar")->setColour(Qt::red);
    inSheet<ColourWell>(app, "colorListBackground")->setColour(QColor(0, 64, 0));
    inSheet<QCheckBox>(app, "check_Alternating_Rows")->setChecked(false);
    click(app, "btnOK");
    QTest::qWait(200);

    open(app);
    click(app, "btnOriginal");
    QCOMPARE(controller.colorToolbar, blueGrey);
    QVERIFY(inSheet<QCheckBox>(app, "check_Alternating_Rows")->isChecked());
    QCOMPARE(inSheet<ColourWell>(app, "colorToolbar")->colour(), blueGrey);
    QCOMPARE(controller.b_List_Alternating_Rows, 0);
    click(app, "btnCancel");
    QCOMPARE(storedAlternating(), u"1"_s);
    for (const Role role : ColourScheme::roles)
        QCOMPARE(stored(ColourScheme::valueKey(role)), ColourScheme::toText(ColourScheme::shipped(role)));
    // The window still has the old look: nobody told its tables.
    QTest::qWait(200);
    QCOMPARE(controller.b_List_Alternating_Rows, 0);
    QCOMPARE(
        app.element<ListTableView>("tableviewAudioFiles")->palette().color(QPalette::Base), QColor(0, 64, 0));
    QVERIFY(!app.element<ListTableView>("tableviewAudioFiles")->alternatingRowColors());
    // A redraw, whatever causes it, shows the shipped colour.
    QCOMPARE(edge(app.element<QWidget>("view_Toolbar_Audio_BG")), blueGrey);
}

/// The window keeps its look until its next redraw, and that is one of all of it: a button that is redrawn
/// under the pointer does not stand in a square of another colour.
void AppearanceTest::originalThenCancelLeavesNoPatch()
{
    JobApplication app;
    app.launch();
    app.window->show();
    QVERIFY(QTest::qWaitForWindowExposed(app.window.get()));
    open(app);
    for (const char *well : { "colorToolbar", "colorBottomBar" })
        inSheet<ColourWell>(app, well)->setColour(Qt::red);
    click(app, "btnOK");
    const auto shown = [&](const char *view, int fromRight) {
        const auto *widget = app.element<QWidget>(view);
        const auto place =
            widget->mapTo(app.window.get(), QPoint(widget->width() - fromRight, widget->height() / 2));
        return app.window->screen()->grabWindow(app.window->winId()).toImage().pixelColor(place);
    };
    const auto views = { "view_Toolbar_Audio_BG", "view_Toolbar_Audio_Sub_BG", "customviewButtonBurn" };
    for (const char *view : views)
        QTRY_COMPARE(shown(view, 1), QColor(Qt::red));
    open(app);
    click(app, "btnOriginal");
    click(app, "btnCancel");
    QTest::qWait(300);

    auto *toolbar = app.element<QWidget>("view_Toolbar_Audio_BG");
    toolbar->update(QRect(toolbar->width() - 40, 0, 20, toolbar->height()));
    QTRY_COMPARE(shown("view_Toolbar_Audio_BG", 30), blueGrey);
    for (const char *view : views)
        QTRY_COMPARE(shown(view, 1), blueGrey);
}

void AppearanceTest::originalThenOk()
{
    JobApplication app;
    auto &controller = app.launch();
    controller.colorTableForeground = Qt::red;
    controller.b_List_Alternating_Rows = 0;
    open(app);
    click(app, "btnOriginal");
    click(app, "btnOK");
    QCOMPARE(controller.colorTableForeground, QColor(Qt::white));
    QCOMPARE(controller.b_List_Alternating_Rows, 1);
    QTRY_VERIFY(app.element<ListTableView>("tableviewDataFolders")->alternatingRowColors());
    for (const Role role : ColourScheme::roles)
        QCOMPARE(stored(ColourScheme::valueKey(role)), ColourScheme::toText(ColourScheme::shipped(role)));
}

void AppearanceTest::damagedColourStaysUnset()
{
    store(ColourScheme::markerKey(Role::Toolbar), u"Recorded"_s);
    store(ColourScheme::valueKey(Role::Toolbar), u"no colour at all"_s);
    store(ColourScheme::markerKey(Role::TableForeground), u"Recorded"_s);
    store(u"Quendral_Corvalis_b_List_Alternating_Rows"_s, u"0"_s);
    JobApplication app;
    auto &controller = app.launch();
    QVERIFY(!controller.colorToolbar.isValid());
    QVERIFY(!controller.colorTableForeground.isValid());
    QCOMPARE(controller.colorBottomBar, blueGrey);
    QVERIFY(app.add({ app.file(u"a.mp3"_s) })); // and everything still draws
    app.window->grab();
    QCOMPARE(stored(ColourScheme::valueKey(Role::Toolbar)), u"no colour at all"_s);
    open(app);
    QVERIFY(!inSheet<ColourWell>(app, "colorToolbar")->colour().isValid());
    controller.windowColors->grab();
    click(app, "btnOK");
    QVERIFY(!controller.colorToolbar.isValid());
    QCOMPARE(stored(ColourScheme::valueKey(Role::Toolbar)), u"no colour at all"_s);
}

void AppearanceTest::strangeAlternatingValue()
{
    store(u"Quendral_Corvalis_b_List_Alternating_Rows"_s, u"2"_s);
    JobApplication app;
    auto &controller = app.launch();
    QTest::qWait(300);
    const auto *table = app.element<ListTableView>("tableviewAudioFiles");
    QCOMPARE(table->palette().color(QPalette::Base), QColor(Qt::white));
    QVERIFY(!table->alternatingRowColors());
    QCOMPARE(controller.cellTextColour(), QColor(Qt::black));
    open(app);
    QVERIFY(!inSheet<QCheckBox>(app, "check_Alternating_Rows")->isChecked());
}

void AppearanceTest::wellAsksForAColour()
{
    JobApplication app;
    app.launch();
    open(app);
    auto *well = inSheet<ColourWell>(app, "colorToolbar");
    well->click();
    const QPointer<QColorDialog> dialog = well->findChild<QColorDialog *>(u"colourDialog"_s);
    QVERIFY(dialog);
    QCOMPARE(dialog->currentColor(), blueGrey);
    dialog->setCurrentColor(QColor(11, 22, 33));
    dialog->accept();
    QCOMPARE(well->colour(), QColor(11, 22, 33));
    QCOMPARE(app.controller->colorToolbar, blueGrey); // until OK
    QTRY_VERIFY(!dialog);
    well->click();
    well->findChild<QColorDialog *>(u"colourDialog"_s)->reject();
    QCOMPARE(well->colour(), QColor(11, 22, 33));
}

void AppearanceTest::openingTwiceReplacesTheSheet()
{
    JobApplication app;
    auto &controller = app.launch();
    open(app);
    const QPointer<Window_Colors> first = controller.windowColors;
    controller.OnToolsColors();
    QVERIFY(!first);
    QVERIFY(controller.windowColors && controller.windowColors->isVisible());
    controller.Cancel_Window_Colors();
    controller.Cancel_Window_Colors();
    QVERIFY(!controller.windowColors);
}

QTEST_MAIN(AppearanceTest)
#include "AppearanceTest.moc"
