// MP3 discs, video discs and data discs, read back by programs that we did not write.
#include "WholeJob.h"

#include <QDirIterator>

using namespace Qt::StringLiterals;

class MediaDiscTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void mp3Discs_data()
    {
        QTest::addColumn<QString>("medium");
        QTest::addColumn<QString>("modeButton");
        QTest::newRow("MP3 CD") << u"cd-r"_s << u"btnMP3CD"_s;
        QTest::newRow("MP3 DVD") << u"dvd+r"_s << u"btnMP3DVD"_s;
    }

    void mp3Discs()
    {
        QFETCH(QString, medium);
        QFETCH(QString, modeButton);
        WholeJob job;
        QVERIFY(QDir().mkpath(job.mediaFolder()));
        makeMedia(job.mediaFolder() + u"/a \"b\".wav"_s, {u"sine=440:duration=2"_s});
        makeMedia(job.mediaFolder() + u"/Straße.m4a"_s, {u"sine=660:duration=2"_s});
        job.launch(medium);
        job.window(modeButton)->click();
        job.chooseAllInDialog(job.application.element<QAbstractButton>("toolbar_btn_Audio_Add_Files"));
        job.burn();
        const QString read = job.extract();
        for (const QString &name : {u"a \"b\".mp3"_s, u"Straße.mp3"_s})
            QCOMPARE(probe(read + u'/' + name, u"a:0"_s, u"codec_name,sample_rate,channels"_s), "mp3,44100,2");
        QCOMPARE(QDir(read).entryList(QDir::Files).size(), 2);
    }

    void videoDiscs_data()
    {
        QTest::addColumn<QString>("medium");
        QTest::addColumn<QString>("modeButton");
        QTest::addColumn<QString>("standard");
        QTest::addColumn<QString>("sound");
        QTest::addColumn<QByteArray>("picture");
        QTest::addColumn<QByteArray>("audio");
        const QByteArray ntsc = "mpeg2video,720,480,30000/1001";
        const QByteArray pal = "mpeg2video,720,576,25/1";
        QTest::newRow("DVD, NTSC, AC-3") << u"dvd-r"_s << u"btnVideoDVD"_s << u"0"_s << u"0"_s << ntsc << QByteArray("ac3,48000,2");
        QTest::newRow("Blu-ray, PAL, AC-3") << u"bd-re"_s << u"btnVideoBluray"_s << u"1"_s << u"0"_s << pal << QByteArray("ac3,48000,2");
    }

    void videoDiscs()
    {
        QFETCH(QString, medium);
        QFETCH(QString, modeButton);
        QFETCH(QString, standard);
        QFETCH(QString, sound);
        QFETCH(QByteArray, picture);
        QFETCH(QByteArray, audio);
        WholeJob job;
        QVERIFY(QDir().mkpath(job.mediaFolder()));
        const QStringList kinds{u"mp4"_s, u"mov"_s, u"avi"_s, u"wmv"_s, u"flv"_s, u"mpg"_s, u"ts"_s};
        for (const QString &kind : kinds) {
            makeMedia(job.mediaFolder() + u"/clip %1.%1"_s.arg(kind),
                      {u"testsrc2=size=160x120:rate=25:duration=1"_s, u"sine=440:duration=1:sample_rate=44100"_s});
        }
        AppDelegate &controller = job.launch(medium);
        controller.OnMenuTabVideo();
        job.window(modeButton)->click();
        controller.s_Video_Output_Format = standard;
        controller.s_Audio_Output_Format = sound;
        job.chooseAllInDialog(job.application.element<QAbstractButton>("toolbar_btn_Video_Add_Files"));
        QCOMPARE(controller.arrayMediaFiles.size(), kinds.size());
        job.burn();
        const QString read = job.extract();
        for (const QString &kind : kinds) {
            const QString clip = read + u"/clip %1.mpg"_s.arg(kind);
            QCOMPARE(probe(clip, u"v:0"_s, u"codec_name,width,height,r_frame_rate"_s), picture);
            QCOMPARE(probe(clip, u"a:0"_s, u"codec_name,sample_rate,channels"_s), audio);
        }
    }

    void dataDiscs_data()
    {
        QTest::addColumn<QString>("medium");
        QTest::addColumn<QString>("modeButton");
        QTest::newRow("CD") << u"cd-rw"_s << u"btnDataCD"_s;
        QTest::newRow("DVD") << u"dvd-rw"_s << u"btnDataDVD"_s;
        QTest::newRow("Blu-ray") << u"bd-r"_s << u"btnDataBluray"_s;
    }

    void dataDiscs()
    {
        QFETCH(QString, medium);
        QFETCH(QString, modeButton);
        WholeJob job;
        const QString source = job.mediaFolder() + u"/My Folder"_s;
        makeAwkwardTree(source);
        AppDelegate &controller = job.launch(medium);
        controller.OnMenuTabData();
        job.window(modeButton)->click();
        job.application.questions.choices = {{QUrl::fromLocalFile(source)}};
        job.application.element<QAbstractButton>("toolbar_btn_Data_Add_Folder")->click();
        QCOMPARE(controller.arrayDataFolders.size(), 1);
        job.burn();
        const QString read = job.extract();
        QProcess diff;
        diff.start(u"diff"_s, {u"-r"_s, u"--no-dereference"_s, source, read + u"/My Folder"_s});
        QVERIFY(diff.waitForFinished(60'000));
        QVERIFY2(diff.exitCode() == 0, diff.readAllStandardOutput().constData());
        QVERIFY(QDir(controller.s_Data_Folder).isEmpty());
    }

private:
    static QByteArray probe(const QString &file, const QString &stream, const QString &entries)
    {
        QByteArray line = outputOf(u"ffprobe"_s, {u"-loglevel"_s, u"error"_s, u"-select_streams"_s, stream, u"-show_entries"_s,
                                       u"stream="_s + entries, u"-of"_s, u"csv=p=0"_s, file})
            .split('\n').first().trimmed();
        return line.endsWith(',') ? line.chopped(1) : line; // side data of a stream add an empty field
    }

    static void write(const QByteArray &path, const QByteArray &content)
    {
        QFile file(QFile::decodeName(path));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    static void makeAwkwardTree(const QString &path)
    {
        const QByteArray root = QFile::encodeName(path);
        QVERIFY(QDir().mkpath(path + u"/deep/er/and/deep/er/still/one/more/two/more"_s));
        QVERIFY(QDir().mkpath(path + u"/empty folder"_s));
        write(root + "/deep/er/and/deep/er/still/one/more/two/more/leaf", "leaf");
        write(root + "/" + QByteArray(251, 'n') + ".txt", "long");
        write(root + "/.hidden", "hidden");
        write(root + "/-dash", "dash");
        write(root + "/quote ' \" and\nline", "quote");
        write(root + "/Case", "upper");
        write(root + "/case", "lower");
        write(root + "/Ελληνικά 中文 עברית 😀", "scripts");
        write(root + "/read-only", "fixed");
        QVERIFY(QFile::setPermissions(path + u"/read-only"_s, QFile::ReadOwner));
        QVERIFY(QFile::link(u"Case"_s, path + u"/link"_s));
        write(root + "/big", QByteArray(3'000'000, 'b'));
    }
};

QTEST_MAIN(MediaDiscTest)
#include "MediaDiscTest.moc"
