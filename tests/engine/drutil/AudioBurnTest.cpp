// Audio discs: every sample in its place, and the rules of an audio CD.
#include "Drutil.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype sector = 2352;

/// Samples that differ from place to place, so that a shift is seen.
QByteArray samples(qsizetype bytes, quint32 seed)
{
    QByteArray data(bytes, '\0');
    quint32 state = seed * 2654435761U + 1;
    for (char &c : data) {
        state = state * 1664525U + 1013904223U;
        c = char(state >> 24);
    }
    return data;
}

QByteArray chunk(const char *name, const QByteArray &content)
{
    QByteArray text(name, 4);
    const auto size = quint32(content.size());
    for (int shift : { 0, 8, 16, 24 })
        text += char((size >> shift) & 0xff);
    return text + content + (content.size() % 2 ? QByteArray(1, '\0') : QByteArray());
}

QByteArray wave(const QByteArray &data, const QByteArray &before = {}, quint32 rate = 44100)
{
    QByteArray format;
    QDataStream out(&format, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out << quint16(1) << quint16(2) << rate << quint32(rate * 4) << quint16(4) << quint16(16);
    return chunk("RIFF", "WAVE" + chunk("fmt ", format) + before + chunk("data", data));
}

QByteArray padded(QByteArray data)
{
    const qsizetype least = 4 * 75 * sector;
    const qsizetype whole = (data.size() + sector - 1) / sector * sector;
    data.resize(qMax(whole, least), '\0');
    return data;
}

} // namespace

class AudioBurnTest : public QObject {
    Q_OBJECT

    QString source() const { return m_drutil->path(u"music"_s); }
    QString bin() const { return m_drutil->recorder() + u"/disc.bin"_s; }
    QString cue() const { return m_drutil->recorder() + u"/disc.cue"_s; }

    void addTrack(const QString &name, const QByteArray &content, int second)
    {
        QVERIFY(writeFile(source() + u'/' + name, content));
        QFile file(source() + u'/' + name);
        QVERIFY(file.open(QFile::ReadWrite));
        QVERIFY(file.setFileTime(
            QDateTime::fromSecsSinceEpoch(1700000000 + second), QFileDevice::FileModificationTime));
    }

private Q_SLOTS:
    void init()
    {
        m_drutil = std::make_unique<Drutil>();
        QVERIFY(QDir().mkpath(source()));
    }

    void everySampleIsInItsPlace()
    {
        const QByteArray one = samples(sector * 311 + 40, 1);
        const QByteArray two = samples(sector * 300, 2);
        const QByteArray three = samples(4, 3);
        // Times against the alphabet: the list's order is the order in which the files were made.
        addTrack(u"z.wav"_s, wave(one), 1);
        addTrack(u"m.WAV"_s, wave(two, chunk("LIST", "INFOodd")), 2);
        addTrack(u"a.wav"_s, wave(three), 3);
        QVERIFY(m_drutil->insert(u"cd-r"_s));
        const Ran ran = (*m_drutil)({ u"burn"_s, u"-audio"_s, source() });
        QVERIFY2(ran.exit == 0, qPrintable(ran.err));
        const QByteArray expected =
            QByteArray(150 * sector, '\0') + padded(one) + padded(two) + padded(three);
        QCOMPARE(readFile(bin()).size(), expected.size());
        QVERIFY(readFile(bin()) == expected);
        QCOMPARE(QString::fromUtf8(readFile(cue())),
            u"FILE \"disc.bin\" BINARY\n"
            "  TRACK 01 AUDIO\n    INDEX 00 00:00:00\n    INDEX 01 00:02:00\n"
            "  TRACK 02 AUDIO\n    INDEX 01 00:06:12\n"
            "  TRACK 03 AUDIO\n    INDEX 01 00:10:12\n"_s);
        QCOMPARE(m_drutil->fact(u"Space Used:"_s).section(u"blocks:"_s, 1).trimmed().section(u' ', 0, 0),
            u"912"_s);
        QCOMPARE(m_drutil->fact(u"Writability:"_s), u"not writable"_s);
    }

