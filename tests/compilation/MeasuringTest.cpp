#include "compilation/Measuring.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

/// What ffmpeg prints about an input file.
QByteArray report(
    const QByteArray &duration, const QByteArray &file = "track.mp3", const QByteArray &tags = {})
{
    return "Input #0, mp3, from '" + file + "':\n" + tags + "  Duration: " + duration
        + ", start: 0.000000, bitrate: 320 kb/s\nAt least one output file must be specified\n";
}

} // namespace

class MeasuringTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void findsTheDuration_data();
    void findsTheDuration();
    void readsSeconds_data();
    void readsSeconds();
    void readsLenientNumbers_data();
    void readsLenientNumbers();
    void writesSizes_data();
    void writesSizes();
    void findsExtensions_data();
    void findsExtensions();
    void splitsIntoCharacters();
    void makesMediaRecords_data();
    void makesMediaRecords();
    void measuresFiles();
    void tellsWhyAFileIsNotMeasured_data();
    void tellsWhyAFileIsNotMeasured();
    void makesFolderRecords_data();
    void makesFolderRecords();
    void startsRecordsEmpty();
};

void MeasuringTest::findsTheDuration_data()
{
    QTest::addColumn<QByteArray>("printed");
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint64>("seconds");

    const auto row = [](const char *name, const QByteArray &printed, const QString &text, qint64 seconds) {
        QTest::newRow(name) << printed << text << seconds;
    };
    row("a usual report", report("00:03:25.47"), u" 00:03:25.4"_s, 205);
    row("more than an hour", report("01:02:03.99"), u" 01:02:03.9"_s, 3723);
    row("the fraction is never rounded up", report("00:03:25.99"), u" 00:03:25.9"_s, 205);
    row("no known duration", report("N/A"), u" N/A, start"_s, 0);
    row("100 hours do not fit the fields", report("100:00:00.00"), u" 100:00:00."_s, 36000);
    row("99 hours", report("99:59:59.99"), u" 99:59:59.9"_s, 359999);
    row("nothing at all", report("00:00:00.00"), u" 00:00:00.0"_s, 0);
    row("the word in the file's name comes first", report("00:03:25.47", "Duration: 12.mp3"),
        u" 12.mp3':\n "_s, 43200);
    row("the word in a tag comes first",
        report("00:03:25.47", "a.mp3", "    title : Duration: 07:08:09.0 live\n"), u" 07:08:09.0"_s, 25689);
    row("the word in another case is no duration", report("00:03:25.47").replace("Duration", "duration"), {},
        0);
    row("nothing printed", {}, {}, 0);
    row("no such file", "/x/y.mp3: No such file or directory\n", {}, 0);
    row("the report ends with the word", "  Duration:", {}, 0);
    row("the report ends in the hours", "  Duration: 01", u" 01"_s, 3600);
    row("the report ends within the minutes", "  Duration: 01:0", u" 01:0"_s, 3600);
    row("the report ends within the seconds", "  Duration: 01:02:0", u" 01:02:0"_s, 3720);
    row("the report ends after ten characters", "  Duration: 01:02:03.", u" 01:02:03."_s, 3723);
    row("not UTF-8 before the duration", report("00:03:25.47", "caf\xe9.mp3"), {}, 0);
    row("not UTF-8 after the duration", report("00:03:25.47") + "\xff", {}, 0);
    row("cut within a character at the end", report("00:03:25.47") + "\xc3", {}, 0);
    row("a file name in UTF-8", report("00:03:25.47", "caf\xc3\xa9 \xf0\x9f\x8e\xb5.mp3"), u" 00:03:25.4"_s,
        205);
    row("a zero byte before it", QByteArray("a\0b", 3) + report("00:03:25.47"), u" 00:03:25.4"_s, 205);
    row("letters that are not ASCII among the eleven", "Duration: \xc3\xa4\xc3\xb6\xc3\xbc 45678901",
        u" äöü 456789"_s, 4 * 60 + 67);
}

