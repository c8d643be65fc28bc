// hdiutil burn on virtual recorders.
#include "../drutil/Drutil.h"
#include "../image/Trees.h"

#include <csignal>
#include <sys/file.h>

using namespace Qt::StringLiterals;

class BurnTest : public QObject {
    Q_OBJECT

    static QString hdiutil() { return qEnvironmentVariable("CORVALIS_BIN") + u"/hdiutil"_s; }

    Ran burn(const std::string &image)
    {
        return runProgram(hdiutil(), { u"burn"_s, QString::fromStdString(image) }, m_drutil->environment());
    }

    std::string disc(int number = 1) const { return m_drutil->recorder(number).toStdString() + "/disc.iso"; }

private Q_SLOTS:
    void init() { m_drutil = std::make_unique<Drutil>(); }

    void images_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("size");
        QTest::newRow("iso") << u"disc.iso"_s << 2048 * 500;
        QTest::newRow("img") << u"disc.img"_s << 2048 * 500;
        QTest::newRow("raw dmg") << u"disc.dmg"_s << 2048 * 500;
        QTest::newRow("not whole blocks") << u"odd name \"'.iso"_s << 2048 * 500 + 1;
        QTest::newRow("one byte") << u"tiny.iso"_s << 1;
    }

    void images()
    {
        QFETCH(QString, name);
        QFETCH(int, size);
        Scratch scratch;
        std::string content(std::size_t(size), '\0');
        for (int at = 0; at < size; ++at)
            content[std::size_t(at)] = char(at * 31 + at / 2048 + 1);
        const std::string image = scratch.path(name.toStdString());
        QVERIFY(makeFile(image, content));
        QVERIFY(m_drutil->insert(u"dvd-r"_s));
        const Ran ran = burn(image);
        QCOMPARE(ran.err, QString());
        QCOMPARE(ran.exit, 0);
        content.resize((content.size() + 2047) / 2048 * 2048);
        const std::string written = contentOf(disc());
        QVERIFY(written.size() >= content.size());
        QVERIFY(written.compare(0, content.size(), content) == 0);
        QCOMPARE(written.find_first_not_of('\0', content.size()), std::string::npos);
    }

    void imageOfAFolder()
    {
        Scratch scratch;
        QVERIFY(makePlainTree(scratch.path("t")));
        const Ran made = runProgram(hdiutil(),
            { u"makehybrid"_s, u"-o"_s, QString::fromStdString(scratch.path("i.iso")),
                QString::fromStdString(scratch.path("t")), u"-iso"_s, u"-joliet"_s });
        QCOMPARE(made.exit, 0);
        QVERIFY(m_drutil->insert(u"cd-rw"_s));
        QCOMPARE(burn(scratch.path("i.iso")).exit, 0);
        QCOMPARE(burn(scratch.path("i.iso")).exit, 0); // a rewritable disc takes it again
        QVERIFY(extractRockRidge(disc(), scratch.path("out")));
        QCOMPARE(difference(list(scratch.path("t"), modesAndTimes), list(scratch.path("out"), modesAndTimes)),
            QByteArray());
    }

    void refused_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("words");
        QByteArray compressed(8192, 'z');
        compressed += QByteArray("koly") + QByteArray(508, '\xff');
        QTest::newRow("compressed dmg") << compressed << u"is a compressed disk image; convert it first"_s;
        QTest::newRow("encrypted dmg")
            << QByteArray("encrcdsa") + QByteArray(8192, 'x') << u"is an encrypted disk image"_s;
        QTest::newRow("empty") << QByteArray() << u"is empty"_s;
    }

    void refused()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, words);
        Scratch scratch;
        QVERIFY(makeFile(scratch.path("image.dmg"), content.toStdString()));
        QVERIFY(m_drutil->insert(u"cd-r"_s));
        const Ran ran = burn(scratch.path("image.dmg"));
        QCOMPARE(ran.exit, 1);
        QVERIFY2(ran.err.contains(words) && ran.err.contains(u"image.dmg"), qPrintable(ran.err));
        QVERIFY(m_drutil->fact(u"Writability:"_s).contains(u"blank"));
    }

    void tooLarge()
    {
        Scratch scratch;
        QVERIFY(sparseFile(QString::fromStdString(scratch.path("large.iso")), 800LL * 1000 * 1000));
        QVERIFY(m_drutil->insert(u"cd-r"_s));
        const Ran ran = burn(scratch.path("large.iso"));
        QCOMPARE(ran.exit, 1);
        QVERIFY2(ran.err.contains(u"390625") && ran.err.contains(u"359844"), qPrintable(ran.err));
        QVERIFY(m_drutil->fact(u"Writability:"_s).contains(u"blank"));
    }

    void noDisc()
    {
        Scratch scratch;
        QVERIFY(makeFile(scratch.path("i.iso"), std::string(4096, 'x')));
        QVERIFY(m_drutil->insert(u"none"_s));
        const Ran ran = burn(scratch.path("i.iso"));
        QCOMPARE(ran.exit, 3);
        QVERIFY2(!ran.err.isEmpty(), qPrintable(ran.err));
        m_drutil->environment().insert(u"CORVALIS_RECORDERS"_s, m_drutil->path(u"no recorder"_s));
        QCOMPARE(burn(scratch.path("i.iso")).exit, 3);
    }

    void writtenDiscIsPassedOver()
    {
        Scratch scratch;
        QVERIFY(makeFile(scratch.path("i.iso"), std::string(4096, 'x')));
        QVERIFY(m_drutil->insert(u"cd-r"_s));
        QCOMPARE(burn(scratch.path("i.iso")).exit, 0);
        QCOMPARE(burn(scratch.path("i.iso")).exit, 3);
        QCOMPARE(contentOf(disc()).substr(0, 4096), std::string(4096, 'x'));
    }

    void theDriveIsChosen_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");
        QTest::addColumn<QString>("preferred");
        QTest::addColumn<int>("drive");
        const auto row = [](const char *title, const char *first, const char *second, const char *preferred,
                             int drive) {
            QTest::newRow(title) << QString::fromLatin1(first) << QString::fromLatin1(second)
                                 << QString::fromLatin1(preferred) << drive;
        };
        row("blank before erasable", "cd-rw written", "cd-r", "", 2);
        row("blank before preferred erasable", "cd-rw written", "cd-r", "1", 2);
        row("blank before overwritable", "dvd+rw written", "dvd+rw", "1", 2);
        row("preferred of two blanks", "cd-r", "cd-r", "2", 2);
        row("first of two blanks", "cd-r", "cd-rw", "", 1);
        row("preferred of two erasable", "cd-rw written", "bd-re written", "2", 2);
        row("preferred is closed", "dvd+rw written", "cd-r written", "2", 1);
        row("preferred is empty", "cd-rw written", "none", "2", 1);
        row("preferred is none of them", "cd-r", "cd-r", "9", 1);
        row("preferred is no number", "cd-r", "cd-r", "/dev/sr0", 1);
        row("none", "cd-r written", "none", "1", 0);
    }

    void theDriveIsChosen()
    {
        QFETCH(QString, first);
        QFETCH(QString, second);
        QFETCH(QString, preferred);
        QFETCH(int, drive);
        Scratch scratch;
        QVERIFY(makeFile(scratch.path("t/file"), "data")
            && makeFile(scratch.path("i.iso"), std::string(4096, 'x')));
        QVERIFY(makeFile(m_drutil->recorder(2).toStdString() + "/recorder.ini", "kind=none\n"));
        QVERIFY(makeFile(m_drutil->recorder(1).toStdString() + "/recorder.ini", "kind=none\n"));
        for (int number = 1; number <= 2; ++number) {
            const QStringList disc = (number == 1 ? first : second).split(u' ');
            const QStringList on{ u"-drive"_s, QString::number(number) };
            QCOMPARE((*m_drutil)(QStringList{ u"insert"_s, disc.first() } + on).exit, 0);
            if (disc.size() > 1)
                QCOMPARE((*m_drutil)(QStringList{ u"burn"_s, QString::fromStdString(scratch.path("t")) } + on)
                             .exit,
                    0);
        }
        m_drutil->environment().insert(u"CORVALIS_PREFERRED_DRIVE"_s, preferred);
        const Ran ran = burn(scratch.path("i.iso"));
        QCOMPARE(ran.exit, drive == 0 ? 3 : 0);
        for (int number = 1; number <= 2; ++number)
            QCOMPARE(contentOf(disc(number)).starts_with("xxxx"), number == drive);
        const QString line =
            u"Burning in drive %1: CORVALIS Virtual Recorder. Its discs lie in \""_s.arg(drive);
        QVERIFY2(drive == 0 || ran.out.startsWith(line), qPrintable(ran.out));
    }

    void signals_data()
    {
        QTest::addColumn<int>("signal");
        QTest::addColumn<int>("exit");
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("left");
        QTest::newRow("SIGINT") << SIGINT << 130 << u"dvd-r"_s << u"is spoilt"_s;
        QTest::newRow("SIGTERM") << SIGTERM << 143 << u"dvd-rw"_s << u"has to be erased"_s;
    }

    void signals()
    {
        QFETCH(int, signal);
        QFETCH(int, exit);
        QFETCH(QString, kind);
        QFETCH(QString, left);
        Scratch scratch;
        QVERIFY(sparseFile(QString::fromStdString(scratch.path("large.iso")), 2000LL * 1000 * 1000));
        QVERIFY(m_drutil->insert(kind));
        QProcess process;
        process.setProcessEnvironment(m_drutil->environment());
        process.start(hdiutil(), { u"burn"_s, QString::fromStdString(scratch.path("large.iso")) });
        QTRY_VERIFY_WITH_TIMEOUT(QFileInfo(QString::fromStdString(disc())).size() > 0, 60000);
        kill(pid_t(process.processId()), signal);
        kill(pid_t(process.processId()), signal); // the second one changes nothing
        QVERIFY(process.waitForFinished(60000));
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), exit);
        const QString said = QString::fromUtf8(process.readAllStandardError());
        QVERIFY2(said.startsWith(u"hdiutil: Stopped. The disc in drive "_s) && said.contains(left),
            qPrintable(said));
        QVERIFY(m_drutil->fact(u"State:"_s).startsWith(u"spoilt"_s));
    }

    void aBusyRecorderIsTold()
    {
        Scratch scratch;
        QVERIFY(makeFile(scratch.path("i.iso"), std::string(4096, 'x')));
        QVERIFY(m_drutil->insert(u"cd-r"_s));
        const int held = open(m_drutil->recorder().toLocal8Bit().constData(), O_RDONLY | O_CLOEXEC);
        QCOMPARE(flock(held, LOCK_EX), 0);
        const Ran ran = burn(scratch.path("i.iso"));
        close(held);
        QCOMPARE(ran.exit, 3);
        QVERIFY2(ran.err.contains(u"No drive holds a disc that can be written"_s)
                && QRegularExpression(u"drive ., is busy with another program"_s).match(ran.err).hasMatch(),
            qPrintable(ran.err));
        QCOMPARE(ran.err.count(u'\n'), 1);
    }

    void missingImage()
    {
        QVERIFY(m_drutil->insert(u"cd-r"_s));
        const Ran ran = burn("/nowhere/i.iso");
        QCOMPARE(ran.exit, 1);
        QVERIFY2(ran.err.contains(u"/nowhere/i.iso\" cannot be read"), qPrintable(ran.err));
    }

private:
    std::unique_ptr<Drutil> m_drutil;
};

QTEST_GUILESS_MAIN(BurnTest)
#include "BurnTest.moc"
