// From five media files of awkward names to a compact disc, compared sample by sample.
#include "WholeJob.h"

using namespace Qt::StringLiterals;

class AudioDiscTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void everySampleIsOnTheDisc()
    {
        WholeJob job;
        QVERIFY(QDir().mkpath(job.mediaFolder()));
        const QList<QPair<QString, QStringList>> files{
            {u"-leading dash.mp3"_s, {}},
            {u"line\nbreak.m4a"_s, {u"-c:a"_s, u"aac"_s}},
            {u"Ωmega 中文 \"quoted\" 'n.wma"_s, {}},
            {u"mono 48.wav"_s, {u"-ar"_s, u"48000"_s, u"-ac"_s, u"1"_s}},
            {QString(u"long "_s).repeated(50) + u"l.mp2"_s, {}},
        };
        int tone = 220;
        for (const auto &[name, options] : files) {
            makeMedia(job.mediaFolder() + u'/' + name, {u"sine=frequency=%1:duration=4.7"_s.arg(tone)}, options);
            tone += 110;
        }
        AppDelegate &controller = job.launch(u"cd-r"_s);
        job.chooseAllInDialog(job.application.element<QAbstractButton>("toolbar_btn_Audio_Add_Files"));
        QCOMPARE(controller.arrayMediaFiles.size(), files.size());
        job.burn();

        compareWithDecodes(job, controller.arrayMediaFiles);
        readTableOfContents(job, static_cast<int>(files.size()));
        QVERIFY(QDir(controller.s_Audio_Folder).isEmpty());
        QCOMPARE(controller.arrayMediaFiles.size(), files.size());
    }

private:
    static constexpr qsizetype sector = 2352;

    /// Each track is what the transcoder itself makes of the file, filled with silence to whole sectors.
    static void compareWithDecodes(const WholeJob &job, const QList<NodeMediaFile> &listed)
    {
        QFile bin(job.disc(u"disc.bin"_s));
        QVERIFY(bin.open(QIODevice::ReadOnly));
        qsizetype at = 150 * sector; // two seconds of pause before the first track
        QCOMPARE(bin.read(at), QByteArray(at, 0));
        for (const NodeMediaFile &file : listed) {
            const QByteArray decoded = outputOf(u"ffmpeg"_s, {u"-nostdin"_s, u"-loglevel"_s, u"error"_s, u"-i"_s, file.s_File_Path,
                                                              u"-acodec"_s, u"pcm_s16le"_s, u"-ar"_s, u"44100"_s, u"-ac"_s,
                                                              u"2"_s, u"-f"_s, u"s16le"_s, u"-"_s});
            QVERIFY(decoded.size() > 4 * 75 * sector);
            const qsizetype whole = (decoded.size() + sector - 1) / sector * sector;
            const QByteArray track = bin.read(whole);
            QVERIFY2(track.first(decoded.size()) == decoded, qPrintable(file.s_File_Path));
            QCOMPARE(track.sliced(decoded.size()), QByteArray(whole - decoded.size(), 0));
        }
        QVERIFY(bin.atEnd());
    }

    /// Other people's programs see the tracks.
    static void readTableOfContents(const WholeJob &job, int tracks)
    {
        const QString cue = job.disc(u"disc.cue"_s);
        const QByteArray info = outputOf(u"cd-info"_s, {u"--no-device-info"_s, u"--no-cddb"_s, u"--cue-file="_s + cue});
        QCOMPARE(info.count(" audio "), tracks);
        QFile sheet(cue);
        QVERIFY(sheet.open(QIODevice::ReadOnly));
        QCOMPARE(sheet.readAll().count("TRACK "), tracks);
    }
};

QTEST_MAIN(AudioDiscTest)
#include "AudioDiscTest.moc"
