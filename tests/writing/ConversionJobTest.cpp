// The jobs that convert files: what runs, with which arguments, behind which sheets, and what the bars show.
#include "support/JobApplication.h"

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

/// One kind of disc that is made of converted files.
struct Kind {
    int code;
    QByteArray blank;
    QString AppDelegate::*folder;
    const char *extension;
    QStringList writing; ///< the disc utility's arguments, "FOLDER" standing for the working folder
};

const Kind kinds[] = {
    { 1, discs::blankCD, &AppDelegate::s_Audio_Folder, "wav",
        { u"burn"_s, u"-audio"_s, u"FOLDER"_s, u"-drive"_s, u"1"_s } },
    { 2, discs::blankCD, &AppDelegate::s_Audio_Folder, "mp3",
        { u"burn"_s, u"FOLDER"_s, u"-drive"_s, u"1"_s } },
    { 3, discs::blankDVD, &AppDelegate::s_Audio_Folder, "mp3",
        { u"burn"_s, u"FOLDER"_s, u"-drive"_s, u"1"_s } },
    { 4, discs::blankDVD, &AppDelegate::s_Video_Folder, "mpg",
        { u"burn"_s, u"FOLDER"_s, u"-drive"_s, u"1"_s } },
    { 5, discs::blankBD, &AppDelegate::s_Video_Folder, "mpg",
        { u"burn"_s, u"FOLDER"_s, u"-drive"_s, u"1"_s } },
};

/// The transcoder's arguments for a kind of disc, with the formats that a first run has.
QStringList conversion(int code, const QString &source, const QString &output)
{
    switch (code) {
    case 1:
        return { u"-i"_s, source, u"-acodec"_s, u"pcm_s16le"_s, u"-ar"_s, u"44100"_s, u"-ac"_s, u"2"_s,
            output };
    case 2:
    case 3:
        return { u"-i"_s, source, u"-vn"_s, u"-ar"_s, u"44100"_s, u"-ac"_s, u"2"_s, u"-ab"_s, u"192k"_s,
            u"-f"_s, u"mp3"_s, output };
    default:
        return { u"-i"_s, source, u"-target"_s, u"ntsc-dvd"_s, u"-s"_s, u"720x480"_s, u"-r"_s, u"29.97"_s,
            u"-acodec"_s, u"ac3"_s, u"-ar"_s, u"48000"_s, u"-ac"_s, u"2"_s, output };
    }
}

const QStringList sheetsOfAJob{ u"+Window_Progress"_s, u"-Window_Progress"_s,
    u"+Window_Performing_Operation"_s, u"-Window_Performing_Operation"_s, u"+Window_Operation_Terminated"_s };

} // namespace

class ConversionJobTest : public QObject {
    Q_OBJECT

    static void ready(JobApplication &app, const Kind &kind, const QStringList &files)
    {
        app.insert(kind.blank);
        app.launch();
        app.choose(kind.code);
        QVERIFY(app.add(files));
        app.sheets.clear();
    }

    /// The runs of the transcoder that converted something.
    static QList<QStringList> conversions(const JobApplication &app)
    {
        QList<QStringList> runs = app.ffmpeg.runs();
        runs.removeIf([](const QStringList &run) { return run.size() == 2; });
        return runs;
    }

    static void rowsOfKinds()
    {
        QTest::addColumn<Kind>("kind");
        for (const Kind &kind : kinds)
            QTest::newRow(projects::byCode(kind.code)->name.data()) << kind;
    }

