#include "ui/PaintedViews.h"

#include "kit/Spinner.h"

#include <QApplication>
#include <QSet>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// How many different colours the picture of the widget shows.
int coloursOf(QWidget &widget)
{
    const auto image = widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            colours.insert(image.pixel(x, y));
    return int(colours.size());
}

QColor pixel(QWidget &widget, int x, int y)
{
    return widget.grab().toImage().pixelColor(x, y);
}

} // namespace

class PaintedViewsTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void fillsItsWholeBounds_data();
    void fillsItsWholeBounds();
    void asksAtEveryRedraw();
    void unsetColourShowsTheWindow();
    void readableText_data();
    void readableText();
    void readableTextHasAtLeastHalfTheRange();
    void spinnerTurnsOnlyWhileSeen();
    void spinnerDrawsInItsColour();
};

void PaintedViewsTest::fillsItsWholeBounds_data()
{
    QTest::addColumn<bool>("isToolbar");
    QTest::newRow("toolbar") << true;
    QTest::newRow("bottom bar") << false;
}

void PaintedViewsTest::fillsItsWholeBounds()
{
    QFETCH(bool, isToolbar);
    std::unique_ptr<PaintedView> view;
    if (isToolbar)
        view = std::make_unique<View_Toolbar_BG_Color>();
    else
        view = std::make_unique<View_Bottom_Bar_BG_Color>();
    view->setColourSource([] { return QColor(75, 105, 141); });
    view->resize(123, 45);
    QCOMPARE(coloursOf(*view), 1);
    QCOMPARE(pixel(*view, 122, 44), QColor(75, 105, 141));
}

void PaintedViewsTest::asksAtEveryRedraw()
{
    QColor colour = Qt::red;
    View_Toolbar_BG_Color view;
    view.setColourSource([&] { return colour; });
    view.resize(20, 20);
    QCOMPARE(pixel(view, 5, 5), QColor(Qt::red));
    colour = Qt::green;
    QCOMPARE(pixel(view, 5, 5), QColor(Qt::green));
}

void PaintedViewsTest::unsetColourShowsTheWindow()
{
    View_Bottom_Bar_BG_Color view;
    view.resize(20, 20);
    const auto window = view.palette().color(QPalette::Window);
    QCOMPARE(pixel(view, 5, 5), window);
    view.setColourSource([] { return QColor(); });
    QCOMPARE(pixel(view, 5, 5), window);
}

void PaintedViewsTest::readableText_data()
{
    QTest::addColumn<QColor>("background");
    QTest::addColumn<QColor>("text");
    const QColor black(Qt::black);
    const QColor white(Qt::white);
    QTest::newRow("shipped toolbar") << QColor(75, 105, 141) << white;
    QTest::newRow("blue") << QColor(Qt::blue) << white;
    QTest::newRow("red") << QColor(Qt::red) << black;
    QTest::newRow("yellow") << QColor(Qt::yellow) << black;
    QTest::newRow("black") << black << white;
    QTest::newRow("white") << white << black;
    // The two contrasts are equal at luminance 0.179, between these two greys.
    QTest::newRow("grey below the turn") << QColor(117, 117, 117) << white;
    QTest::newRow("grey above the turn") << QColor(118, 118, 118) << black;
    QTest::newRow("unset") << QColor() << QApplication::palette().color(QPalette::WindowText);
    QTest::newRow("transparent black is the window") << QColor(0, 0, 0, 0) << black;
}

void PaintedViewsTest::readableText()
{
    QFETCH(QColor, background);
    QFETCH(QColor, text);
    QCOMPARE(readableTextOn(background).rgb(), text.rgb());
}

void PaintedViewsTest::readableTextHasAtLeastHalfTheRange()
{
    // sqrt(1.05 * 0.05) is where both contrasts meet, 4.58 : 1; the better one is never below it.
    const auto linear = [](double value) {
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    const auto luminance = [&](const QColor &c) {
        return 0.2126 * linear(c.redF()) + 0.7152 * linear(c.greenF()) + 0.0722 * linear(c.blueF());
    };
    for (int i = 0; i < 4096; ++i) {
        const QColor background((i & 15) * 17, (i >> 4 & 15) * 17, (i >> 8) * 17);
        const double a = luminance(background) + 0.05;
        const double b = luminance(readableTextOn(background)) + 0.05;
        QVERIFY2(std::max(a, b) / std::min(a, b) >= 4.5, qPrintable(background.name()));
    }
}

void PaintedViewsTest::spinnerTurnsOnlyWhileSeen()
{
    Spinner spinner;
    spinner.resize(32, 32);
    QCOMPARE(coloursOf(spinner), 1);
    spinner.start();
    QVERIFY(spinner.isSpinning());
    const auto first = spinner.grab().toImage();
    QTest::qWait(250);
    QCOMPARE(spinner.grab().toImage(), first); // hidden: it stands still
    spinner.show();
    QTRY_VERIFY(spinner.grab().toImage() != first);
    spinner.stop();
    QCOMPARE(coloursOf(spinner), 1);
}

void PaintedViewsTest::spinnerDrawsInItsColour()
{
    Spinner spinner;
    spinner.resize(64, 64);
    spinner.setAutoFillBackground(true);
    auto palette = spinner.palette();
    palette.setColor(QPalette::Window, Qt::black);
    palette.setColor(QPalette::WindowText, Qt::green);
    spinner.setPalette(palette);
    spinner.start();
    const auto brightest = [&] {
        QColor best = Qt::black;
        const auto image = spinner.grab().toImage();
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixelColor(x, y).value() > best.value())
                    best = image.pixelColor(x, y);
        return best;
    };
    QCOMPARE(brightest(), QColor(Qt::green));
    spinner.setColour(Qt::red);
    QCOMPARE(brightest(), QColor(Qt::red));
}

QTEST_MAIN(PaintedViewsTest)
#include "PaintedViewsTest.moc"
