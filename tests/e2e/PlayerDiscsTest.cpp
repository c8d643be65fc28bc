// Video DVDs for players: what lsdvd lists, what a player plays in which order, and whether ffmpeg decodes all of it.
#include "e2e/DvdPlayer.h"
#include "support/WholeMachine.h"
#include "writing/Window_Video_Settings.h"

#include <QCheckBox>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

/// A clip, and how it should be shown.
struct Clip {
    QString name;
    QString arguments; ///< that make it
    double seconds;
    bool wide;
    int chapters;
    QRect ntsc, pal; ///< where its picture lies in the frame
    bool turned = false; ///< the camera was held upright, and the file says so
};

QString white(const char *picture, double seconds)
{
    return u"-f lavfi -i color=white:%1:duration=%2"_s.arg(QLatin1StringView(picture)).arg(seconds);
}

QString sine(double seconds)
{
    return u" -f lavfi -i sine=duration=%1"_s.arg(seconds);
}

const QList<Clip> &clips()
{
    const QString h264 = u" -c:v libx264 -preset ultrafast -pix_fmt yuv420p -c:a aac"_s;
    static const QList<Clip> all{
        { u"1 film \"23\".mp4"_s, white("size=320x180:rate=24000/1001", 2) + sine(2) + h264, 2, true, 1,
            { 0, 0, 720, 480 }, { 0, 0, 720, 576 } },
        { u"2 scope & 60.mov"_s, white("size=470x200:rate=60", 1) + sine(1) + h264, 1, true, 1,
            { 0, 58, 720, 364 }, { 0, 70, 720, 436 } },
        { u"3 upright.mp4"_s, white("size=320x180:rate=30", 1) + sine(1) + h264, 1, false, 1,
            { 208, 0, 304, 480 }, { 208, 0, 304, 576 }, true },
        { u"4 mono.avi"_s, white("size=160x120:rate=25", 1) + sine(1) + u" -ac 1 -c:v mpeg4 -c:a mp3"_s, 1,
            false, 1, { 0, 0, 720, 480 }, { 0, 0, 720, 576 } },
        { u"-5 silent.ts"_s, white("size=320x180:rate=25", 1) + u" -c:v mpeg2video"_s, 1, true, 1,
            { 0, 0, 720, 480 }, { 0, 0, 720, 576 } },
        { u"6 wide\npixels.mp4"_s,
            white("size=240x180:rate=25", 3) + sine(3) + u" -i CHAPTERS -map_metadata 2 -aspect 16:9"_s
                + h264,
            3, true, 2, { 0, 0, 720, 480 }, { 0, 0, 720, 576 } },
    };
    return all;
}

/// One line of lsdvd's list.
struct Listed {
    double seconds;
    int chapters;
    QString attributes; ///< "NTSC 16/9 ac3 2"
};

QList<Listed> listedTitles(const QString &image)
{
    const QString text = QString::fromUtf8(runWell(u"lsdvd"_s, { u"-v"_s, u"-a"_s, u"-c"_s, image }));
    static const QRegularExpression title(
        u"Title: \\d+, Length: (\\d+):(\\d+):(\\d+\\.\\d+) Chapters: (\\d+),.*\\n"
        "\\s+VTS:.*Format: (\\w+), Aspect ratio: ([\\d/]+), Width: 720, Height: (\\d+).*\\n"
        "\\s+Audio: 1,.*Format: (\\w+), Frequency: 48000,.*Channels: (\\d)"_s);
    QList<Listed> all;
    for (auto found = title.globalMatch(text); found.hasNext();) {
        const QRegularExpressionMatch one = found.next();
        all.append({ one.captured(1).toInt() * 3600 + one.captured(2).toInt() * 60
                + one.captured(3).toDouble(),
            one.captured(4).toInt(),
            QStringList{ one.captured(5), one.captured(6), one.captured(7), one.captured(8), one.captured(9) }
                .join(u' ') });
    }
    return all;
}

/// What ffmpeg finds while it decodes all of a file.
struct Decoded {
    QRect light; ///< where its frames are not black
    QString trouble; ///< what it complains of; empty: nothing
};

