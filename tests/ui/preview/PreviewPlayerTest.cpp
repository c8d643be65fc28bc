// How the player plays: rates, places, ends, controls.
#include "ui/preview/PreviewWindow.h"

#include <QAccessible>
#include <QApplication>
#include <QElapsedTimer>
#include <QScopeGuard>
#include <QScreen>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <cmath>

using namespace Qt::StringLiterals;

class PreviewPlayerTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { QVERIFY(copyMedia(m_folder.path())); }
    void rateMovesPositionAndPicture_data();
    void rateMovesPositionAndPicture();
    void transportSteps();
    void titleIsPauseOnlyAtNormalSpeed();
    void stopsAtBothEnds();
    void playAtTheEndRestarts();
    void currentTimeGoesToWholeSeconds_data();
    void currentTimeGoesToWholeSeconds();
    void sliderSeeks();
    void sliderIsDragged();
    void slidersFollow();
    void keys();
    void keysWhereverTheFocusIs();
    void keysGoFiveSecondsFromAnyPlace();
    void keysOfThePositionSlider();
    void everythingHasAName();
    void positionIsToldAsATime();
    void opensInTheShapeOfAFilm();
    void opensSmallForASound_data();
    void opensSmallForASound();
    void soundThatIsNamedAsAFilm();
    void filmThatIsNamedAsASound();
    void fitsOnTheScreen();
    void propertiesTellTheirChanges();
    void closingTakesEverythingAway();

private:
    QString file(const char *name) const { return m_folder.filePath(QLatin1StringView(name)); }
    static QString playAt(const PreviewWindow &player, int presses, double rate, bool isFilm);
    QTemporaryDir m_folder;
};

void PreviewPlayerTest::rateMovesPositionAndPicture_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("presses"); // of fast forward, negative of rewind; 0 plays
    QTest::addColumn<double>("rate");
    for (const char *name : { "film.mp4", "film.mpg", "film.ts", "sound.mp3" }) {
        const auto row = [name](int presses, double rate) {
            QTest::addRow("%s at %g", name, rate) << QString::fromLatin1(name) << presses << rate;
        };
        row(0, 1);
        row(1, 2);
        row(2, 4);
        row(3, 6);
        row(5, 10);
        row(-1, -2);
        row(-2, -4);
    }
}

