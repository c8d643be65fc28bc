// No test program does anything in a person's HOME, however it is started.
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

class OwnHomeTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void programsEndAtOnce_data();
    void programsEndAtOnce();
    void anotherHomeIsNotEnough_data();
    void anotherHomeIsNotEnough();
    void wrapperLetsThemRun();

private:
    static QProcessEnvironment environmentOf(const QString &home);
};

QProcessEnvironment OwnHomeTest::environmentOf(const QString &home)
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"HOME"_s, home);
    environment.remove(u"CORVALIS_TEST_HOME"_s);
    return environment;
}

void OwnHomeTest::programsEndAtOnce_data()
{
    QTest::addColumn<QString>("program");
    const auto folder = QFileInfo(QCoreApplication::applicationFilePath()).path();
    // Not all need be built where a person builds some.
    for (const auto &name : QString(QStringLiteral(PROGRAMS)).split(u' '))
        if (QFile::exists(folder + u'/' + name))
            QTest::newRow(qPrintable(name)) << QString(folder + u'/' + name);
}

void OwnHomeTest::programsEndAtOnce()
{
    QFETCH(QString, program);
    QTemporaryDir home;
    QVERIFY(QDir(home.path()).mkpath(u"Documents/Corvalis"_s));
    const QStringList precious{ u"Documents/letter.txt"_s, u"Documents/Corvalis/image.iso"_s };
    for (const auto &name : precious)
        QVERIFY(QFile(home.filePath(name)).open(QIODevice::WriteOnly));
    QProcess process;
    process.setProcessEnvironment(environmentOf(home.path()));
    process.start(program, QStringList());
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 2);
    QCOMPARE(process.readAllStandardOutput(), QByteArray());
    const auto said = process.readAllStandardError();
    QVERIFY2(said.contains("has done nothing") && said.contains("tests/in-own-home NAME"), said.constData());
    for (const auto &name : precious)
        QVERIFY(QFile::exists(home.filePath(name)));
}

void OwnHomeTest::anotherHomeIsNotEnough_data()
{
    QTest::addColumn<QString>("sign");
    QTest::newRow("empty") << QString();
    QTest::newRow("of another run") << u"/tmp"_s;
}

void OwnHomeTest::anotherHomeIsNotEnough()
{
    QFETCH(QString, sign);
    QTemporaryDir home;
    auto environment = environmentOf(home.path());
    environment.insert(u"CORVALIS_TEST_HOME"_s, sign);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationFilePath(), { u"-functions"_s });
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 2);
}

void OwnHomeTest::wrapperLetsThemRun()
{
    QTemporaryDir home;
    QProcess process;
    process.setProcessEnvironment(environmentOf(home.path()));
    process.start(QStringLiteral(TESTS "/in-own-home"),
        { u"by-hand"_s, QCoreApplication::applicationFilePath(), u"-functions"_s });
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 0);
    QVERIFY(process.readAllStandardOutput().contains("wrapperLetsThemRun()"));
}

QTEST_GUILESS_MAIN(OwnHomeTest)
#include "OwnHomeTest.moc"