    /// The source and its converted name without folder and new extension.
    static QList<std::pair<QString, QString>> awkwardNames(const QString &extension)
    {
        QList<std::pair<QString, QString>> names;
        for (const QString &base : {
                 u"plain"_s,
                 u"O'Brien \"live\""_s,
                 u"two\nlines\n"_s,
                 u"-i"_s,
                 u"--version"_s,
                 u"  blanks  "_s,
                 u"tab\there"_s,
                 u"$(touch x); `id` & *?[a]"_s,
                 u"back\\slash"_s,
                 u"50%1 %2 %@ %s"_s,
                 u"dots.in.it"_s,
                 u".hidden"_s,
                 u"Ελληνικά русский"_s,
                 u"日本語 한국어 汉字"_s,
                 u"עברית العربية"_s,
                 u"😀 \u0301e"_s,
                 u"मराठी ไทย"_s,
                 u"<b>bold<b> &amp;"_s,
             })
            names.append({ base + u'.' + extension, base });
        return names;
    }

private Q_SLOTS:
    void everyRunHasExactlyItsArguments_data() { rowsOfKinds(); }
    void everyRunHasExactlyItsArguments()
    {
        QFETCH(Kind, kind);
        JobApplication app;
        const QString extension = kind.code < 4 ? u"m4a"_s : u"mov"_s;
        QStringList files;
        QStringList expectedNames;
        const auto names = awkwardNames(extension);
        for (const auto &[name, base] : names) {
            files.append(app.file(name));
            expectedNames.append(base + u'.' + QString::fromLatin1(kind.extension));
        }
        ready(app, kind, files);
        app.press("btnBurn");
        QVERIFY(app.completes());

        const QString folder = app.controller.get()->*kind.folder;
        QList<QStringList> expected;
        for (qsizetype i = 0; i < files.size(); ++i)
            expected.append(conversion(kind.code, files.at(i), folder + u'/' + expectedNames.at(i)));
        QCOMPARE(conversions(app), expected);
        QStringList writing = kind.writing;
        writing.replaceInStrings(u"FOLDER"_s, folder);
        QCOMPARE(app.drutil.runs(u"burn"_s), QList<QStringList>{ writing });
        expectedNames.sort();
        QCOMPARE(app.burned(), expectedNames);
        QCOMPARE(app.texts(), QStringList());
        QCOMPARE(app.trouble(), QString());
    }

    void soundIsForItsOwnerOnly_data() { rowsOfKinds(); }
    void soundIsForItsOwnerOnly()
    {
        QFETCH(Kind, kind);
        JobApplication app;
        app.convertWith("echo converted > \"$output\"; stat -c %a -- \"$output\" > \"$tool.mode\"\n");
        const mode_t before = ::umask(S_IWGRP | S_IWOTH);
        ready(app, kind, { app.file(kind.code < 4 ? u"song.m4a"_s : u"film.mov"_s) });
        app.press("btnBurn");
        const bool completed = app.completes();
        ::umask(before);
        QVERIFY(completed);
        // The others are files on the disc, where they have the modes that they have here.
        QCOMPARE(contentOf(app.ffmpeg.path() + u".mode"_s).trimmed(), kind.code == 1 ? "600" : "644");
    }

    void theSheetsFollowOneAnother_data() { rowsOfKinds(); }
    void theSheetsFollowOneAnother()
    {
        QFETCH(Kind, kind);
        JobApplication app;
        ready(app, kind, { app.file(u"a.mp4"_s), app.file(u"b.mp4"_s) });
        const QStringList listed = namesOnTheList(app);
        app.press("btnBurn");
        QVERIFY(app.completes());
        QCOMPARE(app.sheets.order(), sheetsOfAJob);
        QVERIFY(app.sheets.sinceLast(u"-Window_Progress"_s, u"+Window_Performing_Operation"_s) >= 90);
        QCOMPARE(namesOnTheList(app), listed);
        QCOMPARE(app.namesIn(app.controller.get()->*kind.folder), QStringList());

        QTest::mouseClick(
            app.button(app.controller->windowOperationCompleted, QDialogButtonBox::Ok), Qt::LeftButton);
        QVERIFY(app.controller->windowOperationCompleted.isNull());
        QCOMPARE(app.sheets.order().last(), u"-Window_Operation_Terminated"_s);
        QVERIFY(!QApplication::activeModalWidget());
    }