/// Plays at a rate for about a second. Empty where position and picture moved as they should, else what they
/// did.
QString PreviewPlayerTest::playAt(const PreviewWindow &player, int presses, double rate, bool isFilm)
{
    player.setCurrentTime(rate < 0 ? 11 : 1);
    if (presses == 0)
        player.play()->click();
    for (int i = 0; i < std::abs(presses); ++i)
        (presses > 0 ? player.forward() : player.rewind())->click();
    if (player.rate() != rate)
        return u"the rate is %1"_s.arg(player.rate());

    const double begin = player.currentTime();
    if (!QTest::qWaitFor([&] { return std::abs(player.currentTime() - begin) > 0.05; }))
        return u"nothing moves"_s;
    QElapsedTimer clock;
    clock.start();
    const double first = player.currentTime();
    const double span = std::min(6.0, std::abs(rate) * 1.2);
    if (!QTest::qWaitFor(
            [&] { return std::abs(player.currentTime() - first) > span || player.rate() != rate; }, 10'000)
        || player.rate() != rate)
        return u"it stopped at %1"_s.arg(player.currentTime());
    const double passed = static_cast<double>(clock.nsecsElapsed()) / 1e9;
    const double measured = (player.currentTime() - first) / passed;
    if (measured / rate < 0.7 || measured / rate > 1.3)
        return u"the measured rate is %1"_s.arg(measured);
    const double shown = isFilm ? player.pictureTime() : player.currentTime();
    if ((shown - begin) * rate <= 0 || std::abs(shown - player.currentTime()) > 0.3 * std::abs(rate) + 0.3)
        return u"the picture of %1 is shown at %2"_s.arg(shown).arg(player.currentTime());
    return {};
}

void PreviewPlayerTest::rateMovesPositionAndPicture()
{
    QFETCH(QString, name);
    QFETCH(int, presses);
    QFETCH(double, rate);
    PreviewWindow player(m_folder.filePath(name));
    QTRY_VERIFY(player.isReady());
    // On a machine that is busy with other things a second may pass without a chance to decode: it may try
    // again.
    QString trouble;
    for (int attempt = 0; attempt < 6; ++attempt) {
        trouble = playAt(player, presses, rate, name.startsWith("film"_L1));
        if (trouble.isEmpty())
            return;
        if (player.rate() != 1)
            player.play()->click();
        player.play()->click();
        QTest::qWait(500);
    }
    QFAIL(qPrintable(trouble));
}

void PreviewPlayerTest::transportSteps()
{
    PreviewWindow player(file("film.mp4"));
    QTRY_VERIFY(player.isReady());
    for (const double rate : { 2.0, 4.0, 6.0, 8.0, 10.0 }) {
        player.forward()->click();
        QCOMPARE(player.rate(), rate);
    }
    for (const double rate : { -2.0, -4.0, -6.0 }) {
        player.rewind()->click();
        QCOMPARE(player.rate(), rate);
    }
    player.forward()->click();
    QCOMPARE(player.rate(), 2.0);
    player.play()->click();
    QCOMPARE(player.rate(), 1.0);
    player.rewind()->click();
    QCOMPARE(player.rate(), -2.0);
    player.play()->click();
    QCOMPARE(player.rate(), 1.0);
    player.play()->click();
    QCOMPARE(player.rate(), 0.0);
}

void PreviewPlayerTest::titleIsPauseOnlyAtNormalSpeed()
{
    PreviewWindow player(file("film.mp4"));
    QCOMPARE(player.play()->text(), u"Play"_s);
    QTRY_VERIFY(player.isReady());
    QCOMPARE(player.play()->text(), u"Play"_s);
    player.play()->click();
    QCOMPARE(player.play()->text(), u"Pause"_s);
    QCOMPARE(player.play()->accessibleName(), u"Pause"_s);
    player.forward()->click();
    QCOMPARE(player.play()->text(), u"Play"_s);
    QCOMPARE(player.find<QLabel>("rateLabel")->text(), u"2×"_s);
    player.rewind()->click();
    QCOMPARE(player.play()->text(), u"Play"_s);
    QCOMPARE(player.find<QLabel>("rateLabel")->text(), u"−2×"_s);
    player.play()->click();
    QCOMPARE(player.play()->text(), u"Pause"_s);
    QCOMPARE(player.find<QLabel>("rateLabel")->text(), QString());
    player.play()->click();
    QCOMPARE(player.play()->text(), u"Play"_s);
}

void PreviewPlayerTest::stopsAtBothEnds()
{
    PreviewWindow player(file("film.mp4"));
    QTRY_VERIFY(player.isReady());
    player.setCurrentTime(2);
    player.rewind()->click();
    QTRY_COMPARE(player.rate(), 0.0);
    QCOMPARE(player.currentTime(), 0.0);
    QTRY_VERIFY(std::abs(player.pictureTime()) < 0.2);

    for (int i = 0; i < 6; ++i) // 12, faster than the library goes by itself
        player.forward()->click();
    QTRY_COMPARE(player.rate(), 0.0);
    QCOMPARE(player.currentTime(), player.duration());
    player.forward()->click(); // there is nothing more
    QTRY_COMPARE(player.rate(), 0.0);
    QCOMPARE(player.currentTime(), player.duration());
    player.rewind()->click();
    QTRY_VERIFY(player.currentTime() < player.duration() - 1);
    QCOMPARE(player.rate(), -2.0);
}

void PreviewPlayerTest::playAtTheEndRestarts()
{
    PreviewWindow player(file("film.mp4"));
    QTRY_VERIFY(player.isReady());
    for (int round = 0; round < 2; ++round) {
        player.setCurrentTime(11);
        player.play()->click();
        QCOMPARE(player.rate(), 1.0);
        QTRY_COMPARE(player.rate(), 0.0);
        QCOMPARE(player.play()->text(), u"Play"_s);
        QCOMPARE(player.currentTime(), player.duration());
        player.play()->click();
        QCOMPARE(player.rate(), 1.0);
        QVERIFY(player.currentTime() < 1);
        QTRY_VERIFY(player.currentTime() > 0.5);
        QVERIFY(player.currentTime() < 11);
        QCOMPARE(player.rate(), 1.0);
        player.play()->click();
    }
}

void PreviewPlayerTest::currentTimeGoesToWholeSeconds_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : { "film.mp4", "film.mpg", "film.ts", "film.avi", "film.wmv", "film.flv" })
        QTest::newRow(name) << QString::fromLatin1(name);
}