void MeasuringTest::findsTheDuration()
{
    QFETCH(QByteArray, printed);
    const QString text = compilation::durationText(printed);
    QTEST(text, "text");
    QTEST(compilation::secondsFromDurationText(text), "seconds");
}

void MeasuringTest::readsSeconds_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint64>("seconds");

    QTest::newRow("no text") << QString() << qint64(0);
    QTest::newRow("one blank") << u" "_s << qint64(0);
    QTest::newRow("the leading blank is not looked at") << u"x00:03:25.4"_s << qint64(205);
    QTest::newRow("the separators are not looked at") << u" 01x02y03z4"_s << qint64(3723);
    QTest::newRow("blanks before digits") << u"  1: 2: 3.4"_s << qint64(3723);
    QTest::newRow("digits before letters") << u" 1h:2m:3s.4"_s << qint64(3723);
    QTest::newRow("letters before digits") << u" h1:m2:s3.4"_s << qint64(0);
    QTest::newRow("minutes and seconds past 59") << u" 00:99:99.9"_s << qint64(99 * 60 + 99);
    QTest::newRow("digits of another script are none") << u" ٠١:٠٢:٠٣.٤"_s << qint64(0);
}

void MeasuringTest::readsSeconds()
{
    QFETCH(QString, text);
    QTEST(compilation::secondsFromDurationText(text), "seconds");
}

void MeasuringTest::readsLenientNumbers_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<qint64>("number");

    QTest::newRow("nothing") << QString() << qint64(0);
    QTest::newRow("two digits") << u"42"_s << qint64(42);
    QTest::newRow("leading zero") << u"07"_s << qint64(7);
    QTest::newRow("leading blank") << u" 7"_s << qint64(7);
    QTest::newRow("leading tab") << u"\t7"_s << qint64(7);
    QTest::newRow("only blanks") << u"  "_s << qint64(0);
    QTest::newRow("a digit and a colon") << u"7:"_s << qint64(7);
    QTest::newRow("a colon and a digit") << u":7"_s << qint64(0);
    QTest::newRow("letters") << u"N/"_s << qint64(0);
}

void MeasuringTest::readsLenientNumbers()
{
    QFETCH(QString, field);
    QTEST(compilation::lenientNumber(field), "number");
}

void MeasuringTest::writesSizes_data()
{
    QTest::addColumn<quint64>("bytes");
    QTest::addColumn<QString>("text");

    constexpr quint64 kilo = 1024;
    const auto row = [](quint64 bytes, const QString &text) {
        QTest::addRow("%llu bytes", static_cast<unsigned long long>(bytes)) << bytes << text;
    };
    row(0, u"0.00 bytes"_s);
    row(1, u"1.00 bytes"_s);
    row(1023, u"1023.00 bytes"_s);
    row(1024, u"1024.00 bytes"_s);
    row(1025, u"1.00 KB"_s);
    row(1536, u"1.50 KB"_s);
    row(4'404'019, u"4.20 MB"_s);
    row(kilo * kilo, u"1024.00 KB"_s);
    row(kilo * kilo + 1, u"1.00 MB"_s);
    row(1'049'600, u"1.00 MB"_s);
    row(kilo * kilo * kilo, u"1024.00 MB"_s);
    row(kilo * kilo * kilo + 1, u"1.00 GB"_s);
    row(kilo * kilo * kilo * kilo, u"1024.00 GB"_s);
    row(25'025'314'816, u"23.31 GB"_s);
    row(3 * kilo * kilo * kilo * kilo / 2, u"1.50 TB"_s);
    row(kilo * kilo * kilo * kilo * kilo, u"1024.00 TB"_s);
    row(4 * kilo * kilo * kilo * kilo * kilo, u"4096.00 TB"_s);
    row(std::numeric_limits<quint64>::max(), u"16777216.00 TB"_s);
}

void MeasuringTest::writesSizes()
{
    QFETCH(quint64, bytes);
    QTEST(compilation::sizeText(bytes), "text");
}

void MeasuringTest::findsExtensions_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("extension");

    QTest::newRow("lower case") << u"a.mp3"_s << u"mp3"_s;
    QTest::newRow("case is kept") << u"a.Mp3"_s << u"Mp3"_s;
    QTest::newRow("the last dot counts") << u"a.tar.gz"_s << u"gz"_s;
    QTest::newRow("no dot") << u"mp3"_s << QString();
    QTest::newRow("ends with a dot") << u"a."_s << QString();
    QTest::newRow("hidden, no extension") << u".mp3"_s << QString();
    QTest::newRow("hidden, with extension") << u".a.mp3"_s << u"mp3"_s;
    QTest::newRow("nothing") << QString() << QString();
    QTest::newRow("a line end in it") << u"a.b\nc"_s << u"b\nc"_s;
}

