// The job that makes a DVD for players: what runs, what is left in the folder, and every way in which it can go wrong.
#include "support/JobKinds.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;
using How = writing::Outcome::How;
using writing::Stage;

class PlayerJobTest : public QObject {
    Q_OBJECT

    /// A transcoder that tells of a picture, and converts; more shell commands for a conversion come before that.
    static void transcode(const JobKinds &app, const QByteArray &commands = {})
    {
        app.ffmpeg.run("if [ $# -eq 2 ]; then\n"
                       "case $2 in *sound*) picture= ;; *) picture='  Stream #0:0: Video: h264, yuv420p, "
                       "640x360, 25 fps' ;; esac\n"
                       "printf \"Input #0, mov, from '%s':\\n  Duration: 00:10:14.00, start: 0.000000, "
                       "bitrate: 1 kb/s\\n%s\\n\" "
                       "\"$2\" \"$picture\" >&2\n"
                       "exit 1; fi\n"
                       "for output; do :; done\n"
            + commands + "echo converted > \"$output\"\n");
    }

    /// An authoring tool that makes a disc of what its description names, after these shell commands.
    static void author(const JobKinds &app, const QByteArray &commands = {})
    {
        app.dvdauthor.run("cp \"$4\" \"$0.xml\"; pwd > \"$0.place\"; ls > \"$0.names\"\n" + commands
            + "mkdir -p \"$2/VIDEO_TS\" \"$2/AUDIO_TS\"\necho titles > \"$2/VIDEO_TS/VIDEO_TS.IFO\"\n");
    }

    static void begin(JobKinds &app, const QStringList &names = { u"a.mp4"_s, u"b.mov"_s })
    {
        app.insert(discs::blankDVD);
        transcode(app);
        author(app);
        app.start();
        app.controller->forPlayers = true;
        app.choose(4);
        QStringList paths;
        for (const QString &name : names)
            paths.append(app.file(name, "00:10:14.00"));
        QVERIFY(app.add(paths));
    }

    static QByteArray noted(const JobKinds &app, const char *what)
    {
        return contentOf(app.dvdauthor.path() + QLatin1StringView(what)).trimmed();
    }

    static qsizetype burns(const JobKinds &app) { return app.drutil.runs(u"burn"_s).size(); }

private Q_SLOTS:
    void init() { emptyHome(); }

    void onlyTheTitlesAreWritten()
    {
        JobKinds app;
        begin(app, { u"a & \"b\".mp4"_s, u"-i\nx.mov"_s });
        app.press("btnBurn");
        QVERIFY(app.completes());
        QCOMPARE(app.trouble(), QString());
        QCOMPARE(app.outcome->how, How::Complete);
        QVERIFY2(app.outcome->made.contains(u"2 title(s)"_s), qPrintable(app.outcome->made));
        const QString folder = app.controller->s_Video_Folder;
        QCOMPARE(app.dvdauthor.runs(),
            QList<QStringList>({ { u"-o"_s, folder, u"-x"_s, folder + u"/titles.xml"_s } }));
        QCOMPARE(QString::fromUtf8(noted(app, ".place")), QFileInfo(folder).canonicalFilePath());
        QCOMPARE(noted(app, ".names"), QByteArray("title-01.mpg\ntitle-02.mpg\ntitles.xml"));
        const QByteArray xml = noted(app, ".xml");
        QVERIFY2(xml.contains("<vob file=\"title-02.mpg\" chapters=\"0:00:00.000,0:05:00.000\"/>"),
            xml.constData());
        QCOMPARE(
            app.drutil.runs(u"burn"_s), QList<QStringList>({ { u"burn"_s, folder, u"-drive"_s, u"1"_s } }));
        QCOMPARE(app.burned(), (QStringList{ u"AUDIO_TS"_s, u"VIDEO_TS"_s, u"VIDEO_TS/VIDEO_TS.IFO"_s }));
        QCOMPARE(app.namesIn(folder), QStringList());
        const QStringList conversion = app.ffmpeg.runs(u"-i"_s).at(3);
        QCOMPARE(conversion.mid(0, 2), (QStringList{ u"-i"_s, app.media.filePath(u"a & \"b\".mp4"_s) }));
        QCOMPARE(conversion.last(), folder + u"/title-01.mpg"_s);
    }