void PreviewPlayerTest::currentTimeGoesToWholeSeconds()
{
    QFETCH(QString, name);
    PreviewWindow player(m_folder.filePath(name));
    QTRY_VERIFY(player.isReady());
    for (const auto &[asked, expected] :
        { std::pair{ 7.9, 7.0 }, { 3.0, 3.0 }, { 10.5, 10.0 }, { 1.0, 1.0 } }) {
        player.setCurrentTime(asked);
        QCOMPARE(player.currentTime(), expected);
        QTRY_VERIFY2(std::abs(player.pictureTime() - expected) < 0.1,
            qPrintable(u"%1 shows %2"_s.arg(expected).arg(player.pictureTime())));
        QCOMPARE(player.currentTime(), expected);
    }
    player.setCurrentTime(-5);
    QCOMPARE(player.currentTime(), 0.0);
    player.setCurrentTime(1e9);
    QCOMPARE(player.currentTime(), player.duration());
    player.setCurrentTime(std::nan(""));
    QCOMPARE(player.currentTime(), player.duration());
}

void PreviewPlayerTest::sliderSeeks()
{
    PreviewWindow player(file("film.mp4"));
    QTRY_VERIFY(player.isReady());
    auto *slider = player.find<QAbstractSlider>("timeSlider");
    QCOMPARE(slider->maximum() / 1000.0, player.duration());
    QTest::mouseClick(slider, Qt::LeftButton, {}, QPoint(slider->width() / 2, slider->height() / 2));
    QVERIFY(std::abs(player.currentTime() - 6) <= 1);
    QCOMPARE(player.currentTime(), std::trunc(player.currentTime()));
    const double target = player.currentTime();
    QTRY_VERIFY(std::abs(player.pictureTime() - target) < 0.1);
    QTest::mouseClick(slider, Qt::LeftButton, {}, QPoint(slider->width() - 1, slider->height() / 2));
    QVERIFY(player.currentTime() >= 11);
    QTest::mouseClick(slider, Qt::LeftButton, {}, QPoint(1, slider->height() / 2));
    QCOMPARE(player.currentTime(), 0.0);
}

void PreviewPlayerTest::sliderIsDragged()
{
    PreviewWindow player(file("film.mp4"));
    QTRY_VERIFY(player.isReady());
    auto *slider = player.find<QAbstractSlider>("timeSlider");
    const auto at = [slider](int twelfths) {
        return QPoint(slider->width() * twelfths / 12, slider->height() / 2);
    };
    player.play()->click();
    QTest::mousePress(slider, Qt::LeftButton, {}, at(3));
    for (int place = 4; place <= 9; ++place) {
        QTest::mouseMove(slider, at(place));
        QVERIFY2(std::abs(slider->property("seconds").toDouble() - place) < 1,
            qPrintable(u"%1 at %2"_s.arg(slider->property("seconds").toDouble()).arg(place)));
    }
    const double held = slider->property("seconds").toDouble();
    QTest::qWait(300); // the film does not take the handle out of the hand
    QCOMPARE(slider->property("seconds").toDouble(), held);
    QTest::mouseRelease(slider, Qt::LeftButton, {}, at(9));
    QTRY_VERIFY(player.currentTime() > held);
    QCOMPARE(player.rate(), 1.0);
    QTRY_VERIFY(std::abs(player.pictureTime() - player.currentTime()) < 0.5);
}

void PreviewPlayerTest::slidersFollow()
{
    PreviewWindow player(file("film.mp4"));
    QTRY_VERIFY(player.isReady());
    auto *slider = player.find<QAbstractSlider>("timeSlider");
    player.play()->click();
    QTRY_VERIFY(slider->property("seconds").toDouble() > 1);
    QCOMPARE(player.rate(), 1.0);
    QTRY_COMPARE(player.find<QLabel>("elapsedLabel")->text(), u"0:02"_s);
    QCOMPARE(player.find<QLabel>("durationLabel")->text(), u"0:12"_s);

    auto *volume = player.find<QAbstractSlider>("volumeSlider");
    QCOMPARE(volume->value(), 100);
    player->setProperty("volume", 0.25F);
    QCOMPARE(volume->value(), 25);
    volume->setValue(60);
    QCOMPARE(player->property("volume").toFloat(), 0.6F);
    player->setProperty("volume", 7.0F);
    QCOMPARE(player->property("volume").toFloat(), 1.0F);
    player->setProperty("volume", -1.0F);
    QCOMPARE(player->property("volume").toFloat(), 0.0F);
}