void MeasuringTest::findsExtensions()
{
    QFETCH(QString, name);
    QTEST(compilation::pathExtension(name), "extension");
}

void MeasuringTest::splitsIntoCharacters()
{
    QCOMPARE(compilation::splitStringIntoChars({}), QStringList());
    QCOMPARE(compilation::splitStringIntoChars(u"a b\n"_s), (QStringList{ u"a"_s, u" "_s, u"b"_s, u"\n"_s }));
}

void MeasuringTest::makesMediaRecords_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("extension");

    QTest::newRow("a usual path") << u"/music/Album/01 Song.mp3"_s << u"/music/Album"_s << u"01 Song.mp3"_s
                                  << u"mp3"_s;
    QTest::newRow("in the root folder") << u"/song.MP3"_s << u"/"_s << u"song.MP3"_s << u"MP3"_s;
    QTest::newRow("a dot in the folder only")
        << u"/music.d/song"_s << u"/music.d"_s << u"song"_s << QString();
    QTest::newRow("a leading dash") << u"/m/-i.wav"_s << u"/m"_s << u"-i.wav"_s << u"wav"_s;
    QTest::newRow("quotes and line ends")
        << u"/m/\"a\"\n'b'.wav"_s << u"/m"_s << u"\"a\"\n'b'.wav"_s << u"wav"_s;
    QTest::newRow("percent signs") << u"/m/%1 100%.wav"_s << u"/m"_s << u"%1 100%.wav"_s << u"wav"_s;
}

void MeasuringTest::makesMediaRecords()
{
    QFETCH(QString, path);
    const QUrl url = QUrl::fromLocalFile(path);
    const NodeMediaFile record = compilation::mediaRecord(url, path);
    QCOMPARE(record.s_File_URL, url);
    QCOMPARE(record.s_File_Path, path);
    QTEST(record.s_Folder_Path, "folder");
    QTEST(record.s_File_Name_With_Extension, "name");
    QTEST(record.s_File_Extension, "extension");
    QCOMPARE(record.s_File_Size, u"0.00 bytes"_s);
    QCOMPARE(record.s_Duration, QString());
    QCOMPARE(record.i_Duration_in_Seconds, 0);
}

void MeasuringTest::measuresFiles()
{
    const QTemporaryDir folder;
    const QString name = QString(251, u'n') + u".wav"_s;
    const QString path = folder.filePath(name);
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.resize(qint64(5) * 1024 * 1024 * 1024));
    QVERIFY(QFile::link(path, folder.filePath(u"link.wav"_s)));
    QVERIFY(QFile::link(folder.filePath(u"nowhere"_s), folder.filePath(u"broken.wav"_s)));

    QCOMPARE(compilation::fileSize(path), Q_UINT64_C(5368709120));
    QCOMPARE(compilation::fileSize(folder.filePath(u"link.wav"_s)), Q_UINT64_C(5368709120));
    QCOMPARE(compilation::fileSize(folder.filePath(u"broken.wav"_s)), 0U);
    QCOMPARE(compilation::fileSize(folder.filePath(u"gone.wav"_s)), 0U);
    QCOMPARE(compilation::fileSize({}), 0U);
    QCOMPARE(compilation::mediaRecord(QUrl::fromLocalFile(path), path).s_File_Size, u"5.00 GB"_s);
}