    void otherDiscsHoldFiles_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<bool>("forPlayers");
        QTest::newRow("a Video DVD with the switch off") << 4 << false;
        QTest::newRow("a Video Blu-ray with the switch on") << 5 << true;
    }
    void otherDiscsHoldFiles()
    {
        QFETCH(int, kind);
        QFETCH(bool, forPlayers);
        JobKinds app;
        begin(app);
        app.insert(JobKinds::discFor(kind));
        app.choose(kind);
        QVERIFY(app.add({ app.file(u"a.mp4"_s) }));
        app.controller->forPlayers = forPlayers;
        app.press("btnBurn");
        QVERIFY(app.completes());
        QCOMPARE(app.dvdauthor.runs(), QList<QStringList>());
        QCOMPARE(app.burned(), QStringList(u"a.mpg"_s));
        QVERIFY(app.ffmpeg.runs().last().contains(u"-s"_s));
    }

    void whatCannotBeATitleIsLeftOut_data()
    {
        QTest::addColumn<QByteArray>("commands");
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QString>("told");
        const QStringList both{ u"a.mp4"_s, u"b.mov"_s };
        QTest::newRow("only sound") << QByteArray() << QStringList{ u"sound.mp4"_s, u"b.mov"_s }
                                    << u"sound.mp4: there is no picture in it."_s;
        QTest::newRow("no conversion")
            << QByteArray("case $2 in *a.mp4) echo part > \"$output\"; echo 'It broke.' >&2; exit 1; esac\n")
            << both << u"a.mp4: It broke."_s;
        QTest::newRow("no picture in what was made") << QByteArray(
            "case $2 in *a.mp4) echo part > \"$output\"; mv \"$0.do\" \"$0.later\"\n"
            "printf 'if [ $# -eq 2 ]; then mv \"$0.later\" \"$0.do\"; exit 1; fi\\n' > \"$0.do\"; exit 0; "
            "esac\n") << both << u"a.mp4: its picture could not be read."_s;
    }
    void whatCannotBeATitleIsLeftOut()
    {
        QFETCH(QByteArray, commands);
        QFETCH(QStringList, names);
        QFETCH(QString, told);
        JobKinds app;
        begin(app, names);
        transcode(app, commands);
        app.press("btnBurn");
        QVERIFY(app.completes());
        QCOMPARE(app.outcome->how, How::Incomplete);
        QCOMPARE(app.outcome->leftOut, QStringList(told));
        QCOMPARE(noted(app, ".names"), QByteArray("title-01.mpg\ntitles.xml"));
        QCOMPARE(burns(app), 1);
    }

    void nothingIsWrittenWhenNoClipIsLeft()
    {
        JobKinds app;
        begin(app);
        transcode(app, "echo 'It broke.' >&2; exit 1\n");
        app.press("btnBurn");
        QVERIFY(app.completes());
        QCOMPARE(app.outcome->how, How::NotDone);
        QCOMPARE(app.outcome->reason, u"Nothing was written. The disc is as it was."_s);
        QCOMPARE(app.outcome->leftOut, (QStringList{ u"a.mp4: It broke."_s, u"b.mov: It broke."_s }));
        QCOMPARE(app.dvdauthor.runs(), QList<QStringList>());
        QCOMPARE(burns(app), 0);
    }

    void aFailedAuthoringIsTold_data()
    {
        QTest::addColumn<QByteArray>("commands");
        QTest::addColumn<QString>("reason");
        QTest::newRow("with a reason")
            << QByteArray("echo 'STAT: Picking VTS 01' >&2\n"
                          "echo 'ERR:  no video format specified for VMGM' >&2; exit 1\n")
            << u"dvdauthor could not make the titles: no video format specified for VMGM. "
               "The disc is as it was."_s;
        QTest::newRow("without one") << QByteArray("exit 3\n")
                                     << u"dvdauthor ended with status 3. The disc is as it was."_s;
        QTest::newRow("a crash") << QByteArray("echo 'STAT: on' >&2; kill -SEGV $$\n")
                                 << u"dvdauthor crashed (signal 11). The disc is as it was."_s;
    }
    void aFailedAuthoringIsTold()
    {
        QFETCH(QByteArray, commands);
        QFETCH(QString, reason);
        JobKinds app;
        begin(app);
        author(app, commands);
        app.press("btnBurn");
        QVERIFY(app.completes());
        QCOMPARE(app.outcome->how, How::NotDone);
        QCOMPARE(app.outcome->reason, reason);
        QCOMPARE(burns(app), 0);
        QCOMPARE(app.namesIn(app.controller->s_Video_Folder), QStringList());
    }

    void oneThatHangsIsEnded()
    {
        JobKinds app;
        app.around.authoringSilence = 500;
        begin(app);
        author(app, "exec sleep 100\n");
        app.press("btnBurn");
        QVERIFY(app.completes());
        QCOMPARE(app.outcome->how, How::NotDone);
        QCOMPARE(app.outcome->reason,
            u"The disc is as it was. dvdauthor told nothing for a long time and was ended."_s);
        QCOMPARE(burns(app), 0);
    }

    void oneThatSpeaksIsAwaited()
    {
        JobKinds app;
        app.around.authoringSilence = 1500;
        begin(app);
        author(app, "for i in 1 2 3 4 5 6 7 8 9 10; do echo \"STAT: VOBU $i\"; sleep 0.3; done\n");
        app.press("btnBurn");
        QVERIFY(app.completes());
        QCOMPARE(app.outcome->how, How::Complete);
    }

    void stopsWhileTitlesAreMade()
    {
        JobKinds app;
        begin(app);
        author(app,
            "trap 'exit 143' TERM\necho 'STAT: VOBU 7 at 3MB, 1 PGCs'\n"
            "waited=0; until [ $waited -gt 2400 ]; do sleep 0.05; waited=$((waited + 1)); done\n");
        QString words, heading;
        bool pressed = false;
        QTimer look;
        connect(&look, &QTimer::timeout, this, [&] {
            const writing::Job *job = app.controller->job.get();
            if (!job || job->progress().stage != Stage::Authoring || job->progress().words.isEmpty()
                || pressed)
                return;
            words = job->progress().words;
            heading = app.sheet() ? app.sheet()->accessibleName() : QString();
            pressed = app.stopAsAPerson();
        });
        look.start(20);
        app.press("btnBurn");
        QVERIFY(app.completes());
        QVERIFY(pressed);
        QCOMPARE(words, u"VOBU 7 at 3MB, 1 PGCs"_s);
        QCOMPARE(heading, u"Making the titles and chapters"_s);
        QCOMPARE(app.outcome->how, How::Stopped);
        QCOMPARE(app.outcome->reason, u"The disc is as it was."_s);
        QCOMPARE(burns(app), 0);
        QCOMPARE(app.namesIn(app.controller->s_Video_Folder), QStringList());
    }

    void nothingBeginsWithoutDvdauthor()
    {
        JobKinds app;
        app.around.dvdauthor = app.folder.filePath(u"nowhere"_s);
        begin(app);
        const qsizetype measured = app.ffmpeg.runs().size();
        app.press("btnBurn");
        QVERIFY(!app.controller->job);
        QCOMPARE(app.asked.alerts.size(), 1);
        QCOMPARE(app.asked.alerts.first().message, u"The program dvdauthor is missing"_s);
        QVERIFY(app.asked.alerts.first().informative.contains(u"the package “dvdauthor”"_s));
        QCOMPARE(app.ffmpeg.runs().size(), measured);
    }

    void aDiscHas99Titles()
    {
        JobKinds app;
        begin(app, { u"a.mp4"_s });
        const NodeMediaFile one = app.controller->arrayMediaFiles.first();
        app.controller->arrayMediaFiles.fill(one, 100);
        app.press("btnBurn");
        QVERIFY(!app.controller->job);
        QCOMPARE(app.asked.alerts.size(), 1);
        QCOMPARE(app.asked.alerts.first().message, u"Too many clips for one DVD"_s);
    }

    void roomIsAskedFor_data()
    {
        QTest::addColumn<int>("button");
        QTest::newRow("closed") << 0;
        QTest::newRow("gone on") << 1;
    }
    void roomIsAskedFor()
    {
        QFETCH(int, button);
        JobKinds app;
        begin(app, { u"a.mp4"_s });
        app.controller->arrayMediaFiles.first().i_Duration_in_Seconds = 10'000'000'000; // 300 years
        app.asked.buttons = { button };
        app.press("btnBurn");
        QCOMPARE(app.asked.alerts.size(), 1);
        QCOMPARE(app.asked.alerts.first().message, u"There is not enough room to make the titles"_s);
        if (button == 0)
            QVERIFY(!app.controller->job);
        else
            QVERIFY(app.completes());
        QCOMPARE(burns(app), button);
    }
};

QTEST_MAIN(PlayerJobTest)
#include "PlayerJobTest.moc"
