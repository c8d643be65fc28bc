// Music files through the file dialog onto an audio CD, an MP3 CD and an MP3 DVD, read back by others.
#include "compilation/ListTableView.h"
#include "support/WholeMachine.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype sector = 2352;
constexpr qsizetype leadIn = 150 * sector;

/// Music of every format, in the order in which it is added.
struct Music {
    QString name;
    const char *arguments; ///< that make it
};

const QList<Music> music{
    { u"Say \"yes\" - O'Brien.mp3"_s, "-f lavfi -i sine=frequency=440:duration=4.3 -ac 2 -b:a 128k" },
    { u"-acodec copy.m4a"_s, "-f lavfi -i sine=frequency=550:duration=5 -ac 2 -ar 48000 -c:a aac" },
    { u"日本の歌 Ωmega ñ.wma"_s, "-f lavfi -i sine=frequency=660:duration=4.1 -ac 2 -c:a wmav2" },
    { u"two\nlines  & 100%1.wav"_s,
        "-f lavfi -i sine=frequency=770:duration=6 -ar 48000 -ac 1 -c:a pcm_s16le" },
    { u" blank first "_s + QString(237, u'x') + u".mp2"_s,
        "-f lavfi -i sine=frequency=880:duration=4.5 -ar 44100 -ac 2 -c:a mp2" },
};

QStringList names()
{
    QStringList names;
    for (const Music &file : music)
        names.append(file.name);
    return names;
}

QString base(const QString &name)
{
    return name.left(name.lastIndexOf(u'.'));
}

/// The samples that the transcoder decodes, without the program under test.
QByteArray decoded(const QString &path)
{
    return runWell(u"ffmpeg"_s,
        { u"-v"_s, u"error"_s, u"-i"_s, path, u"-f"_s, u"s16le"_s, u"-acodec"_s, u"pcm_s16le"_s, u"-ar"_s,
            u"44100"_s, u"-ac"_s, u"2"_s, u"-"_s });
}

/// The file as an MP3 disc has it, converted to `path` without the program under test.
QByteArray asMp3(const QString &source, const QString &path)
{
    runWell(u"ffmpeg"_s,
        { u"-v"_s, u"error"_s, u"-y"_s, u"-i"_s, source, u"-vn"_s, u"-ar"_s, u"44100"_s, u"-ac"_s, u"2"_s,
            u"-ab"_s, u"192k"_s, u"-f"_s, u"mp3"_s, path });
    return contentOf(path);
}

/// What lies on an audio disc of these files: a pause, and then track after track in whole sectors.
QByteArray discOf(const QStringList &paths, QList<qsizetype> *starts = nullptr)
{
    QByteArray disc(leadIn, 0);
    for (const QString &path : paths) {
        if (starts)
            starts->append(disc.size() / sector);
        const QByteArray samples = decoded(path);
        if (samples.size() < 4 * 44100 * 4)
            qFatal("%s is too short to prove anything", qUtf8Printable(path));
        disc += samples;
        disc.append((sector - disc.size() % sector) % sector, 0);
    }
    return disc;
}

} // namespace

class AudioDiscsTest : public QObject {
    Q_OBJECT

    /// A machine with the music on its list and this disc in the recorder.
    static void ready(WholeMachine &machine, int project, const QString &disc)
    {
        machine.recorder.insert(disc);
        for (const Music &file : music)
            makeMedia(machine.mediaPath(file.name), QString::fromLatin1(file.arguments));
        machine.choose(project);
        QVERIFY(machine.addFiles(machine.media.path(), names()));
        QStringList listed;
        for (const NodeMediaFile &file : std::as_const(machine.controller->arrayMediaFiles)) {
            listed.append(file.s_File_Name_With_Extension);
            QVERIFY2(file.i_Duration_in_Seconds >= 4 && file.i_Duration_in_Seconds <= 6,
                qUtf8Printable(file.s_Duration));
        }
        QStringList expected = names();
        listed.sort();
        expected.sort();
        QCOMPARE(listed, expected);
    }