    void otherProgramsReadTheSheet()
    {
        addTrack(u"1.wav"_s, wave(samples(sector * 375, 1)), 1);
        addTrack(u"2.wav"_s, wave(samples(sector * 450, 2)), 2);
        QVERIFY(m_drutil->insert(u"cd-rw"_s));
        QCOMPARE((*m_drutil)({ u"burn"_s, u"-audio"_s, source() }).exit, 0);
        // cd-info counts from the start of the pause: 00:02:00 is the start of track 1.
        const Ran info =
            runProgram(u"cd-info"_s, { u"--no-header"_s, u"--no-device-info"_s, u"--no-cddb"_s, cue() });
        QVERIFY2(QRegularExpression(u"1: 00:0[24]:00\\s+\\d+\\s+audio"_s).match(info.out).hasMatch(),
            qPrintable(info.out));
        QCOMPARE(info.out.count(u" audio "_s), 2);
        const Ran toc = runProgram(
            u"/bin/sh"_s, { u"-c"_s, u"cd \"$0\" && cdrdao toc-info disc.cue"_s, m_drutil->recorder() });
        QVERIFY2(toc.exit == 0, qPrintable(toc.err));
        // The pause and both tracks: 150 + 375 + 450.
        QVERIFY2(toc.out.contains(u"2 tracks, length 00:13:00, 975 blocks"_s), qPrintable(toc.out));
    }

    // Converted as the application converts, with names that the alphabet of CD-TEXT has and has not.
    void namesGoFromTheFilesToTheDisc()
    {
        const QStringList titles{ u"Façade \"live\""_s, u"Łódź – Nr. 2"_s };
        for (int i = 0; i < titles.size(); ++i) {
            const QString file = source() + u"/%1.wav"_s.arg(i);
            const Ran made = runProgram(u"ffmpeg"_s,
                { u"-hide_banner"_s, u"-f"_s, u"lavfi"_s, u"-i"_s, u"sine=d=5"_s, u"-ar"_s, u"44100"_s,
                    u"-ac"_s, u"2"_s, u"-metadata"_s, u"title="_s + titles.at(i), u"-metadata"_s,
                    u"artist=Band"_s, u"-metadata"_s, u"album=Album"_s, file });
            QVERIFY2(made.exit == 0, qPrintable(made.err));
            QFile touched(file);
            QVERIFY(touched.open(QFile::ReadWrite)
                && touched.setFileTime(
                    QDateTime::fromSecsSinceEpoch(1700000000 + i), QFileDevice::FileModificationTime));
        }
        QVERIFY(m_drutil->insert(u"cd-r"_s));
        const Ran burnt = (*m_drutil)({ u"burn"_s, u"-audio"_s, source() });
        QVERIFY2(burnt.exit == 0, qPrintable(burnt.err));
        QVERIFY2((burnt.out + burnt.err).contains(u"spelled otherwise: \"Łódź – Nr. 2\"."_s),
            qPrintable(burnt.out));
        const Ran tracks = (*m_drutil)({ u"tracks"_s });
        QCOMPARE(tracks.exit, 0);
        QCOMPARE(tracks.out,
            u"Album: Album\nAlbum performer: Band\n"
            "Track  Kind   Start     Length    Title          Performer\n"
            "    1  audio  00:02:00  00:05:00  Façade 'live'  Band\n"
            "    2  audio  00:07:00  00:05:00  Lódz - Nr. 2   Band\n"_s);
        // Its output is UTF-8 only where the locale is.
        QProcessEnvironment utf8 = QProcessEnvironment::systemEnvironment();
        utf8.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
        const Ran info = runProgram(
            u"cd-info"_s, { u"--no-header"_s, u"--no-device-info"_s, u"--no-cddb"_s, cue() }, utf8);
        QVERIFY2(info.out.contains(u"TITLE: Façade 'live'"_s) && info.out.contains(u"TITLE: Lódz - Nr. 2"_s),
            qPrintable(info.out));
        QCOMPARE(info.out.count(u"PERFORMER: Band"_s), 3);
        const Ran toc = runProgram(
            u"/bin/sh"_s, { u"-c"_s, u"cd \"$0\" && cdrdao toc-info disc.cue"_s, m_drutil->recorder() });
        QVERIFY2(toc.exit == 0, qPrintable(toc.err));
        QVERIFY2(toc.out.contains(u"2 tracks, length 00:12:00, 900 blocks"_s), qPrintable(toc.out));
        // The archived sheet names its file, and the titles are left alone.
        QCOMPARE((*m_drutil)({ u"tray"_s, u"eject"_s }).exit, 0);
        QCOMPARE(
            (*m_drutil)({ u"tracks"_s }).err, u"drutil: The disc in drive 1 is blank: it has no tracks.\n"_s);
    }