void PreviewPlayerTest::keys()
{
    PreviewWindow player(file("film.mp4"));
    QTRY_VERIFY(player.isReady());
    QTest::keyClick(player.window(), Qt::Key_Space);
    QCOMPARE(player.rate(), 1.0);
    QTest::keyClick(player.window(), Qt::Key_Space);
    QCOMPARE(player.rate(), 0.0);
    player.setCurrentTime(0);
    QTest::keyClick(player.window(), Qt::Key_Right);
    QCOMPARE(player.currentTime(), 5.0);
    QTest::keyClick(player.window(), Qt::Key_Right);
    QTest::keyClick(player.window(), Qt::Key_Right);
    QCOMPARE(player.currentTime(), std::trunc(player.duration()));
    QTest::keyClick(player.window(), Qt::Key_Left);
    QCOMPARE(player.currentTime(), std::trunc(player.duration()) - 5);
    QTest::keyClick(player.window(), Qt::Key_Down);
    QCOMPARE(player->property("volume").toFloat(), 0.95F);
    QTest::keyClick(player.window(), Qt::Key_Escape);
    QVERIFY(!player->isVisible());
    QCOMPARE(player->result(), 1);
}

void PreviewPlayerTest::keysWhereverTheFocusIs()
{
    PreviewWindow player(file("film.mp4"));
    QVERIFY(QTest::qWaitForWindowActive(player.window()));
    QTRY_VERIFY(player.isReady());
    const auto press = [](Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); };
    const auto volume = [&] { return player->property("volume").toFloat(); };
    press(Qt::Key_Right);
    QCOMPARE(player.currentTime(), 5.0);
    press(Qt::Key_Down);
    QCOMPARE(volume(), 0.95F);
    press(Qt::Key_Space);
    QCOMPARE(player.rate(), 1.0);
    press(Qt::Key_Space);
    QCOMPARE(player.rate(), 0.0);

    for (auto *button : { player.play(), player.forward(), player.rewind() }) {
        button->setFocus(Qt::TabFocusReason);
        QCOMPARE(QApplication::focusWidget(), button);
        player.setCurrentTime(6);
        press(Qt::Key_Left);
        QCOMPARE(player.currentTime(), 1.0);
        press(Qt::Key_Right);
        QCOMPARE(player.currentTime(), 6.0);
        const auto before = volume();
        press(Qt::Key_Up);
        QVERIFY(volume() > before);
        press(Qt::Key_Down);
        QCOMPARE(volume(), before);
        QCOMPARE(QApplication::focusWidget(), button);
    }
    // A button that has the focus is what Space presses.
    press(Qt::Key_Space);
    QCOMPARE(player.rate(), -2.0);

    for (auto *slider :
        { player.find<QAbstractSlider>("timeSlider"), player.find<QAbstractSlider>("volumeSlider") }) {
        slider->setFocus(Qt::TabFocusReason);
        press(Qt::Key_Space);
        QCOMPARE(player.rate(), 1.0);
        press(Qt::Key_Space);
        QCOMPARE(player.rate(), 0.0);
    }
    const double place = player.currentTime();
    const auto before = volume();
    press(Qt::Key_Left); // here it is the volume's
    QVERIFY(volume() < before);
    QCOMPARE(player.currentTime(), place);
    press(Qt::Key_Escape);
    QVERIFY(!player->isVisible());
}

void PreviewPlayerTest::keysGoFiveSecondsFromAnyPlace()
{
    PreviewWindow player(file("film.mp4"));
    QTRY_VERIFY(player.isReady());
    player.play()->click();
    QTRY_VERIFY(player.currentTime() > 0.55 && player.currentTime() < 0.95);
    player.play()->click();
    const double before = player.currentTime();
    QTest::keyClick(player.window(), Qt::Key_Right);
    QCOMPARE(player.currentTime(), before + 5);
    QTest::keyClick(player.window(), Qt::Key_Right);
    QCOMPARE(player.currentTime(), before + 10);
    QTest::keyClick(player.window(), Qt::Key_Left);
    QCOMPARE(player.currentTime(), before + 5);
    QTRY_VERIFY(std::abs(player.pictureTime() - player.currentTime()) < 0.1);
}