    static QStringList namesOnTheList(const JobApplication &app)
    {
        QStringList names;
        for (const NodeMediaFile &file : std::as_const(app.controller->arrayMediaFiles))
            names.append(file.s_File_Path + file.s_Duration);
        return names;
    }

    void theWorkingFolderIsEmptiedBeforeAndAfter_data()
    {
        QTest::addColumn<Kind>("kind");
        QTest::addColumn<QByteArray>("ending");
        for (const Kind &kind : kinds) {
            for (const auto &[how, commands] : { std::pair("succeeds", "exit 0\n"),
                     std::pair("fails", "exit 1\n"), std::pair("crashes", "kill -SEGV $$\n") })
                QTest::addRow("%s %s", projects::byCode(kind.code)->name.data(), how)
                    << kind << QByteArray(commands);
        }
    }
    void theWorkingFolderIsEmptiedBeforeAndAfter()
    {
        QFETCH(Kind, kind);
        QFETCH(QByteArray, ending);
        JobApplication app;
        app.burnWith(ending);
        ready(app, kind, { app.file(u"a.mp4"_s) });
        const QString folder = app.controller.get()->*kind.folder;
        QVERIFY(QDir(folder).mkpath(u"left over/from before"_s));
        app.press("btnBurn");
        QVERIFY(app.completes());
        QCOMPARE(app.burned(), QStringList(u"a."_s + QString::fromLatin1(kind.extension)));
        QCOMPARE(app.namesIn(folder), QStringList());
        QVERIFY(QDir(folder).exists());
        QCOMPARE(app.sheets.order(), sheetsOfAJob);
    }

    void twoFilesOfOneNameAreConvertedToOneName()
    {
        JobApplication app;
        app.convertWith(
            "[ -e \"$output\" ] && { echo 'already exists' >&2; exit 1; }; echo converted > \"$output\"\n");
        const QStringList files{ app.file(u"x/song.wav"_s), app.file(u"y/song.mp3"_s) };
        ready(app, kinds[0], files);
        app.press("btnBurn");
        QVERIFY(app.completes());
        const QString output = app.controller->s_Audio_Folder + u"/song.wav"_s;
        const QList<QStringList> expected{ conversion(1, files.at(0), output),
            conversion(1, files.at(1), output) };
        QCOMPARE(conversions(app), expected);
        QCOMPARE(app.burned(), QStringList(u"song.wav"_s));
        QCOMPARE(app.trouble(),
            u"“%1” was left out: another entry of the list is converted to “song.wav” too. "
            "Rename one of the files and try again."_s.arg(files.at(1)));
    }

    void ofTwoFilesOfOneNameTheOneThatCanBeConvertedIsWritten()
    {
        JobApplication app;
        app.convertWith(
            "case \"$2\" in */x/*) echo 'no music' >&2; exit 1;; esac\necho converted > \"$output\"\n");
        ready(app, kinds[0], { app.file(u"x/song.wav"_s), app.file(u"y/song.mp3"_s) });
        app.press("btnBurn");
        QVERIFY(app.completes());
        QCOMPARE(app.burned(), QStringList(u"song.wav"_s));
        QCOMPARE(app.trouble(), u"song.wav: no music"_s);
    }