    void tracksOfDataDiscs()
    {
        QVERIFY(writeFile(source() + u"/file"_s, "data"));
        QVERIFY(m_drutil->insert(u"cd-r"_s));
        QCOMPARE((*m_drutil)({ u"burn"_s, source() }).exit, 0);
        const Ran cd = (*m_drutil)({ u"tracks"_s, u"-drive"_s, u"1"_s });
        QVERIFY2(QRegularExpression(
                     u"^Track  Kind   Start     Length\n    1  data   00:02:00  00:0\\d:\\d\\d\n$"_s)
                     .match(cd.out)
                     .hasMatch(),
            qPrintable(cd.out));
        QVERIFY(m_drutil->insert(u"dvd-r"_s));
        QCOMPARE((*m_drutil)({ u"burn"_s, source() }).exit, 0);
        QVERIFY((*m_drutil)({ u"tracks"_s }).out.contains(u"    1  data   00:00:00  00:0"_s));
        QCOMPARE((*m_drutil)({ u"insert"_s, u"none"_s }).exit, 0);
        QCOMPARE((*m_drutil)({ u"tracks"_s }).exit, 3);
        QCOMPARE((*m_drutil)({ u"tracks"_s, u"more"_s }).exit, 2);
    }

    void anArchivedDiscKeepsItsSheet()
    {
        addTrack(u"1.wav"_s, wave(samples(sector * 300, 1)), 1);
        QVERIFY(m_drutil->insert(u"cd-r"_s));
        QCOMPARE((*m_drutil)({ u"burn"_s, u"-audio"_s, source() }).exit, 0);
        QCOMPARE((*m_drutil)({ u"tray"_s, u"eject"_s }).exit, 0);
        const QDir discs(m_drutil->recorder() + u"/discs"_s);
        const QStringList files = discs.entryList(QDir::Files);
        QCOMPARE(files.size(), 2);
        QVERIFY(readFile(discs.filePath(files.at(1)))
                    .startsWith("FILE \"" + files.at(0).toUtf8() + "\" BINARY\n"));
    }