void PreviewPlayerTest::keysOfThePositionSlider()
{
    PreviewWindow player(file("film.mp4"));
    QTRY_VERIFY(player.isReady());
    auto *slider = player.find<QAbstractSlider>("timeSlider");
    slider->setFocus(Qt::TabFocusReason);
    QTest::keyClick(slider, Qt::Key_Right);
    QCOMPARE(player.currentTime(), 5.0);
    QTest::keyClick(slider, Qt::Key_Right);
    QTest::keyClick(slider, Qt::Key_Left);
    QCOMPARE(player.currentTime(), 5.0);
    QTest::keyClick(slider, Qt::Key_Down);
    QCOMPARE(player->property("volume").toFloat(), 0.95F);
    QTest::keyClick(slider, Qt::Key_Up);
    QCOMPARE(player->property("volume").toFloat(), 1.0F);
    QCOMPARE(player.currentTime(), 5.0);
    QTest::keyClick(slider, Qt::Key_End);
    QCOMPARE(player.currentTime(), std::trunc(player.duration()));
    QTest::keyClick(slider, Qt::Key_Home);
    QCOMPARE(player.currentTime(), 0.0);

    auto *volume = player.find<QAbstractSlider>("volumeSlider");
    QTest::keyClick(volume, Qt::Key_Down);
    QCOMPARE(player->property("volume").toFloat(), 0.95F);
}

void PreviewPlayerTest::everythingHasAName()
{
    PreviewWindow player(file("film.mp4"));
    QTRY_VERIFY(player.isReady());
    QList<QWidget *> controls;
    for (auto *button : player->findChildren<QAbstractButton *>())
        controls += button;
    for (auto *slider : player->findChildren<QAbstractSlider *>())
        controls += slider;
    QCOMPARE(controls.size(), 5);
    for (auto *control : controls) {
        QVERIFY2(!control->toolTip().isEmpty(), qPrintable(control->objectName()));
        auto *interface = QAccessible::queryAccessibleInterface(control);
        QVERIFY2(!interface->text(QAccessible::Name).isEmpty(), qPrintable(control->objectName()));
    }
    // A label with a name of its own would not be read out with what it says.
    player.setCurrentTime(7);
    player.forward()->click();
    for (const auto &[label, text] : { std::pair{ "elapsedLabel", u"0:07"_s }, { "durationLabel", u"0:12"_s },
             { "rateLabel", u"2×"_s } }) {
        auto *interface = QAccessible::queryAccessibleInterface(player.find<QLabel>(label));
        QCOMPARE(interface->text(QAccessible::Name), text);
        QVERIFY(!interface->text(QAccessible::Description).isEmpty());
    }
    auto *picture = QAccessible::queryAccessibleInterface(player.view());
    QVERIFY(!picture->text(QAccessible::Name).isEmpty());
}

void PreviewPlayerTest::opensInTheShapeOfAFilm()
{
    PreviewWindow player(file("film.mp4"));
    QCOMPARE(player.view()->size(), QSize(720, 405));
    player->resize(500, 500);
    QTRY_COMPARE(player.view()->width(), 500);
    QVERIFY(player.view()->height() > 400);
}

void PreviewPlayerTest::positionIsToldAsATime()
{
    PreviewWindow player(file("film.mp4"));
    QTRY_VERIFY(player.isReady());
    auto *slider = player.find<QAbstractSlider>("timeSlider");
    auto *interface = QAccessible::queryAccessibleInterface(slider);
    QCOMPARE(interface->role(), QAccessible::Slider);
    QCOMPARE(interface->text(QAccessible::Name), u"Position"_s);
    player.setCurrentTime(7);
    QCOMPARE(interface->text(QAccessible::Value), u"0:07 of 0:12"_s);
    QCOMPARE(interface->text(QAccessible::Description), u"0:07 of 0:12"_s);
    auto *value = interface->valueInterface();
    QVERIFY(value);
    QCOMPARE(value->currentValue().toDouble(), 7.0);
    QCOMPARE(value->maximumValue().toDouble(), player.duration());
    value->setCurrentValue(3.0);
    QCOMPARE(player.currentTime(), 3.0);
}

