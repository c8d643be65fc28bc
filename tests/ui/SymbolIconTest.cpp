#include "kit/SymbolIcon.h"

#include <QDir>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr QRgb ink = qRgb(12, 200, 90);

QStringList allNames()
{
    symbolIcon(u"play"_s, Qt::black); // the resources are registered by the first use
    QStringList names;
    for (const QString &file : QDir(u":/icons"_s).entryList({ u"*.svg"_s }))
        names << file.chopped(4);
    return names;
}

QImage drawn(const QIcon &icon, int size, QIcon::Mode mode = QIcon::Normal)
{
    return icon.pixmap(QSize(size, size), 1.0, mode).toImage().convertToFormat(QImage::Format_ARGB32);
}

int mostOpaque(const QImage &image)
{
    int most = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            most = qMax(most, qAlpha(image.pixel(x, y)));
    }
    return most;
}

} // namespace

class SymbolIconTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void everySymbolDraws_data()
    {
        QTest::addColumn<QString>("name");
        const QStringList names = allNames();
        QVERIFY(names.size() > 20);
        for (const QString &name : names)
            QTest::newRow(qPrintable(name)) << name;
    }

    /// In the colour asked for and in no other, inside its square, at every size.
    void everySymbolDraws()
    {
        QFETCH(QString, name);
        if (name == u"corvalis")
            return;
        for (const int size : { 16, 24, 32, 33, 48 }) {
            const QImage image = drawn(symbolIcon(name, ink), size);
            QCOMPARE(image.size(), QSize(size, size));
            int inked = 0;
            for (int y = 0; y < size; ++y) {
                for (int x = 0; x < size; ++x) {
                    const QRgb pixel = image.pixel(x, y);
                    if (qAlpha(pixel) < 160)
                        continue;
                    ++inked;
                    QVERIFY(qAbs(qRed(pixel) - qRed(ink)) < 3 && qAbs(qGreen(pixel) - qGreen(ink)) < 3
                        && qAbs(qBlue(pixel) - qBlue(ink)) < 3);
                }
            }
            QVERIFY2(inked >= size / 2, "hardly anything is drawn");
            for (int i = 0; i < size; ++i) {
                QVERIFY2(qAlpha(image.pixel(i, 0)) < 128 && qAlpha(image.pixel(0, i)) < 128
                        && qAlpha(image.pixel(i, size - 1)) < 128 && qAlpha(image.pixel(size - 1, i)) < 128,
                    "it is cut off at the edge");
            }
        }
    }

    /// Symbols side by side look like one family only with one grid and one stroke.
    void oneStyle_data() { everySymbolDraws_data(); }
    void oneStyle()
    {
        QFETCH(QString, name);
        if (name == u"corvalis")
            return;
        QFile file(u":/icons/"_s + name + u".svg"_s);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(file.readAll());
        QVERIFY(text.contains(u"viewBox=\"0 0 24 24\""));
        static const QRegularExpression widths(u"stroke-width=\"([^\"]*)\""_s), colours(u"#[0-9a-fA-F]+"_s);
        for (const auto &found : widths.globalMatch(text))
            QCOMPARE(found.captured(1), u"1.75"_s);
        for (const auto &found : colours.globalMatch(text))
            QCOMPARE(found.captured(), u"#000"_s);
    }

    void disabledIsPaler()
    {
        const QIcon icon = symbolIcon(u"burn"_s, ink);
        QCOMPARE(mostOpaque(drawn(icon, 48)), 255);
        QVERIFY(qAbs(mostOpaque(drawn(icon, 48, QIcon::Disabled)) - 102) <= 1);
        QVERIFY(qAbs(mostOpaque(drawn(symbolIcon(u"burn"_s, QColor(0, 0, 0, 128)), 48)) - 128) <= 1);
    }

    /// On a finer screen it has more pixels, not larger ones.
    void sharpOnFineScreens()
    {
        const QIcon icon = symbolIcon(u"copy-disc"_s, ink);
        const QPixmap fine = icon.pixmap(QSize(24, 24), 2.0);
        QCOMPARE(fine.size(), QSize(48, 48));
        QCOMPARE(fine.devicePixelRatio(), 2.0);
        QCOMPARE(fine.toImage().convertToFormat(QImage::Format_ARGB32), [&] {
            QImage image = drawn(icon, 48);
            image.setDevicePixelRatio(2.0);
            return image;
        }());

        QImage canvas(36, 36, QImage::Format_ARGB32_Premultiplied);
        canvas.setDevicePixelRatio(1.5);
        canvas.fill(Qt::transparent);
        QPainter painter(&canvas);
        icon.paint(&painter, QRect(0, 0, 24, 24));
        painter.end();
        canvas.setDevicePixelRatio(1.0);
        QCOMPARE(canvas.convertToFormat(QImage::Format_ARGB32), drawn(icon, 36));
    }

    void keepsItsShapeInAnOblong()
    {
        const QImage wide = symbolIcon(u"success"_s, ink).pixmap(QSize(64, 24), 1.0).toImage();
        QCOMPARE(wide.size(), QSize(64, 24));
        QCOMPARE(qAlpha(wide.pixel(4, 12)), 0);
        QCOMPARE(qAlpha(wide.pixel(60, 12)), 0);
    }

    void coloursDoNotMix()
    {
        QVERIFY(drawn(symbolIcon(u"play"_s, Qt::red), 24) != drawn(symbolIcon(u"play"_s, Qt::blue), 24));
        QVERIFY(drawn(symbolIcon(u"play"_s, ink), 24) == drawn(symbolIcon(u"play"_s, ink), 24));
    }

    void unknownIsNull()
    {
        QVERIFY(symbolIcon(QString(), ink).isNull());
        QTest::ignoreMessage(QtWarningMsg, "There is no symbol \"no-such\".");
        QVERIFY(symbolIcon(u"no-such"_s, ink).isNull());
    }

    void applicationIconKeepsItsColours()
    {
        const QImage image = drawn(applicationIcon(), 128);
        QCOMPARE(mostOpaque(image), 255);
        QVERIFY(qGray(image.pixel(36, 60)) > 180); // the hub is light
        QVERIFY(qGray(image.pixel(47, 100)) < 90); // the disc is dark
    }
};

QTEST_MAIN(SymbolIconTest)
#include "SymbolIconTest.moc"
