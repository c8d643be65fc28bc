// The player as the application opens it: its alert, and what is kept from one file to the next.
#include "app/Window_Alert.h"
#include "compilation/ListTableView.h"
#include "support/TestApplication.h"
#include "ui/PreviewPlayer.h"

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QSlider>

using namespace Qt::StringLiterals;

class PreviewInApplicationTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { emptyHome(); }
    void keepsItsVolume();
    void strangeVolume_data();
    void strangeVolume();
    void alertLooksLikeTheOthers();

private:
    static QDialog *play(TestApplication &app, const QString &file);
};

/// Opens the player as the Play button does.
QDialog *PreviewInApplicationTest::play(TestApplication &app, const QString &file)
{
    NodeMediaFile node;
    node.s_File_URL = QUrl::fromLocalFile(file);
    app.controller->arrayMediaFiles = { node };
    app.controller->refreshTableAudioFiles();
    app.element<ListTableView>("tableviewAudioFiles")->selectRows({ 0 });
    app.controller->OnActionAudioPlay();
    return qobject_cast<QDialog *>(QApplication::activeModalWidget());
}

void PreviewInApplicationTest::keepsItsVolume()
{
    const auto file = QStringLiteral(MEDIA "/sound.mp3");
    {
        TestApplication app;
        app.launch();
        QPointer<QDialog> player = play(app, file);
        QVERIFY(player);
        QCOMPARE(player->property("volume").toFloat(), 1.0F);
        player->findChild<QSlider *>(u"volumeSlider"_s)->setValue(35);
        player->close();
        player = play(app, file);
        QVERIFY(player);
        QCOMPARE(player->property("volume").toFloat(), 0.35F);
        QCOMPARE(player->findChild<QSlider *>(u"volumeSlider"_s)->value(), 35);
        player->close();
        QTRY_VERIFY(!player);
    }
    TestApplication next;
    next.launch();
    QPointer<QDialog> player = play(next, file);
    QVERIFY(player);
    QCOMPARE(player->property("volume").toFloat(), 0.35F);
    player->close();
    QTRY_VERIFY(!player);
}

void PreviewInApplicationTest::strangeVolume_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<float>("volume");
    QTest::newRow("silent") << u"0"_s << 0.0F;
    QTest::newRow("too loud") << u"1000"_s << 1.0F;
    QTest::newRow("negative") << u"-3"_s << 0.0F;
    QTest::newRow("no number") << u"loud"_s << 1.0F;
    QTest::newRow("empty") << QString() << 1.0F;
}

void PreviewInApplicationTest::strangeVolume()
{
    QFETCH(QString, stored);
    QFETCH(float, volume);
    TestApplication app;
    app.launch();
    app.controller->preferences->setValue(QLatin1StringView(previewVolumeKey), stored);
    QPointer<QDialog> player = play(app, QStringLiteral(MEDIA "/sound.mp3"));
    QVERIFY(player);
    QCOMPARE(player->property("volume").toFloat(), volume);
    player->close();
    QTRY_VERIFY(!player);
}

void PreviewInApplicationTest::alertLooksLikeTheOthers()
{
    TestApplication app;
    app.launchWithDialogs();
    QPointer<QDialog> player = play(app, app.folder.filePath(u"missing.mp3"_s));
    QVERIFY(player);
    QTimer watch;
    int seen = 0;
    connect(&watch, &QTimer::timeout, this, [&] {
        auto *alert = qobject_cast<Window_Alert *>(QApplication::activeModalWidget());
        if (!alert)
            return;
        ++seen;
        for (const char *label : { "labelMessage", "labelInformative" })
            QCOMPARE(alert->findChild<QLabel *>(QLatin1StringView(label))->text(),
                u"Video could not be played."_s);
        const auto buttons = alert->findChildren<QPushButton *>();
        QCOMPARE(buttons.size(), 1);
        QCOMPARE(alert->parentWidget(), player);
        buttons.first()->click();
    });
    watch.start(50);
    QTRY_VERIFY(seen == 1 && QApplication::activeModalWidget() == player);
    player->close();
    QTRY_VERIFY(!player);
}

QTEST_MAIN(PreviewInApplicationTest)
#include "PreviewInApplicationTest.moc"