    void aNameThatFillsTheFileSystemsLimitKeepsWithinIt_data()
    {
        QTest::addColumn<Kind>("kind");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("converted");
        const QString x248(248, u'x');
        const QString e124(124, QChar(0xe9));
        QString faces;
        for (int i = 0; i < 63; ++i)
            faces += u"😀"_s; // 252 bytes
        QTest::newRow("same length") << kinds[0] << x248 + u"xxx.mp3"_s << x248 + u"xxx.wav"_s;
        QTest::newRow("one byte longer") << kinds[3] << x248 + u"xxxx.ts"_s << x248 + u"xxx.mpg"_s;
        QTest::newRow("letters of two bytes") << kinds[3] << e124 + u"xxxx.ts"_s << e124 + u"xxx.mpg"_s;
        QTest::newRow("a letter of two bytes at the edge")
            << kinds[3] << e124 + u"xx"_s + QChar(0xe9) + u".ts"_s << e124 + u"xx.mpg"_s;
        QTest::newRow("a letter of four bytes at the edge")
            << kinds[3] << faces + u".ts"_s << faces.chopped(2) + u".mpg"_s;
    }
    void aNameThatFillsTheFileSystemsLimitKeepsWithinIt()
    {
        QFETCH(Kind, kind);
        QFETCH(QString, name);
        QFETCH(QString, converted);
        QCOMPARE(name.toUtf8().size(), 255);
        QVERIFY(converted.toUtf8().size() <= 255);
        JobApplication app;
        ready(app, kind, { app.file(name) });
        app.press("btnBurn");
        QVERIFY(app.completes());
        QCOMPARE(conversions(app).value(0).last(), app.controller.get()->*kind.folder + u'/' + converted);
        QCOMPARE(app.burned(), QStringList(converted));
    }

    void theBarsShowEachFileAndTheWholeList()
    {
        JobApplication app;
        // Two lines for each file, the second one only when the first has been seen.
        app.convertWith("printf 'size= 10 time=00:00:%s bitrate= 128\\r' 07.20 >&2\n"
            + app.waitFor("$(basename \"$2\")")
            + "printf 'size= 20 time=00:02:%s bitrate= 128\\r' 00.00 >&2\n");
        ready(app, kinds[0],
            { app.file(u"short.mp3"_s, "00:00:14.00"), app.file(u"long.mp3"_s, "00:03:20.50") });
        QStringList noted;
        app.sheets.onShow = [&app, &noted](Sheet *sheet) {
            const auto *progress = qobject_cast<Window_Progress *>(sheet);
            if (!progress)
                return;
            const QProgressBar *item = progress->progressBar();
            const QProgressBar *overall = progress->progressOverall();
            connect(item, &QProgressBar::valueChanged, sheet, [&app, &noted, item](int value) {
                noted.append(u"%1 of %2 to %3"_s.arg(value).arg(item->minimum()).arg(item->maximum()));
                if (value != 0) {
                    const QString name =
                        app.controller->i_Orig_Duration_in_Seconds == 14 ? u"short.mp3"_s : u"long.mp3"_s;
                    app.release(app.ffmpeg, name.toUtf8());
                }
            });
            connect(overall, &QProgressBar::valueChanged, sheet, [&noted, overall](int value) {
                noted.append(
                    u"overall %1 of %2 to %3"_s.arg(value).arg(overall->minimum()).arg(overall->maximum()));
            });
        };
        app.press("btnBurn");
        // 7 of 14 seconds are 50 per cent, on a bar that ends at 14; 7 of 200 are 3, 120 of 200 are 60.
        const QStringList expected{ u"14 of 0 to 14"_s, u"overall 1 of 0 to 2"_s, u"0 of 0 to 200"_s,
            u"3 of 0 to 200"_s, u"60 of 0 to 200"_s, u"overall 2 of 0 to 2"_s };
        QCOMPARE(noted.join(u", "_s), expected.join(u", "_s));
        QVERIFY(app.completes());
        QCOMPARE(app.controller->u_Type_Progress, 1U);
        QCOMPARE(app.controller->i_Burn_Audio_Type, 1);
    }