    /// Moves the files on the list into this order, with the keyboard.
    static void arrange(const WholeMachine &machine, const QStringList &paths)
    {
        ListTableView *table = machine.controller->selectedTable();
        const QList<NodeMediaFile> &list = machine.controller->arrayMediaFiles;
        for (int place = 0; place < paths.size(); ++place) {
            int row = place;
            while (row < list.size() - 1 && list.at(row).s_File_Path != paths.at(place))
                ++row;
            person::clickRow(table, table->model()->index(row, 0));
            for (; row > place; --row)
                person::press(QKeySequence(u"Alt+Up"_s));
            QTRY_COMPARE(list.at(place).s_File_Path, paths.at(place));
        }
    }

private Q_SLOTS:
    void anAudioCdHoldsWhatTheTranscoderDecodes()
    {
        WholeMachine machine;
        ready(machine, 1, u"cd-r"_s);
        // Neither the order of the names nor the one of the dialog.
        const QList<qsizetype> order{ 3, 0, 4, 2, 1 };
        QStringList paths;
        for (const qsizetype place : order)
            paths.append(machine.mediaPath(music[place].name));
        arrange(machine, paths);
        QList<qsizetype> starts;
        const QByteArray expected = discOf(paths, &starts);
        machine.press("btnBurn");
        QVERIFY(machine.completes());
        QCOMPARE(machine.trouble(), QString());

        const QByteArray disc = contentOf(machine.recorder.path(u"disc.bin"_s));
        QCOMPARE(disc.size(), expected.size());
        QVERIFY2(disc == expected, "the samples on the disc differ from the decoded ones");
        readByCdInfo(machine.recorder.path(u"disc.cue"_s), starts);
        starts.append(expected.size() / sector);
        readByCdrdao(machine.recorder.path(u"disc.cue"_s), starts);
        QVERIFY2(machine.recorder.status().contains("not writable"), machine.recorder.status().constData());
        QCOMPARE(QDir(machine.controller->s_Audio_Folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
            QStringList());
    }

    /// The numbers that a pattern captures in a text.
    static QList<qsizetype> numbers(const QString &text, const QString &pattern)
    {
        const QRegularExpression expression(pattern, QRegularExpression::MultilineOption);
        QList<qsizetype> found;
        for (const QRegularExpressionMatch &match : expression.globalMatch(text))
            found.append(match.captured(1).toLongLong());
        return found;
    }

    // Both readers count sectors from the start of the file, which begins with the pause.
    static void readByCdInfo(const QString &cue, const QList<qsizetype> &starts)
    {
        const Printed printed = run(u"cd-info"_s,
            { u"--no-header"_s, u"--no-device-info"_s, u"--no-cddb"_s, u"--cue-file="_s + cue });
        const QString text = QString::fromUtf8(printed.output);
        QVERIFY2(
            numbers(text, u"^ *\\d+: \\d\\d:\\d\\d:\\d\\d +(\\d+) +audio"_s) == starts, qUtf8Printable(text));
    }

    static void readByCdrdao(const QString &cue, const QList<qsizetype> &starts)
    {
        const Printed printed = run(u"cdrdao"_s, { u"show-toc"_s, cue }, QFileInfo(cue).path());
        const QString text = QString::fromUtf8(printed.output + printed.errors);
        QCOMPARE(printed.status, 0);
        QCOMPARE(numbers(text, u"^TRACK +(\\d+) +Mode AUDIO"_s).size(), starts.size() - 1);
        QCOMPARE(numbers(text, u"START +\\S+\\( *(\\d+)\\)"_s), starts.first(starts.size() - 1));
        QCOMPARE(numbers(text, u"END +\\S+\\( *(\\d+)\\)"_s), starts.sliced(1));
    }

    void anMp3DiscHoldsTheConvertedFiles_data()
    {
        QTest::addColumn<int>("project");
        QTest::addColumn<QString>("disc");
        QTest::newRow("MP3 CD") << 2 << u"cd-rw"_s;
        QTest::newRow("MP3 DVD") << 3 << u"dvd+r"_s;
    }
    void anMp3DiscHoldsTheConvertedFiles()
    {
        QFETCH(int, project);
        QFETCH(QString, disc);
        WholeMachine machine;
        ready(machine, project, disc);
        machine.press("btnBurn");
        QVERIFY(machine.completes());
        QCOMPARE(machine.trouble(), QString());

        const QString tree = reader::extractedByXorriso(machine.recorder.iso(), machine.media.path());
        QStringList expected;
        for (const QString &name : names())
            expected.append(base(name) + u".mp3"_s);
        expected.sort();
        QStringList found = QDir(tree).entryList(QDir::Files | QDir::Hidden);
        found.sort();
        QCOMPARE(found, expected);
        for (const QString &name : expected) {
            QCOMPARE(
                reader::stream(tree + u'/' + name, u"a"_s, u"codec_name,sample_rate,channels,bit_rate"_s),
                u"codec_name=mp3|sample_rate=44100|channels=2|bit_rate=192000"_s);
        }
        QList<QByteArray> contents;
        for (const QString &name : names()) {
            contents.append(asMp3(machine.mediaPath(name), machine.mediaPath(u"again"_s)));
            QVERIFY2(
                contentOf(tree + u'/' + base(name) + u".mp3"_s) == contents.last(), qUtf8Printable(name));
        }
        QCOMPARE(reader::countedByIsoinfo(machine.recorder.iso()), expected.size());
        const QString joliet = reader::extractedBy7z(machine.recorder.iso(), machine.media.path());
        for (const QFileInfo &file : QDir(joliet).entryInfoList(QDir::Files | QDir::Hidden))
            QVERIFY2(contents.removeOne(contentOf(file.filePath())), qUtf8Printable(file.fileName()));
        QVERIFY(contents.isEmpty());
    }

    void ofTwoSongsOfOneNameTheFirstIsWrittenAndTheOtherTold()
    {
        WholeMachine machine;
        makeMedia(machine.mediaPath(u"x/song.mp3"_s), QString::fromLatin1(music[0].arguments));
        makeMedia(machine.mediaPath(u"y/song.mp2"_s), QString::fromLatin1(music[4].arguments));
        QVERIFY(machine.addFiles(machine.mediaPath(u"x"_s), { u"song.mp3"_s }));
        QVERIFY(machine.addFiles(machine.mediaPath(u"y"_s), { u"song.mp2"_s }));
        machine.press("btnBurn");
        QVERIFY(machine.completes());
        QVERIFY2(
            machine.trouble().startsWith(u"“%1” was left out: "_s.arg(machine.mediaPath(u"y/song.mp2"_s))),
            qUtf8Printable(machine.trouble()));
        QCOMPARE(
            contentOf(machine.recorder.path(u"disc.bin"_s)), discOf({ machine.mediaPath(u"x/song.mp3"_s) }));
    }

    void aSongThatHasGoneIsToldAndTheOthersAreWritten()
    {
        WholeMachine machine;
        for (const auto &name : { u"gone.mp3"_s, u"here.mp3"_s })
            makeMedia(machine.mediaPath(name), QString::fromLatin1(music[0].arguments));
        QVERIFY(machine.addFiles(machine.media.path(), { u"gone.mp3"_s, u"here.mp3"_s }));
        QVERIFY(QFile::remove(machine.mediaPath(u"gone.mp3"_s)));
        machine.press("btnBurn");
        QVERIFY(machine.completes());
        QCOMPARE(machine.trouble(), u"%1: No such file or directory"_s.arg(machine.mediaPath(u"gone.mp3"_s)));
        QCOMPARE(
            contentOf(machine.recorder.path(u"disc.bin"_s)), discOf({ machine.mediaPath(u"here.mp3"_s) }));
    }

    // A limit on the size of files stands for a disk without room.
    void aSongForWhichThereIsNoRoomIsTold()
    {
        WholeMachine machine;
        makeMedia(machine.mediaPath(u"song.mp3"_s), QString::fromLatin1(music[0].arguments));
        QVERIFY(machine.addFiles(machine.media.path(), { u"song.mp3"_s }));
        makeFile(
            machine.mediaPath(u"ffmpeg"_s), "#!/bin/sh\ntrap '' XFSZ\nulimit -f 100\nexec ffmpeg \"$@\"\n");
        QFile(machine.mediaPath(u"ffmpeg"_s)).setPermissions(QFile::ReadOwner | QFile::ExeOwner);
        machine.controller->sffmpegPath = machine.mediaPath(u"ffmpeg"_s);
        machine.press("btnBurn");
        QVERIFY(machine.completes());
        const QString first = machine.trouble().section(u'\n', 0, 0);
        QVERIFY2(first.startsWith(u"song.mp3: "_s) && first.endsWith(u": File too large"_s),
            qUtf8Printable(first));
        QCOMPARE(QDir(machine.controller->s_Audio_Folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
            QStringList());
    }

    void aFileThatIsNoMusicIsToldAndTheOthersAreWritten()
    {
        WholeMachine machine;
        makeMedia(machine.mediaPath(u"good.mp3"_s), QString::fromLatin1(music[0].arguments));
        makeFile(machine.mediaPath(u"bad.mp3"_s), "this is no music");
        QVERIFY(machine.addFiles(machine.media.path(), { u"bad.mp3"_s, u"good.mp3"_s }));
        machine.press("btnBurn");
        QVERIFY(machine.completes());
        QVERIFY2(machine.trouble().contains(u"bad.mp3"_s), qUtf8Printable(machine.trouble()));
        const QByteArray disc = contentOf(machine.recorder.path(u"disc.bin"_s));
        QVERIFY(disc.mid(leadIn).startsWith(decoded(machine.mediaPath(u"good.mp3"_s))));
    }
};

QTEST_MAIN(AudioDiscsTest)
#include "AudioDiscsTest.moc"
