// Clips of every format onto Video DVDs and Blu-rays, with the four combinations of the video settings.
#include "support/WholeMachine.h"
#include "writing/Window_Video_Settings.h"

using namespace Qt::StringLiterals;

namespace {

struct Clip {
    QString name;
    const char *picture; ///< size, for the source
    const char *codecs;
    const char *aspect; ///< of the converted clip's display; empty where the pixels become square
};

const QList<Clip> clips{
    { u"Say \"yes\".mp4"_s, "160x120", "-c:v libx264 -preset ultrafast -c:a aac", "4:3" },
    { u"-i.mov"_s, "160x120", "-c:v mpeg4 -c:a pcm_s16le", "4:3" },
    { u"映画 Ωñ.avi"_s, "320x180", "-c:v mpeg4 -c:a mp3", "16:9" },
    { u"two\nlines.wmv"_s, "160x120", "-c:v wmv2 -c:a wmav2", "4:3" },
    { u"100%1.flv"_s, "160x120", "-c:v flv -c:a mp3 -ar 44100", "" },
    { u"old.mpg"_s, "160x120", "-c:v mpeg1video -r 25 -c:a mp2", "4:3" },
    { u"stream.ts"_s, "320x180", "-c:v mpeg2video -c:a mp2", "16:9" },
    { u"phone.3gp"_s, "160x120", "-c:v h263 -s 176x144 -c:a aac -ac 1", "4:3" },
};

QString source(const Clip &clip)
{
    return u"-f lavfi -i testsrc=size=%1:rate=15:duration=1 -f lavfi -i sine=duration=1 -ac 2 -pix_fmt yuv420p "_s
        .arg(QLatin1StringView(clip.picture));
}

} // namespace

class VideoDiscsTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_clips;

    /// Sets the formats in the settings sheet.
    static void setFormats(const WholeMachine &machine, bool pal, bool mpeg)
    {
        machine.press("toolbar_btn_Video_Settings");
        const auto sheet = machine.controller->windowVideoSettings;
        QVERIFY(sheet);
        sheet->findChild<QRadioButton *>(pal ? u"radioVideoPal"_s : u"radioVideoNTSC"_s)->click();
        sheet->findChild<QRadioButton *>(mpeg ? u"radioAudioMPEG2"_s : u"radioAudioDolbyDigital"_s)->click();
        person::pressTitled(sheet, u"OK"_s);
        QVERIFY(!machine.controller->windowVideoSettings);
    }

private Q_SLOTS:
    void initTestCase()
    {
        for (const Clip &clip : clips)
            makeMedia(m_clips.filePath(clip.name), source(clip) + QString::fromLatin1(clip.codecs));
    }

    void everyClipIsConvertedAsTheSettingsSay_data()
    {
        QTest::addColumn<int>("project");
        QTest::addColumn<QString>("disc");
        QTest::addColumn<bool>("pal");
        QTest::addColumn<bool>("mpeg");
        QTest::addColumn<bool>("every");
        QTest::newRow("Video DVD, NTSC, Dolby Digital, all clips")
            << 4 << u"dvd-r"_s << false << false << true;
        QTest::newRow("Video DVD, NTSC, MPEG audio") << 4 << u"dvd+r"_s << false << true << false;
        QTest::newRow("Video DVD, PAL, Dolby Digital") << 4 << u"dvd-rw"_s << true << false << false;
        QTest::newRow("Video DVD, PAL, MPEG audio") << 4 << u"dvd+rw"_s << true << true << false;
        QTest::newRow("Video Blu-ray, NTSC, Dolby Digital") << 5 << u"bd-r"_s << false << false << false;
        QTest::newRow("Video Blu-ray, NTSC, MPEG audio") << 5 << u"bd-re"_s << false << true << false;
        QTest::newRow("Video Blu-ray, PAL, Dolby Digital") << 5 << u"bd-r"_s << true << false << false;
        QTest::newRow("Video Blu-ray, PAL, MPEG audio, all clips") << 5 << u"bd-re"_s << true << true << true;
    }
    void everyClipIsConvertedAsTheSettingsSay()
    {
        QFETCH(int, project);
        QFETCH(QString, disc);
        QFETCH(bool, pal);
        QFETCH(bool, mpeg);
        QFETCH(bool, every);
        const QList<Clip> taken = every ? clips : QList<Clip>{ clips.first(), clips.at(2) };
        WholeMachine machine;
        machine.recorder.insert(disc);
        machine.choose(project);
        setFormats(machine, pal, mpeg);
        QStringList names;
        for (const Clip &clip : taken)
            names.append(clip.name);
        QVERIFY(machine.addFiles(m_clips.path(), names));
        for (const NodeMediaFile &file : std::as_const(machine.controller->arrayMediaFiles))
            QVERIFY2(file.i_Duration_in_Seconds >= 1, qUtf8Printable(file.s_File_Path));
        machine.press("btnBurn");
        QVERIFY(machine.completes());
        QCOMPARE(machine.trouble(), QString());

        const QString tree = reader::extractedByXorriso(machine.recorder.iso(), machine.media.path());
        QCOMPARE(QDir(tree).entryList(QDir::Files | QDir::Hidden).size(), taken.size());
        const QString video = pal
            ? u"codec_name=mpeg2video|width=720|height=576|display_aspect_ratio=%1|r_frame_rate=25/1"_s
            : u"codec_name=mpeg2video|width=720|height=480|display_aspect_ratio=%1|r_frame_rate=30000/1001"_s;
        const QString audio = u"codec_name=%1|sample_rate=48000|channels=2"_s.arg(mpeg ? u"mp2"_s : u"ac3"_s);
        for (const Clip &clip : taken) {
            const QString file = tree + u'/' + clip.name.left(clip.name.lastIndexOf(u'.')) + u".mpg"_s;
            QVERIFY2(QFile::exists(file), qUtf8Printable(file));
            const QLatin1StringView aspect(*clip.aspect ? clip.aspect : pal ? "5:4" : "3:2");
            QCOMPARE(
                reader::stream(file, u"v"_s, u"codec_name,width,height,r_frame_rate,display_aspect_ratio"_s),
                video.arg(aspect));
            QCOMPARE(reader::stream(file, u"a"_s, u"codec_name,sample_rate,channels"_s), audio);
        }
    }
};

QTEST_MAIN(VideoDiscsTest)
#include "VideoDiscsTest.moc"
