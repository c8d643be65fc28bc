// The line below the gauge that tells what the disc in the drive really holds.
#include "support/Person.h"
#include "support/TestApplication.h"

#include <QLabel>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QByteArray disc = "               Type: CD-R                 Name: /dev/sr0\n"
                        "         Space Free:   79:57:69         blocks:   359844 / 736.96MB / 702.82MiB\n"
                        "        Writability: appendable, blank, overwritable\n";
constexpr const char *twoDrives = "   Vendor   Product           Rev   Bus       SupportLevel\n"
                                  "1  ACME     BURNER            1.00  SATA      Supported\n"
                                  "2  OTHER    WRITER            1.00  SATA      Supported\n";

} // namespace

class DiscRoomLineTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { m_app.reset(); }

    void nothingIsKnownAtTheStart();
    void followsTheListAndTheKind();
    void isForgotten_data();
    void isForgotten();
    void theGaugeStaysAsItIs();

private:
    /// What the line says; empty where there is none.
    QString line() const;

    std::unique_ptr<TestApplication> m_app;
};

void DiscRoomLineTest::init()
{
    emptyHome();
    m_app = std::make_unique<TestApplication>();
    m_app->drutil.print(u"list"_s, twoDrives);
    m_app->drutil.print(u"status"_s, disc);
    m_app->launch();
}

QString DiscRoomLineTest::line() const
{
    const auto *label = m_app->element<QLabel>("labelDiscRoom");
    return label->isVisible() ? label->text() : QString();
}

void DiscRoomLineTest::nothingIsKnownAtTheStart()
{
    QCOMPARE(line(), QString());
    QCOMPARE(m_app->drutil.runs(), QList<QStringList>({ { u"list"_s } }));
}

void DiscRoomLineTest::followsTheListAndTheKind()
{
    AppDelegate &controller = *m_app->controller;
    person::choose(m_app->window.get(), "menuitemDiscInfo");
    QCOMPARE(line(), u"The CD-R in the drive holds 1:19:57."_s);
    NodeMediaFile file;
    file.s_File_Path = u"/a.mp3"_s;
    file.i_Duration_in_Seconds = 4700;
    controller.arrayMediaFiles.append(file);
    controller.refreshTableAudioFiles();
    QCOMPARE(line(), u"The CD-R in the drive holds 1:19:57. The list fits."_s);
    person::click(m_app->window.get(), "btnMP3DVD");
    QCOMPARE(line(), u"In the drive is a CD-R; this list needs a DVD."_s);
    m_app->drutil.print(u"status"_s, "           Type: No Media Inserted\n");
    person::choose(m_app->window.get(), "menuitemDiscInfo");
    QCOMPARE(line(), QString());
}

void DiscRoomLineTest::isForgotten_data()
{
    QTest::addColumn<QByteArray>("item");
    for (const char *item : { "menuitemEject", "menuitemLoad", "submenuItemDriveSlot2" })
        QTest::newRow(item) << QByteArray(item);
}

void DiscRoomLineTest::isForgotten()
{
    QFETCH(QByteArray, item);
    person::choose(m_app->window.get(), "menuitemDiscInfo");
    QVERIFY(!line().isEmpty());
    person::choose(m_app->window.get(), item.constData());
    QCOMPARE(line(), QString());
}

void DiscRoomLineTest::theGaugeStaysAsItIs()
{
    const auto *gauge = m_app->element<QLabel>("label_BottomBar_SpaceOcuupied");
    const QString before = gauge->text();
    person::choose(m_app->window.get(), "menuitemDiscInfo");
    QCOMPARE(gauge->text(), before);
}

QTEST_MAIN(DiscRoomLineTest)
#include "DiscRoomLineTest.moc"
