// The buttons and labels of the bars, where they have less room than they want.
#include "app/BarButton.h"

#include <QImage>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// Whether nothing is drawn along a line of the picture: all its points have one colour.
bool isBlank(const QImage &picture, QPoint from, QPoint to)
{
    const QPoint step(from.x() < to.x() ? 1 : 0, from.y() < to.y() ? 1 : 0);
    for (QPoint at = from; at != to; at += step) {
        if (picture.pixelColor(at) != picture.pixelColor(from))
            return false;
    }
    return true;
}

/// What is drawn keeps off the edges, so nothing that is drawn has been cut by them.
bool keepsOffTheEdges(QWidget *widget)
{
    const QImage picture = widget->grab().toImage();
    const int right = picture.width() - 1, bottom = picture.height() - 1;
    // Within the frame that a button draws, and beside its round corners.
    constexpr int frame = 3, corner = 10;
    return isBlank(picture, { frame, corner }, { frame, bottom - corner })
        && isBlank(picture, { right - frame, corner }, { right - frame, bottom - corner })
        && isBlank(picture, { corner, frame }, { right - corner, frame })
        && isBlank(picture, { corner, bottom - frame }, { right - corner, bottom - frame });
}

/// Whether something is drawn at all in this part of the widget.
bool isInked(QWidget *widget, const QRect &part)
{
    const QImage picture = widget->grab().toImage();
    for (int y = part.top(); y <= part.bottom(); ++y) {
        if (!isBlank(picture, { part.left(), y }, { part.right(), y }))
            return true;
    }
    return false;
}

} // namespace

class BarButtonTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void nothingIsCut_data();
    void nothingIsCut();
    void cardKeepsItsHeading();
    void cardTellsAllWhereItHasRoom();
    void labelIsNotCut();
    void symbolStandsWhereReadingBegins();
};

void BarButtonTest::nothingIsCut_data()
{
    QTest::addColumn<BarButton::Look>("look");
    QTest::addColumn<QSize>("size");
    const auto row = [](const char *name, BarButton::Look look, int width, int height) {
        QTest::newRow(name) << look << QSize(width, height);
    };
    row("tool", BarButton::Look::Tool, 110, 70);
    row("narrow tool", BarButton::Look::Tool, 60, 70);
    row("mode", BarButton::Look::Mode, 80, 44);
    row("burn button", BarButton::Look::Prominent, 140, 50);
    row("card", BarButton::Look::Card, 320, 160);
    row("low card", BarButton::Look::Card, 320, 90);
    row("narrow card", BarButton::Look::Card, 220, 90);
    row("card of one line", BarButton::Look::Card, 320, 50);
}

void BarButtonTest::nothingIsCut()
{
    QFETCH(BarButton::Look, look);
    QFETCH(QSize, size);
    for (const double points : { 9.0, 14.0, 18.0 }) {
        BarButton button;
        QFont font = button.font();
        font.setPointSizeF(points);
        button.setFont(font);
        button.setLook(look);
        button.setText(u"Make Quite a Long Heading"_s);
        button.setDescription(
            u"What this does takes several lines to tell, and the last of them says most."_s);
        button.setFixedSize(size);
        QVERIFY2(keepsOffTheEdges(&button), qPrintable(QString::number(points)));
        QVERIFY(isInked(&button, button.rect().adjusted(8, 8, -8, -8)));
    }
}

void BarButtonTest::cardKeepsItsHeading()
{
    BarButton with, without;
    for (BarButton *card : { &with, &without }) {
        card->setLook(BarButton::Look::Card);
        card->setText(u"Heading"_s);
        card->setFixedSize(320, QFontMetrics(card->font()).height() * 2);
    }
    with.setDescription(u"What this does takes several lines to tell. "_s.repeated(9));
    // Without room for a line of the sentence, the heading alone is drawn.
    QCOMPARE(with.grab().toImage(), without.grab().toImage());
}

void BarButtonTest::cardTellsAllWhereItHasRoom()
{
    BarButton card;
    card.setLook(BarButton::Look::Card);
    card.setText(u"Heading"_s);
    card.setFixedSize(320, 160);
    card.setDescription(u"What this does takes several lines to tell, and the last says"_s);
    const QImage before = card.grab().toImage();
    card.setDescription(card.description() + u" most"_s);
    QVERIFY(card.grab().toImage() != before);
}

void BarButtonTest::labelIsNotCut()
{
    BarLabel label(u"Space occupied: 18.6 MB of 667.6 MB (2 %)"_s);
    label.setFixedSize(label.fontMetrics().horizontalAdvance(label.text()) * 2 / 3, 30);
    const QImage picture = label.grab().toImage();
    const int right = picture.width() - 1;
    QVERIFY(isBlank(picture, { right, 0 }, { right, picture.height() - 1 }));
    QVERIFY(isInked(&label, label.rect()));
}

void BarButtonTest::symbolStandsWhereReadingBegins()
{
    BarButton card, none;
    for (BarButton *button : { &card, &none }) {
        button->setLook(BarButton::Look::Card);
        button->setFixedSize(320, 80);
    }
    card.setSymbol(u"burn"_s);
    const QImage blank = none.grab().toImage();
    const auto isDrawn = [&](int from) {
        const QRect half(from, 0, 160, 80);
        return card.grab().toImage().copy(half) != blank.copy(half);
    };
    card.setLayoutDirection(Qt::LeftToRight);
    QVERIFY(isDrawn(0) && !isDrawn(160));
    card.setLayoutDirection(Qt::RightToLeft);
    QVERIFY(!isDrawn(0) && isDrawn(160));
}

QTEST_MAIN(BarButtonTest)
#include "BarButtonTest.moc"