Decoded decoded(const QString &file)
{
    const Printed printed = run(u"ffmpeg"_s,
        { u"-hide_banner"_s, u"-v"_s, u"level+info"_s, u"-i"_s, file, u"-vf"_s,
            u"cropdetect=limit=100:round=2:reset=0:skip=0"_s, u"-f"_s, u"null"_s, u"-"_s });
    Decoded found;
    if (printed.status != 0)
        found.trouble = u"status %1"_s.arg(printed.status);
    static const QRegularExpression crop(u"crop=(\\d+):(\\d+):(\\d+):(\\d+)"_s);
    for (const QString &line : QString::fromUtf8(printed.errors).split(u'\n')) {
        if (line.contains("[error]"_L1) || line.contains("[fatal]"_L1))
            found.trouble += line;
        if (const auto one = crop.match(line); one.hasMatch())
            found.light = { one.captured(3).toInt(), one.captured(4).toInt(), one.captured(1).toInt(),
                one.captured(2).toInt() };
    }
    return found;
}

bool near(const QRect &one, const QRect &other)
{
    constexpr int blur = 4; // of edges, by the encoder
    return qAbs(one.left() - other.left()) <= blur && qAbs(one.top() - other.top()) <= blur
        && qAbs(one.right() - other.right()) <= blur && qAbs(one.bottom() - other.bottom()) <= blur;
}

} // namespace

class PlayerDiscsTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_clips;

    /// Sets the formats in the settings sheet, and the switch.
    static void setFormats(const WholeMachine &machine, bool pal, bool mpeg)
    {
        machine.press("toolbar_btn_Video_Settings");
        const auto sheet = machine.controller->windowVideoSettings;
        QVERIFY(sheet);
        sheet->findChild<QRadioButton *>(pal ? u"radioVideoPal"_s : u"radioVideoNTSC"_s)->click();
        sheet->findChild<QRadioButton *>(mpeg ? u"radioAudioMPEG2"_s : u"radioAudioDolbyDigital"_s)->click();
        auto *players = sheet->findChild<QCheckBox *>(u"checkForPlayers"_s);
        if (!players->isChecked())
            players->click();
        person::pressTitled(sheet, u"OK"_s);
        QVERIFY(!machine.controller->windowVideoSettings);
    }

    static void checkTitle(const DvdPlayer &player, int number, const Clip &clip, bool pal)
    {
        const QString file = player.played(number);
        const Decoded found = decoded(file);
        QCOMPARE(clip.name + found.trouble, clip.name);
        const QRect &light = found.light;
        QVERIFY2(near(light, pal ? clip.pal : clip.ntsc),
            qPrintable(u"%1: %2x%3 at %4, %5"_s.arg(clip.name)
                           .arg(light.width())
                           .arg(light.height())
                           .arg(light.x())
                           .arg(light.y())));
        QCOMPARE(reader::stream(file, u"v"_s, u"codec_name,width,height,display_aspect_ratio,r_frame_rate"_s),
            u"codec_name=mpeg2video|width=720|height=%1|display_aspect_ratio=%2|r_frame_rate=%3"_s.arg(
                pal ? u"576"_s : u"480"_s, clip.wide ? u"16:9"_s : u"4:3"_s,
                pal ? u"25/1"_s : u"30000/1001"_s));
    }