    void aFileWithoutADurationIsConvertedBesideABarThatStaysEmpty()
    {
        JobApplication app;
        app.convertWith("echo converted > \"$output\"; printf 'time=00:00:07.20 bitrate=' >&2\n");
        ready(app, kinds[4], { app.file(u"a.mp4"_s, "N/A, bitrate"), app.file(u"b.mp4"_s, {}) });
        QCOMPARE(app.controller->arrayMediaFiles.at(0).i_Duration_in_Seconds, 0);
        int greatest = 0;
        app.sheets.onShow = [&greatest](Sheet *sheet) {
            if (const auto *progress = qobject_cast<Window_Progress *>(sheet)) {
                connect(progress->progressBar(), &QProgressBar::valueChanged, sheet,
                    [&greatest](int value) { greatest = qMax(greatest, value); });
            }
        };
        app.press("btnBurn");
        QVERIFY(app.completes());
        QCOMPARE(greatest, 0);
        const QStringList burned{ u"a.mpg"_s, u"b.mpg"_s };
        QCOMPARE(app.burned(), burned);
        QCOMPARE(app.controller->u_Type_Progress, 0U);
    }

    void theVideoFormatsChooseTheArguments_data()
    {
        QTest::addColumn<QString>("video");
        QTest::addColumn<QString>("audio");
        QTest::addColumn<QStringList>("middle");
        const auto middle = [](const char *target, const char *size, const char *rate, const char *codec) {
            return QStringList{ u"-target"_s, QString::fromLatin1(target), u"-s"_s, QString::fromLatin1(size),
                u"-r"_s, QString::fromLatin1(rate), u"-acodec"_s, QString::fromLatin1(codec) };
        };
        const QStringList ntscDolby = middle("ntsc-dvd", "720x480", "29.97", "ac3");
        const QStringList ntscMpeg = middle("ntsc-dvd", "720x480", "29.97", "mp2");
        const QStringList palDolby = middle("pal-dvd", "720x576", "25", "ac3");
        const QStringList palMpeg = middle("pal-dvd", "720x576", "25", "mp2");
        QTest::newRow("NTSC, Dolby Digital") << u"0"_s << u"0"_s << ntscDolby;
        QTest::newRow("NTSC, MPEG audio") << u"0"_s << u"1"_s << ntscMpeg;
        QTest::newRow("PAL, Dolby Digital") << u"1"_s << u"0"_s << palDolby;
        QTest::newRow("PAL, MPEG audio") << u"1"_s << u"1"_s << palMpeg;
        QTest::newRow("no setting") << QString() << QString() << palMpeg;
        QTest::newRow("another setting") << u"00"_s << u"ntsc"_s << palMpeg;
    }
    void theVideoFormatsChooseTheArguments()
    {
        QFETCH(QString, video);
        QFETCH(QString, audio);
        QFETCH(QStringList, middle);
        for (const Kind &kind : { kinds[3], kinds[4] }) {
            JobApplication app;
            const QString source = app.file(u"clip.mov"_s);
            ready(app, kind, { source });
            app.controller->s_Video_Output_Format = video;
            app.controller->s_Audio_Output_Format = audio;
            app.press("btnBurn");
            QVERIFY(app.completes());
            const QStringList expected = QStringList{ u"-i"_s, source } + middle
                + QStringList{ u"-ar"_s, u"48000"_s, u"-ac"_s, u"2"_s,
                      app.controller->s_Video_Folder + u"/clip.mpg"_s };
            QCOMPARE(conversions(app), QList<QStringList>{ expected });
        }
    }

    void theFilesAreConvertedInTheOrderOfTheList()
    {
        JobApplication app;
        ready(app, kinds[0], { app.file(u"2.mp3"_s), app.file(u"1.mp3"_s), app.file(u"10.mp3"_s) });
        app.press("btnBurn");
        QVERIFY(app.completes());
        QStringList outputs;
        for (const QStringList &run : conversions(app))
            outputs.append(QFileInfo(run.last()).fileName());
        const QStringList expected{ u"2.wav"_s, u"1.wav"_s, u"10.wav"_s };
        QCOMPARE(outputs, expected);
    }
};

QTEST_MAIN(ConversionJobTest)
#include "ConversionJobTest.moc"
