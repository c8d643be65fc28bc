// Files as no camera makes them: no file may end the program, whatever the libraries below make of it.
#include "support/Share.h"
#include "ui/preview/PreviewWindow.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

class PreviewOddFilesTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void oddFilesDoNoHarm_data();
    void oddFilesDoNoHarm();
    void streamCutToAnyLength_data();
    void streamCutToAnyLength();
};

void PreviewOddFilesTest::oddFilesDoNoHarm_data()
{
    QTest::addColumn<QString>("path");
    const QDir odd(QStringLiteral(MEDIA "/odd"));
    const auto names = odd.entryList(QDir::Files);
    QVERIFY(names.size() > 80);
    for (qsizetype i = 0; i < names.size(); ++i) {
        if (support::isOfThisShare(i))
            QTest::newRow(qPrintable(names.at(i))) << odd.filePath(names.at(i));
    }
}

/// An assertion in a library ends the test program as it would end the application.
void PreviewOddFilesTest::oddFilesDoNoHarm()
{
    QFETCH(QString, path);
    PreviewWindow player(path);
    QTRY_VERIFY(!player.isSpinning());
    QVERIFY(!player.showsUnplayable());
    QVERIFY(!player.hasAlerted());
    QTRY_VERIFY(player.isReady());
    player.play()->click();
    for (int step = 0; step < 12; ++step) {
        player->resize(440 + 37 * step % 300, 240 + 53 * step % 200);
        QTest::qWait(20);
    }
    player.rewind()->click();
    for (int step = 0; step < 6; ++step) {
        player->resize(800 - 71 * step, 300 + 31 * step);
        QTest::qWait(20);
    }
    player.setCurrentTime(0);
    player.forward()->click();
    QTest::qWait(100);
    QVERIFY(!player.hasAlerted());
}

void PreviewOddFilesTest::streamCutToAnyLength_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("length");
    for (const char *name : { "film-h264.mpg", "film-h265.mpg" })
        for (const int length : { 1, 3, 4, 5, 6, 7, 40, 700, 800, 1000, 1001, 5000 })
            QTest::addRow("%d of %s", length, name) << QString::fromLatin1(name) << length;
}

void PreviewOddFilesTest::streamCutToAnyLength()
{
    QFETCH(QString, name);
    QFETCH(int, length);
    QFile whole(QStringLiteral(MEDIA "/") + name);
    QVERIFY(whole.open(QIODevice::ReadOnly));
    QTemporaryDir folder;
    QFile beginning(folder.filePath(u"beginning.mpg"_s));
    QVERIFY(beginning.open(QIODevice::WriteOnly) && beginning.write(whole.read(length)) == length);
    beginning.close();
    PreviewWindow player(beginning.fileName());
    QTRY_VERIFY(!player.isSpinning());
    QVERIFY(player.isReady() || player.showsUnplayable() || player.hasAlerted());
}

QTEST_MAIN(PreviewOddFilesTest)
#include "PreviewOddFilesTest.moc"