private Q_SLOTS:
    void initTestCase()
    {
        const QString chapters = m_clips.filePath(u"chapters"_s);
        makeFile(chapters,
            ";FFMETADATA1\n[CHAPTER]\nTIMEBASE=1/1000\nSTART=0\nEND=1500\n[CHAPTER]\nTIMEBASE=1/"
            "1000\nSTART=1500\n"
            "END=3000\n");
        for (const Clip &clip : clips()) {
            const QString path = m_clips.filePath(clip.name);
            makeMedia(path, QString(clip.arguments).replace(u"CHAPTERS"_s, chapters));
            if (!clip.turned)
                continue;
            // The encoder drops the mark, a copy keeps it.
            const QString lying = m_clips.filePath(u"lying.mp4"_s);
            QVERIFY(QFile::rename(path, lying));
            makeMedia(path, u"-i %1 -c copy -metadata:s:v rotate=90"_s.arg(lying));
        }
    }

    void playersPlayEveryTitle_data()
    {
        QTest::addColumn<bool>("pal");
        QTest::addColumn<bool>("mpeg");
        QTest::addColumn<int>("count");
        QTest::newRow("NTSC, Dolby Digital, one of each") << false << false << 6;
        QTest::newRow("PAL, MPEG audio, one of each") << true << true << 6;
        QTest::newRow("PAL, Dolby Digital, one clip") << true << false << 1;
        QTest::newRow("NTSC, MPEG audio, twenty clips") << false << true << 20;
    }
    void playersPlayEveryTitle()
    {
        QFETCH(bool, pal);
        QFETCH(bool, mpeg);
        QFETCH(int, count);
        WholeMachine machine;
        machine.recorder.insert(u"dvd+r"_s);
        machine.choose(4);
        setFormats(machine, pal, mpeg);
        QTemporaryDir folder;
        QStringList names;
        for (int i = 0; i < count; ++i) {
            const QString &name = clips().at(i % clips().size()).name;
            names.append(u"%1 %2"_s.arg(i + 1, 2, 10, QLatin1Char('0')).arg(name));
            QVERIFY(QFile::link(m_clips.filePath(name), folder.filePath(names.last())));
        }
        QVERIFY(machine.addFiles(folder.path(), names));
        QCOMPARE(machine.controller->arrayMediaFiles.size(), count);
        machine.press("btnBurn");
        QVERIFY(machine.completes());
        QCOMPARE(machine.trouble(), QString());
        QCOMPARE(QDir(machine.controller->s_Video_Folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
            QStringList());

        const QString tree = reader::extractedByXorriso(machine.recorder.iso(), machine.media.path());
        QCOMPARE(QDir(tree).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
            (QStringList{ u"AUDIO_TS"_s, u"VIDEO_TS"_s }));
        const QList<Listed> titles = listedTitles(machine.recorder.iso());
        QCOMPARE(titles.size(), count);
        DvdPlayer player(machine.recorder.iso());
        QCOMPARE(player.trouble, QString());
        QVERIFY2(player.stopped, "the last title stops");
        QList<int> inOrder;
        for (int i = 0; i < count; ++i) {
            const Clip &clip = clips().at(i % clips().size());
            const Listed &title = titles.at(i);
            QVERIFY2(qAbs(title.seconds - clip.seconds) <= 0.5, qPrintable(clip.name));
            QCOMPARE(title.chapters, clip.chapters);
            QCOMPARE(title.attributes,
                u"%1 %2 %3 %4 2"_s.arg(pal ? u"PAL"_s : u"NTSC"_s, clip.wide ? u"16/9"_s : u"4/3"_s,
                    pal ? u"576"_s : u"480"_s, mpeg ? u"mpeg1"_s : u"ac3"_s));
            inOrder.append(i + 1);
            checkTitle(player, i + 1, clip, pal);
        }
        QCOMPARE(player.titles, inOrder);
    }

    void aRunWithoutAWindowMakesTitlesToo()
    {
        const Recorder recorder;
        Recorder::insert(u"dvd-r"_s);
        const QString clip = m_clips.filePath(clips().at(4).name);
        const QString gone = m_clips.filePath(u"none.ts"_s);
        makeFile(gone, "no film");
        const Printed printed = run(builtPrograms() + u"/corvalis"_s,
            { u"--burn"_s, u"Video DVD"_s, u"--for-players"_s, u"--"_s, clip, gone });
        QCOMPARE(printed.status, 3);
        QVERIFY2(printed.errors.contains("none.ts: "), printed.errors.constData());
        QCOMPARE(listedTitles(recorder.iso()).size(), 1);
    }
};

QTEST_MAIN(PlayerDiscsTest)
#include "PlayerDiscsTest.moc"
