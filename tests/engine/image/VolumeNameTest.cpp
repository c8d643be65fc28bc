// Names of discs: where they come from, and what becomes of them in each volume.
#include "image/VolumeName.h"

#include "../drutil/Drutil.h"
#include "Trees.h"

using namespace Qt::StringLiterals;
using namespace engine::image;

namespace {

QString text(const std::string &path)
{
    return QString::fromStdString(path);
}

/// The name in a volume descriptor of an image: block 16 is that of ISO 9660, 17 that of Joliet.
QString nameIn(const std::string &image, int block)
{
    const std::string content = contentOf(image);
    const QByteArray field(content.data() + block * 2048 + 40, 32);
    if (block == 16)
        return QString::fromLatin1(field).trimmed();
    QString name;
    for (int at = 0; at < 32; at += 2)
        name += QChar(ushort(quint8(field[at]) << 8 | quint8(field[at + 1])));
    return name.remove(QChar(0)).trimmed();
}

} // namespace

class VolumeNameTest : public QObject {
    Q_OBJECT

    static Ran make(const std::string &image, const std::string &source, const QString &name = {})
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"CORVALIS_VOLUME"_s, name);
        return runProgram(qEnvironmentVariable("CORVALIS_BIN") + u"/hdiutil"_s,
            { u"makehybrid"_s, u"-o"_s, text(image), text(source), u"-iso"_s, u"-joliet"_s }, environment);
    }

private Q_SLOTS:
    void forms_data()
    {
        QTest::addColumn<QString>("wanted");
        QTest::addColumn<QString>("iso");
        QTest::addColumn<QString>("joliet");
        QTest::addColumn<QString>("udf");
        const auto row = [](const char *title, const QString &wanted, const QString &iso,
                             const QString &joliet,
                             const QString &udf) { QTest::newRow(title) << wanted << iso << joliet << udf; };
        row("plain", u"Photos 2026"_s, u"Photos 2026"_s, u"Photos 2026"_s, u"Photos 2026"_s);
        row("long", QString(40, u'v'), QString(32, u'v'), QString(16, u'v'), QString(30, u'v'));
        row("umlauts", u"Müller"_s, u"M_ller"_s, u"Müller"_s, u"Müller"_s);
        row("many umlauts", QString(40, u'ü'), QString(32, u'_'), QString(16, u'ü'), QString(30, u'ü'));
        row("characters of two bytes", QString(20, u'日'), QString(20, u'_'), QString(16, u'日'),
            QString(15, u'日'));
        row("pairs at the end", QString(15, u'a') + u"😀😀"_s, QString(15, u'a') + u"__"_s, QString(15, u'a'),
            QString(15, u'a'));
        row("forbidden in Joliet", u"a:b*c?d;e\\f"_s, u"a:b*c?d;e\\f"_s, u"a_b_c_d_e_f"_s, u"a:b*c?d;e\\f"_s);
        row("a line break", u"a\nb"_s, u"a_b"_s, u"a_b"_s, u"a_b"_s);
    }

    void forms()
    {
        QFETCH(QString, wanted);
        const VolumeName name = volumeName(wanted.toStdString());
        QTEST(QString::fromStdString(name.iso), "iso");
        QTEST(QString::fromStdU16String(name.joliet), "joliet");
        QTEST(QString::fromStdU16String(name.udf), "udf");
    }

    void brokenBytesBecomeOneSignEach()
    {
        const VolumeName name = volumeName("caf\xe9 \xff");
        QCOMPARE(name.iso, std::string("caf_ _"));
        QVERIFY(name.joliet == u"caf_ _" && name.udf == u"caf_ _");
    }

    void sources_data()
    {
        QTest::addColumn<QStringList>("files"); // below the folder "Own"
        QTest::addColumn<QString>("given");
        QTest::addColumn<QString>("name");
        QTest::newRow("its own") << QStringList{ u"a"_s, u"b"_s } << QString() << u"Own"_s;
        QTest::newRow("of the only folder") << QStringList{ u"Holiday/a"_s } << QString() << u"Holiday"_s;
        QTest::newRow("two folders") << QStringList{ u"Holiday/a"_s, u"Work/a"_s } << QString() << u"Own"_s;
        QTest::newRow("a folder and a file")
            << QStringList{ u"Holiday/a"_s, u"b"_s } << QString() << u"Own"_s;
        QTest::newRow("one file") << QStringList{ u"b"_s } << QString() << u"Own"_s;
        QTest::newRow("a video disc") << QStringList{ u"VIDEO_TS/a"_s } << QString() << u"Own"_s;
        QTest::newRow("given") << QStringList{ u"Holiday/a"_s } << u"Given"_s << u"Given"_s;
    }

    void sources()
    {
        QFETCH(QStringList, files);
        QFETCH(QString, given);
        QFETCH(QString, name);
        Scratch scratch;
        for (const QString &file : files)
            QVERIFY(makeFile(scratch.path("Own/" + file.toStdString()), "x"));
        const Ran made = make(scratch.path("i.iso"), scratch.path("Own"), given);
        QCOMPARE(made.exit, 0);
        QCOMPARE(nameIn(scratch.path("i.iso"), 16), name);
        QCOMPARE(nameIn(scratch.path("i.iso"), 17), name);
        QVERIFY(!made.err.contains(u"The name of the disc"_s));
    }

    void aNameThatHadToChangeIsNoted()
    {
        Scratch scratch;
        QVERIFY(makeFile(scratch.path("t/file"), "x"));
        const Ran made = make(scratch.path("i.iso"), scratch.path("t"), u"Früher, in den Bergen"_s);
        QCOMPARE(made.exit, 0);
        QCOMPARE(made.err,
            u"note: The name of the disc, \"Früher, in den Bergen\", is stored as \"Fr_her, in den Bergen\" "
            u"in ISO 9660, "
            "as \"Früher, in den B\" in Joliet.\n"_s);
        QCOMPARE(nameIn(scratch.path("i.iso"), 16), u"Fr_her, in den Bergen"_s);
        QCOMPARE(nameIn(scratch.path("i.iso"), 17), u"Früher, in den B"_s);
    }

    void aBurnedDiscHasTheNameToo()
    {
        Scratch scratch;
        QVERIFY(makeFile(scratch.path("t/Summer/file"), "x"));
        Drutil drutil;
        QVERIFY(drutil.insert(u"cd-rw"_s));
        QCOMPARE(drutil({ u"burn"_s, text(scratch.path("t")) }).exit, 0);
        const std::string disc = drutil.recorder().toStdString() + "/disc.iso";
        QCOMPARE(nameIn(disc, 16), u"Summer"_s);
        drutil.environment().insert(u"CORVALIS_VOLUME"_s, u"Winter"_s);
        QCOMPARE(drutil({ u"burn"_s, text(scratch.path("t")) }).exit, 0);
        QCOMPARE(nameIn(disc, 16), u"Winter"_s);
        QCOMPARE(nameIn(disc, 17), u"Winter"_s);
    }
};

QTEST_GUILESS_MAIN(VolumeNameTest)
#include "VolumeNameTest.moc"