    void refusals_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("48 kHz") << u"fast.wav"_s << wave(samples(4000, 1), {}, 48000);
        QTest::newRow("no WAVE file") << u"text.wav"_s << QByteArray("hello");
        QTest::newRow("empty") << u"nothing.wav"_s << QByteArray();
    }

    void refusals()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        addTrack(u"good.wav"_s, wave(samples(sector * 300, 1)), 1);
        addTrack(name, content, 2);
        QVERIFY(m_drutil->insert(u"cd-r"_s));
        const Ran ran = (*m_drutil)({ u"burn"_s, u"-audio"_s, source() });
        QCOMPARE(ran.exit, 1);
        QVERIFY2(ran.err.contains(name), qPrintable(ran.err));
        QVERIFY(m_drutil->state().contains("state=blank"));
    }

    void aFolderWithoutTracks()
    {
        QVERIFY(m_drutil->insert(u"cd-r"_s));
        const Ran empty = (*m_drutil)({ u"burn"_s, u"-audio"_s, source() });
        QCOMPARE(empty.exit, 1);
        QVERIFY2(empty.err.contains(u"holds no WAVE file: "_s), qPrintable(empty.err));
        addTrack(u"cover.jpg"_s, "a picture", 1);
        const Ran other = (*m_drutil)({ u"burn"_s, u"-audio"_s, source() });
        QCOMPARE(other.exit, 1);
        QVERIFY2(other.err.contains(u"holds no WAVE file: "_s), qPrintable(other.err));
        QVERIFY(m_drutil->state().contains("state=blank"));
    }

    void whatIsNoTrackAndWhatIsFilledUpIsNoted()
    {
        addTrack(u"1.wav"_s, wave(samples(sector * 300, 1)), 1);
        addTrack(u"2.wav"_s, wave(samples(sector * 299, 1)), 2);
        addTrack(u"cover.jpg"_s, "a picture", 3);
        QVERIFY(m_drutil->insert(u"cd-r"_s));
        const Ran ran = (*m_drutil)({ u"burn"_s, u"-audio"_s, source() });
        QCOMPARE(ran.exit, 0);
        QCOMPARE(ran.err,
            u"note: \"cover.jpg\" is left out: only WAVE files become tracks.\n"
            "note: \"2.wav\" is shorter than four seconds: silence fills the track up to that.\n"_s);
    }

    void ninetyNineTracksAndNoMore()
    {
        for (int i = 1; i <= 99; ++i)
            addTrack(u"%1.wav"_s.arg(i), wave(samples(400, quint32(i))), 0);
        QVERIFY(m_drutil->insert(u"cd-r"_s));
        QCOMPARE((*m_drutil)({ u"burn"_s, u"-audio"_s, source() }).exit, 0);
        QCOMPARE(readFile(cue()).count("TRACK"), 99);
        // Of one time, they are in the order of their numbers.
        QVERIFY(readFile(bin()).mid((150 + 9 * 300) * sector, 400) == samples(400, 10));
        addTrack(u"100.wav"_s, wave(samples(400, 100)), 0);
        QVERIFY(m_drutil->insert(u"cd-r"_s));
        QCOMPARE((*m_drutil)({ u"burn"_s, u"-audio"_s, source() }).exit, 1);
    }

    void audioNeedsACd()
    {
        addTrack(u"1.wav"_s, wave(samples(sector * 300, 1)), 1);
        for (const auto &kind : { u"dvd-r"_s, u"dvd+rw"_s, u"bd-r"_s }) {
            QVERIFY(m_drutil->insert(kind));
            const Ran ran = (*m_drutil)({ u"burn"_s, u"-audio"_s, source() });
            QCOMPARE(ran.exit, 1);
            QVERIFY(ran.err.contains(u"An audio disc needs a CD"_s));
            QVERIFY(m_drutil->state().contains("state=blank"));
        }
    }

    void moreThanADiscIsRefused()
    {
        // 80 minutes and a little: a sparse file behind a right header.
        const qint64 bytes = 359845LL * sector;
        QByteArray header = wave({});
        for (int i = 0; i < 4; ++i)
            header[header.size() - 4 + i] = char((bytes >> (8 * i)) & 0xff);
        addTrack(u"long.wav"_s, header, 1);
        QFile file(source() + u"/long.wav"_s);
        QVERIFY(file.open(QFile::ReadWrite) && file.resize(header.size() + bytes));
        QVERIFY(m_drutil->insert(u"cd-r"_s));
        const Ran ran = (*m_drutil)({ u"burn"_s, u"-audio"_s, source() });
        QCOMPARE(ran.exit, 1);
        QVERIFY2(ran.err.contains(u"need 79:57 minutes (359845 blocks), and"_s)
                && ran.err.contains(u"room for 79:57 minutes (359844 blocks)"_s),
            qPrintable(ran.err));
        QVERIFY(m_drutil->state().contains("state=blank"));
    }

    void aRewritableDataDiscBecomesAnAudioDisc()
    {
        addTrack(u"1.wav"_s, wave(samples(sector * 300, 1)), 1);
        QVERIFY(m_drutil->insert(u"cd-rw"_s));
        QCOMPARE((*m_drutil)({ u"burn"_s, source() }).exit, 0);
        QCOMPARE((*m_drutil)({ u"burn"_s, u"-audio"_s, source() }).exit, 0);
        QVERIFY(QFile::exists(bin()));
        QVERIFY(!QFile::exists(m_drutil->recorder() + u"/disc.iso"_s));
        QCOMPARE((*m_drutil)({ u"burn"_s, source() }).exit, 0);
        QVERIFY(!QFile::exists(bin()) && !QFile::exists(cue()));
    }

private:
    std::unique_ptr<Drutil> m_drutil;
};

QTEST_GUILESS_MAIN(AudioBurnTest)
#include "AudioBurnTest.moc"