void PreviewPlayerTest::opensSmallForASound_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : { "sound.mp3", "sound.wav", "sound.wma", "sound.m4a", "sound.mp2", "sound.mpga" })
        QTest::newRow(name) << QString::fromLatin1(name);
}

/// No black, from the first moment on, and everything that is said can be read.
void PreviewPlayerTest::opensSmallForASound()
{
    QFETCH(QString, name);
    PreviewWindow player(m_folder.filePath(name));
    const QSize first = player->size();
    QVERIFY2(first.height() < 200, qPrintable(QString::number(first.height())));
    QTRY_VERIFY(player.isReady() && player.showsNoVideo());
    QCOMPARE(player->size(), first);
    const auto picture = player.view()->grab().toImage();
    QCOMPARE(picture.pixelColor(2, 2), player->palette().color(QPalette::Window));
    auto *label = player.find<QLabel>("noVideoLabel");
    QCOMPARE(label->palette().color(QPalette::WindowText), player->palette().color(QPalette::WindowText));
    QVERIFY(label->height() >= label->heightForWidth(label->width()));
}

void PreviewPlayerTest::soundThatIsNamedAsAFilm()
{
    QVERIFY(QFile::copy(file("sound.m4a"), file("really-sound.mp4")));
    PreviewWindow player(file("really-sound.mp4"));
    QTRY_VERIFY(player.isReady() && player.showsNoVideo());
    QVERIFY(player->height() < 200);
}

void PreviewPlayerTest::filmThatIsNamedAsASound()
{
    QVERIFY(QFile::copy(file("film.mp4"), file("really-film.m4a")));
    PreviewWindow player(file("really-film.m4a"));
    QTRY_VERIFY(player.isReady() && !player.isSpinning());
    QCOMPARE(player.view()->size(), QSize(720, 405));
    QTRY_VERIFY(std::abs(player.pictureTime()) < 0.2);
}

/// The screen of the platform without a screen is 800 by 800; a person's font makes the controls larger than
/// that.
void PreviewPlayerTest::fitsOnTheScreen()
{
    const auto font = QApplication::font();
    const auto restore = qScopeGuard([font] { QApplication::setFont(font); });
    auto huge = font;
    huge.setPointSize(130);
    QApplication::setFont(huge);
    PreviewWindow player(file("film.mp4"));
    QTRY_VERIFY(player.isReady());
    const auto room = player->screen()->availableGeometry();
    QVERIFY(player->sizeHint().height() > room.height());
    QVERIFY2(player->height() <= room.height(), qPrintable(QString::number(player->height())));
}

void PreviewPlayerTest::propertiesTellTheirChanges()
{
    PreviewWindow player(file("film.mp4"));
    QSignalSpy duration(player.window(), SIGNAL(durationChanged(double)));
    QSignalSpy time(player.window(), SIGNAL(currentTimeChanged(double)));
    QSignalSpy volume(player.window(), SIGNAL(volumeChanged(float)));
    QCOMPARE(player.duration(), 0.0);
    QTRY_VERIFY(player.isReady());
    QVERIFY(!duration.isEmpty());
    QVERIFY(std::abs(player.duration() - 12) < 0.1);
    time.clear();
    player.play()->click();
    QTRY_VERIFY(time.size() > 5);
    player->setProperty("volume", 0.5F);
    player->setProperty("volume", 0.5F);
    QCOMPARE(volume.size(), 1);
    QCOMPARE(player->property("volume").toFloat(), 0.5F);
}

void PreviewPlayerTest::closingTakesEverythingAway()
{
    PreviewWindow player(file("film.mp4"));
    QTRY_VERIFY(player.isReady());
    player.play()->click();
    player->close();
    QCOMPARE(player->result(), 1);
    QCOMPARE(player.duration(), 0.0);
    QCOMPARE(player.currentTime(), 0.0);
    QVERIFY(!player.isReady());
    player.setCurrentTime(3);
    player->setProperty("volume", 0.5F);
    QTest::keyClick(player.window(), Qt::Key_Space);
    QTest::qWait(250);
    QCOMPARE(player.rate(), 0.0);
}

QTEST_MAIN(PreviewPlayerTest)
#include "PreviewPlayerTest.moc"