void MeasuringTest::tellsWhyAFileIsNotMeasured_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("printed"); // @: the file's path
    QTest::addColumn<QString>("why");
    const auto row = [](const char *name, const QByteArray &content, const QByteArray &printed,
                         const QString &why) { QTest::newRow(name) << content << printed << why; };
    row("measured", "x", report("00:03:25.47"), {});
    row("longer than the fields", "x", report("100:00:00.00"), {});
    row("shorter than a second", "x", report("00:00:00.04"), {});
    row("no length", "x", report("N/A"), u"The file does not say how long it is."_s);
    row("no word of it", "x", "Input #0\nAt least one output file must be specified\n",
        u"The file does not say how long it is."_s);
    row("nothing printed", "x", "", u"The file does not say how long it is."_s);
    row("no media", "text", "ffmpeg version 5\n@: Invalid data found when processing input\n",
        u"The file cannot be read as sound or film: Invalid data found when processing input."_s);
    row("empty", "", "@: Invalid data found when processing input\n", u"The file is empty."_s);
    row("tags that are no text", "x", report("00:03:25.47", "x", "  title : caf\xe9\n"),
        u"What the file says of itself is not valid UTF-8 text."_s);
}

void MeasuringTest::tellsWhyAFileIsNotMeasured()
{
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, printed);
    QTemporaryDir folder;
    const QString path = folder.filePath(u"a: b.mp3"_s);
    QCOMPARE(compilation::whyNotMeasured(path, {}, printed), u"There is no such file any more."_s);
    QFile file(path);
    QVERIFY(file.open(QFile::WriteOnly));
    file.write(content);
    file.close();
    printed.replace('@', path.toUtf8());
    QTEST(compilation::whyNotMeasured(path, compilation::durationText(printed), printed), "why");
}

void MeasuringTest::makesFolderRecords_data()
{
    QTest::addColumn<quint64>("bytes");
    QTest::addColumn<qint64>("kilobytes");
    QTest::addColumn<QString>("text");

    QTest::newRow("empty") << quint64(0) << qint64(0) << u"0.00 bytes"_s;
    QTest::newRow("one byte short of a unit") << quint64(1023) << qint64(0) << u"1023.00 bytes"_s;
    QTest::newRow("one unit") << quint64(1024) << qint64(1) << u"1024.00 bytes"_s;
    QTest::newRow("rounded down") << quint64(2047) << qint64(1) << u"2.00 KB"_s;
    QTest::newRow("a full Blu-ray") << quint64(26214400) * 1024 << qint64(26214400) << u"25.00 GB"_s;
}

void MeasuringTest::makesFolderRecords()
{
    QFETCH(quint64, bytes);
    const NodeDataFolder record = compilation::folderRecord(u"/data/Holiday"_s, bytes);
    QCOMPARE(record.s_Path, u"/data/Holiday"_s);
    QTEST(record.i_Size_in_KBytes, "kilobytes");
    QTEST(record.s_Size, "text");
}

void MeasuringTest::startsRecordsEmpty()
{
    const NodeMediaFile file;
    QVERIFY(file.s_File_URL.isEmpty());
    QCOMPARE(file.s_File_Path + file.s_Folder_Path + file.s_File_Name_With_Extension + file.s_File_Extension
            + file.s_File_Size + file.s_Duration,
        QString());
    QCOMPARE(file.i_Duration_in_Seconds, 0);
    const NodeDataFolder folder;
    QCOMPARE(folder.s_Path + folder.s_Size, QString());
    QCOMPARE(folder.i_Size_in_KBytes, 0);
}

QTEST_GUILESS_MAIN(MeasuringTest)
#include "MeasuringTest.moc"
